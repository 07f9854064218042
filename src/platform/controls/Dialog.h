#pragma once

#include <QDialog>
#include <QSize>
#include <vector>

#include "platform/CodePage.h"

class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace velmora {

class DialogBody;
class DialogFooter;

// What all dialogs have in common: a body above a strip of buttons, a size that fits the screen, a
// place in its middle, and a way to open.
//
// A dialog is never higher than what the screen has available less 40, or wider than that less 16.
// Its lists and memos give way first, then the body scrolls; the footer stays in sight.
class Dialog : public QDialog {
    Q_OBJECT

  public:
    // Opens the dialog filled anew and with the keyboard at its first field, or brings the open one
    // to the front as it is.
    virtual void present();

    void setVisible(bool visible) override;

  signals:
    // A character that the code page lacks was replaced in a guarded box.
    void characterReplaced();

    // "&Help" was chosen in the window of this object name.
    void helpWanted(const QString& window);

  protected:
    // Buttons from left to right.
    struct Buttons {
        std::vector<QPushButton*> left{};   // side commands
        std::vector<QPushButton*> right{};  // the doing button first, Cancel or Close last
        QPushButton* primary = nullptr;     // what Enter presses, in the footer or not
    };

    // Sizes of the inside, in device-independent px.
    struct Extent {
        QSize first{};  // when it opens for the first time, or more where its parts need more
        QSize least{};  // or more where its parts need more
        Qt::Orientations grows = Qt::Horizontal | Qt::Vertical;
    };

    Dialog(const char* name, const QString& title, QWidget* parent);

    // To be called once, when the controls are made: takes the body over, with the margins of a
    // dialog around it, and puts the buttons into the footer below it. Away from the buttons Enter
    // presses the primary one.
    void layOut(QLayout* body, const Buttons& buttons, const Extent& extent);

    // The order in which Tab visits the body; the footer's buttons come behind it.
    void setTabStops(const std::vector<QWidget*>& stops);

    // Fills the dialog for the user, who starts at firstField().
    virtual void beginAnew() {}
    [[nodiscard]] virtual QWidget* firstField() const { return nullptr; }

    // Gives the dialog its place whenever it opens; its size is final then.
    virtual void place();

    // Gives the dialog its first size, as far as the screen has room for it, or takes back what it
    // has too much. Happens by itself whenever it opens.
    void fitToScreen();

    void bringToFront();

    // The strip itself, for a dialog that hides it.
    [[nodiscard]] DialogFooter& footer() const { return *footer_; }

    // A small label above its field; an "&" in the caption makes an access key.
    [[nodiscard]] QLabel* makeLabel(const QString& caption, QWidget* buddy);

    // "&Help", which emits helpWanted().
    [[nodiscard]] QPushButton* makeHelpButton(const char* name);

    // Keeps what is typed into a box storable. `mostBytes` as in CodePageGuard.
    void guard(QLineEdit& box, const CodePage& codePage) const;
    void guard(QComboBox& box, const CodePage& codePage) const;
    void guard(QPlainTextEdit& box, const CodePage& codePage, int mostBytes = 0) const;

    bool event(QEvent* event) override;
    // Enter presses the button that has the focus, else the primary one; Ctrl+Enter presses the
    // primary one also where Enter types a line.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    [[nodiscard]] QScreen* targetScreen() const;
    [[nodiscard]] QSize footSize() const;
    QSize roomOnScreen();
    void takeSize(QSize size, const QSize& most);

    DialogBody* body_ = nullptr;
    DialogFooter* footer_;
    Buttons buttons_;
    Extent extent_;
    bool sized_ = false;
};

}  // namespace velmora
