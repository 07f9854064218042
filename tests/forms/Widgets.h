#pragma once

#include <gtest/gtest.h>

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QTest>
#include <QToolTip>
#include <QWidget>
#include <chrono>

#include "platform/controls/CalendarControl.h"

namespace velmora::test {

// The widget of this object name below `parent`; the test fails when there is none.
template <typename Widget>
Widget& named(const QWidget& parent, const char* objectName) {
    auto* found = parent.findChild<Widget*>(QLatin1String(objectName));
    if (!found)
        throw std::runtime_error(std::string("no widget named ") + objectName);
    return *found;
}

inline void showActive(QWidget& widget) {
    widget.show();
    widget.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
}

// Whether something of a date on show is in the red of days with appointments.
inline bool isRed(CalendarControl& control, std::chrono::year_month_day date) {
    const QImage image = control.grab(control.dateRect(date)).toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == QColor(255, 0, 0))
                return true;
    return false;
}

// Brings a drag of `data` over the middle of `target`; gives whether it may be dropped there.
inline bool dragOver(QWidget& target, const QMimeData& data) {
    QDragEnterEvent enter(target.rect().center(), Qt::CopyAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&target, &enter);
    return enter.isAccepted();
}

inline void dragOut(QWidget& target) {
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&target, &leave);
}

// Drops `data` on the middle of `target`; gives whether it was taken.
inline bool dropOn(QWidget& target, const QMimeData& data) {
    QDropEvent drop(target.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QCoreApplication::sendEvent(&target, &drop);
    return drop.isAccepted();
}

// The tool tip that comes up at a place of the target, with its markup; empty where none does.
inline QString toolTipAt(QWidget& target, QPoint place) {
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent event(QEvent::ToolTip, place, target.mapToGlobal(place));
    QCoreApplication::sendEvent(&target, &event);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

// The colour of one point of the widget as it is painted.
inline QColor pixelOf(QWidget& widget, QPoint point) {
    const QImage image = widget.grab().toImage();
    return image.pixelColor(point * image.devicePixelRatio());
}

}  // namespace velmora::test
