#include "platform/files/TemporaryName.h"

#include <dirent.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/files/FileSteps.h"
#include "platform/files/PosixRunningPrograms.h"

namespace velmora {
namespace {

constexpr std::string_view kBeforePlace = ".velmora-";
constexpr std::size_t kPlaceSize = 8;

// What the engine of databases puts behind the name of a file that it works on, the longest first.
constexpr std::array<std::string_view, 3> kCompanions{"-journal", "-wal", "-shm"};

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

// Eight digits of base 16 for the processes that this one can see: the machine, and which of the
// worlds of processes on it. A number of a process means nothing anywhere else.
std::string placeOfProcesses() {
    std::string world(PATH_MAX, '\0');
    const ssize_t length = readlink("/proc/self/ns/pid", world.data(), world.size());
    world.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    world += headOf(NativePath("/etc/machine-id"), 64)
                 .value_or(headOf(NativePath("/proc/sys/kernel/random/boot_id"), 64).value_or(""));
    std::uint32_t sum = 2166136261U;
    for (const char byte : world)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 16777619U;
    std::string digits(kPlaceSize, '0');
    for (char& digit : digits) {
        digit = "0123456789abcdef"[sum >> 28U];
        sum <<= 4U;
    }
    return digits;
}

// At most `size` bytes of `text`, cut between two characters of UTF-8.
std::string_view cutTo(std::string_view text, std::size_t size) {
    if (text.size() <= size)
        return text;
    while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80U)
        --size;
    return text.substr(0, size);
}

std::string_view withoutCompanion(std::string_view name) {
    for (const std::string_view companion : kCompanions)
        if (name.ends_with(companion))
            return name.substr(0, name.size() - companion.size());
    return name;
}

// The mark of the run that a name tells, when it is a name of this place.
std::optional<std::string> runOf(std::string_view name, std::string_view place) {
    name = withoutCompanion(name);
    const std::size_t begin = name.rfind(kBeforePlace);
    if (begin == std::string_view::npos)
        return std::nullopt;
    const std::string_view rest = name.substr(begin + kBeforePlace.size());
    if (rest.size() < kPlaceSize + 1 || !rest.starts_with(place) || rest[kPlaceSize] != '-')
        return std::nullopt;
    const std::string mark(rest.substr(kPlaceSize + 1));
    return PosixRunningPrograms::isMark(mark) ? std::optional(mark) : std::nullopt;
}

bool isOwnRegularFile(const NativePath& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == geteuid();
}

}  // namespace

NativePath temporaryBeside(const NativePath& path) {
    const std::string run =
        std::string(kBeforePlace) + placeOfProcesses() + "-" + PosixRunningPrograms().ownMark();
    const std::size_t room = NAME_MAX - run.size() - kCompanions.front().size();
    return path.sibling(cutTo(path.name(), room)).withEnding(run);
}

void clearAbandonedBeside(const NativePath& path) {
    const NativePath folder = path.folder() == NativePath() ? NativePath("./") : path.folder();
    const std::unique_ptr<DIR, CloseFolder> listing(opendir(folder.c_str()));
    if (!listing)
        return;
    std::string place;
    while (const dirent* entry = readdir(listing.get())) {
        const std::string_view name = entry->d_name;
        if (name.find(kBeforePlace) == std::string_view::npos)
            continue;
        if (place.empty())
            place = placeOfProcesses();
        const auto run = runOf(name, place);
        const NativePath file = folder.withEnding(name);
        if (run && !PosixRunningPrograms().runs(*run) && isOwnRegularFile(file))
            (void)unlink(file.c_str());
    }
}

}  // namespace velmora
