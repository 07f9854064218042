"""The package, from its first installation to its removal.

What is packed is the build of the tests, so that no second one is needed and the sanitizers look
on; what is shipped differs from it in the compiler's options alone. VELMORA_PRESET
names another.
"""

import os
import pathlib
import re
import tempfile
import unittest

from package_root import ROOT, root_for, run

# Of the quick packing alone.
UNLIKE_SHIPPED = "uses-no-compression-for-data-tarball"


def pack(folder, *version):
    return pathlib.Path(run(ROOT / "tools/pack", os.environ.get("VELMORA_PRESET", "ci"), folder,
                            *version,
                            env={**os.environ, "VELMORA_PACKAGE_COMPRESSION": "none"}).strip())


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.made = tempfile.TemporaryDirectory(prefix="velmora-packed.")
        cls.addClassCleanup(cls.made.cleanup)
        cls.package = pack(cls.made.name)
        cls.version = run("dpkg-deb", "--field", cls.package, "Version").strip()

    def newer(self):
        """The same under a higher version; what an upgrade looks at is this field."""
        content = pathlib.Path(self.made.name) / "content"
        run("dpkg-deb", "--raw-extract", self.package, content)
        control = content / "DEBIAN/control"
        control.write_text(re.sub(r"^Version: .*$", f"Version: {self.version}+1",
                                  control.read_text(), flags=re.MULTILINE))
        newer = pathlib.Path(self.made.name) / "newer.deb"
        run("dpkg-deb", "--root-owner-group", "-Znone", "--build", content, newer)
        return newer

    def files(self):
        return [line.split(maxsplit=5)[5].removeprefix(".")
                for line in run("dpkg-deb", "--contents", self.package).splitlines()]

    def test_nothing_is_wrong_with_it(self):
        run(ROOT / "tools/check-package", self.package, "--suppress-tags", UNLIKE_SHIPPED)

    def test_it_depends_on_what_no_linker_knows_of(self):
        wanted = run("dpkg-deb", "--field", self.package, "Depends")
        for name in ("qt6-wayland", "libqt6svg6", "fonts-liberation", "fonts-inter", "xdg-utils"):
            self.assertRegex(wanted, rf"(^|, ){name}\b")

    def test_the_desktop_entry_its_icons_and_its_service_bear_one_name(self):
        files = self.files()
        (entry,) = [name for name in files if name.endswith(".desktop")]
        name = pathlib.Path(entry).stem
        for size in ("16x16", "22x22", "24x24", "32x32", "48x48", "64x64", "128x128", "256x256"):
            self.assertIn(f"/usr/share/icons/hicolor/{size}/apps/{name}.png", files)
        self.assertIn(f"/usr/share/icons/hicolor/scalable/apps/{name}.svg", files)
        self.assertIn(f"/usr/share/dbus-1/services/{name}.service", files)
        self.assertIn(f"/usr/share/metainfo/{name}.metainfo.xml", files)
        text = run("sh", "-c", 'dpkg-deb --fsys-tarfile "$0" | tar -xO ".$1"', self.package, entry)
        self.assertIn(f"\nIcon={name}\n", text)
        self.assertIn("\nMimeType=x-scheme-handler/tel;\n", text)
        self.assertNotIn("mimeapps.list", " ".join(files))

    def test_it_is_installed_used_upgraded_used_again_and_removed(self):
        root = root_for(self.package)
        self.addCleanup(root.end)
        print(f"    in a {type(root).__name__}", flush=True)
        root.install(self.package)
        self.assertTrue((root.place / "usr/bin/velmora").exists())
        root.spend_day("x11", "Adair")
        self.assertNotIn("Could not find", root.errors_of_day())
        root.install(self.newer())
        self.assertEqual(f"{self.version}+1", root.version())
        said = root.spend_day("wayland", "Adams", "Adair")
        self.assertNotIn("Could not find", root.errors_of_day())
        (entry,) = (root.place / "usr/share/applications").glob("*elmora*.desktop")
        self.assertIn(f"app id {entry.stem}\n", said)
        root.remove()
        self.assertEqual([], root.left_behind())
        data = root.home / ".local/share/velmora"
        book = (data / "DATAY.QEL").read_bytes()
        for name in (b"Adair", b"Adams"):
            self.assertIn(name, book)
        self.assertTrue((root.home / ".config/velmora/settings.db").exists())


if __name__ == "__main__":
    unittest.main()
