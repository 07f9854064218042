#pragma once

#include "platform/Messages.h"
#include "platform/StatusLine.h"
#include "platform/SystemTools.h"

namespace velmora {

// The commands for what the desktop has beside Velmora.
class DesktopCommands {
  public:
    // All must outlive this object.
    DesktopCommands(SystemTools& tools, Messages& messages, StatusLine& status)
        : tools_(tools), messages_(messages), status_(status) {}

    // The file manager.
    void RunExplorer();

    // The settings of the system.
    void RunControlPanel();

    // Logs the user off, after a question.
    void ExitWindowsSession();

  private:
    SystemTools& tools_;
    Messages& messages_;
    StatusLine& status_;
    bool asked_ = false;  // of the session manager, which has not answered yet
};

}  // namespace velmora
