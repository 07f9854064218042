#include <gmock/gmock.h>

#include "platform/access/AccessReaderMain.h"

int main(int argc, char** argv) {
    if (velmora::access::isAccessReaderCall(argc, argv))
        return velmora::access::accessReaderMain(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
