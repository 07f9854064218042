#pragma once

#include <QCoreApplication>
#include <QTimer>

namespace velmora::test {

// The end of an earlier program outside an event loop would end the next one, such as that of a
// box, as soon as it begins.
inline void forgetEarlierEnds() {
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
}

}  // namespace velmora::test
