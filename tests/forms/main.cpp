#include <gmock/gmock.h>

#include <QApplication>
#include <QTemporaryDir>

#include "forms/Screens.h"
#include "platform/qt/PrintServiceMain.h"
#include "platform/qt/Theme.h"

int main(int argc, char** argv) {
    if (velmora::isPrintServiceCall(argc, argv))
        return velmora::printServiceMain(argc, argv);
    QTemporaryDir folder;
    velmora::test::chooseScreens(folder.filePath(QStringLiteral("screens.json")));
    QApplication application(argc, argv);
    velmora::applyTheme(application);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
