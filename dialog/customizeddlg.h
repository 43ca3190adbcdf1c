#pragma once

#include "dialog/fields.h"
#include "dialog/forms/gridrow.h"
#include "dialog/formset.h"
#include "dialog/messages.h"
#include "model/config/deviceclass.h"

#include <serdesip/protocolgendlg.h>

#include <memory>
#include <vector>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace IPCUSTOMIZED {

using IPSERDESIP::ConfigMap;

class LaneLines;

/// The configuration dialog. Its rules are slots, each a few lines around a pure decision of
/// dialog/rules; each source file beside this header holds one group of them.
class customizeddlg : public IPSERDESIP::protocolGenDlg {
    Q_OBJECT

public:
    /// @param info    the IP's description
    /// @param config  written whole by every collection; not owned, outlives the dialog
    customizeddlg(const QMap<QString, QVariant>& info, ConfigMap* config, QWidget* parent);
    ~customizeddlg() override;

    // The order of the slots is part of the binary interface: callers know them by index.
public Q_SLOTS:
    void accept() override;
    void refreshFigure();
    void updatePLLSelection();
    void updateEnableEncoding();
    void updateEnableDecoding();
    void onWordAlignmentUpdate();
    void updateRXMasterChannelSelection();
    void onRXChannelBondingUpdate();
    void updateTXMasterChannelSelection();
    void updateCTCReadStartDepth();
    bool onButtonCalculateClicked(bool prompt = true);
    bool checkRoute();
    void updatedRefClkFreq();
    void onRXDecodingModeChanged();
    void onTXEncodingModeChanged();
    void checkRXInterlakenMetaFrameLength();
    void checkTxLineRate();
    void checkRxLineRate();
    void checkRefClkFreq();
    bool onTxRateOrRatioChanged();
    void updatedTxRateByRatio();
    void updateClkSrc();
    void updatedMasterChannelSel();
    bool calculateFFE_C0();
    void onFFEModeChanged();
    void onEqualizationModeChanged();
    void resetFlagforBias();
    void updateBiasDefaultValue();
    void onOperationModeChanged();
    void onRefModeChanged();
    void checkMuxIfUsed_138k();
    void checkMuxIfUsed_60k();
    void checkMuxIfUsed_15k();
    void updatedRefClkFreqForMux0();
    void updatedRefClkFreqForMux1();
    void updatedRefClkFreqForMux2();
    void updatedRefClkFreqForMux3();
    bool checkRefClkFreqisRepeat();

protected:
    void initForDevice() override;
    bool loadConfig(const ConfigMap& config) override;

private:
    /// The bias confirmation flag.
    enum class BiasFlag { Unconfirmed = 0, Confirmed = 1, Declined = 2 };

    // Adaptation to the device
    void adaptLanes();
    void adaptPages();
    void fillRatesAndClocks();
    void fillDataPath();
    void fillBonding();
    void fillClockCorrection();
    void fillAnalog();

    // Lanes
    void rebuildSelectedLanes();
    QStringList usableLanes() const; ///< captions of the lanes that are checked and enabled

    // Clocks
    QString operationMode() const;
    QString referenceMode() const;
    void rebuildMuxes(bool quad1);
    void fillMux(int mux, const QString& hostName);
    void updateMuxFrequency(int mux);
    void clearMuxes();
    void refillRouting();
    void enterRxOnly();
    void leaveRxOnly();
    bool takeOverPll();
    void freePll();
    bool pinConflicts(const QString& source, const QString& frequency) const;
    bool checkReferencePins();
    void holdRoutes();
    bool reachesPll(const QString& quad) const;
    bool reachesReceiver(const QString& quad) const;
    bool reachesRouted(const QString& quad, const QString& choice,
                       const QStringList& targets) const;
    void finishFields();

    // Analog
    void setTapsEnabled(bool enabled);
    void setEqualizerEnabled(bool enabled);
    void confirmBias();
    void appendBiasLines();

    // Collecting and loading
    bool collectConfig();
    ConfigMap snapshot() const;
    void writeDialogLaneLines(const LaneLines& lines, const QString& lanePrefix,
                              const QString& quadPrefix);
    bool writeDialogRefClockFreqLines(const QStringList& names, const QStringList& frequencies);
    void loadWidgets(const ConfigMap& config);
    void loadRatio(const ConfigMap& config);
    void offerSavedRouting(const ConfigMap& config);
    void settleFields(const ConfigMap& config);
    bool isFixedByOthers(const BoundField& field) const;

    void inform(const QString& title, const QString& text);

    QMap<QString, QVariant> m_info;
    ConfigMap* m_config;
    std::unique_ptr<FormSet> m_forms;
    std::vector<BoundField> m_fields;
    DeviceClass m_class = DeviceClass::K138;
    QStringList m_selectedLanes;
    QStringList m_script;
    BiasFlag m_biasFlag = BiasFlag::Unconfirmed;
    TakenRow m_frequencyRow; ///< out of the grid while the 60k class is in "RX Only"
    bool m_loading = false;
    Messages m_messages;

    /// The real transmit rate, Gbps, that another instance fixes on the shared PLL; 0: free. One
    /// for the whole process: it outlives the dialog until a PLL is selected again.
    static double txRealLineRate;
};

} // namespace IPCUSTOMIZED
