// Visits the eight lanes in order. Each lane of the instance includes customized_lane.vh once with
//   `LANE(name)        the lane's prefix in front of a name
//   `LANE_INDEX        its number, 0 to 7
//   LANE_...           one macro an option that define.vh sets for the lane
// and each absent one with only LANE_INDEX and LANE_ABSENT. customized_lane.vh takes them back.
// Verilog has no way to test a macro whose name is put together, hence one section a lane; they
// differ in the lane's name and number and in nothing else.

`ifdef Q0_LN0
  `define LANE(name) q0_ln0_``name
  `ifdef Q0_LN0_8B10B_ENCODE
    `define LANE_TX_8B10B
  `endif
  `ifdef Q0_LN0_64B66B_ENCODE
    `define LANE_TX_64B66B
  `endif
  `ifdef Q0_LN0_64B67B_ENCODE
    `define LANE_TX_64B67B
  `endif
  `ifdef Q0_LN0_8B10B_DECODE
    `define LANE_RX_8B10B
  `endif
  `ifdef Q0_LN0_64B66B_DECODE
    `define LANE_RX_64B66B
  `endif
  `ifdef Q0_LN0_64B67B_DECODE
    `define LANE_RX_64B67B
  `endif
  `ifdef Q0_LN0_64B66B_ASYNC_WITH_FIFO
    `define LANE_RAW_BLOCKS
  `endif
  `ifdef Q0_LN0_WORD_ALIGN
    `define LANE_WORD_ALIGN
  `endif
  `ifdef Q0_LN0_CHANNEL_BONDING
    `define LANE_CHANNEL_BONDING
  `endif
  `ifdef Q0_LN0_CTC
    `define LANE_CTC
  `endif
  `ifdef Q0_LN0_CTC_MASTER_SEL
    `define LANE_CTC_MASTER `Q0_LN0_CTC_MASTER_SEL
  `else
    `define LANE_CTC_MASTER 0
  `endif
`else
  `define LANE_ABSENT
`endif
`define LANE_INDEX 0
`include "customized_lane.vh"

`ifdef Q0_LN1
  `define LANE(name) q0_ln1_``name
  `ifdef Q0_LN1_8B10B_ENCODE
    `define LANE_TX_8B10B
  `endif
  `ifdef Q0_LN1_64B66B_ENCODE
    `define LANE_TX_64B66B
  `endif
  `ifdef Q0_LN1_64B67B_ENCODE
    `define LANE_TX_64B67B
  `endif
  `ifdef Q0_LN1_8B10B_DECODE
    `define LANE_RX_8B10B
  `endif
  `ifdef Q0_LN1_64B66B_DECODE
    `define LANE_RX_64B66B
  `endif
  `ifdef Q0_LN1_64B67B_DECODE
    `define LANE_RX_64B67B
  `endif
  `ifdef Q0_LN1_64B66B_ASYNC_WITH_FIFO
    `define LANE_RAW_BLOCKS
  `endif
  `ifdef Q0_LN1_WORD_ALIGN
    `define LANE_WORD_ALIGN
  `endif
  `ifdef Q0_LN1_CHANNEL_BONDING
    `define LANE_CHANNEL_BONDING
  `endif
  `ifdef Q0_LN1_CTC
    `define LANE_CTC
  `endif
  `ifdef Q0_LN1_CTC_MASTER_SEL
    `define LANE_CTC_MASTER `Q0_LN1_CTC_MASTER_SEL
  `else
    `define LANE_CTC_MASTER 0
  `endif
`else
  `define LANE_ABSENT
`endif
`define LANE_INDEX 1
`include "customized_lane.vh"

