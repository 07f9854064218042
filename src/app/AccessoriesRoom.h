#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string_view>

#include "accessories/forms/Calculator.h"
#include "app/World.h"
#include "core/CommandSet.h"
#include "core/HelpIndex.h"
#include "core/forms/Calendar.h"
#include "core/forms/HelpWindow.h"
#include "core/forms/frmAbout.h"

namespace velmora {

// Builds the calculator, the help and the about box when they are asked for, and connects them with
// the main window. F1 in another window opens the help at the page about it.
class AccessoriesRoom final : public QObject {
  public:
    // What the links of the about box do.
    struct Links {
        std::function<void()> goToHomePage;
        std::function<void()> mailToProduct;
    };

    // All must outlive the room.
    AccessoriesRoom(World& world, Calendar& calendar, Links links);

    void bindCommands(CommandSet& commands);

    // Opens the help at the page of a topic. While a dialog holds the other windows up, the help
    // belongs to it and closes with it.
    void helpAt(std::string_view topic);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] Calculator& calculator();
    [[nodiscard]] frmAbout& about();
    [[nodiscard]] const HelpIndex& helpIndex();
    void endAfter(const std::string& utf8Text);

    World& world_;
    Calendar& calendar_;
    Links links_;
    std::unique_ptr<Calculator> calculator_;
    std::unique_ptr<frmAbout> about_;
    std::unique_ptr<HelpIndex> helpIndex_;
    std::unique_ptr<HelpWindow> helpWindow_;
};

}  // namespace velmora
