#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <memory>

#include "app/World.h"
#include "core/LongJobs.h"
#include "core/forms/Calendar.h"
#include "exchange/DailyCopies.h"
#include "phonebook/BookRecords.h"
#include "platform/files/PosixReplacement.h"

namespace velmora {

// Has the data copied once a day, when nobody has touched keyboard or mouse for a while and no job
// runs; not before the window was painted for the first time.
class CopiesRoom final : public QObject {
    Q_OBJECT

  public:
    // All must outlive the room.
    CopiesRoom(World& world, Calendar& calendar, Books& books, const LongJobs& jobs);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] bool isQuietFor(std::chrono::milliseconds time) const;
    void look();
    void work();

    World& world_;
    Calendar& calendar_;
    Books& books_;
    const LongJobs& jobs_;
    PosixReplacements replacements_;
    std::chrono::milliseconds quiet_;
    QElapsedTimer sinceInput_;
    std::unique_ptr<DailyCopies> copies_;  // made when they are due for the first time
    QTimer look_;
    QTimer work_;
};

}  // namespace velmora
