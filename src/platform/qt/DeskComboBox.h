#pragma once

class QPainter;
class QRect;
class QStyleOptionComboBox;

namespace velmora {

// How DeskStyle draws a combo box: the frame of an input with a chevron in it.
void drawComboBox(const QStyleOptionComboBox& option, QPainter& painter);

// Where the text goes, and where the chevron.
[[nodiscard]] QRect comboBoxEditRect(const QStyleOptionComboBox& option);
[[nodiscard]] QRect comboBoxArrowRect(const QStyleOptionComboBox& option);

// Height of a combo box whose text is `textHeight` high.
[[nodiscard]] int comboBoxHeight(int textHeight);

}  // namespace velmora
