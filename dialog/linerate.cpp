// Line rates and the transmit oversampling ratio.

#include "dialog/customizeddlg.h"

#include "dialog/rules/linerate.h"
#include "model/config/configview.h"

#include <QComboBox>
#include <QLineEdit>

namespace IPCUSTOMIZED {

void customizeddlg::checkRxLineRate() {
    QLineEdit* rate = m_forms->tab1.RXLineRate;
    rate->setText(rules::correctedRxRate(rate->text()));
}

void customizeddlg::checkTxLineRate() {
    using Follows = rules::RatioBox::Follows;
    QLineEdit* rate = m_forms->tab1.TXLineRate;
    QComboBox* ratio = m_forms->tab1.comboBoxTxLineRatio;
    rate->setText(rules::correctedTxRate(rate->text()));

    disconnect(ratio, SIGNAL(currentIndexChanged(int)), this, SLOT(onTxRateOrRatioChanged()));
    disconnect(ratio, SIGNAL(currentIndexChanged(int)), this, SLOT(updatedTxRateByRatio()));
    const rules::RatioBox box =
        rules::ratioBox(textNumber(rate->text()), txRealLineRate, ratio->currentText());
    ratio->clear();
    ratio->addItems(box.items);
    ratio->setCurrentIndex(box.items.indexOf(box.selected));
    ratio->setEnabled(box.enabled);
    switch (box.follows) {
    case Follows::Nothing:
        break;
    case Follows::CheckRate:
        connect(ratio, SIGNAL(currentIndexChanged(int)), this, SLOT(onTxRateOrRatioChanged()));
        onTxRateOrRatioChanged();
        break;
    case Follows::SetRate:
        connect(ratio, SIGNAL(currentIndexChanged(int)), this, SLOT(updatedTxRateByRatio()));
        updatedTxRateByRatio();
        break;
    }
}

bool customizeddlg::onTxRateOrRatioChanged() {
    const customized_tab1& page = m_forms->tab1;
    if (rules::reachesOneGigabit(textNumber(page.TXLineRate->text()), txRealLineRate,
                                 page.comboBoxTxLineRatio->currentText())) {
        return true;
    }
    inform(QStringLiteral("Warning"),
           QStringLiteral("If TX line rate less than 1Gbps, TX line rate*Ratio must be equal or "
                          "greater than 1Gbps."));
    return false;
}

void customizeddlg::updatedTxRateByRatio() {
    const customized_tab1& page = m_forms->tab1;
    const QString rate =
        rules::rateAtRatio(txRealLineRate, page.comboBoxTxLineRatio->currentText());
    if (!rate.isEmpty()) {
        page.TXLineRate->setText(rate);
    }
}

} // namespace IPCUSTOMIZED
