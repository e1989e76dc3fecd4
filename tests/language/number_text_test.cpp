#include "language/number_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <string>

namespace zolv {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

struct ValCase {
    const char* name;
    const char* text;
    double value;
};
class ValOf : public testing::TestWithParam<ValCase> {};

TEST_P(ValOf, IsTheLeadingNumber) { EXPECT_EQ(Val(GetParam().text), GetParam().value); }

INSTANTIATE_TEST_SUITE_P(ByRule, ValOf,
                         testing::Values(ValCase{"Empty", "", 0}, ValCase{"Word", "rpm", 0}, ValCase{"Colon", ":7", 0},
                                         ValCase{"CommaEndsIt", "12,5", 12}, ValCase{"BlankInFront", " 7000", 7000},
                                         ValCase{"BlankWithin", "1 0", 10}, ValCase{"TabAndLineFeed", "1\t2\n3", 123},
                                         ValCase{"CarriageReturnEndsIt", "1\r2", 1}, ValCase{"Minus", "-2.5", -2.5},
                                         ValCase{"BlankBehindSign", "- 2", -2}, ValCase{"Plus", "+3", 3},
                                         ValCase{"TwoSigns", "+-3", 0}, ValCase{"SecondPointEndsIt", "1.5.2", 1.5},
                                         ValCase{"PointInFront", ".5", 0.5}, ValCase{"PointBehind", "5.", 5},
                                         ValCase{"PointAlone", ".", 0}, ValCase{"SignAlone", "-", 0},
                                         ValCase{"ExponentE", "1.5e3", 1500}, ValCase{"ExponentD", "25D-1", 2.5},
                                         ValCase{"ExponentPlus", "2E+2", 200}, ValCase{"ExponentSplit", "2 e 2", 200},
                                         ValCase{"ExponentWithoutDigits", "3e", 3},
                                         ValCase{"ExponentSignAlone", "3e-", 3}, ValCase{"ExponentAlone", "e5", 0},
                                         ValCase{"FractionInExponent", "2e1.9", 20},
                                         ValCase{"UnitBehind", "12 m/s", 12}, ValCase{"Hexadecimal", "0x10", 0},
                                         ValCase{"NotANumber", "nan", 0}, ValCase{"Infinity", "inf", 0},
                                         ValCase{"TooLarge", "1e999", 1.7976931348623157e308},
                                         ValCase{"TooFarBelow", "-1E999", -1.7976931348623157e308},
                                         ValCase{"TooSmall", "1e-999", 0}, ValCase{"LargeButSmall", "0.0001e3", 0.1}),
                         [](const auto& row) { return std::string(row.param.name); });

struct RoundCase {
    const char* name;
    double value;
    int decimals;
    double rounded;
    const char* text;
};
class Rounding : public testing::TestWithParam<RoundCase> {};

TEST_P(Rounding, IsHalfToEven) {
    EXPECT_EQ(Round(GetParam().value, GetParam().decimals), GetParam().rounded);
    EXPECT_EQ(RoundedText(GetParam().value, GetParam().decimals), GetParam().text);
}

// 2.675 * 100 is 267.5 in double, though the double nearest to 2.675 lies below it.
INSTANTIATE_TEST_SUITE_P(
    ByHand, Rounding,
    testing::Values(RoundCase{"QuarterDown", 0.25, 1, 0.2, "0.2"}, RoundCase{"ThreeQuartersUp", 0.75, 1, 0.8, "0.8"},
                    RoundCase{"HalfToTwo", 2.5, 0, 2, "2"}, RoundCase{"HalfToFour", 3.5, 0, 4, "4"},
                    RoundCase{"NegativeHalf", -2.5, 0, -2, "-2"}, RoundCase{"ScaledHalf", 2.675, 2, 2.68, "2.68"},
                    RoundCase{"NegativeZero", -0.2, 0, 0, "0"}, RoundCase{"NoTrailingZeros", 360.0004, 2, 360, "360"},
                    RoundCase{"ZeroInFront", 0.05, 2, 0.05, "0.05"},
                    RoundCase{"NegativeFraction", -0.425, 1, -0.4, "-0.4"},
                    RoundCase{"InnerZeros", 12.0304, 4, 12.0304, "12.0304"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(NumberText, OfDoublesHasUpTo15Digits) {
    EXPECT_EQ(NumberText(100.0), "100");
    EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumberText(-1234.5), "-1234.5");
    EXPECT_EQ(NumberText(123456789012345.0), "123456789012345");
    EXPECT_EQ(NumberText(-0.0), "0");
}

TEST(NumberText, OfSinglesHasUpTo7Digits) {
    EXPECT_EQ(NumberText(0.1F), "0.1");
    EXPECT_EQ(NumberText(1.0F / 3), "0.3333333");
    EXPECT_EQ(NumberText(3.35F), "3.35");
    EXPECT_EQ(NumberText(100.0F), "100");
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

TEST(NumberText, OfWholeNumbersAndBooleans) {
    EXPECT_EQ(NumberText(-17), "-17");
    EXPECT_EQ(BooleanText(true), "True");
    EXPECT_EQ(BooleanText(false), "False");
}

// The fast writer against the general one, over signs, sizes and decimals; where the general one takes no exponent.
TEST(NumberText, FastWriterAgreesWithTheGeneralOne) {
    double value = 1e-7;
    for (int i = 0; i < 4000; ++i) {
        value = i % 400 == 0 ? 1e-7 * i : value * -1.1837;
        for (int decimals = 0; decimals <= 9; ++decimals) {
            const double rounded = Round(value, decimals);
            if (rounded != 0 && std::fabs(rounded) < 1e-4) continue;
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
    EXPECT_EQ(ToInt16(3.5), 4);
    EXPECT_EQ(ToInt16(-1e9), -32768);
    EXPECT_EQ(ToInt16(32767.4), 32767);
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
