#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "core/LongJobs.h"
#include "exchange/BookFiller.h"
#include "exchange/CopiesBeforeImport.h"
#include "exchange/ImportQuestions.h"
#include "exchange/ImportSource.h"
#include "phonebook/PhonebookStore.h"

namespace velmora {

// What an import has to say at its end.
struct ImportReport {
    FillCounts counts;
    std::uint64_t cut = 0;      // values that were too long
    std::uint64_t unknown = 0;  // characters that became "?"
    std::string copy;           // where the book lies as it was before; empty for nowhere
    std::string trouble;        // why it is not whole, in UTF-8; empty when it is
    bool notBegun = false;      // nothing was imported, since no copy could be made
    bool calledOff = false;
    bool bookWasReplaced = false;

    [[nodiscard]] bool isWhole() const {
        return trouble.empty() && !calledOff && counts.unwritten == 0;
    }
};

// The same in words, code-page text: how many entries were added and replaced, what was cut, became
// "?" or failed, and where the copy lies.
[[nodiscard]] std::string textOf(const ImportReport& report, const CodePage& codePage);

// Copies the rows of a source into a book.
class ImportRun {
  public:
    // All must outlive the run.
    struct Parts {
        const PhonebookStore& store;
        CopiesBeforeImport& copies;
    };

    explicit ImportRun(const Parts& parts) : parts_(parts) {}

    // How far the import has come.
    struct State {
        RecordNumber record;  // the last one that was written; 0 for none
        bool heldUp;          // another copy of the program keeps the book locked
        ImportSource::Progress progress;
    };

    // Runs it to its end as a part of `job`; `tell` hears how far it is, between the rows that are
    // written together. Rows that can not be written are counted and passed over. Throws
    // FatalFailure for a row that can not be held, behind those before it.
    [[nodiscard]] ImportReport run(LongJob& job, ImportSource& source, const ImportMapping& mapping,
                                   const std::string& bookFile,
                                   const std::function<void(const State&)>& tell);

  private:
    Parts parts_;
};

}  // namespace velmora
