#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

#include "platform/qt/Theme.h"

namespace velmora {

// The colours of an icon in its states.
struct IconColours {
    QColor normal;
    QColor disabled;
    QColor active;  // of the states active, selected and on
};

// An icon of :/icons.svg by the id of its symbol, such as "Save". It is drawn when it is first
// shown, at the size and device pixel ratio asked for, and kept in the application's pixmap cache.
// An unknown id gives a null icon.
[[nodiscard]] QIcon symbolIcon(const QString& id, const IconColours& colours);

// The same in the usual colours of the theme: ink, and dis when disabled.
[[nodiscard]] QIcon symbolIcon(const QString& id, const Theme& theme);

// For painters: the symbol at `size` device-independent pixels. Null for an unknown id.
[[nodiscard]] QPixmap symbolPixmap(const QString& id, const QSize& size, qreal devicePixelRatio,
                                   const QColor& colour);

// The application's own icon, in its own colours.
[[nodiscard]] QIcon applicationIcon();

}  // namespace velmora
