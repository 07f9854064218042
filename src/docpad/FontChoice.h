#pragma once

#include <optional>
#include <string>

namespace velmora {

struct FontChoice {
    std::string name;  // of the family
    double size = 0;   // in points
    int colour = 0;    // red + 256 green + 65536 blue; negative is the control's own colour

    bool operator==(const FontChoice&) const = default;
};

// A control whose font can be chosen.
class FontTarget {
  public:
    virtual ~FontTarget() = default;

    [[nodiscard]] virtual FontChoice font() const = 0;
    virtual void setFont(const FontChoice& font) = 0;
};

// The font dialog.
class FontQuestion {
  public:
    virtual ~FontQuestion() = default;

    // Shows the dialog with `now` chosen; sizes are held within the limits, in points. Nothing
    // when cancelled.
    [[nodiscard]] virtual std::optional<FontChoice> choose(const FontChoice& now, double smallest,
                                                           double largest) = 0;
};

}  // namespace velmora
