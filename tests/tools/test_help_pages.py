"""The pages of the help: each is in the index and in the resources, and its links lead somewhere."""

import html.parser
import pathlib
import re
import unittest

RESOURCES = pathlib.Path(__file__).resolve().parents[2] / "resources"
HELP = RESOURCES / "help"
VOID = {"img", "meta", "br"}


class Page(html.parser.HTMLParser):
    """Collects the links and pictures of a page, and tags that do not match."""

    def __init__(self, path):
        super().__init__()
        self.open, self.links, self.faults, self.headings = [], [], [], 0
        self.feed(path.read_text(encoding="ascii"))
        self.close()
        self.faults += self.open

    def handle_starttag(self, tag, attributes):
        if tag not in VOID:
            self.open.append(tag)
        self.headings += tag == "h1"
        self.links += [value for name, value in attributes if name in ("href", "src")]

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.faults.append("/" + tag)


class HelpPages(unittest.TestCase):
    def setUp(self):
        lines = (HELP / "index.txt").read_text(encoding="ascii").splitlines()
        self.topics = [line.split("|")[0].strip() for line in lines if line and line[0] != "#"]
        self.pages = {path.stem: Page(path) for path in HELP.glob("*.html")}

    def test_the_index_and_the_folder_name_the_same_pages(self):
        self.assertEqual(sorted(self.pages), sorted(self.topics))

    def test_everything_in_the_folder_is_built_into_the_program(self):
        named = re.findall(r"<file>(help/.*?)</file>", (RESOURCES / "resources.qrc").read_text())
        there = [str(path.relative_to(RESOURCES)) for path in HELP.rglob("*") if path.is_file()]
        self.assertEqual(sorted(there), sorted(named))

    def test_each_link_leads_to_a_file_of_the_help(self):
        for topic, page in self.pages.items():
            for link in page.links:
                with self.subTest(topic=topic, link=link):
                    self.assertRegex(link, r"^(pictures/)?[a-z0-9-]+\.(html|png)$")
                    self.assertTrue((HELP / link).is_file())

    def test_each_page_is_reached_by_a_link(self):
        linked = {link.removesuffix(".html") for page in self.pages.values() for link in page.links}
        self.assertEqual([], [topic for topic in self.topics[1:] if topic not in linked])

    def test_each_page_is_well_formed_and_has_one_heading(self):
        for topic, page in self.pages.items():
            with self.subTest(topic=topic):
                self.assertEqual([], page.faults)
                self.assertEqual(1, page.headings)


if __name__ == "__main__":
    unittest.main()
