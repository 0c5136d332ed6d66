// The saved design of a control: its persisted properties by key, kept in the order they were written.
// Controls read themselves from a bag when they are placed from a saved design and write themselves into
// one when the design is saved; the host keeps the bag wherever it stores designs.
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <cstdint>
#include <utility>
#include <vector>

class PropertyBag {
public:
    // A value equal to its default is not stored (and drops one stored before), so a saved design holds only
    // what differs from a new control; writing a key again replaces its value in place.
    void WriteProperty(const QString& key, const QVariant& value, const QVariant& defaultValue);

    // The stored value, or `defaultValue` when the key was never written. Keys match without regard to case.
    QVariant ReadProperty(const QString& key, const QVariant& defaultValue) const;

    // Typed reads: a stored value of the wrong kind raises failure 13 (type mismatch), and a number outside
    // the 16-bit range failure 6 (overflow).
    QString ReadText(const QString& key, const QString& defaultValue) const;
    QColor ReadColor(const QString& key, const QColor& defaultValue) const;
    int16_t ReadInt16(const QString& key, int16_t defaultValue) const;
    bool ReadBool(const QString& key, bool defaultValue) const;

    // The stored keys in the order they were first written.
    QStringList Keys() const;

private:
    const QVariant* Find(const QString& key) const;

    std::vector<std::pair<QString, QVariant>> m_entries;
};
