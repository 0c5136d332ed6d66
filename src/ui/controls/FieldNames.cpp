#include "ui/controls/FieldNames.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace FieldNames {

QString Spoken(const QString& caption) {
    QString spoken;
    spoken.reserve(caption.size());
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && i + 1 < caption.size())
            ++i;
        spoken += caption[i];
    }
    return spoken;
}

namespace {

// The box inside `field` that takes the focus, or null when the field takes it itself.
QWidget* Inside(QWidget& field) {
    if (auto* list = qobject_cast<QComboBox*>(&field))
        return list->lineEdit();
    return field.focusProxy();
}

}  // namespace

void NameInside(QWidget& field, const QString& name) {
    QWidget* inside = Inside(field);
    (inside != nullptr ? inside : &field)->setAccessibleName(name);
}

void FollowLabels(const QWidget& window) {
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (QWidget* field = label->buddy(); field != nullptr && Inside(*field) != nullptr)
            NameInside(*field, Spoken(label->text()));
    }
}

}  // namespace FieldNames
