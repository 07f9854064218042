#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

namespace velmora {

class PadEdit;

// DocPad: its title line with the buttons that grow and shrink it, and its text.
class DocPadColumn final : public QWidget {
    Q_OBJECT

  public:
    // Takes `text`, the text control, as its child.
    explicit DocPadColumn(PadEdit* text, QWidget* parent = nullptr);

    [[nodiscard]] QLabel* title() const { return Label4; }
    [[nodiscard]] QLabel* titleIcon() const { return Image7; }
    [[nodiscard]] PadEdit* text() const { return Text4; }
    [[nodiscard]] QToolButton* growButton() const { return Toolbar3; }
    [[nodiscard]] QToolButton* shrinkButton() const { return Toolbar5; }

    // In its column DocPad has a greatest width; maximised it has none.
    void setWide(bool wide);

    // The size for a small window; `narrowest` is how narrow the column may become in it.
    void setSmall(bool small, int narrowest);

  signals:
    // The pointer has come over the button that grows DocPad, or that shrinks it.
    void growHovered();
    void shrinkHovered();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* header_;
    QLabel* Image7;         // DocPad's icon
    QLabel* Label4;         // the title
    QToolButton* Toolbar3;  // grows DocPad; stands in PictureMax
    QToolButton* Toolbar5;  // shrinks it; stands in PictureMin
    PadEdit* Text4;         // the text
};

}  // namespace velmora
