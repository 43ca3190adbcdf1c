#include <ipgen/cli/linereader.h>
#include <ipgen/cli/nameset.h>
#include <ipgen/cli/table.h>

#include <QtTest>

#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

class PartsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void names() {
        Ipgen::NameSet set;
        QVERIFY(set.insert(QStringLiteral("a")));
        QVERIFY(!set.insert(QStringLiteral("a")));
        QVERIFY(set.insert(QStringLiteral("A")));
        QVERIFY(set.insert(QString()));
        QVERIFY(!set.insert(QString()));
        QVERIFY(set.insert(QString(QChar(0xE9))));
        QVERIFY(!set.failed());
    }

    void namesBeyondTheFirstTable() {
        Ipgen::NameSet set;
        constexpr int count = 20000; // the table grows a few times
        for (int i = 0; i < count; ++i) {
            QVERIFY(set.insert(QString::number(i)));
        }
        for (int i = 0; i < count; i += 7) {
            QVERIFY2(!set.insert(QString::number(i)), qPrintable(QString::number(i)));
        }
        QVERIFY(set.insert(QString::number(count)));
        QVERIFY(!set.failed());
    }

    void lines_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QList<QByteArray>>("lines");
        QTest::addColumn<QList<int>>("tooLong"); // numbers of those lines
        const auto row = [](const char* name, const QByteArray& text,
                            const QList<QByteArray>& lines, const QList<int>& tooLong = {}) {
            QTest::newRow(name) << text << lines << tooLong;
        };
        const QByteArray longest(100000, 'l'); // more than one read gives
        row("nothing", "", {});
        row("one", "a\n", {"a"});
        row("no line feed at the end", "a\nb", {"a", "b"});
        row("empty lines", "\n\na\n\n", {"", "", "a", ""});
        row("a carriage return stays", "a\r\n", {"a\r"});
        row("zero characters", QByteArray("a\0b\n\0", 5),
            {QByteArray("a\0b", 3), QByteArray("\0", 1)});
        row("exactly the longest", longest + "\nb\n", {longest, "b"});
        row("one byte more", longest + "m\nb\n", {longest, "b"}, {1});
        row("much more", "a\n" + longest + longest + longest + "\nb", {"a", longest, "b"}, {2});
        row("too long and last", "a\n" + longest + "mm", {"a", longest}, {2});
    }
    void lines() {
        QFETCH(QByteArray, text);
        QFETCH(QList<QByteArray>, lines);
        QFETCH(QList<int>, tooLong);
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), &std::fclose);
        QVERIFY(file);
        const int fd = ::fileno(file.get());
        QCOMPARE(::pwrite(fd, text.constData(), static_cast<std::size_t>(text.size()), 0),
                 ssize_t(text.size()));
        Ipgen::LineReader reader(fd, 100000);
        for (int i = 0; i < lines.size(); ++i) {
            QVERIFY(reader.next());
            QCOMPARE(reader.line(), lines[i]);
            QCOMPARE(reader.number(), qint64(i + 1));
            QCOMPARE(reader.tooLong(), tooLong.contains(i + 1));
        }
        QVERIFY(!reader.next());
        QVERIFY(!reader.next());
        QCOMPARE(reader.number(), qint64(lines.size()));
        QCOMPARE(reader.error(), QString());
    }

    void linesThatComeInPieces() {
        int ends[2] = {-1, -1};
        QCOMPARE(::pipe2(ends, O_CLOEXEC), 0);
        Ipgen::LineReader reader(ends[0], 100);
        QCOMPARE(::write(ends[1], "a\nb", 3), ssize_t(3));
        QVERIFY(reader.next());
        QCOMPARE(reader.line(), QByteArray("a"));
        QCOMPARE(::write(ends[1], "c\n", 2), ssize_t(2));
        ::close(ends[1]);
        QVERIFY(reader.next());
        QCOMPARE(reader.line(), QByteArray("bc"));
        QVERIFY(!reader.next());
        ::close(ends[0]);
    }

    void linesThatCannotBeRead() {
        const int folder = ::open("/", O_RDONLY | O_CLOEXEC);
        QVERIFY(folder >= 0);
        Ipgen::LineReader reader(folder, 100);
        QVERIFY(!reader.next());
        QCOMPARE(reader.error(), QStringLiteral("Is a directory"));
        QCOMPARE(reader.number(), qint64(0));
        ::close(folder);
    }

    void table_data() {
        QTest::addColumn<QList<QStringList>>("rows");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const QList<QStringList>& rows, const char* text) {
            QTest::newRow(name) << rows << QString::fromUtf8(text);
        };
        row("nothing", {}, "");
        row("one cell", {{"a"}}, "a\n");
        row("columns", {{"name", "ip"}, {"x", "tiny"}}, "name  ip\nx     tiny\n");
        row("no blank at an end", {{"a", ""}, {"bb", "c"}}, "a\nbb  c\n");
        row("rows of other lengths", {{"a"}, {"b", "c", "d"}}, "a\nb  c  d\n");
        row("empty row", {{}, {"a"}}, "\na\n");
        row("control characters", {{"a\nb", "c"}, {"d", "e"}}, "a\\nb  c\nd     e\n");
    }
    void table() {
        QFETCH(QList<QStringList>, rows);
        QFETCH(QString, text);
        QCOMPARE(Ipgen::tableText(rows), text);
    }

    void numbers_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* text, double value) {
            QTest::newRow(text) << value << QString::fromLatin1(text);
        };
        row("-", 0.0);
        row("1.4", 0.07 * 20);
        row("10.3125", 10.3125);
        row("2.5", 2.50);
        row("-1", -1.0);
        row("0.333333333333333", 1.0 / 3);
    }
    void numbers() {
        QFETCH(double, value);
        QFETCH(QString, text);
        QCOMPARE(Ipgen::numberText(value), text);
    }
};

QTEST_GUILESS_MAIN(PartsTest)
#include "parts_test.moc"
