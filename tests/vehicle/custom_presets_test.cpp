#include "vehicle/custom_presets.h"

#include <string>

#include "support/preset_window.h"
#include "text/texts.h"
#include "vehicle/preset_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

constexpr const char* kAdded = "Added custom preset: Mine";

class CustomPresetsTest : public PresetWindow {};

TEST_F(CustomPresetsTest, LoadListsTheCarsAndTheKindsOfDrivetrain) {
    EXPECT_EQ(CustomPresets.NewCar.Rows().size(), 19U);
    EXPECT_EQ(CustomPresets.NewCar.Rows().back(), "Corvane R");
    EXPECT_EQ(CustomPresets.PresetsUsed.Caption(), "0 / 10");
    for (const PickList* list : {&CustomPresets.New.Drivetrain, &CustomPresets.Edit.Drivetrain}) {
        EXPECT_THAT(list->Rows(), ElementsAre("Front Wheel Drive", "Rear Wheel Drive", "All Wheel Drive"));
    }
}

// From the catalogue by hand: fractions as per cent, 60.123 kg of unsprung mass as a whole number.
TEST_F(CustomPresetsTest, BaseCarFillsThePanelButForTheName) {
    CustomPresets.NewName.Enter("Mine");
    CustomPresets.NewCar.SetText("Ondo T");
    EXPECT_THAT(
        AddPanel(),
        ElementsAre("NewName = Mine", "NewCar = Ondo T", "NewPower = 104.5", "NewPowerRPM = 6017", "NewTorque = 186.4",
                    "NewTorqueRPM = 4531", "NewIdleRPM = 1000", "NewDrivetrain = Rear Wheel Drive", "NewGears = 5",
                    "NewMass = 1244", "NewUnsprungMass = 60", "NewDist = 50.5", "NewCx = 0.38", "NewFTyreWidth = 185",
                    "NewFTyreProfile = 55", "NewFWheelSize = 16", "NewRTyreWidth = 220", "NewRTyreProfile = 50",
                    "NewRWheelSize = 16", "NewFTrack = 1.56", "NewRTrack = 1.55", "NewWheelbase = 2.453",
                    "NewDrivetrainEff = 82", "NewFrontalArea = 1.84"));
}

struct TyreCase {
    const char* baseCar;
    bool frontTyped, rearShown, rearTyped;
    const char* frontCaption;
};

// Each car is chosen behind one with the opposite rules, by hand and by a file.
TEST_F(CustomPresetsTest, TheBaseCarTellsWhichTyresCanBeTyped) {
    const PresetPanel& panel = CustomPresets.New;
    for (const TyreCase& row : {TyreCase{"Pell S", true, false, true, "Wheel/Tyre Size:"},
                                TyreCase{"Ondo T", true, true, true, "Front Wheel/Tyre Size:"},
                                TyreCase{"Ondo T Boost", true, true, true, "Front Wheel/Tyre Size:"},
                                TyreCase{"Ondo R", false, true, false, "Front Wheel/Tyre Size:"}}) {
        for (const bool byFile : {false, true}) {
            SCOPED_TRACE(row.baseCar + std::string(byFile ? " by a file" : ""));
            CustomPresets.NewCar.SetText(row.frontTyped ? "Corvane" : "Pell S");
            presets.LoadingPreset = byFile;
            CustomPresets.NewCar.SetText(row.baseCar);
            for (const TextBox* box : {&panel.FTyreWidth, &panel.FTyreProfile, &panel.FWheelSize}) {
                EXPECT_EQ(box->Enabled(), row.frontTyped) << box->Name();
            }
            for (const TextBox* box : {&panel.RTyreWidth, &panel.RTyreProfile, &panel.RWheelSize}) {
                EXPECT_EQ(box->Visible(), row.rearShown) << box->Name();
                EXPECT_TRUE(!row.rearShown || box->Enabled() == row.rearTyped) << box->Name();
            }
            EXPECT_EQ(CustomPresets.CUPLabel[13].Caption(), row.frontCaption);
            EXPECT_EQ(CustomPresets.CUPLabel[15].Visible(), row.rearShown);
            EXPECT_EQ(panel.Power.Text() == "269", byFile && row.frontTyped)
                << "the figures of Corvane stand behind a file";
            presets.LoadingPreset = false;
        }
    }
}

