#pragma once

#include <array>
#include <optional>

#include "model/tyre_sheet.h"
#include "platform/hook.h"

namespace zolv {

struct TyrePair {
    TyreSheet Front, Rear;
};

/// Front figures are doubles and rear figures 32-bit floats, rounded at each store; the two sides are not identical for
/// equal inputs.
struct TyreState {
    float TyreMu = 1.1F;       // friction coefficient of the chosen tyre type
    bool BlowTyresOn = false;  // mirrors the check box BlowTyres

    // In the order of texts.TyreTypeNames: Road Super, Road Normal, Hybrid, Knobbly, Slick R1 to R4
    std::array<float, 8> TyreTypeMu{1.25F, 1.1F, 1.1F, 1.0F, 1.65F, 1.6F, 1.55F, 1.5F};

    double FrontTyreStiffness = 0;  // [N/m]
    float RearTyreStiffness = 0;    // [N/m]
    double FrontDeformation = 0;    // [m]; a gearing run leaves that of its last gear on the driven axle
    float RearDeformation = 0;      // [m]
    double FrontPatchLength = 0;    // [m]
    float FrontPatchWidth = 0;      // [m]
    float RearPatchLength = 0;      // [m]
    float RearPatchWidth = 0;       // [m]

    double FrontRimRatio = 0;  // rim radius as a fraction of the unloaded tyre radius
    float RearRimRatio = 0;

    TyrePair Sheets;                     // as the page has last analysed them
    std::optional<TyrePair> HeldSheets;  // those of the held set-up; none where none is held

    bool CopyingTyreType = false;  // the two lists of tyre types do not call each other back
};
inline TyreState tyres;

/// What follows; shell/wiring says what that is.
struct TyreFollowUps {
    Hook TyreTypeTaken;  // another type, with its grip, is in use
};
inline TyreFollowUps tyreFollowUps;

}  // namespace zolv
