#pragma once

#include <array>
#include <bitset>
#include <cstddef>

#include "phonebook/PhonebookRecord.h"

namespace velmora {

// Fields of a record, by the numbers of Field.
class FieldSet {
  public:
    [[nodiscard]] static FieldSet all() {
        FieldSet set;
        set.bits_.set();
        return set;
    }

    void add(Field field) { bits_.set(static_cast<std::size_t>(field)); }
    void remove(Field field) { bits_.reset(static_cast<std::size_t>(field)); }
    [[nodiscard]] bool has(Field field) const { return bits_[static_cast<std::size_t>(field)]; }
    [[nodiscard]] bool any() const { return bits_.any(); }

    friend bool operator==(const FieldSet&, const FieldSet&) = default;

  private:
    std::bitset<kFieldCount> bits_;
};

struct SearchField {
    Field field;
    const char* caption;       // of its box
    const char* match;         // what a hit says before "="
    const char* companyMatch;  // the same for an entry that is just a company
};

// The fields in the order in which they are searched, which is the order of the hits of an entry.
// Captions and texts of the two custom fields are the user's; these serve where there is none.
inline constexpr std::array<SearchField, kFieldCount> kSearchFields{{
    {Field::Title, "Title", "Title", "Title"},
    {Field::First, "First Name", "First Name", "First Name"},
    {Field::Last, "Last Name", "Last Name", "Last Name"},
    {Field::Position, "Job Title", "Job Title", "Job Title"},
    {Field::Company, "Company", "Company", "Company"},
    {Field::Address1, "Address 1", "Address 1", "Address 1"},
    {Field::Address2, "Address 2", "Address 2", "Address 2"},
    {Field::Address3, "Address 3", "Address 3", "Address 3"},
    {Field::Address4, "Address 4", "Address 4", "Address4"},
    {Field::PostalCode, "Address 5", "Address 5", "Address 5"},
    {Field::Country, "Country", "Country", "Country"},
    {Field::Salutation, "Salutation", "Salutation", "Salutation"},
    {Field::Phone, "Home Phn", "Home Phone", "Home Phone"},
    {Field::WorkPhone, "Work Phn", "Work Phone", "Work Phone"},
    {Field::Fax, "Fax", "Fax", "Fax"},
    {Field::Pager, "Pager", "Pager", "Pager"},
    {Field::OtherPhone, "Other Phn", "Other Phone", "Other Phone"},
    {Field::EMail, "E-Mail", "E-Mail", "E-Mail"},
    {Field::WebPage, "Web Page", "WebPage", "WebPage"},
    {Field::Memo, "Note", "Note", "Note"},
    {Field::Class, "Class", "Class", "Class"},
    {Field::DateReference, "Date", "Date Reference", "Date Reference"},
    {Field::Custom1, "Custom 1", "Custom 1", "Custom 1"},
    {Field::Custom2, "Custom 2", "Custom 2", "Custom 2"},
    {Field::Spouse, "Spouse", "Spouse Name", "Spouse Name"},
    {Field::FileAttachment, "File Attach", "File Attachment", "File Attachment"},
}};

}  // namespace velmora
