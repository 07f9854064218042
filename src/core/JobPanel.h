#pragma once

#include "core/CancelIcon.h"

namespace velmora {

// Where a job that runs without a form of its own shows how far it is, and lets itself be called
// off.
class JobPanel : public CancelIcon {
  public:
    // `done` of `all`, such as entries, until the cancel icon goes. Cheap enough to call often.
    virtual void showProgress(int done, int all) = 0;
};

}  // namespace velmora
