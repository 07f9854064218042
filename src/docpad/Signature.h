#pragma once

#include <optional>
#include <string>

#include "platform/Files.h"
#include "platform/Messages.h"

namespace velmora {

// The conclusion that stands below each merged letter, in the file "sig.txt" of the program's
// folder. The file holds the text and CR LF, so each round of showing and accepting it adds a line
// end; that is the format.
class Signature {
  public:
    // `programFolder` has no separator at its end.
    Signature(const std::string& programFolder, Files& files, Messages& messages)
        : path_(programFolder + "\\sig.txt"), files_(files), messages_(messages) {}

    // What the form shows at first. A missing file is created empty. One that is too large, or can
    // not be read, is told and shows nothing.
    [[nodiscard]] std::string load();

    // Writes what was accepted. A file that was not shown is kept under its name with "~" behind.
    // A failure is told in the standard error box; the run goes on with the text all the same.
    void keep(const std::string& text);

  private:
    std::string path_;
    Files& files_;
    Messages& messages_;
    bool wasNotRead_ = false;  // too large, or it failed
};

// Shows a text to the user, who may change it.
class SignatureQuestion {
  public:
    virtual ~SignatureQuestion() = default;

    // The text that was accepted; nothing when the user cancelled or the program is closing. Events
    // run meanwhile.
    [[nodiscard]] virtual std::optional<std::string> ask(const std::string& text) = 0;
};

}  // namespace velmora
