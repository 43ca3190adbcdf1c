// 8B/10B coding of one character. Symbols stand with the bit that is sent first ("a") in bit 0.
// The encoder and the decoder are two separate tables, so that neither can hide a fault of the
// other.

// Bit-reverses a symbol written in the usual reading order "abcdei fghj".
function automatic [9:0] as_sent(input [9:0] s);
  as_sent = {s[0], s[1], s[2], s[3], s[4], s[5], s[6], s[7], s[8], s[9]};
endfunction

// "abcdei" of a 5-bit value at running disparity -1.
function automatic [5:0] six_of(input [4:0] x);
  case (x)
    5'd0:  six_of = 6'b100111;
    5'd1:  six_of = 6'b011101;
    5'd2:  six_of = 6'b101101;
    5'd3:  six_of = 6'b110001;
    5'd4:  six_of = 6'b110101;
    5'd5:  six_of = 6'b101001;
    5'd6:  six_of = 6'b011001;
    5'd7:  six_of = 6'b111000;
    5'd8:  six_of = 6'b111001;
    5'd9:  six_of = 6'b100101;
    5'd10: six_of = 6'b010101;
    5'd11: six_of = 6'b110100;
    5'd12: six_of = 6'b001101;
    5'd13: six_of = 6'b101100;
    5'd14: six_of = 6'b011100;
    5'd15: six_of = 6'b010111;
    5'd16: six_of = 6'b011011;
    5'd17: six_of = 6'b100011;
    5'd18: six_of = 6'b010011;
    5'd19: six_of = 6'b110010;
    5'd20: six_of = 6'b001011;
    5'd21: six_of = 6'b101010;
    5'd22: six_of = 6'b011010;
    5'd23: six_of = 6'b111010;
    5'd24: six_of = 6'b110011;
    5'd25: six_of = 6'b100110;
    5'd26: six_of = 6'b010110;
    5'd27: six_of = 6'b110110;
    5'd28: six_of = 6'b001110;
    5'd29: six_of = 6'b101110;
    5'd30: six_of = 6'b011110;
    5'd31: six_of = 6'b101011;
  endcase
endfunction

// "fghj" of a 3-bit value at running disparity -1; `alt` takes the alternate form of 7.
function automatic [3:0] four_of(input [2:0] y, input alt);
  case (y)
    3'd0: four_of = 4'b1011;
    3'd1: four_of = 4'b1001;
    3'd2: four_of = 4'b0101;
    3'd3: four_of = 4'b1100;
    3'd4: four_of = 4'b1101;
    3'd5: four_of = 4'b1010;
    3'd6: four_of = 4'b0110;
    3'd7: four_of = alt ? 4'b0111 : 4'b1110;
  endcase
endfunction

// "fghj" of K28.y behind "001111".
function automatic [3:0] k28_four(input [2:0] y);
  case (y)
    3'd0: k28_four = 4'b0100;
    3'd1: k28_four = 4'b1001;
    3'd2: k28_four = 4'b0101;
    3'd3: k28_four = 4'b0011;
    3'd4: k28_four = 4'b0010;
    3'd5: k28_four = 4'b1010;
    3'd6: k28_four = 4'b0110;
    3'd7: k28_four = 4'b1000;
  endcase
endfunction

