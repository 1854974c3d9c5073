#!/usr/bin/env -S python3 -B
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""How the cost of `nascor-cli rows` grows with the work, as figures and as a plot.

    bench/growth.py BUILD/bin PLOT.svg [MOST_DOCUMENTS]

Documents: 1,000, then ten times as many up to MOST_DOCUMENTS (100,000), of four examinations on average. Examinations: 1, 10, 100
and 1,000 to a document, 100,000 in all. Processor time is the least of some runs, since other programs only add to it; what an empty archive takes is
taken off. Each figure is a ratio to the first of its line.
"""

import sys

from turns import Runs, instructions, memory, run

EXAMINATIONS = 100_000
COUNTED = 5_000


def cost(program, source, rounds):
    """Processor seconds."""
    runs = Runs()
    for _ in range(rounds):
        run([program, "rows", "--tar", "-"], source, runs=runs)
    return runs.least()


def measured(programs, title, unit, sizes, source_of, units_of):
    """A line of the plot for each of time, instructions and memory."""
    program = f"{programs}/nascor-cli"
    nothing = [f"{programs}/nascor-clinic", "0"]
    start = cost(program, nothing, 9)
    start_counted = instructions([program, "rows", "--tar", "-"], nothing)
    lines = {"processor time": [], "instructions": [], "memory": []}
    print(f"{title}: microseconds and instructions for each {unit}, MiB")
    for size in sizes:
        source, units = source_of(size), units_of(size)
        seconds = cost(program, source, 9 if units < 300_000 else 3)
        held = memory([program, "rows", "--tar", "-"], source)
        lines["processor time"].append((size, 1e6 * (seconds - start) / units))
        lines["memory"].append((size, held))
        said = ""
        fewer = source_of(size, COUNTED)
        if fewer:
            counted = instructions([program, "rows", "--tar", "-"], fewer) - start_counted
            lines["instructions"].append((size, counted / units_of(size, COUNTED)))
            said = f"{lines['instructions'][-1][1]:.0f}"
        print(f"  {size:>8} {lines['processor time'][-1][1]:8.2f} {said:>8} {held:6.1f}", flush=True)
    return title, unit, lines


def plot(panels):
    """An SVG of the panels side by side: ratios to the first figure of each line over a tenfold axis."""
    width, height, left, top = 460, 300, 60, 50
    colours = {"processor time": "#1b6ca8", "instructions": "#b3541e", "memory": "#3b7d3b"}
    # The plot is under the licence of this file.
    with open(__file__, encoding="utf-8") as file:
        licence = [f"<!-- {line.removeprefix('# ')} -->" for line in file.read().splitlines()[1:3]]
    out = [*licence, "",
           f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {len(panels) * width} {height + 80}" '
           'font-family="sans-serif" font-size="13">',
           f'<rect width="{len(panels) * width}" height="{height + 80}" fill="white"/>']
    for number, (title, unit, lines) in enumerate(panels):
        sizes = [size for size, _ in lines["processor time"]]
        begin, span = number * width + left, width - left - 30
        ratios = {name: [(size, value / points[0][1]) for size, value in points] for name, points in lines.items()}
        most = max(1.2, *(ratio for points in ratios.values() for _, ratio in points)) * 1.05

        def at(size, ratio):
            x = begin + span * sizes.index(size) / max(1, len(sizes) - 1)
            return f"{x:.1f},{top + (height - top) * (1 - ratio / most):.1f}"

        band_top, band_end = (top + (height - top) * (1 - ratio / most) for ratio in (1.1, 0.9))
        out.append(f'<text x="{begin}" y="24" font-weight="bold">{title}: cost of each {unit}</text>')
        out.append(f'<rect x="{begin}" y="{band_top:.1f}" width="{span}" height="{band_end - band_top:.1f}" fill="#e8e8e8"/>')
        out.append(f'<path d="M{begin},{top} V{height} H{begin + span}" fill="none" stroke="black"/>')
        for ratio in (0, 0.5, 1):
            y = at(sizes[0], ratio).split(",")[1]
            out.append(f'<text x="{begin - 8}" y="{y}" text-anchor="end" dominant-baseline="middle">{ratio}</text>')
        for size in sizes:
            x = at(size, 0).split(",")[0]
            out.append(f'<text x="{x}" y="{height + 18}" text-anchor="middle">{size:,}</text>')
        for place, (name, points) in enumerate(ratios.items()):
            path = " ".join(at(size, ratio) for size, ratio in points)
            out.append(f'<polyline points="{path}" fill="none" stroke="{colours[name]}" stroke-width="2"/>')
            out.extend(f'<circle cx="{x}" cy="{y}" r="3" fill="{colours[name]}"/>'
                       for x, y in (point.split(",") for point in path.split()))
            out.append(f'<text x="{begin + place * 125}" y="{height + 50}" fill="{colours[name]}">{name}</text>')
    return "\n".join([*out, "</svg>", ""])


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    programs, picture = sys.argv[1:3]
    most = int(sys.argv[3]) if len(sys.argv) == 4 else 100_000
    documents = [size for size in (1_000, 10_000, 100_000, 1_000_000) if size <= most]

    def clinic(size, counted=None):
        if counted and size > 2 * counted:
            return None
        return [f"{programs}/nascor-clinic", str(size)]

    def long_documents(size, total=EXAMINATIONS):
        return [f"{programs}/many-examinations", str(size), str(total // size)]

    panels = [
        measured(programs, "documents", "document", documents, clinic, lambda size, _=None: size),
        measured(programs, "examinations of a document", "examination", [1, 10, 100, 1_000], long_documents,
                 lambda size, total=EXAMINATIONS: total // size * size),
    ]
    with open(picture, "w", encoding="utf-8") as file:
        file.write(plot(panels))


main()
