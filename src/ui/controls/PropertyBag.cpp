#include "ui/controls/PropertyBag.h"

#include <algorithm>
#include <cmath>

#include "error/mError.h"

namespace {

bool IsNumber(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::Bool:
        case QMetaType::Short:
        case QMetaType::UShort:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Long:
        case QMetaType::ULong:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Double:
        case QMetaType::Float:
            return true;
        default:
            return false;
    }
}

// Numbers arrive as numbers or as their text; anything else is the wrong kind of value.
double NumberOf(const QVariant& value) {
    bool ok = IsNumber(value);
    double number = ok ? value.toDouble() : 0.0;
    if (value.typeId() == QMetaType::QString)
        number = value.toString().trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(number))
        mError::RaiseRuntimeError(mError::kTypeMismatch);
    return number;
}

}  // namespace

void PropertyBag::WriteProperty(const QString& key, const QVariant& value, const QVariant& defaultValue) {
    auto entry = std::find_if(m_entries.begin(), m_entries.end(), [&key](const auto& candidate) {
        return candidate.first.compare(key, Qt::CaseInsensitive) == 0;
    });
    if (value == defaultValue) {
        if (entry != m_entries.end())
            m_entries.erase(entry);
    } else if (entry != m_entries.end()) {
        entry->second = value;
    } else {
        m_entries.emplace_back(key, value);
    }
}

QVariant PropertyBag::ReadProperty(const QString& key, const QVariant& defaultValue) const {
    const QVariant* stored = Find(key);
    return stored ? *stored : defaultValue;
}

QString PropertyBag::ReadText(const QString& key, const QString& defaultValue) const {
    const QVariant* stored = Find(key);
    if (!stored)
        return defaultValue;
    if (stored->typeId() != QMetaType::QString && !IsNumber(*stored))
        mError::RaiseRuntimeError(mError::kTypeMismatch);
    return stored->toString();
}

QColor PropertyBag::ReadColor(const QString& key, const QColor& defaultValue) const {
    const QVariant* stored = Find(key);
    if (!stored)
        return defaultValue;
    if (stored->typeId() != QMetaType::QColor)
        mError::RaiseRuntimeError(mError::kTypeMismatch);
    return stored->value<QColor>();
}

int16_t PropertyBag::ReadInt16(const QString& key, int16_t defaultValue) const {
    const QVariant* stored = Find(key);
    if (!stored)
        return defaultValue;
    const double rounded = std::nearbyint(NumberOf(*stored));
    if (rounded < -32768.0 || rounded > 32767.0)
        mError::RaiseRuntimeError(mError::kOverflow);
    return static_cast<int16_t>(rounded);
}

bool PropertyBag::ReadBool(const QString& key, bool defaultValue) const {
    const QVariant* stored = Find(key);
    return stored ? NumberOf(*stored) != 0.0 : defaultValue;
}

QStringList PropertyBag::Keys() const {
    QStringList keys;
    for (const auto& entry : m_entries)
        keys.append(entry.first);
    return keys;
}

const QVariant* PropertyBag::Find(const QString& key) const {
    for (const auto& entry : m_entries) {
        if (entry.first.compare(key, Qt::CaseInsensitive) == 0)
            return &entry.second;
    }
    return nullptr;
}
