#include "dialog/fields.h"

#include "dialog/combobox.h"
#include "dialog/formset.h"
#include "model/config/keys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace IPCUSTOMIZED {

const std::vector<Field>& fieldTable() {
    // clang-format off
    static const std::vector<Field> table{
        // Line rate, clocks, loopback
        {Key::TxRate,               1, "TXLineRate"},
        {Key::RxRate,               1, "RXLineRate"},
        {Key::TxRateRatio,          1, "comboBoxTxLineRatio"},
        {Key::ReferenceClockSource, 1, "CombBoxReferenceClockSource"},
        {Key::ReferenceClockFreq,   1, "ReferenceClockFrequency"},
        {Key::LoopbackMode,         1, "LoopbackMode"},
        {Key::PllSelection,         1, "CombBoxPLLSelection"},
        {Key::DrpPorts,             1, "checkBoxDRPPort"},

        // Data width, coding, word alignment, polarity
        {Key::InternalDataWidth,    2, "comboBoxInternalDataWidth"},
        {Key::TxExternalDataRatio,  2, "comboBoxTXExternalDataRatio"},
        {Key::RxExternalDataRatio,  2, "comboBoxRXExternalDataRatio"},
        {Key::TxInternalDataWidth,  2, "comboBoxTXInternalDataWidth"},
        {Key::RxInternalDataWidth,  2, "comboBoxRXInternalDataWidth"},
        {Key::TxEncoding,           2, "comboBoxTxEncoding"},
        {Key::RxDecoding,           2, "comboBoxRxDecoding"},
        {Key::RxMetaFrameLength,    2, "lineEditRxInterMetaFrameLength"},
        {Key::Mode64B66B,           2, "comboBox64B66BMode"},
        {Key::EnableEncoding,       2, "checkBoxEncoding"},
        {Key::EnableDecoding,       2, "checkBoxDecoding"},
        {Key::WordAlignment,        2, "WordAlignment"},
        {Key::WaPattern0,           2, "comboBoxPattern"},
        {Key::Mask0,                2, "lineEditMask"},
        {Key::EnableWaPattern0,     2, "comboBoxPattern", FieldKind::EnabledState},
        {Key::EnableMask0,          2, "lineEditMask",    FieldKind::EnabledState},
        {Key::TxPolarityInvert,     2, "checkBoxTxBitPolarityInvert"},
        {Key::RxPolarityInvert,     2, "checkBoxRxBitPolarityInvert"},

        // Channel bonding
        {Key::RxChannelBonding,     3, "comboBoxRXChannelBoding"},
        {Key::RxMasterChannel,      3, "comboBoxRXMasterChannelSelection"},
        {Key::Pattern0,             3, "lineEditPattern0"},
        {Key::Pattern1,             3, "lineEditPattern1"},
        {Key::Pattern2,             3, "lineEditPattern2"},
        {Key::Pattern3,             3, "lineEditPattern3"},
        {Key::Pattern1IsK,          3, "checkBoxPattern1Character"},
        {Key::Pattern2IsK,          3, "checkBoxPattern2Character"},
        {Key::Pattern3IsK,          3, "checkBoxPattern3Character"},
        {Key::PatternMaxSkew,       3, "comboBoxPatternMaxSkew"},
        {Key::RxReadStartDepth,     3, "comboBoxRXReadStartDepth"},
        {Key::TxChannelBonding,     3, "checkBoxTXChannelBoding"},
        {Key::TxMasterChannel,      3, "comboBoxTXMasterChannelSelection"},
        {Key::TxReadStartDepth,     3, "comboBoxTXReadStartDepth"},

        // Clock correction
        {Key::ClockCorrection,      4, "comboBoxClockCorrection"},
        {Key::ClockSource,          4, "comboBoxClockSource"},
        {Key::ClockMasterChannel,   4, "comboBoxMasterChannelSel"},
        {Key::CtcPattern0,          4, "lineEditCTCPattern0"},
        {Key::CtcPattern1,          4, "lineEditCTCPattern1"},
        {Key::CtcReadStartDepth,    4, "comboBoxCTCReadStartDepth"},
        {Key::CtcPattern1IsK,       4, "checkBoxCTCPattern1isK"},

        // Analog front end
        {Key::DifferentialSwing,    5, "differeSwingComboBox"},
        {Key::FfeMode,              5, "ffeModeCombox"},
        {Key::FfeCm,                5, "cmSpinBox"},
        {Key::FfeC1,                5, "c1SpinBox"},
        {Key::FfeC0,                5, "c0Lael"},
        {Key::SdThreshold,          5, "sdThresholdComboBox"},
        {Key::EqualizationMode,     5, "equalizationModeCombox"},
        {Key::Att,                  5, "attSpinBox"},
        {Key::Boost,                5, "boostSpinBox"},

        // Reference clock routing
        {Key::OperationMode,        1, "comboBoxOperationMode"},
        {Key::RefMode,              1, "comboBoxMode"},
        {Key::RefMuxSource[0],      1, "comboBoxRefMux0Source"},
        {Key::RefMuxSource[1],      1, "comboBoxRefMux1Source"},
        {Key::RefMuxSource[2],      1, "comboBoxRefMux2Source"},
        {Key::RefMuxSource[3],      1, "comboBoxRefMux3Source"},
        {Key::PllRefSource,         1, "CombBoxPLLRefSource"},
        {Key::RxRefSource,          1, "CombBoxRxRefSource"},
        {Key::MuxFreq[0],           1, "ReferenceMux0Freq"},
        {Key::MuxFreq[1],           1, "ReferenceMux1Freq"},
        {Key::MuxFreq[2],           1, "ReferenceMux2Freq"},
        {Key::MuxFreq[3],           1, "ReferenceMux3Freq"},
        {Key::GpioFreq,             1, "GpioFrequency"},
        {Key::MclkFreq,             1, "MclkFrequency"},
    };
    // clang-format on
    return table;
}

