#include "ui/controls/ucPath.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPalette>
#include <QSet>
#include <QUrl>
#include <optional>
#include <string>
#include <vector>

#include "base/PathDrop.h"
#include "base/mString.h"
#include "error/mError.h"
#include "ui/EntryPoint.h"
#include "ui/QtText.h"
#include "ui/controls/Contrast.h"

namespace {

const QColor kDefaultBackColor(0xFF, 0xFF, 0xFF);

// File managers on Linux add a plain-text copy of the file list they drag. That copy is no text of its own:
// the drop must behave as the file list it mirrors, as it does where file drags carry no text at all.
bool TextMirrorsUrls(const QString& text, const QList<QUrl>& urls) {
    QSet<QString> names;
    for (const QUrl& url : urls)
        names << url.toString() << QString::fromUtf8(url.toEncoded()) << url.toLocalFile();
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        if (!names.contains(line.trimmed()))
            return false;
    }
    return !lines.isEmpty();
}

bool OffersText(const QMimeData* data) {
    const bool plain = data->hasFormat(QStringLiteral("text/plain")) ||
                       data->hasFormat(QStringLiteral("text/plain;charset=utf-8"));
    return plain && !(data->hasUrls() && TextMirrorsUrls(data->text(), data->urls()));
}

// The files of a file list; a list that names anything but local files is no file list.
QStringList OfferedFiles(const QMimeData* data) {
    QStringList files;
    for (const QUrl& url : data->urls()) {
        if (!url.isLocalFile())
            return {};
        files << QDir::toNativeSeparators(QDir::cleanPath(url.toLocalFile()));
    }
    return files;
}

// Whatever is offered may be dropped (a drop of anything but text or one file empties the field); text and
// a single file are taken as a copy, anything else with the action the drag source proposed.
void TakeOffer(QDropEvent* event) {
    const QMimeData* data = event->mimeData();
    if (data && PathDrop::TakenAsCopy(OffersText(data), static_cast<std::size_t>(OfferedFiles(data).size())))
        event->setDropAction(Qt::CopyAction);
    event->accept();
}

bool IsDragEvent(const QEvent* event) {
    return event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
}

}  // namespace

ucPath::ucPath(QWidget* parent) : QWidget(parent), m_txtPath(new QLineEdit(this)) {
    m_txtPath->setObjectName(QStringLiteral("txtPath"));
    m_txtPath->setGeometry(0, 0, width(), height());
    m_txtPath->installEventFilter(this);
    setFocusProxy(m_txtPath);
    setAcceptDrops(true);
    setSizePolicy(m_txtPath->sizePolicy());
    ConnectEntryPoint(m_txtPath, &QLineEdit::textChanged, this, &ucPath::txtPath_Change,
                      "ucPath.txtPath_Change");
    SetBackColor(kDefaultBackColor);
}

QColor ucPath::BackColor() const {
    return mError::WithTrail("ucPath.Get BackColor",
                             [this] { return m_txtPath->palette().color(QPalette::Base); });
}

// The text takes black or white, whichever reads on the background: a dark theme's light text would all
// but vanish on the white a field starts with.
void ucPath::SetBackColor(const QColor& value) try {
    QPalette palette = m_txtPath->palette();
    palette.setColor(QPalette::Base, value);
    palette.setColor(QPalette::Text, Contrast::Readable(value));
    m_txtPath->setPalette(palette);
} catch (...) {
    mError::PassOn("ucPath.Let BackColor");
}

QString ucPath::Text() const {
    return mError::WithTrail("ucPath.Get Text", [this] { return m_txtPath->text(); });
}

void ucPath::SetText(const QString& value) try { m_txtPath->setText(value); } catch (...) {
    mError::PassOn("ucPath.Let Text");
}

bool ucPath::AcceptFiles() const {
    return mError::WithTrail("ucPath.Get AcceptFiles", [this] { return m_acceptFiles; });
}

