// Keyboard access for the buttons and labels of one window, in Qt's texts: the program's Mnemonics, with Qt
// telling what is a letter or digit and which characters are one key.
#pragma once

#include <QString>

#include "base/Mnemonics.h"

class MnemonicSet {
public:
    MnemonicSet();

    // See Mnemonics::Add and Mnemonics::Again.
    QString Add(const QString& text);
    QString Again(const QString& text);

private:
    Mnemonics m_keys;
};
