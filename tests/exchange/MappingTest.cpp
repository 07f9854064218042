#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "exchange/ColumnGuess.h"
#include "exchange/ExportColumns.h"
#include "exchange/MappingMemory.h"
#include "support/MemorySettings.h"

namespace velmora {
namespace {

using Columns = std::vector<std::string>;

std::string guessed(const Columns& columns, ImportField field) {
    const auto column = ColumnGuess(columns, CodePage::western()).columnFor(field);
    return column ? columns[*column] : "None";
}

TEST(ColumnGuess, KnowsTheColumnsOfAnExportByTheirPlaces) {
    Columns columns;
    for (const ExportColumn& column : kExportColumns)
        columns.emplace_back(column.header.empty() ? "Title" : column.header);
    const ColumnGuess guess(columns, CodePage::western());
    EXPECT_EQ(guess.columnFor(ImportField::Title), 0U);
    EXPECT_EQ(guess.columnFor(ImportField::First), 1U);
    EXPECT_EQ(guess.columnFor(ImportField::Position), 3U);
    EXPECT_EQ(guess.columnFor(ImportField::Street), 5U);
    EXPECT_EQ(guess.columnFor(ImportField::CityStateZip), 6U);
    EXPECT_EQ(guess.columnFor(ImportField::AdditionalAddress), 7U);
    EXPECT_EQ(guess.columnFor(ImportField::City), std::nullopt);
    EXPECT_EQ(guess.columnFor(ImportField::Custom1), 22U);
    EXPECT_EQ(guess.columnFor(ImportField::Spouse), 24U);
    EXPECT_FALSE(guess.cityStateZipSeparate());
}

TEST(ColumnGuess, KnowsUsualNamesInFourLanguages) {
    const Columns english{"E-mail Address", "First Name",     "Last Name",
                          "Company",        "Job Title",      "Business Street",
                          "Business City",  "Business State", "Business Postal Code",
                          "Home Phone",     "Business Phone", "Mobile Phone",
                          "Notes",          "Web Page"};
    EXPECT_EQ(guessed(english, ImportField::First), "First Name");
    EXPECT_EQ(guessed(english, ImportField::Position), "Job Title");
    EXPECT_EQ(guessed(english, ImportField::Street), "Business Street");
    EXPECT_EQ(guessed(english, ImportField::Zip), "Business Postal Code");
    EXPECT_EQ(guessed(english, ImportField::EMail), "E-mail Address");
    EXPECT_EQ(guessed(english, ImportField::Other), "Mobile Phone");
    const Columns german{"Anrede",
                         "Vorname",
                         "Nachname",
                         "Firma",
                         "Stra\xDF"
                         "e gesch\xE4"
                         "ftlich",
                         "PLZ",
                         "Ort",
                         "Telefon privat",
                         "Telefon gesch\xE4"
                         "ftlich"};
    EXPECT_EQ(guessed(german, ImportField::Title), "Anrede");
    EXPECT_EQ(guessed(german, ImportField::Last), "Nachname");
    EXPECT_EQ(guessed(german, ImportField::Street),
              "Stra\xDF"
              "e gesch\xE4"
              "ftlich");
    EXPECT_EQ(guessed(german, ImportField::City), "Ort");
    EXPECT_EQ(guessed(german, ImportField::Work),
              "Telefon gesch\xE4"
              "ftlich");
    const Columns french{"Pr\xE9nom",
                         "Nom",
                         "Soci\xE9t\xE9",
                         "T\xE9l\xE9phone (domicile)",
                         "Adresse de messagerie",
                         "Code postal (domicile)"};
    EXPECT_EQ(guessed(french, ImportField::First), "Pr\xE9nom");
    EXPECT_EQ(guessed(french, ImportField::Last), "Nom");
    EXPECT_EQ(guessed(french, ImportField::Home), "T\xE9l\xE9phone (domicile)");
    EXPECT_EQ(guessed(french, ImportField::Zip), "Code postal (domicile)");
    const Columns spanish{"Nombre", "Apellidos",
                          "Tel\xE9"
                          "fono m\xF3vil",
                          "Cumplea\xF1os", "C\xF3nyuge"};
    EXPECT_EQ(guessed(spanish, ImportField::Last), "Apellidos");
    EXPECT_EQ(guessed(spanish, ImportField::Other),
              "Tel\xE9"
              "fono m\xF3vil");
    EXPECT_EQ(guessed(spanish, ImportField::Custom1), "Cumplea\xF1os");
    EXPECT_EQ(guessed(spanish, ImportField::Spouse), "C\xF3nyuge");
}

TEST(ColumnGuess, TakesTheMoreLikelyOfTwoNames) {
    EXPECT_EQ(guessed({"Name", "Surname"}, ImportField::Last), "Surname");
    EXPECT_EQ(guessed({"Phone", "Home Phone"}, ImportField::Home), "Home Phone");
}

TEST(ColumnGuess, ProposesNoneWhereNothingFits) {
    EXPECT_EQ(guessed({"Colour", "", "|"}, ImportField::First), "None");
    EXPECT_EQ(guessed({}, ImportField::First), "None");
}

TEST(ColumnGuess, TellsWhetherCityStateAndZipAreSeparate) {
    EXPECT_TRUE(ColumnGuess({"City", "Zip"}, CodePage::western()).cityStateZipSeparate());
    EXPECT_FALSE(ColumnGuess({"City, State, Zip"}, CodePage::western()).cityStateZipSeparate());
    EXPECT_TRUE(ColumnGuess({"Colour"}, CodePage::western()).cityStateZipSeparate());
}

class MappingMemoryTest : public testing::Test {
  protected:
    static ImportMapping mappingWith(const std::string& first) {
        ImportMapping mapping;
        mapping[ImportField::First] = first;
        mapping[ImportField::WebPage] = "None";
        mapping.cityStateZipSeparate = true;
        return mapping;
    }

