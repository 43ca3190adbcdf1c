// Checks what a receiver gives against what bench_source makes. The PRBS checker follows the data
// itself: every bit must be the sum of two earlier ones, whatever the first were.
`timescale 1ps / 1fs

module bench_sink #(
    parameter CODING = 0,
    parameter RAW_BLOCKS = 0,
    parameter BITS = 10,
    parameter [7:0] ALIGN = 8'hBC,
    parameter BONDING = 0,
    parameter [7:0] BOND = 8'h7C,
    parameter SPARES = 0,
    parameter [7:0] SPARE = 8'h7C,
    parameter [8:0] SPARE2 = 9'h17C
) (
    input        clk,
    input        check,          // counters are kept at zero without it
    input        valid,
    input [87:0] data,
    input [63:0] rxd,
    input  [7:0] rxc,
    input        dec_err,
    input        invld_header
);
  localparam BLOCKS = CODING >= 2;
  integer    checked = 0;        // bits compared
  integer    errors = 0;
  integer    controls = 0;       // control characters, or starts of packets
  integer    spares = 0;         // correction characters, pairs or blocks of idles
  integer    added = 0;          // frames with more than one of them, and with none
  integer    dropped = 0;
  integer    in_frame = 0;
  integer    frames = 0;
  reg [22:0] history = 23'd0;
  integer    known = 0;
  reg        pair = 1'b0;
  reg        in_packet = 1'b0;
  reg        synced = 1'b0;      // a character stream is followed from an alignment character on
  integer    i;
  integer    b;

  task check_bit(input value);
    begin
      if (known < 23) begin
        known = known + 1;
      end else begin
        checked = checked + 1;
        if (value !== (history[22] ^ history[17]) || history == 23'd0) errors = errors + 1;
      end
      history = {history[21:0], value};
    end
  endtask

  task check_octet(input [7:0] value);
    for (b = 0; b < 8; b = b + 1) check_bit(value[b]);
  endtask

  // {code error, disparity error, k, octet}
  task check_character(input [10:0] c);
    begin
      if (c[8:0] === {1'b1, ALIGN}) synced = 1'b1;
      if (c[10] !== 1'b0 || c[9] !== 1'b0) errors = errors + 1;
      if (!synced) begin
        known = 0;
      end else if (pair) begin
        if (c[8:0] !== SPARE2) errors = errors + 1;
        pair = 1'b0;
      end else if (c[8]) begin
        controls = controls + 1;
        if (c[7:0] === ALIGN) begin
          if (frames > 0 && in_frame > 1) added = added + 1;
          if (frames > 0 && in_frame == 0) dropped = dropped + 1;
          frames = frames + 1;
          in_frame = 0;
        end
        if (SPARES != 0 && c[7:0] === SPARE) begin
          spares = spares + 1;
          in_frame = in_frame + 1;
          pair = SPARES == 2;
        end else if (!(c[7:0] === ALIGN || BONDING && c[7:0] === BOND)) begin
          errors = errors + 1;
        end
      end else begin
        check_octet(c[7:0]);
      end
    end
  endtask

  task check_block;
    begin
      if (dec_err !== 1'b0 || invld_header !== 1'b0) errors = errors + 1;
      if (CODING == 3 || RAW_BLOCKS) begin
        // The header follows the payload's first bit.
        if (rxc[1:0] !== (rxd[0] ? 2'b10 : 2'b01)) errors = errors + 1;
        for (i = 0; i < 8; i = i + 1) check_octet(rxd[8*i +: 8]);
      end else begin
        if (rxc === 8'hFF && rxd === {8{8'h07}}) spares = spares + 1;
        for (i = 0; i < 8; i = i + 1) begin
          if (!rxc[i]) begin
            if (in_packet) check_octet(rxd[8*i +: 8]);
          end else if (rxd[8*i +: 8] === 8'hFB) begin
            in_packet = 1'b1;
            controls = controls + 1;
          end else if (rxd[8*i +: 8] === 8'hFD) begin
            in_packet = 1'b0;
          end else if (rxd[8*i +: 8] !== 8'h07) begin
            errors = errors + 1;
          end
        end
      end
    end
  endtask

  always @(posedge clk)
    if (!check) begin
      checked = 0;
      errors = 0;
      controls = 0;
      spares = 0;
      added = 0;
      dropped = 0;
      in_frame = 0;
      frames = 0;
      known = 0;
      pair = 1'b0;
      in_packet = 1'b0;
      synced = 1'b0;
    end else if (valid === 1'b1) begin
      if (BLOCKS)           check_block;
      else if (CODING == 1) for (i = 0; i < BITS / 10; i = i + 1) check_character(data[11*i +: 11]);
      else                  for (i = 0; i < BITS; i = i + 1) check_bit(data[i]);
    end
endmodule
