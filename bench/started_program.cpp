#include "started_program.h"

#include <filesystem>

#include "aero/aero_state.h"
#include "fields/windows.h"
#include "gearing/acceleration_targets.h"
#include "gearing/gearing_state.h"
#include "shell/fresh_start.h"
#include "shell/start_up.h"
#include "tyres/tyre_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

void StartProgram(const char* folder) {
    const auto path = std::filesystem::temp_directory_path() / "zolv-bench" / folder;
    std::filesystem::create_directories(path);
    std::filesystem::current_path(path);
    FreshStart();
    LoadZolv();
    Zolv.Ratios.FinalDrive.Enter("2");
}

AccelerationSetup PresentSetup() {
    const CarRecord& car = vehicle.CurrentCar;
    return {.Car = PresentRollingCar(),
            .Motor = EngineOf(car),
            .Curve = gearing.Curve,
            .Efficiency = car.Efficiency,
            .Wheelbase = car.Wheelbase,
            .NumGears = car.NumGears,
            .DrivetrainType = car.DrivetrainType,
            .TyreMu = tyres.TyreMu,
            .Ratios = gearing.GearRatio[0],
            .FinalDrive = gearing.FinalDrive[0],
            .ShiftRevs = gearing.GearRevs[0],
            .LongDistance = AccelTargetTable[0].Distances[1]};
}

}  // namespace zolv
