#pragma once

#include <algorithm>
#include <cstddef>

#include "model/aero_model.h"
#include "model/run_events.h"
#include "model/run_rows.h"
#include "model/run_setup.h"
#include "model/tyre_geometry.h"
#include "model/tyre_model.h"

namespace zolv {

/// One run under way, driven step by step: for whoever watches for something and stops as soon as it has come.
/// Accelerate says how a run is driven and when it ends, and writes the rows of these very steps. All of it is inline,
/// so that the state between two steps can stay in registers.
class RunSteps {
public:
    /// From a standing start.
    /// @param setup  outlives the run
    explicit RunSteps(const AccelerationSetup& setup);

    /// From a rolling start at `entrySpeed` [m/s], in the gear that pulls hardest there, the clutch closed as the road
    /// speed has it. Only gears that are not yet at their shift point are looked at, and the car's top gear; of gears
    /// that pull alike, as at the limit of grip, the highest counts, since it saves a change. The start carries no
    /// load over from an acceleration before it.
    /// @param entrySpeed  0 is a standing start
    RunSteps(const AccelerationSetup& setup, double entrySpeed);

    /// Drives one step of 0.05 s.
    void Step() {
        Unwatched nobody;
        Step(nobody);
    }

    /// The same step, digit for digit; the sink is told what happens in it.
    template <class Sink>
    void Step(Sink& sink);

    /// Whether another step follows, apart from the room for rows.
    [[nodiscard]] bool GoesOn() const { return !gainsNoMore_ && !stands_; }
    /// Whether the run ended because the car stands still.
    [[nodiscard]] bool Stands() const { return stands_; }

    [[nodiscard]] double Speed() const { return speed_; }        // [m/s] at the end of the step
    [[nodiscard]] double Distance() const { return distance_; }  // [m] at the end of the step
    [[nodiscard]] std::size_t Gear() const { return gear_; }     // in the next step
    [[nodiscard]] float FrontLoad() const { return frontLoad_; }
    [[nodiscard]] float RearLoad() const { return rearLoad_; }
    /// The step as a row.
    [[nodiscard]] AccelRow Row() const;

private:
    static constexpr double kShiftTime = 0.4;      // [s] the drive is cut for a gear change
    static constexpr double kShiftOver = 0.01;     // [s] less than this left is none left
    static constexpr double kNoGain = 5;           // [N] of net force
    static constexpr double kStandstill = 0.0001;  // [m/s]

    void LoadAxles(const AirForces& air);
    [[nodiscard]] double TorqueIn(std::size_t gear) const;
    [[nodiscard]] float GripLimit() const;
    [[nodiscard]] double ForceOf(double torque);
    void Move();
    [[nodiscard]] double RevsIn(std::size_t gear) const;
    [[nodiscard]] std::size_t TopGear() const;
    void HoldByClutch();
    template <class Sink>
    void TurnEngine(Sink& sink);
    void PickStrongestGear();

    const AccelerationSetup& setup_;
    const AirProfile& air_;
    double launchRevs_;  // [rpm]
    double slip_;        // turns of a wheel over those it would make without slip

