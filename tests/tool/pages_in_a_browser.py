#!/usr/bin/env python3
"""Opens reports and plots in a browser, as their readers do, and measures what it makes of them.

usage: pages_in_a_browser.py QELPRO FOLDER_OF_DATA

For pages of files of the tests and of a file that means harm, in widths of a telephone, a tablet and a screen, in light and dark:
no message on the console, nothing asked of the network, no label of a chart over another or outside its picture, nothing cut off,
every text well to be told from its background; and on paper some pages, not none.
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

SKIPPED = 77
WIDTHS = [360, 800, 1400]

# Runs in a page of the test beside the pages that are looked at, each of which is a frame of that width.
MEASURE = r"""
const problems = [];
const say = (where, what) => { if (problems.length < 40) problems.push(where + ': ' + what); };
const name = e => e.tagName + '.' + (e.getAttribute('class') || '') + ' "' + e.textContent.trim().slice(0, 40) + '"';
const visible = e => e.checkVisibility ? e.checkVisibility() : true;

function luminance(colour) {
  const parts = colour.match(/[\d.]+/g).slice(0, 3).map(x => x / 255).map(x => x <= 0.04045 ? x / 12.92 : ((x + 0.055) / 1.055) ** 2.4);
  return 0.2126 * parts[0] + 0.7152 * parts[1] + 0.0722 * parts[2];
}
function contrast(a, b) {
  const [x, y] = [luminance(a), luminance(b)].sort((p, q) => q - p);
  return (x + 0.05) / (y + 0.05);
}
function background(window, element) {
  for (let e = element; e; e = e.parentElement) {
    const colour = window.getComputedStyle(e).backgroundColor;
    if (colour !== 'rgba(0, 0, 0, 0)' && colour !== 'transparent') return colour;
  }
  return 'rgb(255, 255, 255)';
}

function charts(where, document) {
  let labels = 0;
  for (const svg of document.querySelectorAll('svg')) {
    if (!visible(svg)) continue;
    const frame = svg.getBoundingClientRect();
    const texts = [...svg.querySelectorAll('text')].map(e => [e, e.getBoundingClientRect()]);
    labels += texts.length;
    for (const [e, box] of [...texts, ...[...svg.querySelectorAll('path,rect')].map(e => [e, e.getBoundingClientRect()])]) {
      if (box.left < frame.left - 1 || box.right > frame.right + 1 || box.top < frame.top - 1 || box.bottom > frame.bottom + 1) {
        say(where, 'outside its picture: ' + name(e));
      }
    }
    texts.sort((a, b) => a[1].top - b[1].top);
    for (let i = 0; i < texts.length; ++i) {
      for (let j = i + 1; j < texts.length && texts[j][1].top < texts[i][1].bottom - 0.5; ++j) {
        const [a, b] = [texts[i][1], texts[j][1]];
        if (a.left < b.right - 0.5 && b.left < a.right - 0.5) {
          say(where, 'labels overlap: ' + name(texts[i][0]) + ' and ' + name(texts[j][0]));
        }
      }
    }
  }
  return labels;
}

function measure(where, frame) {
  const document = frame.contentDocument, window = frame.contentWindow;
  const root = document.documentElement;
  for (const entry of window.performance.getEntriesByType('resource')) say(where, 'asks the network for ' + entry.name);
  if (document.querySelector('script,iframe,object,embed,link,base,form,img')) say(where, 'holds an element that a report has not');
  for (const e of document.querySelectorAll('*')) {
    for (const a of e.attributes) if (a.name.startsWith('on')) say(where, 'a handler: ' + name(e));
  }
  if (root.tagName === 'svg') {
    const labels = charts(where, document);
    return {labels, charts: 1};
  }
  if (root.scrollWidth > root.clientWidth) say(where, 'scrolls sideways: ' + root.scrollWidth + ' > ' + root.clientWidth);
  for (const e of document.querySelectorAll('body *')) {
    if (e.closest('svg, .hidden') || !visible(e)) continue;
    const box = e.closest('.box');
    if (!box && e.getBoundingClientRect().right > root.clientWidth + 1) say(where, 'cut off on the right: ' + name(e));
    const own = [...e.childNodes].some(n => n.nodeType === 3 && n.textContent.trim());
    if (own) {
      const ratio = contrast(window.getComputedStyle(e).color, background(window, e));
      if (ratio < 4.5) say(where, 'contrast ' + ratio.toFixed(2) + ': ' + name(e));
    }
  }
  for (const e of document.querySelectorAll('svg text')) {
    const ratio = contrast(window.getComputedStyle(e).fill, background(window, e));
    if (ratio < 4.5) say(where, 'contrast ' + ratio.toFixed(2) + ': ' + name(e));
  }
  const seen = new Set();
  for (const e of document.querySelectorAll('[id]')) {
    if (seen.has(e.id)) say(where, 'an id twice: ' + e.id);
    seen.add(e.id);
  }
  for (const e of document.querySelectorAll('[aria-labelledby]')) {
    for (const id of e.getAttribute('aria-labelledby').split(' ')) {
      if (!seen.has(id)) say(where, 'a label that is not there: ' + id);
    }
  }
  let level = 0;
  for (const e of document.querySelectorAll('h1,h2,h3,h4,h5,h6')) {
    const here = Number(e.tagName[1]);
    if (here > level + 1) say(where, 'a heading is left out before ' + name(e));
    level = here;
  }
  for (const e of document.querySelectorAll('th')) if (!e.scope) say(where, 'no scope: ' + name(e));
  return {labels: charts(where, document), charts: document.querySelectorAll('svg').length};
}

