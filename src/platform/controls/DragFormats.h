#pragma once

namespace velmora {

// What drags between Velmora's own controls carry. Read the data of these formats on a drop, never
// the source of the event.

// A line of the entry list: its bytes, code-page text.
inline constexpr const char* kEntryFormat = "application/x-velmora-entry";

// A line of the to-do list: its bytes, code-page text.
inline constexpr const char* kTaskFormat = "application/x-velmora-task";

// DocPad's document as a whole, dragged by its icon: no data.
inline constexpr const char* kDocumentFormat = "application/x-velmora-document";

}  // namespace velmora
