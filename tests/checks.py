# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT
"""Runs checks side by side; what one of them finds says nothing of the others."""

import concurrent.futures
import sys
import time


def run_all(checks, given, at_once):
    """Whether every one, a function by its name, is as it should be."""
    def run(name):
        begin = time.monotonic()
        try:
            checks[name](given)
            print(f"{name}: as it should be, {time.monotonic() - begin:.1f} s", flush=True)
            return True
        except Exception as failure:
            print(f"{name}: {failure if str(failure) else repr(failure)}", file=sys.stderr, flush=True)
            return False
    with concurrent.futures.ThreadPoolExecutor(at_once) as pool:
        return all(list(pool.map(run, checks)))
