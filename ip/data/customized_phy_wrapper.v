// The top of one instance of the customized transceiver PHY. define.vh and param.v, written from
// the instance's configuration, give it its name, its lanes, its options and their values; it has
// the ports of just those lanes and options.
`include "define.vh"
`timescale 1ps / 1fs

// Bonded transmitters share one define under the name of their master; without a master the name
// has an empty prefix.
`ifdef Q0_LN0_TX_IF_BONDING
  `define CUSTOMIZED_TX_BONDING
`elsif Q0_LN1_TX_IF_BONDING
  `define CUSTOMIZED_TX_BONDING
`elsif Q0_LN2_TX_IF_BONDING
  `define CUSTOMIZED_TX_BONDING
`elsif Q0_LN3_TX_IF_BONDING
  `define CUSTOMIZED_TX_BONDING
`elsif Q1_LN0_TX_IF_BONDING
  `define CUSTOMIZED_TX_BONDING
`elsif Q1_LN1_TX_IF_BONDING
  `define CUSTOMIZED_TX_BONDING
`elsif Q1_LN2_TX_IF_BONDING
  `define CUSTOMIZED_TX_BONDING
`elsif Q1_LN3_TX_IF_BONDING
  `define CUSTOMIZED_TX_BONDING
`elsif _TX_IF_BONDING
  `define CUSTOMIZED_TX_BONDING
`endif

`define PORT_SEPARATOR
`define CUSTOMIZED_PASS_PORTS
module `MODULE_NAME (
`include "customized_lanes.vh"
`ifdef DRP
`PORT_SEPARATOR output wire drp_clk_o
, input  wire [23:0] drp_addr_i
, input  wire drp_wren_i
, input  wire [31:0] drp_wrdata_i
, input  wire [7:0] drp_strb_i
, input  wire drp_rden_i
, output wire drp_ready_o
, output wire drp_rdvld_o
, output wire [31:0] drp_rddata_o
, output wire drp_resp_o
`endif
);
`undef PORT_SEPARATOR
`undef CUSTOMIZED_PASS_PORTS

`include "param.v"

  // What the lanes tell each other, by lane number.
  wire [7:0] bond_ready;
  wire [7:0] ctc_high;
  wire [7:0] ctc_low;
  wire [7:0] tx_go;
  wire [7:0] rx_clock;

`define CUSTOMIZED_PASS_LOGIC
`include "customized_lanes.vh"
`undef CUSTOMIZED_PASS_LOGIC

`ifdef DRP
  RZ7X_XCVR_DRP drp (
    .drp_clk(drp_clk_o),
    .drp_addr(drp_addr_i),
    .drp_wren(drp_wren_i),
    .drp_wrdata(drp_wrdata_i),
    .drp_strb(drp_strb_i),
    .drp_rden(drp_rden_i),
    .drp_ready(drp_ready_o),
    .drp_rdvld(drp_rdvld_o),
    .drp_rddata(drp_rddata_o),
    .drp_resp(drp_resp_o)
  );
`endif

endmodule

`undef CUSTOMIZED_TX_BONDING
