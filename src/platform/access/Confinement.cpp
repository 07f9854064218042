#include "platform/access/Confinement.h"

#include <linux/landlock.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

namespace velmora::access {
namespace {

// Every right of the first version; a kernel with Landlock knows these.
constexpr __u64 kAllRights = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;

// No rule allows anything, so that no file can be opened, made or removed.
bool closeFiles() {
    landlock_ruleset_attr attributes{};
    attributes.handled_access_fs = kAllRights;
    const long rules = ::syscall(SYS_landlock_create_ruleset, &attributes, sizeof(attributes), 0);
    if (rules < 0)
        return false;
    const long done = ::syscall(SYS_landlock_restrict_self, rules, 0);
    ::close(static_cast<int>(rules));
    return done == 0;
}

struct FreeFilter {
    void operator()(void* filter) const { seccomp_release(filter); }
};

// Other calls fail, and what made them goes on: a library that looks for the time zone in vain must
// not end the reading.
bool closeCalls() {
    const std::unique_ptr<void, FreeFilter> filter(seccomp_init(SCMP_ACT_ERRNO(EPERM)));
    if (!filter)
        return false;
    for (const int call : {SCMP_SYS(read),           SCMP_SYS(pread64),
                           SCMP_SYS(readv),          SCMP_SYS(lseek),
                           SCMP_SYS(write),          SCMP_SYS(writev),
                           SCMP_SYS(close),          SCMP_SYS(fstat),
                           SCMP_SYS(newfstatat),     SCMP_SYS(brk),
                           SCMP_SYS(mmap),           SCMP_SYS(munmap),
                           SCMP_SYS(mremap),         SCMP_SYS(mprotect),
                           SCMP_SYS(madvise),        SCMP_SYS(futex),
                           SCMP_SYS(sched_yield),    SCMP_SYS(clock_gettime),
                           SCMP_SYS(gettimeofday),   SCMP_SYS(getrandom),
                           SCMP_SYS(getpid),         SCMP_SYS(gettid),
                           SCMP_SYS(tgkill),         SCMP_SYS(rt_sigaction),
                           SCMP_SYS(rt_sigprocmask), SCMP_SYS(rt_sigreturn),
                           SCMP_SYS(sigaltstack),    SCMP_SYS(restart_syscall),
                           SCMP_SYS(exit),           SCMP_SYS(exit_group)})
        if (seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 0) != 0)
            return false;
    return seccomp_load(filter.get()) == 0;
}

}  // namespace

Confinement confineThisProcess() {
    // Without this neither is granted to a process without rights.
    (void)::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    Confinement confinement;
    confinement.files = closeFiles();
    confinement.calls = closeCalls();
    return confinement;
}

}  // namespace velmora::access
