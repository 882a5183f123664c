// A host in C#: reads a probe from a host's file, changes its R0, has it edited in its dialog, saves it,
// and handles an error.
// Usage: host.exe FILE PROBE. The probe is a Callendar-Van Dusen one; it has R0 = 100.0123 ohms afterwards.
//
// The declarations are those of quor.h that this host needs: a handle is a ulong, an error number an int, a Boolean a
// short, a text its bytes in UTF-8 with their count.
using System;
using System.Globalization;
using System.Runtime.InteropServices;
using System.Text;

static class Quor {
    const string Library = "quor"; // libquor.so, quor.dll
    public const int CvdR0 = 0, CvdBeta = 3, ErrorIndex = unchecked((int)0x800401F5);

    [StructLayout(LayoutKind.Sequential)]
    public struct Text {
        public IntPtr Bytes;
        public UIntPtr Size;
        public override string ToString() {
            var bytes = new byte[(int)Size];
            if (bytes.Length > 0)
                Marshal.Copy(Bytes, bytes, 0, bytes.Length);
            return Encoding.UTF8.GetString(bytes);
        }
    }

    [StructLayout(LayoutKind.Sequential)]
    struct ErrorView {
        public int Number, HelpContext;
        public Text Source, Description, HelpFile;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct Message {
        public Text Text, Title, HelpFile;
        public int HelpContext, Icon;
    }

    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    public delegate int RunDialog(IntPtr user, ulong dialog);
    [UnmanagedFunctionPointer(CallingConvention.Cdecl)]
    public delegate int ShowMessage(IntPtr user, ref Message message);

    /// What this host provides. The library reads as many fields as the size says: those at the end may be left out.
    [StructLayout(LayoutKind.Sequential)]
    public struct PlatformFunctions {
        public UIntPtr Size;
        public IntPtr Destroyed, CreateIniFile;
        public RunDialog RunDialog;
        public ShowMessage ShowMessage;
    }

    public class Error : Exception {
        public readonly int Number;
        public Error(int number, string source, string description) : base(description) {
            Number = number;
            Source = source;
        }
    }

    /// A text that is passed to the library, freed by Dispose.
    public sealed class TextIn : IDisposable {
        Text m_text;
        public TextIn(string text) {
            var bytes = Encoding.UTF8.GetBytes(text);
            m_text.Bytes = Marshal.AllocHGlobal(bytes.Length + 1);
            m_text.Size = (UIntPtr)bytes.Length;
            Marshal.Copy(bytes, 0, m_text.Bytes, bytes.Length);
        }
        public static implicit operator Text(TextIn text) { return text.m_text; }
        public void Dispose() { Marshal.FreeHGlobal(m_text.Bytes); }
    }

    /// Raises the error of a call that has failed.
    public static void Must(int code) {
        if (code == 0)
            return;
        ErrorView error;
        quor_last_error(out error);
        throw new Error(error.Number, error.Source.ToString(), error.Description.ToString());
    }

    [DllImport(Library)] static extern int quor_last_error(out ErrorView error);
    [DllImport(Library)] public static extern void quor_text_free(ref Text text);
    [DllImport(Library)] public static extern int quor_release(ulong handle);
    [DllImport(Library)]
    public static extern int quor_platform_from_host(ref PlatformFunctions functions, IntPtr user, out ulong platform);
    [DllImport(Library)] public static extern int quor_conversion_create(ulong platform, out ulong conversion);
    [DllImport(Library)] public static extern int quor_conversion_get_Settings(ulong conversion, out ulong settings);
    [DllImport(Library)] public static extern int quor_conversion_Edit(ulong conversion, out short accepted);
    [DllImport(Library)] public static extern int quor_cvd_get_Coefficients(ulong cvd, int index, out double value);
    [DllImport(Library)] public static extern int quor_cvd_put_Coefficients(ulong cvd, int index, double value);
    [DllImport(Library)] public static extern int quor_probe_file_create(Text path, short mayBeNew, out ulong file);
    [DllImport(Library)]
    public static extern int quor_probe_file_Read(ulong file, Text section, ulong conversion, out short whole);
    [DllImport(Library)]
    public static extern int quor_probe_file_WriteChanges(ulong file, Text section, ulong conversion, out short written);
    [DllImport(Library)] public static extern int quor_dialog_Activate(ulong dialog);
    [DllImport(Library)] public static extern int quor_dialog_get_Title(ulong dialog, out Text title);
    [DllImport(Library)] public static extern int quor_dialog_FindControl(ulong dialog, Text name, out ulong control);
    [DllImport(Library)] public static extern int quor_dialog_Click(ulong dialog, ulong button);
    [DllImport(Library)] public static extern int quor_dialog_Focus(ulong dialog, ulong control);
    [DllImport(Library)] public static extern int quor_dialog_KeyPress(ulong dialog, short key, out short counted);
    [DllImport(Library)]
    public static extern int quor_dialog_EditText(ulong dialog, ulong box, Text text, int selStart, int selLength);
}

static class Host {
    static ulong Find(ulong dialog, string name) {
        ulong control;
        using (var text = new Quor.TextIn(name))
            Quor.Must(Quor.quor_dialog_FindControl(dialog, text, out control));
        return control;
    }

