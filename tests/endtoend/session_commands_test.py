"""The commands that open a dialog: options, refusals, exit status and one-line errors."""

import json
import os
import struct
import xml.etree.ElementTree as ElementTree

from support import (ACCEPT, CALCULATE, CANCEL, EndToEnd, answer, lanes, main, press, put, state,
                     try_put)

TX = "tab1/TXLineRate"
RX = "tab1/RXLineRate"
SOURCE = "tab1/CombBoxReferenceClockSource"
FREQUENCY = "tab1/ReferenceClockFrequency"
WIDTH = "tab2/comboBoxTXInternalDataWidth"
BIAS = "tab5/biasSpinBox"


class CommandTest(EndToEnd):
    def setUp(self):
        super().setUp()
        self.new_project("60k")

    def write_script(self, steps, name="script.json"):
        with open(self.path(name), "w", encoding="utf-8") as file:
            json.dump(steps, file)
        return self.path(name)

    def read_json(self, name):
        with open(self.path(name), encoding="utf-8") as file:
            return json.load(file)

    def config(self, name):
        return self.project_document()["instances"][name]["config"]

    def assert_error(self, run, *words):
        """Standard error is one line of the program that holds the words."""
        self.assertTrue(run.err.startswith("ipgen: "), run.err)
        self.assertEqual(run.err.count("\n"), 1, run.err)
        for word in words:
            self.assertIn(word, run.err)


