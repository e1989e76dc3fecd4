#include "studies/straights_cells.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zolv {
namespace {

using testing::ElementsAre;

TEST(StraightsCells, HoldWhateverStandsInALine) {
    const StraightsCells cells =
        CellsOfStraights("name,entry speed [mph],length [km]\r\n\"Hill, upper\",72,x\r\n \r\nDip\n");
    EXPECT_EQ(cells.SpeedUnit, "mph");
    EXPECT_EQ(cells.LengthUnit, "km");
    EXPECT_THAT(cells.Lines, ElementsAre(ElementsAre("Hill, upper", "72", "x"), ElementsAre("Dip", "", "")));
    EXPECT_EQ(TextOfCells(cells), "name,entry speed [mph],length [km]\r\n\"Hill, upper\",72,x\r\nDip,,\r\n");
    EXPECT_EQ(TextOfCells({}), "name,entry speed [m/s],length [m]\r\n");
}

}  // namespace
}  // namespace zolv
