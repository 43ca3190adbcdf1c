#pragma once

#include "ipgen/core/status.h"

#include <QString>

namespace Ipgen {

class Context;

// Between `emit` and its worker processes: the worker says "ready", then answers each batch line
// on its standard input with one line, '+' or '-' (generated or not) and the report line.

constexpr char workerReady[] = "ready";
constexpr char workerDone = '+';
constexpr char workerRefused = '-';
/// Bytes of a batch line; a longer one is malformed.
constexpr int longestBatchLine = 64 << 20;

/// Serves until standard input ends. @param out  the folder that holds the items' folders
/// @param ip  for items that name none
Exit runEmitWorker(Context& context, const QString& out, const QString& ip);

} // namespace Ipgen
