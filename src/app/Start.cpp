#include "app/Start.h"

#include <QScopeGuard>
#include <QSessionManager>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

#include "app/Application.h"
#include "app/Program.h"
#include "platform/Failure.h"
#include "platform/bus/SilentBus.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/files/ProgramFolder.h"
#include "platform/qt/ActivationToken.h"
#include "platform/qt/ContextKey.h"
#include "platform/qt/EndSignals.h"
#include "platform/qt/PollPump.h"
#include "platform/qt/TestIds.h"
#include "platform/qt/Theme.h"
#include "platform/start/StartMeeting.h"

namespace velmora {
namespace {

// With VELMORA_QUIT_AFTER_FIRST_PAINT=1 in the environment the program ends once its window has
// been painted, so that its start can be measured from outside.
void quitAfterFirstPaintIfWanted(Program& program) {
    if (qEnvironmentVariable("VELMORA_QUIT_AFTER_FIRST_PAINT") != QLatin1String("1"))
        return;
    Calendar& window = program.window();
    QObject::connect(&window, &Calendar::firstPainted, &window, &Calendar::close,
                     Qt::QueuedConnection);
}

// The session manager wants everything on the disk. The toolkit does not say whether the session is
// to end then or to go on, and even an end may still be called off by another program. So nothing
// ends here: the session manager tells us to quit when it comes to that.
void answerSessionManager(Program& program, QSessionManager& manager) {
    if (program.hasToAsk() && manager.allowsInteraction() && !program.askBeforeSessionEnd())
        manager.cancel();
    if (!program.ended())
        program.keepAll();
}

// When the display is lost the toolkit ends the process by itself; nothing but what was registered
// for the exit of a process runs then.
Program* runningProgram = nullptr;

void keepAllBeforeExit() {
    if (Program* program = std::exchange(runningProgram, nullptr))
        program->keepAll();
}

// Has the data of a program kept when the process exits while this lives.
class KeepingAtExit {
  public:
    explicit KeepingAtExit(Program& program) {
        runningProgram = &program;
        std::atexit(keepAllBeforeExit);
    }
    ~KeepingAtExit() { runningProgram = nullptr; }
    KeepingAtExit(const KeepingAtExit&) = delete;
    KeepingAtExit& operator=(const KeepingAtExit&) = delete;
};

// With VELMORA_ANOTHER=1 in the environment this start has a window of its own, whatever others
// there are.
Meeting meetEarlierStart() {
    if (qEnvironmentVariable("VELMORA_ANOTHER") == QLatin1String("1"))
        return {};
    const auto place = meetingPlace(configurationFolder() / "settings.db", programFolder());
    return place ? meetOtherStarts(*place, {.activationToken = tokenOfThisStart()}) : Meeting{};
}

// Later starts are heard by the event loop for as long as this lives.
class HearingLaterStarts {
  public:
    HearingLaterStarts(std::unique_ptr<StartListener> listener, Program& program)
        : listener_(std::move(listener)) {
        if (!listener_)
            return;
        listener_->onSummons(
            [&program](const Summons& summons) { program.bringToFront(summons.activationToken); });
        pump_.emplace(*listener_);
    }

  private:
    std::unique_ptr<StartListener> listener_;
    std::optional<PollPump> pump_;
};

}  // namespace

int runVelmora(int argc, char** argv) {
    // A write beyond a limit on file sizes is to fail like any other, not to end the program.
    std::signal(SIGXFSZ, SIG_IGN);
    Meeting meeting = meetEarlierStart();
    if (meeting.handedOver)
        return 0;
    forgetSilentSessionBus();
    Application application(argc, argv);
    TestIds testIds;
    if (TestIds::wanted())
        application.installEventFilter(&testIds);
    ContextKey contextKey;
    application.installEventFilter(&contextKey);
    applyLook();
    registerCalendarAccessibility();
    try {
        Program program;
        applyStyleSheet(application);
        application.setOrderlyEnd([&program] { program.close(); });
        application.setEndOfSession([&program] { program.endWithSession(); });
        const auto forgetProgram = qScopeGuard([&application] {
            application.setOrderlyEnd({});
            application.setEndOfSession({});
        });
        const EndSignals endSignals([&program] { program.endWithoutAsking(); });
        QObject::connect(
            &application, &Application::commitDataRequest, &application,
            [&program](QSessionManager& manager) { answerSessionManager(program, manager); });
        quitAfterFirstPaintIfWanted(program);
        QObject::connect(&program.window(), &Calendar::firstPainted, &application,
                         [&program] { program.joinDesktop(); });
        const KeepingAtExit keeping(program);
        const HearingLaterStarts hearing(std::move(meeting.listener), program);
        program.start();
        return program.ended() ? 0 : Application::exec();
    } catch (const Failure& failure) {
        Application::showError(QString::fromUtf8(failure.what()));
    } catch (const std::exception& error) {
        Application::showError(QString::fromUtf8(error.what()));
    }
    return 1;
}

}  // namespace velmora
