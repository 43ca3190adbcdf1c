#pragma once

#include "ipgen/core/status.h"

#include <QString>

namespace Ipgen {

class Context;

/// A batch of loose configurations.
struct EmitBatch {
    QString input;  ///< JSON lines
    QString report; ///< JSON lines, replaced whole or not at all
    QString out;    ///< absolute; holds a folder for each item
    QString ip;     ///< for items that name none
    int jobs = 1;   ///< worker processes
};

/// Runs it. Items that fail are told and reported, and the rest goes on; the result is Refused
/// then. Memory does not grow with the number of items.
Exit runEmitBatch(Context& context, const EmitBatch& batch);

} // namespace Ipgen
