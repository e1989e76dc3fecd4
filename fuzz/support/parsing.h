#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "support/expect.h"
#include "text/parsed.h"

namespace zolv {

/// Whether an input is among those that are read, written and read again, which takes several times as long as reading
/// them: while fuzzing one of eight, by its content, so that a finding stays one; every one that is replayed.
inline bool IsWrittenToo([[maybe_unused]] std::string_view content) {
#ifdef ZOLV_FUZZING
    std::uint32_t hash = 2166136261U;  // FNV-1a
    for (const char c : content) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return (hash >> 16U) % 8 == 0;
#else
    return true;
#endif
}

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
