// Drives and checks one lane. With no near-end loopback, a second transceiver stands at the other
// end of the line: what the instance sends is checked there, what it receives was made there, from
// clocks of its own. With one, the instance receives what it sends.
`timescale 1ps / 1fs

module bench_lane #(
    parameter INDEX = 0,
    parameter real TX_RATE = 1.25,
    parameter real RX_RATE = 1.25,
    parameter TX_WIDTH = 10,
    parameter RX_WIDTH = 10,
    parameter TX_GEARBOX = 1,
    parameter RX_GEARBOX = 1,
    parameter TX_CODING = 0,
    parameter RX_CODING = 0,
    parameter RAW_BLOCKS = 0,
    parameter WORD_ALIGN = 0,
    parameter [8*5-1:0] WA_PATTERN = "k28.5",
    parameter BONDING = 0,
    parameter [7:0] BOND_PATTERN = 8'h7C,
    parameter BOND_MAX_SKEW = 8,
    parameter CTC = 0,
    parameter CTC_TWO_WORDS = 0,
    parameter CTC_SOURCE = "fabric_clk",
    parameter [7:0] CTC_PATTERN = 8'h7C,
    parameter [7:0] CTC_PATTERN2 = 8'h7C,
    parameter CTC_PATTERN2_IS_K = 0,
    parameter LOOPBACK = "off"
) (
    input         rstn,
    input         train,
    input         check,
    input         search,          // look for the delay at which symbols fall in place
    output        settled,
    output        passed,
    output        covered,
    input         tx_clk,
    input         afull,
    output        wren,
    output [79:0] tx_data,
    input         fetch,
    output  [2:0] ctrl,
    output [63:0] txd,
    output  [7:0] txc,
    input         rx_clk,
    output        rden,
    input         valid,
    input  [87:0] rx_data,
    input  [63:0] rxd,
    input   [7:0] rxc,
    input         dec_err,
    input         invld_header,
    input         line_out
);
`include "xcvr_8b10b.vh"
  localparam NEAR = LOOPBACK == "lb_nes" || LOOPBACK == "lb_enc";
  localparam FAR = LOOPBACK == "lb_fes";
  localparam SAME = TX_RATE == RX_RATE && TX_CODING == RX_CODING
                    && (TX_CODING != 0 || TX_WIDTH == RX_WIDTH || !WORD_ALIGN);
  localparam SPARES = CTC && RX_CODING == 1 ? (CTC_TWO_WORDS ? 2 : 1) : 0;
  localparam [8:0] SPARE2 = {CTC_PATTERN2_IS_K != 0, CTC_PATTERN2};
  localparam [7:0] ALIGN = character_named(WA_PATTERN);
  localparam real UI = 1000.0 / RX_RATE;
  localparam TX_BITS = TX_WIDTH * TX_GEARBOX;
  localparam RX_BITS = RX_WIDTH * RX_GEARBOX;
  // Symbols find no boundary by themselves when the word alignment is off.
  localparam SEARCHES = RX_CODING == 1 && !WORD_ALIGN && LOOPBACK != "lb_enc";

  // Bonded lanes get lines of different lengths, within the skew allowed.
  localparam real SKEW = INDEX % 4 * 1.7 > BOND_MAX_SKEW ? BOND_MAX_SKEW : INDEX % 4 * 1.7;
  real rx_delay = 0.0;
  initial if (BONDING) #1 rx_delay = SKEW * 10 * UI;

  assign rden = 1'b1;

  reg  searching = 1'b0;           // the sink works for the search

  // ---- near end
  bench_source #(
    .CODING(TX_CODING), .RAW_BLOCKS(RAW_BLOCKS), .BITS(TX_BITS),
    .TRAIN_SYMBOLS(WORD_ALIGN && TX_WIDTH % 10 == 0), .ALIGN(ALIGN),
    .BONDING(BONDING), .BOND(BOND_PATTERN),
    .SPARES(TX_CODING == 1 ? SPARES : 0), .SPARE(CTC_PATTERN), .SPARE2(SPARE2)
  ) source (
    .clk(tx_clk), .reset(!rstn), .train(train), .afull(afull), .wren(wren), .data(tx_data),
    .fetch(fetch), .ctrl(ctrl), .txd(txd), .txc(txc)
  );
  bench_sink #(
    .CODING(RX_CODING), .RAW_BLOCKS(RAW_BLOCKS), .BITS(RX_BITS), .ALIGN(ALIGN),
    .BONDING(BONDING), .BOND(BOND_PATTERN),
    .SPARES(SPARES), .SPARE(CTC_PATTERN), .SPARE2(SPARE2)
  ) sink (
    .clk(rx_clk), .check(check || searching), .valid(valid), .data(rx_data), .rxd(rxd), .rxc(rxc),
    .dec_err(dec_err), .invld_header(invld_header)
  );

  // ---- far end: transmits as the instance receives and receives as it transmits, or, when the
  // instance sends back what comes in, as it transmits itself
  localparam FAR_RX_CODING = FAR ? RX_CODING : TX_CODING;
  localparam FAR_RX_WIDTH = FAR ? RX_WIDTH : TX_WIDTH;
  localparam FAR_RX_GEARBOX = FAR ? RX_GEARBOX : TX_GEARBOX;
  wire        far_tx_clk;
  wire        far_rx_clk;
  wire        far_afull;
  wire        far_wren;
  wire [79:0] far_tx_data;
  wire        far_fetch;
  wire  [2:0] far_ctrl;
  wire [63:0] far_txd;
  wire  [7:0] far_txc;
  wire        far_valid;
  wire [87:0] far_rx_data;
  wire [63:0] far_rxd;
  wire  [7:0] far_rxc;
  wire        far_dec_err;
  wire        far_invld_header;
  wire        far_go;
  wire        line_back = far.pad_tx;

  xcvr_lane_model #(
    .TX_RATE(RX_RATE), .RX_RATE(FAR ? RX_RATE : TX_RATE),
    .TX_WIDTH(RX_WIDTH), .RX_WIDTH(FAR_RX_WIDTH),
    .TX_GEARBOX(RX_GEARBOX), .RX_GEARBOX(FAR_RX_GEARBOX),
    .TX_CODING(RX_CODING), .RX_CODING(FAR_RX_CODING), .RAW_BLOCKS(RAW_BLOCKS),
    .WORD_ALIGN(FAR_RX_CODING == 1), .WA_PATTERN(WA_PATTERN)
  ) far (
    .pma_rstn(rstn), .pcs_tx_rst(!rstn), .pcs_rx_rst(!rstn), .refclk(), .pll_lock(), .cdr_lock(),
    .signal_detect(), .tx_pcs_clk(far_tx_clk), .rx_pcs_clk(far_rx_clk), .tx_clk(far_tx_clk),
    .tx_wren(far_wren), .tx_data(far_tx_data), .tx_full(), .tx_afull(far_afull), .tx_used(),
    .tx_ctrl(far_ctrl), .txd(far_txd), .txc(far_txc), .tx_fetch(far_fetch), .tx_invld_blk(),
    .rx_clk(far_rx_clk), .rx_rden(1'b1), .rx_valid(far_valid), .rx_data(far_rx_data), .rx_empty(),
    .rx_aempty(), .rx_used(), .rxd(far_rxd), .rxc(far_rxc), .rx_her_hi(), .rx_ctc_del(),
    .rx_ctc_ins(), .rx_invld_header(far_invld_header), .rx_dscr_err(), .rx_dec_err(far_dec_err),
    .rx_blk_lock(), .cc_clk(1'b0), .bond_start(1'b0), .bond_clk(1'b0), .bond_go(1'b0),
    .bond_ready(), .ctc_high_in(1'b0), .ctc_low_in(1'b0), .ctc_high(), .ctc_low(),
    .tx_go_in(1'b0), .tx_go(), .word_aligned(), .k_lock()
  );
  always @(line_out) far.pad_rx = line_out;

  bench_source #(
    .CODING(RX_CODING), .RAW_BLOCKS(RAW_BLOCKS), .BITS(RX_BITS),
    .TRAIN_SYMBOLS(WORD_ALIGN && RX_WIDTH % 10 == 0), .ALIGN(ALIGN),
    .BONDING(BONDING), .BOND(BOND_PATTERN), .SPARES(SPARES), .SPARE(CTC_PATTERN), .SPARE2(SPARE2)
  ) far_source (
    .clk(far_tx_clk), .reset(!rstn), .train(train), .afull(far_afull), .wren(far_wren),
    .data(far_tx_data), .fetch(far_fetch), .ctrl(far_ctrl), .txd(far_txd), .txc(far_txc)
  );
  bench_sink #(
    .CODING(FAR_RX_CODING), .RAW_BLOCKS(RAW_BLOCKS), .BITS(FAR_RX_WIDTH * FAR_RX_GEARBOX),
    .ALIGN(ALIGN), .BONDING(BONDING), .BOND(BOND_PATTERN),
    .SPARES(FAR_RX_CODING == 1 ? SPARES : 0), .SPARE(CTC_PATTERN), .SPARE2(SPARE2)
  ) far_sink (
    .clk(far_rx_clk), .check(check), .valid(far_valid), .data(far_rx_data), .rxd(far_rxd),
    .rxc(far_rxc), .dec_err(far_dec_err), .invld_header(far_invld_header)
  );

  // ---- an independent look at the line: 8B/10B keeps runs to five bits, and its commas, a run of
  // five behind one of two or more, all end at the same place of a symbol
  localparam COMMAS = ALIGN != 8'hFC;  // K28.7 makes more with its neighbours
  integer run = 0;                     // length of the run that has ended
  integer former_run = 0;
  integer longest = 0;
  integer place = 0;
  integer comma_place = -1;
  integer stray_commas = 0;
  real    last_edge = 0.0;
  always @(line_out) begin
    former_run = run;
    run = $rtoi(($realtime - last_edge) * TX_RATE / 1000.0 + 0.5);
    place = (place + run) % 10;
    last_edge = $realtime;
    if (!check) comma_place = -1;
    else if (run > longest) longest = run;
    if (check && COMMAS && run == 5 && former_run >= 2) begin
      if (comma_place >= 0 && place != comma_place) stray_commas = stray_commas + 1;
      comma_place = place;
    end
  end

  // ---- the search for a delay, one bit at a time
  reg     found = 1'b0;
  integer tries;
  assign settled = !SEARCHES || found;
  always @(posedge search) if (SEARCHES) begin
    found = 1'b0;
    for (tries = 0; tries < 20 && !found; tries = tries + 1) begin
      repeat (40) @(posedge rx_clk);
      searching = 1'b1;
      repeat (400) @(posedge rx_clk);
      found = sink.errors == 0 && sink.checked > 100;
      searching = 1'b0;
      @(posedge rx_clk) if (!found) rx_delay = rx_delay + UI;
    end
    found = 1'b1;   // or given up, which the check then shows
  end

  // ---- verdict
  localparam NEEDED = 1000;         // bits
  localparam CORRECTING = CTC && (RX_CODING == 1 || RX_CODING == 2 && !RAW_BLOCKS);
  // Frames of characters show what was added and what was dropped where the clocks differ.
  localparam COUNTS = CTC && RX_CODING == 1 && ALIGN != CTC_PATTERN
                      && (CTC_SOURCE == "fabric_clk" || CTC_SOURCE == "lane_tx_clk" && !NEAR && !FAR);
  wire near_good = sink.errors == 0 && sink.checked >= NEEDED
                   && (RX_CODING != 1 || sink.controls > 0)
                   && (!CORRECTING || sink.spares > 0)
                   && (!COUNTS || sink.added > 0 && sink.dropped > 0);
  wire far_good = far_sink.errors == 0 && far_sink.checked >= NEEDED
                  && (TX_CODING != 1 || FAR || longest > 0 && longest <= 5 && stray_commas == 0);
  assign covered = NEAR ? SAME : 1'b1;
  initial if (!covered)
    $display("lane %0d: a near-end loopback needs the same rate and coding both ways", INDEX);
  assign passed = covered && near_good && (NEAR || far_good);

  task report;
    begin
      if (!NEAR)
        $display("lane %0d: far end received %0d bits, %0d errors, longest run %0d, %0d stray commas",
                 INDEX, far_sink.checked, far_sink.errors, longest, stray_commas);
      $display("lane %0d: received %0d bits, %0d errors, %0d control, %0d correction (%0d added, %0d dropped)",
               INDEX, sink.checked, sink.errors, sink.controls, sink.spares, sink.added,
               sink.dropped);
    end
  endtask
endmodule
