// Undo and redo of the frame over the real pages: whatever a user does, undoing it all shows each
// state on the way again, rules included, and redoing it all leads back.

#include "harness.h"

#include <serdesip/protocolgendlg.h>

#include <QAction>
#include <QRandomGenerator>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

using DialogTest::Bench;
using DialogTest::Dialog;

namespace {

struct Field {
    int page;
    QWidget* widget;
    QString name; ///< "page/name"
};

QList<Field> fieldsOf(const Dialog& dialog) {
    QList<Field> fields;
    for (int page = 1; page <= dialog.pageCount(); ++page) {
        const QList<QWidget*> widgets = dialog.page(page)->findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            const bool edited = qobject_cast<QLineEdit*>(widget) != nullptr ||
                                qobject_cast<QComboBox*>(widget) != nullptr ||
                                qobject_cast<QCheckBox*>(widget) != nullptr ||
                                qobject_cast<QSpinBox*>(widget) != nullptr;
            const QString name = widget->objectName();
            if (edited && !name.isEmpty() && !name.startsWith(QLatin1String("qt_"))) {
                fields.append({page, widget, QStringLiteral("%1/%2").arg(page).arg(name)});
            }
        }
    }
    return fields;
}

/// What every field shows, and whether it is locked.
QStringList stateOf(const Dialog& dialog, const QList<Field>& fields) {
    QStringList state;
    for (const Field& field : fields) {
        state.append(field.name + QLatin1Char('=') + dialog.text(field.name) +
                     (field.widget->isEnabled() ? QString() : QStringLiteral(" locked")));
    }
    return state;
}

/// One edit by hand of the field in front; what a random user would do.
void editField(QWidget* widget, QRandomGenerator& random) {
    widget->setFocus();
    if (qobject_cast<QComboBox*>(widget) != nullptr) {
        QTest::keyClick(widget, random.bounded(2) == 0 ? Qt::Key_Down : Qt::Key_Up);
    } else if (qobject_cast<QCheckBox*>(widget) != nullptr) {
        QTest::keyClick(widget, Qt::Key_Space);
    } else if (auto* spin = qobject_cast<QSpinBox*>(widget)) {
        spin->selectAll();
        QTest::keyClicks(spin, QString::number(random.bounded(10)));
        QTest::keyClick(spin, Qt::Key_Return);
    } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        const QStringList texts = {"0.5", "2.5", "100", "7C", "156.25", "5"};
        edit->selectAll();
        QTest::keyClicks(edit, texts.at(random.bounded(texts.size())));
        QTest::keyClick(edit, Qt::Key_Return);
    }
    QCoreApplication::processEvents();
}

QAction* actionOf(const Dialog& dialog, const char* name) {
    return dialog->findChild<QToolButton*>(QString::fromLatin1(name))->defaultAction();
}

QString firstDifference(const QStringList& is, const QStringList& wanted) {
    for (int i = 0; i < is.size(); ++i) {
        if (is.at(i) != wanted.at(i)) {
            return is.at(i) + QStringLiteral(" instead of ") + wanted.at(i);
        }
    }
    return {};
}

} // namespace

class UndoWalkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void walk_data();
    void walk();
};

void UndoWalkTest::walk_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<uint>("seed");
    for (const char* device : {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"}) {
        for (const uint seed : {1U, 2U}) {
            QTest::addRow("%s seed %u", device, seed) << QString::fromLatin1(device) << seed;
        }
    }
}

void UndoWalkTest::walk() {
    QFETCH(QString, device);
    QFETCH(uint, seed);
    Bench bench(device);
    QStringList faults;
    int steps = 0;
    int boxesOfUndoing = 0;
    bench.create([&](Dialog& dialog) {
        const QList<Field> fields = fieldsOf(dialog);
        auto* tabs = dialog->findChild<QTabWidget*>(QStringLiteral("tabs"));
        QRandomGenerator random(seed);
        QList<QStringList> states{stateOf(dialog, fields)};
        for (int i = 0; i < 150; ++i) {
            const Field& field = fields.at(random.bounded(fields.size()));
            tabs->setCurrentIndex(field.page - 1);
            if (field.widget->isVisible() && field.widget->isEnabled()) {
                editField(field.widget, random);
            }
            const QStringList now = stateOf(dialog, fields);
            if (now != states.last()) {
                states.append(now);
            }
        }
        steps = states.size() - 1;
        bench.takeBoxes();

        const auto compare = [&](int place, const char* what) {
            QCoreApplication::processEvents();
            const QString fault = firstDifference(stateOf(dialog, fields), states.at(place));
            if (!fault.isEmpty()) {
                faults.append(
                    QStringLiteral("%1 %2: %3").arg(QLatin1String(what)).arg(place).arg(fault));
            }
        };
        for (int i = steps - 1; i >= 0; --i) {
            actionOf(dialog, "undo")->trigger();
            compare(i, "undo to");
        }
        if (actionOf(dialog, "undo")->isEnabled()) {
            faults.append(QStringLiteral("more to undo than was done"));
        }
        for (int i = 1; i <= steps; ++i) {
            actionOf(dialog, "redo")->trigger();
            compare(i, "redo to");
        }
        boxesOfUndoing = bench.takeBoxes().size();
    });
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    QVERIFY2(steps > 30, qPrintable(QString::number(steps)));
    QCOMPARE(boxesOfUndoing, 0);
}

QTEST_MAIN(UndoWalkTest)
#include "undo_walk_test.moc"
