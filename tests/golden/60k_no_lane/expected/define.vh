`define MODULE_NAME Idle
`define RZ7X60
