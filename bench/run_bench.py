#!/usr/bin/env python3
"""Runs the benchmark programs and prints one table: per case and thread count,
our time, OpenCV's time and their ratio.

    bench/run_bench.py [--build build] [--filter REGEX] [--repetitions N]
                       [--json results.json] [--svg results.svg] [--from results.json]

Benchmarks are named <library>/<case>/threads:<n> (see bench/common.hpp);
`zeli` is this library, `opencv` OpenCV's nearest equivalent and `libc` a
memcpy or memset baseline. Times are real-time medians over the repetitions
(one run each without --repetitions), in microseconds a call. A ratio above 1
means OpenCV takes longer than we do. --from reads the JSON this script wrote
before instead of running anything. Needs only Python 3.
"""
import argparse
import glob
import json
import os
import re
import statistics
import subprocess
import sys

NAME = re.compile(r"^(?P<lib>[a-z]+)/(?P<case>.+?)(?:/real_time)?$")
THREADS = re.compile(r"/threads:(\d+)")


def run_programs(build, flt, repetitions):
    programs = sorted(glob.glob(os.path.join(build, "bench", "bench_*")))
    programs = [p for p in programs if os.access(p, os.X_OK) and not p.endswith((".cpp", ".o"))]
    if not programs:
        sys.exit(f"no benchmark programs in {build}/bench: configure with -DZEL_BUILD_BENCH=ON "
                 "(needs libbenchmark-dev) and build first")
    results = []
    for prog in programs:
        cmd = [prog, "--benchmark_format=json"]
        if flt:
            cmd.append(f"--benchmark_filter={flt}")
        if repetitions > 1:
            cmd += [f"--benchmark_repetitions={repetitions}", "--benchmark_report_aggregates_only=false"]
        print(f"running {os.path.basename(prog)} ...", file=sys.stderr, flush=True)
        run = subprocess.run(cmd, check=True, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        if run.stdout.strip():  # nothing when the filter matches no benchmark of this program
            results += json.loads(run.stdout).get("benchmarks", [])
    return results


def collect(benchmarks):
    """{(case, threads): {library: [microseconds, ...]}} from Google Benchmark's records."""
    rows = {}
    for b in benchmarks:
        if b.get("run_type") == "aggregate":
            continue
        m = NAME.match(b.get("run_name", b["name"]))
        if not m:
            continue
        case, threads = m.group("case"), 1
        t = THREADS.search(case)
        if t:
            threads = int(t.group(1))
            case = THREADS.sub("", case)
        scale = {"ns": 1e-3, "us": 1.0, "ms": 1e3, "s": 1e6}[b.get("time_unit", "ns")]
        rows.setdefault((case, threads), {}).setdefault(m.group("lib"), []).append(b["real_time"] * scale)
    return {k: {lib: statistics.median(v) for lib, v in libs.items()} for k, libs in sorted(rows.items())}


def table(rows):
    extra = sorted({lib for libs in rows.values() for lib in libs} - {"zeli", "opencv"})
    head = ["case", "threads", "zeli us", "opencv us", "opencv/zeli"] + [f"{lib} us" for lib in extra]
    lines = [head]
    for (case, threads), libs in rows.items():
        z, o = libs.get("zeli"), libs.get("opencv")
        ratio = f"{o / z:.2f}" if z and o else "-"
        cells = [case, str(threads), f"{z:.1f}" if z else "-", f"{o:.1f}" if o else "-", ratio]
        lines.append(cells + [f"{libs[lib]:.1f}" if lib in libs else "-" for lib in extra])
    widths = [max(len(r[i]) for r in lines) for i in range(len(head))]
    out = []
    for n, r in enumerate(lines):
        out.append("  ".join(c.ljust(w) if i == 0 else c.rjust(w) for i, (c, w) in enumerate(zip(r, widths))))
        if n == 0:
            out.append("  ".join("-" * w for w in widths))
    return "\n".join(out)


def svg(rows, path):
    """A horizontal bar chart of opencv/zeli per case and thread count, 1 marked."""
    pairs = [(f"{c} ({t}t)", libs["opencv"] / libs["zeli"]) for (c, t), libs in rows.items()
             if libs.get("zeli") and libs.get("opencv")]
    if not pairs:
        print("no case has both times: no plot written", file=sys.stderr)
        return
    top = max(2.0, max(r for _, r in pairs) * 1.05)
    left, width, bar = 330, 460, 16
    height = 40 + bar * len(pairs)
    x = lambda r: left + width * min(r, top) / top
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{left + width + 60}" height="{height + 30}" '
             'font-family="sans-serif" font-size="11">',
             f'<text x="{left}" y="16">OpenCV time / our time (above 1: we are faster)</text>']
    for i, (label, r) in enumerate(pairs):
        y = 28 + i * bar
        colour = "#3a7d44" if r >= 1 else "#b5483b"
        parts.append(f'<text x="{left - 6}" y="{y + 11}" text-anchor="end">{label}</text>')
        parts.append(f'<rect x="{left}" y="{y + 2}" width="{x(r) - left:.1f}" height="{bar - 4}" fill="{colour}"/>')
        parts.append(f'<text x="{x(r) + 4:.1f}" y="{y + 11}">{r:.2f}</text>')
    parts.append(f'<line x1="{x(1):.1f}" y1="24" x2="{x(1):.1f}" y2="{height}" stroke="black" stroke-dasharray="3,3"/>')
    parts.append("</svg>")
    with open(path, "w") as f:
        f.write("\n".join(parts) + "\n")


def main():
    ap = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    ap.add_argument("--build", default="build", help="build directory (default: build)")
    ap.add_argument("--filter", help="only benchmarks whose name matches this regular expression")
    ap.add_argument("--repetitions", type=int, default=1, help="runs of each benchmark; the median is shown")
    ap.add_argument("--json", help="also write the table as JSON to this file")
    ap.add_argument("--svg", help="also plot the ratios as an SVG bar chart to this file")
    ap.add_argument("--from", dest="source", help="read a JSON file written by --json instead of running")
    args = ap.parse_args()

    if args.source:
        with open(args.source) as f:
            rows = {(r["case"], r["threads"]): r["times_us"] for r in json.load(f)["results"]}
    else:
        rows = collect(run_programs(args.build, args.filter, args.repetitions))
    if not rows:
        sys.exit("no benchmark results")
    print(table(rows))
    if not any("opencv" in libs for libs in rows.values()):
        print("\n(no OpenCV times: the benchmarks were built without OpenCV)")
    if args.json:
        with open(args.json, "w") as f:
            json.dump({"unit": "microseconds per call, real time, median",
                       "results": [{"case": c, "threads": t, "times_us": libs,
                                    "opencv_over_zeli": libs["opencv"] / libs["zeli"]
                                    if libs.get("zeli") and libs.get("opencv") else None}
                                   for (c, t), libs in rows.items()]}, f, indent=1)
    if args.svg:
        svg(rows, args.svg)


if __name__ == "__main__":
    main()
