// A new widget with its objectName, the name that the program's trail, its tests and its screenshots
// know it by.
#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>

template <class T>
T* Named(QWidget* parent, const QString& name) {
    auto* widget = new T(parent);
    widget->setObjectName(name);
    return widget;
}

// A label named `name` that wraps its text.
inline QLabel* WrappedLabel(QWidget* parent, const char* name) {
    auto* label = Named<QLabel>(parent, QString::fromLatin1(name));
    label->setWordWrap(true);
    return label;
}
