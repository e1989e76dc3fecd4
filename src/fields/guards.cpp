#include "fields/guards.h"

namespace zolv {

Guards guards;

}  // namespace zolv
