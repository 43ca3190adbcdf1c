#include "ipgen/cli/commandline.h"

#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"

#include <QApplication>
#include <QLocale>
#include <QTextCodec>

#include <clocale>
#include <exception>
#include <iostream>
#include <sstream>

namespace Ipgen {

namespace {

bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

/// Drops what the offscreen platform says about itself: standard error is for errors.
void offscreenMessages(QtMsgType type, const QMessageLogContext& where, const QString& text) {
    if (!text.startsWith(QLatin1String("This plugin does not support ")) &&
        !text.startsWith(QLatin1String("QStandardPaths: "))) {
        const QByteArray line = qFormatLogMessage(type, where, text).toLocal8Bit() + '\n';
        std::cerr << line.constData();
    }
}

/// The application object that the command needs. Commands without a screen get the offscreen
/// platform whatever the environment says, so that they run anywhere.
std::unique_ptr<QCoreApplication> makeApplication(Command::Screen screen, int& argc, char** argv) {
    QCoreApplication::setApplicationName(QStringLiteral("ipgen"));
    QCoreApplication::setApplicationVersion(QStringLiteral(IPGEN_VERSION));
    switch (screen) {
    case Command::Screen::None:
        return std::make_unique<QCoreApplication>(argc, argv);
    case Command::Screen::Offscreen:
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler(offscreenMessages);
        break;
    case Command::Screen::Display:
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    }
    return std::make_unique<QApplication>(argc, argv);
}

/// Understood before and after the command's name.
void declarePluginFolders(CLI::App& app, Context& context) {
    app.add_option_function<std::vector<std::string>>(
           "--plugin-dir",
           [&context](const std::vector<std::string>& folders) {
               for (const std::string& folder : folders) {
                   context.addPluginFolder(fromArgument(folder));
               }
           },
           "a further folder to search for IP plug-ins; may be given more than once")
        ->allow_extra_args(false)
        ->type_name("DIR");
}

void declareCommand(CLI::App& app, Command& command, Context& context) {
    CLI::App* sub = app.add_subcommand(command.name(), command.summary());
    if (command.hidden()) {
        sub->group("");
    }
    sub->set_help_flag("-h,--help", "print this help");
    declarePluginFolders(*sub, context);
    command.declare(*sub);
}

Exit usageError(Context& context, const CLI::ParseError& error, const CLI::App& app) {
    const auto chosen = app.get_subcommands();
    const QString help = chosen.empty()
                             ? QStringLiteral("ipgen --help")
                             : QStringLiteral("ipgen %1 --help")
                                   .arg(QString::fromStdString(chosen.front()->get_name()));
    context.tell(QStringLiteral("usage"),
                 QStringLiteral("%1; see %2").arg(QString::fromUtf8(error.what()), help));
    return Exit::Usage;
}

Exit runParsed(Context& context, Command& command, int argc, char** argv) {
    if (command.screen() == Command::Screen::Display && !hasDisplay()) {
        context.tell(QString::fromUtf8(command.name()),
                     QStringLiteral("there is no display to show a window on") +
                         QString::fromUtf8(command.withoutDisplay()));
        return Exit::Refused;
    }
    const auto application = makeApplication(command.screen(), argc, argv);
    // Numbers are written with a point, as the generated files have them: in fields, and where a
    // plug-in uses the C library, to which Qt has just told the user's locale.
    QLocale::setDefault(QLocale::c());
    std::setlocale(LC_NUMERIC, "C");
    const Exit result = command.run(context);
    const Exit flushed = context.flush();
    return result == Exit::Done ? flushed : result;
}

} // namespace

int runCommandLine(int argc, char** argv) {
    // File names, arguments and messages are UTF-8, whatever the locale is set to.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    Context context;
    const auto commands = makeCommands();
    CLI::App app(
        "Configures and generates FPGA IPs from plug-ins.\n\n"
        "Exit status: 0 done, 1 refused or failed, 2 wrong usage, 3 an input cannot be read "
        "or is damaged,\n4 an output cannot be written, 5 an outside tool failed or is "
        "missing, 70 a fault of the program.",
        "ipgen");
    app.set_help_flag("-h,--help", "print this help");
    app.set_version_flag("--version", "ipgen " IPGEN_VERSION, "print the version");
    declarePluginFolders(app, context);
    app.require_subcommand(0, 1);
    for (const auto& command : commands) {
        declareCommand(app, *command, context);
    }
    try {
        try {
            app.parse(argc, argv);
        } catch (const CLI::Success& wish) { // help or version
            std::ostringstream text;
            app.exit(wish, text, text);
            context.print(QString::fromStdString(text.str()));
            return static_cast<int>(context.flush());
        } catch (const CLI::ParseError& error) {
            return static_cast<int>(usageError(context, error, app));
        }
        const auto chosen = app.get_subcommands();
        // With no command the program is its window, where it has one and a display to show it.
        const std::string name = chosen.empty() ? "gui" : chosen.front()->get_name();
        for (const auto& command : commands) {
            if (name == command->name() && (!chosen.empty() || hasDisplay())) {
                return static_cast<int>(runParsed(context, *command, argc, argv));
            }
        }
        context.tell(QStringLiteral("usage"),
                     QStringLiteral("a command is needed; see ipgen --help"));
        return static_cast<int>(Exit::Usage);
    } catch (const std::exception& fault) {
        context.tell(QStringLiteral("fault"), QString::fromLocal8Bit(fault.what()));
    } catch (...) {
        context.tell(QStringLiteral("fault"), QStringLiteral("an unknown exception"));
    }
    return static_cast<int>(Exit::Fault);
}

} // namespace Ipgen
