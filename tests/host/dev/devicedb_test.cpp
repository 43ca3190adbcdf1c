#include <dev/devicedb.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

using DEV::DeviceDb;
using DEV::DeviceInfo;

namespace {

const auto databasePath = QStringLiteral(SOURCE_DIR "/host/data/devices.json");

QByteArray shipped() {
    QFile file(databasePath);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read devices.json");
    }
    return file.readAll();
}

} // namespace

class DeviceDbTest : public QObject {
    Q_OBJECT

private:
    QString loadError(const QByteArray& text) {
        const QString path = m_dir.filePath(QStringLiteral("devices.json"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            return QStringLiteral("the test cannot write its file");
        }
        file.close();
        QString error;
        const DeviceDb db = DeviceDb::load(path, &error);
        if (!error.isEmpty() && !db.devices().isEmpty()) {
            return QStringLiteral("devices in spite of an error");
        }
        return error.mid(error.startsWith(path) ? path.size() + 2 : 0);
    }

    QTemporaryDir m_dir;

private Q_SLOTS:
    void listsTheDevices_data();
    void listsTheDevices();
    void describesTheClasses();
    void everyNameLeadsBack();
    void refusesWrongFiles_data();
    void refusesWrongFiles();
    void namesAMissingFile();
};

void DeviceDbTest::listsTheDevices_data() {
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("className");
    QTest::addColumn<int>("lanes");
    QTest::addColumn<int>("pins");
    QTest::addColumn<int>("multiplexers");
    const auto rows = [](const QStringList& ids, const QString& className, int lanes, int pins,
                         int multiplexers) {
        for (const QString& id : ids) {
            QTest::newRow(id.toLatin1().constData())
                << id << className << lanes << pins << multiplexers;
        }
    };
    rows({QStringLiteral("RZ7X-60B"), QStringLiteral("RZ7X-60ES")}, QStringLiteral("60k"), 4, 6, 4);
    rows({QStringLiteral("RZ7X-15A"), QStringLiteral("RZ7XR-15A"), QStringLiteral("RZ7XR-15B"),
          QStringLiteral("RZ7X-15B"), QStringLiteral("RZ7NX-15A"), QStringLiteral("RZ7NXR-15A")},
         QStringLiteral("15k"), 4, 4, 2);
    rows({QStringLiteral("RZ7X-138"), QStringLiteral("RZ7X-138B")}, QStringLiteral("138k"), 8, 4,
         4);
}

void DeviceDbTest::listsTheDevices() {
    QFETCH(QString, id);
    QString error;
    const DeviceDb db = DeviceDb::load(databasePath, &error);
    QCOMPARE(error, QString());
    QCOMPARE(db.devices().size(), 10);
    const DEV::DeviceArg device = db.findDevice(id);
    QCOMPARE(device.id(), id);
    QCOMPARE(device.device(), id);
    const auto info = db.info(device);
    QVERIFY(info != nullptr);
    QTEST(info->className, "className");
    QTEST(info->laneCaptions().size(), "lanes");
    QTEST(info->pins.size(), "pins");
    QTEST(info->multiplexers.size(), "multiplexers");
}

void DeviceDbTest::describesTheClasses() {
    QString error;
    const DeviceDb db = DeviceDb::load(databasePath, &error);
    const auto info = db.info(db.findDevice(QStringLiteral("RZ7X-138B")));
    QVERIFY(info != nullptr);
    QCOMPARE(
        info->laneCaptions().join(QLatin1Char(',')),
        QStringLiteral("Q0 Lane0,Q0 Lane1,Q0 Lane2,Q0 Lane3,Q1 Lane0,Q1 Lane1,Q1 Lane2,Q1 Lane3"));
    QCOMPARE(info->pllNames().join(QLatin1Char(',')),
             QStringLiteral("Q0_QPLL0,Q0_QPLL1,Q0_LN0_CPLL,Q0_LN1_CPLL,Q0_LN2_CPLL,Q0_LN3_CPLL,"
                            "Q1_QPLL0,Q1_QPLL1,Q1_LN0_CPLL,Q1_LN1_CPLL,Q1_LN2_CPLL,Q1_LN3_CPLL"));
    const auto small = db.info(db.findDevice(QStringLiteral("RZ7X-60B")));
    QCOMPARE(small->multiplexer(QStringLiteral("Q0_MUX1"))->sources.join(QLatin1Char(',')),
             QStringLiteral("Q0_REFCLK0,Q0_REFCLK1,Q0_REFIN0,Q0_REFIN1"));
    QCOMPARE(small->multiplexer(QStringLiteral("Q0_MUX3"))->sources.join(QLatin1Char(',')),
             QStringLiteral("Q0_REFCLK2,Q0_REFCLK3"));
    QVERIFY(small->multiplexer(QStringLiteral("Q1_MUX0")) == nullptr);
    QVERIFY(db.info(DEV::DeviceArg()) == nullptr);
    QVERIFY(db.findDevice(QStringLiteral("nope")).isNull());
}

// Every device, lane, PLL, multiplexer and pin is found again under its name, and every path from
// a pin leads to a loop that exists and can turn: its sets reach the whole range of line rates.
void DeviceDbTest::everyNameLeadsBack() {
    QString error;
    const DeviceDb db = DeviceDb::load(databasePath, &error);
    for (const DEV::DeviceArg& device : db.devices()) {
        const auto info = db.info(device);
        QCOMPARE(db.findDevice(info->id).id(), device.id());
        QCOMPARE(db.findDevice(info->model).id(), device.id());
        QCOMPARE(info->laneCaptions().size(), info->quads * info->lanesPerQuad);
        QCOMPARE(info->laneCaptions().removeDuplicates(), 0);
        QCOMPARE(info->pllNames().removeDuplicates(), 0);
        for (const QString& name : info->multiplexerNames()) {
            QCOMPARE(info->multiplexer(name)->name, name);
        }
        QStringList reached;
        for (const DEV::Multiplexer& mux : info->multiplexers) {
            reached += mux.sources;
            for (const QString& kind : mux.feeds) {
                QCOMPARE(info->loop(kind)->kind, kind);
            }
        }
        for (const DEV::DirectInput& input : info->directInputs) {
            reached.append(input.source);
            for (const QString& kind : input.feeds) {
                QCOMPARE(info->loop(kind)->kind, kind);
            }
        }
        for (const QString& pin : info->pins) {
            QVERIFY2(reached.contains(pin), qPrintable(pin));
        }
        QVector<DEV::ClockLoop> loops = info->plls;
        loops.append(info->cdr);
        for (const DEV::ClockLoop& loop : loops) {
            const DEV::Range& rates =
                loop.kind == QLatin1String("CDR") ? info->rxRateMbps : info->txRateMbps;
            for (qint64 rate = rates.min; rate <= rates.max; rate += 10) {
                const bool turns = std::any_of(loop.d.begin(), loop.d.end(), [&](int d) {
                    return rate * d >= 2 * loop.vcoMHz.min && rate * d <= 2 * loop.vcoMHz.max;
                });
                QVERIFY2(turns, qPrintable(QStringLiteral("%1 %2").arg(loop.kind).arg(rate)));
            }
        }
    }
}

void DeviceDbTest::refusesWrongFiles_data() {
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* from, const char* to, const char* reason) {
        QTest::newRow(name) << QByteArray(from) << QByteArray(to) << QString::fromLatin1(reason);
    };
    // clang-format off
    row("format",          "\"format\": 1", "\"format\": 2",
        "the database: field \"format\" must be a whole number from 1 to 1");
    row("no format",       "\"format\": 1,", "",
        "the database: field \"format\" is missing");
    row("unknown field",   "\"format\": 1,", "\"format\": 1, \"colour\": 3,",
        "the database: field \"colour\" is unknown");
    row("unknown class",   "\"id\": \"RZ7X-60ES\", \"model\": \"RZ7X-60ES\", \"class\": \"60k\"",
                           "\"id\": \"RZ7X-60ES\", \"model\": \"RZ7X-60ES\", \"class\": \"61k\"",
        "device \"RZ7X-60ES\": field \"class\" names \"61k\", which is not in \"classes\"");
    row("no model",        "\"id\": \"RZ7X-15B\", \"model\": \"RZ7X-15B\",", "\"id\": \"RZ7X-15B\",",
        "device \"RZ7X-15B\": field \"model\" is missing");
    row("one id twice",    "\"id\": \"RZ7X-138B\"", "\"id\": \"RZ7X-138\"",
        "device \"RZ7X-138\": field \"id\" is given to two devices");
    row("no id",           "\"id\": \"RZ7X-60B\", ", "",
        "the database: devices entry 1: field \"id\" is missing");
    row("wrong kind",      "\"quads\": 2", "\"quads\": \"2\"",
        "class \"138k\": field \"quads\" must be a whole number from 1 to 2");
    row("too many quads",  "\"quads\": 2", "\"quads\": 3",
        "class \"138k\": field \"quads\" must be a whole number from 1 to 2");
    row("unknown source",  "\"name\": \"Q1_MUX1\", \"quad\": 1, \"sources\": [\"Q0_REFCLK0\"",
                           "\"name\": \"Q1_MUX1\", \"quad\": 1, \"sources\": [\"Q0_REFCLK7\"",
        "class \"138k\": multiplexers entry 4: field \"sources\" names \"Q0_REFCLK7\", which is not in \"pins\"");
    row("wrong mux quad",  "\"name\": \"Q1_MUX1\", \"quad\": 1", "\"name\": \"Q1_MUX1\", \"quad\": 0",
        "class \"138k\": multiplexers entry 4: field \"name\" must begin with \"Q0_MUX\"");
    row("mux twice",       "\"name\": \"Q1_MUX1\"", "\"name\": \"Q1_MUX0\"",
        "class \"138k\": multiplexers entry 4: field \"name\" is given twice: \"Q1_MUX0\"");
    row("unknown loop",    "\"cdr\": \"recovery\"", "\"cdr\": \"nothing\"",
        "class \"138k\": field \"cdr\" names the loop \"nothing\", which is not in \"loops\"");
    row("pin of no quad",  "\"pins\": [\"Q0_REFCLK0\", \"Q0_REFCLK1\", \"Q0_REFIN\"",
                           "\"pins\": [\"Q0_REFCLK0\", \"Q0_REFCLK1\", \"Q1_REFIN3\", \"Q0_REFIN\"",
        "class \"15k\": field \"pins\" holds \"Q1_REFIN3\", which is no pin of this device's quads");
    row("pin to nowhere",  "\"pins\": [\"Q0_REFCLK0\", \"Q0_REFCLK1\", \"Q0_REFIN\"",
                           "\"pins\": [\"Q0_REFCLK0\", \"Q0_REFCLK1\", \"Q0_REFIN2\", \"Q0_REFIN\"",
        "class \"15k\": field \"pins\" holds \"Q0_REFIN2\", which leads nowhere");
    row("max below min",   "\"vcoMHz\": { \"min\": 3125, \"max\": 6250 }", "\"vcoMHz\": { \"min\": 3125, \"max\": 3124 }",
        "loop \"fast\": field \"vcoMHz\" has a \"max\" below its \"min\"");
    row("divider of 0",    "\"d\": [1, 2, 4, 8, 16]", "\"d\": [0, 2, 4, 8, 16]",
        "loop \"wide\": field \"d\" must hold whole numbers from 1 to 4096, ascending");
    row("divider twice",   "\"d\": [1, 2, 4, 8, 16]", "\"d\": [1, 2, 2, 8, 16]",
        "loop \"wide\": field \"d\" must hold whole numbers from 1 to 4096, ascending");
    row("no divider",      "\"d\": [1, 2, 4, 8, 16]", "\"d\": []",
        "loop \"wide\": field \"d\" must be a list of whole numbers or {\"from\", \"to\"}, and not empty");
    row("doubled key",     "\"format\": 1,", "\"format\": 1, \"format\": 1,",
        "line 2, column 16: the key \"format\" is given twice");
    row("broken syntax",   "\"format\": 1,", "\"format\": 1", "line 3, column ");
    // clang-format on
}

void DeviceDbTest::refusesWrongFiles() {
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, reason);
    QByteArray text = shipped();
    const int at = text.lastIndexOf(from);
    QVERIFY2(at >= 0, "devices.json no longer holds what this row replaces");
    text.replace(at, from.size(), to);
    const QString error = loadError(text);
    QVERIFY2(error.startsWith(reason), qPrintable(error));
    QVERIFY(!error.contains(QLatin1Char('\n')));
}

void DeviceDbTest::namesAMissingFile() {
    QString error;
    const QString path = m_dir.filePath(QStringLiteral("absent.json"));
    QVERIFY(DeviceDb::load(path, &error).devices().isEmpty());
    QVERIFY2(error.startsWith(path + QStringLiteral(": ")), qPrintable(error));
}

QTEST_GUILESS_MAIN(DeviceDbTest)
#include "devicedb_test.moc"
