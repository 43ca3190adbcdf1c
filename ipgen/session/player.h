#pragma once

#include "ipgen/core/errorcollector.h"
#include "ipgen/session/boxkeeper.h"
#include "ipgen/session/report.h"
#include "ipgen/session/script.h"
#include "ipgen/session/watchdog.h"

#include <serdesip/dialogview.h>
#include <serdesip/types.h>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

namespace Ipgen::Session {

/// How a session is played.
struct Options {
    int pause = 0;          ///< ms between steps, and that boxes stay, for those who watch
    int stepLimit = 300000; ///< ms that a step may take before the session is given up
};

/// Plays a script on the dialog that an IP runs modally: it waits for the dialog to come up, does
/// the steps one by one from inside the dialog's own event loop, and closes whatever opens
/// beside it, so that no session waits for a user who is not there. One session at a time.
class Player : public QObject {
    Q_OBJECT

public:
    Player(const Script& script, const Options& options);

    /// The action opens the IP's dialog, blocks until it is closed, and returns the configuration;
    /// empty when there is none.
    using Action = std::function<IPSERDESIP::ConfigMap()>;
    Report run(const Action& action);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void tick();
    void perform(const Step& step);
    QString applyPreset(const Step& step);
    QString press(const Step& step);
    QString pressStandard(QAbstractButton* button, const char* name);
    void refuse(int step, bool tries, const QString& why);
    void leave();
    void watchTime();
    QStringList overriddenSettings() const;
    /// "WHAT: WHY" of what libraries have reported after the first `errors`.
    QStringList complaintsSince(int errors) const;
    void gatherDetails();
    void conclude(const IPSERDESIP::ConfigMap& config);

    const ErrorCollector m_errors; ///< nobody looks at the program's own messages meanwhile
    Script m_script;
    Options m_options;
    Report m_report;
    BoxKeeper m_keeper;
    IPSERDESIP::DialogView m_view;
    bool m_shown = false;
    bool m_dialogAccepted = false;
    bool m_gaveUp = false;
    int m_next = 0;    ///< index of the step to come
    int m_current = 0; ///< number of the step being done; 0: none yet
    int m_leaving = 0; ///< attempts so far to close the dialog
    Watchdog m_watchdog;
    QElapsedTimer m_since; ///< the last sign of progress
    QTimer m_ticker;
    QTimer m_clock;
};

} // namespace Ipgen::Session
