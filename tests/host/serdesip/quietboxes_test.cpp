// Message boxes that take their default answer out of sight, and are themselves again afterwards.

#include "quietboxes.h"

#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <memory>

using IPSERDESIP::QuietBoxes;

class QuietBoxesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void defaultAnswer();
    void shownAgain();
};

void QuietBoxesTest::defaultAnswer() {
    const QuietBoxes quiet;
    QMessageBox box(QMessageBox::Question, QStringLiteral("Rate"), QStringLiteral("Keep it?"),
                    QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    QCOMPARE(box.exec(), int(QMessageBox::No));
    QCOMPARE(quiet.words(), QStringList("Rate: Keep it?"));
}

/// A box that lives on is seen when nobody keeps it quiet, and kept quiet once more.
void QuietBoxesTest::shownAgain() {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Rate"), QStringLiteral("Too high"));
    const auto showQuietly = [&box] {
        const QuietBoxes quiet;
        bool hidden = false;
        QTimer::singleShot(0, &box, [&] { hidden = box.testAttribute(Qt::WA_DontShowOnScreen); });
        box.exec();
        return hidden && quiet.words() == QStringList("Rate: Too high");
    };
    QVERIFY(showQuietly());
    QVERIFY(!box.testAttribute(Qt::WA_DontShowOnScreen));
    bool hidden = true;
    QTimer::singleShot(0, &box, [&] {
        hidden = box.testAttribute(Qt::WA_DontShowOnScreen);
        box.reject();
    });
    box.exec();
    QVERIFY(!hidden);
    QVERIFY(showQuietly());
}

QTEST_MAIN(QuietBoxesTest)
#include "quietboxes_test.moc"
