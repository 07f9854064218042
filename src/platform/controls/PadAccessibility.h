#pragma once

#include "platform/controls/models/PadBuffer.h"

namespace velmora {

class PadEdit;

// Makes assistive tools see a PadEdit as a text that is edited. Each line end is one character to
// them.
void registerPadAccessibility();

// Tell assistive tools, where there are any.
void tellTextChanged(PadEdit& edit, const PadBuffer::Change& change);
void tellCaretMoved(PadEdit& edit);

}  // namespace velmora
