// One lane of the customized PHY: the device's lane primitive, its reset and ready sequence and the
// adaptation of its ports.
`include "define.vh"
`timescale 1ps / 1fs

`ifdef RZ7X60
  `define CUSTOMIZED_LANE RZ7X60_XCVR_LANE
`elsif RZ7X15
  `define CUSTOMIZED_LANE RZ7X15_XCVR_LANE
`else
  `define CUSTOMIZED_LANE RZ7X138_XCVR_LANE
`endif

// Parameters as at the primitive, of which each has its counterpart.
module customized_phy #(
    parameter TX_RATE = 1.25,
    parameter RX_RATE = 1.25,
    parameter TX_WIDTH = 10,
    parameter RX_WIDTH = 10,
    parameter TX_GEARBOX = 1,
    parameter RX_GEARBOX = 1,
    parameter TX_CODING = 0,
    parameter RX_CODING = 0,
    parameter RAW_BLOCKS = 0,
    parameter LOOPBACK = "off",
    parameter WORD_ALIGN = 0,
    parameter [8*5-1:0] WA_PATTERN = "k28.5",
    parameter [9:0] WA_MASK = 10'b1111111111,
    parameter BONDING = 0,
    parameter [7:0] BOND_PATTERN = 8'h7C,
    parameter BOND_MAX_SKEW = 8,
    parameter BOND_START = 16,
    parameter CTC = 0,
    parameter CTC_TWO_WORDS = 0,
    parameter CTC_SOURCE = "fabric_clk",
    parameter [7:0] CTC_PATTERN = 8'h7C,
    parameter [7:0] CTC_PATTERN2 = 8'h7C,
    parameter CTC_PATTERN2_IS_K = 0,
    parameter CTC_START = 16,
    parameter TX_BONDING = 0,
    parameter TX_START = 16
) (
    output        ready_o,
    output        pll_lock_o,
    output        rx_cdr_lock_o,
    output        signal_detect_o,
    output        refclk_o,
    input         pcs_tx_rst_i,
    input         pcs_rx_rst_i,
    input         pma_rstn_i,
    output        rx_valid_o,
    input         tx_clk_i,
    output        tx_pcs_clkout_o,
    input         rx_clk_i,
    output        rx_pcs_clkout_o,
    output        rx_her_hi_o,
    output [1:0]  rx_ctc_del_o,
    output [1:0]  rx_ctc_ins_o,
    output        rx_invld_header_o,
    output        rx_dscr_err_o,
    output        rx_dec_err_o,
    output        rx_blk_lock_o,
    output [63:0] rxd_o,
    output [7:0]  rxc_o,
    output        rx_fifo_empty_o,
    output        rx_fifo_aempty_o,
    output [4:0]  rx_fifo_rdusewd_o,
    input         rx_fifo_rden_i,
    output [87:0] rx_data_o,
    output        tx_invld_blk_o,
    input  [2:0]  tx_ctrl_i,
    output        tx_fetch_o,
    input  [63:0] txd_i,
    input  [7:0]  txc_i,
    output        tx_fifo_full_o,
    output        tx_fifo_afull_o,
    output [4:0]  tx_fifo_wrusewd_o,
    input         tx_fifo_wren_i,
    input  [79:0] tx_data_i,
    input         cc_clk_i,
    input         cb_start_i,
    output        word_align_link_o,
    output        k_lock_o,
    // between the lanes
    input         bond_clk,
    output        bond_ready,
    input         bond_go,
    output        ctc_high,
    output        ctc_low,
    input         ctc_high_in,
    input         ctc_low_in,
    output        tx_go,
    input         tx_go_in
);

  // Resets are asserted at once and released with their clock.
  reg [1:0] tx_reset = 2'b11;
  reg [1:0] rx_reset = 2'b11;
  always @(posedge tx_pcs_clkout_o or posedge pcs_tx_rst_i)
    if (pcs_tx_rst_i) tx_reset <= 2'b11;
    else              tx_reset <= {tx_reset[0], 1'b0};
  always @(posedge rx_pcs_clkout_o or posedge pcs_rx_rst_i)
    if (pcs_rx_rst_i) rx_reset <= 2'b11;
    else              rx_reset <= {rx_reset[0], 1'b0};

  // Ready: both ends have kept their locks for 16 cycles of the reference clock.
  wire       aligned;
  wire       block_lock;
  wire       receiving = rx_cdr_lock_o && (WORD_ALIGN == 0 || aligned)
                         && (RX_CODING < 2 || block_lock);
  wire       locked = pll_lock_o && receiving && !tx_reset[1] && !rx_reset[1];
  reg  [1:0] locked_sync = 2'b00;
  reg  [4:0] held = 5'd0;
  always @(posedge refclk_o or negedge pma_rstn_i)
    if (!pma_rstn_i) begin
      locked_sync <= 2'b00;
      held <= 5'd0;
    end else begin
      locked_sync <= {locked_sync[0], locked};
      if (!locked_sync[1]) held <= 5'd0;
      else if (!held[4])   held <= held + 5'd1;
    end
  assign ready_o = held[4];
  assign word_align_link_o = aligned;
  assign rx_blk_lock_o = block_lock;

  `CUSTOMIZED_LANE #(
    .TX_RATE(TX_RATE),
    .RX_RATE(RX_RATE),
    .TX_WIDTH(TX_WIDTH),
    .RX_WIDTH(RX_WIDTH),
    .TX_GEARBOX(TX_GEARBOX),
    .RX_GEARBOX(RX_GEARBOX),
    .TX_CODING(TX_CODING),
    .RX_CODING(RX_CODING),
    .RAW_BLOCKS(RAW_BLOCKS),
    .LOOPBACK(LOOPBACK),
    .WORD_ALIGN(WORD_ALIGN),
    .WA_PATTERN(WA_PATTERN),
    .WA_MASK(WA_MASK),
    .BONDING(BONDING),
    .BOND_PATTERN(BOND_PATTERN),
    .BOND_MAX_SKEW(BOND_MAX_SKEW),
    .BOND_START(BOND_START),
    .CTC(CTC),
    .CTC_TWO_WORDS(CTC_TWO_WORDS),
    .CTC_SOURCE(CTC_SOURCE),
    .CTC_PATTERN(CTC_PATTERN),
    .CTC_PATTERN2(CTC_PATTERN2),
    .CTC_PATTERN2_IS_K(CTC_PATTERN2_IS_K),
    .CTC_START(CTC_START),
    .TX_BONDING(TX_BONDING),
    .TX_START(TX_START)
  ) lane (
    .pma_rstn(pma_rstn_i),
    .pcs_tx_rst(tx_reset[1]),
    .pcs_rx_rst(rx_reset[1]),
    .refclk(refclk_o),
    .pll_lock(pll_lock_o),
    .cdr_lock(rx_cdr_lock_o),
    .signal_detect(signal_detect_o),
    .tx_pcs_clk(tx_pcs_clkout_o),
    .rx_pcs_clk(rx_pcs_clkout_o),
    .tx_clk(tx_clk_i),
    .tx_wren(tx_fifo_wren_i),
    .tx_data(tx_data_i),
    .tx_full(tx_fifo_full_o),
    .tx_afull(tx_fifo_afull_o),
    .tx_used(tx_fifo_wrusewd_o),
`ifndef RZ7X138
    .tx_ctrl(tx_ctrl_i),
    .txd(txd_i),
    .txc(txc_i),
    .tx_fetch(tx_fetch_o),
    .tx_invld_blk(tx_invld_blk_o),
    .rxd(rxd_o),
    .rxc(rxc_o),
    .rx_her_hi(rx_her_hi_o),
    .rx_ctc_del(rx_ctc_del_o),
    .rx_ctc_ins(rx_ctc_ins_o),
    .rx_invld_header(rx_invld_header_o),
    .rx_dscr_err(rx_dscr_err_o),
    .rx_dec_err(rx_dec_err_o),
    .rx_blk_lock(block_lock),
`endif
    .rx_clk(rx_clk_i),
    .rx_rden(rx_fifo_rden_i),
    .rx_valid(rx_valid_o),
    .rx_data(rx_data_o),
    .rx_empty(rx_fifo_empty_o),
    .rx_aempty(rx_fifo_aempty_o),
    .rx_used(rx_fifo_rdusewd_o),
    .cc_clk(cc_clk_i),
    .bond_start(cb_start_i),
    .bond_clk(bond_clk),
    .bond_go(bond_go),
    .bond_ready(bond_ready),
    .ctc_high_in(ctc_high_in),
    .ctc_low_in(ctc_low_in),
    .ctc_high(ctc_high),
    .ctc_low(ctc_low),
    .tx_go_in(tx_go_in),
    .tx_go(tx_go),
    .word_aligned(aligned),
    .k_lock(k_lock_o)
  );

`ifdef RZ7X138
  // These devices have the block ports but no 64B coding behind them.
  assign block_lock = 1'b0;
  assign rxd_o = 64'd0;
  assign rxc_o = 8'd0;
  assign rx_her_hi_o = 1'b0;
  assign rx_ctc_del_o = 2'b00;
  assign rx_ctc_ins_o = 2'b00;
  assign rx_invld_header_o = 1'b0;
  assign rx_dscr_err_o = 1'b0;
  assign rx_dec_err_o = 1'b0;
  assign tx_fetch_o = 1'b0;
  assign tx_invld_blk_o = 1'b0;
`endif

endmodule

`undef CUSTOMIZED_LANE
