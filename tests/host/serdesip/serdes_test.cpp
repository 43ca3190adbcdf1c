#include "serdesfixture.h"

using namespace IPSERDESIP;

namespace {

const auto link = QStringLiteral("link0");
const auto qpll1 = QStringLiteral("Q0_QPLL1");
const auto mux1 = QStringLiteral("Q0_MUX1");
const auto refclk1 = QStringLiteral("Q0 REFCLK1");

} // namespace

class SerdesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void emptyProjectIsFree();
    void anInstanceHoldsItsResources();
    void theEditedInstanceIsNotInItsOwnWay();
    void aRemovedInstanceFreesAll();
    void aNewMessageReplacesTheOld();
    void twoOwnersShareAPin();
    void receiversAloneFixNoRate();
    void aReceiverHidesNoTransmitter_data();
    void aReceiverHidesNoTransmitter();
    void aPinWithoutFrequencyHidesNone();
    void storeKeepsAndReportsChanges();
    void unknownNamesAreNothing();
    void detailsAreNotedOnce();
};

void SerdesTest::emptyProjectIsFree() {
    const serdes* model = openDevice("RZ7X-60B");
    QCOMPARE(model->workingDir(), QStringLiteral("/nowhere"));
    QCOMPARE(model->notOccupiedLanes().join(QLatin1Char(',')),
             QStringLiteral("Q0 Lane0,Q0 Lane1,Q0 Lane2,Q0 Lane3"));
    QVERIFY(!model->instanceEnable(mux1));
    QVERIFY(!model->checkPllEnable(qpll1));
    QVERIFY(model->getMessageByPLL(qpll1).isEmpty());
    QCOMPARE(model->getFreqByRefsrc(refclk1), 0.0);
    const auto* mux = dynamic_cast<MUX*>(model->allInstance().value(mux1));
    QVERIFY(mux != nullptr);
    QCOMPARE(mux->point(), QString());
    QCOMPARE(openDevice("RZ7X-138")->notOccupiedLanes().size(), 8);
}

void SerdesTest::anInstanceHoldsItsResources() {
    serdes* model = openDevice("RZ7X-60B");
    model->setMessage(link, linkMessage());
    QCOMPARE(model->notOccupiedLanes().join(QLatin1Char(',')), QStringLiteral("Q0 Lane1,Q0 Lane3"));
    QVERIFY(model->instanceEnable(mux1));
    QVERIFY2(!model->instanceEnable(QStringLiteral("Q0_MUX0")), "set to nothing, so it is free");
    QVERIFY(model->instanceEnable(QStringLiteral("Q0_REFCLK1")));
    QVERIFY(model->checkPllEnable(qpll1));
    QVERIFY(!model->checkPllEnable(QStringLiteral("Q0_QPLL0")));

    const QMap<QString, QVariant> pll = model->getMessageByPLL(qpll1);
    QCOMPARE(pll.size(), 3);
    QCOMPARE(pll.value(QStringLiteral("TX_Line_Rate")).toDouble(), 10.3125);
    QCOMPARE(pll.value(QStringLiteral("Reference_Clock_Source")).toString(), refclk1);
    QCOMPARE(pll.value(QStringLiteral("Reference_Clock_Frequency")).toDouble(), 156.25);

    QCOMPARE(dynamic_cast<MUX*>(model->allInstance().value(mux1))->point(),
             QStringLiteral("Q0_REFCLK1"));
    QCOMPARE(model->getFreqByRefsrc(refclk1), 156.25);
    const REF_SOURCE* pin = model->FormStringToREFSPtr(QStringLiteral("Q0_REFCLK1"));
    QVERIFY(pin != nullptr);
    QVERIFY(pin->inUse());
    QCOMPARE(pin->frequency(), 156.25);
    QCOMPARE(pin->name(), QStringLiteral("Q0_REFCLK1"));
    QVERIFY(!model->FormStringToREFSPtr(QStringLiteral("Q0_REFCLK0"))->inUse());
    QCOMPARE(model->findRefsource(QStringLiteral("Q0_REFCLK1")), pin);
    QCOMPARE(model->owners(QStringLiteral("Q0 Lane2")), QStringList{link});
}

