#pragma once

#include <string>

#include "platform/CodePage.h"

namespace velmora {

// A box with an exclamation mark and OK above all windows of the desktop, which belongs to none of
// them and so shows while the main window is minimised. It holds up all windows of the program;
// timers go on. Returns when it is answered or the program ends. Texts are code-page text, shown as
// they are.
void warnAboveAllWindows(const std::string& title, const std::string& text,
                         const CodePage& codePage);

}  // namespace velmora
