"""The examples of the documentation are true."""

import doctest

from conftest import ROOT


def test_the_readme():
    failed, tried = doctest.testfile(str(ROOT / "Python" / "README.md"), module_relative=False)
    assert tried > 15
    assert failed == 0
