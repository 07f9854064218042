#pragma once

#include <utility>
#include <vector>

#include "core/LongJobs.h"
#include "core/PrintJobs.h"
#include "support/FakeEventLoop.h"
#include "support/FakeMessages.h"
#include "support/FakePrintSurface.h"
#include "support/FakeStatusLine.h"

namespace velmora::test {

struct FakeCancelIcon final : CancelIcon {
    void showCancelIcon(bool isShown) override {
        if (isShown != shown)
            log.push_back(isShown);
        shown = isShown;
    }
    bool shown = false;
    std::vector<bool> log;  // the changes
};

// Everything that printing needs, for tests of what prints:
//
//   PrintDesk desk;
//   thing.print(desk.printing);
//   expectGolden(desk.printer.takeDump(), "thing.txt");
//
// `desk.loop.onYield` runs while a job does; `desk.jobs.cancel()` in it clicks `Image8`.
struct PrintDesk {
    FakePrintSurface printer;
    FakeEventLoop loop;
    FakeStatusLine status;
    FakeCancelIcon icon;
    FakeMessages messages;
    LongJobs jobs{{loop, status, icon}};
    PrintJobs printing{{printer, jobs, messages, CodePage::western()}};

    // Calls off the job that comes next in its yield number `count`, counted from 1.
    void cancelInYield(int count) {
        loop.onYield = [this, count, seen = 0]() mutable {
            if (++seen == count)
                jobs.cancel();
        };
    }
};

}  // namespace velmora::test
