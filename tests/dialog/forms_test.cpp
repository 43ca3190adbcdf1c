// The five pages as they leave setupUi(), before any rule has run: every widget by name, class,
// caption, buddy, items, range and default, in reading order.

#include "forms.h"
#include "gridrow.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTest>

#include <memory>
#include <vector>

using namespace IPCUSTOMIZED;

namespace {

struct Row {
    int page;
    const char* name;
    const char* className;
    /// The widget's own text or title; for fields the text of `label`.
    const char* caption;
    /// The caption label, whose buddy the field is; empty: the caption is the widget's own.
    const char* label = "";
    /// Fixed items, separated by '|'.
    const char* items = "";
    /// What the field shows at first.
    const char* shows = "";
    /// The label that follows the field, and its text.
    const char* note = "";
    const char* noteText = "";
};

const char* const kWidths = "8|10|16|20";
const char* const kCodings = "OFF|8B10B|64B66B|64B67B";
const char* const kPattern0Note = "Pattern 0 must be K Character";

// clang-format off
const Row kRows[] = {
    {1, "ChannelSelection", "QGroupBox", "Channel Selection"},
    {1, "q0_l0", "QCheckBox", "Q0 Lane0"},
    {1, "q0_l1", "QCheckBox", "Q0 Lane1"},
    {1, "q0_l2", "QCheckBox", "Q0 Lane2"},
    {1, "q0_l3", "QCheckBox", "Q0 Lane3"},
    {1, "q1_l0", "QCheckBox", "Q1 Lane0"},
    {1, "q1_l1", "QCheckBox", "Q1 Lane1"},
    {1, "q1_l2", "QCheckBox", "Q1 Lane2"},
    {1, "q1_l3", "QCheckBox", "Q1 Lane3"},
    {1, "groupBoxOperationMode", "QGroupBox", "Operation Mode"},
    {1, "comboBoxOperationMode", "QComboBox", "Operation Mode", "label_12", "TX and RX|TX Only|RX Only", "TX and RX"},
    {1, "groupBox", "QGroupBox", "Line Rate"},
    {1, "TXLineRate", "QLineEdit", "TX Line Rate", "label", "", "1.25", "label_3", "Gbps"},
    {1, "comboBoxTxLineRatio", "QComboBox", "Ratio:", "label_10"},
    {1, "RXLineRate", "QLineEdit", "RX Line Rate", "label_2", "", "1.25", "label_4", "Gbps"},
    {1, "groupBox_2", "QGroupBox", "Refclk Selection"},
    {1, "comboBoxMode", "QComboBox", "Mode:", "labelMode", "Auto|Manual", "Auto"},
    {1, "CombBoxReferenceClockSource", "QComboBox", "Reference Clock Source", "label_5"},
    {1, "ReferenceClockFrequency", "QLineEdit", "Reference Clock Frequency", "label_6", "", "125", "label_9", "MHz"},
    {1, "CombBoxPLLSelection", "QComboBox", "PLL Selection", "label_7"},
    {1, "CombBoxPLLRefSource", "QComboBox", "PLL Refclk Source:", "labelPllRefSrc"},
    {1, "CombBoxRxRefSource", "QComboBox", "RX Refclk Source:", "labelRxRefSrc"},
    {1, "comboBoxRefMux0Source", "QComboBox", "REFMUX0 Source:", "labemux0"},
    {1, "ReferenceMux0Freq", "QLineEdit", "Frequency:", "labelfreq0", "", "", "label_13", "MHz"},
    {1, "comboBoxRefMux1Source", "QComboBox", "REFMUX1 Source:", "labemux1"},
    {1, "ReferenceMux1Freq", "QLineEdit", "Frequency:", "labelfreq1", "", "", "label_15", "MHz"},
    {1, "comboBoxRefMux2Source", "QComboBox", "REFMUX2 Source:", "labemux2"},
    {1, "ReferenceMux2Freq", "QLineEdit", "Frequency:", "labelfreq2", "", "", "label_16", "MHz"},
    {1, "comboBoxRefMux3Source", "QComboBox", "REFMUX3 Source:", "labemux3"},
    {1, "ReferenceMux3Freq", "QLineEdit", "Frequency:", "labelfreq3", "", "", "label_20", "MHz"},
    {1, "GpioFrequency", "QLineEdit", "GPIO Frequency", "labelGpioFreq", "", "", "label_21", "MHz"},
    {1, "MclkFrequency", "QLineEdit", "MCLK Frequency", "labelMclkFreq", "", "", "label_25", "MHz"},
    {1, "ButtonCalculate", "QPushButton", "Calculate"},
    {1, "groupBox_3", "QGroupBox", "Loopback"},
    {1, "LoopbackMode", "QComboBox", "Loopback Mode:", "label_8"},
    {1, "checkBoxDRPPort", "QCheckBox", "DRP Port"},

    {2, "groupBox", "QGroupBox", "Data Width"},
    {2, "comboBoxInternalDataWidth", "QComboBox", "Internal Data Width", "labelInternalDataWidth", kWidths, "10"},
    {2, "comboBoxTXInternalDataWidth", "QComboBox", "TX Internal Data Width", "labeltxInternalDataWidth", kWidths, "10"},
    {2, "comboBoxRXInternalDataWidth", "QComboBox", "RX Internal Data Width", "labelrxInternalDataWidth", kWidths, "10"},
    {2, "comboBoxTXExternalDataRatio", "QComboBox", "TX External Data Ratio", "label_2"},
    {2, "comboBoxRXExternalDataRatio", "QComboBox", "RX External Data Ratio", "label_8"},
    {2, "groupBox_txrxmode", "QGroupBox", "Encoding and Decoding"},
    {2, "comboBoxTxEncoding", "QComboBox", "TX Encoding Mode", "label_3", kCodings, "OFF"},
    {2, "comboBoxRxDecoding", "QComboBox", "RX Decoding Mode", "label_9", kCodings, "OFF"},
    {2, "comboBox64B66BMode", "QComboBox", "64B66B Mode", "label_5", "10GBASER with FIFO|Async with FIFO", "10GBASER with FIFO"},
    {2, "lineEditRxInterMetaFrameLength", "QLineEdit", "RX Interlaken Meta Frame Length", "label_7", "", "32"},
    {2, "groupBox_8b_10b", "QGroupBox", "Encoding and Decoding"},
    {2, "checkBoxEncoding", "QCheckBox", "Enable 8B/10B Encoding"},
    {2, "checkBoxDecoding", "QCheckBox", "Enable 8B/10B Decoding"},
    {2, "groupBox_3", "QGroupBox", "RX Word Alignment"},
    {2, "WordAlignment", "QCheckBox", "Word Alignment"},
    {2, "comboBoxPattern", "QComboBox", "Pattern: ", "label_4"},
    {2, "lineEditMask", "QLineEdit", "Mask:", "label_6", "", "1111111111"},
    {2, "groupBox_bit_polarity_invert", "QGroupBox", "Bit Polarity Invert"},
    {2, "checkBoxTxBitPolarityInvert", "QCheckBox", "TX Bit Polarity Invert"},
    {2, "checkBoxRxBitPolarityInvert", "QCheckBox", "RX Bit Polarity Invert"},

    {3, "groupBox_2", "QGroupBox", "TX Channel Bonding"},
    {3, "checkBoxTXChannelBoding", "QCheckBox", "Channel Bonding"},
    {3, "comboBoxTXMasterChannelSelection", "QComboBox", "Master Channel Selection", "label_10"},
    {3, "comboBoxTXReadStartDepth", "QComboBox", "Read Start Depth", "label_11"},
    {3, "groupBox", "QGroupBox", "RX Channel Bonding"},
    {3, "comboBoxRXChannelBoding", "QComboBox", "Channel Bonding", "label"},
    {3, "comboBoxRXMasterChannelSelection", "QComboBox", "Master Channel Selection", "label_2"},
    {3, "lineEditPattern0", "QLineEdit", "Pattern 0", "label_3", "", "7C", "label_9", kPattern0Note},
    {3, "lineEditPattern1", "QLineEdit", "Pattern 1", "label_4", "", "7C"},
    {3, "checkBoxPattern1Character", "QCheckBox", "K Character"},
    {3, "lineEditPattern2", "QLineEdit", "Pattern 2", "label_5", "", "7C"},
    {3, "checkBoxPattern2Character", "QCheckBox", "K Character"},
    {3, "lineEditPattern3", "QLineEdit", "Pattern 3", "label_6", "", "7C"},
    {3, "checkBoxPattern3Character", "QCheckBox", "K Character"},
    {3, "comboBoxPatternMaxSkew", "QComboBox", "Max Skew", "label_7"},
    {3, "comboBoxRXReadStartDepth", "QComboBox", "Read Start Depth", "label_8"},

    {4, "comboBoxClockCorrection", "QComboBox", "Clock Correction", "label"},
    {4, "comboBoxClockSource", "QComboBox", "Clock Source", "label_6"},
    {4, "comboBoxMasterChannelSel", "QComboBox", "Master Channel Selection", "label_7"},
    {4, "lineEditCTCPattern0", "QLineEdit", "Pattern 0", "label_2", "", "7C", "label_5", kPattern0Note},
    {4, "lineEditCTCPattern1", "QLineEdit", "Pattern 1", "label_3", "", "7C"},
    {4, "checkBoxCTCPattern1isK", "QCheckBox", "K Character"},
    {4, "comboBoxCTCReadStartDepth", "QComboBox", "Read Start Depth", "label_4"},

    {5, "groupBox", "QGroupBox", "TX"},
    {5, "differeSwingComboBox", "QComboBox", "Differential Swing:", "label_6"},
    {5, "groupBox_3", "QGroupBox", "FFE Mode"},
    {5, "ffeModeCombox", "QComboBox", "FFE Mode:", "label_8", "Auto|Manual", "Auto"},
    {5, "cmSpinBox", "QSpinBox", "Cm:", "label_9", "", "0", "label", "(0~19)"},
    {5, "c0Lael", "QLabel", "C0:", "label_11", "", "TextLabel", "label_3", "(21~40)"},
    {5, "c1SpinBox", "QSpinBox", "C1:", "label_10", "", "0", "label_2", "(0~19)"},
    {5, "groupBox_2", "QGroupBox", "RX"},
    {5, "sdThresholdComboBox", "QComboBox", "SD Threshold:", "label_7"},
    {5, "groupBox_4", "QGroupBox", "Equalization"},
    {5, "equalizationModeCombox", "QComboBox", "Equalization Mode:", "label_12", "Auto|Manual", "Auto"},
    {5, "attSpinBox", "QSpinBox", "ATT:", "label_4", "", "7", "label_14", "(0~10)"},
    {5, "biasSpinBox", "QSpinBox", "BIAS:", "label_13", "", "7", "label_16", "(0~15)"},
    {5, "boostSpinBox", "QSpinBox", "BOOST:", "label_5", "", "9", "label_15", "(0~15)"},
};
// clang-format on

/// The five pages, set up as the dialog does it.
struct Pages {
    std::vector<std::unique_ptr<QWidget>> pages;
    customized_tab1 tab1;
    customized_tab2 tab2;
    customized_tab3 tab3;
    customized_tab4 tab4;
    customized_tab5 tab5;

