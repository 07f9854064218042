#pragma once

#include <string_view>

#include "core/HelpIndex.h"
#include "platform/controls/Dialog.h"

class QLineEdit;
class QPushButton;

namespace velmora {

class EntryList;
class HelpPageView;

// The help: the contents at the left, which the box above them searches as one types, and the page
// at the right. It stays open beside the other windows.
class HelpWindow final : public Dialog {
    Q_OBJECT

  public:
    // Both must outlive the window.
    HelpWindow(const HelpIndex& index, const CodePage& codePage, QWidget* parent = nullptr);

    // Shows the window, in front, at the page of a topic. An unknown topic shows the first page.
    void showTopic(std::string_view topic);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QWidget* makeContents();
    [[nodiscard]] QWidget* makePage();
    QPushButton* makeStep(const char* name, const QString& caption, const QKeySequence& keys);
    void connectParts();
    void fillList();
    void openHit(std::size_t hit);
    void markTopic();

    const HelpIndex& index_;
    const CodePage& codePage_;
    std::vector<HelpHit> hits_;  // the lines of the list
    QLineEdit* Text1;            // what to look for
    EntryList* List1;            // the pages that fit it
    QPushButton* Command1;       // "&Back"
    QPushButton* Command2;       // "&Forward"
    QPushButton* Command3;       // "Close"
    HelpPageView* Browser1;      // the page
};

}  // namespace velmora
