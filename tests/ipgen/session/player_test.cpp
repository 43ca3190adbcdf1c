#include "trialdialog.h"

#include "ipgen/session/player.h"
#include "ipgen/session/recorder.h"

#include <serdesip/serdes.h>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

using namespace Ipgen::Session;

namespace {

struct Outcome {
    Report report;
    QStringList heard;
    Script recorded;
};

using Adapt = std::function<void(TrialDialog&)>;

Outcome play(const QByteArray& json, const Adapt& adapt = {}, int limit = 20000) {
    Outcome outcome;
    Script script;
    const QString error = parseScript(json, &script);
    if (!error.isEmpty()) {
        qFatal("%s", qPrintable(error));
    }
    Recorder recorder;
    Options options;
    options.stepLimit = limit;
    outcome.report = Player(script, options).run([&] {
        TrialDialog dialog;
        dialog.setCreating(QStringLiteral("link0"), DEV::DeviceArg());
        if (adapt) {
            adapt(dialog);
        }
        const bool accepted = dialog.exec() == QDialog::Accepted;
        outcome.heard = dialog.heard;
        return accepted ? dialog.config() : IPSERDESIP::ConfigMap();
    });
    outcome.recorded = recorder.script();
    return outcome;
}

QStringList boxes(const Report& report) {
    QStringList all;
    for (const Report::Message& message : report.messages) {
        all.append(message.title + QLatin1Char('|') + message.text + QLatin1Char('|') +
                   message.buttons.join(QLatin1Char(',')) + QLatin1Char('|') + message.answer);
    }
    return all;
}

} // namespace

class PlayerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void setsEveryKindOfField();
    void refusesWhatAUserCannotDo_data();
    void refusesWhatAUserCannotDo();
    void endsOnTheFirstRefusal();
    void tellsRulesAsAUserDoes();
    void answersNestedBoxes_data();
    void answersNestedBoxes();
    void wrongAnswerEndsTheSession();
    void acceptCanBeTurnedDown();
    void answersBoxesBeforeTheDialog();
    void refusedConfiguration();
    void closesWhatNoStepForesees();
    void breaksALoopThatDoesNotEnd();
    void leavesADialogThatStays();
    void takesSnapshots();
    void recordingPlaysBack_data();
    void recordingPlaysBack();
};

void PlayerTest::setsEveryKindOfField() {
    const Outcome outcome = play(R"([
        {"set":"tab1/rate","to":"12.5"}, {"set":"tab1/mode","to":"manual"},
        {"set":"tab1/lane","to":true}, {"set":"tab2/mask","to":"01"},
        {"set":"tab2/hex","to":"0a"}, {"set":"tab2/level","to":15},
        {"set":"frame/fileName","to":"other"}, {"accept":true}])");
    QCOMPARE(outcome.report.error, QString());
    QVERIFY(outcome.report.accepted());
    const IPSERDESIP::ConfigMap expected{
        {"rate", "12.5"}, {"mode", 2},   {"lane", true},    {"mask", "0100"},
        {"hex", "0A"},    {"level", 15}, {"file", "other"},
    };
    QCOMPARE(outcome.report.config, expected);
}

