#include "language/language_state.h"

namespace zolv {

LanguageState language;

}  // namespace zolv
