#include "model/acceleration_run.h"

#include <algorithm>

#include "model/tyre_geometry.h"
#include "model/tyre_model.h"

namespace zolv {
namespace {

constexpr double kCentreOfGravity = 0.45;  // [m] above the road, for every car
constexpr double kShiftTime = 0.4;         // [s] the drive is cut for a gear change
constexpr double kShiftOver = 0.01;        // [s] less than this left is none left
constexpr double kLaunchFactor = 2.5;      // launch speed of the engine over idle speed
constexpr double kNoGain = 5;              // [N] of net force
constexpr double kStandstill = 0.0001;     // [m/s]

/// One run under way; the variables are the state between two steps.
class Run {
public:
    explicit Run(const AccelerationSetup& setup)
        : setup_(setup), air_(setup.Car.Air), launchRevs_(setup.Motor.IdleRPM * kLaunchFactor), revs_(launchRevs_) {}

    AccelerationResult Drive(std::span<AccelRow, kAccelRows> rows, const AccelRow& secondOfStanding) {
        int last = -1;
        do {
            ++last;
            const AirForces air = ForcesInRunAt(speed_, air_);
            LoadAxles(air);
            const double force = DrivingForce();
            const double net = Move(force, air.TotalFriction);
            rows[static_cast<std::size_t>(last)] = Row(force, air.TotalFriction, net);
            TurnEngine();
            if (!shifting_ && distance_ > setup_.LongDistance && net < kNoGain) break;
            if (shiftTimer_ < kShiftOver) shifting_ = false;
            if (speed_ < kStandstill) {
                if (last == 0) rows[static_cast<std::size_t>(++last)] = secondOfStanding;
                break;
            }
        } while (last < kAccelRows - 1);
        return {last, speed_, frontLoad_, rearLoad_};
    }

private:
    /// Weight, lift and the transfer of the last step's acceleration. The undertray's lift is divided like the weight.
    void LoadAxles(const AirForces& air) {
        const AxleLoads loads = LoadsUnder(
            LiftOnAxles(air.BodyLift, air.UndertrayLift, air.FrontWingLift, air.RearWingLift, air_, air_.WeightDist),
            air_);
        const double transfer = acceleration_ > 0 ? air_.Mass * kCentreOfGravity * acceleration_ / setup_.Wheelbase : 0;
        frontLoad_ = static_cast<float>(static_cast<float>(loads.front) - transfer);
        rearLoad_ = static_cast<float>(static_cast<float>(loads.rear) + transfer);
    }

    double WheelTorque() {
        double torque = EngineTorque(setup_.Motor, setup_.Curve, revs_);
        if (clutchSlipping_) torque *= clutchFactor_;
        torque = torque * setup_.Efficiency * setup_.Ratios[gear_] * setup_.FinalDrive;
        if (!shifting_) return torque;
        shiftTimer_ -= kTimeStep;
        return 0;
    }

    /// All wheel drive takes its radius from the front tyres and its grip from both axles.
    float GripLimit() const {
        const double mu = setup_.TyreMu;
        switch (setup_.DrivetrainType) {
            case 0: return static_cast<float>(mu * frontLoad_);
            case 1: return static_cast<float>(mu * rearLoad_);
            default: return static_cast<float>(mu * (static_cast<double>(rearLoad_) + frontLoad_));
        }
    }

    double DrivingForce() {
        const AxleTyres& tyre = setup_.Car.Driven();
        const double torque = WheelTorque();
        const double load = setup_.Car.RearDriven ? rearLoad_ : frontLoad_;
        loadedRadius_ = tyre.UnloadedRadius - TyreDeformation(load, tyre.Stiffness, tyre.MaxDeformation);
        const double force = torque / loadedRadius_;
        const double limit = GripLimit();
        return force > limit ? limit : force;
    }

    /// Returns the net force.
    double Move(double drivingForce, double resistance) {
        const double net = drivingForce - resistance;
        acceleration_ = net / air_.Mass;
        speed_ += acceleration_ * kTimeStep;
        distance_ += speed_ * kTimeStep;
        usedRevs_ = revs_;
        usedGear_ = gear_;
        return net;
    }

    AccelRow Row(double force, double resistance, double net) const {
        return {{static_cast<float>(distance_), static_cast<float>(speed_), static_cast<float>(usedRevs_),
                 static_cast<float>(usedGear_), static_cast<float>(force), static_cast<float>(resistance),
                 static_cast<float>(net), static_cast<float>(acceleration_), frontLoad_, rearLoad_}};
    }

    /// The engine at the new road speed, held at the launch speed by the clutch below it; then the change up. The
    /// clutch is not looked at again behind a change, so that an engine can stand below the launch speed for one step.
    void TurnEngine() {
        const double slip = static_cast<float>(setup_.Car.TyreSlip + 1);
        const double wheelRevs = speed_ * 60 / (loadedRadius_ * 2 * kPi) * slip;
        const auto revsIn = [&](std::size_t gear) { return wheelRevs * setup_.FinalDrive * setup_.Ratios[gear]; };
        revs_ = revsIn(gear_);
        clutchSlipping_ = revs_ < launchRevs_;
        if (clutchSlipping_) {
            clutchFactor_ = static_cast<float>(0.5 + (revs_ / launchRevs_) / 2);
            revs_ = launchRevs_;
        }
        if (revs_ > setup_.ShiftRevs[gear_] && static_cast<int>(gear_) < std::min(setup_.NumGears, kGears)) {
            ++gear_;
            revs_ = revsIn(gear_);
            shifting_ = true;
            shiftTimer_ = kShiftTime;
        }
    }

    const AccelerationSetup& setup_;
    const AirProfile& air_;
    double launchRevs_;  // [rpm]

    double speed_ = 0;     // [m/s]
    double distance_ = 0;  // [m]
    std::size_t gear_ = 1, usedGear_ = 1;
    double revs_;  // [rpm] in the next step
    double usedRevs_ = 0;
    bool clutchSlipping_ = true;
    float clutchFactor_ = 0.5F;  // share of the torque that a slipping clutch passes on
    bool shifting_ = false;
    double shiftTimer_ = kShiftTime;  // [s] left of the gear change
    double acceleration_ = 0;         // [m/s^2] of the last step
    double loadedRadius_ = 0;         // [m] of the driven tyres
    float frontLoad_ = 0, rearLoad_ = 0;
};

}  // namespace

AccelerationSetup RunOf(const RollingCar& rolling, const CarRecord& car, const EngineCurve& curve, double tyreMu,
                        const Gearbox& gears, double longDistance) {
    return {.Car = rolling,
            .Motor = EngineOf(car),
            .Curve = curve,
            .Efficiency = car.Efficiency,
            .Wheelbase = car.Wheelbase,
            .NumGears = car.NumGears,
            .DrivetrainType = car.DrivetrainType,
            .TyreMu = tyreMu,
            .Ratios = gears.GearRatio,
            .FinalDrive = gears.FinalDrive,
            .ShiftRevs = gears.GearRevs,
            .LongDistance = longDistance};
}

AccelerationResult Accelerate(const AccelerationSetup& setup, std::span<AccelRow, kAccelRows> rows,
                              const AccelRow& secondOfStanding) {
    return Run(setup).Drive(rows, secondOfStanding);
}

}  // namespace zolv
