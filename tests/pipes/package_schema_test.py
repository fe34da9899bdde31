#!/usr/bin/env python3
"""Checks that written manifests match their schema, and that the schema refuses what readers refuse."""
import copy
import json
import pathlib
import unittest

import jsonschema

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
SCHEMA = json.loads((ROOT / "installation/schemas/package-1.json").read_text())
SEEDS = ROOT / "fuzz/corpus/manifest"


class PackageSchema(unittest.TestCase):
    def setUp(self):
        jsonschema.Draft7Validator.check_schema(SCHEMA)
        self.schema = jsonschema.Draft7Validator(SCHEMA)
        self.application = json.loads((SEEDS / "application.json").read_text())

    def changed(self, change):
        manifest = copy.deepcopy(self.application)
        change(manifest)
        return self.schema.is_valid(manifest)

    def test_takes_what_is_written(self):
        for name in ("application.json", "runtime.json", "settings.json"):
            errors = [error.message for error in self.schema.iter_errors(json.loads((SEEDS / name).read_text()))]
            self.assertEqual(errors, [], name)

    def test_refuses_what_a_reader_refuses(self):
        file = lambda manifest: manifest["files"][0]
        self.assertFalse(self.changed(lambda m: m.pop("device")))
        self.assertFalse(self.changed(lambda m: m.update(schemaVersion=2)))
        self.assertFalse(self.changed(lambda m: m.update(project="a/b")))
        self.assertFalse(self.changed(lambda m: file(m).update(path="../x")))
        self.assertFalse(self.changed(lambda m: m.update(creatorId="Hello")))
        self.assertFalse(self.changed(lambda m: m.update(memoryLimit="64")))
        self.assertFalse(self.changed(lambda m: m.update(orientation="Sideways")))
        self.assertFalse(self.changed(lambda m: file(m).update(size=-1)))
        self.assertFalse(self.changed(lambda m: file(m).update(sha256="0")))


if __name__ == "__main__":
    unittest.main()
