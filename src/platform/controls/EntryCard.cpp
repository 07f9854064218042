#include "platform/controls/EntryCard.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>

#include "platform/Text.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr qreal kRadius = 8;
constexpr int kEdge = 4;
constexpr QPoint kTextCorner(22, 20);  // from the edge
constexpr QPoint kSmallTextCorner(16, 12);

}  // namespace

EntryCard::EntryCard(const CodePage& codePage, QWidget* parent)
    : QWidget(parent), codePage_(codePage), bar_(new QScrollBar(Qt::Vertical, this)) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto* row = new QHBoxLayout(this);
    row->addStretch();
    row->addWidget(bar_);
    bar_->hide();
    setSmall(false);
    bar_->setAttribute(Qt::WA_NoMousePropagation);  // it gets its wheel events from the card
    connect(bar_, &QAbstractSlider::valueChanged, this, qOverload<>(&QWidget::update));
}

void EntryCard::setText(const std::string& text) {
    text_ = text;
    setAccessibleName(toQt(withLf(text), codePage_));
    textChanged();
    bar_->setValue(0);
}

void EntryCard::setWhitePages(bool white) {
    white_ = white;
    update();
}

void EntryCard::setSmall(bool small, int foot) {
    small_ = small;
    foot_ = foot;
    layout()->setContentsMargins(kEdge, 4, 2, 4 + foot);
    textChanged();
}

void EntryCard::setEven() {
    even_ = true;
    readText();
}

CardLayout::Lines EntryCard::spacing() const {
    if (small_)
        return CardLayout::Lines::Close;
    return even_ ? CardLayout::Lines::Even : CardLayout::Lines::Normal;
}

QPoint EntryCard::textCorner() const {
    return small_ ? kSmallTextCorner : kTextCorner;
}

int EntryCard::textRoom() const {
    return height() - foot_;
}

QSize EntryCard::sizeHint() const {
    return {440, 480};
}

QSize EntryCard::minimumSizeHint() const {
    return {240, 160};
}

void EntryCard::copy() const {
    QGuiApplication::clipboard()->setText(toQt(withLf(text_), codePage_));
}

// Out of sight nothing is laid out.
void EntryCard::textChanged() {
    stale_ = true;
    if (isVisible())
        readText();
}

void EntryCard::readText() {
    stale_ = false;
    layout_.setText(toQt(text_, codePage_), font(), Theme::of(*this), spacing());
    layOut();
    update();
}

void EntryCard::layOut() {
    const QPoint margin = textCorner();
    const int room = textRoom();
    const int width = this->width() - kEdge - 2 * margin.x();
    int height = qCeil(layout_.layOut(width)) + 2 * margin.y();
    const bool tooLong = height > room;
    if (tooLong)
        height = qCeil(layout_.layOut(width - bar_->sizeHint().width())) + 2 * margin.y();
    bar_->setVisible(tooLong);
    bar_->setPageStep(room);
    bar_->setSingleStep(qRound(layout_.lineHeight()));
    bar_->setRange(0, tooLong ? height - room : 0);
}

void EntryCard::showEvent(QShowEvent*) {
    if (stale_)
        readText();
}

void EntryCard::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::of(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Only the right corners are round: the left ones lie outside.
    const QRectF card = QRectF(rect()).adjusted(-2 * kRadius, 0, 0, 0);
    drawPanel(painter, card, kRadius, theme.surface, theme.edge);
    painter.fillRect(QRect(0, 0, kEdge, height()), white_ ? theme.wbook : theme.amber);
    if (foot_ > 0)
        paintFoot(painter);
    painter.save();
    painter.setClipRect(rect().adjusted(kEdge, 1, -1, -1 - foot_));
    painter.translate(kEdge + textCorner().x(), textCorner().y() - bar_->value());
    painter.setPen(theme.ink);
    const qreal top = bar_->value() - textCorner().y();
    layout_.paint(painter, top, top + height());
    painter.restore();
    if (focus_.shown(hasFocus()))
        drawFocusRing(painter, QRectF(rect()).adjusted(kEdge, 0, 0, 0), kRadius, theme.accent);
}

void EntryCard::paintFoot(QPainter& painter) const {
    const Theme& theme = Theme::of(*this);
    const QRect strip = rect().adjusted(kEdge, height() - foot_, -1, -1);
    QPainterPath inside;
    inside.addRoundedRect(QRectF(rect()).adjusted(-2 * kRadius, 1, -1, -1), kRadius - 1,
                          kRadius - 1);
    painter.save();
    painter.setClipPath(inside);
    painter.fillRect(strip, theme.alt);
    painter.fillRect(strip.left(), strip.top(), strip.width(), 1, theme.line);
    painter.restore();
}

void EntryCard::resizeEvent(QResizeEvent*) {
    if (!stale_)
        layOut();
}

void EntryCard::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        textChanged();
}

void EntryCard::wheelEvent(QWheelEvent* event) {
    if (bar_->isVisible())
        QCoreApplication::sendEvent(bar_, event);
    else
        event->ignore();
}

// While the card has the focus, Ctrl+C is its own, whatever command of the menus has it too.
bool EntryCard::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void EntryCard::contextMenuEvent(QContextMenuEvent* event) {
    if (text_.empty())
        return;
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    emit menuWanted(byKey ? mapToGlobal(QPoint(kEdge, 0) + textCorner()) : event->globalPos());
}

void EntryCard::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        copy();
    else if (!scrollByKey(event->key()))
        QWidget::keyPressEvent(event);
}

bool EntryCard::scrollByKey(int key) {
    if (!bar_->isVisible())
        return false;
    switch (key) {
        case Qt::Key_Up:
            bar_->triggerAction(QAbstractSlider::SliderSingleStepSub);
            return true;
        case Qt::Key_Down:
            bar_->triggerAction(QAbstractSlider::SliderSingleStepAdd);
            return true;
        case Qt::Key_PageUp:
            bar_->triggerAction(QAbstractSlider::SliderPageStepSub);
            return true;
        case Qt::Key_PageDown:
        case Qt::Key_Space:
            bar_->triggerAction(QAbstractSlider::SliderPageStepAdd);
            return true;
        case Qt::Key_Home:
            bar_->triggerAction(QAbstractSlider::SliderToMinimum);
            return true;
        case Qt::Key_End:
            bar_->triggerAction(QAbstractSlider::SliderToMaximum);
            return true;
        default:
            return false;
    }
}

void EntryCard::focusInEvent(QFocusEvent* event) {
    focus_.focusIn(*event);
    update();
}

void EntryCard::focusOutEvent(QFocusEvent*) {
    update();
}

}  // namespace velmora
