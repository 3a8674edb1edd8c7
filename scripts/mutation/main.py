"""Chooses the faults, tries them in parallel, and tells what came out. Called by scripts/mutate, which checks and
explains the arguments.
"""
import argparse
import collections
import fcntl
import hashlib
import os
import pathlib
import sys

from equivalents import Change, equivalents_in
from faults import mutants_of
from scratch import BuildError
from suite import SuiteError
from trial import Outcome, Trials

FOLDERS = ("tavimo", "platform/objc", "phone")
SAMPLE_SIZE = 200
CHECKOUT = pathlib.Path.cwd()
PAGE = pathlib.Path("docs/mutation.md")
FOLDER = pathlib.Path("build/mutate")
SUMMARY = "{:<22} {:>7} {:>7} {:>9} {:>9} {:>11} {:>12} {:>12}"


def sources_in(paths):
    for path in map(pathlib.Path, paths):
        if not path.exists():
            sys.exit(f"mutate: there is no '{path}'")
        files = [path] if path.is_file() else sorted(path.rglob("*"))
        yield from (str(file) for file in files if file.suffix in (".cpp", ".h"))


def sample_of(mutants, texts, size, seed):
    """The same for the same seed: each mutant is drawn by what it is, not by where it stands among the others."""
    seen = collections.Counter()
    lots = []
    for mutant in mutants:
        what = f"{mutant.file}|{mutant.operator}|{texts[mutant.file][mutant.start:mutant.end]}|{mutant.replacement}"
        seen[what] += 1
        lots.append((hashlib.sha256(f"{seed}|{what}|{seen[what]}".encode()).digest(), mutant))
    chosen = {mutant for _, mutant in sorted(lots, key=lambda lot: lot[0])[:size]}
    # File by file, so that little is built twice.
    return [mutant for mutant in mutants if mutant in chosen]


def folder_of(file):
    parts = pathlib.PurePath(file).parts
    return "/".join(parts[: 1 if parts[0] == "tavimo" else 2])


def print_summary(results, equivalent):
    print("\n" + SUMMARY.format("", "killed", "rate", "timed out", "survived", "equivalent", "not compiled", "no change"))
    counts = collections.defaultdict(collections.Counter)
    for mutant, outcome in [*results, *((mutant, "equivalent") for mutant in equivalent)]:
        for folder in (folder_of(mutant.file), "all"):
            counts[folder][outcome] += 1
    for folder in sorted(counts, key=lambda name: (name == "all", name)):
        count = counts[folder]
        killed = count[Outcome.KILLED] + count[Outcome.TIMED_OUT]
        tried = killed + count[Outcome.SURVIVED]
        rate = f"{100 * killed / tried:.1f} %" if tried else "-"
        print(SUMMARY.format(folder, killed, rate, count[Outcome.TIMED_OUT], count[Outcome.SURVIVED],
                             count["equivalent"], count[Outcome.NOT_COMPILED], count[Outcome.NO_CHANGE]))
    print("killed includes timed out; rate is killed of killed and survived")


def main():
    parser = argparse.ArgumentParser(prog="mutate")
    parser.add_argument("--sample", type=int)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--preset", default="release")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--list", action="store_true")
    parser.add_argument("paths", nargs="*", default=FOLDERS)
    arguments = parser.parse_args()

    texts = {file: pathlib.Path(file).read_text() for file in dict.fromkeys(sources_in(arguments.paths))}
    mutants = [mutant for file, text in texts.items() for mutant in mutants_of(file, text)]
    names_files = all(map(os.path.isfile, arguments.paths))
    size = arguments.sample if arguments.sample is not None else 0 if names_files else SAMPLE_SIZE
    chosen = sample_of(mutants, texts, size or len(mutants), arguments.seed)
    if arguments.list:
        for mutant in chosen:
            print(f"{mutant.file}:{mutant.line}: {mutant.operator}\n{Change.of(mutant, texts[mutant.file]).shown()}")
        return

    changes = {mutant: Change.of(mutant, texts[mutant.file]) for mutant in mutants}
    known = equivalents_in(PAGE.read_text())
    for entry in known:
        if entry.file in texts and not any(change.is_named_by(entry) for change in changes.values()):
            print(f"{PAGE} names what is no fault of {entry.file} any more:\n{entry.shown()}")
    equivalent = [mutant for mutant in chosen if any(changes[mutant].is_named_by(entry) for entry in known)]
    tried = [mutant for mutant in chosen if mutant not in equivalent]
    print(f"{len(tried)} of {len(mutants)} faults, seed {arguments.seed}, {arguments.preset}", flush=True)

    FOLDER.mkdir(parents=True, exist_ok=True)
    with open(FOLDER / "lock", "w") as lock, open(FOLDER / "survivors.diff", "w") as survivors:
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            sys.exit(f"mutate: another run is at work in {FOLDER}")
        results = []
        trials = Trials(CHECKOUT, FOLDER, arguments.preset, max(1, arguments.jobs))
        try:
            for trial in trials.outcomes(tried, texts):
                results.append((trial.mutant, trial.outcome))
                place = f"{trial.mutant.file}:{trial.mutant.line}: {trial.mutant.operator}"
                print(f"[{len(results)}/{len(tried)}] {trial.outcome.value}: {place}{trial.by}", flush=True)
                if trial.outcome == Outcome.SURVIVED:
                    shown = f"{place}\n{changes[trial.mutant].shown()}\n"
                    print(shown, flush=True)
                    survivors.write(shown)
        except (BuildError, SuiteError) as error:
            sys.exit(f"mutate: {error}")
        except KeyboardInterrupt:
            print("interrupted; so far:")
        for mutant in equivalent:
            print(f"equivalent: {mutant.file}:{mutant.line}: {mutant.operator}\n{changes[mutant].shown()}")
        print_summary(results, equivalent)


if __name__ == "__main__":
    main()
