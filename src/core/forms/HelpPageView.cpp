#include "core/forms/HelpPageView.h"

#include <QUrl>

#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr const char* kFolder = "/help/";

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
}

void HelpPageView::open(const QString& topic) {
    setSource(QUrl(QStringLiteral("qrc:/help/%1.html").arg(topic)));
}

QString HelpPageView::topic() const {
    return source().fileName().section(QLatin1Char('.'), 0, 0);
}

QVariant HelpPageView::loadResource(int type, const QUrl& name) {
    const QUrl whole = source().resolved(name);
    return isOurs(whole) ? QTextBrowser::loadResource(type, whole) : QVariant();
}

void HelpPageView::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
    if (isOurs(source().resolved(name)))
        QTextBrowser::doSetSource(name, type);
}

}  // namespace velmora
