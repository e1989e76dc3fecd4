#include "desktop/box_sliders.h"

#include "fields/all_windows.h"

namespace zolv {

Slider* SliderBeside(const TextBox& box) {
    for (GearingPanel* panel : {&Zolv.Ratios, &Zolv.Speeds}) {
        if (&box == &panel->FinalDrive) return &panel->FinalDriveSlider;
        for (int gear = 1; gear <= 6; ++gear) {
            if (&box == &panel->Input[gear]) return &panel->InputSlider[gear];
        }
    }
    return nullptr;
}

bool HoldsRatio(const Slider& slider) {
    if (&slider == &Zolv.Ratios.FinalDriveSlider || &slider == &Zolv.Speeds.FinalDriveSlider) return true;
    for (const Slider& ratio : Zolv.Ratios.InputSlider) {
        if (&slider == &ratio) return true;
    }
    return false;
}

}  // namespace zolv
