#include "planner/OldPlannerImport.h"

#include "platform/DateText.h"
#include "platform/ProfileFile.h"
#include "platform/StorageFailure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr const char* kIndexName = "cname.dat";
constexpr const char* kNoteOfNothing = "Events of the Day";
constexpr const char* kMarker = "Chr$(13)";
constexpr std::size_t kLongestPath = 255;
constexpr std::size_t kLongestNote = 32000;
constexpr std::uint64_t kLongestFile = std::uint64_t{64} << 20;
constexpr int kTriesOfLockedPlanner = 25;  // of some 200 ms each

std::string lastPart(const std::string& path) {
    const std::size_t slash = path.find_last_of("\\/");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// With its separator.
std::string folderOf(const std::string& path) {
    return path.substr(0, path.size() - lastPart(path).size());
}

std::string counted(std::uint64_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

}  // namespace

std::vector<OldPlannerDay> daysOfOldPlanner(const std::string& index, const CodePage& codePage) {
    const ProfileFile profile(index, codePage);
    std::vector<OldPlannerDay> days;
    for (const std::string& section : ProfileFile::headerLines(index)) {
        if (section.find(',') == std::string::npos)
            continue;
        const std::string file = profile.value(section, "File", "", kLongestPath);
        days.push_back({std::string(trimBlanks(section)), std::string(trimBlanks(file))});
    }
    return days;
}

std::optional<std::chrono::year_month_day> dayOfOldSection(std::string_view section,
                                                           std::chrono::year pivot) {
    const std::size_t comma = section.find(',');
    if (comma == std::string_view::npos)
        return std::nullopt;
    return readDate(section.substr(comma + 1), pivot);
}

bool isNoNote(std::string_view note) {
    return note == "`" || note == "\x17";
}

std::string textOfOldNote(std::string note) {
    const std::size_t length = std::string_view(kMarker).size() + 1;
    for (std::size_t at = 0; (at = note.find(kMarker, at)) != std::string::npos;)
        note.replace(at, length, "    ");
    return std::string(trimBlanks(note));
}

bool OldPlannerImport::import() {
    if (parts_.jobs.refuses())
        return false;
    const auto chosen = parts_.messages.chooseFileToOpen(
        {"Planner Importer", ".dat", "Planner Index (*.dat)|*.dat|All Files (*.*)|*.*",
         kIndexName});
    const std::string path(trimBlanks(chosen.value_or("")));
    if (path.empty() || path == kIndexName)
        return false;
    bool done = false;
    parts_.jobs.run([&](LongJob& job) { done = run(job, path); });
    return done;
}

bool OldPlannerImport::run(LongJob& job, const std::string& path) {
    Outcome outcome;
    std::vector<OldPlannerDay> days;
    try {
        const auto index = parts_.files.readWhole(path, kLongestFile);
        if (!index)
            throw Failure("The file is too long.");
        days = daysOfOldPlanner(*index, parts_.codePage);
        outcome.copy = parts_.copyPlanner();
    } catch (const Failure& failure) {
        job.tell("Nothing was imported: " + parts_.codePage.fromUtf8(failure.what()));
        return false;
    }
    // Behind the last section there is one more, without a name and without a file.
    days.emplace_back();
    std::size_t number = 0;
    for (const OldPlannerDay& day : days) {
        job.tell("Importing... " + std::to_string(++number) + " of " + std::to_string(days.size()));
        if (!job.goOn())
            break;
        importDay(job, day, folderOf(path), outcome);
    }
    ignoringErrors([&] { parts_.showAnew(); });
    job.tell(textOf(outcome, job.cancelled()));
    return true;
}

void OldPlannerImport::importDay(LongJob& job, const OldPlannerDay& day, const std::string& folder,
                                 Outcome& outcome) {
    const Moment tag = parts_.clock.now();
    const std::string note = noteOf(day, folder, outcome);
    if (isNoNote(note))
        return;
    add(job,
        {.tag = tag,
         .day = dayOfOldSection(day.section, dateOf(tag).year()),
         .begin = "11:00 AM",
         .end = "1:00 PM",
         .text = textOfOldNote(note),
         .style = "Event"},
        outcome);
}

// The path is one of the machine that the old planner ran on: where there is no such file, one of
// the same name beside the index is meant.
std::string OldPlannerImport::noteOf(const OldPlannerDay& day, const std::string& folder,
                                     Outcome& outcome) const {
    if (day.section.empty() && day.file.empty())
        return kNoteOfNothing;
    const std::string beside = folder + lastPart(day.file);
    try {
        for (const std::string& path : {day.file, beside}) {
            if (path.empty() || !parts_.files.exists(path))
                continue;
            if (auto text = parts_.files.readWhole(path, kLongestFile))
                return ProfileFile(*std::move(text), parts_.codePage)
                    .value("Text", "Text", kNoteOfNothing, kLongestNote);
        }
    } catch (const Failure&) {
        // As one that is not there; it is counted.
    }
    ++outcome.withoutFile;
    return kNoteOfNothing;
}

// A planner that another copy of the program locks is tried again for some seconds.
void OldPlannerImport::add(LongJob& job, const Appointment& appointment, Outcome& outcome) {
    for (int tries = 1;; ++tries) {
        try {
            parts_.store.Add(appointment);
            ++outcome.added;
            return;
        } catch (const Failure& failure) {
            if (obstacleOf(failure) == Obstacle::InUse && tries < kTriesOfLockedPlanner) {
                parts_.jobs.waitFor(std::chrono::milliseconds(200));
                if (!job.cancelled())
                    continue;
            }
            if (outcome.failed++ == 0)
                outcome.whyFailed = failure.what();
            return;
        }
    }
}

std::string OldPlannerImport::textOf(const Outcome& outcome, bool calledOff) const {
    std::string text = counted(outcome.added, "appointment", "appointments") + " added.";
    if (calledOff)
        text += " The import was called off.";
    if (outcome.failed > 0)
        text += " " + counted(outcome.failed, "appointment", "appointments") +
                " could not be stored: " + parts_.codePage.fromUtf8(outcome.whyFailed);
    if (outcome.withoutFile > 0)
        text += " The files of " + counted(outcome.withoutFile, "day", "days") +
                " could not be read; their text is \"" + kNoteOfNothing + "\".";
    if (!outcome.copy.empty())
        text += " The planner as it was before: " + outcome.copy;
    return text;
}

}  // namespace velmora
