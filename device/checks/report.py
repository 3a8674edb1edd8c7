"""How a check ends: silently when nothing is wrong, else with a line for each fault and exit code 1."""
import subprocess
import sys


class Report:
    def __init__(self, subject):
        self.subject = subject
        self.faults = 0

    def expect(self, holds, fault):
        if not holds:
            print(f"{self.subject}: {fault}", file=sys.stderr)
            self.faults += 1

    def same(self, what, found, wanted):
        """Two sets of names."""
        found, wanted = set(found), set(wanted)
        self.expect(found <= wanted, f"{what}, too many: {', '.join(sorted(map(str, found - wanted)))}")
        self.expect(wanted <= found, f"{what}, missing: {', '.join(sorted(map(str, wanted - found)))}")

    def end(self):
        sys.exit(1 if self.faults else 0)


def output_of(*command):
    """What a program prints. Ends the check when the program fails."""
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    if done.returncode != 0:
        sys.exit(f"{' '.join(command)}: {done.stderr.strip()}")
    return done.stdout