async function all(pages, widths) {
  const result = {};
  for (const page of pages) {
    for (const width of widths) {
      const frame = document.createElement('iframe');
      frame.style.cssText = 'border:0;height:900px;width:' + width + 'px';
      const loaded = new Promise(done => { frame.onload = done; });
      frame.src = page;
      document.body.append(frame);
      await loaded;
      await frame.contentDocument.fonts.ready;
      const where = page + ' at ' + width;
      const dark = frame.contentWindow.matchMedia('(prefers-color-scheme: dark)').matches;
      result[where] = {dark, ...measure(where, frame)};
      frame.remove();
    }
  }
  const pre = document.createElement('pre');
  pre.id = 'result';
  pre.textContent = JSON.stringify({problems, result});
  document.body.append(pre);
}
"""


def hostile_file():
    """What no front end writes, and anybody may."""
    word = b"W" * 900
    lines = [
        b"[FileHeader]", b"Name = <script>alert(1)</script>", b"Remark = \"'&<>]]> \xff\xfe \xe9 nul:\x00 behind",
        b"Date = \xe2\x80\xae12/34\xe2\x80\xac \xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d \xd8\xb3\xd9\x84\xd8\xa7\xd9\x85", b"CreateBy = " + word,
        b"[CaeHeader]", b"Project = \x1b[31m" + word, b"Engineer = </title></style><img src=x onerror=alert(1)>",
        b"[" + word + b"]", word + b" = " + word, b"<b>key</b> = <a href=\"javascript:alert(1)\">",
        b"[<svg/onload=alert(1)>]", b"a = 1", b"</section> = 2",
        b"[Machine]", b"Maker = " + "\u0424\u044b\u0432\u0430 \u4e2d\u6587\u5b57 \U0001f600 ".encode() * 20, b"Grade = {{x}}${y}",
        b"[Flow-1]", b"FillTime = 1,5", b"FRSet = 2147483647",
    ]
    lines += [b"FR-%d = %g\t%g" % (i, i / 30, (i * 7919) % 601 / 3) for i in range(1, 3001)]
    lines += [b"IPSet = 4", b"IP-1 = 0\t1e300", b"IP-2 = 50\t-1e300", b"IP-3 = 50\t1e-300", b"IP-4 = 100\tnan"]
    lines += [b"TPSet = 2", b"TP-1 = 1234567890.125\t0.000001", b"TP-2 = 1234567890.126\t0.0000011"]
    lines += [b"UserFRSet = 1", b"UserFR-1 = 1e308\t1e308", b"UserIPSet = -3", b"UserIP-1 = 5\t5"]
    lines += [b"[Flow-2147483647]", b"FRSet = 1", b"FR-1 = 5\t5", b"[Pack-1]", b"PPSet = 99999999999999999999", b"PP-1 = 1\t2"]
    lines += [b"[GateCTL]"] + [b"ST-%d = %g\nET-%d = %g" % (i, i * 0.37, i, i * 0.37 + 1.5) for i in range(1, 41)]
    lines += [b"ST-50 = 3", b"ET-51 = 2", b"ST-52 = 9", b"ET-52 = 1", b"ST-53 = 1e300", b"ET-53 = inf"]
    lines += [b"[GateValve-1]", b"GCSet = 3", b"GC-1 = 0 1 1", b"GC-2 = 0 0 2 5", b"GC-3 = 0 1 -2147483648"]
    lines += [b"[CoolChannel-%d]\nDiameter = 8\nTCP-1 = 0 1 55 120 0" % i for i in range(1, 30)]
    return b"\n".join(lines) + b"\n"


def comparison_of(contents):
    contents = contents.replace(b"FillTime             = 1.2", b"FillTime             = 1.35").replace(b"80\t60", b"80\t72.5")
    return contents.replace(b"ET-2                 = 7", b"ET-2                 = 8.5").replace(b"Remark  ", b"Added = 1\nRemark  ", 1)


class Browser:
    def __init__(self, program, folder):
        self.program, self.folder = program, folder
        self.said = ""

    def run(self, *arguments):
        command = [self.program, "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--hide-scrollbars", "--no-first-run",
                   "--disable-extensions", "--disable-background-networking", "--disable-component-update", f"--user-data-dir={self.folder}/profile",
                   "--allow-file-access-from-files", "--enable-logging=stderr", "--timeout=120000", *arguments]
        done = subprocess.run(command, capture_output=True, text=True, timeout=300, check=False)
        self.said = "\n".join(line for line in done.stderr.splitlines() if "CONSOLE" in line)
        return done.stdout

    def measured(self, pages, dark):
        harness = self.folder / "harness.html"
        harness.write_text(f"<!DOCTYPE html><meta charset=utf-8><body><script>{MEASURE}\nall({json.dumps(pages)}, {WIDTHS});</script>")
        page = self.run("--dump-dom", "--virtual-time-budget=60000", "--window-size=1500,1000",
                        f"--blink-settings=preferredColorScheme={0 if dark else 1}", harness.as_uri())
        found = re.search(r'<pre id="result">(.*?)</pre>', page, re.S)
        if not found:
            return None
        text = found.group(1)
        for escape, character in (("&lt;", "<"), ("&gt;", ">"), ("&nbsp;", "\u00a0"), ("&amp;", "&")):
            text = text.replace(escape, character)
        return json.loads(text)


def pages_of(tool, data, folder):
    """The pages, by name, with how many charts there have to be at least."""
    hostile = folder / "hostile.pro"
    hostile.write_bytes(hostile_file())
    named = folder / ("<b>'x'&\"_" + "long_" * 24 + ".pro" if os.name != "nt" else "named.pro")
    named.write_bytes((data / "injection_two_inlets.pro").read_bytes())
    other = folder / "trial.pro"
    other.write_bytes(comparison_of((data / "injection_two_inlets.pro").read_bytes()))
    empty = folder / "empty.pro"
    empty.write_bytes(b"")
    two = data / "injection_two_inlets.pro"
    reports = {"injection": ([two], 12), "co_injection": ([data / "co_injection_type_8.pro"], 4), "curing": ([data / "transfer_molding_curing.pro"], 2),
               "default": ([data / "proio_default.pro"], 0), "hostile": ([hostile], 6), "two": ([two, other], 12),
               "many": ([two, other, named, hostile, empty, data / "co_injection_type_8.pro", two], 12), "empty": ([empty], 0)}
    pages = {}
    for name, (files, charts) in reports.items():
        page = folder / f"{name}.html"
        subprocess.run([tool, "report", *map(str, files), "-o", str(page)], check=True)
        pages[page.name] = charts
    for name, words in {"flow": ["Flow-*.FR", "Pack-1.PP"], "all": ["*.*"]}.items():
        subprocess.run([tool, "plot", str(two), *words, "-o", str(folder / f"{name}.svg")], check=True)
        pages[f"{name}.svg"] = 1
    subprocess.run([tool, "plot", str(hostile), "*.*", "-o", str(folder / "hostile.svg")], check=True)
    pages["hostile.svg"] = 1
    return pages


def main():
    tool, data = sys.argv[1], pathlib.Path(sys.argv[2])
    program = next(filter(None, map(shutil.which, ("chromium", "chromium-browser"))), None)
    if not program:
        print("skipped: there is no chromium; apt-get install chromium")
        return SKIPPED
    problems = []
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        pages = pages_of(tool, data, folder)
        browser = Browser(program, folder)
        for dark in (False, True):
            found = browser.measured(list(pages), dark)
            if found is None:
                problems.append(f"the browser does not tell what it measured: {browser.said}")
                continue
            problems += found["problems"]
            if browser.said:
                problems.append("on the console: " + browser.said)
            for page, charts in pages.items():
                for width in WIDTHS:
                    one = found["result"].get(f"{page} at {width}")
                    if not one or one["charts"] < charts or (charts and not one["labels"]) or one["dark"] != dark:
                        problems.append(f"{page} at {width}: not what was to be looked at: {one}")
        for page, (least, most) in {"injection.html": (3, 20), "two.html": (3, 24), "default.html": (1, 5), "hostile.html": (3, 60)}.items():
            paper = folder / "paper.pdf"
            browser.run(f"--print-to-pdf={paper}", "--no-pdf-header-footer", (folder / page).as_uri())
            count = len(re.findall(rb"/Type\s*/Page\b", paper.read_bytes())) if paper.exists() else 0
            if not least <= count <= most:
                problems.append(f"{page} on paper: {count} pages")
            paper.unlink(missing_ok=True)
    print("\n".join(problems) if problems else f"{len(pages)} pages at {len(WIDTHS)} widths in light and dark: nothing overlaps, nothing is cut")
    return 1 if problems else 0


sys.exit(main())
