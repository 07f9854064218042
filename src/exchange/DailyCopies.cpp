#include "exchange/DailyCopies.h"

#include <algorithm>
#include <chrono>
#include <span>
#include <utility>

#include "phonebook/BookCopy.h"
#include "platform/Failure.h"
#include "platform/StorageFailure.h"
#include "platform/files/FileSteps.h"
#include "platform/files/FolderSteps.h"
#include "platform/sqlite/DatabaseCopy.h"

namespace velmora {
namespace {

constexpr const char* kMarkFile = "\\.velmora-copies";
constexpr std::size_t kDaySize = 10;  // "2026-03-09"

// Copies are to fill no disk.
constexpr std::uint64_t kTimesFree = 5;

class BookInPieces final : public CopyInPieces {
  public:
    BookInPieces(Books& books, Replacements& replacements, BookCopy::Paths paths)
        : copy_(books, replacements, std::move(paths)) {}
    [[nodiscard]] bool step() override { return copy_.step(); }

  private:
    BookCopy copy_;
};

class DatabaseInPieces final : public CopyInPieces {
  public:
    DatabaseInPieces(const NativePath& source, const NativePath& copy) : copy_(source, copy) {}
    [[nodiscard]] bool step() override { return copy_.step(); }

  private:
    sqlite::DatabaseCopy copy_;
};

std::string textOf(Day day) {
    return nameOfCopy("", day).substr(1);
}

std::string folderOfPath(const std::string& path) {
    return path.substr(0, path.find_last_of("\\/"));
}

}  // namespace

// The mark in a folder, locked as long as this lives.
class DailyCopies::Mark {
  public:
    Mark(Files& files, const std::string& folder, Day today) {
        try {
            file_ = files.openOrCreate(folder + kMarkFile);
            locked_ = file_->lock(std::chrono::milliseconds(0));
            std::string day(kDaySize, '\0');
            day.resize(file_->readAt(0, day));
            isDone_ = day == textOf(today);
        } catch (const StorageFailure& failure) {
            // Another copy of the program is at it.
            isDone_ = failure.obstacle() == Obstacle::InUse;
            file_.reset();
        } catch (const Failure&) {
            file_.reset();
        }
    }
    ~Mark() {
        if (file_ && locked_)
            file_->unlock();
    }
    Mark(const Mark&) = delete;
    Mark& operator=(const Mark&) = delete;

    // True when the files of the folder were copied today, or are being copied.
    [[nodiscard]] bool isDone() const { return isDone_; }

    void noteFailure() { failed_ = true; }

    void write(Day today, const std::string& where) {
        if (!file_ || isDone_ || failed_)
            return;
        ignoringErrors([&] {
            std::string text = textOf(today) + " " + where + "\n";
            text.resize(std::max<std::size_t>(text.size(), file_->size()), ' ');
            file_->writeAt(0, std::span<const char>(text));
        });
    }

