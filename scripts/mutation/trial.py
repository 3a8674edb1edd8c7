"""Tries mutants, several at a time, and remembers which cases notice faults where, to ask those first."""
import collections
import concurrent.futures
import dataclasses
import enum
import queue
import threading
import time

import suite
from scratch import Scratch


class Outcome(enum.Enum):
    KILLED = "killed"
    TIMED_OUT = "timed out"
    SURVIVED = "SURVIVED"
    NOT_COMPILED = "not compiled"
    NO_CHANGE = "no change in the machine code"


@dataclasses.dataclass
class Trial:
    """`by` tells which case noticed, and how long it all took, for people."""

    mutant: object
    outcome: Outcome
    by: str


class Trials:
    def __init__(self, checkout, folder, preset, jobs):
        self.checkout = checkout
        self.scratches = [Scratch(checkout / folder / f"tree-{number}", preset) for number in range(1, jobs + 1)]
        self.kills = collections.Counter()
        self.stop = threading.Event()

    def outcomes(self, mutants, texts):
        """Yields a trial for each mutant as it ends."""
        self._prepare(min(len(self.scratches), len(mutants)))
        # A worker takes the next file, not the next mutant: going back to another file's original costs a build.
        by_file = collections.defaultdict(list)
        for mutant in mutants:
            by_file[mutant.file].append(mutant)
        waiting, done = queue.SimpleQueue(), queue.SimpleQueue()
        for batch in by_file.values():
            waiting.put(batch)
        with concurrent.futures.ThreadPoolExecutor(len(self.scratches)) as pool:
            workers = [pool.submit(self._work, scratch, waiting, done, texts) for scratch in self.scratches]
            try:
                for _ in mutants:
                    yield self._next(done, workers)
            finally:
                self.stop.set()

    def _prepare(self, jobs):
        del self.scratches[max(1, jobs) :]
        for scratch in self.scratches:
            print(f"building {scratch.root.relative_to(self.checkout)}", flush=True)
            scratch.update(self.checkout)
            scratch.cases = suite.cases_in(scratch.build_folder)
        print(f"measuring {len(self.scratches[0].cases)} test cases", flush=True)
        suite.measure(self.scratches[0].cases, self.scratches[0].build_folder, len(self.scratches))
        seconds = {case.name: case.seconds for case in self.scratches[0].cases}
        print(f"they take {sum(seconds.values()):.0f} s", flush=True)
        for scratch in self.scratches[1:]:
            for case in scratch.cases:
                case.seconds = seconds[case.name]

    def _next(self, done, workers):
        while True:
            try:
                return done.get(timeout=1)
            except queue.Empty:
                for worker in workers:
                    if worker.done():
                        worker.result()

    def _work(self, scratch, waiting, done, texts):
        while not self.stop.is_set():
            try:
                batch = waiting.get_nowait()
            except queue.Empty:
                return
            for mutant in batch:
                if self.stop.is_set():
                    break
                started = time.monotonic()
                scratch.write(mutant.file, mutant.apply(texts[mutant.file]))
                outcome, by = self._try(scratch, mutant)
                done.put(Trial(mutant, outcome, f"{by} ({time.monotonic() - started:.0f} s)"))
            scratch.write(batch[0].file, texts[batch[0].file])

    def _try(self, scratch, mutant):
        if not scratch.build():
            return Outcome.NOT_COMPILED, ""
        if scratch.fingerprint() == scratch.built:
            return Outcome.NO_CHANGE, ""
        for case in self._in_order(scratch.cases, mutant.file):
            if self.stop.is_set():
                break
            result = suite.run(case, scratch.build_folder)
            # A test may fail by chance; a fault makes it fail again.
            if result == "failed" and suite.run(case, scratch.build_folder) == "failed":
                self._remember(case, mutant)
                return Outcome.KILLED, f", by {case.name}"
            if result == "timed out":
                self._remember(case, mutant)
                return Outcome.TIMED_OUT, f", in {case.name}"
        return Outcome.SURVIVED, ""

    def _remember(self, case, mutant):
        self.kills[case.name, mutant.file] += 1
        self.kills[case.name] += 1

    def _in_order(self, cases, file):
        """First what noticed faults in this file, then what lies near it, then what notices much, then the quick ones."""
        return sorted(cases, key=lambda case: (
            -self.kills[case.name, file], case.distance(file), -self.kills[case.name], case.seconds))
