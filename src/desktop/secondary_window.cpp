#include "desktop/secondary_window.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "desktop/theme.h"

namespace zolv {
namespace {

/// As large as what it shows, also when that grows with another language, and never larger than the screen; only then
/// does it scroll.
class ScrolledBody : public QScrollArea {
public:
    explicit ScrolledBody(QWidget* parent) : QScrollArea(parent) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
    }

    QSize sizeHint() const override { return Fitted(widget()->sizeHint()); }
    QSize minimumSizeHint() const override { return Fitted(widget()->minimumSizeHint()); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool done = QScrollArea::eventFilter(watched, event);
        if (watched == widget() && event->type() == QEvent::LayoutRequest) {
            updateGeometry();
            MakeRoom();
        }
        return done;
    }

private:
    /// Lines that wrap, or whose letters are higher, make the body higher than a window that is open: the window grows
    /// with it as far as the screen goes.
    void MakeRoom() {
        if (!isVisible() || !widget()->hasHeightForWidth()) return;
        QWidget& top = *window();
        const int lack = widget()->heightForWidth(viewport()->width()) - viewport()->height();
        const int room = screen()->availableGeometry().bottom() - top.frameGeometry().bottom();
        if (lack > 0 && room > 0) top.resize(top.width(), top.height() + std::min(lack, room));
    }

    QSize Fitted(QSize wanted) const {
        constexpr QSize kRoomAround(2 * kMargin, 120);  // the window's frame, title and buttons
        const QSize room = screen()->availableSize() - kRoomAround;
        if (widget()->hasHeightForWidth()) {
            wanted.setHeight(std::max(wanted.height(), widget()->heightForWidth(wanted.width())));
        }
        if (wanted.height() > room.height()) wanted.rwidth() += verticalScrollBar()->sizeHint().width();
        if (wanted.width() > room.width()) wanted.rheight() += horizontalScrollBar()->sizeHint().height();
        return wanted.boundedTo(room);
    }
};

/// The style leaves hardly any room beside the text of a long button.
class RoomyButton : public QPushButton {
public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override { return QPushButton::sizeHint() + QSize(2 * kGap, 0); }
};

}  // namespace

SecondaryWindow::SecondaryWindow(Binding& binding, Window& window, QWidget* parent)
    : QWidget(parent, Qt::Dialog), binding_(binding), window_(window) {
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kSection);
    auto* const scroll = new ScrolledBody(this);
    body_ = new QWidget;
    scroll->setWidget(body_);
    // The window's own ground shows through; a view's would be white.
    scroll->viewport()->setAutoFillBackground(false);
    body_->setAutoFillBackground(false);
    layout->addWidget(scroll);
    buttons_ = new QHBoxLayout;
    buttons_->setSpacing(kGap);
    layout->addLayout(buttons_);
}

void SecondaryWindow::AddButtons(std::initializer_list<Button*> left, std::initializer_list<Button*> right) {
    for (Button* field : left) buttons_->addWidget(MakeButton(*field, this));
    buttons_->addStretch();
    for (Button* field : right) buttons_->addWidget(MakeButton(*field, this));
}

void SecondaryWindow::AddNote(QWidget* note) {
    int place = 0;
    while (buttons_->itemAt(place)->spacerItem() == nullptr) ++place;
    buttons_->insertWidget(place, note);
}

void SecondaryWindow::Complete() { binding_.Bind(window_, *this); }

QPushButton* SecondaryWindow::MakeButton(Button& field, QWidget* owner) { return Make<RoomyButton>(field, owner); }

QComboBox* SecondaryWindow::MakeList(PickList& field, QWidget* owner, const Field& caption) {
    auto* const list = Make<QComboBox>(field, owner, &caption);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return list;
}

QLineEdit* SecondaryWindow::MakeNumberBox(TextBox& field, QWidget* owner, const Field& caption, int characters) {
    constexpr int kAroundText = 14;  // frame and margins of a box
    auto* const box = Make<QLineEdit>(field, owner, &caption);
    box->setAlignment(Qt::AlignRight);
    box->setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QLatin1Char('0')) * characters + kAroundText);
    return box;
}

void SecondaryWindow::PlaceOnScreen() {
    // A page that is not in front would only learn how large it is when it comes there, and the window jump.
    for (QWidget* part : findChildren<QWidget*>()) part->ensurePolished();
    for (QLayout* layout : findChildren<QLayout*>()) layout->invalidate();
    if (!place_.isEmpty()) {
        restoreGeometry(place_);
        resize(size().expandedTo(minimumSizeHint()));  // another language may need more
        return;
    }
    const QRect room = screen()->availableGeometry();
    resize(sizeHint().boundedTo(room.size()));
    move(room.center() - rect().center());
}

void SecondaryWindow::StayAbove(QWidget& main, QWidget* opener) {
    main_ = &main;
    opener_ = opener;
    if (opener_ != nullptr) opener_->installEventFilter(this);
}

/// The window's handle is that on which the order of windows rests.
void SecondaryWindow::TakeOrder() {
    if (main_ == nullptr) return;
    const QWidget& below = opener_ != nullptr && opener_->isVisible() ? *opener_ : *main_;
    windowHandle()->setTransientParent(below.windowHandle());
}

bool SecondaryWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool opens = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    if (watched == opener_ && opens && isVisible()) TakeOrder();
    return QWidget::eventFilter(watched, event);
}

void SecondaryWindow::setVisible(bool visible) {
    if (visible && !isVisible()) {
        PlaceOnScreen();
        winId();  // makes the window's handle
        TakeOrder();
    }
    if (!visible && isVisible()) place_ = saveGeometry();
    QWidget::setVisible(visible);
}

void SecondaryWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    binding_.Act([this] { window_.Close(); });
}

/// One that grows at its lower edge goes up before it leaves the screen.
void SecondaryWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const QRect room = screen()->availableGeometry();
    const int beyond = frameGeometry().bottom() - room.bottom();
    if (isVisible() && beyond > 0) move(x(), std::max(room.top(), y() - beyond));
}

void SecondaryWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace zolv
