#include "holdings.h"

#include <algorithm>
#include <functional>

namespace IPSERDESIP {

namespace {

/// Every resource that a message names, with its use. The first mention of a resource counts.
void eachUse(const QString& owner, const Message& message,
             const std::function<void(const QString&, const Holdings::Use&)>& take) {
    Holdings::Use plain;
    plain.owner = owner;
    for (const QString& name : message.lanes + message.laneResources) {
        take(name, plain);
    }
    Holdings::Use pll = plain;
    pll.binding = !message.receivesOnly();
    if (pll.binding) {
        pll.reference = message.refClocks.value(0);
        pll.frequency = message.refFrequencies.value(0);
        pll.rate = message.realTxRate;
    }
    for (const QString& name : message.plls) {
        take(name, pll);
    }
    for (int i = 0; i < message.refClocks.size(); ++i) {
        Holdings::Use pin = plain;
        pin.frequency = message.refFrequencies.value(i);
        pin.binding = pin.frequency > 0.0;
        take(message.refClocks.at(i), pin);
    }
    for (auto it = message.muxes.cbegin(); it != message.muxes.cend(); ++it) {
        if (!it.value().isEmpty()) { // one that is set to nothing is free
            Holdings::Use mux = plain;
            mux.setting = it.value();
            take(it.key(), mux);
        }
    }
}

} // namespace

bool Message::receivesOnly() const {
    const auto any = [this](const char* suffix) {
        return std::any_of(laneResources.begin(), laneResources.end(), [&](const QString& name) {
            return name.endsWith(QLatin1String(suffix));
        });
    };
    return any("_RX") && !any("_TX");
}

void Holdings::set(const QString& owner, const Message& message) {
    remove(owner);
    m_messages.insert(owner, message);
    eachUse(owner, message, [this](const QString& resource, const Use& use) {
        Uses& uses = m_uses[resource];
        if (!resource.isEmpty() && !uses.contains({true, use.owner}) &&
            !uses.contains({false, use.owner})) {
            uses.insert({!use.binding, use.owner}, use);
        }
    });
}

void Holdings::remove(const QString& owner) {
    const auto known = m_messages.constFind(owner);
    if (known == m_messages.constEnd()) {
        return;
    }
    eachUse(owner, *known, [this](const QString& resource, const Use& use) {
        const auto uses = m_uses.find(resource);
        if (uses != m_uses.end()) {
            uses->remove({true, use.owner});
            uses->remove({false, use.owner});
            if (uses->isEmpty()) {
                m_uses.erase(uses);
            }
        }
    });
    m_messages.remove(owner);
}

Holdings::Use Holdings::other(const QString& resource, const QString& except) const {
    const auto found = m_uses.constFind(resource);
    if (found == m_uses.constEnd()) {
        return {};
    }
    auto use = found->constBegin();
    if (use != found->constEnd() && use->owner == except) {
        ++use;
    }
    return use == found->constEnd() ? Use() : *use;
}

QStringList Holdings::owners(const QString& resource, const QString& except, int limit) const {
    QStringList names;
    const auto found = m_uses.constFind(resource);
    if (found == m_uses.constEnd()) {
        return names;
    }
    for (auto use = found->constBegin(); use != found->constEnd(); ++use) {
        if (use->owner != except) {
            names.append(use->owner);
        }
        if (limit > 0 && names.size() == limit) {
            break;
        }
    }
    names.sort();
    return names;
}

} // namespace IPSERDESIP
