#include "studies/background.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stop_token>

#include "support/posted.h"

namespace zolv {
namespace {

/// Works until it is stopped, tells of it all the time, and shows 1 in the end.
Background::Work UntilStopped(int& told, int& shown) {
    return [&](const std::stop_token& stop, const Background::Tell& tell) {
        while (!stop.stop_requested()) tell([&] { ++told; });
        return [&] { shown = 1; };
    };
}

TEST(Background, IsDoneWithinItsStartWhereNothingRunsBeside) {
    Background work;
    int shown = 0;
    work.Start([&](const std::stop_token&, const Background::Tell& tell) {
        EXPECT_FALSE(tell);
        return [&] { shown = 1; };
    });
    EXPECT_EQ(shown, 1);
    EXPECT_FALSE(work.Running());
}

TEST(Background, OnThreadsTellsAndShowsUnlessItIsAbandoned) {
    Posted posted;
    Background work;
    int told = 0;
    int shown = 0;
    work.Start(UntilStopped(told, shown));
    posted.RunOne();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(work.Running());
    work.Stop();
    while (work.Running()) posted.RunOne();
    EXPECT_EQ(shown, 1);

    // Another start abandons the work before it; what that has posted is dropped.
    int toldThen = 0;
    int shownThen = 0;
    work.Start(UntilStopped(toldThen, shownThen));
    work.Start(UntilStopped(told, shown));
    work.Abandon();
    EXPECT_FALSE(work.Running());
    shown = told = 0;
    posted.RunRest();
    EXPECT_EQ(told + toldThen, 0);
    EXPECT_EQ(shown + shownThen, 0);
}

}  // namespace
}  // namespace zolv
