#pragma once

#include "ipgen/window/settings.h"
#include "ipgen/window/workbench.h"

#include <QHash>
#include <QMainWindow>

#include <functional>
#include <vector>

class QAction;
class QBoxLayout;
class QLabel;
class QMenu;
class QSplitter;
class QStackedWidget;
class QTabWidget;

namespace Window {

class CataloguePane;
class FilesPane;
class InstancePane;
class LatePage;
class Log;
class MapPane;
class NoticeBar;
class SummaryPane;
class WelcomePage;

/// The window: catalogue, instances, and what there is to see of them. Each action is a row of the
/// table in windowactions.cpp.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Shows the window and starts: with a project to open, that is there at the first sight;
    /// without one, the window is there before the plug-ins are read.
    void open(const QStringList& pluginDirs, const QString& project);
    /// Reads devices and plug-ins and opens the project, if any; failures are shown.
    void start(const QStringList& pluginDirs, const QString& project);
    Workbench* workbench() { return &m_bench; }
    const Workbench* workbench() const { return &m_bench; }
    /// By its row's name; null when there is none.
    QAction* action(const char* name) const { return m_actions.value(QLatin1String(name)); }

    // What the actions do.
    void newProject();
    void openProject();
    void openFolder(const QString& folder);
    void closeProject();
    void reload();
    void save();
    void findIp();
    void createChosen();
    void createInstance(const QString& ip);
    void openSelected();
    void openInstance(const QString& name);
    void duplicate();
    void rename();
    void check();
    void generate();
    void generateAll();
    void netlist();
    void remove();
    void copyCommand();
    void exportMap();
    void openOutputFolder();
    void focusInstances();
    void showShortcuts();
    void about();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

private:
    void makeActions();
    void makeMenus();
    void makePages();
    void makeHead(QBoxLayout* layout);
    QWidget* makeFilesPane();
    QWidget* makeSummaryPane();
    QWidget* makeResourceTable();
    void makeWelcome();
    void showWelcome();
    void afterPaint(const std::function<void()>& work);
    void onFirstPaint();
    void onHost();
    void onProject();
    void onSelection();
    void showPage(int number);
    void showRecent();
    void tell(const Ipgen::Status& status);
    void done(const QStringList& command, const QString& text);
    QStringList targets() const;
    QString askName(const QString& title, const QString& label, const QString& proposal);
    void generateThese(const QStringList& names);
    void runTool(const QString& title, const QStringList& arguments, const QString& success);
    QStringList pluginArguments() const;

    Settings m_settings;
    Workbench m_bench;
    QStringList m_pluginDirs;
    QHash<QString, QAction*> m_actions;
    QMenu* m_recentMenu = nullptr;
    NoticeBar* m_notice = nullptr;
    QStackedWidget* m_stack = nullptr;
    WelcomePage* m_welcome = nullptr;
    QWidget* m_work = nullptr;
    QLabel* m_projectLabel = nullptr;
    QLabel* m_folderLabel = nullptr;
    QLabel* m_deviceLabel = nullptr;
    QLabel* m_deviceAbout = nullptr;
    QSplitter* m_across = nullptr;
    QSplitter* m_down = nullptr;
    CataloguePane* m_catalogue = nullptr;
    InstancePane* m_instances = nullptr;
    QTabWidget* m_views = nullptr;
    MapPane* m_map = nullptr;
    FilesPane* m_filesPane = nullptr; ///< null while it was not looked at
    SummaryPane* m_summary = nullptr; ///< likewise
    Log* m_log = nullptr;
    bool m_painted = false;
    std::vector<std::function<void()>> m_afterPaint;
};

} // namespace Window
