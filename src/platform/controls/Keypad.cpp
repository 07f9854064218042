#include "platform/controls/Keypad.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <string_view>

#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr std::string_view kCharacters = "123456789*0,";
constexpr int kFirstCommand = 8;
constexpr int kColumns = 3;
constexpr int kGap = 10;
constexpr int kMostWidth = 330;
constexpr QSize kLeastKey(88, 78);
constexpr QSize kLeastSmallKey(80, 60);
constexpr int kKeyMargin = 24;  // of the character in its key, above and below together
constexpr int kSmallKeyMargin = 16;
constexpr qreal kRadius = 10;
constexpr std::chrono::milliseconds kFlashTime{120};

QString spokenName(char character) {
    if (character == '*')
        return QStringLiteral("Star");
    return character == ',' ? QStringLiteral("Comma") : QString(QLatin1Char(character));
}

int stepOf(int key) {
    switch (key) {
        case Qt::Key_Left:
            return -1;
        case Qt::Key_Right:
            return 1;
        case Qt::Key_Up:
            return -kColumns;
        case Qt::Key_Down:
            return kColumns;
        default:
            return 0;
    }
}

}  // namespace

KeypadKey::KeypadKey(char character, QWidget* parent)
    : PaintedButton(parent), flash_(new QTimer(this)) {
    setText(QString(QLatin1Char(character)));
    setAccessibleName(spokenName(character));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QFont large = font();
    large.setPointSizeF(19.5);
    large.setWeight(QFont::Medium);
    setFont(large);
    flash_->setSingleShot(true);
    flash_->setInterval(kFlashTime);
    connect(flash_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
}

void KeypadKey::flash() {
    flash_->start();
    update();
}

bool KeypadKey::flashing() const {
    return flash_->isActive();
}

QSize KeypadKey::sizeHint() const {
    return small_ ? kLeastSmallKey.expandedTo({0, fontMetrics().height() + kSmallKeyMargin})
                  : kLeastKey.expandedTo({0, fontMetrics().height() + kKeyMargin});
}

void KeypadKey::setSmall(bool small) {
    small_ = small;
    updateGeometry();
}

void KeypadKey::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::of(*this);
    const bool pressed = isDown() || flashing();
    const bool hover = underMouse() && isEnabled();
    QPainter painter(this);
    drawPanel(painter, rect(), kRadius,
              pressed ? theme.press
              : hover ? theme.tint
                      : theme.surface,
              hover || pressed ? theme.accent : theme.edge);
    painter.setPen(isEnabled() ? theme.ink : theme.dis);
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (focusShown())
        drawFocusRing(painter, rect(), kRadius, theme.accent);
}

Keypad::Keypad(QWidget* parent) : QWidget(parent) {
    setMaximumWidth(kMostWidth);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(QStringLiteral("Keypad"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setSpacing(kGap);
    for (int i = 0; i < static_cast<int>(kCharacters.size()); ++i) {
        const char character = kCharacters[static_cast<std::size_t>(i)];
        auto* key = new KeypadKey(character, this);
        key->setObjectName(QStringLiteral("Command%1").arg(kFirstCommand + i));
        key->installEventFilter(this);
        connect(key, &QAbstractButton::clicked, this,
                [this, character] { emit pressed(character); });
        grid->addWidget(key, i / kColumns, i % kColumns);
        keys_[static_cast<std::size_t>(i)] = key;
    }
}

void Keypad::setSmall(bool small) {
    for (KeypadKey* key : keys_)
        key->setSmall(small);
}

void Keypad::flash(char character) {
    const std::size_t at = kCharacters.find(character);
    if (at != std::string_view::npos)
        keys_[at]->flash();
}

bool Keypad::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto at = std::find(keys_.begin(), keys_.end(), watched);
    const int step = stepOf(static_cast<QKeyEvent*>(event)->key());
    if (at == keys_.end() || step == 0)
        return QWidget::eventFilter(watched, event);
    const auto to = (at - keys_.begin()) + step;
    if (to >= 0 && to < static_cast<std::ptrdiff_t>(keys_.size()))
        keys_[static_cast<std::size_t>(to)]->setFocus(Qt::TabFocusReason);
    return true;
}

}  // namespace velmora
