#include "core/forms/PageStack.h"

#include <QWidget>

namespace velmora {

QSize PageStack::sizeHint() const {
    const QWidget* page = currentWidget();
    return page ? page->sizeHint() : QSize(0, 0);
}

QSize PageStack::minimumSize() const {
    const QWidget* page = currentWidget();
    return page ? page->minimumSizeHint().expandedTo(page->minimumSize()) : QSize(0, 0);
}

}  // namespace velmora