    double speed_ = 0;     // [m/s]
    double distance_ = 0;  // [m]
    std::size_t gear_ = 1, usedGear_ = 1;
    double revs_;  // [rpm] in the next step
    double usedRevs_ = 0;
    bool clutchSlipping_ = true;
    float clutchFactor_ = 0.5F;  // share of the torque that a slipping clutch passes on
    bool shifting_ = false;
    double shiftTimer_;                            // [s] left of the gear change
    double force_ = 0, resistance_ = 0, net_ = 0;  // [N] in the step
    double acceleration_ = 0;                      // [m/s^2] of the last step
    double loadedRadius_ = 0;                      // [m] of the driven tyres
    float frontLoad_ = 0, rearLoad_ = 0;           // [N]
    bool gainsNoMore_ = false, stands_ = false;
};

inline RunSteps::RunSteps(const AccelerationSetup& setup)
    : setup_(setup),
      air_(setup.Car.Air),
      launchRevs_(setup.Motor.IdleRPM * kLaunchFactor),
      slip_(static_cast<float>(setup.Car.TyreSlip + 1)),
      revs_(launchRevs_),
      shiftTimer_(kShiftTime) {}

inline RunSteps::RunSteps(const AccelerationSetup& setup, double entrySpeed) : RunSteps(setup) {
    if (entrySpeed <= 0) return;
    speed_ = entrySpeed;
    PickStrongestGear();
}

template <class Sink>
void RunSteps::Step(Sink& sink) {
    const AirForces air = ForcesInRunAt(speed_, air_);
    LoadAxles(air);
    double torque = TorqueIn(gear_);
    if (shifting_) {
        shiftTimer_ -= kTimeStep;
        torque = 0;
    }
    force_ = ForceOf(torque);
    sink.Pulls(force_, GripLimit(), shifting_);
    resistance_ = air.TotalFriction;
    Move();
    TurnEngine(sink);
    gainsNoMore_ = !shifting_ && distance_ > setup_.LongDistance && net_ < kNoGain;
    if (gainsNoMore_) return;
    if (shiftTimer_ < kShiftOver) shifting_ = false;
    stands_ = speed_ < kStandstill;
}

inline AccelRow RunSteps::Row() const {
    return {{static_cast<float>(distance_), static_cast<float>(speed_), static_cast<float>(usedRevs_),
             static_cast<float>(usedGear_), static_cast<float>(force_), static_cast<float>(resistance_),
             static_cast<float>(net_), static_cast<float>(acceleration_), frontLoad_, rearLoad_}};
}

/// Weight, lift and the transfer of the last step's acceleration. The undertray's lift is divided like the weight.
inline void RunSteps::LoadAxles(const AirForces& air) {
    const AxleLoads loads = LoadsUnder(
        LiftOnAxles(air.BodyLift, air.UndertrayLift, air.FrontWingLift, air.RearWingLift, air_, air_.WeightDist), air_);
    const double transfer = acceleration_ > 0 ? air_.Mass * kCentreOfGravity * acceleration_ / setup_.Wheelbase : 0;
    frontLoad_ = static_cast<float>(static_cast<float>(loads.front) - transfer);
    rearLoad_ = static_cast<float>(static_cast<float>(loads.rear) + transfer);
}

/// At the wheels.
inline double RunSteps::TorqueIn(std::size_t gear) const {
    double torque = EngineTorque(setup_.Motor, setup_.Curve, revs_);
    if (clutchSlipping_) torque *= clutchFactor_;
    return torque * setup_.Efficiency * setup_.Ratios[gear] * setup_.FinalDrive;
}

/// All wheel drive takes its radius from the front tyres and its grip from both axles.
inline float RunSteps::GripLimit() const {
    const double mu = setup_.TyreMu;
    switch (setup_.DrivetrainType) {
        case 0: return static_cast<float>(mu * frontLoad_);
        case 1: return static_cast<float>(mu * rearLoad_);
        default: return static_cast<float>(mu * (static_cast<double>(rearLoad_) + frontLoad_));
    }
}

inline double RunSteps::ForceOf(double torque) {
    const AxleTyres& tyre = setup_.Car.Driven();
    const double load = setup_.Car.RearDriven ? rearLoad_ : frontLoad_;
    loadedRadius_ = tyre.UnloadedRadius - TyreDeformation(load, tyre.Stiffness, tyre.MaxDeformation);
    const double force = torque / loadedRadius_;
    const double limit = GripLimit();
    return force > limit ? limit : force;
}

inline void RunSteps::Move() {
    net_ = force_ - resistance_;
    acceleration_ = net_ / air_.Mass;
    speed_ += acceleration_ * kTimeStep;
    distance_ += speed_ * kTimeStep;
    usedRevs_ = revs_;
    usedGear_ = gear_;
}

/// Engine speed with the clutch closed.
inline double RunSteps::RevsIn(std::size_t gear) const {
    const double wheelRevs = speed_ * 60 / (loadedRadius_ * 2 * kPi) * slip_;
    return wheelRevs * setup_.FinalDrive * setup_.Ratios[gear];
}

inline std::size_t RunSteps::TopGear() const {
    return static_cast<std::size_t>(std::clamp(setup_.NumGears, 1, kGears));
}

/// Below the launch speed the clutch holds the engine there.
inline void RunSteps::HoldByClutch() {
    clutchSlipping_ = revs_ < launchRevs_;
    if (clutchSlipping_) {
        clutchFactor_ = ClutchShare(revs_, launchRevs_);
        revs_ = launchRevs_;
    }
}

/// The engine at the new road speed; then the change up. The clutch is not looked at again behind a change, so that an
/// engine can stand below the launch speed for one step.
template <class Sink>
void RunSteps::TurnEngine(Sink& sink) {
    const bool slipped = clutchSlipping_;
    revs_ = RevsIn(gear_);
    HoldByClutch();
    if (slipped && !clutchSlipping_) sink.ClutchCloses();
    if (revs_ > setup_.ShiftRevs[gear_] && gear_ < TopGear()) {
        ++gear_;
        const double before = revs_;
        revs_ = RevsIn(gear_);
        sink.ChangesUp(gear_ - 1, before, revs_);
        shifting_ = true;
        shiftTimer_ = kShiftTime;
    }
}

inline void RunSteps::PickStrongestGear() {
    LoadAxles(ForcesInRunAt(speed_, air_));
    (void)ForceOf(0);  // the tyres' radius
    std::size_t strongest = TopGear();
    double most = 0;
    for (std::size_t gear = TopGear(); gear >= 1; --gear) {
        revs_ = RevsIn(gear);
        if (gear < TopGear() && revs_ > setup_.ShiftRevs[gear]) continue;
        HoldByClutch();
        const double force = ForceOf(TorqueIn(gear));
        if (gear < TopGear() && force <= most) continue;
        most = force;
        strongest = gear;
    }
    gear_ = usedGear_ = strongest;
    revs_ = RevsIn(gear_);
    HoldByClutch();
}

}  // namespace zolv
