#pragma once

#include <QWidget>

#include <functional>

namespace Window {

/// A page that is made when it is shown for the first time: the window does not wait for it.
class LatePage : public QWidget {
    Q_OBJECT

public:
    LatePage(std::function<QWidget*()> make, QWidget* parent);
    /// Null while it was not shown.
    QWidget* content() const { return m_content; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::function<QWidget*()> m_make;
    QWidget* m_content = nullptr;
};

} // namespace Window
