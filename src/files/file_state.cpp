#include "files/file_state.h"

namespace zolv {

FileState files;

}  // namespace zolv
