#pragma once

#include <QWidget>

#include "platform/CodePage.h"

class QGridLayout;
class QLayout;
class QPushButton;

namespace velmora {

class EntryCard;
class LetterTabs;
class ToolStrip;

// The Phonebook pane: contact keys, the letter tabs beside the card of the selected entry, and the
// buttons below.
class PhonebookPage final : public QWidget {
    Q_OBJECT

  public:
    explicit PhonebookPage(const CodePage& codePage, QWidget* parent = nullptr);

    [[nodiscard]] ToolStrip* contactKeys() const { return contactKeys_; }
    [[nodiscard]] LetterTabs* letterTabs() const { return Picture4; }
    [[nodiscard]] EntryCard* card() const { return Label17; }
    [[nodiscard]] QWidget* details() const { return Picture2; }
    [[nodiscard]] QPushButton* mailButton() const { return Command3; }
    [[nodiscard]] QPushButton* webButton() const { return Command4; }
    [[nodiscard]] QPushButton* fileButton() const { return Command5; }
    [[nodiscard]] QPushButton* associatesButton() const { return Command26; }
    [[nodiscard]] QPushButton* moveButton() const { return TButtonMove; }
    [[nodiscard]] QPushButton* hangUpButton() const { return Command25; }

    // The size for a small window.
    void setSmall(bool small);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QWidget* makeButtonRow();
    void placeHangUp();

    ToolStrip* contactKeys_;
    QLayout* keyRow_ = nullptr;
    QLayout* tabColumn_ = nullptr;
    QGridLayout* detailGrid_ = nullptr;
    QWidget* buttonRow_ = nullptr;
    QWidget* Picture2;         // the holder of the details
    LetterTabs* Picture4;      // the rolodex
    EntryCard* Label17;        // the selected entry
    QPushButton* Command3;     // "&E-Mail"
    QPushButton* Command4;     // "&Web"
    QPushButton* Command5;     // "Open &File"
    QPushButton* Command26;    // other associates
    QPushButton* TButtonMove;  // moves the entry to the other book
    QPushButton* Command25;    // "&Hang Up", over the card while a call is under way
};

}  // namespace velmora
