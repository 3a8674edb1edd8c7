"""The test cases of a build, each with the time that it takes when nothing is wrong, and how one is run."""
import concurrent.futures
import dataclasses
import json
import os
import pathlib
import resource
import signal
import subprocess
import tempfile
import time

# A fault may make a case wait or grow for ever.
MIN_TIME_LIMIT_SECONDS = 20
TIME_LIMIT_FACTOR = 10
MAX_MEMORY = 6 << 30
# Its sweeps make thousands of phones with failing calls and take minutes; what a fault breaks, others see sooner.
LEFT_OUT = "tests/faults/"


# Phones are made and flushed all the time; memory is quicker at it than a disk.
FAST_FOLDER = "/dev/shm" if os.path.isdir("/dev/shm") else None


class SuiteError(Exception):
    """The suite does not pass without a fault."""


@dataclasses.dataclass
class Case:
    """One CTest test: `program` and `folder` are relative to the build folder."""

    name: str
    program: str
    arguments: list
    folder: str
    environment: dict
    seconds: float = 0.0

    @property
    def time_limit(self):
        return max(MIN_TIME_LIMIT_SECONDS, TIME_LIMIT_FACTOR * self.seconds)

    def distance(self, file):
        """How far the folder of the program lies from a source's: 0 for tests/a/b and .../a/b/c.cpp."""
        tested = pathlib.PurePath(self.program).parts[1:-1]
        source = pathlib.PurePath(file).parts[:-1]
        return max(len(tested), len(source)) - len(set(tested) & set(source))


def cases_in(build_folder):
    """The GoogleTest cases of a build; checks of the tree and of what was packed see no fault."""
    listing = subprocess.run(
        ["ctest", "--test-dir", str(build_folder), "--show-only=json-v1"], capture_output=True, check=True, text=True
    ).stdout
    found = []
    for test in json.loads(listing)["tests"]:
        properties = {entry["name"]: entry["value"] for entry in test.get("properties", [])}
        command = test.get("command", [])
        if properties.get("DISABLED") or not any(argument.startswith("--gtest_filter") for argument in command[1:]):
            continue
        program, folder = (os.path.relpath(path, build_folder) for path in (command[0], properties["WORKING_DIRECTORY"]))
        if program.startswith(LEFT_OUT):
            continue
        environment = dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []) if entry)
        # What GoogleTest says of a parameter may be its bytes, which differ from build to build.
        name = test["name"].split("  # ")[0]
        found.append(Case(name, program, command[1:], folder, environment))
    return found


def run(case, build_folder):
    """"passed", "failed" or "timed out". What the case leaves running is ended."""
    with tempfile.TemporaryDirectory(prefix="mutate-", dir=FAST_FOLDER, ignore_cleanup_errors=True) as home:
        os.chmod(home, 0o755)  # Some cases give up the administrator's rights.
        process = subprocess.Popen(
            [str(build_folder / case.program), *case.arguments],
            cwd=build_folder / case.folder,
            env={**os.environ, "HOME": home, "TMPDIR": home, **case.environment},
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            start_new_session=True, preexec_fn=_set_limits,
        )
        try:
            return "passed" if process.wait(case.time_limit) == 0 else "failed"
        except subprocess.TimeoutExpired:
            return "timed out"
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()


def _set_limits():
    for limit, value in ((resource.RLIMIT_CORE, 0), (resource.RLIMIT_AS, MAX_MEMORY)):
        resource.setrlimit(limit, (value, value))


def measure(cases, build_folder, jobs):
    """Runs every case without a fault and notes its time. A case that fails twice is an error: it would kill all."""

    def failed(case):
        for _ in range(2):
            start = time.monotonic()
            outcome = run(case, build_folder)
            case.seconds = time.monotonic() - start
            if outcome == "passed":
                return False
        return True

    # Nothing is known of a case's time yet.
    for case in cases:
        case.seconds = 30.0
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        broken = [case.name for case, is_broken in zip(cases, pool.map(failed, cases)) if is_broken]
    if broken:
        raise SuiteError(f"without any fault these fail: {', '.join(broken)}")
