// The plug-in's binary face: entry points, metadata, the package object, the virtual slots.
#include "elfsection.h"
#include "goldencases.h"
#include "harness.h"

#include <serdesip/message.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>
#include <QMetaObject>
#include <QPointer>
#include <QProcess>
#include <QSet>
#include <QTest>

#include <cstring>
#include <dlfcn.h>

using IPSERDESIP::BaseProtocol;
using IPSERDESIP::ConfigMap;
using IPSERDESIP::ProtocolPackage;

namespace {

using InstanceFunction = QObject* (*)();
using MetaDataFunction = const char* (*)();

/// metaObject, qt_metacast, qt_metacall, the two destructors, event, eventFilter, timerEvent,
/// childEvent, customEvent, connectNotify, disconnectNotify.
constexpr int kSlotsOfQObject = 12;

/// The place in the virtual table that a member function is called through. In this ABI a pointer
/// to a virtual member holds one more than the byte offset.
template <typename Function>
int slotOf(Function function) {
    std::ptrdiff_t words[2];
    static_assert(sizeof(function) == sizeof(words), "not the Itanium C++ ABI");
    std::memcpy(words, &function, sizeof(words));
    if (words[0] % 2 == 0 || words[1] != 0) {
        return -1; // not virtual, or of another base
    }
    return int((words[0] - 1) / std::ptrdiff_t(sizeof(void*)));
}

/// What an object's own virtual table holds at a place.
void* entryAt(const void* object, int slot) {
    void** table = nullptr;
    std::memcpy(&table, object, sizeof(table));
    return table[slot];
}

/// Calls through a place of the object's own virtual table, as a host does that was built against
/// the slot order alone.
template <typename Result, typename... Arguments>
Result callSlot(void* object, int slot, Arguments... arguments) {
    auto function = reinterpret_cast<Result (*)(void*, Arguments...)>(entryAt(object, slot));
    return function(object, arguments...);
}

QString libraryOf(void* address) {
    Dl_info info{};
    return ::dladdr(address, &info) != 0
               ? QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath()
               : QString();
}

QJsonObject installedDescription() {
    return QJsonDocument::fromJson(fileBytes(pluginFolder() + "/customized.ipspec"))
        .object()
        .value("ipcore")
        .toObject();
}

} // namespace

class PluginEntryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void exportsTwoFunctions();
    void metaDataByteForByte();
    void metaDataOfTheFile();
    void oneInstanceThatComesBack();
    void metaCast_data();
    void metaCast();
    void packageMetaObject();
    void modelHasTheBaseMetaObject();
    void slotOrderOfTheBases();
    void packageSlot();
    void modelSlots();
    void modelSlotsAnswer();
    void identityComesFromTheDescription();
    void supportedDevices_data();
    void supportedDevices();
    void descriptionThatIsRefused_data();
    void descriptionThatIsRefused();
    void descriptionThatIsTaken();
    void unsupportedListIsAskedSecond();
    void missingAttributesAreEmpty();
    void eachCallMakesANewModel();

private:
    /// A package folder with this description in it; a null text leaves it out.
    QString packageWith(const QByteArray& description);
    QList<BaseProtocol*> protocolsIn(const QString& folder);

    Harness m_host;
    QLibrary m_library;
    QTemporaryDir m_scratch;
    int m_folders = 0;
};

void PluginEntryTest::initTestCase() {
    QVERIFY2(m_host.error().isEmpty(), qPrintable(m_host.error()));
    m_library.setFileName(pluginPath());
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
}

QString PluginEntryTest::packageWith(const QByteArray& description) {
    QString folder = m_scratch.filePath(QString::number(++m_folders));
    QDir().mkpath(folder);
    if (!description.isNull()) {
        QFile file(folder + "/customized.ipspec");
        if (!file.open(QIODevice::WriteOnly) || file.write(description) != description.size()) {
            qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
        }
    }
    return folder;
}

