#include "docpad/forms/TrashPictures.h"

namespace velmora {

void TrashPictures::show(Picture picture) {
    if (!can_)
        return;
    can_->setTakesDrops(picture == Picture::Image2);
    can_->setLook(picture == Picture::Image5   ? TrashCan::Look::Open
                  : picture == Picture::Image6 ? TrashCan::Look::Done
                                               : TrashCan::Look::AtRest);
}

}  // namespace velmora
