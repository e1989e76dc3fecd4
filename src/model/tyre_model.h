#pragma once

/// The tyre as a linear vertical spring. Under its load it squashes, rolls on a smaller radius, and the circle leaves a
/// chord on the road, which is the contact patch. The model leaves out the sidewall's own bending, temperature, and the
/// growth of a tyre that turns fast.
namespace zolv {

/// Vertical stiffness of one tyre: 100 kN/m without pressure, and 2.5 kN/m more for each kPa. A fit without a stated
/// source, the same for every size of tyre; meant for the cars' pressures, 50 to 411 kPa, and for a blown tyre's 0.
/// @param pressure_kPa  inflation pressure [kPa], 0 or more
/// @return [N/m]
[[nodiscard]] double TyreStiffness(double pressure_kPa);

/// How far a tyre squashes under its share of an axle load; never past the sidewall.
/// @param axleLoad_N   vertical load on the axle [N]; each of its two tyres carries half
/// @param stiffness    [N/m], above 0
/// @param sidewall_m   height between rim and tread [m], the limit
/// @return [m]; zero or below for a load of zero or below
[[nodiscard]] double TyreDeformation(double axleLoad_N, double stiffness, double sidewall_m);

/// Undamped frequency of the static corner mass on the tyre's spring, without aerodynamic load.
/// @param cornerMass_kg  mass on the one wheel [kg]
/// @param stiffness      [N/m]
/// @return [Hz]
[[nodiscard]] double TyreFrequency(double cornerMass_kg, double stiffness);

/// Length of the contact patch: the chord of the unloaded circle at the height of the rolling radius.
/// @param unloadedRadius, rollingRadius  [m]
/// @return [m]; not a number for a tyre that is pulled longer than its unloaded radius
[[nodiscard]] double PatchLength(double unloadedRadius, double rollingRadius);

}  // namespace zolv
