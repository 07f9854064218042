#include "platform/controls/SSDay.h"

#include <QAction>
#include <QEvent>
#include <QFontMetrics>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <algorithm>

#include "platform/Format.h"
#include "platform/Text.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/controls/DayEditor.h"
#include "platform/controls/Painting.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"

// The day view's state, layout and painting. Keys and pointer: SSDayInput.cpp; editor, drag and
// removal: SSDayEditing.cpp.
namespace velmora {
namespace {

using namespace std::chrono;

constexpr qreal kFrameRadius = 8;
constexpr int kScrollBarWidth = 12;
constexpr minutes kUsualStart = hours(7) + minutes(30);
constexpr char16_t kDash[] = u" \u2013 ";

QString shortTime(std::string_view text) {
    return QString::fromLatin1(
        QByteArray::fromStdString(formatTimeText(text, "h:nn AM/PM", LocaleFormats())));
}

}  // namespace

SSDay::SSDay(const CodePage& codePage, QWidget* parent)
    : QWidget(parent),
      codePage_(codePage),
      tasks_([this] { tasksChanged(); }),
      scroll_(new QScrollBar(Qt::Vertical, this)),
      editor_(new DayEditor(codePage, this)),
      menu_(new QMenu(this)),
      removeAction_(menu_->addAction(QStringLiteral("Remove"))) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_InputMethodEnabled);
    setAccessibleName(QStringLiteral("Day"));
    removeAction_->setObjectName(QStringLiteral("Remove"));
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setCursor(Qt::ArrowCursor);
    scroll_->hide();
    editor_->hide();
    connect(scroll_, &QScrollBar::valueChanged, this, [this] {
        update();
        placeEditor();
    });
    // The range changes while the view paints; showing a child has to wait until after that.
    connect(scroll_, &QScrollBar::rangeChanged, this, &SSDay::placeScrollBar, Qt::QueuedConnection);
    connect(editor_, &DayEditor::saved, this, &SSDay::saveEditor);
    connect(editor_, &DayEditor::escaped, this, &SSDay::dropEditor);
    connect(editor_, &DayEditor::characterReplaced, this, &SSDay::characterReplaced);
    connect(editor_, &DayEditor::textChanged, this, &SSDay::placeEditor);
    connect(removeAction_, &QAction::triggered, this, &SSDay::removeSelected);
    watchFocus();
}

// --- What callers set ---

int SSDay::SelectedIndex() const {
    return selected_ ? tasks_.indexOf(*selected_) : -1;
}

void SSDay::setSelectedIndex(int index) {
    select(index < 0 || readOnly_ ? -1 : index);
}

void SSDay::setFirstTime(std::string_view time) {
    column_.setFirst(time);
    Refresh();
}

void SSDay::setLastTime(std::string_view time) {
    column_.setLast(time);
    Refresh();
}

void SSDay::Refresh() {
    stale_ = true;
    update();
}

void SSDay::setTextColor(const QColor& color) {
    textColor_ = color;
    update();
}

void SSDay::setNow(std::optional<minutes> timeOfDay) {
    if (timeOfDay == now_)
        return;
    updateNowLine();
    now_ = timeOfDay;
    updateNowLine();
}

void SSDay::setReadOnly(bool readOnly) {
    commitEditor();
    select(-1);
    readOnly_ = readOnly;
    Refresh();
    placeScrollBar();
    updateGeometry();
}

void SSDay::setCaption(std::string_view caption) {
    caption_ = caption;
    Refresh();
}

void SSDay::setCaptionFont(const QFont& font) {
    captionFont_ = font;
    captionFontSet_ = true;
    Refresh();
}

// --- Layout ---

void SSDay::tasksChanged() {
    stale_ = true;
    if (selected_ && tasks_.indexOf(*selected_) < 0)
        selected_.reset();
    if (drag_ && tasks_.indexOf(drag_->id) < 0)
        drag_.reset();
    if (edit_ && tasks_.indexOf(edit_->id) < 0) {
        edit_.reset();
        closeEditor();
    }
    hovered_ = -1;
    update();
}

