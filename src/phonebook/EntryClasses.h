#pragma once

#include <array>

namespace velmora {

// The classes that the entry form offers, in their order. Any other text may be typed.
inline constexpr std::array kEntryClasses = {
    "Business",
    "Company",
    "Personal",
    "Colleague",
    "Friend",
    "Relative",
    "Associate",
    "Important",
    "Patron",
    "Customer",
    "Employer",
    "Employee",
    "PhD",
    "MD",
    "C.P.A.",
    "Doctor",
    "Electrical Company",
    "Credit Card Company",
    "Water Company",
    "Utility Company",
    "Computer Company",
    "CFO",
    "CEO",
    "CIO",
    "MIS",
    "Manager",
    "Network Administrator",
    "Official",
    "School Related",
};

}  // namespace velmora
