#pragma once

#include <QElapsedTimer>
#include <QWidget>

#include "core/JobPanel.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace velmora {

// At the right of the status bar while a job runs: a count, a bar and a Cancel button.
class JobBar final : public QWidget, public JobPanel {
    Q_OBJECT

  public:
    explicit JobBar(QWidget* parent);

    // In view or not. The count and the bar come a moment later, with the progress.
    void showCancelIcon(bool shown) override;
    void showProgress(int done, int all) override;

  signals:
    void cancelChosen();

  private:
    QLabel* JobCount;
    QProgressBar* JobProgress;
    QPushButton* JobCancel;
    QElapsedTimer sinceShown_;
};

}  // namespace velmora
