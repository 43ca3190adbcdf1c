// The presets that come with the IP, over the real pages: what the list shows is what changes, one
// Undo takes it back, and what a rule refuses is told.

#include "harness.h"

#include <core/idecore.h>
#include <dev/devicedb.h>
#include <serdesip/dialogview.h>
#include <serdesip/frameservices.h>
#include <serdesip/preset.h>
#include <serdesip/protocolgendlg.h>
#include <utils/jsontext.h>

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <functional>

using DialogTest::Bench;
using DialogTest::ConfigMap;
using DialogTest::Dialog;
using IPSERDESIP::FrameServices;
using IPSERDESIP::Preset;
using IPSERDESIP::PresetStore;

namespace {

const QStringList allDevices{"RZ7X-60B", "RZ7X-60ES", "RZ7X-15A",   "RZ7XR-15A", "RZ7XR-15B",
                             "RZ7X-15B", "RZ7NX-15A", "RZ7NXR-15A", "RZ7X-138",  "RZ7X-138B"};

const QString ipPresets = QStringLiteral(SOURCE_DIR "/ip/data/presets");

PresetStore builtIn() {
    return PresetStore(ipPresets, QString());
}

QList<Preset> builtInPresets() {
    return builtIn().presets();
}

/// What the preset's fields are to show: of several settings of one field the last counts.
QMap<QString, QString> settingsOf(const QString& name) {
    QMap<QString, QString> settings;
    const QList<Preset> presets = builtInPresets();
    for (const Preset& preset : presets) {
        for (const IPSERDESIP::PresetStep& step : preset.steps) {
            if (preset.name == name) {
                settings.insert(step.object, step.to.toString());
            }
        }
    }
    return settings;
}

QString classOf(const QString& device) {
    return device.contains(QLatin1String("-60"))    ? QStringLiteral("60k")
           : device.contains(QLatin1String("-138")) ? QStringLiteral("138k")
                                                    : QStringLiteral("15k");
}

/// Every field's name and what it shows.
QMap<QString, QString> valuesOf(const Dialog& dialog) {
    const IPSERDESIP::DialogView view(dialog.get());
    QMap<QString, QString> values;
    const QList<QWidget*> widgets = dialog->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        QString shown;
        if (const auto* edit = qobject_cast<QLineEdit*>(widget)) {
            shown = edit->displayText();
        } else if (const auto* combo = qobject_cast<QComboBox*>(widget)) {
            shown = combo->currentText();
        } else if (const auto* box = qobject_cast<QCheckBox*>(widget)) {
            shown = QVariant(box->isChecked()).toString();
        } else if (const auto* spin = qobject_cast<QSpinBox*>(widget)) {
            shown = QString::number(spin->value());
        } else {
            continue;
        }
        const QString name = view.nameOf(widget);
        if (!name.isEmpty() && !widget->objectName().startsWith(QLatin1String("qt_"))) {
            values.insert(name, shown);
        }
    }
    return values;
}

/// "old -> new" of every difference, sorted: what the list's rows are compared with.
QStringList differences(const QMap<QString, QString>& before, const QMap<QString, QString>& after) {
    const auto shown = [](const QString& value) {
        return value == QLatin1String("true")    ? QStringLiteral("on")
               : value == QLatin1String("false") ? QStringLiteral("off")
               : value.isEmpty()                 ? QString(QChar(0x2013))
                                                 : value;
    };
    QStringList list;
    for (auto it = before.begin(); it != before.end(); ++it) {
        if (after.value(it.key()) != it.value()) {
            list.append(shown(it.value()) + QLatin1String(" -> ") + shown(after.value(it.key())));
        }
    }
    list.sort();
    return list;
}

/// What the preview has shown.
struct Preview {
    bool shown = false;
    QStringList rows;     ///< "old -> new", sorted
    QStringList captions; ///< in the order of the list
    QString refusals;
};