    Pages() {
        for (int i = 0; i < 5; ++i) {
            pages.push_back(std::make_unique<QWidget>());
        }
        tab1.setupUi(pages[0].get());
        tab2.setupUi(pages[1].get());
        tab3.setupUi(pages[2].get());
        tab4.setupUi(pages[3].get());
        tab5.setupUi(pages[4].get());
    }

    QWidget* page(int number) const { return pages.at(static_cast<std::size_t>(number - 1)).get(); }
    QWidget* find(int number, const char* name) const {
        return page(number)->findChild<QWidget*>(QString::fromUtf8(name));
    }
};

QString textOf(const QWidget* widget) {
    if (auto* spin = qobject_cast<const QSpinBox*>(widget)) {
        return QString::number(spin->value()); // its text stays empty until it is shown
    }
    for (const char* property : {"title", "currentText", "text"}) {
        const QVariant value = widget->property(property);
        if (value.isValid()) {
            return value.toString();
        }
    }
    return {};
}

bool isField(const QWidget* widget) {
    return qobject_cast<const QComboBox*>(widget) != nullptr ||
           qobject_cast<const QLineEdit*>(widget) != nullptr ||
           qobject_cast<const QSpinBox*>(widget) != nullptr ||
           qobject_cast<const QAbstractButton*>(widget) != nullptr;
}

/// The page's named fields in the order of their rows in the table above.
QStringList fieldsOf(int page) {
    QStringList names;
    for (const Row& row : kRows) {
        const QByteArray cls = row.className;
        if (row.page == page && cls != "QGroupBox" && cls != "QLabel") {
            names.append(QString::fromUtf8(row.name));
        }
    }
    return names;
}

void pageRows() {
    QTest::addColumn<int>("page");
    for (int page = 1; page <= 5; ++page) {
        QTest::addRow("tab%d", page) << page;
    }
}

} // namespace

class FormsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void widget_data();
    void widget();
    void skeleton_data() { pageRows(); }
    void skeleton();
    void nothingBesideTheTable_data() { pageRows(); }
    void nothingBesideTheTable();
    void accessibleNames_data() { pageRows(); }
    void accessibleNames();
    void tabOrderIsReadingOrder_data() { pageRows(); }
    void tabOrderIsReadingOrder();
    void spinRanges_data();
    void spinRanges();
    void startsUnchecked();
    void fixedProperties();
    void bondingSpacers();
    void clockCorrectionRows();
    void rowsLeaveTheGrid_data();
    void rowsLeaveTheGrid();
    void retranslateKeepsChoices();
    void retranslateKeepsEntries();
    void fitsItsColumns_data() { pageRows(); }
    void fitsItsColumns();
};

void FormsTest::initTestCase() {
    // The size that desktops use; the headless platform's own is larger.
    QFont font = QApplication::font();
    font.setPointSize(9);
    QApplication::setFont(font);
}

void FormsTest::widget_data() {
    QTest::addColumn<int>("index");
    for (int i = 0; i < static_cast<int>(std::size(kRows)); ++i) {
        QTest::addRow("tab%d/%s", kRows[i].page, kRows[i].name) << i;
    }
}

void FormsTest::widget() {
    QFETCH(int, index);
    const Row& row = kRows[index];
    const Pages pages;
    QWidget* widget = pages.find(row.page, row.name);
    QVERIFY(widget != nullptr);
    QCOMPARE(widget->metaObject()->className(), row.className);

    if (*row.label == '\0') {
        if (qobject_cast<QComboBox*>(widget) == nullptr) {
            QCOMPARE(textOf(widget), QString::fromUtf8(row.caption));
        }
    } else {
        auto* label = qobject_cast<QLabel*>(pages.find(row.page, row.label));
        QVERIFY(label != nullptr);
        QCOMPARE(label->text(), QString::fromUtf8(row.caption));
        QCOMPARE(label->buddy(), widget);
        QCOMPARE(textOf(widget), QString::fromUtf8(row.shows));
    }
    if (*row.note != '\0') {
        auto* note = qobject_cast<QLabel*>(pages.find(row.page, row.note));
        QVERIFY(note != nullptr);
        QCOMPARE(note->text(), QString::fromUtf8(row.noteText));
        QVERIFY(note->buddy() == nullptr);
    }
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        QStringList items;
        for (int i = 0; i < combo->count(); ++i) {
            items.append(combo->itemText(i));
        }
        QCOMPARE(items.join(QLatin1Char('|')), QString::fromUtf8(row.items));
        QVERIFY(!combo->isEditable());
    }
}

