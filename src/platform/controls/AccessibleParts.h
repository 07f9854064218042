#pragma once

#include <QAccessible>
#include <QPoint>
#include <QRect>
#include <QString>

namespace velmora {

// One part of a painted control, such as a day, as assistive tools see it.
struct AccessiblePart {
    QString name;
    QRect rect;  // in the widget's coordinates; empty while the part is not on show
    QAccessible::Role role = QAccessible::ListItem;
    bool selected = false;
    bool focused = false;
};

// Implemented by a widget that paints its parts itself; registerCalendarAccessibility() then shows
// them to assistive tools as its children.
class AccessibleParts {
  public:
    virtual ~AccessibleParts() = default;

    [[nodiscard]] virtual int partCount() const = 0;

    // `index` is below partCount().
    [[nodiscard]] virtual AccessiblePart part(int index) const = 0;

    // What is told of a part beyond its name. Worked out only when somebody asks.
    [[nodiscard]] virtual QString describePart(int /*index*/) const { return {}; }

    // Does what a click on the part does.
    virtual void pressPart(int index) = 0;
};

}  // namespace velmora
