#include "platform/access/Confinement.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "support/ChildOfTest.h"
#include "support/TemporaryFolder.h"

namespace velmora::access {
namespace {

// What a confined process reports of what it tried.
std::string reportsOf(const std::function<void(const test::ChildOfTest::Report&)>& work) {
    test::ChildOfTest child(work);
    std::string reports;
    while (const auto report = child.nextReport())
        reports += *report;
    return reports;
}

TEST(Confinement, LeavesWhatIsOpenAndNothingElse) {
    const test::TemporaryFolder folder;
    folder.write("open", "contents");
    folder.write("other", "contents");
    const std::string reports = reportsOf([&](const test::ChildOfTest::Report& report) {
        const int open = ::open(folder.file("open").c_str(), O_RDONLY | O_CLOEXEC);
        const Confinement confinement = confineThisProcess();
        report(confinement.files || confinement.calls ? 'c' : 'n');
        char byte = 0;
        report(::read(open, &byte, 1) == 1 && byte == 'c' ? 'r' : '-');
        report(::open(folder.file("other").c_str(), O_RDONLY | O_CLOEXEC) < 0 ? 'o' : '-');
        report(::open(folder.file("new").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600) < 0 ? 'w'
                                                                                            : '-');
        report(!confinement.calls || (::socket(AF_INET, SOCK_STREAM, 0) < 0 && errno == EPERM)
                   ? 's'
                   : '-');
        report(!confinement.calls || (::unlink(folder.file("other").c_str()) < 0) ? 'u' : '-');
        report(!confinement.calls || ::fork() < 0 ? 'f' : '-');
    });
    if (reports.starts_with('n'))
        GTEST_SKIP() << "this kernel has neither Landlock nor seccomp";
    EXPECT_EQ(reports, "crowsuf");
    EXPECT_TRUE(folder.has("other"));
    EXPECT_FALSE(folder.has("new"));
}

}  // namespace
}  // namespace velmora::access
