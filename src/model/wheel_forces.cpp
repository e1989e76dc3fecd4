#include "model/wheel_forces.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "model/tyre_geometry.h"
#include "model/tyre_model.h"

namespace zolv {
namespace {

int TopGear(const AccelerationSetup& setup) { return std::clamp(setup.NumGears, 1, kGears); }

double RevLimitOf(const AccelerationSetup& setup) { return ShiftRules{.PowerRPM = setup.Motor.PowerRPM}.RevLimit(); }

double GripLimitOf(const AccelerationSetup& setup, const RoadForces& road) {
    const double mu = setup.TyreMu;
    if (setup.DrivetrainType != 0 && setup.DrivetrainType != 1) return mu * (road.FrontLoad + road.RearLoad);
    const bool front = setup.DrivetrainType == 0;
    const double load = front ? road.FrontLoad : road.RearLoad;
    if (mu * load <= road.Resistance) return mu * load;
    const double transfer = kCentreOfGravity / setup.Wheelbase;
    if (front) return mu * (load + transfer * road.Resistance) / (1 + mu * transfer);
    if (mu * transfer >= 1) return std::numeric_limits<double>::infinity();
    return mu * (load - transfer * road.Resistance) / (1 - mu * transfer);
}

/// Torque at the wheels at an engine speed [Nm].
double WheelTorque(const AccelerationSetup& setup, int gear, double revs) {
    const double launch = setup.Motor.IdleRPM * kLaunchFactor;
    const bool slips = revs < launch;
    double torque = EngineTorque(setup.Motor, setup.Curve, slips ? launch : revs);
    if (slips) torque *= ClutchShare(revs, launch);
    return torque * setup.Efficiency * setup.Ratios[gear] * setup.FinalDrive;
}

/// Turns of the engine for each turn that a wheel makes without slip.
double TurnsOf(const AccelerationSetup& setup, int gear) {
    return static_cast<float>(setup.Car.TyreSlip + 1) * setup.FinalDrive * setup.Ratios[gear];
}

/// Settles force, load and radius of the driven tyres. Each round moves the radius by some hundredth of the last move.
/// @param atRadius  sets speed and revs of a point on a radius [m]
template <class AtRadius>
WheelPoint Settled(const AccelerationSetup& setup, int gear, AtRadius atRadius) {
    constexpr int kRounds = 6;
    const AxleTyres& tyre = setup.Car.Driven();
    const double transfer = kCentreOfGravity / setup.Wheelbase;
    double radius = tyre.UnloadedRadius;
    WheelPoint point;
    for (int round = 0; round < kRounds; ++round) {
        atRadius(point, radius);
        const RoadForces road = RoadForcesAt(setup, point.Speed);
        point.Force = WheelTorque(setup, gear, point.Revs) / radius;
        point.Put = std::min(point.Force, road.GripLimit);
        const double moved = std::max(0.0, point.Put - road.Resistance) * transfer;
        const double load = setup.Car.RearDriven ? road.RearLoad + moved : road.FrontLoad - moved;
        radius = tyre.UnloadedRadius - TyreDeformation(load, tyre.Stiffness, tyre.MaxDeformation);
    }
    return point;
}

/// Where a condition begins to hold between two speeds, of which it holds at the second alone.
template <class Holds>
double Beginning(double from, double to, Holds holds) {
    constexpr int kHalvings = 50;
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = (from + to) / 2;
        (holds(middle) ? to : from) = middle;
    }
    return to;
}

/// The first speed at which a condition holds, looked for in steps and then to the last digit.
template <class Holds>
std::optional<double> FirstSpeed(double from, double to, int steps, Holds holds) {
    double before = from;
    for (int step = 0; step <= steps; ++step) {
        const double speed = from + (to - from) * step / steps;
        if (holds(speed)) return step == 0 ? from : Beginning(before, speed, holds);
        before = speed;
    }
    return {};
}

std::optional<WheelPoint> CrossingOf(const AccelerationSetup& setup, const GearForces& gear) {
    constexpr int kSteps = 64;
    constexpr double kMore = 1e-6;  // [N]; equal gears differ in the last digits
    const auto nextPutsMore = [&](double speed) {
        return WheelAt(setup, gear.Gear + 1, speed).Put - WheelAt(setup, gear.Gear, speed).Put > kMore;
    };
    const auto speed = FirstSpeed(gear.Points.front().Speed, gear.Points.back().Speed, kSteps, nextPutsMore);
    if (!speed) return {};
    return WheelAt(setup, gear.Gear, *speed);
}

std::vector<WheelPoint> PointsOf(const AccelerationSetup& setup, int gear) {
    constexpr int kSteps = 64;
    const double idle = setup.Motor.IdleRPM;
    const double limit = RevLimitOf(setup);
    std::vector<WheelPoint> points;
    for (int step = 0; step <= kSteps; ++step) {
        points.push_back(WheelAtRevs(setup, gear, idle + (limit - idle) * step / kSteps));
    }
    return points;
}

/// A gear without ratio, or one that turns the wheels backwards, has no speeds; nor has an engine that idles above its
/// rev limit.
bool HasSpeeds(const std::vector<WheelPoint>& points) {
    const bool finite = std::ranges::all_of(
        points, [](const WheelPoint& point) { return std::isfinite(point.Speed) && std::isfinite(point.Force); });
    return finite && points.front().Speed >= 0 && points.front().Speed < points.back().Speed;
}

/// The force that the strongest gear puts on the road at a speed, of those that can turn so fast; nothing pulls beyond.
double StrongestAt(const AccelerationSetup& setup, const std::vector<GearForces>& gears, double speed) {
    double strongest = 0;
    for (const GearForces& gear : gears) {
        if (speed <= gear.Points.back().Speed) strongest = std::max(strongest, WheelAt(setup, gear.Gear, speed).Put);
    }
    return strongest;
}

std::optional<ReachedSpeed> ReachedBy(const AccelerationSetup& setup, const std::vector<GearForces>& gears) {
    constexpr int kSteps = 128;
    constexpr double kMet = 1;  // [N]
    if (gears.empty()) return {};
    double fastest = 0;
    for (const GearForces& gear : gears) fastest = std::max(fastest, gear.Points.back().Speed);
    const auto surplus = [&](double speed) {
        return StrongestAt(setup, gears, speed) - RoadForcesAt(setup, speed).Resistance;
    };
    const auto met = FirstSpeed(0, fastest, kSteps, [&](double speed) { return surplus(speed) <= 0; });
    if (met && *met == 0) return {};
    const double speed = met.value_or(fastest);
    return ReachedSpeed{speed, RoadForcesAt(setup, speed).Resistance, !met || std::fabs(surplus(speed)) > kMet};
}

}  // namespace

