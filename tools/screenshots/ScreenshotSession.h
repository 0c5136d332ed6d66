// Renders windows and controls to PNG files, one language at a time, and notices captions that do not fit
// the space their layout gave them.
#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

class QWidget;

class ScreenshotSession {
public:
    explicit ScreenshotSession(const QDir& output) : m_output(output) {}

    // The language abbreviation that names the files ("EN", "DE").
    void SetLanguage(const QString& abbrev) { m_language = abbrev; }

    // Shows `window` at its preferred size, lets it lay itself out, and saves it as <name>_<language>.png.
    void Save(QWidget& window, const QString& name);

    // One line per file that could not be written and per caption that is cut off.
    const QStringList& Problems() const { return m_problems; }
    int Saved() const { return m_saved; }

private:
    void CheckCaptions(const QWidget& window, const QString& file);

    QDir m_output;
    QString m_language;
    QStringList m_problems;
    int m_saved = 0;
};
