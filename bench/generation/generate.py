#!/usr/bin/python3
"""The baseline of the generation benchmark: a plain program, standard library only, that writes
the same files from the same project as `ipgen generate`.

    generate.py PROJECT INSTANCE
"""
import json
import os
import sys

K60 = {"RZ7X-60B", "RZ7X-60ES"}
K15 = {"RZ7X-15A", "RZ7XR-15A", "RZ7XR-15B", "RZ7X-15B", "RZ7NX-15A", "RZ7NXR-15A"}
LANES = [f"Q{q}_LN{n}" for q in (0, 1) for n in range(4)]
CAPTIONS = [f"Q{q} Lane{n}" for q in (0, 1) for n in range(4)]
SOURCE = {"Q0 REFCLK0": 0, "Q0 REFCLK1": 1, "Q1 REFCLK0": 2, "Q1 REFCLK1": 3, "Q0 REFCLK2": 2,
          "Q0 REFCLK3": 3, "Q0 REFIN0": 4, "Q0 REFIN1": 5, "Q0 REFIN2": 6, "Q0 REFIN3": 7,
          "Q0 REFIN": 2, "MCLK": 3}
CLOCK = {"Q0 REFCLK0": "q0_refclk0", "Q0 REFCLK1": "q0_refclk1", "Q1 REFCLK0": "q1_refclk0",
         "Q1 REFCLK1": "q1_refclk1", "Q0 REFCLK2": "q0_refclk2", "Q0 REFCLK3": "q0_refclk3",
         "Q0 REFIN0": "q0_gpio0", "Q0 REFIN1": "q0_gpio1", "Q0 REFIN2": "q0_gpio2",
         "Q0 REFIN3": "q0_gpio3", "Q0 REFIN": "q0_gpio", "MCLK": "mclk"}


def general(value):
    return format(value, ".15g")


def number(text):
    try:
        return float(text)
    except ValueError:
        return 0.0


def integer(text):
    try:
        return int(text)
    except ValueError:
        return 0


