#include "forms/Screens.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace velmora::test {
namespace {

// Sizes in device-independent px. The first by name is the primary one; each stands to the right of
// the one before it.
struct Place {
    const char* name;
    int width;
    int height;
    double scale;
};

constexpr Place kPlaces[] = {{"0 usual", 1400, 1000, 1},
                             {kSmallScreens[0], 1024, 600, 1},
                             {kSmallScreens[1], 1366, 768, 1},
                             {kSmallScreens[2], 1280, 720, 1.5},
                             {kSmallScreens[3], 960, 540, 2}};

QJsonArray screens() {
    QJsonArray all;
    int left = 0;
    for (const Place& place : kPlaces) {
        all.append(QJsonObject{{QStringLiteral("name"), QString::fromLatin1(place.name)},
                               {QStringLiteral("x"), left},
                               {QStringLiteral("y"), 0},
                               {QStringLiteral("width"), place.width},
                               {QStringLiteral("height"), place.height},
                               {QStringLiteral("logicalDpi"), 96},
                               {QStringLiteral("logicalBaseDpi"), 96},
                               {QStringLiteral("dpr"), place.scale}});
        left += 2000;
    }
    return all;
}

}  // namespace

void chooseScreens(const QString& file) {
    if (qgetenv("QT_QPA_PLATFORM") != "offscreen")
        return;
    QFile written(file);
    if (!written.open(QIODevice::WriteOnly))
        return;
    written.write(QJsonDocument(QJsonObject{{QStringLiteral("screens"), screens()}}).toJson());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.toUtf8());
}

}  // namespace velmora::test
