parameter q0_refclk1_freq = 100;
