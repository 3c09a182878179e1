#!/usr/bin/env python3
"""Writes the figures of a Google Benchmark JSON report into docs/performance.md, between the
<!-- figures --> and <!-- /figures --> lines, with the machine they were taken on."""
import json
import platform
import re
import statistics
import sys


def cpu_model():
    try:
        with open("/proc/cpuinfo") as f:
            for line in f:
                if line.startswith("model name"):
                    return line.split(":", 1)[1].strip()
    except OSError:
        pass
    return platform.processor() or "unknown"


def us(b):
    scale = {"ns": 1e-3, "us": 1.0, "ms": 1e3, "s": 1e6}[b.get("time_unit", "ns")]
    return b["real_time"] * scale


def fmt_time(v):
    if v < 1:
        return f"{v * 1000:.0f} ns"
    if v < 1000:
        return f"{v:.1f} µs"
    return f"{v / 1000:.2f} ms"


COUNTERS = ("frames_per_key", "heap_bytes", "bytes_per_row", "items_per_second",
            "frames")


def counters(b):
    out = []
    for k in COUNTERS:
        if k in b:
            v = b[k]
            out.append(f"{k} {v:,.0f}" if k != "frames_per_key" else f"{k} {v:.2f}")
    return ", ".join(out)


def main(report_path, doc_path):
    with open(report_path) as f:
        report = json.load(f)
    ctx = report["context"]
    rows = [b for b in report["benchmarks"] if b.get("run_type", "iteration") == "iteration"]
    errors = [b["name"] for b in rows if b.get("error_occurred")]
    open_close = [b for b in rows if b["name"].startswith("BM_OpenClose/")]
    others = [b for b in rows if not b["name"].startswith("BM_OpenClose/")]

    lines = []
    lines.append(f"Taken {ctx.get('date', '?')} on {cpu_model()}, {ctx.get('num_cpus', '?')} cores "
                 f"at {ctx.get('mhz_per_cpu', '?')} MHz, {platform.system()} "
                 f"{platform.release()}; build `default` (RelWithDebInfo), "
                 f"Google Benchmark library built as {ctx.get('library_build_type', '?')}; load average "
                 f"{', '.join(f'{x:.2f}' for x in ctx.get('load_avg', []))} at the start (other "
                 f"builds running on the machine slow the figures).")
    lines.append("")
    lines.append("| Benchmark | Time per iteration | Counters |")
    lines.append("|---|---|---|")
    for b in others:
        lines.append(f"| `{b['name']}` | {fmt_time(us(b))} | {counters(b)} |")
    if open_close:
        times = sorted((us(b), b["name"].split("/", 1)[1]) for b in open_close)
        med = statistics.median(t for t, _ in times)
        lines.append(f"| `BM_OpenClose/<class>` ({len(times)} classes) | median {fmt_time(med)}, "
                     f"fastest {fmt_time(times[0][0])} (`{times[0][1]}`), slowest "
                     f"{fmt_time(times[-1][0])} (`{times[-1][1]}`) | |")
        lines.append("")
        lines.append("The five slowest classes to open and close: " + ", ".join(
            f"`{name}` {fmt_time(t)}" for t, name in reversed(times[-5:])) + ".")
    if errors:
        lines.append("")
        lines.append("Benchmarks that reported an error: " + ", ".join(errors) + ".")

    with open(doc_path) as f:
        doc = f.read()
    new, n = re.subn(r"(<!-- figures -->\n).*?(<!-- /figures -->)",
                     lambda m: m.group(1) + "\n".join(lines) + "\n" + m.group(2), doc, flags=re.S)
    if n != 1:
        sys.exit(f"{doc_path}: no <!-- figures --> section")
    with open(doc_path, "w") as f:
        f.write(new)


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
