#pragma once

#include <gtest/gtest.h>

#include "fields/all_windows.h"
#include "gearing/gearing_state.h"
#include "shell/fresh_start.h"
#include "text/texts.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

/// A car of two gears with figures that can be worked out by hand, and results of the gearing to go with it. Nothing is
/// calculated: the plots draw what stands here.
class HandMadeCar : public testing::Test {
protected:
    HandMadeCar() {
        FreshStart();
        CarRecord& car = vehicle.CurrentCar;
        car.Power = 50;
        car.PowerRPM = 5000;
        car.Torque = 100;
        car.TorqueRPM = 3000;
        car.IdleRPM = 1000;
        car.NumGears = 2;
        car.Efficiency = 0.5F;
        gearing.Curve.CurveC = -0.01;  // above peak torque 100 Nm at 3000 rpm falling to 70 Nm at 6000 rpm
        gearing.Curve.CurveD = 130;
        for (Gearbox* const box : {&gearing.FromRatios, &gearing.FromSpeeds}) {
            box->GearRatio = {3, 2, 1, 0.5F, 0.5F, 0.5F, 0.5F};
            box->FinalDrive = 4;
        }
        gearing.FromRatios.GearSpeed = {5, 20, 40, 99, 99, 99, 99};
        gearing.FromRatios.GearRevs = {5000, 5000, 5500, 9999, 9999, 9999, 9999};
        gearing.FromRatios.RevsAfterChange = {0, 3000, 99, 99, 99, 99, 0};
        options.AccelerationOn = false;
        for (const std::string& name : texts.GraphNames) Zolv.Select_Graphs.Add(name);
        Zolv.Select_Graphs.Pick(0);
    }
    ~HandMadeCar() override { FreshStart(); }

    /// A run whose columns hold, in row i: speed 2 i, driving force 100 i, resistance 10 i, net force 90 i, loads 1000
    /// front and 1500 rear.
    static void Run(int lastRow) {
        options.AccelerationOn = true;
        gearing.AccelLastRow = static_cast<std::int16_t>(lastRow);
        for (int i = 0; i < kAccelRows; ++i) {
            const auto row = static_cast<float>(i);
            gearing.AccelRows[static_cast<std::size_t>(i)] = {
                {0, 2 * row, 0, 1, 100 * row, 10 * row, 90 * row, 0, 1000, 1500}};
        }
    }
};

}  // namespace zolv
