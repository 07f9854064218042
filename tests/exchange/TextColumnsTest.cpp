#include "exchange/TextColumns.h"

#include <gmock/gmock.h>

#include <string>

namespace velmora {
namespace {

using testing::ElementsAre;

std::vector<std::string_view> columnsOf(std::string_view line, char separator = ',') {
    std::vector<std::string_view> columns;
    EXPECT_TRUE(splitColumns(line, separator, columns));
    return columns;
}

TEST(TextColumns, AreCutAtEachSeparatorAndTrimmed) {
    EXPECT_THAT(columnsOf(" Ann , Smith,,"), ElementsAre("Ann", "Smith", "", ""));
    EXPECT_THAT(columnsOf("Ann,x\tSmith", '\t'), ElementsAre("Ann,x", "Smith"));
}

TEST(TextColumns, OnlyBlanksAreTrimmed) {
    EXPECT_THAT(columnsOf("\tAnn\t, Smith\r"), ElementsAre("\tAnn\t", "Smith\r"));
}

TEST(TextColumns, ALineWithoutSeparatorIsOneColumn) {
    EXPECT_THAT(columnsOf("Ann"), ElementsAre("Ann"));
    EXPECT_THAT(columnsOf(""), ElementsAre(""));
}

TEST(TextColumns, QuotesAreCharactersLikeAnyOther) {
    EXPECT_THAT(columnsOf("\"Smith, Ann\",x"), ElementsAre("\"Smith", "Ann\"", "x"));
}

TEST(TextColumns, AHundredAndFiftyAreHeldAndOneMoreIsNot) {
    std::vector<std::string_view> columns;
    const std::string line(kMostColumns - 1, ',');
    EXPECT_TRUE(splitColumns(line, ',', columns));
    EXPECT_EQ(columns.size(), 150U);
    EXPECT_FALSE(splitColumns(line + ",", ',', columns));
    EXPECT_EQ(columns.size(), 150U);
}

}  // namespace
}  // namespace velmora
