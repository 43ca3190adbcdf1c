// The window from the outside: its main path by keyboard alone, what assistive tools see of it, and
// that it does what the commands do.

#include "ipgen/window/mainwindow.h"
#include "ipgen/window/noticebar.h"
#include "ipgen/window/settings.h"
#include "ipgen/window/theme.h"

#include <serdesip/protocolgendlg.h>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QInputDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QStyle>
#include <QSvgRenderer>
#include <QTableView>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <utility>

using namespace Window;

class MainWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void everyFocusableWidgetHasAName();
    void everyActionHasTextKeyAndTip();
    void mainPathByKeyboard();
    void acceptedCountsWhateverFailedBefore();
    void sameBytesAsTheCommand();
    void statesFollowTheFiles();
    void removeAndUndo();
    void undoBringsEveryKeyBack();
    void copyWaitsToBeConfigured();
    void twoOfOneFolderAreNotGenerated();
    void mapForPaper_data();
    void mapForPaper();
    void systemThemeWaits();
    void secondWindowIsTold();
    void changesFromOutsideShowUp();
    void damagedProjectIsReported();

private:
    QString example(int instances);
    QString noticeText() const;

    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_place;
    std::unique_ptr<MainWindow> m_window;
};

namespace {

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int runProgram(const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(IPGEN), arguments);
    process.waitForFinished(60000);
    return process.exitCode();
}

/// Does something once a window of this class is in front and ready for keys.
template <class W>
void whenShown(const std::function<void(W*)>& action) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, action] {
        W* found = nullptr;
        const QWidgetList all = QApplication::topLevelWidgets();
        for (QWidget* one : all) {
            if (one->isVisible() && qobject_cast<W*>(one) != nullptr) {
                found = qobject_cast<W*>(one);
            }
        }
        if (found != nullptr) {
            timer->stop();
            timer->deleteLater();
            action(found);
        }
    });
    timer->start(20);
}

} // namespace

void MainWindowTest::initTestCase() {
    QVERIFY(m_home.isValid());
    qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
    qputenv("XDG_CACHE_HOME", m_home.path().toUtf8());
}

void MainWindowTest::init() {
    m_place = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    m_window->start({}, QString());
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(m_window->workbench()->catalogue().entries().size() >= 1);
}

void MainWindowTest::cleanup() {
    m_window.reset();
    m_place.reset();
}

/// A project with instances that the command line has made.
QString MainWindowTest::example(int instances) {
    const QString folder = m_place->filePath(QStringLiteral("example"));
    if (runProgram({QStringLiteral("new"), folder, QStringLiteral("--device"),
                    QStringLiteral("RZ7X-60B")}) != 0) {
        return {};
    }
    Ipgen::Project project;
    const Ipgen::Catalogue& catalogue = m_window->workbench()->catalogue();
    if (!Ipgen::Project::load(folder, &project).ok()) {
        return {};
    }
    for (int i = 0; i < instances; ++i) {
        const QString name = QStringLiteral("link%1").arg(i);
        project.setInstance(name, {catalogue.entries().front().id,
                                   {{QStringLiteral("target_device"), QStringLiteral("RZ7X-60B")},
                                    {QStringLiteral("file"), name},
                                    {QStringLiteral("module"), name}}});
    }
    return project.save().ok() ? folder : QString();
}

QString MainWindowTest::noticeText() const {
    return m_window->findChild<NoticeBar*>()->text();
}

void MainWindowTest::everyFocusableWidgetHasAName() {
    m_window->openFolder(example(2));
    // Pages are made when they are looked at.
    auto* views = m_window->findChild<QTabWidget*>(QStringLiteral("views"));
    for (int i = 0; i < views->count(); ++i) {
        views->setCurrentIndex(i);
    }
    QStringList nameless;
    const QList<QWidget*> all = m_window->findChildren<QWidget*>();
    int looked = 0;
    for (const QWidget* widget : all) {
        const bool inner = widget->objectName().startsWith(QLatin1String("qt_")) ||
                           widget->inherits("QHeaderView") || widget->inherits("QTabBar") ||
                           widget->inherits("QMenu") || widget->inherits("QMenuBar");
        // A toolbar's button takes its name from its action's text.
        const bool button = widget->inherits("QToolButton") &&
                            !static_cast<const QAbstractButton*>(widget)->text().isEmpty();
        if (widget->focusPolicy() != Qt::NoFocus && !inner && !button) {
            ++looked;
            if (widget->accessibleName().isEmpty()) {
                nameless.append(QStringLiteral("%1 \"%2\"")
                                    .arg(QLatin1String(widget->metaObject()->className()),
                                         widget->objectName()));
            }
        }
    }
    for (const char* name : {"catalogueSearch", "instanceTable", "resourceTable", "fileList",
                             "fileText", "summaryText", "log"}) {
        QVERIFY2(m_window->findChild<QWidget*>(QLatin1String(name)) != nullptr, name);
    }
    QVERIFY(looked > 8);
    QCOMPARE(nameless.join(QStringLiteral(", ")), QString());
}

