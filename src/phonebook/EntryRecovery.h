#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/RecoverySlots.h"
#include "phonebook/EntryDraft.h"
#include "platform/Files.h"
#include "platform/RunningPrograms.h"

namespace velmora {

// Keeps what stands in an open entry form on the disk, so that a session that is cut short costs
// seconds of typing and not the entry. Each running copy of the program has a file of its own, one
// of nine in the folder; a file whose copy runs no more was left behind by such a session.
class EntryRecovery {
  public:
    // What a session left behind.
    struct Kept {
        EntryDraft draft;
        std::string path;  // of the file
    };

    // `folder` is one of this user on this machine, without a separator at its end. The other two
    // must outlive this object.
    EntryRecovery(const std::string& folder, Files& files, const RunningPrograms& programs)
        : slots_(folder + "\\entry.recovery", "The entry", files),
          files_(files),
          programs_(programs) {}

    // Replaces what this copy has kept so far. Throws Failure; what was kept before then stands.
    void keep(const EntryDraft& draft);

    // Removes what this copy has kept, if anything. Throws Failure.
    void discard() { slots_.discard(); }

    // From here on nothing is kept or removed any more: the program ends, and what is kept is for
    // the next start.
    void seal() { slots_.seal(); }

    // All that was left behind. Files that are damaged or can not be read are passed over. Never
    // fails.
    [[nodiscard]] std::vector<Kept> abandoned() const;

    // Removes what was left behind. Throws Failure.
    void forget(const Kept& kept) { slots_.forget(kept.path); }

  private:
    [[nodiscard]] std::optional<EntryDraft> readAbandoned(const std::string& path) const;

    RecoverySlots slots_;
    const Files& files_;
    const RunningPrograms& programs_;
};

}  // namespace velmora
