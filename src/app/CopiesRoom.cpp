#include "app/CopiesRoom.h"

#include <QCoreApplication>
#include <QEvent>

#include "core/forms/StatusBar.h"
#include "platform/files/FolderSteps.h"
#include "platform/files/ProgramFolder.h"

namespace velmora {
namespace {

constexpr int kSecondsOfQuiet = 60;
constexpr std::chrono::milliseconds kBetweenPieces(10);

// Whoever comes back in the middle of the work is not kept waiting for its next piece.
constexpr std::chrono::seconds kPause(1);

std::chrono::seconds secondsOfQuiet() {
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("VELMORA_QUIET", &isNumber);
    return std::chrono::seconds(isNumber && wanted > 0 ? wanted : kSecondsOfQuiet);
}

bool isInput(const QEvent& event) {
    switch (event.type()) {
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::InputMethod:
        case QEvent::TouchBegin:
            return true;
        default:
            return false;
    }
}

}  // namespace

CopiesRoom::CopiesRoom(World& world, Calendar& calendar, Books& books, const LongJobs& jobs)
    : world_(world), calendar_(calendar), books_(books), jobs_(jobs), quiet_(secondsOfQuiet()) {
    connect(&look_, &QTimer::timeout, this, &CopiesRoom::look);
    connect(&work_, &QTimer::timeout, this, &CopiesRoom::work);
    connect(&calendar, &Calendar::firstPainted, this, [this] {
        QCoreApplication::instance()->installEventFilter(this);
        sinceInput_.start();
        look_.start(quiet_ / 2);
    });
}

bool CopiesRoom::eventFilter(QObject* watched, QEvent* event) {
    if (isInput(*event))
        sinceInput_.start();
    return QObject::eventFilter(watched, event);
}

bool CopiesRoom::isQuietFor(std::chrono::milliseconds time) const {
    return !world_.loop.closing() && !jobs_.running() && sinceInput_.hasExpired(time.count());
}

void CopiesRoom::look() {
    if (work_.isActive() || !isQuietFor(quiet_))
        return;
    if (!copies_)
        copies_ = std::make_unique<DailyCopies>(DailyCopies::Parts{
            world_.files, world_.files, world_.locations, books_, replacements_, world_.clock,
            configurationFolder() / "settings.db", stateFolder() / "copies", freeRoomAt});
    if (copies_->areDue())
        work_.start(kBetweenPieces);
}

void CopiesRoom::work() {
    if (!isQuietFor(kPause) || copies_->step())
        return;
    work_.stop();
    if (copies_->failure())
        calendar_.status().show(world_.codePage.fromUtf8(*copies_->failure()));
}

}  // namespace velmora