QStringList offered(const Dialog& dialog) {
    auto* menu = dialog->findChild<QMenu*>(QStringLiteral("presetMenu"));
    Q_EMIT menu->aboutToShow();
    QStringList names;
    for (const QAction* action : menu->actions()) {
        if (action->objectName().startsWith(QLatin1String("preset:"))) {
            names.append(action->objectName().mid(7));
        }
    }
    return names;
}

/// Calls `act`, which opens the modal dialog of that name, and has it looked at and then closed.
/// @return whether it came up
bool withDialog(const char* name, const std::function<void()>& act,
                const std::function<void(QDialog& open)>& look) {
    bool came = false;
    QTimer looker;
    QObject::connect(&looker, &QTimer::timeout, [&] {
        const QPointer<QDialog> open = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!open || open->objectName() != QLatin1String(name)) {
            return;
        }
        came = true;
        look(*open);
        if (open && open->isVisible()) {
            open->reject();
        }
    });
    looker.start(5);
    act();
    QCoreApplication::processEvents();
    return came;
}

/// Chooses the preset in the menu and looks at the preview, then presses Apply or Cancel.
Preview choose(const Dialog& dialog, const QString& name, bool applies) {
    Preview preview;
    auto* menu = dialog->findChild<QMenu*>(QStringLiteral("presetMenu"));
    Q_EMIT menu->aboutToShow();
    auto* action = menu->findChild<QAction*>(QLatin1String("preset:") + name);
    if (action == nullptr) {
        return preview;
    }
    const auto look = [&](QDialog& open) {
        const auto* tree = open.findChild<QTreeWidget*>(QStringLiteral("changes"));
        for (QTreeWidgetItemIterator it(const_cast<QTreeWidget*>(tree)); *it != nullptr; ++it) {
            if ((*it)->parent() != nullptr) {
                preview.captions.append((*it)->text(0));
                preview.rows.append((*it)->text(1) + QLatin1String(" -> ") + (*it)->text(2));
            }
        }
        preview.rows.sort();
        if (const auto* text = open.findChild<QPlainTextEdit*>(QStringLiteral("refusals"))) {
            preview.refusals = text->toPlainText();
        }
        auto* apply = open.findChild<QPushButton*>(QStringLiteral("applyPreset"));
        if (applies && apply->isEnabled()) {
            apply->click();
        }
    };
    preview.shown = withDialog(
        "presetPreview", [&] { action->trigger(); }, look);
    return preview;
}

} // namespace

class PresetsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tenOfThem();
    void offeredWhereTheySuit_data();
    void offeredWhereTheySuit();
    void applied_data();
    void applied();
    void overOtherEdits_data();
    void overOtherEdits();
    void cancelChangesNothing();
    void refusalsAreTold();
    void twinCaptionsNameTheirGroup();
    void savedAndAppliedAgain();
    void othersPresetsAreSeen();
    void aCancelledTrialLeavesTheAnswer_data();
    void aCancelledTrialLeavesTheAnswer();

private:
    QTemporaryDir m_own;
};

void PresetsTest::init() {
    FrameServices services;
    services.ipPresets = ipPresets;
    services.ownPresets = m_own.path();
    FrameServices::lend(services);
}

void PresetsTest::tenOfThem() {
    const PresetStore store = builtIn();
    for (const PresetStore::Fault& fault : store.faults()) {
        QFAIL(qPrintable(fault.file + QLatin1String(": ") + fault.reason));
    }
    QCOMPARE(store.presets().size(), 10);
    for (const Preset& preset : store.presets()) {
        QVERIFY2(!preset.summary.isEmpty(), qPrintable(preset.name));
    }
}

void PresetsTest::offeredWhereTheySuit_data() {
    QTest::addColumn<QString>("device");
    for (const QString& device : allDevices) {
        QTest::newRow(qPrintable(device)) << device;
    }
}

