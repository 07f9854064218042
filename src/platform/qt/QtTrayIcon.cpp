#include "platform/qt/QtTrayIcon.h"

#include <QApplication>
#include <QIcon>
#include <QMouseEvent>
#include <utility>

namespace velmora {

QtTrayIcon::QtTrayIcon(std::function<void(unsigned message)> onMessage)
    : onMessage_(std::move(onMessage)) {}

QtTrayIcon::~QtTrayIcon() {
    remove();
}

void QtTrayIcon::add(const std::string& tip) {
    remove();
    icon_ = new QSystemTrayIcon(QApplication::windowIcon(), this);
    icon_->setToolTip(QString::fromStdString(tip));
    connect(icon_, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::DoubleClick)
                    onMessage_(kLeftDoubleClick);
            });
    qApp->installEventFilter(this);
    icon_->show();
}

void QtTrayIcon::remove() {
    if (!icon_)
        return;
    qApp->removeEventFilter(this);
    delete icon_;
}

bool QtTrayIcon::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick && watched->inherits("QSystemTrayIconSys") &&
        static_cast<QMouseEvent*>(event)->button() == Qt::RightButton)
        onMessage_(kRightDoubleClick);
    return QObject::eventFilter(watched, event);
}

}  // namespace velmora
