// The wires of one lane, what drives and checks it, and its line to the far end.
`ifdef LANE_ABSENT
  assign ready[`LANE_INDEX] = 1'b1;
  assign used[`LANE_INDEX] = 1'b0;
  assign valid[`LANE_INDEX] = 1'b0;
  assign passed[`LANE_INDEX] = 1'b1;
  assign covered[`LANE_INDEX] = 1'b1;
  assign settled[`LANE_INDEX] = 1'b1;
  assign rx_clock[`LANE_INDEX] = 1'b0;
  assign tx_clock[`LANE_INDEX] = 1'b0;
  assign rx_word[`LANE_INDEX] = 88'd0;
`else
`ifndef BENCH_PLAN
`define BENCH_PLAN
  // What concerns the bench as a whole, from its first lane: one configuration serves all of them.
  localparam RX_CODING = `LANE_RX_CODING;
  localparam real UI = 1000.0 / `LANE(rx_rate);                       // ps
  localparam RX_WORD_BITS = RX_CODING >= 2 ? (RX_CODING == 2 ? 66 : 67)
                                           : `LANE_RX_WIDTH * `LANE(rx_gearbox);
  localparam real WORD_DRIFT = RX_CODING >= 2 ? 4.0 : 120.0 / RX_WORD_BITS + 3.0;  // words
  localparam real WORD_TIME = UI * RX_WORD_BITS;
`ifdef LANE_CHANNEL_BONDING
  localparam BONDED = RX_CODING == 1;
  localparam MASTER = `LANE(channel_bounding_master_sel);
`else
  localparam BONDED = 0;
  localparam MASTER = 0;
`endif
`ifdef LANE_CTC
  localparam CORRECTED_READ = `LANE(ctc_clk_src_sel) == "fabric_clk";
  localparam TX_READ = `LANE(ctc_clk_src_sel) == "lane_tx_clk";
  // Only where the coding has something to add or drop may the clocks differ.
`ifdef LANE_RAW_BLOCKS
  localparam real OFFSET_PPM = 0.0;
`else
  localparam real OFFSET_PPM = RX_CODING == 1 || RX_CODING == 2 ? `BENCH_OFFSET_PPM : 0.0;
`endif
`else
  localparam CORRECTED_READ = 0;
  localparam TX_READ = 0;
  localparam real OFFSET_PPM = 0.0;
`endif
`endif
  wire `LANE(ready_o);
  wire `LANE(pll_lock_o);
  wire `LANE(rx_cdr_lock_o);
  wire `LANE(signal_detect_o);
  wire `LANE(refclk_o);
  wire `LANE(pcs_tx_rst_i);
  wire `LANE(pcs_rx_rst_i);
  wire `LANE(pma_rstn_i);
  wire `LANE(rx_valid_o);
  wire `LANE(tx_clk_i);
  wire `LANE(tx_pcs_clkout_o);
  wire `LANE(rx_clk_i);
  wire `LANE(rx_pcs_clkout_o);
  wire `LANE(rx_her_hi_o);
  wire [1:0] `LANE(rx_ctc_del_o);
  wire [1:0] `LANE(rx_ctc_ins_o);
  wire `LANE(rx_invld_header_o);
  wire `LANE(rx_dscr_err_o);
  wire `LANE(rx_dec_err_o);
  wire `LANE(rx_blk_lock_o);
  wire [63:0] `LANE(rxd_o);
  wire [7:0] `LANE(rxc_o);
  wire `LANE(rx_fifo_empty_o);
  wire `LANE(rx_fifo_aempty_o);
  wire [4:0] `LANE(rx_fifo_rdusewd_o);
  wire `LANE(rx_fifo_rden_i);
  wire [87:0] `LANE(rx_data_o);
  wire `LANE(tx_invld_blk_o);
  wire [2:0] `LANE(tx_ctrl_i);
  wire `LANE(tx_fetch_o);
  wire [63:0] `LANE(txd_i);
  wire [7:0] `LANE(txc_i);
  wire `LANE(tx_fifo_full_o);
  wire `LANE(tx_fifo_afull_o);
  wire [4:0] `LANE(tx_fifo_wrusewd_o);
  wire `LANE(tx_fifo_wren_i);
  wire [79:0] `LANE(tx_data_i);
  wire `LANE(cc_clk_i);
  wire `LANE(cb_start_i);
  wire `LANE(word_align_link_o);
  wire `LANE(k_lock_o);

  assign used[`LANE_INDEX] = 1'b1;
  assign ready[`LANE_INDEX] = `LANE(ready_o);
  assign valid[`LANE_INDEX] = `LANE(rx_valid_o);
  assign rx_clock[`LANE_INDEX] = `LANE(rx_pcs_clkout_o);
  assign tx_clock[`LANE_INDEX] = `LANE(tx_pcs_clkout_o);
  assign rx_word[`LANE_INDEX] = `LANE(rx_data_o);
  assign `LANE(pma_rstn_i) = rstn;
  assign `LANE(pcs_tx_rst_i) = !rstn;
  assign `LANE(pcs_rx_rst_i) = !rstn;
  assign `LANE(tx_clk_i) = `LANE(tx_pcs_clkout_o);
  assign `LANE(cc_clk_i) = corrected_clk;
  assign `LANE(cb_start_i) = bond_start;

  // The fabric reads with the clock that the receiver's words come with.
