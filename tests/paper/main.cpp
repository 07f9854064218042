#include <gmock/gmock.h>

#include <QApplication>
#include <memory>

#include "paper/PrintShop.h"
#include "platform/qt/PrintServiceMain.h"

namespace velmora::test {
namespace {

std::unique_ptr<PrintShop> theShop;

}  // namespace

PrintShop& printShop() {
    return *theShop;
}

}  // namespace velmora::test

int main(int argc, char** argv) {
    if (velmora::isPrintServiceCall(argc, argv))
        return velmora::printServiceMain(argc, argv);
    QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    velmora::test::theShop = std::make_unique<velmora::test::PrintShop>();
    const int result = RUN_ALL_TESTS();
    velmora::test::theShop.reset();
    return result;
}
