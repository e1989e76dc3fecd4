#include "text/difference.h"

#include <gtest/gtest.h>

namespace zolv {
namespace {

TEST(Difference, IsThatOfTheNumbersAsTheyRead) {
    const struct {
        const char *text, *other, *difference;
    } rows[] = {{"32.9 m/s", "31.5 m/s", "+1.4"},
                {"11.05s", "11.15s", "-0.1"},
                {"7084 rpm", "7084 rpm", ""},
                {"N/A", "27.1s", ""},
                {"-88 N", "12 N", "-100"},
                {"48.5% / 51.5%", "46.9% / 53.1%", "+1.6 / -1.6"},
                {"71-213 kPa", "60-213 kPa", "+11"},
                {"3", "2.75", "+0.25"},
                {"", "", ""},
                {"@ 40.2 m/s", "@ 46.9 m/s", "-6.7"}};
    for (const auto& row : rows) EXPECT_EQ(DifferenceText(row.text, row.other), row.difference) << row.text;
}

}  // namespace
}  // namespace zolv
