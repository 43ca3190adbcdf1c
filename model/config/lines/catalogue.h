#pragma once

#include "model/config/lines/line.h"

namespace IPCUSTOMIZED {

// The groups of a lane's lines, by subject. lineCatalogue() puts them in the order in which they
// are written; a new option's line is a row in its group.

Lines headerLines();
Lines rateParameterLines();
Lines referenceSourceLines();
Lines enableLines();
Lines txRateLines();
Lines rxRateLines();
Lines pllLines();
Lines loopbackLines();
Lines cdrReferenceLines();

Lines widthAndCodingLines();
Lines gearboxScriptLines();
Lines wordAlignmentScriptLines();
Lines polarityLines();
Lines gearboxParameterLines();
Lines wordAlignmentParameterLines();

Lines rxBondingScriptLines();
Lines rxBondingClockLines();
Lines txBondingScriptLines();
Lines rxBondingParameterLines();
Lines txBondingParameterLines();

Lines clockCorrectionLines();

Lines analogLines();

/// Every row, in the order of writing; built once.
const Lines& lineCatalogue();

} // namespace IPCUSTOMIZED
