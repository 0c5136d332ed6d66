#include "app/ConsoleUserInterface.h"

#include <iostream>

int ConsoleUserInterface::MsgBox(const std::string& prompt, int style) {
    std::cerr << "Pavonel: " << prompt << '\n';
    return MsgBoxDefaultButton(style);
}

void ConsoleUserInterface::ShowErrorReport(const ErrorReport& report) {
    std::cerr << report.text << '\n';
}

OpenFileAnswer ConsoleUserInterface::ChooseFileToOpen(const OpenFileOptions& options) {
    std::cerr << "Pavonel: no window to choose a file in: " << options.title << '\n';
    return {};
}

std::string ConsoleUserInterface::ChooseFolder(int64_t /*owner*/, const std::string& title,
                                               const std::string& /*rootFolder*/) {
    std::cerr << "Pavonel: no window to choose a folder in: " << title << '\n';
    return {};
}

std::string ConsoleUserInterface::ChooseFileToSave(const OpenFileOptions& options) {
    std::cerr << "Pavonel: no window to choose a file in: " << options.title << '\n';
    return {};
}

// The text goes to the stream instead, so that it is not lost.
void ConsoleUserInterface::SetClipboardText(const std::string& text) {
    std::cerr << text << '\n';
}

// There is no clipboard to read without a window system.
std::string ConsoleUserInterface::GetClipboardText() {
    return {};
}

bool ConsoleUserInterface::ShowEditProfileDialog(int32_t /*editMode*/, Profile& /*profile*/) {
    return false;
}

Profile* ConsoleUserInterface::ShowLoadProfileDialog() {
    return nullptr;
}

void ConsoleUserInterface::ShowSaveDialog() {
    std::cerr << "Pavonel: no window to choose the profiles to save in; nothing was saved.\n";
}

bool ConsoleUserInterface::ShowStartTarvolinDialog(Profile& /*profile*/) {
    return true;
}
