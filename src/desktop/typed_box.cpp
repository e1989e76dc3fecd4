#include "desktop/typed_box.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

#include "desktop/box_sliders.h"
#include "desktop/texts_of_qt.h"
#include "fields/kinds.h"
#include "text/number_text.h"

namespace zolv {
namespace {

constexpr int kPause_ms = 300;

/// What a user may type into a box. A longer text of the program stands and can only be shortened.
int TypingLimit(const TextBox& field, const QString& text) {
    constexpr int kAnyText = 32767;  // the box's own limit
    if (field.MaxLength() == 0) return kAnyText;
    return std::max(static_cast<int>(field.MaxLength()), static_cast<int>(text.size()));
}

/// What the box shows of its field. A number that another direction or unit has left may have a dozen digits, for which
/// a box beside a slider has no room.
QString ShownText(const TextBox& field) {
    constexpr int kDecimals = 3;
    const std::string& text = field.Text();
    const std::size_t point = text.find('.');
    const bool longer = point != std::string::npos && text.size() > point + 1 + kDecimals;
    return ToQt(longer && SliderBeside(field) != nullptr ? RoundedText(Val(text), kDecimals) : text);
}

/// Brings the field's text into the box, with the caret at its end.
/// @return whether the box had another one
bool SetText(QLineEdit& edit, const TextBox& field) {
    const QString text = ShownText(field);
    const int limit = TypingLimit(field, text);
    if (edit.text() == text && edit.maxLength() == limit) return false;
    edit.setMaxLength(limit);
    edit.setText(text);
    return true;
}

bool HasDigit(const QString& text) {
    return std::ranges::any_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool IsStepOfHistory(const QKeyEvent& key) {
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}

}  // namespace

void User::TypesInto(TypedBox& box) {
    if (!IsTypingInto(box)) HandOver();
    typing_ = &box;
}

void User::TypesNoMoreInto(const TypedBox& box) {
    if (IsTypingInto(box)) typing_ = nullptr;
}

void User::HandOver() {
    if (typing_ != nullptr) typing_->HandOver();
}

TypedBox::TypedBox(User& user, TextBox& field, QLineEdit& edit)
    : QObject(&edit), user_(user), field_(field), edit_(edit), slider_(SliderBeside(field)) {
    pause_.setSingleShot(true);
    pause_.setInterval(kPause_ms);
    connect(&pause_, &QTimer::timeout, this, &TypedBox::Paused);
    connect(&edit, &QLineEdit::textEdited, this, &TypedBox::Edited);
    edit.installEventFilter(this);
}

TypedBox::~TypedBox() { user_.TypesNoMoreInto(*this); }

bool TypedBox::HoldsNumber() const {
    return field_.OnKeyPress || edit_.inputMethodHints().testFlag(Qt::ImhFormattedNumbersOnly);
}

bool TypedBox::IsOpen() const { return field_.Visible() && field_.Enabled() && !field_.Locked(); }

QString TypedBox::Typed() const {
    QString typed = edit_.text();
    if (HoldsNumber()) typed.replace(u',', u'.');
    return typed;
}

void TypedBox::Paint() {
    if (giving_ || user_.IsTypingInto(*this)) return;
    const int caret = edit_.cursorPosition();
    if (!SetText(edit_, field_)) return;
    before_.reset();
    edit_.setCursorPosition(std::min(caret, static_cast<int>(edit_.text().size())));
}

void TypedBox::Begin() {
    if (before_) return;
    before_ = ToQt(field_.Text());
    gesture_ = NewGesture();
}

void TypedBox::Edited() {
    Begin();
    user_.TypesInto(*this);
    pause_.start();
}

void TypedBox::Paused() {
    if (composing_ || LacksNumber() || BeginsBelowRange() || !user_.IsTypingInto(*this)) return;
    GiveToField(Moment::Pause);
}

void TypedBox::HandOver() { GiveToField(Moment::End); }

void TypedBox::GiveToField(Moment moment) {
    pause_.stop();
    const bool open = IsOpen();
    const QString typed = Typed();
    user_.TypesNoMoreInto(*this);
    if (open && !(slider_ != nullptr && LacksNumber())) {
        giving_ = true;
        user_.Input(
            field_,
            [&] {
                // What a pause gave away before is no more than a part of this: with all that followed from it, as a
                // final drive that was raised, it is taken back first.
                TakeBack(gesture_);
                field_.Enter(FromQt(typed));
            },
            gesture_);
        giving_ = false;
    }
    if (open && moment == Moment::Pause && StandsFor(typed)) return;
    Rewrite();
}

/// "" would be taken for 0: for the lower end of a range, or by the converter for a tyre without a width. It waits; a
/// box beside a slider that is left so has its old number again.
bool TypedBox::LacksNumber() const { return HoldsNumber() && !HasDigit(edit_.text()); }

/// "0." on the way to "0.9": cut to the range, a slow hand could not go on from there.
bool TypedBox::BeginsBelowRange() const {
    const QString typed = Typed();
    return slider_ != nullptr && slider_->Min() > 0 && HoldsNumber() && !typed.isEmpty() &&
           std::ranges::all_of(typed, [](QChar c) { return c == u'0' || c == u'.'; });
}

/// Whether what was typed is what the field holds, but for its form: "2." on the way to "2.5" is to stay.
bool TypedBox::StandsFor(const QString& typed) const {
    if (edit_.text() != typed) return false;
    if (typed == ToQt(field_.Text())) return true;
    return HoldsNumber() && HasDigit(typed) && Val(FromQt(typed)) == Val(field_.Text());
}

void TypedBox::Rewrite() {
    if (!SetText(edit_, field_)) edit_.end(false);
}

bool TypedBox::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::InputMethod:
            composing_ = !static_cast<QInputMethodEvent*>(event)->preeditString().isEmpty();
            if (user_.IsTypingInto(*this)) pause_.start();
            break;
        case QEvent::ShortcutOverride:
            // Escape is the box's own while there is something to bring back.
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && before_) event->accept();
            if (IsStepOfHistory(*static_cast<QKeyEvent*>(event)) && !user_.IsTypingInto(*this)) {
                event->ignore();  // a box whose text is finished has nothing of its own to undo
                return true;
            }
            break;
        case QEvent::KeyPress:
            if (TakesKey(*static_cast<QKeyEvent*>(event))) return true;
            break;
        case QEvent::FocusOut:
            // Behind a menu of the box itself the typing goes on.
            if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) Left();
            break;
        default: break;
    }
    return QObject::eventFilter(watched, event);
}

