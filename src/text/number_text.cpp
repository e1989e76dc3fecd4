#include "text/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>

namespace zolv {
namespace {

constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
constexpr std::uint64_t kWholePowersOfTen[] = {1,       10,        100,        1'000,       10'000,
                                               100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000};

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr bool IsSkipped(char c) { return c == ' ' || c == '\t' || c == '\n'; }

/// The characters that make up the leading number, without the skipped ones, in the form that std::from_chars reads.
std::string LeadingNumber(std::string_view text) {
    enum { kStart, kWhole, kFraction, kExponentMark, kExponentSign, kExponent } at = kStart;
    std::string number;
    std::size_t usable = 0;  // an exponent mark without digits behind it is not part of the number
    for (const char c : text) {
        if (IsSkipped(c)) continue;
        if (IsDigit(c)) {
            if (at == kStart) at = kWhole;
            if (at == kExponentMark || at == kExponentSign) at = kExponent;
            number += c;
            usable = number.size();
        } else if ((c == '+' || c == '-') && (at == kStart || at == kExponentMark) &&
                   (at == kExponentMark || number.empty())) {
            // std::from_chars takes no plus; in front it is dropped, and a blank stands for it so that no second sign
            // is taken.
            number += c == '-' ? '-' : (at == kStart ? ' ' : '+');
            if (at == kExponentMark) at = kExponentSign;
        } else if (c == '.' && (at == kStart || at == kWhole)) {
            at = kFraction;
            number += c;
        } else if ((c == 'e' || c == 'E' || c == 'd' || c == 'D') && (at == kWhole || at == kFraction) && usable > 0) {
            at = kExponentMark;
            number += 'e';
        } else {
            break;
        }
    }
    number.resize(usable);
    if (!number.empty() && number.front() == ' ') number.erase(0, 1);
    return number;
}

/// Whether a text is a short number just as std::from_chars reads it: digits with at most one point, and nothing else.
bool IsPlain(std::string_view text) {
    constexpr std::size_t kLongest = 40;
    if (text.empty() || text.size() > kLongest) return false;
    std::size_t digits = 0;
    for (const char c : text) digits += IsDigit(c) ? 1U : 0U;
    return digits > 0 && (digits == text.size() || (digits + 1 == text.size() && text.find('.') != text.npos));
}

/// The place of the first digit that counts: 0 for 1 to 9, 2 for hundreds, -1 for tenths. For numbers that no double
/// holds, whose sign it tells: far above or far below zero.
long long PowerOfTen(const std::string& number) {
    const auto mark = std::min(number.find('e'), number.size());
    const auto point = std::min(number.find('.'), mark);
    const auto first = std::min(number.find_first_of("123456789"), mark);
    constexpr long long kBeyond = 1'000'000'000;  // any double, and any count of digits
    long long exponent = 0;
    if (mark < number.size()) {
        const auto sign = number[mark + 1] == '+' ? 1U : 0U;  // std::from_chars takes no plus
        const auto error = std::from_chars(&number[mark] + 1 + sign, number.data() + number.size(), exponent).ec;
        if (error != std::errc()) exponent = number[mark + 1] == '-' ? -kBeyond : kBeyond;
    }
    exponent = std::clamp(exponent, -kBeyond, kBeyond);
    return exponent + static_cast<long long>(point) - static_cast<long long>(first) - (first < point ? 1 : 0);
}

/// "00" to "99".
constexpr auto kPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

int CountDigits(std::uint64_t value) {
    for (int count = 1;; count += 4, value /= 10'000) {
        if (value < 10) return count;
        if (value < 100) return count + 1;
        if (value < 1'000) return count + 2;
        if (value < 10'000) return count + 3;
    }
}

/// The digits of `value`, two at a time from the last.
char* WriteWhole(char* out, std::uint64_t value) {
    char* const end = out + CountDigits(value);
    char* at = end;
    const auto writePair = [&](std::uint64_t pair) {
        at -= 2;
        std::memcpy(at, &kPairs[2 * pair], 2);
    };
    for (; value >= 100; value /= 100) writePair(value % 100);
    if (value >= 10) {
        writePair(value);
    } else {
        *out = static_cast<char>('0' + value);
    }
    return end;
}

/// `value` divided by that power of ten. The usual ones are constants, by which a processor divides much faster.
std::uint64_t WithoutDecimals(std::uint64_t value, int decimals) {
    switch (decimals) {
        case 1: return value / 10;
        case 2: return value / 100;
        case 3: return value / 1'000;
        default: return value / kWholePowersOfTen[decimals];
    }
}

/// A point and that many digits of `fraction`, which is above 0, without the zeros at the end.
char* WriteFraction(char* out, std::uint64_t fraction, int decimals) {
    *out = '.';
    for (int place = decimals; place > 0; --place, fraction /= 10) {
        out[place] = static_cast<char>('0' + fraction % 10);
    }
    char* end = out + decimals + 1;
    while (end[-1] == '0') --end;
    return end;
}

/// `value` with that many significant digits at most, written out in full however large or small it is.
std::string DecimalText(double value, int significant) {
    if (!std::isfinite(value)) return "N/A";
    if (value == 0) return "0";  // negative zero too

    // "d.dddde+dd": the digits, and the place of the first one.
    char text[40];
    const char* const end =
        std::to_chars(text, text + sizeof text, std::fabs(value), std::chars_format::scientific, significant - 1).ptr;
    const char* const mark = std::find(static_cast<const char*>(text), end, 'e');
    int place = 0;
    std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, place);
    std::string digits;
    std::remove_copy(static_cast<const char*>(text), mark, std::back_inserter(digits), '.');
    digits.resize(digits.find_last_not_of('0') + 1);

    const auto count = static_cast<int>(digits.size());
    if (place < 0) {
        digits.insert(0, "0." + std::string(static_cast<std::size_t>(-place - 1), '0'));
    } else if (place < count - 1) {
        digits.insert(static_cast<std::size_t>(place) + 1, 1, '.');
    } else {
        const int zeros = place - count + 1;
        digits.append(static_cast<std::size_t>(zeros), '0');
    }
    return value < 0 ? '-' + digits : digits;
}

}  // namespace

double Val(std::string_view text) {
    if (text.starts_with(' ')) text.remove_prefix(1);
    if (IsPlain(text)) {  // as nearly all are
        double value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }
    const std::string number = LeadingNumber(text);
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error != std::errc::result_out_of_range) return value;
    if (PowerOfTen(number) < 0) return 0;
    return number.front() == '-' ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
}

double Round(double value, int decimals) {
    const double scale = kPowersOfTen[decimals];
    const double scaled = value * scale;
    // A number whose multiple no double holds is whole long since; and what is infinite or no number stays so.
    return std::isfinite(scaled) ? std::nearbyint(scaled) / scale : value;
}

std::string NumberText(double value) { return DecimalText(value, std::numeric_limits<double>::digits10); }

std::string NumberText(float value) { return DecimalText(static_cast<double>(value), 7); }

std::string NumberText(std::int32_t value) { return std::to_string(value); }

char* WriteRounded(char* out, double value, int decimals) {
    // Up to here a scaled value is a whole number of at most 15 digits, whose decimal text is exact; and adding and
    // taking away kHalfway leaves the nearest whole number, half to even, as the adder rounds.
    constexpr double kExactUpTo = 1e15;
    constexpr double kHalfway = 6755399441055744.0;  // 1.5 * 2^52
    const double scaled = value * kPowersOfTen[decimals];
    if (!(std::fabs(scaled) < kExactUpTo)) {
        const std::string text = NumberText(Round(value, decimals));
        return text.copy(out, text.size()) + out;
    }
    const auto nearest = static_cast<std::int64_t>((scaled + kHalfway) - kHalfway);
    if (nearest < 0) *out++ = '-';
    const auto size = static_cast<std::uint64_t>(nearest < 0 ? -nearest : nearest);
    if (decimals == 0) return WriteWhole(out, size);

    const std::uint64_t whole = WithoutDecimals(size, decimals);
    const std::uint64_t fraction = size - whole * kWholePowersOfTen[decimals];
    out = WriteWhole(out, whole);
    return fraction == 0 ? out : WriteFraction(out, fraction, decimals);
}

std::string RoundedText(double value, int decimals) {
    char text[kRoundedTextSize];
    return {text, WriteRounded(text, value, decimals)};
}

std::string WithUnit(double value, int decimals, std::string_view unit) {
    if (!std::isfinite(value)) return NumberText(value);
    char text[kRoundedTextSize];
    const char* const end = WriteRounded(text, value, decimals);
    std::string shown;
    shown.reserve(static_cast<std::size_t>(end - text) + unit.size());
    shown.append(text, static_cast<std::size_t>(end - text));
    shown.append(unit);
    return shown;
}

std::string BooleanText(bool value) { return value ? "True" : "False"; }

std::string ExactText(double value) {
    if (value == 0) return "0";
    char text[40];
    return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

}  // namespace zolv
