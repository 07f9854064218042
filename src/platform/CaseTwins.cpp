#include "platform/CaseTwins.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <tuple>
#include <utility>

#include "platform/Format.h"

namespace velmora {
namespace {

// Never replaces what is there already. False when the name is taken.
bool renameAside(const std::string& from, const std::string& to) {
    return renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0 ||
           errno != EEXIST;
}

}  // namespace

CaseTwins::CaseTwins(const CodePage& codePage, const Clock& clock, std::vector<std::string> names)
    : codePage_(codePage), clock_(clock), names_(std::move(names)), paths_(codePage) {}

std::optional<std::string> CaseTwins::newest(const std::string& nativePath) const {
    const auto files = twins(nativePath);
    return files.empty() ? std::nullopt : std::optional(files.front());
}

std::optional<std::string> CaseTwins::settle(const std::string& nativePath) const {
    const auto files = twins(nativePath);
    if (files.empty())
        return std::nullopt;
    const std::string aside =
        ".replaced-" + formatMoment(clock_.now(), "yyyymmdd-hhnnss", LocaleFormats());
    for (auto file = files.begin() + 1; file != files.end(); ++file) {
        std::string target = *file + aside;
        for (int n = 2; !renameAside(*file, target) && n < 100; ++n)
            target = *file + aside + "-" + std::to_string(n);
    }
    return files.front();
}

std::vector<std::string> CaseTwins::twins(const std::string& nativePath) const {
    const NativePathParts parts = splitNativePath(nativePath);
    const std::string name = codePage_.fromUtf8(parts.name);
    const bool one = std::any_of(names_.begin(), names_.end(), [&](const std::string& n) {
        return codePage_.equalIgnoringCase(n, name);
    });
    if (!one)
        return {};
    struct Twin {
        timespec changed;
        bool asSpelt;
        std::string path;
    };
    std::vector<Twin> found;
    for (const std::string& twin : paths_.alike(parts.folder, parts.name)) {
        struct stat status {};
        const std::string path = parts.folder + twin;
        if (stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode))
            found.push_back({status.st_ctim, twin == parts.name, path});
    }
    std::stable_sort(found.begin(), found.end(), [](const Twin& a, const Twin& b) {
        return std::tie(b.changed.tv_sec, b.changed.tv_nsec, b.asSpelt) <
               std::tie(a.changed.tv_sec, a.changed.tv_nsec, a.asSpelt);
    });
    std::vector<std::string> result;
    result.reserve(found.size());
    for (Twin& twin : found)
        result.push_back(std::move(twin.path));
    return result;
}

}  // namespace velmora