std::vector<BoundField> bindFields(const FormSet& forms) {
    std::vector<BoundField> bound;
    for (const Field& field : fieldTable()) {
        const QWidget* page = forms.pages.at(static_cast<std::size_t>(field.page - 1));
        if (auto* widget = page->findChild<QWidget*>(QLatin1String(field.object))) {
            bound.push_back({field, widget});
        } else {
            qCritical("page %d has no widget %s", field.page, field.object);
        }
    }
    return bound;
}

QVariant fieldValue(const BoundField& field) {
    if (field.field.kind == FieldKind::EnabledState) {
        return field.widget->isEnabled();
    }
    if (const auto* combo = qobject_cast<QComboBox*>(field.widget)) {
        return combo->currentText();
    }
    if (const auto* edit = qobject_cast<QLineEdit*>(field.widget)) {
        // text() of a masked field drops its blanks, which stand for zeros.
        return edit->inputMask().isEmpty() ? edit->text() : edit->displayText();
    }
    if (const auto* box = qobject_cast<QCheckBox*>(field.widget)) {
        return box->isChecked();
    }
    if (const auto* spin = qobject_cast<QSpinBox*>(field.widget)) {
        return spin->value();
    }
    if (const auto* label = qobject_cast<QLabel*>(field.widget)) {
        return label->text();
    }
    return {};
}

void setFieldValue(const BoundField& field, const QVariant& value) {
    if (field.field.kind == FieldKind::EnabledState) {
        return;
    }
    if (auto* combo = qobject_cast<QComboBox*>(field.widget)) {
        combo->setCurrentIndex(itemIndex(combo, value.toString()));
    } else if (auto* edit = qobject_cast<QLineEdit*>(field.widget)) {
        edit->setText(value.toString());
    } else if (auto* box = qobject_cast<QCheckBox*>(field.widget)) {
        box->setChecked(value.toBool());
    } else if (auto* spin = qobject_cast<QSpinBox*>(field.widget)) {
        spin->setValue(value.toInt());
    } else if (auto* label = qobject_cast<QLabel*>(field.widget)) {
        label->setText(value.toString());
    }
}

} // namespace IPCUSTOMIZED
