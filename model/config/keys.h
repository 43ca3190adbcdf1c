#pragma once

#include "model/config/latin.h"

namespace IPCUSTOMIZED {

/// The keys of a saved configuration. They are a file format: the spellings, mixed case and
/// swapped letters included, are those of configurations saved earlier.
namespace Key {

// clang-format off
// Identity and output
inline constexpr QLatin1String TargetDevice = "target_device"_l1;      ///< text: device id
inline constexpr QLatin1String Type = "type"_l1;                       ///< text: the IP's id
inline constexpr QLatin1String Version = "version"_l1;                 ///< text: always formatVersion
inline constexpr QLatin1String SynthesisTool = "Synthesis_tool"_l1;    ///< text
inline constexpr QLatin1String Lang = "LANG"_l1;                       ///< integer: language index
inline constexpr QLatin1String File = "file"_l1;                       ///< text: output file name
inline constexpr QLatin1String Module = "module"_l1;                   ///< text
inline constexpr QLatin1String RecordLanes = "recordlanes"_l1;         ///< list of lane captions: the checked ones
inline constexpr QLatin1String TxRealLineRate = "TXREALLINERATE"_l1;   ///< real, Gbps; 0: the PLL is free

// Line rate, clocks, loopback
inline constexpr QLatin1String TxRate = "TX_RATE"_l1;                  ///< text, Gbps
inline constexpr QLatin1String RxRate = "RX_RATE"_l1;                  ///< text, Gbps
inline constexpr QLatin1String TxRateRatio = "TX_RATE_RATIO"_l1;       ///< text: "NA", "5x" ... "40x"
inline constexpr QLatin1String ReferenceClockSource = "REFERENCE_CLOCK_SOURCE"_l1;
inline constexpr QLatin1String ReferenceClockFreq = "REFERENCE_CLOCK_FREQ"_l1; ///< text, MHz
inline constexpr QLatin1String LoopbackMode = "Loopback_Mode"_l1;
inline constexpr QLatin1String PllSelection = "PLL_SELECTION"_l1;
inline constexpr QLatin1String DrpPorts = "DRP_Ports"_l1;              ///< boolean

// Data width, coding, word alignment, polarity
inline constexpr QLatin1String InternalDataWidth = "INTERNAL_DATA_WIDTH"_l1;
inline constexpr QLatin1String TxExternalDataRatio = "TX_EXTERNAL_DATA_RATIO"_l1;
inline constexpr QLatin1String RxExternalDataRatio = "RX_EXTERNAL_DATA_RATIO"_l1;
inline constexpr QLatin1String TxInternalDataWidth = "TX_INTERNAL_DATA_WIDTH"_l1;
inline constexpr QLatin1String RxInternalDataWidth = "RX_INTERNAL_DATA_WIDTH"_l1;
inline constexpr QLatin1String TxEncoding = "TX_ENCODING"_l1;
inline constexpr QLatin1String RxDecoding = "RX_DECODING"_l1;
inline constexpr QLatin1String RxMetaFrameLength = "RX_INTERLAKEN_META_FRAME_LENGTH"_l1;
inline constexpr QLatin1String Mode64B66B = "64B66BMODE"_l1;
inline constexpr QLatin1String EnableEncoding = "ENABLE_ENCODING"_l1;  ///< boolean
inline constexpr QLatin1String EnableDecoding = "ENABLE_DECODING"_l1;  ///< boolean
inline constexpr QLatin1String WordAlignment = "WORD_ALIGNMENT"_l1;    ///< boolean
inline constexpr QLatin1String WaPattern0 = "WAPATTERN0"_l1;
inline constexpr QLatin1String Mask0 = "MASK0"_l1;                     ///< text: ten binary digits
inline constexpr QLatin1String EnableWaPattern0 = "ENBALE_WAPATTERN0"_l1; ///< boolean; the saved spelling
inline constexpr QLatin1String EnableMask0 = "ENABLE_MASK0"_l1;        ///< boolean
inline constexpr QLatin1String TxPolarityInvert = "TXBITPOLARITYINVERT"_l1; ///< boolean
inline constexpr QLatin1String RxPolarityInvert = "RXBITPOLARITYINVERT"_l1; ///< boolean

// Channel bonding
inline constexpr QLatin1String RxChannelBonding = "RX_CHANNEL_BONDING"_l1;
inline constexpr QLatin1String RxMasterChannel = "RX_MASTER_CHANNEL_SELECTION"_l1;
inline constexpr QLatin1String Pattern0 = "PATTERN0"_l1;               ///< text: two hex digits
inline constexpr QLatin1String Pattern1 = "PATTERN1"_l1;
inline constexpr QLatin1String Pattern2 = "PATTERN2"_l1;
inline constexpr QLatin1String Pattern3 = "PATTERN3"_l1;
inline constexpr QLatin1String Pattern1IsK = "PATTERN1_K_CHARACTER"_l1; ///< boolean
inline constexpr QLatin1String Pattern2IsK = "PATTERN2_K_CHARACTER"_l1;
inline constexpr QLatin1String Pattern3IsK = "PATTERN3_K_CHARACTER"_l1;
inline constexpr QLatin1String PatternMaxSkew = "PATTERN_MAX_SKEW"_l1;
inline constexpr QLatin1String RxReadStartDepth = "RX_READ_START_DEPTH"_l1;
inline constexpr QLatin1String TxChannelBonding = "TX_CHANNEL_BONDING"_l1; ///< boolean
inline constexpr QLatin1String TxMasterChannel = "TX_MASTER_CHANNEL_SELECTION"_l1;
inline constexpr QLatin1String TxReadStartDepth = "TX_READ_START_DEPTH"_l1;

// Clock correction
inline constexpr QLatin1String ClockCorrection = "CLOCK_CORRECTION"_l1;
inline constexpr QLatin1String ClockSource = "CLOCK_CLKSOURCE"_l1;     ///< text: "User", "Quad", "TX"
inline constexpr QLatin1String ClockMasterChannel = "CLOCK_MASTERCHANNELSEL"_l1;
inline constexpr QLatin1String CtcPattern0 = "CTC_PATTERN0"_l1;
inline constexpr QLatin1String CtcPattern1 = "CTC_PATTERN1"_l1;
inline constexpr QLatin1String CtcReadStartDepth = "CTC_READ_START_DEPTH"_l1;
inline constexpr QLatin1String CtcPattern1IsK = "CTC_PATTERN1_IS_K"_l1; ///< boolean

// Analog front end
inline constexpr QLatin1String DifferentialSwing = "DIFFERENTIAL_SWING"_l1; ///< text, "900mV"
inline constexpr QLatin1String FfeMode = "FFEMODE"_l1;
inline constexpr QLatin1String FfeCm = "FFE_CM"_l1;                    ///< integer 0 ... 19
inline constexpr QLatin1String FfeC1 = "FFE_C1"_l1;                    ///< integer 0 ... 19
inline constexpr QLatin1String FfeC0 = "FFE_C0"_l1;                    ///< text, unlike its neighbours
inline constexpr QLatin1String SdThreshold = "SD_THRESHOLD"_l1;        ///< text, "100mV"
inline constexpr QLatin1String EqualizationMode = "Equalization_Mode"_l1;
inline constexpr QLatin1String Att = "ATT"_l1;                         ///< integer 0 ... 10
inline constexpr QLatin1String Boost = "BOOST"_l1;                     ///< integer 0 ... 15

// Reference clock routing
inline constexpr QLatin1String OperationMode = "OPERATION_MODE"_l1;
inline constexpr QLatin1String RefMode = "RefMode"_l1;
inline constexpr QLatin1String RefMuxSource[] = {
    "REFMUX0SOURCE"_l1, "REFMUX1SOURCE"_l1,
    "REFMUX2SOURCE"_l1, "REFMUX3SOURCE"_l1};
inline constexpr QLatin1String PllRefSource = "PLLREFSOURCE"_l1;
inline constexpr QLatin1String RxRefSource = "RXREFSOURCE"_l1;
inline constexpr QLatin1String MuxFreq[] = {                       ///< text, MHz
    "MUX0Freq"_l1, "MUX1Freq"_l1,
    "MUX2Freq"_l1, "MUX3Freq"_l1};
inline constexpr QLatin1String GpioFreq = "GPIOFreq"_l1;               ///< text, MHz
inline constexpr QLatin1String MclkFreq = "MCLKFreq"_l1;               ///< text, MHz

// Written on acceptance
inline constexpr QLatin1String ChangedAllOfBias = "ifChangedAllOfBias"_l1; ///< boolean
// clang-format on

} // namespace Key

/// The one format version that is written and read.
inline constexpr QLatin1String formatVersion = "1.0"_l1;

/// The host's data store holds each quad's receive bias (integer, 0 ... 15) under these names.
inline constexpr QLatin1String biasStoreKey[] = {"Q0_BIAS"_l1, "Q1_BIAS"_l1};

} // namespace IPCUSTOMIZED