void PlayerTest::refusesWhatAUserCannotDo_data() {
    QTest::addColumn<QByteArray>("step");
    QTest::addColumn<QString>("part");
    // clang-format off
    QTest::newRow("letter")      << QByteArray(R"("set":"tab1/rate","to":"2x")") << "refuses the character \"x\" of \"2x\" (at 2)";
    QTest::newRow("third digit") << QByteArray(R"("set":"tab1/rate","to":"123")") << "refuses the character \"3\"";
    QTest::newRow("line number") << QByteArray(R"("set":"tab1/rate","to":3)") << "needs a text";
    QTest::newRow("mask digit")  << QByteArray(R"("set":"tab2/mask","to":"02")") << "refuses the character \"2\"";
    QTest::newRow("mask full")   << QByteArray(R"("set":"tab2/hex","to":"123")") << "refuses the character \"3\"";
    QTest::newRow("no item")     << QByteArray(R"("set":"tab1/mode","to":"MANUAL")") << "no item \"MANUAL\"; it has \"Auto\"";
    QTest::newRow("check text")  << QByteArray(R"("set":"tab1/lane","to":"yes")") << "needs true or false";
    QTest::newRow("over range")  << QByteArray(R"("set":"tab2/level","to":20)") << "20 is out of its range, 0 to 19";
    QTest::newRow("half")        << QByteArray(R"("set":"tab2/level","to":1.5)") << "whole number";
    QTest::newRow("disabled")    << QByteArray(R"("set":"tab1/locked","to":"1")") << "it is disabled";
    QTest::newRow("hidden")      << QByteArray(R"("set":"tab1/away","to":"1")") << "it is hidden";
    QTest::newRow("unknown")     << QByteArray(R"("set":"tab1/none","to":"1")") << "tab 1 has no object \"none\"";
    QTest::newRow("other tab")   << QByteArray(R"("set":"tab1/mask","to":"1")") << "tab 1 has no object \"mask\"";
    QTest::newRow("tab 3")       << QByteArray(R"("set":"tab3/rate","to":"1")") << "no tab 3, the dialog has 2";
    QTest::newRow("no address")  << QByteArray(R"("set":"rate","to":"1")") << "is no object";
    QTest::newRow("no field")    << QByteArray(R"("set":"tab2/note","to":"1")") << "no field that can be set";
    QTest::newRow("frame")       << QByteArray(R"("set":"frame/rate","to":"1")") << "the frame has no field";
    QTest::newRow("no button")   << QByteArray(R"("press":"tab1/rate")") << "is no button";
    // clang-format on
}

void PlayerTest::refusesWhatAUserCannotDo() {
    QFETCH(QByteArray, step);
    QFETCH(QString, part);
    const Outcome outcome =
        play("[{\"state\":\"a\"},{" + step + ",\"try\":true},{\"state\":\"b\"},{\"accept\":true}]");
    QVERIFY(outcome.report.accepted());
    QCOMPARE(outcome.report.refused.size(), 1);
    QCOMPARE(outcome.report.refused.first().step, 2);
    const QString why = outcome.report.refused.first().why;
    QVERIFY2(why.contains(part), qPrintable(why));
    QCOMPARE(outcome.report.states.value("b"), outcome.report.states.value("a"));
}

void PlayerTest::endsOnTheFirstRefusal() {
    const Outcome outcome = play(R"([{"set":"tab1/lane","to":true},
        {"set":"tab1/locked","to":"1"},{"set":"tab1/mode","to":"Manual"},{"accept":true}])");
    QVERIFY(outcome.report.result == Report::Result::Failed);
    QCOMPARE(outcome.report.error, QString("step 2 (set tab1/locked): it is disabled"));
    QVERIFY(outcome.report.config.isEmpty());
    QCOMPARE(outcome.heard.filter("mode"), QStringList());
}

void PlayerTest::tellsRulesAsAUserDoes() {
    const Outcome outcome = play(R"([
        {"set":"tab1/rate","to":"2.5"}, {"set":"tab1/rate","to":"3."},
        {"set":"tab1/mode","to":"Auto"}, {"set":"tab1/mode","to":"Manual"},
        {"set":"tab1/lane","to":false}, {"set":"tab1/lane","to":"true"}, {"cancel":true}])");
    QVERIFY(outcome.report.result == Report::Result::Cancelled);
    // "3." is unfinished: no rule hears of it. What stands already changes nothing.
    QStringList heard = outcome.heard;
    heard.removeAll("rate 1.25"); // the field may have had the focus from the start
    QCOMPARE(heard, QStringList({"rate 2.5", "mode 1", "lane 1"}));
}

