#include "serdesip/frameservices.h"

namespace IPSERDESIP {

namespace {

FrameServices& lent() {
    static FrameServices services;
    return services;
}

} // namespace

const FrameServices& FrameServices::current() {
    return lent();
}

void FrameServices::lend(const FrameServices& services) {
    lent() = services;
}

} // namespace IPSERDESIP
