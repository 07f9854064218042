#include "app/Application.h"

#include <QEvent>
#include <QMessageBox>
#include <QWidget>
#include <clocale>
#include <cstdlib>
#include <exception>

#include "core/ProductAddresses.h"
#include "platform/FatalFailure.h"
#include "platform/Messages.h"
#include "platform/qt/BoxOwner.h"
#include "platform/qt/Icons.h"

namespace velmora {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    // The toolkit sets the user's locale for everything; numbers keep their point.
    std::setlocale(LC_NUMERIC, "C");
    setApplicationName(QString::fromLatin1(kApplicationTitle));
    setDesktopFileName(QString::fromStdString(desktopEntryName()));
    setWindowIcon(applicationIcon());
    setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const FatalFailure& failure) {
        closePopups();
        showError(QString::fromUtf8(failure.what()));
        if (orderlyEnd_)
            orderlyEnd_();
    } catch (const Failure& failure) {
        closePopups();
        showError(QString::fromUtf8(failure.what()));
    } catch (const std::exception& error) {
        endInOrder(error.what());
    } catch (...) {
        endInOrder("unknown");
    }
    return false;
}

bool Application::event(QEvent* event) {
    if (event->type() != QEvent::Quit || !endOfSession_)
        return QApplication::event(event);
    endOfSession_();
    return true;
}

void Application::closePopups() {
    while (QWidget* popup = activePopupWidget())
        popup->close();
}

void Application::showError(const QString& text) {
    QMessageBox box(QMessageBox::Critical, QString::fromLatin1(kApplicationTitle), text,
                    QMessageBox::Ok, boxOwner());
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setTextFormat(Qt::PlainText);
    runOverOwner(box);
}

void Application::endInOrder(const char* what) {
    if (std::exchange(ending_, true))
        std::_Exit(1);  // the orderly end failed too
    closePopups();
    showError(tr("Velmora met an error that it can not go on after (%1). It will close now.")
                  .arg(QString::fromUtf8(what)));
    if (orderlyEnd_)
        orderlyEnd_();
    exit(1);
}

}  // namespace velmora
