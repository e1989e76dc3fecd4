#include "gearing/acceleration_page.h"

#include <array>
#include <cmath>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "aero/aero_state.h"
#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "gearing/gearing_state.h"
#include "model/acceleration_run.h"
#include "model/acceleration_targets.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

std::span<const AccelRow> PresentRun() {
    return std::span(gearing.AccelRows).first(static_cast<std::size_t>(gearing.AccelLastRow) + 1);
}

/// How one column of the table is written.
struct ColumnText {
    AccelColumn column;
    double factor;
    int decimals;
    std::string_view suffix;
    char separator;
};

std::size_t LongestText(const ColumnText& text) { return kRoundedTextSize + text.suffix.size() + 1; }

/// @return the end of what was written
char* WriteNumber(char* out, double value, const ColumnText& text) {
    out = WriteRounded(out, value, text.decimals);
    if (std::isfinite(value)) out += text.suffix.copy(out, text.suffix.size());  // "N/A" stands without a suffix
    *out++ = text.separator;
    return out;
}

/// Ten values in nine titled columns: the two loads stand under the last title. Distance is kept but not shown. Row 0
/// reads 0s though it holds the state after the first step.
void ShowTable() {
    const Quantity& force = units.Force;
    const ColumnText time{{}, kTimeStep, 2, "s", '\t'};
    const std::array<ColumnText, 9> columns{{
        {AccelColumn::Speed, units.Speed.Factor, units.Speed.Decimals, units.Speed.Suffix, '\t'},
        {AccelColumn::Revs, 1, 0, texts.RpmSuffix, '\t'},
        {AccelColumn::Gear, 1, 0, "", '\t'},
        {AccelColumn::DrivingForce, force.Factor, force.Decimals, force.Suffix, '\t'},
        {AccelColumn::Resistance, force.Factor, force.Decimals, force.Suffix, '\t'},
        {AccelColumn::NetForce, force.Factor, force.Decimals, force.Suffix, '\t'},
        {AccelColumn::Acceleration, units.Acc.Factor, units.Acc.Decimals, units.Acc.Suffix, '\t'},
        {AccelColumn::FrontLoad, force.Factor, force.Decimals, force.Suffix, '\t'},
        {AccelColumn::RearLoad, force.Factor, force.Decimals, force.Suffix, '\r'},
    }};

    // A row is written in one place and added at once, which takes three quarters of the time of adding its numbers.
    std::size_t longestRow = LongestText(time) + 1;
    for (const ColumnText& text : columns) longestRow += LongestText(text);
    std::string line(longestRow, ' ');
    std::string table = texts.TextColTime + '\t' + texts.TextColSpeed + '\t' + texts.TextColEngineRpm + '\t' +
                        texts.TextColGear + '\t' + texts.TextColDrivingForce + '\t' + texts.TextColResistance + '\t' +
                        texts.TextColNetForce + '\t' + texts.TextColAcceleration + '\t' + texts.TextColWheelLoads +
                        "\r\n";
    for (int row = 0; row <= gearing.AccelLastRow; ++row) {
        const AccelRow& values = gearing.AccelRows[static_cast<std::size_t>(row)];
        char* end = WriteNumber(line.data(), row * time.factor, time);
        for (const ColumnText& text : columns) end = WriteNumber(end, values[text.column] * text.factor, text);
        *end++ = '\n';
        table.append(line.data(), end);
    }

    // A rewrite leaves the reader where he was.
    const std::size_t caret = Zolv.AccelerationData.Caret();
    Zolv.AccelerationData.SetText(std::move(table));
    Zolv.AccelerationData.SetCaret(caret);
}

void ShowTargetNames() {
    const AccelTargets& targets = PresentTargets();
    for (std::size_t k = 0; k < targets.Speeds.size(); ++k) {
        Zolv.GearingLabel[kGearingSpeedTime + static_cast<int>(k)].SetCaption(
            "0-" + units.Speed.Text(targets.Speeds[k]) + ':');
    }
    // Metres are named by their number, the others by their own names.
    const auto metres = [&](std::size_t k) { return "0-" + RoundedText(targets.Distances[k], 0) + "m:"; };
    const std::array<std::array<std::string, 2>, 5> names{{{metres(0), metres(1)},
                                                           {metres(0), metres(1)},
                                                           {"Quarter mile ET:", "Mile ET:"},
                                                           {"\u00BC nautical mile ET:", "Nautical mile ET:"},
                                                           {"0-1000 feet:", "0-1000 fathoms:"}}};
    const auto& named = names[static_cast<std::size_t>(units.Speed.Unit)];
    Zolv.GearingLabel[kGearingDistanceTime].SetCaption(named[0]);
    Zolv.GearingLabel[kGearingDistanceTime + 1].SetCaption(named[1]);
}

}  // namespace

void RunAcceleration() {
    // A car that stands shows the run before in its second row.
    const AccelRow second = gearing.AccelRows[1];
    gearing.LastRun = PresentAccelerationSetup();
    const AccelerationResult run = Accelerate(gearing.LastRun, gearing.AccelRows, second);
    gearing.AccelLastRow = static_cast<std::int16_t>(run.LastRow);
    aero.FrontWheelForce = run.FrontLoad;
    aero.RearWheelForce = run.RearLoad;

    ShowTable();
    ShowTargetNames();
    ShowRunOf(Showing::Present, ResultsOf(PresentRun(), PresentTargets()), run.Speed);
    const bool ranOutOfRows = gearing.AccelLastRow == kAccelRows - 1;  // the car was still gaining
    Zolv.AccDataLabel[kAccEndSpeed].SetColour(ranOutOfRows ? kBlue : kBlack);
}

void ShowRunOf(Showing which, const AccelResults& results, double endSpeed) {
    for (int k = 0; k < 5; ++k) {
        const float time = results.SpeedTimes[static_cast<std::size_t>(k)];
        // The first target alone has no "N/A".
        Zolv.AccDataLabel[kAccSpeedTime + k].Write(which, time == 0 && k > 0 ? "N/A" : WithUnit(time, 2, "s"));
    }
    Zolv.AccDataLabel[kAccEndSpeed].Write(which, units.Speed.Text(endSpeed));
    for (int k = 0; k < 2; ++k) {
        const auto i = static_cast<std::size_t>(k);
        Zolv.AccDataLabel[kAccDistanceTime + 2 * k].Write(which, WithUnit(results.DistanceTimes[i], 1, "s"));
        Zolv.AccDataLabel[kAccDistanceSpeed + 2 * k].Write(which, "@ " + units.Speed.Text(results.DistanceSpeeds[i]));
    }
}

}  // namespace zolv
