"""A system of its own for the package, to install it in and to start it from.

Where root may mount, it is a system that has nothing but what the package depends on, made by
mmdebstrap from the registry of this machine. It is made once and kept in the build folder. Elsewhere,
or without the registry, the package goes into a folder, by dpkg all the same, and the program runs
on this machine's libraries.
"""

import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build"
LONGEST_MAKING = 300  # seconds; a registry that does not answer is done without
ORDINARY_USER = 65534  # nobody; the message bus knows only those whom the system knows


def run(*words, **more):
    done = subprocess.run([str(word) for word in words], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, **more)
    if done.returncode:
        raise AssertionError(f"{words} ended with {done.returncode}:\n{done.stdout}")
    return done.stdout


def dependencies(package):
    """The names of the packages that a package asks for, the first of each choice."""
    wanted = run("dpkg-deb", "--field", package, "Depends")
    return sorted({re.match(r"\s*([^\s(|]+)", each).group(1) for each in wanted.split(",")})


class PackageRoot:
    """What both kinds have in common: `place` is the root folder, `share` a folder of the ordinary
    user's that has the same path inside and outside."""

    def __init__(self, place):
        self.place = place
        self.share = pathlib.Path(tempfile.mkdtemp(prefix="velmora-package."))
        self.home = self.share / "home"
        self.home.mkdir()
        tools = self.share / "tests"
        shutil.copytree(ROOT / "tests" / "e2e", tools)
        for tool in ("tests/package/short_day.py", "tools/with-display"):
            shutil.copy2(ROOT / tool, tools)
        self.errors = self.share / "errors"
        self.starter = self.share / "velmora"
        self.starter.write_text(
            f"#!/bin/sh\nexec {self.command()} 2>>'{self.errors}'\n")
        self.starter.chmod(0o755)
        self.environment = {
            **os.environ, "TMPDIR": str(self.share), "HOME": str(self.home),
            # What the toolkit leaves behind is told by names, which a stripped program has not.
            "ASAN_OPTIONS": "detect_leaks=0:detect_stack_use_after_return=1"}

    def spend_day(self, system, name, *before):
        """A short day of the ordinary user; what it wrote. `system` is "x11" or "wayland"."""
        if os.geteuid() == 0:
            run("chown", "-R", f"{ORDINARY_USER}:{ORDINARY_USER}", self.share)
        display = [self.share / "tests/with-display", *(["--wayland"] if system == "wayland" else [])]
        day = ["/usr/bin/python3", self.share / "tests/short_day.py", self.starter, self.home, name,
               *before]
        self.errors.unlink(missing_ok=True)
        return run(*self.as_ordinary_user(), *display, *day, env=self.environment, timeout=600)

    def errors_of_day(self):
        return self.errors.read_text() if self.errors.exists() else ""

    def left_behind(self):
        """What is called like the program and lies outside the user's home."""
        return [path for path in self.place.rglob("*") if "velmora" in path.name.lower()
                and "tmp" not in path.parts]

    def end(self):
        shutil.rmtree(self.share)


