#include "app/DialerRoom.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <string_view>

#include "core/forms/PhonebookPage.h"
#include "core/forms/StatusBar.h"
#include "platform/controls/Keypad.h"
#include "platform/files/SystemFolders.h"
#include "telephony/KeypadNumber.h"
#include "telephony/forms/DialerPage.h"

namespace velmora {
namespace {

constexpr std::string_view kTypedKeys = "0123456789*,";

}  // namespace

Calendar::Dialer partsOf(DialerPage& page) {
    return {.page = &page,
            .number = page.number(),
            .keypad = page.keypad(),
            .send = page.sendButton(),
            .hangUp = page.hangUpButton(),
            .back = page.backButton(),
            .clear = page.clearButton(),
            .externalOne = page.externalButton(),
            .setSmall = [&page](bool small) { page.setSmall(small); }};
}

void CalendarDialerPane::enableSend(bool enabled) {
    page_.sendButton()->setEnabled(enabled);
}

void CalendarDialerPane::enableHangUp(bool enabled) {
    page_.hangUpButton()->setEnabled(enabled);
}

void CalendarDialerPane::showCallHangUp(bool shown) {
    calendar_.phonebookPage().hangUpButton()->setVisible(shown);
}

DialerRoom::DialerRoom(World& world, const SharedState& state, Calendar& calendar, DialerPage& page,
                       const PhonebookStore& phonebook)
    : calendar_(calendar),
      page_(page),
      list_(calendar),
      entry_(state, phonebook, list_),
      pane_(calendar, page),
      log_(world.locations.programFolder(), world.files, world.clock, world.locale),
      dialer_({port_, world.settings, entry_, log_, pane_, calendar.status(), world.messages,
               world.loop, world.codePage}),
      starter_(world.codePage),
      externalDialer_(world.settings, world.files, starter_, keys_, world.codePage,
                      kSystemPrograms) {
    connectKeypad();
    connectCalls();
    calendar_.installEventFilter(this);
}

void DialerRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::dialp, [this] { dialer_.dialEntry(Field::Phone); });
    commands.bind(Commands::dialwn, [this] { dialer_.dialEntry(Field::WorkPhone); });
    commands.bind(Commands::DialoOtherMnu, [this] { dialer_.dialEntry(Field::OtherPhone); });
}

void DialerRoom::connectKeypad() {
    QObject::connect(page_.keypad(), &Keypad::pressed, &connections_, [this](char key) {
        calendar_.setLastNumber(withKey(calendar_.number(), key));
    });
    QObject::connect(page_.backButton(), &QPushButton::clicked, &connections_,
                     [this] { calendar_.setLastNumber(withoutLast(calendar_.number())); });
    QObject::connect(page_.clearButton(), &QPushButton::clicked, &connections_,
                     [this] { calendar_.setLastNumber(""); });
}

void DialerRoom::connectCalls() {
    QObject::connect(page_.sendButton(), &QPushButton::clicked, &connections_,
                     [this] { dialer_.Send(); });
    QObject::connect(page_.hangUpButton(), &QPushButton::clicked, &connections_,
                     [this] { dialer_.hangUp(); });
    QObject::connect(calendar_.phonebookPage().hangUpButton(), &QPushButton::clicked, &connections_,
                     [this] { dialer_.hangUpCall(); });
    QObject::connect(page_.externalButton(), &QPushButton::clicked, &connections_,
                     [this] { externalDialer_.start(calendar_.number()); });
}

bool DialerRoom::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !page_.keypad()->isVisible())
        return QObject::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const QString text = key.text();
    if (text.size() != 1 || key.modifiers().testFlag(Qt::ControlModifier) ||
        key.modifiers().testFlag(Qt::AltModifier) ||
        kTypedKeys.find(text.front().toLatin1()) == std::string_view::npos)
        return QObject::eventFilter(watched, event);
    press(text.front().toLatin1());
    return true;
}

void DialerRoom::press(char key) {
    page_.keypad()->flash(key);
    calendar_.setLastNumber(withKey(calendar_.number(), key));
}

}  // namespace velmora
