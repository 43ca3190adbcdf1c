#pragma once

#include <serdesip/protocolpackage.h>

namespace IPCUSTOMIZED {

/// What the plug-in exports: the maker of the one protocol model that it offers.
class customizedpackage : public IPSERDESIP::ProtocolPackage {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "IPCUSTOMIZED.customizedpackage/1.0")
    Q_INTERFACES(IPSERDESIP::ProtocolPackage)

public:
    explicit customizedpackage(QObject* parent = nullptr);
    ~customizedpackage() override;

    QList<IPSERDESIP::BaseProtocol*> protocols() override;
};

} // namespace IPCUSTOMIZED
