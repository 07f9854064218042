"""DocPad in its real window: what is typed is kept, whatever happens."""

import pathlib
import signal

from desk_test import DeskTest
from velmora_driver import box_of, click, key, text_of, type_text, wait_until

LETTER = "Dear Adrian, thank you for the tea."


class DocPadTest(DeskTest):
    def type_into_docpad(self, text):
        self.program.focus("Text4")
        type_text(text)
        self.wait_text(text)

    def wait_text(self, text):
        wait_until(lambda: text_of(self.program.find(id="Text4")) == text, f"DocPad with {text!r}")

    def recovery_files(self):
        """Without what is only being written: that has a longer name until it is whole."""
        folder = pathlib.Path(self.desk.base) / "config" / "velmora"
        return sorted(folder.glob("docpad.recovery[1-9]"))

    def save_as(self, path):
        """Answers the file dialog that is open."""
        wait_until(lambda: len(self.program.windows()) > 1, "the file dialog")
        type_text(str(path))
        key("Return")


class Saving(DocPadTest):
    def test_a_text_is_saved_with_a_line_end_behind_it(self):
        self.start()
        self.type_into_docpad(LETTER)
        path = self.desk.folder / "letter.txt"
        key("ctrl+s")
        self.save_as(path)
        wait_until(path.exists, "the file")
        wait_until(lambda: self.program.text("Label4") == "DocPad - letter.txt", "the title")
        self.assertEqual(LETTER.encode("ascii") + b"\r\n", path.read_bytes())
        self.assert_closes_well()

    def test_leaving_asks_and_a_no_leaves_without_a_trace(self):
        self.start()
        self.type_into_docpad(LETTER)
        wait_until(self.recovery_files, "the recovery file")
        self.program.activate()
        key("alt+F4")
        self.assertIn("Save your DocPad changes?", self.program.answer("Save", "No"))
        self.assertEqual(0, self.program.wait_end())
        self.assertEqual([], self.recovery_files())


class Recovery(DocPadTest):
    def killed_while_typing(self):
        self.start()
        self.type_into_docpad(LETTER)
        wait_until(lambda: any(LETTER.encode("ascii") in file.read_bytes()
                               for file in self.recovery_files()), "the text on the disk")
        self.program.process.send_signal(signal.SIGKILL)
        self.program.process.wait()

    def test_a_text_that_a_crash_cut_off_comes_back(self):
        self.killed_while_typing()
        self.program = self.desk.start()
        self.program.answer("DocPad", "Yes")
        self.wait_text(LETTER)

    def test_a_text_that_is_not_wanted_is_gone(self):
        self.killed_while_typing()
        self.program = self.desk.start()
        self.program.answer("DocPad", "No")
        self.wait_text("")
        self.assert_closes_well()
        self.assertEqual([], self.recovery_files())


class Size(DocPadTest):
    def test_docpad_fills_the_window_and_goes_back(self):
        program = self.start()
        narrow = box_of(program.find(id="Text4"))
        program.click_id("Toolbar3")
        wait_until(lambda: not program.shows("SSMonth1"), "the month to go")
        wide = box_of(program.find(id="Text4"))
        self.assertGreaterEqual(wide.width * 15, 9600)
        program.click_id("Toolbar5")
        wait_until(lambda: program.shows("SSMonth1"), "the month to come back")
        wait_until(lambda: box_of(program.find(id="Text4")).width == narrow.width, "the column")
        self.assert_closes_well()


class Searching(DocPadTest):
    def test_a_text_is_found_and_a_missing_one_is_told(self):
        program = self.start()
        self.type_into_docpad(LETTER)
        key("ctrl+Home")
        key("ctrl+f")
        form = program.dialog("Search...")
        type_text("TEA")
        click(program.find(name="Find", role="push button", within=form))
        program.wait_closed("Search...")
        text = program.find(id="Text4").get_text_iface()
        wait_until(lambda: (text.get_selection(0).start_offset, text.get_selection(0).end_offset)
                   == (LETTER.index("tea"), LETTER.index("tea") + 3), "the hit")
        key("ctrl+f")
        form = program.dialog("Search...")
        program.fill("Text1", "coffee", within=form)
        click(program.find(name="Find", role="push button", within=form))
        self.assertIn("Text not found.", program.answer("Search Complete", "OK"))
