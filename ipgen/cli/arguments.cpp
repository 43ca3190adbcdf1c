#include "ipgen/cli/arguments.h"

#include <QFile>

namespace Ipgen {

QString fromArgument(const std::string& text) {
    return QFile::decodeName(QByteArray::fromStdString(text));
}

QStringList fromArguments(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts) {
        list.append(fromArgument(text));
    }
    return list;
}

CLI::Option* declareProject(CLI::App& app, std::string& folder) {
    return app.add_option("PROJECT", folder, "the project's folder")->required()->type_name("");
}

CLI::Option* declareJson(CLI::App& app, bool& json) {
    return app.add_flag("--json", json, "print one JSON document instead of text");
}

} // namespace Ipgen
