#include "plots/speed_plot.h"

#include <array>
#include <cstddef>

#include "fields/all_windows.h"
#include "plots/plot_frame.h"
#include "plots/plotted.h"
#include "text/texts.h"
#include "text/words.h"
#include "units/option_state.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

struct Mark {
    bool on;
    double revs;
    Rgb colour;
    Role role;
    std::string_view name;
};

std::array<Mark, 3> MarksOf(const Plotted& setUp) {
    const CarRecord& car = setUp.car;
    const double powerRevs = car.PowerRPM;
    return {{{options.PowerLineOn, powerRevs, kGreen, Role::PeakPower, words["PeakPower"]},
             {options.TorqueLineOn, car.TorqueRPM, kBlue, Role::PeakTorque, words["PeakTorque"]},
             {options.RedlineOn, RulesOf(car, setUp.shifts).RevLimit(), kRed, Role::Limiter, words["Limiter"]}}};
}

/// Those of the held set-up where they are not the present ones.
void DrawMarks(Canvas& plot, const PlotFrame& frame, const Plotted& setUp, const Plotted& present) {
    const std::array<Mark, 3> marks = MarksOf(setUp);
    for (std::size_t i = 0; i < marks.size(); ++i) {
        const Mark& mark = marks[i];
        const bool same = setUp.standing == Standing::Held && mark.revs == MarksOf(present)[i].revs;
        if (!mark.on || same) continue;
        const Meaning meaning{mark.role, setUp.standing};
        plot.Line(meaning, kLeftMargin, frame.Y(mark.revs), kPlotWidth, frame.Y(mark.revs), mark.colour);
        AddNameOf(plot, meaning, std::string(mark.name));
    }
}

void DrawRay(Canvas& plot, const PlotFrame& frame, const Gearbox& box, std::size_t gear, Meaning meaning) {
    plot.Line(meaning, kLeftMargin, kPlotHeight, frame.X(box.GearSpeed[gear]), frame.Y(box.GearRevs[gear]));
}

void DrawRays(Canvas& plot, const PlotFrame& frame, const Plotted& setUp) {
    const auto meaning = [&](std::size_t gear) { return Meaning(GearRole(static_cast<int>(gear)), setUp.standing); };
    const std::size_t top = setUp.TopGear();
    DrawRay(plot, frame, *setUp.gears, 1, meaning(1));
    for (std::size_t gear = 2; gear <= top; ++gear) DrawRay(plot, frame, *setUp.gears, gear, meaning(gear));
    for (std::size_t gear = 1; gear <= top; ++gear) AddNameOf(plot, meaning(gear), texts.GearNames[gear]);
}

/// The first gear from standstill; then for each gear its rise from the change into it, and behind it the drop of that
/// change.
void DrawSawTooth(Canvas& plot, const PlotFrame& frame, const Plotted& setUp) {
    const Meaning sawTooth{Role::SawTooth, setUp.standing};
    const Gearbox& box = *setUp.gears;
    const std::size_t top = setUp.TopGear();
    const ByGear& speed = box.GearSpeed;
    const ByGear& revs = box.GearRevs;
    DrawRay(plot, frame, box, 1, sawTooth);
    for (std::size_t gear = 2; gear <= top; ++gear) {
        const double changeX = frame.X(speed[gear - 1]);
        const double changeY = frame.Y(box.RevsAfterChange[gear - 1]);
        plot.Line(sawTooth, changeX, changeY, frame.X(speed[gear]), frame.Y(revs[gear]));
        plot.Line(sawTooth, changeX, changeY, changeX, frame.Y(revs[gear - 1]));
    }
    AddNameOf(plot, sawTooth, words["ThroughTheGears"]);
}

}  // namespace

void DrawSpeedPlot() {
    const PlottedSetUps setUps = GearedSetUps();
    const double fastest = setUps.Largest([](const Plotted& setUp) { return setUp.gears->GearSpeed[setUp.TopGear()]; });
    const double highest = setUps.Largest([](const Plotted& setUp) { return setUp.car.PowerRPM * 1.3; });
    const PlotFrame frame{.sx = (kPlotWidth - kCurveReserve) / fastest, .sy = kPlotHeight / highest};
    Canvas& plot = Zolv.SpeedPlot.Draw();
    DrawGrid(plot, frame, {texts.TextColSpeed, options.SpeedPlotXScale, units.Speed.Factor, units.Speed.Suffix},
             {.title = words["EngineSpeed"], .step = options.SpeedPlotYScale, .suffix = texts.RpmSuffix});
    setUps.ForEach([&](const Plotted& setUp) { DrawMarks(plot, frame, setUp, setUps.Present()); });

    plot.SetLineWidth(3);
    const bool sawTooth = options.AltGraphStyle.value_or(false);
    setUps.ForEach([&](const Plotted& setUp) { (sawTooth ? DrawSawTooth : DrawRays)(plot, frame, setUp); });
    setUps.AddLegend(plot, sawTooth ? Role::SawTooth : Role::Gear1);
}

}  // namespace zolv
