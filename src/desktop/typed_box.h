#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>
#include <optional>
#include <utility>

#include "desk/history.h"

class QKeyEvent;
class QLineEdit;

namespace zolv {

class Slider;
class TextBox;
class TypedBox;

/// The one person at the keyboard. What he does is carried out one thing behind the other: what he has typed into a box
/// goes to its field before anything else that he does.
class User {
public:
    /// @param after  what follows each of his acts
    explicit User(std::function<void()> after) : after_(std::move(after)) {}

    template <class Work>
    void Act(Work work) {
        HandOver();
        work();
        after_();
    }

    /// An act that is an input with `field`; the history notes it.
    /// @param gesture  as NoteInput has it
    template <class Work>
    void Input(const Field& field, Work work, int gesture = 0) {
        Act([&] {
            work();
            NoteInput(field, gesture);
        });
    }

    /// The box has a text that its field does not have yet. There is one such box at a time.
    void TypesInto(TypedBox& box);
    bool IsTypingInto(const TypedBox& box) const { return typing_ == &box; }
    void TypesNoMoreInto(const TypedBox& box);

private:
    void HandOver();

    std::function<void()> after_;
    TypedBox* typing_ = nullptr;
};

/// Lies between a text box and what a person types into it. While he types the box shows just that; the field gets the
/// text when the typing pauses, on Enter, when the box is left, and before the user does anything else. Only
/// then does the box show what the field made of it, with the caret at the end. Escape brings back the text with which
/// the typing began, Up and Down step by the box's slider. In a box for a number the comma key types a point.
class TypedBox : public QObject {
public:
    /// Belongs to `edit`. A box for a number is one whose field has a rule for its keys, or whose input method hints
    /// say so.
    TypedBox(User& user, TextBox& field, QLineEdit& edit);
    ~TypedBox() override;

    /// Shows the field's text, unless the box holds one that is still being typed.
    void Paint();

    /// Gives the field what has been typed, and shows what it made of it. Where the box has been taken away from its
    /// user meanwhile, what he typed is dropped.
    void HandOver();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Moment : bool { Pause, End };

    bool HoldsNumber() const;
    bool IsOpen() const;
    QString Typed() const;
    void Begin();
    void Edited();
    void Paused();
    bool LacksNumber() const;
    bool BeginsBelowRange() const;
    void GiveToField(Moment moment);
    bool StandsFor(const QString& typed) const;
    void Rewrite();
    bool TakesKey(const QKeyEvent& key);
    void Restore();
    void Step(int direction);
    void Left();

    User& user_;
    TextBox& field_;
    QLineEdit& edit_;
    Slider* slider_;  // that the box's number goes to; nullptr for none
    QTimer pause_;
    std::optional<QString> before_;  // the text with which the typing began
    int gesture_ = 0;                // what follows until the box is left is one step
    bool giving_ = false;            // the field is at work on what was typed
    bool composing_ = false;         // an input method has text that is not in the box yet
};

}  // namespace zolv
