#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/DataLocations.h"
#include "exchange/CopyDays.h"
#include "phonebook/BookRecords.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/NativePath.h"
#include "platform/Replacement.h"
#include "platform/SystemPaths.h"
#include "platform/files/FileComparison.h"

namespace velmora {

// Something that is copied in pieces.
class CopyInPieces {
  public:
    virtual ~CopyInPieces() = default;

    // True while there is more to do. Throws Failure.
    [[nodiscard]] virtual bool step() = 0;
};

// Copies both phonebooks, the planner and the settings once a day into a folder of the user's, in
// pieces, between which events may run. A file that is as it was at its last copy is not copied
// again; of each file the copies of daysToKeep() stay.
//
// In each folder that holds any of them a small file, ".velmora-copies", tells on which day they
// were copied last, by which machine and where to: so one copy of the program does it for all that
// share the folder. Where it can not be written, each does it for itself.
class DailyCopies {
  public:
    // All must outlive the object.
    struct Parts {
        Files& files;
        const SystemPaths& paths;
        const DataLocations& locations;
        Books& books;
        Replacements& replacements;
        const Clock& clock;
        NativePath settings;  // the file that holds them
        NativePath folder;    // for the copies; made when it is missing
        // Free bytes at a folder.
        std::function<std::uint64_t(const NativePath&)> freeRoom;
    };

    explicit DailyCopies(Parts parts);
    ~DailyCopies();
    DailyCopies(const DailyCopies&) = delete;
    DailyCopies& operator=(const DailyCopies&) = delete;

    // True when this has not been done, or tried, today.
    [[nodiscard]] bool areDue() const;

    // Does a piece of the work of today, and begins it, some ten milliseconds. True while there is
    // more to do. Throws nothing.
    [[nodiscard]] bool step();

    // What could not be copied in the work that was done last, in UTF-8, with the reason; nothing
    // where all went well.
    [[nodiscard]] const std::optional<std::string>& failure() const { return failure_; }

    // Gives up what is half done, as at the end of the program. It is due again then.
    void stop();

  private:
    class Mark;
    struct Source {
        std::string name;  // of its copies, before the day
        NativePath file;
        std::string folder;  // with a mark
        std::function<std::unique_ptr<CopyInPieces>(const NativePath& copy)> copy;
    };

    void begin();
    void addBook(const char* bookFile);
    void addDatabase(const std::string& path, const NativePath& file);
    void add(Source source);
    void beginSource(const Source& source);
    void compareWithLast(const Source& source);
    void finishSource();
    void stepSource(const Source& source);
    void end();
    void noteFailure(const Source& source, const std::string& why);
    [[nodiscard]] std::set<Day> daysOf(const Source& source) const;
    [[nodiscard]] NativePath copyOf(const Source& source, Day day) const;

    Parts parts_;
    std::optional<Day> tried_;
    Day today_{};
    bool running_ = false;
    std::vector<Source> sources_;  // still to be done; the last one is in hand
    std::map<std::string, std::unique_ptr<Mark>> marks_;
    std::unique_ptr<CopyInPieces> copying_;
    std::optional<FileComparison> comparing_;
    std::optional<Day> last_;  // the day of the copy before
    std::optional<std::string> failure_;
};

}  // namespace velmora
