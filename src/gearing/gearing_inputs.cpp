#include "gearing/gearing_inputs.h"

#include "fields/guards.h"
#include "fields/windows.h"
#include "gearing/gearing_state.h"
#include "gearing/ratios_page.h"
#include "gearing/speeds_page.h"
#include "model/whole_number.h"
#include "text/number_text.h"
#include "tyres/tyres_page.h"

namespace zolv {
namespace {

constexpr double kThousandths = 1000;  // a ratio's slider counts them
constexpr double kWholes = 1;          // a speed's slider counts units

void WriteBox(TextBox& box, const Slider& slider, double scale) { box.SetText(NumberText(slider.Value() / scale)); }

void MoveSlider(TextBox& box, Slider& slider, double scale) {
    const int wanted = ToInt32(Val(box.Text()) * scale);
    slider.SetValue(wanted);
    // A slider that stands at its limit already does not move, and so writes nothing by itself.
    if (wanted < slider.Min() || wanted > slider.Max()) WriteBox(box, slider, scale);
}

template <class Work>
void UnlessBusy(Work work) {
    if (guards.Busy) return;
    const Raised busy(guards.Busy);
    work();
}

}  // namespace

void RatioChanged(int gear) {
    MoveSlider(Zolv.Ratios.Input[gear], Zolv.Ratios.InputSlider[gear], kThousandths);
    UnlessBusy(UpdateSpeeds);
}

void SpeedChanged(int gear) {
    MoveSlider(Zolv.Speeds.Input[gear], Zolv.Speeds.InputSlider[gear], kWholes);
    UnlessBusy(UpdateRatios);
}

void FinalDriveOfRatiosChanged() {
    MoveSlider(Zolv.Ratios.FinalDrive, Zolv.Ratios.FinalDriveSlider, kThousandths);
    UnlessBusy([] {
        AnalyseTyres();
        UpdateSpeeds();
    });
}

void FinalDriveOfSpeedsChanged() {
    MoveSlider(Zolv.Speeds.FinalDrive, Zolv.Speeds.FinalDriveSlider, kThousandths);
    UnlessBusy([] {
        AnalyseTyres();
        UpdateRatios();
    });
}

void RatioSliderMoved(int gear) { WriteBox(Zolv.Ratios.Input[gear], Zolv.Ratios.InputSlider[gear], kThousandths); }

void SpeedSliderMoved(int gear) { WriteBox(Zolv.Speeds.Input[gear], Zolv.Speeds.InputSlider[gear], kWholes); }

void FinalDriveSliderOfRatiosMoved() { WriteBox(Zolv.Ratios.FinalDrive, Zolv.Ratios.FinalDriveSlider, kThousandths); }

void FinalDriveSliderOfSpeedsMoved() { WriteBox(Zolv.Speeds.FinalDrive, Zolv.Speeds.FinalDriveSlider, kThousandths); }

char CommaToPoint(char typed) { return typed == ',' ? '.' : typed; }

void Recalculate() {
    if (gearing.RatiosMode) {
        UpdateSpeeds();
    } else {
        UpdateRatios();
    }
}

}  // namespace zolv