QList<BaseProtocol*> PluginEntryTest::protocolsIn(const QString& folder) {
    const QString former = m_host.package()->packageDir();
    m_host.package()->setPackageDir(folder);
    const QList<BaseProtocol*> models = m_host.package()->protocols();
    m_host.package()->setPackageDir(former);
    return models;
}

void PluginEntryTest::exportsTwoFunctions() {
    QProcess nm;
    nm.start("nm", {"-D", "--defined-only", pluginPath()});
    QVERIFY2(nm.waitForFinished() && nm.exitCode() == 0, "nm (of binutils) does not run");
    QStringList symbols;
    for (const QByteArray& line : nm.readAllStandardOutput().split('\n')) {
        if (!line.isEmpty()) {
            symbols.append(QString::fromLatin1(line.split(' ').last().split('@').first()));
        }
    }
    symbols.sort();
    QCOMPARE(symbols, (QStringList{"qt_plugin_instance", "qt_plugin_query_metadata"}));
}

void PluginEntryTest::metaDataByteForByte() {
    QByteArray expected("QTMETADATA !");
    expected += char(0);  // version of the form
    expected += char(5);  // Qt
    expected += char(15); // Qt
#ifdef QT_NO_DEBUG
    expected += char(0); // no requirement
#else
    expected += char(1); // built with debug checks; the only difference of such a build
#endif
    expected += char(0xbf);        // a map without a length
    expected += char(2);           // the identifier
    expected += QByteArray("\x78"  // a text, its length in the next byte
                           "\x22") // 34
                + "IPCUSTOMIZED.customizedpackage/1.0";
    expected += char(3);                                  // the class name
    expected += QByteArray("\x71") + "customizedpackage"; // a text of 17
    expected += char(0xff);                               // the end of the map

    QCOMPARE(elfSection(pluginPath(), ".qtmetadata").toHex(' '), expected.toHex(' '));

    const auto query =
        reinterpret_cast<MetaDataFunction>(m_library.resolve("qt_plugin_query_metadata"));
    QVERIFY(query);
    QCOMPARE(QByteArray(query(), expected.size()).toHex(' '), expected.toHex(' '));
}

void PluginEntryTest::metaDataOfTheFile() {
    const QJsonObject metaData = QPluginLoader(pluginPath()).metaData();
    QCOMPARE(metaData.value("IID").toString(), QString("IPCUSTOMIZED.customizedpackage/1.0"));
    QCOMPARE(metaData.value("className").toString(), QString("customizedpackage"));
    QVERIFY(metaData.value("MetaData").toObject().isEmpty());
}

void PluginEntryTest::oneInstanceThatComesBack() {
    const auto instance =
        reinterpret_cast<InstanceFunction>(m_library.resolve("qt_plugin_instance"));
    QVERIFY(instance);
    const QPointer<QObject> first = instance();
    QVERIFY(first);
    QCOMPARE(instance(), first.data());
    QCOMPARE(static_cast<QObject*>(m_host.package()), first.data());

    delete first.data();
    QVERIFY(first.isNull());
    QObject* second = instance();
    QVERIFY(second);
    QCOMPARE(instance(), second);
    QCOMPARE(QString::fromLatin1(second->metaObject()->className()),
             QString("IPCUSTOMIZED::customizedpackage"));
    m_host.reloadPackage();
    QCOMPARE(static_cast<QObject*>(m_host.package()), second);
}

void PluginEntryTest::metaCast_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("answered");
    QTest::newRow("null") << QByteArray() << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("its class") << QByteArray("IPCUSTOMIZED::customizedpackage") << true;
    QTest::newRow("its class without namespace") << QByteArray("customizedpackage") << false;
    QTest::newRow("package interface")
        << QByteArray("com.kelvarix.plugins.ProtocolPackage/1.0") << true;
    QTest::newRow("another version of it")
        << QByteArray("com.kelvarix.plugins.ProtocolPackage/2.0") << false;
    QTest::newRow("plug-in identifier")
        << QByteArray("IPCUSTOMIZED.customizedpackage/1.0") << false;
    QTest::newRow("base class") << QByteArray("IPSERDESIP::ProtocolPackage") << true;
    QTest::newRow("QObject") << QByteArray("QObject") << true;
    QTest::newRow("another class") << QByteArray("QWidget") << false;
}

