#include "language/texts.h"

namespace zolv {

Texts texts;

}  // namespace zolv
