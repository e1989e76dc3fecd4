#pragma once

#include "model/car_record.h"
#include "model/gear_speeds.h"

namespace zolv {

/// Sizes of a car's tyres. Front figures are doubles and rear figures 32-bit floats throughout, rounded at each store,
/// so that the two sides are not identical for equal inputs.
struct TyreSizes {
    double FrontUnloadedRadius = 0;  // [m]
    float RearUnloadedRadius = 0;    // [m]
    double FrontMaxDeformation = 0;  // [m] sidewall height: a tyre squashes no further than to the rim
    float RearMaxDeformation = 0;    // [m]

    bool operator==(const TyreSizes&) const = default;
};
[[nodiscard]] TyreSizes TyreSizesOf(const CarRecord& car);

/// What one tyre does at its pressure under its load: all that the tyres page shows. Rear figures have been rounded to
/// single precision where they are kept so.
struct TyreSheet {
    double Pressure = 0;   // [kPa] 0 for a blown tyre
    double Stiffness = 0;  // [N/m]
    double UnloadedRadius = 0, Deformation = 0, RollingRadius = 0, Circumference = 0, WallHeight = 0;  // [m]
    double PatchWidth = 0, PatchLength = 0;                                                            // [m]
    double PatchArea = 0;                                                                              // [m^2]
    double AspectRatio = 0;  // of the patch, width over length
    double Frequency = 0;    // [Hz]
};

/// The front patch's area over the rear one's.
[[nodiscard]] inline double PatchRatioOf(const TyreSheet& front, const TyreSheet& rear) {
    return front.PatchArea / rear.PatchArea;
}

/// @param pressure_kPa  0 or more
/// @param axleLoad_N    vertical, on the whole axle
[[nodiscard]] TyreSheet FrontTyre(const CarRecord& car, const TyreSizes& sizes, double pressure_kPa, double axleLoad_N);
[[nodiscard]] TyreSheet RearTyre(const CarRecord& car, const TyreSizes& sizes, double pressure_kPa, double axleLoad_N);

/// Share of the road speed that slip takes.
inline constexpr float kTyreSlip = 0.01F;

/// The car on its tyres, as the gearing and the run roll it.
[[nodiscard]] RollingCar RollingOn(const AirProfile& air, const CarRecord& car, const TyreSizes& sizes,
                                   double frontStiffness, double rearStiffness);

}  // namespace zolv
