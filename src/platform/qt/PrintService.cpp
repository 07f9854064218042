#include "platform/qt/PrintService.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "platform/Failure.h"
#include "platform/qt/PrintServiceMain.h"

namespace velmora {
namespace {

constexpr double kMargin = 18;     // points, where a printer says that it needs none
constexpr int kPollMs = 20;        // how often a waiting job looks whether it is still wanted
constexpr int kTakeBackMs = 1000;  // for a job that is called off while it is handed over
constexpr int kSheetParts = 10;    // of a line that tells a sheet

// Codes of the print system that say: not now.
constexpr int kNotPossible = 0x0404;  // a quota is used up
constexpr int kTemporary = 0x0505;
constexpr int kBusy = 0x0507;
constexpr int kTooManyJobs = 0x050B;

bool isForNow(int code) {
    return code == kNotPossible || code == kTemporary || code == kBusy || code == kTooManyJobs;
}

Failure noAnswer() {
    return Failure("The print system does not answer.");
}

}  // namespace

// A child process and the lines that it has written so far.
class PrintService::Question {
  public:
    Question(const QString& program, const QStringList& words, std::chrono::milliseconds limit)
        : limit_(limit.count()) {
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.start(program, QStringList{QString::fromLatin1(kPrintServiceArgument)} + words);
        silence_.start();
        QObject::connect(&process_, &QProcess::readyReadStandardOutput, &process_,
                         [this] { read(); });
    }
    ~Question() {
        process_.disconnect();
        if (process_.state() != QProcess::NotRunning)
            process_.kill();
        process_.waitForFinished(kTakeBackMs);
    }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;

    [[nodiscard]] QProcess& process() { return process_; }
    [[nodiscard]] const std::vector<QStringList>& lines() const { return lines_; }
    [[nodiscard]] bool running() const { return process_.state() != QProcess::NotRunning; }
    [[nodiscard]] bool silentForTooLong() const { return silence_.hasExpired(limit_); }

    // The last line, when the child has said all.
    [[nodiscard]] QStringList end() const {
        return lines_.empty() || running() ? QStringList() : lines_.back();
    }

    // Events run until the child has ended. False when `goOn` said no. Throws Failure after a
    // silence that is too long.
    bool wait(const GoOn& goOn) {
        while (running()) {
            QEventLoop loop;
            QObject::connect(&process_, &QProcess::finished, &loop, &QEventLoop::quit);
            QTimer::singleShot(kPollMs, &loop, &QEventLoop::quit);
            loop.exec(QEventLoop::ExcludeUserInputEvents);
            if (goOn && !goOn())
                return false;
            if (running() && silentForTooLong())
                throw noAnswer();
        }
        read();
        return true;
    }

  private:
    void read() {
        while (process_.canReadLine()) {
            const QString line = QString::fromUtf8(process_.readLine());
            lines_.push_back(line.chopped(1).split(QLatin1Char('\t')));
            silence_.restart();
        }
    }