void PresetsTest::offeredWhereTheySuit() {
    QFETCH(QString, device);
    Bench bench(device);
    QStringList wanted;
    const QList<Preset> presets = builtInPresets();
    for (const Preset& preset : presets) {
        if (preset.devices.contains(classOf(device))) {
            wanted.append(preset.name);
        }
    }
    QStringList names;
    bench.create([&](Dialog& dialog) { names = offered(dialog); });
    QCOMPARE(names, wanted);
    QVERIFY(wanted.size() >= 4 && wanted.size() < 10);
}

void PresetsTest::applied_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("name");
    const QList<Preset> presets = builtInPresets();
    for (const QString& device : allDevices) {
        for (const Preset& preset : presets) {
            if (preset.devices.contains(classOf(device))) {
                QTest::addRow("%s, %s", qPrintable(preset.name), qPrintable(device))
                    << device << preset.name;
            }
        }
    }
}

void PresetsTest::applied() {
    QFETCH(QString, device);
    QFETCH(QString, name);
    Bench bench(device);
    const QMap<QString, QString> wanted = settingsOf(name);
    QMap<QString, QString> before;
    QMap<QString, QString> after;
    QMap<QString, QString> undone;
    QMap<QString, QString> redone;
    Preview preview;
    bool canUndoMore = true;
    const ConfigMap config = bench.create([&](Dialog& dialog) {
        before = valuesOf(dialog);
        preview = choose(dialog, name, true);
        after = valuesOf(dialog);
        QAction* undo = dialog->findChild<QToolButton*>("undo")->defaultAction();
        undo->trigger();
        undone = valuesOf(dialog);
        canUndoMore = undo->isEnabled();
        dialog->findChild<QToolButton*>("redo")->defaultAction()->trigger();
        redone = valuesOf(dialog);
        dialog.pressOk();
    });
    QVERIFY(preview.shown);
    QCOMPARE(preview.refusals, QString());
    QCOMPARE(preview.rows, differences(before, after));
    QVERIFY(preview.rows.size() >= 4);
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        QCOMPARE(after.value(it.key()), it.value());
    }
    QCOMPARE(undone, before);
    QVERIFY(!canUndoMore);
    QCOMPARE(redone, after);
    QVERIFY2(!config.isEmpty(), "not accepted");
}

void PresetsTest::overOtherEdits_data() {
    applied_data();
}

/// From a state that a user has worked on: the list is still what changes, and Undo leads there.
void PresetsTest::overOtherEdits() {
    QFETCH(QString, device);
    QFETCH(QString, name);
    Bench bench(device);
    QMap<QString, QString> before;
    QMap<QString, QString> after;
    QMap<QString, QString> undone;
    Preview preview;
    bench.create([&](Dialog& dialog) {
        dialog.check(QStringLiteral("q0_l2"), true);
        dialog.choose(QStringLiteral("comboBoxMode"), QStringLiteral("Manual"));
        dialog.choose(QStringLiteral("CombBoxPLLSelection"), QStringLiteral("QPLL0"));
        dialog.type(QStringLiteral("TXLineRate"), QStringLiteral("0.5"));
        dialog.choose(QStringLiteral("comboBoxClockCorrection"), QStringLiteral("Two Words"));
        dialog.type(QStringLiteral("lineEditCTCPattern1"), QStringLiteral("3C"));
        dialog.choose(QStringLiteral("ffeModeCombox"), QStringLiteral("Manual"));
        dialog.setNumber(QStringLiteral("cmSpinBox"), 3);
        if (classOf(device) != QLatin1String("138k")) {
            dialog.choose(QStringLiteral("comboBoxTXInternalDataWidth"), QStringLiteral("16"));
            dialog.choose(QStringLiteral("comboBoxTXExternalDataRatio"), QStringLiteral("1:4"));
            dialog.choose(QStringLiteral("comboBoxTxEncoding"), QStringLiteral("64B67B"));
        }
        before = valuesOf(dialog);
        preview = choose(dialog, name, true);
        after = valuesOf(dialog);
        dialog->findChild<QToolButton*>("undo")->defaultAction()->trigger();
        undone = valuesOf(dialog);
    });
    QVERIFY(preview.shown);
    QCOMPARE(preview.rows, differences(before, after));
    QVERIFY(!preview.rows.isEmpty());
    QCOMPARE(preview.refusals, QString());
    const QMap<QString, QString> wanted = settingsOf(name);
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        QCOMPARE(after.value(it.key()), it.value());
    }
    QCOMPARE(undone, before);
}

