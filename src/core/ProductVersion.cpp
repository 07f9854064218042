#include "core/ProductVersion.h"

namespace velmora {

const char* productVersion() {
    return VELMORA_VERSION;  // the build gives it
}

}  // namespace velmora
