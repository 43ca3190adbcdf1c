#pragma once

#include "ipgen/core/catalogue.h"
#include "ipgen/core/project.h"
#include "ipgen/core/status.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <string>

namespace Ipgen {

/// What every command works with: the IPs on offer, the devices, the project, and where the output
/// goes. The catalogue and the devices are read when they are first asked for.
class Context {
public:
    /// Keeps standard output for what is printed here: from now on what an IP or a library writes
    /// there comes out on standard error. What libraries report to the user is told like the
    /// program's own errors.
    Context();
    ~Context();
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    /// The program's real standard output, as a descriptor and as a path to open.
    int standardOutput() const { return m_standardOutput; }
    QString standardOutputPath() const;

    void addPluginFolder(const QString& folder) { m_pluginFolders.append(folder); }
    const QStringList& pluginFolders() const { return m_pluginFolders; }

    /// For a process that works for another one, which has told of the plug-ins already.
    void keepQuietOnPlugins() { m_quietOnPlugins = true; }

    /// The IPs on offer; plug-ins that cannot serve are told on standard error, once.
    const Catalogue& catalogue();
    /// Loads the device database, once.
    Status devices();
    /// Loads devices and project; with the model (openProjectInModel) also the catalogue, and makes
    /// the project the transceiver model's.
    Status openProject(const std::string& folder, Project* project);
    /// @param tellSkipped  whether instances whose IP is not on offer are told
    Status openProjectInModel(const std::string& folder, Project* project, bool tellSkipped = true);
    /// The project in the model, and the named instance's IP: there is such an instance, and its IP
    /// is on offer.
    Status openInstance(const std::string& folder, const QString& name, Project* project,
                        const CatalogueEntry** entry);

    /// Standard output: written at the end, and checked.
    void print(const QString& text) { m_output += text.toUtf8(); }
    void printLine(const QString& text) { print(text + QLatin1Char('\n')); }
    void printJson(const QVariant& document);
    /// Writes what was printed. Not all of it could be: BadOutput, told.
    Exit flush();

    /// "ipgen: WHAT: WHY" on standard error, one line.
    void tell(const QString& what, const QString& why);
    /// The same for a status that is not ok; returns its exit status.
    Exit tell(const Status& status);

private:
    int m_standardOutput;
    QStringList m_pluginFolders;
    bool m_quietOnPlugins = false;
    std::optional<Catalogue> m_catalogue;
    std::optional<Status> m_devices;
    QByteArray m_output;
};

} // namespace Ipgen
