#include "exchange/CopiesBeforeImport.h"

#include <gmock/gmock.h>

#include <chrono>

namespace velmora {
namespace {

using namespace std::chrono;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Moment kMoment = local_days(March / 12 / 2026) + 14h + 5min + 1s;

TEST(CopiesBeforeImport, TellTheFileAndTheMoment) {
    EXPECT_EQ(nameBeforeImport(NativePath("/data/DATAY.QEL"), kMoment,
                               [](const NativePath&) { return false; })
                  .utf8(),
              "/data/DATAY.QEL.before-import-20260312-140501");
}

TEST(CopiesBeforeImport, OfOneSecondHaveNamesOfTheirOwn) {
    int taken = 2;
    EXPECT_EQ(nameBeforeImport(NativePath("/data/DATAY.QEL"), kMoment,
                               [&](const NativePath&) { return taken-- > 0; })
                  .utf8(),
              "/data/DATAY.QEL.before-import-20260312-140501c");
}

TEST(CopiesBeforeImport, TheLastThreeAreKept) {
    EXPECT_THAT(
        outdatedBeforeImports(
            "D.QEL",
            {"D.QEL", "D.QEL.before-import-20260312-140501", "D.QEL.before-import-20260101-000000",
             "D.QEL.before-import-20260312-140501b", "D.QEL.before-import-20251231-235959",
             "E.QEL.before-import-20200101-000000", "D.QEL.before-import-mine"}),
        ElementsAre("D.QEL.before-import-20251231-235959"));
    EXPECT_THAT(outdatedBeforeImports("D.QEL", {"D.QEL.before-import-20260312-140501"}), IsEmpty());
}

}  // namespace
}  // namespace velmora
