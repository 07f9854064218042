#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/DataLocations.h"
#include "core/LongJobs.h"
#include "core/ReportState.h"
#include "exchange/BookFiller.h"
#include "exchange/CopiesBeforeImport.h"
#include "phonebook/PhonebookStore.h"
#include "platform/Files.h"
#include "platform/Messages.h"
#include "platform/ProfileFile.h"

namespace velmora {

// The entry of a name in a file of an earlier release. Fields that such a file does not have are
// empty; web page, attachment and spouse are never written. `cut` counts the values that were too
// long for their fields.
[[nodiscard]] PhonebookRecord earlierEntry(const ProfileFile& file, std::string_view name,
                                           std::uint64_t& cut);

// Brings the phonebooks of earlier releases, one text file for each letter, into the books in whose
// folders they lie.
class EarlierPhonebooks {
  public:
    // All must outlive this object.
    struct Parts {
        LongJobs& jobs;
        Messages& messages;
        const PhonebookStore& store;
        const DataLocations& locations;
        const Files& files;
        CopiesBeforeImport& copies;
        ReportState& state;
        std::function<void()> bookChanged;  // the books may have other entries now
    };

    explicit EarlierPhonebooks(Parts parts) : parts_(std::move(parts)) {}

    // Asks and imports both books; events run meanwhile. The status line tells at the end what was
    // done.
    void import();

  private:
    struct Outcome {
        FillCounts counts;
        std::uint64_t cut = 0;
        std::string copies;
        std::string trouble;
    };

    void importBook(std::int16_t bookKind, LongJob& job, Outcome& outcome);
    void importGroup(std::string_view group, const std::string& folder, std::string_view ending,
                     BookFiller& filler, LongJob& job, Outcome& outcome);
    [[nodiscard]] std::string read(const std::string& path, Outcome& outcome) const;
    [[nodiscard]] std::string textOf(const Outcome& outcome, bool calledOff) const;

    Parts parts_;
};

}  // namespace velmora
