#pragma once

#include <QGuiApplication>
#include <QScreen>
#include <QString>

namespace velmora::test {

// Gives the offscreen platform a usual screen and, beside it, the small ones below. To be called
// before the application is made; `file` is where the platform reads them from. On a real display
// nothing happens.
void chooseScreens(const QString& file);

// The names of the small screens, by their size in device pixels and the scale.
inline constexpr const char* kSmallScreens[] = {"1024x600", "1366x768", "1920x1080 at 1.5",
                                                "1920x1080 at 2"};

// The screen of that name; nullptr on a real display.
inline QScreen* screenNamed(const char* name) {
    for (QScreen* screen : QGuiApplication::screens())
        if (screen->name() == QLatin1String(name))
            return screen;
    return nullptr;
}

}  // namespace velmora::test
