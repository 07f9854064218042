#include "core/forms/PlannerPage.h"

#include <QLabel>
#include <QVBoxLayout>

#include "platform/controls/ElidedLabel.h"
#include "platform/controls/Type.h"

namespace velmora {

PlannerPage::PlannerPage(QWidget* day, QWidget* parent)
    : QWidget(parent), Label1(new ElidedLabel(Qt::ElideRight, this)) {
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setIndent(2);

    day->setObjectName(QStringLiteral("SSDay1"));
    day->setAccessibleName(tr("Day"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(Label1);
    layout->addWidget(day, 1);
    setSmall(false);
}

void PlannerPage::setSmall(bool small) {
    Label1->setFixedHeight(small ? 36 : 40);
    setType(*Label1, small ? 13.5 : 15, QFont::DemiBold);
}

}  // namespace velmora
