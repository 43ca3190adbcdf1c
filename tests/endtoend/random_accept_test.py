"""Random configurations a user can make: chosen from what the dialog offers, accepted, generated,
read by Icarus Verilog, opened again to the same configuration, and made again from a recording.

IPGEN_RANDOM_COUNT: configurations a device class; IPGEN_RANDOM_SEED: where the choice starts. A
failure prints the session script, which `ipgen create --script` plays again.
"""

import json
import os
import random
import shutil
import subprocess
from fractions import Fraction

from support import ACCEPT, CANCEL, EndToEnd, answer, current, items, main, put, state, try_put

COUNT = int(os.environ.get("IPGEN_RANDOM_COUNT", "12"))
SEED = os.environ.get("IPGEN_RANDOM_SEED", "1")
LOOKS = 2  # rounds of choices in the other pages; a later one meets what an earlier one opened

OPERATION = "tab1/comboBoxOperationMode"
MODE = "tab1/comboBoxMode"
PLL = "tab1/CombBoxPLLSelection"
PLL_SOURCE = "tab1/CombBoxPLLRefSource"
RX_SOURCE = "tab1/CombBoxRxRefSource"
SOURCE = "tab1/CombBoxReferenceClockSource"
FREQUENCY = "tab1/ReferenceClockFrequency"
TX = "tab1/TXLineRate"
RX = "tab1/RXLineRate"
RATIO = "tab1/comboBoxTxLineRatio"
MUX_SOURCE = ["tab1/comboBoxRefMux%dSource" % mux for mux in range(4)]
MUX_FREQUENCY = ["tab1/ReferenceMux%dFreq" % mux for mux in range(4)]

# Oscillator range in MHz, m, d of the host's clock loops; n is 8 to 200 everywhere.
LOOPS = {"QPLL0": (4000, 8000, 4, (1, 2, 4, 8, 16)), "QPLL1": (3125, 6250, 4, (1, 2, 4, 8)),
         "CPLL": (2500, 6250, 4, (1, 2, 4, 8)), "CDR": (2500, 6250, 5, (1, 2, 4, 8))}
FREQUENCIES = ["50", "62.5", "75", "100", "106.25", "122.88", "125", "148.5", "150", "153.6",
               "156.25", "200", "250", "300", "312.5", "322.265625", "400", "500"]
RATES = ["1", "1.0625", "1.25", "1.485", "1.5", "1.62", "2", "2.125", "2.4576", "2.5", "2.7",
         "2.97", "3", "3.072", "3.125", "3.75", "4.25", "4.9152", "5", "5.4", "6", "6.144", "6.25",
         "7.5", "8", "8.5", "9.8304", "10", "10.3125", "11.88", "12", "12.5"]
SPINS = {"tab5/cmSpinBox": (0, 9), "tab5/c1SpinBox": (0, 9),  # together at most 19
         "tab5/attSpinBox": (0, 10), "tab5/biasSpinBox": (0, 15), "tab5/boostSpinBox": (0, 15)}
WANDER_ON_TAB1 = ("tab1/LoopbackMode", "tab1/checkBoxDRPPort")


def buildable(loop, frequency, rate):
    """Whether a whole-number setting makes the rate (Gbit/s) within 100 ppm; exact."""
    low, high, most_m, divisors = LOOPS[loop]
    rate, frequency = Fraction(rate) * 1000, Fraction(frequency)
    for m in range(1, most_m + 1):
        for d in divisors:
            exact = rate * m * d / (2 * frequency)
            for n in (int(exact), int(exact) + 1):
                made = 2 * frequency * n / (m * d)
                if (8 <= n <= 200 and low <= frequency * n / m <= high
                        and abs(made - rate) * 1000000 <= rate * 100):
                    return True
    return False


def plain(number):
    """A fraction as decimal text."""
    text = "%.8f" % float(number)
    return text.rstrip("0").rstrip(".")


