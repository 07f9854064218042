#include "core/forms/HelpWindow.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "core/forms/HelpPageView.h"
#include "platform/controls/DialogFooter.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QSize kSize(860, 620);
constexpr QSize kLeastSize(560, 360);
constexpr int kContentsWidth = 248;
constexpr int kMargin = 16;
constexpr int kTopicRole = Qt::UserRole;

}  // namespace

HelpWindow::HelpWindow(const HelpIndex& index, const CodePage& codePage, QWidget* parent)
    : QDialog(parent),
      index_(index),
      codePage_(codePage),
      Text1(new QLineEdit(this)),
      List1(new QListWidget(this)),
      Command1(makeStep("Command1", tr("&Back"), QKeySequence(Qt::ALT | Qt::Key_Left))),
      Command2(makeStep("Command2", tr("&Forward"), QKeySequence(Qt::ALT | Qt::Key_Right))),
      Command3(new QPushButton(tr("Close"), this)),
      Browser1(new HelpPageView(this)) {
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(tr("Velmora Help"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    Command3->setObjectName(QStringLiteral("Command3"));
    Command3->setAutoDefault(false);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    body->setSpacing(12);
    body->addWidget(makeContents());
    body->addWidget(makePage(), 1);
    auto* footer = new DialogFooter(this);
    footer->addRight(Command3);
    layOutDialog(*this, body, footer);
    setMinimumSize(kLeastSize);
    resize(kSize);
    connectParts();
    fillList();
}

QWidget* HelpWindow::makeContents() {
    auto* contents = new QWidget(this);
    auto* label = new QLabel(tr("&Look for:"), contents);
    label->setProperty("role", QStringLiteral("label"));
    label->setBuddy(Text1);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(tr("Look for"));
    Text1->setClearButtonEnabled(true);
    Text1->installEventFilter(this);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(tr("Contents"));
    auto* column = new QVBoxLayout(contents);
    column->setContentsMargins({});
    column->setSpacing(4);
    column->addWidget(label);
    column->addWidget(Text1);
    column->addSpacing(8);
    column->addWidget(List1, 1);
    contents->setFixedWidth(kContentsWidth);
    return contents;
}

QWidget* HelpWindow::makePage() {
    auto* page = new QWidget(this);
    Browser1->setObjectName(QStringLiteral("Browser1"));
    Browser1->setAccessibleName(tr("Page"));
    auto* steps = new QHBoxLayout;
    steps->setSpacing(8);
    steps->addWidget(Command1);
    steps->addWidget(Command2);
    steps->addStretch();
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addLayout(steps);
    column->addWidget(Browser1, 1);
    return page;
}

QPushButton* HelpWindow::makeStep(const char* name, const QString& caption,
                                  const QKeySequence& keys) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QString::fromLatin1(name));
    button->setProperty("variant", QStringLiteral("small"));
    button->setAutoDefault(false);
    button->setEnabled(false);
    button->setToolTip(keys.toString(QKeySequence::NativeText));
    // Beside the access key of the caption.
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    return button;
}

void HelpWindow::connectParts() {
    connect(Text1, &QLineEdit::textChanged, this, &HelpWindow::fillList);
    connect(Text1, &QLineEdit::returnPressed, this, [this] { openLine(0); });
    connect(List1, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { openLine(List1->row(item)); });
    connect(List1, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { openLine(List1->row(item)); });
    connect(Command1, &QPushButton::clicked, Browser1, &QTextBrowser::backward);
    connect(Command2, &QPushButton::clicked, Browser1, &QTextBrowser::forward);
    connect(Browser1, &QTextBrowser::backwardAvailable, Command1, &QWidget::setEnabled);
    connect(Browser1, &QTextBrowser::forwardAvailable, Command2, &QWidget::setEnabled);
    connect(Browser1, &QTextBrowser::sourceChanged, this, &HelpWindow::markTopic);
    connect(Command3, &QPushButton::clicked, this, &QDialog::close);
}

void HelpWindow::showTopic(std::string_view topic) {
    const HelpPage* page = index_.page(topic);
    if (!page && !index_.pages().empty())
        page = &index_.pages().front();
    Text1->clear();
    if (page)
        Browser1->open(toQt(page->topic, codePage_));
    showNormal();
    raise();
    activateWindow();
    Browser1->setFocus();
}

void HelpWindow::fillList() {
    List1->clear();
    for (const HelpHit& hit : index_.matching(fromQt(Text1->text(), codePage_))) {
        auto* item = new QListWidgetItem(toQt(hit.line, codePage_), List1);
        item->setData(kTopicRole, toQt(hit.topic, codePage_));
    }
    markTopic();
}

void HelpWindow::openLine(int row) {
    if (const QListWidgetItem* item = List1->item(row))
        Browser1->open(item->data(kTopicRole).toString());
}

// Selects the line of the page on show, if it is in the list.
void HelpWindow::markTopic() {
    const QString topic = Browser1->topic();
    for (int row = 0; row < List1->count(); ++row)
        if (List1->item(row)->data(kTopicRole).toString() == topic)
            return List1->setCurrentRow(row);
    List1->setCurrentRow(-1);
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Text1 && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down && List1->count() > 0) {
        List1->setCurrentRow(std::max(0, List1->currentRow()));
        List1->setFocus(Qt::TabFocusReason);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace velmora
