// Self-checking bench of one instance: prints PASS, or FAIL and what went wrong.
`include "define.vh"
`timescale 1ps / 1fs

// How far apart the clocks of a clock correction are.
`ifndef BENCH_OFFSET_PPM
  `define BENCH_OFFSET_PPM 3000.0
`endif

module bench;
`include "param.v"

  reg        rstn = 1'b0;
  reg        train = 1'b1;
  reg        search = 1'b0;
  reg        check = 1'b0;
  reg        bond_start = 1'b0;
  reg        corrected_clk = 1'b0;
  reg        failed = 1'b0;
  real       offset = 0.0;          // of the corrected words' clock, in ppm
  event      report_lanes;
  wire [7:0] used;
  wire [7:0] ready;
  wire [7:0] valid;
  wire [7:0] passed;
  wire [7:0] covered;
  wire [7:0] settled;
  wire [7:0] rx_clock;
  wire [7:0] tx_clock;
  wire [87:0] rx_word [0:7];

`define CUSTOMIZED_PASS_WIRES
`include "customized_lanes.vh"
`undef CUSTOMIZED_PASS_WIRES

`ifdef DRP
  wire        drp_clk_o;
  reg  [23:0] drp_addr_i = 24'd0;
  reg         drp_wren_i = 1'b0;
  reg  [31:0] drp_wrdata_i = 32'd0;
  reg   [7:0] drp_strb_i = 8'd0;
  reg         drp_rden_i = 1'b0;
  wire        drp_ready_o;
  wire        drp_rdvld_o;
  wire [31:0] drp_rddata_o;
  wire        drp_resp_o;
`endif

`define BENCH_SEPARATOR
`define CUSTOMIZED_PASS_CONNECT
  `MODULE_NAME dut (
`include "customized_lanes.vh"
`ifdef DRP
`BENCH_SEPARATOR .drp_clk_o(drp_clk_o)
, .drp_addr_i(drp_addr_i)
, .drp_wren_i(drp_wren_i)
, .drp_wrdata_i(drp_wrdata_i)
, .drp_strb_i(drp_strb_i)
, .drp_rden_i(drp_rden_i)
, .drp_ready_o(drp_ready_o)
, .drp_rdvld_o(drp_rdvld_o)
, .drp_rddata_o(drp_rddata_o)
, .drp_resp_o(drp_resp_o)
`endif
  );
`undef CUSTOMIZED_PASS_CONNECT
`undef BENCH_SEPARATOR

`ifndef BENCH_PLAN
  localparam BONDED = 0;
  localparam MASTER = 0;
  localparam CORRECTED_READ = 0;
  localparam TX_READ = 0;
  localparam real WORD_TIME = 1000.0;
  localparam real OFFSET_PPM = 0.0;
`endif
`ifndef BENCH_WORDS
  `define BENCH_WORDS 1500
`endif
  // Until the clocks have drifted by 12 characters, on the way back by twice as many.
  localparam CORRECTED_WORDS = OFFSET_PPM == 0.0 ? 0 : $rtoi(WORD_DRIFT / (OFFSET_PPM * 1.0e-6));
  localparam CHECKED_WORDS = `BENCH_WORDS;

  // The clock of the corrected words: the receiver's nominal one, a little fast, later a little
  // slow, so that characters are added and dropped.
  always #(WORD_TIME / 2 * (1.0 - offset * 1.0e-6)) corrected_clk = !corrected_clk;

  // ---- bonded lanes give the same word at the same time
  integer i;
  integer unequal = 0;
  reg     compare = 1'b0;
  wire    compare_clk = CORRECTED_READ ? corrected_clk : TX_READ ? tx_clock[MASTER]
                                                                 : rx_clock[MASTER];
  always @(posedge compare_clk)
    if (BONDED && compare)
      for (i = 0; i < 8; i = i + 1)
        if (used[i] && (valid[i] !== valid[MASTER]
                        || valid[MASTER] === 1'b1 && rx_word[i] !== rx_word[MASTER]))
          unequal = unequal + 1;

  task fail(input [8*40-1:0] why);
    begin
      $display("FAIL: %0s", why);
      $finish;
    end
  endtask

  task words(input integer n);
    #(n * WORD_TIME);
  endtask

  integer tries;
  initial begin
`ifdef DUMP
    $dumpfile("bench.vcd");
    $dumpvars(2, bench);
`endif
    if (used == 8'd0) begin
      $display("PASS (no lanes)");
      $finish;
    end
    offset = OFFSET_PPM;
    #100000;
    if (!(&covered)) fail("the configuration cannot receive what it sends");
    rstn = 1'b1;
    for (tries = 0; tries < 200 && !(&ready); tries = tries + 1) words(50);
    if (!(&ready)) begin
      $display("ready: %b of %b", ready & used, used);
      fail("a lane is not ready");
    end
    train = 1'b0;
    words(400);
    search = 1'b1;
    for (tries = 0; tries < 200 && !(&settled); tries = tries + 1) words(100);
    words(100);
    // Bonding starts at whichever pattern comes first; started again when two were mixed up.
    for (tries = 0; tries < 6 && BONDED && (tries == 0 || unequal != 0); tries = tries + 1) begin
      compare = 1'b0;
      bond_start = 1'b0;
      words(50);
      bond_start = 1'b1;
      words(600);
      unequal = 0;
      compare = 1'b1;
      words(300);
    end
    words(100);
    unequal = 0;
    check = 1'b1;
    words(CHECKED_WORDS);
    if (OFFSET_PPM != 0.0) begin
      words(CORRECTED_WORDS);
      offset = -OFFSET_PPM;
      words(2 * CORRECTED_WORDS);
    end
    -> report_lanes;
    #1;
    if (BONDED) $display("bonding: %0d words differ", unequal);
    if (BONDED && unequal != 0) fail("bonded lanes are out of step");
    if (!(&passed)) fail("a lane has wrong data");
    if (failed) fail("see above");
`ifdef DRP
    check_drp;
`endif
    $display("PASS");
    $finish;
  end

`ifdef DRP
  // A word written through the reconfiguration port reads back; an address beyond it is an error.
  task check_drp;
    begin
      @(posedge drp_clk_o) #1;
      drp_addr_i = 24'h000040;
      drp_wrdata_i = 32'h12345678;
      drp_strb_i = 8'h0F;
      drp_wren_i = 1'b1;
      @(posedge drp_clk_o) #1;
      drp_wren_i = 1'b0;
      drp_rden_i = 1'b1;
      @(posedge drp_clk_o) #1;
      drp_rden_i = 1'b0;
      if (drp_ready_o !== 1'b1 || drp_rdvld_o !== 1'b1 || drp_resp_o !== 1'b0
          || drp_rddata_o !== 32'h12345678)
        fail("the reconfiguration port");
      drp_addr_i = 24'hFFFFFC;
      drp_rden_i = 1'b1;
      @(posedge drp_clk_o) #1;
      drp_rden_i = 1'b0;
      if (drp_resp_o !== 1'b1) fail("the reconfiguration port's range");
    end
  endtask
`endif
endmodule
