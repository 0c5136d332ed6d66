// A row chosen through the accessibility interface has the effect of a click. A screen reader selects a row
// of a list without making it the current one, and selects a row of a list box's popup without the list box
// taking it; a click (or a key) does both, and the windows act on the current row.
#pragma once

class QComboBox;
class QListWidget;

namespace AccessibleChoice {

// A row selected but not current becomes current.
void Follow(QListWidget& list);
// A row selected in the popup but not current in it becomes the list box's row.
void Follow(QComboBox& list);

}  // namespace AccessibleChoice
