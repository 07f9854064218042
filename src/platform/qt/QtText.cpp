#include "platform/qt/QtText.h"

namespace velmora {

QString toQt(std::string_view text, const CodePage& codePage) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (const char byte : text)
        result += QChar(static_cast<char16_t>(codePage.toUnicode(byte)));
    return result;
}

std::string fromQt(QStringView text, const CodePage& codePage) {
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair = text[i].isHighSurrogate() && i + 1 < text.size();
        result += pair ? '?' : codePage.fromUnicode(text[i].unicode()).value_or('?');
        if (pair)
            ++i;
    }
    return result;
}

QString keepToCodePage(const QString& text, const CodePage& codePage) {
    return toQt(fromQt(text, codePage), codePage);
}

}  // namespace velmora
