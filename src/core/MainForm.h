#pragma once

#include <string>

#include "core/MainFormPlace.h"
#include "core/Panes.h"
#include "core/SharedState.h"
#include "core/TextFonts.h"

namespace velmora {

// What the logic of the main window sees of its form, `Calendar`. Texts are code-page text,
// lengths are twips: 15 to a logical pixel.
class MainForm {
  public:
    virtual ~MainForm() = default;

    // What belongs to it for as long as it lives.
    [[nodiscard]] virtual TextFonts& textFonts() = 0;
    [[nodiscard]] virtual MainFormPlace& place() = 0;

    virtual void setControlState(PaneControl control, ControlState state) = 0;
    virtual void raisePaneButton(Pane pane) = 0;  // colour 1 and raised; the others 0 and flat

    virtual void setDateLine(const std::string& text) = 0;       // Label1
    virtual void setLastNumber(const std::string& text) = 0;     // Label16
    virtual void setCaption(const std::string& text) = 0;        // of the window
    virtual void setDocPadCaption(const std::string& text) = 0;  // Label4
    [[nodiscard]] virtual std::string docPadCaption() const = 0;

    [[nodiscard]] virtual SharedState::Box docPadBox() const = 0;  // place of Text4
    virtual void fillWithDocPad() = 0;  // Text4 fills the window's inside, with the focus in it
    virtual void putDocPadBack(const SharedState::Box& box) = 0;
    virtual void setMaximiseButtonShown(bool shown) = 0;  // PictureMax
    virtual void setRestoreButtonShown(bool shown) = 0;   // PictureMin
    virtual void setYearButtonEnabled(bool enabled) = 0;  // Command1
};

}  // namespace velmora
