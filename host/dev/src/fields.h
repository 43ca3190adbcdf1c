#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

namespace DEV {

/// Takes the fields of one JSON object, strictly: a missing field, one of another kind or out of
/// range, or (at finish()) one that nobody asked for is an error. The first error of a file is
/// kept, with the place where it stands ("class "60k": multiplexers 2"); afterwards every field
/// reads as empty.
class Fields {
public:
    Fields(const QVariant& object, const QString& place, QString* error);

    QString text(const QString& key);
    QStringList texts(const QString& key);
    bool boolean(const QString& key);
    int integer(const QString& key, int min, int max);
    QVariantMap object(const QString& key);
    QVariant value(const QString& key);
    /// Calls `read` for every entry of a list, with its place.
    void each(const QString& key, const std::function<void(const QVariant&, const QString&)>& read);
    /// Refuses the fields that were not asked for.
    void finish();

    QString place(const QString& key) const;
    void fail(const QString& key, const QString& reason);

private:
    QVariantMap m_object;
    QString m_place;
    QString* m_error;
    QSet<QString> m_asked;
};

} // namespace DEV
