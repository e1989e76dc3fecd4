// Whatever set-up lies on the pages, what they show of tyres, air, gears and run is the text of what Evaluate gives for
// it: the pages' procedures, with their order and their stores, and the pure function are one calculation.

#include <map>
#include <memory>

#include "desk/present.h"
#include "model/catalogue.h"
#include "model/sheet.h"
#include "properties/set_ups.h"
#include "support/zolv_test.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "units/unit_catalogue.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

/// Each test works out this many set-ups, from a seed of its own.
constexpr int kSetUps = 250;

using Texts = std::map<std::string, std::string>;

std::string Rpm(double revs) { return WithUnit(revs, 0, texts.RpmSuffix); }
std::string Times(double ratio) { return WithUnit(ratio, 2, " : 1"); }
std::string LiftOverDrag(float lift, float drag) {
    return drag == 0 ? "N/A" : Times(-static_cast<double>(lift) / drag);
}

void AddTyres(const SetUp& setUp, const Sheet& sheet, Texts& shown) {
    const TyreSheet& tyre = Zolv.FrontTyreAnal.Checked() ? sheet.Front : sheet.Rear;
    const Quantity& distance = units.Distance;
    shown.merge(Texts{{"CPW", distance.Text(tyre.PatchWidth)},
                      {"CPL", distance.Text(tyre.PatchLength)},
                      {"CPA", units.Area.Text(tyre.PatchArea)},
                      {"CPAR", Times(tyre.AspectRatio)},
                      {"UTR", distance.Text(tyre.UnloadedRadius)},
                      {"TD", distance.Text(tyre.Deformation)},
                      {"TRRC", distance.Text(tyre.RollingRadius) + " / " + distance.Text(tyre.Circumference)},
                      {"TWH", distance.Text(tyre.WallHeight)},
                      {"TS", units.Stiffness.Text(tyre.Stiffness)},
                      {"TF", WithUnit(tyre.Frequency, 2, " Hz")},
                      {"FRCPR", RoundedText(sheet.PatchRatio, 3)},
                      {"MU", NumberText(static_cast<float>(setUp.TyreMu))},
                      {"Label_PressureF", units.Pressure.Text(setUp.Blown ? 0 : setUp.FrontPressure)},
                      {"Label_PressureR", units.Pressure.Text(setUp.Blown ? 0 : setUp.RearPressure)}});
}

void AddPart(const std::string& name, const Fitting& part, float drag, float lift, Texts& shown) {
    shown.merge(Texts{{name + "CdA", units.Area.NumberOf(part.CdA)},
                      {name + "ClA", units.Area.NumberOf(part.ClA)},
                      {name + "Drag", units.Force.Text(drag)},
                      {name + "Lift", units.Force.Text(lift)},
                      {name + "LDR", LiftOverDrag(lift, drag)}});
}

void AddAir(const Sheet& sheet, Texts& shown) {
    const StoredForces& air = sheet.Air.Forces;
    const Quantity& force = units.Force;
    AddPart("Aero_Undertray", sheet.Air.Parts.Undertray, air.UndertrayDrag, air.UndertrayLift, shown);
    AddPart("Aero_FrontWing", sheet.Air.Parts.FrontWing, air.FrontWingDrag, air.FrontWingLift, shown);
    AddPart("Aero_RearWing", sheet.Air.Parts.RearWing, air.RearWingDrag, air.RearWingLift, shown);
    shown.merge(Texts{{"Aero_TopSpeed", units.Speed.Text(sheet.Top.speed)},
                      {"Aero_BodyAirDrag", force.Text(air.BodyDrag)},
                      {"Aero_BodyLift", force.Text(air.BodyLift)},
                      {"Aero_TotalDrag", force.Text(air.TotalDrag)},
                      {"Aero_TotalLift", force.Text(air.TotalLift)},
                      {"Aero_TotalLDR", LiftOverDrag(air.TotalLift, air.TotalDrag)},
                      {"Aero_RR", force.Text(air.RollingResistance)},
                      {"Aero_TotalFriction", force.Text(air.TotalFriction)},
                      {"Aero_ForceFrontWheels", force.Text(sheet.Air.FrontWheelForce)},
                      {"Aero_ForceRearWheels", force.Text(sheet.Air.RearWheelForce)},
                      {"Aero_WeightMultiple", RoundedText(sheet.Air.WeightMultiple, 2)}});
    const auto split = [](double share) {
        return WithUnit(100 * share, 1, "% / ") + WithUnit((1 - share) * 100, 1, "%");
    };
    shown["Aero_ForceDistribution"] = split(sheet.Air.ForceDistribution);
    if (sheet.Air.AeroDistribution != 0) shown["Aero_AeroDistribution"] = split(sheet.Air.AeroDistribution);
}

