#include "platform/controls/SSDay.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QScrollBar>
#include <algorithm>

#include "platform/Format.h"
#include "platform/Text.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/controls/DayEditor.h"
#include "platform/controls/Painting.h"
#include "platform/qt/QtText.h"
#include "platform/qt/TestIds.h"

// The day view's state and layout. Painting: SSDayPainting.cpp; keys and pointer: SSDayInput.cpp;
// editor, drag and removal: SSDayEditing.cpp.
namespace velmora {
namespace {

using namespace std::chrono;

constexpr int kScrollBarWidth = 12;
constexpr minutes kUsualStart = hours(7) + minutes(30);

QString shortTime(std::string_view text) {
    return QString::fromLatin1(
        QByteArray::fromStdString(formatTimeText(text, "h:nn AM/PM", LocaleFormats())));
}

}  // namespace

SSDay::SSDay(const CodePage& codePage, QWidget* parent)
    : QWidget(parent),
      codePage_(codePage),
      tasks_([this] { tasksChanged(); }),
      scroll_(new QScrollBar(Qt::Vertical, this)) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_InputMethodEnabled);
    setAccessibleName(QStringLiteral("Day"));
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setCursor(Qt::ArrowCursor);
    scroll_->hide();
    connect(scroll_, &QScrollBar::valueChanged, this, [this] {
        update();
        placeEditor();
    });
    // The range changes while the view paints; showing a child has to wait until after that.
    connect(scroll_, &QScrollBar::rangeChanged, this, &SSDay::placeScrollBar, Qt::QueuedConnection);
    watchFocus();
}

// The editor and the bar die after this object's own members; nothing they report may come here.
SSDay::~SSDay() {
    disconnect(qApp, nullptr, this, nullptr);
    if (editor_)
        disconnect(editor_, nullptr, this, nullptr);
    disconnect(scroll_, nullptr, this, nullptr);
}

// --- What callers set ---

int SSDay::SelectedIndex() const {
    return selected_ ? tasks_.indexOf(*selected_) : -1;
}

void SSDay::setSelectedIndex(int index) {
    select(index < 0 || readOnly_ ? -1 : index);
    if (const int selected = SelectedIndex(); selected >= 0)
        makeVisible(blocks().at(static_cast<std::size_t>(selected)).span);
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
    drawn_.clear();
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
    drawn_.clear();
    Refresh();
    placeScrollBar();
    updateGeometry();
}

void SSDay::setEmptyText(const QString& text) {
    emptyText_ = text;
    tellEmptiness();
    update();
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
    tellEmptiness();
    update();
}

void SSDay::tellEmptiness() {
    describe(*this, tasks_.Count() == 0 ? emptyText_ : QString());
}

const std::vector<SSDay::Block>& SSDay::blocks() const {
    if (stale_)
        layOut();
    return blocks_;
}

void SSDay::layOut() const {
    stale_ = false;
    if (drawn_.size() > 2 * static_cast<std::size_t>(tasks_.Count()))
        drawn_.clear();  // most of them of blocks that are gone
    std::vector<TimeSpan> spans;
    spans.reserve(static_cast<std::size_t>(tasks_.Count()));
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
    return {.paper = rect().adjusted(1, 1 + captionHeight(), -1, -1),
            .gutter = gutterWidth(),
            .slotHeight = slotHeight(),
            .blockMargin = readOnly_ ? 6 : 16,
            .scroll = scroll_->value(),
            .shown = shown_};
}

QString SSDay::shownTimes(const DayTask& task) const {
    if (!readTimeOfDay(task.BeginTime) || !readTimeOfDay(task.EndTime))
        return toQt(trimBlanks(task.BeginTime + " " + task.EndTime), codePage_);
    return shortTime(task.BeginTime) + DayPainter::dash() + shortTime(task.EndTime);
}

QString SSDay::shownTime(minutes time) const {
    return shortTime(writeTime(time));
}

QRect SSDay::reachOf(const DayGeometry& geometry, const PlacedBlock& place) {
    const int overhang = DayPainter::kBarOverhang;
    return geometry.blockRect(place).adjusted(-1, -overhang, 1, overhang);
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

std::optional<minutes> SSDay::firstBegin() const {
    const auto first = std::min_element(
        blocks().begin(), blocks().end(),
        [](const Block& a, const Block& b) { return a.span.begin < b.span.begin; });
    return first == blocks_.end() ? std::nullopt : std::optional(first->span.begin);
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
    scrollToTask(firstBegin());
}

void SSDay::scrollToTask(std::optional<minutes> begin) {
    (void)blocks();
    const minutes time = begin ? *begin - kSlot : kUsualStart;
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
    if (scroll_ == nullptr)
        return;  // told by the base class while this object is being built
    if (event->type() == QEvent::FontChange) {
        if (editor_)
            editor_->setFont(blockFont());
        updateGeometry();
    }
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) {
        drawn_.clear();
        Refresh();
    }
}

// --- For assistive tools ---

// "9:30 AM – 10:00 AM, 2 appointments"
AccessiblePart SSDay::slotPart() const {
    const auto here = std::count_if(blocks().begin(), blocks().end(), [this](const Block& block) {
        return block.span.begin < slot_ + kSlot && block.span.end > slot_;
    });
    const QString times = shownTime(slot_) + DayPainter::dash() + shownTime(slot_ + kSlot);
    const QString what = here == 0   ? QStringLiteral("free")
                         : here == 1 ? QStringLiteral("1 appointment")
                                     : QStringLiteral("%1 appointments").arg(here);
    return {.name = times + QStringLiteral(", ") + what,
            .rect = slotRect(slot_),
            .role = QAccessible::Cell,
            .focused = SelectedIndex() < 0};
}

AccessiblePart SSDay::part(int index) const {
    if (index >= tasks_.Count())
        return slotPart();
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
