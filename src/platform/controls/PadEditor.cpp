#include "platform/controls/PadEditor.h"

#include <QMimeData>
#include <algorithm>

#include "platform/qt/QtText.h"

namespace velmora {
namespace {

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

void PadEditor::setBytes(std::string_view bytes) {
    if (this->bytes() == bytes)
        return;
    change(0, this->bytes().size(), bytes, PadBuffer::Kind::Other);
    putCaret({0}, false);
}

void PadEditor::reload(std::string_view bytes) {
    if (!isEmpty() || !bytes.empty()) {
        change(0, this->bytes().size(), bytes, PadBuffer::Kind::Other);
        putCaret({0}, false);
    }
    page_.text().forgetHistory();
}

void PadEditor::append(std::string_view bytes) {
    if (bytes.empty())
        return;
    const PadBuffer::Selection before = caret_.selection();
    page_.text().endStep();
    const PadBuffer::Change change = page_.text().append(bytes, before);
    page_.follow(change);
    caret_.set(before);  // never between a CR and the LF that has come behind it
    textWasChanged(change, View::Stays);
}

void PadEditor::select(std::size_t start, std::size_t length) {
    const PadBuffer& text = page_.text();
    const std::size_t first = text.snapped(start);
    select({first, length == 0 ? first : text.snapped(std::min(start + length, text.size()))});
}

void PadEditor::select(const PadBuffer::Selection& selection) {
    caret_.set(selection);
    page_.text().endStep();
    caretWasMoved(View::Follows);
}

void PadEditor::selectAll() {
    caret_.set({0, bytes().size()});
    page_.text().endStep();
    caretWasMoved(View::Stays);
}

void PadEditor::putCaret(const PadPage::Place& place, bool extend) {
    caret_.put(place, extend);
    page_.text().endStep();
    caretWasMoved(View::Follows);
}

void PadEditor::moveCaret(PadCaret::Move move, bool extend) {
    caret_.move(move, extend, rowsOnShow());
    page_.text().endStep();
    caretWasMoved(View::Follows);
}

std::string PadEditor::selectedBytes() const {
    return bytes().substr(selectionStart(), selectionLength());
}

QString PadEditor::selectedText() const {
    return withLineFeeds(toQt(selectedBytes(), page_.codePage()));
}

void PadEditor::replaceSelection(std::string_view bytes) {
    if (!bytes.empty() || selectionLength() > 0)
        change(selectionStart(), selectionLength(), bytes, PadBuffer::Kind::Other);
}

void PadEditor::insert(const QMimeData& what) {
    if (what.hasText())
        replaceSelection(withCrLf(fromQt(kept(withLineFeeds(what.text())), page_.codePage())));
}

void PadEditor::type(const QString& text) {
    change(selectionStart(), selectionLength(), fromQt(kept(text), page_.codePage()),
           PadBuffer::Kind::Typing);
}

void PadEditor::erase(std::size_t position) {
    if (selectionLength() > 0) {
        replaceSelection({});
        return;
    }
    const PadBuffer::Selection range{caret_.selection().caret, position};
    if (range.length() > 0)
        change(range.first(), range.length(), {}, PadBuffer::Kind::Erasing);
}

void PadEditor::undo() {
    replay(page_.text().undo());
}

void PadEditor::redo() {
    replay(page_.text().redo());
}

QString PadEditor::kept(const QString& text) {
    QString result = keepToCodePage(text, page_.codePage());
    if (result != text)
        characterWasReplaced();
    return result;
}

void PadEditor::change(std::size_t position, std::size_t length, std::string_view with,
                       PadBuffer::Kind kind) {
    const PadBuffer::Change change =
        page_.text().replace(position, length, with, kind, caret_.selection());
    caret_.set(change.position + change.inserted);
    page_.follow(change);
    textWasChanged(change, View::Follows);
}

void PadEditor::replay(const std::optional<PadBuffer::Replay>& replay) {
    if (!replay)
        return;
    caret_.set(replay->selection);
    page_.follow(replay->change);
    textWasChanged(replay->change, View::Follows);
}

}  // namespace velmora
