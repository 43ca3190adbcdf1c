// From a saved configuration back to the widgets.

#include "dialog/customizeddlg.h"

#include "dialog/combobox.h"
#include "dialog/rules/references.h"
#include "model/config/configview.h"
#include "model/config/keys.h"
#include "model/config/values.h"

#include <serdesip/serdes.h>

#include <QCheckBox>
#include <QComboBox>
#include <QIcon>
#include <QLineEdit>
#include <QMessageBox>
#include <QPixmap>
#include <QScopedValueRollback>
#include <QSpinBox>

namespace IPCUSTOMIZED {

namespace {

/// Restored before the rest and in an order of their own: the rate decides what the ratio offers.
bool isRestoredFirst(QLatin1String key) {
    return key == Key::PllSelection || key == Key::RxRate || key == Key::TxRate ||
           key == Key::TxRateRatio;
}

bool offers(const QComboBox* combo, const QString& text) {
    return itemIndex(combo, text) >= 0;
}

} // namespace

bool customizeddlg::loadConfig(const ConfigMap& config) {
    if (ConfigView(config).text(Key::Version) != formatVersion) {
        QMessageBox box(this);
        box.setWindowTitle(QStringLiteral("Error"));
        box.setText(QStringLiteral("This version of specified IP Config file is incompatible with "
                                   "current IP Core Generator."));
        box.setStandardButtons(QMessageBox::Ok);
        box.setIconPixmap(QPixmap(QStringLiteral("://image/exclamation.png")));
        box.setWindowIcon(QIcon(QStringLiteral("://image/module.png")));
        box.exec();
        return false;
    }
    loadWidgets(config);
    return true;
}

void customizeddlg::loadRatio(const ConfigMap& config) {
    QComboBox* ratio = m_forms->tab1.comboBoxTxLineRatio;
    const ConfigView view(config);
    for (const QLatin1String first : {Value::NotConnected, "5x"_l1}) {
        if (offers(ratio, first)) {
            const QString saved = view.text(Key::TxRateRatio, first);
            ratio->setCurrentIndex(itemIndex(ratio, saved));
            return;
        }
    }
}

/// In "Auto" the routing combos keep what they offered before; a fresh dialog offers nothing yet.
void customizeddlg::offerSavedRouting(const ConfigMap& config) {
    const customized_tab1& page = m_forms->tab1;
    const ConfigView view(config);
    const auto offer = [](QComboBox* combo, const QString& saved, const QStringList& items) {
        if (!offers(combo, saved) && items.contains(saved)) {
            combo->clear();
            combo->addItems(items);
        }
    };
    offer(page.CombBoxPLLRefSource, view.text(Key::PllRefSource),
          rules::pllSourceItems(m_class, operationMode()));
    offer(page.CombBoxRxRefSource, view.text(Key::RxRefSource),
          rules::rxSourceItems(m_class, operationMode()));
}

bool customizeddlg::isFixedByOthers(const BoundField& field) const {
    const auto* model = IPSERDESIP::serdes::instance();
    const customized_tab1& page = m_forms->tab1;
    const auto fixed = [model](const QComboBox* source) {
        return model->getFreqByRefsrc(source->currentText()) != 0.0;
    };
    if (field.widget == page.TXLineRate) {
        return txRealLineRate != 0.0;
    }
    if (field.widget == page.ReferenceClockFrequency) {
        return txRealLineRate != 0.0 || fixed(page.CombBoxReferenceClockSource);
    }
    if (field.widget == page.CombBoxReferenceClockSource) {
        return txRealLineRate != 0.0;
    }
    for (int mux = 0; mux < rules::muxCount(m_class); ++mux) {
        const auto at = static_cast<std::size_t>(mux);
        const QComboBox* source = m_forms->muxSource[at];
        if (field.widget == source) {
            const bool quad1 = rules::usesQuad1Muxes(m_class, m_selectedLanes);
            return model->instanceEnable(rules::muxHostName(quad1, mux));
        }
        if (field.widget == m_forms->muxFrequency[at]) {
            return fixed(source);
        }
    }
    return false;
}

/// The order of restoring lets a later option's rule overwrite an earlier one: what differs from
/// the saved value is set again, except what another instance fixes.
void customizeddlg::settleFields(const ConfigMap& config) {
    for (const BoundField& field : m_fields) {
        if (field.field.kind != FieldKind::Value || isFixedByOthers(field)) {
            continue;
        }
        if (field.field.key == Key::TxRateRatio) {
            continue; // below: choosing a PLL rebuilds the box
        }
        const QVariant saved = config.value(field.field.key);
        const QVariant shown = fieldValue(field);
        const bool same = shown.type() == QVariant::Bool ? shown.toBool() == saved.toBool()
                                                         : shown.toString() == saved.toString();
        if (!same) {
            setFieldValue(field, saved);
        }
    }
    loadRatio(config);
}

void customizeddlg::loadWidgets(const ConfigMap& config) {
    const QScopedValueRollback<bool> quiet(m_loading, true);
    const ConfigView view(config);
    uiSetSynthesisTool(view.text(Key::SynthesisTool));
    uiSetLanguageIndex(view.integer(Key::Lang));
    for (const Lane& lane : lanes) {
        if (view.flag(lane.key)) {
            QCheckBox* box = m_forms->laneBoxes.at(static_cast<std::size_t>(laneIndex(lane)));
            box->setEnabled(true);
            box->setChecked(true);
        }
    }
    for (const QLatin1String key : {Key::PllSelection, Key::RxRate, Key::TxRate}) {
        for (const BoundField& field : m_fields) {
            if (field.field.key == key) {
                setFieldValue(field, config.value(key));
            }
        }
    }
    checkTxLineRate();
    loadRatio(config);
    for (const BoundField& field : m_fields) {
        if (field.field.key == Key::PllRefSource) {
            offerSavedRouting(config);
        }
        if (!isRestoredFirst(field.field.key) && !isFixedByOthers(field)) {
            setFieldValue(field, config.value(field.field.key));
        }
    }
    settleFields(config);

    rebuildSelectedLanes();
    const auto* model = IPSERDESIP::serdes::instance();
    for (int quad : {0, 1}) {
        const QString key = biasStoreKey[quad];
        if (usesQuad(m_selectedLanes, quad) && model->globalData().contains(key)) {
            m_forms->tab5.biasSpinBox->setValue(model->getData(key).toInt());
        }
    }
    if (config.contains(Key::ChangedAllOfBias)) {
        m_biasFlag = view.flag(Key::ChangedAllOfBias) ? BiasFlag::Confirmed : BiasFlag::Declined;
    }
    refreshFigure();
}

} // namespace IPCUSTOMIZED
