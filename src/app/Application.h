#pragma once

#include <QApplication>
#include <functional>

namespace velmora {

// The toolkit's application, with the error box of last resort: what no handler caught is shown to
// the user, and nothing takes the program down without a word.
class Application final : public QApplication {
    Q_OBJECT

  public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    // How the program ends in order after a FatalFailure or an error that is no Failure. Without
    // one it just ends.
    void setOrderlyEnd(std::function<void()> end) { orderlyEnd_ = std::move(end); }

    // What is done when the desktop session has ended, or anything else tells the toolkit's
    // application to quit. Without it all windows are closed as by the user.
    void setEndOfSession(std::function<void()> end) { endOfSession_ = std::move(end); }

    // Shows the standard error box.
    static void showError(const QString& text);

  protected:
    bool event(QEvent* event) override;

  private:
    void closePopups();
    void endInOrder(const char* what);

    std::function<void()> orderlyEnd_;
    std::function<void()> endOfSession_;
    bool ending_ = false;
};

}  // namespace velmora
