"""Findings are those of the tool."""

import os

import pytest
from conftest import process_files

import qelpro

FIELDS = ("file", "line", "column", "severity", "code", "message", "section", "key", "hint")


@pytest.mark.parametrize("path", process_files(), ids=lambda path: path.name)
def test_the_findings_are_the_tools(path, tool):
    printed = tool_findings(tool, path)
    found = qelpro.ProcessFile(path).check()
    assert [finding._asdict() for finding in found] == printed
    assert all(type(finding) is qelpro.Finding for finding in found)


def tool_findings(tool, path):
    try:
        return tool("check", path, "--json")
    except AssertionError:
        return tool("check", path, "--json", status=1)


def test_findings_have_their_fields_in_order(path):
    path.write_text("[Flow-1]\nFillTime = 1,2\n")
    (finding,) = qelpro.ProcessFile(path).check()
    assert finding._fields == FIELDS
    assert finding[:5] == (str(path), 2, 12, "error", "P204")
    assert finding[6:] == ("[Flow-1]", "FillTime", "write a point")


def test_a_file_is_called_as_its_user_named_it(path, monkeypatch):
    path.write_text("[Flow-1]\nFillTime = 1,2\n")
    monkeypatch.chdir(path.parent)
    file = qelpro.ProcessFile("a.pro")
    monkeypatch.chdir(os.sep)
    assert file.check()[0].file == "a.pro"


def test_a_file_without_faults_has_no_findings_of_errors(file):
    assert [finding for finding in file.check() if finding.severity == "error"] == []


def test_inside_a_batch_the_changes_are_checked(path):
    path.write_text("[Flow-1]\nFRSet = 1\nFR-1 = 0 50\n")
    file = qelpro.ProcessFile(path)
    before = {finding.code for finding in file.check()}
    with file.batch():
        file["Flow-1"]["FRSet"] = 2
        assert {finding.code for finding in file.check()} - before == {"P301"}
        file["Flow-1"]["FRSet"] = 1