void AddGears(const SetUp& setUp, const Gearbox& box, Texts& shown) {
    const bool ratios = setUp.From == Direction::FromRatios;
    const std::string page = ratios ? "" : "B_";
    for (int gear = 1; gear <= kGears; ++gear) {
        const std::string g = std::to_string(gear);
        shown[page + (ratios ? "Speed" : "Gear") + g] =
            ratios ? units.Speed.Text(box.GearSpeed[gear]) : RoundedText(box.GearRatio[gear], 3);
        shown[page + "RPM" + g] = Rpm(box.GearRevs[gear]);
        if (gear < kGears) shown[page + "RAC" + g] = Rpm(box.RevsAfterChange[gear]);
        shown[page + "Torque" + g] = units.Torque.Text(box.GearTorque[gear]);
    }
    shown[page + "TorqueR"] = units.Torque.Text(box.GearTorque[0]);
    // Not the engine speed of reverse, which the direction from speeds leaves as it was.
    shown["SpeedR"] = shown["SpeedR2"] = units.Speed.Text(box.GearSpeed[0]);
}

void AddRun(const RunSheet& run, Texts& shown) {
    for (std::size_t k = 0; k < 5; ++k) {
        const float time = run.Results.SpeedTimes[k];
        shown["AccDataLabel(" + std::to_string(k) + ')'] = time == 0 && k > 0 ? "N/A" : WithUnit(time, 2, "s");
    }
    shown["AccDataLabel(5)"] = units.Speed.Text(run.Speed);
    for (std::size_t k = 0; k < 2; ++k) {
        shown["AccDataLabel(" + std::to_string(6 + 2 * k) + ')'] = WithUnit(run.Results.DistanceTimes[k], 1, "s");
        shown["AccDataLabel(" + std::to_string(7 + 2 * k) + ')'] =
            "@ " + units.Speed.Text(run.Results.DistanceSpeeds[k]);
    }
}

using LaidOut = AnySetUps;

TEST_P(LaidOut, ReadsAsEvaluateHasIt) {
    const auto rows = std::make_unique<RunRows>();
    int inOrder = 0;
    for (int i = 0; i < kSetUps; ++i) {
        if (i % 25 == 0) PickAnyUnits();
        const zolv::SetUp wanted = Any();
        ASSERT_TRUE(LayOut(wanted));
        const zolv::SetUp setUp = PresentSetUp();
        ASSERT_EQ(std::tie(setUp.CarName, setUp.From, setUp.Blown, setUp.TyreType, setUp.AirSpeed, setUp.Shifts),
                  std::tie(wanted.CarName, wanted.From, wanted.Blown, wanted.TyreType, wanted.AirSpeed, wanted.Shifts));
        ASSERT_EQ(std::tie(setUp.TyreMu, setUp.FrontWingAngle, setUp.RearWingAngle),
                  std::tie(wanted.TyreMu, wanted.FrontWingAngle, wanted.RearWingAngle));
        ASSERT_EQ(OptionsPanel.RevLimitEnable.Enabled(), wanted.Shifts.AutoRevs);
        ASSERT_EQ(OptionsPanel.RC_FixedVal.Enabled(), !wanted.Shifts.AutoRevs);
        ASSERT_EQ(Zolv.Select_AeroSpeed.Enabled(), wanted.AirSpeed.has_value());

        const Sheet sheet = Evaluate(setUp, *rows);
        Texts expected;
        AddTyres(setUp, sheet, expected);
        AddAir(sheet, expected);
        if (sheet.WrongOrder.empty()) {
            ++inOrder;
            AddGears(setUp, sheet.Gears, expected);
            AddRun(sheet.Run, expected);
        }
        for (const auto& [field, text] : expected) {
            ASSERT_EQ(Shown(field), text) << field << " of " << setUp.CarName << ", set-up " << i;
        }
    }
    EXPECT_GT(inOrder, kSetUps / 2);
}

INSTANTIATE_TEST_SUITE_P(Seeds, LaidOut, testing::Range(1, 9));

}  // namespace
}  // namespace zolv
