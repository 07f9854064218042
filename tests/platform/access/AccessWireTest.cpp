#include "platform/access/AccessWire.h"

#include <gtest/gtest.h>

#include "platform/Failure.h"

namespace velmora::access {
namespace {

TEST(AccessWire, WritesKindLengthAndText) {
    std::string bytes;
    appendMessage(bytes, MessageKind::Value, "ab");
    EXPECT_EQ(bytes, std::string("V\2\0\0\0ab", 7));
}

TEST(AccessWire, RefusesAValueThatIsTooLong) {
    std::string bytes;
    EXPECT_THROW(appendMessage(bytes, MessageKind::Value, std::string(kLongestMessage + 1, 'x')),
                 Failure);
}

TEST(AccessWire, GivesMessagesThatCameInSingleBytes) {
    std::string bytes;
    appendMessage(bytes, MessageKind::Value, std::string("a\0b", 3));
    appendMessage(bytes, MessageKind::Null);
    MessageSplitter splitter;
    std::vector<std::pair<MessageKind, std::string>> got;
    for (const char byte : bytes) {
        splitter.feed(std::string_view(&byte, 1));
        while (const auto message = splitter.next())
            got.emplace_back(message->kind, message->text);
    }
    ASSERT_EQ(got.size(), 2U);
    EXPECT_EQ(got[0], std::pair(MessageKind::Value, std::string("a\0b", 3)));
    EXPECT_EQ(got[1], std::pair(MessageKind::Null, std::string()));
    EXPECT_FALSE(splitter.hasRest());
}

TEST(AccessWire, KeepsAnUnfinishedMessageAsARest) {
    MessageSplitter splitter;
    splitter.feed(std::string_view("V\2\0\0\0a", 6));
    EXPECT_EQ(splitter.next(), std::nullopt);
    EXPECT_TRUE(splitter.hasRest());
}

TEST(AccessWire, RefusesAnUnknownKind) {
    MessageSplitter splitter;
    splitter.feed("x");
    EXPECT_THROW((void)splitter.next(), Failure);
}

TEST(AccessWire, RefusesALengthBeyondTheLimitBeforeItArrives) {
    MessageSplitter splitter;
    splitter.feed(std::string_view("V\xFF\xFF\xFF\xFF", 5));
    EXPECT_THROW((void)splitter.next(), Failure);
}

}  // namespace
}  // namespace velmora::access
