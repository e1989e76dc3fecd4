// zolv-screenshots FOLDER [LANGUAGE] [dark] [WxH]: pictures of every window and page, as PNG files in FOLDER; with a
// size, of the pages in a main window of that size. It starts in the current directory as Zolv does.
// scripts/screenshots calls it for each theme, language and display scale. zolv-screenshots FOLDER --documents
// EXAMPLES: the pictures of the manual, of set-ups in the folder EXAMPLES.

#include <QApplication>
#include <QListWidget>
#include <QMouseEvent>
#include <QPalette>
#include <QRegularExpression>
#include <QTimer>
#include <functional>
#include <iostream>

#include "desktop/canvas_view.h"
#include "desktop/desktop.h"
#include "desktop/main_window.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/window_dialogs.h"
#include "fields/all_windows.h"
#include "files/settings_file.h"
#include "platform/dialogs.h"
#include "shell/fresh_start.h"
#include "shell/start_up.h"
#include "studies/finder_page.h"
#include "studies/sweep_page.h"
#include "text/words.h"

namespace zolv {
namespace {

/// What stands before the picture is taken; the steps build on each other.
struct Shot {
    const char* name;
    Window& window;
    std::function<void()> before;
};

QWidget* WidgetOf(const Window& window) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == ToQt(window.Name())) return widget;
    }
    return nullptr;
}

/// Moves the mouse to a place of a plot, in shares of its sides; it leaves all others.
void PointAt(const char* plot, double across, double down) {
    for (CanvasView* view : WidgetOf(Zolv)->findChildren<CanvasView*>()) {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view, &leave);
        if (view->objectName() != QLatin1String(plot)) continue;
        const QPointF at(view->width() * across, view->height() * down);
        QMouseEvent move(QEvent::MouseMove, at, view->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(view, &move);
    }
}

