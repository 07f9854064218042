#include "phonebook/NameTable.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::companyRecord;
using test::formRecord;
using test::personRecord;
using Numbers = std::vector<RecordNumber>;

TEST(NameTable, GivesTheRecordsOfANameInTheOrderOfTheBookWhateverItsCase) {
    const CodePage& page = CodePage::western();
    NameTable table(page);
    table.add(1, personRecord("Smith", "Bob"));
    table.add(2, companyRecord("Acme"));
    table.add(3, personRecord("SMITH", "BOB"));
    table.add(4, formRecord("Smith", "Bob", "Acme"));
    table.add(5, companyRecord("ACME"));
    table.add(6, formRecord("", ""));
    table.add(7, personRecord("M\xFCller", ""));
    EXPECT_EQ(table.of(WantedName("smith, bob", page)), (Numbers{1, 3, 4}));
    EXPECT_EQ(table.of(WantedName("Acme", page)), (Numbers{2, 5}));
    EXPECT_EQ(table.of(WantedName("M\xDCLLER,", page)), Numbers{7});
    EXPECT_EQ(table.of(WantedName("Nobody", page)), Numbers{});
    EXPECT_EQ(table.of(WantedName("", page)), Numbers{});
    table.add(8, companyRecord("acme"));
    EXPECT_EQ(table.of(WantedName("Acme", page)), (Numbers{2, 5, 8}));
    table.clear();
    EXPECT_EQ(table.of(WantedName("Acme", page)), Numbers{});
}

}  // namespace
}  // namespace velmora
