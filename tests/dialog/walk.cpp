#include "walk.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace DialogTest {

namespace {

struct Place {
    int page;
    const char* name;
};

// clang-format off
/// All that a user can act on; those that count most stand more than once.
const Place places[] = {
    {1, "q0_l0"}, {1, "q0_l1"}, {1, "q0_l2"}, {1, "q0_l3"},
    {1, "q1_l0"}, {1, "q1_l1"}, {1, "q1_l2"}, {1, "q1_l3"}, {1, "q0_l0"}, {1, "q0_l1"},
    {1, "comboBoxOperationMode"}, {1, "comboBoxOperationMode"}, {1, "comboBoxOperationMode"},
    {1, "comboBoxMode"}, {1, "comboBoxMode"}, {1, "comboBoxMode"},
    {1, "TXLineRate"}, {1, "TXLineRate"}, {1, "RXLineRate"}, {1, "comboBoxTxLineRatio"},
    {1, "CombBoxReferenceClockSource"}, {1, "ReferenceClockFrequency"},
    {1, "CombBoxPLLSelection"}, {1, "CombBoxPLLSelection"}, {1, "CombBoxPLLRefSource"},
    {1, "CombBoxRxRefSource"},
    {1, "comboBoxRefMux0Source"}, {1, "comboBoxRefMux1Source"},
    {1, "comboBoxRefMux2Source"}, {1, "comboBoxRefMux3Source"},
    {1, "ReferenceMux0Freq"}, {1, "ReferenceMux1Freq"},
    {1, "ReferenceMux2Freq"}, {1, "ReferenceMux3Freq"},
    {1, "GpioFrequency"}, {1, "MclkFrequency"}, {1, "LoopbackMode"}, {1, "checkBoxDRPPort"},

    {2, "comboBoxInternalDataWidth"}, {2, "comboBoxInternalDataWidth"},
    {2, "comboBoxTXInternalDataWidth"}, {2, "comboBoxTXInternalDataWidth"},
    {2, "comboBoxRXInternalDataWidth"}, {2, "comboBoxRXInternalDataWidth"},
    {2, "comboBoxTXExternalDataRatio"}, {2, "comboBoxTXExternalDataRatio"},
    {2, "comboBoxRXExternalDataRatio"}, {2, "comboBoxRXExternalDataRatio"},
    {2, "comboBoxTxEncoding"}, {2, "comboBoxTxEncoding"},
    {2, "comboBoxRxDecoding"}, {2, "comboBoxRxDecoding"}, {2, "comboBox64B66BMode"},
    {2, "lineEditRxInterMetaFrameLength"}, {2, "checkBoxEncoding"}, {2, "checkBoxDecoding"},
    {2, "WordAlignment"}, {2, "comboBoxPattern"}, {2, "lineEditMask"},
    {2, "checkBoxTxBitPolarityInvert"}, {2, "checkBoxRxBitPolarityInvert"},

    {3, "checkBoxTXChannelBoding"}, {3, "comboBoxTXMasterChannelSelection"},
    {3, "comboBoxTXReadStartDepth"}, {3, "comboBoxRXChannelBoding"},
    {3, "comboBoxRXMasterChannelSelection"}, {3, "lineEditPattern0"}, {3, "lineEditPattern1"},
    {3, "lineEditPattern2"}, {3, "lineEditPattern3"}, {3, "checkBoxPattern1Character"},
    {3, "checkBoxPattern2Character"}, {3, "checkBoxPattern3Character"},
    {3, "comboBoxPatternMaxSkew"}, {3, "comboBoxRXReadStartDepth"},

    {4, "comboBoxClockCorrection"}, {4, "comboBoxClockSource"}, {4, "comboBoxMasterChannelSel"},
    {4, "lineEditCTCPattern0"}, {4, "lineEditCTCPattern1"}, {4, "checkBoxCTCPattern1isK"},
    {4, "comboBoxCTCReadStartDepth"},

    {5, "differeSwingComboBox"}, {5, "ffeModeCombox"}, {5, "cmSpinBox"}, {5, "c1SpinBox"},
    {5, "sdThresholdComboBox"}, {5, "equalizationModeCombox"}, {5, "attSpinBox"},
    {5, "boostSpinBox"}, {5, "biasSpinBox"},
};
// clang-format on

/// Texts that the field takes, in and out of its range.
QStringList textsFor(const QString& name) {
    if (name == "TXLineRate" || name == "RXLineRate") {
        return {"1.25", "2.5", "5",    "10",      "10.3125", "3.125", "0.5", "0.1",
                "",     "0",   ".625", "0.12345", "12.5",    "12.6",  "1",   "0.025"};
    }
    if (name == "lineEditRxInterMetaFrameLength") {
        return {"4", "5", "100", "2048", "16383", "16384", "99999"};
    }
    if (name == "lineEditMask") {
        return {"1111111111", "0000000000", "0101010101", "1000000001"};
    }
    if (name.contains("Pattern")) {
        return {"7C", "BC", "00", "FF", "1A", "05"};
    }
    return {"125", "100", "156.25", "50", "500", "500.1", "49.9", "322.265625", "1", "999"};
}

} // namespace

bool Walk::act(const QString& name, QJsonValue* to) {
    QWidget* widget = m_dialog.find(name);
    if (const auto* combo = qobject_cast<QComboBox*>(widget)) {
        *to = combo->count() == 0 ? QString() : combo->itemText(below(combo->count()));
        return combo->count() != 0 && m_dialog.choose(name, to->toString());
    }
    if (qobject_cast<QLineEdit*>(widget) != nullptr) {
        const QStringList texts = textsFor(name);
        *to = texts.at(below(texts.size()));
        return m_dialog.type(name, to->toString());
    }
    if (const auto* box = qobject_cast<QCheckBox*>(widget)) {
        *to = !box->isChecked();
        return m_dialog.check(name, to->toBool());
    }
    *to = below(m_dialog.spin(name)->maximum() + 1);
    return m_dialog.setNumber(name, to->toInt());
}

QString Walk::step() {
    for (;;) {
        const Place& place = places[below(static_cast<int>(std::size(places)))];
        QJsonValue to;
        if (m_dialog.isUsable(place.name) && act(place.name, &to)) {
            const QString object = QStringLiteral("tab%1/%2").arg(place.page).arg(place.name);
            m_script.append(QJsonObject{{"set", object}, {"to", to}});
            return object + " = " + to.toVariant().toString();
        }
    }
}

QString saveScript(const QString& name, QJsonArray steps, bool accept) {
    steps.append(QJsonObject{{accept ? "accept" : "cancel", true}});
    QDir().mkpath(QStringLiteral(BUILD_DIR "/tests/walks"));
    QString path = QStringLiteral(BUILD_DIR "/tests/walks/%1.json").arg(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(steps).toJson()) < 0) {
        qWarning("%s cannot be written", qPrintable(path));
    }
    return path;
}

} // namespace DialogTest
