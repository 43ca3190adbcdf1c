#pragma once

#include <QString>

namespace IPSERDESIP {

/// Which names a setting's row stands for.
enum class Scope { Lane, Quad, Device };

/// How a setting's value is written.
enum class Form {
    Word,       ///< one of the row's words
    Optional,   ///< one of the row's words, or nothing
    Integer,    ///< decimal, from the row's min to max
    Rate,       ///< Gbit/s
    Frequency,  ///< MHz
    Hex,        ///< one or two hexadecimal digits
    Bits,       ///< one to ten binary digits
    Millivolts, ///< "900mV"
    Ratio,      ///< "na" or a whole number and an "x"
    Lane,       ///< "q0_ln0"
    Character,  ///< a K character, "k28.5"
};

struct SettingRow {
    Scope scope;
    const char* name; ///< without the lane's or quad's prefix
    Form form;
    const char* words = ""; ///< apart by '|'
    int min = 0;
    int max = 0;
};

/// Where a setting belongs, by what its name begins with.
struct SettingPrefix {
    Scope scope = Scope::Device;
    int quad = -1;  ///< -1: the whole device
    int lane = -1;  ///< in its quad; -1: the whole quad or device
    int length = 0; ///< "q0_ln1_" is 7 long
};
SettingPrefix settingPrefix(const QString& name);

/// The row of a setting by its whole name ("q0_ln1_tx_rate") and its prefix; null for an unknown
/// one.
const SettingRow* findSetting(const QString& name, const SettingPrefix& prefix);
/// What is wrong with a value; empty: nothing.
QString valueProblem(const SettingRow& row, const QString& value);

} // namespace IPSERDESIP
