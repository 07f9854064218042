#pragma once

#include <QObject>
#include <array>
#include <string_view>

#include "app/World.h"
#include "core/ClockLine.h"
#include "core/CommandSet.h"
#include "core/DocPadSize.h"
#include "core/MenuHelp.h"
#include "core/PaneSwitch.h"
#include "core/SharedState.h"
#include "core/Tray.h"
#include "core/forms/Calendar.h"
#include "platform/qt/QtTrayIcon.h"

namespace velmora {

class ToolStrip;

// What the main window does by itself: panes, clock, tray, size of DocPad, and the way from its
// menus and toolbars to the commands.
class WindowRoom {
  public:
    // All must outlive the room.
    WindowRoom(World& world, SharedState& state, Calendar& calendar, const CommandSet& commands);

    void bindCommands(CommandSet& commands);

    // When all commands are bound: items and keys that do nothing are shown disabled.
    void showWhatIsBound();

    // A step of the start-up list: the status line follows the pointer over menus and toolbars.
    void watchMenus();

    [[nodiscard]] PaneSwitch& panes() { return panes_; }
    [[nodiscard]] ClockLine& clockLine() { return clockLine_; }
    [[nodiscard]] Tray& tray() { return tray_; }

  private:
    [[nodiscard]] std::array<ToolStrip*, 3> strips() const;
    void connectCommands();
    void connectParts();
    void run(std::string_view command);

    Calendar& calendar_;
    const CommandSet& commands_;
    MenuHelp menuHelp_;
    PaneSwitch panes_;
    DocPadSize docPadSize_;
    ClockLine clockLine_;
    QtTrayIcon trayIcon_;
    Tray tray_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
