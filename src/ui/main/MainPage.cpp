#include "ui/main/MainPage.h"

#include "app/PublicObjects.h"
#include "translate/cTranslate.h"
#include "ui/QtText.h"

MainPage::MainPage(QWidget* parent, int number) : QWidget(parent) {
    setObjectName(QStringLiteral("picPage_%1").arg(number));
}

void MainPage::ShowValues(const MainWindowValues& /*values*/) {}

void MainPage::HandBack(MainWindowValues& /*values*/) const {}

QString MainPage::Text(const char* key) {
    return QtText::ToQt(Translator().TranslateEx("MAIN_DIALOG", key));
}
