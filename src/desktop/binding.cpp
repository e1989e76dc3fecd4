#include "desktop/binding.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <optional>
#include <utility>

#include "desktop/box_sliders.h"
#include "desktop/canvas_view.h"
#include "desktop/log_table.h"
#include "desktop/picture_view.h"
#include "desktop/run_table.h"
#include "desktop/state_mark.h"
#include "desktop/text_table.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/value_label.h"

namespace zolv {
namespace {

void PaintRows(const PickList& field, QComboBox& box) {
    const auto& rows = field.Rows();
    bool same = box.count() == static_cast<int>(rows.size());
    for (int i = 0; same && i < box.count(); ++i) same = FromQt(box.itemText(i)) == rows[static_cast<std::size_t>(i)];
    if (same) return;
    box.clear();
    for (const std::string& row : rows) box.addItem(ToQt(row));
}

/// A box's text in its field's colour, with the mark of that state in front.
void PaintColour(const TextBox& field, QLineEdit& edit, QAction& mark) {
    const QPalette ground = edit.parentWidget() != nullptr ? edit.parentWidget()->palette() : edit.palette();
    const QColor ink = TextColour(field.Colour(), ground);
    QPalette colours;
    if (field.Colour()) colours.setColor(QPalette::Text, ink);
    edit.setPalette(colours);
    mark.setVisible(HasMark(field.Colour()));
    if (HasMark(field.Colour())) mark.setIcon(MarkIcon(*field.Colour(), ink));
}

/// A ratio moves by hundredths under the mouse, which is less than a pixel, and by thousandths under the arrow keys.
void StepByRatio(QSlider& slider) {
    QObject::connect(&slider, &QSlider::actionTriggered, &slider, [&slider](int action) {
        constexpr int kHundredth = 10;
        if (action == QAbstractSlider::SliderSingleStepAdd) slider.setSliderPosition(slider.value() + 1);
        if (action == QAbstractSlider::SliderSingleStepSub) slider.setSliderPosition(slider.value() - 1);
        if (action == QAbstractSlider::SliderMove && slider.isSliderDown()) {
            slider.setSliderPosition((slider.sliderPosition() + kHundredth / 2) / kHundredth * kHundredth);
        }
    });
}

/// Which moves of a slider are one step of the user: a drag, from press to release, or moves by keys or the wheel that
/// follow each other soon.
class SliderMoves : public QObject {
public:
    explicit SliderMoves(QSlider& slider) : QObject(&slider), slider_(slider) {
        const auto begin = [this] {
            gesture_ = NewGesture();
            last_.invalidate();
        };
        connect(&slider, &QSlider::sliderPressed, this, begin);
        connect(&slider, &QSlider::sliderReleased, this, begin);
    }

