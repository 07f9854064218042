#include "support/TestsFolder.h"

namespace velmora::test {

std::string testsFolder() {
    return VELMORA_TESTS_FOLDER;  // the build gives it
}

}  // namespace velmora::test