def generate(config, device, data):
    listed = device in K60 or device in K15

    def text(key, missing=""):
        return str(config.get(key, missing))

    def flag(key):
        return bool(config.get(key, False))

    def ratio(key):
        return {"1:1": 1, "1:2": 2, "1:4": 4}.get(text(key), 0)

    def onoff(key):
        return "enable" if flag(key) else "disable"

    def truth(key):
        return "true" if flag(key) else "false"

    params, defines, script = [], [], []
    P, D, S = params.append, defines.append, script.append
    recorded = config.get("recordlanes", [])
    mode = text("OPERATION_MODE", "TX and RX")
    quad_clock = (len(recorded) >= 2 and text("RX_CHANNEL_BONDING") != "None"
                  and text("CLOCK_CORRECTION") != "None")

    for lane in LANES[:4] if listed else LANES:
        S(f"{lane.lower()}_trigger_bonding_ctrl fabric")
    for key in LANES:
        if not flag(key):
            continue
        x = key.lower()
        D(f"`define {key}")
        P(f"parameter {x}_tx_rate = {text('TX_RATE')};")
        P(f"parameter {x}_rx_rate = {text('RX_RATE')};")
        source = SOURCE.get(text("REFERENCE_CLOCK_SOURCE"))
        if source is not None:
            P(f"parameter {x}_refclk_source = {source};")
        S(f"{x}_enable true")
        S(f"{x[:2]}_enable true")
        rate = number(text("TX_RATE"))
        if rate < 1.0:
            factor = number(text("TX_RATE_RATIO").replace("x", ""))
            S(f"{x}_tx_rate {general(rate * factor)}")
            S(f"{x}_tx_ovs_mode buildin")
            S(f"{x}_tx_ovs_ratio {text('TX_RATE_RATIO')}")
        else:
            S(f"{x}_tx_rate {text('TX_RATE')}")
            S(f"{x}_tx_ovs_mode off")
            S(f"{x}_tx_ovs_ratio na")
        S(f"{x}_rx_rate {text('RX_RATE')}")
        pll = text("PLL_SELECTION")
        S(f"{x}_pll_sel {pll.lower()}")
        if pll in ("QPLL0", "QPLL1", "CPLL"):
            P(f"parameter {x}_pll_sel = {('QPLL0', 'QPLL1', 'CPLL').index(pll)};")
        loopback = text("Loopback_Mode").lower()
        if not listed or mode == "TX and RX":
            S(f"{x}_loopback_mode {loopback}")
        elif mode in ("TX Only", "RX Only"):
            S(f"{x}_loopback_mode {mode.lower().replace(' ', '_')}")
        P(f'parameter {x}_loopback_mode = "{loopback}";')
        if listed:
            tx, rx = integer(text("TX_INTERNAL_DATA_WIDTH")), integer(text("RX_INTERNAL_DATA_WIDTH"))
            S(f"{x}_pma_tx_width_mode {tx}")
            S(f"{x}_pma_rx_width_mode {rx}")
            P(f"parameter {x}_pma_tx_width = {tx};")
            D(f"`define {key}_TX_PMA_WIDTH {tx}")
            P(f"parameter {x}_pma_rx_width = {rx};")
            D(f"`define {key}_RX_PMA_WIDTH {rx}")
            encode, decode = text("TX_ENCODING"), text("RX_DECODING")
            S(f"{x}_tx_encode {encode.lower()}")
            S(f"{x}_rx_decode {decode.lower()}")
            if encode != "OFF":
                D(f"`define {key}_{encode.upper()}_ENCODE")
            if decode != "OFF":
                D(f"`define {key}_{decode.upper()}_DECODE")
            if decode == "64B67B":
                S(f"{x}_rx_64b67b_decode_ilk_metaframe_len "
                  f"{integer(text('RX_INTERLAKEN_META_FRAME_LENGTH'))}")
            fifo = text("64B66BMODE") if decode == "64B66B" else ""
            ten = fifo == "10GBASER with FIFO"
            S(f"{x}_rx_64b66b_decode_10gbaser {'enable' if ten else 'disable'}")
            if ten:
                P(f'parameter {x}_64b66b_mode = "tengbaser_with_fifo";')
                D(f"`define {key}_64B66B_TENGBASER_WITH_FIFO")
            elif fifo == "Async with FIFO":
                P(f'parameter {x}_64b66b_mode = "async_with_fifo";')
                D(f"`define {key}_64B66B_ASYNC_WITH_FIFO")
        else:
            width = integer(text("INTERNAL_DATA_WIDTH"))
            S(f"{x}_pma_width_mode {width}")
            P(f"parameter {x}_pma_width = {width};")
            D(f"`define {key}_PMA_WIDTH {width}")
            for option, name in (("ENABLE_ENCODING", "encode"), ("ENABLE_DECODING", "decode")):
                S(f"{x}_8b10b_{name} {onoff(option)}")
                if flag(option):
                    D(f"`define {key}_8B10B_{name.upper()}")
                P(f"parameter {x}_8b10b_{name} = {int(flag(option))};")
        gear_tx, gear_rx = ratio("TX_EXTERNAL_DATA_RATIO"), ratio("RX_EXTERNAL_DATA_RATIO")
        if gear_tx:
            S(f"{x}_tx_gearbox {gear_tx}")
        if gear_rx:
            S(f"{x}_rx_gearbox {gear_rx}")
        S(f"{x}_word_align {onoff('WORD_ALIGNMENT')}")
        pattern = text("WAPATTERN0").lower() if flag("ENBALE_WAPATTERN0") else "k28.5"
        S(f"{x}_word_align_pattern {pattern}")
        S(f"{x}_word_align_pattern_mask {text('MASK0') if flag('ENABLE_MASK0') else '1111111111'}")
        for option, side in (("TXBITPOLARITYINVERT", "tx"), ("RXBITPOLARITYINVERT", "rx")):
            S(f"{x}_{side}_pol_invert {onoff(option)}")
            S(f"{x}_{side}_data_mpl {onoff(option)}")
        P(f"parameter {x}_tx_gearbox = {gear_tx};")
        D(f"`define {key}_TX_GEARBOX {gear_tx}")
        P(f"parameter {x}_rx_gearbox = {gear_rx};")
        D(f"`define {key}_RX_GEARBOX {gear_rx}")
        P(f"parameter {x}_word_align = {int(flag('WORD_ALIGNMENT'))};")
        if flag("WORD_ALIGNMENT"):
            D(f"`define {key}_WORD_ALIGN")
        if flag("ENBALE_WAPATTERN0"):
            P(f'parameter {x}_word_align_pattern = "{text("WAPATTERN0").lower()}";')
        if flag("ENABLE_MASK0"):
            P(f"parameter {x}_word_align_pattern_mask = 10'b{text('MASK0')};")

        bonding = {"None": 0, "One Word": 1, "Two Words": 2, "Four Words": 4}.get(
            text("RX_CHANNEL_BONDING"))
        if bonding is not None:
            S(f"{x}_channel_bonding {'enable' if bonding else 'disable'}")
            S(f"{x}_channel_bonding_align_length {bonding or 1}")
        master = text("RX_MASTER_CHANNEL_SELECTION")
        index = CAPTIONS.index(master) if master in CAPTIONS else 0
        if master in CAPTIONS:
            S(f"{x}_channel_bonding_master_sel {LANES[index].lower()}")
        ordinals = ("", "2nd_", "3rd_", "4th_")
        for n, ordinal in enumerate(ordinals):
            S(f"{x}_{ordinal}channel_bonding_align_pattern {text(f'PATTERN{n}')}")
        for n in (1, 2, 3):
            S(f"{x}_{ordinals[n]}channel_bonding_align_pattern_is_k "
              f"{truth(f'PATTERN{n}_K_CHARACTER')}")
        S(f"{x}_channel_bonding_max_skew {text('PATTERN_MAX_SKEW')}")
        S(f"{x}_rx_bonding_rd_start_depth {text('RX_READ_START_DEPTH')}")
        clock = "quad_rx_clk" if quad_clock else "lane_rx_clk"
        S(f"{x}_rx_bonding_clk_src_sel {clock}")
        P(f'parameter {x}_rx_bonding_clk_src_sel = "{clock}";')
        tx_master = text("TX_MASTER_CHANNEL_SELECTION")
        tx_index = CAPTIONS.index(tx_master) if tx_master in CAPTIONS else 0
        tx_bonding = flag("TX_CHANNEL_BONDING")
        if tx_bonding:
            name = LANES[tx_index] if tx_master in CAPTIONS else ""
            S(f"{x}_tx_if_mst_sel {name.lower()}")
            S(f"{x}_tx_if_rd_start_depth {text('TX_READ_START_DEPTH')}")
            D(f"`define {name}_TX_IF_BONDING")
        P(f"parameter {x}_channel_bonding = {1 if bonding else 0};")
        if bonding:
            D(f"`define {key}_CHANNEL_BONDING")
        P(f"parameter {x}_channel_bounding_master_sel = {index};")
        D(f"`define {key}_CHANNEL_BONDING_MASTER_SEL {index}")
        P(f"parameter {x}_channel_bonding_align_pattern = 8'h{text('PATTERN0')};")
        for n, is_k in ((1, "2nd"), (2, "3nd"), (3, "4nd")):
            P(f"parameter {x}_{ordinals[n]}channel_bonding_align_pattern = 8'h{text(f'PATTERN{n}')};")
            P(f"parameter {x}_{is_k}_channel_bonding_align_pattern_is_k = "
              f"{int(flag(f'PATTERN{n}_K_CHARACTER'))};")
        P(f"parameter {x}_channel_bonding_max_skew = {text('PATTERN_MAX_SKEW')};")
        P(f"parameter {x}_rx_bonding_rd_start_depth = {text('RX_READ_START_DEPTH')};")
        P(f"parameter {x}_tx_if_mst_sel = {tx_index if tx_bonding else 0};")
        D(f"`define {key}_TX_IF_MST_SEL {tx_index if tx_bonding else 0}")
        P(f"parameter {x}_tx_if_rd_start_depth = {text('TX_READ_START_DEPTH')};")

        ctc = {"None": 0, "One Word": 1, "Two Words": 3}.get(text("CLOCK_CORRECTION"))
        if ctc is not None:
            S(f"{x}_ctc {'enable' if ctc else 'disable'}")
            S(f"{x}_two_words_ctc {'enable' if ctc == 3 else 'disable'}")
        clock = {"User": "fabric_clk", "Quad": "lane_bond_clk", "TX": "lane_tx_clk"}.get(
            text("CLOCK_CLKSOURCE"))
        if clock:
            S(f"{x}_ctc_clk_src_sel {clock}")
            P(f'parameter {x}_ctc_clk_src_sel = "{clock}";')
        ctc_master = text("CLOCK_MASTERCHANNELSEL")
        if ctc_master in CAPTIONS:
            at = CAPTIONS.index(ctc_master)
            S(f"{x}_ctc_mst_sel {' ' if at > 3 else ''}{LANES[at].lower()}")
            P(f"parameter {x}_ctc_master_sel = {at};")
            D(f"`define {key}_CTC_MASTER_SEL {at}")
        S(f"{x}_ctc_pattern {text('CTC_PATTERN0')}")
        S(f"{x}_ctc_2nd_pattern {text('CTC_PATTERN1')}")
        S(f"{x}_ctc_2nd_pattern_is_k {truth('CTC_PATTERN1_IS_K')}")
        P(f"parameter {x}_ctc_2nd_pattern_is_k = {int(flag('CTC_PATTERN1_IS_K'))};")
        S(f"{x}_ctc_rd_start_depth {text('CTC_READ_START_DEPTH')}")
        P(f"parameter {x}_ctc = {1 if ctc else 0};")
        P(f"parameter {x}_two_words_ctc = {1 if ctc == 3 else 0};")
        if ctc:
            D(f"`define {key}_CTC")
        P(f"parameter {x}_ctc_pattern = 8'h{text('CTC_PATTERN0')};")
        P(f"parameter {x}_ctc_2nd_pattern = 8'h{text('CTC_PATTERN1')};")
        P(f"parameter {x}_ctc_rd_start_depth = {text('CTC_READ_START_DEPTH')};")

        S(f"{x}_tx_differential_swing {text('DIFFERENTIAL_SWING', '900mV')}")
        S(f"{x}_tx_ffe_mode {text('FFEMODE', 'Auto').lower()}")
        S(f"{x}_tx_ffe_cm {integer(text('FFE_CM', 0))}")
        S(f"{x}_tx_ffe_c1 {integer(text('FFE_C1', 0))}")
        S(f"{x}_tx_ffe_c0 {integer(text('FFE_C0', '40'))}")
        S(f"{x}_rx_sd_thsel {text('SD_THRESHOLD', '100mV')}")
        S(f"{x}_rx_eq_mode {text('Equalization_Mode', 'Auto').lower()}")
        S(f"{x}_rx_att {integer(text('ATT', 7))}")
        S(f"{x}_rx_boost {integer(text('BOOST', 9))}")
        auto = (text("RefMode", "Auto") == "Auto" or device in K15
                or (device in K60 and mode in ("RX Only", "TX Only")))
        S(f"{x}_cdr_refclk_sel {'auto' if auto else text('RXREFSOURCE', 'REFMUX0').lower()}")

    clocks = []

    def mux_pair(first):
        pair = [(text(f"REFMUX{n}SOURCE"), text(f"MUX{n}Freq")) for n in (first, first + 1)]
        same = pair[0][0] == pair[1][0] and number(pair[0][1]) == number(pair[1][1])
        clocks.extend(pair[:1] if same else pair)

    def input_line():
        source = text("PLLREFSOURCE")
        if source in ("Q0 REFIN", "GPIO"):
            S(f"q0_gpio_freq {general(number(text('GPIOFreq')))}")
        elif source == "MCLK":
            S(f"mclk_freq {general(number(text('MCLKFreq')))}")
        else:
            return False
        return True

    if listed and mode == "RX Only":
        if text("PLLREFSOURCE") == "REFMUX1":
            clocks.append((text("REFMUX1SOURCE"), text("MUX1Freq")))
        else:
            input_line()
    elif text("RefMode") == "Auto":
        clocks.append((text("REFERENCE_CLOCK_SOURCE"), text("REFERENCE_CLOCK_FREQ")))
    elif not (listed and input_line()):
        mux_pair(0)
        if device in K60:
            mux_pair(2)
    for name, frequency in clocks:
        if name in CLOCK:
            S(f"{CLOCK[name]}_freq {general(number(frequency))}")
            P(f"parameter {CLOCK[name]}_freq = {frequency};")

    used = [q for q in (0, 1) if any(lane.startswith(f"Q{q}") for lane in recorded)]
    if quad_clock:
        master = text("RX_MASTER_CHANNEL_SELECTION")
        quad, lane = (f"q{master[1]}", f"ln{master[-1]}") if master in CAPTIONS else ("", "")
        if len(used) == 2:
            S("q0_rx_quad_clk_sel common")
            S("q1_rx_quad_clk_sel common")
            S(f"common_clk_src_sel {quad}")
            S(f"common_clk_from_{quad}_sel {lane}_pma_rx_clk")
        else:
            for q in used:
                if f"q{q}_rx_quad_clk_sel internal" not in script:
                    S(f"q{q}_rx_quad_clk_sel internal")
                S(f"q{q}_rx_quad_clk_internal_sel {lane}_pma_rx_clk")
    if flag("ifChangedAllOfBias"):
        for q in used:
            S(f"q{q}_rx_eq_bias {int(data.get(f'Q{q}_BIAS', 0))}")
    D(f"`define MODULE_NAME {text('module')}")
    if flag("DRP_Ports"):
        D("`define DRP")
    D("`define RZ7X60" if device in K60 else "`define RZ7X15" if device in K15 else "`define RZ7X138")
    return {"define.vh": defines, "param.v": params, "customized.ini": script}


def main():
    folder, name = sys.argv[1:]
    with open(os.path.join(folder, "project.json"), encoding="utf-8") as file:
        project = json.load(file)
    config = project["instances"][name]["config"]
    output = os.path.join(folder, "transceiver", config["file"], "temp", "CUSTOMIZED")
    os.makedirs(output, exist_ok=True)
    for file, lines in generate(config, project["device"], project.get("data", {})).items():
        path = os.path.join(output, file)
        with open(path + ".new", "w", encoding="utf-8") as out:
            out.write("".join(line + "\n" for line in lines))
        os.replace(path + ".new", path)


if __name__ == "__main__":
    main()