void PresetsTest::cancelChangesNothing() {
    Bench bench(QStringLiteral("RZ7X-60B"));
    QMap<QString, QString> before;
    QMap<QString, QString> after;
    Preview preview;
    bool canUndo = true;
    bench.create([&](Dialog& dialog) {
        before = valuesOf(dialog);
        preview = choose(dialog, QStringLiteral("Gigabit link, 1.25G 8B/10B"), false);
        after = valuesOf(dialog);
        canUndo = dialog->findChild<QToolButton*>("undo")->defaultAction()->isEnabled();
    });
    QVERIFY(preview.shown);
    QCOMPARE(after, before);
    QVERIFY(!canUndo);
    QVERIFY(bench.takeMessages().isEmpty());
}

/// Lane 0 is another instance's: the rest is applied, and the lane is named.
void PresetsTest::refusalsAreTold() {
    Bench bench(QStringLiteral("RZ7X-60B"));
    bench.occupy(QStringLiteral("other"), DialogTest::holder({QStringLiteral("Q0 Lane0")}));
    Preview preview;
    QString strip;
    QString rate;
    bench.create([&](Dialog& dialog) {
        preview = choose(dialog, QStringLiteral("Serial bus, 5G 8B/10B"), true);
        strip = dialog->findChild<QWidget*>("messageStrip")->accessibleDescription();
        rate = dialog.text(QStringLiteral("TXLineRate"));
    });
    QCOMPARE(preview.refusals, QStringLiteral("Q0 Lane0 (on): it is disabled"));
    QVERIFY2(strip.endsWith(QLatin1String("not taken over: Q0 Lane0 (on): it is disabled")),
             qPrintable(strip));
    QCOMPARE(rate, QStringLiteral("5"));
}

void PresetsTest::twinCaptionsNameTheirGroup() {
    Bench bench(QStringLiteral("RZ7X-15A"));
    Preview preview;
    bench.create([&](Dialog& dialog) {
        preview = choose(dialog, QStringLiteral("Four bonded lanes, 3.125G 8B/10B"), false);
    });
    QStringList once = preview.captions;
    once.removeDuplicates();
    QCOMPARE(once, preview.captions);
    QCOMPARE(preview.captions.value(0), QStringLiteral("Q0 Lane0")); // the pages in their order
}

/// What is saved in one dialog gives the same fields in the next.
void PresetsTest::savedAndAppliedAgain() {
    Bench bench(QStringLiteral("RZ7X-60B"));
    QMap<QString, QString> saved;
    bench.create([&](Dialog& dialog) {
        dialog.check(QStringLiteral("q0_l1"), true);
        dialog.choose(QStringLiteral("CombBoxPLLSelection"), QStringLiteral("QPLL1"));
        dialog.type(QStringLiteral("TXLineRate"), QStringLiteral("0.5"));
        dialog.choose(QStringLiteral("comboBoxTxLineRatio"), QStringLiteral("10x"));
        dialog.type(QStringLiteral("ReferenceClockFrequency"), QStringLiteral("100"));
        dialog.choose(QStringLiteral("comboBoxRxDecoding"), QStringLiteral("8B10B"));
        dialog.choose(QStringLiteral("ffeModeCombox"), QStringLiteral("Manual"));
        dialog.setNumber(QStringLiteral("c1SpinBox"), 5);
        saved = valuesOf(dialog);
        const auto save = [](QDialog& open) {
            open.findChild<QLineEdit*>(QStringLiteral("presetName"))->setText("My link");
            QCOMPARE(open.findChild<QPlainTextEdit*>(QStringLiteral("lost")), nullptr);
            open.accept();
        };
        QVERIFY(withDialog(
            "savePreset",
            [&] { dialog->findChild<QAction*>(QStringLiteral("savePreset"))->trigger(); }, save));
        QCOMPARE(valuesOf(dialog), saved);
    });
    QVERIFY(QFile::exists(m_own.filePath(QStringLiteral("My link.json"))));
    QMap<QString, QString> again;
    QStringList names;
    Preview preview;
    bench.create([&](Dialog& dialog) {
        names = offered(dialog);
        preview = choose(dialog, QStringLiteral("My link"), true);
        again = valuesOf(dialog);
    });
    QCOMPARE(names.value(0), QStringLiteral("My link"));
    QCOMPARE(preview.refusals, QString());
    QCOMPARE(again, saved);
}