/// A check, and the least that gets past it: a text for a box of either panel, or a step when adding.
struct CheckStep {
    const char* message;
    TextBox PresetPanel::*box;
    const char* text;
    void (*whenAdding)() = nullptr;

    void Repair(PresetPanel& panel) const { box != nullptr ? (panel.*box).Enter(text) : whenAdding(); }
};

/// As a file does it: a base car without its figures.
void PickCarWithoutFigures() {
    presets.LoadingPreset = true;
    CustomPresets.NewCar.SetText("Corvane");
    presets.LoadingPreset = false;
}

// On a panel where all is wrong they come up in their order.
// clang-format off
const CheckStep kCheckSteps[] = {
    {"You cannot give your preset a name that has already been used.", nullptr, "", [] { CustomPresets.NewName.SetText(""); }},
    {"You can only add up to 10 custom presets.", nullptr, "", [] { vehicle.PresetsUsed = 1; }},
    {"You must enter a name for your preset.", nullptr, "", [] { CustomPresets.NewName.Enter("Mine"); }},
    {"You must select a car for the preset to be based upon.", nullptr, "", PickCarWithoutFigures},
    {"You did not enter a valid power figure. It must be at least 1kW.", &PresetPanel::Power, "1"},
    {"You did not enter a valid engine speed for peak power. It must be at least 100rpm.", &PresetPanel::PowerRPM, "100"},
    {"You did not enter a valid torque figure. It must be at least 1Nm.", &PresetPanel::Torque, "1"},
    {"You did not enter a valid engine speed for peak torque. It must be at least 100rpm.", &PresetPanel::TorqueRPM, "100"},
    {"The engine idle speed must be at least 100rpm.", &PresetPanel::IdleRPM, "100"},
    {"The engine idle speed cannot be more than one third of the engine speed for peak power.", &PresetPanel::PowerRPM, "300"},
    {"You must select a drivetrain.", nullptr, "", [] { CustomPresets.New.Drivetrain.SetText("Front Wheel Drive"); }},
    {"You must select the number of gears.", nullptr, "", [] { CustomPresets.New.Gears.SetText("2"); }},
    {"You did not enter a valid mass. It must be at least 1kg.", &PresetPanel::Mass, "1"},
    {"You did not enter a valid unsprung mass. It must be at least 1kg.", &PresetPanel::UnsprungMass, "1"},
    {"You did not enter a valid weight distribution. It must be at least 5%.", &PresetPanel::Dist, "95.1"},
    {"You did not enter a valid weight distribution. It must be not be more than 95%", &PresetPanel::Dist, "95"},
    {"You did not enter a coefficient of drag. It must be positive.", &PresetPanel::Cx, "0.001"},
    {"You did not enter a valid front tyre width. It must be at least 1mm.", &PresetPanel::FTyreWidth, "1"},
    {"You did not enter a valid front tyre profile. It must be at least 1%.", &PresetPanel::FTyreProfile, "1"},
    {"You did not enter a valid front rim size. It must be at least 1 inch.", &PresetPanel::FWheelSize, "1"},
    {"You did not enter a valid rear tyre width. It must be at least 1mm.", &PresetPanel::RTyreWidth, "1"},
    {"You did not enter a valid rear tyre profile. It must be at least 1%.", &PresetPanel::RTyreProfile, "1"},
    {"You did not enter a valid rear rim size. It must be at least 1 inch.", &PresetPanel::RWheelSize, "1"},
    {"You did not enter a valid front track width. It must be at least 0.5m.", &PresetPanel::FTrack, "0.5"},
    {"You did not enter a valid rear track width. It must be at least 0.5m.", &PresetPanel::RTrack, "0.5"},
    {"You did not enter a valid wheelbase. It must be at least 0.5m.", &PresetPanel::Wheelbase, "0.5"},
};
// clang-format on

