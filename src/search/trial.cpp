#include "search/trial.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "model/air_sheet.h"
#include "model/shift_points.h"
#include "model/tyre_geometry.h"

namespace zolv {
namespace {

using enum FinderInput;

FinderInput RatioOf(int gear) { return static_cast<FinderInput>(gear - 1); }
bool IsWing(FinderInput input) { return input == FrontWing || input == RearWing; }

/// Ratios are taken in thousandths, wings in degrees.
double StepsIn(FinderInput input) { return IsWing(input) ? 1 : 1000; }

double OnStep(FinderInput input, double value) { return std::nearbyint(value * StepsIn(input)) / StepsIn(input); }

/// The steps within a range; a millionth of a step outside counts as on it.
FinderRange StepsWithin(FinderInput input, const FinderRange& range) {
    constexpr double kHair = 1e-6;
    const double steps = StepsIn(input);
    return {std::ceil(range.Low * steps - kHair) / steps, std::floor(range.High * steps + kHair) / steps};
}

}  // namespace

Trial::Trial(const FinderTask& task) : task_(task) {
    TakePresent();
    TakeBounds();
    if (fault_ == FinderFault::None) TakeWings();
    if (fault_ == FinderFault::None) TakeGenes();
}

/// The gears that the car lacks are not looked at; a set-up in the wrong order has no speeds or run, but a car.
void Trial::TakePresent() {
    const SetUp& setUp = task_.Present;
    gears_ = std::clamp<int>(setUp.Car.NumGears, 2, kGears);
    still_ = EvaluateStill(setUp);
    inOrder_ = still_.WrongOrder.empty();
    const bool found = inOrder_ && setUp.From == Direction::FromSpeeds;
    for (int gear = 1; gear <= kGears; ++gear) {
        present_[RatioOf(gear)] = found && gear <= gears_ ? still_.Gears.GearRatio[gear] : setUp.Ratios[gear];
    }
    present_[FinalDrive] = found ? still_.Gears.FinalDrive : setUp.PresentFinalDrive();
    present_[FrontWing] = setUp.FrontWingAngle;
    present_[RearWing] = setUp.RearWingAngle;
    start_ = zolv::StartOf(setUp, still_);
}

void Trial::TakeBounds() {
    for (std::size_t i = 0; i < kFinderInputs; ++i) {
        const auto input = static_cast<FinderInput>(i);
        FinderRange& bounds = bounds_[input];
        bounds = {present_[input], present_[input]};
        const bool lacking = (i < kGears && static_cast<int>(i) >= gears_) ||
                             (input == FrontWing && task_.Present.Car.FrontWingType <= 0) ||
                             (input == RearWing && task_.Present.Car.RearWingType <= 0);
        if (!task_.Free[input] || lacking) continue;
        free_.push_back(input);
        const FinderRange& slider = kFinderRanges[input];
        bounds = StepsWithin(
            input, {std::max(task_.Bounds[input].Low, slider.Low), std::min(task_.Bounds[input].High, slider.High)});
        if (bounds.Low <= bounds.High) continue;
        fault_ = FinderFault::BoundsHoldNoStep;
        faultInput_ = input;
        return;
    }
    if (free_.empty()) fault_ = FinderFault::NothingFree;
    if (fault_ == FinderFault::None) PutInOrder();
}

/// No gear above the one below it: narrows the bounds of the free ones to what their neighbours leave.
void Trial::PutInOrder() {
    for (int gear = 2; gear <= gears_; ++gear) {
        FinderRange& bounds = bounds_[RatioOf(gear)];
        const double high = bounds_[RatioOf(gear - 1)].High;
        if (IsFree(RatioOf(gear))) bounds.High = std::min(bounds.High, StepsWithin(RatioOf(gear), {0, high}).High);
    }
    for (int gear = gears_ - 1; gear >= 1; --gear) {
        FinderRange& bounds = bounds_[RatioOf(gear)];
        const double low = bounds_[RatioOf(gear + 1)].Low;
        if (IsFree(RatioOf(gear))) bounds.Low = std::max(bounds.Low, StepsWithin(RatioOf(gear), {low, 100}).Low);
    }
    for (int gear = 1; gear <= gears_; ++gear) {
        const FinderRange& bounds = bounds_[RatioOf(gear)];
        if (bounds.Low <= bounds.High && (gear == 1 || bounds.Low <= bounds_[RatioOf(gear - 1)].High)) continue;
        fault_ = FinderFault::BoundsLeaveNothing;
        faultInput_ = RatioOf(gear);
        return;
    }
}

bool Trial::WingsWished(int front, int rear) const {
    SetUp setUp = task_.Present;
    setUp.FrontWingAngle = front;
    setUp.RearWingAngle = rear;
    if (task_.Wishes.Downforce) {
        const AirProfile profile = ProfileOf(setUp.Car, FittingsOf(setUp.Car, front, rear));
        const double lift = ForcesAtChosenSpeed(task_.Wishes.Downforce->Speed, profile).TotalLift;
        if (-lift < task_.Wishes.Downforce->Force) return false;
    }
    if (!task_.Wishes.NeutralBalance) return true;
    const double aero = EvaluateStill(setUp).Air.AeroDistribution;
    return BalanceOf(aero, setUp.Car.WeightDist) == AirBalance::Neutral;
}

void Trial::TakeWings() {
    const auto angles = [this](FinderInput wing) {
        return std::pair(static_cast<int>(bounds_[wing].Low), static_cast<int>(bounds_[wing].High));
    };
    const auto [frontLow, frontHigh] = angles(FrontWing);
    const auto [rearLow, rearHigh] = angles(RearWing);
    for (int front = frontLow; front <= frontHigh; ++front) {
        for (int rear = rearLow; rear <= rearHigh; ++rear) {
            if (WingsWished(front, rear)) wings_.emplace_back(front, rear);
        }
    }
    if (wings_.empty()) fault_ = FinderFault::WishesLeaveNothing;
}

bool Trial::IsFree(FinderInput input) const { return std::ranges::find(free_, input) != free_.end(); }

void Trial::TakeGenes() {
    products_ = IsFree(FinalDrive);
    for (int gear = 1; gear <= gears_; ++gear) products_ = products_ && IsFree(RatioOf(gear));
    for (const FinderInput input : free_) {
        if (products_ && input == FinalDrive) continue;
        FinderRange bounds = bounds_[input];
        if (products_ && !IsWing(input)) {
            bounds.Low *= bounds_[FinalDrive].Low;
            bounds.High *= bounds_[FinalDrive].High;
        }
        if (bounds.Low == bounds.High) continue;
        genes_.push_back(IsWing(input) ? Gene{input, bounds.Low, bounds.High}
                                       : Gene{input, std::log(bounds.Low), std::log(bounds.High)});
    }
}

Choice Trial::ChoiceOf(const std::vector<double>& genes) const {
    Choice choice = present_;
    PerInput<double> products;
    for (const FinderInput input : free_) {
        choice[input] = products[input] = bounds_[input].Low;
        if (products_ && !IsWing(input)) products[input] *= bounds_[FinalDrive].Low;
    }
    for (std::size_t i = 0; i < genes_.size(); ++i) {
        const auto& [input, low, high] = genes_[i];
        const double value = low + genes[i] * (high - low);
        products[input] = IsWing(input) ? value : std::exp(value);
        choice[input] = products[input];
    }
    if (products_) SettleProducts(products, choice);
    KeepOrder(choice);
    KeepWings(choice);
    return choice;
}

/// The final drive nearest to the present one at which the bounds take all ratios, as far as there is one.
void Trial::SettleProducts(const PerInput<double>& products, Choice& choice) const {
    double low = bounds_[FinalDrive].Low;
    double high = bounds_[FinalDrive].High;
    for (int gear = 1; gear <= gears_; ++gear) {
        low = std::max(low, products[RatioOf(gear)] / bounds_[RatioOf(gear)].High);
        high = std::min(high, products[RatioOf(gear)] / bounds_[RatioOf(gear)].Low);
    }
    const double nearest = std::max(low, std::min(high, present_[FinalDrive]));
    choice[FinalDrive] = std::clamp(OnStep(FinalDrive, nearest), bounds_[FinalDrive].Low, bounds_[FinalDrive].High);
    for (int gear = 1; gear <= gears_; ++gear) {
        choice[RatioOf(gear)] = products[RatioOf(gear)] / choice[FinalDrive];
    }
}

/// Free inputs to their steps and bounds, each gear no higher than the one below it.
void Trial::KeepOrder(Choice& choice) const {
    double below = 100;
    for (int gear = 1; gear <= gears_; ++gear) {
        double& ratio = choice[RatioOf(gear)];
        const FinderRange& bounds = bounds_[RatioOf(gear)];
        if (IsFree(RatioOf(gear))) {
            ratio = std::clamp(OnStep(RatioOf(gear), std::min(ratio, below)), bounds.Low, bounds.High);
        }
        below = ratio;
    }
    if (IsFree(FinalDrive)) {
        choice[FinalDrive] =
            std::clamp(OnStep(FinalDrive, choice[FinalDrive]), bounds_[FinalDrive].Low, bounds_[FinalDrive].High);
    }
}

/// The nearest pair that the wishes leave; of several the first.
void Trial::KeepWings(Choice& choice) const {
    const auto distance = [&](const std::pair<int, int>& wings) {
        const double front = wings.first - choice[FrontWing];
        const double rear = wings.second - choice[RearWing];
        return front * front + rear * rear;
    };
    const auto& nearest = *std::ranges::min_element(wings_, {}, distance);
    choice[FrontWing] = nearest.first;
    choice[RearWing] = nearest.second;
}

std::vector<double> Trial::GenesOf(const Choice& choice) const {
    std::vector<double> genes;
    for (const auto& [input, low, high] : genes_) {
        double value = choice[input];
        if (products_ && !IsWing(input)) value *= choice[FinalDrive];
        if (!IsWing(input)) value = std::log(value);
        genes.push_back(std::clamp((value - low) / (high - low), 0.0, 1.0));
    }
    return genes;
}

std::vector<double> Trial::EvenGenes(double first, double second) const {
    constexpr double kSlowest = 6;    // [m/s] at peak power in first gear
    constexpr double kFastest = 48;   // [m/s]
    constexpr double kClosest = 1.1;  // of one gear's ratio to the next
    constexpr double kWidest = 1.8;
    const auto between = [](double low, double high, double share) { return low * std::pow(high / low, share); };
    const double wheelSpeed = between(kSlowest, kFastest, first) / start_.Car.Driven().UnloadedRadius;  // [rad/s]
    double product = start_.Motor.PowerRPM * kPi / 30 / wheelSpeed;
    Choice choice = present_;
    if (IsFree(FinalDrive) && !products_) {
        choice[FinalDrive] = IsFree(RatioOf(1)) ? between(bounds_[FinalDrive].Low, bounds_[FinalDrive].High, second)
                                                : product / present_[RatioOf(1)];
    }
    for (int gear = 1; gear <= gears_; ++gear) {
        if (IsFree(RatioOf(gear))) choice[RatioOf(gear)] = product / choice[FinalDrive];
        product /= between(kClosest, kWidest, second);
    }
    const auto wing = [&](FinderInput input, double share) {
        choice[input] = bounds_[input].Low + share * (bounds_[input].High - bounds_[input].Low);
    };
    wing(FrontWing, first);
    wing(RearWing, second);
    return GenesOf(choice);
}

std::vector<FinderInput> Trial::Independent() const {
    std::vector<FinderInput> inputs = free_;
    if (products_) std::erase(inputs, FinalDrive);
    return inputs;
}

GoalValue Trial::PresentValue() const { return inOrder_ ? zolv::ValueOf(task_.Target, start_) : GoalValue{}; }

std::optional<Choice> Trial::Moved(Choice choice, FinderInput input, int steps) const {
    choice[input] = OnStep(input, choice[input] + steps / StepsIn(input));
    if (!Allowed(choice)) return std::nullopt;
    return choice;
}

bool Trial::Allowed(const Choice& choice) const {
    for (const FinderInput input : free_) {
        if (choice[input] < bounds_[input].Low || choice[input] > bounds_[input].High) return false;
        if (choice[input] != OnStep(input, choice[input])) return false;
    }
    for (int gear = 2; gear <= gears_; ++gear) {
        if (choice[RatioOf(gear)] > choice[RatioOf(gear - 1)]) return false;
    }
    return std::ranges::binary_search(
        wings_, std::pair(static_cast<int>(choice[FrontWing]), static_cast<int>(choice[RearWing])));
}

AccelerationSetup Trial::StartOf(const Choice& choice) const {
    AccelerationSetup start = start_;
    ByGear ratios{};
    for (int gear = 1; gear <= kGears; ++gear) ratios[gear] = static_cast<float>(choice[RatioOf(gear)]);
    start.Ratios = WithoutLackingGears(ratios, gears_, kLackingRatio);
    start.ShiftRevs = ShiftPoints(RulesOf(task_.Present.Car, task_.Present.Shifts), start.Ratios);
    start.FinalDrive = static_cast<float>(choice[FinalDrive]);
    const auto angle = [&](FinderInput wing) { return static_cast<int>(choice[wing]); };
    start.Car.Air = ProfileOf(task_.Present.Car, FittingsOf(task_.Present.Car, angle(FrontWing), angle(RearWing)));
    return start;
}

double Trial::CostOf(const Choice& choice) const {
    const AccelerationSetup start = StartOf(choice);
    if (task_.Wishes.TopSpeed) {
        Goal wish;
        wish.Kind = GoalKind::ToSpeed;
        wish.ToSpeed = *task_.Wishes.TopSpeed;
        const GoalValue reached = zolv::ValueOf(wish, start);
        if (!reached.Reached) return kUnwished + zolv::CostOf(wish, reached);
    }
    return zolv::CostOf(task_.Target, zolv::ValueOf(task_.Target, start));
}

SetUp Trial::SetUpOf(const Choice& choice) const {
    SetUp setUp = task_.Present;
    setUp.From = Direction::FromRatios;
    for (int gear = 1; gear <= kGears; ++gear) setUp.Ratios[gear] = choice[RatioOf(gear)];
    setUp.FinalDrive[0] = choice[FinalDrive];
    setUp.FrontWingAngle = static_cast<int>(choice[FrontWing]);
    setUp.RearWingAngle = static_cast<int>(choice[RearWing]);
    return setUp;
}

}  // namespace zolv
