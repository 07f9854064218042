#include "platform/controls/PlainToolTip.h"

#include <QToolTip>

namespace velmora {

// Marked up also where it need not be: only such tool tips break their lines.
QString plainToolTip(const QString& text) {
    return QStringLiteral("<p style=\"white-space:pre-wrap\">") + text.toHtmlEscaped() +
           QStringLiteral("</p>");
}

void showPlainToolTip(const QHelpEvent& event, const QString& text, QWidget& widget,
                      const QRect& area) {
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(event.globalPos(), plainToolTip(text), &widget, area);
}

}  // namespace velmora
