#pragma once

#include <QColor>
#include <optional>

#include "core/ControlFont.h"
#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"

class QDoubleSpinBox;
class QLabel;
class QPushButton;

namespace velmora {

class EntryList;

// Chooses one of the installed fonts, its size within limits, and the colour of the text.
class FontDialog final : public Dialog {
    Q_OBJECT

  public:
    FontDialog(const ControlFont& now, double smallest, double largest, const CodePage& codePage,
               QWidget* parent = nullptr);

    // What is chosen at the moment.
    [[nodiscard]] ControlFont chosen() const;

    // Nothing is the control's own colour.
    void setColour(const std::optional<QColor>& colour);

  private:
    void fillFamilies(const QString& present);
    void arrange();
    void chooseColour();
    void showSample();

    const CodePage& codePage_;
    std::optional<QColor> colour_;
    EntryList* families_;
    QDoubleSpinBox* size_;
    QPushButton* colourButton_;     // opens the colour dialog
    QPushButton* ownColourButton_;  // goes back to the control's own colour
    QLabel* sample_;
    QPushButton* ok_;
    QPushButton* cancel_;
};

// The font dialog over the window that is in front.
class QtFontQuestion final : public FontQuestion {
  public:
    explicit QtFontQuestion(const CodePage& codePage) : codePage_(codePage) {}

    [[nodiscard]] std::optional<ControlFont> choose(const ControlFont& now, double smallest,
                                                    double largest) override;

  private:
    const CodePage& codePage_;
};

}  // namespace velmora
