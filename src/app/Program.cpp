#include "app/Program.h"

#include <QCoreApplication>
#include <utility>

#include "core/forms/StatusBar.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/SSDay.h"
#include "platform/qt/ActivationToken.h"
#include "telephony/AnnouncedCaller.h"
#include "telephony/TelephoneLink.h"
#include "telephony/forms/DialerPage.h"

namespace velmora {

Program::Program(const NativePath& nativeProgramFolder, CallServices callServices)
    : world_(nativeProgramFolder),
      dialerPage_(new DialerPage),
      calendar_(world_.codePage, world_.locale, dateOf(world_.clock.now()),
                {new SSDay(world_.codePage), new PadEdit(world_.codePage), partsOf(*dialerPage_)}),
      desktop_(world_.loop,
               {.show = [this](const std::string& token) { bringToFront(token); },
                .open =
                    [this](const std::vector<std::string>& links, const std::string& token) {
                        bringToFront(token);
                        openLinks(links);
                    },
                .noticeClicked =
                    [this](const std::string& subject, const std::string& token) {
                        const ActivationToken given(token);
                        answerNotice(subject);
                    }}),
      windowRoom_(world_, state_, calendar_, commands_),
      phonebook_(world_, state_, calendar_),
      dialer_(world_, state_, calendar_, *dialerPage_, phonebook_.store()),
      callers_(world_, calendar_, phonebook_.store(), phonebook_.entries(), desktop_.notices(),
               std::move(callServices)),
      outside_(world_, state_, calendar_, phonebook_.store()),
      jobs_(world_, calendar_),
      docPad_(world_, state_, calendar_, phonebook_.entries(), jobs_.printing()),
      letterRoom_(world_, state_, calendar_, phonebook_.store(), jobs_.printing(), docPad_.text(),
                  [this](const std::string& text) { endAfter(text); }),
      planner_(world_, state_, calendar_, windowRoom_.panes(), phonebook_.writer(),
               [this](const std::string& text) { endAfter(text); }),
      alarms_(world_, calendar_, desktop_.notices()),
      events_(world_, calendar_,
              {.printing = jobs_.printing(),
               .ring = [this] { alarms_.sound().ring(); },
               .runCommand = [this](CommandName command) { run(command); }}),
      tasks_(world_, calendar_, jobs_.printing()),
      fax_(world_, calendar_, docPad_.text(), jobs_.printing()),
      fonts_(world_, calendar_),
      reports_(world_, calendar_, phonebook_.store(), jobs_.printing(),
               {.mergePrint = [this](ReportBooks books) { letterRoom_.print(books); },
                .endProgram = [this](const std::string& text) { endAfter(text); }}),
      export_(world_, state_, calendar_, phonebook_.store(), jobs_.jobs(), jobs_.printing().state(),
              [this](const std::string& text) { endAfter(text); }),
      backup_(world_, calendar_, phonebook_.books(), jobs_.jobs()),
      copies_(world_, calendar_, phonebook_.books(), jobs_.jobs()),
      import_({world_, state_, calendar_, phonebook_.books(), phonebook_.store(),
               phonebook_.letters(), jobs_.jobs(), jobs_.printing().state(), planner_}),
      printing_(world_, calendar_, jobs_.printing(), [this] { reports_.openListing(); }),
      paper_(world_, state_, calendar_, phonebook_.store(), jobs_.printing(),
             [this] { preferences_.open(); }),
      accessories_(world_, calendar_,
                   {.goToHomePage = [this] { outside_.mailAndWeb().goToHomePage(); },
                    .mailToProduct = [this] { outside_.mailAndWeb().mailToProduct(); }}),
      system_(world_, calendar_, outside_.programs()),
      preferences_(world_, calendar_, alarms_.player(),
                   {.movePlanner = [this](const std::string& folder) { planner_.moveTo(folder); },
                    .setDayLimits = [this] { planner_.setDayLimits(); },
                    .showEnvelope = [this] { paper_.showEnvelopeAnew(); },
                    .help = [this](std::string_view topic) { accessories_.helpAt(topic); }}),
      search_(
          world_, state_, calendar_, phonebook_.store(), phonebook_.letters(), jobs_.printing(),
          [this] { calendar_.flipCheck1(); },
          [this](const std::string& topic) { accessories_.helpAt(topic); }),
      contextMenus_(calendar_,
                    {.isBound = [this](std::string_view name) { return commands_.isBound(name); },
                     .run =
                         [this](std::string_view name) {
                             if (commands_.isBound(name))
                                 commands_.run(name);
                         },
                     .scheduling = planner_.schedulingCommands(),
                     .schedulingShown = [this] { planner_.warnOfEmptyPlanner(); }}),
      startUp_(state_, calendar_, world_.settings, windowRoom_.clockLine(), windowRoom_.tray(),
               world_.clock, world_.locale,
               {.watchMenus = [this] { windowRoom_.watchMenus(); },
                .showLetterA = [this] { phonebook_.showLetterA(); },
                .openPlannerDatabase = [this] { planner_.openDatabase(); },
                .showEvents = [this] { events_.showAtStart(); },
                .keepEventsInFront = [this] { events_.keepInFront(); },
                .setDayLimits = [this] { planner_.setDayLimits(); },
                .reopenDocument = [this] { docPad_.docPad().LoadAtStart(); },
                .colourCalendars = [this] { planner_.colourCalendars(); },
                .showToday = [this] { planner_.showToday(); }}),
      closeDown_(
          windowRoom_.tray(),
          {.commitEditors = [this] { planner_.commitEditors(); },
           .mayClose = [this] { return docPad_.mayClose(); },
           .keepText = [this] { docPad_.keepForNextStart(); },
           .keepForms = [this] { phonebook_.keepForNextStart(); },
           .sealKept =
               [this] {
                   docPad_.sealKept();
                   phonebook_.sealKept();
               },
           .keepWindow = [this] { keepWindowShape(world_.settings, calendar_.place().shape()); },
           .endScans = [this] { world_.loop.beginClosing(); }}) {
    bindCommands();
    connectEnd();
}

void Program::start() {
    // Posted twice, and so behind the events of today, above which the questions have to open.
    QObject::connect(&calendar_, &Calendar::firstPainted, &connections_, [this] {
        world_.loop.post(questions_, [this] { callers_.listen(); });
        world_.loop.post(questions_, [this] {
            world_.loop.post(questions_, [this] { tellOfSettings(); });
            world_.loop.post(questions_, [this] { offerWhatWasCutOff(); });
        });
    });
    startUp_.run();
}

void Program::bringToFront(const std::string& token) {
    const ActivationToken given(token);
    calendar_.place().bringToFront();
}

void Program::openLinks(const std::vector<std::string>& links) {
    const std::string number = numberOfLinks(links);
    windowRoom_.panes().show(Pane::Dialer);
    if (number.empty())
        calendar_.status().show("The link holds no telephone number.");
    else
        calendar_.setLastNumber(number);
}

void Program::answerNotice(const std::string& subject) {
    if (subject == AnnouncedAlarms::kAlert)
        alarms_.bringAlertToFront();
    else if (subject == AnnouncedCaller::kCall)
        callers_.bringReportToFront();
    else
        calendar_.place().bringToFront();
}

void Program::close() {
    calendar_.close();
}

void Program::endWithoutAsking() {
    const Patience::Replaced patient = patientToTheEnd();
    closeDown_.runWithoutAsking();
    QCoreApplication::exit(0);
}

void Program::keepAll() {
    const Patience::Replaced patient = patientToTheEnd();
    closeDown_.keepAll();
}

// What the settings do not take now is lost.
Patience::Replaced Program::patientToTheEnd() {
    return {world_.settingsMedium.patience(), std::chrono::seconds(5)};
}

bool Program::hasToAsk() const {
    return !ended() && docPad_.docPad().changed();
}

bool Program::askBeforeSessionEnd() {
    return docPad_.docPad().mayEnd();
}

void Program::endWithSession() {
    docPad_.docPad().dropGivenUp();
    endWithoutAsking();
}

void Program::bindCommands() {
    windowRoom_.bindCommands(commands_);
    phonebook_.bindCommands(commands_);
    dialer_.bindCommands(commands_);
    outside_.bindCommands(commands_);
    docPad_.bindCommands(commands_);
    letterRoom_.bindCommands(commands_);
    planner_.bindCommands(commands_);
    events_.bindCommands(commands_);
    alarms_.bindCommands(commands_);
    tasks_.bindCommands(commands_);
    accessories_.bindCommands(commands_);
    search_.bindCommands(commands_);
    fax_.bindCommands(commands_);
    fonts_.bindCommands(commands_);
    printing_.bindCommands(commands_);
    reports_.bindCommands(commands_);
    export_.bindCommands(commands_);
    backup_.bindCommands(commands_);
    import_.bindCommands(commands_);
    paper_.bindCommands(commands_);
    preferences_.bindCommands(commands_);
    system_.bindCommands(commands_);
    windowRoom_.showWhatIsBound();
}

void Program::connectEnd() {
    calendar_.onCloseRequest([this] {
        const Patience::Replaced patient = patientToTheEnd();
        return closeDown_.run();
    });
    QObject::connect(&calendar_, &Calendar::closing, &connections_,
                     [] { QCoreApplication::exit(0); });
}

void Program::run(CommandName command) {
    if (commands_.isBound(command))
        commands_.run(command);
}

void Program::tellOfSettings() {
    const SqliteSettings& medium = world_.settingsMedium;
    const auto toText = [this](const std::string& utf8) { return world_.codePage.fromUtf8(utf8); };
    if (const auto& file = medium.putAside())
        world_.messages.tell(kApplicationTitle,
                             "The settings were damaged and begin anew. The damaged file was kept "
                             "as " +
                                 toText(file->utf8()) + ".");
    if (const auto& why = medium.whyReadOnly())
        world_.messages.warn(kApplicationTitle,
                             "The settings can not be written. Velmora goes on with what it could "
                             "read of them, and keeps no changes of settings, alarms and tasks "
                             "until they can be written again. " +
                                 toText(*why));
    if (const auto why = world_.locations.whyUnknown())
        world_.messages.warn(kApplicationTitle,
                             "The settings that tell where the phonebooks and the planner lie can "
                             "not be read. What is concerned is not opened, and nothing is written "
                             "elsewhere. " +
                                 toText(*why));
}

void Program::offerWhatWasCutOff() {
    docPad_.docPad().offerRecovery();
    if (!world_.loop.closing())
        phonebook_.offerRecovery();
}

void Program::endAfter(const std::string& utf8Text) {
    world_.messages.standardError(utf8Text);
    calendar_.close();
}

}  // namespace velmora
