#include "docpad/LetterHead.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "support/MemorySettings.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

// "~" for CR LF.
std::string shown(const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, 2, "\r\n") == 0) {
            result += '~';
            ++i;
        } else {
            result += text[i];
        }
    }
    return result;
}

constexpr std::array kAddresses{Field::Address1, Field::Address2, Field::Address3, Field::Address4};

// An entry without names: address lines A1 to A4 as the digits in `filled` tell.
PhonebookRecord addressed(const std::string& filled, const std::string& code) {
    PhonebookRecord entry = test::companyRecord("");
    for (const char digit : filled)
        entry.assign(kAddresses[static_cast<std::size_t>(digit - '1')], std::string("A") + digit);
    entry.assign(Field::PostalCode, code);
    return entry;
}

struct Row {
    const char* filled;
    const char* block;
};

constexpr std::array<Row, 16> kBlocks{{
    {"", ""},
    {"4", "~A4"},
    {"3", "~A3"},
    {"34", "~A3~A4"},
    {"2", "~A2"},
    {"24", "~A2~A4"},
    {"23", "~A2~A3"},
    {"234", "~A2~A3~A4"},
    {"1", "A1"},
    {"14", "A1~A4"},
    {"13", "A1~A3"},
    {"134", "A1~A3~A4"},
    {"12", "A1~A2"},
    {"124", "A1~A2~A4"},
    {"123", "A1~A2~A3"},
    {"1234", "A1~A2~A3~A4"},
}};

TEST(LetterHead, ClosesTheAddressInEveryCombinationOfLinesAndCode) {
    for (const Row& row : kBlocks) {
        const std::string block = row.block;
        EXPECT_EQ(shown(letterHead(addressed(row.filled, "12345"), {})), block + " 12345~~")
            << row.filled;
        EXPECT_EQ(shown(letterHead(addressed(row.filled, "12345-6789"), {})),
                  block + " 12345-6789~~");
        EXPECT_EQ(shown(letterHead(addressed(row.filled, "K1A-0B1"), {})), block + " K1A-0B1~~");
        EXPECT_EQ(shown(letterHead(addressed(row.filled, "K1A 0B1"), {})), block + "~K1A 0B1~~");
        EXPECT_EQ(shown(letterHead(addressed(row.filled, ""), {})), block + "~~") << row.filled;
    }
}

PhonebookRecord fullEntry() {
    PhonebookRecord entry = test::personRecord("Smith", "John");
    entry.assign(Field::Title, "Mr.");
    entry.assign(Field::Position, "Buyer");
    entry.assign(Field::Company, "Bindery");
    entry.assign(Field::Address1, "1 Lake Road");
    entry.assign(Field::Address2, "Lakeside NY");
    entry.assign(Field::PostalCode, "12345");
    entry.assign(Field::Country, "USA");
    entry.assign(Field::Salutation, "Dear John,");
    return entry;
}

TEST(LetterHead, HoldsNamePositionCompanyAddressAndSalutation) {
    EXPECT_EQ(shown(letterHead(fullEntry(), {})),
              "Mr. John Smith~Buyer~Bindery~1 Lake Road~Lakeside NY 12345~USA~~Dear John,~");
}

TEST(LetterHead, ATabStandsBeforeTheSalutationAlsoBeforeNone) {
    EXPECT_TRUE(letterHead(fullEntry(), {true, "Hello,"}).ends_with("\r\n\r\n\tDear John,\r\n"));
    PhonebookRecord entry = fullEntry();
    entry.assign(Field::Salutation, "");
    EXPECT_TRUE(letterHead(entry, {true, "Hello,"}).ends_with("USA\r\n\r\n\tHello,\r\n"));
    EXPECT_TRUE(letterHead(entry, {true, ""}).ends_with("USA\r\n\r\n\t"));
    EXPECT_TRUE(letterHead(entry, {false, ""}).ends_with("USA\r\n\r\n"));
}

TEST(LetterHead, ANameIsTrimmedOnlyAsAWhole) {
    PhonebookRecord entry = test::personRecord("Smith", "");
    entry.assign(Field::Title, "Mr.");
    EXPECT_EQ(nameLine(entry), "Mr.  Smith");
    EXPECT_EQ(nameLine(test::personRecord("Smith", "")), "Smith");
    PhonebookRecord company = test::companyRecord("Bindery");
    company.assign(Field::First, "Eva");
    EXPECT_EQ(shown(letterHead(company, {})), "Bindery~~~") << "without a last name no name line";
}

TEST(LetterHead, KnowsANumberWhenItSeesOne) {
    for (const char* number : {"12345", "1,000", "1E5", "-1", "+1.5", ".5", "5.", "1e-5", " 7 "})
        EXPECT_TRUE(isNumber(number)) << number;
    for (const char* other :
         {"", " ", "K1A 0B1", "12 345", "12345-6789", "1.2.3", "E5", "1E", "-", ".", "1x", ",1"})
        EXPECT_FALSE(isNumber(other)) << other;
}

TEST(LetterHead, TheSettingsTellOfTabAndSalutation) {
    test::MemorySettings medium;
    SettingsStore settings(medium);
    EXPECT_FALSE(readLetterStyle(settings).tab);
    for (const char* on : {"1", "01", " 1", "1.0", "1x"}) {
        settings.Save("LetterTab", on);
        EXPECT_TRUE(readLetterStyle(settings).tab) << on;
    }
    for (const char* off : {"10", "-1", "YES", "", "1.5"}) {
        settings.Save("LetterTab", off);
        EXPECT_FALSE(readLetterStyle(settings).tab) << off;
    }
    settings.Save("DefaultSal", "Dear Sirs,");
    EXPECT_EQ(readLetterStyle(settings).defaultSalutation, "Dear Sirs,");
}

}  // namespace
}  // namespace velmora
