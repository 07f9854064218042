#pragma once

#include <string>

#include "core/SettingsStore.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/ProgramStarter.h"

namespace velmora {

// Starts the dialing program that the user chose. All must outlive this object.
class ExternalDialer {
  public:
    // `systemFolder` is where a program lies when none was chosen, without a separator at its end.
    ExternalDialer(const SettingsStore& settings, const Files& files, ProgramStarter& starter,
                   KeystrokeSender& keys, const CodePage& codePage, std::string systemFolder)
        : settings_(settings),
          files_(files),
          starter_(starter),
          keys_(keys),
          codePage_(codePage),
          systemFolder_(std::move(systemFolder)) {}

    // The setting is one path, blanks included, and never a command line. A program called
    // "dialer.exe" gets `number` by keys; any other one starts without it. Failures show nothing.
    void start(const std::string& number);

  private:
    const SettingsStore& settings_;
    const Files& files_;
    ProgramStarter& starter_;
    KeystrokeSender& keys_;
    const CodePage& codePage_;
    std::string systemFolder_;
};

}  // namespace velmora
