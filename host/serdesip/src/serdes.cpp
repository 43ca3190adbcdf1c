#include "serdesprivate.h"

#include "serdesip/refnames.h"

#include <core/idecore.h>

#include <utility>

namespace IPSERDESIP {

void serdes::Private::createResources() {
    resources.clear();
    resourceByName.clear();
    resourcesStale = true;
    if (!info) {
        return;
    }
    const auto add = [this](auto made) {
        resourceByName.insert(made->name(), made.get());
        resources.push_back(std::move(made));
    };
    for (const QString& name : info->laneCaptions() + info->pllNames()) {
        add(std::make_unique<Instance>(name));
    }
    for (const QString& name : info->multiplexerNames()) {
        add(std::make_unique<MUX>(name));
    }
    for (const QString& name : info->pins) {
        add(std::make_unique<REF_SOURCE>(name));
    }
}

void serdes::Private::refreshResources() {
    if (!std::exchange(resourcesStale, false)) {
        return;
    }
    for (const auto& resource : resources) {
        const Holdings::Use use = other(resource->name());
        if (auto* mux = dynamic_cast<MUX*>(resource.get())) {
            mux->setPoint(use.setting);
        } else if (auto* pin = dynamic_cast<REF_SOURCE*>(resource.get())) {
            pin->setUse(!use.owner.isEmpty(), use.frequency);
        }
    }
}

void serdes::Private::addDetail(const QString& sentence) {
    if (!sentence.isEmpty() && !details.contains(sentence)) {
        details.append(sentence);
    }
}

serdes::serdes()
    : d(std::make_unique<Private>()) {}

serdes::~serdes() = default;

serdes* serdes::instance() {
    static serdes model;
    return &model;
}

QString serdes::workingDir() const {
    return d->workingDir;
}

QMap<QString, QVariant> serdes::globalData() const {
    return d->data;
}

QVariant serdes::getData(const QString& key) const {
    return d->data.value(key);
}

void serdes::setData(const QString& key, const QVariant& value) {
    const auto known = d->data.constFind(key);
    if (known != d->data.constEnd() && known->type() == value.type() && *known == value) {
        return;
    }
    d->dataChanged = true;
    d->data.insert(key, value);
}

QStringList serdes::notOccupiedLanes() const {
    const QStringList lanes = d->info ? d->info->laneCaptions() : QStringList();
    QStringList unoccupied;
    for (const QString& lane : lanes) {
        if (d->other(lane).owner.isEmpty() && !d->routes.value(lane).granted) {
            unoccupied.append(lane);
        }
    }
    return unoccupied;
}

bool serdes::instanceEnable(const QString& name) const {
    return !d->other(name).owner.isEmpty();
}

QMap<QString, Instance*> serdes::allInstance() const {
    d->refreshResources();
    return d->resourceByName;
}

REF_SOURCE* serdes::findRefsource(const QString& name) const {
    d->refreshResources();
    return dynamic_cast<REF_SOURCE*>(d->resourceByName.value(name));
}

REF_SOURCE* serdes::FormStringToREFSPtr(const QString& name) const {
    // Whoever asks compares the pin's use with his own wish: should they differ, this says with whom.
    if (d->info) {
        d->addDetail(d->pinUse(pinName(name)));
    }
    return findRefsource(pinName(name));
}

double serdes::getFreqByRefsrc(const QString& option) const {
    return d->other(pinName(option)).frequency;
}

bool serdes::checkPllEnable(const QString& pll) const {
    return instanceEnable(pll);
}

QMap<QString, QVariant> serdes::getMessageByPLL(const QString& pll) const {
    const Holdings::Use use = d->other(pll);
    if (use.owner.isEmpty() || !(use.rate > 0.0)) {
        return {}; // held for a receiver alone: it fixes no transmit rate
    }
    return {{QStringLiteral("TX_Line_Rate"), use.rate},
            {QStringLiteral("Reference_Clock_Source"), refsrcSerdesNameTransforOpt(use.reference)},
            {QStringLiteral("Reference_Clock_Frequency"), use.frequency}};
}

void serdes::openProject(const DEV::DeviceArg& device, const QString& workingDir,
                         const QMap<QString, QVariant>& data) {
    // Built aside: the arguments may be parts of the project that ends here.
    auto fresh = std::make_unique<Private>();
    fresh->device = device;
    fresh->info = Core::IdeCore::deviceDataBase().info(device);
    fresh->workingDir = workingDir;
    fresh->data = data;
    d = std::move(fresh);
    d->createResources();
}

const DEV::DeviceArg& serdes::device() const {
    return d->device;
}

std::shared_ptr<const DEV::DeviceInfo> serdes::deviceInfo() const {
    return d->info;
}

void serdes::setMessage(const QString& owner, const Message& message) {
    d->holdings.set(owner, message);
    d->resourcesStale = true;
}

void serdes::removeMessage(const QString& owner) {
    d->holdings.remove(owner);
    d->resourcesStale = true;
}

void serdes::setEditing(const QString& owner) {
    d->editing = owner;
    d->routes.clear();
    d->details.clear();
    d->resourcesStale = true;
}

QString serdes::editing() const {
    return d->editing;
}

QMap<QString, Message> serdes::messages() const {
    return d->holdings.messages();
}

QStringList serdes::owners(const QString& resource, int limit) const {
    return d->holdings.owners(resource, d->editing, limit);
}

bool serdes::dataChanged() const {
    return d->dataChanged;
}

void serdes::clearDataChanged() {
    d->dataChanged = false;
}

QStringList serdes::details() const {
    return d->details;
}

void serdes::addDetail(const QString& sentence) {
    d->addDetail(sentence);
}

void serdes::clearDetails() {
    d->details.clear();
}

} // namespace IPSERDESIP
