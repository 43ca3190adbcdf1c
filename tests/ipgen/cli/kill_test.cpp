// A kill at any moment of `ipgen generate` leaves each file old or new.

#include "programrun.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int instances = 30;
constexpr int linesPerFile = 3000;

/// What the tiny IP writes for instance `i` at one of the two rates.
QByteArray textOf(int i, const QByteArray& rate) {
    QByteArray text;
    for (int line = 0; line < linesPerFile; ++line) {
        text += "line " + QByteArray::number(line) + " of m" + QByteArray::number(i) + " at " +
                rate + '\n';
    }
    return text + "bias 9 on RZ7X-60B\n";
}

QByteArray projectText(const QByteArray& rate) {
    QByteArray text = "{\"format\": 1, \"device\": \"RZ7X-60B\", \"data\": {\"Q0_BIAS\": 9}, "
                      "\"instances\": {";
    for (int i = 0; i < instances; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += (i > 0 ? ",\n" : "\n");
        text += "\"link" + number + R"(": {"ip": "tiny", "config": {"count": true, "file": "f)" +
                number + "\", \"module\": \"m" + number + "\", \"rate\": \"" + rate +
                "\", \"lines\": " + QByteArray::number(linesPerFile) + "}}";
    }
    return text + "}}\n";
}

} // namespace

class KillTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_dir.isValid());
        for (const char* rate : {"1.25", "2.5"}) {
            for (int i = 0; i < instances; ++i) {
                m_texts[qstrcmp(rate, "2.5") == 0 ? 1 : 0].append(textOf(i, rate));
            }
        }
    }

    void eachFileIsOldOrNew() {
        // How long one run takes, and how much of it goes by before the first file is new.
        start(0);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(waitForFirstFile(0));
        const qint64 before = clock.nsecsElapsed();
        QVERIFY(m_process.waitForFinished(60000));
        const qint64 writing = qMax<qint64>(clock.nsecsElapsed() - before, 1000000);
        QCOMPARE(m_process.exitCode(), 0);
        QCOMPARE(newFiles(0), instances);
        QVERIFY(contentOf(project() + "/project.json") != m_project);
        QVERIFY(projectIsWhole(0));

        constexpr int runs = 60;
        int midWay = 0;
        int leftovers = 0;
        for (int run = 1; run <= runs; ++run) {
            const int now = run % 2;
            putOldFiles(1 - now);
            start(now);
            // Every fifth kill comes anywhere in the run, the others where files are written.
            if (run % 5 == 0) {
                sleepUpTo(before + writing);
            } else {
                QVERIFY(waitForFirstFile(now));
                sleepUpTo(writing * 3 / 4);
            }
            m_process.kill();
            QVERIFY(m_process.waitForFinished(60000));
            const int fresh = newFiles(now);
            QVERIFY2(fresh >= 0, qPrintable(m_flaw));
            QVERIFY(projectIsWhole(now));
            const bool killed = m_process.exitStatus() == QProcess::CrashExit;
            midWay += killed && fresh > 0 && fresh < instances ? 1 : 0;
            leftovers += temporaryFiles() > 0 ? 1 : 0;
        }
        qInfo("%d of %d kills came between the first file and the last, %d left a temporary file",
              midWay, runs, leftovers);
        QVERIFY(midWay >= runs / 4);

        start(0);
        QVERIFY(m_process.waitForFinished(60000));
        QCOMPARE(m_process.exitCode(), 0);
        QCOMPARE(newFiles(0), instances);
        QVERIFY(contentOf(project() + "/project.json") != m_project);
        QVERIFY(projectIsWhole(0));
        QCOMPARE(temporaryFiles(), 0);
        QCOMPARE(filesBelow(m_dir.path()).size(), 2 * instances + 1);
    }

private:
    QString project() const { return m_dir.filePath(QStringLiteral("p")); }
    QString text(int i) const {
        return project() + QStringLiteral("/transceiver/f%1/temp/TINY/tiny.txt").arg(i);
    }

    void start(int version) {
        QVERIFY(QDir().mkpath(project()));
        m_project = projectText(version == 1 ? "2.5" : "1.25");
        writeFile(project() + "/project.json", m_project);
        m_process.start(ipgenProgram(),
                        {"--plugin-dir", testPlugins("tiny"), "generate", project()});
    }

    bool waitForFirstFile(int version) {
        QElapsedTimer clock;
        clock.start();
        while (contentOf(text(0)) != m_texts[version][0]) {
            if (clock.elapsed() > 60000) {
                return false;
            }
            QTest::qSleep(1);
        }
        return true;
    }

    static void sleepUpTo(qint64 nanoseconds) {
        const int most = static_cast<int>(qMin<qint64>(nanoseconds / 1000000, 10000));
        const int chosen = QRandomGenerator::global()->bounded(most + 1);
        if (chosen > 0) {
            QTest::qSleep(chosen);
        }
    }

    void putOldFiles(int version) {
        for (int i = 0; i < instances; ++i) {
            writeFile(text(i), m_texts[version][i]);
        }
    }

    /// How many files are of this version; -1: one is neither old nor new.
    int newFiles(int version) {
        int count = 0;
        for (int i = 0; i < instances; ++i) {
            const QByteArray bytes = contentOf(text(i));
            count += bytes == m_texts[version][i] ? 1 : 0;
            const QByteArray script =
                contentOf(QFileInfo(text(i)).path() + QStringLiteral("/tiny.ini"));
            if ((bytes != m_texts[0][i] && bytes != m_texts[1][i]) ||
                script != "tiny m" + QByteArray::number(i) + '\n') {
                m_flaw = QStringLiteral("%1: %2 bytes").arg(text(i)).arg(bytes.size());
                return -1;
            }
        }
        return count;
    }

    /// As it was given to the run, or with the run's data in it.
    bool projectIsWhole(int version) const {
        const QByteArray bytes = contentOf(project() + "/project.json");
        if (bytes == m_project) {
            return true;
        }
        QVariantMap expected = jsonOf(projectText(version == 1 ? "2.5" : "1.25")).toMap();
        expected.insert("data", QVariantMap({{"Q0_BIAS", 9}, {"TINY_RUNS", instances}}));
        return jsonOf(bytes).toMap() == expected;
    }

    int temporaryFiles() const {
        return filesBelow(m_dir.path()).filter(QStringLiteral(".ipgen-tmp-")).size();
    }

    QTemporaryDir m_dir;
    QProcess m_process;
    QList<QByteArray> m_texts[2]; ///< version, instance
    QByteArray m_project;         ///< as given to the last run
    QString m_flaw;
};

QTEST_GUILESS_MAIN(KillTest)
#include "kill_test.moc"
