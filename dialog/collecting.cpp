// From the widgets to the configuration and its script; and the acceptance that rests on it.

#include "dialog/customizeddlg.h"

#include "model/config/driverlines.h"
#include "model/config/infokeys.h"
#include "model/config/keys.h"
#include "model/config/lanelines.h"

#include <serdesip/serdes.h>

#include <QCheckBox>
#include <QSpinBox>

namespace IPCUSTOMIZED {

ConfigMap customizeddlg::snapshot() const {
    ConfigMap config;
    config.insert(Key::TargetDevice, device().id());
    config.insert(Key::Type, m_info.value(Info::Id).toString());
    config.insert(Key::Version, QString(formatVersion));
    config.insert(Key::SynthesisTool, uiSynthesisTool());
    config.insert(Key::Lang, uiLanguageIndex());
    config.insert(Key::File, fileName());
    config.insert(Key::Module, moduleName());
    config.insert(Key::RecordLanes, m_selectedLanes);
    config.insert(Key::TxRealLineRate, txRealLineRate);
    for (const Lane& lane : lanes) {
        const QCheckBox* box = m_forms->laneBoxes.at(static_cast<std::size_t>(laneIndex(lane)));
        config.insert(lane.key, box->isChecked() && box->isEnabled());
    }
    for (const BoundField& field : m_fields) {
        config.insert(field.field.key, fieldValue(field));
    }
    return config;
}

void customizeddlg::writeDialogLaneLines(const LaneLines& lines, const QString& lanePrefix,
                                         const QString& quadPrefix) {
    QStringList unused;
    lines.append(unused, unused, m_script, lanePrefix, QString(), quadPrefix);
}

bool customizeddlg::writeDialogRefClockFreqLines(const QStringList& names,
                                                 const QStringList& frequencies) {
    QStringList unused;
    return appendRefClockFreqLines(names, frequencies, m_script, unused);
}

bool customizeddlg::collectConfig() {
    m_script.clear();
    m_config->clear();
    rebuildSelectedLanes();
    const ConfigMap widgets = snapshot();
    const ConfigView view(widgets);

    constexpr int usualLines = 56; // of a lane
    m_script.reserve((m_selectedLanes.size() + 1) * usualLines);
    m_script += bondingControlLines(m_class);
    const LaneLines lines(widgets, m_class, dialogWriter);
    for (const QString& caption : qAsConst(m_selectedLanes)) {
        const Lane* lane = laneByCaption(caption);
        writeDialogLaneLines(lines, lane->prefix,
                             quadPrefixes[static_cast<std::size_t>(lane->quad)]);
    }
    const ReferenceClocks clocks = referenceClocks(view, m_class);
    appendReceiveClockLines(view, m_script);
    m_script += clocks.inputLines;
    if (!writeDialogRefClockFreqLines(clocks.names, clocks.frequencies)) {
        return false;
    }
    *m_config = widgets;
    return true;
}

void customizeddlg::accept() {
    finishFields();
    const QStringList errors = checkFileOptions();
    if (!errors.isEmpty()) {
        showErrorMsg(errors);
        return;
    }
    const bool good = (isOpening() || checkFileExisting()) && checkModuleName() &&
                      onTxRateOrRatioChanged() && calculateFFE_C0() &&
                      onButtonCalculateClicked(false) && collectConfig();
    if (!good) {
        return;
    }
    const bool shared = m_biasFlag == BiasFlag::Confirmed;
    m_config->insert(Key::ChangedAllOfBias, shared);
    for (int quad : {0, 1}) {
        if (shared && usesQuad(m_selectedLanes, quad)) {
            // One box serves both quads.
            IPSERDESIP::serdes::instance()->setData(biasStoreKey[quad],
                                                    m_forms->tab5.biasSpinBox->value());
        }
    }
    QDialog::accept();
}

} // namespace IPCUSTOMIZED
