// A host in C#: reads a probe from a host's file, changes its R0, has it edited in its dialog, saves it,
// and handles an error. Compiled together with Quor.cs.
// Usage: host.exe FILE PROBE. The probe is a Callendar-Van Dusen one; it has R0 = 100.0123 ohms afterwards.
using System;
using System.Globalization;
using QuorConversions;

/// A host with a screen draws the dialog and reports what its user does; here is a simulated user.
sealed class Screen : HostPlatform {
    protected override void RunDialog(Dialog dialog) {
        dialog.Activate();
        Console.WriteLine("dialog " + dialog.Title);
        Type(dialog, "txtCoefficients(0)", "100.0123");
        using (var ok = dialog.FindControl("cmdOKCancelHelp(0)"))
            dialog.Click(ok);
    }

    /// Moves to a box and replaces its text. Keys that are not part of a number are dropped.
    static void Type(Dialog dialog, string name, string keys) {
        using (var box = dialog.FindControl(name)) {
            dialog.Focus(box);
            var typed = "";
            foreach (var key in keys) {
                var counted = dialog.KeyPress((short)key);
                if (counted != 0)
                    typed += (char)counted;
                dialog.EditText(box, typed, typed.Length, 0);
            }
        }
    }

    protected override void ShowMessage(Message message) { Console.WriteLine(message.Title + ": " + message.Text); }
}

static class Host {
    static string Exactly(double value) { return value.ToString("R", CultureInfo.InvariantCulture); }

    static int Edit(string path, string section) {
        using (var screen = new Screen())
        using (var file = new ProbeFile(path))
        using (var probe = new CQuorConversion(screen)) {
            if (!file.Read(section, probe))
                return 1;
            using (var cvd = (CQuorCVD)probe.Settings) {
                var r0 = cvd.GetCoefficients(ECVDCoefficients.CVD_R0);
                Console.WriteLine("CQuorCVD, R0 = " + Exactly(r0) + " ohms");

                cvd.SetCoefficients(ECVDCoefficients.CVD_R0, r0 + 0.001);
                if (!probe.Edit())
                    return 1;

                try { // there is no fifth coefficient
                    cvd.GetCoefficients(ECVDCoefficients.CVD_BETA + 1);
                } catch (QuorError error) {
                    Console.WriteLine("0x" + error.Number.ToString("X8") + " " + error.Source + ": " + error.Message);
                }

                // Values of the probe that another program has written in the meantime are kept.
                if (!file.WriteChanges(section, probe))
                    return 1;
                Console.WriteLine("saved, R0 = " + Exactly(cvd.GetCoefficients(ECVDCoefficients.CVD_R0)) + " ohms");
            }
        }
        return 0;
    }

    static int Main(string[] args) {
        if (args.Length != 2) {
            Console.Error.WriteLine("usage: host.exe FILE PROBE");
            return 2;
        }
        try {
            return Edit(args[0], args[1]);
        } catch (QuorError error) {
            Console.Error.WriteLine("error " + error.Number + ": " + error.Message + " (" + error.Source + ")");
            return 1;
        }
    }
}
