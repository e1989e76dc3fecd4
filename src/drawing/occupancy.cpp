#include "drawing/occupancy.h"

#include <algorithm>
#include <cmath>

namespace zolv {
namespace {

constexpr double kCell = 3;
constexpr double kMostCells = 2000;

int CellsAlong(double length) { return std::max(1, static_cast<int>(std::min(length / kCell, kMostCells)) + 1); }

}  // namespace

Occupancy::Occupancy(const Box& ground)
    : ground_(ground),
      columns_(CellsAlong(ground.width)),
      rows_(CellsAlong(ground.height)),
      cells_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_), 0) {}

void Occupancy::TakeLine(ViewPoint from, ViewPoint to) {
    const double length = std::max(std::fabs(to.x - from.x), std::fabs(to.y - from.y));
    const int steps = static_cast<int>(length / kCell) + 1;
    for (int i = 0; i <= steps; ++i) {
        const double share = static_cast<double>(i) / steps;
        cells_[Cell(Column(from.x + (to.x - from.x) * share), Row(from.y + (to.y - from.y) * share))] = 1;
    }
}

double Occupancy::ShareTaken(const Box& box) const {
    const int left = Column(box.left);
    const int right = Column(box.Right());
    const int top = Row(box.top);
    const int bottom = Row(box.Bottom());
    int taken = 0;
    for (int row = top; row <= bottom; ++row) {
        for (int column = left; column <= right; ++column) taken += cells_[Cell(column, row)];
    }
    return static_cast<double>(taken) / ((right - left + 1) * (bottom - top + 1));
}

int Occupancy::Column(double x) const {
    return std::clamp(static_cast<int>((x - ground_.left) / kCell), 0, columns_ - 1);
}

int Occupancy::Row(double y) const { return std::clamp(static_cast<int>((y - ground_.top) / kCell), 0, rows_ - 1); }

Box Inside(Box box, const Box& room) {
    box.left = std::clamp(box.left, room.left, std::max(room.left, room.Right() - box.width));
    box.top = std::clamp(box.top, room.top, std::max(room.top, room.Bottom() - box.height));
    return box;
}

}  // namespace zolv
