// Preset files: read strictly, with the place of a fault; kept per IP; damage in one leaves the
// others.

#include <serdesip/preset.h>

#include <core/idecore.h>
#include <dev/devicedb.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using IPSERDESIP::Preset;
using IPSERDESIP::PresetStore;

namespace {

const QByteArray good = "{\n"
                        "  \"format\": 1,\n"
                        "  \"name\": \"A 8B/10B\",\n"
                        "  \"summary\": \"One.\",\n"
                        "  \"devices\": [\"60k\"],\n"
                        "  \"steps\": [\n"
                        "    {\"set\": \"tab1/rate\", \"to\": \"2.5\"},\n"
                        "    {\"set\": \"tab1/on\", \"to\": true},\n"
                        "    {\"set\": \"tab2/level\", \"to\": 3}\n"
                        "  ]\n"
                        "}\n";

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Preset preset(const char* name, const char* rate = "1") {
    Preset one;
    one.name = QString::fromUtf8(name);
    one.summary = QStringLiteral("Of a test.");
    one.devices = QStringList{QStringLiteral("*")};
    one.steps = {{QStringLiteral("tab1/rate"), QString::fromUtf8(rate)}};
    return one;
}

QStringList namesOf(const PresetStore& store) {
    QStringList names;
    for (const Preset& one : store.presets()) {
        names.append(one.own ? one.name : QLatin1Char('[') + one.name + QLatin1Char(']'));
    }
    return names;
}

} // namespace

class PresetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void readsAndWritesTheSame();
    void faults_data();
    void faults();
    void suits_data();
    void suits();
    void names_data();
    void names();
    void savedRenamedRemoved();
    void replacing();
    void theIpsStay();
    void othersServeBesideDamage();
    void damageIsNotOverwritten();
    void aNameTwice();
    void noPlaceToSave();

private:
    QString ipFolder() const { return m_dir->filePath(QStringLiteral("ip")); }
    QString ownFolder() const { return m_dir->filePath(QStringLiteral("own/deep")); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void PresetTest::initTestCase() {
    QString error;
    Core::IdeCore::setDeviceDataBase(
        DEV::DeviceDb::load(QStringLiteral(SOURCE_DIR "/host/data/devices.json"), &error));
    QCOMPARE(error, QString());
}

void PresetTest::init() {
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkpath(ipFolder()));
    write(ipFolder() + QStringLiteral("/a.json"), good);
}

void PresetTest::readsAndWritesTheSame() {
    const QString file = ipFolder() + QStringLiteral("/a.json");
    Preset one;
    QCOMPARE(IPSERDESIP::readPreset(file, &one), QString());
    QCOMPARE(one.name, QStringLiteral("A 8B/10B"));
    QCOMPARE(one.summary, QStringLiteral("One."));
    QCOMPARE(one.devices, QStringList{"60k"});
    QCOMPARE(one.steps.size(), 3);
    QCOMPARE(one.steps.at(0).object, QStringLiteral("tab1/rate"));
    QCOMPARE(one.steps.at(0).to, QVariant(QStringLiteral("2.5")));
    QCOMPARE(one.steps.at(1).to, QVariant(true));
    QCOMPARE(one.steps.at(2).to, QVariant(3));
    QCOMPARE(one.file, file);
    QCOMPARE(IPSERDESIP::writePreset(one), good);
}

