#include "platform/files/CaseTwins.h"

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
bool renameAside(const NativePath& from, const NativePath& to) {
    return renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0 ||
           errno != EEXIST;
}

}  // namespace

CaseTwins::CaseTwins(const CodePage& codePage, const Clock& clock, std::vector<std::string> names)
    : codePage_(codePage), clock_(clock), names_(std::move(names)), paths_(codePage) {}

std::optional<NativePath> CaseTwins::newest(const NativePath& path) const {
    const auto files = twins(path);
    return files.empty() ? std::nullopt : std::optional(files.front());
}

std::optional<NativePath> CaseTwins::settle(const NativePath& path) const {
    const auto files = twins(path);
    if (files.empty())
        return std::nullopt;
    const std::string aside =
        ".replaced-" + formatMoment(clock_.now(), "yyyymmdd-hhnnss", LocaleFormats());
    for (auto file = files.begin() + 1; file != files.end(); ++file) {
        NativePath target = file->withEnding(aside);
        for (int n = 2; !renameAside(*file, target) && n < 100; ++n)
            target = file->withEnding(aside + "-" + std::to_string(n));
    }
    return files.front();
}

std::vector<NativePath> CaseTwins::twins(const NativePath& path) const {
    const std::string spelt = path.name();
    const std::string name = codePage_.fromUtf8(spelt);
    const bool one = std::any_of(names_.begin(), names_.end(), [&](const std::string& n) {
        return codePage_.equalIgnoringCase(n, name);
    });
    if (!one)
        return {};
    struct Twin {
        timespec changed;
        bool asSpelt;
        NativePath path;
    };
    std::vector<Twin> found;
    for (const std::string& twin : paths_.alike(path.folder(), spelt)) {
        struct stat status {};
        NativePath file = path.sibling(twin);
        if (stat(file.c_str(), &status) == 0 && S_ISREG(status.st_mode))
            found.push_back({status.st_ctim, twin == spelt, std::move(file)});
    }
    std::stable_sort(found.begin(), found.end(), [](const Twin& a, const Twin& b) {
        return std::tie(b.changed.tv_sec, b.changed.tv_nsec, b.asSpelt) <
               std::tie(a.changed.tv_sec, a.changed.tv_nsec, a.asSpelt);
    });
    std::vector<NativePath> result;
    result.reserve(found.size());
    for (Twin& twin : found)
        result.push_back(std::move(twin.path));
    return result;
}

}  // namespace velmora
