#pragma once

#include <array>
#include <string_view>

#include "phonebook/PhonebookRecord.h"

namespace velmora {

// A column of an exported text: what its header says, and whose values stand below.
struct ExportColumn {
    std::string_view header;  // empty for the custom fields: the user names them
    Field field;
};

// The columns of an exported text in their order.
inline constexpr std::array<ExportColumn, 25> kExportColumns{{
    {"Title", Field::Title},
    {"First Name", Field::First},
    {"Last Name", Field::Last},
    {"Title", Field::Position},
    {"Company Name", Field::Company},
    {"Address 1", Field::Address1},
    {"Address 2", Field::Address2},
    {"Address 3", Field::Address3},
    {"Address 4", Field::Address4},
    {"Address 5", Field::PostalCode},
    {"Country", Field::Country},
    {"Phone Number", Field::Phone},
    {"Work Number", Field::WorkPhone},
    {"Fax Number", Field::Fax},
    {"Pager", Field::Pager},
    {"Other Phone Number", Field::OtherPhone},
    {"E-Mail", Field::EMail},
    {"Web Page", Field::WebPage},
    {"Note", Field::Memo},
    {"Class", Field::Class},
    {"Salutation", Field::Salutation},
    {"Date Reference", Field::DateReference},
    {"", Field::Custom1},
    {"", Field::Custom2},
    {"Spouse", Field::Spouse},
}};

// True for the first line of a text that Velmora exported, whatever stands between its columns and
// however the user calls the custom fields.
[[nodiscard]] bool isExportHeader(std::string_view line);

}  // namespace velmora
