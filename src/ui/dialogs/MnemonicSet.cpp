#include "ui/dialogs/MnemonicSet.h"

namespace {

bool IsLetterOrDigit(char32_t code) {
    return QChar::isLetterOrNumber(code);
}

char32_t Lower(char32_t code) {
    return QChar::toLower(code);
}

}  // namespace

MnemonicSet::MnemonicSet() : m_keys(Mnemonics::Alphabet{IsLetterOrDigit, Lower}) {}

QString MnemonicSet::Add(const QString& text) {
    return QString::fromStdString(m_keys.Add(text.toStdString()));
}

QString MnemonicSet::Again(const QString& text) {
    return QString::fromStdString(m_keys.Again(text.toStdString()));
}
