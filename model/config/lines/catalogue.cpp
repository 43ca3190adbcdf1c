#include "model/config/lines/catalogue.h"

namespace IPCUSTOMIZED {

const Lines& lineCatalogue() {
    static const Lines all = [] {
        Lines rows;
        // clang-format off
        for (Lines (*group)() : {
                 headerLines,
                 rateParameterLines,
                 referenceSourceLines,
                 enableLines,
                 txRateLines,
                 rxRateLines,
                 pllLines,
                 loopbackLines,
                 widthAndCodingLines,
                 gearboxScriptLines,
                 wordAlignmentScriptLines,
                 polarityLines,
                 gearboxParameterLines,
                 wordAlignmentParameterLines,
                 rxBondingScriptLines,
                 rxBondingClockLines,
                 txBondingScriptLines,
                 rxBondingParameterLines,
                 txBondingParameterLines,
                 clockCorrectionLines,
                 analogLines,
                 cdrReferenceLines,
             }) {
            // clang-format on
            const Lines lines = group();
            rows.insert(rows.end(), lines.begin(), lines.end());
        }
        return rows;
    }();
    return all;
}

} // namespace IPCUSTOMIZED