const std::vector<SSDay::Block>& SSDay::blocks() const {
    if (stale_)
        layOut();
    return blocks_;
}

void SSDay::layOut() const {
    stale_ = false;
    std::vector<TimeSpan> spans;
    for (int i = 0; i < tasks_.Count(); ++i)
        spans.push_back(column_.spanOf(tasks_.Item(i)));
    const std::vector<PlacedBlock> places = placeSideBySide(spans, shortestDrawn());
    std::vector<TimeSpan> drawn = spans;
    blocks_.clear();
    for (int i = 0; i < tasks_.Count(); ++i) {
        const auto at = static_cast<std::size_t>(i);
        drawn[at] = places[at].drawn;
        const DayTask& task = tasks_.Item(i);
        const QString text = DayPainter::unbreakable(toQt(withLf(task.text), codePage_));
        blocks_.push_back({tasks_.idOf(i),
                           spans[at],
                           {.place = places[at], .text = text, .times = shownTimes(task)}});
    }
    const minutes formerBegin = shown_.begin;
    shown_ = column_.shown(drawn);
    const DayGeometry geometry = geometryNow();
    const int most = std::max(0, geometry.contentHeight() - geometry.paper.height());
    const auto grown = (formerBegin - shown_.begin).count() * slotHeight() / kSlot.count();
    const int value = scroll_->value() + static_cast<int>(grown);
    scroll_->setRange(0, most);
    scroll_->setPageStep(geometry.paper.height());
    scroll_->setSingleStep(slotHeight());
    scroll_->setValue(value);
}

QRect SSDay::frame() const {
    return rect();
}

int SSDay::captionHeight() const {
    if (caption_.empty())
        return 0;
    return std::max(26, QFontMetrics(captionFontSet_ ? captionFont_ : font()).height() + 10);
}

QFont SSDay::blockFont() const {
    return sized(font(), readOnly_ ? std::min(8.6, font().pointSizeF()) : font().pointSizeF(),
                 QFont::Medium);
}

int SSDay::slotHeight() const {
    return std::max(24, QFontMetrics(blockFont()).height() + 7);
}

int SSDay::gutterWidth() const {
    const QFontMetrics metrics(DayPainter::gutterFont(font(), readOnly_));
    return std::max(readOnly_ ? 46 : 60, metrics.horizontalAdvance(QStringLiteral("12 PM")) + 14);
}

minutes SSDay::shortestDrawn() const {
    const int pixels = QFontMetrics(blockFont()).height() + 4;
    return minutes(pixels * kSlot.count() / slotHeight());
}

DayGeometry SSDay::geometryNow() const {
    return {.paper = frame().adjusted(1, 1 + captionHeight(), -1, -1),
            .gutter = gutterWidth(),
            .slotHeight = slotHeight(),
            .blockMargin = readOnly_ ? 6 : 16,
            .scroll = scroll_->value(),
            .shown = shown_};
}

QString SSDay::shownTimes(const DayTask& task) const {
    if (!readTimeOfDay(task.BeginTime) || !readTimeOfDay(task.EndTime))
        return toQt(trimBlanks(task.BeginTime + " " + task.EndTime), codePage_);
    return shortTime(task.BeginTime) + QString::fromUtf16(kDash) + shortTime(task.EndTime);
}

QString SSDay::shownTime(minutes time) const {
    return shortTime(writeTime(time));
}

QRect SSDay::reachOf(const PlacedBlock& place) const {
    const int overhang = DayPainter::kBarOverhang;
    return geometryNow().blockRect(place).adjusted(-1, -overhang, 1, overhang);
}

QRect SSDay::blockRect(int index) const {
    const Block& block = blocks().at(static_cast<std::size_t>(index));
    const DayGeometry geometry = geometryNow();
    return geometry.blockRect(block.shown.place) & geometry.paper;
}

