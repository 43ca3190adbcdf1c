#include "ipgen/report/trial.h"

#include "ipgen/core/generation.h"

#include <ipcore/ipcore.h>
#include <serdesip/serdes.h>
#include <utils/filereplace.h>

#include <QDir>

namespace Ipgen {

Trial::Trial(const DEV::DeviceArg& device, const QVariantMap& data)
    : m_device(device) {
    IPSERDESIP::serdes* model = IPSERDESIP::serdes::instance();
    m_formerDevice = model->device();
    m_formerDir = model->workingDir();
    m_formerData = model->globalData();
    m_formerChanged = model->dataChanged();
    m_formerEditing = model->editing();
    m_formerMessages = model->messages();
    model->openProject(device, m_folder.path(), data);
    IPCore::setOutputRoot(m_folder.path());
}

Trial::~Trial() {
    IPSERDESIP::serdes* model = IPSERDESIP::serdes::instance();
    model->openProject(m_formerDevice, m_formerDir, m_formerData);
    if (!m_formerChanged) {
        model->clearDataChanged();
    }
    for (auto it = m_formerMessages.constBegin(); it != m_formerMessages.constEnd(); ++it) {
        model->setMessage(it.key(), it.value());
    }
    model->setEditing(m_formerEditing);
    IPCore::setOutputRoot(m_formerDir);
}

TrialResult Trial::run(const CatalogueEntry& entry, const QString& name,
                       const IPSERDESIP::ConfigMap& config) {
    TrialResult result;
    if (!m_folder.isValid()) {
        result.status = {Exit::BadOutput, QDir::tempPath(), m_folder.errorString()};
        return result;
    }
    GenerationRequest request;
    request.protocol = entry.protocol.get();
    request.device = m_device;
    request.config = config;
    request.instance = name;
    const GenerationResult generated = generate(request);
    result.status = generated.status;
    result.script = generated.script;
    result.options = generated.options;
    const QDir root(m_folder.path());
    for (const QString& path : generated.files) {
        QByteArray bytes;
        if (Utils::readFile(path, &bytes).ok) {
            result.files.insert(root.relativeFilePath(path), bytes);
        }
        QFile::remove(path);
    }
    return result;
}

} // namespace Ipgen
