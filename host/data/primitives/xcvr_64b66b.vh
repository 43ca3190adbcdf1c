// 64B/66B coding: eight octets with their control flags to and from a payload with its sync
// header. The header's bit 0 is sent first, then the payload from bit 0; a header of 2'b10 (0 then
// 1 on the line) marks data, 2'b01 control. Ordered sets have no coding here: the model's blocks
// are data, control, start in octet 0 or 4, and terminate in any octet.

localparam [7:0] XGMII_IDLE = 8'h07;
localparam [7:0] XGMII_START = 8'hFB;
localparam [7:0] XGMII_TERMINATE = 8'hFD;
localparam [7:0] XGMII_ERROR = 8'hFE;
localparam [63:0] ERROR_PAYLOAD = {{8{7'h1E}}, 8'h1E};

// Block type of a terminate in octet n.
function automatic [7:0] terminate_type(input integer n);
  case (n)
    0: terminate_type = 8'h87;
    1: terminate_type = 8'h99;
    2: terminate_type = 8'hAA;
    3: terminate_type = 8'hB4;
    4: terminate_type = 8'hCC;
    5: terminate_type = 8'hD2;
    6: terminate_type = 8'hE1;
    default: terminate_type = 8'hFF;
  endcase
endfunction

// {known, 7-bit code} of a control octet.
function automatic [7:0] control_code(input [7:0] octet);
  case (octet)
    XGMII_IDLE:  control_code = {1'b1, 7'h00};
    XGMII_ERROR: control_code = {1'b1, 7'h1E};
    default:     control_code = 8'd0;
  endcase
endfunction

// {invalid, header, payload} of eight octets and their flags.
function automatic [66:0] encode_64b66b(input [7:0] c, input [63:0] d);
  integer i;
  integer n;
  reg     bad;
  reg [7:0] code;
  reg [63:0] p;
  begin
    bad = 1'b0;
    p = 64'd0;
    n = -1;
    if (c == 8'h00) begin
      encode_64b66b = {1'b0, 2'b10, d};
    end else begin
      for (i = 7; i >= 0; i = i - 1)
        if (c[i] && d[8*i +: 8] == XGMII_TERMINATE) n = i;
      if (c == 8'h01 && d[7:0] == XGMII_START) begin
        p = {d[63:8], 8'h78};
      end else if (c == 8'h1F && d[39:32] == XGMII_START) begin
        for (i = 0; i < 4; i = i + 1) begin
          code = control_code(d[8*i +: 8]);
          bad = bad || !code[7];
          p[8 + 7*i +: 7] = code[6:0];
        end
        p[63:40] = d[63:40];
        p[7:0] = 8'h33;
      end else if (n >= 0 && c == (8'hFF << n)) begin
        p[7:0] = terminate_type(n);
        for (i = 0; i < n; i = i + 1) p[8 + 8*i +: 8] = d[8*i +: 8];
        for (i = n + 1; i < 8; i = i + 1) begin
          code = control_code(d[8*i +: 8]);
          bad = bad || !code[7];
          p[64 - 7*(8 - i) +: 7] = code[6:0];
        end
      end else if (c == 8'hFF) begin
        p[7:0] = 8'h1E;
        for (i = 0; i < 8; i = i + 1) begin
          code = control_code(d[8*i +: 8]);
          bad = bad || !code[7];
          p[8 + 7*i +: 7] = code[6:0];
        end
      end else begin
        bad = 1'b1;
      end
      encode_64b66b = {bad, 2'b01, bad ? ERROR_PAYLOAD : p};
    end
  end
endfunction

// The octet of a 7-bit control code.
function automatic [7:0] control_octet(input [6:0] code);
  control_octet = code == 7'h00 ? XGMII_IDLE : XGMII_ERROR;
endfunction

// {error, flags, octets} of a header and its payload.
function automatic [72:0] decode_64b66b(input [1:0] header, input [63:0] p);
  integer i;
  integer n;
  reg [7:0] c;
  reg [63:0] d;
  reg bad;
  begin
    c = 8'h00;
    d = p;
    bad = 1'b0;
    n = -1;
    if (header != 2'b10) begin
      for (i = 0; i < 8; i = i + 1)
        if (p[7:0] == terminate_type(i)) n = i;
      if (header != 2'b01) begin
        bad = 1'b1;
      end else if (p[7:0] == 8'h78) begin
        c = 8'h01;
        d = {p[63:8], XGMII_START};
      end else if (p[7:0] == 8'h33) begin
        c = 8'h1F;
        for (i = 0; i < 4; i = i + 1) d[8*i +: 8] = control_octet(p[8 + 7*i +: 7]);
        d[39:32] = XGMII_START;
      end else if (n >= 0) begin
        c = 8'hFF << n;
        for (i = 0; i < n; i = i + 1) d[8*i +: 8] = p[8 + 8*i +: 8];
        d[8*n +: 8] = XGMII_TERMINATE;
        for (i = n + 1; i < 8; i = i + 1) d[8*i +: 8] = control_octet(p[64 - 7*(8 - i) +: 7]);
      end else if (p[7:0] == 8'h1E) begin
        c = 8'hFF;
        for (i = 0; i < 8; i = i + 1) d[8*i +: 8] = control_octet(p[8 + 7*i +: 7]);
      end else begin
        bad = 1'b1;
      end
    end
    if (bad) begin
      c = 8'hFF;
      d = {8{XGMII_ERROR}};
    end
    decode_64b66b = {bad, c, d};
  end
endfunction

// The self-synchronising scrambler 1 + x^39 + x^58: {state after, payload}.
function automatic [121:0] scramble(input [63:0] p, input [57:0] state);
  integer i;
  reg [57:0] s;
  begin
    s = state;
    for (i = 0; i < 64; i = i + 1) begin
      scramble[i] = p[i] ^ s[38] ^ s[57];
      s = {s[56:0], scramble[i]};
    end
    scramble[121:64] = s;
  end
endfunction

function automatic [121:0] descramble(input [63:0] p, input [57:0] state);
  integer i;
  reg [57:0] s;
  begin
    s = state;
    for (i = 0; i < 64; i = i + 1) begin
      descramble[i] = p[i] ^ s[38] ^ s[57];
      s = {s[56:0], p[i]};
    end
    descramble[121:64] = s;
  end
endfunction
