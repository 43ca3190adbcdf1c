#include <utils/jsontext.h>

#include <QtTest>

#include <clocale>
#include <limits>

using Utils::JsonForm;

Q_DECLARE_METATYPE(Utils::JsonForm)

class JsonTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsKinds_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QVariant>("expected");
        const auto row = [](const char* name, const QByteArray& text, const QVariant& value) {
            QTest::newRow(name) << text << value;
        };
        row("text", "\"a\"", QStringLiteral("a"));
        row("empty text", "\"\"", QString(""));
        row("escapes", "\"\\\"\\\\\\/\\b\\f\\n\\r\\t\\u00e4\\ud83d\\ude00\"",
            QString::fromUtf8("\"\\/\b\f\n\r\t\xc3\xa4\xf0\x9f\x98\x80"));
        row("utf-8", "\"\xc3\xa4\xe2\x82\xac\"", QString::fromUtf8("\xc3\xa4\xe2\x82\xac"));
        row("zero character", "\"a\\u0000b\"", QString::fromUtf8("a\0b", 3));
        row("percent", "\"%1\"", QStringLiteral("%1"));
        row("true", "true", true);
        row("false", " false\n", false);
        row("null", "null", QVariant());
        row("zero", "0", 0);
        row("minus zero", "-0", 0);
        row("largest int", "2147483647", std::numeric_limits<int>::max());
        row("smallest int", "-2147483648", std::numeric_limits<int>::min());
        row("beyond int", "2147483648", Q_INT64_C(2147483648));
        row("below int", "-2147483649", Q_INT64_C(-2147483649));
        row("largest signed", "9223372036854775807", Q_INT64_C(9223372036854775807));
        row("beyond signed", "9223372036854775808", Q_UINT64_C(9223372036854775808));
        row("largest", "18446744073709551615", Q_UINT64_C(18446744073709551615));
        row("real", "1.0", 1.0);
        row("exponent", "1e3", 1000.0);
        row("negative real", "-0.25", -0.25);
        row("texts", "[\"a\", \"b\"]", QStringList({"a", "b"}));
        row("empty list", "[]", QStringList());
        row("mixed list", "[\"a\", 1]", QVariantList({QStringLiteral("a"), 1}));
        row("list of lists", "[[\"a\"]]", QVariantList({QVariant(QStringList({"a"}))}));
        row("object", "{\"b\": 1, \"a\": {\"c\": true}}",
            QVariantMap({{"a", QVariantMap({{"c", true}})}, {"b", 1}}));
        row("empty object", "{}", QVariantMap());
        row("mark in front", "\xEF\xBB\xBF{}", QVariantMap());
        row("same key in two objects", "[{\"a\":1},{\"a\":1}]",
            QVariantList({QVariantMap({{"a", 1}}), QVariantMap({{"a", 1}})}));
    }
    void readsKinds() {
        QFETCH(QByteArray, text);
        QFETCH(QVariant, expected);
        QVariant value;
        Utils::JsonError error;
        QVERIFY2(Utils::parseJson(text, &value, &error), qPrintable(error.text()));
        QVERIFY(error.isNull());
        QCOMPARE(value.userType(), expected.userType());
        QCOMPARE(value, expected);
    }

    void damage_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("word"); // that the reason must hold
        const auto row = [](const char* name, const QByteArray& text, int line, int column,
                            const char* word) {
            QTest::newRow(name) << text << line << column << QString::fromUtf8(word);
        };
        row("nothing", "", 1, 1, "unexpected end of input");
        row("blanks", " \n ", 2, 2, "unexpected end of input");
        row("open object", "{\n  \"a\": 1", 2, 9, "unexpected end of input");
        row("trailing comma", "{\"a\": 1,}", 1, 9, "expected string literal");
        row("no colon", "{\"a\" 1}", 1, 6, "expected ':'");
        row("two values", "{} {}", 1, 4, "expected end of input");
        row("a word", "{\"a\":\n\n  flase}", 3, 4, "invalid literal");
        row("comment", "{} // x", 1, 4, "invalid literal");
        row("line feed in a text", "\"a\nb\"", 1, 3, "control character");
        row("wrong escape", "\"\\x\"", 1, 3, "forbidden character after backslash");
        row("half a pair", "\"\\ud800\"", 1, 8, "surrogate");
        row("not utf-8", "{\"\xc3\xa4\": \"\xff\"}", 1, 8, "UTF-8");
        row("not utf-8 in a key", "{\"\xc3\": 1}", 1, 4, "UTF-8"); // the byte that must not follow
        row("zero byte", QByteArray("{}\0{", 4), 1, 3, "zero byte");
        row("leading zero", "[01]", 1, 3, "unexpected number literal");
        row("too wide", "[18446744073709551616]", 1, 2, "wider than 64 bits");
        row("too wide at the end", "-9223372036854775809", 1, 1, "wider than 64 bits");
        row("too large", "[1e999]", 1, 6, "number overflow");
        row("doubled key", "{\"a\": 1,\n \"b\": 2, \"a\": 3}", 2, 10, "\"a\" is given twice");
        row("doubled key, escaped", "{\"a\\\"\": 1, \"a\\\"\": 1}", 1, 12, "is given twice");
        row("doubled key, other spelling", "{\"a\": 1, \"\\u0061\": 1}", 1, 10,
            "\"a\" is given twice");
        row("doubled key, non-ASCII", "{\"\xc3\xa4\": 1, \"\xc3\xa4\": 1}", 1, 10,
            "is given twice");
        row("doubled key deep", "[{}, {\"x\": {\"a\": 1, \"a\": 1}}]", 1, 21, "is given twice");
        row("doubled key after a mark", "\xEF\xBB\xBF{\"a\":1,\"a\":1}", 1, 8, "is given twice");
    }
    void damage() {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        QFETCH(int, column);
        QFETCH(QString, word);
        QVariant value = 7;
        Utils::JsonError error;
        QVERIFY(!Utils::parseJson(text, &value, &error));
        QVERIFY2(error.reason.contains(word), qPrintable(error.text()));
        QCOMPARE(error.line, line);
        QCOMPARE(error.column, column);
        QCOMPARE(value, QVariant(7));
        QVERIFY(!error.reason.contains(QLatin1Char('\n')));
        QVERIFY(!error.reason.contains(QLatin1String("json.exception")));
    }

    void depth() {
        QVariant value;
        Utils::JsonError error;
        const QByteArray deepest = QByteArray(100, '[') + QByteArray(100, ']');
        QVERIFY(Utils::parseJson(deepest, &value, &error));
        QVERIFY(!Utils::parseJson('[' + deepest + ']', &value, &error));
        QCOMPARE(error.text(),
                 QStringLiteral("line 1, column 101: more than 100 levels of lists and objects"));
        QVERIFY(!Utils::parseJson(QByteArray(10000000, '['), &value, &error));
        QVERIFY(!Utils::parseJson(QByteArray("{\"a\":").repeated(1000000), &value, &error));
    }

    void longGarbageGivesAShortReason() {
        QVariant value;
        Utils::JsonError error;
        QVERIFY(!Utils::parseJson('"' + QByteArray(1000000, 'x'), &value, &error));
        QVERIFY(error.reason.size() < 200);
    }

    void writes_data() {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<JsonForm>("form");
        QTest::addColumn<QByteArray>("expected");
        const QVariantMap map = {{"b", QStringList({"x", "y"})},
                                 {"a", QVariantMap({{"n", 1}, {"r", 1.0}})},
                                 {"c", QVariantList({1, true, QVariant()})},
                                 {"d", QVariantMap()},
                                 {"e", QStringList()}};
        QTest::newRow("indented") << QVariant(map) << JsonForm::Indented
                                  << QByteArray("{\n"
                                                "  \"a\": {\n"
                                                "    \"n\": 1,\n"
                                                "    \"r\": 1.0\n"
                                                "  },\n"
                                                "  \"b\": [\"x\", \"y\"],\n"
                                                "  \"c\": [1, true, null],\n"
                                                "  \"d\": {},\n"
                                                "  \"e\": []\n"
                                                "}\n");
        QTest::newRow("compact") << QVariant(map) << JsonForm::Compact
                                 << QByteArray("{\"a\":{\"n\":1,\"r\":1.0},\"b\":[\"x\",\"y\"],"
                                               "\"c\":[1,true,null],\"d\":{},\"e\":[]}");
        QTest::newRow("list of objects")
            << QVariant(QVariantList({QVariantMap({{"a", 1}}), QVariantMap()}))
            << JsonForm::Indented << QByteArray("[\n  {\n    \"a\": 1\n  },\n  {}\n]\n");
        const auto row = [](const char* name, const QVariant& value, const QByteArray& text) {
            QTest::newRow(name) << value << JsonForm::Compact << text;
        };
        row("text", QString::fromUtf8("\"\\\n\r\t\b\f\x01/\xc3\xa4"),
            "\"\\\"\\\\\\n\\r\\t\\b\\f\\u0001/\xc3\xa4\"");
        row("zero character", QString::fromUtf8("a\0", 2), "\"a\\u0000\"");
        row("whole real", 3.0, "3.0");
        row("real", 0.1, "0.1");
        row("sum", 0.1 + 0.2, "0.30000000000000004");
        row("large real", 1e300, "1e+300");
        row("no number", std::numeric_limits<double>::quiet_NaN(), "null");
        row("largest", Q_UINT64_C(18446744073709551615), "18446744073709551615");
        row("smallest", Q_INT64_C(-9223372036854775807) - 1, "-9223372036854775808");
        row("byte array as text", QByteArray("x"), "\"x\"");
    }
    void writes() {
        QFETCH(QVariant, value);
        QFETCH(JsonForm, form);
        QFETCH(QByteArray, expected);
        QCOMPARE(Utils::writeJson(value, form), expected);
    }

    void readsNumbersInEveryLocale() {
        // Made here: a system has only the locales that its owner chose.
        const QTemporaryDir folder;
        const QString made = folder.filePath(QStringLiteral("de_DE.UTF-8"));
        QCOMPARE(QProcess::execute(QStringLiteral("localedef"),
                                   {QStringLiteral("--no-archive"), QStringLiteral("-i"),
                                    QStringLiteral("de_DE"), QStringLiteral("-f"),
                                    QStringLiteral("UTF-8"), made}),
                 0);
        qputenv("LOCPATH", folder.path().toUtf8());
        QVERIFY(std::setlocale(LC_NUMERIC, "de_DE.UTF-8") != nullptr);
        QCOMPARE(std::localeconv()->decimal_point, ",");
        QVariant value;
        Utils::JsonError error;
        const bool read = Utils::parseJson("[0.0, -2.5, 1e3, 7]", &value, &error);
        const QByteArray written = Utils::writeJson(QVariantList{2.5}, JsonForm::Compact);
        std::setlocale(LC_NUMERIC, "C");
        QVERIFY2(read, qPrintable(error.text()));
        QCOMPARE(value, QVariant(QVariantList{0.0, -2.5, 1e3, 7}));
        QCOMPARE(written, QByteArray("[2.5]"));
    }

    void places_data() {
        QTest::addColumn<QStringList>("part");
        QTest::addColumn<QString>("place");
        const auto row = [](const QStringList& part, const char* place) {
            QTest::newRow(qPrintable(part.join(QLatin1Char('>')))) << part << QString(place);
        };
        row({"a"}, "line 2, column 3: x");
        row({"list"}, "line 3, column 4: x");
        row({"list", "0"}, "line 3, column 13: x");
        row({"list", "1"}, "line 3, column 18: x");
        row({"list", "2"}, "line 4, column 5: x");
        row({"list", "3"}, "line 5, column 5: x");
        row({"list", "3", QString::fromUtf8("k\xc3\xb6/ln")}, "line 5, column 7: x");
        row({"list", "4"}, "line 6, column 5: x");
        row({"list", "4", "0"}, "line 6, column 6: x");
        row({"list", "9"}, "");
        row({"nothing", "here"}, "");
        row({}, "");
    }
    void places() {
        QFETCH(QStringList, part);
        QFETCH(QString, place);
        const QByteArray text = "{\n  \"a\": 1,\n   \"list\": [\"b\", -12.5e3,\n"
                                "    null ,\n    { \"k\xc3\xb6/ln\": true},\n"
                                "    [[]]\n]}";
        QCOMPARE(Utils::errorAtKey(text, part, QStringLiteral("x")).text(), place);
    }

    void roundTrip_data() { readsKinds_data(); }
    void roundTrip() {
        QFETCH(QVariant, expected);
        for (const JsonForm form : {JsonForm::Indented, JsonForm::Compact}) {
            QVariant value;
            Utils::JsonError error;
            QVERIFY(Utils::parseJson(Utils::writeJson(expected, form), &value, &error));
            QCOMPARE(value.userType(), expected.userType());
            QCOMPARE(value, expected);
        }
    }
};

QTEST_GUILESS_MAIN(JsonTextTest)
#include "jsontext_test.moc"
