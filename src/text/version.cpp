#include "text/version.h"

namespace zolv {

std::string_view Version() { return ZOLV_VERSION; }

std::string WithVersion(std::string_view text) {
    constexpr std::string_view kPlace = "{version}";
    std::string result(text);
    for (auto at = result.find(kPlace); at != std::string::npos; at = result.find(kPlace, at)) {
        result.replace(at, kPlace.size(), Version());
    }
    return result;
}

}  // namespace zolv
