#include <QApplication>

#include "platform/qt/Theme.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    velmora::applyTheme(application);
    return 0;
}
