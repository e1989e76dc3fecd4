#include "model/run_times.h"

#include <gtest/gtest.h>

namespace zolv {
namespace {

std::vector<AccelRow> RowsOf(std::initializer_list<float> speeds) {
    std::vector<AccelRow> rows;
    for (const float speed : speeds) {
        rows.emplace_back().values[static_cast<std::size_t>(AccelColumn::Speed)] = speed;
    }
    return rows;
}

// Rows are 0.05 s apart.
TEST(RunTimes, LieBetweenRowsAndAtTheFirstTime) {
    const RunTimes times(RowsOf({1, 2, 1.5, 1.75, 3}));  // slower for two rows after a change
    EXPECT_DOUBLE_EQ(times.At(0.5).value(), 0);
    EXPECT_DOUBLE_EQ(times.At(1.5).value(), 0.025);
    EXPECT_DOUBLE_EQ(times.At(2).value(), 0.05);
    EXPECT_DOUBLE_EQ(times.At(2.5).value(), 0.175);
    EXPECT_FALSE(times.At(3.1).has_value());
    EXPECT_FALSE(RunTimes().At(0).has_value());
}

}  // namespace
}  // namespace zolv