bool TypedBox::TakesKey(const QKeyEvent& key) {
    const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (key.text() == QLatin1String(",") && HoldsNumber()) {
        QKeyEvent point(QEvent::KeyPress, Qt::Key_Period, Qt::NoModifier, QStringLiteral("."));
        QApplication::sendEvent(&edit_, &point);
        return true;
    }
    if (key.key() == Qt::Key_Escape && before_) {
        Restore();
        return true;
    }
    if (plain && slider_ != nullptr && (key.key() == Qt::Key_Up || key.key() == Qt::Key_Down)) {
        Step(key.key() == Qt::Key_Up ? 1 : -1);
        return true;
    }
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) Left();
    return false;
}

void TypedBox::Restore() {
    pause_.stop();
    user_.TypesNoMoreInto(*this);
    const std::string before = FromQt(*before_);
    before_.reset();
    user_.Act([&] {
        if (TakeBack(gesture_)) return;  // with all that followed, as a final drive that was raised
        // Not by Enter: the program's own text may be longer than what a user may type.
        field_.SetText(before);
        NoteInput(field_, gesture_);
    });
    Rewrite();
}

void TypedBox::Step(int direction) {
    Begin();
    const QString before = *before_;
    user_.Input(
        field_, [&] { slider_->Drag(slider_->Value() + direction * slider_->SmallStep()); }, gesture_);
    before_ = before;
    Rewrite();
}

void TypedBox::Left() {
    if (user_.IsTypingInto(*this)) {
        GiveToField(Moment::End);
    } else if (before_) {
        Rewrite();  // a form that a pause left standing
    }
    before_.reset();
}

}  // namespace zolv
