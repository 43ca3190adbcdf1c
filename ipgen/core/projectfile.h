#pragma once

#include "ipgen/core/status.h"

#include <QVariantMap>

namespace Ipgen {

// The project file as a document: reading with its schema checked, and merging of what two
// programs changed. What the format is: docs/formats.md.

/// Reads and checks a project file. On failure the status is BadInput and names file, line and
/// column, or file and key.
Status readProjectFile(const QString& path, QVariantMap* document);

/// Brings the changes between `base` and `mine` into `theirs`: an instance, an entry of the data
/// store or any other key at a time. The same thing changed on both sides in two ways is a
/// Refused status that names it, and *merged is not set.
Status mergeProjects(const QVariantMap& base, const QVariantMap& mine, const QVariantMap& theirs,
                     QVariantMap* merged);

} // namespace Ipgen
