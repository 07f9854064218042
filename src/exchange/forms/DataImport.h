#pragma once

#include <functional>
#include <string>

#include "exchange/ImportWizard.h"
#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"

class QFrame;
class QLabel;
class QPushButton;
class QRadioButton;

namespace velmora {

class ElidedLabel;
class EntryList;
class ProgressLine;

// "Import Wizard": one question after the other, then the import itself.
class DataImport final : public Dialog {
    Q_OBJECT

  public:
    // Both must outlive the form. `import` runs the import into a book and comes back when it is
    // over, with the wizard's report; false when it did not begin.
    using Import = std::function<bool(const std::string& bookFile,
                                      const std::function<void(const ImportRun::State&)>& tell)>;
    DataImport(ImportWizard& wizard, Import import, const CodePage& codePage,
               QWidget* parent = nullptr);

    // Opens the form with the first question of the wizard, which has begun. `yellow`: which book
    // is preset.
    void presentFor(bool yellow);

    // While the import runs it ends behind the row in hand, and the form closes then.
    void reject() override;

  protected:
    [[nodiscard]] QWidget* firstField() const override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void makeControls();
    void arrange();
    void connectControls();
    void showQuestion();
    void showSample();
    void choose();
    void run();
    void showRunning(const ImportRun::State& state);
    void showEnd();
    void showQuestionParts(bool shown);
    void takeHeight(int height);

    ImportWizard& wizard_;
    Import import_;
    const CodePage& codePage_;
    bool choosing_ = false;
    bool running_ = false;
    bool closeWanted_ = false;

    QLabel* Label1;          // the question
    QLabel* Label2;          // what the import is doing
    QLabel* Label3;          // "Double-Click Your Selection:"
    QLabel* Remark;          // what the user has to know of the source
    ElidedLabel* Sample;     // what the column holds in the first rows
    QLabel* Note;            // what the import has done
    ProgressLine* Steps;     // how far the questions have come
    ProgressLine* Progress;  // how far the import has come
    EntryList* List1;        // the columns
    QFrame* frame_;          // around it
    QRadioButton* Option1;   // "Import to Yellow Pages"
    QRadioButton* Option2;   // "Import to White Pages"
    QPushButton* Command1;   // "&Cancel", "Close"
    QPushButton* Command2;   // "&Import!" of a table
    QPushButton* Command3;   // "&Import!" of a text
};

}  // namespace velmora