class Draw:
    """One random configuration; its steps are all possible, in this order."""

    def __init__(self, test, number):
        self.test = test
        self.choice = random.Random("%s %s %d" % (SEED, test.device_class, number))
        self.steps = []
        self.frequencies = {}  # of a pin, MHz
        self.tx_line_rate = self.rx_line_rate = None
        self.tx_pins, self.rx_pins = [], []

    def look(self):
        return self.test.look("drawn", self.steps + [state("now")])["now"]

    def frequency(self, pin):
        return self.frequencies.setdefault(pin, self.choice.choice(FREQUENCIES))

    def draw(self):
        self.draw_lanes()
        if self.rx_only or self.manual:
            self.draw_multiplexers(self.look())
        else:
            self.draw_source(self.look())
        self.draw_rates()
        for _ in range(LOOKS):
            self.wander()
        self.steps += [put("frame/fileName", "drawn_%d" % self.choice.randrange(1000)),
                       put("frame/moduleName", "Drawn_%d" % self.choice.randrange(1000)),
                       answer(self.choice.choice(["Yes", "No"]))]

    def draw_lanes(self):
        fresh = self.look()
        self.operation = "TX and RX"
        if fresh[OPERATION]["visible"] and fresh[OPERATION]["enabled"]:
            self.operation = self.choice.choice(items(fresh[OPERATION]))
        self.rx_only = self.operation == "RX Only"
        free = sorted(name for name, widget in fresh.items()
                      if name.startswith(("tab1/q0_l", "tab1/q1_l")) and widget["enabled"])
        self.lanes = sorted(self.choice.sample(free, self.choice.randint(1, len(free))))
        self.manual = self.choice.choice(items(fresh[MODE])) == "Manual"
        self.pll = self.choice.choice(items(fresh[PLL]))
        steps = [put(name, True) for name in self.lanes]
        steps += [put(PLL, self.pll), put(MODE, "Manual" if self.manual else "Auto")]
        self.choice.shuffle(steps)
        self.steps += steps
        if self.operation != "TX and RX":
            self.steps.append(put(OPERATION, self.operation))

    def draw_source(self, shown):
        pin = self.choice.choice(items(shown[SOURCE]))
        self.steps += [put(SOURCE, pin), put(FREQUENCY, self.frequency(pin))]
        self.tx_pins = self.rx_pins = [pin]

    def draw_multiplexers(self, shown):
        def pick(field):
            widget = shown[field]
            if not widget["visible"] or not widget["enabled"]:
                return current(widget)
            # A lone receiver whose PLL is fed by REFMUX0 has no clock in its script.
            chosen = self.choice.choice([text for text in items(widget) if text != "REFMUX0"
                                         or field != PLL_SOURCE or not self.rx_only])
            self.steps.append(put(field, chosen))
            return chosen

        pll, receiver = pick(PLL_SOURCE), pick(RX_SOURCE) if shown[RX_SOURCE]["visible"] else None
        used = {pll, receiver} | ({"REFMUX1"} if self.rx_only else set())
        pins = {"GPIO": "Q0 REFIN", "MCLK": "MCLK"}
        for mux in range(4):
            widget = shown[MUX_SOURCE[mux]]
            if not widget["visible"]:
                continue
            name = "REFMUX%d" % mux
            pin = self.choice.choice([text for text in items(widget)
                                      if text != "NA" or name not in used])
            self.steps.append(put(MUX_SOURCE[mux], pin))
            if pin != "NA":
                pins[name] = pin
        # Every clock of the script, if the receiver may take any of them.
        self.tx_pins = [pins[pll]]
        self.rx_pins = [pins[receiver]] if receiver else [pins[pll]]
        if self.rx_only:
            self.rx_pins = sorted(set(pins.values()))
            self.share_one_frequency(self.rx_pins)
        for field, pin in (("tab1/GpioFrequency", "Q0 REFIN"), ("tab1/MclkFrequency", "MCLK")):
            if shown[field]["visible"]:
                self.steps.append(put(field, self.frequency(pin)))
        for mux in range(4):
            if "REFMUX%d" % mux in pins:
                self.steps.append(put(MUX_FREQUENCY[mux], self.frequency(pins["REFMUX%d" % mux])))

    def share_one_frequency(self, pins):
        """Which clock a lone receiver takes is the host's choice."""
        shared = self.choice.choice(FREQUENCIES)
        self.frequencies.update({pin: shared for pin in pins})

    def rate(self, loop, pins, below):
        """A usual rate, or else any that the loop makes."""
        good = [rate for rate in RATES if Fraction(rate) < below and all(
            buildable(loop, self.frequency(pin), rate) for pin in pins)]
        if not good or self.choice.random() < 0.2:
            frequency = Fraction(self.frequency(pins[0])) / 1000
            made = {plain(2 * frequency * n / d) for n in range(8, 201) for d in LOOPS[loop][3]}
            good = sorted(rate for rate in made if 1 <= Fraction(rate) < below
                          and Fraction(rate) <= Fraction(25, 2) and all(
                              buildable(loop, self.frequency(pin), rate) for pin in pins))
        return self.choice.choice(good)

    def draw_rates(self):
        steps = []
        if not self.rx_only:
            ratio = self.choice.choice([1, 1, 1, 5, 10, 20, 40])
            most = Fraction(13) if ratio == 1 else Fraction(ratio)
            self.tx_line_rate = Fraction(self.rate(self.pll, self.tx_pins, most))
            steps.append(put(TX, plain(self.tx_line_rate / ratio)))
            if ratio > 1:
                steps.append(put(RATIO, "%dx" % ratio))
        if self.operation != "TX Only":
            self.rx_line_rate = Fraction(self.rate("CDR", self.rx_pins, Fraction(13)))
            self.steps.append(put(RX, plain(self.rx_line_rate)))
        self.steps += steps

    def wander(self):
        """Half of what the dialog offers is given another value, in any order."""
        shown = self.look()
        steps = []
        for name in sorted(shown):
            widget = shown[name]
            if ((name.startswith("tab1/") and name not in WANDER_ON_TAB1)
                    or not widget["enabled"] or not widget["visible"]
                    or self.choice.random() < 0.5):
                continue
            value = self.value(name, widget)
            if value is not None:
                steps.append(try_put(name, value))
        self.choice.shuffle(steps)
        report = self.test.session("create", "drawn", self.steps + steps + [CANCEL])
        # One choice may forbid another: what the dialog refused is left out.
        refused = {refusal["step"] for refusal in report["refused"]}
        first = len(self.steps) + 1
        self.steps += [put(step["set"], step["to"]) for number, step in enumerate(steps, first)
                       if number not in refused]

    def value(self, name, widget):
        kind = widget["class"]
        if kind == "QComboBox":
            return self.choice.choice(items(widget)) if widget["items"] else None
        if kind == "QCheckBox":
            return self.choice.random() < 0.5
        if kind == "QSpinBox":
            return self.choice.randint(*SPINS[name])
        if kind != "QLineEdit":
            return None
        if name.endswith("lineEditMask"):
            return "".join(self.choice.choice("01") for _ in range(10))
        if name.endswith("lineEditRxInterMetaFrameLength"):
            return str(self.choice.choice([5, 16383, self.choice.randint(5, 16383)]))
        return "%02X" % self.choice.randrange(256)