void FormsTest::skeleton() {
    QFETCH(int, page);
    const Pages pages;
    QWidget* root = pages.page(page);
    QCOMPARE(root->windowTitle(), QStringLiteral("Form"));
    QCOMPARE(root->objectName(), QStringLiteral("IPCUSTOMIZED__customized_tab%1").arg(page));
    QVERIFY(qobject_cast<QVBoxLayout*>(root->layout()) != nullptr);
    QCOMPARE(root->layout()->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(root->layout()->count(), 1);
    auto* area = qobject_cast<QScrollArea*>(root->layout()->itemAt(0)->widget());
    QVERIFY(area != nullptr);
    QCOMPARE(area->objectName(), QStringLiteral("scrollArea"));
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->widget()->objectName(), page == 3 ? QStringLiteral("scrollAreaWidgetContents_2")
                                                     : QStringLiteral("scrollAreaWidgetContents"));
}

void FormsTest::nothingBesideTheTable() {
    QFETCH(int, page);
    const Pages pages;
    QStringList known;
    for (const Row& row : kRows) {
        if (row.page == page) {
            known << QString::fromUtf8(row.name) << QString::fromUtf8(row.label)
                  << QString::fromUtf8(row.note);
        }
    }
    const QList<QWidget*> widgets = pages.page(page)->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const QString name = widget->objectName();
        const bool counts = isField(widget) || qobject_cast<const QLabel*>(widget) != nullptr ||
                            qobject_cast<const QGroupBox*>(widget) != nullptr;
        if (counts && !name.startsWith(QLatin1String("qt_")) && !name.isEmpty()) {
            QVERIFY2(known.contains(name), qPrintable(name));
            QCOMPARE(pages.page(page)->findChildren<QWidget*>(name).size(), 1);
        }
    }
}

