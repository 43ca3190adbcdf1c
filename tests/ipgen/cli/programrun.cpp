#include "programrun.h"

#include <utils/jsontext.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>

QString ipgenProgram() {
    return QStringLiteral(BUILD_DIR "/bin/ipgen");
}

QString testPlugins(const QString& name) {
    return QStringLiteral(BUILD_DIR "/tests/plugins/") + name;
}

ProgramRun runIpgen(const QStringList& arguments, const QByteArray& input) {
    constexpr int patience = 60000;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QLatin1String(name));
    }
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    process.setProcessEnvironment(environment);
    process.start(ipgenProgram(), QStringList({QStringLiteral("--plugin-dir"),
                                               testPlugins(QStringLiteral("tiny"))}) +
                                      arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished();
        return {-1, process.readAllStandardOutput(), "(did not end) "};
    }
    const bool crashed = process.exitStatus() == QProcess::CrashExit;
    return {crashed ? 1000 + process.exitCode() : process.exitCode(),
            process.readAllStandardOutput(), process.readAllStandardError()};
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

QStringList filesBelow(const QString& folder) {
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        files.append(QDir(folder).relativeFilePath(it.next()));
    }
    files.sort();
    return files;
}

QVariant jsonOf(const QByteArray& text) {
    QVariant value;
    Utils::JsonError error;
    return Utils::parseJson(text, &value, &error) ? value : QVariant(error.text());
}
