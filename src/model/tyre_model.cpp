#include "model/tyre_model.h"

#include <algorithm>
#include <cmath>

#include "model/tyre_geometry.h"

namespace zolv {

double TyreStiffness(double pressure_kPa) {
    constexpr double kWithoutPressure = 100;  // [kN/m]
    constexpr double kForEachKpa = 2.5;       // [kN/m]
    return (kWithoutPressure + kForEachKpa * pressure_kPa) * 1000;
}

double TyreDeformation(double axleLoad_N, double stiffness, double sidewall_m) {
    return std::min((axleLoad_N * 0.5) / stiffness, sidewall_m);
}

double TyreFrequency(double cornerMass_kg, double stiffness) {
    return 0.5 / (kPi * std::sqrt(cornerMass_kg / stiffness));
}

double PatchLength(double unloadedRadius, double rollingRadius) {
    return 2 * std::sqrt(unloadedRadius * unloadedRadius - rollingRadius * rollingRadius);
}

}  // namespace zolv
