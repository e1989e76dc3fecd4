#include "studies/finder_inputs.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/present.h"
#include "fields/all_windows.h"
#include "fields/guards.h"
#include "model/acceleration_targets.h"
#include "studies/finder_state.h"
#include "studies/study_text.h"
#include "text/caption_name.h"
#include "text/messages.h"
#include "text/number_text.h"
#include "text/words.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

const AccelTargets& TargetsInForce() { return AccelTargetTable[static_cast<std::size_t>(units.Speed.Unit)]; }

/// A box whose number is in the unit in force, and the base value that it begins with, in that unit a round one.
struct UnitBox {
    TextBox& box;
    Label& unit;
    Quantity UnitState::*quantity;
    double (*first)();
};
constexpr std::size_t kUnitBoxes = 5;
const std::array<UnitBox, kUnitBoxes>& UnitBoxes() {
    static const std::array<UnitBox, kUnitBoxes> kBoxes{{
        {Finder.FromSpeed, Finder.FromSpeedUnit, &UnitState::Speed, [] { return double{TargetsInForce().Speeds[0]}; }},
        {Finder.ToSpeed, Finder.ToSpeedUnit, &UnitState::Speed, [] { return double{TargetsInForce().Speeds[1]}; }},
        {Finder.TopSpeed, Finder.TopSpeedUnit, &UnitState::Speed, [] { return double{TargetsInForce().Speeds[3]}; }},
        {Finder.Downforce, Finder.DownforceUnit, &UnitState::Force, [] { return 1000.0; }},
        {Finder.DownforceSpeed, Finder.DownforceSpeedUnit, &UnitState::Speed,
         [] { return double{TargetsInForce().Speeds[2]}; }},
    }};
    return kBoxes;
}

double BaseOf(const UnitBox& box) { return Val(box.box.Text()) / (units.*box.quantity).Factor; }

void ShowUnitBoxes() {
    const Raised quiet(finder.WritingBoxes);
    for (std::size_t i = 0; i < kUnitBoxes; ++i) {
        const UnitBox& box = UnitBoxes()[i];
        const Quantity& quantity = units.*box.quantity;
        box.unit.SetCaption(quantity.Suffix.substr(1));
        const double base = finder.BoxValues ? (*finder.BoxValues)[i] : box.first();
        // The speeds of a table have two decimals in base units, so that they are round only to the unit's own.
        box.box.SetText(RoundedText(base * quantity.Factor, finder.BoxValues ? 3 : quantity.Decimals));
    }
}

/// Two boxes and the input that they bound.
struct BoundBoxes {
    FinderInput input;
    TextBox &low, &high;
};
std::vector<BoundBoxes> AllBounds() {
    std::vector<BoundBoxes> bounds;
    for (int gear = 1; gear <= kGears; ++gear) {
        bounds.push_back({static_cast<FinderInput>(gear - 1), Finder.LowRatio[gear], Finder.HighRatio[gear]});
    }
    bounds.push_back({FinderInput::FinalDrive, Finder.LowFinalDrive, Finder.HighFinalDrive});
    bounds.push_back({FinderInput::FrontWing, Finder.LowFrontWing, Finder.HighFrontWing});
    bounds.push_back({FinderInput::RearWing, Finder.LowRearWing, Finder.HighRearWing});
    return bounds;
}

/// An empty box bounds nothing.
double BoundIn(const TextBox& box, double without) { return box.Text().empty() ? without : Val(box.Text()); }

Goal GoalInForce() {
    return {.Kind = static_cast<GoalKind>(std::max(0, Finder.Goal.Picked())),
            .FromSpeed = BaseOf(UnitBoxes()[0]),
            .ToSpeed = BaseOf(UnitBoxes()[1]),
            .Distance = Val(Finder.Distance.Text()),
            .Straights = finder.Track.File.Straights};
}

FinderWishes WishesInForce() {
    FinderWishes wishes;
    if (Finder.WishTopSpeed.Checked()) wishes.TopSpeed = BaseOf(UnitBoxes()[2]);
    if (Finder.WishDownforce.Checked()) {
        wishes.Downforce = {.Speed = BaseOf(UnitBoxes()[4]), .Force = BaseOf(UnitBoxes()[3])};
    }
    wishes.NeutralBalance = Finder.WishBalance.Checked();
    return wishes;
}

std::array<std::string, 5> GoalNames() {
    return {words["GoalToSpeed"], words["GoalOverDistance"], words["GoalBetweenSpeeds"], words["GoalTopSpeed"],
            words["GoalAlongStraights"]};
}

/// The boxes of inputs that the car has.
void ShowBounds() {
    const CarRecord& car = vehicle.CurrentCar;
    for (int gear = 1; gear <= kGears; ++gear) {
        const bool has = gear <= 2 || gear <= car.NumGears;
        Finder.RatioCaption[gear].SetCaption(RatioName(gear));
        Finder.RatioCaption[gear].SetVisible(has);
        Finder.LowRatio[gear].SetVisible(has);
        Finder.HighRatio[gear].SetVisible(has);
    }
    const bool front = car.FrontWingType > 0;
    const bool rear = car.RearWingType > 0;
    for (Field* field : {static_cast<Field*>(&Finder.FreeFrontWing), static_cast<Field*>(&Finder.LowFrontWing),
                         static_cast<Field*>(&Finder.HighFrontWing)}) {
        field->SetVisible(front);
    }
    for (Field* field : {static_cast<Field*>(&Finder.FreeRearWing), static_cast<Field*>(&Finder.LowRearWing),
                         static_cast<Field*>(&Finder.HighRearWing)}) {
        field->SetVisible(rear);
    }
}

}  // namespace

