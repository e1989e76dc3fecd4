#include "tyres/tyres_page.h"

#include "aero/aero_state.h"
#include "fields/all_windows.h"
#include "fields/guards.h"
#include "model/tyre_sheet.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "tyres/tyre_drawings.h"
#include "tyres/tyre_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

TyreSheet AnalyseFront(double pressure) {
    const TyreSheet tyre = FrontTyre(vehicle.CurrentCar, vehicle.Tyres, pressure, aero.FrontWheelForce);
    tyres.FrontTyreStiffness = tyre.Stiffness;
    tyres.FrontDeformation = tyre.Deformation;
    tyres.FrontPatchLength = tyre.PatchLength;
    tyres.FrontPatchWidth = static_cast<float>(tyre.PatchWidth);
    return tyre;
}

TyreSheet AnalyseRear(double pressure) {
    const TyreSheet tyre = RearTyre(vehicle.CurrentCar, vehicle.Tyres, pressure, aero.RearWheelForce);
    tyres.RearTyreStiffness = static_cast<float>(tyre.Stiffness);
    tyres.RearDeformation = static_cast<float>(tyre.Deformation);
    tyres.RearPatchLength = static_cast<float>(tyre.PatchLength);
    tyres.RearPatchWidth = static_cast<float>(tyre.PatchWidth);
    return tyre;
}

void ShowTyre(Showing which, const TyreSheet& tyre) {
    constexpr double kNoWallLeft = 0.0001;  // [m]; told in metres, whatever unit rounds it to zero
    if (which == Showing::Present) {
        tyres.Shown = tyre;
    } else {
        tyres.HeldShown = tyre;
    }
    if (which == Showing::Present) Zolv.TWH.SetColour(tyre.WallHeight < kNoWallLeft ? kRed : kBlack);
    Zolv.CPW.Write(which, units.Distance.Text(tyre.PatchWidth));
    Zolv.CPL.Write(which, units.Distance.Text(tyre.PatchLength));
    Zolv.UTR.Write(which, units.Distance.Text(tyre.UnloadedRadius));
    Zolv.TD.Write(which, units.Distance.Text(tyre.Deformation));
    Zolv.TRRC.Write(which, units.Distance.Text(tyre.RollingRadius) + " / " + units.Distance.Text(tyre.Circumference));
    Zolv.TWH.Write(which, units.Distance.Text(tyre.WallHeight));
    Zolv.CPA.Write(which, units.Area.Text(tyre.PatchArea));
    Zolv.CPAR.Write(which, WithUnit(tyre.AspectRatio, 2, " : 1"));
    Zolv.TS.Write(which, units.Stiffness.Text(tyre.Stiffness));
    Zolv.TF.Write(which, WithUnit(tyre.Frequency, 2, " Hz"));
}

}  // namespace

void AnalyseTyres() {
    const double pressureF = tyres.BlowTyresOn ? 0 : Zolv.Select_PressureF.Value();
    const double pressureR = tyres.BlowTyresOn ? 0 : Zolv.Select_PressureR.Value();
    const TyreSheet front = AnalyseFront(pressureF);
    const TyreSheet rear = AnalyseRear(pressureR);

    ShowTyresOf(Showing::Present, front, rear, tyres.TyreMu);
    DrawTyres();
}

void ShowTyresOf(Showing which, const TyreSheet& front, const TyreSheet& rear, float tyreMu) {
    ShowTyre(which, Zolv.FrontTyreAnal.Checked() ? front : rear);
    Zolv.MU.Write(which, NumberText(tyreMu));
    Zolv.FRCPR.Write(which, RoundedText(front.PatchArea / rear.PatchArea, 3));
    Zolv.Label_PressureF.Write(which, units.Pressure.Text(front.Pressure));
    Zolv.Label_PressureR.Write(which, units.Pressure.Text(rear.Pressure));
}

std::string FinerTyreText(Showing which, const Label& field) {
    constexpr double kMillimetres = 1000;
    constexpr double kSquareCentimetres = 10000;
    if (which == Showing::Held && !tyres.HeldShown) return {};
    const TyreSheet& tyre = which == Showing::Present ? tyres.Shown : *tyres.HeldShown;
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

void PickTyreType() {
    {
        const Raised copying(tyres.CopyingTyreType);
        Zolv.Select_Tyres2.SetText(Zolv.Select_Tyres.Text());
    }
    if (guards.Loading) return;
    for (std::size_t type = 0; type < texts.TyreTypeNames.size(); ++type) {
        if (Zolv.Select_Tyres.Text() == texts.TyreTypeNames[type]) tyres.TyreMu = tyres.TyreTypeMu[type];
    }
    tyreFollowUps.TyreTypeTaken();
}

void PickTyreTypeOnGearingPage() {
    if (!tyres.CopyingTyreType) Zolv.Select_Tyres.SetText(Zolv.Select_Tyres2.Text());
}

void FillTyreLists() {
    for (PickList* list : {&Zolv.Select_Tyres, &Zolv.Select_Tyres2}) {
        list->Clear();
        for (const std::string& name : texts.TyreTypeNames) list->Add(name);
    }
}

}  // namespace zolv
