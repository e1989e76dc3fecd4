#include "gearing/run_log_page.h"

#include <cmath>
#include <utility>

#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "gearing/gearing_state.h"
#include "gearing/run_columns.h"
#include "model/shift_advice.h"
#include "text/caption_name.h"
#include "text/number_text.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/option_state.h"
#include "units/unit_constants.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

enum Cell : std::size_t { kTime, kDistance, kSpeed, kEvent, kBefore, kAfter, kRemark };

std::string Revs(double revs) { return WithUnit(revs, 0, texts.RpmSuffix); }

std::string TargetName(int label) { return CaptionName(Zolv.GearingLabel[label].Caption()); }

/// Where the next gear would have begun to pull harder, and how far from there the driver changed up.
std::string RemarkOnChange(const RunEvent& change) {
    const std::string& next = GearName(change.Gear + 1);
    if (!change.Crossing) return words.Sentence("LogNeverHarder", {next});
    const std::string from = units.Speed.Text(*change.Crossing);
    const double late = change.Speed - *change.Crossing;
    const std::string away = units.Speed.Text(std::fabs(late));
    if (away == units.Speed.Text(0)) return words.Sentence("LogPullsHarder", {next, from});
    return late > 0 ? words.Sentence("LogPullsHarderLate", {next, from, away})
                    : words.Sentence("LogPullsHarderEarly", {next, from, away});
}

const std::string& EndOf(RunEnd why) {
    switch (why) {
        case RunEnd::GainsNoMore: return words["LogEndNoGain"];
        case RunEnd::TimeIsOver: return words["LogEndTime"];
        default: return words["DoesNotMoveOff"];
    }
}

void DescribeChange(LogLine& line, const RunEvent& change) {
    line[kEvent] = words.Sentence("LogChangeUp", {GearName(change.Gear), GearName(change.Gear + 1)});
    line[kBefore] = Revs(change.Before);
    line[kAfter] = Revs(change.After);
    line[kRemark] = RemarkOnChange(change);
}

LogLine LineOf(const RunEvent& event) {
    using Kind = RunEvent::Kind;
    LogLine line{WithUnit(event.Time, 2, "s"), RunDistance(event.Distance), units.Speed.Text(event.Speed)};
    const int target = static_cast<int>(event.Target);
    switch (event.What) {
        case Kind::ClutchCloses: line[kEvent] = words["LogClutchCloses"]; break;
        case Kind::LargestAcceleration:
            line[kEvent] = words["LogLargestAcceleration"];
            line[kRemark] = units.Acc.Text(event.Acceleration);
            break;
        case Kind::GripLeft: line[kEvent] = words["LogGripLeft"]; break;
        case Kind::ChangesUp: DescribeChange(line, event); break;
        case Kind::SpeedTarget: line[kEvent] = TargetName(kGearingSpeedTime + target); break;
        case Kind::DistanceTarget: line[kEvent] = TargetName(kGearingDistanceTime + target); break;
        case Kind::Ends: line[kEvent] = EndOf(event.Why); break;
    }
    return line;
}

std::string AdviceOf(double loss) {
    if (!(Round(loss, 2) > 0)) return {};
    return words.Sentence("ShiftAdviceLoses", {WithUnit(loss, 2, " s"), TargetName(kGearingDistanceTime + 1)});
}

}  // namespace

std::string RunDistance(double metres) {
    struct DistanceUnit {
        double factor;
        std::string_view suffix;
    };
    constexpr DistanceUnit kMetres{1, " m"};
    constexpr DistanceUnit kFeet{kFeetPerMetre, " ft"};
    constexpr std::array<DistanceUnit, 5> kBySpeedUnit{kMetres, kMetres, kFeet, kMetres, kFeet};
    const DistanceUnit& unit = kBySpeedUnit[static_cast<std::size_t>(units.Speed.Unit)];
    return WithUnit(metres * unit.factor, 1, unit.suffix);
}

LogLine LogTitles() {
    return {texts.TextColTime,
            words["LogDistance"],
            texts.TextColSpeed,
            words["LogEvent"],
            Zolv.GearingLabel[kGearingBefore].Caption(),
            Zolv.GearingLabel[kGearingAfter].Caption(),
            words["LogRemark"]};
}

std::vector<LogLine> LogLines() {
    if (!options.AccelerationOn || gearing.AccelLastRow < 0) return {};
    std::vector<LogLine> lines;
    if (gearing.LastRun.Curve.CurveFitFailed) {
        lines.emplace_back();
        lines.back()[kEvent] = words["LogCurveNotFitted"];
    }
    for (const RunEvent& event : LogOf(gearing.LastRun, PresentTargets())) lines.push_back(LineOf(event));
    return lines;
}

void ShowRunLog() {
    std::string log;
    for (const LogLine& line : LogLines()) {
        for (std::size_t cell = 0; cell < kLogCells; ++cell) log += line[cell] + (cell + 1 < kLogCells ? "\t" : "\r\n");
    }
    Zolv.RunLog.SetText(std::move(log));
}

void ShowShiftAdvice() {
    const bool runs = options.AccelerationOn && gearing.AccelLastRow >= 0 && gearing.WrongOrder.empty();
    const std::optional<double> loss = runs ? LossOfShiftPoints(gearing.LastRun) : std::nullopt;
    Zolv.ShiftAdvice.SetCaption(loss ? AdviceOf(*loss) : std::string());
}

}  // namespace zolv
