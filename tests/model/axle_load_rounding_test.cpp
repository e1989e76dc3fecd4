#include "gearing/gearing_state.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

class AxleLoadsOfARun : public ZolvTest {};

// By hand, for the second step of the car at start: 1027 kg * 9.80665 * (1 - 0.561) = 4421.357678 N on the rear axle,
// stored single as 4421.357910. The first step's 1.819907 m/s^2 moves 1027 * 0.45 * 1.819907 / 2.333 = 360.510 N:
// together 4781.868131, and the nearest single is 4781.868164. A compiler that forgets the first rounding comes to
// 4781.867900 and 4781.867676.
TEST_F(AxleLoadsOfARun, AreRoundedBeforeAndAfterTheTransfer) {
    Start();
    EXPECT_EQ(gearing.AccelRows[1][AccelColumn::RearLoad], 4781.868164F);
}

}  // namespace
}  // namespace zolv
