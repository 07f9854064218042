#include "exchange/forms/DataImport.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "core/DataLocations.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/DialogFooter.h"
#include "platform/controls/ElidedLabel.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/controls/ProgressLine.h"
#include "platform/controls/Type.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(500, 522);
constexpr QSize kLeastSize(420, 120);
constexpr int kRunningHeight = 134;
constexpr int kLeastListHeight = 120;
constexpr int kGap = 8;
constexpr int kOptionGap = 24;
constexpr int kStepsHeight = 4;
constexpr int kProgressHeight = 8;
constexpr qreal kQuestionSize = 12;    // points
constexpr qreal kProgressSize = 10.5;  // points

const QString kImporting = QStringLiteral("IMPORTING DATA... Please Wait Until Completed.");

QLabel* makeText(const char* name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

}  // namespace

DataImport::DataImport(ImportWizard& wizard, Import import, const CodePage& codePage,
                       QWidget* parent)
    : Dialog("DataImport", QStringLiteral("Import Wizard"), parent),
      wizard_(wizard),
      import_(std::move(import)),
      codePage_(codePage) {
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    makeControls();
    arrange();
    connectControls();
}

void DataImport::makeControls() {
    Label1 = makeText("Label1", this);
    setType(*Label1, kQuestionSize, QFont::DemiBold);
    Label2 = makeText("Label2", this);
    Label2->setWordWrap(false);
    setType(*Label2, kProgressSize, QFont::DemiBold);
    Label3 = makeLabel(QStringLiteral("Double-Click Your Selection:"), nullptr);
    Label3->setObjectName(QStringLiteral("Label3"));
    Remark = makeText("Remark", this);
    Remark->setProperty("role", QStringLiteral("hint"));
    Note = makeText("Note", this);
    Note->setProperty("role", QStringLiteral("hint"));
    Note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Sample = new ElidedLabel(Qt::ElideRight, this);
    Sample->setObjectName(QStringLiteral("Sample"));
    Sample->setProperty("role", QStringLiteral("hint"));
    Steps = new ProgressLine(kStepsHeight, this);
    Steps->setObjectName(QStringLiteral("Steps"));
    Progress = new ProgressLine(kProgressHeight, this);
    Progress->setObjectName(QStringLiteral("Progress"));
    List1 = new EntryList(codePage_, nullptr, this);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(QStringLiteral("Columns"));
    List1->setDragEnabled(false);
    List1->setMinimumHeight(kLeastListHeight);
    frame_ = makeListFrame(List1, this);
    Option1 = new QRadioButton(QStringLiteral("Import to Yellow Pages"), this);
    Option1->setObjectName(QStringLiteral("Option1"));
    Option2 = new QRadioButton(QStringLiteral("Import to White Pages"), this);
    Option2->setObjectName(QStringLiteral("Option2"));
    Command1 = makeDialogButton("Command1", "&Cancel", this);
    Command2 = makeDialogButton("Command2", "&Import!", this);
    Command3 = makeDialogButton("Command3", "&Import!", this);
}

void DataImport::arrange() {
    auto* options = new QHBoxLayout;
    options->setSpacing(kOptionGap);
    options->addWidget(Option1);
    options->addWidget(Option2);
    options->addStretch(1);
    auto* body = new QVBoxLayout;
    body->setSpacing(kGap);
    body->addStretch(0);  // while the list is hidden, what is left stands in the middle
    body->addWidget(Label1);
    body->addWidget(Steps);
    body->addWidget(Remark);
    body->addWidget(Label3);
    body->addWidget(frame_, 1);
    body->addWidget(Sample);
    body->addLayout(options);
    body->addWidget(Label2);
    body->addWidget(Progress);
    body->addWidget(Note);
    body->addStretch(0);
    layOut(body, {.right = {Command2, Command3, Command1}},
           {.first = kFormSize, .least = kLeastSize});
    setTabStops({List1, Option1, Option2});
}

void DataImport::connectControls() {
    // A choice opens boxes and moves the keys, so the key that made it has to be done with first.
    connect(List1, &EntryList::lineActivated, this, &DataImport::choose, Qt::QueuedConnection);
    connect(List1, &EntryList::currentLineChanged, this, &DataImport::showSample);
    connect(Command1, &QPushButton::clicked, this, &DataImport::reject);
    connect(Command2, &QPushButton::clicked, this, &DataImport::run);
    connect(Command3, &QPushButton::clicked, this, &DataImport::run);
}

QWidget* DataImport::firstField() const {
    return List1;
}

void DataImport::presentFor(bool yellow) {
    (yellow ? Option1 : Option2)->setChecked(true);
    Command1->setText(QStringLiteral("&Cancel"));
    closeWanted_ = false;
    footer().show();
    showQuestionParts(true);
    showQuestion();
    takeHeight(kFormSize.height());
    present();
}

