#include "ipgen/window/summarypane.h"

#include "ipgen/report/comparison.h"
#include "ipgen/window/named.h"
#include "ipgen/window/workbench.h"

#include <QTextBrowser>
#include <QVBoxLayout>

namespace Window {

SummaryPane::SummaryPane(Workbench* bench, QWidget* parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_text(new QTextBrowser(this)) {
    named(m_text, "summaryText", tr("Summary"),
          tr("One instance chosen: what it runs at; two: what differs between them"));
    m_text->setTabChangesFocus(true);
    setFocusProxy(m_text);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_text);
    connect(bench, &Workbench::projectChanged, this, &SummaryPane::refresh);
    connect(bench, &Workbench::instancesChanged, this, &SummaryPane::refresh);
}

void SummaryPane::setInstances(const QStringList& names) {
    if (names != m_names) {
        m_names = names;
        refresh();
    }
}

void SummaryPane::showEvent(QShowEvent* event) {
    if (m_stale) {
        refresh();
    }
    QWidget::showEvent(event);
}

void SummaryPane::refresh() {
    m_stale = !isVisible();
    if (m_stale) {
        return;
    }
    if (m_bench->hasProject() && m_names.size() == 1 && m_bench->row(m_names.first()) != nullptr) {
        showSummary(m_names.first());
    } else if (m_bench->hasProject() && m_names.size() == 2 &&
               m_bench->row(m_names.first()) != nullptr &&
               m_bench->row(m_names.last()) != nullptr) {
        showComparison(m_names.first(), m_names.last());
    } else {
        m_text->setPlainText(tr("Choose one instance to see what it runs at, or two to compare."));
    }
}

void SummaryPane::showSummary(const QString& name) {
    const Ipgen::ProjectInstance instance = m_bench->project().instance(name);
    const Ipgen::CatalogueEntry* entry = nullptr;
    Ipgen::Status status = m_bench->catalogue().pick(instance.ip, &entry);
    if (status.ok()) {
        Ipgen::Trial trial(m_bench->device(), m_bench->project().data());
        const Ipgen::Summary summary =
            Ipgen::summarise(trial, *entry, name, instance.config, m_bench->device());
        status = summary.status;
        if (status.ok()) {
            m_text->setMarkdown(Ipgen::summaryMarkdown(summary));
            return;
        }
    }
    m_text->setPlainText(status.text());
}

void SummaryPane::showComparison(const QString& left, const QString& right) {
    const auto sideOf = [this](const QString& name) {
        const Ipgen::ProjectInstance instance = m_bench->project().instance(name);
        return Ipgen::Side{name,
                           name,
                           instance.ip,
                           m_bench->project().deviceName(),
                           instance.config,
                           m_bench->project().data()};
    };
    const Ipgen::Side a = sideOf(left);
    const Ipgen::Side b = sideOf(right);
    Ipgen::Comparison comparison;
    Ipgen::Status status = Ipgen::compareSides(m_bench->catalogue(), a, b, &comparison);
    m_text->setPlainText(status.ok() ? tr("%1 (-) and %2 (+)\n\n").arg(left, right) +
                                           Ipgen::comparisonText(comparison, a, b)
                                     : status.text());
}

} // namespace Window