void PluginEntryTest::metaCast() {
    QFETCH(QByteArray, name);
    QFETCH(bool, answered);
    void* const expected = answered ? static_cast<void*>(m_host.package()) : nullptr;
    QCOMPARE(m_host.package()->qt_metacast(name.isNull() ? nullptr : name.constData()), expected);
}

void PluginEntryTest::packageMetaObject() {
    const QMetaObject* meta = m_host.package()->metaObject();
    QCOMPARE(meta->className(), "IPCUSTOMIZED::customizedpackage");
    QVERIFY(meta->superClass() == &ProtocolPackage::staticMetaObject);
    QCOMPARE(meta->methodCount(), ProtocolPackage::staticMetaObject.methodCount());
    QCOMPARE(meta->propertyCount(), ProtocolPackage::staticMetaObject.propertyCount());
}

void PluginEntryTest::modelHasTheBaseMetaObject() {
    const auto model = m_host.model();
    QVERIFY(model->metaObject() == &BaseProtocol::staticMetaObject);
    QVERIFY(model->qt_metacast("IPCUSTOMIZED::customized") == nullptr);
    QVERIFY(model->qt_metacast("IPSERDESIP::BaseProtocol") == model.get());
}

void PluginEntryTest::slotOrderOfTheBases() {
    QCOMPARE(slotOf(&ProtocolPackage::metaObject), 0);
    QCOMPARE(slotOf(&ProtocolPackage::qt_metacast), 1);
    QCOMPARE(slotOf(&ProtocolPackage::qt_metacall), 2);
    QCOMPARE(slotOf(&ProtocolPackage::protocols), kSlotsOfQObject);

    const QList<int> own{
        slotOf(&BaseProtocol::create),
        slotOf(&BaseProtocol::open),
        slotOf(&BaseProtocol::resourceMessage),
        slotOf(&BaseProtocol::generate),
        slotOf(&BaseProtocol::loadSpec),
        slotOf(&BaseProtocol::version),
        slotOf(&BaseProtocol::id),
        slotOf(&BaseProtocol::name),
        slotOf(&BaseProtocol::category),
        slotOf(&BaseProtocol::summary),
        slotOf(&BaseProtocol::isSupported),
    };
    QCOMPARE(own, (QList<int>{12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22}));
}

void PluginEntryTest::packageSlot() {
    QCOMPARE(libraryOf(entryAt(m_host.package(), kSlotsOfQObject)),
             QFileInfo(pluginPath()).canonicalFilePath());
    const auto models =
        callSlot<QList<BaseProtocol*>>(static_cast<void*>(m_host.package()), kSlotsOfQObject);
    QCOMPARE(models.size(), 1);
    QCOMPARE(models.first()->id(), m_host.model()->id());
    qDeleteAll(models);
}

void PluginEntryTest::modelSlots() {
    const auto model = m_host.model();
    const QString plugin = QFileInfo(pluginPath()).canonicalFilePath();
    QSet<void*> entries;
    for (int slot = kSlotsOfQObject; slot < kSlotsOfQObject + 11; ++slot) {
        void* entry = entryAt(model.get(), slot);
        QCOMPARE(libraryOf(entry), plugin);
        entries.insert(entry);
    }
    QCOMPARE(entries.size(), 11);
    // What QObject declares is QObject's own, the meta-object operations the host base's.
    for (int slot = 5; slot < kSlotsOfQObject; ++slot) {
        QVERIFY2(libraryOf(entryAt(model.get(), slot)).contains("libQt5Core"),
                 qPrintable(QString::number(slot)));
    }
    for (int slot = 0; slot < 3; ++slot) {
        QVERIFY2(libraryOf(entryAt(model.get(), slot)).contains("serdesip"),
                 qPrintable(QString::number(slot)));
    }
}

