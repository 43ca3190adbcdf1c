#include "fields.h"

namespace DEV {

namespace {

bool isObject(const QVariant& value) {
    return value.type() == QVariant::Map;
}

bool isList(const QVariant& value) {
    return value.type() == QVariant::List || value.type() == QVariant::StringList;
}

} // namespace

Fields::Fields(const QVariant& object, const QString& place, QString* error)
    : m_object(object.toMap())
    , m_place(place)
    , m_error(error) {
    if (!isObject(object) && m_error->isEmpty()) {
        *m_error = QStringLiteral("%1 must be an object").arg(m_place);
    }
}

QString Fields::place(const QString& key) const {
    return QStringLiteral("%1: field \"%2\"").arg(m_place, key);
}

void Fields::fail(const QString& key, const QString& reason) {
    if (m_error->isEmpty()) {
        *m_error = QStringLiteral("%1 %2").arg(place(key), reason);
    }
}

QVariant Fields::value(const QString& key) {
    m_asked.insert(key);
    if (!m_object.contains(key)) {
        fail(key, QStringLiteral("is missing"));
    }
    return m_object.value(key);
}

QString Fields::text(const QString& key) {
    const QVariant found = value(key);
    if (found.type() != QVariant::String || found.toString().isEmpty()) {
        fail(key, QStringLiteral("must be a text that is not empty"));
        return {};
    }
    return found.toString();
}

QStringList Fields::texts(const QString& key) {
    const QVariant found = value(key);
    if (found.type() != QVariant::StringList || found.toStringList().isEmpty()) {
        fail(key, QStringLiteral("must be a list of texts that is not empty"));
        return {};
    }
    QStringList list = found.toStringList();
    if (list.contains(QString()) || list.removeDuplicates() > 0) {
        fail(key, QStringLiteral("holds an empty text, or one text twice"));
    }
    return list;
}

bool Fields::boolean(const QString& key) {
    const QVariant found = value(key);
    if (found.type() != QVariant::Bool) {
        fail(key, QStringLiteral("must be true or false"));
    }
    return found.toBool();
}

int Fields::integer(const QString& key, int min, int max) {
    const QVariant found = value(key);
    const qlonglong number = found.toLongLong();
    const bool whole = found.type() == QVariant::Int || found.type() == QVariant::LongLong;
    if (!whole || number < min || number > max) {
        fail(key, QStringLiteral("must be a whole number from %1 to %2").arg(min).arg(max));
        return min;
    }
    return int(number);
}

QVariantMap Fields::object(const QString& key) {
    const QVariant found = value(key);
    if (!isObject(found) || found.toMap().isEmpty()) {
        fail(key, QStringLiteral("must be an object that is not empty"));
    }
    return found.toMap();
}

void Fields::each(const QString& key,
                  const std::function<void(const QVariant&, const QString&)>& read) {
    const QVariant found = value(key);
    if (!isList(found)) {
        fail(key, QStringLiteral("must be a list"));
        return;
    }
    int number = 0;
    for (const QVariant& entry : found.toList()) {
        read(entry, QStringLiteral("%1: %2 entry %3").arg(m_place, key).arg(++number));
    }
}

void Fields::finish() {
    for (auto it = m_object.cbegin(); it != m_object.cend(); ++it) {
        if (!m_asked.contains(it.key())) {
            fail(it.key(), QStringLiteral("is unknown"));
        }
    }
}

} // namespace DEV