QRect SSDay::slotRect(minutes slot) const {
    (void)blocks();
    const DayGeometry geometry = geometryNow();
    return geometry.slotRect(slot) & geometry.paper;
}

const SSDay::Block* SSDay::firstByTime() const {
    const auto first = std::min_element(
        blocks().begin(), blocks().end(),
        [](const Block& a, const Block& b) { return a.span.begin < b.span.begin; });
    return first == blocks_.end() ? nullptr : &*first;
}

QSize SSDay::sizeHint() const {
    const int text = QFontMetrics(blockFont()).averageCharWidth() * (readOnly_ ? 20 : 50);
    return {gutterWidth() + text, captionHeight() + 20 * slotHeight()};
}

QSize SSDay::minimumSizeHint() const {
    const int text = QFontMetrics(blockFont()).averageCharWidth() * 12;
    return {gutterWidth() + text, captionHeight() + 4 * slotHeight()};
}

void SSDay::placeScrollBar() {
    const QRect paper = geometryNow().paper;
    scroll_->setGeometry(paper.right() - kScrollBarWidth, paper.top() + 1, kScrollBarWidth,
                         paper.height() - 2);
    scroll_->setVisible(scroll_->maximum() > 0 && (!readOnly_ || underMouse()));
}

// --- Scrolling ---

void SSDay::scrollToStart() {
    const Block* first = firstByTime();
    const minutes time = first != nullptr ? first->span.begin - kSlot : kUsualStart;
    DayGeometry geometry = geometryNow();
    geometry.scroll = 0;
    scroll_->setValue(geometry.yOf(time - time % kSlot) - geometry.paper.top());
    slot_ = std::clamp(time - time % kSlot + kSlot, shown_.begin, shown_.end - kSlot);
}

void SSDay::scrollBy(int pixels) {
    scroll_->setValue(scroll_->value() + pixels);
}

void SSDay::makeVisible(TimeSpan span) {
    const DayGeometry geometry = geometryNow();
    const int below = geometry.yOf(span.end) - geometry.paper.bottom() - 1;
    const int above = geometry.paper.top() - geometry.yOf(span.begin);
    if (below > 0)
        scrollBy(std::min(below, -above));
    else if (above > 0)
        scrollBy(-above);
}

// --- Painting ---

void SSDay::updateBlock(int index) {
    if (index >= 0 && index < static_cast<int>(blocks().size()))
        update(reachOf(blocks_[static_cast<std::size_t>(index)].shown.place));
}

void SSDay::updateSlot() {
    update(geometryNow().slotRect(slot_));
}

void SSDay::updateNowLine() {
    if (!now_)
        return;
    const DayGeometry geometry = geometryNow();
    update(geometry.paper.left(), geometry.yOf(*now_) - 6, geometry.paper.width(), 12);
}

DayPainter::Look SSDay::look() const {
    const Theme& theme = Theme::of(*this);
    return {.theme = theme,
            .font = blockFont(),
            .text = textColor_.isValid() ? textColor_ : theme.ink,
            .small = readOnly_};
}

void SSDay::paintEvent(QPaintEvent* event) {
    (void)blocks();
    QPainter painter(this);
    const QRect paper = geometryNow().paper;
    const QRegion region = event->region() & paper;
    const QRect away = frame().adjusted(8, 8, -8, -8);
    if (away.contains(event->rect())) {
        painter.setClipRegion(region);
        paintPaper(painter, region);
        return;
    }
    QPainterPath inside;
    inside.addRoundedRect(frame(), kFrameRadius, kFrameRadius);
    painter.setClipPath(inside);
    paintFrame(painter);
    if (!region.isEmpty()) {
        painter.setClipRegion(region, Qt::IntersectClip);
        paintPaper(painter, region);
    }
    painter.setClipping(false);
    drawRing(painter, frame(), 1, kFrameRadius, Theme::of(*this).edge);
}

