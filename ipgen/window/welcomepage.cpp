#include "ipgen/window/welcomepage.h"

#include "ipgen/window/named.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace Window {

WelcomePage::WelcomePage(QWidget* parent)
    : QWidget(parent)
    , m_new(new QPushButton(tr("&New project …"), this))
    , m_open(new QPushButton(tr("&Open project …"), this))
    , m_recentTitle(new QLabel(tr("&Recent projects"), this))
    , m_recent(new QListWidget(this)) {
    named(m_new, "welcomeNew", tr("New project"), tr("Make a project for a device (Ctrl+N)"));
    named(m_open, "welcomeOpen", tr("Open project"), tr("Open a project folder (Ctrl+O)"));
    named(m_recent, "welcomeRecent", tr("Recent projects"),
          tr("Enter opens the project, Delete takes it off the list"));
    m_recentTitle->setBuddy(m_recent);
    auto* title = new QLabel(tr("IP generator"), this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.8);
    title->setFont(font);
    auto* steps = new QLabel(tr("<ol><li>Make a project for your device, or open one.</li>"
                                "<li>Find an IP by part of its name and create an instance.</li>"
                                "<li>See on the quad map what each instance holds.</li>"
                                "<li>Generate, and read the files.</li></ol>"),
                             this);
    steps->setWordWrap(true);
    const int width = fontMetrics().averageCharWidth() * 70;
    auto* column = new QWidget(this);
    column->setMaximumWidth(width);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_new);
    buttons->addWidget(m_open);
    buttons->addStretch(1);
    auto* inside = new QVBoxLayout(column);
    inside->addStretch(1);
    inside->addWidget(title);
    inside->addWidget(steps);
    inside->addLayout(buttons);
    inside->addSpacing(fontMetrics().height());
    inside->addWidget(m_recentTitle);
    inside->addWidget(m_recent, 4);
    inside->addStretch(1);
    auto* outside = new QHBoxLayout(this);
    outside->addStretch(1);
    outside->addWidget(column, 8);
    outside->addStretch(1);

    auto* forget = new QAction(tr("Take off the list"), m_recent);
    forget->setShortcut(QKeySequence::Delete);
    forget->setToolTip(tr("Take the project off this list; its files stay"));
    forget->setShortcutContext(Qt::WidgetShortcut);
    m_recent->addAction(forget);
    m_recent->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(forget, &QAction::triggered, this, [this] {
        if (const QListWidgetItem* item = m_recent->currentItem()) {
            Q_EMIT forgetRequested(item->data(Qt::UserRole).toString());
        }
    });
    connect(m_new, &QPushButton::clicked, this, &WelcomePage::newRequested);
    connect(m_open, &QPushButton::clicked, this, &WelcomePage::openRequested);
    connect(m_recent, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        Q_EMIT recentRequested(item->data(Qt::UserRole).toString());
    });
    setRecent({});
}

void WelcomePage::setRecent(const QStringList& folders) {
    m_recent->clear();
    for (const QString& folder : folders) {
        const bool there = QFileInfo::exists(folder + QStringLiteral("/project.json"));
        const QString text =
            QStringLiteral("%1  —  %2")
                .arg(QFileInfo(folder).fileName(), QDir::toNativeSeparators(folder));
        auto* item = new QListWidgetItem(there ? text : tr("%1 (not found)").arg(text), m_recent);
        item->setData(Qt::UserRole, folder);
        item->setToolTip(there ? tr("Open %1").arg(folder)
                               : tr("There is no project in %1 any more").arg(folder));
    }
    if (m_recent->count() > 0) {
        m_recent->setCurrentRow(0);
    }
    m_recent->setVisible(!folders.isEmpty());
    m_recentTitle->setVisible(!folders.isEmpty());
}

} // namespace Window
