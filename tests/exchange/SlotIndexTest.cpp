#include "exchange/SlotIndex.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "phonebook/RecordState.h"
#include "platform/Text.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::companyRecord;
using test::formRecord;
using test::personRecord;
using Why = SlotIndex::Why;

const CodePage& page() {
    return CodePage::western();
}

SlotIndex indexOf(const std::vector<PhonebookRecord>& book) {
    SlotIndex index(page());
    index.begin(static_cast<RecordNumber>(book.size()));
    RecordNumber number = 0;
    for (const PhonebookRecord& record : book)
        index.add(++number, record);
    return index;
}

void expectSlot(const SlotIndex& index, const PhonebookRecord& entry, RecordNumber number,
                Why why) {
    const SlotIndex::Slot slot = index.slotFor(entry);
    EXPECT_EQ(slot.number, number);
    EXPECT_EQ(slot.why, why);
}

TEST(SlotIndex, AnEmptyBookTakesTheFirstRecord) {
    expectSlot(indexOf({}), personRecord("Smith", "Ann"), 1, Why::BehindTheLast);
}

TEST(SlotIndex, AnEntryOfTheSameNameIsReplacedWhateverItsCase) {
    const SlotIndex index = indexOf({personRecord("Adams", "Al"), personRecord("M\xFCller", "Jo")});
    expectSlot(index, personRecord("M\xDCLLER", "JO"), 2, Why::SameName);
    expectSlot(index, personRecord("M\xDCLLER", ""), 3, Why::BehindTheLast);
}

TEST(SlotIndex, TheFirstOfSeveralEntriesOfTheSameNameIsReplaced) {
    const SlotIndex index =
        indexOf({personRecord("B", "B"), personRecord("A", "A"), personRecord("A", "A")});
    expectSlot(index, personRecord("a", "a"), 2, Why::SameName);
}

TEST(SlotIndex, AFreeSlotBeforeTheEntryOfTheSameNameIsTakenAndTheEntryIsThereTwice) {
    const SlotIndex index =
        indexOf({personRecord("B", "B"), tombstoneRecord(), personRecord("A", "A")});
    expectSlot(index, personRecord("A", "A"), 2, Why::Free);
    expectSlot(index, personRecord("B", "B"), 1, Why::SameName);
}

TEST(SlotIndex, DeletedAndNeverWrittenSlotsAreFree) {
    expectSlot(indexOf({personRecord("B", "B"), PhonebookRecord()}), personRecord("A", "A"), 2,
               Why::Free);
    expectSlot(indexOf({personRecord("deleted", "x")}), personRecord("A", "A"), 1, Why::Free);
    PhonebookRecord onlyCompany;
    onlyCompany.assign(Field::Company, "Acme");
    expectSlot(indexOf({onlyCompany}), personRecord("A", "A"), 1, Why::Free);
}

TEST(SlotIndex, ACompanyIsReplacedWhereNeitherHasALastOrFirstName) {
    const SlotIndex index = indexOf(
        {formRecord("", "Jo", "Acme"), formRecord("A", "B", "Acme"), companyRecord("ACME")});
    expectSlot(index, companyRecord("acme"), 3, Why::SameName);
    expectSlot(index, formRecord("", "Jo", "Acme"), 4, Why::BehindTheLast);
    expectSlot(index, formRecord("C", "D", "Acme"), 4, Why::BehindTheLast);
}

TEST(SlotIndex, AnEntryWithoutAnyNameIsLikeNoOther) {
    const SlotIndex index = indexOf({formRecord("", ""), formRecord("", "Jo")});
    expectSlot(index, formRecord("", ""), 3, Why::BehindTheLast);
    expectSlot(index, formRecord("", "Jo"), 3, Why::BehindTheLast);
}

TEST(SlotIndex, ABlankEntryIsNotFree) {
    expectSlot(indexOf({formRecord("", "")}), personRecord("A", "A"), 2, Why::BehindTheLast);
}

TEST(SlotIndex, NamesWithCommasAreComparedWhole) {
    const SlotIndex index = indexOf({personRecord("Smith, Jr", "Bob"), companyRecord("Acme, Inc")});
    expectSlot(index, personRecord("smith, jr", "bob"), 1, Why::SameName);
    expectSlot(index, companyRecord("acme, inc"), 2, Why::SameName);
    expectSlot(index, personRecord("Smith", "Jr, Bob"), 3, Why::BehindTheLast);
}

// The rule as it stands, over the whole book for each entry.
RecordNumber slotByScan(const std::vector<PhonebookRecord>& book, const PhonebookRecord& entry) {
    const auto is = [&](const PhonebookRecord& record, Field field) {
        return page().equalIgnoringCase(record.text(field), entry.text(field));
    };
    RecordNumber number = 0;
    for (const PhonebookRecord& record : book) {
        ++number;
        const bool nuls = record.raw(Field::Last) == std::string(20, '\0') &&
                          record.raw(Field::First) == std::string(15, '\0');
        if (nuls || page().upper(record.text(Field::Last)) == "DELETED")
            return number;
        if (is(record, Field::Last) && is(record, Field::First) && !entry.text(Field::Last).empty())
            return number;
        if (is(record, Field::Company) && !entry.text(Field::Company).empty() &&
            entry.text(Field::Last).empty() && entry.text(Field::First).empty() &&
            record.text(Field::Last).empty() && record.text(Field::First).empty())
            return number;
    }
    return number + 1;
}

TEST(SlotIndex, GivesTheSlotsThatAScanOfTheWholeBookGivesRowByRow) {
    std::mt19937 random(7);
    const auto pick = [&](const std::vector<std::string>& texts) {
        return texts[random() % texts.size()];
    };
    for (int round = 0; round < 60; ++round) {
        std::vector<PhonebookRecord> book;
        const auto any = [&] {
            return formRecord(pick({"", "A", "a", "B", "Deleted"}), pick({"", "X", "Y"}),
                              pick({"", "Acme", "ACME", "Bolt"}));
        };
        for (std::size_t i = random() % 12; i > 0; --i)
            book.push_back(random() % 4 == 0 ? PhonebookRecord() : any());
        SlotIndex index = indexOf(book);
        for (int row = 0; row < 40; ++row) {
            const PhonebookRecord entry = any();
            const SlotIndex::Slot slot = index.slotFor(entry);
            ASSERT_EQ(slot.number, slotByScan(book, entry)) << round << " " << row;
            if (slot.number > static_cast<RecordNumber>(book.size()))
                book.emplace_back();
            book[static_cast<std::size_t>(slot.number - 1)] = entry;
            index.wrote(slot, entry);
            ASSERT_EQ(index.count(), static_cast<RecordNumber>(book.size()));
        }
    }
}

}  // namespace
}  // namespace velmora