TEST_F(CustomPresetsTest, AddingChecksInOrderAndStoresNothingBefore) {
    vehicle.PresetsUsed = 10;
    vehicle.CustomName.fill("Another");
    CustomPresets.NewName.Enter("Pell S");
    for (const CheckStep& step : kCheckSteps) {
        AddPreset();
        ASSERT_EQ(TakeMessage(), step.message);
        step.Repair(CustomPresets.New);
    }
    EXPECT_TRUE(CustomPresets.EditName.Rows().empty());
    AddPreset();
    EXPECT_EQ(TakeMessage(), kAdded);
    EXPECT_EQ(CustomPresets.PresetsUsed.Caption(), "2 / 10");
}

TEST_F(CustomPresetsTest, UpdatingChecksFiguresInOrderAndStoresNothingBefore) {
    Add("Mine", "Corvane");
    const auto stored = vehicle.CustomData;
    UpdatePreset();
    EXPECT_NE(TakeMessage(), "") << "none is chosen";
    CustomPresets.EditName.SetText("Mine");
    for (Field* field : CustomPresets.Fields()) {
        if (field->Kind() == FieldKind::TextBox && field->Name().starts_with("Edit")) field->Reset();
    }
    for (const CheckStep& step : kCheckSteps) {
        if (step.box == nullptr) continue;
        UpdatePreset();
        ASSERT_EQ(TakeMessage(), step.message);
        step.Repair(CustomPresets.Edit);
    }
    EXPECT_EQ(vehicle.CustomData, stored);
    UpdatePreset();
    EXPECT_EQ(TakeMessage(), "Updated custom preset: Mine");
    EXPECT_NE(vehicle.CustomData, stored);
}

// On a panel filled with Corvane, whose peak power comes at 7588 rpm: a third is 2529.3.
TEST_F(CustomPresetsTest, FiguresPassUpToTheirLimits) {
    struct {
        TextBox PresetPanel::*box;
        const char* text;
        bool passes;
    } const kCases[] = {{&PresetPanel::Dist, "5", true},
                        {&PresetPanel::Dist, "4.9", false},
                        {&PresetPanel::FTyreProfile, ".99", false},
                        {&PresetPanel::Cx, "0,35", false},
                        {&PresetPanel::IdleRPM, "2529", true},
                        {&PresetPanel::IdleRPM, "2530", false},
                        {&PresetPanel::Power, "0.5", false},
                        {&PresetPanel::PowerRPM, "1e99", true}};
    for (const auto& row : kCases) {
        CustomPresets.NewName.Enter(row.text);
        CustomPresets.NewCar.SetText("Corvane");
        (CustomPresets.New.*row.box).Enter(row.text);
        AddPreset();
        EXPECT_EQ(TakeMessage().starts_with("Added"), row.passes) << row.text;
    }
}

// Behind Ondo T by hand: 104.5 and 186.4 rounded half to even, the rest as the catalogue has it.
TEST_F(CustomPresetsTest, AddingStoresWholeNumbersAndTheHiddenFiguresOfTheBaseCar) {
    Add("Mine", "Ondo T");
    const CarFigures expected{104,   6017, 186,   4531, 1000, 1,   5,     1244,   0.505F, 0.38F, 185,
                              0.55F, 16,   1.56F, 220,  0.5F, 16,  1.55F, 2.453F, 60,     0.82F, 3.6F,
                              1.84F, 0,    122,   364,  112,  334, 0,     0,      0};
    EXPECT_THAT(vehicle.FiguresOfPreset(0), ElementsAreArray(expected));
    EXPECT_EQ(vehicle.CustomName[0], "Mine");
    EXPECT_EQ(CustomPresets.PresetsUsed.Caption(), "1 / 10");
    EXPECT_THAT(CustomPresets.EditName.Rows(), ElementsAre("Mine"));
    EXPECT_THAT(Zolv.Select_Car.Rows(), ElementsAre("Mine"));
    EXPECT_EQ(vehicle.CurrentCar.Power, 0) << "the car in use stays";

    Add("Winged", "Series Lo");
    const CarFigures second = vehicle.FiguresOfPreset(1);
    EXPECT_THAT(std::vector<float>(second.begin() + 21, second.end()),
                ElementsAre(4, 1.6F, 0, 71, 213, 58, 176, 2, 2, 2));
    EXPECT_THAT(vehicle.FiguresOfPreset(0), ElementsAreArray(expected)) << "the first stays as it is";
}

