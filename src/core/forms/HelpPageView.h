#pragma once

#include <QTextBrowser>

namespace velmora {

// Shows one page of the help. It reads the program's own pages and pictures only: a link to
// anything else does nothing, and so nothing is ever fetched.
class HelpPageView final : public QTextBrowser {
    Q_OBJECT

  public:
    explicit HelpPageView(QWidget* parent);

    // Opens the page of a topic, from its beginning.
    void open(const QString& topic);

    // The topic of the page on show; empty before the first.
    [[nodiscard]] const QString& topic() const { return topic_; }

  protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

  private:
    QString topic_;
};

}  // namespace velmora
