#include "tyres/tyres_page.h"

#include "aero/aero_state.h"
#include "fields/all_windows.h"
#include "fields/guards.h"
#include "model/tyre_sheet.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "tyres/tyre_drawings.h"
#include "tyres/tyre_figures.h"
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
    if (which == Showing::Present) Zolv.TWH.SetColour(tyre.WallHeight < kNoWallLeft ? kRed : kBlack);
    for (const TyreFigure& figure : TyreFigures()) figure.value->Write(which, figure.text(tyre));
}

}  // namespace

void AnalyseTyres() {
    const double pressureF = tyres.BlowTyresOn ? 0 : Zolv.Select_PressureF.Value();
    const double pressureR = tyres.BlowTyresOn ? 0 : Zolv.Select_PressureR.Value();
    tyres.Sheets = {.Front = AnalyseFront(pressureF), .Rear = AnalyseRear(pressureR)};
    ShowTyresOf(Showing::Present, tyres.Sheets, tyres.TyreMu);
    DrawTyres();
}

void ShowTyresOf(Showing which, const TyrePair& pair, float tyreMu) {
    const auto& [front, rear] = pair;
    ShowTyre(which, AnalysedOf(pair));
    Zolv.MU.Write(which, NumberText(tyreMu));
    Zolv.FRCPR.Write(which, RoundedText(PatchRatioOf(front, rear), 3));
    Zolv.Label_PressureF.Write(which, units.Pressure.Text(front.Pressure));
    Zolv.Label_PressureR.Write(which, units.Pressure.Text(rear.Pressure));
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
