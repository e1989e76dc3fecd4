#include "units/unit_converter.h"

#include <string>

#include "fields/all_windows.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

class UnitConverter : public StartedTest {};

// A script has the conversions themselves.
TEST_F(UnitConverter, OutputStaysWithoutAUnitAndAnswersEveryInput) {
    UnitConv.Torque.Input.Enter("12");
    EXPECT_EQ(UnitConv.Torque.Output.Caption(), "is ? Nm");
    UnitConv.Torque.Select.SetText("kgfm");
    EXPECT_EQ(UnitConv.Torque.Output.Caption(), "is 118 Nm");  // 117.68
    UnitConv.Distance.Select.SetText("in");
    EXPECT_EQ(UnitConv.Distance.Output.Caption(), "is 0 m") << "nothing was entered";
    UnitConv.Distance.Input.Enter("9999999");                       // the box takes five characters
    EXPECT_EQ(UnitConv.Distance.Output.Caption(), "is 2539.97 m");  // 2538.68 with the inch of the lengths
    UnitConv.Mass.Select.SetText("t");
    UnitConv.Mass.Input.Enter("9e999");
    EXPECT_EQ(UnitConv.Mass.Output.Caption(), "is N/A");
}

}  // namespace
}  // namespace zolv
