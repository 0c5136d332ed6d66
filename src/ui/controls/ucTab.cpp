#include "ui/controls/ucTab.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "error/mError.h"
#include "ui/controls/Contrast.h"
#include "ui/controls/TabColours.h"

namespace {

const QString kDefaultCaption = QStringLiteral("Label1");

// The caption keeps this margin on both sides.
constexpr int kLabelLeft = 8;

struct TabLook {
    int borderWidth;
    int frameTop;
    int labelTop;
};
constexpr TabLook kActiveLook{2, 2, 6};
constexpr TabLook kInactiveLook{1, 4, 8};

// Below the caption of an inactive tab in a tab's natural height.
constexpr int kLabelBottomMargin = 6;

// How far the active frame runs below the tab, hiding its bottom line behind the page area's edge.
constexpr int kActiveFrameOverhang = 5;

const TabLook& LookOf(bool active) {
    return active ? kActiveLook : kInactiveLook;
}

bool IsActivationKey(const QKeyEvent* event) {
    const int key = event->key();
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

// What a screen reader meets of a tab: a page tab with the caption as its name, selected while it is the
// active one, and pressed as a click presses it.
class ucTabAccessible : public QAccessibleWidget {
public:
    explicit ucTabAccessible(ucTab* tab) : QAccessibleWidget(tab, QAccessible::PageTab) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return Tab()->m_label->text();
        return QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = Tab()->m_isActive;
        return state;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction())
            Tab()->UserControl_Click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    ucTab* Tab() const { return static_cast<ucTab*>(widget()); }
};

namespace {

QAccessibleInterface* AccessibleTab(const QString& /*className*/, QObject* object) {
    if (auto* tab = qobject_cast<ucTab*>(object))
        return new ucTabAccessible(tab);
    return nullptr;
}

}  // namespace

ucTab::ucTab(QWidget* parent) : QWidget(parent), m_label(new QLabel(kDefaultCaption, this)) {
    m_label->setObjectName(QStringLiteral("Label1"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette own = palette();
    Contrast::ReadableOn(own, TabColours::kFill);
    setPalette(own);
    static const bool accessible = (QAccessible::installFactory(AccessibleTab), true);
    (void)accessible;
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    SetIsActive(false);
    UserControl_Resize();
    resize(sizeHint());
}

QString ucTab::Caption() const {
    return mError::WithTrail("Get Caption", [this] { return m_label->text(); });
}

void ucTab::SetCaption(const QString& value) try {
    m_label->setText(value);
    QAccessibleEvent named(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&named);
    UserControl_Resize();
} catch (...) {
    mError::PassOn("Let Caption");
}

bool ucTab::IsActive() const {
    return mError::WithTrail("Get IsActive", [this] { return m_isActive; });
}

void ucTab::SetIsActive(bool value) try {
    const bool changed = value != m_isActive;
    m_isActive = value;
    if (changed) {
        QAccessible::State selected;
        selected.selected = true;
        QAccessibleStateChangeEvent event(this, selected);
        QAccessible::updateAccessibility(&event);
    }
    m_label->move(kLabelLeft, LookOf(value).labelTop);
    update();
} catch (...) {
    mError::PassOn("Let IsActive");
}

QRect ucTab::FrameRect() const {
    const int top = LookOf(m_isActive).frameTop;
    const int frameHeight = m_isActive ? height() + kActiveFrameOverhang : height() - top;
    return QRect(0, top, width(), frameHeight);
}

int ucTab::FrameBorderWidth() const {
    return LookOf(m_isActive).borderWidth;
}

QSize ucTab::sizeHint() const {
    const int labelHeight = m_label->sizeHint().height();
    return QSize(LayoutWidth(), kInactiveLook.labelTop + labelHeight + kLabelBottomMargin);
}

// The border is drawn inside the frame, so a thick frame does not spill over the neighbouring tab.
void ucTab::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const qreal inset = FrameBorderWidth() / 2.0;
    painter.setPen(QPen(TabColours::kBorder, FrameBorderWidth()));
    painter.setBrush(TabColours::kFill);
    painter.drawRect(QRectF(FrameRect()).adjusted(inset, inset, -inset, -inset));
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = TabColours::kFill;
    option.rect = m_label->geometry().adjusted(-3, -1, 3, 1);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void ucTab::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    UserControl_Resize();
}

void ucTab::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton);
}

// Like a button, the tab reacts when the mouse is released over it, not when it is pressed.
void ucTab::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (event->button() != Qt::LeftButton || !rect().contains(at))
        return QWidget::mouseReleaseEvent(event);
    if (m_label->geometry().contains(at))
        Label1_Click();
    else
        UserControl_Click();
}

void ucTab::keyPressEvent(QKeyEvent* event) {
    if (!IsActivationKey(event) || event->isAutoRepeat())
        return QWidget::keyPressEvent(event);
    UserControl_Click();
}

void ucTab::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void ucTab::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

void ucTab::UserControl_Resize() try {
    m_label->resize(m_label->sizeHint());
    setFixedWidth(LayoutWidth());
    emit Resize();
} catch (...) {
    mError::ShowError("UserControl_Resize");
}

void ucTab::Label1_Click() try {
    emit Click();
    SetIsActive(true);
} catch (...) {
    mError::ShowError("Label1_Click");
}

void ucTab::UserControl_Click() try {
    emit Click();
    SetIsActive(true);
} catch (...) {
    mError::ShowError("UserControl_Click");
}

int ucTab::LayoutWidth() const {
    return 2 * kLabelLeft + m_label->sizeHint().width();
}
