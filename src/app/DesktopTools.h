#pragma once

#include <QTimer>
#include <memory>

#include "platform/CodePage.h"
#include "platform/ProgramStarter.h"
#include "platform/SystemTools.h"
#include "platform/bus/SessionLogOff.h"
#include "platform/qt/PollPump.h"

namespace velmora {

// The file manager, the settings and the session manager of this desktop.
class DesktopTools final : public SystemTools {
  public:
    // Both must outlive this object.
    DesktopTools(ProgramStarter& starter, const CodePage& codePage);

    void openFileManager() override;
    bool openSettings() override;
    void logOff(std::function<void(bool taken)> answered) override;

  private:
    // A request that has not been answered yet.
    struct Request {
        explicit Request(std::function<void(bool taken)> answered)
            : logOff(std::move(answered)), pump(logOff) {}

        SessionLogOff logOff;
        PollPump pump;
    };

    void finish(bool taken);
    void answer();

    ProgramStarter& starter_;
    const CodePage& codePage_;
    std::function<void(bool taken)> answered_;
    std::unique_ptr<Request> request_;
    bool taken_ = false;
    QTimer patience_;  // for a bus that takes connections and says nothing
    QTimer finished_;  // answers in a turn of the loop of its own
};

}  // namespace velmora
