#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace DEV {
struct DeviceInfo;
}

namespace IPSERDESIP {

/// One setting of a script.
struct Setting {
    QString value;
    int line = 0; ///< from 1; 0: the script has no such setting
};

/// A setting that gives a pin's frequency.
struct PinFrequency {
    QString pin;     ///< "Q0_REFCLK1"
    QString setting; ///< "q0_refclk1_freq"
};

/// A parsed transceiver script.
class Script {
public:
    /// Reads the lines strictly for a device. What is wrong is appended to *errors, a sentence a
    /// line, each with the line's number.
    static Script parse(const QStringList& lines, const DEV::DeviceInfo& device,
                        QStringList* errors);

    /// By whole name ("q0_ln0_tx_rate").
    Setting setting(const QString& name) const { return m_settings.value(name); }
    QString value(const QString& name) const { return m_settings.value(name).value; }
    /// The settings' names in the order of their first lines.
    const QStringList& names() const { return m_names; }
    /// The frequency settings in the same order.
    const QVector<PinFrequency>& pins() const { return m_pins; }
    /// The prefixes ("q0_ln0") of the enabled lanes, in the order of their first lines.
    QStringList enabledLanes() const;

private:
    void takeLine(const QString& text, int number, const DEV::DeviceInfo& device,
                  QStringList* errors);

    QHash<QString, Setting> m_settings;
    QStringList m_names;
    QVector<PinFrequency> m_pins;
};

/// "line 4: q0_ln0_tx_rate must be …"
QString lineError(int line, const QString& sentence);
/// The pin that a frequency setting is about: "Q0_REFCLK1" of "q0_refclk1_freq", "Q0_REFIN" of
/// "q0_gpio_freq", "MCLK" of "mclk_freq"; empty for any other setting.
QString pinOfSetting(const QString& name);

} // namespace IPSERDESIP
