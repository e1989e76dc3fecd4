#include "tyres/tyres_page.h"

#include "aero/aero_state.h"
#include "gearing/gearing_state.h"
#include "support/zolv_test.h"
#include "text/number_text.h"
#include "tyres/tyre_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

class TyresPage : public ZolvTest {
protected:
    TyresPage() {
        Start();
        Set("OptionsPanel.Select_DistanceUnits", "Millimeters");
    }
};

// From a separate calculation in Python, at 175 kPa and 40 m/s.
TEST_F(TyresPage, ShowsTheTyreThatIsAnalysed) {
    struct Case {
        const char *car, *tyre, *blown, *shown;
    };
    constexpr Case kCases[] = {
        {"Mote 900", "FrontTyreAnal", "on", "160 mm|185 mm|232 mm|19 mm|213 mm / 1339 mm|61 mm|0.87 : 1|3.6 Hz|"},
        {"Series Lo", "RearTyreAnal", "off", "390 mm|113 mm|321 mm|5 mm|316 mm / 1986 mm|151 mm|3.46 : 1|8.46 Hz|"},
    };
    Set("AccelerationTestingEnable", "off");  // a run would leave its own axle loads
    for (const Case& row : kCases) {
        Set("Select_Car", row.car);
        Set("BlowTyres", row.blown);
        Set(row.tyre, "on");
        EXPECT_EQ(Shown({"CPW", "CPL", "UTR", "TD", "TRRC", "TWH", "CPAR", "TF"}), row.shown) << row.car << row.tyre;
    }
}

TEST_F(TyresPage, ABlownTyreHasNoPressureAndTheSlidersStay) {
    Set("Select_Car", "Mote 900");
    Set("BlowTyres", "on");
    EXPECT_EQ(Shown({"TS", "Label_PressureF", "Select_PressureF"}), "100 kN/m|0 kPa|175|");
    Set("BlowTyres", "off");
    EXPECT_EQ(Shown({"TS", "Label_PressureR"}), "537.5 kN/m|175 kPa|");
}

TEST_F(TyresPage, ATyreOnItsRimHasNoWallLeft) {
    UseCustomCar("Mote 900", {{CarField::Mass, 20000}});
    Set("BlowTyres", "on");
    EXPECT_EQ(Shown("TWH"), "0 mm");
    EXPECT_EQ(Zolv.TWH.Colour(), kRed);
    EXPECT_EQ(tyres.FrontDeformation, vehicle.Tyres.FrontMaxDeformation);
    EXPECT_EQ(tyres.RearDeformation, vehicle.Tyres.RearMaxDeformation);
    Set("Select_Car", "Pell S");
    EXPECT_EQ(Zolv.TWH.Colour(), kBlack);
}

TEST_F(TyresPage, FrontFiguresAreDoublesAndRearFiguresSingles) {
    Set("Select_Car", "Wisp 6");
    // A bit pattern of a double that no float holds, and one that a float has been through.
    EXPECT_NE(tyres.FrontPatchLength, static_cast<double>(static_cast<float>(tyres.FrontPatchLength)));
    UseCustomCar("Mote 900", {{CarField::WeightDist, 0.5}});
    Set("UseFixedSpeed", "on");
    EXPECT_NEAR(tyres.FrontPatchLength, static_cast<double>(tyres.RearPatchLength), 1e-5);
    EXPECT_NE(tyres.FrontPatchLength, static_cast<double>(tyres.RearPatchLength));
}

TEST_F(TyresPage, AnalysingTheOtherTyreChangesNoNumberOfTheGearing) {
    const GearingState before = gearing;
    Set("RearTyreAnal", "on");
    EXPECT_EQ(gearing.FromRatios, before.FromRatios);
    EXPECT_EQ(gearing.AccelLastRow, before.AccelLastRow);
    EXPECT_EQ(Shown("CPW"), "185 mm");
}

TEST_F(TyresPage, ARunLeavesItsAxleLoadsForTheNextAnalysis) {
    Set("Select_Car", "Series Lo");
    const AccelRow& last = gearing.AccelRows[static_cast<std::size_t>(gearing.AccelLastRow)];
    const float lastFront = last[AccelColumn::FrontLoad];
    EXPECT_EQ(aero.FrontWheelForce, lastFront);  // of the run at top speed, not of the slider's 40 m/s
    EXPECT_EQ(aero.RearWheelForce, last[AccelColumn::RearLoad]);
    Set("Select_PressureF", "176");
    // Half the axle's load on 100 + 2.5 * 176 = 540 kN/m.
    EXPECT_NEAR(tyres.FrontDeformation, static_cast<double>(lastFront) * 0.5 / 540'000, 1e-9);
    Set("Select_AeroSpeed", "0");
    EXPECT_NEAR(aero.FrontWheelForce, 717 * 9.80665 * 0.47, 0.01);
    EXPECT_NEAR(tyres.FrontDeformation, 717 * 9.80665 * 0.47 * 0.5 / 540'000, 1e-9);
}

TEST_F(TyresPage, TheGearingLeavesTheDeformationOfItsLastGear) {
    Set("Select_Car", "Series Lo");
    const float before = tyres.RearDeformation;
    Set("Gear6", "0.8");  // faster, and so under more load
    EXPECT_GT(tyres.RearDeformation, before);
    EXPECT_NEAR(tyres.RearDeformation, static_cast<double>(gearing.Loads.GearAxleLoads[6].rear) * 0.5 / 537'500, 1e-9);
    Set("AccelerationTestingEnable", "off");
    Set("FrontTyreAnal", "on");
    Set("Select_AeroSpeed", "0");
    EXPECT_NEAR(tyres.RearDeformation, 717 * 9.80665 * 0.53 * 0.5 / 537'500, 1e-9);
}

TEST_F(TyresPage, TheListShowsATypeWhoseGripCountsOnlyOncePicked) {
    EXPECT_EQ(Shown({"Select_Tyres", "MU"}), "Road Super|1.1|");
    Set("Select_Tyres", "Road Super");
    EXPECT_EQ(Shown("MU"), "1.25");
}

TEST_F(TyresPage, BothListsShowTheSameTypeAndItMovesNoRadius) {
    Set("Select_Car", "Series Lo");
    const std::string slow = Shown("AccDataLabel(0)");
    int taken = 0;
    const Hook wired = tyreFollowUps.TyreTypeTaken;
    tyreFollowUps.TyreTypeTaken = [&] {
        ++taken;
        wired();
    };
    Set("Select_Tyres2", "Knobbly");
    EXPECT_EQ(taken, 1);
    EXPECT_EQ(Shown({"Select_Tyres", "MU"}), "Knobbly|1|");
    Set("Select_Tyres", "Slick R1");
    EXPECT_EQ(taken, 2);
    EXPECT_EQ(Shown({"Select_Tyres2", "MU", "Speed1"}), "Slick R1|1.65|25.1 m/s|");
    EXPECT_LT(Val(Shown("AccDataLabel(0)")), Val(slow));
}

}  // namespace
}  // namespace zolv