class Options(CommandTest):
    def test_a_setting_that_a_rule_overrides_is_told(self):
        told = 'ipgen: %s: tab1/%s was set to "%s", and a rule of the dialog has made it "%s"\n'
        run = self.ipgen("create", self.project, "a", "--set", "tab1/q0_l0=true",
                         "--set", "tab1/TXLineRate=99")
        self.assertEqual(run.err, told % ("a", "TXLineRate", "99", "1.25"))
        self.assertEqual(self.config("a")["TX_RATE"], "1.25")
        # Ticking a lane brings the default reference back.
        run = self.ipgen("create", self.project, "b",
                         "--set", "tab1/CombBoxReferenceClockSource=Q0 REFCLK1",
                         "--set", "tab1/ReferenceClockFrequency=100", "--set", "tab1/q0_l1=true")
        self.assertEqual(run.err, told % ("b", "ReferenceClockFrequency", "100", "125"))
        run = self.ipgen("create", self.project, "c", "--set", "tab1/q0_l2=true",
                         "--set", "tab1/TXLineRate=99", "--set", "tab1/TXLineRate=2.50",
                         "--set", "tab1/CombBoxReferenceClockSource=Q0 REFCLK2",
                         "--set", "tab5/biasSpinBox=09")
        self.assertEqual(run.err, "")
        self.assertEqual(self.config("c")["TX_RATE"], "2.50")

    def test_a_preset_that_a_later_setting_overrides_is_told(self):
        run = self.ipgen("create", self.project, "a", "--preset", "Serial bus, 2.5G 8B/10B",
                         "--set", "tab1/q0_l1=true")
        self.assertEqual(run.err, 'ipgen: a: tab1/ReferenceClockFrequency was set to "100", and a '
                                  'rule of the dialog has made it "125"\n')

    def test_an_output_without_a_folder_is_refused_before_the_session(self):
        for option in ("--record", "--report"):
            nowhere = self.path("nowhere", "file.json")
            run = self.ipgen("create", self.project, "a", option, nowhere,
                             "--set", "tab1/q0_l0=true", code=4)
            self.assert_error(run, nowhere, "there is no folder")
        self.assertEqual(self.project_document()["instances"], {})

    def test_details_are_of_failures(self):
        self.create("a", lanes("q0_l0"))
        report = self.session("create", "b", lanes("q0_l1", "q0_l2", "q0_l3")
                              + [{"answer": "No"}, {"accept": True}])
        self.assertEqual([message["title"] for message in report["messages"]], ["Question"])
        quiet = self.session("open", "a", [{"accept": True}])
        self.assertEqual((quiet["messages"], quiet["details"]), ([], []))

    def test_set_then_accept(self):
        run = self.ipgen("create", self.project, "link0", "--set", "tab1/q0_l2=true",
                         "--set", TX + "=2.5", "--set", WIDTH + "=20", "--set", BIAS + "=12",
                         "--set", "frame/moduleName=Phy_Top")
        self.assertEqual(run.err, "")
        self.assertEqual(run.out, "link0: saved in %s/project.json\n" % self.project)
        config = self.config("link0")
        self.assertEqual(
            (config["Q0_LN2"], config["TX_RATE"], config["TX_INTERNAL_DATA_WIDTH"],
             config["module"], config["file"], config["version"], config["type"]),
            (True, "2.5", "20", "Phy_Top", "link0", "1.0", "customized"))
        self.ipgen("open", self.project, "link0", "--set", RX + "=3.125")
        self.assertEqual((self.config("link0")["RX_RATE"], self.config("link0")["TX_RATE"]),
                         ("3.125", "2.5"))

    def test_set_fires_the_rules_of_a_field_that_is_left(self):
        self.ipgen("create", self.project, "link0", "--set", "tab1/q0_l0=true",
                   "--set", TX + "=12.6", "--set", RX + "=0.99", "--set", FREQUENCY + "=49.9")
        config = self.config("link0")
        self.assertEqual((config["TX_RATE"], config["RX_RATE"], config["REFERENCE_CLOCK_FREQ"]),
                         ("1.25", "1.25", "125"))

    def test_script_file_and_report_file(self):
        script = self.write_script(lanes("q0_l0") + [state("one"), answer("Yes"), ACCEPT])
        run = self.ipgen("create", self.project, "link0", "--script", script,
                         "--report", self.path("report.json"))
        self.assertEqual(run.out, "link0: saved in %s/project.json\n" % self.project)
        report = self.read_json("report.json")
        self.assertEqual(report["result"], "accepted")
        self.assertEqual(report["refused"], [])
        self.assertEqual(report["config"], self.config("link0"))
        self.assertEqual([message["answer"] for message in report["messages"]], ["Yes"])
        self.assertEqual(list(report["states"]), ["one"])
        self.assertEqual(list(report["figures"]), ["one"])
        self.assertNotIn("error", report)

    def test_standard_input_and_output(self):
        run = self.ipgen("create", self.project, "link0", "--script", "-", "--report", "-",
                         stdin=json.dumps(lanes("q0_l0") + [ACCEPT]))
        self.assertEqual(run.json()["config"], self.config("link0"))  # and nothing else there

    def test_a_state_names_every_kind_of_widget(self):
        shown = self.session("create", "link0", [
            put("tab1/q0_l1", True), state("now"), CANCEL])["states"]["now"]
        expected = {
            "tab1/q0_l1": {"class": "QCheckBox", "enabled": True, "visible": True,
                           "checked": True, "text": "Q0 Lane1"},
            "tab1/q1_l1": {"class": "QCheckBox", "enabled": False, "checked": False},
            TX: {"class": "QLineEdit", "enabled": True, "visible": True, "text": "1.25"},
            "tab1/comboBoxOperationMode": {"class": "QComboBox", "enabled": True, "current": 0},
            SOURCE: {"class": "QComboBox", "current": 0, "items": [
                ["Q0 REFCLK0", 0], ["Q0 REFCLK1", 1], ["Q0 REFCLK2", 2], ["Q0 REFCLK3", 3],
                ["Q0 REFIN0", 4], ["Q0 REFIN1", 5]]},
            "tab1/GpioFrequency": {"class": "QLineEdit", "visible": False},
            "tab1/ButtonCalculate": {"class": "QPushButton", "enabled": True, "text": "Calculate"},
            "tab1/label": {"class": "QLabel", "text": "TX Line Rate"},
            "tab1/ChannelSelection": {"class": "QGroupBox"},
            "tab3/lineEditPattern0": {"class": "QLineEdit", "enabled": False, "text": "7C"},
            BIAS: {"class": "QSpinBox", "enabled": True, "visible": True, "value": 7},
        }
        for name, values in expected.items():
            for key, value in values.items():
                self.assertEqual(shown[name][key], value, (name, key))

    def test_recording_plays_back(self):
        steps = lanes("q0_l0", "q0_l3") + [
            put("frame/fileName", "recorded"), put(TX, "0.5"),
            put("tab1/comboBoxTxLineRatio", "10x"), put(SOURCE, "Q0 REFIN1"),
            put(FREQUENCY, "250"), put(WIDTH, "20"), put("tab2/comboBoxTxEncoding", "8B10B"),
            put("tab2/WordAlignment", True), put("tab2/lineEditMask", "0011111111"),
            put("tab3/comboBoxRXChannelBoding", "Two Words"), put("tab3/lineEditPattern1", "bc"),
            put("tab4/comboBoxClockCorrection", "Two Words"),
            put("tab5/equalizationModeCombox", "Manual"), put("tab5/attSpinBox", 3),
            put(BIAS, 14), CALCULATE, put(BIAS, 13), answer("Yes"), ACCEPT]
        self.ipgen("create", self.project, "link0", "--script", self.write_script(steps),
                   "--record", self.path("recorded.json"))
        first, data = self.config("link0"), self.project_document()["data"]
        self.assertEqual(data, {"Q0_BIAS": 13})
        self.assertEqual(first["PATTERN1"], "BC")
        self.ipgen("remove", self.project, "link0")
        self.edit_project(lambda document: document.update(data={}))
        report = self.session("create", "link0", self.read_json("recorded.json"))
        self.assertEqual(report["result"], "accepted")
        self.assertEqual(self.config("link0"), first)
        self.assertEqual(self.project_document()["data"], data)

    def test_recording_of_a_cancelled_session(self):
        self.ipgen("create", self.project, "link0", "--record", self.path("recorded.json"),
                   "--script", self.write_script(lanes("q0_l1") + [CANCEL]))
        report = self.session("create", "link0", self.read_json("recorded.json"))
        self.assertEqual(report["result"], "cancelled")

    def test_cancel_and_the_end_of_a_script_save_nothing(self):
        before = self.project_bytes()
        for steps in (lanes("q0_l0") + [CANCEL], lanes("q0_l0"), []):
            with self.subTest(steps):
                report = self.session("create", "link0", steps)
                self.assertEqual(report["result"], "cancelled")
                self.assertNotIn("config", report)
                self.assertEqual(self.project_bytes(), before)


