#!/usr/bin/env python3
"""Checks that every catalog translates every text of the sources, and keeps
their placeholders.

    check_catalogs.py --lupdate LUPDATE --sources LIST TS...

LIST names the source files, one a line (what the build hands lupdate). Each
catalog is copied and brought up to date with lupdate, the same way the
update_translations target does; the copy must then hold no message that is
unfinished (new, or changed since it was translated), vanished or obsolete (its
text is gone from the sources), and each translation (each plural form) must
carry the placeholders of its source: %1 to %9, and %n in plurals.

    check_catalogs.py --lupdate LUPDATE --self-test

runs the check on a small made-up source and catalog and fails unless the check
catches a new text, a lost placeholder and a text that is gone.
"""

import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

PLACEHOLDER = re.compile(r"%(?:L?[1-9]|n)")


def placeholders(text):
    return sorted(set(PLACEHOLDER.findall(text or "")))


def problems_in(ts_path):
    """What is wrong in one catalog, as lines to print."""
    found = []
    root = ElementTree.parse(ts_path).getroot()
    name = os.path.basename(ts_path)
    for context in root.iter("context"):
        context_name = context.findtext("name", "")
        for message in context.iter("message"):
            source = message.findtext("source", "")
            where = f"{name}: {context_name}: {source!r}"
            translation = message.find("translation")
            kind = translation.get("type", "") if translation is not None else "unfinished"
            if kind in ("vanished", "obsolete"):
                found.append(f"{where}: no longer in the sources")
                continue
            if kind == "unfinished":
                found.append(f"{where}: not translated")
                continue
            expected = set(placeholders(source))
            if message.get("numerus") == "yes":
                forms = [form.text or "" for form in translation.iter("numerusform")]
            else:
                forms = [translation.text or ""]
                expected.discard("%n")
            for form in forms:
                if not form.strip():
                    found.append(f"{where}: an empty translation")
                    continue
                missing = sorted(expected - set(placeholders(form)))
                if missing:
                    found.append(f"{where}: {form!r} lacks {' '.join(missing)}")
    return found


def check(lupdate, sources_list, catalogs, report=True):
    with open(sources_list, encoding="utf-8") as listed:
        sources = [line.strip() for line in listed if line.strip()]
    if not sources:
        print(f"{sources_list} names no source files", file=sys.stderr)
        return 2
    problems = []
    with tempfile.TemporaryDirectory() as scratch:
        listing = os.path.join(scratch, "sources.lst")
        with open(listing, "w", encoding="utf-8") as out:
            out.write("\n".join(sources) + "\n")
        for catalog in catalogs:
            if not os.path.isfile(catalog):
                problems.append(f"{catalog}: missing")
                continue
            copy = os.path.join(scratch, os.path.basename(catalog))
            shutil.copyfile(catalog, copy)
            run = subprocess.run([lupdate, "-silent", "-locations", "none", "@" + listing, "-ts", copy],
                                 capture_output=True, text=True)
            if run.returncode != 0:
                problems.append(f"{catalog}: lupdate failed: {run.stderr.strip()}")
                continue
            problems.extend(problems_in(copy))
    if report:
        for problem in problems:
            print(problem)
        print(f"{len(problems)} problem(s) in the catalogs" if problems
              else f"{len(catalogs)} catalog(s) translate every text")
    return 1 if problems else 0


CATALOG = """<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Probe</name>
{messages}
</context>
</TS>
"""
GREETING = """    <message>
        <source>Hello %1</source>
        <translation>Hallo {greeting}</translation>
    </message>"""
COUNT = """    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>{one}</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>"""


def self_test(lupdate):
    """The check passes a complete catalog and fails each kind of fault."""
    failures = []
    with tempfile.TemporaryDirectory() as scratch:
        source = os.path.join(scratch, "Probe.qml")
        listing = os.path.join(scratch, "sources.txt")
        catalog = os.path.join(scratch, "probe_de.ts")
        with open(listing, "w", encoding="utf-8") as out:
            out.write(source + "\n")

        def attempt(name, texts, greeting, one, expect_ok):
            calls = "\n".join(f"    property string t{i}: {text}" for i, text in enumerate(texts))
            with open(source, "w", encoding="utf-8") as out:
                out.write("import QtQuick\nItem {\n" + calls + "\n}\n")
            with open(catalog, "w", encoding="utf-8") as out:
                out.write(CATALOG.format(messages=GREETING.format(greeting=greeting) + "\n"
                                         + COUNT.format(one=one)))
            result = check(lupdate, listing, [catalog], report=False)
            if (result == 0) != expect_ok:
                failures.append(f"{name}: the check answered {result}")

        both = ['qsTr("Hello %1").arg(name)', 'qsTr("%n file(s)", "", count)']
        attempt("complete", both, "%1", "%n Datei", True)
        attempt("a new text", both + ['qsTr("Goodbye")'], "%1", "%n Datei", False)
        attempt("a lost placeholder", both, "du", "%n Datei", False)
        attempt("a plural form without its count", both, "%1", "eine Datei", False)
        attempt("a text gone from the sources", both[:1], "%1", "%n Datei", False)
    for failure in failures:
        print(failure, file=sys.stderr)
    if not failures:
        print("the catalog check catches new texts, lost placeholders and texts gone")
    return 1 if failures else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--lupdate", required=True)
    parser.add_argument("--sources")
    parser.add_argument("--self-test", action="store_true")
    parser.add_argument("catalogs", nargs="*")
    args = parser.parse_args()
    if args.self_test:
        return self_test(args.lupdate)
    if not args.sources or not args.catalogs:
        parser.error("--sources and at least one catalog are needed")
    return check(args.lupdate, args.sources, args.catalogs)


if __name__ == "__main__":
    sys.exit(main())
