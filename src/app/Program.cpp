#include "app/Program.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QToolButton>

#include "core/forms/CommandMenus.h"
#include "core/forms/DialerPage.h"
#include "core/forms/DocPadColumn.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/PhonebookPage.h"
#include "core/forms/Rail.h"
#include "core/forms/StatusBar.h"
#include "core/forms/ToolStrip.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/Keypad.h"
#include "platform/controls/LetterTabs.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/SSDay.h"
#include "platform/files/ProgramFolder.h"
#include "telephony/NumberDisplay.h"

namespace velmora {
Program::Program()
    : calendar_(world_.codePage, world_.locale, dateOf(world_.clock.now()),
                {new SSDay(world_.codePage), new PadEdit(world_.codePage)}),
      panes_(calendar_, calendar_.status()),
      docPadSize_(calendar_, state_, panes_),
      clockLine_(calendar_, world_.settings, world_.clock, world_.locale),
      trayIcon_([this](unsigned message) { tray_.OnTrayMessage(message); }),
      tray_(trayIcon_, calendar_),
      store_(world_.files, world_.locations, world_.codePage),
      writer_(store_, world_.messages),
      phonebookPane_(calendar_),
      letters_(state_, store_, phonebookPane_),
      pendingWish_(
          state_, [this](int kind) { letters_.SelectBook(static_cast<std::int16_t>(kind)); },
          [this](int index) { letters_.LetterClick(index); }),
      entryRecovery_(world_.codePage.fromUtf8(configurationFolder().utf8()), world_.files,
                     world_.runningPrograms),
      entryForms_(
          {world_.messages, calendar_.status(), world_.codePage, entryRecovery_, calendar_}),
      entries_({state_, world_.settings, store_, writer_, letters_, world_.messages,
                [this] { calendar_.flipCheck1(); }},
               phonebookPane_, calendar_.status(), entryForms_),
      entryResume_(entryRecovery_, entries_, world_.messages),
      jobs_(world_, calendar_),
      docPad_(world_, state_, calendar_, entries_, jobs_.printing()),
      planner_(world_, state_, calendar_, panes_, store_,
               [this](const std::string& text) { endAfter(text); }),
      alarms_(world_, calendar_),
      events_(world_, calendar_,
              {.printing = jobs_.printing(),
               .ring = [this] { alarms_.sound().ring(); },
               .runCommand = [this](std::string_view command) { run(command); }}),
      tasks_(world_, calendar_, jobs_.printing()),
      fonts_(world_, calendar_),
      printing_(world_, calendar_, jobs_.printing()),
      accessories_(world_, calendar_),
      search_(
          world_, state_, calendar_, store_, letters_, jobs_.printing(),
          [this] { calendar_.flipCheck1(); },
          [this](const std::string& topic) { accessories_.helpAt(topic); }),
      startUp_(state_, calendar_, world_.settings, clockLine_, tray_, world_.clock, world_.locale,
               {.watchMenus = [this] { connectStatusHelp(); },
                .showLetterA = [this] { letters_.LetterClick(0); },
                .openPlannerDatabase = [this] { planner_.openDatabase(); },
                .showEvents = [this] { events_.showAtStart(); },
                .keepEventsInFront = [this] { events_.keepInFront(); },
                .setDayLimits = [this] { planner_.setDayLimits(); },
                .reopenDocument = [this] { docPad_.docPad().LoadAtStart(); },
                .colourCalendars = [this] { planner_.colourCalendars(); },
                .showToday = [this] { planner_.showToday(); }}),
      closeDown_(tray_, {.commitEditors = [this] { planner_.commitEditors(); },
                         .mayClose = [this] { return docPad_.mayClose(); },
                         .keepText = [this] { docPad_.keepForNextStart(); },
                         .keepForms = [this] { entryForms_.keepForNextStart(); },
                         .endScans = [this] { world_.loop.beginClosing(); }}) {
    bindCommands();
    connectWindow();
    connectPhonebook();
    connectDialer();
}

void Program::start() {
    // Posted twice, and so behind the events of today, above which the questions have to open.
    QObject::connect(&calendar_, &Calendar::firstPainted, &calendar_, [this] {
        world_.loop.post([this] {
            world_.loop.post([this] { tellOfDamagedSettings(); });
            world_.loop.post([this] { offerWhatWasCutOff(); });
        });
    });
    startUp_.run();
}

void Program::close() {
    calendar_.close();
}

void Program::endWithoutAsking() {
    closeDown_.runWithoutAsking();
    QCoreApplication::exit(0);
}

void Program::offerWhatWasCutOff() {
    docPad_.docPad().offerRecovery();
    if (!world_.loop.closing())
        entryResume_.offer();
}

void Program::bindCommands() {
    commands_.bind("twentyfourhr", [this] { clockLine_.toggleTwentyFourHours(); });
    commands_.bind("exitmnu", [this] { calendar_.close(); });
    commands_.bind("addmnu", [this] { entries_.newEntry(); });
    commands_.bind("chngmnu", [this] { entries_.changeEntry(); });
    commands_.bind("Delete", [this] { entries_.deleteEntry(); });
    commands_.bind("Yellow", [this] { letters_.SelectBook(kYellowPages); });
    commands_.bind("White", [this] { letters_.SelectBook(kWhitePages); });
    commands_.bind("Planner", [this] { panes_.show(Pane::Planner); });
    commands_.bind("Phonebook", [this] { panes_.show(Pane::Phonebook); });
    commands_.bind("dialmnu", [this] { panes_.show(Pane::Dialer); });
    docPad_.bindCommands(commands_);
    planner_.bindCommands(commands_);
    events_.bindCommands(commands_);
    alarms_.bindCommands(commands_);
    tasks_.bindCommands(commands_);
    accessories_.bindCommands(commands_);
    search_.bindCommands(commands_);
    fonts_.bindCommands(commands_);
    printing_.bindCommands(commands_);

    const auto bound = [this](std::string_view name) { return commands_.isBound(name); };
    calendar_.menus().setItemsEnabled(bound);
    calendar_.mainKeys().setKeyEnabled(bound);
    calendar_.phonebookPage().contactKeys()->setKeyEnabled(bound);
}

void Program::run(std::string_view command) {
    if (commands_.isBound(command))
        commands_.run(command);
}

void Program::connectWindow() {
    const auto runRow = [this](const auto& row) { run(row.name); };
    QObject::connect(&calendar_.menus(), &CommandMenus::chosen, &calendar_, runRow);
    QObject::connect(&calendar_.menus(), &CommandMenus::opening, &calendar_,
                     [this](const MenuRow& head) {
                         if (head.name == "planmnu")
                             panes_.show(Pane::Planner);
                         if (head.name == "vlmmnu")
                             panes_.show(Pane::Phonebook);
                     });
    for (ToolStrip* strip : {&calendar_.mainKeys(), calendar_.phonebookPage().contactKeys(),
                             calendar_.leftColumn().bookKeys()})
        QObject::connect(strip, &ToolStrip::chosen, &calendar_,
                         [this](const ToolRow& row) { run(row.command); });
    QObject::connect(&calendar_.rail(), &Rail::paneChosen, &calendar_,
                     [this](Pane pane) { panes_.show(pane); });
    QObject::connect(&calendar_, &Calendar::clockTicked, &calendar_, [this] {
        clockLine_.tick();
        planner_.tick();
    });
    QObject::connect(&calendar_, &Calendar::check1Flipped, &calendar_,
                     [this] { pendingWish_.flipped(); });
    QObject::connect(calendar_.docPad().growButton(), &QToolButton::clicked, &calendar_,
                     [this] { docPadSize_.maximise(); });
    QObject::connect(calendar_.docPad().shrinkButton(), &QToolButton::clicked, &calendar_,
                     [this] { docPadSize_.restore(); });
    calendar_.onCloseRequest([this] { return closeDown_.run(); });
    QObject::connect(&calendar_, &Calendar::closing, &calendar_, [] { QCoreApplication::exit(0); });
}

void Program::connectPhonebook() {
    QObject::connect(calendar_.phonebookPage().letterTabs(), &LetterTabs::clicked, &calendar_,
                     [this](int index) { letters_.LetterClick(index); });
    QObject::connect(calendar_.leftColumn().list(), &EntryList::lineClicked, &calendar_,
                     [this] { letters_.ListClick(); });
    QObject::connect(calendar_.phonebookPage().moveButton(), &QPushButton::clicked, &calendar_,
                     [this] { entries_.moveEntry(); });
}

void Program::connectDialer() {
    DialerPage& page = calendar_.dialerPage();
    QObject::connect(page.keypad(), &Keypad::pressed, &calendar_, [this](char key) {
        calendar_.setLastNumber(withKey(calendar_.number(), key));
    });
    QObject::connect(page.backButton(), &QPushButton::clicked, &calendar_,
                     [this] { calendar_.setLastNumber(withoutLast(calendar_.number())); });
    QObject::connect(page.clearButton(), &QPushButton::clicked, &calendar_,
                     [this] { calendar_.setLastNumber(""); });
    PhonebookPage& phonebook = calendar_.phonebookPage();
    for (QPushButton* button :
         {page.sendButton(), page.hangUpButton(), page.externalButton(), phonebook.mailButton(),
          phonebook.webButton(), phonebook.fileButton()})
        QObject::connect(button, &QPushButton::clicked, &calendar_,
                         [this] { calendar_.status().show(kNotYet); });
}

void Program::connectStatusHelp() {
    StatusBar& status = calendar_.status();
    QObject::connect(&calendar_.menus(), &CommandMenus::highlighted, &calendar_,
                     [this, &status](const MenuRow& row) {
                         if (const auto text = menuHelp_.helpOf(row))
                             status.show(*text);
                     });
    for (ToolStrip* strip : {&calendar_.mainKeys(), calendar_.phonebookPage().contactKeys(),
                             calendar_.leftColumn().bookKeys()})
        QObject::connect(strip, &ToolStrip::hovered, &calendar_,
                         [this, &status](const ToolRow& row) {
                             const auto text = hoverText(row, calendar_.dayViewShown());
                             if (!text.empty())
                                 status.show(std::string(text));
                         });
    QObject::connect(&calendar_.rail(), &Rail::paneHovered, &calendar_,
                     [&status](Pane pane) { status.show(paneHoverText(pane)); });
    QObject::connect(&calendar_.rail(), &Rail::cancelHovered, &calendar_,
                     [&status] { status.show("Click This Printer Icon to Cancel Print Job."); });
    QObject::connect(calendar_.phonebookPage().letterTabs(), &LetterTabs::hovered, &calendar_,
                     [&status] { status.show("Click a letter."); });
}

void Program::tellOfDamagedSettings() {
    if (const auto& file = world_.settingsMedium.putAside())
        world_.messages.tell(kApplicationTitle,
                             "The settings were damaged and begin anew. The damaged file was kept "
                             "as " +
                                 world_.codePage.fromUtf8(file->utf8()) + ".");
}

void Program::endAfter(const std::string& utf8Text) {
    world_.messages.standardError(utf8Text);
    calendar_.close();
}

}  // namespace velmora
