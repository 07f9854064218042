#pragma once

namespace velmora {

// The icon `Image8`, which is in view while a job can be cancelled.
class CancelIcon {
  public:
    virtual ~CancelIcon() = default;
    virtual void showCancelIcon(bool shown) = 0;
};

}  // namespace velmora
