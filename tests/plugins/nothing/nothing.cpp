#include <serdesip/protocolpackage.h>

#include <core/viewmanager.h>

/// Offers nothing, and says why.
class NothingPackage : public IPSERDESIP::ProtocolPackage {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "TEST.nothing/1.0")
    Q_INTERFACES(IPSERDESIP::ProtocolPackage)

public:
    QList<IPSERDESIP::BaseProtocol*> protocols() override {
        Core::ViewManager::reportError(QStringLiteral("nothing.ipspec"),
                                       QStringLiteral("is not there"));
        return {};
    }
};

#include "nothing.moc"
