#include "platform/qt/WindowPlace.h"

#include <QApplication>
#include <QGuiApplication>
#include <QWidget>
#include <algorithm>

namespace velmora {
namespace {

constexpr QMargins kUsualFrame(1, 28, 1, 2);

bool isPlain(const QWidget& window) {
    return (window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
}

QMargins shownFrame(const QWidget& window) {
    const QRect inside = window.geometry();
    const QRect outside = window.frameGeometry();
    return {inside.left() - outside.left(), inside.top() - outside.top(),
            outside.right() - inside.right(), outside.bottom() - inside.bottom()};
}

bool hasFrame(const QWidget& window) {
    return window.isVisible() && window.windowType() != Qt::Popup &&
           window.windowType() != Qt::ToolTip && isPlain(window) && !shownFrame(window).isNull();
}

QPoint within(const QRect& room, const QSize& outside, QPoint corner) {
    const QPoint last(room.right() + 1 - outside.width(), room.bottom() + 1 - outside.height());
    return {std::max(std::min(corner.x(), last.x()), room.left()),
            std::max(std::min(corner.y(), last.y()), room.top())};
}

QSize outsideOf(const QWidget& window) {
    return window.size().grownBy(frameOf(window));
}

}  // namespace

bool systemPlacesWindows() {
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QMargins frameOf(const QWidget& window) {
    if (hasFrame(window))
        return shownFrame(window);
    for (const QWidget* other : QApplication::topLevelWidgets())
        if (hasFrame(*other))
            return shownFrame(*other);
    return kUsualFrame;
}

QSize largestInside(const QRect& room, const QWidget& window) {
    return room.size().shrunkBy(frameOf(window));
}

void centreIn(const QRect& room, QWidget& window, int raise) {
    if (systemPlacesWindows() || !isPlain(window))
        return;
    const QSize outside = outsideOf(window);
    const QPoint middle(room.left() + (room.width() - outside.width()) / 2,
                        room.top() + (room.height() - outside.height()) / 2 - raise);
    window.move(within(room, outside, middle));
}

void moveInto(const QRect& room, QWidget& window) {
    if (systemPlacesWindows() || !isPlain(window))
        return;
    const QPoint corner = within(room, outsideOf(window), window.pos());
    if (corner != window.pos())
        window.move(corner);
}

}  // namespace velmora
