#include "dialog/wiring.h"

#include "dialog/formset.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <vector>

namespace IPCUSTOMIZED {

namespace {

enum class On { Any, Listed, K138 };

struct Wire {
    WiringStage stage;
    On devices;
    const QObject* sender;
    const char* signal;
    const char* slot;
    const QObject* receiver = nullptr; ///< null: the dialog
};

std::vector<Wire> wiring(const FormSet& f) {
    const char* const toggled = SIGNAL(toggled(bool));
    const char* const index = SIGNAL(currentIndexChanged(int));
    const char* const itemText = SIGNAL(currentIndexChanged(QString));
    const char* const left = SIGNAL(editingFinished());
    const char* const number = SIGNAL(valueChanged(int));

    std::vector<Wire> wires;
    // Every lane runs the rules in the same order, whatever stage connects them.
    for (const QCheckBox* lane : f.laneBoxes) {
        wires.push_back({WiringStage::Lanes, On::Any, lane, toggled, SLOT(updatePLLSelection())});
    }
    for (const QCheckBox* lane : f.laneBoxes) {
        for (const char* slot :
             {SLOT(updateClkSrc()), SLOT(updatedMasterChannelSel()), SLOT(resetFlagforBias()),
              SLOT(updateBiasDefaultValue()), SLOT(onRefModeChanged())}) {
            wires.push_back({WiringStage::Rest, On::Any, lane, toggled, slot});
        }
    }

    // clang-format off
    const std::vector<Wire> table{
        {WiringStage::Lanes,           On::Any,    f.tab1.CombBoxPLLSelection,         index,    SLOT(updatePLLSelection())},
        {WiringStage::OperationMode,   On::Listed, f.tab1.comboBoxOperationMode,       index,    SLOT(onOperationModeChanged())},

        {WiringStage::Rates,           On::Any,    f.tab1.ReferenceClockFrequency,     left,     SLOT(checkRefClkFreq())},
        {WiringStage::Rates,           On::Any,    f.tab1.RXLineRate,                  left,     SLOT(checkRxLineRate())},
        {WiringStage::Rates,           On::Any,    f.tab1.TXLineRate,                  left,     SLOT(checkTxLineRate())},
        {WiringStage::Rates,           On::Any,    f.tab1.comboBoxTxLineRatio,         index,    SLOT(onTxRateOrRatioChanged())},
        {WiringStage::Rates,           On::Any,    f.tab1.comboBoxTxLineRatio,         index,    SLOT(updatedTxRateByRatio())},

        {WiringStage::Clocks,          On::Any,    f.tab1.ButtonCalculate,             SIGNAL(clicked()), SLOT(onButtonCalculateClicked())},
        {WiringStage::Clocks,          On::Any,    f.tab1.CombBoxReferenceClockSource, itemText, SLOT(updatedRefClkFreq())},
        {WiringStage::Clocks,          On::Any,    f.tab1.checkBoxDRPPort,             toggled,  SLOT(refreshFigure())},

        {WiringStage::Coding,          On::Listed, f.tab2.comboBoxTXInternalDataWidth, index,    SLOT(updateEnableEncoding())},
        {WiringStage::Coding,          On::Listed, f.tab2.comboBoxTXExternalDataRatio, index,    SLOT(updateEnableEncoding())},
        {WiringStage::Coding,          On::Listed, f.tab2.comboBoxRXInternalDataWidth, index,    SLOT(updateEnableDecoding())},
        {WiringStage::Coding,          On::Listed, f.tab2.comboBoxRXExternalDataRatio, index,    SLOT(updateEnableDecoding())},
        {WiringStage::Coding,          On::K138,   f.tab2.comboBoxInternalDataWidth,   index,    SLOT(updateEnableEncoding())},
        {WiringStage::Coding,          On::K138,   f.tab2.comboBoxInternalDataWidth,   index,    SLOT(updateEnableDecoding())},
        {WiringStage::Coding,          On::Listed, f.tab2.comboBoxRxDecoding,          itemText, SLOT(onRXDecodingModeChanged())},
        {WiringStage::Coding,          On::Listed, f.tab2.comboBoxTxEncoding,          itemText, SLOT(onTXEncodingModeChanged())},
        {WiringStage::Coding,          On::Listed, f.tab2.lineEditRxInterMetaFrameLength, left,  SLOT(checkRXInterlakenMetaFrameLength())},
        {WiringStage::CodingFigure,    On::Any,    f.tab2.comboBoxRxDecoding,          index,    SLOT(refreshFigure())},
        {WiringStage::CodingFigure,    On::Any,    f.tab2.comboBoxTxEncoding,          index,    SLOT(refreshFigure())},

        {WiringStage::WordAlignment,   On::Any,    f.tab2.WordAlignment,               toggled,  SLOT(onWordAlignmentUpdate())},
        {WiringStage::WordAlignment,   On::Any,    f.tab2.WordAlignment,               toggled,  SLOT(refreshFigure())},

        {WiringStage::RxBonding,       On::Any,    f.tab3.comboBoxRXChannelBoding,     index,    SLOT(updateRXMasterChannelSelection())},
        {WiringStage::RxBonding,       On::Any,    f.tab3.comboBoxRXChannelBoding,     index,    SLOT(onRXChannelBondingUpdate())},
        {WiringStage::RxBonding,       On::Any,    f.tab3.comboBoxRXChannelBoding,     index,    SLOT(refreshFigure())},
        {WiringStage::TxBonding,       On::Any,    f.tab3.checkBoxTXChannelBoding,     toggled,  SLOT(updateTXMasterChannelSelection())},
        {WiringStage::TxBonding,       On::Any,    f.tab3.checkBoxTXChannelBoding,     toggled,  SLOT(setEnabled(bool)), f.tab3.comboBoxTXReadStartDepth},

        {WiringStage::ClockCorrection, On::Any,    f.tab4.comboBoxClockCorrection,     index,    SLOT(updateCTCReadStartDepth())},
        {WiringStage::ClockCorrection, On::Any,    f.tab4.comboBoxClockCorrection,     index,    SLOT(updatedMasterChannelSel())},
        {WiringStage::ClockCorrection, On::Any,    f.tab4.comboBoxClockCorrection,     index,    SLOT(refreshFigure())},

        {WiringStage::Analog,          On::Any,    f.tab5.cmSpinBox,                   number,   SLOT(calculateFFE_C0())},
        {WiringStage::Analog,          On::Any,    f.tab5.c1SpinBox,                   number,   SLOT(calculateFFE_C0())},
        {WiringStage::Analog,          On::Any,    f.tab5.ffeModeCombox,               index,    SLOT(onFFEModeChanged())},
        {WiringStage::Analog,          On::Any,    f.tab5.equalizationModeCombox,      index,    SLOT(onEqualizationModeChanged())},

        {WiringStage::Rest,            On::Any,    f.tab1.comboBoxMode,                itemText, SLOT(onRefModeChanged())},
        {WiringStage::Rest,            On::Any,    f.tab1.comboBoxRefMux0Source,       itemText, SLOT(updatedRefClkFreqForMux0())},
        {WiringStage::Rest,            On::Any,    f.tab1.comboBoxRefMux1Source,       itemText, SLOT(updatedRefClkFreqForMux1())},
        {WiringStage::Rest,            On::Any,    f.tab1.comboBoxRefMux2Source,       itemText, SLOT(updatedRefClkFreqForMux2())},
        {WiringStage::Rest,            On::Any,    f.tab1.comboBoxRefMux3Source,       itemText, SLOT(updatedRefClkFreqForMux3())},
        {WiringStage::Rest,            On::Any,    f.tab5.biasSpinBox,                 number,   SLOT(resetFlagforBias())},
    };
    // clang-format on
    wires.insert(wires.end(), table.begin(), table.end());
    return wires;
}

bool applies(On devices, DeviceClass device) {
    return devices == On::Any || (devices == On::Listed) == isListed(device);
}

} // namespace

void connectStage(WiringStage stage, const FormSet& forms, QObject* dialog, DeviceClass device) {
    for (const Wire& wire : wiring(forms)) {
        if (wire.stage != stage || !applies(wire.devices, device)) {
            continue;
        }
        const QObject* receiver = wire.receiver != nullptr ? wire.receiver : dialog;
        // Earlier rules may have made the connection; the table's order is the one that counts.
        QObject::disconnect(wire.sender, wire.signal, receiver, wire.slot);
        QObject::connect(wire.sender, wire.signal, receiver, wire.slot);
    }
}

} // namespace IPCUSTOMIZED
