// One lane, for customized_lanes.vh: picks the port groups by device and coding, then includes
// what the current pass asks for.
`ifndef LANE_ABSENT
  // The large devices have every port whatever the coding; the others those of the coding.
  `ifdef RZ7X138
    `define LANE_RX_BLOCK_PORTS
    `define LANE_RX_FIFO_PORTS
    `define LANE_TX_BLOCK_PORTS
    `define LANE_TX_FIFO_PORTS
  `else
    `ifdef LANE_RX_64B66B
      `define LANE_RX_BLOCK_PORTS
    `elsif LANE_RX_64B67B
      `define LANE_RX_BLOCK_PORTS
    `else
      `define LANE_RX_FIFO_PORTS
    `endif
    `ifdef LANE_TX_64B66B
      `define LANE_TX_BLOCK_PORTS
    `elsif LANE_TX_64B67B
      `define LANE_TX_BLOCK_PORTS
    `else
      `define LANE_TX_FIFO_PORTS
    `endif
  `endif

  `ifdef LANE_TX_8B10B
    `define LANE_TX_CODING 1
  `elsif LANE_TX_64B66B
    `define LANE_TX_CODING 2
  `elsif LANE_TX_64B67B
    `define LANE_TX_CODING 3
  `else
    `define LANE_TX_CODING 0
  `endif
  `ifdef LANE_RX_8B10B
    `define LANE_RX_CODING 1
  `elsif LANE_RX_64B66B
    `define LANE_RX_CODING 2
  `elsif LANE_RX_64B67B
    `define LANE_RX_CODING 3
  `else
    `define LANE_RX_CODING 0
  `endif
  `ifdef RZ7X138
    `define LANE_TX_WIDTH `LANE(pma_width)
    `define LANE_RX_WIDTH `LANE(pma_width)
  `else
    `define LANE_TX_WIDTH `LANE(pma_tx_width)
    `define LANE_RX_WIDTH `LANE(pma_rx_width)
  `endif
`endif

`ifdef CUSTOMIZED_PASS_PORTS
  `ifndef LANE_ABSENT
    `include "customized_lane_ports.vh"
  `endif
`endif
`ifdef CUSTOMIZED_PASS_LOGIC
  `include "customized_lane_logic.vh"
`endif
// Passes of a test bench.
`ifdef CUSTOMIZED_PASS_WIRES
  `include "bench_lane_wires.vh"
`endif
`ifdef CUSTOMIZED_PASS_CONNECT
  `ifndef LANE_ABSENT
    `include "bench_lane_connect.vh"
  `endif
`endif

`undef LANE
`undef LANE_INDEX
`undef LANE_ABSENT
`undef LANE_TX_8B10B
`undef LANE_TX_64B66B
`undef LANE_TX_64B67B
`undef LANE_RX_8B10B
`undef LANE_RX_64B66B
`undef LANE_RX_64B67B
`undef LANE_RAW_BLOCKS
`undef LANE_WORD_ALIGN
`undef LANE_CHANNEL_BONDING
`undef LANE_CTC
`undef LANE_CTC_MASTER
`undef LANE_RX_BLOCK_PORTS
`undef LANE_RX_FIFO_PORTS
`undef LANE_TX_BLOCK_PORTS
`undef LANE_TX_FIFO_PORTS
`undef LANE_TX_CODING
`undef LANE_RX_CODING
`undef LANE_TX_WIDTH
`undef LANE_RX_WIDTH
