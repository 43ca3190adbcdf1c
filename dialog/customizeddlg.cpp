#include "dialog/customizeddlg.h"

#include "model/config/infokeys.h"

#include <QCheckBox>

namespace IPCUSTOMIZED {

double customizeddlg::txRealLineRate = 0.0;

customizeddlg::customizeddlg(const QMap<QString, QVariant>& info, ConfigMap* config,
                             QWidget* parent)
    : IPSERDESIP::protocolGenDlg(parent)
    , m_info(info)
    , m_config(config) {
    uiSetLabelText(m_info.value(Info::Label).toString());
    uiSetDefaultFileName(m_info.value(Info::Target).toString());
    uiSetModuleName(m_info.value(Info::Module).toString());
    m_helpDocument = m_info.value(Info::Help).toString();

    m_forms = std::make_unique<FormSet>(this);
    m_fields = bindFields(*m_forms);
    uiAddTab(m_forms->pages[0], QStringLiteral("Channel,Line Rate,Refclk Selection"));
    uiAddTab(m_forms->pages[1], QStringLiteral("Data Width,Encoding,RX Word Alignment"));
    uiAddTab(m_forms->pages[2], QStringLiteral("Channel Bonding"));
    uiAddTab(m_forms->pages[3], QStringLiteral("RX Clock Correction"));
    uiAddTab(m_forms->pages[4], QStringLiteral("AFE"));
}

customizeddlg::~customizeddlg() = default;

void customizeddlg::rebuildSelectedLanes() {
    m_selectedLanes.clear();
    for (const Lane& lane : lanes) {
        if (m_forms->laneBoxes.at(static_cast<std::size_t>(laneIndex(lane)))->isChecked()) {
            m_selectedLanes.append(lane.caption);
        }
    }
}

QStringList customizeddlg::usableLanes() const {
    QStringList captions;
    for (const QCheckBox* box : m_forms->laneBoxes) {
        if (box->isChecked() && box->isEnabled()) {
            captions.append(box->text());
        }
    }
    return captions;
}

void customizeddlg::inform(const QString& title, const QString& text) {
    if (!m_loading) {
        m_messages.about(this, title, text);
    }
}

} // namespace IPCUSTOMIZED
