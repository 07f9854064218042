#include "exchange/Export.h"

#include <utility>

#include "core/DataLocations.h"
#include "exchange/ExportColumns.h"
#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr const char* kWait = "Please Wait While Exporting... This can take a long time.";

// The event loop runs after so many lines.
constexpr int kLinesPerTurn = 32;

// What the export knows of itself ends with it, and the book of reports is what it was.
class StateOfRun {
  public:
    explicit StateOfRun(ReportState& state) : state_(state), book_(state.ReportBook) {
        state_.beginJob();
    }
    ~StateOfRun() {
        state_.beginJob();
        state_.ReportBook = book_;
    }
    StateOfRun(const StateOfRun&) = delete;
    StateOfRun& operator=(const StateOfRun&) = delete;

  private:
    ReportState& state_;
    std::int16_t book_;
};

// What the status line says when the run is over, however it ends.
class LastText {
  public:
    explicit LastText(LongJob& job) : job_(job) {}
    ~LastText() { job_.tell(text_); }
    LastText(const LastText&) = delete;
    LastText& operator=(const LastText&) = delete;

    void add(const std::string& sentence) {
        text_ += (text_ == kApplicationTitle ? ". " : " ") + sentence;
    }

  private:
    LongJob& job_;
    std::string text_ = kApplicationTitle;
};

std::string counted(std::uint64_t count, const char* one, const char* more) {
    return count == 1 ? one : std::to_string(count) + more;
}

// True where a field holds a line end or the separator itself.
bool isTorn(std::string_view line, std::string_view separator) {
    if (line.find('\r') != std::string_view::npos || line.find('\n') != std::string_view::npos)
        return true;
    if (separator.empty())
        return false;
    std::size_t separators = 0;
    for (std::size_t at = line.find(separator); at != std::string_view::npos;
         at = line.find(separator, at + separator.size()))
        ++separators;
    return separators != kExportColumns.size() - 1;
}

std::vector<Field> exportedFields() {
    std::vector<Field> fields;
    for (const ExportColumn& column : kExportColumns)
        fields.push_back(column.field);
    return fields;
}

}  // namespace

void Export::run() {
    if (parts_.jobs.refuses())
        return;
    const auto wish = ask();
    if (!wish || parts_.jobs.closing())
        return;
    tooManyNames_ = false;
    counts_ = {};
    sinceTurn_ = 0;
    parts_.jobs.run([&](LongJob& job) { write(job, *wish); }, &parts_.panel);
    if (tooManyNames_)
        parts_.endProgram("Subscript out of range");
}

std::optional<Export::Wish> Export::ask() {
    const auto path = askForFile();
    if (!path)
        return std::nullopt;
    Wish wish{.path = *path, .both = false, .separator = "\t"};
    wish.both = parts_.messages.ask("Export Addressbook",
                                    "Export Both Address Books? Choosing No will export the "
                                    "current address book.",
                                    Answer::Yes);
    if (parts_.jobs.closing())
        return std::nullopt;
    if (!parts_.messages.ask("Export",
                             "Export the text as standard tab-delimited? Choosing No prompts you "
                             "for the separating character.",
                             Answer::Yes) &&
        !parts_.jobs.closing())
        wish.separator = askForSeparator();
    return wish;
}

std::optional<std::string> Export::askForFile() {
    for (;;) {
        auto path =
            parts_.messages.chooseFileToSave({.title = "Export Data",
                                              .defaultExtension = ".txt",
                                              .filter = "Text (*.txt)|*.txt|All Files (*.*)|*.*",
                                              .fileName = lastPath_,
                                              .asksToReplace = false});
        if (!path || path->empty() || parts_.jobs.closing())
            return std::nullopt;
        lastPath_ = *path;
        if (!parts_.files.exists(*path) ||
            parts_.messages.ask("File Exists", "Are you sure you want to overwrite existing file?",
                                Answer::No))
            return path;
        if (parts_.jobs.closing())
            return std::nullopt;
    }
}

std::string Export::askForSeparator() {
    const auto answer =
        parts_.messages.askText("Character",
                                "Please enter the separating character in the box below. This "
                                "character will be used between entries in the database.",
                                "");
    return answer ? std::string(trimBlanks(*answer)) : "";
}

