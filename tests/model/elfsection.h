#pragma once

#include <QByteArray>
#include <QString>

/// The content of a section of a 64-bit ELF file; null when there is none of that name.
QByteArray elfSection(const QString& path, const QByteArray& name);
