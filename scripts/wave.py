#!/usr/bin/python3
"""Draws signals of a VCD file as an SVG: wave.py FILE.vcd OUT.svg FROM TO SIGNAL...
FROM and TO in ns; a signal is a name in the top scope, drawn as a line or, with several bits, as
its values in hexadecimal."""
import re
import sys
from xml.sax.saxutils import escape

WIDTH, LABEL, ROW = 1000, 210, 34


def read(path, wanted):
    codes, widths, values, unit = {}, {}, {}, 1e-15
    time, depth = 0, 0
    for line in open(path, encoding="ascii", errors="replace"):
        words = line.split()
        if not words:
            continue
        if words[0] == "$scope":
            depth += 1
        elif words[0] == "$upscope":
            depth -= 1
        elif words[0] == "$var" and depth == 1 and words[4] in wanted:
            codes.setdefault(words[3], []).append(words[4])
            widths[words[4]] = int(words[2])
            values[words[4]] = []
        elif line[0] == "#":
            time = int(line[1:]) * unit * 1e9
        elif line[0] in "01xz" and words[0][1:] in codes:
            for name in codes[words[0][1:]]:
                values[name].append((time, line[0]))
        elif line[0] in "bB" and len(words) == 2 and words[1] in codes:
            for name in codes[words[1]]:
                values[name].append((time, words[0][1:]))
    return widths, values


def text_of(bits):
    if re.search("[xz]", bits):
        return "x"
    return format(int(bits, 2), "x")


def main():
    path, out = sys.argv[1:3]
    begin, end = float(sys.argv[3]), float(sys.argv[4])
    names = sys.argv[5:]
    widths, values = read(path, set(names))
    missing = [n for n in names if n not in values]
    if missing:
        sys.exit("wave.py: not in the file: " + ", ".join(missing))
    place = lambda t: LABEL + (min(max(t, begin), end) - begin) / (end - begin) * (WIDTH - LABEL)
    height = ROW * len(names) + 40
    svg = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" '
           f'font-family="monospace" font-size="13"><rect width="100%" height="100%" fill="white"/>']
    for row, name in enumerate(names):
        top, low = row * ROW + 8, row * ROW + 30
        svg.append(f'<text x="6" y="{low - 5}">{escape(name)}</text>')
        events = values[name]
        before = [v for t, v in events if t <= begin]
        shown = [(begin, before[-1] if before else "x")] + [e for e in events if begin < e[0] < end]
        for i, (t, v) in enumerate(shown):
            a, b = place(t), place(shown[i + 1][0] if i + 1 < len(shown) else end)
            if widths[name] == 1:
                y = top if v == "1" else low
                last = shown[i - 1][1] if i else v
                if last != v:
                    svg.append(f'<path d="M{a:.1f} {top}V{low}" stroke="#1565c0"/>')
                svg.append(f'<path d="M{a:.1f} {y}H{b:.1f}" stroke="#1565c0"/>')
            else:
                svg.append(f'<rect x="{a:.1f}" y="{top}" width="{b - a:.1f}" height="{low - top}" '
                           'fill="#e3f2fd" stroke="#1565c0"/>')
                text = text_of(v)
                if 8 * len(text) + 4 < b - a:
                    svg.append(f'<text x="{a + 3:.1f}" y="{low - 6}">{text}</text>')
    axis = ROW * len(names) + 14
    for i in range(5):
        t = begin + (end - begin) * i / 4
        anchor = "end" if i == 4 else "middle" if i else "start"
        svg.append(f'<text x="{place(t):.1f}" y="{axis + 16}" text-anchor="{anchor}" '
                   f'fill="#555">{t:.0f} ns</text>')
    svg.append("</svg>")
    open(out, "w", encoding="utf-8").write("\n".join(svg) + "\n")


main()
