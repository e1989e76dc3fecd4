#include "vehicle/custom_presets.h"

#include "support/preset_window.h"

namespace zolv {
namespace {

/// Whether one of the faults is to be mended in that field.
bool IsFaulty(const Field& field, bool adding) {
    return std::ranges::any_of(PresetFaults(adding), [&](const PresetFault& fault) { return fault.Where == &field; });
}

// Nothing that a preset holds may be 0.
TEST_F(PresetWindow, EachFaultIsAtTheBoxThatIsWrong) {
    AddAndEdit("Kerb Runner", "Ondo T");
    CustomPresets.NewName.Enter("Other");
    for (PresetPanel* panel : {&CustomPresets.New, &CustomPresets.Edit}) {
        const bool adding = panel == &CustomPresets.New;
        EXPECT_TRUE(PresetFaults(adding).empty());
        for (TextBox* box : {&panel->Power, &panel->PowerRPM, &panel->Torque, &panel->TorqueRPM, &panel->IdleRPM,
                             &panel->Mass, &panel->UnsprungMass, &panel->Dist, &panel->Cx, &panel->FTyreWidth,
                             &panel->FTyreProfile, &panel->FWheelSize, &panel->RTyreWidth, &panel->RTyreProfile,
                             &panel->RWheelSize, &panel->FTrack, &panel->RTrack, &panel->Wheelbase}) {
            const std::string before = box->Text();
            box->SetText("0");
            EXPECT_TRUE(IsFaulty(*box, adding)) << box->Name();
            box->SetText(before);
        }
    }
    CustomPresets.NewName.SetText("Kerb Runner");
    EXPECT_TRUE(IsFaulty(CustomPresets.NewName, true));
}

}  // namespace
}  // namespace zolv
