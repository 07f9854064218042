#pragma once

#include <optional>
#include <string>

#include "platform/Files.h"
#include "platform/RunningPrograms.h"

namespace velmora {

// Keeps DocPad's text on the disk while it is unsaved, so that a session that is cut short costs
// seconds of typing and not the text. Each running copy of the program has a file of its own, one
// of nine in the folder; a file whose copy runs no more was left behind by such a session.
class RecoveryFile {
  public:
    // What a session left behind.
    struct Kept {
        std::string text;
        std::string documentName;  // full path of the document, or nothing
        std::string path;          // of the recovery file
    };

    // `folder` is one of this user on this machine, without a separator at its end.
    RecoveryFile(std::string folder, Files& files, const RunningPrograms& programs)
        : folder_(std::move(folder)), files_(files), programs_(programs) {}

    // Replaces what this copy has kept so far. Throws Failure; what was kept before then stands.
    void keep(const std::string& text, const std::string& documentName);

    // Removes what this copy has kept, if anything. Throws Failure.
    void discard();

    // The first text that was left behind. One that equals `present` is removed and passed over:
    // it is not lost. Files that are damaged or can not be read are passed over. Never fails.
    [[nodiscard]] std::optional<Kept> abandoned(const std::string& present);

    // Removes a text that was left behind. Throws Failure.
    void forget(const Kept& kept);

  private:
    [[nodiscard]] std::string slot(int number) const;
    [[nodiscard]] std::string freeSlot() const;
    [[nodiscard]] std::optional<Kept> readAbandoned(const std::string& path) const;

    std::string folder_;
    Files& files_;
    const RunningPrograms& programs_;
    std::string ownPath_;  // nothing while nothing is kept
};

}  // namespace velmora
