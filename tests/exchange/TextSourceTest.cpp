#include "exchange/TextSource.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "TextBytes.h"
#include "exchange/ExportColumns.h"
#include "platform/FatalFailure.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Rows = std::vector<std::vector<std::string>>;
using Inspection = TextSource::Inspection;

constexpr const char* kQuotes =
    "Quotes are not interpreted: a comma inside quotes begins a new column. The same list saved "
    "tab-delimited comes in whole.";

class TextSourceTest : public testing::Test {
  protected:
    TextSource sourceOf(const std::string& text, char separator = ',') {
        bytes.files["list"] = text;
        return TextSource({bytes.opener(), "list", separator}, CodePage::western());
    }

    Inspection inspect(TextSource& source) {
        return source.inspect([this] {
            ++turns;
            return turns < mostTurns;
        });
    }

    static Rows rowsOf(TextSource& source) {
        Rows rows;
        source.readRows([&](const ImportRow& row) {
            auto& values = rows.emplace_back();
            for (const auto& value : row) {
                EXPECT_TRUE(value);
                values.emplace_back(value.value_or(""));
            }
            return true;
        });
        return rows;
    }

    test::TextBytes bytes;
    int turns = 0;
    int mostTurns = 1000;
};

TEST_F(TextSourceTest, TheFirstLineNamesTheColumnsAndIsNoRow) {
    TextSource source = sourceOf("First, Last ,\r\nAnn,Smith,x\r\n");
    ASSERT_EQ(inspect(source), Inspection::Importable);
    EXPECT_THAT(source.columns(), ElementsAre("First", "Last", ""));
    EXPECT_EQ(source.choiceOf(0), "1");
    EXPECT_EQ(source.choiceOf(2), "3");
    EXPECT_EQ(rowsOf(source), (Rows{{"Ann", "Smith", "x"}}));
}

TEST_F(TextSourceTest, AFirstLineWithoutSeparatorIsNotImportable) {
    TextSource tabs = sourceOf("First,Last\nAnn,Smith", '\t');
    EXPECT_EQ(inspect(tabs), Inspection::NotImportable);
    TextSource empty = sourceOf("");
    EXPECT_EQ(inspect(empty), Inspection::NotImportable);
    TextSource blank = sourceOf("\nFirst,Last\n");
    EXPECT_EQ(inspect(blank), Inspection::NotImportable);
}

TEST_F(TextSourceTest, WhatALineLacksIsEmptyAndNeverThatOfTheLineBefore) {
    TextSource source = sourceOf("A,B,C\n1,2,3\n4\n\n5,6,7,8\n");
    ASSERT_EQ(inspect(source), Inspection::Importable);
    EXPECT_EQ(rowsOf(source),
              (Rows{{"1", "2", "3"}, {"4", "", ""}, {"", "", ""}, {"5", "6", "7", "8"}}));
}

TEST_F(TextSourceTest, AHundredAndFiftyColumnsAreHeldAndOneMoreEndsTheProgram) {
    const std::string most(149, ',');
    TextSource source = sourceOf("A,B\n" + most + "x\n" + most + ",x\nlast,\n");
    ASSERT_EQ(inspect(source), Inspection::Importable);
    std::size_t rows = 0;
    EXPECT_THROW(source.readRows([&](const ImportRow& row) {
        ++rows;
        EXPECT_EQ(row.size(), 150U);
        EXPECT_EQ(row[149], "x");
        return true;
    }),
                 FatalFailure);
    EXPECT_EQ(rows, 1U);
    TextSource header = sourceOf(most + ",");
    EXPECT_THROW((void)inspect(header), FatalFailure);
}

TEST_F(TextSourceTest, BytesThatAreNoUtf8StandAsTheyAre) {
    TextSource source = sourceOf("A,B\nRen\xE9,caf\xC3\xA9\n");
    ASSERT_EQ(inspect(source), Inspection::Importable);
    EXPECT_EQ(rowsOf(source), (Rows{{"Ren\xE9", "caf\xC3\xA9"}}));
}

