#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/ClockFace.h"
#include "core/MainForm.h"

namespace velmora::test {

// Keeps what it is told, and the order of what happened in `log`.
class FakeMainForm final : public MainForm,
                           public TextFonts,
                           public MainFormPlace,
                           public ClockFace {
  public:
    [[nodiscard]] TextFonts& textFonts() override { return *this; }
    [[nodiscard]] MainFormPlace& place() override { return *this; }
    void setControlState(PaneControl control, ControlState state) override {
        states[control] = state;
        log.emplace_back("state");
    }
    void raisePaneButton(Pane pane) override {
        raised = pane;
        log.emplace_back("raise");
    }
    void setTwentyFourHourTick(bool ticked) override {
        tick = ticked;
        log.emplace_back("tick");
    }
    [[nodiscard]] bool twentyFourHourTick() const override { return tick; }
    void setClockText(const std::string& text) override {
        clock = text;
        ++clockWrites;
    }
    [[nodiscard]] std::string clockText() const override { return clock; }
    void setDateLine(const std::string& text) override {
        dateLine = text;
        log.emplace_back("date");
    }
    void setLastNumber(const std::string& text) override {
        lastNumber = text;
        log.emplace_back("number");
    }
    void setFont(FontTarget target, const FontChoice& font) override {
        fonts[target] = font;
        log.emplace_back("font");
    }
    void setCaption(const std::string& text) override { caption = text; }
    void setDocPadCaption(const std::string& text) override { docPad = text; }
    [[nodiscard]] std::string docPadCaption() const override { return docPad; }
    void setShape(const WindowShape& set) override { windowShape = set; }
    [[nodiscard]] WindowShape shape() const override { return windowShape; }
    void showCentred(int raise) override {
        raiseOfWindow = raise;
        log.emplace_back("show");
    }
    void bringToFront() override { ++broughtToFront; }
    [[nodiscard]] SharedState::Box docPadBox() const override { return box; }
    void fillWithDocPad() override {
        box = {0, 400, 15000, 9000};
        log.emplace_back("fill");
    }
    void putDocPadBack(const SharedState::Box& back) override {
        box = back;
        log.emplace_back("back");
    }
    void setMaximiseButtonShown(bool shown) override { maximiseButton = shown; }
    void setRestoreButtonShown(bool shown) override { restoreButton = shown; }
    void setYearButtonEnabled(bool enabled) override { yearButton = enabled; }

    std::map<PaneControl, ControlState> states;
    Pane raised = Pane::Planner;
    bool tick = false;
    std::string clock;
    int clockWrites = 0;
    std::string dateLine;
    std::string lastNumber;
    std::map<FontTarget, FontChoice> fonts;
    std::string caption = "Velmora";
    std::string docPad = "DocPad";
    WindowShape windowShape;
    int raiseOfWindow = 0;
    int broughtToFront = 0;
    SharedState::Box box{12000, 900, 6000, 9000};
    bool maximiseButton = true;
    bool restoreButton = false;
    bool yearButton = true;
    std::vector<std::string> log;
};

}  // namespace velmora::test
