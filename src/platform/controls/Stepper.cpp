#include "platform/controls/Stepper.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>
#include <QWheelEvent>

#include "platform/qt/Icons.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr int kHeight = 40;
constexpr int kArrowsWidth = 22;
constexpr int kNumberWidth = 46;
constexpr int kRadius = 5;
constexpr int kFirstRepeat = 350;  // milliseconds
constexpr int kNextRepeat = 60;
constexpr int kTypingPause = 1500;
constexpr QSize kChevron(16, 16);

}  // namespace

StepperArrows::StepperArrows(QWidget* parent) : QAbstractSlider(parent) {
    setOrientation(Qt::Vertical);
    setFocusPolicy(Qt::StrongFocus);
    setFixedWidth(kArrowsWidth);
}

QSize StepperArrows::sizeHint() const {
    return {kArrowsWidth, kHeight - 2};
}

void StepperArrows::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme& theme = Theme::of(*this);
    const QRect upper(0, 0, width(), height() / 2);
    const QRect lower(0, height() / 2, width(), height() - height() / 2);
    if (direction_ != 0)
        painter.fillRect(direction_ > 0 ? upper : lower, theme.press);
    painter.fillRect(QRect(0, 0, 1, height()), theme.line);
    painter.fillRect(QRect(0, lower.top(), width(), 1), theme.line);
    const auto arrow = [&](const char* symbol, const QRect& half, bool usable) {
        const QPixmap pixmap =
            symbolPixmap(QString::fromLatin1(symbol), kChevron, devicePixelRatioF(),
                         usable && isEnabled() ? theme.ink2 : theme.line);
        painter.drawPixmap(
            half.center() - QPoint(kChevron.width() / 2 - 1, kChevron.height() / 2 - 1), pixmap);
    };
    arrow("ChevronUp", upper, value() < maximum());
    arrow("ChevronDown", lower, value() > minimum());
}

void StepperArrows::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    direction_ = event->position().y() < height() / 2.0 ? 1 : -1;
    step();
    repeat_.start(kFirstRepeat, this);
}

void StepperArrows::mouseReleaseEvent(QMouseEvent*) {
    letGo();
}

// Whoever closes the form while an arrow is held down never tells of the release.
void StepperArrows::hideEvent(QHideEvent* event) {
    letGo();
    QAbstractSlider::hideEvent(event);
}

void StepperArrows::letGo() {
    repeat_.stop();
    direction_ = 0;
    update();
}

void StepperArrows::timerEvent(QTimerEvent* event) {
    if (event->timerId() != repeat_.timerId()) {
        QAbstractSlider::timerEvent(event);
        return;
    }
    step();
    repeat_.start(kNextRepeat, this);
}

void StepperArrows::step() {
    setValue(value() + direction_ * singleStep());
    update();
}

void StepperArrows::wheelEvent(QWheelEvent* event) {
    wheelTurn_ += event->angleDelta().y();
    const int notches = wheelTurn_ / QWheelEvent::DefaultDeltasPerStep;
    wheelTurn_ -= notches * QWheelEvent::DefaultDeltasPerStep;
    setValue(value() + notches * singleStep());
    event->accept();
}

// "1" and "4" are 14; where that is too high, "4" alone counts. What is too low waits for more.
void StepperArrows::typeDigit(int digit) {
    const bool goesOn = sinceDigit_.isValid() && !sinceDigit_.hasExpired(kTypingPause);
    typed_ = goesOn && typed_ * 10 + digit <= maximum() ? typed_ * 10 + digit : digit;
    sinceDigit_.start();
    if (typed_ >= minimum() && typed_ <= maximum())
        setValue(typed_);
}

void StepperArrows::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (plain && event->key() >= Qt::Key_0 && event->key() <= Qt::Key_9)
        return typeDigit(event->key() - Qt::Key_0);
    sinceDigit_.invalidate();
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Plus:
            setValue(value() + singleStep());
            break;
        case Qt::Key_Down:
        case Qt::Key_Minus:
            setValue(value() - singleStep());
            break;
        case Qt::Key_PageUp:
            setValue(value() + pageStep());
            break;
        case Qt::Key_PageDown:
            setValue(value() - pageStep());
            break;
        case Qt::Key_Home:
            setValue(minimum());
            break;
        case Qt::Key_End:
            setValue(maximum());
            break;
        default:
            event->ignore();
    }
}

void StepperArrows::focusInEvent(QFocusEvent* event) {
    focus_.focusIn(*event);
    sinceDigit_.invalidate();
    QAbstractSlider::focusInEvent(event);
    parentWidget()->update();
}

void StepperArrows::focusOutEvent(QFocusEvent* event) {
    QAbstractSlider::focusOutEvent(event);
    parentWidget()->update();
}

Stepper::Stepper(const QString& arrowsName, const QString& labelName, QWidget* parent)
    : QFrame(parent), label_(new QLabel(this)), arrows_(new StepperArrows(this)) {
    label_->setObjectName(labelName);
    label_->setAlignment(Qt::AlignCenter);
    label_->setMinimumWidth(kNumberWidth);
    label_->setTextFormat(Qt::PlainText);
    QFont font = label_->font();
    font.setPointSizeF(15);
    font.setWeight(QFont::DemiBold);
    label_->setFont(font);
    arrows_->setObjectName(arrowsName);
    setFixedHeight(kHeight);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(label_, 1);
    layout->addWidget(arrows_);
    connect(arrows_, &QAbstractSlider::valueChanged, this, &Stepper::valueChanged);
}

void Stepper::setRange(int lowest, int highest, int largeStep) {
    arrows_->setRange(lowest, highest);
    arrows_->setPageStep(largeStep);
}

int Stepper::value() const {
    return arrows_->value();
}

void Stepper::setValue(int value) {
    arrows_->setValue(value);
}

void Stepper::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme& theme = Theme::of(*this);
    const bool focused = arrows_->hasFocus();
    drawPanel(painter, rect(), kRadius, theme.surface, theme.line2);
    if (focused)
        drawFocusRing(painter, rect(), kRadius, theme.accent);
}

void Stepper::mousePressEvent(QMouseEvent* event) {
    arrows_->setFocus(Qt::MouseFocusReason);
    QFrame::mousePressEvent(event);
}

// Over the number the wheel does what it does over the arrows.
void Stepper::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(arrows_, event);
}

}  // namespace velmora
