#pragma once

class QWidget;

namespace velmora {

// Makes the parts of painted controls (see AccessibleParts) known to assistive tools, and what an
// entry's card is. Call it once,
// before the first window shows; further calls do nothing.
void registerCalendarAccessibility();

// Tells assistive tools that `part` of the widget now has the focus. Costs nothing while no such
// tool runs.
void announceFocusedPart(QWidget& widget, int part);

}  // namespace velmora
