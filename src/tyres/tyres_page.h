#pragma once

#include "fields/kinds.h"
#include "tyres/tyre_state.h"

namespace zolv {

/// Works out both tyres at the present pressures and axle loads, shows the chosen one and draws it.
/// It takes the axle loads as it finds them: an acceleration run leaves those of its last step, until the next
/// CalcAeroForces.
/// Reads:  Select_PressureF/R, FrontTyreAnal, vehicle, aero.FrontWheelForce/RearWheelForce, units
/// Writes: tyres, the figures of the tyres page
void AnalyseTyres();

/// Writes the figures of the page for any two tyres: those of the chosen axle, and what both have.
/// Reads: FrontTyreAnal, units
void ShowTyresOf(Showing which, const TyrePair& pair, float tyreMu);

/// A tyre type was picked on the tyres page or on the gearing page: the other list follows. Unless the program is
/// loading, tyres.TyreMu is then set by the type's name, and the follow-up TyreTypeTaken raised.
void PickTyreType();
void PickTyreTypeOnGearingPage();

/// Writes the rows of texts.TyreTypeNames into both lists of tyre types.
void FillTyreLists();

}  // namespace zolv
