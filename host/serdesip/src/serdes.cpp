#include "serdesip/serdes.h"

namespace IPSERDESIP {

Instance::Instance(const QString& name)
    : m_name(name)
{
}
Instance::~Instance() = default;

MUX::MUX(const QString& name)
    : Instance(name)
{
}
MUX::~MUX() = default;

REF_SOURCE::REF_SOURCE(const QString& name)
    : Instance(name)
{
}
REF_SOURCE::~REF_SOURCE() = default;

void REF_SOURCE::setUse(bool inUse, double frequency)
{
    m_inUse = inUse;
    m_frequency = frequency;
}

struct serdes::Private {
    DEV::DeviceArg device;
    QString workingDir;
    QMap<QString, QVariant> data;
    QMap<QString, Message> messages;
    QString editing;
    bool dataChanged = false;
    QStringList details;
};

serdes::serdes()
    : d(std::make_unique<Private>())
{
}

serdes::~serdes() = default;

serdes* serdes::instance()
{
    static serdes model;
    return &model;
}

QString serdes::workingDir() const { return d->workingDir; }
QMap<QString, QVariant> serdes::globalData() const { return d->data; }
QVariant serdes::getData(const QString& key) const { return d->data.value(key); }

void serdes::setData(const QString& key, const QVariant& value)
{
    d->dataChanged = true;
    d->data.insert(key, value);
}

void serdes::openProject(const DEV::DeviceArg& device, const QString& workingDir,
                         const QMap<QString, QVariant>& data)
{
    *d = Private();
    d->device = device;
    d->workingDir = workingDir;
    d->data = data;
}

const DEV::DeviceArg& serdes::device() const { return d->device; }
void serdes::setMessage(const QString& owner, const Message& message) { d->messages.insert(owner, message); }
void serdes::removeMessage(const QString& owner) { d->messages.remove(owner); }
void serdes::setEditing(const QString& owner) { d->editing = owner; }
QString serdes::editing() const { return d->editing; }
QMap<QString, Message> serdes::messages() const { return d->messages; }
bool serdes::dataChanged() const { return d->dataChanged; }
void serdes::clearDataChanged() { d->dataChanged = false; }
QStringList serdes::details() const { return d->details; }
void serdes::addDetail(const QString& sentence) { d->details.append(sentence); }
void serdes::clearDetails() { d->details.clear(); }

} // namespace IPSERDESIP
