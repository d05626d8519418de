#!/usr/bin/env python3
"""Solves ten million small systems on a local cluster of processes, chunk by chunk.

    dask_solve.py [--systems N] [--order N] [--chunk N] [--workers 1,2] [--save FILE.json]

Dask (Debian: python3-dask, python3-distributed) calls vonkk3.solve for each chunk by map_blocks. The same program runs on
a cluster of machines: give `Client` the scheduler's address in place of the LocalCluster. A digest of all bits of the
solutions is printed for each number of workers: it is always the same.
"""
import argparse
import hashlib
import json
import os
import sys
import time

import dask.array as da
import numpy as np
import vonkk3
from distributed import Client, LocalCluster, wait


def systems(block_info=None, columns=1, seed=0):
    """Random numbers of a chunk: they depend on its place alone. Matrices get a dominant diagonal."""
    chunk, shape = block_info[None]["chunk-location"][0], block_info[None]["chunk-shape"]
    numbers = np.random.default_rng([seed, chunk]).random(shape, np.float32)
    if columns > 1:
        diagonal = np.arange(columns)
        numbers[:, diagonal, diagonal] += columns
    return numbers


def digest(x):
    """The bits of a chunk in a number."""
    bits = hashlib.blake2b(np.ascontiguousarray(x).tobytes(), digest_size=8).digest()
    return np.frombuffer(bits, np.uint64).reshape(1, 1, 1)


def residual(a, x, b):
    return np.abs(vonkk3.matmul(a, x) - b).max().reshape(1, 1, 1)


def solve_all(count, order, chunk, workers):
    """(digest, largest residual, seconds to make the systems, seconds to solve them) with so many processes."""
    lengths = (chunk,) * (count // chunk) + ((count % chunk,) if count % chunk else ())
    ones = (1,) * len(lengths)
    with LocalCluster(n_workers=workers, threads_per_worker=1, processes=True, dashboard_address=None) as cluster, \
            Client(cluster) as client:
        a = da.map_blocks(systems, chunks=(lengths, (order,), (order,)), dtype=np.float32, columns=order)
        b = da.map_blocks(systems, chunks=(lengths, (order,), (1,)), dtype=np.float32, seed=1)
        client.run(lambda: __import__("vonkk3").det(np.eye(3)))  # workers import what they need
        start = time.perf_counter()
        a, b = client.persist([a, b])
        wait([a, b])
        made = time.perf_counter()
        x = da.map_blocks(vonkk3.solve, a, b, chunks=(lengths, (order,), (1,)), dtype=np.float32, meta=np.empty((0, 0, 0), "f"))
        x = x.persist()
        wait(x)
        solved = time.perf_counter()
        digests = da.map_blocks(digest, x, chunks=(ones, (1,), (1,)), dtype=np.uint64).compute()
        worst = da.map_blocks(residual, a, x, b, chunks=(ones, (1,), (1,)), dtype=np.float32).max().compute()
    return hashlib.blake2b(digests.tobytes(), digest_size=8).hexdigest(), float(worst), made - start, solved - made


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--systems", type=int, default=10_000_000)
    parser.add_argument("--order", type=int, default=3)
    parser.add_argument("--chunk", type=int, default=100_000)
    parser.add_argument("--workers", default=f"1,{len(os.sched_getaffinity(0))}", help="numbers of processes, with commas")
    parser.add_argument("--repeat", type=int, default=1, help="the least times of so many runs are kept")
    parser.add_argument("--save", metavar="FILE.json", help="keeps the times, for a plot")
    arguments = parser.parse_args()
    rows, digests = [], set()
    for workers in map(int, arguments.workers.split(",")):
        runs = [solve_all(arguments.systems, arguments.order, arguments.chunk, workers) for _ in range(arguments.repeat)]
        digests.update(value for value, *_ in runs)
        value, worst = runs[0][:2]
        making, solving = (min(run[i] for run in runs) for i in (2, 3))
        rows.append({"workers": workers, "making": round(making, 3), "solving": round(solving, 3)})
        print(f"{workers} workers: made in {making:.2f} s, solved in {solving:.2f} s, largest residual {worst:.1e}, bits {value}",
              flush=True)
    if arguments.save:
        with open(arguments.save, "w", encoding="utf-8") as file:
            json.dump({"systems": arguments.systems, "order": arguments.order, "chunk": arguments.chunk, "rows": rows}, file)
    if len(digests) != 1:
        sys.exit("the bits differ")


if __name__ == "__main__":
    main()
