#include "desk/held.h"

#include <optional>
#include <utility>

#include "aero/aero_page.h"
#include "desk/present.h"
#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "gearing/acceleration_page.h"
#include "gearing/gearing_common.h"
#include "gearing/gearing_state.h"
#include "model/acceleration_targets.h"
#include "platform/dialogs.h"
#include "text/number_text.h"
#include "text/words.h"
#include "tyres/tyre_state.h"
#include "tyres/tyres_page.h"
#include "units/option_state.h"
#include "units/unit_state.h"
#include "vehicle/info_page.h"

namespace zolv {
namespace {

std::shared_ptr<const HeldSetUp> WorkedOut(SetUp setUp, const std::string& file) {
    const auto held = std::make_shared<HeldSetUp>();
    setUp.Targets = units.Speed.Unit;
    held->SetUp = std::move(setUp);
    held->Tyres = TyreSizesOf(held->SetUp.Car);
    held->File = file;
    held->Sheet = Evaluate(held->SetUp, held->Rows);
    held->Times = RunTimes(held->Run());
    if (held->Sheet.WrongOrder.empty()) {
        held->Start = StartOf(held->SetUp, held->Sheet);
        held->Forces = ForcesOver(held->Start);
    }
    return held;
}

void ClearHeldFigures() {
    for (Field* field : Zolv.Fields()) {
        if (field->Kind() == FieldKind::Label) static_cast<Label*>(field)->Write(Showing::Held, {});
    }
}

/// Gears that the held car lacks have no figures; a reverse of exactly 1 is none.
void ClearLackingGears(const CarRecord& car) {
    for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) {
        if (car.Reverse == 1) {
            for (Label* label : {&panel->SpeedR, &panel->RPMR, &panel->TorqueR}) label->Write(Showing::Held, {});
        }
        for (int gear = car.NumGears + 1; gear <= kGears; ++gear) {
            for (Label* label :
                 {&panel->Result[gear], &panel->RPM[gear], &panel->Torque[gear], &panel->RAC[gear - 1]}) {
                label->Write(Showing::Held, {});
            }
        }
    }
}

/// Gears in the wrong order have no figures, and a run that is switched off has none that could be compared.
void ShowHeldGears(const HeldSetUp& held) {
    const Sheet& sheet = held.Sheet;
    if (!sheet.WrongOrder.empty()) return;
    for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) ShowGearsOf(Showing::Held, *panel, sheet.Gears);
    ShowReverseRevs(Showing::Held, sheet.Gears);
    ClearLackingGears(held.SetUp.Car);
    if (options.AccelerationOn) ShowRunOf(Showing::Held, sheet.Run.Results, sheet.Run.Speed);
}

void ShowHeldFigures(const HeldSetUp& held) {
    const SetUp& setUp = held.SetUp;
    const Sheet& sheet = held.Sheet;
    ShowCarInfoOf(Showing::Held, setUp.Car, held.Tyres);
    tyres.HeldSheets = {.Front = sheet.Front, .Rear = sheet.Rear};
    ShowTyresOf(Showing::Held, *tyres.HeldSheets, static_cast<float>(setUp.TyreMu));
    const double topSpeed = sheet.Top.speed;
    ShowAirOf(Showing::Held, setUp.Car, sheet.Air,
              {.topSpeed = topSpeed,
               .speed = setUp.AirSpeed ? *setUp.AirSpeed : topSpeed,
               .frontWing = setUp.FrontWingAngle,
               .rearWing = setUp.RearWingAngle});
    ShowHeldGears(held);
}

std::string NameOf(const HeldSetUp& held) {
    const std::string& car = held.SetUp.CarName;
    if (!held.File.empty()) return car + ", " + held.File;
    if (!held.Sheet.WrongOrder.empty()) return car;
    constexpr std::size_t kTold = 1;  // the second target is one that every car is measured by
    const float time = held.Sheet.Run.Results.SpeedTimes[kTold];
    if (time == 0) return car;
    const AccelTargets& targets = AccelTargetTable[static_cast<std::size_t>(held.SetUp.Targets)];
    return car + ", " + words.Sentence("HeldTime", {WithUnit(time, 2, " s"), units.Speed.Text(targets.Speeds[kTold])});
}

