#include "planner/forms/AlarmAlert.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/Text.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/DialogFooter.h"
#include "platform/controls/Type.h"
#include "platform/qt/Icons.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kMargin = 20;
constexpr int kIconBox = 60;
constexpr int kIconGap = 18;
constexpr QSize kIcon(32, 32);
constexpr QSize kFormSize(480, 188);
constexpr double kMostOfScreen = 0.5;

}  // namespace

AlarmAlert::AlarmAlert(const CodePage& codePage)
    : QDialog(nullptr),
      codePage_(codePage),
      Label1(new QLabel(QStringLiteral("ALARM"), this)),
      Label2(new QLabel(this)),
      scroll_(new QScrollArea(this)),
      Command1(makeDialogButton("Command1", "&Ok", this)),
      Command2(makeDialogButton("Command2", "5 Minute &Snooze", this)),
      Command3(makeDialogButton("Command3", "10 &Minute Snooze", this)) {
    // A plain window: a dialog would go down with the main window when that is minimised.
    setWindowFlags(Qt::Window | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setObjectName(QStringLiteral("AlarmAlert"));
    setWindowTitle(QStringLiteral("Velmora - Alarm"));
    Label1->setObjectName(QStringLiteral("Label1"));
    setType(*Label1, 21, QFont::Bold);
    Label2->setObjectName(QStringLiteral("Label2"));
    Label2->setTextFormat(Qt::PlainText);
    Label2->setWordWrap(true);
    Label2->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    setType(*Label2, 11.25);
    makePrimary(*Command1);
    layOut();
    connect(Command1, &QPushButton::clicked, this, &AlarmAlert::okPressed);
    connect(Command2, &QPushButton::clicked, this, [this] { emit snoozePressed(5); });
    connect(Command3, &QPushButton::clicked, this, [this] { emit snoozePressed(10); });
}

void AlarmAlert::layOut() {
    auto* icon = new QLabel(this);
    icon->setProperty("role", QStringLiteral("alarm"));
    icon->setFixedSize(kIconBox, kIconBox);
    icon->setAlignment(Qt::AlignCenter);
    icon->setPixmap(symbolPixmap(QStringLiteral("Alarm"), kIcon, devicePixelRatioF(),
                                 Theme::of(*this).amberink));

    scroll_->setWidget(Label2);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->viewport()->setAutoFillBackground(false);
    Label2->setAutoFillBackground(false);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(Label1);
    texts->addWidget(scroll_, 1);
    auto* body = new QHBoxLayout;
    body->setContentsMargins(kMargin, kMargin, kMargin, 12);
    body->setSpacing(kIconGap);
    body->addWidget(icon, 0, Qt::AlignTop);
    body->addLayout(texts, 1);

    auto* footer = new DialogFooter(this);
    footer->addLeft(Command2);
    footer->addLeft(Command3);
    footer->addRight(Command1);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins({});
    whole->setSpacing(0);
    whole->addLayout(body, 1);
    whole->addWidget(footer);
    setTabOrder(Command2, Command3);
    setTabOrder(Command3, Command1);
}

void AlarmAlert::present(const std::string& message) {
    Label2->setText(toQt(withLf(message), codePage_));
    if (isVisible()) {
        fitToMessage();
        raise();
        return;
    }
    scroll_->setMinimumHeight(0);  // as the last message left it
    layout()->activate();
    resize(kFormSize);
    fitToMessage();
    centre();
    Command1->setFocus();
    show();
    raise();
}

// The form grows with the messages that pile up in it, up to a part of the screen; then they
// scroll.
void AlarmAlert::fitToMessage() {
    Label2->ensurePolished();
    const int room = width() - 2 * kMargin - kIconBox - kIconGap;
    const int most = static_cast<int>(screen()->availableGeometry().height() * kMostOfScreen);
    scroll_->setMinimumHeight(std::min(Label2->heightForWidth(room), most));
    layout()->activate();
    resize(size().expandedTo(minimumSizeHint()));
    scroll_->ensureVisible(0, 0);
}

void AlarmAlert::centre() {
    const QRect place = screen()->availableGeometry();
    move(place.center() - rect().center());
}

void AlarmAlert::closeEvent(QCloseEvent* event) {
    emit okPressed();
    event->accept();  // or the program could not end while the alert is open
}

void AlarmAlert::reject() {
    emit okPressed();
}

}  // namespace velmora
