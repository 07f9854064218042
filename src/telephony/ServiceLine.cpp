#include "telephony/ServiceLine.h"

#include <algorithm>
#include <utility>

#include "platform/Text.h"
#include "telephony/NationalNumber.h"

namespace velmora {
namespace {

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7f;
}

// Line ends and the like become blanks, so that the text is one line wherever it is written.
std::string oneLine(const std::string& utf8, const CodePage& codePage) {
    std::string text = codePage.fromUtf8(utf8);
    std::ranges::replace_if(text, isControl, ' ');
    return std::string(trimBlanks(text));
}

}  // namespace

void ServiceLine::activate(std::function<void(const Caller& caller)> onCall) {
    onCall_ = std::move(onCall);
    for (CallService* service : parts_.services)
        service->listen([this, service](const CallReport& report) { onReport(*service, report); });
}

// A service may be in the middle of its work, and whoever hears of the call lets events run: so it
// is told later.
void ServiceLine::onReport(const CallService& service, const CallReport& report) {
    const Caller caller{
        .name = oneLine(report.name, parts_.codePage),
        .number = nationalNumber(oneLine(report.number, parts_.codePage), parts_.country)};
    if (merger_.isNew(service.name(), caller.number, parts_.now()))
        parts_.loop.post(calls_, [this, caller] { onCall_(caller); });
}

}  // namespace velmora
