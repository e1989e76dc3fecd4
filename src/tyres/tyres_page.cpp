#include "tyres/tyres_page.h"

#include "aero/aero_state.h"
#include "fields/guards.h"
#include "fields/windows.h"
#include "model/tyre_geometry.h"
#include "model/tyre_model.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "tyres/tyre_drawings.h"
#include "tyres/tyre_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

/// What the page shows of one tyre, in base units.
struct TyreFigures {
    double patchWidth, patchLength, patchArea, aspectRatio;
    double unloadedRadius, deformation, rollingRadius, circumference, wallHeight;
    double stiffness, frequency;
};

TyreFigures AnalyseFront(double pressure) {
    const CarRecord& car = vehicle.CurrentCar;
    tyres.FrontTyreStiffness = TyreStiffness(pressure);
    tyres.FrontDeformation =
        TyreDeformation(aero.FrontWheelForce, tyres.FrontTyreStiffness, vehicle.FrontMaxDeformation);
    const double radius = vehicle.FrontUnloadedRadius - tyres.FrontDeformation;
    tyres.FrontPatchLength = PatchLength(vehicle.FrontUnloadedRadius, radius);
    tyres.FrontPatchWidth = static_cast<float>(car.FTW / 1000.0);
    return {.patchWidth = tyres.FrontPatchWidth,
            .patchLength = tyres.FrontPatchLength,
            .patchArea = tyres.FrontPatchLength * tyres.FrontPatchWidth,
            .aspectRatio = tyres.FrontPatchWidth / tyres.FrontPatchLength,
            .unloadedRadius = vehicle.FrontUnloadedRadius,
            .deformation = tyres.FrontDeformation,
            .rollingRadius = radius,
            .circumference = radius * 2 * kPi,
            .wallHeight = radius - RimRadius(car.FWS),
            .stiffness = tyres.FrontTyreStiffness,
            .frequency = TyreFrequency(car.Mass * 0.5 * car.WeightDist, tyres.FrontTyreStiffness)};
}

TyreFigures AnalyseRear(double pressure) {
    const CarRecord& car = vehicle.CurrentCar;
    tyres.RearTyreStiffness = static_cast<float>(TyreStiffness(pressure));
    tyres.RearDeformation =
        static_cast<float>(TyreDeformation(aero.RearWheelForce, tyres.RearTyreStiffness, vehicle.RearMaxDeformation));
    const auto radius = static_cast<float>(static_cast<double>(vehicle.RearUnloadedRadius) - tyres.RearDeformation);
    tyres.RearPatchLength = static_cast<float>(PatchLength(vehicle.RearUnloadedRadius, radius));
    tyres.RearPatchWidth = static_cast<float>(car.RTW / 1000.0);
    const double length = tyres.RearPatchLength;
    const double width = tyres.RearPatchWidth;
    const double share = 1 - static_cast<double>(car.WeightDist);
    return {.patchWidth = width,
            .patchLength = length,
            .patchArea = static_cast<float>(length * width),
            .aspectRatio = static_cast<float>(width / length),
            .unloadedRadius = vehicle.RearUnloadedRadius,
            .deformation = tyres.RearDeformation,
            .rollingRadius = radius,
            .circumference = static_cast<double>(radius) * 2 * kPi,
            .wallHeight = radius - RimRadius(car.RWS),
            .stiffness = tyres.RearTyreStiffness,
            .frequency = TyreFrequency(share * (car.Mass * 0.5), tyres.RearTyreStiffness)};
}

void ShowTyre(const TyreFigures& tyre) {
    constexpr double kNoWallLeft = 0.0001;  // [m]; told in metres, whatever unit rounds it to zero
    Zolv.TWH.SetColour(tyre.wallHeight < kNoWallLeft ? kRed : kBlack);
    Zolv.CPW.SetCaption(units.Distance.Text(tyre.patchWidth));
    Zolv.CPL.SetCaption(units.Distance.Text(tyre.patchLength));
    Zolv.UTR.SetCaption(units.Distance.Text(tyre.unloadedRadius));
    Zolv.TD.SetCaption(units.Distance.Text(tyre.deformation));
    Zolv.TRRC.SetCaption(units.Distance.Text(tyre.rollingRadius) + " / " + units.Distance.Text(tyre.circumference));
    Zolv.TWH.SetCaption(units.Distance.Text(tyre.wallHeight));
    Zolv.CPA.SetCaption(units.Area.Text(tyre.patchArea));
    Zolv.CPAR.SetCaption(WithUnit(tyre.aspectRatio, 2, " : 1"));
    Zolv.TS.SetCaption(units.Stiffness.Text(tyre.stiffness));
    Zolv.TF.SetCaption(WithUnit(tyre.frequency, 2, " Hz"));
}

}  // namespace

void AnalyseTyres() {
    const double pressureF = tyres.BlowTyresOn ? 0 : Zolv.Select_PressureF.Value();
    const double pressureR = tyres.BlowTyresOn ? 0 : Zolv.Select_PressureR.Value();
    const TyreFigures front = AnalyseFront(pressureF);
    const TyreFigures rear = AnalyseRear(pressureR);

    ShowTyre(Zolv.FrontTyreAnal.Checked() ? front : rear);
    Zolv.MU.SetCaption(NumberText(tyres.TyreMu));
    Zolv.FRCPR.SetCaption(RoundedText(front.patchArea / rear.patchArea, 3));
    Zolv.Label_PressureF.SetCaption(units.Pressure.Text(pressureF));
    Zolv.Label_PressureR.SetCaption(units.Pressure.Text(pressureR));
    DrawTyres();
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
    tyres.TyreTypeTaken();
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
