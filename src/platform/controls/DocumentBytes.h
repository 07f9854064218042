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
class DocumentBytes {
  public:
    explicit DocumentBytes(const CodePage& codePage);

    [[nodiscard]] std::string all(const QTextDocument& document) const;

    // Puts the bytes in place of the cursor's selection, each line end as it is.
    void insert(QTextCursor& cursor, std::string_view bytes) const;

    // How many bytes all() would give.
    [[nodiscard]] std::size_t size(const QTextDocument& document) const;

    [[nodiscard]] const CodePage& codePage() const { return codePage_; }

  private:
    const CodePage& codePage_;
    std::vector<char> byteOf_;  // by the units of the document's text
};

}  // namespace velmora
