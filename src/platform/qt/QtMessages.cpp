#include "platform/qt/QtMessages.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QStringList>

#include "platform/qt/BoxOwner.h"
#include "platform/qt/ProgramFilter.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

// A box that only its two buttons answer.
class QuestionBox final : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Cancel))
            event->accept();
        else
            QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

int runBox(QMessageBox& box) {
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setTextFormat(Qt::PlainText);
    return runOverOwner(box);
}

void showBox(QMessageBox::Icon icon, const QString& title, const QString& text) {
    QMessageBox box(icon, title, text, QMessageBox::Ok, boxOwner());
    runBox(box);
}

}  // namespace

QString QtMessages::toQt(const std::string& text) const {
    return velmora::toQt(text, codePage_);
}

void QtMessages::warn(const std::string& title, const std::string& text) {
    showBox(QMessageBox::Warning, toQt(title), toQt(text));
}

void QtMessages::tell(const std::string& title, const std::string& text) {
    showBox(QMessageBox::Information, toQt(title), toQt(text));
}

bool QtMessages::ask(const std::string& title, const std::string& text, Answer preselected) {
    QuestionBox box(QMessageBox::Question, toQt(title), toQt(text),
                    QMessageBox::Yes | QMessageBox::No, boxOwner());
    box.setDefaultButton(preselected == Answer::Yes ? QMessageBox::Yes : QMessageBox::No);
    return runBox(box) == QMessageBox::Yes;
}

bool QtMessages::confirm(const std::string& title, const std::string& text) {
    QMessageBox box(QMessageBox::Information, toQt(title), toQt(text),
                    QMessageBox::Ok | QMessageBox::Cancel, boxOwner());
    box.setDefaultButton(QMessageBox::Ok);
    return runBox(box) == QMessageBox::Ok;
}

std::optional<std::string> QtMessages::askText(const std::string& title, const std::string& prompt,
                                               const std::string& answer) {
    QInputDialog dialog(boxOwner());
    dialog.setObjectName(QStringLiteral("InputBox"));
    dialog.setWindowTitle(toQt(title));
    dialog.setLabelText(toQt(prompt));
    dialog.setTextValue(toQt(answer));
    if (runOverOwner(dialog) != QDialog::Accepted)
        return std::nullopt;
    return fromQt(dialog.textValue(), codePage_);
}

std::optional<std::string> QtMessages::chooseFileToOpen(const FileQuestion& question) {
    return chooseFile(FileDialogKind::Open, question);
}

std::optional<std::string> QtMessages::chooseFileToSave(const FileQuestion& question) {
    return chooseFile(FileDialogKind::Save, question);
}

std::optional<std::string> QtMessages::chooseFile(FileDialogKind kind,
                                                  const FileQuestion& question) {
    QFileDialog dialog(boxOwner(), toQt(question.title));
    dialog.setObjectName(QStringLiteral("FileDialog"));
    // The desktop's own dialog can not be put above ours.
    dialog.setOption(QFileDialog::DontUseNativeDialog, hasWindowOnTop());
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !question.asksToReplace);
    const bool open = kind == FileDialogKind::Open;
    dialog.setAcceptMode(open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    if (question.programs)
        listPrograms(dialog, toQt(question.filter));
    else if (!question.filter.empty())
        dialog.setNameFilter(toQtFilter(toQt(question.filter)));
    // A program has no extension here, and is meant as it stands.
    if (question.defaultExtension.size() > 1 && !question.programs)
        dialog.setDefaultSuffix(toQt(question.defaultExtension.substr(1)));
    if (!question.fileName.empty()) {
        const QFileInfo chosen(toQt(question.fileName));
        dialog.setDirectory(chosen.absolutePath());
        dialog.selectFile(chosen.fileName());
    }
    if (runOverOwner(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    const QString path = dialog.selectedFiles().constFirst();
    const std::string text = fromQt(path, codePage_);
    if (toQt(text) != path) {
        warn(kApplicationTitle,
             "The name of this file has characters that Velmora can not write. Please choose "
             "another file or give it another name.");
        return std::nullopt;
    }
    return text;
}

void QtMessages::standardError(const std::string& utf8Text) {
    showBox(QMessageBox::Critical, QString::fromLatin1(kApplicationTitle),
            QString::fromStdString(utf8Text));
}

QString toQtFilter(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString name = parts[i];
        if (const qsizetype bracket = name.lastIndexOf(QLatin1Char('(')); bracket > 0)
            name.truncate(bracket);
        QString patterns = parts[i + 1];
        if (patterns == QLatin1String("*.*"))
            patterns = QStringLiteral("*");
        filters << name.trimmed() + QLatin1String(" (") +
                       patterns.replace(QLatin1Char(';'), QLatin1Char(' ')) + QLatin1Char(')');
    }
    return filters.join(QLatin1String(";;"));
}

}  // namespace velmora
