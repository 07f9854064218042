#include "app/DialerRoom.h"

#include <QLabel>
#include <QPushButton>

#include "core/forms/PhonebookPage.h"
#include "core/forms/StatusBar.h"
#include "platform/controls/Keypad.h"
#include "telephony/NumberDisplay.h"
#include "telephony/forms/DialerPage.h"

namespace velmora {

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

DialerRoom::DialerRoom(Calendar& calendar, DialerPage& page) : calendar_(calendar), page_(page) {
    connectKeypad();
    connectWhatIsNotBuilt();
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

void DialerRoom::connectWhatIsNotBuilt() {
    PhonebookPage& phonebook = calendar_.phonebookPage();
    for (QPushButton* button :
         {page_.sendButton(), page_.hangUpButton(), page_.externalButton(), phonebook.mailButton(),
          phonebook.webButton(), phonebook.fileButton()})
        QObject::connect(button, &QPushButton::clicked, &connections_,
                         [this] { calendar_.status().show(kNotYet); });
}

}  // namespace velmora
