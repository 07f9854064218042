#include "app/AccessoriesRoom.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <utility>

#include "core/HelpTopics.h"

namespace velmora {
namespace {

std::string helpIndexText() {
    QFile file(QStringLiteral(":/help/index.txt"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

bool isHelpKey(const QEvent& event) {
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
}

}  // namespace

AccessoriesRoom::AccessoriesRoom(World& world, Calendar& calendar, Links links)
    : world_(world), calendar_(calendar), links_(std::move(links)) {
    qApp->installEventFilter(this);
}

void AccessoriesRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::calcmnu, [this] { calculator().present(); });
    commands.bind(Commands::helpme, [this] { helpAt(kFirstHelpTopic); });
    commands.bind(Commands::abtmnu, [this] { about().present(); });
}

Calculator& AccessoriesRoom::calculator() {
    if (!calculator_)
        calculator_ = std::make_unique<Calculator>(
            world_.messages, [this](const std::string& text) { endAfter(text); }, &calendar_);
    return *calculator_;
}

frmAbout& AccessoriesRoom::about() {
    if (!about_) {
        about_ = std::make_unique<frmAbout>(&calendar_);
        QObject::connect(about_.get(), &frmAbout::webChosen, this, links_.goToHomePage);
        QObject::connect(about_.get(), &frmAbout::mailChosen, this, links_.mailToProduct);
    }
    return *about_;
}

const HelpIndex& AccessoriesRoom::helpIndex() {
    if (!helpIndex_)
        helpIndex_ =
            std::make_unique<HelpIndex>(world_.codePage.fromUtf8(helpIndexText()), world_.codePage);
    return *helpIndex_;
}

void AccessoriesRoom::helpAt(std::string_view topic) {
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal) {
        if (!helpWindow_)
            helpWindow_ = std::make_unique<HelpWindow>(helpIndex(), world_.codePage);
        return helpWindow_->showTopic(topic);
    }
    auto* window = modal->findChild<HelpWindow*>();
    if (!window)
        window = new HelpWindow(helpIndex(), world_.codePage, modal);
    window->showTopic(topic);
}

// The main window has F1 in its menu; here the other windows get it.
bool AccessoriesRoom::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = isHelpKey(*event) ? qobject_cast<QWidget*>(watched) : nullptr;
    const QWidget* window = widget ? widget->window() : nullptr;
    if (!window || window == &calendar_ || window->windowType() == Qt::Popup)
        return QObject::eventFilter(watched, event);
    helpAt(helpTopicOf(window->objectName().toStdString()));
    return true;
}

void AccessoriesRoom::endAfter(const std::string& utf8Text) {
    world_.messages.standardError(utf8Text);
    calendar_.close();
}

}  // namespace velmora
