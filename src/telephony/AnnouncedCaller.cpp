#include "telephony/AnnouncedCaller.h"

namespace velmora {

// Once for each call, with its number.
void AnnouncedCaller::showNumber(const std::string& number) {
    window_.showNumber(number);
    notices_.show(kCall, "Incoming Call",
                  number.empty() ? "The number is withheld." : "From: " + codePage_.toUtf8(number));
}

}  // namespace velmora
