#include "app/Start.h"

#include <csignal>

#include "app/Application.h"
#include "app/Program.h"
#include "platform/Failure.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/qt/TestIds.h"
#include "platform/qt/Theme.h"

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

}  // namespace

int runVelmora(int argc, char** argv) {
    // A write beyond a limit on file sizes is to fail like any other, not to end the program.
    std::signal(SIGXFSZ, SIG_IGN);
    Application application(argc, argv);
    TestIds testIds;
    if (TestIds::wanted())
        application.installEventFilter(&testIds);
    applyLook();
    registerCalendarAccessibility();
    try {
        Program program;
        applyStyleSheet(application);
        application.setOrderlyEnd([&program] { program.close(); });
        quitAfterFirstPaintIfWanted(program);
        program.start();
        return Application::exec();
    } catch (const Failure& failure) {
        Application::showError(QString::fromUtf8(failure.what()));
    } catch (const std::exception& error) {
        Application::showError(QString::fromUtf8(error.what()));
    }
    return 1;
}

}  // namespace velmora
