#pragma once

#include <QHelpEvent>
#include <QRect>
#include <QString>

class QWidget;

namespace velmora {

// Shows the whole of a text that is cut short on the screen, letter by letter whatever it holds,
// until the pointer leaves `area` of the widget. An empty text hides what is shown.
void showPlainToolTip(const QHelpEvent& event, const QString& text, QWidget& widget,
                      const QRect& area);

// What the tool tip of a text holds: marked up so that nothing in the text counts as markup.
[[nodiscard]] QString plainToolTip(const QString& text);

}  // namespace velmora
