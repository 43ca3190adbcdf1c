// The window's actions as a table: menus, toolbar, tooltips and shortcuts come from it.

#include "ipgen/window/mainwindow.h"

#include "ipgen/window/instancepane.h"
#include "ipgen/window/named.h"
#include "ipgen/window/symbols.h"
#include "ipgen/window/theme.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QToolBar>

#include <optional>

namespace Window {

namespace {

constexpr std::nullopt_t noIcon = std::nullopt;
enum Where { MenuOnly, Toolbar };

struct ActionRow {
    const char* name;
    const char* menu; ///< empty text: a separator follows the former one of the same menu
    const char* text;
    const char* tip;
    const char* shortcut;
    std::optional<Symbol> icon;
    Where where;
    void (MainWindow::*slot)();
};

using W = MainWindow;

// clang-format off
const ActionRow rows[] = {
    {"new",        QT_TRANSLATE_NOOP("Actions", "&Project"),  QT_TRANSLATE_NOOP("Actions", "&New …"),               QT_TRANSLATE_NOOP("Actions", "Make a project for a device"),                          "Ctrl+N",       Symbol::New,            Toolbar,  &W::newProject},
    {"open",       QT_TRANSLATE_NOOP("Actions", "&Project"),  QT_TRANSLATE_NOOP("Actions", "&Open …"),              QT_TRANSLATE_NOOP("Actions", "Open a project folder"),                                "Ctrl+O",       Symbol::Open,    Toolbar,  &W::openProject},
    {"save",       QT_TRANSLATE_NOOP("Actions", "&Project"),  QT_TRANSLATE_NOOP("Actions", "&Save again"),          QT_TRANSLATE_NOOP("Actions", "Save what an earlier failure kept from being saved"),   "Ctrl+S",       noIcon,                         MenuOnly, &W::save},
    {"reload",     QT_TRANSLATE_NOOP("Actions", "&Project"),  QT_TRANSLATE_NOOP("Actions", "&Reload"),              QT_TRANSLATE_NOOP("Actions", "Read the project and look at its files again"),         "F5",           noIcon,                         MenuOnly, &W::reload},
    {"exportmap",  QT_TRANSLATE_NOOP("Actions", "&Project"),  QT_TRANSLATE_NOOP("Actions", "Print or &export quad map …"), QT_TRANSLATE_NOOP("Actions", "Write the quad map for paper (PDF) or as a picture (SVG, PNG)"), "Ctrl+P",  Symbol::Print,                  MenuOnly, &W::exportMap},
    {"close",      QT_TRANSLATE_NOOP("Actions", "&Project"),  QT_TRANSLATE_NOOP("Actions", "&Close project"),       QT_TRANSLATE_NOOP("Actions", "Close the project"),                                    "Ctrl+W",       noIcon,                         MenuOnly, &W::closeProject},
    {"create",     QT_TRANSLATE_NOOP("Actions", "&Instance"), QT_TRANSLATE_NOOP("Actions", "&Create …"),            QT_TRANSLATE_NOOP("Actions", "Create an instance of the IP chosen in the catalogue"), "Ctrl+I",       Symbol::Create, Toolbar,  &W::createChosen},
    {"configure",  QT_TRANSLATE_NOOP("Actions", "&Instance"), QT_TRANSLATE_NOOP("Actions", "C&onfigure …"),         QT_TRANSLATE_NOOP("Actions", "Open the instance in its IP's dialog (or Enter)"),      "Ctrl+E",       Symbol::Configure, Toolbar, &W::openSelected},
    {"duplicate",  QT_TRANSLATE_NOOP("Actions", "&Instance"), QT_TRANSLATE_NOOP("Actions", "&Duplicate …"),         QT_TRANSLATE_NOOP("Actions", "Make a copy under another name"),                       "Ctrl+D",       noIcon,                         MenuOnly, &W::duplicate},
    {"rename",     QT_TRANSLATE_NOOP("Actions", "&Instance"), QT_TRANSLATE_NOOP("Actions", "&Rename …"),            QT_TRANSLATE_NOOP("Actions", "Give the instance another name"),                       "F2",           noIcon,                         MenuOnly, &W::rename},
    {"check",      QT_TRANSLATE_NOOP("Actions", "&Instance"), QT_TRANSLATE_NOOP("Actions", "C&heck"),               QT_TRANSLATE_NOOP("Actions", "Let the IP check the selected instances, without saving"), "F7",        Symbol::Check,   Toolbar,  &W::check},
    {"generate",   QT_TRANSLATE_NOOP("Actions", "&Instance"), QT_TRANSLATE_NOOP("Actions", "&Generate"),            QT_TRANSLATE_NOOP("Actions", "Write the files of the selected instances"),            "F8",           Symbol::Generate,           Toolbar,  &W::generate},
    {"generateall",QT_TRANSLATE_NOOP("Actions", "&Instance"), QT_TRANSLATE_NOOP("Actions", "Generate &all"),         QT_TRANSLATE_NOOP("Actions", "Write the files of all instances"),                     "Shift+F8",     Symbol::GenerateAll,    Toolbar,  &W::generateAll},
    {"netlist",    QT_TRANSLATE_NOOP("Actions", "&Instance"), QT_TRANSLATE_NOOP("Actions", "Generate with &netlist"), QT_TRANSLATE_NOOP("Actions", "Write the files and run the netlist generation"),     "F9",           noIcon,                         MenuOnly, &W::netlist},
    {"remove",     QT_TRANSLATE_NOOP("Actions", "&Instance"), QT_TRANSLATE_NOOP("Actions", "Remo&ve"),              QT_TRANSLATE_NOOP("Actions", "Remove the selected instances; undo brings them back"), "Ctrl+Del",     Symbol::Remove,           Toolbar,  &W::remove},
    {"copycommand",QT_TRANSLATE_NOOP("Actions", "&Instance"), QT_TRANSLATE_NOOP("Actions", "Cop&y command line"),   QT_TRANSLATE_NOOP("Actions", "Copy the command line that generates the selected instances"), "Ctrl+Shift+C", noIcon,                  MenuOnly, &W::copyCommand},
    {"folder",     QT_TRANSLATE_NOOP("Actions", "&Instance"), QT_TRANSLATE_NOOP("Actions", "Open out&put folder"),  QT_TRANSLATE_NOOP("Actions", "Show the generated files in the file manager"),         "Ctrl+Shift+O", noIcon,                         MenuOnly, &W::openOutputFolder},
    {"find",       QT_TRANSLATE_NOOP("Actions", "&View"),     QT_TRANSLATE_NOOP("Actions", "&Find an IP"),          QT_TRANSLATE_NOOP("Actions", "Search the catalogue"),                                 "Ctrl+F",       noIcon,                         MenuOnly, &W::findIp},
    {"instances",  QT_TRANSLATE_NOOP("Actions", "&View"),     QT_TRANSLATE_NOOP("Actions", "&Instances"),           QT_TRANSLATE_NOOP("Actions", "Go to the table of instances"),                         "Ctrl+0",       noIcon,                         MenuOnly, &W::focusInstances},
    {"shortcuts",  QT_TRANSLATE_NOOP("Actions", "&Help"),     QT_TRANSLATE_NOOP("Actions", "&Keys"),                QT_TRANSLATE_NOOP("Actions", "All keys of the window"),                               "F1",           noIcon,                         MenuOnly, &W::showShortcuts},
    {"about",      QT_TRANSLATE_NOOP("Actions", "&Help"),     QT_TRANSLATE_NOOP("Actions", "&About"),               QT_TRANSLATE_NOOP("Actions", "About this program"),                                   "Ctrl+F1",      noIcon,                         MenuOnly, &W::about},
};
// clang-format on

QString label(const char* text) {
    return QCoreApplication::translate("Actions", text);
}

/// Text, shortcut and tooltip as every action has them.
void dress(QAction* action, const char* name, const QString& tip, const QKeySequence& keys) {
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    action->setToolTip(keys.isEmpty() ? tip
                                      : QStringLiteral("%1 (%2)").arg(
                                            tip, keys.toString(QKeySequence::NativeText)));
    action->setStatusTip(tip);
}

} // namespace

void MainWindow::makeActions() {
    for (const ActionRow& row : rows) {
        auto* action = new QAction(label(row.text), this);
        dress(action, row.name, label(row.tip), QKeySequence(QLatin1String(row.shortcut)));
        if (row.icon) {
            action->setIcon(symbolIcon(*row.icon));
        }
        connect(action, &QAction::triggered, this, row.slot);
        m_actions.insert(QLatin1String(row.name), action);
    }
    QAction* undo = m_bench.undoStack()->createUndoAction(this, tr("&Undo"));
    dress(undo, "undo", tr("Undo the last change of the project"), QKeySequence::Undo);
    m_actions.insert(QStringLiteral("undo"), undo);
    QAction* redo = m_bench.undoStack()->createRedoAction(this, tr("R&edo"));
    dress(redo, "redo", tr("Do the undone change again"),
          QKeySequence(QStringLiteral("Ctrl+Shift+Z")));
    m_actions.insert(QStringLiteral("redo"), redo);
    auto* quit = new QAction(tr("&Quit"), this);
    dress(quit, "quit", tr("Close the window"), QKeySequence(QStringLiteral("Ctrl+Q")));
    connect(quit, &QAction::triggered, this, &QWidget::close);
    m_actions.insert(QStringLiteral("quit"), quit);
}

void MainWindow::makeMenus() {
    QHash<QString, QMenu*> menus;
    auto* bar = addToolBar(tr("Main toolbar"));
    named(bar, "mainToolbar", tr("Main toolbar"));
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setMovable(false);
    for (const ActionRow& row : rows) {
        QMenu*& menu = menus[QLatin1String(row.menu)];
        if (menu == nullptr) {
            menu = menuBar()->addMenu(label(row.menu));
            menu->setToolTipsVisible(true);
        }
        QAction* action = m_actions.value(QLatin1String(row.name));
        menu->addAction(action);
        if (row.where == Toolbar) {
            if (qstrcmp(row.name, "create") == 0 || qstrcmp(row.name, "check") == 0 ||
                qstrcmp(row.name, "remove") == 0) {
                bar->addSeparator();
            }
            bar->addAction(action);
        }
    }
    QMenu* project = menus.value(QStringLiteral("&Project"));
    m_recentMenu = new QMenu(tr("Recen&t projects"), this);
    m_recentMenu->setToolTipsVisible(true);
    project->insertMenu(m_actions.value(QStringLiteral("save")), m_recentMenu);
    project->addSeparator();
    project->addAction(m_actions.value(QStringLiteral("quit")));
    QMenu* instance = menus.value(QStringLiteral("&Instance"));
    instance->addSeparator();
    instance->addAction(m_actions.value(QStringLiteral("undo")));
    instance->addAction(m_actions.value(QStringLiteral("redo")));
    QMenu* view = menus.value(QStringLiteral("&View"));
    view->addSeparator();
    for (int i = 0; i < m_views->count(); ++i) {
        QAction* action = view->addAction(m_views->tabText(i));
        dress(action, "view", tr("Show this view of the project"),
              QKeySequence(QStringLiteral("Ctrl+%1").arg(i + 1)));
        connect(action, &QAction::triggered, this, [this, i] { showPage(i); });
    }
    view->addSeparator();
    QMenu* theme = view->addMenu(tr("&Theme"));
    auto* group = new QActionGroup(this);
    const std::pair<const char*, Settings::Theme> themes[] = {
        {QT_TRANSLATE_NOOP("Actions", "&System"), Settings::Theme::System},
        {QT_TRANSLATE_NOOP("Actions", "&Light"), Settings::Theme::Light},
        {QT_TRANSLATE_NOOP("Actions", "&Dark"), Settings::Theme::Dark}};
    const char* themeKeys[] = {"Ctrl+Alt+S", "Ctrl+Alt+L", "Ctrl+Alt+D"};
    for (const auto& [text, value] : themes) {
        QAction* action = theme->addAction(label(text));
        dress(action, "theme", tr("Colours of the window; System takes effect at the next start"),
              QKeySequence(QLatin1String(themeKeys[group->actions().size()])));
        action->setCheckable(true);
        action->setChecked(m_settings.theme() == value);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, theme_ = value] {
            m_settings.setTheme(theme_);
            if (theme_ != Settings::Theme::System) {
                applyTheme(theme_); // the desktop's own colours are known at the start alone
            }
        });
    }
    m_instances->setMenuActions(instance->actions());
}

} // namespace Window
