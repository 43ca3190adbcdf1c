// What a generation hands to the netlist generation. The program defines that host function
// itself: the dynamic linker takes the program's definition before the library's.
#include "goldencases.h"
#include "harness.h"

#include <serdesip/netlist.h>

#include <QDir>
#include <QTest>

namespace {

struct Call {
    DEV::DeviceArg device;
    IPSERDESIP::ConfigMap config;
    QMap<QString, QVariant> info;
    QStringList files;
    QString folder;
    QString* text = nullptr;
    QObject* parent = nullptr;
};

QList<Call> calls;
bool answer = true;

} // namespace

namespace IPSERDESIP {

Q_DECL_EXPORT bool waitForRunSyntheSis(const DEV::DeviceArg& device, const ConfigMap& config,
                                       const QMap<QString, QVariant>& info,
                                       const QStringList& files, const QString& folder,
                                       QString& text, QObject* parent) {
    calls.append({device, config, info, files, folder, &text, parent});
    text += QStringLiteral(", seen");
    return answer;
}

} // namespace IPSERDESIP

class NetlistCallTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void everythingIsHandedOn();
    void theResultIsHandedBack();
    void noCallWithoutTheFlag();
    void noCallAfterAFailure();
    void dataFolderIsThePackagesOwn();

private:
    Harness m_host;
};

void NetlistCallTest::initTestCase() {
    QVERIFY2(m_host.error().isEmpty(), qPrintable(m_host.error()));
}

void NetlistCallTest::init() {
    calls.clear();
    answer = true;
    m_host.openProject(m_host.workingDir());
}

void NetlistCallTest::everythingIsHandedOn() {
    auto config = goldenConfig("60k_one_lane");
    config.insert("target_device", deviceId("RZ7X-60ES"));
    const auto model = m_host.model();
    QStringList script;
    QStringList options;
    QString text = "as given";
    QVERIFY(model->generate(config, script, QString(), options, text, true));
    QCOMPARE(calls.size(), 1);
    const Call& call = calls.first();
    QCOMPARE(call.device.id(), deviceId("RZ7X-60ES"));
    QCOMPARE(call.device.device(), QString("RZ7X-60ES"));
    QCOMPARE(call.config, config);
    QCOMPARE(call.files, (QStringList{"customized_phy_wrapper.v", "customized_phy.v"}));
    QCOMPARE(call.folder, QString("CUSTOMIZED"));
    QVERIFY(call.text == &text);
    QCOMPARE(text, QString("as given, seen"));
    QCOMPARE(call.parent, static_cast<QObject*>(model.get()));
    QCOMPARE(call.info.value("ipcore.id").toString(), model->id());
    QCOMPARE(call.info.value("ipcore.name").toString(), model->name());
    QCOMPARE(QDir(call.info.value("ipcore.dir.data").toString()).absolutePath(),
             pluginFolder() + "/data");
}

void NetlistCallTest::theResultIsHandedBack() {
    answer = false;
    QStringList script;
    QStringList options;
    QString text;
    QVERIFY(!m_host.model()->generate(goldenConfig("138k_one_lane"), script, QString(), options,
                                      text, true));
    QCOMPARE(calls.size(), 1);
    QCOMPARE(text, QString(", seen"));
    QCOMPARE(script, goldenLines("138k_one_lane", "customized.ini"));
}

void NetlistCallTest::noCallWithoutTheFlag() {
    answer = false;
    QVERIFY(m_host.generate(goldenConfig("60k_one_lane")).ok);
    QVERIFY(calls.isEmpty());
}

void NetlistCallTest::noCallAfterAFailure() {
    QStringList script;
    QStringList options;
    QString text;
    QVERIFY(!m_host.model()->generate({}, script, QString(), options, text, true));

    QTemporaryDir scratch;
    QFile obstacle(scratch.path() + "/link0");
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    m_host.openProject(scratch.path());
    QVERIFY(!m_host.model()->generate(goldenConfig("60k_one_lane"), script, QString(), options,
                                      text, true));
    QVERIFY(calls.isEmpty());
}

void NetlistCallTest::dataFolderIsThePackagesOwn() {
    QTemporaryDir folder;
    QFile description(folder.path() + "/customized.ipspec");
    QVERIFY(description.open(QIODevice::WriteOnly));
    description.write(
        R"({"ipcore": {"id": "a", "name": "b", "version": "c", "dir": {"data": "/elsewhere"}}})");
    description.close();

    const QString former = m_host.package()->packageDir();
    m_host.package()->setPackageDir(folder.path());
    const auto model = m_host.model();
    m_host.package()->setPackageDir(former);
    QStringList script;
    QStringList options;
    QString text;
    QVERIFY(model->generate(goldenConfig("60k_one_lane"), script, QString(), options, text, true));
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls.first().info.value("ipcore.dir.data"), QVariant(folder.path() + "/data"));
    QCOMPARE(calls.first().info.value("ipcore.id"), QVariant("a"));
}

QTEST_MAIN(NetlistCallTest)
#include "netlist_call_test.moc"
