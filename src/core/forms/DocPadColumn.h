#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QToolButton;

namespace velmora {

// DocPad: its title line with the buttons that grow and shrink it, and its text.
class DocPadColumn final : public QWidget {
    Q_OBJECT

  public:
    // Takes `text`, the text control, as its child.
    explicit DocPadColumn(QPlainTextEdit* text, QWidget* parent = nullptr);

    [[nodiscard]] QLabel* title() const { return Label4; }
    [[nodiscard]] QLabel* titleIcon() const { return Image7; }
    [[nodiscard]] QPlainTextEdit* text() const { return Text4; }
    [[nodiscard]] QToolButton* growButton() const { return Toolbar3; }
    [[nodiscard]] QToolButton* shrinkButton() const { return Toolbar5; }

    // In its column DocPad has a greatest width; maximised it has none.
    void setWide(bool wide);

  private:
    QLabel* Image7;         // DocPad's icon
    QLabel* Label4;         // the title
    QToolButton* Toolbar3;  // grows DocPad; stands in PictureMax
    QToolButton* Toolbar5;  // shrinks it; stands in PictureMin
    QPlainTextEdit* Text4;  // the text
};

}  // namespace velmora
