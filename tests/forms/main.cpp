#include <gmock/gmock.h>

#include <QApplication>

#include "platform/qt/Theme.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    velmora::applyTheme(application);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
