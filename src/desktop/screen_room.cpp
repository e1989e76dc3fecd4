#include "desktop/screen_room.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace zolv {

QRect RoomOnScreen(const QWidget& window) {
    constexpr QMargins kFrame(8, 40, 8, 8);  // what systems put around a window
    const QScreen* const under = QGuiApplication::screenAt(window.geometry().center());
    return (under != nullptr ? under : window.screen())->availableGeometry().marginsRemoved(kFrame);
}

void KeepOnScreen(QWidget& window) {
    const QRect room = RoomOnScreen(window);
    // One that is seen with its frame, whose size nobody knows before it is shown, stays where it is.
    constexpr QMargins kLeastFrame(0, 16, 0, 0);
    if (window.screen()->availableGeometry().marginsRemoved(kLeastFrame).contains(window.geometry())) return;
    QRect place = window.geometry();
    place.setSize(place.size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
    if (place != window.geometry()) window.setGeometry(place);
}

}  // namespace zolv
