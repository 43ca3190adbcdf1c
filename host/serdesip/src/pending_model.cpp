// Stand-in until the resource model answers: delete this file with its implementation.
#include "serdesip/serdes.h"

namespace IPSERDESIP {

QStringList serdes::notOccupiedLanes() const { return {}; }
bool serdes::instanceEnable(const QString&) const { return false; }
QMap<QString, Instance*> serdes::allInstance() const { return {}; }
REF_SOURCE* serdes::findRefsource(const QString&) const { return nullptr; }
REF_SOURCE* serdes::FormStringToREFSPtr(const QString&) const { return nullptr; }
double serdes::getFreqByRefsrc(const QString&) const { return 0.0; }
bool serdes::checkPllEnable(const QString&) const { return false; }
QMap<QString, QVariant> serdes::getMessageByPLL(const QString&) const { return {}; }
bool serdes::checkAccess(const QString&, const QString&) const { return false; }
bool serdes::checkAccess(const QString&, const QString&, const QString&) const { return false; }
bool serdes::checkRoute(const QStringList&, const QString&, const QString&, double) { return false; }
bool serdes::checkRoute(const QStringList&, const QString&, const QStringList&,
                        const QList<double>&, const QString&, const QString&)
{
    return false;
}
void serdes::resetLane(const QString&, int) {}

} // namespace IPSERDESIP
