#pragma once

namespace velmora {

class Calendar;

// Lets the Tab key visit the controls of the main window in the order in which they are read.
void setTabStops(const Calendar& window);

}  // namespace velmora
