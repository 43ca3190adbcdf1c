#pragma once

namespace Ipgen {

/// The whole program: parses the arguments, brings up as much of Qt as the command needs, runs it.
/// Returns the exit status.
int runCommandLine(int argc, char** argv);

} // namespace Ipgen
