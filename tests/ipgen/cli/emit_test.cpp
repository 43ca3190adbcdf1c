#include "programrun.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

QByteArray item(const QByteArray& name, const QByteArray& more = {}) {
    return "{\"name\":\"" + name +
           "\",\"ip\":\"tiny\",\"device\":\"RZ7X-60B\",\"config\":{\"file\":\"f\",\"module\":"
           "\"m\"" +
           more + "}}\n";
}

} // namespace

class EmitTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_dir = std::make_unique<QTemporaryDir>();
        m_out = m_dir->filePath("out");
        m_report = m_dir->filePath("report.jsonl");
    }

    void itemsHaveTheirOwnDataAndLines() {
        const ProgramRun run = emitBatch(
            "{\"name\":\"a\",\"ip\":\"tiny\",\"device\":\"RZ7X-60B\",\"config\":{\"file\":\"f\","
            "\"module\":\"m\",\"lines\":1},\"data\":{\"Q0_BIAS\":7},\"script\":[\"first\"],"
            "\"options\":[\"-first\"]}\n"
            "{\"name\":\"b\",\"ip\":\"tiny\",\"device\":\"RZ7X-138\",\"config\":{\"file\":\"f\","
            "\"module\":\"n\"}}");
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(contentOf(m_report),
                 ("{\"error\":\"\",\"folder\":\"" + m_out +
                  "/a/f/temp/TINY\",\"name\":\"a\",\"ok\":true,\"options\":[\"-first\",\"-m "
                  "true\"],\"script\":[\"first\",\"tiny m\"]}\n"
                  "{\"error\":\"\",\"folder\":\"" +
                  m_out +
                  "/b/f/temp/TINY\",\"name\":\"b\",\"ok\":true,\"options\":[\"-n "
                  "true\"],\"script\":[\"tiny n\"]}\n")
                     .toUtf8());
        QCOMPARE(contentOf(m_out + "/a/f/temp/TINY/tiny.txt"),
                 QByteArray("line 0 of m at \nbias 7 on RZ7X-60B\n"));
        QCOMPARE(contentOf(m_out + "/b/f/temp/TINY/tiny.txt"), QByteArray("bias 0 on RZ7X-138\n"));
        QCOMPARE(contentOf(m_out + "/a/f/temp/TINY/tiny.ini"), QByteArray("first\ntiny m\n"));
    }

    void orderDoesNotDependOnTheWorkers() {
        QByteArray batch;
        for (int i = 0; i < 200; ++i) {
            // Long and short ones by turns, some malformed, some refused.
            batch += i % 50 == 7    ? QByteArray("{\"name\":\n")
                     : i % 50 == 20 ? item("r" + QByteArray::number(i), ",\"refuse\":true")
                                    : item("c" + QByteArray::number(i),
                                           ",\"lines\":" + QByteArray::number(i % 3 * 2000));
        }
        const ProgramRun one = emitBatch(batch);
        QCOMPARE(one.status, 1);
        const QByteArray report = contentOf(m_report);
        QCOMPARE(report.count('\n'), 200);
        const ProgramRun four = emitBatch(batch, {"--jobs", "4"});
        QCOMPARE(four.status, 1);
        QCOMPARE(contentOf(m_report), report);
        QCOMPARE(jsonOf(report.split('\n').at(21)).toMap().value("name"), QVariant("c21"));
    }

    void malformedLines_data() {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* name, const QByteArray& line, const char* error) {
            QTest::newRow(name) << line << QString::fromUtf8(error);
        };
        row("syntax", "{\"name\":\"x\",}", "line 3, column 13: syntax error");
        row("a number", "7", "line 3, column 1: is no JSON object");
        row("doubled key", "{\"name\":\"x\",\"name\":\"y\"}",
            "line 3, column 13: the key \"name\" is given twice");
        row("not UTF-8", "{\"name\":\"\xff\"}", "line 3, column 10: ");
        row("no name", "{\"device\":\"d\",\"config\":{}}", "line 3, key \"name\": is no text");
        row("no device", "{\"name\":\"x\",\"config\":{}}", "line 3, key \"device\": is no text");
        row("no configuration", "{\"name\":\"x\",\"device\":\"d\"}",
            "line 3, key \"config\": is no object");
        row("script", "{\"name\":\"x\",\"device\":\"d\",\"config\":{},\"script\":\"s\"}",
            "line 3, key \"script\": is no list of texts");
        row("data", "{\"name\":\"x\",\"device\":\"d\",\"config\":{},\"data\":[]}",
            "line 3, key \"data\": is no object");
        row("a name twice", item("a"), "line 3, name \"a\": an earlier line has it");
        row("name above", item(".."), "line 3, name \"..\": the name leaves its folder");
        row("name with a separator", item("a/b"), "line 3, name \"a/b\": the name has a path");
        row("empty name", item(""), "line 3, name \"\": the name is empty");
        row("name with a control character", item("a\\u0007"),
            "line 3, name \"a\\x07\": the name has a control character");
    }
    void malformedLines() {
        QFETCH(QByteArray, line);
        QFETCH(QString, error);
        const ProgramRun run = emitBatch(item("a") + '\n' + line.trimmed() + '\n' + item("z"));
        QCOMPARE(run.status, 1);
        const QList<QByteArray> report = contentOf(m_report).split('\n');
        QCOMPARE(report.size(), 4); // three lines, and nothing after the last line feed
        const QVariantMap bad = jsonOf(report[1]).toMap();
        QCOMPARE(bad.keys(), QStringList({"error", "folder", "name", "ok", "options", "script"}));
        QCOMPARE(bad.value("ok"), QVariant(false));
        QVERIFY2(bad.value("error").toString().startsWith(error), report[1].constData());
        QVERIFY(
            run.err.contains(("ipgen: " + m_dir->filePath("batch.jsonl") + ": " + error).toUtf8()));
        QCOMPARE(jsonOf(report[0]).toMap().value("ok"), QVariant(true));
        QCOMPARE(jsonOf(report[2]).toMap().value("ok"), QVariant(true));
        QCOMPARE(QDir(m_out).entryList(QDir::AllDirs | QDir::NoDotAndDotDot),
                 QStringList({"a", "z"}));
    }

    void aCrashedWorkerIsReportedAndReplaced() {
        const ProgramRun run = emitBatch(item("a") + item("bad", ",\"crash\":true") + item("c") +
                                         item("t", ",\"throw\":true") + item("d"));
        QCOMPARE(run.status, 1);
        const QList<QByteArray> report = contentOf(m_report).split('\n');
        QCOMPARE(report.size(), 6);
        const QVariantMap bad = jsonOf(report[1]).toMap();
        QCOMPARE(bad.value("name"), QVariant("bad"));
        QVERIFY2(bad.value("error").toString().contains("the worker process"),
                 report[1].constData());
        QVERIFY(run.err.contains("ipgen: bad: the worker process"));
        QCOMPARE(jsonOf(report[3]).toMap().value("error"),
                 QVariant("t: the generation threw an exception: thrown on purpose"));
        for (const int good : {0, 2, 4}) {
            QCOMPARE(jsonOf(report[good]).toMap().value("ok"), QVariant(true));
        }
        QVERIFY(QFile::exists(m_out + "/d/f/temp/TINY/tiny.txt"));
    }

    void failures() {
        const ProgramRun run =
            emitBatch(item("e").replace("\"file\":\"f\",\"module\":\"m\"", "") +
                      item("u").replace("RZ7X-60B", "Q") + item("i").replace("tiny", "none") +
                      item("w").replace("\"f\"", "\"../f\""));
        QCOMPARE(run.status, 1);
        const QList<QByteArray> report = contentOf(m_report).split('\n');
        const auto error = [&](int line) {
            return jsonOf(report[line]).toMap().value("error").toString();
        };
        QCOMPARE(error(0), QStringLiteral("e: the configuration is empty"));
        QVERIFY(error(1).startsWith("u: device \"Q\": not in the device database"));
        QVERIFY(error(2).startsWith("i: IP \"none\": not found; on offer: "));
        QCOMPARE(error(3), QStringLiteral("w: file name \"../f\": the name has a path separator"));
        QCOMPARE(filesBelow(m_out), QStringList());
    }

    void oneConfiguration() {
        const QString config = m_dir->filePath("link.json");
        writeFile(config, "{\"file\":\"f\",\"module\":\"m\"}");
        const ProgramRun run = runIpgen({"emit", "--config", config, "--device", "RZ7X-60B", "--ip",
                                         "tiny", "--out", m_out, "--json"});
        QCOMPARE(run.status, 0);
        QCOMPARE(jsonOf(run.out).toMap(), QVariantMap({{"name", "link"},
                                                       {"ok", true},
                                                       {"folder", m_out + "/f/temp/TINY"},
                                                       {"script", QStringList({"tiny m"})},
                                                       {"options", QStringList({"-m true"})},
                                                       {"error", QString("")}}));
        QCOMPARE(contentOf(m_out + "/f/temp/TINY/tiny.txt"), QByteArray("bias 0 on RZ7X-60B\n"));
        writeFile(config, "{\"file\":\n\"f\",\"file\":\"g\"}");
        const ProgramRun bad = runIpgen(
            {"emit", "--config", config, "--device", "RZ7X-60B", "--ip", "tiny", "--out", m_out});
        QCOMPARE(bad.err,
                 ("ipgen: " + config + ": line 2, column 5: the key \"file\" is given twice\n")
                     .toUtf8());
        QCOMPARE(bad.status, 3);
    }

    void inputAndReportThatCannotBe() {
        const ProgramRun none = runIpgen(
            {"emit", "--batch", m_dir->filePath("none"), "--out", m_out, "--report", m_report});
        QCOMPARE(none.err, ("ipgen: " + m_dir->filePath("none") +
                            ": cannot read: No such file or directory\n")
                               .toUtf8());
        QCOMPARE(none.status, 3);
        QVERIFY(!QFile::exists(m_report));
        m_report = m_dir->filePath("no/report");
        const ProgramRun run = emitBatch(item("a"));
        QCOMPARE(run.err, ("ipgen: " + m_report +
                           ": cannot make a file in its folder: No such file or directory\n")
                              .toUtf8());
        QCOMPARE(run.status, 4);
    }

    void standardInputAndOutput() {
        const ProgramRun run = runIpgen({"emit", "--batch", "-", "--out", m_out, "--report", "-"},
                                        item("a") + item("b"));
        QCOMPARE(run.status, 0);
        QCOMPARE(run.out.count('\n'), 2);
        QCOMPARE(jsonOf(run.out.split('\n').first()).toMap().value("name"), QVariant("a"));
    }

private:
    ProgramRun emitBatch(const QByteArray& batch, const QStringList& more = {}) {
        const QString path = m_dir->filePath("batch.jsonl");
        writeFile(path, batch);
        return runIpgen(
            QStringList({"emit", "--batch", path, "--out", m_out, "--report", m_report}) + more);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_out;
    QString m_report;
};

QTEST_GUILESS_MAIN(EmitTest)
#include "emit_test.moc"
