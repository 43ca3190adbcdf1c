#pragma once

#include "script.h"

#include "serdesip/clocksolver.h"

#include <dev/deviceinfo.h>

#include <QStringList>
#include <QVector>

namespace IPSERDESIP {

/// A reference clock that is at hand.
struct Reference {
    QString pin;
    Milli frequency = 0;
};

/// The clocking of one direction of one lane.
struct LaneClock {
    QString lane;      ///< "q0_ln0"
    QString direction; ///< "tx" or "rx"
    QString loop;      ///< "q0_qpll1", "q0_ln0_cpll", "q0_ln0_cdr"
    Reference reference;
    Milli rate = 0; ///< asked for
    Dividers dividers;
};

/// Finds the clocking of every enabled lane of a script.
class ScriptSolver {
public:
    ScriptSolver(const Script& script, const DEV::DeviceInfo& device);

    /// False: errors() says what is wrong with the script; when that is empty, some rate has no
    /// divider setting, and details() say which and what would work.
    bool solve();
    const QStringList& errors() const { return m_errors; }
    const QStringList& details() const { return m_details; }
    const QVector<LaneClock>& clocks() const { return m_clocks; }

private:
    /// Lanes that share one oscillator; the only lane for a loop of its own.
    struct Group {
        int quad = 0;
        const DEV::ClockLoop* loop = nullptr;
        QStringList lanes;
    };

    void checkFrequencies();
    void checkLane(const QString& lane);
    void checkRate(const QString& name, const DEV::Range& range);
    void checkOversampling(const QString& lane);
    void checkHolders(const QString& lane);
    QVector<Group> transmitGroups() const;

    bool transmits(const QString& lane) const;
    bool receives(const QString& lane) const;
    Milli rateOf(const QString& lane, const QString& direction) const;
    /// The references that may feed a loop, the wanted ones first.
    QVector<Reference> candidates(int quad, const QString& kind) const;
    QVector<Reference> transmitCandidates(const Group& group) const;
    QVector<Reference> receiveCandidates(const QString& lane) const;
    bool solveGroup(const Group& group, const QString& direction,
                    const QVector<Reference>& references);
    void explain(const Group& group, const QString& direction,
                 const QVector<Reference>& references);

    const Script& m_script;
    const DEV::DeviceInfo& m_device;
    QStringList m_errors;
    QStringList m_details;
    QVector<LaneClock> m_clocks;
};

} // namespace IPSERDESIP
