#include "planner/forms/YearPane.h"

#include <QVBoxLayout>

#include "platform/controls/SSYear.h"

namespace velmora {
namespace {

constexpr QSize kSize(724, 548);

}  // namespace

YearPane::YearPane(SSYear* year, QWidget* desk) : QFrame(desk), SSYear1(year) {
    setObjectName(QStringLiteral("Picture6"));
    setProperty("role", "raised");
    hide();
    SSYear1->setObjectName(QStringLiteral("SSYear1"));
    SSYear1->setAccessibleName(tr("Year"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(SSYear1);
}

void YearPane::open(QPoint corner) {
    setGeometry(
        QRect(corner, kSize.boundedTo(parentWidget()->size() - QSize(corner.x(), corner.y()))));
    show();
    raise();
    SSYear1->setFocus();
}

}  // namespace velmora
