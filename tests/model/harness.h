#pragma once

#include <serdesip/baseprotocol.h>
#include <serdesip/protocolpackage.h>
#include <serdesip/types.h>

#include <QByteArray>
#include <QMap>
#include <QPair>
#include <QPluginLoader>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// Where the build tree keeps the plug-in.
QString pluginFolder();
QString pluginPath();

/// The ten device models of the three classes, in the order of the device list.
QStringList deviceModels();
/// The identifier under which the test's device database knows a model.
QString deviceId(const QString& model);

/// The real plug-in in a host with a device database and an open project in a scratch folder.
/// Failures that reach the user are collected.
class Harness {
public:
    Harness();
    ~Harness();

    /// Why the plug-in could not be loaded; empty: it is.
    QString error() const { return m_error; }
    IPSERDESIP::ProtocolPackage* package() const { return m_package; }
    /// Asks the loaded plug-in for its package again, after the former one was deleted.
    void reloadPackage();
    /// A new model; stops the test program when the package offers anything but one.
    std::unique_ptr<IPSERDESIP::BaseProtocol> model() const;

    struct Result {
        bool ok = false;
        QStringList script;
        QStringList options;
        QString text;
        QByteArray define; ///< bytes of define.vh, null when there is no such file
        QByteArray param;
        QByteArray ini;
        QString folder; ///< where the files are looked for
    };
    /// Runs a new model's generate() without the netlist.
    Result generate(const IPSERDESIP::ConfigMap& config, const QStringList& script = {},
                    const QStringList& options = {}) const;

    QString workingDir() const;
    /// Opens the project again on another working folder.
    void openProject(const QString& workingDir, const QMap<QString, QVariant>& data = {}) const;
    /// What was reported to the user since the last call: what, why.
    QList<QPair<QString, QString>> takeErrors();

private:
    QString m_error;
    QPluginLoader m_loader;
    IPSERDESIP::ProtocolPackage* m_package = nullptr;
    QTemporaryDir m_scratch;
    QList<QPair<QString, QString>> m_errors;
};
