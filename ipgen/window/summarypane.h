#pragma once

#include <QWidget>

class QTextBrowser;

namespace Window {

class Workbench;

/// What the chosen instance runs at; with two instances chosen, what differs between them.
class SummaryPane : public QWidget {
    Q_OBJECT

public:
    explicit SummaryPane(Workbench* bench, QWidget* parent = nullptr);
    void setInstances(const QStringList& names);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void refresh();
    void showSummary(const QString& name);
    void showComparison(const QString& left, const QString& right);

    Workbench* m_bench;
    QStringList m_names;
    QTextBrowser* m_text;
    bool m_stale = true;
};

} // namespace Window
