#include "ipgen/window/mapdata.h"
#include "ipgen/window/mapsheet.h"

#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Window;
using IPSERDESIP::Message;

class MapDataTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyResourceHasACell();
    void ownersAndUses();
    void sharedAlikeIsNoConflict();
    void conflictsAreSaid();
    void marksDiffer();
    void aPictureTooLargeIsAnError();
};

namespace {

DEV::DeviceInfo smallDevice() {
    DEV::DeviceInfo device;
    device.quads = 2;
    device.lanesPerQuad = 2;
    device.pins = QStringList{QStringLiteral("Q0_CLK"), QStringLiteral("BOARD")};
    DEV::Multiplexer mux;
    mux.name = QStringLiteral("Q1_MUX0");
    mux.quad = 1;
    mux.sources = device.pins;
    device.multiplexers = {mux};
    DEV::ClockLoop shared;
    shared.kind = QStringLiteral("BIG");
    shared.shared = true;
    DEV::ClockLoop own;
    own.kind = QStringLiteral("OWN");
    device.plls = {shared, own};
    return device;
}

Message message(const QString& lane, const QString& mux, double frequency) {
    Message one;
    one.lanes = QStringList{lane};
    one.plls = QStringList{QStringLiteral("Q1_BIG")};
    one.refClocks = QStringList{QStringLiteral("BOARD")};
    one.refFrequencies = {frequency};
    one.muxes.insert(QStringLiteral("Q1_MUX0"), mux);
    one.realTxRate = 5;
    return one;
}

MapCell cell(const QVector<MapCell>& cells, const char* resource) {
    for (const MapCell& one : cells) {
        if (one.resource == QLatin1String(resource)) {
            return one;
        }
    }
    return {};
}

} // namespace

void MapDataTest::everyResourceHasACell() {
    QStringList names;
    const auto cells = mapCells(smallDevice(), {});
    for (const MapCell& one : cells) {
        names.append(one.resource);
        QVERIFY(one.isFree());
    }
    const QString expected =
        QStringLiteral("Q0_CLK BOARD Q0_BIG Q0_LANE0 Q0_LN0_OWN Q0_LANE1 Q0_LN1_OWN Q1_MUX0 "
                       "Q1_BIG Q1_LANE0 Q1_LN0_OWN Q1_LANE1 Q1_LN1_OWN");
    QCOMPARE(names.join(QLatin1Char(' ')), expected);
}

void MapDataTest::ownersAndUses() {
    const auto cells =
        mapCells(smallDevice(), {{QStringLiteral("x"), message(QStringLiteral("Q1 Lane0"),
                                                               QStringLiteral("BOARD"), 156.25)}});
    QCOMPARE(cell(cells, "Q1_LANE0").owners, QStringList{QStringLiteral("x")});
    QVERIFY(cell(cells, "Q1_LANE1").isFree());
    QCOMPARE(cell(cells, "BOARD").uses, QStringList{QStringLiteral("156.25 MHz")});
    QCOMPARE(cell(cells, "Q1_MUX0").setting, QStringLiteral("BOARD"));
    QCOMPARE(cell(cells, "Q1_BIG").uses,
             QStringList{QStringLiteral("5 Gbps from BOARD at 156.25 MHz")});
}

void MapDataTest::sharedAlikeIsNoConflict() {
    const QString pin = QStringLiteral("BOARD");
    const auto cells = mapCells(
        smallDevice(), {{QStringLiteral("a"), message(QStringLiteral("Q1 Lane0"), pin, 100)},
                        {QStringLiteral("b"), message(QStringLiteral("Q1 Lane1"), pin, 100)}});
    for (const MapCell& one : cells) {
        QVERIFY2(one.conflict.isEmpty(), qPrintable(one.resource));
    }
    QCOMPARE(cell(cells, "Q1_BIG").owners.size(), 2);
}

void MapDataTest::conflictsAreSaid() {
    const auto cells = mapCells(
        smallDevice(),
        {{QStringLiteral("a"), message(QStringLiteral("Q1 Lane0"), QStringLiteral("BOARD"), 100)},
         {QStringLiteral("b"),
          message(QStringLiteral("Q1 Lane0"), QStringLiteral("Q0_CLK"), 125)}});
    for (const char* resource : {"Q1_LANE0", "BOARD", "Q1_MUX0", "Q1_BIG"}) {
        QVERIFY2(!cell(cells, resource).conflict.isEmpty(), resource);
    }
    QVERIFY(cell(cells, "Q1_MUX0").setting.isEmpty());
    QVERIFY(cell(cells, "Q1_LANE1").conflict.isEmpty());
}

void MapDataTest::marksDiffer() {
    QMap<QString, Message> messages;
    for (int i = 0; i < 60; ++i) {
        messages.insert(QStringLiteral("i%1").arg(i, 2, 10, QLatin1Char('0')), Message());
    }
    const auto marks = ownerMarks(messages);
    QSet<QString> letters;
    QSet<int> looks;
    for (int i = 0; i < 56; ++i) {
        const OwnerMark mark = marks.value(QStringLiteral("i%1").arg(i, 2, 10, QLatin1Char('0')));
        letters.insert(mark.letter);
        looks.insert(mark.color * ownerPatternCount + mark.pattern);
    }
    QCOMPARE(letters.size(), 56);
    QCOMPARE(looks.size(), 56);
    QCOMPARE(marks.value(QStringLiteral("i25")).letter, QStringLiteral("Z"));
    QCOMPARE(marks.value(QStringLiteral("i26")).letter, QStringLiteral("AA"));
    QCOMPARE(marks.value(QStringLiteral("i52")).letter, QStringLiteral("BA"));
}

/// More conflicts than a picture has room for: its pixels would take more than two gigabytes.
void MapDataTest::aPictureTooLargeIsAnError() {
    const QTemporaryDir dir;
    MapSheet sheet;
    MapCell one = cell(mapCells(smallDevice(), {}), "Q0 Lane0");
    one.owners = QStringList{QStringLiteral("a"), QStringLiteral("b")};
    one.conflict = QStringLiteral("taken twice");
    sheet.cells.fill(one, 1);
    const QString good = dir.filePath(QStringLiteral("good.png"));
    QVERIFY(writeMapSheet(sheet, good).ok());
    QVERIFY(QFileInfo(good).size() > 0);
    sheet.cells.fill(one, 100000);
    const QString bad = dir.filePath(QStringLiteral("bad.png"));
    QVERIFY(!writeMapSheet(sheet, bad).ok());
    QVERIFY(!QFileInfo::exists(bad));
}

QTEST_MAIN(MapDataTest)
#include "mapdata_test.moc"
