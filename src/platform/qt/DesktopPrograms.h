#pragma once

#include "platform/CodePage.h"
#include "platform/ProgramStarter.h"

namespace velmora {

// Programs of this desktop, started beside Velmora by their argument vector. They write to nobody
// and read from nobody.
class QtProgramStarter final : public ProgramStarter {
  public:
    explicit QtProgramStarter(const CodePage& codePage) : codePage_(codePage) {}

    bool start(const std::string& program, const std::vector<std::string>& arguments) override;
    // The desktops leave it to a program how its window begins.
    bool startMinimised(const std::string& program,
                        const std::vector<std::string>& arguments) override {
        return start(program, arguments);
    }
    [[nodiscard]] bool finds(const std::string& program) const override;

  private:
    const CodePage& codePage_;
};

// The opener of the desktop, which knows its handlers.
class DesktopOpener final : public SystemOpener {
  public:
    explicit DesktopOpener(ProgramStarter& starter) : starter_(starter) {}

    void open(const std::string& target) override;

  private:
    ProgramStarter& starter_;
};

// There is no way to give keys to one certain program here, and whatever window is in front must
// not get them: they go nowhere.
class NoKeystrokes final : public KeystrokeSender {
  public:
    void send(const std::string&, bool) override {}
};

}  // namespace velmora
