#include "vehicle/info_page.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "fields/all_windows.h"
#include "model/aero_model.h"
#include "model/tyre_geometry.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "units/unit_catalogue.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

/// A share in per cent. Only single precision makes 57.3 of the single that stands for 0.573.
std::string PercentText(double share) { return NumberText(static_cast<float>(share * 100)) + '%'; }

/// A peak of the engine: always whole, whatever the decimals of the unit elsewhere, and where it stands.
std::string PeakText(double value, const Quantity& quantity, float rpm) {
    return WithUnit(value * quantity.Factor, 0, quantity.Suffix) + " @ " + NumberText(rpm) + " rpm";
}

void ShowEngine(Showing which, const CarRecord& car) {
    Zolv.Info_Power.Write(which, PeakText(car.Power, units.Power, car.PowerRPM));
    Zolv.Info_Torque.Write(which, PeakText(car.Torque, units.Torque, car.TorqueRPM));
    if (car.DrivetrainType >= 0 && car.DrivetrainType < 3) {
        Zolv.Info_DT.Write(which, *DrivetrainNames()[static_cast<std::size_t>(car.DrivetrainType)]);
    }
    Zolv.Info_Gears.Write(which, NumberText(std::int32_t{car.NumGears}));
    Zolv.Info_Efficiency.Write(which, PercentText(car.Efficiency));
}

void ShowBody(Showing which, const CarRecord& car) {
    const double weightDist = car.WeightDist;
    Zolv.Info_Mass.Write(which, units.Mass.Text(car.Mass));
    Zolv.Info_Weight.Write(which, units.Force.Text(car.Mass * kGravity));
    Zolv.Info_WD.Write(which, PercentText(weightDist) + ' ' + texts.TextFront + " /\r\n" + PercentText(1 - weightDist) +
                                  ' ' + texts.TextRear);
    Zolv.Info_P2W.Write(
        which, WithUnit(PowerToWeight(units.P2W.Unit, car.Power, car.Mass), units.P2W.Decimals, units.P2W.Suffix));
    Zolv.Info_T2W.Write(which,
                        WithUnit((car.Torque * units.T2W.Factor) / car.Mass, units.T2W.Decimals, units.T2W.Suffix));
}

/// What the page shows of the wheels of one axle.
struct AxleLabels {
    Label &rim, &width, &profile, &height, &pressures, &track;
};

struct Axle {
    double rim_in, width_mm, profile;
    double radius;                    // of the tyre without load [m]
    double minPressure, maxPressure;  // [kPa]
    double track;                     // [m]
};

void ShowAxle(Showing which, const AxleLabels& labels, const Axle& axle) {
    labels.rim.Write(which, units.Distance.Text((axle.rim_in * 0.01) / kInchesPerCm));
    labels.width.Write(which, units.Distance.Text(axle.width_mm / 1000));
    labels.profile.Write(which, PercentText(axle.profile));
    labels.height.Write(which, units.Distance.Text(axle.radius * 2));
    labels.pressures.Write(which,
                           units.Pressure.NumberOf(axle.minPressure) + '-' + units.Pressure.Text(axle.maxPressure));
    labels.track.Write(which, units.Distance.Text(axle.track));
}

void ShowWheels(Showing which, const CarRecord& car, const TyreSizes& sizes) {
    ShowAxle(which, {Zolv.Info_RimF, Zolv.Info_TWF, Zolv.Info_TPF, Zolv.Info_THF, Zolv.Info_PRF, Zolv.Info_TrackF},
             {car.FWS, car.FTW, car.FTP, sizes.FrontUnloadedRadius, car.FMinPressure, car.FMaxPressure, car.FTrack});
    ShowAxle(which, {Zolv.Info_RimR, Zolv.Info_TWR, Zolv.Info_TPR, Zolv.Info_THR, Zolv.Info_PRR, Zolv.Info_TrackR},
             {static_cast<double>(car.RWS), car.RTW, car.RTP, sizes.RearUnloadedRadius, car.RMinPressure,
              static_cast<double>(car.RMaxPressure), car.RTrack});
    Zolv.Info_WB.Write(which, units.Distance.Text(car.Wheelbase));
}

/// Whether a file of the program's folder can have that name, on every platform.
bool CanNameFile(std::string_view name) {
    constexpr std::string_view kReserved = "/\\:*?\"<>|";
    return std::none_of(name.begin(), name.end(), [&](char c) {
        return static_cast<unsigned char>(c) < 0x20 || kReserved.find(c) != std::string_view::npos;
    });
}

}  // namespace

void ShowCarInfo() { ShowCarInfoOf(Showing::Present, vehicle.CurrentCar, vehicle.Tyres); }

void ShowCarInfoOf(Showing which, const CarRecord& car, const TyreSizes& sizes) {
    ShowEngine(which, car);
    ShowBody(which, car);
    ShowWheels(which, car, sizes);
}

void ShowCarPicture() {
    for (const std::string& name : {Zolv.Select_Car.Text(), std::string("unknown")}) {
        const std::string path = DataFile(name + ".jpg");
        if (!CanNameFile(name) || FileExists(path) == 0) continue;
        Zolv.Info_CarPic.SetPath(path);
        return;
    }
    ShowMessage("Unknown car picture is missing.");
}

}  // namespace zolv
