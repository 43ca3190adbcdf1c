#include "ipgen/session/frameloan.h"

#include "ipgen/core/presets.h"
#include "ipgen/session/approach.h"

#include <serdesip/frameservices.h>
#include <utils/filereplace.h>
#include <utils/jsontext.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

namespace Ipgen::Session {

namespace {

Report failed(const QString& why) {
    Report report;
    report.result = Report::Result::Failed;
    report.error = why;
    return report;
}

/// The project's file without the instance.
QByteArray projectWithout(const QByteArray& text, const QString& name) {
    QVariant root;
    Utils::JsonError damage;
    if (!Utils::parseJson(text, &root, &damage)) {
        return {};
    }
    QVariantMap project = root.toMap();
    const QString key = QStringLiteral("instances");
    QVariantMap instances = project.value(key).toMap();
    instances.remove(name);
    project.insert(key, instances);
    return Utils::writeJson(project);
}

/// Plays on a copy of the project in a process of this program: what goes on in the dialog that is
/// open, and what the model holds for it, is out of its reach.
Report playInProcess(const QString& program, const CatalogueEntry& entry,
                     const QString& projectFile, const QString& name, const Script& script) {
    constexpr int patience = 60000; // ms
    const QTemporaryDir folder;
    QByteArray text;
    if (!folder.isValid() || !Utils::readFile(projectFile, &text) ||
        !Utils::replaceFile(folder.filePath(QStringLiteral("project.json")),
                            projectWithout(text, name))) {
        return failed(QStringLiteral("no copy of the project can be made"));
    }
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(program, {QStringLiteral("create"), QStringLiteral("--plugin-dir"), entry.folder,
                            folder.path(), name, QStringLiteral("--ip"), entry.id,
                            QStringLiteral("--script"), QStringLiteral("-"),
                            QStringLiteral("--report"), QStringLiteral("-")});
    process.write(writeScript(script));
    process.closeWriteChannel();
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished(patience);
        return failed(QStringLiteral("a trial session did not end"));
    }
    QVariant report;
    Utils::JsonError damage;
    if (!Utils::parseJson(process.readAllStandardOutput(), &report, &damage)) {
        return failed(QString::fromUtf8(process.readAllStandardError()).trimmed());
    }
    return Report::fromMap(report.toMap());
}

} // namespace

FrameLoan::FrameLoan(const CatalogueEntry& entry, const Project& project, const QString& name) {
    if (project.hasInstance(name)) {
        m_saved = project.instance(name).config;
    }
    m_program = QCoreApplication::applicationFilePath();
    m_play = [this, &entry, file = project.file(), name](const Script& script) {
        return playInProcess(m_program, entry, file, name, script);
    };
    IPSERDESIP::FrameServices services;
    services.ipPresets = ipPresetFolder(entry);
    services.ownPresets = ownPresetFolder(entry);
    services.writeScript = [this](IPSERDESIP::protocolGenDlg*, QByteArray* script) {
        return writeScript(script);
    };
    IPSERDESIP::FrameServices::lend(services);
}

FrameLoan::~FrameLoan() {
    IPSERDESIP::FrameServices::lend({});
}

QString FrameLoan::writeScript(QByteArray* script) {
    Script steps;
    if (m_saved.isEmpty()) {
        steps = m_recorder.names();
    } else {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        const QString why = approach(m_recorder.start(), m_saved, m_play, &steps);
        QGuiApplication::restoreOverrideCursor();
        if (!why.isEmpty()) {
            return why;
        }
    }
    steps += m_recorder.script();
    steps.append({Step::Kind::Accept, {}, {}, false});
    *script = Session::writeScript(steps);
    return {};
}

} // namespace Ipgen::Session
