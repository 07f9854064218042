#include "platform/controls/DayCanvas.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>
#include <algorithm>

#include "platform/Text.h"
#include "platform/controls/PlainToolTip.h"
#include "platform/qt/QtText.h"
#include "platform/qt/TestIds.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using namespace std::chrono;

constexpr minutes kUsualStart = hours(7) + minutes(30);

}  // namespace

DayCanvas::DayCanvas(const CodePage& codePage, QWidget* parent)
    : QWidget(parent), codePage_(codePage), session_(*this), scroll_(new DayScrollBar(this)) {
    session_.blocks().setShortest(measures().shortestDrawn());
    connect(scroll_, &DayScrollBar::valueChanged, this, [this] {
        update();
        emit moved();
    });
    // The range changes while the view paints; showing a child has to wait until after that.
    connect(scroll_, &DayScrollBar::rangeChanged, this, &DayCanvas::placeScrollBar,
            Qt::QueuedConnection);
}

// The bar dies after this object's own members; nothing it reports may come here.
DayCanvas::~DayCanvas() {
    disconnect(scroll_, nullptr, this, nullptr);
}

// --- What callers set ---

void DayCanvas::setFirstTime(std::string_view time) {
    session_.blocks().setFirstTime(time);
    Refresh();
}

void DayCanvas::setLastTime(std::string_view time) {
    session_.blocks().setLastTime(time);
    Refresh();
}

void DayCanvas::Refresh() {
    session_.blocks().setShortest(measures().shortestDrawn());
    stale_ = true;
    update();
}

void DayCanvas::setTextColor(const QColor& color) {
    textColor_ = color;
    stamps_.clear();
    update();
}

void DayCanvas::setNow(std::optional<minutes> timeOfDay) {
    if (timeOfDay == now_)
        return;
    const auto updateLine = [this] {
        const DayGeometry places = geometry();
        if (now_)
            update(places.paper.left(), places.yOf(*now_) - 6, places.paper.width(), 12);
    };
    updateLine();
    now_ = timeOfDay;
    updateLine();
}

void DayCanvas::setEmptyText(const QString& text) {
    emptyText_ = text;
    tellEmptiness();
    update();
}

void DayCanvas::tellEmptiness() {
    if (!notice_.isEmpty())
        describe(*this, notice_);
    else
        describe(*this, session_.tasks().Count() == 0 ? emptyText_ : QString());
}

void DayCanvas::setNotice(std::string_view notice) {
    const QString text = toQt(notice, codePage_);
    if (text == notice_)
        return;
    notice_ = text;
    tellEmptiness();
    update();
}

void DayCanvas::setCaption(std::string_view caption) {
    caption_ = caption;
    Refresh();
}

void DayCanvas::setCaptionFont(const QFont& font) {
    captionFont_ = font;
    Refresh();
}

// --- Layout ---

DayMeasures DayCanvas::measures() const {
    return {.font = font(),
            .small = session_.isReadOnly(),
            .captioned = !caption_.empty(),
            .captionFont = captionFont_.value_or(font())};
}

DayGeometry DayCanvas::geometry() const {
    if (stale_)
        layOut();
    const DayMeasures sizes = measures();
    return {.paper = rect().adjusted(1, 1 + sizes.captionHeight(), -1, -1),
            .gutter = sizes.gutterWidth(),
            .slotHeight = sizes.slotHeight(),
            .blockMargin = sizes.small ? 6 : 16,
            .scroll = scroll_->value(),
            .shown = shown_};
}

void DayCanvas::layOut() const {
    stale_ = false;
    const DayTasks& tasks = session_.tasks();
    blocks_.clear();
    for (const DayBlock& block : session_.blocks().all()) {
        const DayTask& task = tasks.Item(static_cast<int>(blocks_.size()));
        blocks_.push_back({.place = block.place,
                           .text = DayPainter::unbreakable(toQt(withLf(task.text), codePage_)),
                           .times = shownTimes(task, codePage_)});
    }
    const minutes formerBegin = shown_.begin;
    shown_ = session_.blocks().shown();
    scroll_->fit(geometry(), formerBegin);
}

QRect DayCanvas::blockRect(int index) const {
    const DayGeometry places = geometry();
    return places.blockRect(session_.blocks().at(index).place) & places.paper;
}

QRect DayCanvas::slotRect(minutes slot) const {
    const DayGeometry places = geometry();
    return places.slotRect(slot) & places.paper;
}

std::optional<minutes> DayCanvas::firstBegin() const {
    return session_.blocks().firstBegin();
}

QSize DayCanvas::sizeHint() const {
    return measures().sizeFor(20, session_.isReadOnly() ? 20 : 50);
}

QSize DayCanvas::minimumSizeHint() const {
    return measures().sizeFor(4, 12);
}

DayHit DayCanvas::hitAt(QPoint point) const {
    return dayHitAt(geometry(), session_.blocks().all(), point);
}

void DayCanvas::setHovered(int index) {
    if (index == hovered_)
        return;
    blockChanged(hovered_);
    hovered_ = index;
    blockChanged(hovered_);
}