/// A search or a sweep runs beside the windows: waits for its end.
void PressAndWait(Button& start) {
    start.Click();
    while (finderWork.Running() || sweepWork.Running()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void EnterTrack() {  // as in examples/kestrel_park.straights
    Finder.Straights.SetText(
        "name,entry speed [m/s],length [m]\nMain straight,27,860\nHill,19,310\nDip,31,220\nBack straight,23,640\n"
        "Paddock,15,180\n");
}

void SweepGears() {
    SweepPanel.SetVisible(true);
    SweepPanel.First.Input.Pick(2);
    SweepPanel.Second.Input.SetText(words["FinalDriveInput"]);
    SweepPanel.Second.From.Enter("3");
    SweepPanel.Second.To.Enter("6");
    PressAndWait(SweepPanel.Start);
}

std::vector<Shot> StudyShots() {
    return {
        {"finder", Finder,
         [] {
             Zolv.Select_Car.SetText("Wisp 4");
             Finder.SetVisible(true);
             Finder.FreeRatios.SetChecked(true);
             PressAndWait(Finder.Start);
         }},
        {"finder-straights", Finder,
         [] {
             Zolv.Select_Car.SetText("Series Mu");
             Finder.FreeRearWing.SetChecked(true);
             Finder.Goal.Pick(4);
             EnterTrack();
             PressAndWait(Finder.Start);
         }},
        {"finder-searching", Finder, [] { Finder.Start.Click(); }},
        {"sweep", SweepPanel,
         [] {
             finderWork.Abandon();
             SweepPanel.SetVisible(true);
             PressAndWait(SweepPanel.Start);
         }},
        {"sweep-map", SweepPanel, SweepGears},
    };
}

std::vector<Shot> PageShots() {
    const auto page = [](int number) { return [number] { Zolv.Select_Page.Pick(number); }; };
    return {
        {"info", Zolv, page(0)},
        {"gearing", Zolv, page(1)},
        {"gearing-saw-tooth", Zolv,
         [] {
             Zolv.Select_Car.SetText("Series Lo");
             for (CheckBox* box : {&OptionsPanel.EnableAltGraph, &OptionsPanel.EnablePowerLine,
                                   &OptionsPanel.EnableTorqueLine, &OptionsPanel.EnableRedline}) {
                 box->SetChecked(true);
             }
             OptionsPanel.EnableEngineTorque.SetChecked(true);
             PointAt("SpeedPlot", 0.6, 0.5);
         }},
        {"gearing-crosshair", Zolv,
         [] {
             OptionsPanel.EnableAltGraph.SetChecked(false);
             OptionsPanel.EnableEngineTorque.SetChecked(false);
             PointAt("TorquePlot", 0.5, 0.4);
         }},
        {"gearing-time-all", Zolv,
         [] {
             OptionsPanel.EnableVLoads.SetChecked(true);
             Zolv.Select_Graphs.Pick(1);
         }},
        {"gearing-time-crosshair", Zolv, [] { PointAt("TractiveEffortPlot", 0.3, 0.4); }},
        {"gearing-wrong-order", Zolv,
         [] {
             for (CheckBox* box :
                  {&OptionsPanel.EnableTorqueLine, &OptionsPanel.EnableRedline, &OptionsPanel.EnableVLoads}) {
                 box->SetChecked(false);
             }
             PointAt("", 0, 0);  // at none
             Zolv.Select_Graphs.Pick(0);
             Zolv.Select_Car.SetText("Pell S");
             Zolv.Ratios.Input[2].Enter("4");
         }},
        {"info-wrong-order", Zolv, page(0)},
        {"gearing-time", Zolv,
         [=] {
             Zolv.Select_Page.Pick(1);
             Zolv.Ratios.Input[2].Enter("2.4");
             Zolv.Select_Graphs.Pick(1);
         }},
        {"gearing-table", Zolv, [] { Zolv.Select_Graphs.Pick(2); }},
        {"gearing-forces", Zolv,
         [] {
             Zolv.Select_RunView.Pick(1);
             OptionsPanel.RC_Fixed.Choose();
         }},
        {"gearing-log", Zolv, [] { Zolv.Select_RunView.Pick(2); }},
        {"gearing-speeds", Zolv,
         [] {
             OptionsPanel.RC_Auto.Choose();
             Zolv.Select_RunView.Pick(0);
             Zolv.Select_Graphs.Pick(0);
             Zolv.Direction2.Choose();
         }},
        {"tyres", Zolv, page(2)},
        {"aero", Zolv, page(3)},
        {"info-winged", Zolv,
         [] {
             Zolv.Direction1.Choose();
             Zolv.Select_Car.SetText("Series Mu");
             Zolv.Select_Page.Pick(0);
         }},
        {"gearing-winged", Zolv, page(1)},
        {"gearing-six-gears", Zolv,
         [] {
             Zolv.Select_Car.SetText("Series Lo");
             Zolv.Select_Graphs.Pick(0);
         }},
        {"tyres-blown", Zolv,
         [] {
             Zolv.Select_Car.SetText("Series Mu");
             Zolv.Select_Page.Pick(2);
             Zolv.BlowTyres.SetChecked(true);
         }},
        {"aero-winged", Zolv,
         [] {
             Zolv.BlowTyres.SetChecked(false);
             Zolv.Select_Page.Pick(3);
         }},
        {"aero-held", Zolv,
         [] {
             Zolv.SetUpHold.Click();
             Zolv.Select_RearWingAngle.Drag(8);
             Zolv.Select_PressureF.Drag(170);
             for (const int gear : {2, 3, 4}) {
                 Slider& slider = Zolv.Ratios.InputSlider[gear];
                 slider.Drag(slider.Value() - 120 * (5 - gear));
             }
         }},
        {"tyres-held", Zolv, page(2)},
        {"gearing-held", Zolv, page(1)},
        {"gearing-held-time", Zolv, [] { Zolv.Select_Graphs.Pick(1); }},
        {"gearing-held-lost", Zolv, [] { Zolv.TimeDifference.SetChecked(true); }},
        {"gearing-held-table", Zolv, [] { Zolv.Select_Graphs.Pick(2); }},
        {"info-held", Zolv,
         [] {
             Zolv.Select_Car.SetText("Series Lo");
             Zolv.Select_Page.Pick(0);
         }},
    };
}

std::vector<Shot> WindowShots() {
    const auto options = [](int number) {
        return [number] {
            OptionsPanel.SetVisible(true);
            OptionsPanel.Select_Options.Pick(number);
        };
    };
    return {
        {"options-units", OptionsPanel, options(0)},
        {"options-graphs", OptionsPanel, options(1)},
        {"options-misc", OptionsPanel, options(2)},
        {"presets", CustomPresets,
         [] {
             CustomPresets.SetVisible(true);
             CustomPresets.NewCar.SetText("Sable T");
         }},
        {"presets-faults", CustomPresets,
         [] {
             CustomPresets.New.Power.Enter("0");
             CustomPresets.New.Dist.Enter("98");
             CustomPresets.AddCar.Click();
         }},
        {"presets-added", CustomPresets,
         [] {
             CustomPresets.NewCar.SetText("Ondo T");
             CustomPresets.NewName.Enter("Ondo T Rally");
             CustomPresets.AddCar.Click();
         }},
        {"presets-edit", CustomPresets,
         [] { WidgetOf(CustomPresets)->findChild<QListWidget*>(QStringLiteral("EditName"))->setCurrentRow(1); }},
        {"converter", UnitConv, [] { UnitConv.SetVisible(true); }},
        {"languages", LanguageSelection, [] { LanguageSelection.SetVisible(true); }},
    };
}

/// What the manual shows: two set-ups that a driver would use, in units that he would choose.
std::vector<Shot> DocumentShots(const std::string& examples) {
    const auto unit = [](int quantity, int row) {
        OptionsPanel.Units[static_cast<std::size_t>(quantity)].Select.Pick(row);
    };
    return {
        {"info", Zolv,
         [=] {
             OpenSettingsFile(examples + "/sable_t_road.zolv");
             unit(0, 1);  // km/h
         }},
        {"gearing", Zolv, [] { Zolv.Select_Page.Pick(1); }},
        {"run", Zolv,
         [] {
             Zolv.Ratios.FinalDrive.Enter("3.5");
             Zolv.Select_Graphs.Pick(1);
         }},
        {"forces", Zolv, [] { Zolv.Select_RunView.Pick(1); }},
        {"log", Zolv, [] { Zolv.Select_RunView.Pick(2); }},
        {"comparing", Zolv,
         [=] {
             OpenSettingsFile(examples + "/sable_t_road.zolv");
             Zolv.Select_RunView.Pick(0);
             Zolv.Select_Graphs.Pick(0);
             Zolv.SetUpHold.Click();
             Zolv.Ratios.FinalDrive.Enter("3.4");
             Zolv.Ratios.Input[2].Enter("2.15");
         }},
        {"comparing-time", Zolv,
         [] {
             Zolv.Select_Graphs.Pick(1);
             Zolv.TimeDifference.SetChecked(true);
         }},
        {"tyres", Zolv,
         [=] {
             Zolv.SetUpRelease.Click();
             Zolv.TimeDifference.SetChecked(false);
             OpenSettingsFile(examples + "/sable_t_road.zolv");
             Zolv.Select_Page.Pick(2);
             unit(1, 2);  // mm
             unit(2, 1);  // cm^2
         }},
        {"aerodynamics", Zolv,
         [=] {
             unit(1, 0);
             unit(2, 0);
             OpenSettingsFile(examples + "/series_lo_high_downforce.zolv");
             Zolv.Select_Page.Pick(3);
         }},
        {"options", OptionsPanel, [] { OptionsPanel.SetVisible(true); }},
        {"presets", CustomPresets,
         [] {
             CustomPresets.SetVisible(true);
             CustomPresets.NewName.Enter("Ondo T Rally");
             CustomPresets.NewCar.SetText("Ondo T");
             CustomPresets.New.Power.Enter("130");
             CustomPresets.New.Torque.Enter("210");
             CustomPresets.AddCar.Click();
         }},
        {"finder", Finder,
         [=] {
             OpenSettingsFile(examples + "/wisp_4_track.zolv");
             Finder.SetVisible(true);
             for (CheckBox* box : {&Finder.FreeRatios, &Finder.FreeFinalDrive}) box->SetChecked(true);
             Finder.HighRatio[1].Enter("3.5");
             Finder.LowRatio[6].Enter("0.9");
             Finder.Goal.Pick(4);
             EnterTrack();
             PressAndWait(Finder.Start);
         }},
        {"sweep", SweepPanel, SweepGears},
    };
}

class Camera {
public:
    Camera(Desktop& desktop, QString folder) : desktop_(desktop), folder_(std::move(folder)) {}

    /// Takes the dialog that `work` opens, and closes it.
    bool TakeDialog(const char* name, const std::function<void()>& work) {
        constexpr int kOpening_ms = 300;
        bool taken = false;
        QTimer::singleShot(kOpening_ms, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            taken = dialog != nullptr && Save(*dialog, QLatin1String(name));
            if (dialog != nullptr) dialog->close();
        });
        work();
        return taken;
    }

    bool Take(const std::vector<Shot>& shots, const QString& suffix = {}) {
        for (const Shot& shot : shots) {
            desktop_.TheBinding().Act(shot.before);
            constexpr int kLayouts = 6;  // a window that grows with what it shows learns so step by step
            for (int i = 0; i < kLayouts; ++i) QApplication::processEvents();
            if (!Save(*WidgetOf(shot.window), QLatin1String(shot.name) + suffix)) return false;
        }
        return true;
    }

private:
    bool Save(QWidget& widget, const QString& name) {
        const QString path = folder_ + u'/' + name + QStringLiteral(".png");
        if (widget.grab().save(path)) return true;
        std::cerr << "zolv-screenshots: cannot write " << FromQt(path) << '\n';
        return false;
    }

    Desktop& desktop_;
    QString folder_;
};

/// What the system's own dialogs and messages look like in the language in force.
bool TakeDialogs(Camera& camera) {
    WindowDialogs dialogs;
    UseDialogs(&dialogs);
    const bool taken = camera.TakeDialog("dialog-open", [] { Zolv.FileOpen.Click(); }) &&
                       camera.TakeDialog("dialog-save", [] { Zolv.FileSaveAs.Click(); }) &&
                       camera.TakeDialog("dialog-message", [] { OpenSettingsFile("languages.lst"); }) &&
                       camera.TakeDialog("sheet", [] { Zolv.FileSheet.Click(); });
    UseDialogs(nullptr);
    return taken;
}

/// The pictures of the manual; the sheet is that of the set-ups compared.
bool TakeDocuments(Camera& camera, const std::string& examples) {
    if (!camera.Take(DocumentShots(examples))) return false;
    OpenSettingsFile(examples + "/sable_t_road.zolv");
    Zolv.SetUpHold.Click();
    Zolv.Ratios.FinalDrive.Enter("3.4");
    WindowDialogs dialogs;
    UseDialogs(&dialogs);
    const bool taken = camera.TakeDialog("sheet", [] { Zolv.FileSheet.Click(); });
    UseDialogs(nullptr);
    return taken;
}

/// The argument that is a size, as 1024x600; none is an empty one.
QSize SizeAmong(const QStringList& arguments) {
    static const QRegularExpression size(QStringLiteral("^(\\d+)x(\\d+)$"));
    for (const QString& argument : arguments) {
        const QRegularExpressionMatch match = size.match(argument);
        if (match.hasMatch()) return {match.captured(1).toInt(), match.captured(2).toInt()};
    }
    return {};
}

int TakeAll(const QStringList& arguments) {
    FreshStart();
    Desktop desktop;
    LoadZolv();
    const bool documents = arguments.value(2) == QStringLiteral("--documents");
    const auto choose = [&] { LanguageSelection.LanguageList.SetText(FromQt(arguments.value(2))); };
    if (arguments.size() > 2 && !documents) desktop.TheBinding().Act(choose);
    desktop.Open();
    desktop.TheBinding().Act([] {
        LanguageSelection.SetVisible(false);
        Zolv.SetVisible(true);
    });
    Camera camera(desktop, arguments.at(1));
    desktop.Main().resize(1280, 780);
    if (documents) return TakeDocuments(camera, FromQt(arguments.value(3))) ? 0 : 1;
    if (const QSize size = SizeAmong(arguments); !size.isEmpty()) {
        desktop.Main().resize(size);
        return camera.Take(PageShots()) ? 0 : 1;
    }
    if (!camera.Take(PageShots()) || !camera.Take(WindowShots()) || !camera.Take(StudyShots()) || !TakeDialogs(camera))
        return 1;

    desktop.TheBinding().Act([] { Zolv.Select_Car.SetText("Pell S"); });
    desktop.Main().resize(1, 1);  // as small as it gets
    return camera.Take(PageShots(), QStringLiteral("-small")) ? 0 : 1;
}

}  // namespace
}  // namespace zolv

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        std::cerr << "usage: zolv-screenshots FOLDER [LANGUAGE] [dark] [WxH]\n"
                     "       zolv-screenshots FOLDER --documents EXAMPLES\n";
        return 2;
    }
    if (arguments.contains(QStringLiteral("dark"))) QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    zolv::ApplyTheme();
    return zolv::TakeAll(arguments);
}
