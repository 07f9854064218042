#pragma once

#include <QWidget>

#include "platform/CodePage.h"
#include "platform/Format.h"

class QLabel;
class QPushButton;

namespace velmora {

class EntryList;
class SSMonth;
class ToolStrip;

// What stays in view in every pane: the month, and below it the list of entries.
class LeftColumn final : public QWidget {
    Q_OBJECT

  public:
    LeftColumn(const CodePage& codePage, const LocaleFormats& locale,
               std::chrono::year_month_day today, QWidget* parent = nullptr);

    [[nodiscard]] SSMonth* month() const { return SSMonth1; }
    [[nodiscard]] QPushButton* yearButton() const { return Command1; }
    [[nodiscard]] EntryList* list() const { return List1; }
    [[nodiscard]] QLabel* yellowLabel() const { return Label18; }
    [[nodiscard]] QLabel* whiteLabel() const { return Label19; }
    [[nodiscard]] ToolStrip* bookKeys() const { return bookKeys_; }

    // The size for a small window.
    void setSmall(bool small);

    // Rings the key of the open book.
    void showBook(bool whitePages);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    [[nodiscard]] QWidget* makeMonthCard();
    [[nodiscard]] QWidget* makeListCard();

    QWidget* monthCard_ = nullptr;
    QWidget* listHeader_ = nullptr;
    SSMonth* SSMonth1;      // the month
    QPushButton* Command1;  // "Yea&r"
    QLabel* Label18;        // "Yellow Pages"
    QLabel* Label19;        // "White Pages"
    ToolStrip* bookKeys_;   // "Yellow" and "White"
    EntryList* List1;       // the entry list
};

}  // namespace velmora
