#pragma once

#include <QDialog>
#include <string_view>

#include "core/HelpIndex.h"

class QLineEdit;
class QListWidget;
class QPushButton;

namespace velmora {

class HelpPageView;

// The help: the contents at the left, which the box above them searches as one types, and the page
// at the right. It stays open beside the other windows.
class HelpWindow final : public QDialog {
    Q_OBJECT

  public:
    // Both must outlive the window.
    HelpWindow(const HelpIndex& index, const CodePage& codePage, QWidget* parent = nullptr);

    // Shows the window, in front, at the page of a topic. An unknown topic shows the first page.
    void showTopic(std::string_view topic);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QWidget* makeContents();
    [[nodiscard]] QWidget* makePage();
    QPushButton* makeStep(const char* name, const QString& caption, const QKeySequence& keys);
    void connectParts();
    void fillList();
    void openLine(int row);
    void markTopic();

    const HelpIndex& index_;
    const CodePage& codePage_;
    QLineEdit* Text1;        // what to look for
    QListWidget* List1;      // the pages that fit it
    QPushButton* Command1;   // "&Back"
    QPushButton* Command2;   // "&Forward"
    QPushButton* Command3;   // "Close"
    HelpPageView* Browser1;  // the page
};

}  // namespace velmora
