#include "gearing/engine_fit.h"

#include "gearing/engine_curve.h"
#include "gearing/gearing_state.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

void FitEngineCurve() { gearing.Curve = FittedCurve(EngineOf(vehicle.CurrentCar)); }

}  // namespace zolv
