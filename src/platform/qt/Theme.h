#pragma once

#include <QColor>

class QApplication;
class QPalette;
class QString;
class QWidget;

namespace velmora {

// The one table of the look's colours. Palette, style sheet and every custom painter read it. Other
// files hold only colours that do not follow the look: those of the style sets of days with their
// black and white rings, and of the search light.
struct Theme {
    QColor canvas;      // desk, ground of dialogs
    QColor chrome;      // menu bar, toolbar, rail, status bar, footer of dialogs
    QColor surface;     // paper: lists, day, month, inputs, DocPad
    QColor alt;         // time gutter, list header, notes
    QColor line;        // hairlines inside paper and chrome
    QColor edge;        // outline of cards and buttons
    QColor line2;       // outline of inputs, lists, check boxes
    QColor ink;         // text
    QColor ink2;        // labels, hints, gutter
    QColor dis;         // disabled text; days of other months
    QColor accent;      // selection ring, focus, active pane, now line
    QColor accentfill;  // primary button, selected row
    QColor onaccent;
    QColor tint;   // appointment block
    QColor tint2;  // selected block
    QColor hover;
    QColor press;
    QColor amber;  // Yellow Pages: key, tab, edge of the card
    QColor onamber;
    QColor wtab;   // White Pages: tab
    QColor wbook;  // White Pages: edge of the card
    QColor paper;  // White Pages: key
    QColor ambertint;
    QColor amberink;
    QColor danger;
    QColor dangertint;
    QColor go;
    QColor onGo;
    QColor event;  // days with appointments
    QColor tip;
    QColor ontip;

    static const Theme& light();
    static const Theme& dark();

    // The table that `palette` was made from: dark when its window is darker than its text.
    static const Theme& of(const QPalette& palette);
    static const Theme& of(const QWidget& widget);

    [[nodiscard]] QPalette toPalette() const;

    // Replaces each token in curly brackets, such as {canvas}, by its value.
    [[nodiscard]] QString fill(QString styleSheet) const;
};

// Gives the application its style, font and palette; the theme is chosen by the platform's own
// palette, or by VELMORA_THEME=light or dark in the environment.
void applyLook();

// Gives the application its style sheet, in the colours of its palette. A window that is built
// before is styled once; one that is built after is styled anew each time a part of it moves into
// another.
void applyStyleSheet(QApplication& application);

// Both at once.
void applyTheme(QApplication& application);

}  // namespace velmora