`ifdef LANE_CTC
  assign `LANE(rx_clk_i) = `LANE(ctc_clk_src_sel) == "fabric_clk" ? corrected_clk
      : `LANE(ctc_clk_src_sel) == "lane_tx_clk" ? `LANE(tx_pcs_clkout_o)
      :
`else
  assign `LANE(rx_clk_i) =
`endif
`ifdef LANE_CHANNEL_BONDING
      rx_clock[`LANE(channel_bounding_master_sel)];
`else
      `LANE(rx_pcs_clkout_o);
`endif

  bench_lane #(
    .INDEX(`LANE_INDEX),
    .TX_RATE(`LANE(tx_rate)),
    .RX_RATE(`LANE(rx_rate)),
    .TX_WIDTH(`LANE_TX_WIDTH),
    .RX_WIDTH(`LANE_RX_WIDTH),
    .TX_GEARBOX(`LANE(tx_gearbox)),
    .RX_GEARBOX(`LANE(rx_gearbox)),
    .TX_CODING(`LANE_TX_CODING),
    .RX_CODING(`LANE_RX_CODING),
`ifdef LANE_RAW_BLOCKS
    .RAW_BLOCKS(1),
`endif
`ifdef LANE_WORD_ALIGN
    .WORD_ALIGN(1),
    .WA_PATTERN(`LANE(word_align_pattern)),
`endif
`ifdef LANE_CHANNEL_BONDING
    .BONDING(`LANE(channel_bonding)),
    .BOND_PATTERN(`LANE(channel_bonding_align_pattern)),
    .BOND_MAX_SKEW(`LANE(channel_bonding_max_skew)),
`endif
`ifdef LANE_CTC
    .CTC(`LANE(ctc)),
    .CTC_TWO_WORDS(`LANE(two_words_ctc)),
    .CTC_SOURCE(`LANE(ctc_clk_src_sel)),
    .CTC_PATTERN(`LANE(ctc_pattern)),
    .CTC_PATTERN2(`LANE(ctc_2nd_pattern)),
    .CTC_PATTERN2_IS_K(`LANE(ctc_2nd_pattern_is_k)),
`endif
    .LOOPBACK(`LANE(loopback_mode))
  ) `LANE(bench) (
    .rstn(rstn),
    .train(train),
    .check(check),
    .search(search),
    .settled(settled[`LANE_INDEX]),
    .passed(passed[`LANE_INDEX]),
    .covered(covered[`LANE_INDEX]),
    .tx_clk(`LANE(tx_pcs_clkout_o)),
    .afull(`LANE(tx_fifo_afull_o)),
    .wren(`LANE(tx_fifo_wren_i)),
    .tx_data(`LANE(tx_data_i)),
    .fetch(`LANE(tx_fetch_o)),
    .ctrl(`LANE(tx_ctrl_i)),
    .txd(`LANE(txd_i)),
    .txc(`LANE(txc_i)),
    .rx_clk(`LANE(rx_clk_i)),
    .rden(`LANE(rx_fifo_rden_i)),
    .valid(`LANE(rx_valid_o)),
    .rx_data(`LANE(rx_data_o)),
    .rxd(`LANE(rxd_o)),
    .rxc(`LANE(rxc_o)),
    .dec_err(`LANE(rx_dec_err_o)),
    .invld_header(`LANE(rx_invld_header_o)),
    .line_out(dut.`LANE(phy).lane.model.pad_tx)
  );
  // The pads of the lane, which have no port in the fabric.
  always @(`LANE(bench).line_back) dut.`LANE(phy).lane.model.pad_rx = `LANE(bench).line_back;
  always @(report_lanes) `LANE(bench).report;
  always @(offset) if (TX_READ) `LANE(bench).far.tx_ppm = offset;
  initial #1 if (TX_READ) `LANE(bench).far.tx_ppm = offset;
  always @(`LANE(bench).rx_delay) dut.`LANE(phy).lane.model.rx_delay = `LANE(bench).rx_delay;
`ifdef LANE_WORD_ALIGN
  always @(posedge check) if (`LANE(word_align_link_o) !== 1'b1 && `LANE_RX_WIDTH % 10 == 0) begin
    $display("lane %0d: no word alignment", `LANE_INDEX);
    failed = 1'b1;
  end
`endif
`endif
