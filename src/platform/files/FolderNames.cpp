#include "platform/files/FolderNames.h"

#include <dirent.h>

#include <memory>
#include <string_view>

namespace velmora {
namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

}  // namespace

std::vector<std::string> namesIn(const NativePath& folder) {
    std::vector<std::string> names;
    const NativePath listed = folder == NativePath() ? NativePath(".") : folder;
    const std::unique_ptr<DIR, CloseFolder> listing(opendir(listed.c_str()));
    if (!listing)
        return names;
    while (const dirent* entry = readdir(listing.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    return names;
}

}  // namespace velmora
