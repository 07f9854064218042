#pragma once

class QKeyEvent;

namespace velmora {

class PadEdit;

// Does in `edit` what a key other than a character means there. False for a key that means nothing.
bool obeyKey(PadEdit& edit, const QKeyEvent& key);

// Whether the key is one for a text box, so that no command of the window may take it.
[[nodiscard]] bool isKeyOfTexts(const QKeyEvent& key);

// Whether the key types its text.
[[nodiscard]] bool typesText(const QKeyEvent& key);

}  // namespace velmora
