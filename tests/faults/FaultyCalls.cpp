#include "faults/FaultyCalls.h"

#include <fcntl.h>
#include <stdarg.h>
#include <stdio.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <random>

// The functions below take the place of the system's own in this program and in the libraries that
// it uses; each hands on to the system, unless it is the one that is to fail. What is written is
// not handed to the disk, for that takes long and no power fails here.

namespace velmora::test {
namespace {

struct Plan {
    std::atomic<bool> armed{false};
    std::atomic<int> count{0};
    Call call = Call::Open;
    int nth = 0;
    bool lasting = false;
    unsigned oneIn = 0;  // 0: not at random
    std::minstd_rand random;
};

Plan plan;

constexpr std::size_t kMostFiles = 4096;
std::array<std::atomic<bool>, kMostFiles> isOpenOfATest;

bool isToFail(Call call) {
    if (plan.oneIn > 0)
        return plan.random() % plan.oneIn == 0;
    if (plan.call != call)
        return false;
    const int number = ++plan.count;
    return plan.nth > 0 && (number == plan.nth || (number > plan.nth && plan.lasting));
}

// True for a call that is to fail; sets errno.
bool fails(Call call) {
    if (!plan.armed || !isToFail(call))
        return false;
    errno = reasonFor(call);
    return true;
}

bool isOfATest(const char* path) {
    return std::string_view(path).find("/velmora-") != std::string_view::npos;
}

bool isOfATest(int file) {
    return file >= 0 && static_cast<std::size_t>(file) < kMostFiles &&
           isOpenOfATest[static_cast<std::size_t>(file)];
}

bool fails(Call call, int file) {
    return isOfATest(file) && fails(call);
}

bool fails(Call call, const char* path) {
    return isOfATest(path) && fails(call);
}

size_t partOf(int file, size_t size) {
    return size > 1 && fails(Call::HalfWrite, file) ? size / 2 : size;
}

int openFor(const char* path, int flags, mode_t mode) {
    if (fails(Call::Open, path))
        return -1;
    const auto file = static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
    if (file >= 0 && static_cast<std::size_t>(file) < kMostFiles)
        isOpenOfATest[static_cast<std::size_t>(file)] = isOfATest(path);
    return file;
}

}  // namespace

std::string_view nameOf(Call call) {
    constexpr std::array<std::string_view, kAllCalls.size()> kNames{
        "open", "read", "write", "half write", "sync", "rename", "cut", "belong", "remove"};
    return kNames[static_cast<std::size_t>(call)];
}

int reasonFor(Call call) {
    switch (call) {
        case Call::Open:
            return EMFILE;
        case Call::Write:
        case Call::HalfWrite:
        case Call::Cut:
            return ENOSPC;
        case Call::Belong:
            return EPERM;
        default:
            return EIO;
    }
}

FaultyCalls::FaultyCalls(Call call, int nth, Lasting lasting) {
    plan.call = call;
    plan.nth = nth;
    plan.lasting = lasting == Lasting::FromThenOn;
    plan.oneIn = 0;
    plan.count = 0;
    plan.armed = true;
}

FaultyCalls::~FaultyCalls() {
    plan.armed = false;
}

RandomlyFaultyCalls::RandomlyFaultyCalls(unsigned seed, unsigned oneIn) {
    plan.random.seed(seed);
    plan.oneIn = oneIn;
    plan.armed = true;
}

RandomlyFaultyCalls::~RandomlyFaultyCalls() {
    plan.armed = false;
}

int FaultyCalls::count() const {
    return plan.count;
}

bool FaultyCalls::failed() const {
    return plan.nth > 0 && plan.count >= plan.nth;
}

}  // namespace velmora::test

using velmora::test::Call;
using velmora::test::fails;
using velmora::test::isOfATest;
using velmora::test::openFor;
using velmora::test::partOf;

// The system names the parameters in its own way.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return openFor(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return openFor(path, flags, mode);
}

ssize_t read(int file, void* target, size_t size) {
    return fails(Call::Read, file) ? -1 : syscall(SYS_read, file, target, size);
}

ssize_t pread(int file, void* target, size_t size, off_t offset) {
    return fails(Call::Read, file) ? -1 : syscall(SYS_pread64, file, target, size, offset);
}

ssize_t pread64(int file, void* target, size_t size, off64_t offset) {
    return pread(file, target, size, offset);
}

ssize_t write(int file, const void* bytes, size_t size) {
    if (fails(Call::Write, file))
        return -1;
    return syscall(SYS_write, file, bytes, partOf(file, size));
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
    if (fails(Call::Write, file))
        return -1;
    return syscall(SYS_pwrite64, file, bytes, partOf(file, size), offset);
}

ssize_t pwrite64(int file, const void* bytes, size_t size, off64_t offset) {
    return pwrite(file, bytes, size, offset);
}

int fsync(int file) {
    if (fails(Call::Sync, file))
        return -1;
    return isOfATest(file) ? 0 : static_cast<int>(syscall(SYS_fsync, file));
}

int fdatasync(int file) {
    return fsync(file);
}

int rename(const char* from, const char* to) noexcept {
    return fails(Call::Rename, from) ? -1 : static_cast<int>(syscall(SYS_rename, from, to));
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    if (fails(Call::Rename, from))
        return -1;
    return static_cast<int>(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

int link(const char* from, const char* to) noexcept {
    return fails(Call::Rename, from) ? -1 : static_cast<int>(syscall(SYS_link, from, to));
}

int ftruncate(int file, off_t size) noexcept {
    return fails(Call::Cut, file) ? -1 : static_cast<int>(syscall(SYS_ftruncate, file, size));
}

int ftruncate64(int file, off64_t size) noexcept {
    return ftruncate(file, size);
}

int posix_fallocate(int file, off_t from, off_t size) {
    if (fails(Call::Cut, file))
        return errno;
    return syscall(SYS_fallocate, file, 0, from, size) == 0 ? 0 : errno;
}

int posix_fallocate64(int file, off64_t from, off64_t size) {
    return posix_fallocate(file, from, size);
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
    return fails(Call::Belong, file) ? -1
                                     : static_cast<int>(syscall(SYS_fchown, file, owner, group));
}

int fchmod(int file, mode_t mode) noexcept {
    return fails(Call::Belong, file) ? -1 : static_cast<int>(syscall(SYS_fchmod, file, mode));
}

int unlink(const char* path) noexcept {
    return fails(Call::Remove, path) ? -1 : static_cast<int>(syscall(SYS_unlink, path));
}

}  // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
