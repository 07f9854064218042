"""A print system of a test's own: a server, and a printer that keeps the PDF files it is sent.

    shop = PrintShop()                    # the queue "Pocket" on Letter paper is the default
    program = desk.start(**shop.environment)
    ... the program prints ...
    words = words_of(shop.next_sheet())   # what stands where on the paper
    shop.end()                            # in any case

Both listen on the loopback interface only, and neither needs a service of the machine.

Started as a program it serves a test in another language: it writes the address of its server, and
then answers each line of its input with one of its own, until the input ends:

    next              the file of the next sheet, as next_sheet()
    nothing more      True or False, as has_nothing_more()
    administer WORDS  what a command of the print system printed, as administer(), in one line
"""

import collections
import os
import pathlib
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

from waiting import NotSeen, wait_until

QUEUE = "Pocket"
OPEN_TO_ALL = "  Order allow,deny\n  Allow all\n"

# A word on a page, counted from 1; lengths are inches from the left top corner of the sheet.
Word = collections.namedtuple("Word", "page left top right bottom text")


def words_of(pdf):
    """The words of a PDF file in the order in which they were printed."""
    html = subprocess.run(["pdftotext", "-bbox", pdf, "-"], check=True, capture_output=True).stdout
    tag = "{http://www.w3.org/1999/xhtml}"
    return [Word(number, *(float(word.get(side)) / 72 for side in ("xMin", "yMin", "xMax", "yMax")),
                 word.text)
            for number, page in enumerate(xml.fromstring(html).iter(tag + "page"), 1)
            for word in page.iter(tag + "word")]


def lines_of(pdf):
    """The lines of a PDF file, each as its words with one blank between them."""
    lines = {}
    for word in words_of(pdf):
        lines.setdefault((word.page, round(word.bottom, 2)), []).append(word)
    return [" ".join(word.text for word in sorted(line, key=lambda word: word.left))
            for _, line in sorted(lines.items())]


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def command(name):
    """Some of these lie where only root looks."""
    path = shutil.which(name, path=os.environ.get("PATH", "") + ":/usr/sbin:/sbin")
    if path is None:
        raise NotSeen(f"{name} is not installed; tools/install-packages test installs it")
    return path


class PrintShop:
    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="velmora-print."))
        self.folder.chmod(0o755)  # the server's filters run as another user
        self.sheets = self.folder / "sheets"
        self.environment = {}
        self.taken = set()
        self.processes = []
        self.log = open(self.folder / "log", "wb")
        try:
            self._start_server()
            self.address = self._start_printer()
            self.add_queue(QUEUE, self.address)
            self.administer("lpadmin", "-d", QUEUE)
        except BaseException:
            self.end()
            raise

    def _run(self, *words, environment=None, **more):
        process = subprocess.Popen(words, stdin=subprocess.DEVNULL, stderr=self.log,
                                   env={**os.environ, **(environment or {})},
                                   **{"stdout": self.log, **more})
        self.processes.append(process)
        return process

    def _listens(self, process, port):
        if process.poll() is not None:
            raise NotSeen(f"{process.args[0]} ended with code {process.returncode}: " + self.story())
        with socket.socket() as caller:
            return caller.connect_ex(("127.0.0.1", port)) == 0

    def _start_server(self):
        root = self.folder / "root"
        port = free_port()
        for name in ("root", "spool", "cache", "state", "state/certs", "tmp"):
            (self.folder / name).mkdir()
        (self.folder / "tmp").chmod(0o1777)
        (root / "cups-files.conf").write_text(
            f"ServerRoot {root}\nRequestRoot {self.folder}/spool\nCacheDir {self.folder}/cache\n"
            f"StateDir {self.folder}/state\nTempDir {self.folder}/tmp\n"
            + "".join(f"{kind}Log {self.folder}/{kind.lower()}_log\n"
                      for kind in ("Access", "Error", "Page"))
            + "SystemGroup root\n")
        (root / "cupsd.conf").write_text(
            f"Listen localhost:{port}\nBrowsing Off\nDefaultAuthType None\nMaxLogSize 0\n"
            + "".join(f"<Location {place}>\n{OPEN_TO_ALL}</Location>\n" for place in ("/", "/admin"))
            + f"<Policy default>\n<Limit All>\n{OPEN_TO_ALL}</Limit>\n</Policy>\n")
        server = self._run(command("cupsd"), "-f", "-c", root / "cupsd.conf",
                           "-s", root / "cups-files.conf")
        wait_until(lambda: self._listens(server, port), "the print server")
        self.environment["CUPS_SERVER"] = f"localhost:{port}"

    def _start_printer(self):
        """Returns the printer's address."""
        # It wants to make itself known on a system bus, which a container has not.
        bus = self._run("dbus-daemon", "--session", "--nofork", "--print-address",
                        stdout=subprocess.PIPE)
        address = bus.stdout.readline().decode().strip()
        bus.stdout.close()
        self.sheets.mkdir()
        port = free_port()
        # Without a command of its own it plays a slow printer.
        printer = self._run(command("ippeveprinter"), "-r", "off", "-p", str(port), "-k",
                            "-d", self.sheets, "-c", "/bin/true", "-f", "application/pdf",
                            "-n", "localhost", "Velmora Test",
                            environment={"DBUS_SYSTEM_BUS_ADDRESS": address})
        wait_until(lambda: self._listens(printer, port), "the printer")
        return f"ipp://localhost:{port}/ipp/print"

    def administer(self, name, *words):
        """Runs a command of the print system; returns what it prints."""
        done = subprocess.run([command(name), *words], capture_output=True, text=True,
                              env={**os.environ, **self.environment, "LC_ALL": "C.UTF-8"})
        if done.returncode:
            raise NotSeen(f"{name} {words}: {done.stderr}{self.story()}")
        return done.stdout

    def add_queue(self, name, address):
        self.administer("lpadmin", "-p", name, "-v", address, "-m", "everywhere", "-E")
        # The description of the printer is made a moment later.
        wait_until(lambda: "PageSize" in self.administer("lpoptions", "-p", name, "-l"),
                   f"the queue {name}")

    def remove_queue(self, name=QUEUE):
        self.administer("lpadmin", "-x", name)

    def refuse_jobs(self, name=QUEUE):
        self.administer("cupsreject", name)

    def _sheets_now(self):
        found = [path for path in self.sheets.glob("*.pdf") if path not in self.taken]
        return sorted(found, key=lambda path: int(re.match(r"\d*", path.name)[0] or 0))

    def _is_idle(self):
        return not self.administer("lpstat", "-o").strip()

    def next_sheet(self):
        """The PDF file of the next job that arrives at the printer."""
        found = wait_until(lambda: self._is_idle() and self._sheets_now(), "a job at the printer")
        self.taken.add(found[0])
        return found[0]

    def has_nothing_more(self):
        """True when no other job has arrived, and none is on its way."""
        return self._is_idle() and not self._sheets_now()

    def story(self):
        """What the processes had to say."""
        self.log.flush()
        return (self.folder / "log").read_text(errors="replace")[-2000:]

    def end(self):
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(timeout=10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        self.log.close()
        shutil.rmtree(self.folder, ignore_errors=True)


def serve():
    shop = PrintShop()
    try:
        print(shop.environment["CUPS_SERVER"], flush=True)
        for line in sys.stdin:
            word, *more = line.split()
            answers = {"next": shop.next_sheet, "nothing": shop.has_nothing_more,
                       "administer": lambda words=more: shop.administer(*words)}
            print(*str(answers[word]()).split("\n"), flush=True)
    finally:
        shop.end()


if __name__ == "__main__":
    serve()
