#include "savedkeys.h"

#include <serdesip/protocolgendlg.h>
#include <serdesip/serdes.h>

namespace DialogTest {

const std::vector<SavedKey>& savedKeys() {
    // clang-format off
    static const std::vector<SavedKey> table{
        {"TX_RATE",                "TXLineRate",                   From::Text},
        {"RX_RATE",                "RXLineRate",                   From::Text},
        {"TX_RATE_RATIO",          "comboBoxTxLineRatio",          From::Text},
        {"REFERENCE_CLOCK_SOURCE", "CombBoxReferenceClockSource",  From::Text},
        {"REFERENCE_CLOCK_FREQ",   "ReferenceClockFrequency",      From::Text},
        {"Loopback_Mode",          "LoopbackMode",                 From::Text},
        {"PLL_SELECTION",          "CombBoxPLLSelection",          From::Text},
        {"DRP_Ports",              "checkBoxDRPPort",              From::Checked},

        {"INTERNAL_DATA_WIDTH",    "comboBoxInternalDataWidth",    From::Text},
        {"TX_EXTERNAL_DATA_RATIO", "comboBoxTXExternalDataRatio",  From::Text},
        {"RX_EXTERNAL_DATA_RATIO", "comboBoxRXExternalDataRatio",  From::Text},
        {"TX_INTERNAL_DATA_WIDTH", "comboBoxTXInternalDataWidth",  From::Text},
        {"RX_INTERNAL_DATA_WIDTH", "comboBoxRXInternalDataWidth",  From::Text},
        {"TX_ENCODING",            "comboBoxTxEncoding",           From::Text},
        {"RX_DECODING",            "comboBoxRxDecoding",           From::Text},
        {"RX_INTERLAKEN_META_FRAME_LENGTH", "lineEditRxInterMetaFrameLength", From::Text},
        {"64B66BMODE",             "comboBox64B66BMode",           From::Text},
        {"ENABLE_ENCODING",        "checkBoxEncoding",             From::Checked},
        {"ENABLE_DECODING",        "checkBoxDecoding",             From::Checked},
        {"WORD_ALIGNMENT",         "WordAlignment",                From::Checked},
        {"WAPATTERN0",             "comboBoxPattern",              From::Text},
        {"MASK0",                  "lineEditMask",                 From::Text},
        {"ENBALE_WAPATTERN0",      "comboBoxPattern",              From::Enabled},
        {"ENABLE_MASK0",           "lineEditMask",                 From::Enabled},
        {"TXBITPOLARITYINVERT",    "checkBoxTxBitPolarityInvert",  From::Checked},
        {"RXBITPOLARITYINVERT",    "checkBoxRxBitPolarityInvert",  From::Checked},

        {"RX_CHANNEL_BONDING",     "comboBoxRXChannelBoding",      From::Text},
        {"RX_MASTER_CHANNEL_SELECTION", "comboBoxRXMasterChannelSelection", From::Text},
        {"PATTERN0",               "lineEditPattern0",             From::Text},
        {"PATTERN1",               "lineEditPattern1",             From::Text},
        {"PATTERN2",               "lineEditPattern2",             From::Text},
        {"PATTERN3",               "lineEditPattern3",             From::Text},
        {"PATTERN1_K_CHARACTER",   "checkBoxPattern1Character",    From::Checked},
        {"PATTERN2_K_CHARACTER",   "checkBoxPattern2Character",    From::Checked},
        {"PATTERN3_K_CHARACTER",   "checkBoxPattern3Character",    From::Checked},
        {"PATTERN_MAX_SKEW",       "comboBoxPatternMaxSkew",       From::Text},
        {"RX_READ_START_DEPTH",    "comboBoxRXReadStartDepth",     From::Text},
        {"TX_CHANNEL_BONDING",     "checkBoxTXChannelBoding",      From::Checked},
        {"TX_MASTER_CHANNEL_SELECTION", "comboBoxTXMasterChannelSelection", From::Text},
        {"TX_READ_START_DEPTH",    "comboBoxTXReadStartDepth",     From::Text},

        {"CLOCK_CORRECTION",       "comboBoxClockCorrection",      From::Text},
        {"CLOCK_CLKSOURCE",        "comboBoxClockSource",          From::Text},
        {"CLOCK_MASTERCHANNELSEL", "comboBoxMasterChannelSel",     From::Text},
        {"CTC_PATTERN0",           "lineEditCTCPattern0",          From::Text},
        {"CTC_PATTERN1",           "lineEditCTCPattern1",          From::Text},
        {"CTC_READ_START_DEPTH",   "comboBoxCTCReadStartDepth",    From::Text},
        {"CTC_PATTERN1_IS_K",      "checkBoxCTCPattern1isK",       From::Checked},

        {"DIFFERENTIAL_SWING",     "differeSwingComboBox",         From::Text},
        {"FFEMODE",                "ffeModeCombox",                From::Text},
        {"FFE_CM",                 "cmSpinBox",                    From::Number},
        {"FFE_C1",                 "c1SpinBox",                    From::Number},
        {"FFE_C0",                 "c0Lael",                       From::Text},
        {"SD_THRESHOLD",           "sdThresholdComboBox",          From::Text},
        {"Equalization_Mode",      "equalizationModeCombox",       From::Text},
        {"ATT",                    "attSpinBox",                   From::Number},
        {"BOOST",                  "boostSpinBox",                 From::Number},

        {"OPERATION_MODE",         "comboBoxOperationMode",        From::Text},
        {"RefMode",                "comboBoxMode",                 From::Text},
        {"REFMUX0SOURCE",          "comboBoxRefMux0Source",        From::Text},
        {"REFMUX1SOURCE",          "comboBoxRefMux1Source",        From::Text},
        {"REFMUX2SOURCE",          "comboBoxRefMux2Source",        From::Text},
        {"REFMUX3SOURCE",          "comboBoxRefMux3Source",        From::Text},
        {"PLLREFSOURCE",           "CombBoxPLLRefSource",          From::Text},
        {"RXREFSOURCE",            "CombBoxRxRefSource",           From::Text},
        {"MUX0Freq",               "ReferenceMux0Freq",            From::Text},
        {"MUX1Freq",               "ReferenceMux1Freq",            From::Text},
        {"MUX2Freq",               "ReferenceMux2Freq",            From::Text},
        {"MUX3Freq",               "ReferenceMux3Freq",            From::Text},
        {"GPIOFreq",               "GpioFrequency",                From::Text},
        {"MCLKFreq",               "MclkFrequency",                From::Text},
    };
    // clang-format on
    return table;
}

QStringList otherKeys() {
    return {"target_device", "type",        "version",        "Synthesis_tool", "LANG",   "file",
            "module",        "recordlanes", "TXREALLINERATE", "Q0_LN0",         "Q0_LN1", "Q0_LN2",
            "Q0_LN3",        "Q1_LN0",      "Q1_LN1",         "Q1_LN2",         "Q1_LN3"};
}

ConfigMap shownConfig(const Dialog& dialog, double realRate) {
    ConfigMap config;
    for (const SavedKey& saved : savedKeys()) {
        QVariant value;
        switch (saved.from) {
        case From::Text:
            value = dialog.text(saved.widget);
            break;
        case From::Checked:
            value = dialog.box(saved.widget)->isChecked();
            break;
        case From::Number:
            value = dialog.spin(saved.widget)->value();
            break;
        case From::Enabled:
            value = dialog.isEnabled(saved.widget);
            break;
        }
        config.insert(saved.key, value);
    }
    QStringList recorded;
    for (int quad = 0; quad < 2; ++quad) {
        for (int number = 0; number < 4; ++number) {
            const QCheckBox* lane = dialog.box(QStringLiteral("q%1_l%2").arg(quad).arg(number));
            if (lane->isChecked()) {
                recorded.append(QStringLiteral("Q%1 Lane%2").arg(quad).arg(number));
            }
            config.insert(QStringLiteral("Q%1_LN%2").arg(quad).arg(number),
                          lane->isChecked() && lane->isEnabled());
        }
    }
    config.insert("target_device", dialog->device().id());
    config.insert("type", QStringLiteral("customized"));
    config.insert("version", QStringLiteral("1.0"));
    config.insert("Synthesis_tool", dialog->uiSynthesisTool());
    config.insert("LANG", dialog->uiLanguageIndex());
    config.insert("file", dialog->fileName());
    config.insert("module", dialog->moduleName());
    config.insert("recordlanes", recorded);
    config.insert("TXREALLINERATE", realRate);
    return config;
}

QStringList differences(const ConfigMap& actual, const ConfigMap& expected) {
    QStringList found;
    const auto shown = [](const ConfigMap& map, const QString& key) {
        const QVariant value = map.value(key);
        return !map.contains(key) ? QStringLiteral("nothing")
                                  : QLatin1String(value.typeName()) + " \"" +
                                        value.toStringList().join(", ") + '"';
    };
    QStringList keys = actual.keys() + expected.keys();
    keys.removeDuplicates();
    for (const QString& key : qAsConst(keys)) {
        const QVariant a = actual.value(key);
        const QVariant b = expected.value(key);
        if (a.type() != b.type() || a != b || actual.contains(key) != expected.contains(key)) {
            found.append(key + ": " + shown(actual, key) + " instead of " + shown(expected, key));
        }
    }
    return found;
}

} // namespace DialogTest
