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
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QMargins kMargins(16, 14, 16, 14);

QString withLineFeeds(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QChar end :
         {QChar(u'\r'), QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        text.replace(end, u'\n');
    return text;
}

std::string withCrLf(const std::string& text) {
    std::string result;
    result.reserve(text.size());
    for (const char byte : text) {
        if (byte == '\n')
            result += '\r';
        result += byte;
    }
    return result;
}

}  // namespace

PadEdit::PadEdit(const CodePage& codePage, QWidget* parent)
    : QAbstractScrollArea(parent), page_(codePage), mouse_(std::make_unique<PadMouse>(*this)) {
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

void PadEdit::setBytes(std::string_view bytes) {
    if (this->bytes() == bytes)
        return;
    change(0, this->bytes().size(), bytes, PadBuffer::Kind::Other);
    putCaret({0}, false);
}

void PadEdit::reload(std::string_view bytes) {
    if (!isEmpty() || !bytes.empty()) {
        change(0, this->bytes().size(), bytes, PadBuffer::Kind::Other);
        putCaret({0}, false);
    }
    page_.text().forgetHistory();
}

void PadEdit::append(std::string_view bytes) {
    if (bytes.empty())
        return;
    const PadBuffer::Selection before = caret_.selection();
    const int top = verticalScrollBar()->value();
    page_.text().endStep();
    changed(page_.text().append(bytes, before));
    caret_.set(before);
    verticalScrollBar()->setValue(top);
}

void PadEdit::select(std::size_t start, std::size_t length) {
    const PadBuffer& text = page_.text();
    const std::size_t first = text.snapped(start);
    select({first, length == 0 ? first : text.snapped(std::min(start + length, text.size()))});
}

void PadEdit::select(const PadBuffer::Selection& selection) {
    caret_.set(selection);
    caretMoved();
}

std::string PadEdit::selectedBytes() const {
    return bytes().substr(selectionStart(), selectionLength());
}

QString PadEdit::selectedText() const {
    return withLineFeeds(toQt(selectedBytes(), page_.codePage()));
}

void PadEdit::replaceSelection(std::string_view bytes) {
    if (!bytes.empty() || selectionLength() > 0)
        change(selectionStart(), selectionLength(), bytes, PadBuffer::Kind::Other);
}

void PadEdit::erase(std::size_t position) {
    if (selectionLength() > 0) {
        replaceSelection({});
        return;
    }
    const std::size_t caret = caret_.selection().caret;
    const PadBuffer::Selection range{caret, position};
    if (range.length() > 0)
        change(range.first(), range.length(), {}, PadBuffer::Kind::Erasing);
}

void PadEdit::insert(const QMimeData& what) {
    if (what.hasText())
        replaceSelection(withCrLf(fromQt(kept(withLineFeeds(what.text())), page_.codePage())));
}

QString PadEdit::kept(const QString& text) {
    QString result = keepToCodePage(text, page_.codePage());
    if (result != text)
        emit characterReplaced();
    return result;
}

void PadEdit::insertTyped(const QString& text) {
    change(selectionStart(), selectionLength(), fromQt(kept(text), page_.codePage()),
           PadBuffer::Kind::Typing);
}

void PadEdit::change(std::size_t position, std::size_t length, std::string_view with,
                     PadBuffer::Kind kind) {
    const PadBuffer::Change change =
        page_.text().replace(position, length, with, kind, caret_.selection());
    caret_.set(change.position + change.inserted);
    changed(change);
}

void PadEdit::undo() {
    replay(page_.text().undo());
}

void PadEdit::redo() {
    replay(page_.text().redo());
}

void PadEdit::replay(const std::optional<PadBuffer::Replay>& replay) {
    if (!replay)
        return;
    caret_.set(replay->selection);
    changed(replay->change);
}

void PadEdit::changed(const PadBuffer::Change& change) {
    page_.follow(change);
    fitRows();
    ensureCaretVisible();
    blink();
    viewport()->update();
    updateMicroFocus();
    tellTextChanged(*this, change);
    emit textChanged();
}

void PadEdit::caretMoved() {
    page_.text().endStep();
    ensureCaretVisible();
    blink();
    viewport()->update();
    updateMicroFocus();
    tellCaretMoved(*this);
}

void PadEdit::putCaret(const PadPage::Place& place, bool extend) {
    caret_.put(place, extend);
    caretMoved();
}

void PadEdit::moveCaret(PadCaret::Move move, bool extend) {
    caret_.move(move, extend, std::max(1, verticalScrollBar()->pageStep()));
    caretMoved();
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

void PadEdit::selectAll() {
    caret_.set({0, bytes().size()});
    page_.text().endStep();
    viewport()->update();
    tellCaretMoved(*this);
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
    const bool here = place.position == caret_.selection().caret && !preedit_.text.isEmpty();
    const qreal x = page_.xOf(place, here ? &preedit_ : nullptr);
    // Blanks may hang over the edge of a row, but the caret stays in sight.
    const int left = std::clamp(qRound(x), 0, std::max(0, viewport()->width() - width));
    const auto row = static_cast<int>(page_.rowOf(place)) - verticalScrollBar()->value();
    return {left, row * page_.rowHeight(), width, page_.rowHeight()};
}

PadPage::Place PadEdit::placeAt(const QPoint& point) const {
    const int row =
        verticalScrollBar()->value() + (point.y() < 0 ? -1 : point.y() / page_.rowHeight());
    const auto last = static_cast<int>(page_.rows().count()) - 1;
    return page_.placeAt(static_cast<std::size_t>(std::clamp(row, 0, last)), point.x());
}

void PadEdit::layPage() {
    const std::size_t top =
        page_.rows().begin(static_cast<std::size_t>(verticalScrollBar()->value()));
    // One pixel is left for the caret behind a full row.
    page_.fit(*this, std::max(1, viewport()->width() - 1));
    fitRows();
    verticalScrollBar()->setValue(static_cast<int>(page_.rows().at(top)));
    viewport()->update();
}

void PadEdit::fitRows() {
    const int onShow = std::max(1, viewport()->height() / page_.rowHeight());
    const auto rows = static_cast<int>(page_.rows().count());
    verticalScrollBar()->setPageStep(onShow);
    verticalScrollBar()->setRange(0, std::max(0, rows - onShow));
}

void PadEdit::ensureCaretVisible() {
    QScrollBar* bar = verticalScrollBar();
    const auto row = static_cast<int>(caret_.row());
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
