#include "drawing/text_measure.h"

namespace zolv {
namespace {

/// Width of a letter as a share of the font's size, by its first byte of UTF-8; the bytes after it have none.
double ShareOf(unsigned char c) {
    constexpr std::string_view kNarrow = "ijlI.,:;'|! ";
    constexpr std::string_view kHalf = "frt()[]{}/\\-\"";
    constexpr std::string_view kWide = "mwMW@%";
    if (c >= 0xE0) return 1.0;
    if (c >= 0xC0) return 0.64;
    if (c >= 0x80) return 0;
    const char letter = static_cast<char>(c);
    if (kNarrow.find(letter) != std::string_view::npos) return 0.32;
    if (kHalf.find(letter) != std::string_view::npos) return 0.42;
    if (kWide.find(letter) != std::string_view::npos) return 0.95;
    return letter >= 'A' && letter <= 'Z' ? 0.7 : 0.6;
}

}  // namespace

double EstimatedWidth(std::string_view text, double fontSize) {
    double shares = 0;
    for (const char c : text) shares += ShareOf(static_cast<unsigned char>(c));
    return shares * fontSize;
}

TextMeasure EstimatedMeasure(double fontSize) {
    constexpr double kLineHeight = 1.25;
    return {.height = fontSize * kLineHeight,
            .width = [fontSize](std::string_view text) { return EstimatedWidth(text, fontSize); }};
}

}  // namespace zolv
