// Every folder of tests/golden through the built program, compared byte for byte.
#include "goldencases.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// To be changed with every case that is added: a folder that goes missing must not go unnoticed.
constexpr int kCases = 39;

const QStringList kFiles{"define.vh", "param.v", "customized.ini"};

QStringList texts(const QJsonValue& list) {
    return list.toVariant().toStringList();
}

QByteArray asFile(const QStringList& lines) {
    QByteArray bytes;
    for (const QString& line : lines) {
        bytes += line.toUtf8() + '\n';
    }
    return bytes;
}

bool updating() {
    return qEnvironmentVariableIntValue("GOLDEN_UPDATE") == 1;
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
}

} // namespace

class GoldenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void casesAreComplete();
    void bytes_data();
    void bytes();
    void lists_data() { bytes_data(); }
    void lists();
    void nothingElseIsWritten_data() { bytes_data(); }
    void nothingElseIsWritten();
    void reportsStandInInputOrder();
    void moreWorkersGiveTheSame();

private:
    /// Runs the batch into a folder; the reports by line.
    QList<QJsonObject> emitAll(const QString& out, const QStringList& more);
    QString outputFolder(const GoldenCase& golden, const QString& out) const;

    QTemporaryDir m_scratch;
    QList<GoldenCase> m_cases;
    QString m_out;
    QMap<QString, QJsonObject> m_reports;
    QStringList m_order;
};

QList<QJsonObject> GoldenTest::emitAll(const QString& out, const QStringList& more) {
    QByteArray input;
    for (const GoldenCase& golden : m_cases) {
        input += golden.input + '\n';
    }
    const QString batch = m_scratch.filePath("batch.jsonl");
    writeFile(batch, input);
    const QString report = out + ".jsonl";
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(BUILD_DIR "/bin/ipgen",
                  QStringList{"emit", "--batch", batch, "--out", out, "--report", report} + more);
    if (!program.waitForFinished(120000) || program.exitStatus() != QProcess::NormalExit ||
        program.exitCode() != 0) {
        qWarning("ipgen emit: %s, exit status %d", qPrintable(program.errorString()),
                 program.exitCode());
        return {};
    }
    QList<QJsonObject> reports;
    for (const QByteArray& line : fileBytes(report).split('\n')) {
        if (!line.isEmpty()) {
            reports.append(QJsonDocument::fromJson(line).object());
        }
    }
    return reports;
}

QString GoldenTest::outputFolder(const GoldenCase& golden, const QString& out) const {
    return QStringList{out, golden.name, goldenConfig(golden.name).value("file").toString(), "temp",
                       "CUSTOMIZED"}
        .join('/');
}

void GoldenTest::initTestCase() {
    m_cases = goldenCases();
    QCOMPARE(m_cases.size(), kCases);
    m_out = m_scratch.filePath("out");
    for (const QJsonObject& report : emitAll(m_out, {})) {
        m_order.append(report.value("name").toString());
        m_reports.insert(m_order.last(), report);
    }
    QCOMPARE(m_reports.size(), kCases);
    if (!updating()) {
        return;
    }
    for (const GoldenCase& golden : qAsConst(m_cases)) {
        for (const QString& file : kFiles) {
            writeFile(golden.expectedPath(file),
                      fileBytes(outputFolder(golden, m_out) + '/' + file));
        }
        writeFile(golden.expectedPath("options.txt"),
                  asFile(texts(m_reports.value(golden.name).value("options"))));
    }
    qWarning("expected files rewritten: read the difference line by line before committing it");
}

