#include "plots/plotted.h"

#include "aero/aero_state.h"
#include "desk/held.h"
#include "fields/all_windows.h"
#include "gearing/gearing_state.h"
#include "text/words.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

Plotted PresentOne() {
    return {.car = vehicle.CurrentCar,
            .tyres = vehicle.Tyres,
            .curve = gearing.Curve,
            .gears = &gearing.Present(),
            .run = std::span(gearing.AccelRows).first(static_cast<std::size_t>(gearing.AccelLastRow + 1)),
            .frontLoad = aero.FrontWheelForce,
            .rearLoad = aero.RearWheelForce,
            .shifts = PresentShiftOptions()};
}

std::optional<Plotted> HeldOne() {
    if (desk.Held == nullptr) return {};
    const HeldSetUp& held = *desk.Held;
    const std::span<const AccelRow> run = held.Run();
    return Plotted{.car = held.SetUp.Car,
                   .tyres = held.Tyres,
                   .curve = held.Sheet.Curve,
                   .gears = held.Sheet.WrongOrder.empty() ? &held.Sheet.Gears : nullptr,
                   .run = run,
                   .frontLoad = run.empty() ? 0 : run.back()[AccelColumn::FrontLoad],
                   .rearLoad = run.empty() ? 0 : run.back()[AccelColumn::RearLoad],
                   .shifts = held.SetUp.Shifts,
                   .standing = Standing::Held};
}

}  // namespace

std::size_t Plotted::TopGear() const { return static_cast<std::size_t>(std::clamp<int>(car.NumGears, 0, kGears)); }

PlottedSetUps::PlottedSetUps() : present_(PresentOne()), held_(HeldOne()) {}

void PlottedSetUps::AddLegend(Canvas& plot, Role role) const {
    if (!held_) return;
    plot.AddLegend({words.Sentence("PresentIs", {Zolv.Select_Car.Text()}), role});
    plot.AddLegend({Zolv.Label_Held.Caption(), {role, Standing::Held}});
}

PlottedSetUps GearedSetUps() {
    PlottedSetUps setUps;
    if (setUps.Held() && setUps.Held()->gears == nullptr) setUps.DropHeld();
    return setUps;
}

std::string NameIn(Standing standing, const std::string& name) {
    return standing == Standing::Held ? words.Sentence("HeldCurve", {name}) : name;
}

void AddNameOf(Canvas& plot, Meaning meaning, const std::string& name, const std::string& unit) {
    plot.AddName(meaning, NameIn(meaning.standing, name), unit);
}

}  // namespace zolv
