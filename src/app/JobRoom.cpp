#include "app/JobRoom.h"

#include <QDesktopServices>
#include <QUrl>

#include "core/forms/JobBar.h"
#include "core/forms/Rail.h"
#include "core/forms/StatusBar.h"

namespace velmora {

void RailCancelIcon::showCancelIcon(bool shown) {
    calendar_.rail().showCancelIcon(shown);
}

JobRoom::JobRoom(World& world, Calendar& calendar)
    : icon_(calendar),
      jobs_({world.loop, calendar.status(), icon_}),
      printing_({world.printer, jobs_, world.messages, world.codePage}) {
    QObject::connect(&calendar.rail(), &Rail::cancelChosen, &connections_,
                     [this] { jobs_.cancel(); });
    QObject::connect(&calendar.status().job(), &JobBar::cancelChosen, &connections_,
                     [this] { jobs_.cancel(); });
    QObject::connect(
        &calendar.status(), &StatusBar::fileChosen, &connections_,
        [](const QString& path) { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
}

}  // namespace velmora