    QProcess process_;
    QElapsedTimer silence_;
    qint64 limit_;
    std::vector<QStringList> lines_;
};

QPageLayout PrintService::Sheet::layout(PageOrientation orientation) const {
    const bool lying = orientation == PageOrientation::Landscape;
    QMarginsF margins = needed.isNull() ? QMarginsF(kMargin, kMargin, kMargin, kMargin) : needed;
    if (lying) {  // printers turn it to the one side or the other
        const double atEnds = std::max(margins.top(), margins.bottom());
        const double atSides = std::max(margins.left(), margins.right());
        margins = {atEnds, atSides, atEnds, atSides};
    }
    return {QPageSize(size, QPageSize::Point, name, QPageSize::ExactMatch),
            lying ? QPageLayout::Landscape : QPageLayout::Portrait, margins, QPageLayout::Point};
}

bool PrintService::ask(const QString& printer, const GoOn& goOn) {
    Question question(program_, {QStringLiteral("describe"), printer}, limit_);
    try {
        if (!question.wait(goOn))
            return false;
    } catch (const Failure&) {
        answers_ = Answers();
        throw;
    }
    keep(question);
    return true;
}

void PrintService::askSoon(const QString& printer, const std::function<void(bool)>& answered) {
    soon_ = std::make_shared<Question>(program_, QStringList{QStringLiteral("describe"), printer},
                                       limit_);
    QProcess* process = &soon_->process();
    auto* watch = new QTimer(process);
    const auto done = [this, watch, answered](bool good) {
        watch->stop();
        const auto question = std::exchange(soon_, nullptr);
        if (good)
            keep(*question);
        else
            answers_ = Answers();
        // Not from within a signal of the process, which is about to go.
        QTimer::singleShot(0, [question, answered, good] { answered(good); });
    };
    QObject::connect(process, &QProcess::finished, process, [done] { done(true); });
    QObject::connect(watch, &QTimer::timeout, process, [this, done] {
        if (soon_->silentForTooLong())
            done(false);
    });
    watch->start(kPollMs);
}

void PrintService::keep(const Question& question) {
    Answers answers;
    const auto& lines = question.lines();
    if (lines.empty() || lines.back() != QStringList{QStringLiteral("end")}) {
        answers_ = Answers();  // it broke off
        return;
    }
    for (const QStringList& line : lines) {
        const QString& kind = line[0];
        if (kind == QStringLiteral("printer") && line.size() == 2)
            answers.printers << line[1];
        else if (kind == QStringLiteral("default") && line.size() == 2)
            answers.standard = line[1];
        else if (kind == QStringLiteral("sheet") && line.size() == kSheetParts)
            answers.sheets[line[1]] = {.key = line[2],
                                       .name = line[3],
                                       .size = {line[4].toDouble(), line[5].toDouble()},
                                       .needed = {line[6].toDouble(), line[7].toDouble(),
                                                  line[8].toDouble(), line[9].toDouble()}};
    }
    answers_ = std::move(answers);
}

const PrintService::Answers& PrintService::answers() {
    if (!answers_)
        ignoringErrors([this] { ask({}, {}); });
    if (!answers_)
        answers_ = Answers();
    return *answers_;
}

const PrintService::Sheet* PrintService::sheetOf(const QString& printer) {
    if (!answers_ || (answers_->printers.contains(printer) && !answers_->sheets.contains(printer)))
        ignoringErrors([&] { ask(printer, {}); });
    const auto& sheets = answers().sheets;
    const auto found = sheets.find(printer);
    return found == sheets.end() ? nullptr : &found->second;
}

PrintService::Answer PrintService::send(const QString& printer, const QString& title,
                                        PageOrientation orientation, const QByteArray& pdf,
                                        const GoOn& goOn) {
    const Sheet* sheet = sheetOf(printer);
    if (!sheet)
        return {.sent = Sent::PrinterGone};
    const bool lying = orientation == PageOrientation::Landscape;
    Question question(program_,
                      {QStringLiteral("send"), printer, title, sheet->key,
                       lying ? QStringLiteral("1") : QStringLiteral("0")},
                      limit_);
    question.process().write(pdf);
    question.process().closeWriteChannel();
    if (!question.wait(goOn)) {
        question.process().terminate();
        question.process().waitForFinished(kTakeBackMs);
        return {.sent = Sent::CalledOff};
    }
    const QStringList end = question.end();
    if (end == QStringList{QStringLiteral("end")})
        return {.sent = Sent::Yes};
    if (end == QStringList{QStringLiteral("gone")})
        return {.sent = Sent::PrinterGone};
    if (end.size() != 3 || end[0] != QStringLiteral("refused"))
        throw noAnswer();
    return {.sent = isForNow(end[1].toInt()) ? Sent::NotNow : Sent::Refused,
            .why = end[2].toStdString()};
}

bool PrintService::pause(std::chrono::milliseconds duration, const GoOn& goOn) {
    QElapsedTimer clock;
    clock.start();
    while (!clock.hasExpired(duration.count())) {
        QEventLoop loop;
        QTimer::singleShot(kPollMs, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        if (goOn && !goOn())
            return false;
    }
    return true;
}

}  // namespace velmora
