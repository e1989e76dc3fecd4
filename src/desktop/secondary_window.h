#pragma once

#include <QByteArray>
#include <QWidget>
#include <initializer_list>

#include "desktop/binding.h"

class QHBoxLayout;

namespace zolv {

/// A window beside the main one, above which it stays. Closing it, by its close box or Escape, hides it with its fields
/// as they are. It opens in the middle of the screen the first time, and from then on where it was left.
class SecondaryWindow : public QWidget {
public:
    void setVisible(bool visible) override;

    /// The window that this one stays above, and another one that it is opened from and stays above while that one is
    /// open. They must be there as long.
    void StayAbove(QWidget& main, QWidget* opener = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// A derived constructor fills Body(), adds the buttons and ends with Complete().
    SecondaryWindow(Binding& binding, Window& window, QWidget* parent);

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    Binding& Fields() { return binding_; }

    /// What the window shows above its buttons. It scrolls on a screen that has no room for it.
    QWidget* Body() { return body_; }

    /// Adds the buttons under the body: `left` at the left edge, `right` at the right one.
    void AddButtons(std::initializer_list<Button*> left, std::initializer_list<Button*> right);

    /// Adds a line, or a button that no field stands for, between the buttons of the left and those of the right.
    void AddNote(QWidget* note);

    /// Binds the window itself, which may open it at once.
    void Complete();

    /// Makes a widget and binds it to its field; `caption` as in Binding::Bind.
    template <class Widget, class Kind, class... Caption>
    Widget* Make(Kind& field, QWidget* owner, Caption... caption) {
        auto* const widget = new Widget(owner);
        binding_.Bind(field, *widget, caption...);
        return widget;
    }

    QPushButton* MakeButton(Button& field, QWidget* owner);

    /// A list as wide as its widest row in the language in force.
    QComboBox* MakeList(PickList& field, QWidget* owner, const Field& caption);

    /// A box for a number of some characters.
    QLineEdit* MakeNumberBox(TextBox& field, QWidget* owner, const Field& caption, int characters);

private:
    void PlaceOnScreen();
    void TakeOrder();

    Binding& binding_;
    Window& window_;
    QWidget* main_ = nullptr;
    QWidget* opener_ = nullptr;
    QWidget* body_ = nullptr;
    QHBoxLayout* buttons_ = nullptr;
    QByteArray place_;  // size and position when it was last open
};

}  // namespace zolv
