#include "phonebook/EntryTexts.h"

#include <gtest/gtest.h>

#include <string>

#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

TEST(KeptTexts, AreThoseOfTheRecordsInWhateverOrderTheyAreAskedFor) {
    KeptTexts kept({Field::Last, Field::FileAttachment, Field::Memo});
    PhonebookRecord full;
    full.assign(Field::Last, "  Smith");
    full.assign(Field::FileAttachment, std::string(255, 'x'));
    full.assign(Field::Memo, "one\r\n\0two" + std::string(1, '\0'));
    kept.add(full);
    kept.add(PhonebookRecord());
    kept.add(test::personRecord("Last", "First"));
    EXPECT_EQ(kept.of(3).text(Field::Last), "Last");
    EXPECT_EQ(kept.of(3).text(Field::First), "") << "it is not kept";
    EXPECT_EQ(kept.of(1).text(Field::Last), "Smith");
    EXPECT_EQ(kept.of(1).text(Field::FileAttachment), std::string(255, 'x'));
    EXPECT_EQ(kept.of(1).text(Field::Memo), RecordView(full).text(Field::Memo));
    EXPECT_EQ(kept.of(2).text(Field::Last), "");
    kept.clear();
    kept.add(test::personRecord("Other", "First"));
    EXPECT_EQ(kept.of(1).text(Field::Last), "Other");
}

}  // namespace
}  // namespace velmora