void SSDay::paintFrame(QPainter& painter) const {
    if (caption_.empty())
        return;
    const Theme& theme = Theme::of(*this);
    const QRect row(0, 0, width(), 1 + captionHeight());
    painter.fillRect(row, theme.chrome);
    drawHorizontal(painter, 0, width(), row.bottom(), theme.line);
    painter.setFont(captionFontSet_ ? captionFont_ : font());
    painter.setPen(theme.ink);
    const QRect room = row.adjusted(6, 1, -6, -1);
    painter.drawText(
        room, Qt::AlignCenter,
        painter.fontMetrics().elidedText(toQt(caption_, codePage_), Qt::ElideRight, room.width()));
}

void SSDay::paintPaper(QPainter& painter, const QRegion& region) const {
    const DayGeometry geometry = geometryNow();
    const DayPainter::Look look = this->look();
    const DayPainter paint(painter, geometry, look);
    paint.paper(region);
    paintBlocks(paint, region);
    paintOverlays(paint);
}

void SSDay::paintBlocks(const DayPainter& paint, const QRegion& region) const {
    const int dragged = drag_ && drag_->begun ? tasks_.indexOf(drag_->id) : -1;
    const int selected = SelectedIndex();
    std::vector<ShownBlock> withBars;
    for (int i = 0; i < static_cast<int>(blocks_.size()); ++i) {
        ShownBlock block = blocks_[static_cast<std::size_t>(i)].shown;
        if (i == dragged)
            block.place = draggedPlace();
        if (!region.intersects(reachOf(block.place)))
            continue;
        block.selected = i == selected;
        block.hovered = i == hovered_;
        if (i == dragged)
            block.times =
                shownTime(drag_->now.begin) + QString::fromUtf16(kDash) + shownTime(drag_->now.end);
        paint.block(block);
        if (!edit_ || i != selected)
            withBars.push_back(block);
    }
    for (const ShownBlock& block : withBars)
        paint.bars(block);
}

void SSDay::paintOverlays(const DayPainter& paint) const {
    if (now_ && *now_ >= shown_.begin && *now_ <= shown_.end)
        paint.nowLine(*now_);
    if (range_ && range_->begun) {
        const TimeSpan span = range_->span();
        paint.range(span, shownTime(span.begin) + QString::fromUtf16(kDash) + shownTime(span.end));
    } else if (hasFocus() && !readOnly_ && !selected_ && !edit_) {
        paint.focusedSlot(slot_);
    }
    if (drag_ && drag_->begun) {
        const minutes edge = drag_->grip == Grip::End ? drag_->now.end : drag_->now.begin;
        paint.gutterTime(edge, shownTime(edge));
    }
}

PlacedBlock SSDay::draggedPlace() const {
    const auto index = static_cast<std::size_t>(tasks_.indexOf(drag_->id));
    PlacedBlock place = blocks().at(index).shown.place;
    place.drawn = placeSideBySide({drag_->now}, shortestDrawn()).front().drawn;
    return place;
}

// --- Events of the window ---

void SSDay::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    stale_ = true;
    (void)blocks();
    placeScrollBar();
    placeEditor();
}

void SSDay::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!started_)
        scrollToStart();
    started_ = true;
}

void SSDay::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        commitEditor();
}

void SSDay::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange || editor_ == nullptr)
        return;
    editor_->setFont(blockFont());
    Refresh();
    updateGeometry();
}

// --- For assistive tools ---

AccessiblePart SSDay::part(int index) const {
    const DayTask& task = tasks_.Item(index);
    QString name = toQt(withLf(task.text), codePage_);
    const QString times = shownTimes(task);
    if (!times.isEmpty())
        name += QStringLiteral(", ") + times;
    const bool selected = index == SelectedIndex();
    return {.name = name, .rect = blockRect(index), .selected = selected, .focused = selected};
}

void SSDay::pressPart(int index) {
    setSelectedIndex(index);
}

}  // namespace velmora
