#include "platform/controls/GroupHead.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>

#include "platform/controls/Type.h"

namespace velmora {
namespace {

constexpr int kGap = 8;

}  // namespace

QLayout* makeGroupHead(const QString& caption, QWidget* parent) {
    auto* head = new QLabel(caption, parent);
    setType(*head, 9.75, QFont::DemiBold);
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addWidget(head);
    row->addWidget(makeHairline(parent), 1);
    return row;
}

QFrame* makeHairline(QWidget* parent) {
    auto* hairline = new QFrame(parent);
    hairline->setProperty("role", QStringLiteral("separator"));
    hairline->setFixedHeight(1);
    return hairline;
}

}  // namespace velmora
