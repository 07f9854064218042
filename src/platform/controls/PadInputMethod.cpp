#include "platform/controls/PadInputMethod.h"

#include <QInputMethodEvent>
#include <QTextCharFormat>
#include <algorithm>
#include <string_view>

#include "platform/controls/PadEditor.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr std::size_t kAround = 500;  // bytes on each side of the caret

std::size_t beginAround(std::string_view text, std::size_t caret) {
    const std::size_t nearest = caret - std::min(caret, kAround);
    const std::size_t lineEnd = text.substr(nearest, caret - nearest).find_last_of("\r\n");
    return lineEnd == std::string_view::npos ? nearest : nearest + lineEnd + 1;
}

std::string_view around(std::string_view text, std::size_t caret) {
    const std::size_t begin = beginAround(text, caret);
    const std::string_view some = text.substr(begin, caret - begin + kAround);
    const std::size_t lineEnd = some.find_first_of("\r\n", caret - begin);
    return some.substr(0, lineEnd);
}

}  // namespace

void PadInputMethod::obey(const QInputMethodEvent& event) {
    if (event.replacementLength() > 0) {
        const auto caret = static_cast<std::ptrdiff_t>(editor_.caret().selection().caret);
        const auto first = caret + event.replacementStart();
        const std::size_t start = first > 0 ? static_cast<std::size_t>(first) : 0;
        editor_.select(PadBuffer::Selection{
            start, start + static_cast<std::size_t>(event.replacementLength())});
    }
    if (event.replacementLength() > 0 || !event.commitString().isEmpty())
        editor_.type(event.commitString());
    preedit_ = {event.preeditString(), {}, static_cast<int>(event.preeditString().size())};
    for (const QInputMethodEvent::Attribute& attribute : event.attributes()) {
        if (attribute.type == QInputMethodEvent::Cursor)
            preedit_.caret = attribute.start;
        if (attribute.type == QInputMethodEvent::TextFormat)
            preedit_.formats.append({attribute.start, attribute.length,
                                     qvariant_cast<QTextFormat>(attribute.value).toCharFormat()});
    }
}

std::optional<QVariant> PadInputMethod::answer(Qt::InputMethodQuery query) const {
    const std::string& text = editor_.bytes();
    const PadBuffer::Selection& now = editor_.caret().selection();
    const std::size_t begin = beginAround(text, now.caret);
    switch (query) {
        case Qt::ImCursorPosition:
            return static_cast<int>(now.caret - begin);
        case Qt::ImAnchorPosition:
            return static_cast<int>(now.anchor) - static_cast<int>(begin);
        case Qt::ImSurroundingText:
            return toQt(around(text, now.caret), editor_.page().codePage());
        case Qt::ImCurrentSelection:
            return now.length() > kAround ? QString() : editor_.selectedText();
        default:
            return std::nullopt;
    }
}

}  // namespace velmora
