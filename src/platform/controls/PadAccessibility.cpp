#include "platform/controls/PadAccessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <algorithm>

#include "platform/controls/PadEdit.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

// The number of characters before a position in bytes.
int offsetIn(const std::string& bytes, std::size_t position) {
    std::size_t pairs = 0;
    for (std::size_t at = bytes.find('\n'); at < position; at = bytes.find('\n', at + 1))
        if (at > 0 && bytes[at - 1] == '\r')
            ++pairs;
    return static_cast<int>(position - pairs);
}

class PadInterface final : public QAccessibleWidget,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface {
  public:
    explicit PadInterface(PadEdit* edit) : QAccessibleWidget(edit, QAccessible::EditableText) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = true;
        state.multiLine = true;
        state.selectableText = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? text(0, characterCount())
                                          : QAccessibleWidget::text(kind);
    }

    void selection(int index, int* start, int* end) const override {
        const bool selected = index == 0 && edit().selectionLength() > 0;
        *start = selected ? offsetOf(edit().selectionStart()) : 0;
        *end = selected ? offsetOf(edit().selectionStart() + edit().selectionLength()) : 0;
    }
    int selectionCount() const override { return edit().selectionLength() > 0 ? 1 : 0; }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int) override {
        const std::size_t caret = edit().caret().selection().caret;
        edit().select({caret, caret});
    }
    void setSelection(int index, int start, int end) override {
        if (index == 0)
            edit().select({positionOf(start), positionOf(end)});
    }

    int cursorPosition() const override { return offsetOf(edit().caret().selection().caret); }
    void setCursorPosition(int offset) override { edit().putCaret({positionOf(offset)}, false); }

    QString text(int start, int end) const override {
        const std::size_t first = positionOf(start);
        const std::size_t last = std::max(first, positionOf(end));
        QString text = toQt(std::string_view(edit().bytes()).substr(first, last - first),
                            edit().page().codePage());
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        return text.replace(u'\r', u'\n');
    }
    int characterCount() const override { return offsetOf(edit().bytes().size()); }

    QRect characterRect(int offset) const override {
        const std::size_t position = positionOf(offset);
        const QRect left = edit().caretRect({position});
        const QRect right =
            edit().caretRect({edit().page().letters().next(buffer(), position), true});
        const QRect rect(left.topLeft(),
                         QSize(std::max(1, right.left() - left.left()), left.height()));
        return rect.translated(edit().viewport()->mapToGlobal(QPoint(0, 0)));
    }
    int offsetAtPoint(const QPoint& point) const override {
        return offsetOf(edit().placeAt(edit().viewport()->mapFromGlobal(point)).position);
    }
    void scrollToSubstring(int start, int) override { setCursorPosition(start); }
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override {
        setSelection(0, start, end);
        QString lines = keepToCodePage(text, edit().page().codePage());
        lines.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
        edit().replaceSelection(fromQt(lines, edit().page().codePage()));
    }

  private:
    PadEdit& edit() const { return static_cast<PadEdit&>(*widget()); }
    const PadBuffer& buffer() const { return edit().page().text(); }

    int offsetOf(std::size_t position) const { return offsetIn(edit().bytes(), position); }

    // The position in bytes behind so many characters; behind the last one for numbers below 0.
    std::size_t positionOf(int offset) const {
        const std::string& bytes = edit().bytes();
        auto position =
            static_cast<std::size_t>(std::max(0, offset < 0 ? characterCount() : offset));
        for (std::size_t at = bytes.find('\n'); at <= position && at < bytes.size();
             at = bytes.find('\n', at + 1))
            if (at > 0 && bytes[at - 1] == '\r')
                ++position;
        return buffer().snapped(position);
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* edit = qobject_cast<PadEdit*>(object);
    return edit != nullptr ? new PadInterface(edit) : nullptr;
}

// The text as assistive tools see it; null while none is listening.
QAccessibleTextInterface* listenedText(PadEdit& edit) {
    if (!QAccessible::isActive())
        return nullptr;
    auto* texts = QAccessible::queryAccessibleInterface(&edit);
    return texts != nullptr ? texts->textInterface() : nullptr;
}

}  // namespace

void registerPadAccessibility() {
    QAccessible::removeFactory(makeInterface);
    QAccessible::installFactory(makeInterface);
}

void tellTextChanged(PadEdit& edit, const PadBuffer::Change& change) {
    QAccessibleTextInterface* text = listenedText(edit);
    if (text == nullptr)
        return;
    const auto shown = [&edit](std::string_view bytes) {
        QString lines = toQt(bytes, edit.page().codePage());
        return lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    };
    const QString inserted =
        shown(std::string_view(edit.bytes()).substr(change.position, change.inserted));
    const int caret = text->cursorPosition();
    const int position = offsetIn(edit.bytes(), change.position);
    if (!change.removed.empty()) {
        QAccessibleTextRemoveEvent removed(&edit, position, shown(change.removed));
        removed.setCursorPosition(inserted.isEmpty() ? caret : position);
        QAccessible::updateAccessibility(&removed);
    }
    if (!inserted.isEmpty()) {
        QAccessibleTextInsertEvent event(&edit, position, inserted);
        event.setCursorPosition(caret);
        QAccessible::updateAccessibility(&event);
    }
}

void tellCaretMoved(PadEdit& edit) {
    QAccessibleTextInterface* text = listenedText(edit);
    if (text == nullptr)
        return;
    int start = 0;
    int end = 0;
    text->selection(0, &start, &end);
    if (start != end) {
        QAccessibleTextSelectionEvent selected(&edit, start, end);
        selected.setCursorPosition(text->cursorPosition());
        QAccessible::updateAccessibility(&selected);
        return;
    }
    QAccessibleTextCursorEvent moved(&edit, text->cursorPosition());
    QAccessible::updateAccessibility(&moved);
}

}  // namespace velmora
