#include "platform/start/MeetingPlace.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace velmora {
namespace {

// Nobody else may put a socket there.
bool isOwnFolder(const NativePath& folder) {
    struct stat status {};
    return stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

std::optional<NativePath> runtimeFolder() {
    const char* named = std::getenv("XDG_RUNTIME_DIR");
    if (named && *named == '/' && isOwnFolder(NativePath(named)))
        return NativePath(named);
    const NativePath usual("/run/user/" + std::to_string(geteuid()));
    return isOwnFolder(usual) ? std::optional(usual) : std::nullopt;
}

std::string resolved(const NativePath& path) {
    std::error_code failed;
    const std::filesystem::path whole =
        std::filesystem::weakly_canonical(std::filesystem::path(path.utf8()), failed);
    return failed ? path.utf8() : whole.string();
}

// Short, as the address of a socket is, and the same in each version of the program (FNV-1a).
std::string shortened(const std::string& text) {
    std::uint64_t sum = 0xcbf29ce484222325U;
    for (const char c : text)
        sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    std::array<char, 17> digits{};
    (void)std::snprintf(digits.data(), digits.size(), "%016llx",
                        static_cast<unsigned long long>(sum));
    return digits.data();
}

}  // namespace

std::optional<MeetingPlace> meetingPlace(const NativePath& settingsFile,
                                         const NativePath& programFolder) {
    const auto folder = runtimeFolder();
    if (!folder)
        return std::nullopt;
    const std::string both = resolved(settingsFile) + '\0' + resolved(programFolder);
    return MeetingPlace{*folder, "velmora-" + shortened(both)};
}

}  // namespace velmora
