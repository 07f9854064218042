#include "app/Start.h"
#include "platform/access/AccessReaderMain.h"
#include "platform/qt/PrintServiceMain.h"

int main(int argc, char** argv) {
    if (velmora::access::isAccessReaderCall(argc, argv))
        return velmora::access::accessReaderMain(argc, argv);
    if (velmora::isPrintServiceCall(argc, argv))
        return velmora::printServiceMain(argc, argv);
    return velmora::runVelmora(argc, argv);
}
