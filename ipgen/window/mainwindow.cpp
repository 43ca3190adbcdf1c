#include "ipgen/window/mainwindow.h"

#include "ipgen/window/cataloguepane.h"
#include "ipgen/window/filespane.h"
#include "ipgen/window/instancepane.h"
#include "ipgen/window/latepage.h"
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
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
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
    makePages();
    makeActions();
    makeMenus();
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
    // What is not seen at the first sight waits for it.
    afterPaint([this] {
        setWindowIcon(QIcon::fromTheme(QStringLiteral("ipgen")));
        m_catalogue->finish();
        m_instances->finish();
        m_bench.beginLooking();
    });
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
    m_work = new QWidget(this);
    m_log = new Log(this);
    m_catalogue = new CataloguePane(this);
    m_instances = new InstancePane(&m_bench, this);
    m_views = named(new QTabWidget(this), "views", tr("Views of the project"));
    m_views->setDocumentMode(true);
    m_map = new MapPane(&m_bench, this);
    m_views->addTab(m_map, tr("Quad map"));
    const auto addLate = [this](const QString& title, QWidget* (MainWindow::*make)()) {
        m_views->addTab(new LatePage([this, make] { return (this->*make)(); }, this), title);
    };
    addLate(tr("Resources"), &MainWindow::makeResourceTable);
    addLate(tr("Files"), &MainWindow::makeFilesPane);
    addLate(tr("Summary"), &MainWindow::makeSummaryPane);
    m_views->addTab(new LatePage([this] { return new LogPane(m_log, this); }, this), tr("Log"));

    m_down = new QSplitter(Qt::Vertical, this);
    m_down->addWidget(m_instances);
    m_down->addWidget(m_views);
    m_down->setChildrenCollapsible(false);
    m_down->setStretchFactor(0, 2);
    m_down->setStretchFactor(1, 3);
    // A few rows; the rest is for the map. What the user makes of it comes from the settings.
    m_down->setSizes({fontMetrics().height() * 12, fontMetrics().height() * 28});
    m_across = new QSplitter(Qt::Horizontal, this);
    m_across->addWidget(m_catalogue);
    m_across->addWidget(m_down);
    m_across->setChildrenCollapsible(false);
    m_across->setStretchFactor(0, 1);
    m_across->setStretchFactor(1, 4);
    auto* head = new QHBoxLayout;
    head->setContentsMargins(12, 8, 12, 4);
    makeHead(head);
    auto* inside = new QVBoxLayout(m_work);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addLayout(head);
    inside->addWidget(m_across, 1);
    m_stack->addWidget(m_work);
    auto* center = new QWidget(this);
    auto* layout = new QVBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_notice);
    layout->addWidget(m_stack, 1);
    setCentralWidget(center);

    connect(m_map, &MapPane::openRequested, this, &MainWindow::openInstance);
    connect(m_catalogue, &CataloguePane::createRequested, this, &MainWindow::createInstance);
    connect(m_instances, &InstancePane::openRequested, this, &MainWindow::openInstance);
    connect(m_instances, &InstancePane::selectionChanged, this, &MainWindow::onSelection);
}

void MainWindow::makeHead(QBoxLayout* layout) {
    const auto label = [this](const char* object, const QString& name) {
        auto* made = named(new QLabel(this), object, name);
        made->setTextFormat(Qt::PlainText);
        return made;
    };
    m_projectLabel = strong(label("projectLabel", tr("Project")));
    m_folderLabel = label("folderLabel", tr("Folder of the project"));
    m_deviceLabel = strong(label("deviceLabel", tr("Device")));
    m_deviceAbout = label("deviceAbout", tr("About the device"));
    // A long path is cut off, and does not make the window wide.
    m_folderLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    const int gap = fontMetrics().averageCharWidth() * 2;
    layout->addWidget(m_projectLabel);
    layout->addSpacing(gap);
    layout->addWidget(m_folderLabel, 1);
    layout->addSpacing(gap);
    layout->addWidget(m_deviceLabel);
    layout->addSpacing(gap);
    layout->addWidget(m_deviceAbout);
}

void MainWindow::makeWelcome() {
    m_welcome = new WelcomePage(this);
    m_stack->addWidget(m_welcome);
    connect(m_welcome, &WelcomePage::newRequested, this, &MainWindow::newProject);
    connect(m_welcome, &WelcomePage::openRequested, this, &MainWindow::openProject);
    connect(m_welcome, &WelcomePage::recentRequested, this, &MainWindow::openFolder);
    connect(m_welcome, &WelcomePage::forgetRequested, this, [this](const QString& folder) {
        m_settings.removeRecent(folder);
        showRecent();
    });
}

QWidget* MainWindow::makeResourceTable() {
    auto* table = new ResourceTable(&m_bench, this);
    connect(table, &ResourceTable::openRequested, this, &MainWindow::openInstance);
    return table;
}

