#include "ipgen/window/instancestate.h"

#include "ipgen/report/trial.h"

#include <utils/filereplace.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>

namespace Window {

namespace {

/// The context of this file's texts.
struct StateTexts {
    Q_DECLARE_TR_FUNCTIONS(StateTexts)
};

/// Files of other kinds that lie there (logs, what a dialog tried out) say nothing.
State compareFiles(const Ipgen::TrialResult& trial, const QString& workingDir, QString* detail) {
    int there = 0;
    State state = State::Generated;
    for (auto it = trial.files.constBegin(); it != trial.files.constEnd(); ++it) {
        QByteArray bytes;
        const QString path = workingDir + QLatin1Char('/') + it.key();
        const QString name = QFileInfo(path).fileName();
        if (!Utils::readFile(path, &bytes).ok) {
            *detail = StateTexts::tr("%1 is missing").arg(name);
            state = State::OutOfDate;
            continue;
        }
        ++there;
        if (bytes != it.value()) {
            *detail = StateTexts::tr("%1 differs from what would be generated now").arg(name);
            state = State::OutOfDate;
        }
    }
    if (there == 0) {
        detail->clear();
        return State::Configured;
    }
    return state;
}

} // namespace

InstanceRow rowOf(const Ipgen::Project& project, const Ipgen::Catalogue& catalogue,
                  const QString& name, const IPSERDESIP::Message* message) {
    InstanceRow row;
    row.name = name;
    row.ip = project.instance(name).ip;
    row.ipName = row.ip;
    const Ipgen::CatalogueEntry* entry = nullptr;
    Ipgen::Status offered = catalogue.pick(row.ip, &entry);
    if (!offered.ok()) {
        row.state = State::NoIp;
        row.detail = offered.text();
        return row;
    }
    row.ipName = entry->name;
    const QString original = project.copiedFrom(name);
    if (!original.isEmpty()) {
        row.state = State::Copy;
        row.detail = StateTexts::tr("A copy of %1: configure it (Ctrl+E), so that it has lanes and "
                                    "a file of its own. Until then it holds nothing and is not "
                                    "generated.")
                         .arg(original);
    }
    if (message != nullptr) {
        row.file = message->file;
        row.lanes = message->lanes;
        row.plls = message->plls;
        row.txRate = message->txRate;
        row.rxRate = message->rxRate;
    }
    return row;
}

QStringList generatedFiles(const Ipgen::Project& project, const QString& file) {
    QStringList files;
    if (file.isEmpty()) {
        return files;
    }
    const QString folder = project.workingDir() + QLatin1Char('/') + file;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        files.append(it.next());
    }
    files.sort();
    return files;
}

void lookAtFiles(const Ipgen::Project& project, const Ipgen::Catalogue& catalogue,
                 const DEV::DeviceArg& device, const QVector<InstanceRow*>& rows) {
    QVector<InstanceRow*> withFiles;
    for (InstanceRow* row : rows) {
        if (row->state == State::NoIp || row->state == State::Copy) {
            continue;
        }
        row->detail.clear();
        row->state = State::Configured;
        if (!generatedFiles(project, row->file).isEmpty()) {
            withFiles.append(row);
        }
    }
    if (withFiles.isEmpty()) {
        return;
    }
    Ipgen::Trial trial(device, project.data());
    for (InstanceRow* row : qAsConst(withFiles)) {
        const Ipgen::CatalogueEntry* entry = nullptr;
        if (!catalogue.pick(row->ip, &entry).ok()) {
            continue;
        }
        const Ipgen::TrialResult result =
            trial.run(*entry, row->name, project.instance(row->name).config);
        if (!result.status.ok()) {
            row->state = State::OutOfDate;
            row->detail = result.status.text();
        } else {
            row->state = compareFiles(result, project.workingDir(), &row->detail);
        }
    }
}

QString stateText(State state) {
    switch (state) {
    case State::Unknown:
        return StateTexts::tr("looking …");
    case State::NoIp:
        return StateTexts::tr("IP not on offer");
    case State::Copy:
        return StateTexts::tr("needs configuring");
    case State::Configured:
        return StateTexts::tr("configured");
    case State::Generated:
        return StateTexts::tr("generated");
    case State::OutOfDate:
        return StateTexts::tr("out of date");
    case State::CheckFailed:
        return StateTexts::tr("check failed");
    }
    return {};
}

} // namespace Window
