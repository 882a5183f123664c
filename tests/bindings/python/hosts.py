"""What hosts offer, in memory."""

import quorconversions as quor


class MapINIFile(quor.INIFile):
    """An INI file in a dictionary."""

    def __init__(self):
        self.values = {}
        self.brackets = []

    def _read(self, key, kind):
        value = self.values.get((self.section, key))
        return value if type(value) is kind else None

    def read_boolean(self, key):
        return self._read(key, bool)

    def read_double(self, key):
        return self._read(key, float)

    def read_integer(self, key):
        return self._read(key, int)

    def read_string(self, key):
        return self._read(key, str)

    def _write(self, key, value, comment=""):
        self.values[self.section, key] = value

    write_boolean = write_double = write_integer = write_string = _write

    def hold(self):
        self.brackets.append("hold")

    def release(self):
        self.brackets.append("release")

    def abandon(self):
        self.brackets.append("abandon")


class MapRegistry(quor.Registry):
    def __init__(self):
        self.values = {}

    def read_value(self, section, name):
        return self.values.get((section, name))

    def write_value(self, section, name, value):
        self.values[section, name] = value


class Person(quor.Platform):
    """A person written down: `run` acts in each dialog; messages are noted."""

    def __init__(self, run=None, file=None):
        self.run = run
        self.file = file
        self.messages = []
        self.requests = []

    def run_dialog(self, dialog):
        dialog.Activate()
        self.run(dialog)

    def show_message(self, message):
        self.messages.append(message)

    def ask_for_file(self, request):
        self.requests.append(request)
        return self.file


def type_over(dialog, name, text):
    """Goes to a box and types over what is in it. Keys that no number has are swallowed."""
    box = dialog.FindControl(name)
    dialog.Focus(box)
    typed = ""
    for key in text:
        typed += chr(dialog.KeyPress(ord(key)) or 0).strip("\0")
        dialog.EditText(box, typed, len(typed), 0)


def click(dialog, name):
    dialog.Click(dialog.FindControl(name))
