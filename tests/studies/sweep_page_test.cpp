// The sweep's window through its fields, and its plot.

#include "studies/sweep_page.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "drawing/curve_reading.h"
#include "drawing/plot_labels.h"
#include "drawing/text_measure.h"
#include "studies/contours.h"
#include "studies/sweep_inputs.h"
#include "studies/sweep_state.h"
#include "support/posted.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

class SweepPage : public StartedTest {
protected:
    /// Total lift over both wings, at 60 m/s.
    static void SweepWings() {
        Set("Select_Car", "Series Mu");
        Set("Select_AeroSpeed", "60");
        Set("Sweep.Input", "Front Wing");
        Set("Sweep.Steps", "4");
        Set("Sweep.Input2", "Rear Wing");
        Set("Sweep.Steps2", "3");
        Set("Sweep.Result", "Total Lift");
        SweepPanel.Start.Click();
    }
};

TEST_F(SweepPage, AClickTakesTheInputsThereOver) {
    SweepWings();
    EXPECT_EQ(Shown({"Sweep.Point", "Sweep.Point2"}), "15|30|") << "the best";
    ClickSweepPoint(6.2, 14);  // front angles are 0, 5, 10, 15; rear ones 0, 15, 30
    EXPECT_EQ(Shown({"Select_FrontWingAngle", "Select_RearWingAngle"}), "5|15|");
    EXPECT_EQ(Shown("Sweep.PointResult"), "Total Lift: -6241.2 N");  // as in the expected lines of the script "sweep"
    Set("Sweep.Point", "99");
    SweepPanel.TakeOver.Click();
    EXPECT_EQ(Shown("Select_FrontWingAngle"), "15") << "no further than its slider";
    Set("Select_Car", "Series Lo");
    ClickSweepPoint(0, 0);
    ExpectMessage(HasSubstr("The sweep is of Series Mu"));
    EXPECT_THAT(Shown("Sweep.Status"), HasSubstr("not for the one on the pages"));
}

TEST_F(SweepPage, GoesFromEndToEndAndIsStopped) {
    SweepWings();
    Set("Sweep.From", "2");
    Set("Sweep.To", "8");
    Set("Sweep.From2", "5");
    Set("Sweep.To2", "25");
    SweepPanel.Start.Click();
    EXPECT_THAT(SweepPanel.Table.Text(), HasSubstr("\t2\t4\t6\t8\r\n5\t"));
    EXPECT_THAT(SweepPanel.Table.Text(), HasSubstr("\r\n25\t"));

    Posted posted;
    Set("Sweep.Input2", "Final Drive");
    Set("Sweep.Result", "Time over 1000 m");
    Set("Sweep.Steps2", "1000");
    SweepPanel.Start.Click();
    SweepPanel.Stop.Click();
    while (sweepWork.Running()) posted.RunOne();
    EXPECT_EQ(Shown({"Sweep.Status", "Sweep.Table"}), "Stopped.||");
}

TEST_F(SweepPage, TellsWhatCannotBeSwept) {
    const struct {
        const char *field, *text, *message;
    } kCases[] = {
        {"Sweep.From", "9", "The range of Front Wing must go from a smaller"},
        {"Sweep.To", "16", "The range of Front Wing must lie between 0 degrees and 15"},
        {"Sweep.From", "low", "Front Wing, From: \"low\" is not a number."},
        {"Sweep.To2", "", "Rear Wing, To: \"\" is not a number."},
        {"Sweep.Steps2", "2.5", "There must be 2 to 1000 steps"},
        {"Sweep.Steps", "1e", "Front Wing, Steps: \"1e\" is not a number."},
        {"Sweep.Input2", "Front Wing", "Both inputs are the same."},
    };
    for (const auto& row : kCases) {
        SCOPED_TRACE(row.text);
        sweep = {};
        LoadSweep();
        SweepWings();
        Set("Sweep.From", "1");
        Set("Sweep.To", "8");
        Set(row.field, row.text);
        SweepPanel.Start.Click();
        ExpectMessage(HasSubstr(row.message));
        EXPECT_EQ(Shown({"Sweep.Table", "Sweep.Status"}), "||");
        SweepPanel.TakeOver.Click();
        ExpectMessage(HasSubstr("nothing to be taken over"));
    }
}

