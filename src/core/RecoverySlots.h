#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"

namespace velmora {

// The files in which running copies of the program keep what a cut short session would lose: each
// copy has one of nine of its own, from when it first keeps something.
class RecoverySlots {
  public:
    // The files are `stem` and a number from 1 to 9; `stem` is a path of this user on this machine.
    // `subject` begins the sentence that says that there is no place left: "The entry". `files`
    // must outlive the slots.
    RecoverySlots(std::string stem, std::string subject, Files& files);

    // The nine paths, whether there is a file or not.
    [[nodiscard]] std::vector<std::string> all() const;

    // The path of this copy; a free one becomes it. Throws Failure when all are taken.
    [[nodiscard]] std::string claim();

    // Replaces what this copy has kept so far; nothing once sealed. Throws Failure; what was kept
    // before then stands.
    void keep(std::string_view bytes);

    // Makes the file at `path` that of this copy with these bytes, and removes the one it had.
    // Throws Failure; the file is then as it was.
    void takeOver(const std::string& path, std::string_view bytes);

    // Removes what this copy has kept, if anything; nothing once sealed. Throws Failure.
    void discard();

    // Removes what another copy has left; nothing once sealed. Throws Failure.
    void forget(const std::string& path);

    // From here on nothing is kept or removed any more: what is kept is for the next start.
    void seal() { sealed_ = true; }
    [[nodiscard]] bool sealed() const { return sealed_; }

  private:
    [[nodiscard]] std::string ownOrFree() const;

    std::string stem_;
    std::string subject_;
    Files& files_;
    std::string own_;  // nothing while nothing is kept
    bool sealed_ = false;
};

}  // namespace velmora
