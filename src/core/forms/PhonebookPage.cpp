#include "core/forms/PhonebookPage.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <initializer_list>

#include "core/forms/ToolStrip.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/LetterTabs.h"
#include "platform/qt/Icons.h"

namespace velmora {
namespace {

constexpr int kHangUpInset = 14;
constexpr int kKeyWidth = 32;
constexpr int kSeparatorWidth = 11;
constexpr int kSmallKeyWidth = 30;
constexpr int kSmallSeparatorWidth = 5;
constexpr int kButtonHeight = 32;
constexpr int kStripHeight = 40;

QPushButton* makeButton(const char* name, const char* caption, const char* toolTip,
                        QWidget* parent) {
    auto* button = new QPushButton(QString::fromLatin1(caption), parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QString::fromLatin1(toolTip));
    button->setAutoDefault(false);
    return button;
}

QPushButton* makeIconButton(const char* name, const char* symbol, const char* toolTip,
                            QWidget* parent) {
    QPushButton* button = makeButton(name, "", toolTip, parent);
    button->setAccessibleName(button->toolTip());
    button->setIcon(symbolIcon(QString::fromLatin1(symbol), Theme::of(*parent)));
    button->setIconSize({18, 18});
    return button;
}

}  // namespace

PhonebookPage::PhonebookPage(const CodePage& codePage, QWidget* parent)
    : QWidget(parent),
      contactKeys_(new ToolStrip(QStringLiteral("VLMToolbar"), contactToolbar(), this)),
      Picture2(new QWidget(this)),
      Picture4(new LetterTabs(QStringLiteral("Command23"), this)),
      Label17(new EntryCard(codePage, Picture2)) {
    Picture2->setObjectName(QStringLiteral("Picture2"));
    Picture4->setObjectName(QStringLiteral("Picture4"));
    Label17->setObjectName(QStringLiteral("Label17"));

    auto* keys = new QHBoxLayout;
    keyRow_ = keys;
    keys->addWidget(contactKeys_);
    keys->addStretch();

    detailGrid_ = new QGridLayout(Picture2);
    detailGrid_->setContentsMargins(0, 0, 0, 0);
    detailGrid_->setRowStretch(0, 1);
    buttonRow_ = makeButtonRow();

    auto* tabs = new QVBoxLayout;
    tabColumn_ = tabs;
    tabs->addWidget(Picture4, 1);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(0);
    body->addLayout(tabs);
    body->addWidget(Picture2, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(keys);
    layout->addLayout(body, 1);

    Command25 = makeButton("Command25", "&Hang Up", "", this);
    Command25->setProperty("role", "danger");
    const QColor danger = Theme::of(*this).danger;
    Command25->setIcon(symbolIcon(QStringLiteral("HangUp"), IconColours{danger, danger, danger}));
    Command25->hide();
    for (QWidget* widget : std::initializer_list<QWidget*>{Label17, Picture2})
        widget->installEventFilter(this);
    setSmall(false);
}

// In a small window the buttons stand in the card's frame, so that the tabs have the whole height.
void PhonebookPage::setSmall(bool small) {
    keyRow_->setContentsMargins(0, small ? 2 : 4, 0, small ? 2 : 4);
    contactKeys_->setMeasures(small ? kSmallKeyWidth : kKeyWidth,
                              small ? kSmallSeparatorWidth : kSeparatorWidth);
    tabColumn_->setContentsMargins(0, small ? 0 : 8, 0, small ? 0 : 50);
    Picture4->setSmall(small);
    Label17->setSmall(small, small ? kStripHeight : 0);
    detailGrid_->removeWidget(Label17);
    detailGrid_->removeWidget(buttonRow_);
    detailGrid_->addWidget(Label17, 0, 0, small ? 2 : 1, 1);
    detailGrid_->addWidget(buttonRow_, 1, 0);
    detailGrid_->setVerticalSpacing(small ? 0 : 10);
    buttonRow_->layout()->setContentsMargins(small ? 12 : 0, 0, small ? 8 : 0, 0);
    buttonRow_->setFixedHeight(small ? kStripHeight : kButtonHeight);
    buttonRow_->raise();
    for (QPushButton* button : {Command3, Command4, Command5, Command26, TButtonMove}) {
        const bool icon = button->text().isEmpty();
        button->setProperty("variant",
                            small ? (icon ? "stripicon" : "strip") : (icon ? "icon" : ""));
        button->style()->unpolish(button);
        button->style()->polish(button);
    }
}

QWidget* PhonebookPage::makeButtonRow() {
    auto* row = new QWidget(Picture2);
    Command3 = makeButton("Command3", "&E-Mail", "Send Entry E-Mail", row);
    Command4 = makeButton("Command4", "&Web", "Go to Entry's Web Page", row);
    Command5 = makeButton("Command5", "Open &File", "Open the Attached File", row);
    Command26 = makeIconButton("Command26", "Command26", "Other Associates...", row);
    TButtonMove = makeIconButton("TButtonMove", "TButtonMove", "Move Entry", row);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    for (QPushButton* button : {Command3, Command4, Command5})
        layout->addWidget(button);
    layout->addStretch();
    layout->addWidget(Command26);
    layout->addWidget(TButtonMove);
    Command5->setEnabled(false);
    Command26->setEnabled(false);
    return row;
}

// The card gets its place after the page has got its own.
bool PhonebookPage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move ||
        event->type() == QEvent::Show)
        placeHangUp();
    return QWidget::eventFilter(watched, event);
}

void PhonebookPage::placeHangUp() {
    const QSize size = Command25->sizeHint();
    const QPoint corner =
        Label17->mapTo(this, QPoint(Label17->width() - kHangUpInset, kHangUpInset));
    Command25->setGeometry(corner.x() - size.width(), corner.y(), size.width(), size.height());
}

}  // namespace velmora
