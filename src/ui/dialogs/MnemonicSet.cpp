#include "ui/dialogs/MnemonicSet.h"

// The position of the letter or digit behind a single "&", or -1; "&&" is a literal ampersand.
qsizetype MnemonicSet::ExistingMnemonic(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&')
            continue;
        if (text[i + 1].isLetterOrNumber())
            return i + 1;
        if (text[i + 1] == u'&')
            ++i;
    }
    return -1;
}

qsizetype MnemonicSet::FreeLetter(const QString& text) const {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isLetterOrNumber() && !m_taken.contains(text[i].toLower()))
            return i;
    }
    return -1;
}

QString MnemonicSet::Add(const QString& text) {
    const qsizetype existing = ExistingMnemonic(text);
    if (existing >= 0) {
        m_taken += text[existing].toLower();
        m_marked.insert(text, text);
        return text;
    }
    const qsizetype letter = FreeLetter(text);
    if (letter >= 0)
        m_taken += text[letter].toLower();
    QString marked;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i == letter)
            marked += u'&';
        if (text[i] != u'&') {
            marked += text[i];
            continue;
        }
        marked += QStringLiteral("&&");
        if (i + 1 < text.size() && text[i + 1] == u'&')
            ++i;
    }
    m_marked.insert(text, marked);
    return marked;
}

QString MnemonicSet::Again(const QString& text) {
    const auto marked = m_marked.constFind(text);
    return marked != m_marked.cend() ? *marked : Add(text);
}
