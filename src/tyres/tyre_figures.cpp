#include "tyres/tyre_figures.h"

#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "text/number_text.h"
#include "units/unit_state.h"

namespace zolv {

const TyreSheet& AnalysedOf(const TyrePair& pair) { return Zolv.FrontTyreAnal.Checked() ? pair.Front : pair.Rear; }

std::span<const TyreFigure> TyreFigures() {
    static const TyreFigure figures[] = {
        {kTyrePatchWidth, &Zolv.CPW, [](const TyreSheet& tyre) { return units.Distance.Text(tyre.PatchWidth); }},
        {kTyrePatchLength, &Zolv.CPL, [](const TyreSheet& tyre) { return units.Distance.Text(tyre.PatchLength); }},
        {kTyrePatchArea, &Zolv.CPA, [](const TyreSheet& tyre) { return units.Area.Text(tyre.PatchArea); }},
        {kTyrePatchAspect, &Zolv.CPAR, [](const TyreSheet& tyre) { return WithUnit(tyre.AspectRatio, 2, " : 1"); }},
        {kTyreStiffness, &Zolv.TS, [](const TyreSheet& tyre) { return units.Stiffness.Text(tyre.Stiffness); }},
        {kTyreFrequency, &Zolv.TF, [](const TyreSheet& tyre) { return WithUnit(tyre.Frequency, 2, " Hz"); }},
        {kTyreUnloadedRadius, &Zolv.UTR,
         [](const TyreSheet& tyre) { return units.Distance.Text(tyre.UnloadedRadius); }},
        {kTyreDeformation, &Zolv.TD, [](const TyreSheet& tyre) { return units.Distance.Text(tyre.Deformation); }},
        {kTyreRollingRadius, &Zolv.TRRC,
         [](const TyreSheet& tyre) {
             return units.Distance.Text(tyre.RollingRadius) + " / " + units.Distance.Text(tyre.Circumference);
         }},
        {kTyreWallHeight, &Zolv.TWH, [](const TyreSheet& tyre) { return units.Distance.Text(tyre.WallHeight); }},
    };
    return figures;
}

std::string FinerTyreText(Showing which, const Label& field) {
    constexpr double kMillimetres = 1000;
    constexpr double kSquareCentimetres = 10000;
    if (which == Showing::Held && !tyres.HeldSheets) return {};
    const TyreSheet& tyre = AnalysedOf(which == Showing::Present ? tyres.Sheets : *tyres.HeldSheets);
    if (&field == &Zolv.CPA) {
        return units.Area.Unit == 0 ? WithUnit(tyre.PatchArea * kSquareCentimetres, 0, " cm^2") : std::string();
    }
    if (units.Distance.Unit != 0) return {};
    const auto text = [](double metres) { return WithUnit(metres * kMillimetres, 0, " mm"); };
    if (&field == &Zolv.TRRC) return text(tyre.RollingRadius) + " / " + text(tyre.Circumference);
    if (&field == &Zolv.CPW) return text(tyre.PatchWidth);
    if (&field == &Zolv.CPL) return text(tyre.PatchLength);
    if (&field == &Zolv.UTR) return text(tyre.UnloadedRadius);
    return text(&field == &Zolv.TD ? tyre.Deformation : tyre.WallHeight);
}

}  // namespace zolv
