// A path field: one text box, txtPath, filling the whole control. It takes a path dropped from the file
// manager (exactly one file or folder) or a dropped piece of text, and passes its text and look through as
// properties of its own. Keyboard focus goes straight to the text box, so the field sits in its window's tab
// order like a plain text box and a label's mnemonic can point at it.
#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

class QDragMoveEvent;
class QDropEvent;
class QLineEdit;
class QMimeData;

class ucPath : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(QString Text READ Text WRITE SetText NOTIFY Change)
    Q_PROPERTY(bool AcceptFiles READ AcceptFiles WRITE SetAcceptFiles)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(bool AcceptFolders READ AcceptFolders WRITE SetAcceptFolders)
    Q_PROPERTY(int BorderStyle READ BorderStyle)
    Q_PROPERTY(bool Locked READ Locked WRITE SetLocked)

public:
    explicit ucPath(QWidget* parent = nullptr);

    // The text box's background; white unless a host sets another.
    QColor BackColor() const;
    void SetBackColor(const QColor& value);
    QString Text() const;
    void SetText(const QString& value);
    // Kept for the hosts that set them; a drop is taken by the same rule whatever they say.
    bool AcceptFiles() const;
    void SetAcceptFiles(bool value);
    // The text box's own enabled state (the control itself stays enabled).
    bool Enabled() const;
    void SetEnabled(bool value);
    bool AcceptFolders() const;
    void SetAcceptFolders(bool value);
    // 1 (a single fixed border) while the text box is framed, 0 without a border.
    int BorderStyle() const;
    // The text box's read-only state.
    bool Locked() const;
    void SetLocked(bool value);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    // After every change of the text: typed, set through Text, or dropped.
    void Change();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void txtPath_Change();
    void txtPath_OLEDragOver(QDragMoveEvent* event);
    void txtPath_OLEDragDrop(QDropEvent* event);
    QString GetPathFromClipboard(const QMimeData* data);

    QLineEdit* m_txtPath;
    bool m_acceptFiles = false;
    bool m_acceptFolders = false;
};
