// Makes the data that a transmitter is fed with: PRBS-23 in every coding, with control characters
// and correction characters, or in frames of blocks. In training, only what a receiver needs to
// find its boundaries.
`timescale 1ps / 1fs

module bench_source #(
    parameter CODING = 0,           // 0 none, 1 8B/10B, 2 64B/66B, 3 64B/67B
    parameter RAW_BLOCKS = 0,
    parameter BITS = 10,            // of one word
    parameter TRAIN_SYMBOLS = 0,    // uncoded words carry the alignment symbol in training
    parameter [7:0] ALIGN = 8'hBC,
    parameter BONDING = 0,
    parameter [7:0] BOND = 8'h7C,
    parameter SPARES = 0,           // correction characters: 0 none, 1 single, 2 pairs
    parameter [7:0] SPARE = 8'h7C,
    parameter [8:0] SPARE2 = 9'h17C
) (
    input             clk,
    input             reset,
    input             train,
    input             afull,
    output reg        wren,
    output reg [79:0] data,
    input             fetch,
    output reg  [2:0] ctrl,
    output reg [63:0] txd,
    output reg  [7:0] txc
);
`include "xcvr_8b10b.vh"
  localparam FRAME = 256;           // characters
  localparam BLOCKS = CODING >= 2;

  reg [22:0] prbs = 23'h5A5A5A;
  integer    at = 0;                // character within the frame, or octet within the packet
  reg        pair = 1'b0;           // the second of a pair comes next
  reg  [9:0] minus;
  reg [79:0] word = 80'd0;
  integer    i;
  integer    packet = 0;

  function automatic [7:0] octet(input unused);
    integer b;
    for (b = 0; b < 8; b = b + 1) begin
      octet[b] = prbs[22] ^ prbs[17];
      prbs = {prbs[21:0], octet[b]};
    end
  endfunction

  // The next character, {k, octet}.
  function automatic [8:0] character(input unused);
    begin
      if (pair) begin
        character = SPARE2;
        pair = 1'b0;
      end else begin
        // One character may have two duties; then it appears once.
        if (train ? at % 8 == 0 : at == 0)
          character = {1'b1, ALIGN};
        else if (!train && SPARES != 0 && at == FRAME / 4)
          character = {1'b1, SPARE};
        else if (!train && BONDING && at == FRAME / 2 && !(SPARES != 0 && BOND == SPARE))
          character = {1'b1, BOND};
        else
          // In training an alternating pattern that holds no alignment symbol at any offset.
          character = train ? 9'h04A : {1'b0, octet(1'b0)};
        pair = SPARES == 2 && character == {1'b1, SPARE};
        at = (at + 1) % FRAME;
      end
    end
  endfunction

  // The next eight octets of a packet: start, data, terminate, three blocks of idles at least.
  task block;
    integer length;
    begin
      length = 64 + packet % 8;
      for (i = 0; i < 8; i = i + 1) begin
        txc[i] = 1'b1;
        txd[8*i +: 8] = 8'h07;
        if (!train) begin
          if (at == 0) begin
            txd[8*i +: 8] = 8'hFB;
          end else if (at > 0 && at <= length) begin
            txc[i] = 1'b0;
            txd[8*i +: 8] = octet(1'b0);
          end else if (at == length + 1) begin
            txd[8*i +: 8] = 8'hFD;
          end
          at = at + 1;
        end
      end
      if (at >= length + 26) begin
        // Packets start in octet 0 and in octet 4 by turns.
        at = packet % 2 == 0 ? -4 : 0;
        packet = packet + 1;
      end
    end
  endtask

  initial minus = encode_8b10b(1'b1, ALIGN, 1'b0);
  initial begin
    wren = 1'b0;
    data = 80'd0;
    txd = {8{8'h07}};
    txc = 8'hFF;
    ctrl = 3'b001;
  end

  always @(posedge clk) begin
    if (reset) begin
      wren <= 1'b0;
    end else if (BLOCKS) begin
      #1;   // after the edge that takes the former block
      if (fetch) begin
        if (CODING == 3 || RAW_BLOCKS) begin
          for (i = 0; i < 8; i = i + 1) txd[8*i +: 8] = octet(1'b0);
          ctrl = {1'b0, txd[0] ? 2'b10 : 2'b01};
        end else begin
          block;
        end
      end
    end else begin
      wren <= !afull;
      if (!afull) begin
        for (i = 0; i < BITS && CODING == 0; i = i + 1) begin
          word[i] = prbs[22] ^ prbs[17];
          prbs = {prbs[21:0], word[i]};
        end
        if (CODING == 0 && TRAIN_SYMBOLS && train) begin
          for (i = 0; i < BITS / 10; i = i + 1)
            word[10*i +: 10] = at % 2 == 0 && i == 0 ? minus : 10'b0101010101;
          at = at + 1;
        end
        for (i = 0; i < BITS / 10 && CODING == 1; i = i + 1)
          word[10*i +: 10] = {1'b0, character(1'b0)};
        data <= word;
      end
    end
  end
endmodule
