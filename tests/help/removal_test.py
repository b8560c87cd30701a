"""What removing Q-DIX deletes and leaves: manual and README.TXT give the same lists, qdix.inf deletes what they say, and
the lists include everything that the programs write."""

import re
import sys
import unittest

from documents import files_in, keys_in, lines_of, readme_section
from manual_parts import ROOT, ManualCase
from source_texts import sources, texts_of

sys.path.insert(0, str(ROOT / "tests" / "dist"))
from setup_text_test import constant, sections_of  # noqa: E402

REMOVING = 25
STAYS = "What stays"
# The self-test keeps its own keys only while it runs.
WITHOUT_KEYS = ("companions/self_test/",)

PATHS, TEMPLATES = "src/registry/registry_paths.h", "src/tuning/cache/file_system_template.h"
OWN_KEYS = ["HKEY_CURRENT_USER\\" + constant("src/app/machine_record.cpp", "kUserKey"),
            "HKEY_CURRENT_USER\\" + constant("src/registry/settings_store.cpp", "path").rstrip("\\"),
            "HKEY_LOCAL_MACHINE\\" + constant(PATHS, "kMachineKey")]
TEMPLATE_KEY = f"HKEY_LOCAL_MACHINE\\{constant(TEMPLATES, 'kTemplatesKey')}\\{constant(TEMPLATES, 'kOwnTemplate')}"
# Windows keys in which the programs read or write a value: the start-up entry and the template.
KEYS_OF_WINDOWS = {constant(PATHS, "kRunKey"), constant(TEMPLATES, "kTemplatesKey")}
FILES_LEFT = {constant("src/tuning/system_ini.h", "kSystemBackup"),
              constant("src/shell/shortcut_names.h", "kShortcutName"),
              constant("companions/self_test/win32/main.cpp", "kLogName")}


class RemovalTest(ManualCase):
    def setUp(self):
        documents = {"manual": lines_of(self.topic(REMOVING)), "README.TXT": readme_section("REMOVING")}
        self.going = {name: text.partition(STAYS)[0] for name, text in documents.items()}
        self.staying = {name: text.partition(STAYS)[2] for name, text in documents.items()}

    def test_manual_and_readme_list_the_deleted_keys_in_the_same_order(self):
        for name, text in self.going.items():
            self.assertEqual(keys_in(text), OWN_KEYS, name)

    def test_setup_deletes_these_keys_and_the_start_up_entry(self):
        sections = sections_of((ROOT / "packaging/qdix.inf.in").read_text(encoding="ascii"))
        roots = {"HKCU": "HKEY_CURRENT_USER", "HKLM": "HKEY_LOCAL_MACHINE"}
        own = []
        for line in sections["QDIX.Keys"]:
            root, key, *value = line.replace('"', "").split(",")
            if not key.startswith("%"):
                self.assertEqual(value, [], line)
                own.append(f"{roots[root]}\\{key}")
        self.assertEqual(sorted(own), sorted(OWN_KEYS))
        self.assertIn(f"HKLM,%RUN%,{constant(PATHS, 'kRunValue')}", sections["QDIX.Keys"])

    def test_manual_and_readme_list_what_stays(self):
        for name, text in self.staying.items():
            self.assertEqual(keys_in(text), [TEMPLATE_KEY], name)
            self.assertEqual(files_in(text), FILES_LEFT, name)
            self.assertIn("settings of other users", text.replace("Settings", "settings"), name)
            for place in ("StartUp", "empty folder Q-DIX", "system.ini"):
                self.assertIn(place, " ".join(text.split()), name)

    def test_every_key_in_the_sources_is_accounted_for(self):
        found = {text.rstrip("\\") for code in sources("src", "companions", without=WITHOUT_KEYS)
                 for text in texts_of(code) if re.match(r"software\\", text, re.IGNORECASE)}
        named = {key.partition("\\")[2] for key in [*OWN_KEYS, TEMPLATE_KEY]}
        self.assertEqual({key.lower() for key in found}, {key.lower() for key in named | KEYS_OF_WINDOWS})

    def test_keys_and_files_in_documents_are_found(self):
        text = "  A\n    HKEY_A\\b c\\\n      D\nand HKEY_B\\e\n"
        self.assertEqual(keys_in(text), ["HKEY_A\\b c\\D", "HKEY_B\\e"])
        self.assertEqual(files_in("Quondix.lnk, X.LOG and undo.exe"), {"Quondix.lnk", "X.LOG"})


if __name__ == "__main__":
    unittest.main()
