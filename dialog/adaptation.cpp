// What the dialog does once it knows its device: pages, lists, defaults, wiring.

#include "dialog/customizeddlg.h"

#include "dialog/combobox.h"
#include "dialog/rules/analog.h"
#include "dialog/rules/datapath.h"
#include "dialog/rules/linerate.h"
#include "dialog/rules/references.h"
#include "dialog/validators.h"
#include "dialog/wiring.h"
#include "model/config/values.h"

#include <serdesip/serdes.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QSpinBox>

namespace IPCUSTOMIZED {

namespace {

void addWithData(QComboBox* combo, std::initializer_list<std::pair<QLatin1String, int>> items) {
    for (const auto& [text, data] : items) {
        combo->addItem(text, data);
    }
}

} // namespace

void customizeddlg::initForDevice() {
    m_class = deviceClass(device().device());
    const auto connectRules = [this](WiringStage stage) {
        connectStage(stage, *m_forms, this, m_class);
    };

    adaptLanes();
    connectRules(WiringStage::Lanes);
    updatePLLSelection();

    const bool hasModes = isListed(m_class);
    m_forms->tab1.groupBoxOperationMode->setEnabled(hasModes);
    m_forms->tab1.groupBoxOperationMode->setVisible(hasModes);
    connectRules(WiringStage::OperationMode);
    if (hasModes) {
        onOperationModeChanged();
    }

    adaptPages();
    fillRatesAndClocks();
    connectRules(WiringStage::Rates);
    checkTxLineRate();
    connectRules(WiringStage::Clocks);
    updatedRefClkFreq();
    m_forms->tab1.LoopbackMode->addItems({QStringLiteral("OFF"), QStringLiteral("LB_NES"),
                                          QStringLiteral("LB_FES"), QStringLiteral("LB_ENC")});
    selectItem(m_forms->tab1.LoopbackMode, Value::Off);

    fillDataPath();
    fillBonding();
    fillClockCorrection();
    fillAnalog();

    connectRules(WiringStage::Rest);
    resetFlagforBias();
    updateCTCReadStartDepth();
    updateClkSrc();
    updatedMasterChannelSel();
    onRefModeChanged();
    fileNameConnectCreatIn();
    refreshFigure();
}

void customizeddlg::adaptLanes() {
    const QStringList free = IPSERDESIP::serdes::instance()->notOccupiedLanes();
    for (QCheckBox* box : m_forms->laneBoxes) {
        box->setEnabled(free.contains(box->text()));
    }
}

void customizeddlg::adaptPages() {
    const customized_tab1& clocks = m_forms->tab1;
    const customized_tab2& widths = m_forms->tab2;
    const auto takeOutClocks = [&](std::initializer_list<QWidget*> members) {
        for (QWidget* member : members) {
            takeOutRow(*clocks.gridLayout_3, *member);
        }
    };
    switch (m_class) {
    case DeviceClass::K60:
        takeOutClocks({clocks.GpioFrequency, clocks.MclkFrequency});
        takeOutRow(*widths.gridLayout, *widths.comboBoxInternalDataWidth);
        break;
    case DeviceClass::K15:
        takeOutClocks({clocks.comboBoxRefMux2Source, clocks.comboBoxRefMux3Source,
                       clocks.CombBoxRxRefSource});
        clocks.GpioFrequency->setText(rules::defaultInputFrequency);
        clocks.MclkFrequency->setText(rules::defaultInputFrequency);
        takeOutRow(*widths.gridLayout, *widths.comboBoxInternalDataWidth);
        break;
    case DeviceClass::K138:
        takeOutClocks({clocks.GpioFrequency, clocks.MclkFrequency, clocks.comboBoxRefMux2Source,
                       clocks.comboBoxRefMux3Source});
        takeOutRow(*widths.gridLayout, *widths.comboBoxTXInternalDataWidth);
        takeOutRow(*widths.gridLayout, *widths.comboBoxRXInternalDataWidth);
        widths.groupBox_txrxmode->hide();
        break;
    }
    // The two coding groups stand for one another.
    widths.groupBox_8b_10b->setVisible(!isListed(m_class));
}

void customizeddlg::fillRatesAndClocks() {
    const customized_tab1& page = m_forms->tab1;
    const QStringList sources = rules::autoSources(m_class);
    for (int i = 0; i < sources.size(); ++i) {
        page.CombBoxReferenceClockSource->addItem(sources.at(i), i);
    }
    page.CombBoxPLLSelection->addItems({Value::Qpll0, Value::Qpll1, Value::Cpll});
    selectItem(page.CombBoxPLLSelection, Value::Cpll);

    const auto validate = [this](QLineEdit* edit, const char* pattern, QLatin1String fallback) {
        edit->setValidator(new DefaultingValidator(pattern, fallback, this));
    };
    for (QLineEdit* edit : m_forms->muxFrequency) {
        validate(edit, frequencyPattern, rules::defaultFrequency);
    }
    validate(page.GpioFrequency, frequencyPattern, rules::defaultInputFrequency);
    validate(page.MclkFrequency, frequencyPattern, rules::defaultInputFrequency);
    validate(page.ReferenceClockFrequency, frequencyPattern, rules::defaultFrequency);
    page.ReferenceClockFrequency->setText(rules::defaultFrequency);
    for (QLineEdit* edit : {page.RXLineRate, page.TXLineRate}) {
        validate(edit, ratePattern, "1.25"_l1);
        edit->setText(QStringLiteral("1.25"));
    }
    checkRxLineRate();
}

void customizeddlg::fillDataPath() {
    const customized_tab2& page = m_forms->tab2;
    for (QComboBox* ratio : {page.comboBoxTXExternalDataRatio, page.comboBoxRXExternalDataRatio}) {
        addWithData(ratio, {{"1:1"_l1, 1}, {"1:2"_l1, 2}, {"1:4"_l1, 4}});
    }
    page.lineEditRxInterMetaFrameLength->setValidator(
        new DefaultingValidator(metaFramePattern, QStringLiteral("32"), this));

    connectStage(WiringStage::Coding, *m_forms, this, m_class);
    if (isListed(m_class)) {
        onRXDecodingModeChanged();
        onTXEncodingModeChanged();
        checkRXInterlakenMetaFrameLength();
    }
    connectStage(WiringStage::CodingFigure, *m_forms, this, m_class);
    updateEnableDecoding();
    updateEnableEncoding();

    connectStage(WiringStage::WordAlignment, *m_forms, this, m_class);
    onWordAlignmentUpdate();
    for (const char* symbol : {"K28.0", "K28.1", "K28.2", "K28.3", "K28.4", "K28.5", "K28.6",
                               "K28.7", "K23.7", "K27.7", "K29.7", "K30.7"}) {
        page.comboBoxPattern->addItem(QLatin1String(symbol));
    }
    selectItem(page.comboBoxPattern, QStringLiteral("K28.5"));
    page.lineEditMask->setInputMask(QLatin1String(symbolMask));
    page.lineEditMask->setText(QStringLiteral("1111111111"));
}

void customizeddlg::fillBonding() {
    const customized_tab3& page = m_forms->tab3;
    addWithData(
        page.comboBoxRXChannelBoding,
        {{Value::None, 0}, {Value::OneWord, 1}, {Value::TwoWords, 2}, {Value::FourWords, 4}});
    connectStage(WiringStage::RxBonding, *m_forms, this, m_class);
    updateRXMasterChannelSelection();
    onRXChannelBondingUpdate();
    for (QLineEdit* pattern : {page.lineEditPattern0, page.lineEditPattern1, page.lineEditPattern2,
                               page.lineEditPattern3}) {
        pattern->setInputMask(QLatin1String(bytePattern));
        pattern->setText(QStringLiteral("7C"));
    }
    page.comboBoxPatternMaxSkew->addItems(rules::depths());
    page.comboBoxPatternMaxSkew->setCurrentIndex(8);
    page.comboBoxRXReadStartDepth->addItems(rules::depths());
    page.comboBoxRXReadStartDepth->setCurrentIndex(16);
    page.comboBoxTXReadStartDepth->addItems(rules::depths());
    page.comboBoxTXReadStartDepth->setCurrentIndex(16);

    connectStage(WiringStage::TxBonding, *m_forms, this, m_class);
    updateTXMasterChannelSelection();
    page.comboBoxTXReadStartDepth->setEnabled(page.checkBoxTXChannelBoding->isChecked());
}

void customizeddlg::fillClockCorrection() {
    const customized_tab4& page = m_forms->tab4;
    // Two words count as 3: the rules open the second pattern from there on.
    addWithData(page.comboBoxClockCorrection,
                {{Value::None, 0}, {Value::OneWord, 1}, {Value::TwoWords, 3}});
    for (QLineEdit* pattern : {page.lineEditCTCPattern0, page.lineEditCTCPattern1}) {
        pattern->setInputMask(QLatin1String(bytePattern));
        pattern->setText(QStringLiteral("7C"));
    }
    page.comboBoxCTCReadStartDepth->addItems(rules::depths());
    page.comboBoxCTCReadStartDepth->setCurrentIndex(16);
    connectStage(WiringStage::ClockCorrection, *m_forms, this, m_class);
}

void customizeddlg::fillAnalog() {
    const customized_tab5& page = m_forms->tab5;
    page.differeSwingComboBox->addItems(rules::millivolts(180, 900, 48));
    selectItem(page.differeSwingComboBox, QStringLiteral("900mV"));
    page.sdThresholdComboBox->addItems(rules::millivolts(25, 200, 25));
    selectItem(page.sdThresholdComboBox, QStringLiteral("100mV"));
    // A tap counts when it is left, not digit by digit: half-typed sums would raise the warning.
    page.cmSpinBox->setKeyboardTracking(false);
    page.c1SpinBox->setKeyboardTracking(false);
    connectStage(WiringStage::Analog, *m_forms, this, m_class);
    onFFEModeChanged();
    onEqualizationModeChanged();
    calculateFFE_C0();
}

} // namespace IPCUSTOMIZED
