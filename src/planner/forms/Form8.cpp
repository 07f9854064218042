#include "planner/forms/Form8.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "platform/Failure.h"
#include "platform/Twips.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/controls/Type.h"
#include "platform/qt/QtText.h"
#include "platform/qt/WindowPlace.h"

namespace velmora {
namespace {

constexpr int kRowGap = 12;
constexpr QSize kFormSize(540, 306);
constexpr QPoint kBesideCorner(620 / kTwipsPerPixel, 50 / kTwipsPerPixel);
constexpr int kInterval = 60000;  // milliseconds

}  // namespace

Form8::Form8(const Reminders& events, const CodePage& codePage)
    : Dialog("Form8", QStringLiteral("Events for Today:"), nullptr),
      events_(events),
      codePage_(codePage),
      lines_(events.Open()),
      Timer1(new QTimer(this)) {
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint |
                   Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_QuitOnClose, false);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    connect(Timer1, &QTimer::timeout, this, &Form8::rebuild);
    Timer1->start(kInterval);
}

void Form8::makeControls() {
    if (List1)
        return;
    Label1 = new QLabel(QStringLiteral("Events and Occasions Occurring Today:"), this);
    Label1->setObjectName(QStringLiteral("Label1"));
    setType(*Label1, 10.5, QFont::DemiBold);
    List1 = new EntryList(codePage_, nullptr, this);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(Label1->text());
    List1->setDragEnabled(false);
    List1->setStrongLines(&isEventOfToday);
    List1->setLines(lines_);
    Label1->setBuddy(List1);
    makeButtons();
    arrange();
    connectControls();
}

void Form8::makeButtons() {
    Command1 = makeDialogButton("Command1", "&Close", this);
    Command2 = makeDialogButton("Command2", "&Datewarden", this);
    Command3 = makeDialogButton("Command3", "&Print", this);
    Command5 = makeDialogButton("Command5", "&Monthly", this);
    Command6 = makeDialogButton("Command6", "&Weekly", this);
}

void Form8::arrange() {
    QFrame* frame = makeListFrame(List1, this);
    auto* body = new QVBoxLayout;
    body->setSpacing(kRowGap);
    body->addWidget(Label1);
    body->addWidget(frame, 1);
    layOut(body,
           {.left = {Command3},
            .right = {Command2, Command5, Command6, Command1},
            .primary = Command1},
           {.first = kFormSize});
    setTabStops({List1});
    Command1->setFocus();
}

void Form8::connectControls() {
    connect(Command1, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command2, &QPushButton::clicked, this, &Form8::datewardenWanted);
    connect(Command3, &QPushButton::clicked, this, [this] {
        const std::vector<std::string> lines = lines_;  // the list may change meanwhile
        emit printWanted(lines);
    });
    connect(Command5, &QPushButton::clicked, this, &Form8::monthlyWanted);
    connect(Command6, &QPushButton::clicked, this, &Form8::weeklyWanted);
}

// A list that can not be read stays as it was: a box for each minute that nobody is there would
// help nobody. The same lines stay as they are, so that the list does not jump while it is read.
void Form8::rebuild() {
    ignoringErrors([this] {
        std::vector<std::string> lines = events_.Lines();
        if (lines == lines_)
            return;
        lines_ = std::move(lines);
        if (List1)
            List1->setLines(lines_);
    });
}

void Form8::place() {
    if (!beside_)
        return;
    move(beside_->pos() + kBesideCorner);
    moveInto(beside_->screen()->availableGeometry(), *this);
}

void Form8::showBeside(const QWidget& window) {
    makeControls();
    beside_ = &window;
    bringToFront();
}

void Form8::presentBeside(const QWidget& window) {
    rebuild();
    showBeside(window);
}

}  // namespace velmora
