#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/DataLocations.h"
#include "core/JobPanel.h"
#include "core/LongJobs.h"
#include "phonebook/BookRecords.h"
#include "platform/CodePage.h"
#include "platform/Messages.h"
#include "platform/Replacement.h"
#include "platform/SystemPaths.h"
#include "platform/Volumes.h"

namespace velmora {

// Copies both phonebooks to the root folder of a volume, as "datay.qel" and "dataw.qel". An earlier
// backup there is replaced book by book, each only when its copy is whole and was read back.
class Backup {
  public:
    // All must outlive the object.
    struct Parts {
        LongJobs& jobs;
        JobPanel& panel;
        Books& books;
        const DataLocations& locations;
        const SystemPaths& paths;
        Replacements& replacements;
        const Volumes& volumes;
        Messages& messages;
        const CodePage& codePage;
    };

    explicit Backup(const Parts& parts) : parts_(parts) {}

    // False, and the status line says why, while another job runs.
    [[nodiscard]] bool begin() { return !parts_.jobs.refuses(); }

    // Where the backup can go, by name.
    [[nodiscard]] std::vector<std::string> volumes() const;

    // Makes the backup on one of these, as a job, and tells that it is complete. Throws Failure
    // when the volume is gone, a book is missing or can not be copied; the status line then says
    // that the backup is not complete, and the earlier copy of that book is still there.
    void run(const std::string& volume);

  private:
    [[nodiscard]] std::string nameOf(const NativePath& root) const;
    [[nodiscard]] NativePath volumeOf(const std::string& name) const;
    [[nodiscard]] bool copyBooks(LongJob& job, const NativePath& volume);
    [[nodiscard]] bool copyBook(LongJob& job, const char* bookFile, const NativePath& target);

    Parts parts_;
};

}  // namespace velmora
