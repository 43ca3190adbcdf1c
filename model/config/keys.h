#pragma once

#include <QLatin1String>

namespace IPCUSTOMIZED {

/// The keys of a saved configuration. They are a file format: the spellings, mixed case and
/// swapped letters included, are those of configurations saved earlier.
namespace Key {

// clang-format off
// Identity and output
inline constexpr QLatin1String TargetDevice("target_device");      ///< text: device id
inline constexpr QLatin1String Type("type");                       ///< text: the IP's id
inline constexpr QLatin1String Version("version");                 ///< text: always formatVersion
inline constexpr QLatin1String SynthesisTool("Synthesis_tool");    ///< text
inline constexpr QLatin1String Lang("LANG");                       ///< integer: language index
inline constexpr QLatin1String File("file");                       ///< text: output file name
inline constexpr QLatin1String Module("module");                   ///< text
inline constexpr QLatin1String RecordLanes("recordlanes");         ///< list of lane captions: the checked ones
inline constexpr QLatin1String TxRealLineRate("TXREALLINERATE");   ///< real, Gbps; 0: the PLL is free

// Line rate, clocks, loopback
inline constexpr QLatin1String TxRate("TX_RATE");                  ///< text, Gbps
inline constexpr QLatin1String RxRate("RX_RATE");                  ///< text, Gbps
inline constexpr QLatin1String TxRateRatio("TX_RATE_RATIO");       ///< text: "NA", "5x" ... "40x"
inline constexpr QLatin1String ReferenceClockSource("REFERENCE_CLOCK_SOURCE");
inline constexpr QLatin1String ReferenceClockFreq("REFERENCE_CLOCK_FREQ"); ///< text, MHz
inline constexpr QLatin1String LoopbackMode("Loopback_Mode");
inline constexpr QLatin1String PllSelection("PLL_SELECTION");
inline constexpr QLatin1String DrpPorts("DRP_Ports");              ///< boolean

// Data width, coding, word alignment, polarity
inline constexpr QLatin1String InternalDataWidth("INTERNAL_DATA_WIDTH");
inline constexpr QLatin1String TxExternalDataRatio("TX_EXTERNAL_DATA_RATIO");
inline constexpr QLatin1String RxExternalDataRatio("RX_EXTERNAL_DATA_RATIO");
inline constexpr QLatin1String TxInternalDataWidth("TX_INTERNAL_DATA_WIDTH");
inline constexpr QLatin1String RxInternalDataWidth("RX_INTERNAL_DATA_WIDTH");
inline constexpr QLatin1String TxEncoding("TX_ENCODING");
inline constexpr QLatin1String RxDecoding("RX_DECODING");
inline constexpr QLatin1String RxMetaFrameLength("RX_INTERLAKEN_META_FRAME_LENGTH");
inline constexpr QLatin1String Mode64B66B("64B66BMODE");
inline constexpr QLatin1String EnableEncoding("ENABLE_ENCODING");  ///< boolean
inline constexpr QLatin1String EnableDecoding("ENABLE_DECODING");  ///< boolean
inline constexpr QLatin1String WordAlignment("WORD_ALIGNMENT");    ///< boolean
inline constexpr QLatin1String WaPattern0("WAPATTERN0");
inline constexpr QLatin1String Mask0("MASK0");                     ///< text: ten binary digits
inline constexpr QLatin1String EnableWaPattern0("ENBALE_WAPATTERN0"); ///< boolean; the saved spelling
inline constexpr QLatin1String EnableMask0("ENABLE_MASK0");        ///< boolean
inline constexpr QLatin1String TxPolarityInvert("TXBITPOLARITYINVERT"); ///< boolean
inline constexpr QLatin1String RxPolarityInvert("RXBITPOLARITYINVERT"); ///< boolean

// Channel bonding
inline constexpr QLatin1String RxChannelBonding("RX_CHANNEL_BONDING");
inline constexpr QLatin1String RxMasterChannel("RX_MASTER_CHANNEL_SELECTION");
inline constexpr QLatin1String Pattern0("PATTERN0");               ///< text: two hex digits
inline constexpr QLatin1String Pattern1("PATTERN1");
inline constexpr QLatin1String Pattern2("PATTERN2");
inline constexpr QLatin1String Pattern3("PATTERN3");
inline constexpr QLatin1String Pattern1IsK("PATTERN1_K_CHARACTER"); ///< boolean
inline constexpr QLatin1String Pattern2IsK("PATTERN2_K_CHARACTER");
inline constexpr QLatin1String Pattern3IsK("PATTERN3_K_CHARACTER");
inline constexpr QLatin1String PatternMaxSkew("PATTERN_MAX_SKEW");
inline constexpr QLatin1String RxReadStartDepth("RX_READ_START_DEPTH");
inline constexpr QLatin1String TxChannelBonding("TX_CHANNEL_BONDING"); ///< boolean
inline constexpr QLatin1String TxMasterChannel("TX_MASTER_CHANNEL_SELECTION");
inline constexpr QLatin1String TxReadStartDepth("TX_READ_START_DEPTH");

// Clock correction
inline constexpr QLatin1String ClockCorrection("CLOCK_CORRECTION");
inline constexpr QLatin1String ClockSource("CLOCK_CLKSOURCE");     ///< text: "User", "Quad", "TX"
inline constexpr QLatin1String ClockMasterChannel("CLOCK_MASTERCHANNELSEL");
inline constexpr QLatin1String CtcPattern0("CTC_PATTERN0");
inline constexpr QLatin1String CtcPattern1("CTC_PATTERN1");
inline constexpr QLatin1String CtcReadStartDepth("CTC_READ_START_DEPTH");
inline constexpr QLatin1String CtcPattern1IsK("CTC_PATTERN1_IS_K"); ///< boolean

// Analog front end
inline constexpr QLatin1String DifferentialSwing("DIFFERENTIAL_SWING"); ///< text, "900mV"
inline constexpr QLatin1String FfeMode("FFEMODE");
inline constexpr QLatin1String FfeCm("FFE_CM");                    ///< integer 0 ... 19
inline constexpr QLatin1String FfeC1("FFE_C1");                    ///< integer 0 ... 19
inline constexpr QLatin1String FfeC0("FFE_C0");                    ///< text, unlike its neighbours
inline constexpr QLatin1String SdThreshold("SD_THRESHOLD");        ///< text, "100mV"
inline constexpr QLatin1String EqualizationMode("Equalization_Mode");
inline constexpr QLatin1String Att("ATT");                         ///< integer 0 ... 10
inline constexpr QLatin1String Boost("BOOST");                     ///< integer 0 ... 15

// Reference clock routing
inline constexpr QLatin1String OperationMode("OPERATION_MODE");
inline constexpr QLatin1String RefMode("RefMode");
inline constexpr QLatin1String RefMuxSource[] = {
    QLatin1String("REFMUX0SOURCE"), QLatin1String("REFMUX1SOURCE"),
    QLatin1String("REFMUX2SOURCE"), QLatin1String("REFMUX3SOURCE")};
inline constexpr QLatin1String PllRefSource("PLLREFSOURCE");
inline constexpr QLatin1String RxRefSource("RXREFSOURCE");
inline constexpr QLatin1String MuxFreq[] = {                       ///< text, MHz
    QLatin1String("MUX0Freq"), QLatin1String("MUX1Freq"),
    QLatin1String("MUX2Freq"), QLatin1String("MUX3Freq")};
inline constexpr QLatin1String GpioFreq("GPIOFreq");               ///< text, MHz
inline constexpr QLatin1String MclkFreq("MCLKFreq");               ///< text, MHz

// Written on acceptance
inline constexpr QLatin1String ChangedAllOfBias("ifChangedAllOfBias"); ///< boolean
// clang-format on

} // namespace Key

/// The one format version that is written and read.
inline constexpr QLatin1String formatVersion("1.0");

/// The host's data store holds each quad's receive bias (integer, 0 ... 15) under these names.
inline constexpr QLatin1String biasStoreKey[] = {QLatin1String("Q0_BIAS"), QLatin1String("Q1_BIAS")};

} // namespace IPCUSTOMIZED
