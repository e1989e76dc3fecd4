#include "gearing/run_columns.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "drawing/document.h"
#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "gearing/gearing_state.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "text/caption_name.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

std::string UnitOf(std::string_view suffix) {
    const std::size_t first = suffix.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string() : std::string(suffix.substr(first));
}

const AccelRow& RowAt(int row) { return gearing.AccelRows[static_cast<std::size_t>(row)]; }

/// What a column holds: a quantity in the user's unit, or a whole number. The time, which no row has, is the first.
struct ColumnContent {
    AccelColumn column = {};
    Quantity UnitState::*quantity = nullptr;
};
constexpr int kTime = 0;
constexpr std::array<ColumnContent, 10> kContents{{
    {},
    {AccelColumn::Speed, &UnitState::Speed},
    {AccelColumn::Revs},
    {AccelColumn::Gear},
    {AccelColumn::DrivingForce, &UnitState::Force},
    {AccelColumn::Resistance, &UnitState::Force},
    {AccelColumn::NetForce, &UnitState::Force},
    {AccelColumn::Acceleration, &UnitState::Acc},
    {AccelColumn::FrontLoad, &UnitState::Force},
    {AccelColumn::RearLoad, &UnitState::Force},
}};

}  // namespace

std::vector<RunColumn> RunColumns() {
    const std::string speed = UnitOf(units.Speed.Suffix);
    const std::string force = UnitOf(units.Force.Suffix);
    return {{texts.TextColTime, "s"},
            {texts.TextColSpeed, speed},
            {texts.TextColEngineRpm, UnitOf(texts.RpmSuffix)},
            {texts.TextColGear, ""},
            {texts.TextColDrivingForce, force},
            {texts.TextColResistance, force},
            {texts.TextColNetForce, force},
            {texts.TextColAcceleration, UnitOf(units.Acc.Suffix)},
            {CaptionName(Zolv.AeroLabel[kAeroFrontWheels].Caption()), force},
            {CaptionName(Zolv.AeroLabel[kAeroRearWheels].Caption()), force}};
}

int RowsOfRun() { return gearing.AccelLastRow + 1; }

std::string RunNumber(int row, int column) {
    constexpr int kTimeDecimals = 2;
    if (column == kTime) return RoundedText(row * kTimeStep, kTimeDecimals);
    const ColumnContent& content = kContents[static_cast<std::size_t>(column)];
    const double value = RowAt(row)[content.column];
    return content.quantity == nullptr ? RoundedText(value, 0) : (units.*content.quantity).NumberOf(value);
}

int GearOfRow(int row) { return static_cast<int>(RowAt(row)[AccelColumn::Gear]); }

bool IsGearChange(int row) { return row > 0 && GearOfRow(row) != GearOfRow(row - 1); }

std::string RunAsCsv() {
    const std::vector<RunColumn> columns = RunColumns();
    std::string csv;
    const auto end = [&](std::size_t column) { csv += column + 1 < columns.size() ? "," : "\r\n"; };
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto& [title, unit] = columns[i];
        csv += CsvCell(unit.empty() ? title : title + " [" + unit + ']');
        end(i);
    }
    for (int row = 0; row < RowsOfRun(); ++row) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            csv += RunNumber(row, static_cast<int>(i));
            end(i);
        }
    }
    return csv;
}

void ExportRun(const std::string& title) {
    const FileRequest request{.forSaving = true,
                              .title = title,
                              .filterLabel = "CSV (*.csv)",
                              .presetName = "*.csv",
                              .defaultExtension = "csv",
                              .proposedName = Zolv.Select_Car.Text()};
    const std::string path = AskForFile(request);
    if (path.empty() || path == request.presetName) return;
    const std::string reason = WriteTextFile(path, RunAsCsv());
    if (!reason.empty()) ShowMessage(CannotWrite(path, reason));
}

}  // namespace zolv
