#include "platform/access/AccessWire.h"

#include "platform/Failure.h"

namespace velmora::access {

namespace {

constexpr std::size_t kHeadSize = 5;
constexpr std::string_view kKinds = "TFRVNEZ";

}  // namespace

void appendMessage(std::string& bytes, MessageKind kind, std::string_view text) {
    if (text.size() > kLongestMessage)
        throw Failure("A value of the Access database is too long.");
    bytes += static_cast<char>(kind);
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(text.size() >> shift & 0xFF);
    bytes += text;
}

void MessageSplitter::feed(std::string_view bytes) {
    bytes_.erase(0, begin_);
    begin_ = 0;
    bytes_ += bytes;
}

std::optional<Message> MessageSplitter::next() {
    const std::string_view rest = std::string_view(bytes_).substr(begin_);
    if (rest.empty())
        return std::nullopt;
    if (kKinds.find(rest[0]) == std::string_view::npos)
        throw Failure("The reader of Access databases answered in an unknown way.");
    if (rest.size() < kHeadSize)
        return std::nullopt;
    std::uint32_t length = 0;
    for (std::size_t i = 0; i < 4; ++i)
        length |= std::uint32_t{static_cast<unsigned char>(rest[i + 1])} << (8 * i);
    if (length > kLongestMessage)
        throw Failure("The reader of Access databases answered at too great a length.");
    if (rest.size() - kHeadSize < length)
        return std::nullopt;
    begin_ += kHeadSize + length;
    return Message{static_cast<MessageKind>(rest[0]), rest.substr(kHeadSize, length)};
}

}  // namespace velmora::access
