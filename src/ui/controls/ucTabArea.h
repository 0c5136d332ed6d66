// The framed page area below a row of ucTab controls: one rectangle with a border and a fill colour that
// follows the control's size. Text inside it takes black or white, whichever reads on the fill. A zero width
// or height keeps the frame's previous extent in that direction.
#pragma once

#include <QColor>
#include <QRect>
#include <QWidget>

class ucTabArea : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor BorderColor READ BorderColor WRITE SetBorderColor)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)

public:
    explicit ucTabArea(QWidget* parent = nullptr);

    QColor BorderColor() const;
    void SetBorderColor(const QColor& value);
    QColor BackColor() const;
    void SetBackColor(const QColor& value);

    // The rectangle as it is drawn, in the control's pixels.
    QRect FrameRect() const { return m_frame; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void UserControl_Resize();
    void KeepTextReadable();

    QColor m_borderColor;
    QColor m_backColor;
    QRect m_frame;
};
