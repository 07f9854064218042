#include "telephony/CallMerger.h"

#include <algorithm>

namespace velmora {
namespace {

std::string comparable(const std::string& number) {
    std::string digits;
    std::ranges::copy_if(number, std::back_inserter(digits),
                         [](char c) { return c >= '0' && c <= '9'; });
    return digits.empty() ? number : digits;
}

}  // namespace

bool CallMerger::isNew(const std::string& service, const std::string& number, Time now) {
    std::erase_if(calls_, [&](const Call& call) { return now - call.at > kSameCall; });
    const std::string wanted = comparable(number);
    const auto known = std::ranges::find_if(calls_, [&](const Call& call) {
        return call.number == wanted &&
               std::ranges::find(call.services, service) == call.services.end();
    });
    if (known == calls_.end()) {
        calls_.push_back({wanted, now, {service}});
        return true;
    }
    known->services.push_back(service);
    return false;
}

}  // namespace velmora
