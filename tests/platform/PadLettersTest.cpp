#include "platform/controls/models/PadLetters.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

class PadLettersTest : public ::testing::Test {
  protected:
    static PadBuffer bufferOf(const std::string& bytes) {
        PadBuffer text;
        text.append(bytes, {});
        return text;
    }
    PadLetters letters{CodePage::western()};
};

TEST_F(PadLettersTest, ALineEndIsOneStep) {
    const PadBuffer text = bufferOf("a\r\n\n\rb");
    std::size_t at = 0;
    for (const std::size_t next : {1u, 3u, 4u, 5u, 6u, 6u})
        EXPECT_EQ(at = letters.next(text, at), next);
    for (const std::size_t previous : {5u, 4u, 3u, 1u, 0u, 0u})
        EXPECT_EQ(at = letters.previous(text, at), previous);
}

TEST_F(PadLettersTest, AMarkIsOneStepWithItsLetter) {
    const PadLetters vietnamese(CodePage::numbered(1258));
    const PadBuffer text = bufferOf("a\xECz");  // a with an acute
    EXPECT_TRUE(vietnamese.joins('\xEC'));
    EXPECT_EQ(vietnamese.next(text, 0), 2u);
    EXPECT_EQ(vietnamese.previous(text, 2), 0u);
    EXPECT_EQ(letters.next(text, 0), 1u);
}

TEST_F(PadLettersTest, WordsAreOfLettersDigitsAndTheLowLine) {
    EXPECT_TRUE(letters.inWord('\xFC'));
    EXPECT_TRUE(letters.inWord('7'));
    EXPECT_FALSE(letters.inWord('\xAB'));
    EXPECT_FALSE(letters.inWord('\xD7'));
    const PadBuffer text = bufferOf("M\xFCller, A_1\r\n  x");
    std::size_t at = 0;
    for (const std::size_t next : {6u, 8u, 11u, 13u, 15u, 16u, 16u})
        EXPECT_EQ(at = letters.nextWord(text, at), next);
    for (const std::size_t previous : {15u, 13u, 11u, 8u, 6u, 0u, 0u})
        EXPECT_EQ(at = letters.previousWord(text, at), previous);
}

TEST_F(PadLettersTest, TheWordAroundAPositionIsFound) {
    const PadBuffer text = bufferOf("one, two\r\n");
    EXPECT_EQ(letters.wordAt(text, 1), (PadBuffer::Selection{0, 3}));
    EXPECT_EQ(letters.wordAt(text, 5), (PadBuffer::Selection{5, 8}));
    EXPECT_EQ(letters.wordAt(text, 8), (PadBuffer::Selection{5, 8}));
    EXPECT_EQ(letters.wordAt(text, 10), (PadBuffer::Selection{10, 10}));
}

}  // namespace
}  // namespace velmora
