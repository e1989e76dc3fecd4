#include "tyres/tyre_drawings.h"

#include <cmath>
#include <string>
#include <string_view>

#include "fields/all_windows.h"
#include "model/tyre_geometry.h"
#include "text/number_text.h"
#include "text/words.h"
#include "tyres/tyre_figures.h"
#include "tyres/tyre_state.h"
#include "units/unit_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

// Canvas units. The frame of the footprint is somewhat smaller than its canvas.
constexpr double kFootprintWidth = 4250;
constexpr double kFootprintHeight = 3075;
constexpr double kUnitsPerMetre = 1900;  // at a zoom of 100
constexpr double kGridStep = 0.1;        // twice the metres of patch from line to line
constexpr int kGridLines = 21;           // in each direction
constexpr double kWheelX = 1530;
constexpr double kRoadY = 2800;
constexpr double kSideViewEdge = 3135;

/// What is drawn of one tyre [m].
struct DrawnTyre {
    double patchWidth = 0, patchLength = 0;
    double deformation = 0;
    double unloadedRadius = 0;
    double rimRatio = 0;  // rim radius as a fraction of the unloaded radius
};

DrawnTyre AnalysedTyre() {
    if (Zolv.FrontTyreAnal.Checked()) {
        return {tyres.FrontPatchWidth, tyres.FrontPatchLength, tyres.FrontDeformation,
                vehicle.Tyres.FrontUnloadedRadius, tyres.FrontRimRatio};
    }
    return {tyres.RearPatchWidth, tyres.RearPatchLength, tyres.RearDeformation, vehicle.Tyres.RearUnloadedRadius,
            tyres.RearRimRatio};
}

void SetRimRatios() {
    const CarRecord& car = vehicle.CurrentCar;
    tyres.FrontRimRatio = RimRadius(car.FWS) / vehicle.Tyres.FrontUnloadedRadius;
    tyres.RearRimRatio = static_cast<float>(RimRadius(car.RWS) / vehicle.Tyres.RearUnloadedRadius);
}

/// The grid runs from the centre both ways, two lines at a time.
void DrawFootprintGrid(Canvas& plot, double scale) {
    plot.SetLineWidth(1);
    WalkGrid(kGridStep, scale * 2, kFootprintWidth, kGridLines, [&](double v) {
        for (const double x : {(kFootprintWidth + v) / 2, (kFootprintWidth - v) / 2}) {
            plot.Line(Role::Grid, x, kFootprintHeight, x, 0);
        }
    });
    WalkGrid(kGridStep, scale * 2, kFootprintHeight, kGridLines, [&](double v) {
        for (const double y : {(kFootprintHeight + v) / 2, (kFootprintHeight - v) / 2}) {
            plot.Line(Role::Grid, 0, y, kFootprintWidth, y);
        }
    });
}

/// The unit in which the footprint is read: the user's, but millimetres for metres, of which it has tenths.
struct ReadLength {
    double factor = 1;  // shown value = metres * factor
    std::string_view suffix;
    int decimals = 0;

    [[nodiscard]] std::string Text(double metres) const { return WithUnit(metres * factor, decimals, suffix); }
};

ReadLength FootprintUnit() {
    if (units.Distance.Unit == 0) return {1000, " mm", 0};
    return {units.Distance.Factor, units.Distance.Suffix, units.Distance.Decimals};
}

/// @param scale  canvas units for one metre of half the patch: the drawn patch is twice as large as the scale says
void PublishFootprintAxes(Canvas& plot, double scale, const ReadLength& unit) {
    PlotAxis x{.origin = kFootprintWidth / 2,
               .scale = scale * 2 / unit.factor,
               .step = kGridStep / 2 * unit.factor,
               .roundGrid = true,
               .start = 0,
               .end = kFootprintWidth,
               .title = words["PatchWidth"],
               .unit = AxisUnit(unit.suffix)};
    PlotAxis y = x;
    y.origin = kFootprintHeight / 2;
    y.scale = -x.scale;
    y.start = kFootprintHeight;
    y.end = 0;
    y.title = words["PatchLength"];
    plot.SetAxes(std::move(x), std::move(y));
}

void OutlineHeld(Canvas& plot, double scale, const TyreSheet& tyre) {
    const double left = kFootprintWidth / 2 - scale * tyre.PatchWidth;
    const double right = kFootprintWidth / 2 + scale * tyre.PatchWidth;
    const double top = kFootprintHeight / 2 - scale * tyre.PatchLength;
    const double bottom = kFootprintHeight / 2 + scale * tyre.PatchLength;
    const Meaning held{Role::Area, Standing::Held};
    plot.SetLineWidth(1);
    plot.Line(held, left, top, right, top);
    plot.Line(held, right, top, right, bottom);
    plot.Line(held, right, bottom, left, bottom);
    plot.Line(held, left, bottom, left, top);
}

/// The width of the patch runs across the canvas, its length up and down.
void DrawFootprint(const DrawnTyre& tyre) {
    constexpr double kCentreX = kFootprintWidth / 2;
    constexpr double kCentreY = kFootprintHeight / 2;
    const double scale = kUnitsPerMetre / (Zolv.ZoomCPS.Value() / 100.0);
    const double halfWidth = scale * tyre.patchWidth;
    const double halfLength = scale * tyre.patchLength;
    Canvas& plot = Zolv.CPS.Draw();
    plot.Clear();
    DrawFootprintGrid(plot, scale);
    const ReadLength unit = FootprintUnit();
    PublishFootprintAxes(plot, scale, unit);
    plot.FillRectangle(Role::Area, kCentreX - halfWidth, kCentreY - halfLength, kCentreX + halfWidth,
                       kCentreY + halfLength, kBlack);
    if (tyres.HeldSheets) OutlineHeld(plot, scale, AnalysedOf(*tyres.HeldSheets));
    plot.AddName(Role::AreaWidth, "\u2194 " + unit.Text(tyre.patchWidth));
    plot.AddName(Role::AreaLength, "\u2195 " + unit.Text(tyre.patchLength));
}

/// The wheel stands lower by the deformation, drawn to the tyre's scale in whole units, and everything below the road
/// is cut away, so that the tyre shows its flat.
void DrawSideView(const DrawnTyre& tyre) {
    const double radius = Zolv.ZoomSideOn.Value() * 10;
    const double centre = kRoadY + (std::floor(tyre.deformation * (radius / tyre.unloadedRadius)) - radius);
    Canvas& plot = Zolv.SV.Draw();
    plot.Clear();
    plot.FillCircle(Role::Shape, kWheelX, centre, radius, kBlack);
    plot.FillCircle(Role::Shape, kWheelX, centre, radius * tyre.rimRatio, kWhite);
    plot.FillRectangle(Role::Shape, 0, kRoadY, kSideViewEdge, kSideViewEdge, kWhite);
    plot.SetLineWidth(3);
    plot.Line(Role::Shape, 0, kRoadY, kSideViewEdge, kRoadY, kRed);
    plot.SetLineWidth(1);
}

}  // namespace

void DrawTyres() {
    SetRimRatios();
    const DrawnTyre tyre = AnalysedTyre();
    DrawFootprint(tyre);
    DrawSideView(tyre);
}

}  // namespace zolv
