#include "core/forms/PlannerPage.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include "core/forms/Type.h"
#include "platform/controls/ElidedLabel.h"

namespace velmora {

PlannerPage::PlannerPage(QWidget* day, QWidget* parent)
    : QWidget(parent), Label1(new ElidedLabel(Qt::ElideRight, this)) {
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setFixedHeight(40);
    Label1->setIndent(2);
    setType(*Label1, 15, QFont::DemiBold);

    auto* card = new QFrame(this);
    card->setProperty("role", "card");
    auto* cardLayout = new QVBoxLayout(card);
    cardLayout->setContentsMargins(1, 1, 1, 1);
    cardLayout->addWidget(day);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(Label1);
    layout->addWidget(card, 1);
}

}  // namespace velmora
