#pragma once

#include "platform/CodePage.h"
#include "platform/PrintTarget.h"
#include "platform/controls/Dialog.h"
#include "reports/Reports.h"

class QButtonGroup;
class QFrame;
class QLabel;
class QLayout;
class QPushButton;

namespace velmora {

class ChoiceTile;

// "Print": asks which books are printed, and for which size of page. It is out of the way while it
// prints.
class Form6 final : public Dialog {
    Q_OBJECT

  public:
    // All must outlive the form.
    Form6(Reports& reports, PrintTargets& targets, const CodePage& codePage,
          QWidget* parent = nullptr);
    ~Form6() override;

    void done(int result) override;

  protected:
    void beginAnew() override;
    [[nodiscard]] QWidget* firstField() const override;

  private:
    void makeChoices();
    [[nodiscard]] QLayout* bookRow();
    [[nodiscard]] QFrame* makeStyles();
    void arrange();
    void askWhere();
    [[nodiscard]] ReportChoice choice() const;
    void print();

    Reports& reports_;
    PrintTargets& targets_;
    const CodePage& codePage_;
    QButtonGroup* books_;
    QButtonGroup* sizes_;

    ChoiceTile* Option1 = nullptr;  // "&Yellow Pages Only"
    ChoiceTile* Option2 = nullptr;  // "&White Pages Only"
    ChoiceTile* Option3 = nullptr;  // "&Both"
    ChoiceTile* Option4 = nullptr;  // "Normal; 8.5" X 11""
    ChoiceTile* Option5 = nullptr;  // "Pocket; 5.5" X 8.0""
    ChoiceTile* Option6 = nullptr;  // "Mini; 3.2" X 5.0""
    QFrame* Frame1 = nullptr;       // "Print Styles:"
    QLabel* Label1;                 // what the sizes are for
    QLabel* where_;                 // "To: Laser 2, A4"
    QPushButton* Command1;          // "&Print"
    QPushButton* Command2;          // "&Cancel"
};

}  // namespace velmora
