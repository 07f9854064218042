"""The walls are checked by a script; here the script is checked, with trees that break each rule."""

import pathlib
import tempfile
import unittest

from check_walls import violations

ROOT = pathlib.Path(__file__).resolve().parents[2]


class TreeTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for header in ("platform/Clock.h", "platform/qt/QtText.h", "core/SharedState.h",
                       "phonebook/PhonebookStore.h", "phonebook/forms/AddForm.h",
                       "planner/Alarms.h", "planner/forms/Alarm.h", "core/forms/Calendar.h"):
            self.write("src/" + header, "#pragma once\n")

    def write(self, path, text):
        path = self.root / path
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def including(self, path, *lines):
        """The violations when the file holds these include lines."""
        self.write(path, "".join(f"#include {line}\n" for line in lines))
        return violations(self.root)


class Walls(TreeTest):
    def test_a_good_tree_has_no_violations(self):
        self.assertEqual([], self.including(
            "src/planner/forms/Alarm.cpp", '"planner/forms/Alarm.h"', "<QPushButton>", "<string>",
            '"planner/Alarms.h"', '"core/SharedState.h"', '"platform/qt/QtText.h"'))

    def test_logic_does_not_include_qt(self):
        for header in ("<QString>", "<QtCore/qglobal.h>", "<qobject.h>", "<QtWidgets/QWidget>"):
            with self.subTest(header):
                found = self.including("src/planner/Alarms.cpp", '"planner/Alarms.h"', header)
                self.assertEqual([f"src/planner/Alarms.cpp:2: includes {header[1:-1]}: no Qt here"],
                                 found)

    def test_standard_headers_are_not_taken_for_qt(self):
        self.assertEqual([], self.including("src/core/Queue.cpp", "<queue>", "<sqlite3.h>"))

    def test_logic_does_not_include_forms(self):
        found = self.including("src/planner/Alarms.cpp", '"planner/forms/Alarm.h"')
        self.assertEqual(1, len(found), found)
        self.assertIn("no arrow from planner to planner/forms", found[0])

    def test_logic_does_not_include_adapters(self):
        self.assertEqual(1, len(self.including("src/core/Panes.cpp", '"platform/qt/QtText.h"')))

    def test_platform_does_not_include_logic(self):
        self.assertEqual(1, len(self.including("src/platform/A.cpp", '"core/SharedState.h"')))
        self.assertEqual(2, len(self.including("src/platform/qt/A.cpp", '"core/SharedState.h"')))

    def test_core_does_not_include_a_subsystem(self):
        self.assertEqual(1, len(self.including("src/core/A.h", '"phonebook/PhonebookStore.h"')))

    def test_a_subsystem_includes_only_those_it_builds_on(self):
        self.assertEqual([], self.including("src/planner/A.h", '"phonebook/PhonebookStore.h"'))
        self.assertEqual(1, len(self.including("src/phonebook/A.h", '"planner/Alarms.h"')))

    def test_a_form_does_not_include_another_form_of_another_subsystem(self):
        self.assertEqual(1, len(self.including("src/planner/forms/Alarm.cpp",
                                               '"phonebook/forms/AddForm.h"')))
        self.assertEqual(2, len(self.including("src/planner/forms/B.cpp",
                                               '"core/forms/Calendar.h"')))

    def test_the_application_includes_everything(self):
        self.assertEqual([], self.including("src/app/Application.cpp", '"core/forms/Calendar.h"',
                                            '"planner/Alarms.h"', "<QApplication>"))

    def test_a_folder_that_is_not_in_the_table_is_found(self):
        found = self.including("src/misc/Helpers.h", "<string>")
        self.assertEqual(["src/misc/Helpers.h: this folder is not in the table of arrows"], found)

    def test_a_header_that_is_not_named_from_the_root_is_found(self):
        self.assertEqual(1, len(self.including("src/core/A.h", '"SharedState.h"')))
        self.assertEqual(1, len(self.including("src/core/A.h", '"../platform/Clock.h"')))

    def test_an_include_with_blanks_counts_too(self):
        self.write("src/core/A.cpp", "int a;\n\n  #  include   <QString>\n")
        self.assertEqual(["src/core/A.cpp:3: includes QString: no Qt here"], violations(self.root))


