#include "platform/controls/DialogFooter.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace velmora {

DialogFooter::DialogFooter(QWidget* parent) : QWidget(parent), row_(new QHBoxLayout(this)) {
    setProperty("role", QStringLiteral("footer"));
    setAttribute(Qt::WA_StyledBackground);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    row_->setContentsMargins(16, 12, 16, 12);
    row_->setSpacing(8);
    row_->addStretch();
}

void DialogFooter::addLeft(QAbstractButton* button) {
    row_->insertWidget(leftCount_++, button);
}

void DialogFooter::addRight(QAbstractButton* button) {
    row_->addWidget(button);
}

void layOutDialog(QWidget& dialog, QLayout* body, QWidget* footer) {
    auto* whole = new QVBoxLayout(&dialog);
    whole->setContentsMargins({});
    whole->setSpacing(0);
    whole->addLayout(body, 1);
    whole->addWidget(footer);
}

}  // namespace velmora
