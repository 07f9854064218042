#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace velmora {

// In test runs every widget tells its object name as its accessible description, so that a test
// outside the program can find it.
class TestIds final : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    // True when the environment has VELMORA_TEST_IDS=1.
    [[nodiscard]] static bool wanted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

// What assistive tools tell of the widget beside its name. In test runs its object name stays
// there.
void describe(QWidget& widget, const QString& text);

}  // namespace velmora
