#include "exchange/FileCopiesBeforeImport.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "phonebook/FileBooks.h"
#include "platform/Failure.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/FolderNames.h"
#include "platform/files/PosixFiles.h"
#include "platform/files/PosixReplacement.h"
#include "support/FakeClock.h"
#include "support/MemorySettings.h"
#include "support/PhonebookFixture.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FileCopiesBeforeImportTest : public testing::Test {
  protected:
    std::vector<std::string> copiesThere() const {
        std::vector<std::string> names = namesIn(NativePath(folder.path() + "/"));
        std::erase_if(names, [](const std::string& name) {
            return name.find("before-import") == std::string::npos;
        });
        std::sort(names.begin(), names.end());
        return names;
    }

    std::string copy() {
        return copies.copyBook(kYellowPagesFile, [this] { return wanted; });
    }

    test::TemporaryFolder folder;
    test::MemorySettings medium;
    SettingsStore settings{medium};
    const CodePage& page = CodePage::western();
    PosixFiles files{NativePaths(page)};
    DataLocations locations{folder.path(), settings, files, page};
    FileBooks books{files, locations, [this](const std::string& path) {
                        return fileStampOf(files.nativePath(path));
                    }};
    PosixReplacements replacements;
    test::FakeClock clock;
    FileCopiesBeforeImport copies{{books, replacements, locations, files, clock, page}};
    bool wanted = true;
    const std::string book = test::bytesOf(test::personRecord("Smith", "Ann"));
};

TEST_F(FileCopiesBeforeImportTest, ABookIsCopiedBesideItselfByteByByte) {
    folder.write("DATAY.QEL", book + "rest");
    const std::string path = copy();
    ASSERT_THAT(copiesThere(), testing::SizeIs(1));
    EXPECT_EQ(path, folder.path() + "/" + copiesThere()[0]);
    EXPECT_EQ(folder.read(copiesThere()[0]), book + "rest");
    EXPECT_EQ(folder.read("DATAY.QEL"), book + "rest");
}

TEST_F(FileCopiesBeforeImportTest, ABookThatIsMissingOrEmptyNeedsNoCopyAndIsNotMade) {
    EXPECT_EQ(copy(), "");
    EXPECT_FALSE(folder.has("DATAY.QEL"));
    folder.write("DATAY.QEL", "");
    EXPECT_EQ(copy(), "");
    EXPECT_THAT(copiesThere(), IsEmpty());
}

TEST_F(FileCopiesBeforeImportTest, OnlyTheLastThreeStay) {
    folder.write("DATAY.QEL", book);
    for (int day = 0; day < 5; ++day) {
        clock.advance(std::chrono::hours(24));
        (void)copy();
    }
    EXPECT_THAT(copiesThere(), testing::SizeIs(3));
}

TEST_F(FileCopiesBeforeImportTest, NothingIsLeftOfACopyThatIsCalledOff) {
    folder.write("DATAY.QEL", book);
    wanted = false;
    EXPECT_EQ(copy(), "");
    EXPECT_THAT(copiesThere(), IsEmpty());
}

}  // namespace
}  // namespace velmora
