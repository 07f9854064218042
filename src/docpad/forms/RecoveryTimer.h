#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

namespace velmora {

// Calls for work some time after changes: a moment after the last of them, and during typing
// without a pause still often enough that less than two seconds of it wait. Work that returns true
// is called for again. Noting a change costs the same however long the text.
class RecoveryTimer final : public QObject {
    Q_OBJECT

  public:
    explicit RecoveryTimer(std::function<bool()> work, QObject* parent = nullptr);

    // There was a change.
    void changed();

    // Forgets the changes so far: the work is not called for them.
    void stop();

    [[nodiscard]] bool waiting() const { return latest_.isActive(); }

    // Times in milliseconds, for tests.
    void setTimes(int pause, int longest);

  private:
    void run();

    std::function<bool()> work_;
    QTimer pause_;   // since the last change
    QTimer latest_;  // since the first one
};

}  // namespace velmora
