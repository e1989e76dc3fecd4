// The plots: what the mouse reads there, and that nothing covers them.

#include <QComboBox>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

#include "desktop/canvas_view.h"
#include "suites.h"

namespace zolv {
namespace {

class Plots : public DesktopTest {
    Q_OBJECT

private Q_SLOTS:
    void CrosshairStandsInThePlotBesideItToo();
    void CrosshairStaysWhereTheOtherPlotHasAnotherX();
    void ToolTipKeepsOffTheCurves();
    void MenuSavesWhatTheWindowShows();
};

CanvasView& Plot(const char* name) { return Find<CanvasView>(name); }

/// A place on a plot in shares of its sides.
QPoint PlaceOn(const QWidget& plot, double across, double down) {
    return {qRound(plot.width() * across), qRound(plot.height() * down)};
}

void Point(QWidget& plot, double across, double down) {
    QTest::mouseMove(&plot, PlaceOn(plot, across, down));
    Settle();
}

/// The pixels in which two pictures of a plot differ.
QRect Difference(const QImage& before, const QImage& after) {
    QRect changed;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y)) changed |= QRect(x, y, 1, 1);
        }
    }
    return changed;
}

QImage Seen(QWidget& plot) { return plot.grab().toImage(); }

void ShowGraphs(int row) {
    ClickTab("Select_Page", 1);
    PickWithKeys(Find<QComboBox>("Select_Graphs"), row);
    Settle();
}

void Plots::CrosshairStandsInThePlotBesideItToo() {
    ShowGraphs(1);
    CanvasView& speed = Plot("SpeedTimeGraph");
    CanvasView& force = Plot("TractiveEffortPlot");
    const QImage speedBefore = Seen(speed);
    const QImage forceBefore = Seen(force);
    auto& strip = Find<QWidget>("RunStrip");
    const QImage stripBefore = Seen(strip);
    Point(speed, 0.5, 0.5);
    QVERIFY2(!Difference(stripBefore, Seen(strip)).isEmpty(), "the strip has the run's time as well");
    QVERIFY(!Difference(speedBefore, Seen(speed)).isEmpty());
    // Both grounds are as wide, and both begin at 0 s.
    const QRect shared = Difference(forceBefore, Seen(force));
    const int x = PlaceOn(speed, 0.5, 0.5).x();
    QVERIFY(shared.contains(QPoint(x, force.height() / 2)));
    QVERIFY2(shared.height() > force.height() / 2, "it is an upright line");
    Point(Find<QWidget>("Select_Car"), 0.5, 0.5);
    QVERIFY(Difference(speedBefore, Seen(speed)).isEmpty());
    QVERIFY(Difference(forceBefore, Seen(force)).isEmpty());
}

void Plots::CrosshairStaysWhereTheOtherPlotHasAnotherX() {
    ShowGraphs(0);
    const QImage torqueBefore = Seen(Plot("TorquePlot"));
    Point(Plot("SpeedPlot"), 0.5, 0.5);
    QVERIFY(Difference(torqueBefore, Seen(Plot("TorquePlot"))).isEmpty());
}

void Plots::ToolTipKeepsOffTheCurves() {
    ShowGraphs(0);
    CanvasView& plot = Plot("SpeedPlot");
    const auto ask = [&](double across, double down) {
        Point(plot, across, down);
        const QPoint at = PlaceOn(plot, across, down);
        QHelpEvent event(QEvent::ToolTip, at, plot.mapToGlobal(at));
        QApplication::sendEvent(&plot, &event);
    };
    ask(0.02, 0.5);  // among the numbers
    QCOMPARE(QToolTip::text(), plot.toolTip());
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->inherits("QTipLabel") || !window->isVisible()) continue;
        const QRect tip(plot.mapFromGlobal(window->geometry().topLeft()), window->size());
        QVERIFY2(tip.top() > plot.height() * 0.8, "it stands below the plot");
    }
    ask(0.5, 0.5);
    QTRY_VERIFY(QToolTip::text().isEmpty());  // it fades
}

void Plots::MenuSavesWhatTheWindowShows() {
    ShowGraphs(0);
    CanvasView& plot = Plot("SpeedPlot");
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, plot.mapToGlobal(QPoint(9, 9)));
    QApplication::sendEvent(&plot, &event);
    auto* const menu = plot.findChild<QMenu*>();
    QVERIFY(menu != nullptr);
    Asked().answers = {InFolder("speed.svg")};
    menu->findChild<QAction*>(QStringLiteral("SaveAsSvg"))->trigger();
    const QByteArray svg = Read("speed.svg");
    for (const char* shown : {">Engine speed [rpm]</text>", ">1st</text>", ">Peak power</text>", ">20</text>"}) {
        QVERIFY2(svg.contains(shown), shown);
    }
    menu->close();
}

const bool added = AddSuite<Plots>("Plots");

}  // namespace
}  // namespace zolv

#include "plots_test.moc"
