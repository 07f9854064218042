#include "phonebook/Buckets.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/Failure.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::companyRecord;
using test::formRecord;
using test::personRecord;

const CodePage& page() {
    return CodePage::western();
}

TEST(Buckets, NamesAndCountKeysGoFromAToZAndTheSymbols) {
    EXPECT_EQ(bucketAt(0).name, "AName");
    EXPECT_EQ(bucketAt(0).countKey, "ANu");
    EXPECT_EQ(bucketAt(25).name, "ZName");
    EXPECT_EQ(bucketAt(25).countKey, "ZNu");
    EXPECT_EQ(bucketAt(26).name, "#");
    EXPECT_EQ(bucketAt(26).countKey, "SyNu");
    for (int index = 0; index < 26; ++index) {
        const std::string letter(1, static_cast<char>('A' + index));
        EXPECT_EQ(bucketAt(index).name, letter + "Name");
        EXPECT_EQ(bucketAt(index).countKey, letter + "Nu");
    }
    EXPECT_THROW((void)bucketAt(-1), Failure);
    EXPECT_THROW((void)bucketAt(27), Failure);
}

struct Row {
    const char* says;
    PhonebookRecord record;
    int bucket;
    bool shown;  // by the filter of its bucket
};

std::vector<Row> rows() {
    return {
        {"a person goes by the last name", personRecord("Smith", "Ann"), 18, true},
        {"in either case", personRecord("smith", "Ann"), 18, true},
        {"O'Brien is under O", personRecord("O'Brien", "Pat"), 14, true},
        {"O'Neil is under O", personRecord("O'Neil", "Pat"), 14, true},
        {"a leading blank does not count", personRecord(" Baker", "Bob"), 1, true},
        {"a company goes by its own name", companyRecord("Acme"), 0, true},
        {"the last name wins over the company", formRecord("Zorn", "Al", "Acme"), 25, true},
        {"3M is a symbol", companyRecord("3M"), 26, true},
        {"24 Hour Plumbing is a symbol", companyRecord("24 Hour Plumbing"), 26, true},
        {"a bracket lies between the letters", companyRecord("[x]"), 26, true},
        {"a brace lies behind them", companyRecord("{x}"), 26, true},
        {"the code page's upper half is a symbol", personRecord("\xC9mile", "Zo"), 26, true},
        {"no name at all", formRecord("", ""), 26, false},
        {"NULs only", PhonebookRecord(), 26, false},
    };
}

TEST(Buckets, TheFirstCharacterOfTheNameIsTheBucket) {
    for (const Row& row : rows()) {
        SCOPED_TRACE(row.says);
        EXPECT_EQ(bucketOf(row.record, page()), row.bucket);
    }
}

TEST(Buckets, ARecordPassesTheFilterOfItsBucketAndNoOther) {
    for (const Row& row : rows())
        for (int index = 0; index < kBucketCount; ++index) {
            SCOPED_TRACE(row.says);
            SCOPED_TRACE(index);
            EXPECT_EQ(BucketFilter(bucketAt(index).name, page()).passes(row.record),
                      row.shown && index == row.bucket);
        }
}

TEST(Buckets, ANameThatBeginsWithNulIsInNoList) {
    PhonebookRecord record;
    record.assign(Field::Last, std::string("\0Smith", 6));
    for (int index = 0; index < kBucketCount; ++index)
        EXPECT_FALSE(BucketFilter(bucketAt(index).name, page()).passes(record));
}

TEST(Buckets, TheTabOfATextIsThatOfItsFirstCharacter) {
    EXPECT_EQ(bucketOfText("a", page()), 0);
    EXPECT_EQ(bucketOfText("  zed", page()), 25);
    EXPECT_EQ(bucketOfText("9", page()), 26);
    EXPECT_EQ(bucketOfText("", page()), 26);
    EXPECT_EQ(bucketOfText("\xE9", page()), 26);
}

}  // namespace
}  // namespace velmora
