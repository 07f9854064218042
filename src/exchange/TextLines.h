#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "exchange/TextDecoding.h"
#include "platform/ByteSource.h"

namespace velmora {

// Reads the lines of a text from the first to the last, in code-page text. CR LF, LF and CR all end
// a line; the last one need not be ended, and none follows the last line end.
class TextLines {
  public:
    // Both must outlive this object. The mark of the encoding is passed over.
    TextLines(const ByteSource& source, TextEncoding encoding, const CodePage& codePage);

    // Steps to the next line; false at the end. Throws Failure.
    [[nodiscard]] bool next();

    // The line that next() stepped to, without its end; valid until the next step.
    [[nodiscard]] std::string_view line() const { return line_; }

    // So many bytes of the source have been read, of those there were at the begin.
    [[nodiscard]] std::uint64_t position() const { return position_; }
    [[nodiscard]] std::uint64_t size() const { return size_; }

    // So many characters became "?" until now, in all that has been read.
    [[nodiscard]] std::uint64_t replaced() const { return decoder_.replaced(); }

  private:
    [[nodiscard]] bool readMore();

    const ByteSource& source_;
    TextDecoder decoder_;
    std::uint64_t position_ = 0;
    std::uint64_t size_ = 0;
    std::string block_;
    std::string text_;       // decoded, from the line under way on
    std::size_t begin_ = 0;  // of that line in `text_`
    bool ended_ = false;
    bool afterCr_ = false;  // a LF that comes now belongs to the line end before
    std::string_view line_;
};

}  // namespace velmora
