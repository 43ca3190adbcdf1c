#include "ipgen/session/player.h"

#include "ipgen/session/snapshot.h"

#include <serdesip/hands.h>
#include <serdesip/presetplay.h>
#include <serdesip/protocolgendlg.h>
#include <serdesip/serdes.h>

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>

namespace Ipgen::Session {

namespace {

using IPSERDESIP::Hands::click;

/// ms until the next look when something stands in the dialog's way, and between looks at the time.
constexpr int busyInterval = 5;
constexpr int clockInterval = 200;

} // namespace

Player::Player(const Script& script, const Options& options)
    : m_script(script)
    , m_options(options)
    , m_keeper(&m_report.messages, options.pause)
    , m_watchdog(options.stepLimit + options.stepLimit / 2) {
    m_ticker.setSingleShot(true);
    connect(&m_ticker, &QTimer::timeout, this, &Player::tick);
    connect(&m_clock, &QTimer::timeout, this, &Player::watchTime);
    m_keeper.setComplaint(
        [this](int step, bool tries, const QString& why) { refuse(step, tries, why); });
    m_keeper.setNotice([this] {
        m_since.restart();
        gatherDetails();
    });
    // Boxes that come up before the dialog does are answered by the steps in front.
    while (m_next < m_script.size() && m_script.at(m_next).kind == Step::Kind::Answer) {
        perform(m_script.at(m_next++));
    }
}

Report Player::run(const Action& action) {
    // Without a loop of the program around it, closing the last window would end every loop to
    // come.
    const bool quits = QApplication::quitOnLastWindowClosed();
    QApplication::setQuitOnLastWindowClosed(false);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    IPSERDESIP::serdes::instance()->clearDetails();
    qApp->installEventFilter(this);
    m_since.start();
    m_clock.start(clockInterval);
    conclude(action());
    m_clock.stop();
    m_ticker.stop();
    qApp->removeEventFilter(this);
    if (m_gaveUp) {
        // The exit that broke the loops is spent here, or it would break those to come.
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QApplication::exec();
    }
    QApplication::setQuitOnLastWindowClosed(quits);
    return m_report;
}

bool Player::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Show && !m_shown) {
        if (auto* dialog = qobject_cast<IPSERDESIP::protocolGenDlg*>(object)) {
            m_shown = true;
            m_view = IPSERDESIP::DialogView(dialog);
            m_keeper.setDialog(dialog);
            connect(dialog, &QDialog::finished, this,
                    [this](int code) { m_dialogAccepted = code == QDialog::Accepted; });
            m_ticker.start(m_options.pause);
        }
    }
    return false;
}

void Player::tick() {
    const auto* dialog = m_view.dialog();
    if (dialog == nullptr || !dialog->isVisible()) {
        return;
    }
    if (m_keeper.isBusy()) {
        m_ticker.start(busyInterval);
        return;
    }
    m_since.restart();
    if (!m_report.error.isEmpty() || m_next >= m_script.size()) {
        leave();
    } else {
        perform(m_script.at(m_next++));
    }
    m_ticker.start(m_options.pause);
}

void Player::perform(const Step& step) {
    m_current = m_next;
    const int boxes = m_report.messages.size();
    const int errors = m_errors.entries().size();
    QString why;
    switch (step.kind) {
    case Step::Kind::Set:
        why = m_view.setField(step.target, step.to);
        break;
    case Step::Kind::Preset:
        why = applyPreset(step);
        break;
    case Step::Kind::Press:
        why = press(step);
        break;
    case Step::Kind::Answer:
        m_keeper.expectAnswer(step.target, m_current, step.tries);
        break;
    case Step::Kind::State:
        m_report.states.insert(step.target, snapshotOf(m_view));
        m_report.figures.insert(step.target, figureOf(*m_view.dialog()));
        m_report.pins.insert(step.target, m_view.dialog()->figurePins());
        m_report.module = m_view.dialog()->moduleName();
        break;
    case Step::Kind::Accept:
        m_report.overridden = overriddenSettings();
        why = pressStandard(m_view.okButton(), "OK");
        break;
    case Step::Kind::Cancel:
        why = pressStandard(m_view.cancelButton(), "Cancel");
        break;
    }
    if (!why.isEmpty()) {
        refuse(m_current, step.tries, why);
    }
    const bool turnedDown = step.kind == Step::Kind::Accept && !m_dialogAccepted;
    if (step.kind == Step::Kind::Accept || step.kind == Step::Kind::Cancel) {
        m_report.turnedDown = turnedDown;
        m_report.complaints = complaintsSince(errors);
        m_report.saidBefore = boxes;
    }
    if (turnedDown || m_report.messages.size() > boxes) {
        gatherDetails();
    }
}

/// All that the preset could not do, in one line.
QString Player::applyPreset(const Step& step) {
    QStringList reasons;
    const auto refused = IPSERDESIP::playPreset(m_view, step.to.value<IPSERDESIP::Preset>().steps);
    for (const IPSERDESIP::PresetRefusal& one : refused) {
        reasons.append(one.object + QLatin1String(": ") + one.why);
    }
    return reasons.join(QLatin1String("; "));
}

