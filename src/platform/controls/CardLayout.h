#pragma once

#include <QFont>
#include <QString>
#include <memory>
#include <vector>

#include "platform/qt/Theme.h"

class QPainter;
class QTextLayout;

namespace velmora {

// Places the parts of an entry's text in a column of a given width. A line wraps between two parts;
// only a part that is wider than the column wraps within itself.
class CardLayout {
  public:
    CardLayout();
    ~CardLayout();
    CardLayout(const CardLayout&) = delete;
    CardLayout& operator=(const CardLayout&) = delete;

    enum class Lines {
        Normal,
        Close,
        Even,  // as normal, but without space between groups
    };

    void setText(const QString& text, const QFont& font, const Theme& theme,
                 Lines lines = Lines::Normal);

    // Gives the height in device-independent px.
    qreal layOut(qreal width);

    // Height of a line of the text that is no heading.
    [[nodiscard]] qreal lineHeight() const { return lineHeight_; }

    // Paints what lies between `top` and `bottom` of the column, the column's corner at 0/0.
    void paint(QPainter& painter, qreal top, qreal bottom) const;

  private:
    struct Part;
    struct Line;

    void place(Part& part, qreal width, qreal lineHeight);

    std::vector<Line> lines_;
    qreal lineHeight_ = 0;
    qreal headingHeight_ = 0;
    qreal emptyHeight_ = 0;  // of the space before a group of lines
    qreal x_ = 0;            // where the next part goes
    qreal y_ = 0;
};

}  // namespace velmora
