#pragma once

#include <QString>

namespace Ipgen {

/// The program's exit statuses.
enum class Exit {
    Done = 0,
    Refused = 1,   ///< the work was refused or failed
    Usage = 2,     ///< wrong usage
    BadInput = 3,  ///< an input cannot be read or is damaged
    BadOutput = 4, ///< an output cannot be written
    Tool = 5,      ///< an outside tool failed or is missing
    Fault = 70,    ///< a fault of our own
};

/// How a piece of work ended: done, or what went wrong and why, for the user.
class Status {
public:
    /// Done.
    Status() = default;
    /// @param what  the file, instance, key or step
    /// @param why   the reason, and what to do
    Status(Exit code, const QString& what, const QString& why);

    bool ok() const { return m_code == Exit::Done; }
    explicit operator bool() const { return ok(); }
    Exit code() const { return m_code; }
    const QString& what() const { return m_what; }
    const QString& why() const { return m_why; }
    /// "WHAT: WHY", on one line.
    QString text() const;

private:
    Exit m_code = Exit::Done;
    QString m_what;
    QString m_why;
};

/// Writes control characters as C escapes ("\n", "\x1b"), so that a text stays on its line.
QString oneLine(const QString& text);

} // namespace Ipgen
