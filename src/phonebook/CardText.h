#pragma once

#include <string>
#include <string_view>

#include "phonebook/RecordView.h"

namespace velmora {

// Where the cards of different windows differ.
struct CardStyle {
    bool spouse;                      // the spouse stands behind the name
    std::string_view beforeCompany;   // between Position and Company
    std::string_view withinAddress;   // between Address3 and Address4
    std::string_view beforePostal;    // between Address4 and PostalCode
    bool postalAlone;                 // a postal code is shown without Address3 and Address4, too
    std::string_view betweenCustoms;  // between Custom1 and Custom2
    bool plusForAmpersand;            // the first "&" becomes "+"
};

inline constexpr CardStyle kMainWindowCard{true, " ", " ", " ", true, "          ", true};
inline constexpr CardStyle kAssociateCard{false, " ", " , ", " , ", true, "   ", false};
inline constexpr CardStyle kCallerCard{false, "  ", " , ", "", false, "   ", false};

// The text that shows all of an entry, in lines that end in CR LF. A person's card begins with
// the name, that of a record without a last name with the company.
[[nodiscard]] std::string cardText(RecordView record, const CardStyle& style = kMainWindowCard);

}  // namespace velmora
