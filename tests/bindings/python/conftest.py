"""What the tests of the Python package share."""

import gc
import shutil
import sys
from pathlib import Path

import pytest

ROOT = Path(__file__).resolve().parents[3]
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "bindings/python"))

import quorconversions  # noqa: E402


@pytest.fixture(autouse=True)
def _nothing_is_left():
    """Every handle that a test has got is given back when its objects are gone, and no host object is kept."""
    from quorconversions import _runtime
    gc.collect()
    before = quorconversions.handle_count(), len(_runtime.hosted)
    yield
    gc.collect()
    assert (quorconversions.handle_count(), len(_runtime.hosted)) == before
    assert _runtime._thread.pending is None


@pytest.fixture
def laboratory(tmp_path):
    """A copy of the sample file."""
    return Path(shutil.copy(ROOT / "samples/laboratory.ini", tmp_path))
