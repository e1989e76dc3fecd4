#include "gearing/engine_fit.h"

#include "gearing/gearing_state.h"
#include "model/engine_curve.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

void FitEngineCurve() { gearing.Curve = FittedCurve(EngineOf(vehicle.CurrentCar)); }

}  // namespace zolv
