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
    void open(QPoint corner);

  private:
    SSYear* SSYear1;  // the year
};

}  // namespace velmora
