// A new widget with its objectName, the name that the program's trail, its tests and its screenshots
// know it by.
#pragma once

#include <QString>
#include <QWidget>

template <class T>
T* Named(QWidget* parent, const QString& name) {
    auto* widget = new T(parent);
    widget->setObjectName(name);
    return widget;
}
