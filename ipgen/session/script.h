#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariant>

namespace Ipgen::Session {

/// One step of a session script: what a user would do with an IP's dialog.
struct Step {
    enum class Kind {
        Set,    ///< gives the field `target` the value `to`
        Preset, ///< applies the preset `to`, whose name is `target`; no word of a script
        Press,  ///< clicks the button `target`
        Answer, ///< takes the button whose text is `target` in the next message box that asks
        State,  ///< records a snapshot under the label `target`
        Accept, ///< presses OK
        Cancel, ///< presses Cancel
    };

    Kind kind = Kind::Cancel;
    QString target;     ///< empty for Accept and Cancel
    QVariant to;        ///< Set only: text, boolean or number
    bool tries = false; ///< a step that cannot be done is noted, and the session goes on
};

using Script = QList<Step>;

/// Reads a script, a JSON list of steps. Not null on damage: the reason, with line and column or
/// with the number of the step (from 1); `script` is then untouched.
QString parseScript(const QByteArray& json, Script* script);

/// What parseScript() reads, one step a line.
QByteArray writeScript(const Script& script);

/// A step in words, for messages: "set tab1/Rate".
QString stepName(const Step& step);

/// The script that `--set OBJECT=VALUE` options stand for: the fields in this order, then accept.
/// Not null when an option has no "=" or no object: the reason.
QString scriptOfSettings(const QStringList& settings, Script* script);

} // namespace Ipgen::Session
