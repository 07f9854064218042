#include "platform/controls/DialogFooter.h"

#include <QAbstractButton>
#include <QHBoxLayout>

namespace velmora {

DialogFooter::DialogFooter(QWidget* parent) : QWidget(parent), row_(new QHBoxLayout(this)) {
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

}  // namespace velmora