void FormsTest::accessibleNames() {
    QFETCH(int, page);
    const Pages pages;
    QStringList seen;
    const QStringList fields = fieldsOf(page);
    for (const QString& name : fields) {
        const QString spoken = pages.find(page, qPrintable(name))->accessibleName();
        QVERIFY2(!spoken.isEmpty(), qPrintable(name));
        QVERIFY2(!seen.contains(spoken), qPrintable(spoken));
        seen.append(spoken);
    }
    const QList<QWidget*> widgets = pages.page(page)->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        // The parts that a field is made of (a combo box's list) speak through the field.
        bool inside = false;
        for (const QWidget* up = widget->parentWidget(); up != nullptr; up = up->parentWidget()) {
            inside = inside || isField(up);
        }
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && !inside) {
            QVERIFY2(!widget->accessibleName().isEmpty(),
                     qPrintable(widget->objectName() + QLatin1Char(' ') +
                                QLatin1String(widget->metaObject()->className())));
        }
    }
}

void FormsTest::tabOrderIsReadingOrder() {
    QFETCH(int, page);
    const Pages pages;
    QWidget* root = pages.page(page);
    root->resize(700, 900);
    root->show();

    const QStringList expected = fieldsOf(page);
    QStringList order;
    for (QWidget* w = root->nextInFocusChain(); w != root; w = w->nextInFocusChain()) {
        if (expected.contains(w->objectName())) {
            order.append(w->objectName());
        }
    }
    QCOMPARE(order, expected);

    // Reading order: each field starts below the one before it, or to the right on its line.
    for (int i = 1; i < expected.size(); ++i) {
        QWidget* before = pages.find(page, qPrintable(expected[i - 1]));
        QWidget* after = pages.find(page, qPrintable(expected[i]));
        const QRect a(before->mapTo(root, QPoint(0, 0)), before->size());
        const QRect b(after->mapTo(root, QPoint(0, 0)), after->size());
        const bool sameLine = b.top() < a.bottom() && a.top() < b.bottom();
        QVERIFY2(sameLine ? b.left() > a.right() : b.top() > a.bottom(), qPrintable(expected[i]));
    }
}

void FormsTest::spinRanges_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::newRow("Cm") << "cmSpinBox" << 19 << 0;
    QTest::newRow("C1") << "c1SpinBox" << 19 << 0;
    QTest::newRow("ATT") << "attSpinBox" << 10 << 7;
    QTest::newRow("BIAS") << "biasSpinBox" << 15 << 7;
    QTest::newRow("BOOST") << "boostSpinBox" << 15 << 9;
}

void FormsTest::spinRanges() {
    QFETCH(QString, name);
    QFETCH(int, maximum);
    QFETCH(int, value);
    const Pages pages;
    auto* spin = pages.page(5)->findChild<QSpinBox*>(name);
    QVERIFY(spin != nullptr);
    QCOMPARE(spin->minimum(), 0);
    QCOMPARE(spin->maximum(), maximum);
    QCOMPARE(spin->value(), value);
    QCOMPARE(spin->buttonSymbols(), QAbstractSpinBox::NoButtons);
}

void FormsTest::startsUnchecked() {
    const Pages pages;
    int boxes = 0;
    for (int page = 1; page <= 5; ++page) {
        const QList<QCheckBox*> all = pages.page(page)->findChildren<QCheckBox*>();
        for (const QCheckBox* box : all) {
            QVERIFY2(!box->isChecked(), qPrintable(box->objectName()));
            ++boxes;
        }
    }
    QCOMPARE(boxes, 8 + 1 + 5 + 4 + 1);
}

