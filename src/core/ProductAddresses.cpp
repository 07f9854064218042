#include "core/ProductAddresses.h"

namespace velmora {

ProductAddresses productAddresses() {
    return {VELMORA_HOME_PAGE, VELMORA_MAIL_ADDRESS};  // the build gives them
}

std::string desktopEntryName() {
    return VELMORA_DESKTOP_NAME;
}

}  // namespace velmora
