// Marks, resetting, undo and redo over a page with a few rules of its own.

#include "fieldkeeper.h"
#include "fieldmark.h"
#include "fieldvalue.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QTest>

#include <memory>

using IPSERDESIP::FieldKeeper;
using IPSERDESIP::FieldMark;
namespace fieldvalue = IPSERDESIP::fieldvalue;

namespace {

template <typename Widget>
Widget* named(const char* name) {
    auto* widget = new Widget;
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

/// A page whose rules work as those of a protocol do: "Auto" locks and resets the level, and the
/// rate decides which ratios there are.
struct Page {
    QWidget window;
    QLineEdit* rate = named<QLineEdit>("rate");
    QComboBox* ratio = named<QComboBox>("ratio");
    QComboBox* mode = named<QComboBox>("mode");
    QSpinBox* level = named<QSpinBox>("level");
    QCheckBox* lane = named<QCheckBox>("lane");
    QLineEdit* mask = named<QLineEdit>("mask");
    FieldKeeper keeper;

    Page() {
        auto* form = new QFormLayout(&window);
        for (QWidget* field :
             std::initializer_list<QWidget*>{rate, ratio, mode, level, lane, mask}) {
            form->addRow(field->objectName(), field);
        }
        rate->setText(QStringLiteral("1.25"));
        mode->addItems({QStringLiteral("Auto"), QStringLiteral("Manual")});
        level->setValue(7);
        level->setEnabled(false);
        mask->setInputMask(QStringLiteral("BBBB;0"));
        mask->setText(QStringLiteral("0101"));
        ratio->addItem(QStringLiteral("NA"));
        QObject::connect(rate, &QLineEdit::editingFinished, [this] { fillRatios(); });
        QObject::connect(mode, &QComboBox::currentTextChanged, [this] { applyMode(); });
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        keeper.watch(fieldvalue::fieldsOf(window));
    }

    void fillRatios() {
        const bool slow = rate->text().toDouble() < 1.0;
        const QString wanted = slow ? QStringLiteral("5x") : QStringLiteral("NA");
        if (ratio->itemText(0) != wanted) {
            ratio->clear();
            ratio->addItems(slow ? QStringList{"5x", "10x"} : QStringList{"NA"});
        }
    }

    void applyMode() {
        const bool automatic = mode->currentText() == QLatin1String("Auto");
        if (automatic) {
            level->setValue(7);
        }
        level->setEnabled(!automatic);
    }

    QString state() const {
        QStringList values;
        for (const QWidget* field : fieldvalue::fieldsOf(window)) {
            values.append(fieldvalue::read(*field));
        }
        return values.join(QLatin1Char(' '));
    }

    void type(QLineEdit* edit, const char* text) const {
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, QString::fromLatin1(text));
        QTest::keyClick(edit, Qt::Key_Return);
        QApplication::processEvents();
    }
    void choose(QComboBox* combo, Qt::Key key) const {
        combo->setFocus();
        QTest::keyClick(combo, key);
        QApplication::processEvents();
    }
    void click(QCheckBox* box) const {
        QTest::keyClick(box, Qt::Key_Space);
        QApplication::processEvents();
    }
    int marks() const {
        int shown = 0;
        const QList<FieldMark*> all = window.findChildren<FieldMark*>();
        for (const FieldMark* mark : all) {
            shown += mark->isVisible() ? 1 : 0;
        }
        return shown;
    }
};

} // namespace

class FieldKeeperTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fieldsAndValues();
    void nothingAtFirst();
    void undoAndRedoOneEdit();
    void anEditIsOneStepWithItsConsequences();
    void listsAreBackBeforeTheirChoice();
    void anotherEditDropsWhatWasUndone();
    void textIsOneStep();
    void loadingIsNoStep();
    void marksFollow();
    void lockedFieldsAreNotMarked();
    void markLiesAtItsField();
    void resetOneField();
    void menuResets();
    void severalEditsInOneStep();
    void rehearsalLeavesNoTrace();
    void maskedValuesKeepZeros();
    void everyKindOfField();
    void spelling_data();
    void spelling();
};

void FieldKeeperTest::fieldsAndValues() {
    const Page page;
    QCOMPARE(fieldvalue::fieldsOf(page.window).size(), 6); // the spin box's line edit is no field
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 false 0101"));
}

void FieldKeeperTest::nothingAtFirst() {
    Page page;
    QVERIFY(!page.keeper.canUndo());
    QVERIFY(!page.keeper.canRedo());
    QCOMPARE(page.marks(), 0);
    page.keeper.undo();
    page.keeper.redo();
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 false 0101"));
}

