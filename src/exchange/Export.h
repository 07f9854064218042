#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/JobPanel.h"
#include "core/LongJobs.h"
#include "core/ReportState.h"
#include "core/SettingsStore.h"
#include "core/SharedState.h"
#include "exchange/ExportFile.h"
#include "phonebook/NamedEntries.h"
#include "phonebook/PhonebookStore.h"
#include "platform/Files.h"
#include "platform/Messages.h"
#include "platform/Replacement.h"
#include "platform/SystemPaths.h"

namespace velmora {

// Writes one phonebook or both into a delimited text: a header, then a line for each entry in the
// order of the names. Nothing is quoted. Two entries of one name stand there twice each; an entry
// whose last name or company holds a comma is not found under its name, and is left out.
//
// A file that is there already stays as it is until the new one is whole, or called off.
class Export {
  public:
    // All must outlive the export.
    struct Parts {
        LongJobs& jobs;
        JobPanel& panel;
        ReportState& state;
        const SharedState& shared;
        const PhonebookStore& store;
        const SettingsStore& settings;
        const Files& files;
        const SystemPaths& paths;
        Replacements& replacements;
        Messages& messages;
        // Ends the program with this message, as a book does that has more names than the bound.
        std::function<void(const std::string& utf8Text)> endProgram;
    };

    explicit Export(Parts parts) : parts_(std::move(parts)) {}

    // Asks for the file, the books and the separator, and writes. What is missing in the file is
    // told on the status line at the end. Throws Failure when a book can not be read; the earlier
    // file is then as it was.
    void run();

  private:
    // What the user answered.
    struct Wish {
        std::string path;
        bool both;
        std::string separator;
    };
    struct Counts {
        std::uint64_t lines = 0;
        std::uint64_t notFound = 0;  // names
        std::uint64_t torn = 0;      // lines with a separator or a line end in a field
    };

    [[nodiscard]] std::optional<Wish> ask();
    [[nodiscard]] std::optional<std::string> askForFile();
    [[nodiscard]] std::string askForSeparator();

    void write(LongJob& job, const Wish& wish);
    void writeBook(LongJob& job, ExportFile& file, const std::string& separator);
    [[nodiscard]] bool writeName(LongJob& job, NamedEntries& entries, ExportFile& file,
                                 const std::string& separator);
    [[nodiscard]] bool turn(LongJob& job, NamedEntries& entries, ExportFile& file);
    void writeLine(ExportFile& file, const EntryTexts& record, const std::string& separator);
    [[nodiscard]] std::string header(const std::string& separator) const;
    [[nodiscard]] std::vector<std::string> whatIsMissing(const ExportFile& file) const;

    Parts parts_;
    Counts counts_;
    std::string lastPath_;
    std::string line_;   // in hand
    int sinceTurn_ = 0;  // lines, since events ran
    bool tooManyNames_ = false;
};

}  // namespace velmora
