#pragma once

#include <QPointer>

#include "docpad/Trash.h"
#include "platform/controls/TrashCan.h"

namespace velmora {

// The pictures of the trash can on the rail. While the can moves it takes no drops.
class TrashPictures final : public TrashView {
  public:
    explicit TrashPictures(TrashCan& can) : can_(&can) {}

    void show(Picture picture) override;

  private:
    QPointer<TrashCan> can_;
};

}  // namespace velmora
