#pragma once

#include <QWidget>

class QLabel;
class QListWidget;
class QPushButton;

namespace Window {

/// What the window shows without a project: the two ways to one, and the projects of before.
class WelcomePage : public QWidget {
    Q_OBJECT

public:
    explicit WelcomePage(QWidget* parent = nullptr);
    void setRecent(const QStringList& folders);

Q_SIGNALS:
    void newRequested();
    void openRequested();
    void recentRequested(const QString& folder);
    void forgetRequested(const QString& folder);

private:
    QPushButton* m_new;
    QPushButton* m_open;
    QLabel* m_recentTitle;
    QListWidget* m_recent;
};

} // namespace Window