void DayCanvas::showPointer(QPoint point) {
    if (session_.isReadOnly())
        return;
    const DayHit hit = hitAt(point);
    setHovered(hit.index);
    const bool onBar = hit.index >= 0 && hit.grip != Grip::Whole;
    setCursor(onBar ? Qt::SizeVerCursor : Qt::ArrowCursor);
}

// --- What looks otherwise ---

void DayCanvas::lookChanged() {
    stamps_.clear();
    Refresh();
    placeScrollBar();
    updateGeometry();
}

void DayCanvas::blockChanged(int index) {
    if (index >= 0 && index < session_.tasks().Count())
        update(scene().reachOf(index));
}

void DayCanvas::slotChanged(minutes slot) {
    update(geometry().slotRect(slot));
}

void DayCanvas::dayChanged() {
    stale_ = true;
    hovered_ = -1;
    tellEmptiness();
    update();
}

void DayCanvas::dragChanged(TimeSpan span) {
    const DayGeometry places = geometry();
    if (session_.drag() == nullptr) {
        update(places.spanRect(span).adjusted(-1, -1, 1, 1));
        return;
    }
    blockChanged(session_.tasks().indexOf(session_.drag()->id));
    for (const minutes edge : {span.begin, span.end})
        update(DayPainter::gutterTimeRect(places, edge));
}

// --- Scrolling ---

void DayCanvas::placeScrollBar() {
    scroll_->place(geometry().paper, !session_.isReadOnly() || underMouse());
}

void DayCanvas::scrollToStart() {
    scrollToTask(firstBegin());
}

void DayCanvas::scrollToTask(std::optional<minutes> begin) {
    const minutes time = begin ? *begin - kSlot : kUsualStart;
    const minutes top = time - time % kSlot;
    scroll_->bringToTop(top, geometry());
    session_.setSlot(top + kSlot);
}

// --- Events of the window ---

void DayCanvas::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    stale_ = true;
    placeScrollBar();
    emit moved();
}

void DayCanvas::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!started_)
        scrollToStart();
    started_ = true;
}

void DayCanvas::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    const bool built = scroll_ != nullptr;  // the base class tells while this object is being built
    if (built && (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange))
        lookChanged();
}

bool DayCanvas::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto& help = *static_cast<QHelpEvent*>(event);
        const int caption = 1 + measures().captionHeight();
        const int index = hitAt(help.pos()).index;
        const bool told = index >= 0 || help.pos().y() < caption;
        const QRect area = index >= 0 ? blockRect(index) : QRect(0, 0, width(), caption);
        showPlainToolTip(help, told ? scene().cutText(index, codePage_) : QString(), *this, area);
        return true;
    }
    if (event->type() == QEvent::Enter)
        placeScrollBar();
    if (event->type() == QEvent::Leave) {
        setHovered(-1);
        scroll_->setVisible(scroll_->isVisible() && !session_.isReadOnly());
    }
    return QWidget::event(event);
}

void DayCanvas::wheelEvent(QWheelEvent* event) {
    QApplication::sendEvent(scroll_, event);
    event->accept();
}

// --- Painting ---

DayScene DayCanvas::scene() const {
    const DayGeometry places = geometry();
    const DayMeasures sizes = measures();
    const Theme& theme = Theme::of(*this);
    return {.session = session_,
            .blocks = blocks_,
            .measures = sizes,
            .places = places,
            .look = {.theme = theme,
                     .font = sizes.blockFont(),
                     .text = textColor_.isValid() ? textColor_ : theme.ink,
                     .small = sizes.small},
            .caption = toQt(caption_, codePage_),
            .emptyText = notice_.isEmpty() ? emptyText_ : QString(),
            .notice = notice_,
            .now = now_,
            .hovered = hovered_,
            .focused = hasFocus()};
}

// The round corners of the frame take a clip that is slow to paint through, so only the strips at
// the upper and the lower edge pay for it.
void DayCanvas::paintEvent(QPaintEvent* event) {
    const DayScene shown = scene();
    const QRect paper = shown.places.paper & event->rect();
    QPainter painter(this);
    const QRect middle = paper & rect().adjusted(0, kDayFrameRadius, 0, -kDayFrameRadius);
    if (!middle.isEmpty()) {
        painter.setClipRect(middle);
        shown.paintPaper(painter, stamps_, middle);
    }
    QPainterPath inside;
    inside.addRoundedRect(rect(), kDayFrameRadius, kDayFrameRadius);
    for (const QRect& edge : {QRect(0, 0, width(), kDayFrameRadius),
                              QRect(0, height() - kDayFrameRadius, width(), kDayFrameRadius)}) {
        if (!edge.intersects(event->rect()))
            continue;
        painter.setClipPath(inside);
        painter.setClipRect(edge, Qt::IntersectClip);
        painter.fillRect(edge, shown.look.theme.surface);
        if (const QRect part = edge & paper; !part.isEmpty())
            shown.paintPaper(painter, stamps_, part);
    }
    painter.setClipping(false);
    shown.paintFrame(painter, size());
}

}  // namespace velmora
