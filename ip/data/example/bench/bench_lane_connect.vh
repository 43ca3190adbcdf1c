// Connects one lane of the instance to the bench's wires.
`BENCH_SEPARATOR .`LANE(ready_o)(`LANE(ready_o))
`undef BENCH_SEPARATOR
`define BENCH_SEPARATOR ,
, .`LANE(pll_lock_o)(`LANE(pll_lock_o))
, .`LANE(rx_cdr_lock_o)(`LANE(rx_cdr_lock_o))
, .`LANE(signal_detect_o)(`LANE(signal_detect_o))
, .`LANE(refclk_o)(`LANE(refclk_o))
, .`LANE(pcs_tx_rst_i)(`LANE(pcs_tx_rst_i))
, .`LANE(pcs_rx_rst_i)(`LANE(pcs_rx_rst_i))
, .`LANE(pma_rstn_i)(`LANE(pma_rstn_i))
, .`LANE(rx_valid_o)(`LANE(rx_valid_o))
, .`LANE(tx_clk_i)(`LANE(tx_clk_i))
, .`LANE(tx_pcs_clkout_o)(`LANE(tx_pcs_clkout_o))
, .`LANE(rx_clk_i)(`LANE(rx_clk_i))
, .`LANE(rx_pcs_clkout_o)(`LANE(rx_pcs_clkout_o))
`ifdef LANE_RX_BLOCK_PORTS
, .`LANE(rx_her_hi_o)(`LANE(rx_her_hi_o))
, .`LANE(rx_ctc_del_o)(`LANE(rx_ctc_del_o))
, .`LANE(rx_ctc_ins_o)(`LANE(rx_ctc_ins_o))
, .`LANE(rx_invld_header_o)(`LANE(rx_invld_header_o))
, .`LANE(rx_dscr_err_o)(`LANE(rx_dscr_err_o))
, .`LANE(rx_dec_err_o)(`LANE(rx_dec_err_o))
, .`LANE(rx_blk_lock_o)(`LANE(rx_blk_lock_o))
, .`LANE(rxd_o)(`LANE(rxd_o))
, .`LANE(rxc_o)(`LANE(rxc_o))
`endif
`ifdef LANE_RX_FIFO_PORTS
, .`LANE(rx_fifo_empty_o)(`LANE(rx_fifo_empty_o))
, .`LANE(rx_fifo_aempty_o)(`LANE(rx_fifo_aempty_o))
, .`LANE(rx_fifo_rdusewd_o)(`LANE(rx_fifo_rdusewd_o))
, .`LANE(rx_fifo_rden_i)(`LANE(rx_fifo_rden_i))
, .`LANE(rx_data_o)(`LANE(rx_data_o))
`endif
`ifdef LANE_TX_BLOCK_PORTS
, .`LANE(tx_invld_blk_o)(`LANE(tx_invld_blk_o))
, .`LANE(tx_ctrl_i)(`LANE(tx_ctrl_i))
, .`LANE(tx_fetch_o)(`LANE(tx_fetch_o))
, .`LANE(txd_i)(`LANE(txd_i))
, .`LANE(txc_i)(`LANE(txc_i))
`endif
`ifdef LANE_TX_FIFO_PORTS
, .`LANE(tx_fifo_full_o)(`LANE(tx_fifo_full_o))
, .`LANE(tx_fifo_afull_o)(`LANE(tx_fifo_afull_o))
, .`LANE(tx_fifo_wrusewd_o)(`LANE(tx_fifo_wrusewd_o))
, .`LANE(tx_fifo_wren_i)(`LANE(tx_fifo_wren_i))
, .`LANE(tx_data_i)(`LANE(tx_data_i))
`endif
`ifdef LANE_CTC
, .`LANE(cc_clk_i)(`LANE(cc_clk_i))
`endif
`ifdef LANE_CHANNEL_BONDING
, .`LANE(cb_start_i)(`LANE(cb_start_i))
`endif
`ifdef LANE_WORD_ALIGN
, .`LANE(word_align_link_o)(`LANE(word_align_link_o))
, .`LANE(k_lock_o)(`LANE(k_lock_o))
`endif