TEST_F(SweepPage, InputsFollowTheCarAndTheDirection) {
    Set("Select_Car", "Mote 900");  // four gears, no wings
    EXPECT_THAT(SweepPanel.First.Input.Rows(), Contains("Ratio 4"));
    EXPECT_THAT(SweepPanel.First.Input.Rows(), Not(Contains("Ratio 5")));
    EXPECT_THAT(SweepPanel.First.Input.Rows(), Not(Contains("Rear Wing")));
    EXPECT_EQ(Shown({"Sweep.Input", "Sweep.From", "Sweep.To"}), "Final Drive|0.5|7.5|");
    Set("Sweep.From", "3,5");
    Set("Direction2", "on");
    EXPECT_THAT(SweepPanel.First.Input.Rows(), Contains("Speed 4"));
    EXPECT_EQ(Shown({"Sweep.Input", "Sweep.From", "Sweep.To"}), "Final Drive|3.5|7.5|");
    Set("Sweep.Input", "Speed 2");
    Set("OptionsPanel.Select_SpeedUnits", "Kilometers per Hour");
    EXPECT_EQ(Shown("Sweep.Unit"), "km/h");
    EXPECT_THAT(SweepPanel.Result.Rows(), Contains("Time to 100 km/h"));
    Set("Direction1", "on");
    EXPECT_THAT(SweepPanel.First.Input.Rows(), Contains("Ratio 4"));
    Set("Sweep.Input", "Ratio 1");
    Set("Select_Car", "Pell S");  // whose lists are filled anew
    EXPECT_EQ(Shown({"Sweep.Input", "Sweep.From", "Sweep.To"}), "Ratio 1|" + Shown("Gear2") + "|7.5|");
    EXPECT_TRUE(SweepPanel.First.From.Visible());
}

TEST_F(SweepPage, ACurveLiesBetweenTheRoundValuesAroundIt) {
    Set("OptionsPanel.Select_SpeedUnits", "Kilometers per Hour");
    Set("Sweep.Input", "Final Drive");
    Set("Sweep.Result", "Highest Speed of the Run");
    SweepPanel.Start.Click();
    const Canvas& canvas = SweepPanel.Plot.Drawing();
    const PlotAxis& axis = canvas.PresentAxes().y;
    const auto valueAt = [&](double y) { return (y - axis.origin) / axis.scale; };
    double least = std::numeric_limits<double>::infinity();
    double most = -least;
    for (const DrawingOperation& line : canvas.Operations()) {
        if (line.meaning.role != Role::Series1) continue;
        least = std::min({least, valueAt(line.y1), valueAt(line.y2)});
        most = std::max({most, valueAt(line.y1), valueAt(line.y2)});
    }
    ASSERT_LT(least, most);
    double fastest = 0;
    for (const double speed : sweep.Run->Sheet.Values)
        fastest = std::max(fastest, speed);  // not max of what may be NaN
    EXPECT_NEAR(most, fastest * 3.6, 0.01);
    EXPECT_LE(valueAt(axis.start), least + 1e-9);
    EXPECT_GT(valueAt(axis.start), least - axis.step);
    EXPECT_GE(valueAt(axis.end), most - 1e-9);
    EXPECT_LT(valueAt(axis.end), most + axis.step);
}

