"""The locations of error reports name procedures, so that a report leads to its source."""
import pathlib
import re
import unittest

ADD_IN = pathlib.Path(__file__).resolve().parents[2] / "Add-in"
# A literal that starts with a module. Two begin a location; three are parts of the signature of a handler.
LOCATION = re.compile(r'"((?:mod|cls|frm|udoc|Connect|AddIn|PipeForm)\w*\.(?!frx)[^"]*)"')
WELL_FORMED = re.compile(r"[A-Za-z]\w*\.(\w+(\((ByVal_VBInst_As_Object,_)?)?)?")
# A member function whose first statement is its trap.
MEMBER = re.compile(r"^[^\n/].*?\b(\w+)::(\w+)\([^;{]*?\{\n    Procedure here\{[\w.()]+, \"(\w+)\.(\w+)\"\};", re.M)
ACCESSOR = re.compile(r"^(Get|Let|Set)_")
# Handlers that share the location of another one.
SHARED = {"QuinloftSettingsHandler_Click": "ProjectPropertiesHandler_Click"}


def texts():
    for path in sorted(ADD_IN.rglob("*")):
        if path.suffix in (".cpp", ".h"):
            yield path.name, path.read_text(encoding="utf-8")


class Locations(unittest.TestCase):
    def test_each_is_a_module_and_a_procedure(self):
        found = [(name, location) for name, text in texts() for location in LOCATION.findall(text)]
        self.assertGreater(len(found), 150)
        for name, location in found:
            self.assertTrue(WELL_FORMED.fullmatch(location), f"{name}: {location}")

    def test_a_procedure_of_the_product_reports_its_own_name(self):
        """The product's procedures have capitals; other functions do parts of their work."""
        members = [(name, *member) for name, text in texts() for member in MEMBER.findall(text)]
        self.assertGreater(len(members), 100)
        for name, _, function, _, procedure in members:
            if function[0].isupper():
                self.assertEqual(ACCESSOR.sub("", procedure), SHARED.get(function, function), name)


if __name__ == "__main__":
    unittest.main()