class Refusals(CommandTest):
    # Step, object, and words of the reason.
    CASES = [
        (put("tab1/q1_l0", True), "tab1/q1_l0", "disabled"),
        (put(WIDTH, "12"), WIDTH, '"12"'),
        (put(TX, "1.2.3"), TX, "refuses"),
        (put(TX, "100"), TX, "refuses"),
        (put("tab1/GpioFrequency", "60"), "tab1/GpioFrequency", "hidden"),
        (put("tab3/lineEditPattern0", "1C"), "tab3/lineEditPattern0", "disabled"),
        (put("tab1/Nothing", "1"), "tab1/Nothing", "no object"),
        (put("tab9/q0_l0", True), "tab9/q0_l0", "no tab 9"),
        (put("tab5/biasSpinBox", 16), "tab5/biasSpinBox", "range"),
        (put("tab1/q0_l0", "maybe"), "tab1/q0_l0", "check box"),
        (put("frame/nothing", "x"), "frame/nothing", "nothing"),
        (press("tab1/TXLineRate"), "tab1/TXLineRate", "no button"),
    ]

    def test_end_the_session(self):
        before = self.project_bytes()
        for step, name, why in self.CASES:
            with self.subTest(step):
                report = self.session("create", "link0", lanes("q0_l0") + [step, ACCEPT], code=1)
                self.assertEqual(report["result"], "failed")
                self.assertIn("step 2", report["error"])
                self.assertIn(why, report["error"])
                self.assert_error(report["run"], "link0", "step 2", name, why)
                self.assertEqual(report["refused"], [])
                self.assertEqual(self.project_bytes(), before)

    def test_go_on_with_try(self):
        steps = lanes("q0_l0") + [dict(step, **{"try": True}) for step, _, _ in self.CASES]
        report = self.session("create", "link0", steps + [try_put(TX, "2.5"), ACCEPT])
        self.assertEqual(report["result"], "accepted")
        self.assertEqual([refusal["step"] for refusal in report["refused"]],
                         list(range(2, 2 + len(self.CASES))))
        for refusal, (_, _, why) in zip(report["refused"], self.CASES):
            self.assertIn(why, refusal["why"])
        self.assertEqual((report["config"]["TX_RATE"], report["config"]["Q0_LN0"]), ("2.5", True))

    def test_instances(self):
        self.create("link0", lanes("q0_l0"))
        script = self.write_script([ACCEPT])
        for arguments in (("open", "other", "--script", script), ("figure", "other", "--json"),
                          ("check", "other"), ("check", "link0", "other"), ("remove", "other"),
                          ("generate", "other"), ("create", "link0", "--script", script)):
            with self.subTest(arguments):
                before = self.project_bytes()
                run = self.ipgen(arguments[0], self.project, *arguments[1:], code=1)
                self.assert_error(run, "link0" if arguments[0] == "create" else "other")
                self.assertEqual(run.out, "")
                self.assertEqual(self.project_bytes(), before)

    def test_wrong_usage(self):
        script = self.write_script([ACCEPT])
        for arguments in (("create", self.project),
                          ("create", self.project, "a", "--set", "no equals sign"),
                          ("create", self.project, "a", "--set", "a/b=1", "--script", script),
                          ("create", self.project, "a", "--unknown"),
                          ("figure", self.project, "a"),
                          ("figure", self.project, "a", "--json", "--svg", "a.svg")):
            with self.subTest(arguments):
                before = self.project_bytes()
                self.assertTrue(self.ipgen(*arguments, code=2).err)
                self.assertEqual(self.project_bytes(), before)

    def test_unreadable_inputs(self):
        before = self.project_bytes()
        for text, words in (("[", "line 1, column 2"), ("{}", "list"), ('[{"set": "a"}]', '"to"'),
                            ('[{"jump": true}]', "jump"),
                            ('[{"accept": true, "accept": true}]', "accept")):
            with self.subTest(text):
                run = self.ipgen("create", self.project, "a", "--script", "-", stdin=text, code=3)
                self.assert_error(run, "standard input", words)
        run = self.ipgen("create", self.project, "a", "--script", self.path("none.json"), code=3)
        self.assert_error(run, "none.json")
        run = self.ipgen("open", self.path("nowhere"), "a", "--set", "tab1/q0_l0=true", code=3)
        self.assert_error(run, "nowhere")
        self.assertEqual(self.project_bytes(), before)

    def test_outputs_that_cannot_be_written(self):
        self.create("link0", lanes("q0_l0"))
        nowhere = self.path("nowhere", "file")
        script = self.write_script([ACCEPT])
        for arguments in (("open", "link0", "--script", script, "--report", nowhere),
                          ("open", "link0", "--script", script, "--record", nowhere),
                          ("figure", "link0", "--svg", nowhere),
                          ("figure", "link0", "--png", nowhere)):
            with self.subTest(arguments):
                run = self.ipgen(arguments[0], self.project, *arguments[1:], code=4)
                self.assert_error(run, nowhere)

    def test_a_dialog_without_a_display(self):
        before = self.project_bytes()
        run = self.run_ipgen("create", self.project, "link0")
        self.assertNotEqual(run.code, 0)
        self.assert_error(run, "display", "--script")
        self.assertEqual(self.project_bytes(), before)


