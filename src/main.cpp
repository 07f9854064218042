#include "app/Start.h"
#include "platform/access/AccessReaderMain.h"

int main(int argc, char** argv) {
    if (velmora::access::isAccessReaderCall(argc, argv))
        return velmora::access::accessReaderMain(argc, argv);
    return velmora::runVelmora(argc, argv);
}
