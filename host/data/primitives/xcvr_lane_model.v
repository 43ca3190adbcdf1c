// Behavioural model of one transceiver lane, for simulation only. The classes' primitives wrap it.
//
// Everything runs from bit times: the transmitter sends one bit every 1/TX_RATE, the receiver
// samples its input in the middle of the eye that the last edges define and takes 1/RX_RATE where
// there are none. A test bench reaches into an instance for what has no port in the fabric:
//   pad_tx     (read)   the serial output
//   pad_rx     (write)  the serial input
//   rx_delay   (write)  delay of the input in ps: a longer trace, hence skew
//   tx_ppm     (write)  offset of this end's transmit clock
`timescale 1ps / 1fs

module xcvr_lane_model #(
    parameter real TX_RATE = 1.25,          // Gbps, on the line
    parameter real RX_RATE = 1.25,
    parameter TX_WIDTH = 10,                // internal data widths: 8, 10, 16, 20
    parameter RX_WIDTH = 10,
    parameter TX_GEARBOX = 1,               // external width / internal width: 1, 2, 4
    parameter RX_GEARBOX = 1,
    parameter TX_CODING = 0,                // 0 none, 1 8B/10B, 2 64B/66B, 3 64B/67B
    parameter RX_CODING = 0,
    parameter RAW_BLOCKS = 0,               // 64B/66B blocks with header and payload as given
    parameter LOOPBACK = "off",             // "off", "lb_nes", "lb_fes", "lb_enc"
    parameter WORD_ALIGN = 0,
    parameter [8*5-1:0] WA_PATTERN = "k28.5",
    parameter [9:0] WA_MASK = 10'b1111111111,
    parameter BONDING = 0,
    parameter [7:0] BOND_PATTERN = 8'h7C,
    parameter BOND_MAX_SKEW = 8,            // characters
    parameter BOND_START = 16,              // fill at which reading starts
    parameter CTC = 0,
    parameter CTC_TWO_WORDS = 0,
    parameter CTC_SOURCE = "fabric_clk",    // "fabric_clk", "lane_bond_clk", "lane_tx_clk"
    parameter [7:0] CTC_PATTERN = 8'h7C,
    parameter [7:0] CTC_PATTERN2 = 8'h7C,
    parameter CTC_PATTERN2_IS_K = 0,
    parameter CTC_START = 16,
    parameter TX_BONDING = 0,
    parameter TX_START = 16
) (
    input             pma_rstn,
    input             pcs_tx_rst,
    input             pcs_rx_rst,
    output            refclk,
    output reg        pll_lock,
    output            cdr_lock,
    output            signal_detect,
    output reg        tx_pcs_clk,
    output reg        rx_pcs_clk,
    // transmit
    input             tx_clk,
    input             tx_wren,
    input      [79:0] tx_data,
    output            tx_full,
    output            tx_afull,
    output      [4:0] tx_used,
    input       [2:0] tx_ctrl,
    input      [63:0] txd,
    input       [7:0] txc,
    output reg        tx_fetch,
    output reg        tx_invld_blk,
    // receive
    input             rx_clk,
    input             rx_rden,
    output reg        rx_valid,
    output reg [87:0] rx_data,
    output            rx_empty,
    output            rx_aempty,
    output      [4:0] rx_used,
    output reg [63:0] rxd,
    output reg  [7:0] rxc,
    output reg        rx_her_hi,
    output reg  [1:0] rx_ctc_del,
    output reg  [1:0] rx_ctc_ins,
    output reg        rx_invld_header,
    output            rx_dscr_err,
    output reg        rx_dec_err,
    output reg        rx_blk_lock,
    // clock correction and bonding
    input             cc_clk,
    input             bond_start,
    input             bond_clk,
    input             bond_go,
    output reg        bond_ready,
    input             ctc_high_in,
    input             ctc_low_in,
    output reg        ctc_high,
    output reg        ctc_low,
    input             tx_go_in,
    output reg        tx_go,
    output reg        word_aligned,
    output reg        k_lock
);

`include "xcvr_8b10b.vh"
`include "xcvr_64b66b.vh"

  localparam TX_BLOCKS = TX_CODING >= 2;
  localparam RX_BLOCKS = RX_CODING >= 2;
  localparam TX_BITS = TX_WIDTH * TX_GEARBOX;      // of one word at the fabric
  localparam RX_BITS = RX_WIDTH * RX_GEARBOX;
  // The receiver counts in units: a block, a symbol, or as many uncoded bits.
  localparam RX_UNIT = RX_WIDTH % 10 == 0 ? 10 : 8;
  localparam RX_UNITS = RX_BLOCKS ? 1 : RX_BITS / RX_UNIT;
  localparam DEPTH = 32;
  localparam CORRECTS = CTC && RX_CODING != 0 && RX_CODING != 3 && !(RX_CODING == 2 && RAW_BLOCKS);
  localparam BONDS = BONDING && RX_CODING == 1;
  localparam integer MID = CTC_START > 2 * RX_UNITS + 4 ? CTC_START : 2 * RX_UNITS + 4;
  localparam integer START = CTC ? MID : BONDS && BOND_START > 2 * RX_UNITS ? BOND_START
                                                                          : 2 * RX_UNITS;

  real tx_ppm = 0.0;
  real rx_delay = 0.0;
  reg  pad_rx = 1'b0;
  wire pad_tx;

  // ---- PLL: locks a while after the reset, on a reference of the model's own
  localparam PLL_LOCK_CYCLES = 50;
  reg     ref_clk = 1'b0;
  integer pll_count = 0;
  always #4000 ref_clk = ~ref_clk;
  assign refclk = ref_clk;
  initial pll_lock = 1'b0;
  always @(posedge ref_clk or negedge pma_rstn)
    if (!pma_rstn) begin
      pll_count = 0;
      pll_lock = 1'b0;
    end else if (pll_count == PLL_LOCK_CYCLES) begin
      pll_lock = 1'b1;
    end else begin
      pll_count = pll_count + 1;
    end

  // ---- transmit FIFO
  reg [79:0] tx_words [0:DEPTH-1];
  integer    tx_wr = 0;
  integer    tx_rd = 0;
  reg        tx_full_r = 1'b0;
  reg        tx_afull_r = 1'b0;
  reg  [4:0] tx_used_r = 5'd0;
  wire       tx_reset = pcs_tx_rst || !pll_lock;
  assign tx_full = tx_full_r;
  assign tx_afull = tx_afull_r;
  assign tx_used = tx_used_r;
  initial begin
    tx_fetch = 1'b0;
    tx_invld_blk = 1'b0;
    tx_go = 1'b0;
  end

  wire [66:0] tx_checked = encode_64b66b(txc, txd);
  wire        tx_as_given = TX_CODING == 3 || RAW_BLOCKS;
  wire        tx_bad = tx_as_given ? ^tx_ctrl[1:0] == 1'b0 : tx_checked[66];
  wire [65:0] tx_block = tx_as_given ? {tx_bad ? 2'b01 : tx_ctrl[1:0], txd} : tx_checked[65:0];

  always @(posedge tx_clk) begin
    if (tx_reset) begin
      tx_fetch <= 1'b0;
      tx_invld_blk <= 1'b0;
    end else begin
      if (TX_BLOCKS ? tx_fetch : tx_wren && tx_wr - tx_rd < DEPTH) begin
        tx_words[tx_wr % DEPTH] = TX_BLOCKS ? {14'd0, tx_block} : tx_data;
        tx_wr = tx_wr + 1;
      end
      tx_invld_blk <= TX_BLOCKS && tx_fetch && tx_bad;
      tx_fetch <= TX_BLOCKS && tx_wr - tx_rd < DEPTH / 2;
      // With bonded transmitters all FIFOs start to be read when the master's has filled up.
      if (tx_wr - tx_rd >= (TX_BONDING && TX_START > 2 ? TX_START / 2 : 2)) tx_go = 1'b1;
    end
    tx_full_r <= tx_wr - tx_rd >= DEPTH - 1;
    tx_afull_r <= tx_wr - tx_rd >= DEPTH - 8;
    tx_used_r <= tx_wr - tx_rd > DEPTH - 1 ? DEPTH - 1 : tx_wr - tx_rd;
  end
  always @(posedge tx_reset) begin
    tx_wr = 0;
    tx_rd = 0;
    tx_go = 1'b0;
  end

  // ---- transmitter
  reg         tx_serial = 1'b0;
  reg  [79:0] tx_shift = 80'd0;
  integer     tx_left = 0;         // bits left of the unit being sent
  integer     tx_phase = 0;        // bits into the word clock's period
  integer     tx_chars = 0;        // characters left of the word being sent
  reg  [79:0] tx_word = 80'd0;
  reg         tx_disparity = 1'b0;
  reg  [57:0] tx_scrambler = {58{1'b1}};
  integer     tx_balance = 0;      // ones minus zeros sent, of 64B/67B
  reg         tx_first = 1'b0;     // the bit on the line is the first of its unit
  event       tx_bit;
  localparam TX_PERIOD = TX_BLOCKS ? 64 : TX_BITS;

  // The next word; an idle one when the fabric has given none.
  wire [66:0] idle_block = encode_64b66b(8'hFF, {8{XGMII_IDLE}});
  task take_word;
    if (!tx_reset && (TX_BONDING ? tx_go_in : tx_go) && tx_wr > tx_rd) begin
      tx_word = tx_words[tx_rd % DEPTH];
      tx_rd = tx_rd + 1;
    end else begin
      case (TX_CODING)
        0:       tx_word = 80'h5555_5555_5555_5555_5555;
        1:       tx_word = {8{10'h1BC}};
        default: tx_word = {16'd0, idle_block[63:0]};
      endcase
      if (TX_BLOCKS) tx_word[65:64] = 2'b01;
    end
  endtask

  task next_unit;
    reg [10:0]  symbol;
    reg [121:0] mixed;
    integer     i;
    integer     weight;
    reg         invert;
    begin
      tx_first = 1'b1;
      if (TX_CODING == 1) begin
        if (tx_chars == 0) begin
          take_word;
          tx_chars = TX_BITS / 10;
        end
        symbol = encode_8b10b(tx_word[8], tx_word[7:0], tx_disparity ^ tx_word[9]);
        tx_disparity = symbol[10];
        tx_shift = {70'd0, symbol[9:0]};
        tx_left = 10;
        tx_word = tx_word >> 10;
        tx_chars = tx_chars - 1;
      end else if (TX_BLOCKS) begin
        take_word;
        mixed = scramble(tx_word[63:0], tx_scrambler);
        tx_scrambler = mixed[121:64];
        if (TX_CODING == 2) begin
          tx_shift = {14'd0, mixed[63:0], tx_word[65:64]};
          tx_left = 66;
        end else begin
          weight = -32;
          for (i = 0; i < 64; i = i + 1) weight = weight + {31'd0, mixed[i]};
          // The payload is inverted when that brings the line's balance back.
          invert = weight != 0 && (weight > 0) == (tx_balance > 0);
          tx_balance = tx_balance + (invert ? -weight : weight);
          tx_shift = {13'd0, invert ? ~mixed[63:0] : mixed[63:0], invert, tx_word[65:64]};
          tx_left = 67;
        end
      end else begin
        take_word;
        tx_shift = tx_word;
        tx_left = TX_BITS;
      end
    end
  endtask

  initial tx_pcs_clk = 1'b0;
  always begin : transmit
    if (!pll_lock) begin
      tx_serial = 1'b0;
      tx_pcs_clk = 1'b0;
      tx_left = 0;
      tx_phase = 0;
      tx_chars = 0;
      tx_disparity = 1'b0;
      @(posedge pll_lock);
    end
    tx_first = 1'b0;
    if (tx_left == 0) next_unit;
    tx_serial = tx_shift[0];
    tx_shift = tx_shift >> 1;
    tx_left = tx_left - 1;
    tx_pcs_clk = tx_phase < TX_PERIOD / 2;
    tx_phase = (tx_phase + 1) % TX_PERIOD;
    -> tx_bit;
    #(1000.0 / TX_RATE * (1.0 - tx_ppm * 1.0e-6));
  end

  // ---- the line and the loopbacks
  wire line_in = LOOPBACK == "lb_nes" ? tx_serial : pad_rx;
  reg  line = 1'b0;
  always @(line_in) line <= #(rx_delay) line_in;
  // The far-end loopback sends back what comes in.
  assign pad_tx = LOOPBACK == "lb_fes" ? line : tx_serial;

  // ---- clock and data recovery
  localparam LOCK_EDGES = 32;
  localparam LOSS_BITS = 256;
  real    edge_time = 0.0;
  integer edges = 0;               // since the reset or the last loss
  integer quiet = 0;               // bits since the last edge
  always @(line) begin
    edge_time = $realtime;
    quiet = 0;
    if (edges < LOCK_EDGES) edges = edges + 1;
  end
  wire own_symbols = LOOPBACK == "lb_enc";
  reg  locked = 1'b0;
  assign cdr_lock = own_symbols ? pll_lock : locked;
  assign signal_detect = cdr_lock;

  real last_sample = 0.0;
  real rx_ui;
  real due;
  initial rx_pcs_clk = 1'b0;
  always begin : recover
    if (!pma_rstn || own_symbols) begin
      edges = 0;
      locked = 1'b0;
      wait (pma_rstn && !own_symbols);
      last_sample = $realtime;
    end
    rx_ui = 1000.0 / RX_RATE;
    due = last_sample + rx_ui;
    if (due > $realtime) #(due - $realtime);
    while (edge_time > last_sample && edge_time + rx_ui / 2 > $realtime + 0.002)
      #(edge_time + rx_ui / 2 - $realtime);
    last_sample = edge_time > last_sample ? edge_time + rx_ui / 2 : due;
    quiet = quiet + 1;
    if (quiet > LOSS_BITS) edges = 0;
    locked = edges == LOCK_EDGES;
    receive(line, 1'b0);
  end
  always @(tx_bit) if (own_symbols) receive(tx_serial, tx_first);

  // ---- receiver: bits to units
  integer    rx_phase = 0;
  reg  [9:0] symbol = 10'd0;
  integer    symbol_bits = 0;
  integer    good_patterns = 0;
  integer    stray_patterns = 0;
  integer    faults = 0;           // rises with each wrong symbol, falls with each right one
  reg        rx_disparity = 1'b0;
  reg [66:0] block = 67'd0;
  integer    block_bits = 0;
  integer    good_headers = 0;
  integer    headers = 0;
  integer    bad_headers = 0;
  integer    window = 0;
  integer    window_bad = 0;
  reg [57:0] rx_scrambler = 58'd0;
  localparam RX_PERIOD = RX_BLOCKS ? 64 : RX_BITS;
  localparam BLOCK = RX_CODING == 3 ? 67 : 66;
  localparam HEADER = RX_CODING == 3 ? 3 : 2;
  wire rx_reset = pcs_rx_rst || !cdr_lock;

  reg [10:0] minus = 11'd0;
  reg [10:0] plus = 11'd0;
  initial begin
    minus = encode_8b10b(1'b1, character_named(WA_PATTERN), 1'b0);
    plus = encode_8b10b(1'b1, character_named(WA_PATTERN), 1'b1);
    word_aligned = 1'b0;
    k_lock = 1'b0;
  end

  // One bit of the line; `first`: it starts a unit, known only within the chip.
  task receive(input b, input first);
    begin
      rx_pcs_clk = rx_phase < RX_PERIOD / 2;
      rx_phase = (rx_phase + 1) % RX_PERIOD;
      if (!rx_reset) begin
        if (RX_BLOCKS) receive_block_bit(b, first);
        else           receive_symbol_bit(b, first);
      end
    end
  endtask

  task receive_symbol_bit(input b, input first);
    begin
      if (first && RX_CODING == 1) symbol_bits = 0;
      symbol = RX_UNIT == 10 ? {b, symbol[9:1]} : {2'b00, b, symbol[7:1]};
      symbol_bits = symbol_bits + 1;
      if (WORD_ALIGN && RX_UNIT == 10 && ((symbol ^ minus[9:0]) & WA_MASK) == 10'd0
          || WORD_ALIGN && RX_UNIT == 10 && ((symbol ^ plus[9:0]) & WA_MASK) == 10'd0)
        found_pattern;
      if (symbol_bits >= RX_UNIT) begin
        symbol_bits = 0;
        take_symbol;
      end
    end
  endtask

  // The alignment pattern ends at this bit.
  task found_pattern;
    begin
      if (word_aligned && symbol_bits == 10) begin
        good_patterns = good_patterns + 1;
        stray_patterns = 0;
      end else if (!k_lock || stray_patterns == 16 && RX_CODING == 1) begin
        symbol_bits = 10;
        good_patterns = 1;
        stray_patterns = 0;
        k_lock = 1'b0;
        word_aligned = 1'b1;
      end else begin
        stray_patterns = stray_patterns + 1;
      end
      if (good_patterns >= 4) k_lock = 1'b1;
    end
  endtask

  task take_symbol;
    reg [11:0] decoded;
    begin
      if (RX_CODING == 1) begin
        decoded = decode_8b10b(symbol, rx_disparity);
        rx_disparity = decoded[9];
        if (decoded[11] || decoded[10]) faults = faults + 4;
        else if (faults > 0) faults = faults - 1;
        if (faults > 64) begin
          faults = 0;
          word_aligned = 1'b0;
          k_lock = 1'b0;
          good_patterns = 0;
        end
        // at the fabric: code error, disparity error, k, character
        push({77'd0, decoded[11], decoded[10], decoded[8:0]});
      end else begin
        push({78'd0, symbol});
      end
    end
  endtask

  task receive_block_bit(input b, input first);
    reg [66:0]  whole;
    reg [63:0]  payload;
    reg [121:0] plain;
    begin
      if (first) block_bits = 0;
      block = {b, block[66:1]};
      block_bits = block_bits + 1;
      if (block_bits >= BLOCK) begin
        block_bits = 0;
        whole = block >> (67 - BLOCK);
        payload = whole >> HEADER;
        if (RX_CODING == 3 && whole[2]) payload = ~payload;
        plain = descramble(payload, rx_scrambler);
        rx_scrambler = plain[121:64];
        check_header(whole[1:0]);
        if (rx_blk_lock) take_block(whole[1:0], plain[63:0]);
      end
    end
  endtask

  // Lock after 64 valid headers in a row; a wrong one before that moves the boundary by a bit.
  // Lost after 16 wrong ones among 64.
  task check_header(input [1:0] header);
    begin
      if (header[0] != header[1]) begin
        good_headers = good_headers + 1;
        if (good_headers >= 64) rx_blk_lock = 1'b1;
      end else begin
        bad_headers = bad_headers + 1;
        window_bad = window_bad + 1;
        if (!rx_blk_lock || bad_headers >= 16) begin
          block_bits = -1;
          rx_blk_lock = 1'b0;
          good_headers = 0;
          bad_headers = 0;
        end
      end
      headers = headers + 1;
      if (headers % 64 == 0) bad_headers = 0;
      window = window + 1;
      if (window == 1024) begin
        rx_her_hi = window_bad >= 16;
        window = 0;
        window_bad = 0;
      end
    end
  endtask

  task take_block(input [1:0] header, input [63:0] payload);
    reg [72:0] decoded;
    begin
      // as stored: header error, coding error, flags, octets
      if (RX_CODING == 3 || RAW_BLOCKS) begin
        push({14'd0, header[0] == header[1], 1'b0, 6'd0, header, payload});
      end else begin
        decoded = decode_64b66b(header, payload);
        push({14'd0, header[0] == header[1], decoded});
      end
    end
  endtask

  // ---- elastic buffer: bonding and clock correction
  localparam ELASTIC = 512;
  reg [87:0] units [0:ELASTIC-1];
  integer    unit_wr = 0;
  integer    unit_rd = 0;
  reg        seen = 1'b0;          // the buffer starts with the bonding pattern
  reg        after_pattern = 1'b0;
  reg        started = 1'b0;

  task empty_buffer;
    begin
      unit_rd = unit_wr;
      seen = 1'b0;
      started = 1'b0;
      bond_ready = 1'b0;
      after_second = 1'b0;
    end
  endtask

  task push(input [87:0] unit);
    reg is_pattern;
    begin
      is_pattern = unit[9:0] == {2'b01, BOND_PATTERN};
      if (!WORD_ALIGN || RX_BLOCKS || RX_UNIT != 10 || word_aligned) begin
        if (!BONDS) begin
          keep(unit);
        end else begin
          if (!seen && bond_start && is_pattern && !after_pattern) seen = 1'b1;
          if (seen) keep(unit);
          bond_ready = seen && unit_wr - unit_rd >= START;
          // The others have not found theirs within the skew allowed: this was another one.
          if (!bond_go && unit_wr - unit_rd > START + BOND_MAX_SKEW + 3 * RX_UNITS) empty_buffer;
        end
        after_pattern = is_pattern;
      end
    end
  endtask

  task keep(input [87:0] unit);
    if (unit_wr - unit_rd < ELASTIC - 1) begin
      units[unit_wr % ELASTIC] = unit;
      unit_wr = unit_wr + 1;
    end else begin
      empty_buffer;
    end
  endtask

  always @(posedge bond_start) if (BONDS) empty_buffer;

  // What may be added or dropped: the correction characters, or a block of idles.
  function automatic is_spare(input integer at);
    if (RX_CODING == 2)
      is_spare = units[at % ELASTIC][71:0] == {8'hFF, {8{XGMII_IDLE}}};
    else
      is_spare = units[at % ELASTIC][8:0] == {1'b1, CTC_PATTERN}
                 && (!CTC_TWO_WORDS || unit_wr - at >= 2
                     && units[(at + 1) % ELASTIC][8:0] == {CTC_PATTERN2_IS_K != 0, CTC_PATTERN2});
  endfunction
  localparam SPARE = CTC_TWO_WORDS && RX_CODING == 1 ? 2 : 1;

  wire read_clk = CTC ? (CTC_SOURCE == "lane_tx_clk" ? tx_pcs_clk
                         : CTC_SOURCE == "lane_bond_clk" ? bond_clk : cc_clk)
                      : BONDS ? bond_clk : rx_pcs_clk;

  reg [87:0] second = 88'd0;       // the second character of a pair added
  reg        after_second = 1'b0;  // it is the next to be read
  reg        changed;
  reg  [1:0] deleted;
  reg  [1:0] inserted;
  reg [87:0] word;

  always @(posedge read_clk) begin
    if (!rx_reset && ready_to_read(0)) read_word;
    ctc_high <= unit_wr - unit_rd >= MID + RX_UNITS;
    ctc_low <= unit_wr - unit_rd <= MID - RX_UNITS;
  end

  function automatic ready_to_read(input unused);
    begin
      if (BONDS ? bond_go : unit_wr - unit_rd >= (RX_BLOCKS && !CTC ? 1 : START)) started = 1'b1;
      // One unit more than a word holds: a correction may drop one.
      if (unit_wr - unit_rd < RX_UNITS + (CORRECTS ? SPARE : 0)) begin
        if (started && !RX_BLOCKS) started = BONDS;
        ready_to_read = 1'b0;
      end else begin
        ready_to_read = started;
      end
    end
  endfunction

  task read_word;
    integer    i;
    reg [87:0] unit;
    begin
      changed = 1'b0;
      deleted = 2'b00;
      inserted = 2'b00;
      word = 88'd0;
      for (i = 0; i < RX_UNITS; i = i + 1) begin
        if (after_second) begin
          unit = second;
          after_second = 1'b0;
        end else if (CORRECTS && !changed && ctc_low_in && is_spare(unit_rd)) begin
          unit = units[unit_rd % ELASTIC];
          second = units[(unit_rd + 1) % ELASTIC];
          after_second = SPARE == 2;
          inserted = 2'b01;
          changed = 1'b1;
        end else begin
          if (CORRECTS && !changed && ctc_high_in && is_spare(unit_rd)) begin
            unit_rd = unit_rd + SPARE;
            deleted = 2'b01;
            changed = 1'b1;
          end
          unit = units[unit_rd % ELASTIC];
          unit_rd = unit_rd + 1;
        end
        if (RX_BLOCKS)           word = unit;
        else if (RX_CODING == 1) word[11*i +: 11] = unit[10:0];
        else                     word = word | ({78'd0, unit[9:0]} << (RX_UNIT * i));
      end
      if (RX_BLOCKS) word[77:74] = {inserted, deleted};
      if (rx_wr - rx_rd < DEPTH) begin
        rx_words[rx_wr % DEPTH] = word;
        rx_wr = rx_wr + 1;
      end
    end
  endtask

  // ---- receive FIFO
  reg [87:0] rx_words [0:DEPTH-1];
  integer    rx_wr = 0;
  integer    rx_rd = 0;
  reg        rx_empty_r = 1'b1;
  reg        rx_aempty_r = 1'b1;
  reg  [4:0] rx_used_r = 5'd0;
  reg [87:0] rx_head;
  assign rx_empty = rx_empty_r;
  assign rx_aempty = rx_aempty_r;
  assign rx_used = rx_used_r;
  // A scrambler that synchronises itself has no error to report.
  assign rx_dscr_err = 1'b0;

  always @(posedge rx_clk) begin
    if (rx_reset) begin
      rx_valid <= 1'b0;
    end else if (rx_wr > rx_rd && (RX_BLOCKS || rx_rden)) begin
      rx_head = rx_words[rx_rd % DEPTH];
      rx_rd = rx_rd + 1;
      rx_valid <= 1'b1;
      if (RX_BLOCKS) begin
        rxd <= rx_head[63:0];
        rxc <= rx_head[71:64];
        rx_dec_err <= rx_head[72];
        rx_invld_header <= rx_head[73];
        rx_ctc_del <= rx_head[75:74];
        rx_ctc_ins <= rx_head[77:76];
      end else begin
        rx_data <= rx_head;
      end
    end else begin
      rx_valid <= 1'b0;
      rx_ctc_del <= 2'b00;
      rx_ctc_ins <= 2'b00;
    end
    rx_empty_r <= rx_wr == rx_rd;
    rx_aempty_r <= rx_wr - rx_rd <= 2;
    rx_used_r <= rx_wr - rx_rd > DEPTH - 1 ? DEPTH - 1 : rx_wr - rx_rd;
  end

  // Resets of the receiver clear it all.
  always @(posedge rx_reset) clear;
  initial clear;
  task clear;
    begin
      symbol_bits = 0;
      good_patterns = 0;
      stray_patterns = 0;
      faults = 0;
      word_aligned = 1'b0;
      k_lock = 1'b0;
      block_bits = 0;
      good_headers = 0;
      bad_headers = 0;
      headers = 0;
      window = 0;
      window_bad = 0;
      rx_blk_lock = 1'b0;
      rx_her_hi = 1'b0;
      rx_dec_err = 1'b0;
      rx_invld_header = 1'b0;
      rx_ctc_del = 2'b00;
      rx_ctc_ins = 2'b00;
      ctc_high = 1'b0;
      ctc_low = 1'b0;
      rx_valid = 1'b0;
      rx_data = 88'd0;
      rxd = 64'd0;
      rxc = 8'd0;
      rx_wr = 0;
      rx_rd = 0;
      after_pattern = 1'b0;
      empty_buffer;
    end
  endtask

endmodule
