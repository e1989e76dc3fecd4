#pragma once

namespace zolv {

/// Speeds to ratios: reads the wanted speeds and the final drive, checks that no gear is slower than the one below it,
/// and finds the ratios. With speeds in the wrong order it stores and colours them, reports them on TorquePlot, and
/// leaves every result as it was.
/// Reads:  B_Speed1 to B_Speed6, B_Final, vehicle.CurrentCar, aero.TopSpeed
/// Writes: GearSpeed and FinalDrive of gearing.FromSpeeds, gearing.WrongOrder, and on success gearing.Loads
void UpdateRatios();

/// The calculation and display of the speeds page. A final drive that the search raised goes into B_Final.
/// Runs RunAcceleration while options.AccelerationOn is true and ends with the follow-up gearingFollowUps.RatiosFound.
/// Reads:  GearSpeed and FinalDrive of gearing.FromSpeeds, gearing.Loads, vehicle, options, units
/// Writes: gearing.FromSpeeds and reverse, B_Final, the labels of the page
void CalcGearRatios();

/// The user chose this direction: it takes over the speeds that the other page found.
void ChooseSpeedsPage();

}  // namespace zolv
