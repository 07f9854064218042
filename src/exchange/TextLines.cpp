#include "exchange/TextLines.h"

namespace velmora {
namespace {

constexpr std::size_t kBlock = std::size_t{64} << 10;

}  // namespace

TextLines::TextLines(const ByteSource& source, TextEncoding encoding, const CodePage& codePage)
    : source_(source), decoder_(encoding, codePage), size_(source.size()) {
    std::string begin(4, '\0');
    begin.resize(source.read(0, begin));
    const TextMark mark = markOf(begin);
    if (mark.encoding == encoding)
        position_ = mark.length;
}

bool TextLines::next() {
    std::size_t lookFrom = begin_;
    while (true) {
        if (afterCr_ && begin_ < text_.size()) {
            afterCr_ = false;
            if (text_[begin_] == '\n')
                lookFrom = ++begin_;
        }
        const std::size_t end = text_.find_first_of("\r\n", lookFrom);
        if (end != std::string::npos) {
            line_ = std::string_view(text_).substr(begin_, end - begin_);
            afterCr_ = text_[end] == '\r';
            begin_ = end + 1;
            return true;
        }
        const std::size_t seen = text_.size() - begin_;
        if (!readMore())
            break;
        lookFrom = begin_ + seen;
    }
    if (begin_ == text_.size())
        return false;
    line_ = std::string_view(text_).substr(begin_);
    begin_ = text_.size();
    return true;
}

// False at the end of the source.
bool TextLines::readMore() {
    if (ended_)
        return false;
    text_.erase(0, begin_);
    begin_ = 0;
    block_.resize(kBlock);
    block_.resize(source_.read(position_, block_));
    position_ += block_.size();
    if (!block_.empty()) {
        decoder_.feed(block_, text_);
        return true;
    }
    ended_ = true;
    decoder_.end(text_);
    return true;
}

}  // namespace velmora
