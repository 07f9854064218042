#include "core/forms/CalendarPlace.h"

#include <QApplication>
#include <QMainWindow>
#include <QScreen>

#include "core/forms/Desk.h"
#include "platform/Twips.h"
#include "platform/qt/WindowPlace.h"

namespace velmora {
namespace {

constexpr QSize kFirstOutside(1280, 800);  // with the frame

}  // namespace

void CalendarPlace::takeFirstSize() {
    window_.setMinimumSize(kLeastSize);
    window_.resize(kFirstOutside.shrunkBy(frameOf(window_)));
}

void CalendarPlace::takeShape() {
    const QRect room = window_.screen()->availableGeometry();
    const QSize most = largestInside(room, window_);
    window_.setMinimumSize(kLeastSize.boundedTo(most));
    const QSize wanted = shape_.width > 0 && shape_.height > 0
                             ? QSize(shape_.width, shape_.height)
                             : kFirstOutside.shrunkBy(frameOf(window_));
    window_.resize(wanted.boundedTo(most));
    desk_.chooseDocPadWidth(shape_.docPadWidth);
}

WindowShape CalendarPlace::shape() const {
    const bool fills = window_.isMaximized() || window_.isFullScreen();
    const QSize inside = fills ? window_.normalGeometry().size() : window_.size();
    return {inside.width(), inside.height(), window_.isMaximized(), desk_.chosenDocPadWidth()};
}

void CalendarPlace::showCentred(int raise) {
    kept_ = false;
    takeShape();
    centreIn(window_.screen()->availableGeometry(), window_, raise / kTwipsPerPixel);
    if (shape_.maximized)
        window_.showMaximized();
    else
        window_.show();
}

void CalendarPlace::bringToFront() {
    window_.setWindowState(window_.windowState() & ~Qt::WindowMinimized);
    window_.show();
    window_.raise();
    // A dialog that waits for its answer stays before the window, and has the keys.
    QWidget* const asking = QApplication::activeModalWidget();
    if (asking)
        asking->raise();
    (asking ? asking : &window_)->activateWindow();
}

void CalendarPlace::keepOnScreen() {
    if (kept_)
        return;
    kept_ = true;
    const QRect room = window_.screen()->availableGeometry();
    if (window_.isMaximized() || window_.isFullScreen() || room.contains(window_.frameGeometry()))
        return;
    const QSize most = largestInside(room, window_);
    window_.setMinimumSize(kLeastSize.boundedTo(most));
    window_.resize(window_.size().boundedTo(most));
    moveInto(room, window_);
}

}  // namespace velmora