void MainWindowTest::everyActionHasTextKeyAndTip() {
    // A project among the recent ones, so that their menu has something.
    m_window->openFolder(example(1));
    QTRY_VERIFY(!Settings().recentProjects().isEmpty());
    QStringList poor;
    QHash<QString, QString> keys;
    int looked = 0;
    // Every action of every menu, as the menu bar leads to them.
    std::function<void(const QList<QAction*>&)> look = [&](const QList<QAction*>& actions) {
        for (QAction* action : actions) {
            if (action->isSeparator()) {
                continue;
            }
            if (action->menu() != nullptr) {
                look(action->menu()->actions());
                continue;
            }
            ++looked;
            const QString key = action->shortcut().toString();
            // A tooltip that nobody gave is the text again.
            QString plain = action->text();
            plain.remove(QLatin1Char('&')).remove(QStringLiteral(" …"));
            if (action->text().isEmpty() || key.isEmpty() || action->toolTip().isEmpty() ||
                action->toolTip() == plain || keys.contains(key)) {
                poor.append(action->text());
            }
            keys.insert(key, action->text());
        }
    };
    look(m_window->menuBar()->actions());
    QVERIFY(looked > 28);
    QCOMPARE(poor.join(QStringLiteral(", ")), QString());
    // What assistive tools are told of a menu's entries.
    const QList<QMenu*> menus = m_window->findChildren<QMenu*>();
    for (QMenu* menu : menus) {
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(menu);
        for (int i = 0; i < interface->childCount(); ++i) {
            const QAccessibleInterface* entry = interface->child(i);
            QVERIFY(entry->role() == QAccessible::Separator ||
                    !entry->text(QAccessible::Name).isEmpty());
        }
    }
}

void MainWindowTest::mainPathByKeyboard() {
    const QString folder = m_place->filePath(QStringLiteral("byKeys"));
    QWidget* window = m_window.get();
    // A project for the device.
    whenShown<QDialog>([&](QDialog* dialog) {
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("newProjectFolder"));
        QApplication::setActiveWindow(dialog);
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(edit, folder);
        QTest::keyClick(edit, Qt::Key_Return);
    });
    QTest::keyClick(window, Qt::Key_N, Qt::ControlModifier);
    QVERIFY(m_window->workbench()->hasProject());
    QCOMPARE(m_window->workbench()->project().folder(), folder);
    // The IP by a part of its name, created with OK.
    auto* search = m_window->findChild<QLineEdit*>(QStringLiteral("catalogueSearch"));
    QTest::keyClick(window, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(search, QStringLiteral("custom"));
    whenShown<QInputDialog>([&](QInputDialog* dialog) {
        whenShown<IPSERDESIP::protocolGenDlg>([](IPSERDESIP::protocolGenDlg* ip) {
            // Its own fields are the IP's business; a lane by the space bar is enough here.
            auto* lane = ip->findChild<QAbstractButton*>(QStringLiteral("q0_l0"));
            if (lane != nullptr && !lane->isChecked()) {
                QTest::keyClick(lane, Qt::Key_Space);
            }
            auto* buttons = ip->findChild<QDialogButtonBox*>();
            auto* ok = buttons != nullptr ? buttons->button(QDialogButtonBox::Ok) : nullptr;
            QTimer boxes; // whatever the IP asks or says is answered with Yes, or closed
            connect(&boxes, &QTimer::timeout, [] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                if (box == nullptr) {
                    return;
                }
                QWidget* yes = box->button(QMessageBox::Yes);
                QTest::keyClick(yes != nullptr ? yes : box,
                                yes != nullptr ? Qt::Key_Space : Qt::Key_Escape);
            });
            boxes.start(20);
            if (ok != nullptr) {
                QTest::keyClick(ok, Qt::Key_Space);
            }
            if (ip->isVisible()) {
                ip->reject();
            }
        });
        QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
    });
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY2(m_window->workbench()->rows().size() == 1, qPrintable(noticeText()));
    QApplication::setActiveWindow(window); // as a window manager does after a dialog
    // The resources, then the files.
    const std::pair<Qt::Key, const char*> pages[] = {{Qt::Key_3, "fileList"},
                                                     {Qt::Key_4, "summaryText"},
                                                     {Qt::Key_5, "log"},
                                                     {Qt::Key_1, "qt_tabwidget_tabbar"},
                                                     {Qt::Key_2, "resourceTable"}};
    for (const auto& [key, name] : pages) {
        QTest::keyClick(window, key, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(name));
    }
    QCOMPARE(m_window->findChild<QTabWidget*>(QStringLiteral("views"))->currentIndex(), 1);
    QTest::keyClick(window, Qt::Key_F8, Qt::ShiftModifier);
    const QString name = m_window->workbench()->rows().first().name;
    QTRY_VERIFY2(m_window->workbench()->row(name)->state == State::Generated,
                 qPrintable(noticeText()));
}

