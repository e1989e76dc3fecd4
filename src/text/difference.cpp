#include "text/difference.h"

#include <algorithm>
#include <cctype>
#include <vector>

#include "text/number_text.h"

namespace zolv {
namespace {

struct Number {
    double value;
    int decimals;
};

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

/// The numbers of a text. A hyphen behind a digit parts two numbers and is no sign.
std::vector<Number> NumbersOf(std::string_view text) {
    std::vector<Number> numbers;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!IsDigit(text[i])) continue;
        const std::size_t from = i;
        while (i < text.size() && IsDigit(text[i])) ++i;
        int decimals = 0;
        if (i + 1 < text.size() && text[i] == '.' && IsDigit(text[i + 1])) {
            for (++i; i < text.size() && IsDigit(text[i]); ++i) ++decimals;
        }
        const bool negative = from > 0 && text[from - 1] == '-' && (from == 1 || !IsDigit(text[from - 2]));
        const double value = Val(text.substr(from, i - from));
        numbers.push_back({negative ? -value : value, decimals});
    }
    return numbers;
}

}  // namespace

std::string DifferenceText(std::string_view text, std::string_view other) {
    const std::vector<Number> here = NumbersOf(text);
    const std::vector<Number> there = NumbersOf(other);
    if (here.size() != there.size()) return {};
    std::string difference;
    for (std::size_t i = 0; i < here.size(); ++i) {
        constexpr int kMostDecimals = 9;
        const int decimals = std::min(kMostDecimals, std::max(here[i].decimals, there[i].decimals));
        const std::string number = RoundedText(here[i].value - there[i].value, decimals);
        if (number == "0") continue;
        if (!difference.empty()) difference += " / ";
        difference += number.front() == '-' ? number : '+' + number;
    }
    return difference;
}

}  // namespace zolv