void DataImport::showQuestionParts(bool shown) {
    for (QWidget* part :
         std::initializer_list<QWidget*>{Label1, Steps, Label3, frame_, Sample, Option1, Option2})
        part->setVisible(shown);
    Remark->setVisible(shown && !Remark->text().isEmpty());
    Label2->setVisible(!shown);
    Progress->setVisible(!shown);
    Note->setVisible(!shown && !Note->text().isEmpty());
}

// What is asked now, with the line that most likely is meant.
void DataImport::showQuestion() {
    const bool ready = wizard_.stage() == ImportWizard::Stage::Ready;
    Label1->setText(ready ? QStringLiteral("Press the Import Button to begin importing.")
                          : toQt(wizard_.question(), codePage_));
    Steps->setProgress(wizard_.step(), kImportSteps);
    Remark->setText(toQt(wizard_.remark(), codePage_));
    Remark->setVisible(!Remark->text().isEmpty());
    Command2->setVisible(ready && !wizard_.isText());
    Command3->setVisible(ready && wizard_.isText());
    if (List1->lines() != wizard_.lines())
        List1->setLines(wizard_.lines());
    if (ready) {
        QPushButton* import = wizard_.isText() ? Command3 : Command2;
        makePrimary(*import);
        import->setFocus();
        Sample->clear();
        return;
    }
    List1->setCurrentIndex(List1->model()->index(static_cast<int>(wizard_.proposedLine()), 0));
    List1->setFocus();
    showSample();
}

void DataImport::showSample() {
    const QModelIndex line = List1->currentIndex();
    Sample->setText(line.isValid() && List1->hasSelection()
                        ? toQt(wizard_.sampleOf(static_cast<std::size_t>(line.row())), codePage_)
                        : QString());
}

void DataImport::choose() {
    const QModelIndex line = List1->currentIndex();
    if (running_ || choosing_ || !line.isValid() || !List1->hasSelection())
        return;
    const QScopedValueRollback<bool> choosing(choosing_, true);
    wizard_.choose(static_cast<std::size_t>(line.row()));
    if (isVisible())
        showQuestion();
}

void DataImport::run() {
    if (running_)
        return;
    bool begun = false;
    {
        const QScopedValueRollback<bool> running(running_, true);
        Label2->setText(kImporting);
        Note->clear();
        Progress->setProgress(0, 1);
        showQuestionParts(false);
        Command2->hide();
        Command3->hide();
        footer().hide();
        takeHeight(kRunningHeight);
        begun = import_(Option1->isChecked() ? kYellowPagesFile : kWhitePagesFile,
                        [this](const ImportRun::State& state) { showRunning(state); });
    }
    footer().show();
    if (begun) {
        showEnd();
        return;
    }
    showQuestionParts(true);
    showQuestion();
    takeHeight(kFormSize.height());
}

void DataImport::showRunning(const ImportRun::State& state) {
    Label2->setText(state.record == 0
                        ? kImporting
                        : kImporting + QStringLiteral("  Record #%1").arg(state.record));
    Progress->setVisible(state.progress.all > 0);
    if (state.progress.all > 0)
        Progress->setProgress(static_cast<qint64>(state.progress.done),
                              static_cast<qint64>(state.progress.all));
    Note->setText(state.heldUp ? QStringLiteral("Waiting for another copy of Velmora, which is "
                                                "using this phonebook.")
                               : QString());
    Note->setVisible(state.heldUp);
}

void DataImport::showEnd() {
    const ImportReport& report = wizard_.report();
    Label2->setText(report.isWhole() ? QStringLiteral(" F I N I S H E D !")
                                     : QStringLiteral("The import did not come to its end."));
    Progress->setVisible(report.isWhole());
    Progress->setProgress(1, 1);
    Note->setText(toQt(wizard_.reportText(), codePage_));
    Note->show();
    Command1->setText(QStringLiteral("Close"));
    makePrimary(*Command1);
    takeHeight(kRunningHeight);
    Command1->setFocus();
    if (closeWanted_)
        Dialog::reject();
}

// As high as this, or as what is to be seen needs.
void DataImport::takeHeight(int height) {
    if (isMaximized() || isFullScreen())
        return;
    setMinimumHeight(0);
    resize(width(), height);
}

// Enter in the list chooses its line, and presses no button.
void DataImport::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || event->modifiers().testFlag(Qt::ControlModifier) || !List1->hasFocus())
        Dialog::keyPressEvent(event);
}

void DataImport::reject() {
    if (!running_)
        return Dialog::reject();
    closeWanted_ = true;
    wizard_.cancel();
}

}  // namespace velmora
