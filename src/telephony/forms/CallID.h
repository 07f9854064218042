#pragma once

#include <QTimer>
#include <string>
#include <vector>

#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"
#include "telephony/CallerReport.h"

class QAction;
class QLabel;
class QMenu;
class QPushButton;

namespace velmora {

class CallNumber;
class EntryCard;
class EntryList;

// "Incoming Call Report": who may be calling, and the card of the one that is chosen. A window of
// its own, so that it is seen and answers whatever else is open. It comes above all others without
// taking the keys; once it has been used it stays above them no longer. It is made once; closing
// it forgets its lines.
class CallID final : public Dialog, public CallerReport {
    Q_OBJECT

  public:
    // `codePage` must outlive the form.
    explicit CallID(const CodePage& codePage);

    void present() override;
    void showNumber(const std::string& number) override;
    void clearLines() override;
    void addLine(const std::string& line) override;
    [[nodiscard]] bool hasLines() const override;
    void enableList(bool enabled) override;
    void showCard(const std::string& text, bool yellow) override;

    void done(int result) override;

  signals:
    // The user chose a line of the list.
    void lineChosen(const std::string& line);

    // An entry is to be made of the number, code-page text.
    void newEntryWanted(const std::string& number);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void makeControls();
    void arrange();
    void connectControls();
    void showLines();
    void stayOnTop(bool onTop);

    const CodePage& codePage_;
    std::string number_;
    std::vector<std::string> newLines_;  // not in the list yet
    QTimer linesDue_;
    bool keysInList_ = true;  // they go there once the search has ended

    CallNumber* Number = nullptr;     // what the list is about
    QPushButton* NewEntry = nullptr;  // "&New entry with this number"
    QLabel* Label2 = nullptr;         // "Possible Caller(s):"
    EntryList* List1 = nullptr;       // the possible callers
    EntryCard* Label1 = nullptr;      // the card of the one chosen
    QPushButton* Command1 = nullptr;  // "&Close"
    QAction* copyNumber_ = nullptr;   // Ctrl+C
    QMenu* numberMenu_ = nullptr;
};

}  // namespace velmora
