#include "core/ProductAddresses.h"

namespace velmora {

ProductAddresses productAddresses() {
    return {VELMORA_HOME_PAGE, VELMORA_MAIL_ADDRESS};  // the build gives them
}

}  // namespace velmora
