#pragma once

#include <QStatusBar>
#include <optional>
#include <string>

#include "platform/CodePage.h"
#include "platform/StatusLine.h"

class QLabel;

namespace velmora {

class JobBar;

// The bar at the foot of the window: a panel with the program's icon, and panel 2 with the text
// that the whole program writes to.
class StatusBar final : public QStatusBar, public StatusLine {
    Q_OBJECT

  public:
    explicit StatusBar(const CodePage& codePage, QWidget* parent = nullptr);

    void show(const std::string& text) override;
    void showFile(const std::string& text, const std::string& path) override;

    // At the right end, while a job runs.
    [[nodiscard]] JobBar& job() const { return *job_; }

    // The text in panel 2.
    [[nodiscard]] std::string text() const;

  signals:
    // The file on show was clicked.
    void fileChosen(const QString& path);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void present(const QString& text, const QString& file);

    const CodePage& codePage_;
    QLabel* panel2_;
    JobBar* job_;
    std::optional<std::string> shown_;  // a text without a file
    QString file_;                      // that a click opens; empty without one
};

}  // namespace velmora