TEST_F(CustomPresetsTest, PellSTakesItsRearTyreFromTheFront) {
    CustomPresets.NewName.Enter("Mine");
    CustomPresets.NewCar.SetText("Pell S");
    PresetPanel& panel = CustomPresets.New;
    panel.FTyreWidth.Enter("195");
    panel.FTyreProfile.Enter("45");
    panel.FWheelSize.Enter("17");
    for (TextBox* box : {&panel.RTyreWidth, &panel.RTyreProfile, &panel.RWheelSize}) box->SetText("0");
    AddPreset();
    EXPECT_EQ(TakeMessage(), kAdded);
    const CarFigures stored = vehicle.FiguresOfPreset(0);
    EXPECT_THAT(std::vector<float>(stored.begin() + 14, stored.begin() + 17), ElementsAre(195, 0.45F, 17));
}

TEST_F(CustomPresetsTest, DrivetrainIsTakenByTheWordsInForce) {
    CustomPresets.NewName.Enter("Mine");
    CustomPresets.NewCar.SetText("Corvane");
    texts.TextRWD = "Heckantrieb";  // a language was loaded behind the list
    AddPreset();
    EXPECT_EQ(TakeMessage(), "You must select a drivetrain.");
}

TEST_F(CustomPresetsTest, EditingShowsAndStoresWhatThePanelHas) {
    Add("First", "Series Lo");
    AddAndEdit("Mine", "Sable T");
    CarFigures expected = vehicle.FiguresOfPreset(1);
    PresetPanel& panel = CustomPresets.Edit;
    EXPECT_EQ(panel.Power.Text() + '|' + panel.Dist.Text() + '|' + panel.RTyreProfile.Text(), "181|54.3|40");
    EXPECT_EQ(panel.UnsprungMass.Text() + '|' + panel.Drivetrain.Text() + '|' + panel.Gears.Text(),
              "61|All Wheel Drive|5");
    panel.Power.Enter("250.5");
    panel.Gears.SetText("6");
    panel.Drivetrain.SetText("Front Wheel Drive");
    panel.RTyreWidth.Enter("2e2");
    panel.UnsprungMass.Enter("70");
    UpdatePreset();
    EXPECT_EQ(TakeMessage(), "Updated custom preset: Mine");
    expected[0] = 250;
    expected[5] = 0;
    expected[6] = 6;
    expected[14] = 200;
    expected[19] = 70;
    EXPECT_THAT(vehicle.FiguresOfPreset(1), ElementsAreArray(expected));
    EXPECT_EQ(vehicle.FiguresOfPreset(0)[0], 335) << "the other preset stays";
    EXPECT_EQ(CustomPresets.PresetsUsed.Caption(), "2 / 10");
}

TEST_F(CustomPresetsTest, ThereIsRoomForTen) {
    for (const char digit : std::string("0123456789")) Add(std::string("Mine ") + digit, "Gnat 5");
    CustomPresets.NewName.Enter("Eleven");
    AddPreset();
    EXPECT_EQ(TakeMessage(), "You can only add up to 10 custom presets.");
}

}  // namespace
}  // namespace zolv