void GoldenTest::casesAreComplete() {
    for (const GoldenCase& golden : qAsConst(m_cases)) {
        QCOMPARE(
            QDir(golden.folder + "/expected").entryList(QDir::Files | QDir::Hidden, QDir::Name),
            (QStringList{"customized.ini", "define.vh", "options.txt", "param.v"}));
        const QJsonDocument document = QJsonDocument::fromJson(golden.input);
        QCOMPARE(document.object().value("name").toString(), golden.name);
        for (const QString& file : kFiles + QStringList{"options.txt"}) {
            const QByteArray expected = fileBytes(golden.expectedPath(file));
            QVERIFY2(expected.isEmpty() || expected.endsWith('\n'),
                     qPrintable(golden.expectedPath(file)));
            QVERIFY2(!expected.contains('\r'), qPrintable(golden.expectedPath(file)));
        }
    }
}

void GoldenTest::bytes_data() {
    QTest::addColumn<QString>("name");
    for (const GoldenCase& golden : qAsConst(m_cases)) {
        QTest::newRow(qPrintable(golden.name)) << golden.name;
    }
}

void GoldenTest::bytes() {
    QFETCH(QString, name);
    const GoldenCase golden = goldenCase(name);
    QVERIFY(m_reports.value(name).value("ok").toBool());
    QVERIFY(m_reports.value(name).value("error").toString().isEmpty());
    for (const QString& file : kFiles) {
        const QByteArray written = fileBytes(outputFolder(golden, m_out) + '/' + file);
        const QByteArray expected = fileBytes(golden.expectedPath(file));
        // Lines first: they say where; then the bytes, which say all.
        const QList<QByteArray> writtenLines = written.split('\n');
        const QList<QByteArray> expectedLines = expected.split('\n');
        for (int i = 0; i < std::min(writtenLines.size(), expectedLines.size()); ++i) {
            QVERIFY2(writtenLines.at(i) == expectedLines.at(i),
                     QByteArray(file.toUtf8() + ':' + QByteArray::number(i + 1) + ": \"" +
                                writtenLines.at(i) + "\" instead of \"" + expectedLines.at(i) + '"')
                         .constData());
        }
        QVERIFY2(written == expected, qPrintable(file));
    }
}

void GoldenTest::lists() {
    QFETCH(QString, name);
    QCOMPARE(texts(m_reports.value(name).value("options")), goldenLines(name, "options.txt"));
    QCOMPARE(texts(m_reports.value(name).value("script")), goldenLines(name, "customized.ini"));
}

void GoldenTest::nothingElseIsWritten() {
    QFETCH(QString, name);
    const GoldenCase golden = goldenCase(name);
    QDir folder(outputFolder(golden, m_out));
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QCOMPARE(folder.entryList(everything, QDir::Name),
             (QStringList{"customized.ini", "define.vh", "param.v"}));
    for (int level = 0; level < 3; ++level) { // temp, the file's folder, the working folder
        QVERIFY(folder.cdUp());
        QCOMPARE(folder.entryList(everything).size(), 1);
    }
    QCOMPARE(folder.canonicalPath(), QDir(m_out + '/' + name).canonicalPath());
}

void GoldenTest::reportsStandInInputOrder() {
    QStringList names;
    for (const GoldenCase& golden : qAsConst(m_cases)) {
        names.append(golden.name);
    }
    QCOMPARE(m_order, names);
}

void GoldenTest::moreWorkersGiveTheSame() {
    const QString out = m_scratch.filePath("parallel");
    const QList<QJsonObject> reports = emitAll(out, {"--jobs", "3"});
    QCOMPARE(reports.size(), kCases);
    for (int i = 0; i < kCases; ++i) {
        const GoldenCase& golden = m_cases.at(i);
        QCOMPARE(reports.at(i).value("name").toString(), golden.name);
        QCOMPARE(reports.at(i).value("options"), m_reports.value(golden.name).value("options"));
        QCOMPARE(reports.at(i).value("script"), m_reports.value(golden.name).value("script"));
        for (const QString& file : kFiles) {
            QVERIFY2(fileBytes(outputFolder(golden, out) + '/' + file) ==
                         fileBytes(outputFolder(golden, m_out) + '/' + file),
                     qPrintable(golden.name + '/' + file));
        }
    }
}

QTEST_GUILESS_MAIN(GoldenTest)
#include "golden_test.moc"
