#include "exchange/ImportRecord.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "phonebook/Entry.h"

namespace velmora {
namespace {

// Columns without rows; a choice is the name.
class Columns final : public ImportSource {
  public:
    explicit Columns(std::vector<std::string> columns) : columns_(std::move(columns)) {}
    [[nodiscard]] const std::vector<std::string>& columns() const override { return columns_; }
    [[nodiscard]] std::string choiceOf(std::size_t column) const override {
        return columns_[column];
    }
    [[nodiscard]] const std::vector<std::vector<std::string>>& firstRows() const override {
        return none_;
    }
    [[nodiscard]] const std::string& remark() const override { return noRemark_; }
    void readRows(const std::function<bool(const ImportRow&)>&) override {}
    [[nodiscard]] Progress progress() const override { return {}; }
    [[nodiscard]] std::uint64_t replacedCharacters() const override { return 0; }

  private:
    std::vector<std::string> columns_;
    std::vector<std::vector<std::string>> none_;
    std::string noRemark_;
};

const std::vector<std::string> kThree{"City", "State", "Zip"};

std::string cityLine(const ImportMapping& mapping, const ImportRow& row) {
    return std::string(ImportRecord(mapping, Columns(kThree)).of(row).text(Field::Address2));
}

ImportMapping separate(const std::string& city, const std::string& state, const std::string& zip) {
    ImportMapping mapping;
    mapping.cityStateZipSeparate = true;
    mapping[ImportField::City] = city;
    mapping[ImportField::State] = state;
    mapping[ImportField::Zip] = zip;
    return mapping;
}

TEST(ImportRecord, EachAnswerFillsItsFieldAndNoByteStaysNul) {
    ImportMapping mapping;
    std::vector<std::string> columns;
    for (std::size_t i = 0; i < kImportFieldCount; ++i)
        columns.push_back(mapping.choices[i] = "c" + std::to_string(i));
    ImportRow row(columns.begin(), columns.end());
    const PhonebookRecord record = ImportRecord(mapping, Columns(columns)).of(row);
    const auto from = [&](ImportField field) { return mapping[field]; };
    const std::vector<std::pair<Field, ImportField>> all{
        {Field::Title, ImportField::Title},
        {Field::First, ImportField::First},
        {Field::Last, ImportField::Last},
        {Field::Company, ImportField::Company},
        {Field::Position, ImportField::Position},
        {Field::Address1, ImportField::Street},
        {Field::Address2, ImportField::CityStateZip},
        {Field::Address3, ImportField::AdditionalAddress},
        {Field::Country, ImportField::Country},
        {Field::Phone, ImportField::Home},
        {Field::WorkPhone, ImportField::Work},
        {Field::Fax, ImportField::Fax},
        {Field::Pager, ImportField::Pager},
        {Field::OtherPhone, ImportField::Other},
        {Field::EMail, ImportField::EMail},
        {Field::WebPage, ImportField::WebPage},
        {Field::Salutation, ImportField::Salutation},
        {Field::Class, ImportField::Class},
        {Field::Memo, ImportField::Memo},
        {Field::DateReference, ImportField::DateReference},
        {Field::Custom1, ImportField::Custom1},
        {Field::Custom2, ImportField::Custom2},
        {Field::Spouse, ImportField::Spouse}};
    for (const auto& [to, what] : all)
        EXPECT_EQ(record.text(to), from(what)) << static_cast<int>(to);
    for (const Field empty : {Field::Address4, Field::PostalCode, Field::FileAttachment})
        EXPECT_EQ(record.raw(empty), std::string(placeOf(empty).width, ' '));
    for (const char byte : record.bytes())
        EXPECT_NE(byte, '\0');
}

TEST(ImportRecord, NoneInAnyCaseAndNullLeaveAFieldEmpty) {
    ImportMapping mapping;
    mapping[ImportField::First] = "NONE";
    mapping[ImportField::Last] = "Last";
    mapping[ImportField::Title] = "No such column";
    ImportRecord records(mapping, Columns({"NONE", "Last"}));
    EXPECT_EQ(entryOf(records.of({"Ann", std::nullopt})), entryOf(records.of({"", ""})));
    EXPECT_EQ(records.of({"Ann", "Smith"}).text(Field::First), "");
    EXPECT_EQ(records.of({"Ann", "Smith"}).text(Field::Last), "Smith");
}

TEST(ImportRecord, TheCityLineIsPutTogetherFromThree) {
    EXPECT_EQ(cityLine(separate("City", "State", "Zip"), {"Chicago", "Illinois", "90210"}),
              "Chicago, Illinois 90210");
}

TEST(ImportRecord, AStateThatIsNoneGivesNoComma) {
    EXPECT_EQ(cityLine(separate("City", "None", "Zip"), {"Chicago", "Illinois", "90210"}),
              "Chicago 90210");
}

TEST(ImportRecord, NullGivesNoCommaButAnEmptyTextDoes) {
    EXPECT_EQ(cityLine(separate("City", "State", "Zip"), {"Chicago", std::nullopt, std::nullopt}),
              "Chicago");
    EXPECT_EQ(cityLine(separate("City", "State", "Zip"), {"Chicago", "", ""}), "Chicago,");
    EXPECT_EQ(cityLine(separate("None", "State", "Zip"), {"", "IL", std::nullopt}), ", IL");
}

TEST(ImportRecord, OneColumnForAllThreeIsTakenAsItIs) {
    ImportMapping mapping = separate("City", "State", "Zip");
    mapping.cityStateZipSeparate = false;
    mapping[ImportField::CityStateZip] = "Zip";
    EXPECT_EQ(cityLine(mapping, {"a", "b", "Chicago, IL 9"}), "Chicago, IL 9");
}

TEST(ImportRecord, WhatIsTooLongIsCutAndCounted) {
    ImportMapping mapping;
    mapping[ImportField::First] = "A";
    mapping[ImportField::Last] = "B";
    ImportRecord records(mapping, Columns({"A", "B"}));
    const std::string name(25, 'x');
    EXPECT_EQ(records.of({name, name}).text(Field::First), name.substr(0, 15));
    EXPECT_EQ(records.cut(), 2U);
    EXPECT_EQ(records.of({name.substr(0, 15), name.substr(0, 20)}).text(Field::Last),
              name.substr(0, 20));
    EXPECT_EQ(records.cut(), 2U);
}

TEST(ImportRecord, ARowThatIsTooShortLeavesTheRestEmpty) {
    ImportMapping mapping;
    mapping[ImportField::Last] = "B";
    EXPECT_EQ(ImportRecord(mapping, Columns({"A", "B"})).of({"x"}).text(Field::Last), "");
}

}  // namespace
}  // namespace velmora
