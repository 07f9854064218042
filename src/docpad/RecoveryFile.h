#pragma once

#include <future>
#include <optional>
#include <string>
#include <vector>

#include "core/RecoverySlots.h"
#include "platform/Clock.h"
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
        std::string mark;          // of the run that left it
        long long moment = 0;      // when it was kept, in seconds
    };

    // `folder` is one of this user on this machine, without a separator at its end.
    RecoveryFile(const std::string& folder, Files& files, const RunningPrograms& programs,
                 const Clock& clock)
        : slots_(folder + "\\docpad.recovery", "DocPad's text", files),
          files_(files),
          programs_(programs),
          clock_(clock) {}
    ~RecoveryFile() = default;
    RecoveryFile(const RecoveryFile&) = delete;
    RecoveryFile& operator=(const RecoveryFile&) = delete;

    // Replaces what this copy has kept so far. Throws Failure; what was kept before then stands.
    void keep(const std::string& text, const std::string& documentName);

    // The same on a thread of its own, as a disk may take its time; not while busy(). Whether it
    // worked, settle() tells.
    void keepInBackground(const std::string& text, const std::string& documentName);
    [[nodiscard]] bool busy() const;

    // Waits for what keepInBackground() began. Throws its Failure, once.
    void settle();

    // Removes what this copy has kept, if anything. Throws Failure.
    void discard();

    // The texts that were left behind, the newest first. One that is empty or equals `present` is
    // removed and passed over: it is not lost. Files that are damaged or can not be read are
    // passed over. Never fails.
    [[nodiscard]] std::vector<Kept> abandoned(const std::string& present);

    // Makes a text that was left behind that of this copy, in its place of the nine. Throws
    // Failure; the text is then still where it was.
    void take(const Kept& kept);

    // From here on nothing is kept or removed any more: the program ends, and what is kept is for
    // the next start.
    void seal() { slots_.seal(); }

    // Removes a text that was left behind. Throws Failure.
    void forget(const Kept& kept);

  private:
    [[nodiscard]] std::string contents(const std::string& text,
                                       const std::string& documentName) const;
    // Throw Failure when the file is there and can not be read.
    [[nodiscard]] std::optional<Kept> readAbandoned(const std::string& path) const;
    [[nodiscard]] bool stillAbandoned(const Kept& kept) const;

    RecoverySlots slots_;
    Files& files_;
    const RunningPrograms& programs_;
    const Clock& clock_;
    std::future<void> writing_;
};

}  // namespace velmora