void ShowWhatIsHeld() {
    const bool held = desk.Held != nullptr;
    Zolv.Label_Held.SetCaption(held ? words.Sentence("HeldIs", {HeldName()}) : std::string());
    for (Field* field : std::initializer_list<Field*>{&Zolv.Label_Held, &Zolv.HeldSwap, &Zolv.HeldRelease}) {
        field->SetVisible(held);
    }
    for (MenuEntry* entry : {&Zolv.SetUpSwap, &Zolv.SetUpRelease}) entry->SetEnabled(held);
}

bool FollowsFromGears(const Label& figure) {
    const auto has = [&](auto& row, int first, int last) {
        for (int i = first; i <= last; ++i) {
            if (&row[i] == &figure) return true;
        }
        return false;
    };
    for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) {
        const bool reverse = &figure == &panel->SpeedR || &figure == &panel->RPMR || &figure == &panel->TorqueR;
        if (reverse || has(panel->Result, 1, kGears) || has(panel->RPM, 1, kGears) || has(panel->RAC, 1, kGears - 1) ||
            has(panel->Torque, 1, kGears)) {
            return true;
        }
    }
    return has(Zolv.AccDataLabel, 0, Zolv.AccDataLabel.Size() - 1);
}

}  // namespace

void ShowHeld() {
    if (desk.Held != nullptr && desk.Held->SetUp.Targets != units.Speed.Unit) {
        desk.Held = WorkedOut(desk.Held->SetUp, desk.Held->File);
    }
    ShowWhatIsHeld();
    ClearHeldFigures();
    tyres.HeldSheets.reset();
    if (desk.Held != nullptr) ShowHeldFigures(*desk.Held);
}

std::string HeldName() { return desk.Held != nullptr ? NameOf(*desk.Held) : std::string(); }

void HoldPresent() { Hold(PresentSetUp()); }

void Hold(const SetUp& setUp, const std::string& file) { HoldAgain(WorkedOut(setUp, file)); }

void HoldAgain(std::shared_ptr<const HeldSetUp> held) {
    desk.Held = std::move(held);
    ShowHeld();
    heldFollowUps.HeldChanged();
}

void SwapWithHeld() {
    if (desk.Held == nullptr) return;
    const SetUp held = desk.Held->SetUp;
    if (const std::string why = WhyNotLaidOut(held); !why.empty()) return ShowMessage(why);
    const SetUp present = PresentSetUp();
    LayOutExactly(held);
    Hold(present);
}

BetterWay BetterWayOf(const Label& figure) {
    for (int number = 0; number < Zolv.AccDataLabel.Size(); ++number) {
        if (&Zolv.AccDataLabel[number] != &figure) continue;
        const bool isSpeed = number == kAccEndSpeed || number == kAccDistanceSpeed || number == kAccDistanceSpeed + 2;
        return isSpeed ? BetterWay::Up : BetterWay::Down;
    }
    for (const Label* label : {&Zolv.Aero_TopSpeed, &Zolv.Info_P2W, &Zolv.Info_T2W}) {
        if (label == &figure) return BetterWay::Up;
    }
    return BetterWay::Neither;
}

std::string ChangeOf(const Label& figure) {
    const bool older = !gearing.WrongOrder.empty() && FollowsFromGears(figure);
    return older ? std::string() : figure.Change();
}

std::string TimeLostAtRow(int row) {
    if (desk.Held == nullptr || !gearing.WrongOrder.empty() || !desk.Held->Sheet.WrongOrder.empty()) return {};
    const double speed = gearing.AccelRows[static_cast<std::size_t>(row)][AccelColumn::Speed];
    const std::optional<double> held = desk.Held->Times.At(speed);
    if (!held) return {};
    const std::string lost = RoundedText(row * kTimeStep - *held, 2);
    return lost.front() == '-' || lost == "0" ? lost : '+' + lost;
}

void ReleaseHeld() { HoldAgain(nullptr); }

}  // namespace zolv
