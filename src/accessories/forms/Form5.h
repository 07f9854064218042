#pragma once

#include "accessories/RunProgram.h"
#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"

class QCheckBox;

namespace velmora {

// "Run...": starts another program.
class Form5 final : public Dialog {
    Q_OBJECT

  public:
    // Both must outlive the form.
    Form5(RunProgram& program, const CodePage& codePage, QWidget* parent = nullptr);

  protected:
    void beginAnew() override;
    [[nodiscard]] QWidget* firstField() const override;

  private:
    void browse();
    void run();

    RunProgram& program_;
    const CodePage& codePage_;

    QLineEdit* Text1;       // the command line
    QCheckBox* Check1;      // "Run &Minimizied"
    QPushButton* Command1;  // "&Cancel"
    QPushButton* Command2;  // "&Run"
    QPushButton* Command3;  // "&Browse"
};

}  // namespace velmora
