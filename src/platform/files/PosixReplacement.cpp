#include "platform/files/PosixReplacement.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "platform/Failure.h"
#include "platform/StorageFailure.h"
#include "platform/files/FileIdentity.h"
#include "platform/files/FileSteps.h"
#include "platform/files/TemporaryName.h"

namespace velmora {
namespace {

Obstacle obstacleFor(int why) {
    switch (why) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return Obstacle::DiskFull;
        case EROFS:
        case EACCES:
        case EPERM:
            return Obstacle::ReadOnly;
        case ENOENT:
        case ENODEV:
            return Obstacle::NotThere;
        default:
            return Obstacle::Other;
    }
}

// What is to take the place of a folder, or of a device, would destroy it or fail at the end only.
NativePath placeOf(const NativePath& target) {
    NativePath place = endOfLinks(target);
    if (isNameTaken(place) && !isRegularFile(place))
        throw Failure("The file " + place.utf8() + " can not be written: it is no ordinary file.");
    clearAbandonedBeside(place);
    return place;
}

}  // namespace

PosixReplacement::PosixReplacement(const NativePath& target, const NativePath& model)
    : target_(placeOf(target)), file_(target_, kForEverybody) {
    requireDone(file_.why());
    struct stat status {};
    if (stat(target_.c_str(), &status) != 0 && stat(model.c_str(), &status) != 0)
        return;
    // Many a volume has no permissions to give; the bytes are what counts.
    if (file_.belongAs(status) != 0)
        file_.resemble(status);
}

void PosixReplacement::append(std::string_view bytes) {
    if (isLonger_)
        requireDone(file_.cutTo(size_));
    isLonger_ = true;
    if (const int why = writeFully(file_.file(), bytes)) {
        isLonger_ = file_.cutTo(size_) != 0;
        requireDone(why);
    }
    isLonger_ = false;
    size_ += bytes.size();
}

void PosixReplacement::startOver() {
    requireDone(file_.cutTo(0));
    isLonger_ = false;
    size_ = 0;
}

void PosixReplacement::beginFlush() {
    (void)sync_file_range(file_.file().number(), 0, 0, SYNC_FILE_RANGE_WRITE);
}

void PosixReplacement::flush() {
    requireDone(flushBytes(file_.file()));
    (void)posix_fadvise(file_.file().number(), 0, 0, POSIX_FADV_DONTNEED);
}

std::size_t PosixReplacement::readAt(std::uint64_t offset, std::span<char> target) const {
    return readFully(file_.file(), file_.name(), offset, target.data(), target.size());
}

void PosixReplacement::takePlace() {
    requireDone(file_.moveTo(target_));
    flushFolderOf(target_);
}

bool PosixReplacements::areOne(const NativePath& a, const NativePath& b) const {
    const auto one = identityOf(a);
    return one && one == identityOf(b);
}

void PosixReplacement::requireDone(int why) const {
    if (why != 0)
        throw StorageFailure(
            systemFailure("The file " + target_.utf8() + " can not be written", why).what(),
            obstacleFor(why));
}

}  // namespace velmora
