#pragma once

#include <QObject>
#include <functional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "desktop/typed_box.h"
#include "fields/all_windows.h"

class QAbstractButton;
class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSlider;
class QStackedWidget;
class QTabBar;
class QWidget;

namespace zolv {

class CanvasView;
class PictureView;
class LogTable;
class RunTable;
class TextTable;
class ValueLabel;

/// Binds widgets to fields, one rule for each kind of field. What the user does goes to the field; when the event has
/// run to its end, the fields that changed are painted, each once. A widget never writes another widget, and none is
/// written while a calculation runs.
/// A widget is named after its field, and its accessible name is the field's caption, or that of the label beside it.
class Binding : public QObject {
public:
    /// Binds a field to a widget and paints it. `caption`, where a field has no words of its own, is the label that
    /// names it to a screen reader.
    void Bind(Label& field, QLabel& label);      // words: "&&" is one ampersand
    void Bind(Label& field, ValueLabel& label);  // a figure, with its colour
    void Bind(Panel& field, QGroupBox& box);     // a frame with its caption
    void Bind(Panel& field, QWidget& page);      // a page, or a frame whose caption stands elsewhere
    void Bind(Button& field, QPushButton& button);
    void Bind(MenuEntry& field, QAction& action);
    void Bind(TextBox& field, QLineEdit& edit, const Field* caption = nullptr);
    void Bind(TextBox& field, RunTable& table, const Field* caption = nullptr);
    void Bind(TextBox& field, TextTable& table, const Field* caption = nullptr);
    void Bind(TextBox& field, LogTable& table);
    void Bind(Slider& field, QSlider& slider, const Field* caption = nullptr);
    void Bind(PickList& field, QComboBox& box, const Field* caption = nullptr);
    void Bind(TabStrip& field, QTabBar& bar);
    void Bind(CheckBox& field, QCheckBox& box);
    void Bind(OptionButton& field, QRadioButton& button);
    void Bind(Picture& field, PictureView& view);
    void Bind(CanvasField& field, CanvasView& view);

    /// A window: its title and whether it is open.
    void Bind(Window& field, QWidget& widget);

    /// Shows in `stack` the page of those bound to it that is in front.
    void BindStack(QStackedWidget& stack, const std::vector<Panel*>& panels);

    /// Runs `paint` now and whenever `field` has changed.
    void OnChanged(const Field& field, std::function<void()> paint);

    /// Carries out what a user did, then paints what changed. What is being typed in a box goes to its field first.
    template <class Work>
    void Act(Work work) {
        user_.Act(std::move(work));
    }

    /// The same for an input of the user with `field`, which the history notes.
    /// @param gesture  as NoteInput has it
    template <class Work>
    void Input(const Field& field, Work work, int gesture = 0) {
        user_.Input(field, std::move(work), gesture);
    }

    /// Paints the fields that changed since the last time, each once.
    void PaintChanged();

    /// Runs `work` behind each act of the user, when what it changed has been painted.
    void AfterEachAct(std::function<void()> work) { afterEachAct_.push_back(std::move(work)); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Name(QObject& object, const Field& field);
    void NameByCaption(QWidget& widget, const Field& field, const Field* caption);
    void PaintLook(const Field& field, QWidget& widget);
    void IgnoreWheelWithoutFocus(QWidget& widget);
    void BindPress(const Field& field, QAbstractButton& button);

    std::unordered_map<const Field*, std::vector<std::function<void()>>> painters_;
    std::vector<std::function<void()>> afterEachAct_;
    User user_{[this] {
        PaintChanged();
        for (const auto& work : afterEachAct_) work();
    }};
};

}  // namespace zolv
