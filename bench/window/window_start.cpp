// Starts, shows a window, and ends: at its first paint, or when it shows a project's instances.
//   window_start empty | first | PROJECT

#include "ipgen/window/mainwindow.h"

#include <QApplication>
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
    Window::MainWindow window;
    const bool first = what == QLatin1String("first");
    EndAtPaint end([&] { return first || !window.workbench()->rows().isEmpty(); });
    window.installEventFilter(&end);
    window.show();
    if (!first) {
        QTimer::singleShot(0, &window, [&] {
            window.start({}, what);
            window.update();
        });
    }
    return QApplication::exec();
}
