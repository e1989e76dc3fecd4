// Every number text parses back to the value that it was written from, at its precision. The C library's own writer and
// parser tell which value that is.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "properties/random.h"
#include "text/number_text.h"

namespace zolv {
namespace {

constexpr int kCases = 4000;

/// The value that stays of another with so many digits.
double AtDigits(double value, int digits) {
    char text[64];
    EXPECT_GT(std::snprintf(text, sizeof text, "%.*e", digits - 1, value), 0);
    return std::strtod(text, nullptr);
}

TEST(NumberProperties, ADoubleComesBackAtFifteenDigits) {
    Random random(1);
    for (int i = 0; i < kCases; ++i) {
        const std::uint64_t bits = random.Bits();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value) || !std::isfinite(AtDigits(value, 15))) continue;
        ASSERT_EQ(Val(NumberText(value)), AtDigits(value, 15)) << i;
        ASSERT_EQ(Val(ExactText(value)), value) << i;
    }
}

TEST(NumberProperties, ASingleComesBackAtSevenDigits) {
    Random random(2);
    for (int i = 0; i < kCases; ++i) {
        const auto value = static_cast<float>(random.Real(-1, 1) * std::pow(10.0, random.Whole(-30, 30)));
        ASSERT_EQ(Val(NumberText(value)), AtDigits(static_cast<double>(value), 7)) << i;
    }
}

// Half a step, and half a unit of the fifteenth digit where that is more.
TEST(NumberProperties, ARoundedNumberComesBackWithinHalfAStep) {
    Random random(3);
    for (int i = 0; i < kCases; ++i) {
        const double value = random.Real(-1, 1) * std::pow(10.0, random.Whole(-6, 12));
        const int decimals = random.Whole(0, 9);
        const std::string text = RoundedText(value, decimals);
        const double step = std::pow(10.0, -decimals);
        ASSERT_NEAR(Val(text), value, 0.5 * step * (1 + 1e-9) + std::abs(value) * 5.1e-15) << text;
        const auto point = text.find('.');
        ASSERT_TRUE(point == std::string::npos || text.size() - point - 1 <= static_cast<std::size_t>(decimals))
            << text;
    }
}

}  // namespace
}  // namespace zolv