class Words(TreeTest):
    def test_each_forbidden_word_is_found(self):
        for path, text in (
            ("src/app/A.cpp", "#include <QtWidgets>"),
            ("src/app/A.h", "class A : public QObject { Q_OBJECT"),
            ("src/core/forms/A.cpp", "QMessageBox::warning(this);"),
            ("src/core/forms/A.cpp", "QFile file(name);"),
            ("src/core/A.cpp", "#include <filesystem>"),
            ("src/planner/A.cpp", "#include <sys/stat.h>"),
            ("src/app/A.cpp", "#  include <fcntl.h>"),
            ("src/core/A.cpp", "c = std::toupper(c);"),
            ("src/core/A.cpp", "strcasecmp(a, b);"),
            ("src/docpad/A.cpp", 'parts_.settings.Read(kKey);'),
            ("src/docpad/A.cpp", 'parts_.settings.read("Doc");'),
            ("src/planner/A.cpp", 'settings_.save({"Doc"}, name);'),
            ("src/planner/A.cpp", 'settings_.remove(name);'),
            ("src/app/A.cpp", 'world.settings.readAll(prefix);'),
            ("src/reports/A.cpp", 'constexpr TextKey kKey{"Doc"};'),
            ("src/reports/A.cpp", 'read(SwitchKey {.name = "EnvTop"});'),
            ("src/planner/A.cpp", 'constexpr KeyFamily Alarms{"Alarms"};'),
            ("tests/core/ATest.cpp", "std::this_thread::sleep_for(1s);"),
            ("tests/forms/ATest.cpp", "QTest::qWait(100);"),
            ("tests/core/ATest.cpp", "TEST(A, DISABLED_Works) {}"),
            ("src/core/A.cpp", "// TODO: the rest"),
            ("README.md", "Lies in /home/somebody/velmora."),
            ("tools/install", "cp a /root/b"),
            ("CONTRIBUTING.md", "As the r" "ulings say."),
            ("src/core/A.cpp", "// See P" "art 2.1."),
            ("src/core/A.cpp", "// As the s" "pecification wants it."),
        ):
            with self.subTest(text):
                self.write(path, text)
                found = violations(self.root)
                (self.root / path).unlink()
                self.assertEqual(1, len(found), found)
                self.assertTrue(found[0].startswith(path + ":1: "), found)

    def test_innocent_words_are_not_found(self):
        self.write("src/core/A.cpp", "// Party 2.1, a special case: the scheduling of /dev/work\n")
        self.write("src/platform/qt/QtMessages.cpp", "QMessageBox box;\n")
        self.write("src/docpad/A.cpp", 'settings.save(keys::Doc, "a");\nconst FontKey& key;\n')
        self.write("src/core/SettingKeys.h", 'inline constexpr TextKey Doc{.name = "Doc"};\n')
        self.write("src/planner/NumberedList.cpp", "settings_.Read(shape_.countKey);\n")
        self.write("src/platform/files/A.cpp", "#include <sys/stat.h>\n#include <filesystem>\n")
        self.write("tests/e2e/driver.py", "time.sleep(0.05)\n")
        self.assertEqual([], violations(self.root))

    def test_what_is_built_is_not_read(self):
        self.write("build/dev/CMakeCache.txt", "/home/somebody/velmora\n")
        self.assertEqual([], violations(self.root))


class ThisTree(unittest.TestCase):
    def test_keeps_the_walls(self):
        self.assertEqual([], violations(ROOT))


if __name__ == "__main__":
    unittest.main()
