// The logic of one lane of the wrapper, and its part of what the lanes tell each other.
`ifdef LANE_ABSENT
  assign bond_ready[`LANE_INDEX] = 1'b1;
  assign ctc_high[`LANE_INDEX] = 1'b0;
  assign ctc_low[`LANE_INDEX] = 1'b0;
  assign tx_go[`LANE_INDEX] = 1'b0;
  assign rx_clock[`LANE_INDEX] = 1'b0;
`else
  assign rx_clock[`LANE_INDEX] = `LANE(rx_pcs_clkout_o);

  customized_phy #(
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
    .WORD_ALIGN(`LANE(word_align)),
    .WA_PATTERN(`LANE(word_align_pattern)),
    .WA_MASK(`LANE(word_align_pattern_mask)),
`endif
`ifdef LANE_CHANNEL_BONDING
    .BONDING(`LANE(channel_bonding)),
    .BOND_PATTERN(`LANE(channel_bonding_align_pattern)),
    .BOND_MAX_SKEW(`LANE(channel_bonding_max_skew)),
    .BOND_START(`LANE(rx_bonding_rd_start_depth)),
`endif
`ifdef LANE_CTC
    .CTC(`LANE(ctc)),
    .CTC_TWO_WORDS(`LANE(two_words_ctc)),
    .CTC_SOURCE(`LANE(ctc_clk_src_sel)),
    .CTC_PATTERN(`LANE(ctc_pattern)),
    .CTC_PATTERN2(`LANE(ctc_2nd_pattern)),
    .CTC_PATTERN2_IS_K(`LANE(ctc_2nd_pattern_is_k)),
    .CTC_START(`LANE(ctc_rd_start_depth)),
`endif
`ifdef CUSTOMIZED_TX_BONDING
    .TX_BONDING(1),
    .TX_START(`LANE(tx_if_rd_start_depth)),
`endif
    .LOOPBACK(`LANE(loopback_mode))
  ) `LANE(phy) (
    .ready_o(`LANE(ready_o)),
    .pll_lock_o(`LANE(pll_lock_o)),
    .rx_cdr_lock_o(`LANE(rx_cdr_lock_o)),
    .signal_detect_o(`LANE(signal_detect_o)),
    .refclk_o(`LANE(refclk_o)),
    .pcs_tx_rst_i(`LANE(pcs_tx_rst_i)),
    .pcs_rx_rst_i(`LANE(pcs_rx_rst_i)),
    .pma_rstn_i(`LANE(pma_rstn_i)),
    .rx_valid_o(`LANE(rx_valid_o)),
    .tx_clk_i(`LANE(tx_clk_i)),
    .tx_pcs_clkout_o(`LANE(tx_pcs_clkout_o)),
    .rx_clk_i(`LANE(rx_clk_i)),
    .rx_pcs_clkout_o(`LANE(rx_pcs_clkout_o)),
`ifdef LANE_RX_BLOCK_PORTS
    .rx_her_hi_o(`LANE(rx_her_hi_o)),
    .rx_ctc_del_o(`LANE(rx_ctc_del_o)),
    .rx_ctc_ins_o(`LANE(rx_ctc_ins_o)),
    .rx_invld_header_o(`LANE(rx_invld_header_o)),
    .rx_dscr_err_o(`LANE(rx_dscr_err_o)),
    .rx_dec_err_o(`LANE(rx_dec_err_o)),
    .rx_blk_lock_o(`LANE(rx_blk_lock_o)),
    .rxd_o(`LANE(rxd_o)),
    .rxc_o(`LANE(rxc_o)),
`else
    .rx_her_hi_o(),
    .rx_ctc_del_o(),
    .rx_ctc_ins_o(),
    .rx_invld_header_o(),
    .rx_dscr_err_o(),
    .rx_dec_err_o(),
    .rx_blk_lock_o(),
    .rxd_o(),
    .rxc_o(),
`endif
`ifdef LANE_RX_FIFO_PORTS
    .rx_fifo_empty_o(`LANE(rx_fifo_empty_o)),
    .rx_fifo_aempty_o(`LANE(rx_fifo_aempty_o)),
    .rx_fifo_rdusewd_o(`LANE(rx_fifo_rdusewd_o)),
    .rx_fifo_rden_i(`LANE(rx_fifo_rden_i)),
    .rx_data_o(`LANE(rx_data_o)),
`else
    .rx_fifo_empty_o(),
    .rx_fifo_aempty_o(),
    .rx_fifo_rdusewd_o(),
    .rx_fifo_rden_i(1'd0),
    .rx_data_o(),
`endif
`ifdef LANE_TX_BLOCK_PORTS
    .tx_invld_blk_o(`LANE(tx_invld_blk_o)),
    .tx_ctrl_i(`LANE(tx_ctrl_i)),
    .tx_fetch_o(`LANE(tx_fetch_o)),
    .txd_i(`LANE(txd_i)),
    .txc_i(`LANE(txc_i)),
`else
    .tx_invld_blk_o(),
    .tx_ctrl_i(3'd0),
    .tx_fetch_o(),
    .txd_i(64'd0),
    .txc_i(8'd0),
`endif
`ifdef LANE_TX_FIFO_PORTS
    .tx_fifo_full_o(`LANE(tx_fifo_full_o)),
    .tx_fifo_afull_o(`LANE(tx_fifo_afull_o)),
    .tx_fifo_wrusewd_o(`LANE(tx_fifo_wrusewd_o)),
    .tx_fifo_wren_i(`LANE(tx_fifo_wren_i)),
    .tx_data_i(`LANE(tx_data_i)),
`else
    .tx_fifo_full_o(),
    .tx_fifo_afull_o(),
    .tx_fifo_wrusewd_o(),
    .tx_fifo_wren_i(1'd0),
    .tx_data_i(80'd0),
`endif
`ifdef LANE_CTC
    .cc_clk_i(`LANE(cc_clk_i)),
`else
    .cc_clk_i(1'b0),
`endif
`ifdef LANE_CHANNEL_BONDING
    .cb_start_i(`LANE(cb_start_i)),
    .bond_clk(rx_clock[`LANE(channel_bounding_master_sel)]),
`else
    .cb_start_i(1'b0),
    .bond_clk(`LANE(rx_pcs_clkout_o)),
`endif
`ifdef LANE_WORD_ALIGN
    .word_align_link_o(`LANE(word_align_link_o)),
    .k_lock_o(`LANE(k_lock_o)),
`else
    .word_align_link_o(),
    .k_lock_o(),
`endif
    .bond_ready(bond_ready[`LANE_INDEX]),
    .bond_go(&bond_ready),
    .ctc_high(ctc_high[`LANE_INDEX]),
    .ctc_low(ctc_low[`LANE_INDEX]),
`ifdef LANE_CHANNEL_BONDING
    // Bonded lanes add and drop characters when the master does.
    .ctc_high_in(ctc_high[`LANE_CTC_MASTER]),
    .ctc_low_in(ctc_low[`LANE_CTC_MASTER]),
`else
    .ctc_high_in(ctc_high[`LANE_INDEX]),
    .ctc_low_in(ctc_low[`LANE_INDEX]),
`endif
    .tx_go(tx_go[`LANE_INDEX]),
`ifdef CUSTOMIZED_TX_BONDING
    .tx_go_in(tx_go[`LANE(tx_if_mst_sel)])
`else
    .tx_go_in(tx_go[`LANE_INDEX])
`endif
  );
`endif
