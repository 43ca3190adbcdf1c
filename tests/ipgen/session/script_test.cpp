#include "ipgen/session/script.h"

#include <QtTest>

using namespace Ipgen::Session;

class ScriptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refuses_data();
    void refuses();
    void survivesWritingAndReading();
    void readsSettings();
};

void ScriptTest::refuses_data() {
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("part");
    // clang-format off
    QTest::newRow("syntax")       << QByteArray("[\n {]") << "line 2, column 3";
    QTest::newRow("doubled key")  << QByteArray("[{\"press\":\"a/b\",\"press\":\"c/d\"}]") << "twice";
    QTest::newRow("no list")      << QByteArray("{}") << "is a list of steps";
    QTest::newRow("no object")    << QByteArray("[{\"accept\":true},3]") << "step 2: a step is an object";
    QTest::newRow("nothing")      << QByteArray("[{\"try\":true}]") << "step 1: nothing to do";
    QTest::newRow("unknown word") << QByteArray("[{\"click\":\"a\"}]") << "step 1: unknown word \"click\"";
    QTest::newRow("beside")       << QByteArray("[{\"accept\":true,\"now\":1}]") << "unknown word \"now\"";
    QTest::newRow("two words")    << QByteArray("[{\"accept\":true,\"cancel\":true}]") << "both";
    QTest::newRow("no value")     << QByteArray("[{\"set\":\"tab1/a\"}]") << "needs \"to\"";
    QTest::newRow("null value")   << QByteArray("[{\"set\":\"tab1/a\",\"to\":null}]") << "needs a text";
    QTest::newRow("list value")   << QByteArray("[{\"set\":\"tab1/a\",\"to\":[1]}]") << "needs a text";
    QTest::newRow("stray value")  << QByteArray("[{\"press\":\"tab1/a\",\"to\":1}]") << "\"set\" alone";
    QTest::newRow("number name")  << QByteArray("[{\"press\":1}]") << "needs a text that is not empty";
    QTest::newRow("empty name")   << QByteArray("[{\"state\":\"\"}]") << "needs a text that is not empty";
    QTest::newRow("accept false") << QByteArray("[{\"accept\":false}]") << "can only be true";
    QTest::newRow("try number")   << QByteArray("[{\"accept\":true,\"try\":1}]") << "true or false";
    // clang-format on
}

void ScriptTest::refuses() {
    QFETCH(QByteArray, json);
    QFETCH(QString, part);
    Script script{{}, {}};
    const QString error = parseScript(json, &script);
    QVERIFY2(error.contains(part), qPrintable(error));
    QCOMPARE(script.size(), 2);
}

void ScriptTest::survivesWritingAndReading() {
    const Script script = {
        {Step::Kind::Set, QStringLiteral("tab1/a"), QStringLiteral("0.50"), true},
        {Step::Kind::Set, QStringLiteral("tab1/b"), true, false},
        {Step::Kind::Set, QStringLiteral("tab1/c"), 7, false},
        {Step::Kind::Press, QStringLiteral("tab2/d"), {}, false},
        {Step::Kind::Answer, QStringLiteral("Yes \"to\" all"), {}, false},
        {Step::Kind::State, QStringLiteral("s"), {}, false},
        {Step::Kind::Accept, {}, {}, false},
        {Step::Kind::Cancel, {}, {}, true}};
    Script read;
    QCOMPARE(parseScript(writeScript(script), &read), QString());
    QCOMPARE(read.size(), script.size());
    for (int i = 0; i < script.size(); ++i) {
        QVERIFY(read.at(i).kind == script.at(i).kind);
        QCOMPARE(read.at(i).target, script.at(i).target);
        QCOMPARE(read.at(i).to, script.at(i).to);
        QCOMPARE(read.at(i).tries, script.at(i).tries);
    }
    QCOMPARE(parseScript(writeScript({}), &read), QString());
    QVERIFY(read.isEmpty());
}

void ScriptTest::readsSettings() {
    Script script;
    QCOMPARE(scriptOfSettings({QStringLiteral("tab1/a=x=y"), QStringLiteral("tab1/b=")}, &script),
             QString());
    QCOMPARE(script.size(), 3);
    QCOMPARE(script.at(0).to, QVariant(QStringLiteral("x=y")));
    QCOMPARE(script.at(1).to, QVariant(QString()));
    QVERIFY(script.at(2).kind == Step::Kind::Accept);
    QVERIFY(!scriptOfSettings({QStringLiteral("tab1/a")}, &script).isEmpty());
    QVERIFY(!scriptOfSettings({QStringLiteral("=3")}, &script).isEmpty());
}

QTEST_GUILESS_MAIN(ScriptTest)
#include "script_test.moc"