class RefusedVersion(CommandTest):
    BOX = {"title": "Error",
           "text": "This version of specified IP Config file is incompatible with current IP Core "
                   "Generator.",
           "buttons": ["OK"], "answer": "OK"}

    def test_the_dialog_does_not_open(self):
        self.create("link0", lanes("q0_l0"))
        for version in ("1.0 ", "1.00", "1", "", None):
            with self.subTest(version):
                def change(document):
                    config = document["instances"]["link0"]["config"]
                    config.pop("version", None)
                    if version is not None:
                        config["version"] = version
                self.edit_project(change)
                before = self.project_bytes()
                report = self.session("open", "link0", [state("never"), ACCEPT], code=1)
                self.assertEqual(report["result"], "refused")
                self.assertEqual(report["messages"], [self.BOX])
                self.assertEqual(report["states"], {})
                self.assertNotIn("config", report)
                self.assert_error(report["run"], "link0", self.BOX["text"])
                run = self.ipgen("check", self.project, code=1)
                self.assertTrue(run.out.startswith("link0: failed: "), run.out)
                self.assertIn(self.BOX["text"], run.out)
                self.assert_error(self.ipgen("figure", self.project, "link0", "--json", code=1),
                                  "link0", self.BOX["text"])
                self.assertEqual(self.project_bytes(), before)


