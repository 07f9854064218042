#include "platform/files/NativePaths.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace velmora {
namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

bool isThere(const std::string& path) {
    struct stat ignored {};
    return lstat(path.c_str(), &ignored) == 0;
}

bool isSeparator(char byte) {
    return byte == '/' || byte == '\\';
}

bool beginsWithFolder(std::string_view path, std::string_view folder) {
    return !folder.empty() && path.substr(0, folder.size()) == folder &&
           (path.size() == folder.size() || isSeparator(path[folder.size()]));
}

}  // namespace

NativePaths::NativePaths(const CodePage& codePage, std::string programFolderText,
                         NativePath programFolderNative)
    : codePage_(codePage),
      programFolderText_(std::move(programFolderText)),
      programFolderNative_(std::move(programFolderNative)) {}

NativePath NativePaths::resolve(std::string_view path) const {
    std::string result;
    if (beginsWithFolder(path, programFolderText_)) {
        result = programFolderNative_.utf8();
        path.remove_prefix(programFolderText_.size());
    }
    bool separated = false;
    while (!path.empty()) {
        if (isSeparator(path.front())) {
            separated = true;
            path.remove_prefix(1);
            continue;
        }
        const auto end = std::find_if(path.begin(), path.end(), isSeparator);
        const std::string_view spelt = path.substr(0, static_cast<std::size_t>(end - path.begin()));
        path.remove_prefix(spelt.size());
        if (separated)
            result += '/';
        std::string name = codePage_.toUtf8(spelt);
        if (!isThere(result + name))
            if (auto names = alike(NativePath(result), name); !names.empty())
                name = std::move(names.front());
        result += name;
        separated = false;
    }
    if (separated)
        result += '/';
    return NativePath(std::move(result));
}

std::vector<std::string> NativePaths::alike(const NativePath& folder, std::string_view name) const {
    std::vector<std::string> names;
    const std::string wanted = codePage_.fromUtf8(name);
    const NativePath listed = folder == NativePath() ? NativePath(".") : folder;
    const std::unique_ptr<DIR, CloseFolder> listing(opendir(listed.c_str()));
    if (!listing)
        return names;
    while (const dirent* entry = readdir(listing.get())) {
        const std::string_view found = entry->d_name;
        const std::string text = codePage_.fromUtf8(found);
        if (codePage_.equalIgnoringCase(text, wanted) && codePage_.toUtf8(text) == found)
            names.emplace_back(found);
    }
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return std::lexicographical_compare(
            a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
                return static_cast<unsigned char>(x) < static_cast<unsigned char>(y);
            });
    });
    return names;
}

}  // namespace velmora
