#include "app/WeekWindow.h"

namespace velmora {

WeekWindow::WeekWindow(World& world, const MonthControl& month, QWidget& window)
    : world_(world),
      window_(window),
      source_(world.files),
      load_(world.locations, source_, world.codePage, month, world.clock, world.locale) {}

void WeekWindow::present() {
    if (!form_)
        form_ = std::make_unique<WeekataGlance>(load_, world_.codePage, &window_);
    form_->present();
}

void WeekWindow::close() {
    if (form_)
        form_->close();
}

}  // namespace velmora
