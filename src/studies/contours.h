#pragma once

#include <vector>

namespace zolv {

/// A straight piece of a contour line.
struct ContourPiece {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};

/// The line along which a grid of values has one level, square by square, straight between the edges that it crosses
/// ("marching squares"). A square with a value that is not a number has none; where the line may go either way, the
/// mean of the corners says which.
/// @param values  xs.size() a row, a row for each of ys
[[nodiscard]] std::vector<ContourPiece> ContourOf(const std::vector<double>& xs, const std::vector<double>& ys,
                                                  const std::vector<double>& values, double level);

}  // namespace zolv