`ifdef Q0_LN2
  `define LANE(name) q0_ln2_``name
  `ifdef Q0_LN2_8B10B_ENCODE
    `define LANE_TX_8B10B
  `endif
  `ifdef Q0_LN2_64B66B_ENCODE
    `define LANE_TX_64B66B
  `endif
  `ifdef Q0_LN2_64B67B_ENCODE
    `define LANE_TX_64B67B
  `endif
  `ifdef Q0_LN2_8B10B_DECODE
    `define LANE_RX_8B10B
  `endif
  `ifdef Q0_LN2_64B66B_DECODE
    `define LANE_RX_64B66B
  `endif
  `ifdef Q0_LN2_64B67B_DECODE
    `define LANE_RX_64B67B
  `endif
  `ifdef Q0_LN2_64B66B_ASYNC_WITH_FIFO
    `define LANE_RAW_BLOCKS
  `endif
  `ifdef Q0_LN2_WORD_ALIGN
    `define LANE_WORD_ALIGN
  `endif
  `ifdef Q0_LN2_CHANNEL_BONDING
    `define LANE_CHANNEL_BONDING
  `endif
  `ifdef Q0_LN2_CTC
    `define LANE_CTC
  `endif
  `ifdef Q0_LN2_CTC_MASTER_SEL
    `define LANE_CTC_MASTER `Q0_LN2_CTC_MASTER_SEL
  `else
    `define LANE_CTC_MASTER 0
  `endif
`else
  `define LANE_ABSENT
`endif
`define LANE_INDEX 2
`include "customized_lane.vh"

`ifdef Q0_LN3
  `define LANE(name) q0_ln3_``name
  `ifdef Q0_LN3_8B10B_ENCODE
    `define LANE_TX_8B10B
  `endif
  `ifdef Q0_LN3_64B66B_ENCODE
    `define LANE_TX_64B66B
  `endif
  `ifdef Q0_LN3_64B67B_ENCODE
    `define LANE_TX_64B67B
  `endif
  `ifdef Q0_LN3_8B10B_DECODE
    `define LANE_RX_8B10B
  `endif
  `ifdef Q0_LN3_64B66B_DECODE
    `define LANE_RX_64B66B
  `endif
  `ifdef Q0_LN3_64B67B_DECODE
    `define LANE_RX_64B67B
  `endif
  `ifdef Q0_LN3_64B66B_ASYNC_WITH_FIFO
    `define LANE_RAW_BLOCKS
  `endif
  `ifdef Q0_LN3_WORD_ALIGN
    `define LANE_WORD_ALIGN
  `endif
  `ifdef Q0_LN3_CHANNEL_BONDING
    `define LANE_CHANNEL_BONDING
  `endif
  `ifdef Q0_LN3_CTC
    `define LANE_CTC
  `endif
  `ifdef Q0_LN3_CTC_MASTER_SEL
    `define LANE_CTC_MASTER `Q0_LN3_CTC_MASTER_SEL
  `else
    `define LANE_CTC_MASTER 0
  `endif
`else
  `define LANE_ABSENT
`endif
`define LANE_INDEX 3
`include "customized_lane.vh"

`ifdef Q1_LN0
  `define LANE(name) q1_ln0_``name
  `ifdef Q1_LN0_8B10B_ENCODE
    `define LANE_TX_8B10B
  `endif
  `ifdef Q1_LN0_64B66B_ENCODE
    `define LANE_TX_64B66B
  `endif
  `ifdef Q1_LN0_64B67B_ENCODE
    `define LANE_TX_64B67B
  `endif
  `ifdef Q1_LN0_8B10B_DECODE
    `define LANE_RX_8B10B
  `endif
  `ifdef Q1_LN0_64B66B_DECODE
    `define LANE_RX_64B66B
  `endif
  `ifdef Q1_LN0_64B67B_DECODE
    `define LANE_RX_64B67B
  `endif
  `ifdef Q1_LN0_64B66B_ASYNC_WITH_FIFO
    `define LANE_RAW_BLOCKS
  `endif
  `ifdef Q1_LN0_WORD_ALIGN
    `define LANE_WORD_ALIGN
  `endif
  `ifdef Q1_LN0_CHANNEL_BONDING
    `define LANE_CHANNEL_BONDING
  `endif
  `ifdef Q1_LN0_CTC
    `define LANE_CTC
  `endif
  `ifdef Q1_LN0_CTC_MASTER_SEL
    `define LANE_CTC_MASTER `Q1_LN0_CTC_MASTER_SEL
  `else
    `define LANE_CTC_MASTER 0
  `endif
`else
  `define LANE_ABSENT
