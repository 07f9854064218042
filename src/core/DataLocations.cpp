#include "core/DataLocations.h"

#include <utility>

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
    const auto choose = [&](const char* part, const char* key) {
        if (name.find(part) != std::string::npos)
            folder = trimBlanks(settings_.Read(key));
    };
    choose("DATAY", "Yellow");
    choose("DATAW", "White");
    return folder.empty() ? programFolder_ : folder;
}

std::string DataLocations::BookPath(const std::string& fileName) const {
    return std::string(trimBlanks(BookFolder(fileName) + fileName));
}

std::string DataLocations::PlannerDatabasePath() const {
    const std::string folder(trimBlanks(settings_.Read("Calendar")));
    if (!folder.empty() && files_.exists(folder + kPlannerDatabaseFile))
        return folder + kPlannerDatabaseFile;
    return programFolder_ + kPlannerDatabaseFile;
}

std::string DataLocations::HelpFilePath() const {
    return programFolder_ + kHelpFile;
}

}  // namespace velmora