  private:
    std::unique_ptr<RandomFile> file_;
    bool locked_ = false;
    bool isDone_ = false;
    bool failed_ = false;
};

DailyCopies::DailyCopies(Parts parts) : parts_(std::move(parts)) {}
DailyCopies::~DailyCopies() = default;

bool DailyCopies::areDue() const {
    return tried_ != std::chrono::floor<std::chrono::days>(parts_.clock.now());
}

bool DailyCopies::step() {
    try {
        if (!std::exchange(running_, true))
            begin();
    } catch (const Failure& failure) {
        failure_ = failure.what();
        sources_.clear();
        marks_.clear();
    }
    if (sources_.empty()) {
        end();
        return false;
    }
    const Source& source = sources_.back();
    try {
        stepSource(source);
    } catch (const Failure& failure) {
        noteFailure(source, failure.what());
        finishSource();
    }
    return true;
}

void DailyCopies::stop() {
    if (!std::exchange(running_, false))
        return;
    copying_.reset();
    comparing_.reset();
    sources_.clear();
    marks_.clear();
    tried_.reset();
}

void DailyCopies::begin() {
    today_ = std::chrono::floor<std::chrono::days>(parts_.clock.now());
    tried_ = today_;
    failure_.reset();
    makePrivateFolder(parts_.folder);
    const std::string planner = parts_.locations.PlannerDatabasePath();
    addDatabase("", parts_.settings);
    addDatabase(planner, parts_.paths.nativePath(planner));
    addBook(kWhitePagesFile);
    addBook(kYellowPagesFile);
}

void DailyCopies::addBook(const char* bookFile) {
    const std::string path = parts_.locations.BookPath(bookFile);
    const NativePath file = parts_.paths.nativePath(path);
    add({std::string(bookFile).substr(1), file, folderOfPath(path),
         [=, this](const NativePath& copy) {
             return std::make_unique<BookInPieces>(parts_.books, parts_.replacements,
                                                   BookCopy::Paths{bookFile, file, copy});
         }});
}

// The settings are the user's own, and their folder needs no mark.
void DailyCopies::addDatabase(const std::string& path, const NativePath& file) {
    add({file.name(), file, path.empty() ? "" : folderOfPath(path),
         [=](const NativePath& copy) { return std::make_unique<DatabaseInPieces>(file, copy); }});
}

void DailyCopies::add(Source source) {
    if (!isRegularFile(source.file))
        return;
    if (!source.folder.empty()) {
        auto& mark = marks_[source.folder];
        if (!mark)
            mark = std::make_unique<Mark>(parts_.files, source.folder, today_);
        if (mark->isDone())
            return;
    }
    if (!isNameTaken(copyOf(source, today_)))
        sources_.push_back(std::move(source));
}

void DailyCopies::stepSource(const Source& source) {
    if (!copying_ && !comparing_)
        return beginSource(source);
    if (copying_) {
        if (copying_->step())
            return;
        copying_.reset();
        return compareWithLast(source);
    }
    const FileComparison::Result result = comparing_->step();
    if (result == FileComparison::Result::Unknown)
        return;
    comparing_.reset();
    if (result == FileComparison::Result::Same)
        removeIfThere(copyOf(source, today_));
    finishSource();
}

void DailyCopies::beginSource(const Source& source) {
    if (parts_.freeRoom(parts_.folder) / kTimesFree < sizeOfFile(source.file))
        throw Failure("There is too little room in " + parts_.folder.utf8() +
                      "; five times the size of the file has to be free.");
    const std::set<Day> days = daysOf(source);
    last_ = days.empty() ? std::nullopt : std::optional(*days.rbegin());
    copying_ = source.copy(copyOf(source, today_));
}

void DailyCopies::compareWithLast(const Source& source) {
    if (last_)
        comparing_.emplace(copyOf(source, *last_), copyOf(source, today_));
    else
        finishSource();
}

// Older copies go only when the new one is there.
void DailyCopies::finishSource() {
    copying_.reset();
    comparing_.reset();
    const Source source = std::move(sources_.back());
    sources_.pop_back();
    const std::set<Day> days = daysOf(source);
    const std::set<Day> kept = daysToKeep(days);
    for (const Day day : days)
        if (!kept.contains(day))
            ignoringErrors([&] { removeIfThere(copyOf(source, day)); });
}

void DailyCopies::noteFailure(const Source& source, const std::string& why) {
    if (!failure_)
        failure_ = source.file.utf8() + " was not copied today. " + why;
    if (const auto mark = marks_.find(source.folder); mark != marks_.end())
        mark->second->noteFailure();
}

void DailyCopies::end() {
    for (const auto& [folder, mark] : marks_)
        mark->write(today_, nameOfMachine() + ":" + parts_.folder.utf8());
    marks_.clear();
    running_ = false;
}

std::set<Day> DailyCopies::daysOf(const Source& source) const {
    std::set<Day> days;
    for (const std::string& name : filesIn(parts_.folder))
        if (const auto day = dayOfCopy(source.name, name))
            days.insert(*day);
    return days;
}

NativePath DailyCopies::copyOf(const Source& source, Day day) const {
    return parts_.folder / nameOfCopy(source.name, day);
}

}  // namespace velmora
