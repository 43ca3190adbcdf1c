"""Two instances meet on one device: what the second dialog shows of the first, and what is free."""

from support import ACCEPT, CALCULATE, EndToEnd, answer, items, lanes, main, put, state, try_put

TX = "tab1/TXLineRate"
PLL = "tab1/CombBoxPLLSelection"
SOURCE = "tab1/CombBoxReferenceClockSource"
FREQUENCY = "tab1/ReferenceClockFrequency"
RATIO = "tab1/comboBoxTxLineRatio"
MODE = "tab1/comboBoxMode"
BIAS = "tab5/biasSpinBox"
RATIOS = ["NA", "5x", "10x", "20x", "40x"]


def backplane(*names):
    """10.3125 Gbit/s on QPLL1, from Q0 REFCLK1 at 156.25 MHz."""
    return lanes(*names) + [put(PLL, "QPLL1"), put(TX, "10.3125"),
                            put("tab1/RXLineRate", "10.3125"), put(SOURCE, "Q0 REFCLK1"),
                            put(FREQUENCY, "156.25")]


def enabled_lanes(shown):
    names = ["q%d_l%d" % (quad, lane) for quad in range(2) for lane in range(4)]
    return [name for name in names if shown["tab1/" + name]["enabled"]]


class SharedPll(EndToEnd):
    def assert_locked(self, shown):
        self.assert_field(shown[TX], "10.3125", False)
        self.assert_field(shown[SOURCE], "Q0 REFCLK1", False)
        self.assert_field(shown[FREQUENCY], "156.25", False)
        self.assert_field(shown[RATIO], "NA", False)
        self.assertEqual(items(shown[RATIO]), RATIOS)

    def assert_free(self, shown):
        self.assertTrue(shown[TX]["enabled"])
        self.assertTrue(shown[SOURCE]["enabled"])
        self.assert_field(shown[RATIO], "NA", False)
        self.assertEqual(items(shown[RATIO]), ["NA"])

    def test_second_dialog_shows_the_first(self):
        self.new_project("60k")
        self.create("link0", backplane("q0_l0"))
        states = self.look("link1", [
            state("fresh"),
            put(PLL, "QPLL1"), state("no lane"), put(PLL, "CPLL"),
            put("tab1/q0_l1", True), state("lane"),
            put(PLL, "QPLL1"), state("QPLL1"),
            put(PLL, "QPLL0"), state("QPLL0"),
            put(PLL, "QPLL1"), put(PLL, "CPLL"), state("CPLL"),
            put(SOURCE, "Q0 REFCLK0"), state("free clock"),
            put(SOURCE, "Q0 REFCLK1"), state("held clock"),
        ])
        self.assertEqual(enabled_lanes(states["fresh"]), ["q0_l1", "q0_l2", "q0_l3"])
        self.assertFalse(states["fresh"]["tab1/q0_l0"]["checked"])
        for label in ("fresh", "no lane", "lane", "QPLL0", "CPLL"):
            self.assert_free(states[label])
        # Without a lane no quad is meant, so nothing is taken.
        self.assert_field(states["no lane"][TX], "1.25", True)
        self.assert_field(states["no lane"][FREQUENCY], "125", True)
        self.assert_locked(states["QPLL1"])
        # The source stays where QPLL1 put it, and its frequency is still the first one's.
        for label in ("QPLL0", "CPLL"):
            self.assert_field(states[label][SOURCE], "Q0 REFCLK1", True)
            self.assert_field(states[label][FREQUENCY], "156.25", False)
        self.assert_field(states["free clock"][FREQUENCY], "125", True)
        self.assert_field(states["held clock"][FREQUENCY], "156.25", False)

    def test_locked_fields_refuse_hands(self):
        self.new_project("60k")
        self.create("link0", backplane("q0_l0"))
        report = self.session("create", "link1", [
            try_put("tab1/q0_l0", True), put("tab1/q0_l1", True), put(PLL, "QPLL1"),
            try_put(TX, "5"), try_put(SOURCE, "Q0 REFCLK0"), try_put(FREQUENCY, "125"),
            try_put(RATIO, "5x"), CALCULATE, answer("No"), ACCEPT])
        self.assertEqual(report["result"], "accepted")
        self.assertEqual([refusal["step"] for refusal in report["refused"]], [1, 4, 5, 6, 7])
        for refusal in report["refused"]:
            self.assertIn("disabled", refusal["why"])
        config = report["config"]
        self.assertEqual((config["TX_RATE"], config["REFERENCE_CLOCK_SOURCE"],
                          config["REFERENCE_CLOCK_FREQ"], config["Q0_LN0"], config["Q0_LN1"]),
                         ("10.3125", "Q0 REFCLK1", "156.25", False, True))
        self.assert_owners("lanes", {"Q0 Lane0": ["link0"], "Q0 Lane1": ["link1"]})
        self.assert_owners("plls", {"Q0_QPLL1": ["link0", "link1"]})
        self.assert_owners("referenceClocks", {"Q0_REFCLK1": ["link0", "link1"]})
        self.assert_owners("multiplexers", {})
        row = self.resources()["plls"]["Q0_QPLL1"]
        self.assertEqual((row["rate"], row["source"], row["frequency"]),
                         (10.3125, "Q0 REFCLK1", 156.25))

    def test_slow_shared_rate_goes_by_the_ratio(self):
        # 0.5 Gbit/s oversampled 5x: the line runs at 2.5 Gbit/s, and that is what is shared.
        self.new_project("60k")
        self.create("slow", lanes("q0_l0") + [
            put(PLL, "QPLL0"), put(TX, "0.5"), put(RATIO, "5x")])
        states = self.look("link1", lanes("q0_l1") + [put(PLL, "QPLL0"), state("shared")])
        self.assert_field(states["shared"][RATIO], "NA", False)
        self.assert_field(states["shared"][TX], "2.5", False)
        self.assertEqual(self.resources()["plls"]["Q0_QPLL0"]["rate"], 2.5)

    def test_frequency_of_nine_digits(self):
        # The second dialog shows six digits of it, and that is the same clock:
        # 2 * 322.265625 * 16 = 10312.5.
        self.new_project("60k")
        rates = [put(TX, "10.3125"), put("tab1/RXLineRate", "10.3125")]
        self.create("link0", lanes("q0_l0") + rates + [
            put(PLL, "QPLL1"), put(FREQUENCY, "322.265625")])
        report = self.session("create", "link1", lanes("q0_l1") + rates + [
            state("auto"), put(PLL, "QPLL1"), state("shared"), put(PLL, "CPLL"), ACCEPT])
        self.assert_field(report["states"]["auto"][FREQUENCY], "322.266", False)
        self.assert_field(report["states"]["shared"][FREQUENCY], "322.266", False)
        self.assertEqual(report["result"], "accepted")
        self.assert_owners("referenceClocks", {"Q0_REFCLK0": ["link0", "link1"]})

    def test_no_lane_is_left(self):
        self.new_project("138k")
        self.create("link0", lanes("q0_l0", "q0_l1", "q0_l2", "q0_l3", "q1_l3"))
        self.create("link1", lanes("q1_l0", "q1_l1", "q1_l2"))
        report = self.session("create", "link2", [try_put("tab1/q1_l3", True), state("fresh"),
                                                  CALCULATE])
        self.assertEqual(enabled_lanes(report["states"]["fresh"]), [])
        self.assertEqual([refusal["step"] for refusal in report["refused"]], [1])
        self.assertEqual([row["owners"] for row in self.resources()["lanes"].values()],
                         [["link0"]] * 4 + [["link1"]] * 3 + [["link0"]])

    def test_two_instances_of_a_merge_on_one_lane(self):
        self.new_project("60k")
        self.create("link0", lanes("q0_l0"))
        self.create("link1", lanes("q0_l1"))

        def move(document):
            document["instances"]["link1"]["config"].update(
                Q0_LN0=True, Q0_LN1=False, recordlanes=["Q0 Lane0"])
        self.edit_project(move)
        self.assert_owners("lanes", {"Q0 Lane0": ["link0", "link1"]})
        before = self.project_bytes()
        for name, other in (("link0", "link1"), ("link1", "link0")):
            run = self.ipgen("check", self.project, name, code=1)
            self.assertIn("Q0 Lane0 is held by " + other, run.out)
            # The way out: another lane instead.
            states = self.look(name, [state("opened")], command="open")
            box = states["opened"]["tab1/q0_l0"]
            self.assertEqual((box["checked"], box["enabled"]), (True, True))
        self.assertEqual(self.project_bytes(), before)
        self.session("open", "link1", [put("tab1/q0_l0", False), put("tab1/q0_l3", True), ACCEPT])
        self.assertEqual(self.ipgen("check", self.project).out, "link0: ok\nlink1: ok\n")
        self.assert_owners("lanes", {"Q0 Lane0": ["link0"], "Q0 Lane3": ["link1"]})

    def test_removing_the_first_frees_everything(self):
        self.new_project("60k")
        self.create("link0", backplane("q0_l0"))
        self.ipgen("remove", self.project, "link0")
        for kind in ("lanes", "plls", "multiplexers", "referenceClocks"):
            self.assert_owners(kind, {})
        states = self.look("link1", [
            state("fresh"), put("tab1/q0_l0", True), put(PLL, "QPLL1"),
            put(SOURCE, "Q0 REFCLK1"), state("QPLL1")])
        self.assertEqual(enabled_lanes(states["fresh"]), ["q0_l0", "q0_l1", "q0_l2", "q0_l3"])
        self.assert_free(states["QPLL1"])
        self.assert_field(states["QPLL1"][TX], "1.25", True)
        self.assert_field(states["QPLL1"][FREQUENCY], "125", True)

    def test_reopened_instance_does_not_stand_in_its_own_way(self):
        self.new_project("60k")
        saved = self.create("link0", backplane("q0_l0", "q0_l2"))
        before = self.project_bytes()
        report = self.session("open", "link0", [state("opened"), ACCEPT])
        self.assertEqual(report["result"], "accepted")
        self.assertEqual(report["config"], saved)
        self.assertEqual(self.project_bytes(), before)
        shown = report["states"]["opened"]
        self.assertEqual(enabled_lanes(shown), ["q0_l0", "q0_l1", "q0_l2", "q0_l3"])
        self.assert_free(shown)
        self.assert_field(shown[TX], "10.3125", True)
        self.assert_field(shown[SOURCE], "Q0 REFCLK1", True)
        self.assert_field(shown[FREQUENCY], "156.25", True)

    def test_reopened_first_meets_the_second(self):
        self.new_project("60k")
        self.create("link0", backplane("q0_l0"))
        self.create("link1", lanes("q0_l1") + [put(PLL, "QPLL1")])
        shown = self.look("link0", [state("opened")], command="open")["opened"]
        self.assertEqual(enabled_lanes(shown), ["q0_l0", "q0_l2", "q0_l3"])
        self.assert_locked(shown)

    def test_lanes_in_both_quads_ask_for_quad_0(self):
        self.new_project("138k")
        self.create("link0", backplane("q1_l0"))
        self.assert_owners("lanes", {"Q1 Lane0": ["link0"]})
        self.assert_owners("plls", {"Q1_QPLL1": ["link0"]})
        states = self.look("link1", [
            state("fresh"), put(PLL, "QPLL1"),
            put("tab1/q1_l1", True), state("quad 1"),
            put("tab1/q0_l1", True), state("both"),
            put("tab1/q1_l1", False), state("quad 0")])
        self.assertEqual(enabled_lanes(states["fresh"]),
                         ["q0_l0", "q0_l1", "q0_l2", "q0_l3", "q1_l1", "q1_l2", "q1_l3"])
        self.assert_locked(states["quad 1"])
        self.assert_free(states["both"])
        self.assert_free(states["quad 0"])

    def test_lanes_in_both_quads_share_the_pll_of_quad_0(self):
        self.new_project("138k")
        self.create("link0", backplane("q0_l0"))
        states = self.look("link1", [
            put(PLL, "QPLL1"), put("tab1/q1_l1", True), state("quad 1"),
            put("tab1/q0_l1", True), state("both")])
        self.assert_free(states["quad 1"])
        self.assert_locked(states["both"])

    def test_one_instance_holds_lanes_and_plls_of_both_quads(self):
        self.new_project("138k")
        self.create("wide", backplane("q0_l3", "q1_l0"))
        self.assert_owners("lanes", {"Q0 Lane3": ["wide"], "Q1 Lane0": ["wide"]})
        self.assert_owners("plls", {"Q0_QPLL1": ["wide"], "Q1_QPLL1": ["wide"]})
        shown = self.look("link1", [state("fresh")])["fresh"]
        self.assertEqual(enabled_lanes(shown),
                         ["q0_l0", "q0_l1", "q0_l2", "q1_l1", "q1_l2", "q1_l3"])


