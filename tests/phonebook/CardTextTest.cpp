#include "phonebook/CardText.h"

#include <gtest/gtest.h>

#include <string>

#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

PhonebookRecord full() {
    PhonebookRecord record;
    const char* values[kFieldCount] = {
        "First",   "Last",   "Title", "Company", "Position", "A1", "A2",   "A3",    "A4",
        "Country", "Postal", "1",     "2",       "3",        "4",  "5",    "e@x",   "web",
        "Dear",    "Class",  "Memo",  "Date",    "C1",       "C2", "File", "Spouse"};
    for (std::size_t i = 0; i < kFieldCount; ++i)
        record.assign(static_cast<Field>(i), values[i]);
    return record;
}

TEST(CardText, ShowsAllLinesOfAPerson) {
    EXPECT_EQ(cardText(full()),
              "Title First Last    Spouse: Spouse\r\n"
              "Position Company\r\n"
              "A1 , A2\r\n"
              "A3 A4 Postal\r\n"
              "Country\r\n"
              "H: 1    W: 2    F: 3\r\n"
              "P: 4    O: 5    Em: e@x\r\n"
              "C1          C2\r\n"
              "Class\r\n"
              "Memo");
}

TEST(CardText, ACompanyHasOneLineInsteadOfTheFirstTwo) {
    PhonebookRecord record = full();
    record.assign(Field::Last, "");
    record.assign(Field::First, "");
    EXPECT_EQ(cardText(record),
              "Company\r\n"
              "A1 , A2\r\n"
              "A3 A4 Postal\r\n"
              "Country\r\n"
              "H: 1    W: 2    F: 3\r\n"
              "P: 4    O: 5    Em: e@x\r\n"
              "C1          C2\r\n"
              "Class\r\n"
              "Memo");
}

TEST(CardText, AlmostNothingStillHasTheLinesThatAlwaysShow) {
    EXPECT_EQ(cardText(test::personRecord("Smith", "")),
              "  Smith    Spouse: \r\n"
              " \r\n"
              "\r\n"
              "          \r\n"
              "\r\n");
    EXPECT_EQ(cardText(test::companyRecord("Acme")),
              "Acme\r\n"
              "\r\n"
              "          \r\n"
              "\r\n");
}

TEST(CardText, ALineShowsWhenAnyOfItsFieldsIsThere) {
    struct Row {
        Field field;
        const char* line;
    };
    for (const Row& row : {Row{Field::Address1, "x , \r\n"}, Row{Field::Address2, " , x\r\n"},
                           Row{Field::Address3, "x  \r\n"}, Row{Field::Address4, " x \r\n"},
                           Row{Field::PostalCode, "  x\r\n"}}) {
        PhonebookRecord record = test::companyRecord("Acme");
        record.assign(row.field, "x");
        EXPECT_EQ(cardText(record), std::string("Acme\r\n") + row.line +
                                        "\r\n"
                                        "          \r\n"
                                        "\r\n");
    }
    for (const Row& row :
         {Row{Field::Phone, "H: x    W:     F: \r\n"},
          Row{Field::WorkPhone, "H:     W: x    F: \r\n"},
          Row{Field::Fax, "H:     W:     F: x\r\n"}, Row{Field::Pager, "P: x    O:     Em: \r\n"},
          Row{Field::OtherPhone, "P:     O: x    Em: \r\n"},
          Row{Field::EMail, "P:     O:     Em: x\r\n"}}) {
        PhonebookRecord record = test::companyRecord("Acme");
        record.assign(row.field, "x");
        EXPECT_EQ(cardText(record), std::string("Acme\r\n\r\n") + row.line +
                                        "          \r\n"
                                        "\r\n");
    }
}

TEST(CardText, OnlyTheFirstAmpersandBecomesAPlus) {
    EXPECT_EQ(cardText(test::companyRecord("Acme", "A & B & C")),
              "Acme\r\n\r\n          \r\n\r\nA + B & C");
    EXPECT_EQ(cardText(test::companyRecord("A&B", "C&D")), "A+B\r\n\r\n          \r\n\r\nC&D");
}

TEST(CardText, FieldsAreTrimmedAndAMemoKeepsItsLines) {
    PhonebookRecord record;
    record.assign(Field::Last, " Smith");
    record.assign(Field::Memo, " one\r\ntwo ");
    EXPECT_EQ(cardText(record), "  Smith    Spouse: \r\n \r\n\r\n          \r\n\r\none\r\ntwo");
}

}  // namespace
}  // namespace velmora
