#include "model/customized.h"

#include "dialog/customizeddlg.h"
#include "model/config/infokeys.h"
#include "model/config/keys.h"
#include "model/config/resources.h"

#include <core/idecore.h>
#include <core/viewmanager.h>
#include <ipcore/ipcore.h>

namespace IPCUSTOMIZED {

customized::customized(const QString& packageDir)
    : m_packageDir(packageDir) {}

customized::~customized() = default;

ConfigMap customized::create(const QString& name, const DEV::DeviceArg& device) {
    customizeddlg dialog(m_info, &m_config, Core::ViewManager::dialogParent());
    dialog.setCreating(name, device);
    return dialog.exec() == QDialog::Accepted ? m_config : ConfigMap();
}

ConfigMap customized::open(const ConfigMap& config) {
    customizeddlg dialog(m_info, &m_config, Core::ViewManager::dialogParent());
    if (!dialog.setOpening(config)) {
        return {};
    }
    return dialog.exec() == QDialog::Accepted ? m_config : ConfigMap();
}

IPSERDESIP::Message* customized::resourceMessage(const ConfigMap& config) {
    return new IPSERDESIP::Message(IPCUSTOMIZED::resourceMessage(
        config, IPCUSTOMIZED::deviceClass(deviceFor(config).device()), name()));
}

bool customized::loadSpec() {
    m_info = IPCore::processIPInfoSpec(m_packageDir + QStringLiteral("/customized.ipspec"));
    if (!IPCore::checkCommonInfo(m_info)) {
        return false;
    }
    m_info.insert(Info::DataDir, m_packageDir + QStringLiteral("/data"));
    return true;
}

QString customized::version() {
    return m_info.value(Info::Version).toString();
}

QString customized::id() {
    return m_info.value(Info::Id).toString();
}

QString customized::name() {
    return m_info.value(Info::Name).toString();
}

QStringList customized::category() {
    return m_info.value(Info::Category).toStringList();
}

QString customized::summary() {
    return m_info.value(Info::Summary).toString();
}

bool customized::isSupported(const DEV::DeviceArg& device) {
    return IPCore::isSupported(device, m_info.value(Info::Unsupported).toStringList(),
                               m_info.value(Info::Supported).toStringList());
}

DEV::DeviceArg customized::deviceFor(const ConfigMap& config) const {
    return device().isNull() ? Core::IdeCore::deviceDataBase().findDevice(
                                   config.value(Key::TargetDevice).toString())
                             : device();
}

} // namespace IPCUSTOMIZED
