#include "studies/contours.h"

#include <array>
#include <cmath>

namespace zolv {
namespace {

struct Corner {
    double x = 0, y = 0, value = 0;
};

struct Crossing {
    double x = 0, y = 0;
};

/// The corners of a square in turn, so that an edge goes from each to the next.
using Square = std::array<Corner, 4>;

bool IsAbove(const Corner& corner, double level) { return corner.value >= level; }

Crossing CrossingOf(const Corner& from, const Corner& to, double level) {
    const double share = (level - from.value) / (to.value - from.value);
    return {from.x + share * (to.x - from.x), from.y + share * (to.y - from.y)};
}

void AddPieces(std::vector<ContourPiece>& pieces, const Square& square, double level) {
    std::array<Crossing, 4> crossings;
    std::size_t count = 0;
    double sum = 0;
    for (std::size_t i = 0; i < square.size(); ++i) {
        const Corner& from = square[i];
        const Corner& to = square[(i + 1) % square.size()];
        sum += from.value;
        if (std::isnan(from.value)) return;
        if (IsAbove(from, level) != IsAbove(to, level)) crossings[count++] = CrossingOf(from, to, level);
    }
    const auto add = [&](std::size_t one, std::size_t other) {
        pieces.push_back({crossings[one].x, crossings[one].y, crossings[other].x, crossings[other].y});
    };
    if (count == 2) add(0, 1);
    if (count != 4) return;
    // The line parts the middle from those corners that lie on the other side of the level.
    const bool middleLikeFirst = (sum / 4 >= level) == IsAbove(square[0], level);
    add(0, middleLikeFirst ? 1 : 3);
    add(2, middleLikeFirst ? 3 : 1);
}

}  // namespace

std::vector<ContourPiece> ContourOf(const std::vector<double>& xs, const std::vector<double>& ys,
                                    const std::vector<double>& values, double level) {
    std::vector<ContourPiece> pieces;
    const auto corner = [&](std::size_t column, std::size_t line) {
        return Corner{xs[column], ys[line], values[line * xs.size() + column]};
    };
    for (std::size_t line = 0; line + 1 < ys.size(); ++line) {
        for (std::size_t column = 0; column + 1 < xs.size(); ++column) {
            AddPieces(pieces,
                      {corner(column, line), corner(column + 1, line), corner(column + 1, line + 1),
                       corner(column, line + 1)},
                      level);
        }
    }
    return pieces;
}

}  // namespace zolv
