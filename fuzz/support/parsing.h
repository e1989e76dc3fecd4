#pragma once

#include <string>

#include "support/expect.h"
#include "text/parsed.h"

namespace zolv {

/// What was read is written as a text that reads, and is written the same again.
/// @return the value read from the written text
template <class Value, class Parse, class Write>
Value ExpectReadsBack(const Value& value, Parse parse, Write write) {
    const std::string text = write(value);
    const Parsed<Value> again = parse(text);
    Expect(static_cast<bool>(again), "a written text reads", text);
    Expect(write(*again) == text, "a written text is written again", text);
    return *again;
}

}  // namespace zolv
