#include "ipgen/window/latepage.h"

#include <QVBoxLayout>

namespace Window {

LatePage::LatePage(std::function<QWidget*()> make, QWidget* parent)
    : QWidget(parent)
    , m_make(std::move(make)) {}

void LatePage::showEvent(QShowEvent* event) {
    if (m_content == nullptr) {
        m_content = m_make();
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_content);
        setFocusProxy(m_content);
        m_content->show();
    }
    QWidget::showEvent(event);
}

} // namespace Window
