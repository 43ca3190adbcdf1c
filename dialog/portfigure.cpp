// The port figure that follows lanes and options.

#include "dialog/customizeddlg.h"

#include "dialog/rules/figure.h"
#include "model/config/lanes.h"

#include <QCheckBox>
#include <QComboBox>

namespace IPCUSTOMIZED {

void customizeddlg::refreshFigure() {
    rules::FigureState state;
    state.device = m_class;
    for (const QString& caption : usableLanes()) {
        if (const Lane* lane = laneByCaption(caption)) {
            state.lanePrefixes.append(lane->prefix);
        }
    }
    state.txEncoding = m_forms->tab2.comboBoxTxEncoding->currentText();
    state.rxDecoding = m_forms->tab2.comboBoxRxDecoding->currentText();
    // "None" carries 0, as does a box that has no item yet.
    state.clockCorrection = m_forms->tab4.comboBoxClockCorrection->currentData().toInt() != 0;
    state.rxBonding = m_forms->tab3.comboBoxRXChannelBoding->currentData().toInt() != 0;
    state.wordAlignment = m_forms->tab2.WordAlignment->isChecked();
    state.drp = m_forms->tab1.checkBoxDRPPort->isChecked();
    uiSetFigurePins(rules::figurePins(state));
}

} // namespace IPCUSTOMIZED
