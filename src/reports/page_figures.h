#pragma once

#include <string>
#include <vector>

#include "fields/kinds.h"

/// Figures of the pages that each report of a set-up has, in their order.
namespace zolv {

/// A figure and the label that names it.
struct NamedFigure {
    const Field* name;
    const Field* value;
};

/// Engine, mass and wheelbase of the car.
[[nodiscard]] std::vector<NamedFigure> FiguresOfCar();

/// The tyre of the axle that is analysed.
[[nodiscard]] std::vector<NamedFigure> FiguresOfTyre();

/// A line for each gear that the car has, reverse last: name, ratio, speed, engine speed before and after the change,
/// torque. While gears are in the wrong order, a dash stands in the place of what follows from them.
[[nodiscard]] std::vector<std::vector<std::string>> GearLines();

}  // namespace zolv
