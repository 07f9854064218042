#pragma once

#include <optional>
#include <string>

namespace velmora {

// The three texts of the main window whose font the user can choose.
enum class FontTarget { DocPad, DayView, EntryList };

// A font as the settings hold it; what is missing stays as it is.
struct FontChoice {
    std::optional<std::string> face;
    std::optional<double> size;  // points; what is not above 0 counts as missing
    std::optional<int> colour;   // red + 256 * green + 65536 * blue; negative: the control's own
};

// The fonts of these texts as logic sees them.
class TextFonts {
  public:
    virtual ~TextFonts() = default;

    virtual void setFont(FontTarget target, const FontChoice& font) = 0;
};

}  // namespace velmora
