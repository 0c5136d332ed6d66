#include "ui/QtTranslation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "ui/QtText.h"

namespace QtTranslation {

bool Follow(const std::string& language) {
    static QTranslator* installed = nullptr;
    if (installed != nullptr) {
        QCoreApplication::removeTranslator(installed);
        delete installed;
        installed = nullptr;
    }
    auto translator = std::make_unique<QTranslator>();
    const QString name = QStringLiteral("qtbase_") + QtText::ToQt(language).toLower();
    if (!translator->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return false;
    installed = translator.release();
    QCoreApplication::installTranslator(installed);
    return true;
}

}  // namespace QtTranslation
