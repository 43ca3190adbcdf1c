// Start of the window against an empty main window, alone and with projects; redraw of the map
// after a change against one repaint.

#include "ipgen/window/mapview.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

double median(QVector<double> values) {
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

/// Seconds from start to end of the process; below 0: it failed.
double startOf(const QString& what) {
    QElapsedTimer clock;
    clock.start();
    QProcess process;
    process.start(QStringLiteral(WINDOW_START), {what});
    const bool ended = process.waitForFinished(60000);
    const double seconds = double(clock.nsecsElapsed()) / 1e9;
    return ended && process.exitCode() == 0 ? seconds : -1;
}

/// A project file with this many instances whose IP holds a resource each.
QString projectOf(const QTemporaryDir& place, int instances) {
    const QString folder = place.filePath(QString::number(instances));
    QDir().mkpath(folder);
    QByteArray text = "{\"format\": 1, \"device\": \"RZ7X-60B\", \"data\": {}, \"instances\": {";
    for (int i = 0; i < instances; ++i) {
        const QByteArray name = "i" + QByteArray::number(i);
        text += (i == 0 ? "\"" : ", \"") + name +
                "\": {\"ip\": \"customized\", \"config\": {\"target_device\": \"RZ7X-60B\", "
                "\"file\": \"" +
                name + "\", \"module\": \"" + name + "\"}}";
    }
    QFile file(folder + QStringLiteral("/project.json"));
    if (!file.open(QIODevice::WriteOnly) || file.write(text + "}}") < 0) {
        return {};
    }
    return folder;
}

/// Whether the goals are met.
bool benchStart() {
    constexpr int rounds = 9;
    const QTemporaryDir place;
    const QStringList cases{QStringLiteral("empty"), QStringLiteral("first"), projectOf(place, 3),
                            projectOf(place, 1000)};
    const char* names[] = {"", "start to first painted window / empty QMainWindow (goal <= 2)",
                           "start to 3 instances and their map / empty QMainWindow (goal <= 2)",
                           "start to 1000 instances and their map / empty QMainWindow (goal <= 2)"};
    QVector<QVector<double>> times(cases.size());
    for (int round = 0; round < rounds; ++round) { // in turn, so that disturbances hit all
        for (int i = 0; i < cases.size(); ++i) {
            const double seconds = startOf(cases.at(i));
            if (seconds < 0) {
                std::printf("failed: %s\n", qPrintable(cases.at(i)));
                return false;
            }
            times[i].append(seconds);
        }
    }
    constexpr double goal = 2;
    bool met = true;
    for (int i = 1; i < cases.size(); ++i) {
        const double ratio = median(times.at(i)) / median(times.at(0));
        std::printf("%-72s %6.2f\n", names[i], ratio);
        met = met && ratio <= goal;
    }
    return met;
}

double timeOf(const std::function<void()>& work) {
    constexpr int rounds = 51;
    QVector<double> times;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer clock;
        clock.start();
        work();
        times.append(double(clock.nsecsElapsed()));
    }
    return median(times);
}

void benchMap() {
    DEV::DeviceInfo device;
    device.quads = 2;
    device.lanesPerQuad = 4;
    device.pins = QStringList{QStringLiteral("Q0_REFCLK0"), QStringLiteral("Q1_REFCLK0")};
    DEV::ClockLoop pll;
    pll.kind = QStringLiteral("QPLL0");
    pll.shared = true;
    device.plls = {pll};
    QMap<QString, IPSERDESIP::Message> messages;
    for (int i = 0; i < 8; ++i) {
        IPSERDESIP::Message message;
        message.lanes = QStringList{QStringLiteral("Q%1 Lane%2").arg(i / 4).arg(i % 4)};
        message.plls = QStringList{QStringLiteral("Q%1_QPLL0").arg(i / 4)};
        messages.insert(QString::number(i), message);
    }
    Window::MapView view;
    view.setMap(Window::mapCells(device, messages), Window::ownerMarks(messages));
    view.resize(view.sizeHint());
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    const auto repaint = [&] { view.render(&image); };
    const double once = timeOf(repaint);
    const double changed = timeOf([&] {
        view.setMap(Window::mapCells(device, messages), Window::ownerMarks(messages));
        repaint();
    });
    std::printf("%-72s %6.2f\n", "map after a change / one repaint", changed / once);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir home; // the user's own settings and caches are left alone
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_CACHE_HOME", home.path().toUtf8());
    QApplication application(argc, argv);
    const bool met = benchStart();
    benchMap();
    return met ? 0 : 1;
}
