"""The catalogue is that of the tool."""

import qelpro


def test_sections_and_keys_are_those_that_the_tool_explains(tool):
    printed = tool("explain", "--json")
    catalogue = qelpro.catalogue()
    assert list(catalogue) == list(dict.fromkeys(section["section"] for section in printed))
    for section in printed:
        known = catalogue[section["section"]]
        assert known["subject"] == section["subject"]
        first = {}
        for key in section["keys"]:
            first.setdefault(key["key"], key)
        assert list(known["keys"]) == list(first)
        for name, key in first.items():
            wanted = {"unit": "", **key}
            del wanted["key"]
            assert known["keys"][name] == wanted


def test_each_key_has_these_parts():
    parts = {"meaning", "unit", "encoding", "fields", "members"}
    for section, known in qelpro.catalogue().items():
        assert known.keys() == {"subject", "keys"}, section
        for key, entry in known["keys"].items():
            assert entry.keys() >= parts, (section, key)
            assert all(field.keys() == {"name", "kind", "meaning"} for field in entry["fields"])
            assert {field["kind"] for field in entry["fields"]} <= {"integer", "real", "text"}
            assert entry["meaning"] and entry["encoding"] and entry["fields"]
            assert all(isinstance(member, str) for member in entry["members"])


def test_units_are_those_of_the_values():
    keys = qelpro.catalogue()["Flow-%ld"]["keys"]
    assert (keys["FillTime"]["unit"], keys["InjectPres"]["unit"], keys["FRSet"]["unit"]) == (
        "sec",
        "MPa",
        "",
    )


def test_a_catalogue_is_the_callers_own():
    qelpro.catalogue()["Flow-%ld"]["keys"].clear()
    qelpro.catalogue().clear()
    assert "FillTime" in qelpro.catalogue()["Flow-%ld"]["keys"]
