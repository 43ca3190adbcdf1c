#include "serdesip/protocolpackage.h"

#include <QFileInfo>

#include <dlfcn.h>

namespace IPSERDESIP {

ProtocolPackage::ProtocolPackage(QObject* parent)
    : QObject(parent)
{
}

ProtocolPackage::~ProtocolPackage() = default;

QString ProtocolPackage::packageDir() const
{
    if (!m_packageDir.isEmpty()) {
        return m_packageDir;
    }
    Dl_info library{};
    if (dladdr(metaObject(), &library) == 0 || library.dli_fname == nullptr) {
        return {};
    }
    return QFileInfo(QFile::decodeName(library.dli_fname)).absolutePath();
}

void ProtocolPackage::setPackageDir(const QString& folder)
{
    m_packageDir = folder;
}

} // namespace IPSERDESIP