    /// Moves to a box and replaces its text. Keys that are not part of a number are dropped.
    static void Type(ulong dialog, string name, string keys) {
        var box = Find(dialog, name);
        Quor.Must(Quor.quor_dialog_Focus(dialog, box));
        var typed = "";
        foreach (var key in keys) {
            short counted;
            Quor.Must(Quor.quor_dialog_KeyPress(dialog, (short)key, out counted));
            if (counted != 0)
                typed += (char)counted;
            using (var text = new Quor.TextIn(typed))
                Quor.Must(Quor.quor_dialog_EditText(dialog, box, text, typed.Length, 0));
        }
        Quor.Must(Quor.quor_release(box));
    }

    /// A simulated user. A host with a screen draws the dialog here and reports what its user does. No exception
    /// may run through the library: it becomes the number of an error.
    static int RunDialog(IntPtr user, ulong dialog) {
        try {
            Quor.Text title;
            Quor.Must(Quor.quor_dialog_Activate(dialog));
            Quor.Must(Quor.quor_dialog_get_Title(dialog, out title));
            Console.WriteLine("dialog " + title);
            Quor.quor_text_free(ref title);
            Type(dialog, "txtCoefficients(0)", "100.0123");
            var ok = Find(dialog, "cmdOKCancelHelp(0)");
            Quor.Must(Quor.quor_dialog_Click(dialog, ok));
            return Quor.quor_release(ok);
        } catch (Quor.Error error) {
            return error.Number;
        }
    }

    static int ShowMessage(IntPtr user, ref Quor.Message message) {
        Console.WriteLine(message.Title + ": " + message.Text);
        return 0;
    }

    static string Exactly(double value) { return value.ToString("R", CultureInfo.InvariantCulture); }

    static int Edit(string path, string section, ulong platform) {
        ulong file, probe, cvd;
        short whole, accepted, written;
        double r0;
        using (var pathText = new Quor.TextIn(path))
            Quor.Must(Quor.quor_probe_file_create(pathText, 0, out file));
        Quor.Must(Quor.quor_conversion_create(platform, out probe));
        using (var name = new Quor.TextIn(section)) {
            Quor.Must(Quor.quor_probe_file_Read(file, name, probe, out whole));
            if (whole == 0)
                return 1;
            Quor.Must(Quor.quor_conversion_get_Settings(probe, out cvd));
            Quor.Must(Quor.quor_cvd_get_Coefficients(cvd, Quor.CvdR0, out r0));
            Console.WriteLine("CQuorCVD, R0 = " + Exactly(r0) + " ohms");

            Quor.Must(Quor.quor_cvd_put_Coefficients(cvd, Quor.CvdR0, r0 + 0.001));
            Quor.Must(Quor.quor_conversion_Edit(probe, out accepted));
            if (accepted == 0)
                return 1;

            try { // there is no fifth coefficient
                Quor.Must(Quor.quor_cvd_get_Coefficients(cvd, Quor.CvdBeta + 1, out r0));
            } catch (Quor.Error error) {
                Console.WriteLine("0x" + error.Number.ToString("X8") + " " + error.Source + ": " + error.Message);
            }

            // Values of the probe that another program has written in the meantime are kept.
            Quor.Must(Quor.quor_probe_file_WriteChanges(file, name, probe, out written));
            if (written == 0)
                return 1;
        }
        Quor.Must(Quor.quor_cvd_get_Coefficients(cvd, Quor.CvdR0, out r0));
        Console.WriteLine("saved, R0 = " + Exactly(r0) + " ohms");
        Quor.Must(Quor.quor_release(cvd));
        Quor.Must(Quor.quor_release(probe));
        Quor.Must(Quor.quor_release(file));
        return 0;
    }

    static int Main(string[] args) {
        if (args.Length != 2) {
            Console.Error.WriteLine("usage: host.exe FILE PROBE");
            return 2;
        }
        var functions = new Quor.PlatformFunctions {
            Size = (UIntPtr)Marshal.SizeOf(typeof(Quor.PlatformFunctions)), RunDialog = RunDialog,
            ShowMessage = ShowMessage};
        ulong platform;
        int result;
        try {
            Quor.Must(Quor.quor_platform_from_host(ref functions, IntPtr.Zero, out platform));
            result = Edit(args[0], args[1], platform);
            Quor.Must(Quor.quor_release(platform));
        } catch (Quor.Error error) {
            Console.Error.WriteLine("error " + error.Number + ": " + error.Message + " (" + error.Source + ")");
            result = 1;
        }
        GC.KeepAlive(functions); // and the delegates in it, while the library could call them
        return result;
    }
}
