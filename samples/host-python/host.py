"""A host in Python: reads a probe from a host's file, changes its R0, has it edited in its dialog, saves it, and handles
an error.
Usage: host.py FILE PROBE. The probe is a Callendar-Van Dusen one; it has R0 = 100.0123 ohms afterwards."""

import sys

from quorconversions import CVD, Platform, ProbeFile, QuorError


class Person(Platform):
    """A simulated user. A host with a screen draws the dialog here and reports what its user does."""

    def run_dialog(self, dialog):
        dialog.Activate()
        print("dialog", dialog.Title)
        self.type(dialog, "txtCoefficients(0)", "100.0123")
        dialog.Click(dialog.FindControl("cmdOKCancelHelp(0)"))

    def type(self, dialog, name, keys):
        """Moves to a box and replaces its text. Keys that are not part of a number are dropped."""
        box = dialog.FindControl(name)
        dialog.Focus(box)
        text = ""
        for key in keys:
            counted = dialog.KeyPress(ord(key))
            text += chr(counted) if counted else ""
            dialog.EditText(box, text, len(text), 0)

    def show_message(self, message):
        print(f"{message.title}: {message.text}")


def main(path, section):
    with ProbeFile(path, platform=Person()) as file:  # saves at the end, and never after an exception
        probe = file[section]
        cvd = probe.settings_as(CVD)
        print(f"CQuorCVD, R0 = {cvd.R0:.17g} ohms")

        cvd.R0 += 0.001
        if not probe.edit():
            file.discard()  # the change of R0
            return 1

        try:  # there is no fifth coefficient
            cvd.get_Coefficients(4)
        except QuorError as error:
            print(f"0x{error.number & 0xFFFFFFFF:08X} {error.source}: {error.description}")
    print(f"saved, R0 = {cvd.R0:.17g} ohms")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("usage: host.py FILE PROBE")
    try:
        sys.exit(main(*sys.argv[1:]))
    except QuorError as error:
        sys.exit(f"error {error.number}: {error.description} ({error.source})")
    except KeyError as error:
        sys.exit(f"there is no probe {error}")
