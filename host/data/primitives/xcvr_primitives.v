// The transceiver primitives of the three device classes: black boxes for synthesis (SYNTHESIS,
// which Yosys defines by itself), behavioural models for simulation.
`timescale 1ps / 1fs

`define XCVR_BLOCKS
`ifdef SYNTHESIS
(* blackbox *)
`endif
module RZ7X60_XCVR_LANE
`include "xcvr_lane_io.vh"
`ifndef SYNTHESIS
`include "xcvr_lane_body.vh"
`endif
endmodule

`ifdef SYNTHESIS
(* blackbox *)
`endif
module RZ7X15_XCVR_LANE
`include "xcvr_lane_io.vh"
`ifndef SYNTHESIS
`include "xcvr_lane_body.vh"
`endif
endmodule
`undef XCVR_BLOCKS

// No 64B coding, hence no block ports.
`ifdef SYNTHESIS
(* blackbox *)
`endif
module RZ7X138_XCVR_LANE
`include "xcvr_lane_io.vh"
`ifndef SYNTHESIS
`include "xcvr_lane_body.vh"
`endif
endmodule

// The reconfiguration port, one for all lanes of an instance.
`ifdef SYNTHESIS
(* blackbox *)
`endif
module RZ7X_XCVR_DRP (
    output        drp_clk,
    input  [23:0] drp_addr,
    input         drp_wren,
    input  [31:0] drp_wrdata,
    input  [7:0]  drp_strb,
    input         drp_rden,
    output        drp_ready,
    output        drp_rdvld,
    output [31:0] drp_rddata,
    output        drp_resp
);
`ifndef SYNTHESIS
  // A register file of 256 words at byte addresses; beyond it the answer is an error.
  reg        clk = 1'b0;
  reg        rdvld = 1'b0;
  reg        resp = 1'b0;
  reg [31:0] rddata = 32'd0;
  reg [31:0] words [0:255];
  integer    i;
  initial for (i = 0; i < 256; i = i + 1) words[i] = 32'd0;
  always #5000 clk = ~clk;
  assign drp_clk = clk;
  assign drp_ready = 1'b1;
  assign drp_rdvld = rdvld;
  assign drp_rddata = rddata;
  assign drp_resp = resp;
  wire inside_range = drp_addr < 24'd1024;
  always @(posedge clk) begin
    rdvld <= drp_rden;
    resp <= (drp_rden || drp_wren) && !inside_range;
    if (drp_rden) rddata <= inside_range ? words[drp_addr[9:2]] : 32'd0;
    if (drp_wren && inside_range)
      for (i = 0; i < 4; i = i + 1)
        if (drp_strb[i]) words[drp_addr[9:2]][8*i +: 8] <= drp_wrdata[8*i +: 8];
  end
`endif
endmodule
