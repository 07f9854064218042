#include "platform/controls/models/PadRows.h"

#include <algorithm>

namespace velmora {
namespace {

// No row is longer, however narrow its characters are: it must be drawn in one piece.
constexpr std::size_t kLongestRow = 2000;

bool endsLine(char byte) {
    return byte == '\r' || byte == '\n';
}

std::size_t behindLineEnd(std::string_view text, std::size_t position) {
    const bool pair =
        text[position] == '\r' && position + 1 < text.size() && text[position + 1] == '\n';
    return position + (pair ? 2 : 1);
}

bool endsInLineEnd(std::string_view text) {
    return !text.empty() && endsLine(text.back());
}

}  // namespace

void PadRows::wrap(std::string_view text, const PadWidths& widths, std::int32_t width) {
    widths_ = widths;
    width_ = width;
    begins_.assign(1, 0);
    length_ = text.size();
    for (std::size_t at = 0; at < text.size();) {
        at = endOf(text, at);
        if (at < text.size() || endsInLineEnd(text))
            begins_.push_back(at);
    }
}

void PadRows::change(std::string_view text, std::size_t position, std::size_t removed,
                     std::size_t inserted) {
    // A word that has become shorter may fit on the row before. A CR may have lost or got its LF.
    std::size_t row = at(position > 0 ? position - 1 : 0);
    row -= std::min<std::size_t>(row, 1);
    const auto oldBegins = begins_;
    const auto firstOld = oldBegins.begin() + static_cast<std::ptrdiff_t>(row) + 1;
    auto old = std::lower_bound(firstOld, oldBegins.end(), position + removed + 1);
    begins_.resize(row + 1);
    length_ = text.size();
    const auto shifted = [&](std::size_t begin) { return begin - removed + inserted; };
    for (std::size_t at = begins_.back(); at < text.size();) {
        at = endOf(text, at);
        if (at == text.size() && !endsInLineEnd(text))
            return;
        begins_.push_back(at);
        while (old != oldBegins.end() && shifted(*old) < at)
            ++old;
        if (old != oldBegins.end() && shifted(*old) == at) {
            for (++old; old != oldBegins.end(); ++old)
                begins_.push_back(shifted(*old));
            return;
        }
    }
}

std::size_t PadRows::at(std::size_t position) const {
    const auto behind = std::upper_bound(begins_.begin(), begins_.end(), position);
    return static_cast<std::size_t>(behind - begins_.begin()) - 1;
}

std::size_t PadRows::endOf(std::string_view text, std::size_t begin) const {
    std::int32_t x = 0;
    std::size_t afterBlank = begin;
    const std::size_t longest = std::min(text.size(), begin + kLongestRow);
    for (std::size_t i = begin; i < longest; ++i) {
        const char byte = text[i];
        const auto index = static_cast<unsigned char>(byte);
        if (endsLine(byte))
            return behindLineEnd(text, i);
        if (byte == ' ' || byte == '\t') {
            x = byte == ' ' ? x + widths_.of[index] : (x / widths_.tab + 1) * widths_.tab;
            afterBlank = i + 1;
            continue;
        }
        x += widths_.of[index];
        if (x > width_ && i > begin && !widths_.joins[index])
            return afterBlank > begin ? afterBlank : i;
        const bool letterBehind = i + 1 < text.size() && (text[i + 1] > '9' || text[i + 1] < 0);
        if (byte == '-' && letterBehind)
            afterBlank = i + 1;
    }
    if (longest == text.size())
        return longest;
    // Line ends and marks behind the longest row still belong to it.
    std::size_t end = longest;
    while (end < text.size() && end < longest + kLongestRow &&
           widths_.joins[static_cast<unsigned char>(text[end])])
        ++end;
    return end < text.size() && endsLine(text[end]) ? behindLineEnd(text, end) : end;
}

}  // namespace velmora
