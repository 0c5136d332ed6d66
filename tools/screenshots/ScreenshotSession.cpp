#include "ScreenshotSession.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPixmap>
#include <QTabBar>
#include <QWidget>

namespace {

void Settle(QWidget& window) {
    window.adjustSize();
    window.show();
    for (int pass = 0; pass < 3; ++pass)
        QApplication::processEvents();
}

// A single-line caption is cut off when its widget got less room than the caption asks for.
bool IsCut(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->wordWrap() || label->text().isEmpty())
            return false;
    } else if (qobject_cast<const QAbstractButton*>(&widget) == nullptr) {
        return false;
    }
    return widget.isVisible() && widget.width() < widget.minimumSizeHint().width();
}

QString NameOf(const QWidget& widget) {
    return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                         : widget.objectName();
}

}  // namespace

void ScreenshotSession::Save(QWidget& window, const QString& name) {
    Settle(window);
    const QString file = name + QLatin1Char('_') + m_language + QStringLiteral(".png");
    CheckCaptions(window, file);
    const QPixmap picture = window.grab();
    if (picture.isNull() || !picture.save(m_output.filePath(file), "PNG"))
        m_problems << file + QStringLiteral(": could not be written to ") + m_output.absolutePath();
    else
        ++m_saved;
    window.hide();
}

void ScreenshotSession::CheckCaptions(const QWidget& window, const QString& file) {
    for (const QWidget* child : window.findChildren<QWidget*>()) {
        if (IsCut(*child))
            m_problems << file + QStringLiteral(": the caption of ") + NameOf(*child) +
                              QStringLiteral(" is cut off");
    }
    for (const QTabBar* tabs : window.findChildren<QTabBar*>()) {
        if (tabs->count() > 0 && tabs->tabRect(tabs->count() - 1).right() >= tabs->width())
            m_problems << file + QStringLiteral(": the tabs of ") + NameOf(*tabs) +
                              QStringLiteral(" do not fit");
    }
}
