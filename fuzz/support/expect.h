#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace zolv {

/// Ends the process where something does not hold, so that the fuzzer keeps the input.
inline void Expect(bool holds, std::string_view what, std::string_view details = {}) {
    if (holds) return;
    std::cerr << "Does not hold: " << what << (details.empty() ? "" : ": ") << details << std::endl;
    std::abort();
}

}  // namespace zolv
