#include "telephony/PhoneLog.h"

namespace velmora {

void PhoneLog::append(Direction direction, const std::string& number) {
    const Moment now = clock_.now();
    files_.append(path(), formatMoment(now, NamedFormat::MediumDate, locale_) + "\t" +
                              formatMoment(now, NamedFormat::MediumTime, locale_) + "\t" +
                              (direction == Direction::Outgoing ? "Outgoing" : "Incoming") + "\t" +
                              number + "\r\n");
}

void PhoneLog::createIfMissing() {
    if (!files_.exists(path()))
        files_.append(path(), "");
}

}  // namespace velmora
