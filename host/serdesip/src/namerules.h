#pragma once

#include <QString>
#include <QStringList>

namespace IPSERDESIP {

/// What keeps a text from naming an instance's output folder, one sentence each; empty: nothing.
/// The folder lies directly in the transceiver working directory and never outside it.
QStringList fileNameFaults(const QString& name);

/// What keeps a text from naming a Verilog module, as a sentence; empty: nothing.
QString moduleNameFault(const QString& name);

/// Letters, digits, "_" and "$", not beginning with a digit or "$"; keywords count as well.
bool isVerilogIdentifier(const QString& name);
/// A reserved word of Verilog or SystemVerilog.
bool isVerilogKeyword(const QString& name);

} // namespace IPSERDESIP
