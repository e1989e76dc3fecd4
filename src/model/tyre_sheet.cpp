#include "model/tyre_sheet.h"

#include "model/tyre_geometry.h"
#include "model/tyre_model.h"

namespace zolv {

TyreSizes TyreSizesOf(const CarRecord& car) {
    TyreSizes sizes;
    sizes.FrontUnloadedRadius = UnloadedRadius(car.FTW, car.FTP, car.FWS);
    sizes.FrontMaxDeformation = sizes.FrontUnloadedRadius - RimRadius(car.FWS);
    sizes.RearUnloadedRadius = static_cast<float>(UnloadedRadius(car.RTW, car.RTP, car.RWS));
    sizes.RearMaxDeformation = static_cast<float>(sizes.RearUnloadedRadius - RimRadius(car.RWS));
    return sizes;
}

TyreSheet FrontTyre(const CarRecord& car, const TyreSizes& sizes, double pressure_kPa, double axleLoad_N) {
    const double stiffness = TyreStiffness(pressure_kPa);
    const double deformation = TyreDeformation(axleLoad_N, stiffness, sizes.FrontMaxDeformation);
    const double radius = sizes.FrontUnloadedRadius - deformation;
    const double length = PatchLength(sizes.FrontUnloadedRadius, radius);
    const double width = static_cast<float>(car.FTW / 1000.0);
    return {.Pressure = pressure_kPa,
            .Stiffness = stiffness,
            .UnloadedRadius = sizes.FrontUnloadedRadius,
            .Deformation = deformation,
            .RollingRadius = radius,
            .Circumference = radius * 2 * kPi,
            .WallHeight = radius - RimRadius(car.FWS),
            .PatchWidth = width,
            .PatchLength = length,
            .PatchArea = length * width,
            .AspectRatio = width / length,
            .Frequency = TyreFrequency(car.Mass * 0.5 * car.WeightDist, stiffness)};
}

TyreSheet RearTyre(const CarRecord& car, const TyreSizes& sizes, double pressure_kPa, double axleLoad_N) {
    const auto stiffness = static_cast<float>(TyreStiffness(pressure_kPa));
    const auto deformation = static_cast<float>(TyreDeformation(axleLoad_N, stiffness, sizes.RearMaxDeformation));
    const auto radius = static_cast<float>(static_cast<double>(sizes.RearUnloadedRadius) - deformation);
    const double length = static_cast<float>(PatchLength(sizes.RearUnloadedRadius, radius));
    const double width = static_cast<float>(car.RTW / 1000.0);
    const double share = 1 - static_cast<double>(car.WeightDist);
    return {.Pressure = pressure_kPa,
            .Stiffness = stiffness,
            .UnloadedRadius = sizes.RearUnloadedRadius,
            .Deformation = deformation,
            .RollingRadius = radius,
            .Circumference = static_cast<double>(radius) * 2 * kPi,
            .WallHeight = radius - RimRadius(car.RWS),
            .PatchWidth = width,
            .PatchLength = length,
            .PatchArea = static_cast<float>(length * width),
            .AspectRatio = static_cast<float>(width / length),
            .Frequency = TyreFrequency(share * (car.Mass * 0.5), stiffness)};
}

RollingCar RollingOn(const AirProfile& air, const CarRecord& car, const TyreSizes& sizes, double frontStiffness,
                     double rearStiffness) {
    return {.Air = air,
            .Front = {.UnloadedRadius = sizes.FrontUnloadedRadius,
                      .Stiffness = frontStiffness,
                      .MaxDeformation = sizes.FrontMaxDeformation},
            .Rear = {.UnloadedRadius = sizes.RearUnloadedRadius,
                     .Stiffness = rearStiffness,
                     .MaxDeformation = sizes.RearMaxDeformation},
            .RearDriven = car.IsRearDriven(),
            .TyreSlip = kTyreSlip};
}

}  // namespace zolv