RoadForces RoadForcesAt(const AccelerationSetup& setup, double speed) {
    const AirForces air = ForcesInRunAt(speed, setup.Car.Air);
    const AxleLoads loads = AxleLoadsAt(speed, setup.Car.Air);
    RoadForces road{.FrontLoad = loads.front, .RearLoad = loads.rear, .Resistance = air.TotalFriction};
    road.GripLimit = GripLimitOf(setup, road);
    return road;
}

WheelPoint WheelAt(const AccelerationSetup& setup, int gear, double speed) {
    return Settled(setup, gear, [&](WheelPoint& point, double radius) {
        point.Speed = speed;
        point.Revs = speed * 60 / (radius * 2 * kPi) * TurnsOf(setup, gear);
    });
}

WheelPoint WheelAtRevs(const AccelerationSetup& setup, int gear, double revs) {
    return Settled(setup, gear, [&](WheelPoint& point, double radius) {
        point.Revs = revs;
        point.Speed = revs / TurnsOf(setup, gear) * (radius * 2 * kPi) / 60;
    });
}

ForcesOverSpeed ForcesOver(const AccelerationSetup& setup) {
    ForcesOverSpeed forces;
    for (int gear = 1; gear <= TopGear(setup); ++gear) {
        std::vector<WheelPoint> points = PointsOf(setup, gear);
        if (HasSpeeds(points)) forces.Gears.push_back({.Gear = gear, .Points = std::move(points)});
    }
    for (std::size_t i = 0; i + 1 < forces.Gears.size(); ++i) {
        GearForces& gear = forces.Gears[i];
        if (forces.Gears[i + 1].Gear != gear.Gear + 1) continue;
        gear.Crossing = CrossingOf(setup, gear);
        gear.Shift = WheelAtRevs(setup, gear.Gear, setup.ShiftRevs[gear.Gear]);
    }
    forces.Reached = ReachedBy(setup, forces.Gears);
    return forces;
}

ByGear CrossingRevs(const AccelerationSetup& setup, const ForcesOverSpeed& forces) {
    ByGear revs = setup.ShiftRevs;
    for (const GearForces& gear : forces.Gears) {
        const double best = gear.Crossing ? gear.Crossing->Revs : RevLimitOf(setup);
        revs[gear.Gear] = static_cast<float>(best);
    }
    return revs;
}

}  // namespace zolv
