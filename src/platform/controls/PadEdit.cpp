#include "platform/controls/PadEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "platform/controls/PadAccessibility.h"
#include "platform/controls/PadMouse.h"

namespace velmora {
namespace {

constexpr QMargins kMargins(16, 14, 16, 14);

}  // namespace

PadEdit::PadEdit(const CodePage& codePage, QWidget* parent)
    : QAbstractScrollArea(parent), PadEditor(codePage), mouse_(std::make_unique<PadMouse>(*this)) {
    registerPadAccessibility();
    setProperty("role", "paper");
    setFocusPolicy(Qt::WheelFocus);
    setAttribute(Qt::WA_KeyCompression);
    setAttribute(Qt::WA_InputMethodEnabled);
    setInputMethodHints(Qt::ImhMultiLine);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setViewportMargins(kMargins);
    setAcceptDrops(true);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setCursor(Qt::IBeamCursor);
}

PadEdit::~PadEdit() = default;

void PadEdit::textWasChanged(const PadBuffer::Change& change, View view) {
    fitRows();
    follow(view);
    tellTextChanged(*this, change);
    emit textChanged();
}

void PadEdit::caretWasMoved(View view) {
    follow(view);
    tellCaretMoved(*this);
}

void PadEdit::follow(View view) {
    if (view == View::Follows)
        ensureCaretVisible();
    blink();
    viewport()->update();
    updateMicroFocus();
}

int PadEdit::rowsOnShow() const {
    return std::max(1, verticalScrollBar()->pageStep());
}

void PadEdit::copy() const {
    if (selectionLength() > 0)
        QApplication::clipboard()->setText(selectedText());
}

void PadEdit::cut() {
    copy();
    replaceSelection({});
}

void PadEdit::paste() {
    if (const QMimeData* copied = QApplication::clipboard()->mimeData())
        insert(*copied);
}

void PadEdit::setInk(const std::optional<QColor>& colour) {
    ink_ = colour;
    // A style sheet of the application wins over the palette, so the colour goes the same way.
    // Setting one takes the font away that the box was given.
    const QFont given = font();
    setStyleSheet(colour ? QStringLiteral("velmora--PadEdit { color: %1 }").arg(colour->name())
                         : QString());
    setFont(given);
}

void PadEdit::setTextMargins(const QMargins& margins) {
    setViewportMargins(margins);
}

QRect PadEdit::caretRect(const PadPage::Place& place) const {
    const int width = style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this);
    const bool here = place.position == caret().selection().caret;
    const qreal x = page().xOf(place, here ? inputMethod_.composed() : nullptr);
    // Blanks may hang over the edge of a row, but the caret stays in sight.
    const int left = std::clamp(qRound(x), 0, std::max(0, viewport()->width() - width));
    const auto row = static_cast<int>(page().rowOf(place)) - verticalScrollBar()->value();
    return {left, row * page().rowHeight(), width, page().rowHeight()};
}

PadPage::Place PadEdit::placeAt(const QPoint& point) const {
    const int row =
        verticalScrollBar()->value() + (point.y() < 0 ? -1 : point.y() / page().rowHeight());
    const auto last = static_cast<int>(page().rows().count()) - 1;
    return page().placeAt(static_cast<std::size_t>(std::clamp(row, 0, last)), point.x());
}

void PadEdit::layPage() {
    const std::size_t top =
        page().rows().begin(static_cast<std::size_t>(verticalScrollBar()->value()));
    // One pixel is left for the caret behind a full row.
    fitPage(*this, std::max(1, viewport()->width() - 1));
    fitRows();
    verticalScrollBar()->setValue(static_cast<int>(page().rows().at(top)));
    viewport()->update();
}

void PadEdit::fitRows() {
    const int onShow = std::max(1, viewport()->height() / page().rowHeight());
    const auto rows = static_cast<int>(page().rows().count());
    verticalScrollBar()->setPageStep(onShow);
    verticalScrollBar()->setRange(0, std::max(0, rows - onShow));
}

void PadEdit::ensureCaretVisible() {
    QScrollBar* bar = verticalScrollBar();
    const auto row = static_cast<int>(caret().row());
    if (row < bar->value())
        bar->setValue(row);
    else if (row >= bar->value() + bar->pageStep())
        bar->setValue(row - bar->pageStep() + 1);
}

void PadEdit::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    layPage();
}

void PadEdit::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::ApplicationFontChange)
        layPage();
}

void PadEdit::scrollContentsBy(int, int) {
    viewport()->update();
}

}  // namespace velmora
