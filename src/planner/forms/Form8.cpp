#include "planner/forms/Form8.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "platform/Failure.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/DialogFooter.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kMargin = 16;
constexpr int kRowGap = 12;
constexpr QSize kFormSize(540, 306);
constexpr int kTwipsPerPixel = 15;
constexpr QPoint kBesideCorner(620 / kTwipsPerPixel, 50 / kTwipsPerPixel);
constexpr int kInterval = 60000;  // milliseconds

}  // namespace

Form8::Form8(const EventsForToday& events, const CodePage& codePage)
    : events_(events), codePage_(codePage), lines_(events.Open()), Timer1(new QTimer(this)) {
    setObjectName(QStringLiteral("Form8"));
    setWindowTitle(QStringLiteral("Events for Today:"));
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
    QFont heading = Label1->font();
    heading.setPointSizeF(10.5);
    heading.setWeight(QFont::DemiBold);
    Label1->setFont(heading);
    List1 = new EntryList(codePage_, nullptr, this);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(Label1->text());
    List1->setDragEnabled(false);
    List1->setStrongLines(&isEventOfToday);
    List1->setLines(lines_);
    Label1->setBuddy(List1);
    makeButtons();
    layOut();
    connectControls();
}

void Form8::makeButtons() {
    Command1 = makeDialogButton("Command1", "&Close", this);
    Command2 = makeDialogButton("Command2", "&Datewarden", this);
    Command3 = makeDialogButton("Command3", "&Print", this);
    Command5 = makeDialogButton("Command5", "&Monthly", this);
    Command6 = makeDialogButton("Command6", "&Weekly", this);
    makePrimary(*Command1);
}

void Form8::layOut() {
    QFrame* frame = makeListFrame(List1, this);
    auto* body = new QVBoxLayout;
    body->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    body->setSpacing(kRowGap);
    body->addWidget(Label1);
    body->addWidget(frame, 1);
    auto* footer = new DialogFooter(this);
    footer->addLeft(Command3);
    footer->addRight(Command2);
    footer->addRight(Command5);
    footer->addRight(Command6);
    footer->addRight(Command1);
    layOutDialog(*this, body, footer);
    resize(kFormSize.expandedTo(minimumSizeHint()));
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

void Form8::placeBeside(const QWidget& window) {
    makeControls();
    const QRect room = window.screen()->availableGeometry();
    const QSize frame = window.frameGeometry().size() - window.size();
    const QPoint last = room.bottomRight() - QRect(QPoint(), size() + frame).bottomRight();
    const QPoint wanted = window.pos() + kBesideCorner;
    move(std::max(std::min(wanted.x(), last.x()), room.left()),
         std::max(std::min(wanted.y(), last.y()), room.top()));
}

void Form8::showBeside(const QWidget& window) {
    placeBeside(window);
    setAttribute(Qt::WA_ShowWithoutActivating);
    show();
    setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void Form8::presentBeside(const QWidget& window) {
    rebuild();
    if (!isVisible())
        placeBeside(window);
    show();
    raise();
    activateWindow();
}

}  // namespace velmora
