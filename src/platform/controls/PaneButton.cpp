#include "platform/controls/PaneButton.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QVBoxLayout>

#include <utility>

#include "platform/controls/DragFormats.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr QSize kSize(76, 66);
constexpr int kIcon = 26;
constexpr int kIconTop = 10;
constexpr int kCaptionTop = 41;
constexpr qreal kRadius = 8;

QColor inkOf(const PaneButton& button) {
    const Theme& theme = Theme::of(button);
    if (!button.isEnabled())
        return theme.dis;
    return button.raised() ? theme.accent : theme.ink;
}

class Caption final : public QLabel {
  public:
    Caption(const QString& text, PaneButton* button) : QLabel(text, button), button_(*button) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setTextFormat(Qt::PlainText);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(inkOf(button_));
        painter.drawText(rect(), Qt::AlignHCenter | Qt::AlignTop, text());
    }

  private:
    const PaneButton& button_;
};

}  // namespace

PaneButton::PaneButton(QString symbol, const QString& caption, QWidget* parent)
    : PaintedButton(parent), symbol_(std::move(symbol)), caption_(new Caption(caption, this)) {
    setText(caption);
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, kCaptionTop, 0, 0);
    column->addWidget(caption_);
    weighCaption();
}

QSize PaneButton::sizeHint() const {
    return kSize.expandedTo({caption_->fontMetrics().horizontalAdvance(text()) + 8,
                             kCaptionTop + caption_->fontMetrics().height() + 10});
}

void PaneButton::setRaised(bool raised) {
    raised_ = raised;
    weighCaption();
    update();
}

void PaneButton::weighCaption() {
    QFont small = font();
    small.setPointSizeF(9);
    small.setWeight(raised_ ? QFont::DemiBold : QFont::Normal);
    caption_->setFont(small);
}

void PaneButton::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::of(*this);
    QPainter painter(this);
    if (dropTarget_) {
        drawPanel(painter, rect(), kRadius, theme.tint, theme.tint);
        drawDropRing(painter, rect(), kRadius, theme.accent);
    } else if (raised_) {
        // The bottom edge is darker, as if the button stood above the rail.
        drawPanel(painter, rect(), kRadius, theme.surface, theme.line2);
        painter.setClipRect(rect().adjusted(0, 0, 0, -static_cast<int>(kRadius) / 2));
        drawPanel(painter, rect(), kRadius, theme.surface, theme.line);
        painter.setClipping(false);
    } else if (isDown() || (underMouse() && isEnabled())) {
        const QColor fill = isDown() ? theme.press : theme.hover;
        drawPanel(painter, rect(), kRadius, fill, fill);
    }
    painter.drawPixmap((width() - kIcon) / 2, kIconTop,
                       symbolPixmap(symbol_, {kIcon, kIcon}, devicePixelRatioF(), inkOf(*this)));
    if (focusShown())
        drawFocusRing(painter, rect(), kRadius, theme.accent);
}

void PaneButton::setDropTarget(bool target) {
    dropTarget_ = target;
    update();
}

void PaneButton::dragEnterEvent(QDragEnterEvent* event) {
    if (!event->mimeData()->hasFormat(QLatin1String(kEntryFormat)))
        return;
    event->acceptProposedAction();
    setDropTarget(true);
}

void PaneButton::dragLeaveEvent(QDragLeaveEvent*) {
    setDropTarget(false);
}

void PaneButton::dropEvent(QDropEvent* event) {
    setDropTarget(false);
    if (!event->mimeData()->hasFormat(QLatin1String(kEntryFormat)))
        return;
    event->acceptProposedAction();
    emit entryDropped(event->mimeData()->data(QLatin1String(kEntryFormat)).toStdString());
}

}  // namespace velmora
