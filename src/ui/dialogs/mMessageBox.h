// The program's message boxes: the button set, icon and default button of a MsgBoxStyle mapped onto a
// QMessageBox, and the pressed button mapped back onto a MsgBoxResult.
#pragma once

#include <QMessageBox>
#include <memory>
#include <string>

#include "app/UserInterface.h"

namespace mMessageBox {

// A box titled with the program's title that shows `prompt` with the buttons, icon and default button of
// `style`. Escape and the window's close button answer as the Windows boxes do: with Cancel where there is
// one, with OK in a box that has only OK, and not at all in the Yes/No and Abort/Retry/Ignore boxes.
std::unique_ptr<QMessageBox> Create(const std::string& prompt, int style, QWidget* parent);

// The MsgBoxResult of the button the box was closed with; the escape answer (or, where there is none, the
// default button's) when it was closed without a button.
int ResultOf(const QMessageBox& box);

}  // namespace mMessageBox