class RandomTest(EndToEnd):
    def check_class(self, device_class):
        self.device_class = device_class
        self.assertIsNotNone(shutil.which("iverilog"), "Icarus Verilog is not installed")
        for number in range(COUNT):
            draw = Draw(self, number)
            with self.subTest(device=device_class, seed=SEED, number=number):
                self.project = self.path("%s-%d" % (device_class, number))
                self.new_project(device_class)
                try:
                    draw.draw()
                    self.check(draw)
                except Exception:
                    print("\nscript: " + json.dumps(draw.steps + [ACCEPT]), flush=True)
                    raise
                shutil.rmtree(self.project)

    def check(self, draw):
        recording = self.path("recorded.json")
        run = self.run_ipgen("create", self.project, "drawn", "--script", "-", "--report", "-",
                             "--record", recording, stdin=json.dumps(draw.steps + [ACCEPT]))
        report = json.loads(run.out)
        self.assertEqual((run.code, report["result"]), (0, "accepted"),
                         (run.err, report["messages"]))
        self.assertLessEqual({box["title"] for box in report["messages"]}, {"Question", "Warning"})
        config = report["config"]
        for key, box in (("Q%d_LN%d" % (q, n), "tab1/q%d_l%d" % (q, n))
                         for q in range(2) for n in range(4)):
            self.assertEqual(config[key], box in draw.lanes)
        self.check_clocks(draw, config)
        self.ipgen("generate", self.project)
        self.check_verilog(config)
        before = self.project_bytes()
        again = self.session("open", "drawn", [ACCEPT])
        self.assertEqual((again["result"], again["config"], again["messages"]),
                         ("accepted", config, []))
        self.assertEqual(self.project_bytes(), before)
        # Played back over an empty project, what was recorded makes the same project.
        self.ipgen("remove", self.project, "drawn")
        self.edit_project(lambda document: document.update(data={}))
        self.ipgen("create", self.project, "drawn", "--script", recording)
        self.assertEqual(self.project_bytes(), before)

    def folder_of(self, config):
        return os.path.join(self.project, "transceiver", config["file"], "temp", "CUSTOMIZED")

    def check_clocks(self, draw, config):
        """The generator's settings, multiplied out, make the rates from the chosen clocks."""
        with open(os.path.join(self.folder_of(config), "customized.csr"), encoding="utf-8") as file:
            csr = dict(line.split(" ", 1) for line in file.read().splitlines())
        for direction, rate, pins in (("tx", draw.tx_line_rate, draw.tx_pins),
                                      ("rx", draw.rx_line_rate, draw.rx_pins)):
            for lane in (name[len("tab1/"):].replace("_l", "_ln") for name in draw.lanes):
                prefix = "%s_%s_" % (lane, direction)
                self.assertEqual(prefix + "m" in csr, rate is not None
                                 and not self.leaves_out(direction, config), prefix)
                if prefix + "m" not in csr:
                    continue
                frequency = Fraction(csr[prefix + "refclk_mhz"])
                self.assertIn(frequency, [Fraction(draw.frequency(pin)) for pin in pins])
                made = (2 * frequency * int(csr[prefix + "n"])
                        / (int(csr[prefix + "m"]) * int(csr[prefix + "d"])) / 1000)
                self.assertLessEqual(abs(made - rate) * 1000000, rate * 100, prefix)

    @staticmethod
    def leaves_out(direction, config):
        return config["OPERATION_MODE"] == {"tx": "RX Only", "rx": "TX Only"}[direction]

    def check_verilog(self, config):
        folder = self.folder_of(config)
        with open(os.path.join(folder, "holder.v"), "w", encoding="utf-8") as file:
            file.write('`include "define.vh"\nmodule holder;\n`include "param.v"\nendmodule\n')
        read = subprocess.run(["iverilog", "-t", "null", "-g2005-sv", "-Wall", "holder.v"],
                              cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              encoding="utf-8", timeout=60)
        self.assertEqual((read.returncode, read.stdout), (0, ""))


class RandomAccept(RandomTest):
    def test_60k(self):
        self.check_class("60k")

    def test_15k(self):
        self.check_class("15k")

    def test_138k(self):
        self.check_class("138k")


if __name__ == "__main__":
    main()
