#include "platform/files/ProgramFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>

#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

// Sets a variable of the environment for one test.
class Variable {
  public:
    Variable(const char* name, const std::string& value) : name_(name) {
        if (const char* before = std::getenv(name))
            before_ = before;
        setenv(name, value.c_str(), 1);
    }
    ~Variable() {
        if (before_)
            setenv(name_, before_->c_str(), 1);
        else
            unsetenv(name_);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

  private:
    const char* name_;
    std::optional<std::string> before_;
};

TEST(ProgramFolder, IsThatOfTheExecutableWhereTheUserMayWrite) {
    EXPECT_EQ(programFolder().utf8(),
              std::filesystem::read_symlink("/proc/self/exe").parent_path().string());
}

TEST(ConfigurationFolder, IsMadeWhereTheDesktopWantsIt) {
    const test::TemporaryFolder folder;
    const Variable config("XDG_CONFIG_HOME", folder.file("deep/config"));
    EXPECT_EQ(configurationFolder().utf8(), folder.file("deep/config/velmora"));
    EXPECT_TRUE(std::filesystem::is_directory(folder.file("deep/config/velmora")));
}

TEST(ConfigurationFolder, LiesInTheHomeFolderWhenTheDesktopNamesNoPath) {
    const test::TemporaryFolder folder;
    const Variable config("XDG_CONFIG_HOME", "relative");
    const Variable home("HOME", folder.path());
    EXPECT_EQ(configurationFolder().utf8(), folder.file(".config/velmora"));
}

TEST(ConfigurationFolder, IsForItsOwnerOnly) {
    const test::TemporaryFolder folder;
    const Variable config("XDG_CONFIG_HOME", folder.file("deep/config"));
    (void)configurationFolder();
    for (const char* made : {"deep", "deep/config", "deep/config/velmora"})
        EXPECT_EQ(std::filesystem::status(folder.file(made)).permissions(),
                  std::filesystem::perms(0700))
            << made;
}

TEST(ConfigurationFolder, AFileInItsPlaceStays) {
    const test::TemporaryFolder folder;
    folder.write("velmora", "x");
    const Variable config("XDG_CONFIG_HOME", folder.path());
    EXPECT_EQ(configurationFolder().utf8(), folder.file("velmora"));
    EXPECT_EQ(folder.read("velmora"), "x");
}

}  // namespace
}  // namespace velmora