void FormsTest::fixedProperties() {
    const Pages pages;
    QCOMPARE(pages.tab1.comboBoxOperationMode->sizeAdjustPolicy(), QComboBox::AdjustToContents);
    QCOMPARE(pages.tab2.comboBox64B66BMode->sizeAdjustPolicy(), QComboBox::AdjustToContents);
    QVERIFY(pages.tab1.ButtonCalculate->maximumWidth() < QWIDGETSIZE_MAX);
    QVERIFY(pages.tab1.ButtonCalculate->maximumHeight() < QWIDGETSIZE_MAX);
    QVERIFY(pages.tab4.comboBoxClockCorrection->minimumWidth() > 0);
    // Its check box is its switch, and starts unchecked.
    QVERIFY(!pages.tab3.comboBoxTXReadStartDepth->isEnabled());
}

void FormsTest::bondingSpacers() {
    const Pages pages;
    for (QWidget* spacer : {pages.tab3.widget, pages.tab3.widget_2}) {
        QCOMPARE(spacer->metaObject()->className(), "QWidget");
        QCOMPARE(spacer->parentWidget(), static_cast<QWidget*>(pages.tab3.groupBox));
        QVERIFY(spacer->children().isEmpty());
    }
}

void FormsTest::clockCorrectionRows() {
    const Pages pages;
    const std::vector<std::vector<QWidget*>> rows = {
        {pages.tab4.label, pages.tab4.comboBoxClockCorrection},
        {pages.tab4.label_6, pages.tab4.comboBoxClockSource},
        {pages.tab4.label_7, pages.tab4.comboBoxMasterChannelSel},
        {pages.tab4.label_2, pages.tab4.lineEditCTCPattern0, pages.tab4.label_5},
        {pages.tab4.label_3, pages.tab4.lineEditCTCPattern1, pages.tab4.checkBoxCTCPattern1isK},
        {pages.tab4.label_4, pages.tab4.comboBoxCTCReadStartDepth},
    };
    for (int expected = 0; expected < static_cast<int>(rows.size()); ++expected) {
        int lastColumn = -1;
        for (QWidget* widget : rows[static_cast<std::size_t>(expected)]) {
            const int index = pages.tab4.gridLayout->indexOf(widget);
            QVERIFY(index >= 0);
            int row = 0;
            int column = 0;
            int rowSpan = 0;
            int columnSpan = 0;
            pages.tab4.gridLayout->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
            QCOMPARE(row, expected);
            QVERIFY(column > lastColumn);
            lastColumn = column;
        }
    }
}

void FormsTest::rowsLeaveTheGrid_data() {
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("member");
    QTest::addColumn<QStringList>("widgets");
    QTest::newRow("GPIO") << 1 << "labelGpioFreq"
                          << QStringList{"labelGpioFreq", "GpioFrequency", "label_21"};
    QTest::newRow("MCLK") << 1 << "MclkFrequency"
                          << QStringList{"labelMclkFreq", "MclkFrequency", "label_25"};
    QTest::newRow("REFMUX2") << 1 << "labemux2"
                             << QStringList{"labemux2", "comboBoxRefMux2Source", "labelfreq2",
                                            "ReferenceMux2Freq", "label_16"};
    QTest::newRow("REFMUX3") << 1 << "label_20"
                             << QStringList{"labemux3", "comboBoxRefMux3Source", "labelfreq3",
                                            "ReferenceMux3Freq", "label_20"};
    QTest::newRow("RX source") << 1 << "labelRxRefSrc"
                               << QStringList{"labelRxRefSrc", "CombBoxRxRefSource"};
    QTest::newRow("frequency") << 1 << "label_6"
                               << QStringList{"label_6", "ReferenceClockFrequency", "label_9"};
    QTest::newRow("width") << 2 << "labelInternalDataWidth"
                           << QStringList{"labelInternalDataWidth", "comboBoxInternalDataWidth"};
    QTest::newRow("TX width") << 2 << "labeltxInternalDataWidth"
                              << QStringList{"labeltxInternalDataWidth",
                                             "comboBoxTXInternalDataWidth"};
    QTest::newRow("RX width") << 2 << "labelrxInternalDataWidth"
                              << QStringList{"labelrxInternalDataWidth",
                                             "comboBoxRXInternalDataWidth"};
}

