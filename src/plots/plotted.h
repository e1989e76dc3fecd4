#pragma once

#include <algorithm>
#include <optional>
#include <span>
#include <string>

#include "drawing/canvas.h"
#include "fields/kinds.h"
#include "model/acceleration_run.h"
#include "model/car_record.h"
#include "model/gearbox.h"
#include "model/tyre_sheet.h"

/// What the plots draw: the present set-up, and behind it the held one.
namespace zolv {

/// A set-up as a plot takes it.
struct Plotted {
    const CarRecord& car;
    const TyreSizes& tyres;
    const EngineCurve& curve;
    const Gearbox* gears;           // nullptr where the order of the held gears is wrong
    std::span<const AccelRow> run;  // from its first row to its last
    double frontLoad = 0;           // [N] on the front axle at the end of the run
    double rearLoad = 0;
    ShiftOptions shifts;
    Standing standing = Standing::Present;

    /// The top gear as an index that every array of gears has.
    [[nodiscard]] std::size_t TopGear() const;

    /// That of what is drawn from the engine's curve.
    [[nodiscard]] Standing CurveStanding() const {
        return standing == Standing::Present && curve.CurveFitFailed ? Standing::Doubtful : standing;
    }
};

class PlottedSetUps {
public:
    PlottedSetUps();

    const Plotted& Present() const { return present_; }
    const std::optional<Plotted>& Held() const { return held_; }

    /// The larger of what the two need of a plot, so that one scale fits both.
    template <class Extent>
    double Largest(Extent extent) const {
        const double present = extent(present_);
        return held_ ? std::max(present, static_cast<double>(extent(*held_))) : present;
    }

    /// The held one first, so that the present one lies above it.
    template <class Draw>
    void ForEach(Draw draw) const {
        if (held_) draw(*held_);
        draw(present_);
    }

    /// Takes the held one away where it has nothing that this plot could draw.
    void DropHeld() { held_.reset(); }

    /// Says which of the two is which, where there are two.
    /// @param role  of one of their curves
    void AddLegend(Canvas& plot, Role role) const;

private:
    Plotted present_;
    std::optional<Plotted> held_;
};

/// The same for plots of the gears: without the held one where its gears are in the wrong order.
[[nodiscard]] PlottedSetUps GearedSetUps();

/// A curve's name as one of the present or of the held set-up.
[[nodiscard]] std::string NameIn(Standing standing, const std::string& name);

/// Names a curve or mark of a set-up: that of the held one as held.
void AddNameOf(Canvas& plot, Meaning meaning, const std::string& name, const std::string& unit = {});

}  // namespace zolv
