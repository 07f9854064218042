#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <string>
#include <vector>

namespace velmora::test {

// A word on a page of a PDF file, counted from 1; inches from the left top corner of the sheet.
struct PdfWord {
    int page = 0;
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    QString text;
};

// What a program writes.
inline QString outputOf(const QString& program, const QStringList& words) {
    QProcess process;
    process.start(program, words);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

// The words of a PDF file in the order in which they were printed.
inline std::vector<PdfWord> wordsOf(const std::string& path) {
    const QString html =
        outputOf(QStringLiteral("pdftotext"),
                 {QStringLiteral("-bbox"), QString::fromStdString(path), QStringLiteral("-")});
    static const QRegularExpression mark(
        R"-(<page |<word xMin="(.+?)" yMin="(.+?)" xMax="(.+?)" yMax="(.+?)">(.*?)</word>)-");
    std::vector<PdfWord> found;
    int page = 0;
    for (const auto& match : mark.globalMatch(html)) {
        const auto inches = [&](int group) { return match.captured(group).toDouble() / 72; };
        if (match.captured(5).isEmpty())
            ++page;
        else
            found.push_back({page, inches(1), inches(2), inches(3), inches(4), match.captured(5)});
    }
    return found;
}

}  // namespace velmora::test
