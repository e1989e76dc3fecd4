#pragma once

namespace zolv {

/// Ratios to speeds: reads the ratios and the final drive, checks that no gear is shorter than the one below it, and
/// works out and shows the rest. With ratios in the wrong order it reports them on TorquePlot and changes nothing else.
/// Reads:  Gear1 to Gear6, GearF, vehicle.CurrentCar
/// Writes: gearing.GearRatio[0], FinalDrive[0]
void UpdateSpeeds();

/// The calculation and display of the ratios page, in mode 0. Runs RunAcceleration while options.AccelerationOn is true
/// and ends with the follow-up gearing.SpeedsFound.
/// Reads:  gearing.GearRatio[0], FinalDrive[0], vehicle, tyres, aero, options, units
/// Writes: gearing of mode 0 and reverse, the labels of the page
void CalcGearSpeeds();

/// The user chose this direction: it takes over the ratios that the other page found.
void ChooseRatiosPage();

}  // namespace zolv
