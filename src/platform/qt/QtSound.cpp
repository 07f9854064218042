#include "platform/qt/QtSound.h"

#include <QApplication>
#include <QFile>
#include <QStandardPaths>
#include <QTimerEvent>
#include <utility>

namespace velmora {
namespace {

constexpr int kBeeps = 3;
constexpr int kBetweenBeeps = 350;  // milliseconds
constexpr int kPatience = 1000;     // milliseconds, for a player that is ended
constexpr qint64 kHeadBytes = 12;

// In this order: what a desktop runs its sound with comes first.
std::vector<QtSound::Player> usualPlayers() {
    return {{QStringLiteral("pw-play"), {}},
            {QStringLiteral("paplay"), {}},
            {QStringLiteral("aplay"), {QStringLiteral("-q")}}};
}

// Some players take any bytes for sound, and that is a loud noise.
bool isWaveFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = file.read(kHeadBytes);
    return head.startsWith("RIFF") && head.endsWith("WAVE") && head.size() == kHeadBytes;
}

}  // namespace

QtSound::QtSound(const SystemPaths& paths)
    : QtSound(paths, usualPlayers(), [] { QApplication::beep(); }) {}

QtSound::QtSound(const SystemPaths& paths, std::vector<Player> players, std::function<void()> beep)
    : paths_(paths), players_(std::move(players)), beep_(std::move(beep)) {}

QtSound::~QtSound() {
    stop();
}

void QtSound::play(const std::string& path) {
    stop();
    const QString file = QString::fromStdString(paths_.nativePath(path).utf8());
    if (!isWaveFile(file))
        return beepThreeTimes();
    for (const Player& each : players_) {
        const QString program = QStandardPaths::findExecutable(each.program);
        if (program.isEmpty())
            continue;
        player_ = std::make_unique<QProcess>();
        player_->setStandardInputFile(QProcess::nullDevice());
        player_->setStandardOutputFile(QProcess::nullDevice());
        player_->setStandardErrorFile(QProcess::nullDevice());
        connect(player_.get(), &QProcess::finished, this, [this](int code, auto status) {
            playerEnded(status == QProcess::NormalExit && code == 0);
        });
        connect(player_.get(), &QProcess::errorOccurred, this, [this](auto error) {
            if (error == QProcess::FailedToStart)
                playerEnded(false);
        });
        player_->start(program, each.arguments + QStringList(file));
        return;
    }
    beepThreeTimes();
}

void QtSound::beepThreeTimes() {
    beepsLeft_ += kBeeps;
    if (nextBeep_.isActive())
        return;
    beep_();
    --beepsLeft_;
    nextBeep_.start(kBetweenBeeps, this);
}

void QtSound::timerEvent(QTimerEvent* event) {
    if (event->timerId() != nextBeep_.timerId())
        return QObject::timerEvent(event);
    beep_();
    if (--beepsLeft_ == 0)
        nextBeep_.stop();
}

void QtSound::stop() {
    nextBeep_.stop();
    beepsLeft_ = 0;
    if (!player_)
        return;
    player_->disconnect(this);
    player_->kill();
    player_->waitForFinished(kPatience);
    player_.reset();
}

void QtSound::playerEnded(bool played) {
    player_.release()->deleteLater();
    if (!played)
        beepThreeTimes();
}

}  // namespace velmora
