#pragma once

#include <QFrame>

namespace velmora {

class SSYear;

// `Picture6`: the year, raised over the desk. Hidden until it is asked for.
class YearPane final : public QFrame {
    Q_OBJECT

  public:
    // Takes `year` as its child; `desk` is what the pane floats on.
    YearPane(SSYear* year, QWidget* desk);

    // Shows the pane at `corner` of the desk, in front, with the focus in the year.
    void open(QPoint corner, bool small = false);

    // The left top corner on the desk, and the measures: those of a small window or the usual ones.
    // The pane is never larger than the desk has room.
    void setPlace(QPoint corner, bool small);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    SSYear* SSYear1;  // the year
    QPoint corner_;
    bool small_ = false;
};

}  // namespace velmora
