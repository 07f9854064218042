#include "exchange/forms/Form11.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <chrono>

#include "platform/controls/DialogButton.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(540, 446);
constexpr QSize kLeastSize(480, 420);
constexpr QSize kNoteIcon(20, 20);
constexpr int kLeastListHeight = 3 * 26 + 6;
constexpr int kRowGap = 12;
constexpr std::chrono::seconds kBetweenLooks(1);

}  // namespace

Form11::Form11(Backup& backup, const CodePage& codePage, QWidget* parent)
    : Dialog("Form11", QStringLiteral("Backup Phonebooks"), parent),
      backup_(backup),
      Drive1(new EntryList(codePage, nullptr, this)),
      Command1(makeDialogButton("Command1", "&Backup", this)),
      Command2(makeDialogButton("Command2", "&Cancel", this)) {
    Drive1->setObjectName(QStringLiteral("Drive1"));
    Drive1->setAccessibleName(QStringLiteral("Drives"));
    Drive1->setDragEnabled(false);
    Drive1->setMinimumHeight(kLeastListHeight);
    Drive1->setEmptyText(QStringLiteral("There is no drive to back up to. Connect one."));
    arrange();
    connect(Command1, &QPushButton::clicked, this, &Form11::backUp);
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
    connect(Drive1, &EntryList::currentLineChanged, this,
            [this] { Command1->setEnabled(Drive1->hasSelection()); });
    connect(Drive1, &EntryList::lineActivated, Command1, &QPushButton::click);
    connect(&look_, &QTimer::timeout, this, &Form11::listDrives);
}

QLabel* Form11::makeText(const char* name, const char* text) {
    auto* label = new QLabel(QString::fromLatin1(text), this);
    label->setObjectName(QString::fromLatin1(name));
    label->setWordWrap(true);
    return label;
}

QWidget* Form11::makeNote() {
    auto* note = new QFrame(this);
    note->setProperty("role", QStringLiteral("note"));
    auto* icon = new QLabel(note);
    icon->setPixmap(symbolPixmap(QStringLiteral("Note"), kNoteIcon, devicePixelRatioF(),
                                 Theme::of(*this).accent));
    QLabel* overwritten =
        makeText("Label3", "All previous backups on the diskette will be overwritten.");
    QFont strong = overwritten->font();
    strong.setWeight(QFont::DemiBold);
    overwritten->setFont(strong);
    auto* grid = new QGridLayout(note);
    grid->setContentsMargins(16, 12, 16, 12);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(4);
    grid->addWidget(icon, 0, 0);
    grid->addWidget(makeText("Label2", "Only the address books will be stored on the disk."), 0, 1);
    grid->addWidget(overwritten, 1, 1);
    grid->addWidget(makeText("Label4", "If the disk is full no data will be backed up."), 2, 1);
    grid->setColumnStretch(1, 1);
    return note;
}

void Form11::arrange() {
    QLabel* question = makeText("Label1",
                                "Please select a drive to back up to. Backups will be stored in "
                                "the root directory.");
    question->setBuddy(Drive1);
    QLabel* restore = makeText(
        "Label5",
        "To restore after a backup, simply copy the files into your VLM's directory. That's it. "
        "This function is meant for local users, not network backup.");
    QLabel* planner = makeText(
        "Label6",
        "To backup calendar (planner) data, find the planner database file, qel.mdb (either in "
        "your Velmora folder OR in the network path you specified), and copy this onto a disk. "
        "Since this file may be quite large, you may need a ZIP Disk or CD or some other media to "
        "properly store your planner database file.");
    for (QLabel* hint : {restore, planner})
        hint->setProperty("role", QStringLiteral("hint"));
    auto* body = new QVBoxLayout;
    body->setSpacing(kRowGap);
    body->addWidget(question);
    body->addWidget(makeListFrame(Drive1, this), 1);
    body->addWidget(makeNote());
    body->addWidget(restore);
    body->addWidget(planner);
    layOut(body, {.right = {Command1, Command2}, .primary = Command1},
           {.first = kFormSize, .least = kLeastSize});
    setTabStops({Drive1});
}

void Form11::present() {
    if (backup_.begin())
        Dialog::present();
}

void Form11::beginAnew() {
    Drive1->clearLines();
    listDrives();
}

QWidget* Form11::firstField() const {
    return Drive1;
}

void Form11::showEvent(QShowEvent* event) {
    look_.start(kBetweenLooks);
    Dialog::showEvent(event);
}

void Form11::hideEvent(QHideEvent* event) {
    look_.stop();
    Dialog::hideEvent(event);
}

// What is chosen stays chosen as long as it is there.
void Form11::listDrives() {
    std::vector<std::string> drives = backup_.volumes();
    if (drives != Drive1->lines()) {
        const std::string chosen = Drive1->selectedLine();
        Drive1->setLines(drives);
        if (!Drive1->selectLine(chosen) && !drives.empty())
            Drive1->selectLine(drives.front());
    }
    Command1->setEnabled(Drive1->hasSelection());
}

void Form11::backUp() {
    const std::string drive = Drive1->selectedLine();
    accept();
    backup_.run(drive);
}

}  // namespace velmora
