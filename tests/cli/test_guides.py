"""The installed guides describe each command, control and device, and their links are valid."""
import html
import re
import unittest
import urllib.parse

from support import ROOT, Home

DOC = ROOT / "installation/VB Toolkit/doc"
USERS_GUIDE = DOC / "Quinloft_Users_Guide.html"
ADD_IN_GUIDE = DOC / "Quinloft_AddIn_Guide.html"
# In the menu's table but never shown: families of devices, and the disabled download.
UNUSED = {"&Palm OS", "P&ocketPC", "Deploy To Design &Target", "Download Tamarik..."}
# A resource string. 200 to 209 are tool tips.
CAPTION = re.compile(r'\{(?!20)\d{3}, "([^"]+)"\}')


def text_of(page):
    plain = html.unescape(re.sub(r"<[^>]+>", "", page.read_text(encoding="utf-8")))
    return " ".join(plain.split())


class Guides(unittest.TestCase):
    def missing(self, page, wanted):
        text = text_of(page)
        return [one for one in wanted if one not in text]

    def test_the_users_guide_names_each_command_line_command(self):
        with Home() as home:
            usage = home.fernwick("--help", check=True).stdout
        verbs = re.findall(r"^  ([a-z-]+) {2,}", usage.split("Commands:")[1].split("Exit status:")[0], re.M)
        self.assertGreater(len(verbs), 10)
        self.assertEqual(self.missing(USERS_GUIDE, [f"fernwick {verb}" for verb in verbs]), [])

    def test_all_pages_have_the_same_exit_statuses(self):
        with Home() as home:
            usage = home.fernwick("--help", check=True).stdout
        statuses = re.findall(r"^  (\d+) +(.+)$", usage.split("Exit status:")[1], re.M)
        self.assertEqual([int(number) for number, _ in statuses], [0, 1, 2, 3, 4, 5, 130])
        enum = (ROOT / "Apps/fernwick/options/exit_status.h").read_text(encoding="utf-8")
        self.assertEqual(re.findall(r" = (\d+),", enum), [number for number, _ in statuses])
        readme = re.findall(r"^\| (\d+) \| (.+) \|$", (ROOT / "README.md").read_text(encoding="utf-8"), re.M)
        self.assertEqual(readme, statuses)
        guide = re.findall(r"<tr><td>(\d+)</td><td>(.+)</td></tr>", USERS_GUIDE.read_text(encoding="utf-8"))
        self.assertEqual(guide, statuses)
        manual = (ROOT / "docs/man/fernwick.1").read_text(encoding="utf-8").split(".Sh EXIT STATUS")[1].split("\n.Sh ")[0]
        self.assertEqual(re.findall(r"^\.It (\d+)$", manual, re.M), [number for number, _ in statuses])

    def test_the_manual_page_names_each_command_and_option(self):
        manual = (ROOT / "docs/man/fernwick.1").read_text(encoding="utf-8")
        with Home() as home:
            usage = home.fernwick("--help", check=True).stdout
            for verb in re.findall(r"^  ([a-z-]+) {2,}", usage.split("Commands:")[1].split("Exit status:")[0], re.M):
                self.assertRegex(manual, rf"(?m)^\.Cm .*\b{verb}\b", verb)
                for option in re.findall(r"^  .*--([a-z-]+)", home.fernwick("help", verb, check=True).stdout, re.M):
                    if option not in ("help", "version"):
                        self.assertIn(f"Fl -{option}", manual.replace(" | -", " | Fl -").replace(" , -", " , Fl -"), verb)

    def test_the_users_guide_names_each_tavlet_and_target(self):
        tavlets = [path.stem for path in (ROOT / "installation/tavlets/classes").glob("*.toml")]
        targets = [path.stem for path in (ROOT / "installation/targets").glob("*.toml")]
        self.assertTrue(tavlets and targets)
        self.assertEqual(self.missing(USERS_GUIDE, tavlets + targets), [])

    def test_the_add_in_guide_names_each_command(self):
        texts = "".join(path.read_text(encoding="utf-8") for path in (ROOT / "Add-in/commands").glob("*.h"))
        captions = [c.replace("&", "").removesuffix("...") for c in CAPTION.findall(texts) if c not in UNUSED]
        self.assertGreater(len(captions), 20)
        self.assertEqual(self.missing(ADD_IN_GUIDE, captions), [])

    def test_links_are_valid(self):
        pages = [page for page in DOC.rglob("*.html") if page.parent.name != "Quinloft_Error_Codes"]
        self.assertIn(USERS_GUIDE, pages)
        for page in pages:
            for link in re.findall(r'(?:href|src)="([^"]+)"', page.read_text(encoding="utf-8")):
                path, _, anchor = urllib.parse.unquote(link).partition("#")
                target = page.parent / path if path else page
                with self.subTest(page=page.name, link=link):
                    self.assertTrue(target.is_file())
                    if anchor:
                        self.assertIn(f'id="{anchor}"', target.read_text(encoding="utf-8"))

    def test_each_help_file_has_a_page(self):
        files = list(DOC.glob("*.chm"))
        self.assertGreaterEqual(len(files), 2)
        self.assertEqual([f.name for f in files if not f.with_suffix(".html").is_file()], [])


if __name__ == "__main__":
    unittest.main()
