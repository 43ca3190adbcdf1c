// A pseudo-locale: every text that the window shows goes through the translator, and nothing that
// is generated or saved does.

#include "ipgen/window/mainwindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace Window;

namespace {

/// Puts every text in brackets.
class Brackets : public QTranslator {
public:
    QString translate(const char*, const char* source, const char*, int) const override {
        return QLatin1Char('[') + QString::fromUtf8(source) + QLatin1Char(']');
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TranslationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyTextIsTranslated();
    void savedFileIsNot();

private:
    QTemporaryDir m_home;
    Brackets m_brackets;
};

void TranslationTest::initTestCase() {
    qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
    qputenv("XDG_CACHE_HOME", m_home.path().toUtf8());
    QVERIFY(QCoreApplication::installTranslator(&m_brackets));
}

void TranslationTest::everyTextIsTranslated() {
    MainWindow window;
    QStringList plain;
    int looked = 0;
    const auto look = [&](const QObject* object, const QString& text) {
        if (!text.isEmpty()) {
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
        if (!widget->objectName().startsWith(QLatin1String("qt_"))) {
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

void TranslationTest::savedFileIsNot() {
    MainWindow window;
    window.start({}, QString());
    const QString folder = m_home.filePath(QStringLiteral("p"));
    QVERIFY(window.workbench()->newProject(folder, QStringLiteral("RZ7X-60B")).ok());
    QFile file(folder + QStringLiteral("/project.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!file.readAll().contains('['));
}

QTEST_MAIN(TranslationTest)
#include "translation_test.moc"
