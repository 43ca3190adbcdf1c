#pragma once

#include "ipgen/core/status.h"

namespace CLI {
class App;
} // namespace CLI

namespace Ipgen {

class Context;

/// One command of the program: its name, its arguments and its help as data, and what it does.
class Command {
public:
    /// What a command needs of the windowing system.
    enum class Screen {
        None,      ///< nothing: no widget is made
        Offscreen, ///< widgets, but no display
        Display,   ///< the user's screen
    };

    /// @param name     the word on the command line
    /// @param summary  one line for the list of commands and on top of the command's help
    Command(const char* name, const char* summary)
        : m_name(name)
        , m_summary(summary) {}
    virtual ~Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    const char* name() const { return m_name; }
    const char* summary() const { return m_summary; }

    /// Declares arguments and options, bound to members.
    virtual void declare(CLI::App& app) = 0;
    /// Asked after the arguments are parsed.
    virtual Screen screen() const { return Screen::None; }
    /// What the user can do about a missing display, put behind the message that says so.
    virtual const char* withoutDisplay() const { return ""; }
    /// Not in the list of commands: for the program's own use.
    virtual bool hidden() const { return false; }
    /// Failures are told through the context; the result is the exit status.
    virtual Exit run(Context& context) = 0;

private:
    const char* m_name;
    const char* m_summary;
};

} // namespace Ipgen
