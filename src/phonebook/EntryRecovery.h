#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

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
    EntryRecovery(std::string folder, Files& files, const RunningPrograms& programs)
        : folder_(std::move(folder)), files_(files), programs_(programs) {}

    // Replaces what this copy has kept so far. Throws Failure; what was kept before then stands.
    void keep(const EntryDraft& draft);

    // Removes what this copy has kept, if anything. Throws Failure.
    void discard();

    // From here on nothing is kept or removed any more: the program ends, and what is kept is for
    // the next start.
    void seal() { sealed_ = true; }

    // All that was left behind. Files that are damaged or can not be read are passed over. Never
    // fails.
    [[nodiscard]] std::vector<Kept> abandoned() const;

    // Removes what was left behind. Throws Failure.
    void forget(const Kept& kept);

  private:
    [[nodiscard]] std::string slot(int number) const;
    [[nodiscard]] std::string freeSlot() const;
    [[nodiscard]] std::optional<EntryDraft> readAbandoned(const std::string& path) const;

    std::string folder_;
    Files& files_;
    const RunningPrograms& programs_;
    std::string ownPath_;  // nothing while nothing is kept
    bool sealed_ = false;
};

}  // namespace velmora
