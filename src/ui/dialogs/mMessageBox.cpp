#include "ui/dialogs/mMessageBox.h"

#include <QAbstractButton>
#include <QEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <array>
#include <utility>
#include <vector>

#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "translate/cTranslate.h"
#include "ui/QtText.h"

namespace mMessageBox {
namespace {

using Button = QMessageBox::StandardButton;

// Keeps Escape and the close button from ending a box that offers no way to decline.
class NoEscape : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Close && event->spontaneous()) {
            event->ignore();
            return true;
        }
        return event->type() == QEvent::KeyPress &&
               static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel);
    }
};

// The buttons of each set, in the order a style's default-button bits count them. The set is the style's
// low four bits; a value there that names no set (10, say) shows an OK box.
std::vector<Button> ButtonSet(int style) {
    switch (style & 0xF) {
        case vbOKCancel:
            return {QMessageBox::Ok, QMessageBox::Cancel};
        case vbAbortRetryIgnore:
            return {QMessageBox::Abort, QMessageBox::Retry, QMessageBox::Ignore};
        case vbYesNoCancel:
            return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
        case vbYesNo:
            return {QMessageBox::Yes, QMessageBox::No};
        case vbRetryCancel:
            return {QMessageBox::Retry, QMessageBox::Cancel};
        default:
            return {QMessageBox::Ok};
    }
}

QMessageBox::Icon IconOf(int style) {
    static constexpr std::array<QMessageBox::Icon, 5> kIcons = {QMessageBox::NoIcon, QMessageBox::Critical,
                                                                QMessageBox::Question, QMessageBox::Warning,
                                                                QMessageBox::Information};
    const int index = (style >> 4) & 7;
    return index < static_cast<int>(kIcons.size()) ? kIcons[static_cast<std::size_t>(index)]
                                                   : QMessageBox::NoIcon;
}

// A default button beyond the set falls back to the first button, as on Windows.
Button DefaultOf(int style, const std::vector<Button>& buttons) {
    const std::size_t position = static_cast<std::size_t>((style >> 8) & 3);
    return position < buttons.size() ? buttons[position] : buttons.front();
}

void SetEscape(QMessageBox& box, const std::vector<Button>& buttons) {
    if (buttons.size() == 1)
        box.setEscapeButton(box.button(buttons.front()));
    else if (box.button(QMessageBox::Cancel) != nullptr)
        box.setEscapeButton(box.button(QMessageBox::Cancel));
    else
        box.installEventFilter(new NoEscape(&box));
}

// The buttons the language files name speak the chosen language; the others keep Qt's own words.
void TranslateButtons(QMessageBox& box) {
    if (!g_cTranslate)
        return;
    static constexpr std::array<std::pair<Button, const char*>, 4> kKeys = {
        {{QMessageBox::Ok, "BTN_OK"},
         {QMessageBox::Cancel, "BTN_CANCEL"},
         {QMessageBox::Yes, "BTN_Yes"},
         {QMessageBox::No, "BTN_No"}}};
    for (const auto& [button, key] : kKeys) {
        QAbstractButton* shown = box.button(button);
        const std::string text = shown != nullptr ? g_cTranslate->TranslateEx("GLOBAL", key) : std::string();
        if (!text.empty())
            shown->setText(QtText::ToQt(text));
    }
}

int ToResult(int button) {
    switch (button) {
        case QMessageBox::Cancel:
            return vbCancel;
        case QMessageBox::Abort:
            return vbAbort;
        case QMessageBox::Retry:
            return vbRetry;
        case QMessageBox::Ignore:
            return vbIgnore;
        case QMessageBox::Yes:
            return vbYes;
        case QMessageBox::No:
            return vbNo;
        default:
            return vbOK;
    }
}

}  // namespace

std::unique_ptr<QMessageBox> Create(const std::string& prompt, int style, QWidget* parent) {
    auto box = std::make_unique<QMessageBox>(parent);
    box->setWindowTitle(QString::fromLatin1(kProgramTitle));
    box->setTextFormat(Qt::PlainText);
    box->setText(QtText::ToQt(prompt).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    box->setIcon(IconOf(style));
    const std::vector<Button> buttons = ButtonSet(style);
    for (Button button : buttons)
        box->addButton(button);
    TranslateButtons(*box);
    box->setDefaultButton(DefaultOf(style, buttons));
    SetEscape(*box, buttons);
    return box;
}

int ResultOf(const QMessageBox& box) {
    QAbstractButton* pressed = box.clickedButton();
    if (pressed == nullptr)
        pressed = box.escapeButton() != nullptr ? box.escapeButton() : box.defaultButton();
    return ToResult(box.standardButton(pressed));
}

}  // namespace mMessageBox