function automatic integer ones(input [9:0] v);
  integer i;
  begin
    ones = 0;
    for (i = 0; i < 10; i = i + 1) ones = ones + {31'd0, v[i]};
  end
endfunction

// {running disparity after (1: positive), symbol as sent} of a character at disparity `rd`.
function automatic [10:0] encode_8b10b(input k, input [7:0] d, input rd);
  reg [5:0] six;
  reg [3:0] four;
  reg       mid;
  reg       alt;
  begin
    if (k && d[4:0] == 5'd28) begin
      six = rd ? 6'b110000 : 6'b001111;
      four = rd ? ~k28_four(d[7:5]) : k28_four(d[7:5]);
      // The symbol's own balance decides, as for every other one.
      encode_8b10b[10] = ones({six, four}) == 5 ? rd : ~rd;
    end else begin
      six = six_of(d[4:0]);
      mid = rd;
      if (ones({4'd0, six}) != 3) begin
        if (rd) six = ~six;
        mid = ~rd;
      end else if (d[4:0] == 5'd7 && rd) begin
        six = ~six;
      end
      // The alternate form avoids runs of five equal bits across the two halves.
      alt = k || (!mid && (d[4:0] == 5'd17 || d[4:0] == 5'd18 || d[4:0] == 5'd20))
              || (mid && (d[4:0] == 5'd11 || d[4:0] == 5'd13 || d[4:0] == 5'd14));
      four = four_of(d[7:5], alt);
      encode_8b10b[10] = mid;
      if (ones({6'd0, four}) != 2) begin
        if (mid) four = ~four;
        encode_8b10b[10] = ~mid;
      end else if (d[7:5] == 3'd3 && mid) begin
        four = ~four;
      end
    end
    encode_8b10b[9:0] = as_sent({six, four});
  end
endfunction

// {valid, 5-bit value} of "abcdei".
function automatic [5:0] five_of(input [5:0] s);
  case (s)
    6'b100111, 6'b011000: five_of = {1'b1, 5'd0};
    6'b011101, 6'b100010: five_of = {1'b1, 5'd1};
    6'b101101, 6'b010010: five_of = {1'b1, 5'd2};
    6'b110001:            five_of = {1'b1, 5'd3};
    6'b110101, 6'b001010: five_of = {1'b1, 5'd4};
    6'b101001:            five_of = {1'b1, 5'd5};
    6'b011001:            five_of = {1'b1, 5'd6};
    6'b111000, 6'b000111: five_of = {1'b1, 5'd7};
    6'b111001, 6'b000110: five_of = {1'b1, 5'd8};
    6'b100101:            five_of = {1'b1, 5'd9};
    6'b010101:            five_of = {1'b1, 5'd10};
    6'b110100:            five_of = {1'b1, 5'd11};
    6'b001101:            five_of = {1'b1, 5'd12};
    6'b101100:            five_of = {1'b1, 5'd13};
    6'b011100:            five_of = {1'b1, 5'd14};
    6'b010111, 6'b101000: five_of = {1'b1, 5'd15};
    6'b011011, 6'b100100: five_of = {1'b1, 5'd16};
    6'b100011:            five_of = {1'b1, 5'd17};
    6'b010011:            five_of = {1'b1, 5'd18};
    6'b110010:            five_of = {1'b1, 5'd19};
    6'b001011:            five_of = {1'b1, 5'd20};
    6'b101010:            five_of = {1'b1, 5'd21};
    6'b011010:            five_of = {1'b1, 5'd22};
    6'b111010, 6'b000101: five_of = {1'b1, 5'd23};
    6'b110011, 6'b001100: five_of = {1'b1, 5'd24};
    6'b100110:            five_of = {1'b1, 5'd25};
    6'b010110:            five_of = {1'b1, 5'd26};
    6'b110110, 6'b001001: five_of = {1'b1, 5'd27};
    6'b001110:            five_of = {1'b1, 5'd28};
    6'b101110, 6'b010001: five_of = {1'b1, 5'd29};
    6'b011110, 6'b100001: five_of = {1'b1, 5'd30};
    6'b101011, 6'b010100: five_of = {1'b1, 5'd31};
    default:              five_of = 6'd0;
  endcase
endfunction

// {valid, 3-bit value} of "fghj" in a data character.
function automatic [3:0] three_of(input [3:0] s);
  case (s)
    4'b1011, 4'b0100: three_of = {1'b1, 3'd0};
    4'b1001:          three_of = {1'b1, 3'd1};
    4'b0101:          three_of = {1'b1, 3'd2};
    4'b1100, 4'b0011: three_of = {1'b1, 3'd3};
    4'b1101, 4'b0010: three_of = {1'b1, 3'd4};
    4'b1010:          three_of = {1'b1, 3'd5};
    4'b0110:          three_of = {1'b1, 3'd6};
    4'b1110, 4'b0001: three_of = {1'b1, 3'd7};
    4'b0111, 4'b1000: three_of = {1'b1, 3'd7};
    default:          three_of = 4'd0;
  endcase
endfunction

// {valid, 3-bit value} of "fghj" behind the "001111" of K28.
function automatic [3:0] k28_three(input [3:0] s);
  case (s)
    4'b0100: k28_three = {1'b1, 3'd0};
    4'b1001: k28_three = {1'b1, 3'd1};
    4'b0101: k28_three = {1'b1, 3'd2};
    4'b0011: k28_three = {1'b1, 3'd3};
    4'b0010: k28_three = {1'b1, 3'd4};
    4'b1010: k28_three = {1'b1, 3'd5};
    4'b0110: k28_three = {1'b1, 3'd6};
    4'b1000: k28_three = {1'b1, 3'd7};
    default: k28_three = 4'd0;
  endcase
endfunction

// One half of a symbol against the running disparity: {error, disparity after}.
function automatic [1:0] follow(input integer weight, input integer half, input split, input rd);
  begin
    // `split`: a balanced half whose form depends on the disparity all the same.
    if (weight > half)      follow = {rd, 1'b1};
    else if (weight < half) follow = {~rd, 1'b0};
    else                    follow = {split, rd};
  end
endfunction

// {code error, disparity error, disparity after, k, character} of a symbol as sent.
function automatic [11:0] decode_8b10b(input [9:0] sent, input rd);
  reg [5:0] six;
  reg [3:0] four;
  reg [5:0] x;
  reg [3:0] y;
  reg       k;
  reg [1:0] a;
  reg [1:0] b;
  begin
    {six, four} = as_sent(sent);
    a = follow(ones({4'd0, six}), 3,
               (six == 6'b111000 && rd) || (six == 6'b000111 && !rd), rd);
    b = follow(ones({6'd0, four}), 2,
               (four == 4'b1100 && a[0]) || (four == 4'b0011 && !a[0]), a[0]);
    x = five_of(six);
    y = three_of(four);
    k = 1'b0;
    if (six == 6'b001111 || six == 6'b110000) begin
      k = 1'b1;
      x = {1'b1, 5'd28};
      y = six[0] ? k28_three(four) : k28_three(~four);
    end else if ((four == 4'b1000 && (six == 6'b111010 || six == 6'b110110
                                      || six == 6'b101110 || six == 6'b011110))
                 || (four == 4'b0111 && (six == 6'b000101 || six == 6'b001001
                                         || six == 6'b010001 || six == 6'b100001))) begin
      k = 1'b1;
    end
    decode_8b10b = {!(x[5] && y[3]), a[1] || b[1], b[0], k, y[2:0], x[4:0]};
  end
endfunction

// The character that a name such as "k28.5" stands for; the number after the dot is one digit.
function automatic [7:0] character_named(input [8*5-1:0] name);
  reg [7:0] x;
  begin
    x = (name[31:24] - 8'h30) * 8'd10 + (name[23:16] - 8'h30);
    character_named = {name[2:0], x[4:0]};
  end
endfunction
