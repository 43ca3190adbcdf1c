#include "ipgen/report/linediff.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Ipgen;

class LineDiffTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void knownEdits_data();
    void knownEdits();
    void bothTextsComeBack();
    void leapsAreMarked();
};

namespace {

QString written(const QVector<DiffLine>& lines) {
    QString text;
    for (const DiffLine& line : lines) {
        text += line.kind == DiffLine::Kind::Same      ? QLatin1Char(' ')
                : line.kind == DiffLine::Kind::Removed ? QLatin1Char('-')
                                                       : QLatin1Char('+');
        text += line.text;
    }
    return text;
}

QStringList letters(const char* text) {
    return QString::fromLatin1(text).split(QString(), Qt::SkipEmptyParts);
}

} // namespace

void LineDiffTest::knownEdits_data() {
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<QString>("edit");
    QTest::newRow("both empty") << ""
                                << ""
                                << "";
    QTest::newRow("same") << "abc"
                          << "abc"
                          << " a b c";
    QTest::newRow("all new") << ""
                             << "ab"
                             << "+a+b";
    QTest::newRow("all gone") << "ab"
                              << ""
                              << "-a-b";
    QTest::newRow("one changed") << "abc"
                                 << "axc"
                                 << " a-b+x c";
    QTest::newRow("one more in the middle") << "ac"
                                            << "abc"
                                            << " a+b c";
    QTest::newRow("one fewer at the end") << "abc"
                                          << "ab"
                                          << " a b-c";
}

void LineDiffTest::knownEdits() {
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(QString, edit);
    const auto lines = diffLines(letters(qPrintable(left)), letters(qPrintable(right)));
    QCOMPARE(written(lines), edit);
    QCOMPARE(differs(lines), left != right);
}

void LineDiffTest::bothTextsComeBack() {
    QRandomGenerator random(7);
    for (int round = 0; round < 500; ++round) {
        QStringList left;
        QStringList right;
        for (int i = random.bounded(12); i > 0; --i) {
            left.append(QString(QLatin1Char(char('a' + random.bounded(3)))));
        }
        for (int i = random.bounded(12); i > 0; --i) {
            right.append(QString(QLatin1Char(char('a' + random.bounded(3)))));
        }
        QStringList backLeft;
        QStringList backRight;
        const auto lines = diffLines(left, right);
        for (const DiffLine& line : lines) {
            if (line.left > 0) {
                backLeft.append(line.text);
                QCOMPARE(line.left, backLeft.size());
            }
            if (line.right > 0) {
                backRight.append(line.text);
                QCOMPARE(line.right, backRight.size());
            }
        }
        QCOMPARE(backLeft, left);
        QCOMPARE(backRight, right);
    }
}

void LineDiffTest::leapsAreMarked() {
    const auto lines = diffLines(letters("abcdefgh"), letters("xbcdefgy"));
    QCOMPARE(written(condensed(lines, 1)), QStringLiteral("-a+x b  g-h+y"));
}

QTEST_MAIN(LineDiffTest)
#include "linediff_test.moc"
