#include "ipgen/window/mainwindow.h"

#include "ipgen/window/cataloguepane.h"
#include "ipgen/window/filespane.h"
#include "ipgen/window/instancepane.h"
#include "ipgen/window/logpane.h"
#include "ipgen/window/mappane.h"
#include "ipgen/window/named.h"
#include "ipgen/window/newprojectdialog.h"
#include "ipgen/window/noticebar.h"
#include "ipgen/window/summarypane.h"
#include "ipgen/window/welcomepage.h"

#include <core/viewmanager.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace Window {

namespace {

const QString acrossKey = QStringLiteral("across");
const QString downKey = QStringLiteral("down");

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent) {
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(tr("IP generator"));
    setWindowIcon(QIcon::fromTheme(QStringLiteral("ipgen")));
    makePages();
    makeActions();
    makeMenus();
    drawIcons();
    statusBar()->setSizeGripEnabled(true);
    connect(&m_bench, &Workbench::hostChanged, this, &MainWindow::onHost);
    connect(&m_bench, &Workbench::projectChanged, this, &MainWindow::onProject);
    connect(&m_bench, &Workbench::instancesChanged, this, &MainWindow::onSelection);
    connect(&m_bench, &Workbench::failed, this, &MainWindow::tell);
    Core::ViewManager::setDialogParent(this);
    resize(1180, 760);
    restoreGeometry(m_settings.geometry());
    restoreState(m_settings.windowState());
    m_across->restoreState(m_settings.splitter(acrossKey));
    m_down->restoreState(m_settings.splitter(downKey));
    onProject();
}

MainWindow::~MainWindow() {
    if (Core::ViewManager::dialogParent() == this) {
        Core::ViewManager::setDialogParent(nullptr);
    }
    // Its signals shall not reach a window that is half gone.
    m_bench.disconnect();
    m_bench.closeProject();
}

void MainWindow::makePages() {
    m_notice = new NoticeBar(this);
    m_stack = new QStackedWidget(this);
    m_welcome = new WelcomePage(this);
    m_work = new QWidget(this);
    m_projectLabel = named(new QLabel(this), "projectLabel", tr("Project"));
    m_projectLabel->setTextFormat(Qt::RichText);
    m_deviceLabel = named(new QLabel(this), "deviceLabel", tr("Device"));
    m_deviceLabel->setTextFormat(Qt::RichText);
    m_catalogue = new CataloguePane(this);
    m_instances = new InstancePane(&m_bench, this);
    m_views = named(new QTabWidget(this), "views", tr("Views of the project"));
    m_views->setDocumentMode(true);
    m_map = new MapPane(&m_bench, this);
    m_views->addTab(m_map, tr("Quad map"));
    auto* resources = new ResourceTable(&m_bench, this);
    m_views->addTab(resources, tr("Resources"));
    m_filesPane = new FilesPane(&m_bench, this);
    m_views->addTab(m_filesPane, tr("Files"));
    m_summary = new SummaryPane(&m_bench, this);
    m_views->addTab(m_summary, tr("Summary"));
    m_log = new LogPane(this);
    m_views->addTab(m_log, tr("Log"));

    m_down = new QSplitter(Qt::Vertical, this);
    m_down->addWidget(m_instances);
    m_down->addWidget(m_views);
    m_down->setChildrenCollapsible(false);
    m_down->setStretchFactor(0, 2);
    m_down->setStretchFactor(1, 3);
    m_across = new QSplitter(Qt::Horizontal, this);
    m_across->addWidget(m_catalogue);
    m_across->addWidget(m_down);
    m_across->setChildrenCollapsible(false);
    m_across->setStretchFactor(0, 1);
    m_across->setStretchFactor(1, 4);
    auto* head = new QHBoxLayout;
    head->setContentsMargins(12, 8, 12, 4);
    head->addWidget(m_projectLabel);
    head->addStretch(1);
    head->addWidget(m_deviceLabel);
    auto* inside = new QVBoxLayout(m_work);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addLayout(head);
    inside->addWidget(m_across, 1);
    m_stack->addWidget(m_welcome);
    m_stack->addWidget(m_work);
    auto* center = new QWidget(this);
    auto* layout = new QVBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_notice);
    layout->addWidget(m_stack, 1);
    setCentralWidget(center);

    connect(m_welcome, &WelcomePage::newRequested, this, &MainWindow::newProject);
    connect(m_welcome, &WelcomePage::openRequested, this, &MainWindow::openProject);
    connect(m_welcome, &WelcomePage::recentRequested, this, &MainWindow::openFolder);
    connect(m_welcome, &WelcomePage::forgetRequested, this, [this](const QString& folder) {
        m_settings.removeRecent(folder);
        showRecent();
    });
    connect(m_map, &MapPane::openRequested, this, &MainWindow::openInstance);
    connect(resources, &ResourceTable::openRequested, this, &MainWindow::openInstance);
    connect(m_filesPane, &FilesPane::folderRequested, this, &MainWindow::openOutputFolder);
    connect(m_catalogue, &CataloguePane::createRequested, this, &MainWindow::createInstance);
    connect(m_instances, &InstancePane::openRequested, this, &MainWindow::openInstance);
    connect(m_instances, &InstancePane::selectionChanged, this, &MainWindow::onSelection);
}

