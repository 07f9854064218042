#pragma once

#include <QByteArray>
#include <QMarginsF>
#include <QPageLayout>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "platform/PrintSurface.h"

namespace velmora {

// Asks the print system, each time in a child process (see PrintServiceMain.h), so that nothing
// here waits for a system that does not answer: events run while a question is under way, and one
// to which nothing has come back for the limit is given up. What was answered is kept, and holds
// until it is asked anew.
class PrintService {
  public:
    // The paper that a printer has by default.
    struct Sheet {
        QString key;   // as the print system calls it
        QString name;  // for people
        QSizeF size;   // upright, in points
        QMarginsF needed;

        // With the margins that the printer needs, a quarter inch where it needs none.
        [[nodiscard]] QPageLayout layout(PageOrientation orientation) const;
    };

    struct Answers {
        QStringList printers;  // as the system lists them
        QString standard;      // the default one; empty where there is none
        std::map<QString, Sheet> sheets;
    };

    enum class Sent {
        Yes,
        CalledOff,
        PrinterGone,
        Refused,
        NotNow  // refused, too, but only because too much is waiting
    };
    struct Answer {
        Sent sent = Sent::Yes;
        std::string why{};  // of a refusal, in UTF-8
    };

    // `program`: what to run, this very one unless told otherwise; its main() is
    // printServiceMain() when it is called so.
    explicit PrintService(QString program = QStringLiteral("/proc/self/exe"),
                          std::chrono::milliseconds limit = std::chrono::seconds(5))
        : program_(std::move(program)), limit_(limit) {}

    // Asks for the printers, and for the sheets of `printer` or, when that is empty, of the default
    // one. Events run. False when `goOn`, which lets events run, too, said no: then the answers are
    // as before. Throws Failure when no answer comes; then there are no printers.
    bool ask(const QString& printer, const GoOn& goOn);

    // Begins to ask for the same and returns at once; `answered` is called from the event loop,
    // with false when no answer came. A question that has begun before is given up.
    void askSoon(const QString& printer, const std::function<void(bool)>& answered);

    // The question that has begun is given up; nothing is called.
    void forgetSoon() { soon_.reset(); }

    // What was answered last; asks when nothing ever was. Never throws.
    [[nodiscard]] const Answers& answers();

    // What was answered of a printer's sheets; asks where nothing was. Null where there is none of
    // that name, or no answer. Never throws.
    [[nodiscard]] const Sheet* sheetOf(const QString& printer);

    // Hands a PDF file over as one job. Events run; one for which `goOn` says no is called off.
    // Throws Failure when the print system does not answer. Nothing is printed but for Yes.
    [[nodiscard]] Answer send(const QString& printer, const QString& title,
                              PageOrientation orientation, const QByteArray& pdf, const GoOn& goOn);

    // Events run for this long. False as soon as `goOn` says no.
    static bool pause(std::chrono::milliseconds duration, const GoOn& goOn);

  private:
    class Question;

    void keep(const Question& question);

    QString program_;
    std::chrono::milliseconds limit_;
    std::optional<Answers> answers_;
    std::shared_ptr<Question> soon_;
};

}  // namespace velmora
