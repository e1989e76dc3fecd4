#pragma once

namespace zolv {

/// Ratios to speeds: reads the ratios and the final drive, checks that no gear is shorter than the one below it, and
/// works out and shows the rest. With ratios in the wrong order it stores them, reports them on TorquePlot, and leaves
/// every result as it was.
/// Reads:  Gear1 to Gear6, GearF, vehicle.CurrentCar
/// Writes: GearRatio and FinalDrive of gearing.FromRatios, gearing.WrongOrder
void UpdateSpeeds();

/// The calculation and display of the ratios page. Runs RunAcceleration while options.AccelerationOn is true
/// and ends with the follow-up gearingFollowUps.SpeedsFound.
/// Reads:  GearRatio and FinalDrive of gearing.FromRatios, vehicle, tyres, aero, options, units
/// Writes: gearing.FromRatios, Loads, and reverse, the labels of the page
void CalcGearSpeeds();

/// The user chose this direction: it takes over the ratios that the other page found.
void ChooseRatiosPage();

}  // namespace zolv
