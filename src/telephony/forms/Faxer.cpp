#include "telephony/forms/Faxer.h"

#include <QFrame>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/DialogButton.h"
#include "platform/controls/ElidedLabel.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(420, 284);
constexpr QSize kLeastSize(360, 200);
constexpr int kRowGap = 8;

}  // namespace

Faxer::Faxer(Fax& fax, const CodePage& codePage, QWidget* parent)
    : Dialog("Faxer", QStringLiteral("Send Fax"), parent),
      fax_(fax),
      codePage_(codePage),
      List1(new EntryList(codePage, nullptr, this)),
      Printer(new ElidedLabel(Qt::ElideRight, this)),
      Command1(makeDialogButton("Command1", "&Use this Device to Send Fax", this)),
      Command2(makeDialogButton("Command2", "&Close", this)) {
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(QStringLiteral("Printers"));
    List1->setDragEnabled(false);
    Printer->setObjectName(QStringLiteral("Printer"));
    Printer->setProperty("role", QStringLiteral("hint"));
    arrange();
    connect(Command1, &QPushButton::clicked, this, &Faxer::send);
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
}

void Faxer::arrange() {
    QFrame* frame = makeListFrame(List1, this);
    auto* body = new QVBoxLayout;
    body->setSpacing(kRowGap);
    body->addWidget(frame, 1);
    body->addWidget(Printer);
    layOut(body, {.right = {Command1, Command2}, .primary = Command1},
           {.first = kFormSize, .least = kLeastSize});
    setTabStops({List1});
}

QWidget* Faxer::firstField() const {
    return List1;
}

void Faxer::present() {
    if (!fax_.begin())
        return;
    Dialog::present();
    listQueues();
}

// Events run while the print system is asked, in which the form may be closed.
void Faxer::listQueues() {
    const QPointer<Faxer> alive(this);
    const std::string chosen = List1->selectedLine();
    List1->setEmptyText(QStringLiteral("Asking the print system..."));
    Command1->setEnabled(false);
    std::vector<std::string> queues = fax_.queues();
    if (!alive)
        return;
    List1->setEmptyText(QStringLiteral("There is no printer."));
    List1->setLines(std::move(queues));
    List1->selectLine(chosen);
    Command1->setEnabled(true);
    tellPrinter();
}

// One job at a time.
void Faxer::send() {
    const QPointer<Faxer> alive(this);
    QWidget* keys = focusWidget();
    Command1->setEnabled(false);
    fax_.send(List1->selectedLine());
    if (!alive)
        return;
    Command1->setEnabled(true);
    if (keys)
        keys->setFocus();
    tellPrinter();
}

void Faxer::tellPrinter() {
    Printer->setText(QStringLiteral("The printer now: ") + toQt(fax_.currentQueue(), codePage_));
}

}  // namespace velmora
