"""The parts of docs/proof.md.

A part is a module here with a docstring, IS_PART = True, and a function. The docstring's first line is
its heading on the page, the rest the text below it. The function

    def run(options):
        return {"goals": [goal("lines of the helper", "at most 800", 793, True)],
                "tables": [table("By file", ["file", "lines"], [["main.cpp", 75]])],
                "notes": ["one paragraph each"]}

measures, and raises Failure with a reason where it cannot; then nothing is written. Each key may be
missing. An optional add_options(parser) adds options to its argparse parser. tools.py has what parts
share: builds, runs of tests, tables.
"""
