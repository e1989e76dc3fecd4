#include "text/texts.h"

namespace zolv {

Texts texts;

}  // namespace zolv
