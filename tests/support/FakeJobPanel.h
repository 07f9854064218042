#pragma once

#include <utility>
#include <vector>

#include "core/JobPanel.h"

namespace velmora::test {

// Keeps what was shown.
struct FakeJobPanel final : JobPanel {
    void showCancelIcon(bool isShown) override { shown = isShown; }
    void showProgress(int done, int all) override { progress.emplace_back(done, all); }

    bool shown = false;
    std::vector<std::pair<int, int>> progress;
};

}  // namespace velmora::test
