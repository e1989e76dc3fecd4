#include "vehicle/vehicle_state.h"

namespace zolv {

namespace {

template <std::size_t Size>
CarFigures Column(const std::array<float, Size>& table, std::size_t column) {
    constexpr std::size_t kColumns = Size / kCarFields;
    CarFigures figures{};
    for (std::size_t field = 0; field < kCarFields; ++field) figures[field] = table[field * kColumns + column];
    return figures;
}

template <std::size_t Size>
int IndexOf(const std::array<std::string, Size>& names, const std::string& name, int used) {
    for (int i = 0; i < used; ++i) {
        if (names[static_cast<std::size_t>(i)] == name) return i;
    }
    return -1;
}

}  // namespace

CarFigures VehicleState::FiguresOfCar(int car) const { return Column(CarData, static_cast<std::size_t>(car)); }

CarFigures VehicleState::FiguresOfPreset(int preset) const {
    return Column(CustomData, static_cast<std::size_t>(preset));
}

void VehicleState::StorePreset(int preset, const std::string& name, const CarFigures& figures) {
    const auto column = static_cast<std::size_t>(preset);
    CustomName[column] = name;
    for (std::size_t field = 0; field < kCarFields; ++field) {
        CustomData[field * kMaxPresets + column] = figures[field];
    }
}

int VehicleState::FindCar(const std::string& name) const { return IndexOf(CarName, name, static_cast<int>(kCars)); }

int VehicleState::FindPreset(const std::string& name) const { return IndexOf(CustomName, name, PresetsUsed); }

std::optional<CarRecord> VehicleState::RecordNamed(const std::string& name) const {
    if (const int car = FindCar(name); car >= 0) return RecordOf(FiguresOfCar(car));
    if (const int preset = FindPreset(name); preset >= 0) return RecordOf(FiguresOfPreset(preset));
    return std::nullopt;
}

}  // namespace zolv
