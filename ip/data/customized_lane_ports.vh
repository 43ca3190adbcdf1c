// The ports of one lane, in the order in which the symbol of the module shows them. A port is
// preceded by its comma, because what follows the last one of a lane differs.
`PORT_SEPARATOR output wire `LANE(ready_o)
`undef PORT_SEPARATOR
`define PORT_SEPARATOR ,
, output wire `LANE(pll_lock_o)
, output wire `LANE(rx_cdr_lock_o)
, output wire `LANE(signal_detect_o)
, output wire `LANE(refclk_o)
, input  wire `LANE(pcs_tx_rst_i)
, input  wire `LANE(pcs_rx_rst_i)
, input  wire `LANE(pma_rstn_i)
, output wire `LANE(rx_valid_o)
, input  wire `LANE(tx_clk_i)
, output wire `LANE(tx_pcs_clkout_o)
, input  wire `LANE(rx_clk_i)
, output wire `LANE(rx_pcs_clkout_o)
`ifdef LANE_RX_BLOCK_PORTS
, output wire `LANE(rx_her_hi_o)
, output wire [1:0] `LANE(rx_ctc_del_o)
, output wire [1:0] `LANE(rx_ctc_ins_o)
, output wire `LANE(rx_invld_header_o)
, output wire `LANE(rx_dscr_err_o)
, output wire `LANE(rx_dec_err_o)
, output wire `LANE(rx_blk_lock_o)
, output wire [63:0] `LANE(rxd_o)
, output wire [7:0] `LANE(rxc_o)
`endif
`ifdef LANE_RX_FIFO_PORTS
, output wire `LANE(rx_fifo_empty_o)
, output wire `LANE(rx_fifo_aempty_o)
, output wire [4:0] `LANE(rx_fifo_rdusewd_o)
, input  wire `LANE(rx_fifo_rden_i)
, output wire [87:0] `LANE(rx_data_o)
`endif
`ifdef LANE_TX_BLOCK_PORTS
, output wire `LANE(tx_invld_blk_o)
, input  wire [2:0] `LANE(tx_ctrl_i)
, output wire `LANE(tx_fetch_o)
, input  wire [63:0] `LANE(txd_i)
, input  wire [7:0] `LANE(txc_i)
`endif
`ifdef LANE_TX_FIFO_PORTS
, output wire `LANE(tx_fifo_full_o)
, output wire `LANE(tx_fifo_afull_o)
, output wire [4:0] `LANE(tx_fifo_wrusewd_o)
, input  wire `LANE(tx_fifo_wren_i)
, input  wire [79:0] `LANE(tx_data_i)
`endif
`ifdef LANE_CTC
, input  wire `LANE(cc_clk_i)
`endif
`ifdef LANE_CHANNEL_BONDING
, input  wire `LANE(cb_start_i)
`endif
`ifdef LANE_WORD_ALIGN
, output wire `LANE(word_align_link_o)
, output wire `LANE(k_lock_o)
`endif
