#include "app/WindowRoom.h"

#include <QToolButton>

#include "core/forms/ClockLabel.h"
#include "core/forms/CommandMenus.h"
#include "core/forms/DocPadColumn.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/PhonebookPage.h"
#include "core/forms/Rail.h"
#include "core/forms/StatusBar.h"
#include "core/forms/ToolStrip.h"
#include "platform/controls/LetterTabs.h"

namespace velmora {

WindowRoom::WindowRoom(World& world, SharedState& state, Calendar& calendar,
                       const CommandSet& commands)
    : calendar_(calendar),
      commands_(commands),
      panes_(calendar, calendar.status()),
      docPadSize_(calendar, state, panes_),
      clockLine_(calendar.clock(), world.settings, world.clock, world.locale),
      trayIcon_([this](unsigned message) { tray_.OnTrayMessage(message); }),
      tray_(trayIcon_, calendar.place()) {
    connectCommands();
    connectParts();
}

void WindowRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::twentyfourhr, [this] { clockLine_.toggleTwentyFourHours(); });
    commands.bind(Commands::exitmnu, [this] { calendar_.close(); });
    commands.bind(Commands::Planner, [this] { panes_.show(Pane::Planner); });
    commands.bind(Commands::Phonebook, [this] { panes_.show(Pane::Phonebook); });
    commands.bind(Commands::dialmnu, [this] { panes_.show(Pane::Dialer); });
}

std::array<ToolStrip*, 3> WindowRoom::strips() const {
    return {&calendar_.mainKeys(), calendar_.phonebookPage().contactKeys(),
            calendar_.leftColumn().bookKeys()};
}

void WindowRoom::showWhatIsBound() {
    const auto bound = [this](std::string_view name) { return commands_.isBound(name); };
    calendar_.menus().setItemsEnabled(bound);
    calendar_.mainKeys().setKeyEnabled(bound);
    calendar_.phonebookPage().contactKeys()->setKeyEnabled(bound);
}

void WindowRoom::run(std::string_view command) {
    if (commands_.isBound(command))
        commands_.run(command);
}

void WindowRoom::connectCommands() {
    QObject::connect(&calendar_.menus(), &CommandMenus::chosen, &connections_,
                     [this](const MenuRow& row) { run(row.name); });
    QObject::connect(&calendar_.menus(), &CommandMenus::opening, &connections_,
                     [this](const MenuRow& head) {
                         if (head.name == "planmnu")
                             panes_.show(Pane::Planner);
                         if (head.name == "vlmmnu")
                             panes_.show(Pane::Phonebook);
                     });
    for (ToolStrip* strip : strips())
        QObject::connect(strip, &ToolStrip::chosen, &connections_,
                         [this](const ToolRow& row) { run(row.command); });
}

void WindowRoom::connectParts() {
    QObject::connect(&calendar_.rail(), &Rail::paneChosen, &connections_,
                     [this](Pane pane) { panes_.show(pane); });
    QObject::connect(&calendar_, &Calendar::clockTicked, &connections_,
                     [this] { clockLine_.tick(); });
    QObject::connect(calendar_.docPad().growButton(), &QToolButton::clicked, &connections_,
                     [this] { docPadSize_.maximise(); });
    QObject::connect(calendar_.docPad().shrinkButton(), &QToolButton::clicked, &connections_,
                     [this] { docPadSize_.restore(); });
}

void WindowRoom::watchMenus() {
    StatusBar& status = calendar_.status();
    QObject::connect(&calendar_.menus(), &CommandMenus::highlighted, &connections_,
                     [this, &status](const MenuRow& row) {
                         if (const auto text = menuHelp_.helpOf(row))
                             status.show(*text);
                     });
    for (ToolStrip* strip : strips())
        QObject::connect(strip, &ToolStrip::hovered, &connections_,
                         [this, &status](const ToolRow& row) {
                             const auto text = hoverText(row, calendar_.dayViewShown());
                             if (!text.empty())
                                 status.show(std::string(text));
                         });
    QObject::connect(&calendar_.rail(), &Rail::paneHovered, &connections_,
                     [&status](Pane pane) { status.show(paneHoverText(pane)); });
    QObject::connect(&calendar_.rail(), &Rail::cancelHovered, &connections_,
                     [&status] { status.show("Click This Printer Icon to Cancel Print Job."); });
    QObject::connect(calendar_.phonebookPage().letterTabs(), &LetterTabs::hovered, &connections_,
                     [&status] { status.show("Click a letter."); });
}

}  // namespace velmora