void PluginEntryTest::modelSlotsAnswer() {
    const auto model = m_host.model();
    void* object = model.get();
    const QJsonObject ipcore = installedDescription();

    const ConfigMap empty;
    QStringList script;
    QStringList options;
    QString text;
    const QString reserved;
    using Lists = QStringList&;
    QVERIFY(!(callSlot<bool, const ConfigMap&, Lists, const QString&, Lists, QString&, bool>(
        object, 15, empty, script, reserved, options, text, false)));
    QVERIFY(callSlot<bool>(object, 16));
    QCOMPARE(callSlot<QString>(object, 17), ipcore.value("version").toString());
    QCOMPARE(callSlot<QString>(object, 18), ipcore.value("id").toString());
    QCOMPARE(callSlot<QString>(object, 19), ipcore.value("name").toString());
    QCOMPARE(callSlot<QStringList>(object, 20),
             ipcore.value("category").toVariant().toStringList());
    QCOMPARE(callSlot<QString>(object, 21),
             ipcore.value("doc").toObject().value("summary").toString());
    const DEV::DeviceArg device(deviceId("RZ7X-60B"), "RZ7X-60B");
    QVERIFY((callSlot<bool, const DEV::DeviceArg&>(object, 22, device)));

    const std::unique_ptr<IPSERDESIP::Message> message(
        callSlot<IPSERDESIP::Message*, const ConfigMap&>(object, 14, goldenConfig("60k_one_lane")));
    QVERIFY(message);
    QCOMPARE(message->protocol, model->name());
    QCOMPARE(message->instance, QString("link0:Link0"));
}

void PluginEntryTest::identityComesFromTheDescription() {
    const auto model = m_host.model();
    const QJsonObject ipcore = installedDescription();
    QCOMPARE(model->id(), ipcore.value("id").toString());
    QCOMPARE(model->name(), ipcore.value("name").toString());
    QCOMPARE(model->version(), ipcore.value("version").toString());
    QCOMPARE(model->category(), ipcore.value("category").toVariant().toStringList());
    QCOMPARE(model->summary(), ipcore.value("doc").toObject().value("summary").toString());
    for (const QString& text : {model->id(), model->name(), model->version(), model->summary()}) {
        QVERIFY(!text.isEmpty());
    }
    QVERIFY(!model->category().isEmpty());
    for (const char* key : {"label", "module", "target"}) {
        QVERIFY2(!ipcore.value(key).toString().isEmpty(), key);
    }
    QVERIFY(!ipcore.value("doc").toObject().value("help").toString().isEmpty());
    QVERIFY(ipcore.value("device").toObject().value("supported").isArray());
    QVERIFY(ipcore.value("device").toObject().value("unsupported").isArray());
}

void PluginEntryTest::supportedDevices_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("supported");
    for (const QString& device : deviceModels()) {
        QTest::newRow(qPrintable(device)) << device << true;
    }
    QTest::newRow("another") << "RZ7X-999" << false;
    QTest::newRow("of another case") << "rz7x-60b" << false;
    QTest::newRow("none") << "" << false;
}

void PluginEntryTest::supportedDevices() {
    QFETCH(QString, device);
    QFETCH(bool, supported);
    const DEV::DeviceArg argument =
        device.isEmpty() ? DEV::DeviceArg() : DEV::DeviceArg(deviceId(device), device);
    QCOMPARE(m_host.model()->isSupported(argument), supported);
}