TEST_F(TextSourceTest, UnmarkedUtf8IsRecognisedByTheWholeFile) {
    TextSource source = sourceOf("A,B\nRen\xC3\xA9,\xC4\x99\n");
    ASSERT_EQ(inspect(source), Inspection::Importable);
    EXPECT_EQ(rowsOf(source), (Rows{{"Ren\xE9", "?"}}));
    EXPECT_EQ(source.replacedCharacters(), 1U);
    TextSource late = sourceOf("A,B\nRen\xC3\xA9,x\n" + std::string(600'000, '\n') + "\xE9\n");
    ASSERT_EQ(inspect(late), Inspection::Importable);
    EXPECT_EQ(rowsOf(late).front(), (std::vector<std::string>{"Ren\xC3\xA9", "x"}));
}

TEST_F(TextSourceTest, AMarkDecidesTheEncoding) {
    TextSource utf8 = sourceOf(
        "\xEF\xBB\xBF"
        "A,B\nx,\xC3\xA9\xFF\n");
    ASSERT_EQ(inspect(utf8), Inspection::Importable);
    EXPECT_THAT(utf8.columns(), ElementsAre("A", "B"));
    EXPECT_EQ(rowsOf(utf8), (Rows{{"x", "\xE9?"}}));
    TextSource utf16 = sourceOf(std::string("\xFE\xFF\0A\0,\0B\0\n\0x\0,\0\xE9", 16));
    ASSERT_EQ(inspect(utf16), Inspection::Importable);
    EXPECT_THAT(utf16.columns(), ElementsAre("A", "B"));
    EXPECT_EQ(rowsOf(utf16), (Rows{{"x", "\xE9"}}));
}

TEST_F(TextSourceTest, WhatVelmoraExportedIsBytesOfTheCodePage) {
    std::string header;
    for (const ExportColumn& column : kExportColumns)
        header += (header.empty() ? "" : "\t") + std::string(column.header);
    TextSource source = sourceOf(header + "\r\nMr.\tRen\xC3\xA9\r\n", '\t');
    ASSERT_EQ(inspect(source), Inspection::Importable);
    EXPECT_EQ(rowsOf(source).front()[1], "Ren\xC3\xA9");
}

TEST_F(TextSourceTest, ShowsTheFirstThreeRows) {
    TextSource source = sourceOf("A,B\n1,2\n\n3\n4,5\n");
    ASSERT_EQ(inspect(source), Inspection::Importable);
    EXPECT_EQ(source.firstRows(), (Rows{{"1", "2"}, {""}, {"3"}}));
}

TEST_F(TextSourceTest, SaysOfACommaListWithQuotesOrUnevenLinesWhatHappensToIt) {
    for (const char* text :
         {"A,B\n\"Smith, Ann\",x\n", "A,B\nx\"y,z\n", "A,B\n1,2\n1,2,3\n", "\"A\",\"B\"\n"}) {
        TextSource source = sourceOf(text);
        ASSERT_EQ(inspect(source), Inspection::Importable);
        EXPECT_EQ(source.remark(), kQuotes) << text;
    }
    TextSource even = sourceOf("A,B\n1,2\n3,4\n");
    ASSERT_EQ(inspect(even), Inspection::Importable);
    EXPECT_EQ(even.remark(), "");
    TextSource tabs = sourceOf("A\tB\n\"1\"\t2\t3\n", '\t');
    ASSERT_EQ(inspect(tabs), Inspection::Importable);
    EXPECT_EQ(tabs.remark(), "");
}

TEST_F(TextSourceTest, LooksForQuotesInTheFirstHundredLines) {
    std::string text = "A,B\n";
    for (int line = 2; line <= 100; ++line)
        text += line == 100 ? "\"x\",y\n" : "x,y\n";
    TextSource hundred = sourceOf(text);
    ASSERT_EQ(inspect(hundred), Inspection::Importable);
    EXPECT_EQ(hundred.remark(), kQuotes);
    TextSource behind = sourceOf("A,B\nx,y\n" + text.substr(4));
    ASSERT_EQ(inspect(behind), Inspection::Importable);
    EXPECT_EQ(behind.remark(), "");
}

TEST_F(TextSourceTest, LetsEventsRunWhileALongFileIsInspectedAndCanBeGivenUp) {
    mostTurns = 3;
    TextSource source = sourceOf("A,B\n" + std::string(5'000'000, '\n'));
    EXPECT_EQ(inspect(source), Inspection::GivenUp);
    EXPECT_EQ(turns, 3);
}

TEST_F(TextSourceTest, SaysWhenTheFileIsAnotherOneThanWasInspected) {
    TextSource source = sourceOf("A,B\n1,2\n");
    ASSERT_EQ(inspect(source), Inspection::Importable);
    bytes.files["list"] = "B,A\n1,2\n";
    EXPECT_THROW((void)rowsOf(source), Failure);
    bytes.files.clear();
    EXPECT_THROW((void)rowsOf(source), Failure);
}

TEST_F(TextSourceTest, SaysWhenTheFileBecomesShorterWhileItIsRead) {
    TextSource source = sourceOf("A,B\n" + std::string(200'000, '\n'));
    ASSERT_EQ(inspect(source), Inspection::Importable);
    EXPECT_THROW(source.readRows([&](const ImportRow&) {
        bytes.files["list"].resize(10);
        return true;
    }),
                 Failure);
}

TEST_F(TextSourceTest, ProgressCountsTheBytesOfTheFile) {
    TextSource source = sourceOf("A,B\n1,2\n3,4\n");
    ASSERT_EQ(inspect(source), Inspection::Importable);
    (void)rowsOf(source);
    EXPECT_EQ(source.progress().done, 12U);
    EXPECT_EQ(source.progress().all, 12U);
}

TEST_F(TextSourceTest, ReadsNoFurtherThanItsRowsAreWanted) {
    TextSource source = sourceOf("A,B\n1,2\n3,4\n");
    ASSERT_EQ(inspect(source), Inspection::Importable);
    int rows = 0;
    source.readRows([&](const ImportRow&) { return ++rows < 1; });
    EXPECT_EQ(rows, 1);
}

TEST(ExportHeader, IsRecognisedWithAnySeparatorAndAnyNamesOfTheCustomFields) {
    for (const std::string separator : {"\t", ",", " ; ", ""}) {
        std::string header;
        for (const ExportColumn& column : kExportColumns)
            header += (header.empty() ? "" : separator) +
                      (column.header.empty() ? "Own name" : std::string(column.header));
        EXPECT_TRUE(isExportHeader(header)) << separator;
        EXPECT_FALSE(isExportHeader(header.substr(1)));
        EXPECT_FALSE(isExportHeader(header.substr(0, 40)));
    }
    EXPECT_FALSE(isExportHeader("Title,First Name,Last Name"));
    EXPECT_FALSE(isExportHeader(""));
}

}  // namespace
}  // namespace velmora
