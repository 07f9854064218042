#include "telephony/ExternalDialer.h"

#include "platform/Text.h"

namespace velmora {

void ExternalDialer::start(const std::string& number) {
    std::string program = settings_.read(keys::Dialer);
    if (!settings_.has(keys::Dialer))
        program.insert(0, systemFolder_);
    if (files_.exists(program))
        starter_.start(program, {});
    if (codePage_.lower(program).find("dialer.exe") == std::string::npos)
        return;
    keys_.send("%N", false);
    keys_.send(std::string(trimBlanks(number)), true);
}

}  // namespace velmora
