#include "model/car_record.h"

#include "model/whole_number.h"

namespace zolv {

CarRecord RecordOf(const CarFigures& figures) {
    const auto single = [&](CarField field) { return figures[static_cast<std::size_t>(field)]; };
    const auto int16 = [&](CarField field) { return ToInt16(static_cast<double>(single(field))); };
    const auto int32 = [&](CarField field) { return ToInt32(static_cast<double>(single(field))); };

    return {
        .Power = single(CarField::Power),
        .PowerRPM = single(CarField::PowerRPM),
        .Torque = single(CarField::Torque),
        .TorqueRPM = single(CarField::TorqueRPM),
        .IdleRPM = int32(CarField::IdleRPM),
        .DrivetrainType = int16(CarField::DrivetrainType),
        .NumGears = int16(CarField::NumGears),
        .Mass = int32(CarField::Mass),
        .WeightDist = single(CarField::WeightDist),
        .Cd = single(CarField::Cd),
        .FTW = single(CarField::FTW),
        .FTP = single(CarField::FTP),
        .FWS = single(CarField::FWS),
        .FTrack = single(CarField::FTrack),
        .RTW = single(CarField::RTW),
        .RTP = single(CarField::RTP),
        .RWS = int16(CarField::RWS),
        .RTrack = single(CarField::RTrack),
        .Wheelbase = single(CarField::Wheelbase),
        .UnsprungMass = single(CarField::UnsprungMass),
        .Efficiency = single(CarField::Efficiency),
        .Reverse = single(CarField::Reverse),
        .FrontalArea = single(CarField::FrontalArea),
        .Cl = single(CarField::Cl),
        .FMinPressure = single(CarField::FMinPressure),
        .FMaxPressure = single(CarField::FMaxPressure),
        .RMinPressure = single(CarField::RMinPressure),
        .RMaxPressure = int16(CarField::RMaxPressure),
        .UndertrayType = int16(CarField::UndertrayType),
        .FrontWingType = int16(CarField::FrontWingType),
        .RearWingType = int16(CarField::RearWingType),
    };
}

}  // namespace zolv
