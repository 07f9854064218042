#include "core/forms/CalendarTextFonts.h"

#include <QColor>
#include <QPalette>

#include "platform/controls/EntryList.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/SSDay.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

// Red, green and blue from the low byte up; nothing for the theme's own colour.
QColor storedColour(int number) {
    if (number < 0)
        return {};
    return QColor(number & 0xFF, number >> 8 & 0xFF, number >> 16 & 0xFF);
}

}  // namespace

QWidget& CalendarTextFonts::textOf(FontTarget target) const {
    switch (target) {
        case FontTarget::DocPad:
            return texts_.docPad;
        case FontTarget::DayView:
            return texts_.day;
        case FontTarget::EntryList:
            break;
    }
    return texts_.list;
}

QFont CalendarTextFonts::fontOf(FontTarget target) const {
    return textOf(target).font();
}

int CalendarTextFonts::colourOf(FontTarget target) const {
    const auto set = colours_.find(target);
    return set == colours_.end() ? -1 : set->second;
}

void CalendarTextFonts::setFont(FontTarget target, const FontChoice& choice) {
    QWidget& widget = textOf(target);
    QFont font = widget.font();
    if (choice.face)
        font.setFamilies({toQt(*choice.face, codePage_)});
    if (choice.size && *choice.size > 0)
        font.setPointSizeF(*choice.size);
    widget.setFont(font);
    if (choice.colour) {
        colours_[target] = *choice.colour;
        setColour(target, storedColour(*choice.colour));
    }
}

void CalendarTextFonts::setColour(FontTarget target, const QColor& colour) {
    switch (target) {
        case FontTarget::DocPad:
            texts_.docPad.setInk(colour.isValid() ? std::optional(colour) : std::nullopt);
            break;
        case FontTarget::DayView:
            texts_.day.setTextColor(colour);
            break;
        case FontTarget::EntryList: {
            QPalette palette = texts_.list.palette();
            palette.setColor(QPalette::Active, QPalette::Text,
                             colour.isValid() ? colour : Theme::of(*texts_.list.window()).ink);
            texts_.list.setPalette(palette);
            break;
        }
    }
}

}  // namespace velmora
