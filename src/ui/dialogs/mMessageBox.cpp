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

// The Qt button of each MsgBoxResult, in both directions.
constexpr std::array<std::pair<Button, int>, 7> kButtons = {{{QMessageBox::Ok, vbOK},
                                                             {QMessageBox::Cancel, vbCancel},
                                                             {QMessageBox::Abort, vbAbort},
                                                             {QMessageBox::Retry, vbRetry},
                                                             {QMessageBox::Ignore, vbIgnore},
                                                             {QMessageBox::Yes, vbYes},
                                                             {QMessageBox::No, vbNo}}};

Button ToButton(int result) {
    for (const auto& [button, value] : kButtons)
        if (value == result)
            return button;
    return QMessageBox::Ok;
}

int ToResult(int button) {
    for (const auto& [qtButton, value] : kButtons)
        if (qtButton == button)
            return value;
    return vbOK;
}

std::vector<Button> ButtonSet(int style) {
    std::vector<Button> buttons;
    for (int result : MsgBoxButtons(style))
        buttons.push_back(ToButton(result));
    return buttons;
}

QMessageBox::Icon IconOf(int style) {
    static constexpr std::array<QMessageBox::Icon, 5> kIcons = {QMessageBox::NoIcon, QMessageBox::Critical,
                                                                QMessageBox::Question, QMessageBox::Warning,
                                                                QMessageBox::Information};
    const int index = (style >> 4) & 7;
    return index < static_cast<int>(kIcons.size()) ? kIcons[static_cast<std::size_t>(index)]
                                                   : QMessageBox::NoIcon;
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

}  // namespace

std::unique_ptr<QMessageBox> Create(const std::string& prompt, int style, QWidget* parent) {
    auto box = std::make_unique<QMessageBox>(parent);
    box->setWindowTitle(QString::fromLatin1(kProgramTitle));
    box->setTextFormat(Qt::PlainText);
    box->setText(QtText::ToQtLines(prompt));
    box->setIcon(IconOf(style));
    const std::vector<Button> buttons = ButtonSet(style);
    for (Button button : buttons)
        box->addButton(button);
    TranslateButtons(*box);
    box->setDefaultButton(ToButton(MsgBoxDefaultButton(style)));
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
