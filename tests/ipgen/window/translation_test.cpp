// Every text that the window shows is found in the compiled translations under the context that it
// is asked for with, and nothing that is saved is translated. The language is the environment's.

#include "ipgen/core/translation.h"
#include "ipgen/window/mainwindow.h"

#include <serdesip/dialogview.h>
#include <serdesip/protocolgendlg.h>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace Window;

namespace {

/// A pseudo-locale: puts every text in brackets that the German translation has.
class Brackets : public QTranslator {
public:
    Brackets() {
        if (!m_german.load(QStringLiteral(BUILD_DIR "/share/ipgen/translations/ipgen_de"))) {
            qFatal("no German translation");
        }
    }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override {
        return m_german.translate(context, source, disambiguation, n).isEmpty()
                   ? QString()
                   : QLatin1Char('[') + QString::fromUtf8(source) + QLatin1Char(']');
    }
    bool isEmpty() const override { return false; }

private:
    QTranslator m_german;
};

} // namespace

class TranslationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void everyTextIsTranslated();
    void refusalsAreTranslated();
    void savedFileIsNot();
    void language_data();
    void language();

private:
    QTemporaryDir m_home;
    Brackets m_brackets;
};

void TranslationTest::initTestCase() {
    qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
    qputenv("XDG_CACHE_HOME", m_home.path().toUtf8());
}

void TranslationTest::init() {
    QVERIFY(QCoreApplication::installTranslator(&m_brackets));
}

void TranslationTest::cleanup() {
    QVERIFY(QCoreApplication::removeTranslator(&m_brackets));
}

void TranslationTest::everyTextIsTranslated() {
    MainWindow window;
    window.show(); // the first page; the views are made when they are looked at
    window.start({}, QString());
    QVERIFY(window.workbench()
                ->newProject(m_home.filePath(QStringLiteral("all")), QStringLiteral("RZ7X-60B"))
                .ok());
    auto* views = window.findChild<QTabWidget*>(QStringLiteral("views"));
    for (int i = 0; i < views->count(); ++i) {
        views->setCurrentIndex(i);
    }
    QStringList plain;
    int looked = 0;
    // What these show has its name from the user or from the device database.
    const QStringList names{QStringLiteral("projectLabel"), QStringLiteral("folderLabel"),
                            QStringLiteral("deviceLabel")};
    const auto look = [&](const QObject* object, const QString& text) {
        if (!text.isEmpty() && !names.contains(object->objectName())) {
            ++looked;
            if (!text.contains(QLatin1Char('['))) {
                plain.append(object->objectName() + QStringLiteral(": ") + text);
            }
        }
    };
    const QList<QAction*> actions = window.findChildren<QAction*>();
    for (const QAction* action : actions) {
        look(action, action->text());
        look(action, action->statusTip());
    }
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        look(widget, widget->toolTip());
        const bool qts = widget->objectName().startsWith(QLatin1String("qt_")) ||
                         qobject_cast<const QTabBar*>(widget->parentWidget()) != nullptr;
        if (!qts) {
            look(widget, widget->accessibleName());
        }
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            look(label, label->text());
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            look(button, button->text());
        } else if (const auto* edit = qobject_cast<const QLineEdit*>(widget)) {
            look(edit, edit->placeholderText());
        } else if (const auto* tabs = qobject_cast<const QTabWidget*>(widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                look(tabs, tabs->tabText(i));
            }
        }
    }
    QVERIFY(looked > 80);
    QCOMPARE(plain.join(QLatin1Char('\n')), QString());
}

/// Why a field does not take what a preset says is told in the dialog.
void TranslationTest::refusalsAreTranslated() {
    IPSERDESIP::protocolGenDlg dialog;
    auto* lane = new QComboBox(&dialog);
    lane->setObjectName(QStringLiteral("lane"));
    lane->addItem(QStringLiteral("Q0"));
    const IPSERDESIP::DialogView view(&dialog);
    dialog.show();
    QCOMPARE(view.setField(QStringLiteral("frame/lane"), QStringLiteral("Q7")),
             QStringLiteral("[it has no item \"Q7\"; it has \"Q0\"]"));
    lane->setEnabled(false);
    QCOMPARE(view.setField(QStringLiteral("frame/lane"), QStringLiteral("Q0")),
             QStringLiteral("[it is disabled]"));
}

void TranslationTest::savedFileIsNot() {
    MainWindow window;
    window.start({}, QString());
    const QString folder = m_home.filePath(QStringLiteral("p"));
    QVERIFY(window.workbench()->newProject(folder, QStringLiteral("RZ7X-60B")).ok());
    QFile file(folder + QStringLiteral("/project.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!file.readAll().contains('['));
}

void TranslationTest::language_data() {
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("menu");
    const QString english = QStringLiteral("&View");
    const QString german = QStringLiteral("&Ansicht");
    QTest::newRow("none") << QStringList() << "" << english;
    QTest::newRow("C") << QStringList{"C"} << "" << english;
    QTest::newRow("German") << QStringList{"de-DE"} << "de" << german;
    QTest::newRow("Austrian") << QStringList{"de-AT"} << "de" << german;
    QTest::newRow("no file of it") << QStringList{"tr-TR"} << "" << english;
    QTest::newRow("the second") << QStringList{"tr-TR", "de-DE"} << "de" << german;
    QTest::newRow("English first") << QStringList{"en-GB", "de-DE"} << "" << english;
}

void TranslationTest::language() {
    QFETCH(QStringList, languages);
    QFETCH(QString, language);
    QFETCH(QString, menu);
    QVERIFY(QCoreApplication::removeTranslator(&m_brackets));
    {
        const Ipgen::Translation translation(languages);
        QCOMPARE(translation.language(), language);
        QCOMPARE(QCoreApplication::translate("Actions", "&View"), menu);
    }
    QCOMPARE(QCoreApplication::translate("Actions", "&View"), QStringLiteral("&View"));
    QVERIFY(QCoreApplication::installTranslator(&m_brackets));
}

QTEST_MAIN(TranslationTest)
#include "translation_test.moc"