void FormsTest::rowsLeaveTheGrid() {
    QFETCH(int, page);
    QFETCH(QString, member);
    QFETCH(QStringList, widgets);
    const Pages pages;
    QGridLayout* grid = page == 1 ? pages.tab1.gridLayout_3 : pages.tab2.gridLayout;
    QWidget* root = pages.page(page);
    root->resize(700, 900);
    root->show();
    const int heightBefore = grid->sizeHint().height();
    const int itemsBefore = grid->count();

    const TakenRow taken = takeOutRow(*grid, *pages.find(page, qPrintable(member)));

    QCOMPARE(grid->count(), itemsBefore - widgets.size() - 1); // and the spacer
    for (const QString& name : widgets) {
        QWidget* widget = pages.find(page, qPrintable(name));
        QVERIFY2(widget != nullptr, qPrintable(name));
        QCOMPARE(grid->indexOf(widget), -1);
        QVERIFY2(widget->isHidden(), qPrintable(name));
    }
    QVERIFY(grid->sizeHint().height() < heightBefore);
    QCOMPARE(takeOutRow(*grid, *pages.find(page, qPrintable(member))).row, -1);

    putBackRow(*grid, taken);
    QCOMPARE(grid->sizeHint().height(), heightBefore);
    for (const QString& name : widgets) {
        QVERIFY2(pages.find(page, qPrintable(name))->isVisible(), qPrintable(name));
    }
}

void FormsTest::retranslateKeepsChoices() {
    Pages pages;
    pages.tab1.comboBoxOperationMode->setCurrentIndex(2);
    pages.tab1.comboBoxTxLineRatio->addItem(QStringLiteral("5x"));
    pages.tab1.retranslateUi(pages.page(1));
    QCOMPARE(pages.tab1.comboBoxOperationMode->currentText(), QStringLiteral("RX Only"));
    QCOMPARE(pages.tab1.comboBoxOperationMode->count(), 3);
    QCOMPARE(pages.tab1.comboBoxTxLineRatio->itemText(0), QStringLiteral("5x"));
}

void FormsTest::retranslateKeepsEntries() {
    Pages pages;
    QList<QWidget*> fields;
    for (int page = 1; page <= 5; ++page) {
        for (QLineEdit* edit : pages.page(page)->findChildren<QLineEdit*>()) {
            if (qobject_cast<QAbstractSpinBox*>(edit->parentWidget()) == nullptr) {
                edit->setText(QStringLiteral("11"));
                fields.append(edit);
            }
        }
    }
    QVERIFY(fields.size() > 11);
    pages.tab5.c0Lael->setText(QStringLiteral("25"));
    pages.tab1.retranslateUi(pages.page(1));
    pages.tab2.retranslateUi(pages.page(2));
    pages.tab3.retranslateUi(pages.page(3));
    pages.tab4.retranslateUi(pages.page(4));
    pages.tab5.retranslateUi(pages.page(5));
    for (const QWidget* field : qAsConst(fields)) {
        QVERIFY2(qobject_cast<const QLineEdit*>(field)->text().startsWith(QLatin1String("11")),
                 qPrintable(field->objectName()));
    }
    QCOMPARE(pages.tab5.c0Lael->text(), QStringLiteral("25"));
}

void FormsTest::fitsItsColumns() {
    QFETCH(int, page);
    const Pages pages;
    QWidget* root = pages.page(page);
    auto* area = root->findChild<QScrollArea*>(QStringLiteral("scrollArea"));
    // The page needs no sideways scrolling in the width that the frame has at 1024 pixels.
    QVERIFY2(area->widget()->minimumSizeHint().width() <= 640,
             qPrintable(QString::number(area->widget()->minimumSizeHint().width())));
    root->resize(area->widget()->minimumSizeHint().width() + 20, 900);
    root->show();
    QVERIFY(QTest::qWaitForWindowExposed(root));
    const QList<QLabel*> labels = root->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->objectName()));
    }
}

QTEST_MAIN(FormsTest)
#include "forms_test.moc"
