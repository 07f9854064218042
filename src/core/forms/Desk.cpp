#include "core/forms/Desk.h"

#include <QHBoxLayout>
#include <QSplitter>
#include <algorithm>

#include "core/forms/DocPadColumn.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/PageStack.h"
#include "platform/controls/PadEdit.h"

namespace velmora {
namespace {

constexpr int kPaneStretch = 54;
constexpr int kDocPadStretch = 46;

struct Measures {
    int margin;  // and gap
    int narrowestPane;
    QMargins text;
    QMargins wideText;  // of DocPad when it fills the desk
};

constexpr Measures kNormal{12, 440, {16, 14, 16, 14}, {56, 28, 56, 28}};
constexpr Measures kSmall{8, 412, {12, 10, 12, 10}, {24, 16, 24, 16}};
constexpr int kSmallDocPad = 280;
constexpr int kNarrowestDocPad = 200;

}  // namespace

Desk::Desk(const Parts& parts, QWidget* parent)
    : QScrollArea(parent),
      parts_(parts),
      floor_(new QWidget(this)),
      splitter_(new QSplitter(Qt::Horizontal, floor_)),
      pages_(new QWidget),
      stack_(new PageStack(pages_)) {
    // First, while there is nothing yet of which it would ask the size.
    setWidgetResizable(true);
    setWidget(floor_);
    splitter_->setObjectName(QStringLiteral("Desk"));
    splitter_->setChildrenCollapsible(false);
    splitter_->addWidget(pages_);
    splitter_->addWidget(parts.docPad);
    splitter_->setStretchFactor(0, kPaneStretch);
    splitter_->setStretchFactor(1, kDocPadStretch);
    splitter_->setSizes({kPaneStretch * 100, kDocPadStretch * 100});
    for (QWidget* page : parts.pages)
        stack_->addWidget(page);
    connect(splitter_, &QSplitter::splitterMoved, this,
            [this] { chosenDocPadWidth_ = parts_.docPad->width(); });

    auto* layout = new QHBoxLayout(floor_);
    layout->addWidget(parts.left);
    layout->addWidget(splitter_, 1);

    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    floor_->setAutoFillBackground(false);
    setMeasures(false, false);
    showPage(Pane::Planner);
}

QPoint Desk::paneCorner() const {
    return pages_->mapTo(floor_, QPoint(0, 0));
}

void Desk::showPage(Pane pane) {
    stack_->setCurrentIndex(static_cast<int>(pane));
    stack_->invalidate();
    pages_->updateGeometry();
}

void Desk::setDocPadFills(bool fills) {
    docPadFills_ = fills;
    parts_.left->setVisible(!fills);
    pages_->setVisible(!fills);
    parts_.docPad->setWide(fills);
    fitTextMargins();
    floor_->layout()->activate();
}

void Desk::fitTextMargins() const {
    const Measures& own = small_ ? kSmall : kNormal;
    parts_.text->setTextMargins(docPadFills_ ? own.wideText : own.text);
}

void Desk::setMeasures(bool small, bool narrow) {
    small_ = small;
    const Measures& own = small ? kSmall : kNormal;
    floor_->layout()->setContentsMargins(own.margin, own.margin, own.margin, own.margin);
    floor_->layout()->setSpacing(own.margin);
    splitter_->setHandleWidth(own.margin);
    pages_->setMinimumWidth(own.narrowestPane);
    parts_.left->setSmall(small);
    parts_.docPad->setSmall(small, narrow ? kNarrowestDocPad : kSmallDocPad);
    fitTextMargins();
}

void Desk::chooseDocPadWidth(int width) {
    chosenDocPadWidth_ = width;
    placed_ = false;
    if (isVisible())
        applyDocPadWidth();
}

void Desk::applyDocPadWidth() {
    placed_ = true;
    if (chosenDocPadWidth_ <= 0 || docPadFills_)
        return;
    const int rest = splitter_->width() - splitter_->handleWidth() - chosenDocPadWidth_;
    splitter_->setSizes({std::max(rest, 0), chosenDocPadWidth_});
}

// The window takes its style before it is shown. Laid out for that, everything would be measured in
// vain: it is laid out again when it is shown.
bool Desk::event(QEvent* event) {
    if (event->type() == QEvent::StyleChange && !isVisible())
        return QAbstractScrollArea::event(event);
    return QScrollArea::event(event);
}

// Before the first showing the splitter has no width that could be divided.
void Desk::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (placed_ || !isVisible())
        return;
    floor_->layout()->activate();
    applyDocPadWidth();
}

}  // namespace velmora