void PlayerTest::answersNestedBoxes_data() {
    QTest::addColumn<QByteArray>("answers");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QString>("heard");
    // clang-format off
    QTest::newRow("defaults") << QByteArray() << QStringList{"One|first?|Yes,No|No"} << "none";
    QTest::newRow("one answer") << QByteArray(R"({"answer":"Yes"},)")
        << QStringList{"One|first?|Yes,No|Yes", "Note|between|OK|OK", "Two|second?|Yes,Cancel|Yes"} << "both";
    QTest::newRow("two answers") << QByteArray(R"({"answer":"Yes"},{"answer":"Cancel"},)")
        << QStringList{"One|first?|Yes,No|Yes", "Note|between|OK|OK", "Two|second?|Yes,Cancel|Cancel"} << "first only";
    // clang-format on
}

void PlayerTest::answersNestedBoxes() {
    QFETCH(QByteArray, answers);
    const Outcome outcome = play("[" + answers + R"({"press":"tab1/twice"},{"accept":true}])");
    QVERIFY(outcome.report.accepted());
    QTEST(boxes(outcome.report), "shown");
    QTEST(outcome.heard.last(), "heard");
}

void PlayerTest::wrongAnswerEndsTheSession() {
    const Outcome outcome =
        play(R"([{"state":"s"},{"answer":"Maybe"},{"press":"tab1/twice"},{"accept":true}])");
    QVERIFY(outcome.report.result == Report::Result::Failed);
    QCOMPARE(outcome.report.error, QString("step 2 (answer Maybe): the button \"Maybe\" is not in "
                                           "the box \"One\", which has \"Yes\", \"No\""));
    QCOMPARE(boxes(outcome.report), QStringList{"One|first?|Yes,No|No"});
}

void PlayerTest::acceptCanBeTurnedDown() {
    const Outcome again = play(R"([{"set":"tab1/rate","to":"13"},{"accept":true},
        {"set":"tab1/rate","to":"12"},{"accept":true}])");
    QVERIFY(again.report.accepted());
    QCOMPARE(boxes(again.report), QStringList{"Failure|no 13|OK|OK"});
    const Outcome over = play(R"([{"set":"tab1/rate","to":"13"},{"accept":true}])");
    QVERIFY(over.report.result == Report::Result::Cancelled);
    QVERIFY(over.report.turnedDown);
}

void PlayerTest::answersBoxesBeforeTheDialog() {
    int answer = 0;
    const auto ask = [&answer](TrialDialog&) {
        answer = QMessageBox::question(nullptr, "Early", "now?", QMessageBox::Yes | QMessageBox::No,
                                       QMessageBox::No);
    };
    QVERIFY(play(R"([{"answer":"Yes"},{"accept":true}])", ask).report.accepted());
    QCOMPARE(answer, int(QMessageBox::Yes));
    QVERIFY(play(R"([{"accept":true}])", ask).report.accepted());
    QCOMPARE(answer, int(QMessageBox::No));
}

void PlayerTest::refusedConfiguration() {
    const Report report = Player({{Step::Kind::Accept, {}, {}, false}}, {}).run([] {
        QMessageBox::critical(nullptr, "Error", "incompatible");
        return IPSERDESIP::ConfigMap();
    });
    QVERIFY(report.result == Report::Result::Refused);
    QCOMPARE(boxes(report), QStringList{"Error|incompatible|OK|OK"});
}

void PlayerTest::closesWhatNoStepForesees() {
    const Outcome outcome = play(R"([{"press":"tab1/others"},{"accept":true}])");
    QVERIFY(outcome.report.accepted());
    QCOMPARE(outcome.heard.last(), QString("others done"));
    const QStringList shown = boxes(outcome.report);
    QCOMPARE(shown.size(), 3);
    QCOMPARE(shown.at(0), QString("Pick|QFileDialog||"));
    QCOMPARE(shown.at(1), QString("Ask|a name||"));
}

void PlayerTest::breaksALoopThatDoesNotEnd() {
    const Outcome outcome = play(R"([{"press":"tab1/forever"},{"accept":true}])", {}, 600);
    QVERIFY(outcome.report.result == Report::Result::Failed);
    QCOMPARE(outcome.report.error,
             QString("step 1 (press tab1/forever): it did not end within 0.6 s"));
    // And the next session is none the worse for it.
    QVERIFY(play(R"([{"accept":true}])").report.accepted());
}

