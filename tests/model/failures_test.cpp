// Generations that cannot be completed: the answer is false, the user is told the path and the
// reason, every file is whole, nothing lies around.
#include "goldencases.h"
#include "harness.h"
#include "support/smalldisk.h"

#include <ipcore/ipcore.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <unistd.h>

namespace {

const QStringList kFiles{"customized.ini", "define.vh", "param.v"};
const QByteArray kOld("what a former generation wrote\n");
const QString kCase = QStringLiteral("138k_eight_lanes");

void writeFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
}

/// Every file and folder below one, with the files' sizes; links are not followed.
QStringList treeOf(const QString& folder) {
    QStringList entries;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        entries.append(it.filePath().mid(folder.size()));
    }
    entries.sort();
    return entries;
}

} // namespace

class FailuresTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void emptyConfiguration();
    void folderThatCannotBeMade_data();
    void folderThatCannotBeMade();
    void fileThatCannotBeReplaced_data();
    void fileThatCannotBeReplaced();
    void readOnlyDisk();
    void readOnlyFolder();
    void fullDisk();
    void diskThatFillsUp();
    void fileSizeLimit();
    void aLaterRunSucceeds();
    void nameThatLeavesTheFolder_data();
    void nameThatLeavesTheFolder();
    void nameThroughEmit_data() { names(); }
    void nameThroughEmit();
    void nameThroughGenerate_data() { names(); }
    void nameThroughGenerate();

private:
    static void names();
    /// The folder of the instance's files.
    QString output() const { return m_work + "/fabric/temp/CUSTOMIZED"; }
    void writeOldFiles();
    /// Runs the generation; false and told of this path, with these files replaced.
    void checkFailure(const QString& path, const QStringList& replaced);

    Harness m_host;
    QScopedPointer<QTemporaryDir> m_scratch;
    QString m_work;
};

void FailuresTest::initTestCase() {
    QVERIFY2(m_host.error().isEmpty(), qPrintable(m_host.error()));
}

void FailuresTest::init() {
    m_scratch.reset(new QTemporaryDir);
    m_work = m_scratch->filePath("work");
    QVERIFY(QDir().mkpath(m_work));
    m_host.openProject(m_work);
    IPCore::setOutputRoot(m_work);
    m_host.takeErrors();
}

void FailuresTest::cleanup() {
    IPCore::setOutputRoot({});
}

void FailuresTest::writeOldFiles() {
    for (const QString& file : kFiles) {
        writeFile(output() + '/' + file, kOld);
    }
}

void FailuresTest::checkFailure(const QString& path, const QStringList& replaced) {
    const QStringList before = treeOf(m_work);
    const Harness::Result result = m_host.generate(goldenConfig(kCase));
    QVERIFY(!result.ok);

    const auto errors = m_host.takeErrors();
    QCOMPARE(errors.size(), 1);
    QCOMPARE(errors.first().first, path);
    QVERIFY(!errors.first().second.isEmpty());
    QVERIFY2(!errors.first().second.contains('\n'), qPrintable(errors.first().second));

    QCOMPARE(treeOf(m_work), before); // no temporary file, nothing gone
    for (const QString& file : kFiles) {
        const QString place = output() + '/' + file;
        if (!QFileInfo(place).isFile()) {
            continue;
        }
        if (replaced.contains(file)) {
            QVERIFY2(fileBytes(place) == fileBytes(goldenCase(kCase).expectedPath(file)),
                     qPrintable(file));
        } else {
            QVERIFY2(fileBytes(place) == kOld, qPrintable(file));
        }
    }
}

void FailuresTest::emptyConfiguration() {
    writeOldFiles();
    const QStringList before = treeOf(m_work);
    QVERIFY(!m_host.generate({}).ok);
    QCOMPARE(treeOf(m_work), before);
    for (const QString& file : kFiles) {
        QCOMPARE(fileBytes(output() + '/' + file), kOld);
    }
}

void FailuresTest::folderThatCannotBeMade_data() {
    QTest::addColumn<QString>("obstacle");
    QTest::newRow("the instance's") << "/fabric";
    QTest::newRow("the one in it") << "/fabric/temp";
    QTest::newRow("the last one") << "/fabric/temp/CUSTOMIZED";
}

void FailuresTest::folderThatCannotBeMade() {
    QFETCH(QString, obstacle);
    writeFile(m_work + obstacle, "a file where a folder should be");
    checkFailure(m_work + obstacle, {});
    QCOMPARE(fileBytes(m_work + obstacle), QByteArray("a file where a folder should be"));
}

void FailuresTest::fileThatCannotBeReplaced_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("replaced");
    QTest::newRow("define.vh") << "define.vh" << QStringList();
    QTest::newRow("param.v") << "param.v" << QStringList{"define.vh"};
    QTest::newRow("customized.ini") << "customized.ini" << QStringList{"define.vh", "param.v"};
}

void FailuresTest::fileThatCannotBeReplaced() {
    QFETCH(QString, file);
    QFETCH(QStringList, replaced);
    writeOldFiles();
    QVERIFY(QFile::remove(output() + '/' + file));
    QVERIFY(QDir().mkpath(output() + '/' + file + "/in the way"));
    checkFailure(output() + '/' + file, replaced);
}

void FailuresTest::readOnlyDisk() {
    SmallDisk disk(m_work, 256);
    if (!disk.isMounted()) {
        QSKIP("may not mount a disk here; readOnlyFolder covers an ordinary user");
    }
    writeOldFiles();
    QVERIFY(disk.makeReadOnly());
    checkFailure(output() + "/define.vh", {});
}

