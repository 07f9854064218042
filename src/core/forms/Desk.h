#pragma once

#include <QScrollArea>
#include <vector>

#include "core/Panes.h"

class QSplitter;

namespace velmora {

class DocPadColumn;
class LeftColumn;
class PadEdit;
class PageStack;

// The inside of the main window beside the rail: the left column, the page of the pane on show, and
// DocPad. What a small screen has no room for scrolls.
class Desk final : public QScrollArea {
    Q_OBJECT

  public:
    struct Parts {
        LeftColumn* left;
        std::vector<QWidget*> pages;  // in the order of the panes
        DocPadColumn* docPad;
        PadEdit* text;  // DocPad's
    };

    // Takes the parts over.
    explicit Desk(const Parts& parts, QWidget* parent = nullptr);

    // On it the year view floats.
    [[nodiscard]] QWidget* floor() const { return floor_; }

    // The left top corner of the pane area on the floor.
    [[nodiscard]] QPoint paneCorner() const;

    void showPage(Pane pane);

    // DocPad fills the desk, or stands in its column.
    void setDocPadFills(bool fills);

    // The measures for a small window, and those for one that is narrower than it should be, in
    // which DocPad's column gives way further.
    void setMeasures(bool small, bool narrow);

    // The width that the user gave DocPad's column; 0 when that never happened.
    [[nodiscard]] int chosenDocPadWidth() const { return chosenDocPadWidth_; }
    void chooseDocPadWidth(int width);

  protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fitTextMargins() const;
    void applyDocPadWidth();

    Parts parts_;
    QWidget* floor_;
    QSplitter* splitter_;
    QWidget* pages_;
    PageStack* stack_;
    int chosenDocPadWidth_ = 0;
    bool docPadFills_ = false;
    bool small_ = false;
    bool placed_ = false;  // the chosen width has been given once
};

}  // namespace velmora
