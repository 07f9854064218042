#pragma once

#include <QWidget>

namespace velmora {

// A thin bar with round ends that fills from the left as something goes on.
class ProgressLine final : public QWidget {
    Q_OBJECT

  public:
    // `height` in device-independent px.
    explicit ProgressLine(int height, QWidget* parent = nullptr);

    // Done so far, of `all`, which is above 0; held within.
    void setProgress(qint64 done, qint64 all);
    [[nodiscard]] int permille() const { return permille_; }

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int height_;
    int permille_ = 0;
};

}  // namespace velmora
