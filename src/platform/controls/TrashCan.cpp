#include "platform/controls/TrashCan.h"

#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include "platform/controls/DragFormats.h"
#include "platform/controls/FocusRing.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr int kSide = 56;
constexpr int kSmallSide = 48;
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

TrashCan::TrashCan(QWidget* parent) : PaintedButton(parent) {
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QStringLiteral("Trash"));
    setToolTip(tr("Trash: drop an entry or DocPad's icon here. Enter deletes DocPad's contents."));
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (takesDrops_)
            emit documentDropped();
        else
            emit refused();
    });
}

QSize TrashCan::sizeHint() const {
    return small_ ? QSize(kSmallSide, kSmallSide) : QSize(kSide, kSide);
}

void TrashCan::setSmall(bool small) {
    small_ = small;
    updateGeometry();
}

void TrashCan::setLook(Look look) {
    look_ = look;
    update();
}

void TrashCan::setTakesDrops(bool takes) {
    takesDrops_ = takes;
    if (!takes)
        setDropTarget(false);
}

void TrashCan::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete)
        click();
    else
        PaintedButton::keyPressEvent(event);
}

void TrashCan::mousePressEvent(QMouseEvent* event) {
    event->ignore();
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
        drawDropRing(painter, rect(), kRadius, theme.danger);
    }
    painter.drawPixmap((width() - kIcon) / 2, (height() - kIcon) / 2,
                       symbolPixmap(symbolOf(look_), {kIcon, kIcon}, devicePixelRatioF(),
                                    dropTarget_ ? theme.danger : theme.ink2));
    if (focusShown())
        drawFocusRing(painter, rect(), kRadius, theme.accent);
}

bool TrashCan::accepts(QDropEvent& event) {
    if (!takes(*event.mimeData()))
        return false;
    if (!takesDrops_) {
        event.ignore();
        emit refused();
        return false;
    }
    event.acceptProposedAction();
    return true;
}

void TrashCan::dragEnterEvent(QDragEnterEvent* event) {
    if (accepts(*event))
        setDropTarget(true);
}

void TrashCan::dragLeaveEvent(QDragLeaveEvent*) {
    setDropTarget(false);
}

void TrashCan::dropEvent(QDropEvent* event) {
    setDropTarget(false);
    if (!accepts(*event))
        return;
    const QMimeData& dropped = *event->mimeData();
    if (dropped.hasFormat(QLatin1String(kEntryFormat)))
        emit entryDropped(dropped.data(QLatin1String(kEntryFormat)).toStdString());
    else
        emit documentDropped();
}

}  // namespace velmora
