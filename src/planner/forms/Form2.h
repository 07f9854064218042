#pragma once

#include <functional>

#include "platform/controls/Dialog.h"

class QLabel;
class QPushButton;

namespace velmora {

// "Planner Importer": brings the data of an old planner into the planner.
class Form2 final : public Dialog {
    Q_OBJECT

  public:
    // `import` asks for the old planner and imports it; true when the form is to close. `cancel`
    // calls an import that runs off.
    Form2(std::function<bool()> import, std::function<void()> cancel, QWidget* parent = nullptr);

    // An import that runs ends behind the day in hand, and the form closes then.
    void reject() override;

  protected:
    [[nodiscard]] QWidget* firstField() const override;
    bool event(QEvent* event) override;

  private:
    void run();
    void paintIcon();

    std::function<bool()> import_;
    std::function<void()> cancel_;
    bool running_ = false;
    QLabel* icon_;
    QPushButton* Command1;  // "&Import"
};

}  // namespace velmora
