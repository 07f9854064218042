#include "exchange/TextLines.h"

#include <gmock/gmock.h>

#include <vector>

#include "TextBytes.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> linesOf(const std::string& text,
                                 TextEncoding encoding = TextEncoding::CodePageBytes) {
    std::vector<std::vector<std::string>> each;
    for (const std::size_t most : {SIZE_MAX, std::size_t{1}, std::size_t{3}}) {
        test::TextBytes bytes;
        bytes.files["list"] = text;
        bytes.most = most;
        const auto source = bytes.opener()("list");
        TextLines lines(*source, encoding, CodePage::western());
        auto& found = each.emplace_back();
        while (lines.next())
            found.emplace_back(lines.line());
        EXPECT_EQ(lines.position(), text.size());
    }
    EXPECT_EQ(each[0], each[1]);
    EXPECT_EQ(each[0], each[2]);
    return each[0];
}

TEST(TextLines, EndWithCrLfLfOrCr) {
    EXPECT_THAT(linesOf("a\r\nb\nc\rd\r\n"), ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(linesOf("a\n\rb"), ElementsAre("a", "", "b"));
    EXPECT_THAT(linesOf("\r\r\n\n"), ElementsAre("", "", ""));
}

TEST(TextLines, TheLastOneNeedNotBeEnded) {
    EXPECT_THAT(linesOf("a\nb"), ElementsAre("a", "b"));
    EXPECT_THAT(linesOf("a\nb\n"), ElementsAre("a", "b"));
    EXPECT_THAT(linesOf("a\r"), ElementsAre("a"));
}

TEST(TextLines, AnEmptyTextHasNone) {
    EXPECT_THAT(linesOf(""), IsEmpty());
    EXPECT_THAT(linesOf("\n"), ElementsAre(""));
}

TEST(TextLines, KeepNulsAndAllOtherBytes) {
    EXPECT_THAT(linesOf(std::string("a\0b\x1A\n", 5)), ElementsAre(std::string("a\0b\x1A", 4)));
}

TEST(TextLines, PassOverTheMarkOfTheirEncoding) {
    EXPECT_THAT(linesOf("\xEF\xBB\xBF"
                        "a\xC3\xA9\nb",
                        TextEncoding::Utf8),
                ElementsAre("a\xE9", "b"));
    EXPECT_THAT(linesOf(std::string("\xFF\xFE"
                                    "a\0\r\0\n\0b\0",
                                    10),
                        TextEncoding::Utf16LeastFirst),
                ElementsAre("a", "b"));
    EXPECT_THAT(linesOf("\xEF\xBB\xBF"
                        "a"),
                ElementsAre("\xEF\xBB\xBF"
                            "a"));
}

TEST(TextLines, AreAsLongAsTheyAre) {
    const std::string longLine(10'000'000, 'x');
    test::TextBytes bytes;
    bytes.files["list"] = "a\n" + longLine + "\nb";
    const auto source = bytes.opener()("list");
    TextLines lines(*source, TextEncoding::CodePageBytes, CodePage::western());
    ASSERT_TRUE(lines.next());
    ASSERT_TRUE(lines.next());
    EXPECT_TRUE(lines.line() == longLine);
    ASSERT_TRUE(lines.next());
    EXPECT_EQ(lines.line(), "b");
    EXPECT_FALSE(lines.next());
}

TEST(TextLines, AFailureOfTheFilePassesThrough) {
    test::TextBytes bytes;
    bytes.files["list"] = std::string(200'000, '\n');
    const auto source = bytes.opener()("list");
    TextLines lines(*source, TextEncoding::CodePageBytes, CodePage::western());
    ASSERT_TRUE(lines.next());
    bytes.failsFrom = 1;
    EXPECT_THROW(while (lines.next()){}, Failure);
}

}  // namespace
}  // namespace velmora
