#include "accessories/forms/CalculatorKey.h"

#include <QPainter>
#include <QTimer>
#include <chrono>

#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr QSize kKeySize(54, 46);
constexpr qreal kRadius = 8;
constexpr std::chrono::milliseconds kFlashTime{120};

struct KeyColours {
    QColor fill;
    QColor outline;
    QColor ink;
};

KeyColours coloursOf(CalculatorKey::Kind kind, const Theme& theme) {
    switch (kind) {
        case CalculatorKey::Kind::Clear:
            return {theme.chrome, theme.edge, theme.ink};
        case CalculatorKey::Kind::Operator:
            return {theme.tint, theme.edge, theme.accent};
        case CalculatorKey::Kind::Equals:
            return {theme.accentfill, theme.accentfill, theme.onaccent};
        case CalculatorKey::Kind::Digit:
            break;
    }
    return {theme.surface, theme.edge, theme.ink};
}

// The text on a pressed or hovered key keeps its contrast: the white of "=" needs its own fill.
void touch(KeyColours& colours, CalculatorKey::Kind kind, bool pressed, const Theme& theme) {
    colours.outline = theme.accent;
    if (kind == CalculatorKey::Kind::Equals)
        colours.outline = theme.ink;
    else if (pressed)
        colours = {theme.press, theme.accent, theme.ink};
    else if (kind == CalculatorKey::Kind::Operator)
        colours.fill = theme.tint2;
    else
        colours.fill = theme.tint;
}

}  // namespace

CalculatorKey::CalculatorKey(const QString& caption, Kind kind, QWidget* parent)
    : PaintedButton(parent), kind_(kind), flash_(new QTimer(this)) {
    setText(caption);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QFont large = font();
    large.setPointSizeF(kind == Kind::Clear ? 12 : 15);
    large.setWeight(kind == Kind::Digit || kind == Kind::Clear ? QFont::Medium : QFont::DemiBold);
    setFont(large);
    flash_->setSingleShot(true);
    flash_->setInterval(kFlashTime);
    connect(flash_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
}

void CalculatorKey::flash() {
    flash_->start();
    update();
}

bool CalculatorKey::flashing() const {
    return flash_->isActive();
}

QSize CalculatorKey::sizeHint() const {
    return kKeySize;
}

void CalculatorKey::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::of(*this);
    const bool pressed = isDown() || flashing();
    KeyColours colours = coloursOf(kind_, theme);
    if (pressed || underMouse())
        touch(colours, kind_, pressed, theme);
    QPainter painter(this);
    drawPanel(painter, rect(), kRadius, colours.fill, colours.outline);
    painter.setPen(colours.ink);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

}  // namespace velmora
