#include "tyres/tyre_state.h"

namespace zolv {

TyreState tyres;

}  // namespace zolv
