#include "core/forms/HelpPageView.h"

#include <QUrl>

#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr const char* kFolder = "/help/";

// A name in a page counts from the folder that holds them all.
QUrl whole(const QUrl& name) {
    return QUrl(QStringLiteral("qrc:/help/")).resolved(name);
}

bool isOurs(const QUrl& name) {
    return name.scheme() == QLatin1String("qrc") && name.path().startsWith(QLatin1String(kFolder));
}

// Sizes are of the type scale; colours are those of the theme.
QString pageStyle(const Theme& theme) {
    return theme.fill(
        QStringLiteral("h1 { font-size: 15pt; font-weight: 600; margin-top: 4px; "
                       "margin-bottom: 12px; }"
                       "h2 { font-size: 10.5pt; font-weight: 600; margin-top: 18px; "
                       "margin-bottom: 4px; }"
                       "p, ul, ol { margin-top: 6px; margin-bottom: 6px; }"
                       "li { margin-top: 3px; margin-bottom: 3px; }"
                       "a { color: {accent}; }"
                       "th { text-align: left; font-weight: 600; color: {ink2}; }"
                       "td, th { padding: 4px 14px 4px 0; }"
                       "code { color: {ink}; background-color: {hover}; }"
                       ".note { color: {ink2}; }"));
}

}  // namespace

HelpPageView::HelpPageView(QWidget* parent) : QTextBrowser(parent) {
    setOpenExternalLinks(false);
    document()->setDocumentMargin(16);
    document()->setDefaultStyleSheet(pageStyle(Theme::of(*this)));
    // The signal comes before source() has the new name.
    connect(this, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& name) { topic_ = name.fileName().section(QLatin1Char('.'), 0, 0); });
}

void HelpPageView::open(const QString& topic) {
    setSource(QUrl(QStringLiteral("qrc:/help/%1.html").arg(topic)));
}

QVariant HelpPageView::loadResource(int type, const QUrl& name) {
    const QUrl url = whole(name);
    return isOurs(url) ? QTextBrowser::loadResource(type, url) : QVariant();
}

void HelpPageView::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
    if (isOurs(whole(name)))
        QTextBrowser::doSetSource(name, type);
}

}  // namespace velmora
