#include "platform/controls/PaneButton.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QVBoxLayout>

#include "platform/controls/DragFormats.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr QSize kSize(76, 66);
constexpr int kIcon = 26;
constexpr int kIconTop = 9;
constexpr int kCaptionTop = 39;
constexpr qreal kRadius = 8;

}  // namespace

PaneButton::PaneButton(const QString& symbol, const QString& caption, QWidget* parent)
    : PaintedButton(parent), symbol_(symbol), caption_(new QLabel(caption, this)) {
    setText(caption);
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    caption_->setAttribute(Qt::WA_TransparentForMouseEvents);
    caption_->setTextFormat(Qt::PlainText);
    caption_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, kCaptionTop, 0, 0);
    column->addWidget(caption_);
    colourCaption();
}

QSize PaneButton::sizeHint() const {
    return kSize.expandedTo({caption_->fontMetrics().horizontalAdvance(text()) + 8,
                             kCaptionTop + caption_->fontMetrics().height() + 10});
}

void PaneButton::setRaised(bool raised) {
    raised_ = raised;
    colourCaption();
    update();
}

void PaneButton::colourCaption() {
    const Theme& theme = Theme::of(*this);
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, !isEnabled() ? theme.dis
                                           : raised_    ? theme.accent
                                                        : theme.ink);
    caption_->setPalette(colours);
    QFont small = font();
    small.setPointSizeF(9);
    small.setWeight(raised_ ? QFont::DemiBold : QFont::Normal);
    caption_->setFont(small);
}

void PaneButton::changeEvent(QEvent* event) {
    PaintedButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        colourCaption();
}

void PaneButton::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::of(*this);
    QPainter painter(this);
    if (dropTarget_) {
        drawPanel(painter, rect(), kRadius, theme.tint, theme.tint);
        drawRing(painter, rect(), kRadius, theme.accent, 2, Qt::DashLine);
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
    const QColor ink = !isEnabled() ? theme.dis : raised_ ? theme.accent : theme.ink;
    painter.drawPixmap((width() - kIcon) / 2, kIconTop,
                       symbolPixmap(symbol_, {kIcon, kIcon}, devicePixelRatioF(), ink));
    if (focusShown())
        drawRing(painter, rect(), kRadius, theme.accent);
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
