#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Sound.h"
#include "platform/SystemPaths.h"

namespace velmora {

// Plays wave files with the first player program that the machine has, so that no library of
// sounds is loaded at start.
class QtSound final : public QObject, public Sound {
    Q_OBJECT

  public:
    // A program and what stands before the file on its command line.
    struct Player {
        QString program;
        QStringList arguments;
    };

    // `paths` must outlive this object.
    explicit QtSound(const SystemPaths& paths);

    // With players and a beep of the caller's.
    QtSound(const SystemPaths& paths, std::vector<Player> players, std::function<void()> beep);
    ~QtSound() override;

    void play(const std::string& path) override;
    void beepThreeTimes() override;

  protected:
    void timerEvent(QTimerEvent* event) override;

  private:
    void stop();
    void playerEnded(bool played);

    const SystemPaths& paths_;
    std::vector<Player> players_;
    std::function<void()> beep_;
    std::unique_ptr<QProcess> player_;
    QBasicTimer nextBeep_;
    int beepsLeft_ = 0;
};

}  // namespace velmora
