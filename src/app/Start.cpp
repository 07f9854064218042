#include "app/Start.h"

#include <QTimer>

#include "app/Application.h"
#include "app/Program.h"
#include "platform/Failure.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/qt/TestIds.h"
#include "platform/qt/Theme.h"

namespace velmora {

int runVelmora(int argc, char** argv) {
    Application application(argc, argv);
    TestIds testIds;
    if (TestIds::wanted())
        application.installEventFilter(&testIds);
    applyTheme(application);
    registerCalendarAccessibility();
    try {
        Program program;
        application.setOrderlyEnd([&program] { program.close(); });
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
