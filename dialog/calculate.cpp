// The "Calculate" check: reference pins, routes, and the host's generator.

#include "dialog/customizeddlg.h"

#include "dialog/rules/linerate.h"
#include "dialog/rules/references.h"
#include "model/config/configview.h"
#include "model/config/infokeys.h"
#include "model/config/lanes.h"
#include "model/config/values.h"

#include <ipcore/ipcore.h>
#include <serdesip/generator.h>
#include <serdesip/refnames.h>
#include <serdesip/serdes.h>

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QWidget>

namespace IPCUSTOMIZED {

using IPSERDESIP::serdes;

namespace {

const QString failure = QStringLiteral("Failure");
const QString pinMessage =
    QStringLiteral("The Expected Reference Clock Pin can not be connected to the Expected PLL");

/// Shows the default in a field that was left unfinished ("12.", empty).
void finish(QLineEdit* edit) {
    QString text = edit->text();
    if (edit->isEnabled() && edit->validator() != nullptr && !edit->hasAcceptableInput()) {
        edit->validator()->fixup(text);
        edit->setText(text);
    }
}

} // namespace

void customizeddlg::finishFields() {
    const customized_tab1& page = m_forms->tab1;
    const QString rate = page.TXLineRate->text();
    for (QLineEdit* edit : m_forms->muxFrequency) {
        finish(edit);
    }
    for (QLineEdit* edit :
         {page.GpioFrequency, page.MclkFrequency, page.TXLineRate, page.RXLineRate,
          page.ReferenceClockFrequency, m_forms->tab2.lineEditRxInterMetaFrameLength}) {
        finish(edit);
    }
    checkRxLineRate();
    if (page.ReferenceClockFrequency->isEnabled()) {
        checkRefClkFreq();
    }
    checkRXInterlakenMetaFrameLength();
    // The ratio box is rebuilt only for a rate that this has changed: a choice in it stays.
    if (page.TXLineRate->isEnabled() && rules::correctedTxRate(page.TXLineRate->text()) != rate) {
        checkTxLineRate();
    }
}

bool customizeddlg::pinConflicts(const QString& source, const QString& frequency) const {
    const IPSERDESIP::REF_SOURCE* pin =
        serdes::instance()->FormStringToREFSPtr(IPSERDESIP::refsrcOptTransforSerdesName(source));
    return pin != nullptr && pin->inUse() && !rules::sameFrequency(pin->frequency(), frequency);
}

bool customizeddlg::checkReferencePins() {
    const customized_tab1& page = m_forms->tab1;
    const auto muxConflicts = [this](std::size_t mux) {
        return pinConflicts(m_forms->muxSource[mux]->currentText(),
                            m_forms->muxFrequency[mux]->text());
    };
    bool conflict = false;
    if (rules::isRxOnly(m_class, operationMode())) {
        if (!checkRefClkFreqisRepeat()) {
            return false;
        }
        const QString choice = page.CombBoxPLLRefSource->currentText();
        if (choice == Value::Gpio || choice == Value::GpioPin) {
            conflict = pinConflicts(Value::GpioPin, page.GpioFrequency->text());
        } else if (choice == Value::Mclk) {
            conflict = pinConflicts(Value::Mclk, page.MclkFrequency->text());
        }
        for (std::size_t mux = 0; mux < m_forms->muxSource.size(); ++mux) {
            conflict = conflict || (choice == Value::RefMux[mux] && muxConflicts(mux));
        }
    } else if (referenceMode() == Value::Manual) {
        if (!checkRefClkFreqisRepeat()) {
            return false;
        }
        for (int mux = 0; mux < rules::muxCount(m_class); ++mux) {
            conflict = conflict || muxConflicts(static_cast<std::size_t>(mux));
        }
    } else {
        conflict = pinConflicts(page.CombBoxReferenceClockSource->currentText(),
                                page.ReferenceClockFrequency->text());
    }
    if (conflict) {
        inform(failure, pinMessage);
    }
    return !conflict;
}

bool customizeddlg::reachesRouted(const QString& quad, const QString& choice,
                                  const QStringList& targets) const {
    const serdes* model = serdes::instance();
    const auto reaches = [&](const QString& mux, const QString& source) {
        const QString pin = IPSERDESIP::refsrcOptTransforSerdesName(source);
        for (const QString& target : targets) {
            const bool open = mux.isEmpty() ? model->checkAccess(pin, quad + target)
                                            : model->checkAccess(mux, pin, quad + target);
            if (!open) {
                return false;
            }
        }
        return true;
    };
    if (choice == Value::Gpio || choice == Value::GpioPin) {
        return reaches(QString(), Value::GpioPin);
    }
    if (choice == Value::Mclk) {
        return reaches(QString(), Value::Mclk);
    }
    for (std::size_t mux = 0; mux < m_forms->muxSource.size(); ++mux) {
        const QString source = m_forms->muxSource[mux]->currentText();
        if (choice == Value::RefMux[mux] && source != Value::NotConnected && !source.isEmpty()) {
            return reaches(rules::muxInQuad(quad, choice), source);
        }
    }
    return true; // nothing chosen, nothing to ask
}

bool customizeddlg::reachesPll(const QString& quad) const {
    QStringList targets{QStringLiteral("_LANE")};
    if (!rules::isRxOnly(m_class, operationMode())) {
        targets.append(QStringLiteral("_TX"));
    }
    return reachesRouted(quad, m_forms->tab1.CombBoxPLLRefSource->currentText(), targets);
}

bool customizeddlg::reachesReceiver(const QString& quad) const {
    if (m_class == DeviceClass::K15 || rules::isTxOnly(m_class, operationMode())) {
        return true;
    }
    return reachesRouted(quad, m_forms->tab1.CombBoxRxRefSource->currentText(),
                         {QStringLiteral("_RX")});
}

bool customizeddlg::checkRoute() {
    rebuildSelectedLanes();
    const bool rxOnly = rules::isRxOnly(m_class, operationMode());
    const bool txOnly = rules::isTxOnly(m_class, operationMode());
    const bool routed = rxOnly || referenceMode() == Value::Manual;
    const QString source = IPSERDESIP::refsrcOptTransforSerdesName(
        m_forms->tab1.CombBoxReferenceClockSource->currentText());
    const serdes* model = serdes::instance();
    for (int number : {0, 1}) {
        if (!usesQuad(m_selectedLanes, number)) {
            continue;
        }
        const QString quad = QStringLiteral("quad%1").arg(number);
        if (routed) {
            if (!reachesPll(quad) || !reachesReceiver(quad)) {
                return false;
            }
            continue;
        }
        if (source.isEmpty()) {
            continue;
        }
        if (!rxOnly && !model->checkAccess(source, quad + QStringLiteral("_TX"))) {
            return false;
        }
        if (!txOnly && !model->checkAccess(source, quad + QStringLiteral("_RX"))) {
            return false;
        }
    }
    return true;
}

void customizeddlg::holdRoutes() {
    const customized_tab1& page = m_forms->tab1;
    const QString pll = page.CombBoxPLLSelection->currentText();
    m_lanes = m_selectedLanes;
    if (!rules::isRxOnly(m_class, operationMode()) && referenceMode() != Value::Manual) {
        serdes::instance()->checkRoute(m_lanes, pll,
                                       page.CombBoxReferenceClockSource->currentText(),
                                       textNumber(page.ReferenceClockFrequency->text()));
        return;
    }
    QStringList sources;
    QList<double> frequencies;
    for (int mux = 0; mux < rules::muxCount(m_class); ++mux) {
        const auto at = static_cast<std::size_t>(mux);
        sources.append(m_forms->muxSource[at]->currentText());
        frequencies.append(textNumber(m_forms->muxFrequency[at]->text()));
    }
    serdes::instance()->checkRoute(m_lanes, pll, sources, frequencies,
                                   page.CombBoxPLLRefSource->currentText(),
                                   page.CombBoxRxRefSource->currentText());
}

bool customizeddlg::onButtonCalculateClicked(bool prompt) {
    finishFields();
    if (!checkReferencePins()) {
        return false;
    }
    const QString folder = createPath() + QStringLiteral("/temp/") + QStringLiteral("CUSTOMIZED");
    if (!QDir(folder).exists() && !IPCore::makeDirs(folder, m_info.value(Info::Name).toString())) {
        return false;
    }
    if (!collectConfig() || m_script.isEmpty()) {
        return false;
    }
    switch (m_biasFlag) {
    case BiasFlag::Unconfirmed:
        confirmBias();
        break;
    case BiasFlag::Confirmed:
        appendBiasLines();
        break;
    case BiasFlag::Declined:
        break;
    }
    const QComboBox* mode = m_forms->tab1.comboBoxMode;
    if (!checkRoute()) {
        const bool manual = !mode->isHidden() && mode->currentText() == Value::Manual;
        inform(failure,
               manual ? QStringLiteral("Clock configuration conflict, please check") : pinMessage);
        return false;
    }
    // Whether the routes can be held does not count: the generator has the last word.
    holdRoutes();
    IPSERDESIP::generator generator;
    QStringList messages;
    const bool generated =
        generator.generate(m_script, folder + QStringLiteral("/customized.csr"), messages);
    for (const QString& lane : qAsConst(m_lanes)) {
        serdes::instance()->resetLane(lane, 0);
    }
    if (!generated) {
        const QStringList errors = generator.getErrStringList();
        inform(failure, errors.isEmpty()
                            ? QStringLiteral("The Expected Line Rate can not be generated by the "
                                             "Reference Clock Frequency")
                            : errors.join(QLatin1Char('\n')));
        return false;
    }
    if (prompt) {
        inform(QStringLiteral("Succeed"), QStringLiteral("Succeed"));
    }
    return true;
}

} // namespace IPCUSTOMIZED