`endif
`define LANE_INDEX 4
`include "customized_lane.vh"

`ifdef Q1_LN1
  `define LANE(name) q1_ln1_``name
  `ifdef Q1_LN1_8B10B_ENCODE
    `define LANE_TX_8B10B
  `endif
  `ifdef Q1_LN1_64B66B_ENCODE
    `define LANE_TX_64B66B
  `endif
  `ifdef Q1_LN1_64B67B_ENCODE
    `define LANE_TX_64B67B
  `endif
  `ifdef Q1_LN1_8B10B_DECODE
    `define LANE_RX_8B10B
  `endif
  `ifdef Q1_LN1_64B66B_DECODE
    `define LANE_RX_64B66B
  `endif
  `ifdef Q1_LN1_64B67B_DECODE
    `define LANE_RX_64B67B
  `endif
  `ifdef Q1_LN1_64B66B_ASYNC_WITH_FIFO
    `define LANE_RAW_BLOCKS
  `endif
  `ifdef Q1_LN1_WORD_ALIGN
    `define LANE_WORD_ALIGN
  `endif
  `ifdef Q1_LN1_CHANNEL_BONDING
    `define LANE_CHANNEL_BONDING
  `endif
  `ifdef Q1_LN1_CTC
    `define LANE_CTC
  `endif
  `ifdef Q1_LN1_CTC_MASTER_SEL
    `define LANE_CTC_MASTER `Q1_LN1_CTC_MASTER_SEL
  `else
    `define LANE_CTC_MASTER 0
  `endif
`else
  `define LANE_ABSENT
`endif
`define LANE_INDEX 5
`include "customized_lane.vh"

`ifdef Q1_LN2
  `define LANE(name) q1_ln2_``name
  `ifdef Q1_LN2_8B10B_ENCODE
    `define LANE_TX_8B10B
  `endif
  `ifdef Q1_LN2_64B66B_ENCODE
    `define LANE_TX_64B66B
  `endif
  `ifdef Q1_LN2_64B67B_ENCODE
    `define LANE_TX_64B67B
  `endif
  `ifdef Q1_LN2_8B10B_DECODE
    `define LANE_RX_8B10B
  `endif
  `ifdef Q1_LN2_64B66B_DECODE
    `define LANE_RX_64B66B
  `endif
  `ifdef Q1_LN2_64B67B_DECODE
    `define LANE_RX_64B67B
  `endif
  `ifdef Q1_LN2_64B66B_ASYNC_WITH_FIFO
    `define LANE_RAW_BLOCKS
  `endif
  `ifdef Q1_LN2_WORD_ALIGN
    `define LANE_WORD_ALIGN
  `endif
  `ifdef Q1_LN2_CHANNEL_BONDING
    `define LANE_CHANNEL_BONDING
  `endif
  `ifdef Q1_LN2_CTC
    `define LANE_CTC
  `endif
  `ifdef Q1_LN2_CTC_MASTER_SEL
    `define LANE_CTC_MASTER `Q1_LN2_CTC_MASTER_SEL
  `else
    `define LANE_CTC_MASTER 0
  `endif
`else
  `define LANE_ABSENT
`endif
`define LANE_INDEX 6
`include "customized_lane.vh"

`ifdef Q1_LN3
  `define LANE(name) q1_ln3_``name
  `ifdef Q1_LN3_8B10B_ENCODE
    `define LANE_TX_8B10B
  `endif
  `ifdef Q1_LN3_64B66B_ENCODE
    `define LANE_TX_64B66B
  `endif
  `ifdef Q1_LN3_64B67B_ENCODE
    `define LANE_TX_64B67B
  `endif
  `ifdef Q1_LN3_8B10B_DECODE
    `define LANE_RX_8B10B
  `endif
  `ifdef Q1_LN3_64B66B_DECODE
    `define LANE_RX_64B66B
  `endif
  `ifdef Q1_LN3_64B67B_DECODE
    `define LANE_RX_64B67B
  `endif
  `ifdef Q1_LN3_64B66B_ASYNC_WITH_FIFO
    `define LANE_RAW_BLOCKS
  `endif
  `ifdef Q1_LN3_WORD_ALIGN
    `define LANE_WORD_ALIGN
  `endif
  `ifdef Q1_LN3_CHANNEL_BONDING
    `define LANE_CHANNEL_BONDING
  `endif
  `ifdef Q1_LN3_CTC
    `define LANE_CTC
  `endif
  `ifdef Q1_LN3_CTC_MASTER_SEL
    `define LANE_CTC_MASTER `Q1_LN3_CTC_MASTER_SEL
  `else
    `define LANE_CTC_MASTER 0
  `endif
`else
  `define LANE_ABSENT
`endif
`define LANE_INDEX 7
`include "customized_lane.vh"
