#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/Panes.h"
#include "core/SharedState.h"
#include "core/WindowShape.h"

namespace velmora {

// The three texts of the main window whose font the user can choose.
enum class FontTarget { DocPad, DayView, EntryList };

// A font as the settings hold it; what is missing stays as it is.
struct FontChoice {
    std::optional<std::string> face;
    std::optional<double> size;  // points
    std::optional<int> colour;   // red + 256 * green + 65536 * blue; negative: the control's own
};

// What the logic of the main window sees of its form, `Calendar`. Texts are code-page text,
// lengths are twips: 15 to a logical pixel.
class MainForm {
  public:
    virtual ~MainForm() = default;

    virtual void setControlState(PaneControl control, ControlState state) = 0;
    virtual void raisePaneButton(Pane pane) = 0;  // colour 1 and raised; the others 0 and flat

    virtual void setTwentyFourHourTick(bool ticked) = 0;
    [[nodiscard]] virtual bool twentyFourHourTick() const = 0;
    virtual void setClockText(const std::string& text) = 0;  // Label8
    [[nodiscard]] virtual std::string clockText() const = 0;

    virtual void setDateLine(const std::string& text) = 0;    // Label1
    virtual void setLastNumber(const std::string& text) = 0;  // Label16
    virtual void setFont(FontTarget target, const FontChoice& font) = 0;
    virtual void setCaption(const std::string& text) = 0;        // of the window
    virtual void setDocPadCaption(const std::string& text) = 0;  // Label4
    [[nodiscard]] virtual std::string docPadCaption() const = 0;

    // How the window was when it was closed last; to be called before it shows.
    virtual void setShape(const WindowShape& shape) = 0;
    [[nodiscard]] virtual WindowShape shape() const = 0;

    // Shows the window in the middle of the screen, its top raised by `raise`, in the shape that
    // was set as far as the screen has room for it.
    virtual void showCentred(int raise) = 0;

    // Out of the task bar, to the front, without staying above other windows.
    virtual void bringToFront() = 0;

    [[nodiscard]] virtual SharedState::Box docPadBox() const = 0;  // place of Text4
    virtual void fillWithDocPad() = 0;  // Text4 fills the window's inside, with the focus in it
    virtual void putDocPadBack(const SharedState::Box& box) = 0;
    virtual void setMaximiseButtonShown(bool shown) = 0;  // PictureMax
    virtual void setRestoreButtonShown(bool shown) = 0;   // PictureMin
    virtual void setYearButtonEnabled(bool enabled) = 0;  // Command1
};

}  // namespace velmora