class FixedMultiplexers(EndToEnd):
    def source(self, mux):
        return "tab1/comboBoxRefMux%dSource" % mux

    def frequency(self, mux):
        return "tab1/ReferenceMux%dFreq" % mux

    def manual(self, mux, pin, frequency):
        return [put(MODE, "Manual"), put(self.source(mux), pin),
                put(self.frequency(mux), frequency)]

    def test_60k(self):
        self.new_project("60k")
        self.create("link0", lanes("q0_l0") + self.manual(0, "Q0 REFCLK0", "156.25"))
        self.assert_owners("multiplexers", {"Q0_MUX0": ["link0"]})
        self.assert_owners("referenceClocks", {"Q0_REFCLK0": ["link0"]})
        self.assertEqual(self.resources()["multiplexers"]["Q0_MUX0"]["source"], "Q0 REFCLK0")
        states = self.look("link1", [
            state("auto"), put(MODE, "Manual"), state("manual"),
            put(self.source(1), "Q0 REFCLK0"), put(self.source(2), "Q0 REFCLK2"),
            state("chosen")])
        # Auto: the default source is the held pin, the multiplexers are empty.
        self.assert_field(states["auto"][FREQUENCY], "156.25", False)
        self.assertEqual(items(states["auto"][self.source(0)]), [])
        manual = states["manual"]
        self.assert_field(manual[self.source(0)], "Q0 REFCLK0", False)
        self.assertEqual(items(manual[self.source(0)]), ["Q0 REFCLK0"])
        self.assert_field(manual[self.frequency(0)], "156.25", False)
        self.assert_field(manual[self.source(1)], "NA", True)
        self.assertEqual(items(manual[self.source(1)]),
                         ["NA", "Q0 REFCLK0", "Q0 REFCLK1", "Q0 REFIN0", "Q0 REFIN1"])
        for mux in (2, 3):
            self.assert_field(manual[self.source(mux)], "NA", True)
            self.assertEqual(items(manual[self.source(mux)]), ["NA", "Q0 REFCLK2", "Q0 REFCLK3"])
        for mux in (1, 2, 3):
            self.assert_field(manual[self.frequency(mux)], "", False)
        self.assert_field(states["chosen"][self.frequency(1)], "156.25", False)
        self.assert_field(states["chosen"][self.frequency(2)], "125", True)
        self.ipgen("remove", self.project, "link0")
        free = self.look("link1", [put(MODE, "Manual"), state("free")])["free"]
        self.assert_field(free[self.source(0)], "NA", True)
        self.assertEqual(items(free[self.source(0)]),
                         ["NA", "Q0 REFCLK0", "Q0 REFCLK1", "Q0 REFIN0", "Q0 REFIN1"])

    def test_15k(self):
        self.new_project("15k")
        self.create("link0", lanes("q0_l0") + self.manual(1, "Q0 REFCLK1", "100")
                    + [put("tab1/CombBoxPLLRefSource", "REFMUX1")])
        self.assert_owners("multiplexers", {"Q0_MUX1": ["link0"]})
        manual = self.look("link1", [put(MODE, "Manual"), state("manual")])["manual"]
        self.assert_field(manual[self.source(0)], "NA", True)
        self.assertEqual(items(manual[self.source(0)]), ["NA", "Q0 REFCLK0", "Q0 REFCLK1"])
        self.assertEqual(items(manual[self.source(1)]), ["Q0 REFCLK1"])
        self.assert_field(manual[self.source(1)], "Q0 REFCLK1", False)
        self.assert_field(manual[self.frequency(1)], "100", False)

    def test_138k_quad_1_alone_has_its_own(self):
        free = ["NA", "Q0 REFCLK0", "Q0 REFCLK1", "Q1 REFCLK0", "Q1 REFCLK1"]
        self.new_project("138k")
        self.create("link0", lanes("q1_l0") + self.manual(0, "Q1 REFCLK0", "156.25"))
        self.assert_owners("multiplexers", {"Q1_MUX0": ["link0"]})
        self.assert_owners("referenceClocks", {"Q1_REFCLK0": ["link0"]})
        states = self.look("link1", [
            put(MODE, "Manual"), state("no lane"),
            put("tab1/q1_l1", True), state("quad 1"),
            put("tab1/q0_l1", True), state("both"),
            put("tab1/q1_l1", False), state("quad 0")])
        for label in ("no lane", "both", "quad 0"):
            self.assertEqual(items(states[label][self.source(0)]), free)
            self.assertTrue(states[label][self.source(0)]["enabled"])
        self.assertEqual(items(states["quad 1"][self.source(0)]), ["Q1 REFCLK0"])
        self.assert_field(states["quad 1"][self.source(0)], "Q1 REFCLK0", False)
        self.assert_field(states["quad 1"][self.frequency(0)], "156.25", False)
        self.assertEqual(items(states["quad 1"][self.source(1)]), free)

    def test_reopened_instance_keeps_its_own_free(self):
        self.new_project("60k")
        saved = self.create("link0", lanes("q0_l0") + self.manual(0, "Q0 REFIN1", "200"))
        report = self.session("open", "link0", [state("opened"), ACCEPT])
        shown = report["states"]["opened"]
        self.assert_field(shown[self.source(0)], "Q0 REFIN1", True)
        self.assertEqual(items(shown[self.source(0)]),
                         ["NA", "Q0 REFCLK0", "Q0 REFCLK1", "Q0 REFIN0", "Q0 REFIN1"])
        self.assert_field(shown[self.frequency(0)], "200", True)
        self.assertEqual(report["config"], saved)


