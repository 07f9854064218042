#include "platform/qt/TopmostBox.h"

#include <QMessageBox>

#include "platform/Text.h"
#include "platform/qt/QtText.h"

namespace velmora {

void warnAboveAllWindows(const std::string& title, const std::string& text,
                         const CodePage& codePage) {
    QMessageBox box(QMessageBox::Warning, toQt(title, codePage), toQt(withLf(text), codePage),
                    QMessageBox::Ok);
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::ApplicationModal);  // which makes it a dialog
    // A dialog would go down with the main window when that is minimised.
    box.setWindowFlags(Qt::Window | Qt::WindowStaysOnTopHint);
    box.exec();
}

}  // namespace velmora
