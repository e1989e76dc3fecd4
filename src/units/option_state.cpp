#include "units/option_state.h"

namespace zolv {

OptionState options;

}  // namespace zolv
