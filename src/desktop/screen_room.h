#pragma once

#include <QRect>
#include <QWidget>

/// Where windows have room. A window's own frame is not known before it shows.
namespace zolv {

/// The room on the screen of a window for what is inside its frame.
[[nodiscard]] QRect RoomOnScreen(const QWidget& window);

/// Makes a window no larger than that room and moves it inside, as far as its smallest size allows.
void KeepOnScreen(QWidget& window);

}  // namespace zolv