QString Player::press(const Step& step) {
    const IPSERDESIP::DialogView::Place place = m_view.find(step.target);
    if (place.widget == nullptr) {
        return place.why;
    }
    auto* button = qobject_cast<QAbstractButton*>(place.widget);
    if (button == nullptr) {
        return QLatin1String("a ") + QLatin1String(place.widget->metaObject()->className()) +
               QLatin1String(" is no button");
    }
    const QString why = m_view.whyOutOfReach(place);
    if (why.isEmpty()) {
        m_view.bringIntoSight(place);
        click(button);
    }
    return why;
}

QString Player::pressStandard(QAbstractButton* button, const char* name) {
    const QString title = QLatin1String(name);
    if (button == nullptr) {
        return QLatin1String("the dialog has no button ") + title;
    }
    if (!button->isEnabled() || !button->isVisible()) {
        return title +
               (button->isVisible() ? QLatin1String(" is disabled") : QLatin1String(" is hidden"));
    }
    click(button);
    return {};
}

void Player::refuse(int step, bool tries, const QString& why) {
    if (tries) {
        m_report.refused.append({step, why});
    } else if (m_report.error.isEmpty()) {
        m_report.error = QStringLiteral("step %1 (").arg(step) + stepName(m_script.at(step - 1)) +
                         QLatin1String("): ") + why;
    }
}

/// Closes the dialog without accepting: as a user would, then past what it may object.
void Player::leave() {
    auto* dialog = m_view.dialog();
    QAbstractButton* cancel = m_view.cancelButton();
    switch (m_leaving++) {
    case 0:
        if (cancel != nullptr && cancel->isEnabled() && cancel->isVisible()) {
            click(cancel);
        } else {
            dialog->reject();
        }
        break;
    case 1:
        dialog->done(QDialog::Rejected);
        break;
    default:
        dialog->setResult(QDialog::Rejected);
        dialog->QDialog::setVisible(false);
        break;
    }
}

void Player::watchTime() {
    m_watchdog.feed();
    if (m_since.elapsed() < m_options.stepLimit || m_gaveUp) {
        return;
    }
    const QString seconds = QString::number(m_options.stepLimit / 1000.0);
    if (m_current == 0) {
        m_report.error =
            QLatin1String("the dialog did not come up within ") + seconds + QLatin1String(" s");
    } else {
        refuse(m_current, false,
               QLatin1String("it did not end within ") + seconds + QLatin1String(" s"));
    }
    m_gaveUp = true;
    if (auto* dialog = m_view.dialog()) {
        dialog->QDialog::setVisible(false);
    }
    QCoreApplication::exit(); // ends every event loop that is running
}

QStringList Player::overriddenSettings() const {
    QMap<QString, QVariant> asked; // by field, the last counts
    for (const Step& step : m_script.mid(0, m_current)) {
        if (step.kind == Step::Kind::Set && !step.tries) {
            asked.insert(step.target, step.to);
        } else if (step.kind == Step::Kind::Preset) {
            const QList<IPSERDESIP::PresetStep> settings =
                step.to.value<IPSERDESIP::Preset>().steps;
            for (const IPSERDESIP::PresetStep& setting : settings) {
                asked.insert(setting.object, setting.to);
            }
        }
    }
    QStringList sentences;
    for (auto it = asked.constBegin(); it != asked.constEnd(); ++it) {
        if (!m_view.shows(it.key(), it.value())) {
            sentences.append(
                QStringLiteral("%1 was set to \"%2\", and a rule of the dialog has made "
                               "it \"%3\"")
                    .arg(it.key(), it.value().toString(), m_view.shownIn(it.key())));
        }
    }
    return sentences;
}

QStringList Player::complaintsSince(int errors) const {
    QStringList complaints;
    for (const ErrorCollector::Entry& entry : m_errors.entries().mid(errors)) {
        complaints.append(entry.what + QStringLiteral(": ") + entry.why);
    }
    return complaints;
}

void Player::gatherDetails() {
    const QStringList sentences = complaintsSince(0) + IPSERDESIP::serdes::instance()->details();
    for (const QString& sentence : sentences) {
        if (!m_report.details.contains(sentence)) {
            m_report.details.append(sentence);
        }
    }
}

void Player::conclude(const IPSERDESIP::ConfigMap& config) {
    if (!m_errors.entries().isEmpty()) {
        gatherDetails();
    }
    if (!m_shown) {
        m_report.complaints = complaintsSince(0);
    }
    if (m_dialogAccepted && m_report.messages.isEmpty()) {
        m_report.details.clear(); // nothing has failed
    }
    if (m_report.error.isEmpty() && m_dialogAccepted && config.isEmpty()) {
        m_report.error = QStringLiteral("the IP accepted the dialog and gave no configuration");
    }
    if (!m_report.error.isEmpty()) {
        m_report.result = Report::Result::Failed;
    } else if (!config.isEmpty()) {
        m_report.result = Report::Result::Accepted;
        m_report.config = config;
    } else {
        m_report.result = m_shown ? Report::Result::Cancelled : Report::Result::Refused;
    }
}

} // namespace Ipgen::Session