FinderTask PresentTask() {
    FinderTask task{.Present = PresentSetUp(), .Target = GoalInForce(), .Free = {}, .Wishes = WishesInForce()};
    for (const BoundBoxes& bound : AllBounds()) {
        const FinderRange& slider = kFinderRanges[bound.input];
        task.Bounds[bound.input] = {BoundIn(bound.low, slider.Low), BoundIn(bound.high, slider.High)};
        const bool isRatio = bound.input < FinderInput::FinalDrive;
        if (isRatio) task.Free[bound.input] = Finder.FreeRatios.Checked();
    }
    task.Free[FinderInput::FinalDrive] = Finder.FreeFinalDrive.Checked();
    task.Free[FinderInput::FrontWing] = Finder.FreeFrontWing.Checked();
    task.Free[FinderInput::RearWing] = Finder.FreeRearWing.Checked();
    return task;
}

std::string NoNumberMessage() {
    const auto check = [](const std::string& name, const TextBox& box) {
        return box.Text().empty() ? std::string() : NotANumberText(name, box.Text());
    };
    const auto captioned = [&](const Field& caption, const TextBox& box) {
        return check(CaptionName(InWords(caption.Caption())), box);
    };
    const auto goal = static_cast<GoalKind>(std::max(0, Finder.Goal.Picked()));
    const bool between = goal == GoalKind::BetweenSpeeds;
    std::vector<std::string> messages;
    if (between) messages.push_back(captioned(Finder.FromSpeedCaption, Finder.FromSpeed));
    if (between || goal == GoalKind::ToSpeed) messages.push_back(captioned(Finder.ToSpeedCaption, Finder.ToSpeed));
    if (goal == GoalKind::OverDistance) messages.push_back(captioned(Finder.DistanceCaption, Finder.Distance));
    if (Finder.WishTopSpeed.Checked()) messages.push_back(captioned(Finder.WishTopSpeed, Finder.TopSpeed));
    if (Finder.WishDownforce.Checked()) {
        messages.push_back(captioned(Finder.WishDownforce, Finder.Downforce));
        messages.push_back(captioned(Finder.WishDownforce, Finder.DownforceSpeed));
    }
    const FinderTask task = PresentTask();
    for (const BoundBoxes& bound : AllBounds()) {
        for (const TextBox* box : {&bound.low, &bound.high}) {
            if (task.Free[bound.input] && box->Visible()) messages.push_back(check(NameOf(bound.input), *box));
        }
    }
    const auto first = std::ranges::find_if(messages, [](const std::string& message) { return !message.empty(); });
    return first == messages.end() ? std::string() : *first;
}

void LoadFinderInputs() {
    for (const std::string& name : GoalNames()) Finder.Goal.Add(name);
    Finder.Goal.Pick(static_cast<int>(GoalKind::OverDistance));
    ShowFinderInputs();
}

void ShowFinderInputs() {
    const std::array<std::string, 5> names = GoalNames();
    for (std::size_t row = 0; row < Finder.Goal.Rows().size(); ++row) {
        Finder.Goal.SetRow(static_cast<int>(row), names[row]);
    }
    ShowUnitBoxes();
    ShowBounds();
    ShowGoalBoxes();
    ShowWingNote();
}

void ShowGoalBoxes() {
    const auto kind = static_cast<GoalKind>(Finder.Goal.Picked());
    const bool between = kind == GoalKind::BetweenSpeeds;
    const auto show = [](std::initializer_list<Field*> fields, bool shown) {
        for (Field* field : fields) field->SetVisible(shown);
    };
    show({&Finder.FromSpeedCaption, &Finder.FromSpeed, &Finder.FromSpeedUnit}, between);
    show({&Finder.ToSpeedCaption, &Finder.ToSpeed, &Finder.ToSpeedUnit}, between || kind == GoalKind::ToSpeed);
    Finder.StraightsFrame.SetVisible(kind == GoalKind::AlongStraights);
    show({&Finder.DistanceCaption, &Finder.Distance, &Finder.DistanceUnit}, kind == GoalKind::OverDistance);
}

void ShowWingNote() {
    const CarRecord& car = vehicle.CurrentCar;
    const bool wing = (Finder.FreeFrontWing.Checked() && car.FrontWingType > 0) ||
                      (Finder.FreeRearWing.Checked() && car.RearWingType > 0);
    Finder.Note.SetCaption(wing && !Finder.WishDownforce.Checked() ? words["WingsGoFlat"] : "");
}

void TakeTyped() {
    if (finder.WritingBoxes) return;
    finder.BoxValues.emplace();
    for (std::size_t i = 0; i < kUnitBoxes; ++i) (*finder.BoxValues)[i] = BaseOf(UnitBoxes()[i]);
}

std::string NameOf(FinderInput input) {
    switch (input) {
        case FinderInput::FinalDrive: return words["FinalDriveInput"];
        case FinderInput::FrontWing: return words["FrontWingInput"];
        case FinderInput::RearWing: return words["RearWingInput"];
        default: return RatioName(static_cast<int>(input) + 1);
    }
}

std::string ValueText(FinderInput input, double value) {
    return FixedText(value, input < FinderInput::FrontWing ? 3 : 0);
}

double ValueIn(const SetUp& setUp, FinderInput input) {
    switch (input) {
        case FinderInput::FinalDrive: return setUp.FinalDrive[0];
        case FinderInput::FrontWing: return setUp.FrontWingAngle;
        case FinderInput::RearWing: return setUp.RearWingAngle;
        default: return setUp.Ratios[static_cast<int>(input) + 1];
    }
}

}  // namespace zolv
