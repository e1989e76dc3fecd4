#include "gearing/gearing_inputs.h"

#include "fields/all_windows.h"
#include "fields/guards.h"
#include "gearing/gearing_state.h"
#include "gearing/ratios_page.h"
#include "gearing/speeds_page.h"
#include "model/whole_number.h"
#include "text/number_text.h"
#include "tyres/tyres_page.h"

namespace zolv {
namespace {

void WriteBox(TextBox& box, const Slider& slider, double scale) { box.SetText(NumberText(slider.Value() / scale)); }

void MoveSlider(TextBox& box, Slider& slider, double scale) {
    const int wanted = ToInt32(Val(box.Text()) * scale);
    slider.SetValue(wanted);
    // A slider that stands at its limit already does not move, and so writes nothing by itself.
    if (wanted < slider.Min() || wanted > slider.Max()) WriteBox(box, slider, scale);
}

}  // namespace

const std::array<GearingInputs, 2>& BothGearingInputs() {
    static const std::array<GearingInputs, 2> kBoth{{{Zolv.Ratios, kThousandths, UpdateSpeeds},  //
                                                     {Zolv.Speeds, kWholes, UpdateRatios}}};
    return kBoth;
}

double WithinRange(double number, const Slider& slider, double scale) {
    const std::int32_t wanted = ToInt32(number * scale);
    if (wanted < slider.Min()) return slider.Min() / scale;
    return wanted > slider.Max() ? slider.Max() / scale : number;
}

void InputChanged(const GearingInputs& inputs, int gear) {
    MoveSlider(inputs.panel.Input[gear], inputs.panel.InputSlider[gear], inputs.scale);
    if (guards.Busy) return;
    const Raised busy(guards.Busy);
    inputs.update();
}

void FinalDriveChanged(const GearingInputs& inputs) {
    MoveSlider(inputs.panel.FinalDrive, inputs.panel.FinalDriveSlider, kThousandths);
    if (guards.Busy) return;
    const Raised busy(guards.Busy);
    AnalyseTyres();
    inputs.update();
}

void InputSliderMoved(const GearingInputs& inputs, int gear) {
    WriteBox(inputs.panel.Input[gear], inputs.panel.InputSlider[gear], inputs.scale);
}

void FinalDriveSliderMoved(const GearingInputs& inputs) {
    WriteBox(inputs.panel.FinalDrive, inputs.panel.FinalDriveSlider, kThousandths);
}

char CommaToPoint(char typed) { return typed == ',' ? '.' : typed; }

void Recalculate() {
    if (gearing.RatiosMode) {
        UpdateSpeeds();
    } else {
        UpdateRatios();
    }
}

}  // namespace zolv