/// What fails while the dialog is open is told at once, and costs nothing that is accepted later.
void MainWindowTest::acceptedCountsWhateverFailedBefore() {
    QVERIFY(m_window->workbench()->openProject(example(0)).ok());
    QStringList told;
    QTimer boxes;
    connect(&boxes, &QTimer::timeout, [&told] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr) {
            told.append(box->text());
            box->button(QMessageBox::Yes) != nullptr ? box->button(QMessageBox::Yes)->click()
                                                     : box->accept();
        }
    });
    whenShown<IPSERDESIP::protocolGenDlg>([](IPSERDESIP::protocolGenDlg* ip) {
        ip->findChild<QAbstractButton*>(QStringLiteral("q0_l0"))->click();
        auto* fileName = ip->findChild<QLineEdit*>(QStringLiteral("fileName"));
        fileName->setText(QStringLiteral("../x"));
        ip->findChild<QAbstractButton*>(QStringLiteral("ButtonCalculate"))->click();
        QTest::qWait(200); // the box comes up once the click is done
        fileName->setText(QStringLiteral("good"));
        ip->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        if (ip->isVisible()) {
            ip->reject();
        }
    });
    boxes.start(20);
    bool accepted = false;
    const Ipgen::Status status = m_window->workbench()->createInstance(
        QStringLiteral("link0"), QStringLiteral("customized"), &accepted);
    QVERIFY2(status.ok(), qPrintable(status.text()));
    QVERIFY(accepted);
    QVERIFY(m_window->workbench()->project().hasInstance(QStringLiteral("link0")));
    QVERIFY2(told.size() >= 1 && told.first().contains(QStringLiteral("\"../x\"")),
             qPrintable(told.join(QStringLiteral(" | "))));
}

void MainWindowTest::sameBytesAsTheCommand() {
    const QString folder = example(2);
    m_window->openFolder(folder);
    m_window->action("generateall")->trigger();
    QMap<QString, QByteArray> fromWindow;
    for (const InstanceRow& row : m_window->workbench()->rows()) {
        const QStringList files = generatedFiles(m_window->workbench()->project(), row.file);
        for (const QString& path : files) {
            fromWindow.insert(path, bytesOf(path));
            QVERIFY(QFile::remove(path));
        }
    }
    QVERIFY(fromWindow.size() >= 2);
    QCOMPARE(runProgram({QStringLiteral("generate"), folder}), 0);
    for (auto it = fromWindow.constBegin(); it != fromWindow.constEnd(); ++it) {
        QCOMPARE(bytesOf(it.key()), it.value());
    }
}

