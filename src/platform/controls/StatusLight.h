#pragma once

#include <QColor>
#include <QWidget>

namespace velmora {

// A round light that tells by its colour whether something is under way.
class StatusLight final : public QWidget {
    Q_OBJECT

  public:
    explicit StatusLight(QWidget* parent = nullptr);

    // `meaning` is what assistive tools read.
    void setColour(const QColor& colour, const QString& meaning);
    [[nodiscard]] QColor colour() const { return colour_; }

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor colour_ = Qt::green;
};

}  // namespace velmora