void FailuresTest::readOnlyFolder() {
    if (::geteuid() == 0) {
        QSKIP("root writes whatever a folder's permissions are; readOnlyDisk covers root");
    }
    writeOldFiles();
    const auto writable = QFile::permissions(output());
    QVERIFY(QFile::setPermissions(output(), QFile::ReadOwner | QFile::ExeOwner));
    checkFailure(output() + "/define.vh", {});
    QVERIFY(QFile::setPermissions(output(), writable));
}

void FailuresTest::fullDisk() {
    SmallDisk disk(m_work, 256);
    if (!disk.isMounted()) {
        QSKIP("may not mount a disk here; fileSizeLimit covers a write that fails");
    }
    writeOldFiles();
    disk.fill();
    checkFailure(output() + "/define.vh", {});
}

void FailuresTest::diskThatFillsUp() {
    SmallDisk disk(m_work, 256);
    if (!disk.isMounted()) {
        QSKIP("may not mount a disk here; fileSizeLimit covers a write that fails");
    }
    writeOldFiles();
    writeFile(m_work + "/room", QByteArray(4096, 'r')); // define.vh takes less, param.v more
    disk.fill();
    QVERIFY(QFile::remove(m_work + "/room"));
    checkFailure(output() + "/param.v", {"define.vh"});
}

void FailuresTest::fileSizeLimit() {
    writeOldFiles();
    const FileSizeLimit limit(5000); // likewise
    checkFailure(output() + "/param.v", {"define.vh"});
}

void FailuresTest::aLaterRunSucceeds() {
    writeOldFiles();
    {
        const FileSizeLimit limit(5000);
        QVERIFY(!m_host.generate(goldenConfig(kCase)).ok);
    }
    m_host.openProject(m_work, {{"Q0_BIAS", 7}, {"Q1_BIAS", 12}});
    QVERIFY(m_host.generate(goldenConfig(kCase), {"common_setting keep"}).ok);
    for (const QString& file : kFiles) {
        QVERIFY2(fileBytes(output() + '/' + file) ==
                     fileBytes(goldenCase(kCase).expectedPath(file)),
                 qPrintable(file));
    }
}

void FailuresTest::nameThatLeavesTheFolder_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("empty") << "";
    QTest::newRow("the folder above") << "..";
    QTest::newRow("the folder itself") << ".";
    QTest::newRow("beside") << "../beside";
    QTest::newRow("up and down") << "a/../../beside";
    QTest::newRow("absolute") << "/beside";
}

void FailuresTest::nameThatLeavesTheFolder() {
    QFETCH(QString, file);
    const QStringList before = treeOf(m_scratch->path());
    auto config = goldenConfig(kCase);
    config.insert("file", file);
    QVERIFY(!m_host.generate(config).ok);
    QCOMPARE(m_host.takeErrors().size(), 1);
    QCOMPARE(treeOf(m_scratch->path()), before);
}

void FailuresTest::names() {
    QTest::addColumn<QString>("file");
    QTest::newRow("empty") << "";
    QTest::newRow("the folder above") << "..";
    QTest::newRow("the folder itself") << ".";
    QTest::newRow("beside") << "../beside";
    QTest::newRow("a separator") << "a/b";
    QTest::newRow("a last separator") << "a/";
    QTest::newRow("up and down") << "a/../b";
    QTest::newRow("absolute") << "/tmp/ipgen-absolute";
}

void FailuresTest::nameThroughEmit() {
    QFETCH(QString, file);
    QJsonObject item = QJsonDocument::fromJson(goldenCase("60k_one_lane").input).object();
    QJsonObject config = item.value("config").toObject();
    config.insert("file", file);
    item.insert("config", config);
    const QString batch = m_scratch->filePath("batch.jsonl");
    const QString report = m_scratch->filePath("report.jsonl");
    writeFile(batch, QJsonDocument(item).toJson(QJsonDocument::Compact) + '\n');
    QCOMPARE(QProcess::execute(BUILD_DIR "/bin/ipgen",
                               {"emit", "--batch", batch, "--out", m_work, "--report", report}),
             1);
    const QJsonObject line = QJsonDocument::fromJson(fileBytes(report)).object();
    QCOMPARE(line.value("name").toString(), QString("60k_one_lane"));
    QCOMPARE(line.value("ok").toBool(true), false);
    QVERIFY2(line.value("error").toString().contains("file name"),
             qPrintable(line.value("error").toString()));
    QVERIFY(treeOf(m_scratch->path()).filter("CUSTOMIZED").isEmpty());
    QVERIFY(treeOf(m_scratch->path()).filter("temp").isEmpty());
    QVERIFY(!QFileInfo::exists("/tmp/ipgen-absolute"));
}

void FailuresTest::nameThroughGenerate() {
    QFETCH(QString, file);
    QJsonObject config = QJsonDocument::fromJson(goldenCase("60k_one_lane").input)
                             .object()
                             .value("config")
                             .toObject();
    config.insert("file", file);
    const QJsonObject project{
        {"format", 1},
        {"device", "RZ7X-60B"},
        {"instances", QJsonObject{{"one", QJsonObject{{"ip", "customized"}, {"config", config}}}}}};
    writeFile(m_work + "/project.json", QJsonDocument(project).toJson());
    const QStringList before = treeOf(m_scratch->path());
    QProcess program;
    program.start(BUILD_DIR "/bin/ipgen", {"generate", m_work});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 1);
    const QByteArray said = program.readAllStandardError();
    QVERIFY2(said.startsWith("ipgen: ") && said.contains("one") && said.contains("file name"),
             said.constData());
    QCOMPARE(said.count('\n'), 1);
    QCOMPARE(treeOf(m_scratch->path()), before);
    QVERIFY(!QFileInfo::exists("/tmp/ipgen-absolute"));
}

QTEST_MAIN(FailuresTest)
#include "failures_test.moc"
