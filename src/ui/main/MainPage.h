// One page of the main window behind its tab. A page owns its controls and does three things: it shows the
// values of the profile being shown, hands back the values it shows, and retranslates its captions. The
// values are the program's (MainWindowValues), never a control's encoding: the rows of a list are converted
// to IDs here and nowhere else. The window owns the pages, the tabs, the menus and the commands.
#pragma once

#include <QString>
#include <QWidget>

#include "mainwindow/MainWindowValues.h"

class MnemonicSet;

class MainPage : public QWidget {
    Q_OBJECT

public:
    // The page is named "picPage_" and its number, counted from 1 as the window counts its pages.
    MainPage(QWidget* parent, int number);

    // A page without profile values shows and hands back nothing.
    virtual void ShowValues(const MainWindowValues& values);
    virtual void HandBack(MainWindowValues& values) const;
    // The captions from the language file; `keys` hands out the Alt+letters, which the whole window shares.
    virtual void Retranslate(MnemonicSet& keys) = 0;

    // The text of `key` in the main window's section of the language file.
    static QString Text(const char* key);

signals:
    // A value that the command line shows changed; a failure in what follows is reported under `trail`.
    void ValueChanged(const char* trail);
};
