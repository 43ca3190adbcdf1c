`define MODULE_NAME R
`define DRP
`define RZ7X138