/// What another program has saved since the dialog came up is managed, and not overwritten unasked.
void PresetsTest::othersPresetsAreSeen() {
    Bench bench(QStringLiteral("RZ7X-60B"));
    QStringList managed;
    bench.create([&](Dialog& dialog) {
        Preset other = builtInPresets().value(0);
        other.name = QStringLiteral("Theirs");
        QCOMPARE(PresetStore(ipPresets, m_own.path()).save(other), QString());
        QVERIFY(withDialog(
            "managePresets",
            [&] { dialog->findChild<QAction*>(QStringLiteral("managePresets"))->trigger(); },
            [&](QDialog& open) {
                const auto* list = open.findChild<QListWidget*>(QStringLiteral("ownPresets"));
                for (int i = 0; i < list->count(); ++i) {
                    managed.append(list->item(i)->text());
                }
            }));
        other.name = QStringLiteral("Theirs too");
        QCOMPARE(PresetStore(ipPresets, m_own.path()).save(other), QString());
        QVERIFY(withDialog(
            "savePreset",
            [&] { dialog->findChild<QAction*>(QStringLiteral("savePreset"))->trigger(); },
            [&](QDialog& open) {
                open.findChild<QLineEdit*>(QStringLiteral("presetName"))->setText("Theirs too");
                open.accept();
            }));
    });
    QVERIFY2(managed.contains(QStringLiteral("Theirs")), qPrintable(managed.join(", ")));
    const QString asked = bench.takeMessages().join(QLatin1Char('\n'));
    QVERIFY2(asked.contains(QStringLiteral("There is a preset \"Theirs too\" already.")),
             qPrintable(asked));
}

void PresetsTest::aCancelledTrialLeavesTheAnswer_data() {
    QTest::addColumn<bool>("saves");
    QTest::newRow("saving, and not after all") << true;
    QTest::newRow("looking at one") << false;
}

/// What was agreed on for the other lanes is no field, and holds as long as the fields do.
void PresetsTest::aCancelledTrialLeavesTheAnswer() {
    QFETCH(bool, saves);
    Bench bench(QStringLiteral("RZ7X-60B"));
    bench.answer(QStringLiteral("Yes"));
    const ConfigMap config = bench.create([&](Dialog& dialog) {
        dialog.check(QStringLiteral("q0_l0"), true);
        dialog.setNumber(QStringLiteral("biasSpinBox"), 11);
        dialog.pressOk();
    });
    QVERIFY(config.value(QStringLiteral("ifChangedAllOfBias")).toBool());
    bench.takeMessages();
    const ConfigMap again = bench.open(config, [&](Dialog& dialog) {
        if (saves) {
            QVERIFY(withDialog(
                "savePreset",
                [&] { dialog->findChild<QAction*>(QStringLiteral("savePreset"))->trigger(); },
                [](QDialog& open) { open.reject(); }));
        } else {
            choose(dialog, QStringLiteral("Four bonded lanes, 3.125G 8B/10B"), false);
        }
        dialog.pressOk();
    });
    QCOMPARE(bench.takeMessages(), QStringList());
    QCOMPARE(again, config);
}

QTEST_MAIN(PresetsTest)
#include "presets_test.moc"
