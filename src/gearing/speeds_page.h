#pragma once

namespace zolv {

/// Speeds to ratios: reads the wanted speeds and the final drive, checks that no gear is slower than the one below it,
/// and finds the ratios. With speeds in the wrong order it reports them on TorquePlot; the colours of the speeds have
/// changed by then, and nothing else does.
/// Reads:  B_Speed1 to B_Speed6, B_Final, vehicle.CurrentCar, aero.TopSpeed
/// Writes: gearing.GearSpeed[1], FinalDrive[1], and on success GearAxleLoads and GearSpeedFactor
void UpdateRatios();

/// The calculation and display of the speeds page, in mode 1. A final drive that the search raised goes into B_Final.
/// Runs RunAcceleration while options.AccelerationOn is true and ends with the follow-up gearing.RatiosFound.
/// Reads:  gearing.GearSpeed[1], GearSpeedFactor, FinalDrive[1], vehicle, options, units
/// Writes: gearing of mode 1 and reverse, B_Final, the labels of the page
void CalcGearRatios();

/// The user chose this direction: it takes over the speeds that the other page found.
void ChooseSpeedsPage();

}  // namespace zolv
