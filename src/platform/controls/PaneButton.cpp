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

struct Measures {
    QSize size;
    int icon;
    int iconTop;
    int captionTop;
    qreal captionPoints;
};

constexpr Measures kNormal{{76, 66}, 26, 10, 41, 9};
constexpr Measures kSmall{{68, 54}, 22, 7, 33, 8.25};
constexpr int kNormalCaption = 15;  // height of the caption in the usual font
constexpr qreal kRadius = 8;

const Measures& measures(bool small) {
    return small ? kSmall : kNormal;
}

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
    column->addWidget(caption_);
    setSmall(false);
}

QSize PaneButton::sizeHint() const {
    const Measures& own = measures(small_);
    const int spare = own.size.height() - own.captionTop - kNormalCaption;
    return own.size.expandedTo({caption_->fontMetrics().horizontalAdvance(text()) + 4,
                                own.captionTop + caption_->fontMetrics().height() + spare});
}

void PaneButton::setSmall(bool small) {
    small_ = small;
    layout()->setContentsMargins(0, measures(small).captionTop, 0, 0);
    weighCaption();
    updateGeometry();
    update();
}

void PaneButton::setRaised(bool raised) {
    raised_ = raised;
    weighCaption();
    update();
}

void PaneButton::weighCaption() {
    QFont small = font();
    small.setPointSizeF(measures(small_).captionPoints);
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
    const auto& [size, icon, top, captionTop, points] = measures(small_);
    painter.drawPixmap((width() - icon) / 2, top,
                       symbolPixmap(symbol_, {icon, icon}, devicePixelRatioF(), inkOf(*this)));
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
