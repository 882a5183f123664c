# How docs/handbook/make turns the documents into HTML.
import ctypes
import pathlib
import sys
from unittest import mock

# The reference of the Python package is made from its docstrings. Importing it needs no library: no function is called.
sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "bindings/python"))
sys.dont_write_bytecode = True
ctypes.CDLL = ctypes.PyDLL = mock.MagicMock()

project = "Quor Conversions"
author = "Quor Conversions"
project_copyright = ""
html_show_copyright = False
html_show_sphinx = False

extensions = ["myst_parser", "sphinx.ext.autodoc"]
myst_heading_anchors = 3
root_doc = "handbook/index"
# Each document is a page; what the Help button shows has a table of contents of its own.
exclude_patterns = ["help", "reference"]

html_theme = "alabaster"  # needs nothing from the network
html_theme_options = {"description": "Probe conversions of precision thermometers", "page_width": "1100px", "show_powered_by": False}
html_title = "Quor Conversions"
html_copy_source = False
html_show_sourcelink = False