// A book that can not be read ends the export in an error box; what can not be written is told on
// the status line.
void Export::write(LongJob& job, const Wish& wish) {
    const StateOfRun stateOfRun(parts_.state);
    LastText last(job);
    job.tell(kWait);
    std::optional<ExportFile> file;
    try {
        file.emplace(parts_.replacements, parts_.paths.nativePath(wish.path));
    } catch (const Failure& failure) {
        return last.add("Nothing was exported: " +
                        parts_.store.codePage().fromUtf8(failure.what()));
    }
    file->add(header(wish.separator));
    parts_.state.ReportBook = wish.both ? kYellowPages : parts_.shared.BookKind;
    writeBook(job, *file, wish.separator);
    if (wish.both && !job.cancelled() && !tooManyNames_) {
        parts_.state.ReportBook = kWhitePages;
        writeBook(job, *file, wish.separator);
    }
    if (tooManyNames_)
        return;
    const bool calledOff = job.cancelled();
    if (calledOff && counts_.lines == 0)
        return last.add("Called off, nothing was exported.");
    try {
        file->finish([&job] { (void)job.goOn(); });
    } catch (const Failure& failure) {
        return last.add("Nothing was exported: " +
                        parts_.store.codePage().fromUtf8(failure.what()));
    }
    if (calledOff)
        last.add("Called off, " + counted(counts_.lines, "1 line was", " lines were") +
                 " exported.");
    for (const std::string& sentence : whatIsMissing(*file))
        last.add(sentence);
}

void Export::writeBook(LongJob& job, ExportFile& file, const std::string& separator) {
    ReportState& state = parts_.state;
    state.ReportFile = state.ReportBook == kYellowPages ? kYellowPagesFile : kWhitePagesFile;
    NamedEntries entries(parts_.store, state.ReportFile, exportedFields(),
                         [&job] { return job.goOn(); });
    const auto names = entries.read(state.ReportNames);
    tooManyNames_ = names == NamedEntries::Names::TooMany;
    if (names != NamedEntries::Names::Read)
        return;
    state.ReportCount = static_cast<int>(state.ReportNames.size());
    for (state.ReportIndex = 0; state.ReportIndex < state.ReportCount; ++state.ReportIndex) {
        job.tell(kWait);
        if (!writeName(job, entries, file, separator))
            return;
    }
}

// A name that is not found is that of an entry which was deleted meanwhile, or holds a comma.
// False when the job was called off.
bool Export::writeName(LongJob& job, NamedEntries& entries, ExportFile& file,
                       const std::string& separator) {
    const std::string& name =
        parts_.state.ReportNames[static_cast<std::size_t>(parts_.state.ReportIndex)];
    bool found = false;
    bool goesOn = true;
    entries.forEach(WantedName(name, parts_.store.codePage()), [&](const EntryTexts& record) {
        found = true;
        writeLine(file, record, separator);
        goesOn = turn(job, entries, file);
        return goesOn;
    });
    if (found)
        return goesOn;
    ++counts_.notFound;
    return turn(job, entries, file);
}

bool Export::turn(LongJob& job, NamedEntries& entries, ExportFile& file) {
    if (++sinceTurn_ < kLinesPerTurn)
        return true;
    sinceTurn_ = 0;
    file.write();
    parts_.panel.showProgress(parts_.state.ReportIndex + 1, parts_.state.ReportCount);
    entries.eventsRan();
    return job.goOn();
}

void Export::writeLine(ExportFile& file, const EntryTexts& record, const std::string& separator) {
    line_.clear();
    for (const ExportColumn& column : kExportColumns)
        line_.append(record.text(column.field)).append(separator);
    line_.resize(line_.size() - separator.size());
    file.add(line_);
    ++counts_.lines;
    counts_.torn += isTorn(line_, separator) ? 1 : 0;
}

std::string Export::header(const std::string& separator) const {
    std::string line;
    for (const ExportColumn& column : kExportColumns) {
        if (&column != kExportColumns.data())
            line += separator;
        if (column.field == Field::Custom1)
            line += parts_.settings.read(keys::Custom1InExport);
        else if (column.field == Field::Custom2)
            line += parts_.settings.read(keys::Custom2InExport);
        else
            line += column.header;
    }
    return line;
}

std::vector<std::string> Export::whatIsMissing(const ExportFile& file) const {
    std::vector<std::string> sentences;
    if (file.unwritten() > 0)
        sentences.push_back(
            counted(file.unwritten(), "1 line", " lines") +
            " could not be written: " + parts_.store.codePage().fromUtf8(file.why()));
    if (counts_.notFound > 0)
        sentences.push_back(counted(counts_.notFound, "1 entry is", " entries are") +
                            " missing: a comma in the name, or deleted meanwhile.");
    if (counts_.torn > 0)
        sentences.push_back(counted(counts_.torn, "1 line has", " lines have") +
                            " a separator or a line end inside a field.");
    return sentences;
}

}  // namespace velmora
