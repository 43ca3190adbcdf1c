#include "plugin/customizedpackage.h"

#include "model/customized.h"

#include <memory>

namespace IPCUSTOMIZED {

customizedpackage::customizedpackage(QObject* parent)
    : IPSERDESIP::ProtocolPackage(parent) {}

customizedpackage::~customizedpackage() = default;

QList<IPSERDESIP::BaseProtocol*> customizedpackage::protocols() {
    auto model = std::make_unique<customized>(packageDir());
    if (!model->loadSpec()) {
        return {};
    }
    QList<IPSERDESIP::BaseProtocol*> models;
    models.append(model.get());
    static_cast<void>(model.release()); // the caller's
    return models;
}

} // namespace IPCUSTOMIZED