class SharedBias(EndToEnd):
    def test_second_instance_takes_over_the_bias_of_its_quad(self):
        self.new_project("138k")
        self.create("link0", lanes("q0_l0") + [put(BIAS, 11), answer("Yes")])
        self.assertEqual(self.project_document()["data"], {"Q0_BIAS": 11})
        states = self.look("link1", [
            state("fresh"),
            put("tab1/q0_l1", True), state("quad 0"),
            put("tab1/q1_l0", True), state("both"),
            put("tab1/q0_l1", False), state("quad 1"),
            put(BIAS, 3), put("tab1/q1_l1", True), state("kept")])
        values = {label: shown[BIAS]["value"] for label, shown in states.items()}
        # Both quads: 7. Quad 1 alone has nothing in the store, so the value stays.
        self.assertEqual(values, {"fresh": 7, "quad 0": 11, "both": 7, "quad 1": 7, "kept": 3})
        for shown in states.values():
            self.assertTrue(shown[BIAS]["enabled"])

    def test_quad_1_has_its_own(self):
        self.new_project("138k")
        self.create("link0", lanes("q1_l2") + [put(BIAS, 4), answer("Yes")])
        self.create("link1", lanes("q0_l2") + [put(BIAS, 12), answer("Yes")])
        self.assertEqual(self.project_document()["data"], {"Q0_BIAS": 12, "Q1_BIAS": 4})
        self.assertEqual(self.ipgen("resources", self.project, "--json").json()["data"],
                         {"Q0_BIAS": 12, "Q1_BIAS": 4})
        states = self.look("link2", [put("tab1/q1_l0", True), state("quad 1"),
                                     put("tab1/q1_l0", False), put("tab1/q0_l0", True),
                                     state("quad 0")])
        self.assertEqual(states["quad 1"][BIAS]["value"], 4)
        self.assertEqual(states["quad 0"][BIAS]["value"], 12)


if __name__ == "__main__":
    main()
