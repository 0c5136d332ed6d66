#include "ui/QtText.h"

#include <QByteArray>

namespace QtText {

QString ToQt(const std::string& text) {
    return QString::fromLocal8Bit(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

QString ToQtLines(const std::string& text) {
    return ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::string FromQt(const QString& text) {
    const QByteArray bytes = text.toLocal8Bit();
    return std::string(bytes.constData(), static_cast<size_t>(bytes.size()));
}

}  // namespace QtText
