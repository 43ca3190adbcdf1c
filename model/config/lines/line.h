#pragma once

#include "model/config/configview.h"
#include "model/config/deviceclass.h"

#include <QLatin1String>
#include <QList>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace IPCUSTOMIZED {

/// Two writers produce a lane's lines from this one catalogue: the generation and the dialog.
/// Where they differ is named here and nowhere else.
struct LineWriter {
    /// The dialog prepares a script for the route check and writes no Verilog.
    bool scriptOnly = false;
    /// The generated script is a format of its own age: a quad-1 master has two blanks before it.
    bool padQuad1CtcMaster = true;
    /// The generation leaves a ratio that it does not know without a gearbox line; the dialog
    /// writes the number stored beside the selected item, and has always one to write.
    bool skipUnknownGearbox = true;
    /// The generation knows which devices select the receiver's reference; the dialog hides or
    /// empties the selection there and writes what is selected.
    bool cdrByDevice = true;
};

inline constexpr LineWriter generationWriter{};
inline constexpr LineWriter dialogWriter{true, false, false, false};

/// What a line's value and condition are computed from; the same for every lane.
struct LineSource {
    ConfigView config;
    DeviceClass device;
    LineWriter writer;
};

/// A line's `%2`; no value: the line is not written.
using LineValue = std::function<std::optional<QString>(const LineSource&)>;

enum class LineList { Parameter, Define, Script };
/// What a line's `%1` is.
enum class LineSubject { LanePrefix, LaneKey, QuadPrefix, TxMasterKey };

/// One row of the catalogue.
struct Line {
    LineList list;
    QLatin1String form;
    LineSubject subject;
    LineValue value;
};

using Lines = std::vector<Line>;

// --- rows: P, D, S for the list; a row without a value is always written ----------------------

LineValue always();
Line P(const char* form, LineValue value = always());
Line D(const char* form, LineValue value = always());
Line S(const char* form, LineValue value = always());
/// The same row with another `%1`.
Line of(LineSubject subject, Line line);

// --- values -----------------------------------------------------------------------------------

LineValue text(QLatin1String key, QLatin1String missing = QLatin1String());
LineValue lower(QLatin1String key, QLatin1String missing = QLatin1String());
LineValue upper(QLatin1String key);
LineValue integer(QLatin1String key, int missing = 0);
/// "1" or "0".
LineValue bit(QLatin1String key);
/// One of two words after a boolean option.
LineValue either(QLatin1String key, const char* ifTrue, const char* ifFalse);
/// The word beside the option's value; no line for a value that is not named.
LineValue choose(QLatin1String key, std::vector<std::pair<QLatin1String, const char*>> words);
/// A computed number or text.
LineValue computed(std::function<QString(const LineSource&)> compute);

// --- conditions: the row stands only while they hold -------------------------------------------

using LineCondition = std::function<bool(const LineSource&)>;
LineValue when(LineCondition condition, LineValue value = always());
LineCondition isTrue(QLatin1String key);
LineCondition is(QLatin1String key, QLatin1String value);
LineCondition isNot(QLatin1String key, QLatin1String value);
LineCondition both(LineCondition a, LineCondition b);

} // namespace IPCUSTOMIZED
