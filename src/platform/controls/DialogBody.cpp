#include "platform/controls/DialogBody.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScrollBar>
#include <algorithm>

namespace velmora {

DialogBody::DialogBody(QLayout* layout, QWidget* parent)
    : QScrollArea(parent),
      content_(new QWidget(viewport())),
      room_(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    content_->setLayout(layout);
    setWidget(content_);
    viewport()->setAutoFillBackground(false);
    content_->setAutoFillBackground(false);
    content_->installEventFilter(this);
    focus_ = connect(qApp, &QApplication::focusChanged, this,
                     [this](QWidget*, QWidget* now) { bringIntoView(now); });
}

// The focus leaves its parts while they are taken down.
DialogBody::~DialogBody() {
    disconnect(focus_);
}

void DialogBody::setRoom(const QSize& room) {
    if (room == room_)
        return;
    room_ = room;
    updateGeometry();
}

// Wrapped texts need more height the narrower they are.
int DialogBody::leastHeight(int width) const {
    const QLayout& layout = *content_->layout();
    const int least = layout.totalMinimumSize().height();
    return layout.hasHeightForWidth() ? std::max(least, layout.totalMinimumHeightForWidth(width))
                                      : least;
}

QSize DialogBody::wholeSize(const QSize& wanted) const {
    const int width = std::max(wanted.width(), content_->layout()->totalMinimumSize().width());
    return {width, std::max(wanted.height(), leastHeight(width))};
}

QSize DialogBody::sizeHint() const {
    return wholeSize(content_->layout()->totalSizeHint()).boundedTo(room_);
}

QSize DialogBody::minimumSizeHint() const {
    const int width = content_->layout()->totalMinimumSize().width();
    QSize least(width, leastHeight(std::max(width, this->width())));
    if (least.height() > room_.height())
        least.rwidth() += verticalScrollBar()->sizeHint().width();
    return least.boundedTo(room_);
}

void DialogBody::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    arrange();
    if (content_->layout()->hasHeightForWidth())
        updateGeometry();
}

void DialogBody::arrange() {
    const QSize whole = maximumViewportSize();
    int width = whole.width();
    if (leastHeight(width) > whole.height())
        width -= verticalScrollBar()->sizeHint().width();
    width = std::max(width, content_->layout()->totalMinimumSize().width());
    int height = whole.height();
    if (width > whole.width())
        height -= horizontalScrollBar()->sizeHint().height();
    content_->resize(width, std::max(height, leastHeight(width)));
}

bool DialogBody::eventFilter(QObject* watched, QEvent* event) {
    if (watched == content_ && event->type() == QEvent::LayoutRequest) {
        arrange();
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

void DialogBody::bringIntoView(QWidget* widget) {
    if (!widget || !content_->isAncestorOf(widget))
        return;
    const QRect place(widget->mapTo(content_, QPoint(0, 0)), widget->size());
    const QPoint middle = place.center();
    if (place.height() <= viewport()->height())
        ensureVisible(middle.x(), middle.y(), place.width() / 2 + 1, place.height() / 2 + 1);
    else
        ensureWidgetVisible(widget);
}

}  // namespace velmora
