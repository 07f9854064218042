#pragma once

#include <QTextCursor>
#include <QTextDocument>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"

namespace velmora {

// The border between an exact run of bytes and a document. Each line of the document keeps the end
// that it had in the bytes (CR LF, LF or CR) as a property of its separator, so that editing and
// undoing carry it along; a line end without the property is CR LF.
class PadBytes {
  public:
    explicit PadBytes(const CodePage& codePage);

    [[nodiscard]] std::string all(const QTextDocument& document) const;

    // Puts the bytes in place of the cursor's selection, each line end as it is.
    void insert(QTextCursor& cursor, std::string_view bytes) const;

    // Position in bytes of a position in the document, and back. A position between CR and LF is
    // that before the line end. Positions behind the end are those of the end.
    [[nodiscard]] std::size_t toBytes(const QTextDocument& document, int position) const;
    [[nodiscard]] int toDocument(const QTextDocument& document, std::size_t position) const;

    [[nodiscard]] const CodePage& codePage() const { return codePage_; }

  private:
    const CodePage& codePage_;
    std::vector<char> byteOf_;  // by the 65536 units of the document's text
};

}  // namespace velmora
