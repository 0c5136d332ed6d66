// The one place where text crosses between core (narrow strings in the system's encoding, byte for byte
// as the settings and language files hold them) and Qt.
#pragma once

#include <QString>
#include <string>

namespace QtText {

QString ToQt(const std::string& text);
// The same for a text shown in lines: Qt breaks lines at LF, the program's texts at CR LF.
QString ToQtLines(const std::string& text);
std::string FromQt(const QString& text);

}  // namespace QtText
