// One flat tab: a caption in a framed box that sizes its width to the caption. The active tab is drawn two
// pixels higher with a thicker frame that runs past its lower edge, so it seems to join the page area below.
// Hosts place a row of tabs (objectName "ucTab1_0", "ucTab1_1", ...) above a ucTabArea and switch pages on
// Click; deactivating the other tabs is the host's task. All sizes are device-independent pixels. A screen
// reader meets each tab as a page tab named by its caption, selected while active, that it can press.
#pragma once

#include <QRect>
#include <QString>
#include <QWidget>

class QLabel;

class ucTab : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(bool IsActive READ IsActive WRITE SetIsActive)

public:
    explicit ucTab(QWidget* parent = nullptr);

    // Setting the caption resizes the tab to it at once.
    QString Caption() const;
    void SetCaption(const QString& value);
    bool IsActive() const;
    void SetIsActive(bool value);

    // The frame as it is drawn (it may reach below the control) and its border width.
    QRect FrameRect() const;
    int FrameBorderWidth() const;

    QSize sizeHint() const override;

signals:
    // A mouse click on the caption or the tab's empty area, or Space or Enter while the tab has focus. The
    // tab makes itself active right after its hosts have heard of it.
    void Click();
    // At the end of every layout of the tab's width.
    void Resize();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    friend class ucTabAccessible;

    void UserControl_Resize();
    void Label1_Click();
    void UserControl_Click();
    int LayoutWidth() const;

    QLabel* m_label;
    bool m_isActive = false;
};
