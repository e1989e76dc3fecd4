// The parser and the writer of number text: any text, and any double.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

#include "model/whole_number.h"
#include "support/expect.h"
#include "text/number_text.h"

namespace zolv {
namespace {

/// Half a unit of the last digit, and what a double's own rounding adds.
bool Near(double a, double b, double relative) { return std::abs(a - b) <= relative * std::abs(b); }

void ExpectPlain(const std::string& text) {
    Expect(text.find_first_not_of("-.0123456789") == std::string::npos, "digits, a point and a sign", text);
    Expect(text != "-0" && text.back() != '.', "a number's shape", text);
}

template <class Whole>
void ExpectLimited(Whole whole, double value) {
    const double low = std::numeric_limits<Whole>::min();
    const double high = std::numeric_limits<Whole>::max();
    const double expected = std::isnan(value) ? 0 : std::clamp(value, low, high);
    Expect(std::abs(whole - expected) <= 0.5, "the nearest whole number", NumberText(value));
}

void CheckRounded(double value, int decimals) {
    const std::string text = RoundedText(value, decimals);
    Expect(text == NumberText(Round(value, decimals)), "both ways of rounding agree", text);
    Expect(WithUnit(value, decimals, " m") == (std::isfinite(value) ? text + " m" : text), "a unit behind", text);
    if (!std::isfinite(value)) return;
    ExpectPlain(text);
    const double step = std::pow(10.0, -decimals);
    Expect(std::abs(Val(text) - value) <= 0.5 * step + 1e-14 * std::abs(value), "within half a step", text);
}

void CheckFloat(double value) {
    const auto single = static_cast<float>(value);
    if (!std::isfinite(single)) return;
    const std::string text = NumberText(single);
    ExpectPlain(text);
    Expect(Near(Val(text), static_cast<double>(single), 5.001e-7), "seven digits of a single", text);
}

/// @param value     anything, not only what a text can say
/// @param decimals  0 to 9
void CheckWriter(double value, int decimals) {
    ExpectLimited(ToInt16(value), value);
    ExpectLimited(ToInt32(value), value);
    CheckRounded(value, decimals);
    const std::string text = NumberText(value);
    if (!std::isfinite(value)) return Expect(text == "N/A", "what is not finite", text);
    ExpectPlain(text);
    Expect(Near(Val(text), value, 5.3e-15), "fifteen digits", text);
    Expect(NumberText(Val(text)) == text, "a number's own text", text);
    Expect(Val(ExactText(value)) == value, "the same double", ExactText(value));
    CheckFloat(value);
}

void CheckParser(const std::string& text, int decimals) {
    const double value = Val(text);
    Expect(std::isfinite(value), "a finite number", text);
    Expect(Val(" \t\n" + text) == value, "blanks in front", text);
    CheckWriter(value, decimals);
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const int decimals = size > 0 ? data[size - 1] % 10 : 0;
    zolv::CheckParser(std::string(reinterpret_cast<const char*>(data), size), decimals);
    if (double any = 0; size >= sizeof any) {
        std::memcpy(&any, data, sizeof any);
        zolv::CheckWriter(any, decimals);
    }
    return 0;
}
