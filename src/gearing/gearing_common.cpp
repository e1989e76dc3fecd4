#include "gearing/gearing_common.h"

#include <span>
#include <string>

#include "fields/all_windows.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "tyres/tyre_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

void ReportOrder(const OrderWords& words, std::span<const int> wrong) {
    constexpr const char* kLineBreak = "\r\n";
    Canvas& plot = Zolv.TorquePlot.Draw();
    plot.Clear();
    plot.SetInk(kRed);
    plot.Print(words.notUpdated + kLineBreak + texts.TextBecauseOfThe + ' ' +
               NumberText(static_cast<int>(wrong.size())) + ' ' + texts.TextErrors + kLineBreak);
    for (const int gear : wrong) plot.Print(OrderSentence(words, gear) + kLineBreak);
    plot.SetInk(kBlack);
    if (Zolv.Select_Graphs.Text() != texts.GraphNames[0]) Zolv.Select_Graphs.SetText(texts.GraphNames[0]);
}

}  // namespace

void CalcGearAxleLoads() { FindAxleLoads(PresentGearedCar().Rolling, gearing.Present().GearSpeed, gearing.Loads); }

void CalcGearSpeedFactors() {
    FindSpeedFactors(PresentGearedCar().Rolling, gearing.Loads);
    KeepDrivenDeformation();
}

void KeepDrivenDeformation() {
    if (vehicle.CurrentCar.IsRearDriven()) {
        tyres.RearDeformation = static_cast<float>(gearing.Loads.Deformation);
    } else {
        tyres.FrontDeformation = gearing.Loads.Deformation;
    }
}

void CalcReverse() {
    Gearbox& box = gearing.Present();
    box.GearRatio[0] = vehicle.CurrentCar.Reverse;
    SettleReverse(PresentGearedCar(), box.FinalDrive, box, gearing.Loads);
    for (Gearbox* other : {&gearing.FromRatios, &gearing.FromSpeeds}) {
        other->GearRatio[0] = box.GearRatio[0];
        other->GearRevs[0] = box.GearRevs[0];
        other->GearSpeed[0] = box.GearSpeed[0];
    }
}

OrderWords OrderWordsOf(Direction direction) {
    if (direction == Direction::FromRatios) {
        return {texts.TextSpeedsNotUpdated, texts.TextRatioFor, texts.TextCannotBeShorter};
    }
    return {texts.TextRatiosNotUpdated, texts.TextSpeedFor, texts.TextCannotBeLess};
}

std::string OrderSentence(const OrderWords& words, int gear) {
    return words.theNumberFor + ' ' + GearName(gear + 1) + ' ' + words.isWrongAgainst + ' ' + GearName(gear);
}

bool CheckOrder(const ByGear& given, Direction direction) {
    const std::vector<int> wrong = GearsInWrongOrder(given, direction);
    if (direction == gearing.From()) gearing.WrongOrder = wrong;
    if (wrong.empty()) return true;
    ReportOrder(OrderWordsOf(direction), wrong);
    return false;
}

void ReportWrongOrder() { ReportOrder(OrderWordsOf(gearing.From()), gearing.WrongOrder); }

void ShowGearsOf(Showing which, GearingPanel& panel, const Gearbox& box) {
    const auto rpm = [](double revs) { return WithUnit(revs, 0, texts.RpmSuffix); };
    for (int gear = 1; gear <= kGears; ++gear) {
        panel.Result[gear].Write(which, &panel == &Zolv.Ratios ? units.Speed.Text(box.GearSpeed[gear])
                                                               : RoundedText(box.GearRatio[gear], 3));
        panel.RPM[gear].Write(which, rpm(box.GearRevs[gear]));
        if (gear < kGears) panel.RAC[gear].Write(which, rpm(box.RevsAfterChange[gear]));
        panel.Torque[gear].Write(which, units.Torque.Text(box.GearTorque[gear]));
    }
    panel.TorqueR.Write(which, units.Torque.Text(box.GearTorque[0]));
    for (GearingPanel* both : {&Zolv.Ratios, &Zolv.Speeds}) {
        both->SpeedR.Write(which, units.Speed.Text(box.GearSpeed[0]));
    }
}

void ColourGears(GearingPanel& panel, const Gearbox& box) {
    const double limit = PresentShiftRules().RevLimit();
    const double torqueRevs = vehicle.CurrentCar.TorqueRPM;
    for (int gear = 1; gear < kGears; ++gear) {
        panel.RPM[gear].SetColour(ColourIf(box.GearRevs[gear] > limit, kRed));
        panel.RAC[gear].SetColour(ColourIf(box.RevsAfterChange[gear] < torqueRevs, kBlue));
    }
}

void ShowReverseRevs(Showing which, const Gearbox& box) {
    for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) {
        panel->RPMR.Write(which, WithUnit(box.GearRevs[0], 0, texts.RpmSuffix));
    }
}

}  // namespace zolv
