#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// How the reading child process and its parent talk: messages of one kind byte, a length of four
// bytes (least first) and that many bytes. The parent believes none of it.
namespace velmora::access {

enum class MessageKind : char {
    Table = 'T',  // "S" for the system's own or "U" for the user's, then the name; fields follow
    Field = 'F',  // one letter for the type, then the name
    Row = 'R',    // empty; its values follow, one for each field
    Value = 'V',  // text
    Null = 'N',   // empty
    Error = 'E',  // text for the user; the last message
    End = 'Z',    // empty; the last message
};

// Longer messages are refused by both sides.
inline constexpr std::uint32_t kLongestMessage = 16U << 20;

struct Message {
    MessageKind kind;
    std::string_view text;

    bool operator==(const Message&) const = default;
};

void appendMessage(std::string& bytes, MessageKind kind, std::string_view text = {});

// Takes messages apart that arrive in pieces.
class MessageSplitter {
  public:
    void feed(std::string_view bytes);

    // The next whole message, or nothing yet. The text lives until the next feed(). Throws Failure
    // for an unknown kind and for a length beyond the limit.
    [[nodiscard]] std::optional<Message> next();

    // Bytes wait that are no whole message.
    [[nodiscard]] bool hasRest() const { return begin_ < bytes_.size(); }

  private:
    std::string bytes_;
    std::size_t begin_ = 0;
};

}  // namespace velmora::access
