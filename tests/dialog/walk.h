#pragma once

#include "harness.h"

#include <QJsonArray>
#include <QJsonValue>

#include <random>

namespace DialogTest {

/// Random user actions on an open dialog, each written down as a step of a session script.
class Walk {
public:
    Walk(Dialog& dialog, unsigned seed)
        : m_dialog(dialog)
        , m_random(seed) {}

    /// One action that a user could do; says what it was.
    QString step();
    /// A number below `bound`.
    int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }
    /// The actions so far.
    const QJsonArray& script() const { return m_script; }

private:
    /// Does something with the widget and says to what it was set.
    bool act(const QString& name, QJsonValue* to);

    Dialog& m_dialog;
    std::mt19937 m_random;
    QJsonArray m_script;
};

/// Writes the steps, then an accept or not, as a session script; returns its path.
QString saveScript(const QString& name, QJsonArray steps, bool accept);

} // namespace DialogTest
