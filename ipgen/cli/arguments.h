#pragma once

#include <CLI/CLI.hpp>

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace Ipgen {

// Options that several commands have, declared alike everywhere, and arguments as Qt's texts.

QString fromArgument(const std::string& text);
QStringList fromArguments(const std::vector<std::string>& texts);

/// PROJECT, a folder; required.
CLI::Option* declareProject(CLI::App& app, std::string& folder);
/// --json
CLI::Option* declareJson(CLI::App& app, bool& json);

} // namespace Ipgen