QWidget* MainWindow::makeFilesPane() {
    m_filesPane = new FilesPane(&m_bench, this);
    connect(m_filesPane, &FilesPane::folderRequested, this, &MainWindow::openOutputFolder);
    onSelection();
    return m_filesPane;
}

QWidget* MainWindow::makeSummaryPane() {
    m_summary = new SummaryPane(&m_bench, this);
    onSelection();
    return m_summary;
}

void MainWindow::open(const QStringList& pluginDirs, const QString& project) {
    if (!project.isEmpty()) {
        start(pluginDirs, project);
        show();
        return;
    }
    show();
    QTimer::singleShot(0, this, [this, pluginDirs] { start(pluginDirs, QString()); });
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
        m_projectLabel->setText(QFileInfo(folder).fileName());
        m_projectLabel->setToolTip(folder);
        const QString home = QDir::homePath() + QLatin1Char('/');
        m_folderLabel->setText(
            folder.startsWith(home) ? QStringLiteral("~/") + folder.mid(home.size()) : folder);
        m_folderLabel->setToolTip(folder);
        m_deviceLabel->setText(m_bench.device().id());
        m_deviceAbout->setText(deviceSummary(m_bench.device().id()));
        if (!m_bench.otherUser().isEmpty()) {
            m_notice->show(NoticeBar::Kind::Warning,
                           tr("This project is open in %1 too. Both see each other's changes; the "
                              "same instance changed in both is refused, not overwritten.")
                               .arg(m_bench.otherUser()));
        }
    } else {
        setWindowTitle(tr("IP generator"));
    }
    if (any) {
        m_stack->setCurrentWidget(m_work);
    } else if (isVisible()) {
        showWelcome();
    }
    if (m_bench.hostLoaded()) {
        m_catalogue->setCatalogue(m_bench.catalogue(), m_bench.device());
    }
    showRecent();
    onSelection();
}

void MainWindow::showWelcome() {
    if (m_welcome == nullptr) {
        makeWelcome();
        showRecent();
    }
    m_stack->setCurrentWidget(m_welcome);
}

void MainWindow::showEvent(QShowEvent* event) {
    if (!m_bench.hasProject()) {
        showWelcome();
    }
    QMainWindow::showEvent(event);
}

void MainWindow::afterPaint(const std::function<void()>& work) {
    if (m_painted) {
        work();
    } else {
        m_afterPaint.push_back(work);
    }
}

void MainWindow::onFirstPaint() {
    const auto all = std::move(m_afterPaint);
    for (const auto& work : all) {
        work();
    }
}

void MainWindow::showRecent() {
    const QStringList recent = m_settings.recentProjects();
    if (m_welcome != nullptr) {
        m_welcome->setRecent(recent);
    }
    m_recentMenu->clear();
    for (const QString& folder : recent) {
        QAction* action = m_recentMenu->addAction(folder);
        const int number = m_recentMenu->actions().size();
        action->setShortcut(QKeySequence(QStringLiteral("Ctrl+Alt+%1").arg(number)));
        action->setToolTip(tr("Open %1").arg(folder));
        action->setStatusTip(action->toolTip());
        connect(action, &QAction::triggered, this, [this, folder] { openFolder(folder); });
    }
    m_recentMenu->setEnabled(!recent.isEmpty());
}

void MainWindow::onSelection() {
    const bool project = m_bench.hasProject();
    if (m_filesPane != nullptr) {
        m_filesPane->setInstance(project ? m_instances->current() : QString());
    }
    if (m_summary != nullptr) {
        m_summary->setInstances(project ? m_instances->selected() : QStringList());
    }
    m_map->setHighlighted(project ? m_instances->current() : QString());
    const int selected = project ? m_instances->selected().size() : 0;
    const auto enable = [this](std::initializer_list<const char*> names, bool on) {
        for (const char* name : names) {
            action(name)->setEnabled(on);
        }
    };
    enable({"close", "reload", "create", "find", "instances", "folder", "exportmap"}, project);
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
        // The map is to be looked at; every other page says what in it has the keyboard.
        QWidget* target = page->focusProxy() != nullptr ? page : m_views->tabBar();
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

void MainWindow::closeEvent(QCloseEvent* event) {
    m_settings.setLayout(saveGeometry(), saveState());
    m_settings.setSplitter(acrossKey, m_across->saveState());
    m_settings.setSplitter(downKey, m_down->saveState());
    QMainWindow::closeEvent(event);
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && m_bench.hasProject()) {
        m_bench.refreshStates(); // files may have been changed elsewhere
    } else if (event->type() == QEvent::Paint && !m_painted) {
        m_painted = true;
        QTimer::singleShot(0, this, &MainWindow::onFirstPaint);
    }
    return QMainWindow::event(event);
}

} // namespace Window