void PresetTest::faults_data() {
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char* name, const char* from, const char* to, const char* fault) {
        QTest::newRow(name) << QByteArray(from) << QByteArray(to) << QString::fromUtf8(fault);
    };
    row("another format", "\"format\": 1", "\"format\": 2",
        "line 2, column 3: the format is not 1");
    row("format is text", "\"format\": 1", "\"format\": \"1\"",
        "line 2, column 3: the format is not 1");
    row("no name", "\"A 8B/10B\"", "\"\"", "line 3, column 3: A preset needs a name.");
    row("name is a number", "\"A 8B/10B\"", "7", "line 3, column 3: the name is no text");
    row("summary is a list", "\"One.\"", "[]", "line 4, column 3: the summary is no text");
    row("no devices", "[\"60k\"]", "[]",
        "line 5, column 3: the devices are no list of ids, models or classes, or \"*\"");
    row("devices are numbers", "[\"60k\"]", "[60]",
        "line 5, column 3: the devices are no list of ids, models or classes, or \"*\"");
    row("unknown key", "\"summary\"", "\"sumary\"", "line 4, column 3: unknown key \"sumary\"");
    row("missing key", "  \"summary\": \"One.\",\n", "",
        "line 1, column 1: the key \"summary\" is missing");
    row("key twice", "\"summary\": \"One.\"", "\"name\": \"B\"",
        "line 4, column 3: the key \"name\" is given twice");
    row("steps are an object",
        "[\n    {\"set\": \"tab1/rate\", \"to\": \"2.5\"},\n"
        "    {\"set\": \"tab1/on\", \"to\": true},\n"
        "    {\"set\": \"tab2/level\", \"to\": 3}\n  ]",
        "{}", "line 6, column 3: the steps are no list of settings");
    row("another step", "{\"set\": \"tab1/on\", \"to\": true}", "{\"press\": \"tab1/on\"}",
        "line 8, column 6: unknown key \"press\"");
    row("step is a text", "{\"set\": \"tab1/on\", \"to\": true}", "\"set\"",
        "line 8, column 5: a step is an object such as {\"set\": \"tab1/Rate\", \"to\": \"2.5\"}");
    row("nothing to set it to", ", \"to\": 3", "", "line 9, column 5: the key \"to\" is missing");
    row("no field", "\"tab1/on\"", "\"on\"",
        "line 8, column 6: no field: tabN/NAME or frame/NAME is one");
    row("value is null", "\"to\": true", "\"to\": null",
        "line 8, column 24: the value is no text, number, true or false");
    row("comma missing", "true},", "true}",
        "line 9, column 5: syntax error while parsing array - unexpected '{'; expected ']'");
}

void PresetTest::faults() {
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, fault);
    QVERIFY(good.contains(from));
    const QString file = m_dir->filePath(QStringLiteral("bad.json"));
    write(file, QByteArray(good).replace(from, to));
    Preset one = preset("untouched");
    bool unreadable = true;
    QCOMPARE(IPSERDESIP::readPreset(file, &one, &unreadable), fault);
    QVERIFY(!unreadable);
    QCOMPARE(one.name, QStringLiteral("untouched"));
}

void PresetTest::suits_data() {
    QTest::addColumn<QStringList>("devices");
    QTest::addColumn<bool>("suits");
    QTest::newRow("class") << QStringList{"138k", "60k"} << true;
    QTest::newRow("id") << QStringList{"RZ7X-60ES"} << true;
    QTest::newRow("every") << QStringList{"*"} << true;
    QTest::newRow("another class") << QStringList{"15k"} << false;
    QTest::newRow("another id") << QStringList{"RZ7X-60B"} << false;
    QTest::newRow("part of a name") << QStringList{"RZ7X-60"} << false;
}

void PresetTest::suits() {
    QFETCH(QStringList, devices);
    QFETCH(bool, suits);
    Preset one;
    one.devices = devices;
    const auto device = Core::IdeCore::deviceDataBase().findDevice(QStringLiteral("RZ7X-60ES"));
    QCOMPARE(one.suits(device), suits);
}

void PresetTest::names_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("good");
    QTest::newRow("plain") << "Backplane, 4 lanes" << true;
    QTest::newRow("slashes") << "../8B/10B" << true;
    QTest::newRow("letters beyond ASCII") << QString::fromUtf8("K\xc3\xb6ln") << true;
    QTest::newRow("sixty") << QString(60, QLatin1Char('x')) << true;
    QTest::newRow("sixty-one") << QString(61, QLatin1Char('x')) << false;
    QTest::newRow("long when it is a file") << QString(40, QChar(0x20ac)) << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("blank") << "  " << false;
    QTest::newRow("blank in front") << " a" << false;
    QTest::newRow("line feed") << "a\nb" << false;
    QTest::newRow("a file's") << "a.json" << false;
}

/// Whatever a good name holds, its file lies in the user's folder.
void PresetTest::names() {
    QFETCH(QString, name);
    QFETCH(bool, good);
    QCOMPARE(IPSERDESIP::presetNameFault(name).isEmpty(), good);
    PresetStore store(ipFolder(), ownFolder());
    Preset one = preset("x");
    one.name = name;
    QCOMPARE(store.save(one).isEmpty(), good);
    QCOMPARE(QDir(ownFolder()).entryList(QDir::Files).size(), good ? 1 : 0);
    QCOMPARE(store.find(name) != nullptr, good);
}