void MainWindowTest::statesFollowTheFiles() {
    m_window->openFolder(example(1));
    Workbench* bench = m_window->workbench();
    QTRY_COMPARE(bench->row(QStringLiteral("link0"))->state, State::Configured);
    // What an IP leaves there beside its generation makes nothing out of date.
    const QString folder = bench->project().workingDir() + QStringLiteral("/link0/temp");
    QVERIFY(QDir().mkpath(folder));
    QFile other(folder + QStringLiteral("/other.log"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.close();
    bench->refreshStates();
    QTRY_COMPARE(bench->row(QStringLiteral("link0"))->state, State::Configured);
    m_window->action("generateall")->trigger();
    QTRY_COMPARE(bench->row(QStringLiteral("link0"))->state, State::Generated);
    const QString path = generatedFiles(bench->project(), QStringLiteral("link0"))
                             .filter(QStringLiteral(".vh"))
                             .first();
    QFile file(path);
    QVERIFY(file.open(QIODevice::Append));
    file.write("// touched\n");
    file.close();
    bench->refreshStates();
    QTRY_COMPARE(bench->row(QStringLiteral("link0"))->state, State::OutOfDate);
    QVERIFY(bench->row(QStringLiteral("link0"))->detail.contains(QFileInfo(path).fileName()));
}

void MainWindowTest::removeAndUndo() {
    const QString folder = example(3);
    m_window->openFolder(folder);
    const QByteArray before = bytesOf(folder + QStringLiteral("/project.json"));
    auto* table = m_window->findChild<QTableView*>(QStringLiteral("instanceTable"));
    table->selectAll();
    QTest::keyClick(table, Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(m_window->workbench()->rows().size(), 0);
    Ipgen::Project project;
    QVERIFY(Ipgen::Project::load(folder, &project).ok());
    QCOMPARE(project.instanceNames().size(), 0);
    QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(bytesOf(folder + QStringLiteral("/project.json")), before);
    QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_window->workbench()->rows().size(), 0);
}

void MainWindowTest::undoBringsEveryKeyBack() {
    const QString folder = example(2);
    const QString path = folder + QStringLiteral("/project.json");
    QJsonObject document = QJsonDocument::fromJson(bytesOf(path)).object();
    QJsonObject instances = document[QStringLiteral("instances")].toObject();
    QJsonObject link = instances[QStringLiteral("link0")].toObject();
    link[QStringLiteral("note")] = QStringLiteral("of another program");
    instances[QStringLiteral("link0")] = link;
    document[QStringLiteral("instances")] = instances;
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QJsonDocument(document).toJson());
    file.close();
    m_window->openFolder(folder);
    Workbench* bench = m_window->workbench();
    // The program's own form of the file.
    QVERIFY(bench->renameInstance(QStringLiteral("link1"), QStringLiteral("other")).ok());
    const QByteArray before = bytesOf(path);
    QVERIFY(before.contains("of another program"));
    QVERIFY(bench->removeInstances({QStringLiteral("link0")}).ok());
    QVERIFY(!bytesOf(path).contains("of another program"));
    bench->undoStack()->undo();
    QCOMPARE(bytesOf(path), before);
    bench->undoStack()->redo();
    QVERIFY(!bytesOf(path).contains("link0"));
}

void MainWindowTest::copyWaitsToBeConfigured() {
    const QString folder = example(1);
    m_window->openFolder(folder);
    Workbench* bench = m_window->workbench();
    const QByteArray before = bytesOf(folder + QStringLiteral("/project.json"));
    const QString link = QStringLiteral("link0");
    const QString copy = QStringLiteral("copy");
    QVERIFY(bench->duplicateInstance(link, copy).ok());
    QVERIFY(bench->row(copy)->state == State::Copy);
    QVERIFY(bench->row(copy)->detail.contains(link));
    // The original is as it was; the copy is left out, here and by the command.
    m_window->action("generateall")->trigger();
    QVERIFY2(noticeText().contains(QStringLiteral("copy: is a copy of link0")),
             qPrintable(noticeText()));
    QTRY_VERIFY(bench->row(link)->state == State::Generated);
    QVERIFY(bench->row(copy)->state == State::Copy);
    QCOMPARE(runProgram({QStringLiteral("generate"), folder, link}), 0);
    QCOMPARE(runProgram({QStringLiteral("generate"), folder, copy}), 1);
    // Accepting it in its dialog, whoever does it, makes it an instance like the others.
    Ipgen::Project project;
    QVERIFY(Ipgen::Project::load(folder, &project).ok());
    QCOMPARE(project.copiedFrom(copy), link);
    Ipgen::ProjectInstance configured = project.instance(copy);
    configured.config.insert(QStringLiteral("file"), copy);
    project.setInstance(copy, configured);
    QVERIFY(project.save().ok());
    QTRY_VERIFY(bench->row(copy)->state == State::Configured);
    QVERIFY(bench->generateInstance(copy, false).ok);
    QVERIFY(bench->removeInstances({copy}).ok());
    bench->undoStack()->undo();
    QVERIFY(bench->row(copy) != nullptr);
    bench->undoStack()->undo();
    bench->undoStack()->undo();
    QCOMPARE(bytesOf(folder + QStringLiteral("/project.json")), before);
}

void MainWindowTest::twoOfOneFolderAreNotGenerated() {
    const QString folder = example(2);
    Ipgen::Project project;
    QVERIFY(Ipgen::Project::load(folder, &project).ok());
    Ipgen::ProjectInstance second = project.instance(QStringLiteral("link1"));
    second.config.insert(QStringLiteral("file"), QStringLiteral("link0"));
    project.setInstance(QStringLiteral("link1"), second);
    QVERIFY(project.save().ok());
    m_window->openFolder(folder);
    m_window->action("generateall")->trigger();
    QVERIFY(!QFileInfo::exists(m_window->workbench()->project().workingDir() +
                               QStringLiteral("/link0")));
    QVERIFY2(noticeText().contains(QStringLiteral("link1 writes to the same folder")),
             qPrintable(noticeText()));
}

void MainWindowTest::mapForPaper_data() {
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("pdf") << QByteArray("%PDF-");
    QTest::newRow("svg") << QByteArray("<?xml");
    QTest::newRow("png") << QByteArray("\x89PNG");
}

void MainWindowTest::mapForPaper() {
    QFETCH(QByteArray, begin);
    m_window->openFolder(example(2));
    const QString path =
        m_place->filePath(QStringLiteral("map.") + QLatin1String(QTest::currentDataTag()));
    whenShown<QFileDialog>([&](QFileDialog* dialog) {
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(edit, path);
        QTest::keyClick(edit, Qt::Key_Return);
    });
    QTest::keyClick(m_window.get(), Qt::Key_P, Qt::ControlModifier);
    QVERIFY2(noticeText().contains(path), qPrintable(noticeText()));
    const QByteArray bytes = bytesOf(path);
    QVERIFY(bytes.startsWith(begin));
    if (begin == "<?xml") {
        QSvgRenderer svg(bytes);
        QVERIFY(svg.isValid());
        QImage image(svg.defaultSize(), QImage::Format_RGB32);
        image.fill(Qt::red);
        QPainter painter(&image);
        svg.render(&painter);
        painter.end();
        QCOMPARE(image.pixelColor(image.width() - 2, image.height() - 2), QColor(Qt::white));
    }
}

/// The desktop's colours come at the next start: until then everything stays as it is.
void MainWindowTest::systemThemeWaits() {
    const QPalette former = QApplication::palette();
    QHash<QString, QAction*> themes;
    const QList<QAction*> actions = m_window->findChildren<QAction*>();
    for (QAction* action : actions) {
        themes.insert(action->shortcut().toString(), action);
    }
    QAction* dark = themes.value(QStringLiteral("Ctrl+Alt+D"));
    QAction* system = themes.value(QStringLiteral("Ctrl+Alt+S"));
    QVERIFY(dark != nullptr && system != nullptr);
    dark->trigger();
    QVERIFY(isDark(QApplication::palette()));
    const QStyle* style = QApplication::style();
    system->trigger();
    QVERIFY(Settings().theme() == Settings::Theme::System);
    QVERIFY(QApplication::style() == style);
    QVERIFY(isDark(QApplication::palette()));
    QApplication::setPalette(former);
}

void MainWindowTest::secondWindowIsTold() {
    const QString folder = example(1);
    m_window->openFolder(folder);
    QCOMPARE(m_window->workbench()->otherUser(), QString());
    MainWindow second;
    second.show();
    second.start({}, folder);
    QVERIFY(!second.workbench()->otherUser().isEmpty());
    QVERIFY(second.findChild<NoticeBar*>()->isVisible());
    // Both change the project; both changes are in the file.
    QVERIFY(m_window->workbench()
                ->duplicateInstance(QStringLiteral("link0"), QStringLiteral("a"))
                .ok());
    QVERIFY(
        second.workbench()->duplicateInstance(QStringLiteral("link0"), QStringLiteral("b")).ok());
    Ipgen::Project project;
    QVERIFY(Ipgen::Project::load(folder, &project).ok());
    QCOMPARE(project.instanceNames(),
             QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("link0")}));
}

void MainWindowTest::changesFromOutsideShowUp() {
    const QString folder = example(2);
    m_window->openFolder(folder);
    QCOMPARE(m_window->workbench()->rows().size(), 2);
    // What is chosen stays chosen, although the table is another.
    auto* table = m_window->findChild<QTableView*>(QStringLiteral("instanceTable"));
    table->selectRow(1);
    QCOMPARE(runProgram({QStringLiteral("remove"), folder, QStringLiteral("link0")}), 0);
    QTRY_COMPARE(m_window->workbench()->rows().size(), 1);
    QCOMPARE(table->selectionModel()->selectedRows().size(), 1);
    QCOMPARE(table->currentIndex().row(), 0);
    QVERIFY(m_window->action("duplicate")->isEnabled());
}

void MainWindowTest::damagedProjectIsReported() {
    const QString folder = example(1);
    QFile file(folder + QStringLiteral("/project.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\n  \"format\": 1,\n  oops\n");
    file.close();
    m_window->openFolder(folder);
    QVERIFY(!m_window->workbench()->hasProject());
    QVERIFY2(noticeText().contains(QStringLiteral("line 3")), qPrintable(noticeText()));
}

QTEST_MAIN(MainWindowTest)
#include "mainwindow_test.moc"