class Check(CommandTest):
    def test_verdicts(self):
        self.assertEqual(self.ipgen("check", self.project).out, "")
        self.create("a", lanes("q0_l0"))
        self.create("b", lanes("q0_l1", "q0_l2") + [put(SOURCE, "Q0 REFCLK2")])
        before = self.project_bytes()
        self.assertEqual(self.ipgen("check", self.project).out, "a: ok\nb: ok\n")
        self.assertEqual(self.ipgen("check", self.project, "b").out, "b: ok\n")
        self.assertEqual(self.project_bytes(), before)
        # 10312.5 = 2 * 71 * n / (m * d) asks for n / (m * d) = 72.62 at d = 1, where the nearest,
        # 145 / 2, is 1700 ppm off.
        def change(document):
            config = document["instances"]["b"]["config"]
            config.update(REFERENCE_CLOCK_FREQ="71", TX_RATE="10.3125")
        self.edit_project(change)
        before = self.project_bytes()
        run = self.ipgen("check", self.project, code=1)
        first, second = run.out.splitlines()
        self.assertEqual(first, "a: ok")
        self.assertTrue(second.startswith("b: failed: "), second)
        self.assertIn("The Expected Line Rate can not be generated by the Reference Clock "
                      "Frequency", second)
        document = self.ipgen("check", self.project, "--json", code=1).json()
        self.assertEqual([(row["name"], row["ok"]) for row in document["instances"]],
                         [("a", True), ("b", False)])
        self.assertEqual([row["error"] == "" for row in document["instances"]], [True, False])
        self.assertEqual(self.project_bytes(), before)

    def test_nothing_is_stored(self):
        # OK's checks would store the bias of an instance that was given a Yes.
        self.create("a", lanes("q0_l0") + [put(BIAS, 3), answer("Yes")])
        self.edit_project(lambda document: document.update(data={}))
        before = self.project_bytes()
        self.assertEqual(self.ipgen("check", self.project).out, "a: ok\n")
        self.assertEqual(self.project_bytes(), before)


class Figure(CommandTest):
    def test_forms(self):
        steps = lanes("q0_l0", "q0_l2") + [put("tab1/checkBoxDRPPort", True)]
        report = self.session("create", "link0", steps + [state("last"), ACCEPT])
        before, files = self.project_bytes(), sorted(os.listdir(self.project))
        pins = self.ipgen("figure", self.project, "link0", "--json").json()
        self.assertEqual(pins, report["figures"]["last"])
        names = [pin["name"] for pin in pins]
        # A lane: 13 for every one, 5 of the receive FIFO, 5 of the transmit FIFO; 10 of the DRP.
        self.assertEqual(len(names), 2 * (13 + 5 + 5) + 10)
        self.assertEqual(len(set(names)), len(names))
        self.assertIn("q0_ln0_ready_o", names)
        self.assertIn("q0_ln2_ready_o", names)
        self.assertNotIn("q0_ln1_ready_o", names)
        for pin in pins:  # inputs are 0 and stand left, outputs 1 and right
            self.assertEqual(set(pin), {"name", "direction", "bus", "side"})
            self.assertEqual(pin["bus"], pin["name"].endswith("]"))
            self.assertEqual(pin["side"], ("left", "right")[pin["direction"]])
        self.assertEqual(pins[0], {"name": "q0_ln0_ready_o", "direction": 1, "bus": False,
                                   "side": "right"})
        self.assertIn({"name": "drp_addr_i[23:0]", "direction": 0, "bus": True, "side": "left"},
                      pins)
        self.ipgen("figure", self.project, "link0", "--svg", self.path("f.svg"))
        drawing = ElementTree.parse(self.path("f.svg")).getroot()
        self.assertEqual(drawing.tag, "{http://www.w3.org/2000/svg}svg")
        texts = {"".join(text.itertext()).strip()
                 for text in drawing.iter("{http://www.w3.org/2000/svg}text")}
        self.assertLessEqual(set(names), texts)
        self.ipgen("figure", self.project, "link0", "--png", self.path("f.png"))
        with open(self.path("f.png"), "rb") as file:
            header = file.read(24)
        self.assertEqual(header[:8], b"\x89PNG\r\n\x1a\n")
        width, height = struct.unpack(">II", header[16:24])
        self.assertGreater(width, 100)
        self.assertGreater(height, 10 * len(pins) // 2)
        self.assertEqual(self.project_bytes(), before)
        self.assertEqual(sorted(os.listdir(self.project)), files)


if __name__ == "__main__":
    main()
