#pragma once

#include <string>

#include "support/expect.h"
#include "text/parsed.h"

namespace zolv {

/// A text that the program wrote reads again, and is written the same.
template <class Parse, class Write>
void ExpectReadsBack(const std::string& text, Parse parse, Write write) {
    const auto again = parse(text);
    Expect(static_cast<bool>(again), "a written text reads", text);
    Expect(write(*again) == text, "a written text is written again", text);
}

}  // namespace zolv
