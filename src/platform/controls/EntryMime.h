#pragma once

namespace velmora {

// The drag-and-drop format of a phonebook line. Its data is the line in code-page text.
inline constexpr char kEntryMimeType[] = "application/x-velmora-entry";

}  // namespace velmora
