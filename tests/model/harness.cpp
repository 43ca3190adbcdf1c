#include "harness.h"

#include <core/idecore.h>
#include <core/viewmanager.h>
#include <serdesip/serdes.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

QString pluginFolder() {
    return QStringLiteral(BUILD_DIR "/lib/ipgen/ip/customized");
}

QString pluginPath() {
    return pluginFolder() + QLatin1String("/libcustomized.so");
}

QStringList deviceModels() {
    return {"RZ7X-60B", "RZ7X-60ES", "RZ7X-15A",   "RZ7XR-15A", "RZ7XR-15B",
            "RZ7X-15B", "RZ7NX-15A", "RZ7NXR-15A", "RZ7X-138",  "RZ7X-138B"};
}

QString deviceId(const QString& model) {
    return QLatin1String("id of ") + model;
}

namespace {

/// In memory where there is such a folder: a generation syncs each file to its disk, and the
/// tables run hundreds of them.
QString scratchTemplate() {
    const QFileInfo memory(QStringLiteral("/dev/shm"));
    return (memory.isDir() && memory.isWritable() ? memory.filePath() : QDir::tempPath()) +
           QLatin1String("/ipgen-test-XXXXXX");
}

QByteArray bytesOrNull(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QByteArray("").append(file.readAll()) : QByteArray();
}

} // namespace

Harness::Harness()
    : m_loader(pluginPath())
    , m_scratch(scratchTemplate()) {
    QList<DEV::DeviceArg> devices;
    for (const QString& model : deviceModels()) {
        devices.append(DEV::DeviceArg(deviceId(model), model));
    }
    Core::IdeCore::setDeviceDataBase(DEV::DeviceDb(devices));
    Core::ViewManager::setErrorSink([this](const QString& what, const QString& why) {
        m_errors.append({what, why});
    });
    openProject(m_scratch.path());

    reloadPackage();
}

Harness::~Harness() {
    Core::ViewManager::setErrorSink({});
    Core::IdeCore::setDeviceDataBase({});
}

void Harness::reloadPackage() {
    m_package = qobject_cast<IPSERDESIP::ProtocolPackage*>(m_loader.instance());
    if (!m_package) {
        m_error = m_loader.isLoaded() ? QStringLiteral("no protocol package in it")
                                      : m_loader.errorString();
    }
}

std::unique_ptr<IPSERDESIP::BaseProtocol> Harness::model() const {
    const QList<IPSERDESIP::BaseProtocol*> models = m_package->protocols();
    if (models.size() != 1) {
        qFatal("%d protocol models instead of one", int(models.size()));
    }
    return std::unique_ptr<IPSERDESIP::BaseProtocol>(models.first());
}

Harness::Result Harness::generate(const IPSERDESIP::ConfigMap& config, const QStringList& script,
                                  const QStringList& options) const {
    Result result;
    result.script = script;
    result.options = options;
    result.ok =
        model()->generate(config, result.script, QString(), result.options, result.text, false);
    result.folder = IPSERDESIP::serdes::instance()->workingDir() + QLatin1Char('/') +
                    config.value(QStringLiteral("file")).toString() +
                    QLatin1String("/temp/CUSTOMIZED");
    result.define = bytesOrNull(result.folder + QLatin1String("/define.vh"));
    result.param = bytesOrNull(result.folder + QLatin1String("/param.v"));
    result.ini = bytesOrNull(result.folder + QLatin1String("/customized.ini"));
    return result;
}

QString Harness::workingDir() const {
    return m_scratch.path();
}

void Harness::openProject(const QString& workingDir, const QMap<QString, QVariant>& data) const {
    IPSERDESIP::serdes::instance()->openProject({}, workingDir, data);
}

QList<QPair<QString, QString>> Harness::takeErrors() {
    return std::exchange(m_errors, {});
}
