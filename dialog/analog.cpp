// Transmit taps, receive equalisation, and the bias that a quad's lanes share.

#include "dialog/customizeddlg.h"

#include "dialog/rules/analog.h"
#include "model/config/driverlines.h"
#include "model/config/keys.h"
#include "model/config/values.h"

#include <serdesip/serdes.h>

#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QSpinBox>

namespace IPCUSTOMIZED {

bool customizeddlg::calculateFFE_C0() {
    const customized_tab5& page = m_forms->tab5;
    const int c0 = rules::mainTap(page.cmSpinBox->value(), page.c1SpinBox->value());
    page.c0Lael->setText(QString::number(c0));
    if (rules::isMainTapValid(c0)) {
        return true;
    }
    inform(QStringLiteral("Warning"), QStringLiteral("C0 must be greater than 20."));
    return false;
}

void customizeddlg::setTapsEnabled(bool enabled) {
    const customized_tab5& page = m_forms->tab5;
    for (QWidget* widget : std::initializer_list<QWidget*>{page.cmSpinBox, page.c1SpinBox,
                                                           page.label, page.label_2}) {
        widget->setEnabled(enabled);
    }
}

void customizeddlg::onFFEModeChanged() {
    const customized_tab5& page = m_forms->tab5;
    if (page.ffeModeCombox->currentText() == Value::Auto) {
        page.cmSpinBox->setValue(0);
        page.c1SpinBox->setValue(0);
        setTapsEnabled(false);
    } else if (page.ffeModeCombox->currentText() == Value::Manual) {
        setTapsEnabled(true);
    }
}

void customizeddlg::setEqualizerEnabled(bool enabled) {
    const customized_tab5& page = m_forms->tab5;
    for (QWidget* widget : std::initializer_list<QWidget*>{page.attSpinBox, page.boostSpinBox,
                                                           page.label_14, page.label_15}) {
        widget->setEnabled(enabled);
    }
}

void customizeddlg::onEqualizationModeChanged() {
    const customized_tab5& page = m_forms->tab5;
    if (page.equalizationModeCombox->currentText() == Value::Auto) {
        page.attSpinBox->setValue(rules::automaticAtt);
        page.boostSpinBox->setValue(rules::automaticBoost);
        setEqualizerEnabled(false);
    } else if (page.equalizationModeCombox->currentText() == Value::Manual) {
        setEqualizerEnabled(true);
    }
}

void customizeddlg::resetFlagforBias() {
    if (isRehearsing()) {
        return; // the fields come back to what they show now, and so what was agreed on holds
    }
    m_biasFlag = BiasFlag::Unconfirmed;
}

void customizeddlg::updateBiasDefaultValue() {
    rebuildSelectedLanes();
    QSpinBox* bias = m_forms->tab5.biasSpinBox;
    const auto takeStored = [&](const QString& key) {
        const QMap<QString, QVariant> stored = IPSERDESIP::serdes::instance()->globalData();
        if (stored.contains(key)) {
            bias->setValue(stored.value(key).toInt());
        }
    };
    switch (rules::biasFrom(m_selectedLanes)) {
    case rules::BiasFrom::Default:
        bias->setValue(rules::defaultBias);
        break;
    case rules::BiasFrom::Quad0:
        takeStored(biasStoreKey[0]);
        break;
    case rules::BiasFrom::Quad1:
        takeStored(biasStoreKey[1]);
        break;
    }
}

void customizeddlg::appendBiasLines() {
    const int bias = m_forms->tab5.biasSpinBox->value();
    m_script += biasLines(m_selectedLanes, {bias, bias});
}

void customizeddlg::confirmBias() {
    const QStringList others = rules::lanesSharingBias(m_selectedLanes);
    if (others.isEmpty()) {
        m_biasFlag = BiasFlag::Confirmed;
    } else {
        const QString question =
            QStringLiteral("%1 BIAS will also be changed to %2, whether to accept or not? ")
                .arg(others.join(QStringLiteral(", ")),
                     QString::number(m_forms->tab5.biasSpinBox->value()));
        const auto answer =
            QMessageBox::question(this, QStringLiteral("Question"), question,
                                  QMessageBox::No | QMessageBox::Yes, QMessageBox::No);
        m_biasFlag = answer == QMessageBox::Yes ? BiasFlag::Confirmed : BiasFlag::Declined;
    }
    if (m_biasFlag != BiasFlag::Declined) {
        appendBiasLines();
    }
}

} // namespace IPCUSTOMIZED
