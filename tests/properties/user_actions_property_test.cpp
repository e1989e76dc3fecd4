// A user who does anything at all, a thousand times.

#include <string>
#include <vector>

#include "fields/guards.h"
#include "model/whole_number.h"
#include "properties/random.h"
#include "shell/shell_state.h"
#include "support/zolv_test.h"
#include "text/number_text.h"
#include "units/options_panel.h"

namespace zolv {
namespace {

constexpr const char* kTexts[] = {"",      "0",      "-1",    "0.5",   "1",     "1.65", "7.5",      "7000",
                                  "99999", "1e308",  "-1e99", "1e-99", ".",     "-",    "2,4",      "32768",
                                  "abc",   "0.0001", "1 0",   "2d3",   "65536", "120",  "\xC3\xA4", "9e999"};

class UserActions : public ZolvTest, public testing::WithParamInterface<int> {
protected:
    UserActions() { Start(); }

    void TearDown() override {}  // messages are the answer to much of this

    void ActOn(Field& field) {
        if (!field.Enabled() || field.Locked()) return;
        switch (field.Kind()) {
            case FieldKind::TextBox: return static_cast<TextBox&>(field).Enter(AnyText());
            case FieldKind::Slider: return Drag(static_cast<Slider&>(field));
            case FieldKind::PickList:
            case FieldKind::TabStrip: return Pick(static_cast<PickList&>(field));
            case FieldKind::CheckBox: return static_cast<CheckBox&>(field).SetChecked(random.Coin());
            case FieldKind::OptionButton: return static_cast<OptionButton&>(field).Choose();
            case FieldKind::Button: return static_cast<Button&>(field).Click();
            case FieldKind::MenuEntry: return Press(static_cast<MenuEntry&>(field));
            default: return;
        }
    }

    Random random{static_cast<std::uint64_t>(GetParam())};

private:
    std::string AnyText() {
        return random.Coin() ? random.OneOf(kTexts) : RoundedText(random.Real(0, 1000), random.Whole(0, 3));
    }

    void Drag(Slider& slider) {
        const int beyond = random.Whole(0, 9) == 0 ? 1000000 : 0;
        slider.Drag(random.Whole(slider.Min() - beyond, slider.Max() + beyond));
    }

    void Pick(PickList& list) {
        if (!list.Rows().empty()) list.Pick(random.Whole(0, static_cast<int>(list.Rows().size()) - 1));
    }

    void Press(MenuEntry& entry) {
        if (&entry == &Zolv.FileExit) return;
        if (random.Coin()) Answer(InFolder(random.Coin() ? "a.zolv" : "b.zolv"));
        entry.Click();
    }
};

void ExpectAgree(const TextBox& box, const Slider& slider, double scale) {
    ASSERT_EQ(slider.Value(), ToInt32(Val(box.Text()) * scale)) << box.Name() << " = " << box.Text();
}

void ExpectSlidersAgree() {
    for (int mode = 0; mode <= 1; ++mode) {
        GearingPanel& panel = Zolv.GearingOf(mode);
        ExpectAgree(panel.FinalDrive, panel.FinalDriveSlider, 1000);
        for (int gear = 1; gear <= 6; ++gear) {
            ExpectAgree(panel.Input[gear], panel.InputSlider[gear], mode == 0 ? 1000 : 1);
        }
    }
    ASSERT_EQ(Zolv.Select_AeroSpeed.Value(), Zolv.Select_AeroSpeed_TyreTab.Value());
    for (const PlotScale& scale : PlotScales()) ASSERT_EQ(scale.slider.Value(), options.*scale.value);
}

TEST_P(UserActions, LeaveNothingBroken) {
    constexpr int kActions = 1000;
    constexpr int kActionsOfLook = 20;  // looking at everything takes longer than an action
    std::vector<Field*> all;
    for (Window* window : AllWindows()) all.insert(all.end(), window->Fields().begin(), window->Fields().end());
    for (int i = 0; i < kActions;) {
        Field& field = *random.OneOf(all);
        if (field.Kind() == FieldKind::Label || field.Kind() == FieldKind::Panel) continue;
        SCOPED_TRACE("action " + std::to_string(i) + " on " + field.Name());
        ASSERT_NO_THROW(ActOn(field));
        ASSERT_FALSE(guards.Busy || guards.Loading);
        ASSERT_NO_FATAL_FAILURE(ExpectSlidersAgree());
        if (++i % kActionsOfLook == 0) ExpectOnlyNumbers();
        if (HasFailure()) return;
    }
    EXPECT_FALSE(shell.Ended);
}

INSTANTIATE_TEST_SUITE_P(Seeds, UserActions, testing::Range(1, 5));

}  // namespace
}  // namespace zolv
