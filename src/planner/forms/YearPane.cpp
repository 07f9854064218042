#include "planner/forms/YearPane.h"

#include <QEvent>
#include <QVBoxLayout>

#include "platform/controls/SSYear.h"

namespace velmora {
namespace {

constexpr QSize kSize(724, 548);
constexpr QSize kSmallSize(696, 445);

}  // namespace

YearPane::YearPane(SSYear* year, QWidget* desk) : QFrame(desk), SSYear1(year) {
    setObjectName(QStringLiteral("Picture6"));
    setProperty("role", "raised");
    hide();
    desk->installEventFilter(this);
    SSYear1->setObjectName(QStringLiteral("SSYear1"));
    SSYear1->setAccessibleName(tr("Year"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(SSYear1);
}

bool YearPane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parent() && event->type() == QEvent::Resize && isVisible())
        setPlace(corner_, small_);
    return QFrame::eventFilter(watched, event);
}

void YearPane::setPlace(QPoint corner, bool small) {
    corner_ = corner;
    small_ = small;
    SSYear1->setSmall(small);
    const QSize room = parentWidget()->size() - QSize(corner.x(), corner.y());
    setGeometry(QRect(corner, (small ? kSmallSize : kSize).boundedTo(room)));
}

void YearPane::open(QPoint corner, bool small) {
    setPlace(corner, small);
    show();
    raise();
    SSYear1->setFocus();
}

}  // namespace velmora
