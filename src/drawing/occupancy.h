#pragma once

#include <cstdint>
#include <vector>

#include "drawing/plot_place.h"

namespace zolv {

/// A point of a view.
struct ViewPoint {
    double x = 0, y = 0;
};

/// Where lines lie on a rectangle of a view, in cells of a few pixels.
class Occupancy {
public:
    explicit Occupancy(const Box& ground);

    void TakeLine(ViewPoint from, ViewPoint to);

    /// The share of a box that lines cross, 0 to 1. A box counts by the part of it that lies on the ground.
    [[nodiscard]] double ShareTaken(const Box& box) const;

private:
    [[nodiscard]] int Column(double x) const;
    [[nodiscard]] int Row(double y) const;
    [[nodiscard]] std::size_t Cell(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) + static_cast<std::size_t>(column);
    }

    Box ground_;
    int columns_, rows_;
    std::vector<std::uint8_t> cells_;
};

/// The box moved into `room`, or to its upper left corner if it is larger.
[[nodiscard]] Box Inside(Box box, const Box& room);

}  // namespace zolv
