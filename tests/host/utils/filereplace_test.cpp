#include "../../support/smalldisk.h"

#include <utils/filereplace.h>

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

void put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

struct stat statusOf(const QString& path) {
    struct stat info {};
    ::lstat(QFile::encodeName(path).constData(), &info);
    return info;
}

QStringList everything(const QString& folder) {
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace

class FileReplaceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }

    void writesBytes_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("a line") << QByteArray("a\n");
        QTest::newRow("zero bytes") << QByteArray("\0\0x", 3);
        QTest::newRow("a megabyte") << QByteArray(1 << 20, 'm');
    }
    void writesBytes() {
        QFETCH(QByteArray, bytes);
        const Utils::FileResult fresh = Utils::replaceFile(path("f"), bytes);
        QVERIFY2(fresh.ok, qPrintable(fresh.reason));
        QVERIFY(fresh.written);
        QCOMPARE(contentOf(path("f")), bytes);
        put(path("f"), "something else");
        QVERIFY(Utils::replaceFile(path("f"), bytes).ok);
        QCOMPARE(contentOf(path("f")), bytes);
        QCOMPARE(everything(m_dir->path()), QStringList({QStringLiteral("f")}));
    }

    void newFileFollowsTheUmask() {
        const mode_t former = ::umask(027);
        const bool ok = Utils::replaceFile(path("f"), "x").ok;
        ::umask(former);
        QVERIFY(ok);
        QCOMPARE(statusOf(path("f")).st_mode & 0777U, 0640U);
    }

    void keepsPermissions() {
        put(path("f"), "old");
        QCOMPARE(::chmod(QFile::encodeName(path("f")).constData(), 0604), 0);
        QVERIFY(Utils::replaceFile(path("f"), "new").ok);
        QCOMPARE(contentOf(path("f")), QByteArray("new"));
        QCOMPARE(statusOf(path("f")).st_mode & 07777U, 0604U);
    }

    void leavesEqualBytesAlone() {
        put(path("f"), "same");
        const struct timespec longAgo[2] = {{1000, 5}, {1000, 5}};
        QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path("f")).constData(), longAgo, 0), 0);
        const struct stat before = statusOf(path("f"));
        const Utils::FileResult result = Utils::replaceFile(path("f"), "same");
        QVERIFY(result.ok);
        QVERIFY(!result.written);
        QCOMPARE(statusOf(path("f")).st_ino, before.st_ino);
        QCOMPARE(statusOf(path("f")).st_mtim.tv_sec, time_t(1000));
        QVERIFY(Utils::replaceFile(path("f"), "sane").written);
        QVERIFY(statusOf(path("f")).st_ino != before.st_ino);
    }

    void followsLinks() {
        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("there")));
        put(path("there/f"), "old");
        QVERIFY(QFile::link(QStringLiteral("there/f"), path("one")));
        QVERIFY(QFile::link(QStringLiteral("one"), path("two")));
        QVERIFY(Utils::replaceFile(path("two"), "new").ok);
        QCOMPARE(contentOf(path("there/f")), QByteArray("new"));
        QVERIFY(QFileInfo(path("two")).isSymLink());
        QVERIFY(QFileInfo(path("one")).isSymLink());
        QCOMPARE(everything(path("there")), QStringList({QStringLiteral("f")}));
    }

    void linkToNothingMakesItsTarget() {
        QVERIFY(QFile::link(QStringLiteral("later"), path("link")));
        QVERIFY(Utils::replaceFile(path("link"), "x").ok);
        QVERIFY(QFileInfo(path("link")).isSymLink());
        QCOMPARE(contentOf(path("later")), QByteArray("x"));
    }

    void refuses_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason");
        QTest::newRow("a folder") << "folder"
                                  << "cannot write: Is a directory";
        QTest::newRow("no folder") << "none/f"
                                   << "cannot make a file in its folder: No such file or directory";
        QTest::newRow("a file for a folder") << "file/f"
                                             << "cannot make a file in its folder: Not a directory";
        QTest::newRow("a loop of links") << "loop"
                                         << "cannot write: Too many levels of symbolic links";
        QTest::newRow("a name too long") << QString(300, QLatin1Char('n')) + QStringLiteral("/f")
                                         << "cannot make a file in its folder: File name too long";
    }
    void refuses() {
        QFETCH(QString, name);
        QFETCH(QString, reason);
        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("folder")));
        put(path("file"), "old");
        QVERIFY(QFile::link(QStringLiteral("loop"), path("loop")));
        const QString target = m_dir->filePath(name);
        const Utils::FileResult result = Utils::replaceFile(target, "x");
        QVERIFY(!result.ok);
        QCOMPARE(result.reason, reason);
        QCOMPARE(result.path, target);
        QCOMPARE(contentOf(path("file")), QByteArray("old"));
        QCOMPARE(everything(m_dir->path()), QStringList({"file", "folder", "loop"}));
    }

    void refusesTheEmptyName() {
        QCOMPARE(Utils::replaceFile(QString(), "x").reason,
                 QStringLiteral("cannot write: No such file or directory"));
    }

    void fullDisk_data() {
        QTest::addColumn<int>("size");
        QTest::newRow("few bytes") << 1000; // less than any library would buffer
        QTest::newRow("many bytes") << 100000;
    }
    void fullDisk() {
        QFETCH(int, size);
        SmallDisk disk(m_dir->path(), 64);
        if (!disk.isMounted()) {
            QSKIP("only root may mount a small disk; fileSizeLimit() shows the same");
        }
        put(path("f"), "old");
        disk.fill();
        const Utils::FileResult result = Utils::replaceFile(path("f"), QByteArray(size, 'x'));
        QVERIFY(!result.ok);
        QCOMPARE(result.reason, QStringLiteral("cannot write: No space left on device"));
        QCOMPARE(contentOf(path("f")), QByteArray("old"));
        QCOMPARE(everything(m_dir->path()), QStringList({"f", "filler"}));
    }

    void fileSizeLimit() {
        put(path("f"), "old");
        Utils::FileResult result;
        {
            const FileSizeLimit limit(500);
            result = Utils::replaceFile(path("f"), QByteArray(1000, 'x'));
        }
        QVERIFY(!result.ok);
        QCOMPARE(result.reason, QStringLiteral("cannot write: File too large"));
        QCOMPARE(contentOf(path("f")), QByteArray("old"));
        QCOMPARE(everything(m_dir->path()), QStringList({QStringLiteral("f")}));
    }

    void readOnlyDisk() {
        SmallDisk disk(m_dir->path(), 64);
        if (!disk.isMounted()) {
            QSKIP("only root may mount a disk");
        }
        put(path("f"), "old");
        QVERIFY(disk.makeReadOnly());
        const Utils::FileResult result = Utils::replaceFile(path("f"), "new");
        QVERIFY(!result.ok);
        QCOMPARE(result.reason,
                 QStringLiteral("cannot make a file in its folder: Read-only file system"));
        QCOMPARE(contentOf(path("f")), QByteArray("old"));
    }

    void dropsWhatIsNotCommitted() {
        put(path("f"), "old");
        {
            Utils::FileReplacement file(path("f"));
            QVERIFY(file.write("half"));
            QCOMPARE(everything(m_dir->path()).size(), 2);
            QCOMPARE(contentOf(path("f")), QByteArray("old"));
        }
        QCOMPARE(everything(m_dir->path()), QStringList({QStringLiteral("f")}));
        QCOMPARE(contentOf(path("f")), QByteArray("old"));
    }

    void sweepsWhatNobodyWrites() {
        put(path(".ipgen-tmp-1-1"), "left by a killed run");
        put(path(".ipgen-tmp-note"), "as well");
        put(path("mine.ipgen-tmp-1"), "not a temporary file");
        Utils::FileReplacement running(path("g"));
        QVERIFY(running.write("being written"));
        QVERIFY(Utils::replaceFile(path("f"), "x").ok);
        QVERIFY(running.commit().ok);
        QCOMPARE(everything(m_dir->path()), QStringList({"f", "g", "mine.ipgen-tmp-1"}));
        put(path(".ipgen-tmp-1-1"), "again");
        QCOMPARE(Utils::sweepLeftovers(m_dir->path()), 1);
    }

    void writesToAPipe() {
        const QByteArray fifo = QFile::encodeName(path("fifo"));
        QCOMPARE(::mkfifo(fifo.constData(), 0600), 0);
        const int reader = ::open(fifo.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(reader >= 0);
        QVERIFY(Utils::replaceFile(path("fifo"), "through").ok);
        char buffer[16];
        QCOMPARE(::read(reader, buffer, sizeof buffer), ssize_t(7));
        QCOMPARE(QByteArray(buffer, 7), QByteArray("through"));
        ::close(reader);
    }

    void aKillLeavesOldOrNew() {
        const QByteArray versions[2] = {QByteArray(200000, 'a'), QByteArray(300000, 'b')};
        put(path("f"), versions[0]);
        for (int round = 0; round < 40; ++round) {
            const pid_t child = ::fork();
            if (child == 0) {
                for (unsigned i = 0;; ++i) {
                    Utils::replaceFile(path("f"), versions[i % 2]);
                }
            }
            QTest::qSleep(1 + round % 7);
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);
            const QByteArray now = contentOf(path("f"));
            QVERIFY(now == versions[0] || now == versions[1]);
        }
        QVERIFY(Utils::replaceFile(path("f"), "last").ok);
        QCOMPARE(everything(m_dir->path()), QStringList({QStringLiteral("f")}));
    }

    void syncsLater() {
        put(path("f"), "old");
        {
            const Utils::SyncLater later;
            const Utils::SyncLater inner;
            QVERIFY(Utils::replaceFile(path("f"), "new").written);
            QCOMPARE(contentOf(path("f")), QByteArray("new"));
            QVERIFY(!Utils::replaceFile(path("none/f"), "x").ok);
        }
        QVERIFY(Utils::syncFiles(m_dir->path()).ok);
        QCOMPARE(everything(m_dir->path()), QStringList({QStringLiteral("f")}));
    }

    void syncRefuses_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason");
        QTest::newRow("nothing") << "none"
                                 << "cannot sync the folder: No such file or directory";
        QTest::newRow("a file") << "f"
                                << "cannot sync the folder: Not a directory";
    }
    void syncRefuses() {
        QFETCH(QString, name);
        QFETCH(QString, reason);
        put(path("f"), "old");
        const Utils::FileResult result = Utils::syncFiles(m_dir->filePath(name));
        QVERIFY(!result.ok);
        QCOMPARE(result.path, m_dir->filePath(name));
        QCOMPARE(result.reason, reason);
    }

    void reads() {
        put(path("f"), "abc");
        QByteArray bytes;
        QVERIFY(Utils::readFile(path("f"), &bytes).ok);
        QCOMPARE(bytes, QByteArray("abc"));
        QCOMPARE(Utils::readFile(path("none"), &bytes).reason,
                 QStringLiteral("cannot read: No such file or directory"));
        QVERIFY(bytes.isEmpty());
        QCOMPARE(Utils::readFile(m_dir->path(), &bytes).reason,
                 QStringLiteral("cannot read: Is a directory"));
    }

private:
    QString path(const char* name) const { return m_dir->filePath(QString::fromUtf8(name)); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(FileReplaceTest)
#include "filereplace_test.moc"
