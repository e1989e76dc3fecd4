#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "model/car_record.h"
#include "model/catalogue.h"
#include "model/engine_curve.h"
#include "model/tyre_sheet.h"
#include "platform/hook.h"

namespace zolv {

inline constexpr int kMaxPresets = 10;

struct VehicleState {
    // The tables are stored field by field: the values of one field lie next to each other.
    std::array<float, kCarFields * kCars> CarData{};  // field f of car c is entry f * 19 + c
    std::array<std::string, kCars> CarName;
    std::array<float, kCarFields * kMaxPresets> CustomData{};  // field f of preset p is entry f * 10 + p
    std::array<std::string, kMaxPresets> CustomName;
    std::int16_t PresetsUsed = 0;

    // The car in use, with what follows from its record alone. Only SelectCar writes it.
    CarRecord CurrentCar;
    TyreSizes Tyres;
    EngineCurve Curve;

    /// The figures of a built-in car or a preset.
    [[nodiscard]] CarFigures FiguresOfCar(int car) const;
    [[nodiscard]] CarFigures FiguresOfPreset(int preset) const;
    void StorePreset(int preset, const std::string& name, const CarFigures& figures);

    /// Index by exact name, upper and lower case told apart; -1 if there is none.
    [[nodiscard]] int FindCar(const std::string& name) const;
    [[nodiscard]] int FindPreset(const std::string& name) const;  // among those in use

    /// The record of the built-in car of that name, or else of the preset; none where neither has it.
    [[nodiscard]] std::optional<CarRecord> RecordNamed(const std::string& name) const;
};
inline VehicleState vehicle;

/// What follows; shell/wiring says what that is.
struct VehicleFollowUps {
    Hook CarChanged;  // another car is in use; not raised during the load
};
inline VehicleFollowUps vehicleFollowUps;

}  // namespace zolv