void PresetTest::savedRenamedRemoved() {
    PresetStore store(ipFolder(), ownFolder());
    QCOMPARE(store.save(preset("Mine")), QString());
    QCOMPARE(namesOf(store), QStringList({"Mine", "[A 8B/10B]"}));
    QCOMPARE(store.rename(QStringLiteral("Mine"), QStringLiteral("Ours")), QString());
    QCOMPARE(namesOf(PresetStore(ipFolder(), ownFolder())), QStringList({"Ours", "[A 8B/10B]"}));
    QCOMPARE(store.rename(QStringLiteral("Ours"), QStringLiteral("OURS")), QString());
    QCOMPARE(namesOf(store), QStringList({"OURS", "[A 8B/10B]"}));
    QCOMPARE(QDir(ownFolder()).entryList(QDir::Files).size(), 1);
    QVERIFY(!store.rename(QStringLiteral("OURS"), QString()).isEmpty());
    QVERIFY(!store.rename(QStringLiteral("Nobody's"), QStringLiteral("x")).isEmpty());
    QCOMPARE(store.remove(QStringLiteral("OURS")), QString());
    QCOMPARE(namesOf(store), QStringList({"[A 8B/10B]"}));
    QVERIFY(!store.remove(QStringLiteral("OURS")).isEmpty());
    QVERIFY(QDir(ownFolder()).isEmpty());
}

void PresetTest::replacing() {
    PresetStore store(ipFolder(), ownFolder());
    QCOMPARE(store.save(preset("Mine", "1")), QString());
    QCOMPARE(store.save(preset("mine", "2")), QString());
    QCOMPARE(namesOf(store), QStringList({"mine", "[A 8B/10B]"}));
    QCOMPARE(store.find(QStringLiteral("MINE"))->steps.first().to, QVariant("2"));
    QCOMPARE(store.save(preset("Other", "3")), QString());
    QCOMPARE(store.rename(QStringLiteral("Other"), QStringLiteral("mine")), QString());
    QCOMPARE(namesOf(store), QStringList({"mine", "[A 8B/10B]"}));
    QCOMPARE(store.find(QStringLiteral("mine"))->steps.first().to, QVariant("3"));
}

void PresetTest::theIpsStay() {
    PresetStore store(ipFolder(), ownFolder());
    QVERIFY(store.save(preset("a 8b/10b")).contains(QStringLiteral("came with the IP")));
    QCOMPARE(store.save(preset("Mine")), QString());
    QVERIFY(!store.rename(QStringLiteral("Mine"), QStringLiteral("A 8B/10B")).isEmpty());
    QVERIFY(!store.rename(QStringLiteral("A 8B/10B"), QStringLiteral("B")).isEmpty());
    QVERIFY(!store.remove(QStringLiteral("A 8B/10B")).isEmpty());
    QCOMPARE(namesOf(store), QStringList({"Mine", "[A 8B/10B]"}));
    QCOMPARE(read(ipFolder() + QStringLiteral("/a.json")), good);
}

void PresetTest::othersServeBesideDamage() {
    const QString cut = ipFolder() + QStringLiteral("/b.json");
    write(cut, good.left(20));
    PresetStore store(ipFolder(), ownFolder());
    QCOMPARE(store.save(preset("Mine")), QString());
    QCOMPARE(namesOf(store), QStringList({"Mine", "[A 8B/10B]"}));
    QCOMPARE(store.faults().size(), 1);
    QCOMPARE(store.faults().first().file, cut);
    QVERIFY2(store.faults().first().reason.startsWith(QLatin1String("line 3, column ")),
             qPrintable(store.faults().first().reason));
}

void PresetTest::damageIsNotOverwritten() {
    PresetStore store(ipFolder(), ownFolder());
    QCOMPARE(store.save(preset("Mine")), QString());
    const QString file = store.find(QStringLiteral("Mine"))->file;
    write(file, "{");
    store.load();
    QVERIFY(store.save(preset("Mine")).contains(file));
    QCOMPARE(read(file), QByteArray("{"));
}

void PresetTest::aNameTwice() {
    write(ipFolder() + QStringLiteral("/b.json"), good);
    const PresetStore store(ipFolder(), ownFolder());
    QCOMPARE(namesOf(store), QStringList({"[A 8B/10B]"}));
    QCOMPARE(store.faults().size(), 1);
    QVERIFY(store.faults().first().reason.contains(QStringLiteral("/a.json")));
}

void PresetTest::noPlaceToSave() {
    write(m_dir->filePath(QStringLiteral("own")), "a file");
    PresetStore store(ipFolder(), ownFolder());
    QVERIFY(store.save(preset("Mine")).contains(ownFolder()));
    QVERIFY(!PresetStore(ipFolder(), QString()).canSave());
}

QTEST_MAIN(PresetTest)
#include "preset_test.moc"
