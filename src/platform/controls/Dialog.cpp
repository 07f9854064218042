#include "platform/controls/Dialog.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

#include "platform/controls/CodePageGuard.h"
#include "platform/controls/DialogBody.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/DialogFooter.h"
#include "platform/qt/BoxOwner.h"
#include "platform/qt/WindowPlace.h"

namespace velmora {
namespace {

constexpr int kMargin = 16;
constexpr QSize kLeftFree(16, 40);  // of the screen

}  // namespace

Dialog::Dialog(const char* name, const QString& title, QWidget* parent)
    : QDialog(parent), footer_(new DialogFooter(this)) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void Dialog::layOut(QLayout* body, const Buttons& buttons, const Extent& extent) {
    buttons_ = buttons;
    extent_ = extent;
    body->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    body_ = new DialogBody(body, this);
    for (QPushButton* button : buttons.left)
        footer_->addLeft(button);
    for (QPushButton* button : buttons.right)
        footer_->addRight(button);
    for (QPushButton* button : findChildren<QPushButton*>())
        button->setAutoDefault(false);
    if (buttons.primary)
        makePrimary(*buttons.primary);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins({});
    whole->setSpacing(0);
    whole->setSizeConstraint(QLayout::SetNoConstraint);  // fitToScreen() sees to the least size
    whole->addWidget(body_, 1);
    whole->addWidget(footer_);
    setTabStops({});
}

void Dialog::setTabStops(const std::vector<QWidget*>& stops) {
    std::vector<QWidget*> order = stops;
    order.insert(order.end(), buttons_.left.begin(), buttons_.left.end());
    order.insert(order.end(), buttons_.right.begin(), buttons_.right.end());
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

QScreen* Dialog::targetScreen() const {
    const QWidget* owner = parentWidget() ? parentWidget() : boxOwner();
    return owner ? owner->screen() : screen();
}

QSize Dialog::footSize() const {
    return {0, footer_->testAttribute(Qt::WA_WState_ExplicitShowHide) && footer_->isHidden()
                   ? 0
                   : footer_->sizeHint().height()};
}

// The greatest size of the inside; the body learns of it, too.
QSize Dialog::roomOnScreen() {
    const QRect room = targetScreen()->availableGeometry();
    const QSize most = (room.size() - kLeftFree).boundedTo(largestInside(room, *this));
    body_->setRoom(most - footSize());
    return most;
}

void Dialog::takeSize(QSize size, const QSize& most) {
    if (body_->width() < size.width())  // a wrapped text needs less height there
        body_->resize(size.width(), body_->height());
    const QSize needed = (body_->minimumSizeHint() + footSize())
                             .expandedTo({footer_->minimumSizeHint().width(), 0})
                             .expandedTo(extent_.least)
                             .boundedTo(most);
    size = size.expandedTo(needed);
    setMinimumSize(needed);
    if (!extent_.grows.testFlag(Qt::Horizontal))
        setFixedWidth(size.width());
    if (!extent_.grows.testFlag(Qt::Vertical))
        setFixedHeight(size.height());
    resize(size);
}

void Dialog::fitToScreen() {
    if (!body_ || isMaximized() || isFullScreen())
        return;
    ensurePolished();
    const QSize most = roomOnScreen();
    const QSize wanted =
        sized_ ? size() : body_->wholeSize(extent_.first - footSize()) + footSize();
    sized_ = true;
    takeSize(wanted.boundedTo(most), most);
}

void Dialog::place() {
    centreIn(targetScreen()->availableGeometry(), *this);
}

// A part that needs more room than before makes the dialog larger; what the user made larger than
// the screen stays so.
bool Dialog::event(QEvent* event) {
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest && body_ && isVisible() && !isMaximized() &&
        !isFullScreen())
        takeSize(size(), roomOnScreen());
    return handled;
}

void Dialog::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* focused = qobject_cast<QPushButton*>(focusWidget());
    if (enter && event->modifiers().testFlag(Qt::ControlModifier) && buttons_.primary)
        buttons_.primary->click();
    else if (enter && focused)
        focused->click();
    else
        QDialog::keyPressEvent(event);
}

// Before it is on the screen: a window that is there already is moved without its frame.
void Dialog::setVisible(bool visible) {
    if (visible && !isVisible()) {
        ensurePolished();
        fitToScreen();
        place();
    }
    QDialog::setVisible(visible);
}

void Dialog::present() {
    if (!isVisible()) {
        beginAnew();
        if (QWidget* first = firstField())
            first->setFocus();
    }
    bringToFront();
}

void Dialog::bringToFront() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

QLabel* Dialog::makeLabel(const QString& caption, QWidget* buddy) {
    auto* label = new QLabel(caption, this);
    label->setProperty("role", QStringLiteral("label"));
    label->setBuddy(buddy);
    return label;
}

QPushButton* Dialog::makeHelpButton(const char* name) {
    QPushButton* button = makeDialogButton(name, "&Help", this);
    connect(button, &QPushButton::clicked, this, [this] { emit helpWanted(objectName()); });
    return button;
}

void Dialog::guard(QLineEdit& box, const CodePage& codePage) const {
    connect(new CodePageGuard(box, codePage), &CodePageGuard::replaced, this,
            &Dialog::characterReplaced);
}

void Dialog::guard(QComboBox& box, const CodePage& codePage) const {
    connect(new CodePageGuard(box, codePage), &CodePageGuard::replaced, this,
            &Dialog::characterReplaced);
}

void Dialog::guard(QPlainTextEdit& box, const CodePage& codePage, int mostBytes) const {
    connect(new CodePageGuard(box, codePage, mostBytes), &CodePageGuard::replaced, this,
            &Dialog::characterReplaced);
}

}  // namespace velmora
