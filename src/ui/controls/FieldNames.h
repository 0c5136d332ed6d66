// Names for screen readers where Qt gives none. Qt names a field by the label whose buddy it is, but when the
// focus goes to a box inside the field (a path field's text box, an editable list's text, a profile list's
// rows) that box is what a screen reader announces, and it has no label of its own.
#pragma once

#include <QString>

class QWidget;

namespace FieldNames {

// What a screen reader says of a caption: its mnemonic marks removed ("&Open" → "Open", "R&&D" → "R&D").
QString Spoken(const QString& caption);

// Names the box inside `field` that takes the focus; a field without one is named itself.
void NameInside(QWidget& field, const QString& name);

// Every field of `window` that a label points at gets the label's spoken text inside as well. Call it after
// the labels got their texts.
void FollowLabels(const QWidget& window);

}  // namespace FieldNames
