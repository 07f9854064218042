#include "phonebook/RecordSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

const CodePage& page() {
    return CodePage::western();
}

FieldSet setOf(std::initializer_list<Field> fields) {
    FieldSet set;
    for (const Field field : fields)
        set.add(field);
    return set;
}

FieldSet found(std::string_view text, const PhonebookRecord& record,
               FieldSet fields = FieldSet::all()) {
    return RecordSearch(text, fields, page()).fieldsThatHold(record);
}

// What it means for a field to hold a text, said plainly.
FieldSet plainlyFound(std::string_view text, const PhonebookRecord& record) {
    FieldSet set;
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        const auto field = static_cast<Field>(i);
        if (page().upper(record.raw(field)).find(page().upper(text)) != std::string::npos)
            set.add(field);
    }
    return set;
}

TEST(RecordSearch, FindsATextInAnyCaseAnywhereInAField) {
    const PhonebookRecord record = test::formRecord("Smithers", "Jo", "BLACKSMITH", "a smith");
    EXPECT_EQ(found("smith", record), setOf({Field::Last, Field::Company, Field::Memo}));
    EXPECT_EQ(found("SMITH", record), setOf({Field::Last, Field::Company, Field::Memo}));
    EXPECT_EQ(found("smiths", record), FieldSet());
}

TEST(RecordSearch, LooksOnlyAtTheFieldsAskedFor) {
    const PhonebookRecord record = test::formRecord("Smith", "Jo", "Smith", "smith");
    EXPECT_EQ(found("smith", record, setOf({Field::Memo, Field::First})), setOf({Field::Memo}));
    EXPECT_EQ(found("smith", record, FieldSet()), FieldSet());
}

TEST(RecordSearch, FoldsTheLettersOfTheCodePage) {
    EXPECT_EQ(found("\xC9T\xC9", test::personRecord("\xE9t\xE9", "Jo")), setOf({Field::Last}));
    EXPECT_EQ(found("\x9A", test::personRecord("\x8A", "Jo")), setOf({Field::Last}));
}

TEST(RecordSearch, TakesPaddingAsPartOfAField) {
    const PhonebookRecord record = test::personRecord("Brown", "Jo");
    EXPECT_EQ(found("n ", record), setOf({Field::Last}));
    EXPECT_EQ(found(" ", record), FieldSet::all());
}

TEST(RecordSearch, FindsNoBlankInAFieldOfNuls) {
    PhonebookRecord record;
    record.assign(Field::Last, "Brown");
    EXPECT_EQ(found(" ", record), setOf({Field::Last}));
}

TEST(RecordSearch, NeverFindsATextAcrossTwoFields) {
    PhonebookRecord record;
    record.assign(Field::First, std::string(15, 'a'));
    record.assign(Field::Last, std::string(20, 'b'));
    EXPECT_EQ(found("ab", record), FieldSet());
    EXPECT_EQ(found(std::string(15, 'a'), record), setOf({Field::First}));
    EXPECT_EQ(found(std::string(16, 'a'), record), FieldSet());
    EXPECT_EQ(found(" x", test::formRecord("x", "Jo", "x")), FieldSet());
    EXPECT_EQ(found(std::string(2000, 'a'), record), FieldSet());
}

TEST(RecordSearch, AgreesWithAPlainSearchOnRecordsOfFewLetters) {
    std::mt19937 random(20);
    const std::string letters("aAbB \0\xE9\xC9", 8);
    const auto text = [&](std::size_t length) {
        std::string result;
        while (result.size() < length)
            result += letters[random() % letters.size()];
        return result;
    };
    for (int round = 0; round < 3000; ++round) {
        const PhonebookRecord record(text(kRecordSize - random() % 200));
        const std::string what = text(1 + random() % 4);
        ASSERT_EQ(found(what, record), plainlyFound(what, record)) << round;
    }
}

}  // namespace
}  // namespace velmora
