#include "platform/controls/DocumentBytes.h"

#include <QTextBlock>

#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kLineEnd = QTextFormat::UserProperty;

enum LineEnd { CrLf = 0, Lf = 1, Cr = 2 };

QTextCharFormat formatOf(LineEnd end) {
    QTextCharFormat format;
    if (end != CrLf)
        format.setProperty(kLineEnd, static_cast<int>(end));
    return format;
}

// The format of a block's characters is that of the separator before it.
LineEnd storedEndBefore(const QTextBlock& block) {
    return static_cast<LineEnd>(block.charFormat().intProperty(kLineEnd));
}

// The bytes of the line end before a block that is not the first.
std::string_view endBefore(const QTextBlock& block) {
    switch (storedEndBefore(block)) {
        case Lf:
            return "\n";
        case Cr: {
            // Editing can bring a lone CR right before a lone LF. Two line ends on the screen
            // must not become one in the file.
            const QTextBlock next = block.next();
            const bool joins = block.length() == 1 && next.isValid() && storedEndBefore(next) == Lf;
            return joins ? "\r\n" : "\r";
        }
        case CrLf:
            break;
    }
    return "\r\n";
}

}  // namespace

DocumentBytes::DocumentBytes(const CodePage& codePage) : codePage_(codePage), byteOf_(65536, '?') {
    for (int i = 0; i < 256; ++i) {
        const char byte = static_cast<char>(i);
        byteOf_[static_cast<char16_t>(codePage.toUnicode(byte))] = byte;
    }
}

std::string DocumentBytes::all(const QTextDocument& document) const {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(document.characterCount()) +
                  static_cast<std::size_t>(document.blockCount()));
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.position() > 0)
            bytes += endBefore(block);
        for (const QChar unit : block.text())
            bytes += byteOf_[unit.unicode()];
    }
    return bytes;
}

void DocumentBytes::insert(QTextCursor& cursor, std::string_view bytes) const {
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    // Lines that end alike go in together.
    std::string run;
    LineEnd runEnd = CrLf;
    const auto flush = [&] {
        if (!run.empty())
            cursor.insertText(toQt(run, codePage_), formatOf(runEnd));
        run.clear();
    };
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\r' && bytes[i] != '\n') {
            run += bytes[i];
            continue;
        }
        LineEnd end = Lf;
        if (bytes[i] == '\r')
            end = i + 1 < bytes.size() && bytes[i + 1] == '\n' ? CrLf : Cr;
        if (end != runEnd)
            flush();
        runEnd = end;
        run += '\n';
        if (end == CrLf)
            ++i;
    }
    flush();
    cursor.endEditBlock();
}

std::size_t DocumentBytes::size(const QTextDocument& document) const {
    std::size_t bytes = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.position() > 0)
            bytes += endBefore(block).size();
        bytes += static_cast<std::size_t>(block.length() - 1);
    }
    return bytes;
}

}  // namespace velmora
