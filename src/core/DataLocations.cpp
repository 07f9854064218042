#include "core/DataLocations.h"

#include <utility>

#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {

DataLocations::DataLocations(std::string programFolder, const SettingsStore& settings,
                             const Files& files, const CodePage& codePage)
    : programFolder_(std::move(programFolder)),
      settings_(settings),
      files_(files),
      codePage_(codePage) {}

std::string DataLocations::BookFolder(const std::string& fileName) const {
    const std::string name = codePage_.upper(fileName);
    std::string folder;
    const auto choose = [&](const char* part, const TextKey& key) {
        if (name.find(part) != std::string::npos)
            folder = folderOf(key);
    };
    choose("DATAY", keys::Yellow);
    choose("DATAW", keys::White);
    return folder.empty() ? programFolder_ : folder;
}

std::string DataLocations::BookPath(const std::string& fileName) const {
    return std::string(trimBlanks(BookFolder(fileName) + fileName));
}

std::string DataLocations::PlannerDatabasePath() const {
    const std::string folder = folderOf(keys::Calendar);
    if (!folder.empty() && files_.exists(folder + kPlannerDatabaseFile))
        return folder + kPlannerDatabaseFile;
    return programFolder_ + kPlannerDatabaseFile;
}

std::optional<std::string> DataLocations::whyUnknown() const {
    try {
        for (const TextKey& key : {keys::Yellow, keys::White, keys::Calendar})
            (void)folderOf(key);
    } catch (const Failure& failure) {
        return failure.what();
    }
    return std::nullopt;
}

std::string DataLocations::folderOf(const TextKey& key) const {
    return settings_.readOrFail(key);
}

std::string DataLocations::HelpFilePath() const {
    return programFolder_ + kHelpFile;
}

}  // namespace velmora
