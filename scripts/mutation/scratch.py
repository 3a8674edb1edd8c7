"""A copy of the checkout with a build folder of its own, in which one mutant after the other is built. The checkout
itself is only read.
"""
import hashlib
import os
import pathlib
import shutil
import subprocess

BUILT_FOLDERS = ("tavimo", "phone", "tests")


class BuildError(Exception):
    """The tree does not build without a fault in it."""


class Scratch:
    def __init__(self, root, preset):
        self.root = pathlib.Path(root)
        self.preset = preset
        self.build_folder = self.root / "build" / preset
        # Paths seen from the tree: it finds what the checkout compiled, and the other trees what it compiles.
        self.environment = dict(os.environ, CCACHE_BASEDIR=str(self.root), CCACHE_NOHASHDIR="1")

    def update(self, checkout):
        """Brings the copy up to date with the files of the checkout, tracked or new, and builds it."""
        names = subprocess.run(
            ["git", "-C", str(checkout), "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
            capture_output=True, check=True, text=True,
        ).stdout.split("\0")
        wanted = {name for name in names if name and (checkout / name).is_file()}
        for name in wanted:
            self._copy(checkout / name, self.root / name)
        for path in self.root.rglob("*"):
            name = path.relative_to(self.root)
            if name.parts[0] != "build" and path.is_file() and str(name) not in wanted:
                path.unlink()
        self._run("cmake", "--preset", self.preset, "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON")
        if not self.build(os.cpu_count()):
            raise BuildError(f"{checkout} does not build; see {self.log}")
        self.built = self.fingerprint()

    def _copy(self, source, target):
        """Leaves a file with the same content alone, so that only what changed is built again."""
        if target.is_file() and target.read_bytes() == source.read_bytes():
            return
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(source, target)
        shutil.copymode(source, target)

    @property
    def log(self):
        return self.root / "build" / "log.txt"

    def _run(self, *command):
        self.log.parent.mkdir(parents=True, exist_ok=True)
        with self.log.open("w") as log:
            done = subprocess.run(command, cwd=self.root, env=self.environment, stdout=log, stderr=log, check=False)
        return done.returncode == 0

    def build(self, jobs=1):
        """Whether it compiles and links."""
        targets = [f"{folder}/all" for folder in BUILT_FOLDERS]
        return self._run("ninja", "-C", str(self.build_folder), f"-j{jobs}", *targets)

    def write(self, file, text):
        (self.root / file).write_text(text)

    def fingerprint(self):
        """Of the machine code: the same for a fault that compiles to what was there before."""
        digest = hashlib.sha256()
        for path in sorted(self.build_folder.rglob("*")):
            is_program = path.is_file() and os.access(path, os.X_OK) and "CMakeFiles" not in path.parts
            if is_program and path.relative_to(self.build_folder).parts[0] in BUILT_FOLDERS:
                digest.update(path.read_bytes())
        return digest.digest()
