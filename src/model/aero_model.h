#pragma once

#include <cstdint>

#include "model/car_record.h"
#include "model/constants.h"

/// What the air does to a car. Forces in N, speeds in m/s, areas in m^2. Lift is negative for downforce.
/// The model leaves out yaw, ground clearance, and every influence of one part on another.
namespace zolv {

/// Density of air at 20 degrees Celsius and 1013.25 hPa [kg/m^3]. The gas constant times that temperature is
/// 84148.70574798585 J/kg.
inline constexpr float kAirDensity = static_cast<float>(101325 / 84148.70574798585);

/// A wing or an undertray at its present angle.
struct Fitting {
    float CdA = 0;       // [m^2] drag area
    float ClA = 0;       // [m^2] lift area
    float Position = 0;  // share of the lift on the front axle; for the rear wing on the rear axle. Above 1 a part
                         // loads its own axle with more than its lift and takes the rest from the other
};

/// Coefficients of the undertray by row of its table; row 0 is none and adds nothing.
[[nodiscard]] Fitting UndertrayOf(int type);

/// Coefficients of a wing by row of its table; row 0 is none and adds nothing at any angle.
/// Drag area grows with the square of the angle; lift area grows with the angle and then flattens:
/// ClA = (1 - 0.000193 angle^2) (slope angle) + base. A fit without a stated source, over the angles that the cars
/// have: 0 to 15 degrees in front, 0 to 30 behind. Above 41.6 degrees, where nothing was fitted, the lift would fall
/// again.
/// @param angle  [degrees], whole
[[nodiscard]] Fitting FrontWingOf(int type, int angle);
[[nodiscard]] Fitting RearWingOf(int type, int angle);

/// All that meets the air, and what presses the car on the road.
struct AirProfile {
    double Mass = 0;         // [kg]
    double WeightDist = 0;   // share of the weight on the front axle
    double Cd = 0;           // of the body
    double FrontalArea = 0;  // [m^2]
    double Cl = 0;           // of the body, which has no area factor
    Fitting Undertray, FrontWing, RearWing;
    double AirDensity = 0;  // [kg/m^3]
};

[[nodiscard]] AirProfile ProfileOf(const CarRecord& car, const Fitting& undertray, const Fitting& frontWing,
                                   const Fitting& rearWing, double airDensity);

/// All forces at one speed [N].
template <class Number>
struct ForcesIn {
    Number BodyDrag = 0, BodyLift = 0;
    Number UndertrayDrag = 0, UndertrayLift = 0;
    Number FrontWingDrag = 0, FrontWingLift = 0;
    Number RearWingDrag = 0, RearWingLift = 0;
    Number TotalDrag = 0, TotalLift = 0;
    Number RollingResistance = 0;
    Number TotalFriction = 0;  // drag and rolling resistance

    bool operator==(const ForcesIn&) const = default;
};
using AirForces = ForcesIn<double>;
using StoredForces = ForcesIn<float>;  // as the page keeps them

/// The body's drag is (q Cd) FrontalArea, with q the dynamic pressure.
[[nodiscard]] AirForces ForcesAt(double speed, const AirProfile& car);

/// The forces in a step of the acceleration run, where the body's drag is (Cd FrontalArea) q: the last bit differs, and
/// over the 1801 steps of a car at the limit of its grip that bit can grow to tenths of a m/s.
[[nodiscard]] AirForces ForcesInRunAt(double speed, const AirProfile& car);

/// Rolling resistance as a share of the load on the road: 0.01 + 3.6375e-7 v^2.5. A fit without a stated source, whose
/// constants were rounded to 32-bit floats once and are used in double. Meant for the speeds that the cars reach, up to
/// some 97 m/s, where it is 0.044; at the sliders' 200 m/s it would be 0.216.
/// @param speed  [m/s], 0 or more
[[nodiscard]] double RollingCoefficient(double speed);

/// Vertical loads on the whole axles [N].
struct AxleLoads {
    double front = 0;
    double rear = 0;
};

/// The four lifts on the front and on the rear axle.
/// @param undertrayShare  share of the undertray's lift on the front axle: its own position for the loads of the page,
///                        the weight distribution for the loads of a gear and of the acceleration run
[[nodiscard]] AxleLoads LiftOnAxles(double bodyLift, double undertrayLift, double frontWingLift, double rearWingLift,
                                    const AirProfile& car, double undertrayShare);

/// Axle loads at a speed, with the undertray's lift divided like the weight: what each gear and each step of the
/// acceleration run carries. Drag plays no part.
[[nodiscard]] AxleLoads AxleLoadsAt(double speed, const AirProfile& car);

/// The static weight less the lift.
[[nodiscard]] AxleLoads LoadsUnder(const AxleLoads& lift, const AirProfile& car);

/// Where the lift lies against the weight: further back, with it, or further forward. None without lift on the front.
enum class AirBalance : std::uint8_t { None, Understeer, Neutral, Oversteer };
inline constexpr double kNeutralBand = 0.005;  // either side of the weight's distribution

/// @param share       of the lift on the front axle
/// @param weightDist  share of the weight on it
[[nodiscard]] AirBalance BalanceOf(double share, double weightDist);

struct TopSpeedResult {
    float speed = 0;   // [m/s]
    AirForces forces;  // at that speed; all 0 for a speed of 0
};

/// Top speed: a walk up from standstill until the power that drag and rolling resistance take reaches the power at the
/// wheels. Steps of 5 m/s while they take less than a third of it, of 0.05 m/s from then on, so that the result passes
/// the balance by at most one step. Speeds end at 20 km/s, for a car that the air carries.
/// @param power_kW  at the wheels [kW]
[[nodiscard]] TopSpeedResult TopSpeedOf(const AirProfile& car, double power_kW);

}  // namespace zolv
