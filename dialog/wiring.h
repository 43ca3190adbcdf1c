#pragma once

#include "model/config/deviceclass.h"

class QObject;

namespace IPCUSTOMIZED {

struct FormSet;

/// When, in the dialog's adaptation to its device, a row of the wiring is connected. What is filled
/// before its stage stays quiet; what is filled after it runs the rules.
enum class WiringStage {
    Lanes,
    OperationMode,
    Rates,
    Clocks,
    Coding,
    CodingFigure,
    WordAlignment,
    RxBonding,
    TxBonding,
    ClockCorrection,
    Analog,
    Rest,
};

/// Makes the stage's connections, each once however often it is called.
void connectStage(WiringStage stage, const FormSet& forms, QObject* dialog, DeviceClass device);

} // namespace IPCUSTOMIZED
