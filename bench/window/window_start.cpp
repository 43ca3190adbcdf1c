// Starts, shows a window, and ends: at its first paint, or when it shows a project's instances.
// The project is opened as the program does it.
//   window_start empty | first | PROJECT

#include "ipgen/window/mainwindow.h"
#include "ipgen/window/mapview.h"
#include "ipgen/window/theme.h"

#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QTableView>
#include <QTimer>

#include <functional>
#include <memory>
#include <unistd.h>

namespace {

/// Ends the process after a paint of the window for which the condition holds.
class EndAtPaint : public QObject {
public:
    explicit EndAtPaint(std::function<bool()> condition)
        : m_condition(std::move(condition)) {}

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && m_condition()) {
            object->removeEventFilter(this);
            QTimer::singleShot(0, [] { ::_exit(0); });
        }
        return false;
    }

private:
    std::function<bool()> m_condition;
};

/// Name, instances and map are on the screen, all of them.
bool showsItsProject(const Window::MainWindow& window) {
    const auto* name = window.findChild<QLabel*>(QStringLiteral("projectLabel"));
    const auto* table = window.findChild<QTableView*>(QStringLiteral("instanceTable"));
    const auto* map = window.findChild<Window::MapView*>();
    return window.workbench()->hasProject() && name->isVisible() &&
           name->text() == QFileInfo(window.workbench()->project().folder()).fileName() &&
           table->isVisible() &&
           table->model()->rowCount() == window.workbench()->project().instanceNames().size() &&
           map->isVisible() && !map->cells().isEmpty();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QString what = application.arguments().value(1);
    if (what == QLatin1String("empty")) {
        QMainWindow window;
        window.resize(1180, 760);
        EndAtPaint end([] { return true; });
        window.installEventFilter(&end);
        window.show();
        return QApplication::exec();
    }
    Window::applyTheme(Window::Settings().theme());
    const bool first = what == QLatin1String("first");
    Window::MainWindow window;
    EndAtPaint end([&] { return first || showsItsProject(window); });
    window.installEventFilter(&end);
    window.open({}, first ? QString() : what);
    return QApplication::exec();
}
