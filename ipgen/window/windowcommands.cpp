// What the window's actions do.

#include "ipgen/window/cataloguepane.h"
#include "ipgen/window/instancepane.h"
#include "ipgen/window/logpane.h"
#include "ipgen/window/mainwindow.h"
#include "ipgen/window/mappane.h"
#include "ipgen/window/named.h"
#include "ipgen/window/newprojectdialog.h"
#include "ipgen/window/noticebar.h"
#include "ipgen/window/toolrun.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QUrl>
#include <QVBoxLayout>

namespace Window {

using Ipgen::Status;

void MainWindow::newProject() {
    NewProjectDialog dialog(m_settings.lastPlace(), this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString folder = dialog.folder();
    Status made = m_bench.newProject(folder, dialog.deviceId());
    if (!made.ok()) {
        tell(made);
        return;
    }
    m_settings.setLastPlace(QFileInfo(folder).absolutePath());
    m_settings.addRecent(m_bench.project().folder());
    showRecent();
    m_notice->clear();
    done({QStringLiteral("new"), m_bench.project().folder(), QStringLiteral("--device"),
          dialog.deviceId()},
         QString());
    findIp();
}

void MainWindow::openProject() {
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Open a project folder"),
                                                             m_settings.lastPlace());
    if (!folder.isEmpty()) {
        openFolder(folder);
    }
}

void MainWindow::openFolder(const QString& folder) {
    Status status = m_bench.openProject(folder);
    if (!status.ok()) {
        tell(status);
        return;
    }
    afterPaint([this, opened = m_bench.project().folder()] {
        m_settings.setLastPlace(QFileInfo(opened).absolutePath());
        m_settings.addRecent(opened);
        showRecent();
    });
    if (m_bench.otherUser().isEmpty()) {
        m_notice->clear();
    }
    if (!m_bench.rows().isEmpty()) {
        m_instances->select(m_bench.rows().first().name);
    }
    focusInstances();
}

void MainWindow::closeProject() {
    m_bench.closeProject();
    m_notice->clear();
}

void MainWindow::reload() {
    Status done = m_bench.reload();
    if (!done.ok()) {
        tell(done);
    }
}

void MainWindow::save() {
    Status saved = m_bench.saveAgain();
    if (!saved.ok()) {
        tell(saved);
        return;
    }
    m_notice->show(NoticeBar::Kind::Information, tr("Saved."));
}

void MainWindow::findIp() {
    m_catalogue->focusSearch();
}

void MainWindow::focusInstances() {
    m_instances->focusTable();
}

void MainWindow::createChosen() {
    if (m_catalogue->chosen().isEmpty()) {
        m_notice->show(NoticeBar::Kind::Information, tr("Choose an IP in the catalogue first."));
        findIp();
        return;
    }
    createInstance(m_catalogue->chosen());
}

QString MainWindow::askName(const QString& title, const QString& label, const QString& proposal) {
    QString name = proposal;
    for (;;) {
        QInputDialog dialog(this);
        dialog.setObjectName(QStringLiteral("askName"));
        dialog.setWindowTitle(title);
        dialog.setLabelText(label);
        dialog.setTextValue(name);
        if (dialog.exec() != QDialog::Accepted) {
            return {};
        }
        name = dialog.textValue();
        Status fine = Ipgen::Project::checkInstanceName(name);
        if (fine.ok() && !m_bench.project().hasInstance(name)) {
            return name;
        }
        tell(fine.ok() ? Status(Ipgen::Exit::Refused, name,
                                tr("there is an instance of this name already"))
                       : fine);
    }
}

void MainWindow::createInstance(const QString& ip) {
    const QString name =
        askName(tr("New instance"), tr("Name of the instance:"), m_bench.freeName(ip));
    if (name.isEmpty()) {
        return;
    }
    bool accepted = false;
    Status created = m_bench.createInstance(name, ip, &accepted);
    if (!created.ok()) {
        tell(created);
    } else if (accepted) {
        m_notice->clear();
        m_log->addCommand({QStringLiteral("create"), m_bench.project().folder(), name,
                           QStringLiteral("--ip"), ip});
    }
    m_instances->select(name);
    focusInstances();
}

void MainWindow::openSelected() {
    if (!m_instances->current().isEmpty()) {
        openInstance(m_instances->current());
    }
}

void MainWindow::openInstance(const QString& name) {
    bool accepted = false;
    Status opened = m_bench.openInstance(name, &accepted);
    if (!opened.ok()) {
        tell(opened);
    } else if (accepted) {
        m_notice->clear();
        m_log->addCommand({QStringLiteral("open"), m_bench.project().folder(), name});
    }
    m_instances->select(name);
}

void MainWindow::duplicate() {
    const QString name = m_instances->current();
    const QString copy = askName(tr("Duplicate"), tr("Name of the copy of %1:").arg(name),
                                 m_bench.freeName(name + QStringLiteral("_")));
    if (copy.isEmpty()) {
        return;
    }
    Status done = m_bench.duplicateInstance(name, copy);
    if (!done.ok()) {
        tell(done);
        return;
    }
    m_instances->select(copy);
    m_notice->show(NoticeBar::Kind::Information,
                   tr("%1 is a copy of %2. It holds nothing and is not generated until you "
                      "configure it (Ctrl+E).")
                       .arg(copy, name));
}

void MainWindow::rename() {
    const QString name = m_instances->current();
    const QString to = askName(tr("Rename"), tr("New name of %1:").arg(name), name);
    if (to.isEmpty()) {
        return;
    }
    Status done = m_bench.renameInstance(name, to);
    if (!done.ok()) {
        tell(done);
    }
    m_instances->select(to);
}

QStringList MainWindow::targets() const {
    return m_instances->selected();
}

QStringList MainWindow::pluginArguments() const {
    QStringList arguments;
    for (const QString& dir : m_pluginDirs) {
        arguments << QStringLiteral("--plugin-dir") << dir;
    }
    return arguments;
}

void MainWindow::check() {
    int failed = 0;
    const QStringList names = targets();
    for (const QString& name : names) {
        const QStringList command{QStringLiteral("check"), m_bench.project().folder(), name};
        m_log->addCommand(command);
        const ToolRun::Outcome outcome =
            ToolRun(this).run(tr("Checking %1").arg(name), command + pluginArguments());
        if (outcome.cancelled) {
            m_notice->show(NoticeBar::Kind::Information, tr("Cancelled."));
            return;
        }
        m_log->addText(outcome.output + outcome.errors);
        const QString why = outcome.errors.isEmpty() ? outcome.output : outcome.errors;
        const bool passed = outcome.exitCode == 0;
        failed += passed ? 0 : 1;
        m_bench.setChecked(name, passed ? Status()
                                        : Status(Ipgen::Exit::Refused, name, why.simplified()));
    }
    if (failed == 0) {
        m_notice->show(NoticeBar::Kind::Information,
                       tr("Passed the check: %1").arg(names.join(QStringLiteral(", "))));
    } else {
        m_notice->show(NoticeBar::Kind::Error,
                       tr("Failed the check: %1 of %2. The state's tooltip says why.")
                           .arg(failed)
                           .arg(names.size()));
    }
}

void MainWindow::generate() {
    generateThese(targets());
}

void MainWindow::generateAll() {
    generateThese(m_bench.project().instanceNames());
}

void MainWindow::generateThese(const QStringList& names) {
    m_log->addCommand(QStringList{QStringLiteral("generate"), m_bench.project().folder()} + names);
    QProgressDialog progress(tr("Generating"), tr("Cancel"), 0, names.size(), this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setWindowTitle(tr("Generating"));
    int written = 0;
    QStringList failures;
    for (const QString& name : names) {
        progress.setValue(written + failures.size());
        if (progress.wasCanceled()) {
            break;
        }
        const Ipgen::GenerationResult result = m_bench.generateInstance(name, false);
        if (result.ok) {
            ++written;
            m_log->addText(result.files.join(QLatin1Char('\n')));
        } else {
            failures.append(result.status.text());
            m_log->addText(result.status.text());
        }
    }
    progress.setValue(names.size());
    if (!failures.isEmpty()) {
        m_notice->show(NoticeBar::Kind::Error, failures.join(QLatin1Char('\n')));
    } else if (written == names.size()) {
        m_notice->show(NoticeBar::Kind::Information,
                       tr("Generated: %1").arg(names.join(QStringLiteral(", "))));
    } else {
        m_notice->show(NoticeBar::Kind::Warning,
                       tr("Cancelled. Generated: %1 of %2.").arg(written).arg(names.size()));
    }
}

void MainWindow::netlist() {
    const QStringList names = targets();
    for (const QString& name : names) {
        Status may = m_bench.mayGenerate(name);
        if (!may.ok()) {
            tell(may);
            return;
        }
    }
    runTool(tr("Netlist generation of %1").arg(names.join(QStringLiteral(", "))),
            QStringList{QStringLiteral("generate"), m_bench.project().folder()} + names +
                QStringList{QStringLiteral("--netlist")},
            tr("Generated with netlist."));
}

void MainWindow::runTool(const QString& title, const QStringList& arguments,
                         const QString& success) {
    m_log->addCommand(arguments);
    const ToolRun::Outcome outcome = ToolRun(this).run(title, arguments + pluginArguments());
    m_log->addText(outcome.output);
    m_log->addText(outcome.errors);
    m_bench.refreshStates();
    if (outcome.cancelled) {
        m_notice->show(NoticeBar::Kind::Information, tr("Cancelled; what stood before is kept."));
    } else if (outcome.exitCode == 0) {
        m_notice->show(NoticeBar::Kind::Information, success);
    } else {
        m_notice->show(NoticeBar::Kind::Error, outcome.errors.trimmed());
    }
}

void MainWindow::remove() {
    const QStringList names = targets();
    Status removed = m_bench.removeInstances(names);
    if (!removed.ok()) {
        tell(removed);
        return;
    }
    for (const QString& name : names) {
        m_log->addCommand({QStringLiteral("remove"), m_bench.project().folder(), name});
    }
    m_notice->show(NoticeBar::Kind::Information,
                   tr("Removed %1. Ctrl+Z brings it back.").arg(names.join(QStringLiteral(", "))));
    if (!m_bench.rows().isEmpty()) {
        focusInstances();
    }
}

void MainWindow::copyCommand() {
    const QString line = commandLine(
        QStringList{QStringLiteral("generate"), m_bench.project().folder()} + targets());
    QApplication::clipboard()->setText(line);
    m_notice->show(NoticeBar::Kind::Information, tr("Copied: %1").arg(line));
}

void MainWindow::exportMap() {
    const QString folder = m_bench.project().folder();
    const QString pdf = tr("For paper (*.pdf)");
    QFileDialog dialog(this, tr("Print or export the quad map"), folder,
                       QStringList({pdf, tr("Drawing (*.svg)"), tr("Picture (*.png)")})
                           .join(QStringLiteral(";;")));
    dialog.setObjectName(QStringLiteral("exportMap"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.selectFile(QFileInfo(folder).fileName() + QStringLiteral("-quads.pdf"));
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        dialog.setDefaultSuffix(
            filter.section(QStringLiteral("*."), 1).section(QLatin1Char(')'), 0, 0));
    });
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString path = dialog.selectedFiles().value(0);
    Status written = writeMapSheet(m_map->sheet(), path);
    if (written.ok()) {
        m_notice->show(NoticeBar::Kind::Information, tr("Written: %1").arg(path));
    } else {
        tell(written);
    }
}

void MainWindow::openOutputFolder() {
    const InstanceRow* row = m_bench.row(m_instances->current());
    QString folder = m_bench.project().workingDir();
    if (row != nullptr && !row->file.isEmpty() &&
        QFileInfo(folder + QLatin1Char('/') + row->file).isDir()) {
        folder += QLatin1Char('/') + row->file;
    }
    if (!QFileInfo(folder).isDir()) {
        m_notice->show(NoticeBar::Kind::Information, tr("Nothing is generated yet."));
    } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder))) {
        QApplication::clipboard()->setText(folder);
        m_notice->show(
            NoticeBar::Kind::Warning,
            tr("No file manager answered. The path is on the clipboard: %1").arg(folder));
    }
}

void MainWindow::showShortcuts() {
    QStringList lines;
    const QList<QAction*> all = findChildren<QAction*>();
    for (const QAction* action : all) {
        if (!action->shortcut().isEmpty() && !action->text().isEmpty()) {
            QString text = action->text();
            text.remove(QLatin1Char('&'));
            lines.append(QStringLiteral("<tr><td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>")
                             .arg(action->shortcut().toString(QKeySequence::NativeText), text));
        }
    }
    lines.removeDuplicates();
    QMessageBox box(QMessageBox::NoIcon, tr("Keys"),
                    QStringLiteral("<table>%1</table>").arg(lines.join(QString())),
                    QMessageBox::Close, this);
    box.exec();
}

void MainWindow::about() {
    QMessageBox box(QMessageBox::NoIcon, tr("About"),
                    tr("<h3>IP generator %1</h3><p>Configures and generates FPGA IPs from "
                       "plug-ins. The same program on the command line: <tt>ipgen --help</tt>.</p>")
                        .arg(QStringLiteral(IPGEN_VERSION)),
                    QMessageBox::Close, this);
    box.exec();
}

} // namespace Window