void FieldKeeperTest::undoAndRedoOneEdit() {
    Page page;
    page.click(page.lane);
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 true 0101"));
    QVERIFY(page.keeper.canUndo());
    page.keeper.undo();
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 false 0101"));
    QVERIFY(!page.keeper.canUndo() && page.keeper.canRedo());
    page.keeper.redo();
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 true 0101"));
    QVERIFY(page.keeper.canUndo() && !page.keeper.canRedo());
}

void FieldKeeperTest::anEditIsOneStepWithItsConsequences() {
    Page page;
    page.choose(page.mode, Qt::Key_Down);
    page.level->setFocus();
    page.level->selectAll();
    QTest::keyClicks(page.level, QStringLiteral("12"));
    QTest::keyClick(page.level, Qt::Key_Return);
    QApplication::processEvents();
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Manual 12 false 0101"));
    page.choose(page.mode, Qt::Key_Up); // the rule puts the level back to 7
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 false 0101"));

    page.keeper.undo();
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Manual 12 false 0101"));
    QVERIFY(page.level->isEnabled());
    page.keeper.undo();
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Manual 7 false 0101"));
    page.keeper.undo();
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 false 0101"));
    QVERIFY(!page.level->isEnabled());
    for (int i = 0; i < 2; ++i) {
        page.keeper.redo();
    }
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Manual 12 false 0101"));
}

void FieldKeeperTest::listsAreBackBeforeTheirChoice() {
    Page page;
    page.type(page.rate, "0.5");
    page.choose(page.ratio, Qt::Key_Down);
    QCOMPARE(page.state(), QStringLiteral("0.5 10x Auto 7 false 0101"));
    page.type(page.rate, "2.5");
    QCOMPARE(page.state(), QStringLiteral("2.5 NA Auto 7 false 0101"));
    page.keeper.undo();
    QCOMPARE(page.state(), QStringLiteral("0.5 10x Auto 7 false 0101"));
}

void FieldKeeperTest::anotherEditDropsWhatWasUndone() {
    Page page;
    page.click(page.lane);
    page.keeper.undo();
    page.choose(page.mode, Qt::Key_Down);
    QVERIFY(!page.keeper.canRedo());
    page.keeper.undo();
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 false 0101"));
}

void FieldKeeperTest::textIsOneStep() {
    Page page;
    page.type(page.rate, "10.3125");
    page.keeper.undo();
    QCOMPARE(page.rate->text(), QStringLiteral("1.25"));
    QVERIFY(!page.keeper.canUndo());
}

void FieldKeeperTest::loadingIsNoStep() {
    Page page;
    page.rate->setText(QStringLiteral("5"));
    page.lane->setChecked(true);
    page.keeper.startHistory();
    QApplication::processEvents();
    QVERIFY(!page.keeper.canUndo());
    QCOMPARE(page.marks(), 2); // but the defaults stay what they were
}

void FieldKeeperTest::marksFollow() {
    Page page;
    page.click(page.lane);
    QCOMPARE(page.marks(), 1);
    page.type(page.rate, "5");
    QCOMPARE(page.marks(), 2);
    page.click(page.lane);
    QCOMPARE(page.marks(), 1);
    page.rate->hide();
    QApplication::processEvents();
    QCOMPARE(page.marks(), 0);
}

void FieldKeeperTest::lockedFieldsAreNotMarked() {
    Page page;
    page.type(page.rate, "0.5");
    // "NA" is in the list no more, so there is no default to go back to.
    QVERIFY(!page.keeper.differs(page.ratio));
    QVERIFY(page.keeper.differs(page.rate));
    page.rate->setEnabled(false);
    QApplication::processEvents();
    QVERIFY(!page.keeper.differs(page.rate));
    QCOMPARE(page.marks(), 0);
}

void FieldKeeperTest::markLiesAtItsField() {
    Page page;
    page.type(page.rate, "5");
    const auto* mark = page.window.findChild<FieldMark*>();
    QVERIFY(mark != nullptr);
    const auto beside = [&] {
        return mark->geometry().right() < page.rate->geometry().left() + 1 &&
               mark->geometry().center().y() == page.rate->geometry().center().y();
    };
    QVERIFY(beside());
    page.window.resize(page.window.width() + 200, page.window.height() + 200);
    QApplication::processEvents();
    QVERIFY(beside());
    QVERIFY(mark->toolTip().contains(QStringLiteral("1.25")));
}

void FieldKeeperTest::resetOneField() {
    Page page;
    page.type(page.rate, "0.5");
    page.click(page.lane);
    page.keeper.resetField(page.rate);
    QApplication::processEvents();
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 true 0101"));
    page.keeper.undo(); // a reset is an edit like any other
    QCOMPARE(page.state(), QStringLiteral("0.5 5x Auto 7 true 0101"));
}

void FieldKeeperTest::menuResets() {
    Page page;
    page.click(page.lane);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1));
    QApplication::sendEvent(page.lane, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    QAction* reset = menu->actions().last();
    QCOMPARE(reset->text(), QStringLiteral("Reset to default"));
    QVERIFY(reset->isEnabled());
    reset->trigger();
    menu->close();
    QApplication::processEvents();
    QVERIFY(!page.lane->isChecked());
}