    int GestureOfMove() {
        constexpr qint64 kSoon_ms = 1000;
        const bool goesOn = slider_.isSliderDown() || (last_.isValid() && last_.elapsed() < kSoon_ms);
        if (!goesOn) gesture_ = NewGesture();
        last_.start();
        return gesture_;
    }

private:
    QSlider& slider_;
    QElapsedTimer last_;
    int gesture_ = NewGesture();
};

}  // namespace

void Binding::Name(QObject& object, const Field& field) { object.setObjectName(ToQt(field.Name())); }

void Binding::NameByCaption(QWidget& widget, const Field& field, const Field* caption) {
    const Field& words = caption != nullptr ? *caption : field;
    OnChanged(words, [&widget, &words] { widget.setAccessibleName(PlainCaption(words.Caption())); });
}

void Binding::PaintLook(const Field& field, QWidget& widget) {
    // A widget in a layout takes no room while its field is hidden.
    widget.setVisible(field.Visible());
    widget.setEnabled(field.Enabled() && !field.Locked());
    widget.setToolTip(ToQt(field.ToolTip()));
}

void Binding::OnChanged(const Field& field, std::function<void()> paint) {
    paint();
    painters_[&field].push_back(std::move(paint));
}

void Binding::PaintChanged() {
    for (Window* window : AllWindows()) {
        for (const Field* field : window->TakeChanged()) {
            const auto painters = painters_.find(field);
            if (painters == painters_.end()) continue;
            for (const auto& paint : painters->second) paint();
        }
    }
}

void Binding::IgnoreWheelWithoutFocus(QWidget& widget) {
    widget.setFocusPolicy(Qt::StrongFocus);
    widget.installEventFilter(this);
}

bool Binding::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel) {
        const auto* const widget = qobject_cast<QWidget*>(watched);
        if (widget != nullptr && !widget->hasFocus()) {
            event->ignore();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void Binding::Bind(Label& field, QLabel& label) {
    Name(label, field);
    label.setTextFormat(Qt::PlainText);
    OnChanged(field, [&] {
        label.setText(PlainCaption(field.Caption()));
        label.setAccessibleName(label.text());
        PaintLook(field, label);
    });
}

void Binding::Bind(Label& field, ValueLabel& label) {
    Name(label, field);
    OnChanged(field, [&] {
        label.setText(ToQt(field.Caption()));
        label.SetState(field.Colour());
        label.setAccessibleName(label.text());
        PaintLook(field, label);
    });
}

void Binding::Bind(Panel& field, QGroupBox& box) {
    Name(box, field);
    OnChanged(field, [&] {
        box.setTitle(ToQt(field.Caption()));
        box.setAccessibleName(PlainCaption(field.Caption()));
        if (field.Stack() == 0) PaintLook(field, box);  // in a stack, the panel in front is what shows
    });
}

void Binding::Bind(Panel& field, QWidget& page) {
    Name(page, field);
    NameByCaption(page, field, nullptr);
}

void Binding::BindPress(const Field& field, QAbstractButton& button) {
    Name(button, field);
    OnChanged(field, [&] {
        button.setText(ToQt(field.Caption()));
        button.setAccessibleName(PlainCaption(field.Caption()));
        PaintLook(field, button);
    });
}

void Binding::Bind(Button& field, QPushButton& button) {
    BindPress(field, button);
    QObject::connect(&button, &QPushButton::clicked, this, [this, &field] { Input(field, [&] { field.Click(); }); });
}

void Binding::Bind(MenuEntry& field, QAction& action) {
    Name(action, field);
    const QList<QKeySequence> keys = QKeySequence::listFromString(ToQt(field.Shortcut()));
    action.setShortcuts(keys);
    // A menu shows the first key only, unless the text brings its own.
    QStringList names;
    for (const QKeySequence& key : keys) names << key.toString(QKeySequence::NativeText);
    const QString shown = keys.size() > 1 ? u'\t' + names.join(QStringLiteral(", ")) : QString();
    // The keys of the menus work in the windows beside the main one too; those that turn its pages are its own.
    const bool turns = &field == &Zolv.ViewNextPage || &field == &Zolv.ViewPreviousPage;
    if (!turns) action.setShortcutContext(Qt::ApplicationShortcut);
    OnChanged(field, [&field, &action, shown] {
        action.setText(ToQt(field.Caption()) + shown);
        action.setEnabled(field.Enabled());
        action.setVisible(field.Visible());
    });
    QObject::connect(&action, &QAction::triggered, this, [this, &field] { Input(field, [&] { field.Click(); }); });
}

void Binding::Bind(TextBox& field, QLineEdit& edit, const Field* caption) {
    Name(edit, field);
    NameByCaption(edit, field, caption);
    edit.setReadOnly(field.Locked());
    QAction* const mark = edit.addAction(QIcon(), QLineEdit::LeadingPosition);
    auto* const typed = new TypedBox(user_, field, edit);
    // Colours are costly to set, and mostly stay what they are.
    OnChanged(field, [this, &field, &edit, mark, typed, first = true, painted = std::optional<Rgb>()]() mutable {
        typed->Paint();
        PaintLook(field, edit);
        if (!std::exchange(first, false) && painted == field.Colour()) return;
        painted = field.Colour();
        PaintColour(field, edit, *mark);
    });
}

void Binding::Bind(TextBox& field, RunTable& table, const Field* caption) {
    Name(table, field);
    NameByCaption(table, field, caption);
    OnChanged(field, [&] {
        table.setVisible(field.Visible());
        table.SetStale();
    });
}

void Binding::Bind(TextBox& field, TextTable& table, const Field* caption) {
    Name(table, field);
    NameByCaption(table, field, caption);
    OnChanged(field, [&] {
        table.setVisible(field.Visible());
        table.setToolTip(ToQt(field.ToolTip()));
        table.Show(field);
    });
}

void Binding::Bind(TextBox& field, LogTable& table) {
    Name(table, field);
    OnChanged(field, [&] {
        table.setVisible(field.Visible());
        table.setAccessibleName(ToQt(field.ToolTip()));
        table.Show(ToQt(field.Text()));
    });
}

void Binding::Bind(Slider& field, QSlider& slider, const Field* caption) {
    Name(slider, field);
    NameByCaption(slider, field, caption);
    IgnoreWheelWithoutFocus(slider);
    slider.setOrientation(Qt::Horizontal);
    OnChanged(field, [&] {
        const QSignalBlocker quiet(slider);
        slider.setRange(field.Min(), field.Max());
        slider.setSingleStep(field.SmallStep());
        slider.setPageStep(field.LargeStep());
        slider.setTickInterval(field.Tick());
        slider.setValue(field.Value());
        PaintLook(field, slider);
    });
    if (HoldsRatio(field)) StepByRatio(slider);
    QObject::connect(&slider, &QSlider::valueChanged, this, [this, &field, moves = new SliderMoves(slider)](int value) {
        Input(
            field, [&] { field.Drag(value); }, moves->GestureOfMove());
    });
}

void Binding::Bind(PickList& field, QComboBox& box, const Field* caption) {
    Name(box, field);
    NameByCaption(box, field, caption);
    IgnoreWheelWithoutFocus(box);
    box.setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);  // never narrower than what it shows
    OnChanged(field, [&] {
        const QSignalBlocker quiet(box);
        PaintRows(field, box);
        box.setCurrentIndex(field.Picked());
        PaintLook(field, box);
    });
    QObject::connect(&box, &QComboBox::activated, this,
                     [this, &field](int row) { Input(field, [&] { field.Pick(row); }); });
}

void Binding::Bind(TabStrip& field, QTabBar& bar) {
    Name(bar, field);
    OnChanged(field, [&] {
        const QSignalBlocker quiet(bar);
        const auto& rows = field.Rows();
        while (bar.count() < static_cast<int>(rows.size())) bar.addTab(QString());
        for (int i = 0; i < bar.count(); ++i) {
            bar.setTabText(i, ToQt(rows[static_cast<std::size_t>(i)]));
            bar.setTabToolTip(i, ToQt(field.ToolTips()[static_cast<std::size_t>(i)]));
        }
        bar.setCurrentIndex(field.Picked());
    });
    QObject::connect(&bar, &QTabBar::currentChanged, this,
                     [this, &field](int row) { Input(field, [&] { field.Pick(row); }); });
}

void Binding::Bind(CheckBox& field, QCheckBox& box) {
    BindPress(field, box);
    OnChanged(field, [&] {
        const QSignalBlocker quiet(box);
        box.setChecked(field.Checked());
    });
    QObject::connect(&box, &QCheckBox::clicked, this,
                     [this, &field](bool checked) { Input(field, [&] { field.SetChecked(checked); }); });
}

void Binding::Bind(OptionButton& field, QRadioButton& button) {
    BindPress(field, button);
    OnChanged(field, [&] {
        const QSignalBlocker quiet(button);
        button.setChecked(field.Checked());
    });
    QObject::connect(&button, &QRadioButton::clicked, this, [this, &field] { Input(field, [&] { field.Choose(); }); });
}

void Binding::Bind(Picture& field, PictureView& view) {
    Name(view, field);
    OnChanged(field, [&] {
        view.SetPath(ToQt(field.Path()));
        PaintLook(field, view);
    });
}

void Binding::Bind(CanvasField& field, CanvasView& view) {
    Name(view, field);
    OnChanged(field, [&] {
        view.setAccessibleName(ToQt(field.ToolTip()));
        PaintLook(field, view);
        view.update();
    });
}

void Binding::Bind(Window& field, QWidget& widget) {
    Name(widget, field);
    OnChanged(field, [&] {
        // The place of the system's mark for what is not saved, in windows that have one.
        widget.setWindowTitle(PlainCaption(field.Title()) + QStringLiteral("[*]"));
        if (field.Visible() != widget.isVisible()) widget.setVisible(field.Visible());
        if (field.TakeToFront()) {
            widget.raise();
            widget.activateWindow();
        }
    });
}

void Binding::BindStack(QStackedWidget& stack, const std::vector<Panel*>& panels) {
    for (int i = 0; i < static_cast<int>(panels.size()); ++i) {
        const Panel* const panel = panels[static_cast<std::size_t>(i)];
        OnChanged(*panel, [&stack, panel, i] {
            if (panel->InFront()) stack.setCurrentIndex(i);
        });
    }
}

}  // namespace zolv