void SerdesTest::theEditedInstanceIsNotInItsOwnWay() {
    serdes* model = openDevice("RZ7X-60B");
    model->setMessage(link, linkMessage());
    QVERIFY(model->FormStringToREFSPtr(QStringLiteral("Q0_REFCLK1"))->inUse());
    model->setEditing(link);
    QCOMPARE(model->notOccupiedLanes().size(), 4);
    QVERIFY(!model->instanceEnable(mux1));
    QVERIFY(!model->checkPllEnable(qpll1));
    QVERIFY(model->getMessageByPLL(qpll1).isEmpty());
    QCOMPARE(model->getFreqByRefsrc(refclk1), 0.0);
    QVERIFY(!model->FormStringToREFSPtr(QStringLiteral("Q0_REFCLK1"))->inUse());
    QCOMPARE(dynamic_cast<MUX*>(model->allInstance().value(mux1))->point(), QString());
    QVERIFY(model->owners(qpll1).isEmpty());

    model->setMessage(QStringLiteral("a"), linkMessage());
    QVERIFY2(model->checkPllEnable(qpll1), "another instance holds it too");
    model->setEditing(QString());
    QCOMPARE(model->owners(qpll1), (QStringList{QStringLiteral("a"), link}));
    QCOMPARE(model->owners(qpll1, 1), QStringList{QStringLiteral("a")});
}

void SerdesTest::aRemovedInstanceFreesAll() {
    serdes* model = openDevice("RZ7X-60B");
    model->setMessage(link, linkMessage());
    model->removeMessage(link);
    model->removeMessage(QStringLiteral("never there"));
    QCOMPARE(model->notOccupiedLanes().size(), 4);
    QVERIFY(!model->instanceEnable(mux1));
    QVERIFY(!model->checkPllEnable(qpll1));
    QCOMPARE(model->getFreqByRefsrc(refclk1), 0.0);
    QVERIFY(model->messages().isEmpty());
}

void SerdesTest::aNewMessageReplacesTheOld() {
    serdes* model = openDevice("RZ7X-60B");
    model->setMessage(link, linkMessage());
    Message message = linkMessage();
    message.lanes = QStringList{QStringLiteral("Q0 Lane3")};
    message.plls = QStringList{QStringLiteral("Q0_QPLL0")};
    message.muxes = {{QStringLiteral("Q0_MUX1"), QStringLiteral("Q0_REFIN0")}};
    model->setMessage(link, message);
    QCOMPARE(model->notOccupiedLanes().join(QLatin1Char(',')),
             QStringLiteral("Q0 Lane0,Q0 Lane1,Q0 Lane2"));
    QVERIFY(!model->checkPllEnable(qpll1));
    QVERIFY(model->checkPllEnable(QStringLiteral("Q0_QPLL0")));
    QCOMPARE(dynamic_cast<MUX*>(model->allInstance().value(mux1))->point(),
             QStringLiteral("Q0_REFIN0"));
    QCOMPARE(model->messages().size(), 1);
}

void SerdesTest::twoOwnersShareAPin() {
    serdes* model = openDevice("RZ7X-60B");
    model->setMessage(link, linkMessage());
    model->setMessage(QStringLiteral("link1"), linkMessage());
    model->removeMessage(link);
    QVERIFY(model->FormStringToREFSPtr(QStringLiteral("Q0_REFCLK1"))->inUse());
    QVERIFY(model->checkPllEnable(qpll1));
    model->setEditing(QStringLiteral("link1"));
    QVERIFY(!model->FormStringToREFSPtr(QStringLiteral("Q0_REFCLK1"))->inUse());
}

void SerdesTest::receiversAloneFixNoRate() {
    serdes* model = openDevice("RZ7X-60B");
    Message message = linkMessage();
    message.laneResources += QStringList{QStringLiteral("Q0_LN0_RX"), QStringLiteral("Q0_LN2_RX")};
    model->setMessage(link, message);
    QVERIFY(model->checkPllEnable(qpll1));
    QVERIFY(model->getMessageByPLL(qpll1).isEmpty());
    message.laneResources += QStringLiteral("Q0_LN0_TX");
    model->setMessage(link, message);
    QCOMPARE(model->getMessageByPLL(qpll1).size(), 3);
}

void SerdesTest::aReceiverHidesNoTransmitter_data() {
    QTest::addColumn<QString>("receiver");
    QTest::newRow("sorts first") << "a";
    QTest::newRow("sorts last") << "z";
}

