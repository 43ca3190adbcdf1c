// In another language the frame around the pages is translated, and the IP's pages, messages and
// saved texts stand as they do in English.

#include "harness.h"

#include <serdesip/protocolgendlg.h>

#include <QTabWidget>
#include <QTranslator>
#include <QtTest>

using namespace DialogTest;

namespace {

/// What the pages show, name for name.
QStringList textsOf(const Dialog& dialog) {
    QStringList texts;
    for (int number = 1; number <= dialog.pageCount(); ++number) {
        texts.append(dialog.tabTitle(number));
        const QList<QWidget*> widgets = dialog.page(number)->findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            if (widget->objectName().isEmpty()) {
                continue; // the frame's, not the page's
            }
            QString text =
                widget->property("text").toString() + widget->property("title").toString();
            if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
                for (int i = 0; i < combo->count(); ++i) {
                    text += QLatin1Char('|') + combo->itemText(i);
                }
            }
            texts.append(widget->objectName() + QLatin1Char('=') + text);
        }
    }
    return texts;
}

struct Seen {
    QString fileCaption;
    QStringList pages;
    QStringList synthesisTools;
    QStringList messages;
    ConfigMap config;
};

Seen look() {
    Seen seen;
    Bench bench("RZ7X-60B");
    seen.config = bench.create([&](Dialog& dialog) {
        const QList<QLabel*> labels = dialog->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            if (label->buddy() != nullptr && label->buddy()->objectName() == "fileName") {
                seen.fileCaption = label->text();
            }
        }
        auto* tool = dialog->findChild<QComboBox*>("synthesisTool");
        for (int i = 0; i < tool->count(); ++i) {
            seen.synthesisTools.append(tool->itemText(i));
        }
        tool->setCurrentIndex(2);
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.type("TXLineRate", "7.77"));
        QVERIFY(dialog.click("ButtonCalculate"));
        QVERIFY(dialog.type("TXLineRate", "1.25"));
        seen.pages = textsOf(dialog);
        dialog.pressOk();
    });
    seen.messages = bench.takeMessages();
    return seen;
}

} // namespace

class LanguageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void frameOnly();
};

void LanguageTest::frameOnly() {
    const Seen english = look();
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(BUILD_DIR "/share/ipgen/translations/ipgen_de")));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const Seen german = look();

    QCOMPARE(english.fileCaption, QStringLiteral("File Name:"));
    QCOMPARE(german.fileCaption, QStringLiteral("Dateiname:"));
    QVERIFY(english.pages.size() > 200);
    QCOMPARE(german.pages, english.pages);
    QCOMPARE(german.synthesisTools, (QStringList{"Yosys", "Other", "None"}));
    QVERIFY(!english.messages.isEmpty());
    QCOMPARE(german.messages, english.messages);
    QCOMPARE(english.config.value("Synthesis_tool"), QVariant("None"));
    QCOMPARE(german.config, english.config);
}

QTEST_MAIN(LanguageTest)
#include "language_test.moc"
