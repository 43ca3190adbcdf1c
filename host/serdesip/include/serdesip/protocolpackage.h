#pragma once

#include "serdesip/export.h"

#include <QList>
#include <QObject>
#include <QString>

namespace IPSERDESIP {

class BaseProtocol;

/// What a plug-in exports: the maker of its protocol models.
class HOST_SERDESIP_EXPORT ProtocolPackage : public QObject {
    Q_OBJECT

public:
    explicit ProtocolPackage(QObject* parent = nullptr);
    ~ProtocolPackage() override;

    /// The folder of the plug-in's installed data: the one set, else the folder of the library
    /// that the package's class lives in.
    QString packageDir() const;
    /// Called by the host before protocols(), where the data lies elsewhere.
    void setPackageDir(const QString& folder);

    /// New models; the caller owns them. Empty when the package has nothing to offer.
    virtual QList<BaseProtocol*> protocols() = 0;

private:
    QString m_packageDir;
};

} // namespace IPSERDESIP

Q_DECLARE_INTERFACE(IPSERDESIP::ProtocolPackage, "com.kelvarix.plugins.ProtocolPackage/1.0")
