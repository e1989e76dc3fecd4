// How long a person waits: from a key or a slider's move until the window has been painted, and from the start of the
// program until its first window. On the offscreen platform, which paints as a screen without a graphics card does.

#include <benchmark/benchmark.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QProcess>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>

#include "desktop/desktop.h"
#include "desktop/main_window.h"
#include "desktop/theme.h"
#include "fields/all_windows.h"
#include "shell/fresh_start.h"
#include "shell/start_up.h"

namespace zolv {
namespace {

constexpr const char* kStartOnly = "--start-only";

/// Waits for the next painting of a widget. Whatever else of its window has changed is painted with it.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    void Wait() {
        painted_ = false;
        while (!painted_) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

private:
    bool painted_ = false;
};

QWidget& WidgetNamed(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* const found = window->findChild<QWidget*>(QLatin1String(name))) return *found;
    }
    std::cerr << "zolv-desktop-bench: no widget " << name << '\n';
    std::exit(1);
}

/// The program from its start to its first painted window, on the gearing page.
std::unique_ptr<Desktop> StartProgram() {
    FreshStart();
    auto desktop = std::make_unique<Desktop>();
    LoadZolv();
    LanguageSelection.SetVisible(false);
    Zolv.SetVisible(true);
    Zolv.Select_Page.Pick(1);
    PaintWatch watch(desktop->Main());
    desktop->Open();
    watch.Wait();
    return desktop;
}

void Press(QWidget& widget, Qt::Key key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &release);
}

/// Digits come and go at the end of the third gear's ratio, each handed over by Enter; all that follows from it is
/// painted with `watched`.
void PressKeys(benchmark::State& state, QWidget& watched) {
    PaintWatch watch(watched);
    QWidget& box = WidgetNamed("Gear3");
    box.setFocus();
    Press(box, Qt::Key_End);
    bool longer = false;
    for (auto _ : state) {
        longer = !longer;
        longer ? Press(box, Qt::Key_5, QStringLiteral("5")) : Press(box, Qt::Key_Backspace);
        Press(box, Qt::Key_Return);
        watch.Wait();
    }
}

void KeyPressToPaintedWindow(benchmark::State& state) {
    const auto desktop = StartProgram();
    PressKeys(state, WidgetNamed("SpeedPlot"));
}
BENCHMARK(KeyPressToPaintedWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The same with curves of a point each 0.05 seconds.
void KeyPressToPaintedTimePlots(benchmark::State& state) {
    const auto desktop = StartProgram();
    desktop->TheBinding().Act([] { Zolv.Select_Graphs.Pick(1); });
    PressKeys(state, WidgetNamed("SpeedTimeGraph"));
}
BENCHMARK(KeyPressToPaintedTimePlots)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The same with the table of the run in view, all of whose rows are new.
void KeyPressToPaintedTable(benchmark::State& state) {
    const auto desktop = StartProgram();
    desktop->TheBinding().Act([] { Zolv.Select_Graphs.Pick(2); });
    PressKeys(state, *static_cast<QAbstractScrollArea&>(WidgetNamed("AccelerationData")).viewport());
}
BENCHMARK(KeyPressToPaintedTable)->Unit(benchmark::kMillisecond)->UseRealTime();

void MoveSlider(benchmark::State& state) {
    PaintWatch watch(WidgetNamed("SpeedPlot"));
    QWidget& slider = WidgetNamed("Select_Ratio3");
    bool up = false;
    for (auto _ : state) {
        up = !up;
        Press(slider, up ? Qt::Key_Right : Qt::Key_Left);
        watch.Wait();
    }
}

void SliderMoveToPaintedWindow(benchmark::State& state) {
    const auto desktop = StartProgram();
    MoveSlider(state);
}
BENCHMARK(SliderMoveToPaintedWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

void SliderMoveWithAHeldSetUpToPaintedWindow(benchmark::State& state) {
    const auto desktop = StartProgram();
    desktop->TheBinding().Act([] { Zolv.SetUpHold.Click(); });
    MoveSlider(state);
}
BENCHMARK(SliderMoveWithAHeldSetUpToPaintedWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

/// A process of its own, from its creation to its end, which it reaches as soon as its window is painted.
void StartToFirstPaintedWindow(benchmark::State& state) {
    for (auto _ : state) {
        if (QProcess::execute(QApplication::applicationFilePath(), {QLatin1String(kStartOnly)}) != 0) {
            state.SkipWithError("the program did not start");
        }
    }
}
BENCHMARK(StartToFirstPaintedWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace zolv

int main(int argc, char** argv) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    zolv::ApplyTheme();
    if (!QDir::setCurrent(QStringLiteral(ZOLV_DATA))) return 1;
    if (argc > 1 && std::strcmp(argv[1], zolv::kStartOnly) == 0) {
        zolv::StartProgram();
        std::_Exit(0);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
