#!/usr/bin/env python3
"""Compiles every call that stands in the prose of the guide, with the variables that the pages assume.

    pages_test.py SOURCE_FOLDER C_COMPILER
"""
import pathlib
import re
import subprocess
import sys
import tempfile

DECLARATIONS = """
    static float *A, *B, *C, *x, *y, *d, *a, *b, *c, (*p)[4], (*q)[4], M[4][4];
    static double *src, *dst;
    static uint32_t *pivots;
    const uint32_t N = 10, n = 10;
    const float alpha = 2;
    enum { m = 64, r = 16, v = 16 };
    (void)A; (void)B; (void)C; (void)x; (void)y; (void)d; (void)a; (void)b; (void)c; (void)p; (void)q; (void)M; (void)src;
    (void)dst; (void)pivots; (void)N; (void)n; (void)alpha;
"""


def main():
    source, compiler = pathlib.Path(sys.argv[1]), sys.argv[2]
    failed = passed = 0
    for page in sorted((source / "docs/site/pages").glob("*.md")):
        if page.name == "fortran.md":  # of another language, its programs are tests
            continue
        text = re.sub(r"--8<--.*", "", page.read_text(encoding="utf-8"))
        for call in re.findall(r"\bvonk\w+\((?:[^()`]|\([^()`]*\))*\)", text):
            # M stands for a pointer to its first element where the page has it as an operand.
            call = re.sub(r"(?<![&\w])M(?=,)", "M[0]", call)
            with tempfile.NamedTemporaryFile("w", suffix=".c") as program:
                program.write(f"#include <vonkk3.h>\nVonkStatus call(void);\nVonkStatus call(void) {{{DECLARATIONS}    return {call};\n}}\n")
                program.flush()
                done = subprocess.run([compiler, "-std=c99", "-Wall", "-Werror", "-fsyntax-only", "-I", source / "include",
                                       program.name], capture_output=True, text=True, check=False)
            passed += done.returncode == 0
            if done.returncode:
                failed += 1
                print(f"FAILED: {page.name}: {call}\n{done.stderr}")
    print(f"{passed} passed, {failed} failed")
    sys.exit(1 if failed or not passed else 0)


if __name__ == "__main__":
    main()
