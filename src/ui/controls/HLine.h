// An etched horizontal rule that separates button rows: a dark line with a light line right under it, in
// the middle of a band that is always 20 pixels high, whatever height its host gives it.
#pragma once

#include <QColor>
#include <QLine>
#include <QWidget>

class HLine : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)

public:
    explicit HLine(QWidget* parent = nullptr);

    // The band's colour; the system's button face unless a host sets another.
    QColor BackColor() const;
    void SetBackColor(const QColor& value);

    // The dark line (the system's button shadow) and the light line (its 3-D highlight) under it.
    QLine Line1() const { return m_line1; }
    QLine Line2() const { return m_line2; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void UserControl_Resize();
    QColor DefaultBackColor() const;

    QColor m_backColor;
    QLine m_line1;
    QLine m_line2;
};