void ucPath::SetAcceptFiles(bool value) try { m_acceptFiles = value; } catch (...) {
    mError::PassOn("ucPath.Let AcceptFiles");
}

bool ucPath::Enabled() const {
    return mError::WithTrail("ucPath.Get Enabled", [this] { return m_txtPath->isEnabled(); });
}

void ucPath::SetEnabled(bool value) try { m_txtPath->setEnabled(value); } catch (...) {
    mError::PassOn("ucPath.Let Enabled");
}

bool ucPath::AcceptFolders() const {
    return mError::WithTrail("ucPath.Get AcceptFolders", [this] { return m_acceptFolders; });
}

void ucPath::SetAcceptFolders(bool value) try { m_acceptFolders = value; } catch (...) {
    mError::PassOn("ucPath.Let AcceptFolders");
}

int ucPath::BorderStyle() const {
    return mError::WithTrail("ucPath.Get BorderStyle", [this] { return m_txtPath->hasFrame() ? 1 : 0; });
}

bool ucPath::Locked() const {
    return mError::WithTrail("ucPath.Get Locked", [this] { return m_txtPath->isReadOnly(); });
}

void ucPath::SetLocked(bool value) try { m_txtPath->setReadOnly(value); } catch (...) {
    mError::PassOn("ucPath.Let Locked");
}

QSize ucPath::sizeHint() const {
    return m_txtPath->sizeHint();
}

QSize ucPath::minimumSizeHint() const {
    return m_txtPath->minimumSizeHint();
}

// Drops on the text box come here first, so the text box's own rule (insert at the cursor, refuse while
// read-only) never applies: a drop always replaces the whole path.
bool ucPath::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_txtPath)
        return QWidget::eventFilter(watched, event);
    if (IsDragEvent(event)) {
        txtPath_OLEDragOver(static_cast<QDragMoveEvent*>(event));
        return true;
    }
    if (event->type() == QEvent::Drop) {
        txtPath_OLEDragDrop(static_cast<QDropEvent*>(event));
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ucPath::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    try {
        m_txtPath->resize(size());
    } catch (...) {
        mError::ShowError("ucPath.UserControl_Resize");
    }
}

void ucPath::dragEnterEvent(QDragEnterEvent* event) {
    txtPath_OLEDragOver(event);
}

void ucPath::dragMoveEvent(QDragMoveEvent* event) {
    txtPath_OLEDragOver(event);
}

void ucPath::dropEvent(QDropEvent* event) {
    txtPath_OLEDragDrop(event);
}

// A path is one line, however it came in (typed, pasted, dropped or set): the text box loses the line
// breaks at once and announces the text it then shows.
void ucPath::txtPath_Change() {
    const QString text = m_txtPath->text();
    if (text.contains(QLatin1Char('\r')) || text.contains(QLatin1Char('\n'))) {
        m_txtPath->setText(QtText::ToQt(mString::OneLine(QtText::FromQt(text))));
        return;
    }
    emit Change();
}

void ucPath::txtPath_OLEDragOver(QDragMoveEvent* event) try { TakeOffer(event); } catch (...) {
    mError::ShowError("ucPath.txtPath_OLEDragOver");
}

void ucPath::txtPath_OLEDragDrop(QDropEvent* event) try {
    TakeOffer(event);
    m_txtPath->setText(GetPathFromClipboard(event->mimeData()));
} catch (...) {
    mError::ShowError("ucPath.txtPath_OLEDragDrop");
}

QString ucPath::GetPathFromClipboard(const QMimeData* data) try {
    if (!data)
        return QString();
    std::vector<std::string> files;
    for (const QString& file : OfferedFiles(data))
        files.push_back(QtText::FromQt(file));
    const auto text = OffersText(data) ? std::optional(QtText::FromQt(data->text())) : std::nullopt;
    return QtText::ToQt(PathDrop::PathOf(text, files));
} catch (...) {
    mError::ShowError("ucPath.GetPathFromClipboard");
    return QString();
}