void PluginEntryTest::descriptionThatIsRefused_data() {
    QTest::addColumn<QByteArray>("description");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no JSON") << QByteArray("ipcore.id=customized\n");
    QTest::newRow("cut off") << QByteArray(R"({"ipcore": {"id": "a", "name": "b", "version": "c")");
    QTest::newRow("a list") << QByteArray(R"(["ipcore"])");
    QTest::newRow("an empty object") << QByteArray("{}");
    QTest::newRow("no id") << QByteArray(R"({"ipcore": {"name": "b", "version": "c"}})");
    QTest::newRow("no name") << QByteArray(R"({"ipcore": {"id": "a", "version": "c"}})");
    QTest::newRow("no version") << QByteArray(R"({"ipcore": {"id": "a", "name": "b"}})");
    QTest::newRow("empty id") << QByteArray(
        R"({"ipcore": {"id": "", "name": "b", "version": "c"}})");
    QTest::newRow("outside its object")
        << QByteArray(R"({"id": "a", "name": "b", "version": "c"})");
    QTest::newRow("a key twice") << QByteArray(
        R"({"ipcore": {"id": "a", "id": "z", "name": "b", "version": "c"}})");
    QTest::newRow("not UTF-8") << QByteArray(
        "{\"ipcore\": {\"id\": \"\xff\", \"name\": \"b\", \"version\": \"c\"}}");
}

void PluginEntryTest::descriptionThatIsRefused() {
    QFETCH(QByteArray, description);
    m_host.takeErrors();
    const QList<BaseProtocol*> models = protocolsIn(packageWith(description));
    QVERIFY(models.isEmpty());
    QVERIFY(!m_host.takeErrors().isEmpty()); // the host says why
}

void PluginEntryTest::descriptionThatIsTaken() {
    const QList<BaseProtocol*> models = protocolsIn(packageWith(
        R"({"ipcore": {"id": "one", "name": "two", "version": "three", "category": ["four", "4"],
            "doc": {"summary": "five"}, "device": {"supported": ["*"], "unsupported": ["X"]}}})"));
    QCOMPARE(models.size(), 1);
    const std::unique_ptr<BaseProtocol> model(models.first());
    QCOMPARE(model->id(), QString("one"));
    QCOMPARE(model->name(), QString("two"));
    QCOMPARE(model->version(), QString("three"));
    QCOMPARE(model->category(), (QStringList{"four", "4"}));
    QCOMPARE(model->summary(), QString("five"));
    QVERIFY(model->device().isNull());
}

void PluginEntryTest::unsupportedListIsAskedSecond() {
    const QList<BaseProtocol*> models = protocolsIn(packageWith(
        R"({"ipcore": {"id": "a", "name": "b", "version": "c",
            "device": {"supported": ["Yes", "Both"], "unsupported": ["No", "Both"]}}})"));
    QCOMPARE(models.size(), 1);
    const std::unique_ptr<BaseProtocol> model(models.first());
    QVERIFY(model->isSupported(DEV::DeviceArg("1", "Yes")));
    QVERIFY(model->isSupported(DEV::DeviceArg("Yes", "other")));
    QVERIFY(!model->isSupported(DEV::DeviceArg("2", "No")));
    QVERIFY(!model->isSupported(DEV::DeviceArg("3", "Both")));
    QVERIFY(!model->isSupported(DEV::DeviceArg("4", "Neither")));
}

void PluginEntryTest::missingAttributesAreEmpty() {
    const QList<BaseProtocol*> models =
        protocolsIn(packageWith(R"({"ipcore": {"id": "a", "name": "b", "version": "c"}})"));
    QCOMPARE(models.size(), 1);
    const std::unique_ptr<BaseProtocol> model(models.first());
    QCOMPARE(model->category(), QStringList());
    QCOMPARE(model->summary(), QString());
    QVERIFY(!model->isSupported(DEV::DeviceArg("1", "RZ7X-60B")));
}

void PluginEntryTest::eachCallMakesANewModel() {
    const auto first = m_host.model();
    const auto second = m_host.model();
    QVERIFY(first.get() != second.get());
    first->setDevice(DEV::DeviceArg("1", "RZ7X-60B"));
    QVERIFY(second->device().isNull());
}

QTEST_MAIN(PluginEntryTest)
#include "plugin_entry_test.moc"
