#include "serdesip/baseprotocol.h"

namespace IPSERDESIP {

BaseProtocol::BaseProtocol(QObject* parent)
    : QObject(parent)
{
}

BaseProtocol::~BaseProtocol() = default;

} // namespace IPSERDESIP
