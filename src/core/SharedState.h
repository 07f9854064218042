#pragma once

#include <cstdint>
#include <string>

#include "core/DataLocations.h"

namespace velmora {

inline constexpr std::int16_t kYellowPages = 1;
inline constexpr std::int16_t kWhitePages = 2;

// The state of the main form that the whole program reads. A plain record: whoever changes it
// also shows the change.
struct SharedState {
    std::int16_t BookKind = kYellowPages;     // kYellowPages or kWhitePages
    std::string BookFile = kYellowPagesFile;  // its name with the leading backslash
    std::string BucketName = "AName";         // "AName" to "ZName" or "#"
    std::string BucketCountKey = "ANu";       // "ANu" to "ZNu" or "SyNu"
    std::int16_t EntryChangeMode = 0;         // 0 the form adds, 1 it changes the selected entry
    std::int16_t PendingBook = 0;    // book to open when Check1 flips: 1 Yellow, 2 White, else none
    std::int16_t PendingLetter = 0;  // letter to show when Check1 flips; 0 none
    std::int16_t DocPadDirty = 0;    // 1 while DocPad holds unsaved changes

    // Left, top, width and height of DocPad's text box, in twips, while it is maximised.
    struct Box {
        std::int16_t left = 0;
        std::int16_t top = 0;
        std::int16_t width = 0;
        std::int16_t height = 0;
    } SavedDocPadBox;
};

}  // namespace velmora