void SerdesTest::aReceiverHidesNoTransmitter() {
    QFETCH(QString, receiver);
    serdes* model = openDevice("RZ7X-60B");
    Message receiving;
    receiving.lanes = QStringList{QStringLiteral("Q0 Lane3")};
    receiving.laneResources = QStringList{QStringLiteral("Q0_LN3_RX")};
    receiving.plls = QStringList{qpll1};
    receiving.refClocks = QStringList{QStringLiteral("Q0_REFCLK0")};
    receiving.refFrequencies = {100.0};
    receiving.realTxRate = 1.25;
    model->setMessage(receiver, receiving);
    Message sending = linkMessage();
    sending.laneResources += QStringLiteral("Q0_LN0_TX");
    model->setMessage(link, sending);
    const QMap<QString, QVariant> pll = model->getMessageByPLL(qpll1);
    QCOMPARE(pll.value(QStringLiteral("TX_Line_Rate")).toDouble(), 10.3125);
    QCOMPARE(pll.value(QStringLiteral("Reference_Clock_Source")).toString(), refclk1);
    QCOMPARE(pll.value(QStringLiteral("Reference_Clock_Frequency")).toDouble(), 156.25);
    QCOMPARE(model->owners(qpll1, 1), QStringList{link});
    QCOMPARE(model->owners(qpll1).size(), 2);
    model->setEditing(link);
    QVERIFY2(model->getMessageByPLL(qpll1).isEmpty(), "its own transmitter is free to it");
    QVERIFY(model->checkPllEnable(qpll1));
    model->setEditing(QString());
    model->removeMessage(receiver);
    model->removeMessage(link);
    QVERIFY(!model->checkPllEnable(qpll1));
}

void SerdesTest::aPinWithoutFrequencyHidesNone() {
    serdes* model = openDevice("RZ7X-60B");
    Message unsure;
    unsure.refClocks = QStringList{QStringLiteral("Q0_REFCLK1")};
    unsure.refFrequencies = {0.0};
    model->setMessage(QStringLiteral("a"), unsure);
    model->setMessage(link, linkMessage());
    QCOMPARE(model->getFreqByRefsrc(refclk1), 156.25);
    model->removeMessage(link);
    QCOMPARE(model->getFreqByRefsrc(refclk1), 0.0);
    QVERIFY(model->FormStringToREFSPtr(QStringLiteral("Q0_REFCLK1"))->inUse());
}

void SerdesTest::storeKeepsAndReportsChanges() {
    serdes* model = openDevice("RZ7X-60B");
    const QString key = QStringLiteral("Q0_BIAS");
    QVERIFY(!model->getData(key).isValid());
    QVERIFY(!model->dataChanged());
    model->setData(key, 9);
    QCOMPARE(model->getData(key).toInt(), 9);
    QCOMPARE(model->globalData().size(), 1);
    QVERIFY(model->dataChanged());
    model->clearDataChanged();
    model->setData(key, 9);
    QVERIFY2(!model->dataChanged(), "the same value again is no change");
    model->setData(key, QStringLiteral("9"));
    QVERIFY2(model->dataChanged(), "another kind is");
    model->openProject(model->device(), QString(), {{key, 3}});
    QCOMPARE(model->getData(key).toInt(), 3);
    QVERIFY(!model->dataChanged());
}

void SerdesTest::unknownNamesAreNothing() {
    serdes* model = openDevice("RZ7X-15A");
    QVERIFY(model->findRefsource(QStringLiteral("Q0_REFIN0")) == nullptr);
    QVERIFY(model->findRefsource(QString()) == nullptr);
    QVERIFY(model->findRefsource(QStringLiteral("Q0_MUX0")) == nullptr);
    QVERIFY(model->FormStringToREFSPtr(QStringLiteral("NA")) == nullptr);
    QVERIFY(model->FormStringToREFSPtr(QStringLiteral("Q0_REFIN")) != nullptr);
    QCOMPARE(model->FormStringToREFSPtr(QStringLiteral("GPIO")),
             model->findRefsource(QStringLiteral("Q0_REFIN")));
    QCOMPARE(model->getFreqByRefsrc(QString()), 0.0);
    QVERIFY(!model->instanceEnable(QString()));
    model->openProject(DEV::DeviceArg(QStringLiteral("x"), QStringLiteral("x")), QString(), {});
    QVERIFY(model->notOccupiedLanes().isEmpty());
    QVERIFY(model->allInstance().isEmpty());
    QVERIFY(!model->checkAccess(refclk1, QStringLiteral("quad0_TX")));
    QVERIFY(
        !model->checkRoute({QStringLiteral("Q0 Lane0")}, QStringLiteral("CPLL"), refclk1, 125.0));
}

void SerdesTest::detailsAreNotedOnce() {
    serdes* model = openDevice("RZ7X-60B");
    model->addDetail(QStringLiteral("b"));
    model->addDetail(QStringLiteral("a"));
    model->addDetail(QStringLiteral("b"));
    QCOMPARE(model->details(), (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
    model->clearDetails();
    QVERIFY(model->details().isEmpty());
}

QTEST_GUILESS_MAIN(SerdesTest)
#include "serdes_test.moc"
