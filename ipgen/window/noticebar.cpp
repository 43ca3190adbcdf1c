#include "ipgen/window/noticebar.h"

#include "ipgen/window/named.h"
#include "ipgen/window/symbols.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace Window {

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent)
    , m_icon(new QLabel(this))
    , m_text(new QLabel(this))
    , m_close(new QToolButton(this)) {
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    named(m_text, "noticeText", tr("Notice"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setFocusPolicy(Qt::NoFocus);
    named(m_close, "noticeClose", tr("Close the notice"), tr("Close this notice (Esc)"));
    m_close->setIcon(symbolIcon(Symbol::Close));
    m_close->setAutoRaise(true);
    m_close->setShortcut(Qt::Key_Escape);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 4, 4);
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_close);
    connect(m_close, &QToolButton::clicked, this, &NoticeBar::clear);
    hide();
}

void NoticeBar::show(Kind kind, const QString& text) {
    const Symbol symbol = kind == Kind::Error     ? Symbol::Error
                          : kind == Kind::Warning ? Symbol::Warning
                                                  : Symbol::Information;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_icon->setPixmap(symbolIcon(symbol).pixmap(window()->windowHandle(), QSize(size, size)));
    m_text->setText(text);
    setVisible(true);
    QAccessibleEvent event(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void NoticeBar::clear() {
    m_text->clear();
    hide();
}

QString NoticeBar::text() const {
    return m_text->text();
}

} // namespace Window