void MainWindow::start(const QStringList& pluginDirs, const QString& project) {
    m_pluginDirs = pluginDirs;
    Ipgen::Status loaded = m_bench.loadHost(pluginDirs);
    if (!loaded.ok()) {
        tell(loaded);
    } else if (!project.isEmpty()) {
        openFolder(project);
    }
}

void MainWindow::onHost() {
    m_catalogue->setCatalogue(m_bench.catalogue(), m_bench.device());
    const QList<Ipgen::PluginProblem>& problems = m_bench.catalogue().problems();
    if (problems.size() == 1) {
        m_notice->show(NoticeBar::Kind::Warning,
                       tr("%1: %2").arg(problems.first().path, problems.first().reason));
    } else if (!problems.isEmpty()) {
        m_notice->show(NoticeBar::Kind::Warning,
                       tr("Plug-ins that could not be loaded: %1. The catalogue says why.")
                           .arg(problems.size()));
    } else if (m_bench.catalogue().entries().empty()) {
        m_notice->show(NoticeBar::Kind::Warning,
                       tr("No IP plug-in was found. Install one, or start with --plugin-dir DIR."));
    }
}

void MainWindow::onProject() {
    const bool any = m_bench.hasProject();
    if (any) {
        const QString folder = m_bench.project().folder();
        setWindowTitle(tr("%1 — IP generator").arg(QFileInfo(folder).fileName()));
        m_projectLabel->setText(
            QStringLiteral("<b>%1</b>&nbsp;&nbsp;<small>%2</small>")
                .arg(QFileInfo(folder).fileName().toHtmlEscaped(), folder.toHtmlEscaped()));
        m_projectLabel->setToolTip(folder);
        const QString id = m_bench.device().id();
        m_deviceLabel->setText(QStringLiteral("<b>%1</b>&nbsp;&nbsp;<small>%2</small>")
                                   .arg(id.toHtmlEscaped(), deviceSummary(id).toHtmlEscaped()));
        if (!m_bench.otherUser().isEmpty()) {
            m_notice->show(NoticeBar::Kind::Warning,
                           tr("This project is open in %1 too. Both see each other's changes; the "
                              "same instance changed in both is refused, not overwritten.")
                               .arg(m_bench.otherUser()));
        }
    } else {
        setWindowTitle(tr("IP generator"));
    }
    m_stack->setCurrentWidget(any ? m_work : m_welcome);
    if (m_bench.hostLoaded()) {
        m_catalogue->setCatalogue(m_bench.catalogue(), m_bench.device());
    }
    showRecent();
    onSelection();
}

void MainWindow::showRecent() {
    const QStringList recent = m_settings.recentProjects();
    m_welcome->setRecent(recent);
    m_recentMenu->clear();
    for (const QString& folder : recent) {
        QAction* action = m_recentMenu->addAction(folder);
        action->setToolTip(tr("Open %1").arg(folder));
        connect(action, &QAction::triggered, this, [this, folder] { openFolder(folder); });
    }
    m_recentMenu->setEnabled(!recent.isEmpty());
}

void MainWindow::onSelection() {
    const bool project = m_bench.hasProject();
    m_filesPane->setInstance(project ? m_instances->current() : QString());
    m_summary->setInstances(project ? m_instances->selected() : QStringList());
    m_map->setHighlighted(project ? m_instances->current() : QString());
    const int selected = project ? m_instances->selected().size() : 0;
    const auto enable = [this](std::initializer_list<const char*> names, bool on) {
        for (const char* name : names) {
            action(name)->setEnabled(on);
        }
    };
    enable({"close", "reload", "create", "find", "instances", "folder"}, project);
    enable({"save"}, project && m_bench.project().changed());
    enable({"generateall"}, project && !m_bench.rows().isEmpty());
    enable({"configure", "duplicate", "rename"}, selected == 1);
    enable({"check", "generate", "netlist", "remove", "copycommand"}, selected > 0);
    if (project) {
        statusBar()->showMessage(
            tr("Instances: %1, selected: %2").arg(m_bench.rows().size()).arg(selected));
    } else {
        statusBar()->clearMessage();
    }
}

void MainWindow::showPage(int number) {
    m_views->setCurrentIndex(number);
    if (QWidget* page = m_views->currentWidget()) {
        QWidget* target = page->focusPolicy() == Qt::NoFocus ? page->nextInFocusChain() : page;
        target->setFocus(Qt::ShortcutFocusReason);
    }
}

void MainWindow::tell(const Ipgen::Status& status) {
    m_notice->show(status);
    m_log->addText(status.text());
    onSelection();
}

void MainWindow::done(const QStringList& command, const QString& text) {
    if (!command.isEmpty()) {
        m_log->addCommand(command);
    }
    if (!text.isEmpty()) {
        m_notice->show(NoticeBar::Kind::Information, text);
    }
}

void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange && !m_actions.isEmpty()) {
        drawIcons();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    m_settings.setLayout(saveGeometry(), saveState());
    m_settings.setSplitter(acrossKey, m_across->saveState());
    m_settings.setSplitter(downKey, m_down->saveState());
    QMainWindow::closeEvent(event);
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && m_bench.hasProject()) {
        m_bench.refreshStates(); // files may have been changed elsewhere
    }
    return QMainWindow::event(event);
}

} // namespace Window