TEST_F(SweepPage, AMapShowsItsCellsItsScaleAndTwoPoints) {
    SweepWings();
    const Canvas& canvas = SweepPanel.Plot.Drawing();
    const auto count = [&](Role role) {
        return std::ranges::count(canvas.Operations(), Meaning(role), &DrawingOperation::meaning);
    };
    EXPECT_EQ(count(Role::Cell), 12);
    EXPECT_GT(count(Role::Contour), 0);
    ASSERT_TRUE(canvas.Scale());
    EXPECT_NEAR(canvas.Scale()->from, -8607.7, 0.05);  // of the script "sweep", as above
    EXPECT_NEAR(canvas.Scale()->to, -4123.1, 0.05);
    EXPECT_THAT(MapReadingAt(canvas, 0, canvas.Height()), HasSubstr("-4123."));
    EXPECT_THAT(MapReadingAt(canvas, canvas.Width(), 0), HasSubstr("-8607."));

    // The map goes half a step beyond the outer angles; the present set-up stands at 7 and 14 degrees.
    const auto present =
        std::ranges::find(canvas.Operations(), Meaning(Role::PresentPoint), &DrawingOperation::meaning);
    ASSERT_NE(present, canvas.Operations().end());
    EXPECT_NEAR(present->x1, canvas.Width() * (7 + 2.5) / 20, 1e-6);
    EXPECT_NEAR(present->y1, canvas.Height() * (1 - (14 + 7.5) / 45), 1e-6);

    const TextMeasure measure = EstimatedMeasure(12);
    const PlotPlace place = PlaceOf(canvas, CanvasShape::Stretched, {700, 500}, measure);
    EXPECT_GT(place.scale.left, place.ground.Right());
    EXPECT_LT(place.scale.Right(), 700);
    std::vector<std::string> texts;
    for (const PlacedWords& words : LabelsOf(canvas, place, measure).words) {
        texts.push_back(words.text);
        EXPECT_LE(words.box.Right(), 700) << words.text;
    }
    EXPECT_THAT(texts, testing::IsSupersetOf({"Present", "Best", "Total Lift [N]", "-8000", "-5000"}));
}

TEST_F(SweepPage, TheTableIsSavedWithCommas) {
    SweepPanel.SaveCsv.Click();
    ExpectMessage(HasSubstr("start a sweep first"));
    SweepWings();
    Answer("lift.csv");
    SweepPanel.SaveCsv.Click();
    EXPECT_THAT(ContentOf("lift.csv"),
                testing::StartsWith("Rear Wing [degrees] \\ Front Wing [degrees],0,5,10,15\r\n0,-4123.1,"));
    Answer("nowhere/lift.svg");
    SweepPanel.SaveSvg.Click();
    ExpectMessage(HasSubstr("nowhere/lift.svg"));
}

// x + y over a grid of unequal steps: each contour line lies where it is so, and crosses all of it.
TEST(Contours, LieAtTheirLevel) {
    const std::vector<double> xs{0, 1, 4};
    const std::vector<double> ys{0, 2, 3};
    std::vector<double> values;
    for (const double y : ys) {
        for (const double x : xs) values.push_back(x + y);
    }
    double length = 0;
    for (const ContourPiece& piece : ContourOf(xs, ys, values, 3.5)) {
        EXPECT_NEAR(piece.x1 + piece.y1, 3.5, 1e-12);
        EXPECT_NEAR(piece.x2 + piece.y2, 3.5, 1e-12);
        length += std::hypot(piece.x2 - piece.x1, piece.y2 - piece.y1);
    }
    EXPECT_NEAR(length, 3 * std::sqrt(2), 1e-12);  // from (0.5, 3) to (3.5, 0)
    values[4] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(ContourOf(xs, ys, values, 3.5).empty()) << "each square touches the middle";
}

// Two corners above, across: with the mean above the level too, the line cuts off the two corners below it.
TEST(Contours, OfASaddleGoByTheMiddle) {
    const auto around = [](double high) {
        std::vector<double> sums;
        for (const ContourPiece& piece : ContourOf({0, 1}, {0, 1}, {high, 0, 0, high}, 1)) {
            sums.push_back((piece.x1 + piece.x2) / 2 - (piece.y1 + piece.y2) / 2);
        }
        std::ranges::sort(sums);
        return sums;
    };
    const std::vector<double> apart = around(4);  // lines around (1, 0) and (0, 1)
    ASSERT_EQ(apart.size(), 2U);
    EXPECT_NEAR(apart[0], -0.75, 1e-12);
    EXPECT_NEAR(apart[1], 0.75, 1e-12);
    const std::vector<double> together = around(1.5);  // around (0, 0) and (1, 1)
    ASSERT_EQ(together.size(), 2U);
    EXPECT_NEAR(together[0], 0, 1e-12);
    EXPECT_NEAR(together[1], 0, 1e-12);
}

}  // namespace
}  // namespace zolv
