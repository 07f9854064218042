#include "phonebook/NameIndex.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::companyRecord;
using test::formRecord;
using test::personRecord;
using Numbers = std::vector<RecordNumber>;

const CodePage& page() {
    return CodePage::western();
}

TEST(WantedName, IsSplitAtItsFirstComma) {
    EXPECT_TRUE(WantedName("Smith, Bob", page()).fits(personRecord("SMITH", "bob")));
    EXPECT_TRUE(WantedName("Ray, Bob, Jr", page()).fits(personRecord("Ray", "Bob, Jr")));
    EXPECT_FALSE(WantedName("Smith, Jr, Bob", page()).fits(personRecord("Smith, Jr", "Bob")));
    EXPECT_TRUE(WantedName("M\xFCller,  Jo", page()).fits(personRecord("M\xDCLLER", "Jo")));
    EXPECT_TRUE(WantedName("Smith,", page()).fits(personRecord("Smith", "")));
}

TEST(WantedName, ThatBeginsWithACommaFitsNone) {
    EXPECT_FALSE(WantedName(", X", page()).fits(personRecord("", "X")));
    EXPECT_FALSE(WantedName(", X", page()).fits(companyRecord(", X")));
}

TEST(WantedName, OfACompanyFitsNobodyWhoWorksThere) {
    EXPECT_TRUE(WantedName("acme", page()).fits(companyRecord("Acme")));
    EXPECT_TRUE(WantedName("acme", page()).fits(formRecord("", "Al", "Acme")));
    EXPECT_FALSE(WantedName("acme", page()).fits(formRecord("Smith", "Al", "Acme")));
    EXPECT_FALSE(WantedName("", page()).fits(companyRecord("")));
}

TEST(NameIndex, GivesTheRecordsOfANameInTheOrderOfTheBook) {
    NameIndex index(page());
    index.add(1, personRecord("Smith", "Bob"));
    index.add(2, companyRecord("Acme"));
    index.add(3, personRecord("SMITH", "BOB"));
    index.add(4, formRecord("Smith", "Bob", "Acme"));
    index.add(5, companyRecord("ACME"));
    index.add(6, formRecord("", ""));
    EXPECT_EQ(index.of(WantedName("smith, bob", page())), (Numbers{1, 3, 4}));
    EXPECT_EQ(index.of(WantedName("Acme", page())), (Numbers{2, 5}));
    EXPECT_EQ(index.of(WantedName("Nobody", page())), Numbers{});
    EXPECT_EQ(index.of(WantedName("", page())), Numbers{});
    index.clear();
    EXPECT_EQ(index.of(WantedName("Acme", page())), Numbers{});
}

TEST(NameIndex, GivesTheRecordsThatAreCalledAsAnotherOne) {
    NameIndex index(page());
    index.add(1, personRecord("Smith, Jr", "Bob"));
    index.add(2, companyRecord("Acme, Inc"));
    EXPECT_EQ(index.of(personRecord("SMITH, JR", "bob")), (Numbers{1}));
    EXPECT_EQ(index.of(companyRecord("ACME, INC")), (Numbers{2}));
    EXPECT_EQ(index.of(formRecord("", "", "")), Numbers{});
}

TEST(NameIndex, KeepsTheOrderOfTheBookWhateverComesLast) {
    NameIndex index(page());
    index.add(7, companyRecord("Acme"));
    index.add(3, companyRecord("acme"));
    EXPECT_EQ(index.of(companyRecord("ACME")), (Numbers{3, 7}));
}

}  // namespace
}  // namespace velmora