void FieldKeeperTest::severalEditsInOneStep() {
    Page page;
    page.click(page.lane);
    page.keeper.perform([&] {
        page.type(page.rate, "0.5");
        page.keeper.noteEdit();
        page.choose(page.mode, Qt::Key_Down);
        page.keeper.noteEdit();
        page.type(page.rate, "0.5"); // changes nothing
        page.keeper.noteEdit();
        page.click(page.lane);
        page.keeper.noteEdit();
    });
    QCOMPARE(page.state(), QStringLiteral("0.5 5x Manual 7 false 0101"));
    QCOMPARE(page.keeper.undo(), 3);
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 true 0101"));
    page.keeper.redo();
    QCOMPARE(page.state(), QStringLiteral("0.5 5x Manual 7 false 0101"));
    QCOMPARE(page.keeper.undo(), 3);
    QCOMPARE(page.keeper.undo(), 1);
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 false 0101"));
    QCOMPARE(page.keeper.undo(), 0);
}

void FieldKeeperTest::rehearsalLeavesNoTrace() {
    Page page;
    page.click(page.lane);
    page.keeper.undo();
    QStringList outcome;
    const bool restored = page.keeper.rehearse(
        [&] {
            page.type(page.rate, "0.5");
            page.choose(page.mode, Qt::Key_Down);
        },
        &outcome);
    QVERIFY(restored);
    QCOMPARE(outcome.join(QLatin1Char(' ')), QStringLiteral("0.5 5x Manual 7 false 0101"));
    QCOMPARE(page.state(), QStringLiteral("1.25 NA Auto 7 false 0101"));
    QApplication::processEvents();
    QVERIFY(!page.keeper.canUndo());
    QVERIFY(page.keeper.canRedo()); // the history is what it was
    QCOMPARE(page.marks(), 0);
}

void FieldKeeperTest::maskedValuesKeepZeros() {
    Page page;
    page.type(page.mask, "1010");
    QCOMPARE(fieldvalue::read(*page.mask), QStringLiteral("1010"));
    page.keeper.undo();
    QCOMPARE(fieldvalue::read(*page.mask), QStringLiteral("0101"));
}

/// What setField() can set is read and written alike.
void FieldKeeperTest::everyKindOfField() {
    QDoubleSpinBox number;
    fieldvalue::write(number, QStringLiteral("2.5"));
    QCOMPARE(fieldvalue::read(number), QStringLiteral("2.5"));
    QCOMPARE(fieldvalue::typedValue(number), QVariant(2.5));
    QGroupBox group;
    QCOMPARE(fieldvalue::read(group), QString());
    group.setCheckable(true);
    fieldvalue::write(group, QStringLiteral("false"));
    QCOMPARE(fieldvalue::read(group), QStringLiteral("false"));
    QCOMPARE(fieldvalue::typedValue(group), QVariant(false));
}

void FieldKeeperTest::spelling_data() {
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("shows");
    QTest::newRow("the same") << ""
                              << "NA" << QVariant("NA") << true;
    QTest::newRow("another case") << ""
                                  << "NA" << QVariant("na") << false;
    QTest::newRow("a number's digits") << ""
                                       << "2.5" << QVariant("2.50") << true;
    QTest::newRow("a number") << ""
                              << "2.5" << QVariant(2.5) << true;
    QTest::newRow("another number") << ""
                                    << "2.5" << QVariant("2.6") << false;
    QTest::newRow("no number") << ""
                               << "0" << QVariant("x") << false;
    QTest::newRow("nothing") << ""
                             << "0" << QVariant("") << false;
    QTest::newRow("the mask's case") << ">HH;0"
                                     << "BC" << QVariant("bc") << true;
    QTest::newRow("the mask's blanks") << ">HH;0"
                                       << "10" << QVariant("1") << true;
    QTest::newRow("masked, another") << ">HH;0"
                                     << "BC" << QVariant("bd") << false;
    QTest::newRow("masked, no such letters") << ">HH;0"
                                             << "00" << QVariant("xy") << false;
    QTest::newRow("masked, equal as numbers") << ">HHH;0"
                                              << "0E1" << QVariant("0E2") << false;
}

void FieldKeeperTest::spelling() {
    QFETCH(QString, mask);
    QFETCH(QString, shown);
    QFETCH(QVariant, value);
    QFETCH(bool, shows);
    QLineEdit field;
    field.setInputMask(mask);
    field.setText(shown);
    QCOMPARE(field.displayText(), shown);
    QCOMPARE(fieldvalue::shows(field, value), shows);
}

QTEST_MAIN(FieldKeeperTest)
#include "fieldkeeper_test.moc"
