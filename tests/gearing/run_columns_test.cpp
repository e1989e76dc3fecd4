#include "gearing/run_columns.h"

#include "gearing/gearing_state.h"
#include "support/zolv_test.h"
#include "text/texts.h"

namespace zolv {
namespace {

class RunColumns : public StartedTest {};

/// The line of the text table at 4.95 s, as numbers: it is from a separate calculation in Python.
TEST_F(RunColumns, HoldBareNumbersUnderTheirUnits) {
    constexpr int kRow = 99;
    const char* const kExpected[] = {"4.95", "17.2", "5736", "2", "0", "219", "-219", "-0.21", "5650", "4421"};
    for (int column = 0; column < 10; ++column) EXPECT_EQ(RunNumber(kRow, column), kExpected[column]) << column;
    EXPECT_EQ(RowsOfRun(), gearing.AccelLastRow + 1);
    EXPECT_EQ(zolv::RunColumns()[1], (RunColumn{"Speed", "m/s"}));
    Set("OptionsPanel.Select_SpeedUnits", "Kilometers per Hour");
    EXPECT_EQ(zolv::RunColumns()[1], (RunColumn{"Speed", "km/h"}));

    int changes = 0;
    for (int row = 0; row < RowsOfRun(); ++row) changes += IsGearChange(row) ? 1 : 0;
    EXPECT_EQ(changes, 4);  // a car of five gears goes through all of them
}

TEST_F(RunColumns, AreExportedAsCsv) {
    texts.TextColGear = "Gear, \"1\" to 6";
    Answer(InFolder("run.csv"));
    ExportRun("Export");
    const std::string csv = ContentOf(InFolder("run.csv"));
    EXPECT_THAT(csv, testing::StartsWith("Time [s],Speed [m/s],Engine RPM [rpm],\"Gear, \"\"1\"\" to 6\",Driving "
                                         "Force [N],Resistance [N],Net Force [N],Acceleration [m/s^2],Front Wheels "
                                         "[N],Rear Wheels [N]\r\n0,"));
    EXPECT_THAT(csv, testing::HasSubstr("\r\n4.95,17.2,5736,2,0,219,-219,-0.21,5650,4421\r\n"));

    Answer(InFolder("missing/run.csv"));
    ExportRun("Export");
    ExpectMessage(testing::HasSubstr(InFolder("missing/run.csv")));
}

}  // namespace
}  // namespace zolv
