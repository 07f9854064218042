#include "platform/controls/TrashCan.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>

#include "platform/controls/DragFormats.h"
#include "platform/controls/FocusRing.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr int kSide = 56;
constexpr int kIcon = 32;
constexpr qreal kRadius = 10;

QString symbolOf(TrashCan::Look look) {
    switch (look) {
        case TrashCan::Look::Open:
            return QStringLiteral("Image5");
        case TrashCan::Look::Done:
            return QStringLiteral("Image6");
        default:
            return QStringLiteral("Image2");
    }
}

bool takes(const QMimeData& data) {
    return data.hasFormat(QLatin1String(kEntryFormat)) ||
           data.hasFormat(QLatin1String(kDocumentFormat));
}

}  // namespace

TrashCan::TrashCan(QWidget* parent) : QWidget(parent) {
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(QStringLiteral("Trash"));
}

QSize TrashCan::sizeHint() const {
    return {kSide, kSide};
}

void TrashCan::setLook(Look look) {
    look_ = look;
    update();
}

void TrashCan::setDropTarget(bool target) {
    dropTarget_ = target;
    update();
}

void TrashCan::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::of(*this);
    QPainter painter(this);
    if (dropTarget_) {
        drawPanel(painter, rect(), kRadius, theme.dangertint, theme.dangertint);
        drawRing(painter, rect(), kRadius, theme.danger, 2, Qt::DashLine);
    }
    painter.drawPixmap((width() - kIcon) / 2, (height() - kIcon) / 2,
                       symbolPixmap(symbolOf(look_), {kIcon, kIcon}, devicePixelRatioF(),
                                    dropTarget_ ? theme.danger : theme.ink2));
}

void TrashCan::dragEnterEvent(QDragEnterEvent* event) {
    if (!takes(*event->mimeData()))
        return;
    event->acceptProposedAction();
    setDropTarget(true);
}

void TrashCan::dragLeaveEvent(QDragLeaveEvent*) {
    setDropTarget(false);
}

void TrashCan::dropEvent(QDropEvent* event) {
    setDropTarget(false);
    const QMimeData& dropped = *event->mimeData();
    if (!takes(dropped))
        return;
    event->acceptProposedAction();
    if (dropped.hasFormat(QLatin1String(kEntryFormat)))
        emit entryDropped(dropped.data(QLatin1String(kEntryFormat)).toStdString());
    else
        emit documentDropped();
}

}  // namespace velmora
