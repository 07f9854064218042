#pragma once

#include <optional>
#include <string>

namespace velmora {

struct ControlFont {
    std::string name;  // of the family
    double size = 0;   // in points
    int colour = 0;    // red + 256 green + 65536 blue; negative is the control's own colour

    bool operator==(const ControlFont&) const = default;
};

// A control whose font can be chosen.
class FontHolder {
  public:
    virtual ~FontHolder() = default;

    [[nodiscard]] virtual ControlFont font() const = 0;
    virtual void setFont(const ControlFont& font) = 0;
};

// The font dialog.
class FontQuestion {
  public:
    virtual ~FontQuestion() = default;

    // Shows the dialog with `now` chosen; sizes are held within the limits, in points. Nothing
    // when cancelled.
    [[nodiscard]] virtual std::optional<ControlFont> choose(const ControlFont& now, double smallest,
                                                            double largest) = 0;
};

}  // namespace velmora
