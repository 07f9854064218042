#include "phonebook/PhonebookRecord.h"

#include <gtest/gtest.h>

#include <string>

#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using namespace std::string_literals;
using test::bytesOf;

TEST(PhonebookRecord, FieldsFillTheRecordWithoutGapsInTheirOrder) {
    std::size_t offset = 0;
    for (const FieldPlace& place : kFieldPlaces) {
        EXPECT_EQ(place.offset, offset);
        offset += place.width;
    }
    EXPECT_EQ(offset, 1595U);
    struct Row {
        Field field;
        std::size_t offset;
        std::size_t width;
    };
    for (const Row& row : {Row{Field::First, 0, 15},
                           Row{Field::Last, 15, 20},
                           Row{Field::Title, 35, 10},
                           Row{Field::Company, 45, 50},
                           Row{Field::Position, 95, 60},
                           Row{Field::Address1, 155, 75},
                           Row{Field::Address2, 230, 75},
                           Row{Field::Address3, 305, 75},
                           Row{Field::Address4, 380, 75},
                           Row{Field::Country, 455, 50},
                           Row{Field::PostalCode, 505, 30},
                           Row{Field::Phone, 535, 20},
                           Row{Field::WorkPhone, 555, 20},
                           Row{Field::Fax, 575, 20},
                           Row{Field::Pager, 595, 25},
                           Row{Field::OtherPhone, 620, 20},
                           Row{Field::EMail, 640, 100},
                           Row{Field::WebPage, 740, 200},
                           Row{Field::Salutation, 940, 30},
                           Row{Field::Class, 970, 25},
                           Row{Field::Memo, 995, 250},
                           Row{Field::DateReference, 1245, 20},
                           Row{Field::Custom1, 1265, 25},
                           Row{Field::Custom2, 1290, 25},
                           Row{Field::FileAttachment, 1315, 255},
                           Row{Field::Spouse, 1570, 25}}) {
        SCOPED_TRACE(row.offset);
        PhonebookRecord record;
        record.assign(row.field, "x");
        EXPECT_EQ(bytesOf(record), std::string(row.offset, '\0') + "x" +
                                       std::string(row.width - 1, ' ') +
                                       std::string(1595 - row.offset - row.width, '\0'));
    }
}

TEST(PhonebookRecord, AFreshRecordIsNulAndReadsAsEmpty) {
    const PhonebookRecord record;
    EXPECT_EQ(bytesOf(record), std::string(1595, '\0'));
    EXPECT_EQ(record.text(Field::Last), "");
}

TEST(PhonebookRecord, AShortValueIsPaddedAndALongOneCut) {
    PhonebookRecord record;
    record.assign(Field::First, "Ann");
    EXPECT_EQ(record.raw(Field::First), "Ann            ");
    record.assign(Field::First, "123456789012345");
    EXPECT_EQ(record.raw(Field::First), "123456789012345");
    record.assign(Field::First, "1234567890123456");
    EXPECT_EQ(record.raw(Field::First), "123456789012345");
    EXPECT_EQ(record.raw(Field::Last), std::string(20, '\0'));
    record.assign(Field::First, "");
    EXPECT_EQ(record.raw(Field::First), std::string(15, ' '));
}

TEST(PhonebookRecord, KeepsEveryByteAndTheLineBreaksOfAMemo) {
    PhonebookRecord record;
    record.assign(Field::Last, "\xE9t\xE9");
    record.assign(Field::Memo, "one\r\ntwo");
    EXPECT_EQ(record.text(Field::Last), "\xE9t\xE9");
    EXPECT_EQ(record.text(Field::Memo), "one\r\ntwo");
}

TEST(PhonebookRecord, WhatAShortReadLacksIsNul) {
    const std::string bytes = bytesOf(test::personRecord("Adams", "Ann")).substr(0, 17);
    const PhonebookRecord record(bytes);
    EXPECT_EQ(record.raw(Field::First), "Ann            ");
    EXPECT_EQ(record.raw(Field::Last), "Ad"s + std::string(18, '\0'));
    EXPECT_EQ(record.text(Field::Last), "Ad");
}

}  // namespace
}  // namespace velmora
