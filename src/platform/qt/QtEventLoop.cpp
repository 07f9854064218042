#include "platform/qt/QtEventLoop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <thread>
#include <utility>

namespace velmora {
namespace {

constexpr std::chrono::milliseconds kBetweenTurns{4};

}  // namespace

void QtEventLoop::yield() {
    const auto now = std::chrono::steady_clock::now();
    if (now - lastTurn_ < kBetweenTurns)
        return;
    QCoreApplication::processEvents();
    lastTurn_ = std::chrono::steady_clock::now();
}

void QtEventLoop::waitFor(std::chrono::milliseconds duration) {
    if (closing_)
        return;
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, &QEventLoop::quit);
    QObject::connect(&receiver_, &QObject::objectNameChanged, &loop, &QEventLoop::quit);
    loop.exec();
}

void QtEventLoop::freeze(std::chrono::milliseconds duration) {
    std::this_thread::sleep_for(duration);
}

void QtEventLoop::post(const WorkOwner& owner, std::function<void()> work) {
    QMetaObject::invokeMethod(
        &receiver_,
        [this, body = owner.owning(std::move(work))] {
            if (!closing_)
                body();
        },
        Qt::QueuedConnection);
}

void QtEventLoop::beginClosing() {
    closing_ = true;
    receiver_.setObjectName(QStringLiteral("closing"));  // its signal ends the waits
}

}  // namespace velmora
