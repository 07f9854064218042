#include "core/forms/HelpWindow.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "core/forms/HelpPageView.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QSize kSize(860, 620);
constexpr QSize kLeastSize(560, 360);
constexpr int kContentsWidth = 248;

}  // namespace

HelpWindow::HelpWindow(const HelpIndex& index, const CodePage& codePage, QWidget* parent)
    : Dialog("HelpWindow", tr("Velmora Help"), parent),
      index_(index),
      codePage_(codePage),
      Text1(new QLineEdit(this)),
      List1(new EntryList(codePage, nullptr, this)),
      Command1(makeStep("Command1", tr("&Back"), QKeySequence(Qt::ALT | Qt::Key_Left))),
      Command2(makeStep("Command2", tr("&Forward"), QKeySequence(Qt::ALT | Qt::Key_Right))),
      Command3(makeDialogButton("Command3", "Close", this)),
      Browser1(new HelpPageView(this)) {
    setWindowFlag(Qt::WindowMinMaxButtonsHint);

    auto* body = new QHBoxLayout;
    body->setSpacing(12);
    body->addWidget(makeContents());
    body->addWidget(makePage(), 1);
    layOut(body, {.right = {Command3}}, {.first = kSize, .least = kLeastSize});
    connectParts();
    fillList();
}

QWidget* HelpWindow::makeContents() {
    auto* contents = new QWidget(this);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(tr("Look for"));
    Text1->setClearButtonEnabled(true);
    Text1->installEventFilter(this);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(tr("Contents"));
    List1->setDragEnabled(false);
    auto* column = new QVBoxLayout(contents);
    column->setContentsMargins({});
    column->setSpacing(4);
    column->addWidget(makeLabel(tr("&Look for:"), Text1));
    column->addWidget(Text1);
    column->addSpacing(8);
    column->addWidget(makeListFrame(List1, contents), 1);
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
    connect(Text1, &QLineEdit::returnPressed, this, [this] { openHit(0); });
    const auto openAt = [this](const QModelIndex& index) {
        openHit(static_cast<std::size_t>(index.row()));
    };
    connect(List1, &EntryList::clicked, this, openAt);
    connect(List1, &EntryList::activated, this, openAt);
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
    bringToFront();
    Browser1->setFocus();
}

void HelpWindow::fillList() {
    hits_ = index_.matching(fromQt(Text1->text(), codePage_));
    std::vector<std::string> lines;
    for (const HelpHit& hit : hits_)
        lines.push_back(hit.line);
    List1->setLines(std::move(lines));
    markTopic();
}

void HelpWindow::openHit(std::size_t hit) {
    if (hit < hits_.size())
        Browser1->open(toQt(hits_[hit].topic, codePage_));
}

// Selects the line of the page on show, if it is in the list.
void HelpWindow::markTopic() {
    const std::string topic = fromQt(Browser1->topic(), codePage_);
    const auto found = std::find_if(hits_.begin(), hits_.end(),
                                    [&](const HelpHit& hit) { return hit.topic == topic; });
    if (found == hits_.end())
        List1->clearLineSelection();
    else
        List1->selectLine(found->line);
}

// Down goes on into the list.
bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Text1 && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down && !hits_.empty()) {
        if (!List1->hasSelection())
            List1->selectLine(hits_.front().line);
        List1->setFocus(Qt::TabFocusReason);
        return true;
    }
    return Dialog::eventFilter(watched, event);
}

}  // namespace velmora
