#include "goldencases.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString goldenRoot() {
    return QStringLiteral(SOURCE_DIR "/tests/golden");
}

// Pretty-printed JSON has no line feed inside a text, so taking the indentation away leaves the
// same document on one line, with every number spelled as before.
QByteArray onOneLine(const QByteArray& json) {
    QByteArray line;
    for (const QByteArray& part : json.split('\n')) {
        line += part.trimmed();
    }
    return line;
}

GoldenCase readCase(const QString& name) {
    GoldenCase result;
    result.name = name;
    result.folder = goldenRoot() + QLatin1Char('/') + name;
    result.input = onOneLine(fileBytes(result.folder + QLatin1String("/case.json")));
    return result;
}

} // namespace

QString GoldenCase::expectedPath(const QString& file) const {
    return folder + QLatin1String("/expected/") + file;
}

QList<GoldenCase> goldenCases() {
    QList<GoldenCase> cases;
    const QStringList names =
        QDir(goldenRoot()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names) {
        cases.append(readCase(name));
    }
    return cases;
}

GoldenCase goldenCase(const QString& name) {
    return readCase(name);
}

QMap<QString, QVariant> goldenConfig(const QString& name) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(readCase(name).input, &error);
    if (error.error != QJsonParseError::NoError) {
        qFatal("case %s: %s", qPrintable(name), qPrintable(error.errorString()));
    }
    QMap<QString, QVariant> config;
    const QJsonObject object = document.object().value(QLatin1String("config")).toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        config.insert(it.key(), it.value().isArray()
                                    ? QVariant(it.value().toVariant().toStringList())
                                    : it.value().toVariant());
    }
    return config;
}

QStringList goldenLines(const QString& name, const QString& file) {
    const QString path = readCase(name).expectedPath(file);
    const QString text = QString::fromUtf8(fileBytes(path));
    if (!text.isEmpty() && !text.endsWith(QLatin1Char('\n'))) {
        qFatal("%s: the last line has no end", qPrintable(path));
    }
    QStringList lines = text.split(QLatin1Char('\n'));
    lines.removeLast();
    return lines;
}

QByteArray fileBytes(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
    return file.readAll();
}
