#include "platform/controls/LetterTabs.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr int kWidth = 34;
constexpr int kMargin = 8;
constexpr int kGap = 1;
constexpr int kHairline = 1;
constexpr int kLowest = 15;
constexpr int kHighest = 26;
constexpr qreal kRadius = 5;
constexpr int kSymbolTab = 26;

// Of the column around its tabs.
constexpr int spareHeight(bool small) {
    return small ? 0 : 2 * kMargin + (LetterTabs::kCount - 1) * kGap;
}

constexpr int columnHeight(int tabHeight, bool small) {
    return spareHeight(small) + LetterTabs::kCount * tabHeight;
}

// The tab of a typed character, or -1.
int tabOf(const QString& typed) {
    if (typed.size() != 1)
        return -1;
    const char16_t c = typed.at(0).toUpper().unicode();
    if (c == u'#')
        return kSymbolTab;
    return c >= u'A' && c <= u'Z' ? c - u'A' : -1;
}

}  // namespace

QString LetterTabs::letterAt(int index) {
    return index == kSymbolTab ? QStringLiteral("#") : QString(QChar(u'A' + index));
}

LetterTab::LetterTab(const QString& letter, LetterTabs* tabs) : PaintedButton(tabs), tabs_(*tabs) {
    setText(letter);
    setAccessibleName(letter);
    setFocusPolicy(Qt::ClickFocus);
    QFont small = font();
    small.setPointSizeF(8.25);
    small.setWeight(QFont::Medium);
    setFont(small);
}

QSize LetterTab::sizeHint() const {
    return {kWidth, std::clamp(fontMetrics().height() + 5, kLowest, kHighest)};
}

int LetterTab::inset() const {
    if (tabs_.isCurrent(this))
        return 0;
    return underMouse() && isEnabled() ? 3 : 6;
}

void LetterTab::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::of(*this);
    const bool current = tabs_.isCurrent(this);
    const bool hover = underMouse() && isEnabled();
    const bool white = tabs_.whitePages();
    QColor fill = isDown() ? theme.press : hover ? theme.hover : theme.chrome;
    QColor outline = theme.line;
    QColor ink = !isEnabled() ? theme.dis : hover ? theme.ink : theme.ink2;
    if (current) {
        fill = white ? theme.wtab : theme.amber;
        outline = white ? theme.wbook : theme.amber;
        ink = white ? theme.ink : theme.onamber;
    }
    QPainter painter(this);
    // The right end lies outside, so that only the left corners are round.
    // Tabs of a small window share the line between them.
    const int shared = tabs_.small() ? kHairline : 0;
    const QRectF body = QRectF(rect()).adjusted(inset(), 0, 2 * kRadius, shared);
    drawPanel(painter, body, kRadius, fill, outline);
    QFont letterFont = font();
    if (current)
        letterFont.setWeight(QFont::Bold);
    painter.setFont(letterFont);
    painter.setPen(ink);
    painter.drawText(rect().adjusted(inset(), 0, 0, 0), Qt::AlignCenter, text());
    if (focusShown())
        drawFocusRing(painter, QRectF(rect()).adjusted(inset(), 0, 0, 0), kRadius,
                      current ? theme.ink : theme.accent);
}

LetterTabs::LetterTabs(const QString& tabName, QWidget* parent) : QWidget(parent) {
    setFixedWidth(kWidth);
    setAccessibleName(QStringLiteral("Letters"));
    for (int i = 0; i < kCount; ++i) {
        auto* tab = new LetterTab(letterAt(i), this);
        tab->setObjectName(tabName + QLatin1Char('_') + QString::number(i));
        tab->installEventFilter(this);
        connect(tab, &QAbstractButton::clicked, this, [this, i] {
            stopAt(i);
            emit clicked(i);
        });
        connect(tab, &PaintedButton::hovered, this, &LetterTabs::hovered);
        tabs_[static_cast<std::size_t>(i)] = tab;
    }
    stopAt(0);
}

void LetterTabs::setCurrent(int index) {
    current_ = std::clamp(index, 0, kCount - 1);
    stopAt(current_);
    for (LetterTab* tab : tabs_)
        tab->update();
}

void LetterTabs::setWhitePages(bool white) {
    white_ = white;
    tabs_[static_cast<std::size_t>(current_)]->update();
}

void LetterTabs::setSmall(bool small) {
    small_ = small;
    updateGeometry();
    placeTabs();
    update();
}

bool LetterTabs::isCurrent(const LetterTab* tab) const {
    return tabs_[static_cast<std::size_t>(current_)] == tab;
}

// The Tab key stops at one tab only.
void LetterTabs::stopAt(int index) {
    for (LetterTab* tab : tabs_)
        tab->setFocusPolicy(Qt::ClickFocus);
    LetterTab* stop = tabs_[static_cast<std::size_t>(index)];
    stop->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(stop);
}

bool LetterTabs::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto at = std::find(tabs_.begin(), tabs_.end(), watched);
    if (at == tabs_.end())
        return QWidget::eventFilter(watched, event);
    return moveByKey(static_cast<int>(at - tabs_.begin()), *static_cast<QKeyEvent*>(event));
}

bool LetterTabs::moveByKey(int from, const QKeyEvent& event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    int to = tabOf(event.text());
    switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_Left:
            to = std::max(from - 1, 0);
            break;
        case Qt::Key_Down:
        case Qt::Key_Right:
            to = std::min(from + 1, kCount - 1);
            break;
        case Qt::Key_Home:
            to = 0;
            break;
        case Qt::Key_End:
            to = kCount - 1;
            break;
        default:
            break;
    }
    if (to < 0)
        return false;
    stopAt(to);
    tabs_[static_cast<std::size_t>(to)]->setFocus(Qt::TabFocusReason);
    return true;
}

void LetterTabs::resizeEvent(QResizeEvent*) {
    placeTabs();
}

// Equal heights, which a box layout does not give.
void LetterTabs::placeTabs() {
    const int room = height() - spareHeight(small_);
    const int tabHeight = std::clamp(room / kCount, kLowest, kHighest);
    int top = small_ ? 0 : kMargin;
    for (LetterTab* tab : tabs_) {
        tab->setGeometry(0, top, width(), tabHeight);
        top += tabHeight + (small_ ? 0 : kGap);
    }
}

QSize LetterTabs::sizeHint() const {
    return {kWidth, columnHeight(tabs_[0]->sizeHint().height(), small_)};
}

QSize LetterTabs::minimumSizeHint() const {
    return {kWidth, columnHeight(kLowest, small_)};
}

}  // namespace velmora