    test::MemorySettings medium;
    SettingsStore settings{medium};
    MappingMemory memory{settings};
};

TEST_F(MappingMemoryTest, GivesBackWhatWasTakenForTheSameColumns) {
    memory.remember({"A", "B"}, mappingWith("2"));
    memory.remember({"A", "B", "C"}, mappingWith("3"));
    const auto found = MappingMemory(settings).of({"A", "B"});
    ASSERT_TRUE(found);
    EXPECT_EQ(found->choices, mappingWith("2").choices);
    EXPECT_TRUE(found->cityStateZipSeparate);
    EXPECT_FALSE(memory.of({"A"}));
    EXPECT_FALSE(memory.of({"B", "A"}));
}

TEST_F(MappingMemoryTest, TheLastMappingOfAListCounts) {
    memory.remember({"A", "B"}, mappingWith("1"));
    memory.remember({"A", "B"}, mappingWith("2"));
    EXPECT_EQ((*memory.of({"A", "B"}))[ImportField::First], "2");
}

TEST_F(MappingMemoryTest, RemembersTheLastEightLists) {
    for (char name = 'a'; name <= 'i'; ++name)
        memory.remember({std::string(1, name)}, mappingWith("1"));
    EXPECT_FALSE(memory.of({"a"}));
    for (char name = 'b'; name <= 'i'; ++name)
        EXPECT_TRUE(memory.of({std::string(1, name)})) << name;
}

TEST_F(MappingMemoryTest, AListThatIsVeryLongOrOddIsNotRemembered) {
    memory.remember({std::string(9000, 'x')}, mappingWith("1"));
    memory.remember({"a\x1E"}, mappingWith("1"));
    EXPECT_FALSE(memory.of({std::string(9000, 'x')}));
    EXPECT_FALSE(memory.of({"a\x1E"}));
}

TEST_F(MappingMemoryTest, DamagedSettingsAreNoMapping) {
    settings.Save("ImportMappings", "A\x1F\x1EY\x1Ex\x1F");
    EXPECT_FALSE(memory.of({"A"}));
}

}  // namespace
}  // namespace velmora
