// Reference clock sources, multiplexers, reference and operation mode.

#include "dialog/customizeddlg.h"

#include "dialog/rules/references.h"
#include "model/config/values.h"

#include <serdesip/refnames.h>
#include <serdesip/serdes.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>

namespace IPCUSTOMIZED {

using IPSERDESIP::MUX;
using IPSERDESIP::REF_SOURCE;
using IPSERDESIP::serdes;

namespace {

const char* const muxSlots[] = {SLOT(updatedRefClkFreqForMux0()), SLOT(updatedRefClkFreqForMux1()),
                                SLOT(updatedRefClkFreqForMux2()), SLOT(updatedRefClkFreqForMux3())};

/// Shows what the source runs at, locked, where an instance has fixed it; else the default, open.
void showFrequency(QLineEdit* edit, const QString& source, bool open) {
    const double fixed = serdes::instance()->getFreqByRefsrc(source);
    edit->setText(fixed == 0.0 ? QString(rules::defaultFrequency) : QString::number(fixed));
    edit->setEnabled(open && fixed == 0.0);
}

/// New items; the choice so far stays when it is offered again.
void refill(QComboBox* combo, const QStringList& items, const QString& otherwise = QString()) {
    const QString chosen = combo->currentText();
    combo->clear();
    combo->addItems(items);
    if (items.contains(chosen)) {
        combo->setCurrentIndex(items.indexOf(chosen));
    } else if (items.contains(otherwise)) {
        combo->setCurrentIndex(items.indexOf(otherwise));
    }
}

/// The option text of the source that another instance's multiplexer is set to; empty: unknown.
QString sourceOfMux(const QString& hostName) {
    serdes* model = serdes::instance();
    const auto* mux = dynamic_cast<MUX*>(model->allInstance().value(hostName));
    if (mux == nullptr) {
        return {};
    }
    const REF_SOURCE* source = model->findRefsource(mux->point());
    return source != nullptr ? IPSERDESIP::refsrcSerdesNameTransforOpt(source->name()) : QString();
}

} // namespace

QString customizeddlg::operationMode() const {
    return m_forms->tab1.comboBoxOperationMode->currentText();
}

QString customizeddlg::referenceMode() const {
    return m_forms->tab1.comboBoxMode->currentText();
}

void customizeddlg::updatedRefClkFreq() {
    const customized_tab1& page = m_forms->tab1;
    showFrequency(page.ReferenceClockFrequency, page.CombBoxReferenceClockSource->currentText(),
                  rules::referenceFields(m_class, operationMode(), referenceMode()).autoFields);
}

void customizeddlg::checkRefClkFreq() {
    QLineEdit* edit = m_forms->tab1.ReferenceClockFrequency;
    edit->setText(rules::correctedFrequency(edit->text()));
}

void customizeddlg::updateMuxFrequency(int mux) {
    const auto at = static_cast<std::size_t>(mux);
    const QString source = m_forms->muxSource[at]->currentText();
    QLineEdit* edit = m_forms->muxFrequency[at];
    if (source.isEmpty() || source == Value::NotConnected) {
        edit->setEnabled(false);
        edit->clear();
        return;
    }
    showFrequency(edit, source, true);
}

void customizeddlg::updatedRefClkFreqForMux0() {
    updateMuxFrequency(0);
}

void customizeddlg::updatedRefClkFreqForMux1() {
    updateMuxFrequency(1);
}

void customizeddlg::updatedRefClkFreqForMux2() {
    updateMuxFrequency(2);
}

void customizeddlg::updatedRefClkFreqForMux3() {
    updateMuxFrequency(3);
}

void customizeddlg::fillMux(int mux, const QString& hostName) {
    QComboBox* combo = m_forms->muxSource[static_cast<std::size_t>(mux)];
    const bool taken = serdes::instance()->instanceEnable(hostName);
    QStringList items = rules::muxSources(m_class, mux);
    if (taken) {
        const QString source = sourceOfMux(hostName);
        items = source.isEmpty() ? QStringList() : QStringList(source);
    }
    combo->setEnabled(!taken);
    refill(combo, items);
}

void customizeddlg::rebuildMuxes(bool quad1) {
    for (int mux = 0; mux < rules::muxCount(m_class); ++mux) {
        QComboBox* combo = m_forms->muxSource[static_cast<std::size_t>(mux)];
        const char* slot = muxSlots[mux];
        disconnect(combo, SIGNAL(currentIndexChanged(QString)), this, slot);
        fillMux(mux, rules::muxHostName(quad1, mux));
        connect(combo, SIGNAL(currentIndexChanged(QString)), this, slot);
        updateMuxFrequency(mux);
    }
}

void customizeddlg::checkMuxIfUsed_60k() {
    rebuildMuxes(false);
}

void customizeddlg::checkMuxIfUsed_15k() {
    rebuildMuxes(false);
}

void customizeddlg::checkMuxIfUsed_138k() {
    rebuildSelectedLanes();
    rebuildMuxes(rules::usesQuad1Muxes(m_class, m_selectedLanes));
}

void customizeddlg::clearMuxes() {
    for (std::size_t mux = 0; mux < m_forms->muxSource.size(); ++mux) {
        m_forms->muxSource[mux]->clear();
        m_forms->muxSource[mux]->setEnabled(false);
        m_forms->muxFrequency[mux]->clear();
        m_forms->muxFrequency[mux]->setEnabled(false);
    }
}

void customizeddlg::refillRouting() {
    const customized_tab1& page = m_forms->tab1;
    const QString mode = operationMode();
    const bool rxOnly = rules::isRxOnly(m_class, mode);
    refill(page.CombBoxPLLRefSource, rules::pllSourceItems(m_class, mode));
    refill(page.CombBoxRxRefSource, rules::rxSourceItems(m_class, mode),
           rxOnly ? QString(Value::RefMux[1]) : QString());
}

void customizeddlg::onRefModeChanged() {
    switch (m_class) {
    case DeviceClass::K60:
        checkMuxIfUsed_60k();
        break;
    case DeviceClass::K15:
        checkMuxIfUsed_15k();
        break;
    case DeviceClass::K138:
        checkMuxIfUsed_138k();
        break;
    }

    const customized_tab1& page = m_forms->tab1;
    const rules::ReferenceFields fields =
        rules::referenceFields(m_class, operationMode(), referenceMode());
    page.CombBoxReferenceClockSource->setEnabled(fields.autoFields);
    page.ReferenceClockFrequency->setEnabled(fields.autoFields);
    if (fields.autoFields) {
        updatePLLSelection();
        clearMuxes();
    } else {
        refillRouting();
    }
    page.CombBoxPLLRefSource->setEnabled(fields.pllSource);
    page.CombBoxRxRefSource->setEnabled(fields.rxSource);
    page.GpioFrequency->setEnabled(fields.inputs);
    page.MclkFrequency->setEnabled(fields.inputs);
}

void customizeddlg::enterRxOnly() {
    const customized_tab1& page = m_forms->tab1;
    page.LoopbackMode->setCurrentIndex(page.LoopbackMode->findText(Value::Off));
    page.LoopbackMode->setEnabled(false);
    // One PLL and, to begin with, one multiplexer serve the receiver.
    page.CombBoxPLLSelection->setCurrentIndex(page.CombBoxPLLSelection->findText(Value::Qpll1));
    page.CombBoxPLLSelection->setEnabled(false);
    page.CombBoxPLLRefSource->clear();
    if (m_class == DeviceClass::K60 && m_frequencyRow.row < 0) {
        m_frequencyRow = takeOutRow(*page.gridLayout_3, *page.ReferenceClockFrequency);
    }
    for (const QCheckBox* lane : m_forms->laneBoxes) {
        disconnect(lane, SIGNAL(toggled(bool)), this, SLOT(onRefModeChanged()));
    }
    onRefModeChanged();
}

void customizeddlg::leaveRxOnly() {
    const customized_tab1& page = m_forms->tab1;
    page.CombBoxPLLSelection->setEnabled(true);
    const bool txOnly = rules::isTxOnly(m_class, operationMode());
    if (txOnly) {
        page.CombBoxRxRefSource->clear();
        page.CombBoxRxRefSource->setEnabled(false);
        page.LoopbackMode->setCurrentIndex(page.LoopbackMode->findText(Value::Off));
    }
    page.LoopbackMode->setEnabled(!txOnly);
    if (m_frequencyRow.row >= 0) {
        putBackRow(*page.gridLayout_3, m_frequencyRow);
        m_frequencyRow = TakenRow();
    }
    for (const QCheckBox* lane : m_forms->laneBoxes) {
        disconnect(lane, SIGNAL(toggled(bool)), this, SLOT(onRefModeChanged()));
        connect(lane, SIGNAL(toggled(bool)), this, SLOT(onRefModeChanged()));
    }
    onRefModeChanged();
}

void customizeddlg::onOperationModeChanged() {
    if (rules::isRxOnly(m_class, operationMode())) {
        enterRxOnly();
    } else {
        leaveRxOnly();
    }
}

bool customizeddlg::checkRefClkFreqisRepeat() {
    std::vector<rules::MuxSetting> muxes;
    for (int mux = 0; mux < rules::muxCount(m_class); ++mux) {
        const auto at = static_cast<std::size_t>(mux);
        muxes.push_back({m_forms->muxSource[at]->currentText(), m_forms->muxFrequency[at]->text()});
    }
    const customized_tab1& page = m_forms->tab1;
    switch (rules::muxFault(m_class, muxes, page.CombBoxPLLRefSource->currentText(),
                            page.CombBoxRxRefSource->currentText())) {
    case rules::MuxFault::None:
        return true;
    case rules::MuxFault::Source:
        inform(QStringLiteral("Warning"), QStringLiteral("Refclk Source error, please check"));
        break;
    case rules::MuxFault::Frequency:
        inform(QStringLiteral("Warning"),
               QStringLiteral("Refclk Frequency conflict, please check"));
        break;
    }
    return false;
}

} // namespace IPCUSTOMIZED