void PlayerTest::leavesADialogThatStays() {
    const Outcome outcome =
        play(R"([{"cancel":true}])", [](TrialDialog& dialog) { dialog.staysOnCancel = true; });
    QVERIFY(outcome.report.result == Report::Result::Cancelled);
}

void PlayerTest::takesSnapshots() {
    const Report report = play(R"([{"state":"s"}])").report;
    QVERIFY(report.result == Report::Result::Cancelled);
    const QVariantMap state = report.states.value("s").toMap();
    const QVariantMap rate{
        {"class", "QLineEdit"}, {"enabled", true}, {"visible", true}, {"text", "1.25"}};
    QCOMPARE(state.value("tab1/rate").toMap(), rate);
    QCOMPARE(state.value("tab1/locked").toMap().value("enabled"), QVariant(false));
    QCOMPARE(state.value("tab1/away").toMap().value("visible"), QVariant(false));
    const QVariantList items{QVariantList{"Auto", 4}, QVariantList{"Manual", QVariant()},
                             QVariantList{"manual", "low"}};
    QCOMPARE(state.value("tab1/mode").toMap().value("items").toList(), items);
    QCOMPARE(state.value("tab1/mode").toMap().value("current"), QVariant(0));
    QCOMPARE(state.value("tab1/lane").toMap().value("checked"), QVariant(false));
    QCOMPARE(state.value("tab2/level").toMap().value("value"), QVariant(7));
    QCOMPARE(state.value("tab2/level").toMap().value("visible"), QVariant(true));
    QCOMPARE(state.value("tab2/note").toMap().value("text"), QVariant("a note"));
    // Of two of one name, the one that shows.
    QCOMPARE(state.value("tab2/group").toMap().value("text"), QVariant("a group"));
    QVERIFY(!state.contains("tab2/qt_spinbox_lineedit"));
    const QVariantList pins{
        QVariantMap{{"name", "a_o"}, {"direction", 1}, {"bus", false}, {"side", "right"}},
        QVariantMap{{"name", "b_i[3:0]"}, {"direction", 0}, {"bus", true}, {"side", "left"}}};
    QCOMPARE(report.figures.value("s").toList(), pins);
}

void PlayerTest::recordingPlaysBack_data() {
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("asks");
    // clang-format off
    QTest::newRow("fields") << QByteArray(R"([{"set":"tab1/rate","to":"2.5"},{"set":"tab1/mode","to":"manual"},
        {"set":"tab1/lane","to":true},{"set":"tab2/mask","to":"01"},{"set":"tab2/hex","to":"0f"},
        {"set":"tab2/level","to":12},{"set":"frame/fileName","to":"f"},{"accept":true}])") << false;
    QTest::newRow("boxes") << QByteArray(R"([{"answer":"Yes"},{"answer":"Cancel"},{"press":"tab1/twice"},
        {"set":"tab1/rate","to":"99"},{"set":"tab1/lane","to":true},{"accept":true},
        {"answer":"Yes"},{"accept":true}])") << true;
    QTest::newRow("field, then question") << QByteArray(R"([{"answer":"Yes"},{"set":"tab1/rate","to":"7"},
        {"accept":true}])") << true;
    QTest::newRow("turned down") << QByteArray(R"([{"set":"tab1/rate","to":"13"},{"accept":true},
        {"set":"tab1/rate","to":"14"},{"accept":true}])") << false;
    // clang-format on
}

void PlayerTest::recordingPlaysBack() {
    QFETCH(QByteArray, json);
    QFETCH(bool, asks);
    const Adapt adapt = [asks](TrialDialog& dialog) { dialog.asksOnAccept = asks; };
    const Outcome played = play(json, adapt);
    QVERIFY(played.report.accepted());
    const QByteArray recording = writeScript(played.recorded);
    const Outcome again = play(recording, adapt);
    QVERIFY2(again.report.accepted(), recording.constData());
    QCOMPARE(again.report.config, played.report.config);
    QCOMPARE(boxes(again.report), boxes(played.report));
    QCOMPARE(writeScript(again.recorded), recording);
}

QTEST_MAIN(PlayerTest)
#include "player_test.moc"