class SystemRoot(PackageRoot):
    @staticmethod
    def can_be_made():
        return os.geteuid() == 0 and shutil.which("mmdebstrap") and subprocess.run(
            ["unshare", "--mount", "mount", "--bind", "/proc", "/proc"],
            capture_output=True).returncode == 0

    def __init__(self, package):
        wanted = dependencies(package)
        stamp = hashlib.sha256(" ".join(wanted).encode()).hexdigest()[:16]
        place = BUILD / f"package-system-{stamp}"
        if not (place / "made").exists():
            for old in BUILD.glob("package-system-*"):
                shutil.rmtree(old)
            place.mkdir(parents=True)
            # Its mounts go with it, even when it is killed.
            run("unshare", "--mount", "--propagation", "private",
                "mmdebstrap", "--variant=apt", "--include=" + ",".join(wanted),
                "--dpkgopt=path-exclude=/usr/share/man/*", "--dpkgopt=force-unsafe-io",
                "--aptopt=Acquire::Retries=2",
                self._release(), place, timeout=LONGEST_MAKING)
            (place / "made").touch()
        super().__init__(place)
        self.run_inside("dpkg", "--purge", "velmora")  # of a test that was cut short

    @staticmethod
    def _release():
        known = dict(line.split("=", 1) for line in
                     pathlib.Path("/etc/os-release").read_text().splitlines() if "=" in line)
        return known["VERSION_CODENAME"]

    def run_inside(self, *words):
        return run("chroot", self.place, *words)

    def command(self):
        """Gives up, inside, the right to go there."""
        return (f"chroot '{self.place}' /usr/bin/setpriv --inh-caps=-all --ambient-caps=-all "
                "/usr/bin/velmora")

    def as_ordinary_user(self):
        """In mounts of its own, which are gone with the process."""
        inside = self.place / self.share.relative_to("/")
        inside.mkdir(parents=True, exist_ok=True)
        mounts = (f"mount --rbind /proc '{self.place}/proc' && "
                  f"mount --rbind /dev '{self.place}/dev' && "
                  f"mount --bind '{self.share}' '{inside}' && exec \"$@\"")
        return ["unshare", "--mount", "--propagation", "private", "sh", "-c", mounts, "sh",
                "setpriv", f"--reuid={ORDINARY_USER}", f"--regid={ORDINARY_USER}", "--clear-groups",
                "--inh-caps=+sys_chroot", "--ambient-caps=+sys_chroot"]

    def install(self, package):
        """Its dependencies have to be there."""
        shutil.copy2(package, self.place / "package.deb")
        self.run_inside("dpkg", "--install", "/package.deb")
        (self.place / "package.deb").unlink()

    def remove(self):
        self.run_inside("dpkg", "--remove", "velmora")

    def version(self):
        return self.run_inside("dpkg-query", "--show", "--showformat=${Version}", "velmora")

    def end(self):
        shutil.rmtree(self.place / self.share.relative_to("/"), ignore_errors=True)
        super().end()


class FolderRoot(PackageRoot):
    @staticmethod
    def can_be_made():
        return True

    def __init__(self, package):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="velmora-root."))
        self.folder.chmod(0o755)
        for part in ("info", "updates", "triggers"):
            (self.folder / "var/lib/dpkg" / part).mkdir(parents=True)
        for part in ("status", "available"):
            (self.folder / "var/lib/dpkg" / part).touch()
        super().__init__(self.folder)

    def command(self):
        return f"'{self.folder}/usr/bin/velmora'"

    def as_ordinary_user(self):
        if os.geteuid() != 0:
            return []
        return ["setpriv", f"--reuid={ORDINARY_USER}", f"--regid={ORDINARY_USER}", "--clear-groups"]

    def _dpkg(self, *words):
        fake = [] if os.geteuid() == 0 else ["fakeroot"]
        environment = {**os.environ, "PATH": os.environ["PATH"] + ":/usr/sbin:/sbin"}
        programs = self.folder / "usr/bin"
        if programs.exists():
            programs.chmod(0o755)
        run(*fake, "dpkg", f"--root={self.folder}", "--force-depends", "--log=/dev/null", *words,
            env=environment)
        if programs.exists():
            programs.chmod(0o555)  # nobody but dpkg writes there

    def install(self, package):
        self._dpkg("--install", package)

    def remove(self):
        self._dpkg("--remove", "velmora")

    def version(self):
        return run("dpkg-query", f"--admindir={self.folder}/var/lib/dpkg", "--show",
                   "--showformat=${Version}", "velmora")

    def end(self):
        shutil.rmtree(self.folder)
        super().end()


def root_for(package):
    """A root for the package: a system of its own where one can be had."""
    if SystemRoot.can_be_made():
        try:
            return SystemRoot(package)
        except (AssertionError, subprocess.TimeoutExpired) as reason:
            print(f"    no system of its own: {reason}", flush=True)
    return FolderRoot(package)
