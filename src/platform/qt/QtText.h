#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "platform/CodePage.h"

namespace velmora {

// The border between code-page text and the widgets. Line ends stay as they are.
[[nodiscard]] QString toQt(std::string_view text, const CodePage& codePage);

// A name or a text of the program's own, which is plain ASCII.
[[nodiscard]] inline QString latin(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

// A character without a place in the code page becomes "?".
[[nodiscard]] std::string fromQt(QStringView text, const CodePage& codePage);

// `text` with "?" in place of each character that the code page lacks. The result has the length
// of the text in characters, so that a caret position stays good; a pair of surrogates is one.
[[nodiscard]] QString keepToCodePage(const QString& text, const CodePage& codePage);

}  // namespace velmora
