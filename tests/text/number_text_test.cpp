#include "text/number_text.h"
#include "model/whole_number.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <string>
#include <utility>

namespace zolv {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Val, IsTheLeadingNumberOfAText) {
    // clang-format off
    constexpr std::pair<const char*, double> kCases[] = {
        {"", 0}, {"rpm", 0}, {":7", 0}, {".", 0}, {"-", 0}, {"e5", 0}, {"nan", 0}, {"inf", 0}, {"0x10", 0}, {"+-3", 0},
        {"12,5", 12}, {"12 m/s", 12}, {"1.5.2", 1.5}, {".5", 0.5}, {"5.", 5}, {"-2.5", -2.5}, {"+3", 3},
        // Blanks, tabs and line feeds are skipped wherever they stand, a carriage return is not.
        {" 7000", 7000}, {"1 0", 10}, {"1\t2\n3", 123}, {"- 2", -2}, {"2 e 2", 200}, {"1\r2", 1},
        {"1.5e3", 1500}, {"25D-1", 2.5}, {"2E+2", 200}, {"3e", 3}, {"3e-", 3}, {"2e1.9", 20}, {"0.0001e3", 0.1},
        {"1e5-3", 100000}, {"1e-99999999999", 0},
        {"1e99999999999", 1.7976931348623157e308}, {"1e999", 1.7976931348623157e308}, {"-1E999", -1.7976931348623157e308}, {"1e-999", 0},
        {"12e9223372036854775807", 1.7976931348623157e308}, {"0.01e-9223372036854775808", 0},
    };
    // clang-format on
    for (const auto& [text, value] : kCases) EXPECT_EQ(Val(text), value) << text;
}

// By hand. 2.675 * 100 is 267.5 in double, though the double nearest to 2.675 lies below it.
TEST(Round, IsHalfToEven) {
    struct Case {
        double value;
        int decimals;
        double rounded;
        const char* text;
    };
    // clang-format off
    constexpr Case kCases[] = {
        {0.25, 1, 0.2, "0.2"}, {0.75, 1, 0.8, "0.8"}, {2.5, 0, 2, "2"}, {3.5, 0, 4, "4"}, {-2.5, 0, -2, "-2"},
        {2.675, 2, 2.68, "2.68"}, {-0.2, 0, 0, "0"}, {360.0004, 2, 360, "360"}, {0.05, 2, 0.05, "0.05"},
        {-0.425, 1, -0.4, "-0.4"}, {12.0304, 4, 12.0304, "12.0304"},
    };
    // clang-format on
    for (const Case& row : kCases) {
        EXPECT_EQ(Round(row.value, row.decimals), row.rounded) << row.value;
        EXPECT_EQ(RoundedText(row.value, row.decimals), row.text) << row.value;
    }
}

TEST(NumberText, HasUpTo15DigitsOfDoublesAnd7OfSingles) {
    EXPECT_EQ(NumberText(1.0F / 3), "0.3333333");
    EXPECT_EQ(NumberText(3.35F), "3.35");
    EXPECT_EQ(NumberText(-17), "-17");
    EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumberText(-0.0), "0");
    EXPECT_EQ(NumberText(-0.00004), "-0.00004");
    EXPECT_EQ(NumberText(1.5e16), "15000000000000000");
    EXPECT_EQ(NumberText(1e300), '1' + std::string(300, '0'));
    EXPECT_EQ(RoundedText(1e300, 9), '1' + std::string(300, '0'));  // 1e309 is beyond a double
}

TEST(NumberText, OfNoNumberIsNotAvailable) {
    for (const double value : {kInfinity, -kInfinity, kNotANumber}) {
        EXPECT_EQ(NumberText(value), "N/A");
        EXPECT_EQ(NumberText(static_cast<float>(value)), "N/A");
        EXPECT_EQ(RoundedText(value, 2), "N/A");
        EXPECT_EQ(WithUnit(value, 2, " Hz"), "N/A");
    }
    EXPECT_EQ(WithUnit(8.336, 2, " Hz"), "8.34 Hz");
}

// The fast writer against the general one, over signs, sizes and decimals; where the general one takes no exponent.
TEST(NumberText, FastWriterAgreesWithTheGeneralOne) {
    double value = 1e-7;
    for (int i = 0; i < 4000; ++i) {
        value = i % 400 == 0 ? 1e-7 * i : value * -1.1837;
        for (int decimals = 0; decimals <= 9; ++decimals) {
            const double rounded = Round(value, decimals);
            ASSERT_EQ(RoundedText(value, decimals), NumberText(rounded)) << value << ' ' << decimals;
        }
    }
}

TEST(NumberText, ExactTextReadsBackAsTheSameDouble) {
    for (const double value : {0.1 + 0.2, 1.0 / 3, -2.0 / 7, 1e22, 5e-324, 4455.0}) {
        EXPECT_EQ(Val(ExactText(value)), value);
    }
}

TEST(WholeNumbers, AreRoundedHalfToEvenAndSaturate) {
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt16(-1e9), -32768);
    EXPECT_EQ(ToInt16(kInfinity), 32767);
    EXPECT_EQ(ToInt32(13.5), 14);
    EXPECT_EQ(ToInt32(1e300), 2147483647);
    EXPECT_EQ(ToInt32(-kInfinity), -2147483647 - 1);
    EXPECT_EQ(ToInt32(kNotANumber), 0);
}

/// A user's settings with a decimal comma and points between thousands.
class CommaLocale : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(NumberText, KnowsNoLocale) {
    const std::locale before = std::locale::global(std::locale(std::locale(), new CommaLocale));
    const char* const german = std::setlocale(LC_NUMERIC, "de_DE.UTF-8");  // where the machine has it
    EXPECT_EQ(Val("3.5"), 3.5) << (german != nullptr ? german : "");
    EXPECT_EQ(NumberText(1234567.5), "1234567.5");
    EXPECT_EQ(RoundedText(12345.678, 1), "12345.7");
    EXPECT_EQ(ExactText(2.5), "2.5");
    std::setlocale(LC_NUMERIC, "C");
    std::locale::global(before);
}

}  // namespace
}  // namespace zolv
