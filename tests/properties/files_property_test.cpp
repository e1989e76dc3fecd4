// What was written is read back, whatever stood there in between.

#include <array>
#include <string>
#include <vector>

#include "files/file_state.h"
#include "files/options_file.h"
#include "files/preset_file.h"
#include "files/settings_file.h"
#include "properties/random.h"
#include "shell/fresh_start.h"
#include "support/zolv_test.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "units/option_state.h"
#include "units/options_panel.h"
#include "units/unit_catalogue.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

class FileProperties : public ZolvTest {
protected:
    FileProperties() {
        Start();
        Set("AccelerationTestingEnable", "off");  // no file depends on the run, which takes most of the time
    }

    void PickAny(PickList& list) { list.Pick(random.Whole(0, static_cast<int>(list.Rows().size()) - 1)); }
    void DragAnywhere(Slider& slider) { slider.Drag(random.Whole(slider.Min(), slider.Max())); }

    void ChangeSetUp() {
        PickAny(Zolv.Select_Car);
        for (Slider* slider : {&Zolv.Select_PressureF, &Zolv.Select_PressureR, &Zolv.Select_FrontWingAngle,
                               &Zolv.Select_RearWingAngle}) {
            DragAnywhere(*slider);
        }
        for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) {
            panel->FinalDrive.Enter(RoundedText(random.Real(0.5, 7.5), 3));
            for (TextBox& box : panel->Input) {
                const bool ratio = panel == &Zolv.Ratios;
                box.Enter(ratio ? RoundedText(random.Real(0.5, 7.5), 3) : NumberText(random.Whole(1, 200)));
            }
        }
    }

    static std::string PresentSetUp() {
        std::string all = Zolv.Select_Car.Text();
        for (const Slider* slider : {&Zolv.Select_PressureF, &Zolv.Select_PressureR, &Zolv.Select_FrontWingAngle,
                                     &Zolv.Select_RearWingAngle}) {
            all += ' ' + std::to_string(slider->Value());
        }
        for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) {
            all += ' ' + RoundedText(Val(panel->FinalDrive.Text()), 3);  // the slider's step; a search goes finer
            for (const TextBox& box : panel->Input) all += ' ' + box.Text();
        }
        return all;
    }

    void ChangeOptions() {
        for (UnitChoice& unit : OptionsPanel.Units) PickAny(unit.Select);
        for (const PlotFlag& flag : PlotFlags()) flag.box.SetChecked(random.Coin());
        for (const PlotScale& scale : PlotScales()) DragAnywhere(scale.slider);
        OptionsPanel.RevLimitEnable.SetChecked(random.Coin());
        (random.Coin() ? OptionsPanel.RevsP : OptionsPanel.RevsR).Choose();
        (random.Coin() ? OptionsPanel.RC_Auto : OptionsPanel.RC_Fixed).Choose();
        OptionsPanel.RC_FixedVal.Enter(NumberText(random.Whole(1000, 99999)));
    }

    static std::string Options() {
        std::string all;
        for (const QuantityUnits& quantity : UnitCatalogue()) all += NumberText((units.*quantity.state).Unit) + ' ';
        for (const PlotScale& scale : PlotScales()) all += NumberText(options.*scale.value) + ' ';
        for (const PlotFlag& flag : PlotFlags()) all += BooleanText(flag.On()) + ' ';
        for (const bool flag : {options.RevsMaxMode, options.RevLimitOn, options.AutoRevs, options.AccelerationOn}) {
            all += BooleanText(flag) + ' ';
        }
        return all + NumberText(options.CustomRevs);
    }

    Random random{5};
};

TEST_F(FileProperties, SettingsComeBack) {
    for (int i = 0; i < 400; ++i) {
        ChangeSetUp();
        const std::string saved = PresentSetUp();
        files.CurrentFileName = InFolder("a.zolv");
        SaveSettingsFile();
        ChangeSetUp();
        OpenSettingsFile(InFolder("a.zolv"));
        ASSERT_EQ(PresentSetUp(), saved) << i;
    }
}

TEST_F(FileProperties, OptionsComeBack) {
    for (int i = 0; i < 400; ++i) {
        ChangeOptions();
        SaveOptions();
        const std::string saved = Options();
        const std::string fixedRevs = OptionsPanel.RC_FixedVal.Text();
        ChangeOptions();
        // Fixed engine speeds are read from their box where the load presses their button.
        OptionsPanel.RC_FixedVal.Enter(fixedRevs);
        LoadOptions();
        ASSERT_EQ(Options(), saved) << i;
    }
}

/// A box of the add panel and what it may hold, as it is typed.
struct TypedFigure {
    TextBox& box;
    double low, high;
    int decimals;
};

std::vector<TypedFigure> TypedFigures() {
    PresetPanel& panel = CustomPresets.New;
    return {{panel.Power, 1, 2000, 0},     {panel.PowerRPM, 3000, 20000, 0},
            {panel.Torque, 1, 3000, 0},    {panel.TorqueRPM, 100, 9999, 0},
            {panel.IdleRPM, 100, 1000, 0}, {panel.Mass, 1, 30000, 0},
            {panel.Dist, 5.1, 94.9, 1},    {panel.Cx, 0.01, 2, 3}};
}

class PresetProperties : public FileProperties {
protected:
    /// Types a preset that passes every check, and adds it.
    void AddAny(const std::string& name) {
        PickAny(CustomPresets.NewCar);
        CustomPresets.NewName.Enter(name);
        for (const TypedFigure& figure : TypedFigures()) {
            figure.box.Enter(RoundedText(random.Real(figure.low, figure.high), figure.decimals));
        }
        PickAny(CustomPresets.New.Drivetrain);
        PickAny(CustomPresets.New.Gears);
        CustomPresets.AddCar.Click();
        ExpectMessage(testing::StartsWith(texts.TextAddedPreset));
    }

    void SaveAndLoad(const std::string& name) {
        CustomPresets.EditName.SetText(name);
        files.PresetFileName = InFolder("a.cup");
        SavePresetFile();
        PickAny(CustomPresets.NewCar);  // other figures
        LoadPresetFile();
    }
};

TEST_F(PresetProperties, PresetsComeBack) {
    for (int start = 0; start < 60; ++start) {
        FreshStart();
        Start();
        for (int pair = 0; pair < 5; ++pair) {
            const int first = vehicle.PresetsUsed;
            AddAny("Car " + std::to_string(first));
            SaveAndLoad("Car " + std::to_string(first));
            EXPECT_EQ(Shown("NewName"), "Car " + std::to_string(first));
            CustomPresets.NewName.Enter("Twin " + std::to_string(first));
            CustomPresets.AddCar.Click();
            ExpectMessage(testing::StartsWith(texts.TextAddedPreset));
            ASSERT_EQ(vehicle.FiguresOfPreset(first + 1), vehicle.FiguresOfPreset(first)) << start << ' ' << pair;
        }
    }
}

}  // namespace
}  // namespace zolv
