// What a shared PLL that another instance runs imposes on this one.

#include "dialog/customizeddlg.h"

#include "dialog/combobox.h"
#include "dialog/rules/references.h"
#include "model/config/lanes.h"
#include "model/config/values.h"

#include <serdesip/serdes.h>

#include <QComboBox>
#include <QLineEdit>

namespace IPCUSTOMIZED {

namespace {

/// The host's name of the PLL that is asked about: quad 0's goes before quad 1's. Empty: a PLL of
/// the lane's own, or no lane.
QString sharedPll(const QStringList& selectedLanes, const QString& pll) {
    if (pll != Value::Qpll0 && pll != Value::Qpll1) {
        return {};
    }
    for (int quad : {0, 1}) {
        if (usesQuad(selectedLanes, quad)) {
            return QStringLiteral("Q%1_").arg(quad) + pll;
        }
    }
    return {};
}

} // namespace

void customizeddlg::updatePLLSelection() {
    rebuildSelectedLanes();
    if (!takeOverPll()) {
        freePll();
    }
    checkTxLineRate();
    for (int mux = 0; mux < static_cast<int>(m_forms->muxSource.size()); ++mux) {
        updateMuxFrequency(mux);
    }
    updateRXMasterChannelSelection();
    updateTXMasterChannelSelection();
    refreshFigure();
}

bool customizeddlg::takeOverPll() {
    const customized_tab1& page = m_forms->tab1;
    const auto* model = IPSERDESIP::serdes::instance();
    const QString pll = sharedPll(m_selectedLanes, page.CombBoxPLLSelection->currentText());
    if (pll.isEmpty() || !model->checkPllEnable(pll)) {
        return false;
    }
    const QMap<QString, QVariant> message = model->getMessageByPLL(pll);
    if (message.isEmpty()) {
        return false;
    }
    txRealLineRate = message.value(QStringLiteral("TX_Line_Rate")).toDouble();
    const QString source = message.value(QStringLiteral("Reference_Clock_Source")).toString();
    page.CombBoxReferenceClockSource->setCurrentIndex(
        itemIndex(page.CombBoxReferenceClockSource, source));
    page.ReferenceClockFrequency->setText(
        QString::number(message.value(QStringLiteral("Reference_Clock_Frequency")).toDouble()));
    page.TXLineRate->setEnabled(false);
    page.CombBoxReferenceClockSource->setEnabled(false);
    page.ReferenceClockFrequency->setEnabled(false);
    return true;
}

void customizeddlg::freePll() {
    const customized_tab1& page = m_forms->tab1;
    txRealLineRate = 0.0;
    page.TXLineRate->setEnabled(true);
    const bool open = rules::referenceFields(m_class, operationMode(), referenceMode()).autoFields;
    page.CombBoxReferenceClockSource->setEnabled(open);
    page.ReferenceClockFrequency->setEnabled(open);
    if (open) {
        updatedRefClkFreq();
    }
}

} // namespace IPCUSTOMIZED
