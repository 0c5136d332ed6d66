// Keyboard access for the buttons and labels of one window: the language files carry plain texts, so each
// window hands its texts through one set that gives every text its own Alt+letter.
#pragma once

#include <QHash>
#include <QString>

class MnemonicSet {
public:
    // `text` with "&" in front of its first letter or digit that no earlier text of this set claimed.
    // A text that already carries a mnemonic ("&" before a letter or digit, as the menu texts of the
    // language files do) keeps it and claims its letter. Otherwise "&&" stays the literal ampersand it is
    // in a caption, and a lone "&" becomes one. A text with no free letter comes back without a mnemonic.
    QString Add(const QString& text);
    // `text` as Add marked it before, for a button that repeats another's command on another page; a text
    // not added yet is added now.
    QString Again(const QString& text);

private:
    static qsizetype ExistingMnemonic(const QString& text);
    qsizetype FreeLetter(const QString& text) const;

    QString m_taken;
    QHash<QString, QString> m_marked;  // each text added, as Add marked it
};
