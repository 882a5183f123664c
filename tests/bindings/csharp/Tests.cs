// What Quor.cs promises beyond the interface of C: objects, errors, texts, references and platforms as those of C#.
// Usage: tests.exe FOLDER. Ends with 1 and names what does not hold.
using System;
using System.IO;
using QuorConversions;

/// A platform whose person does what the test says.
sealed class Person : HostPlatform {
    public Action<Dialog> Does = dialog => { };
    public Message Seen;

    protected override void RunDialog(Dialog dialog) { Does(dialog); }
    protected override void ShowMessage(Message message) { Seen = message; }
}

static class Tests {
    static string s_folder;
    static int s_failed;

    static void Expect(bool holds, string what) {
        if (holds)
            return;
        Console.Error.WriteLine("does not hold: " + what);
        s_failed = 1;
    }

    static T Raised<T>(Action action) where T : Exception {
        try {
            action();
        } catch (T error) {
            return error;
        }
        throw new Exception("no " + typeof(T).Name + " was raised");
    }

    static CQuorConversion CallendarVanDusen(Platform platform = null) {
        return new CQuorConversion(platform) {ConversionType = EQuorConversionType.CONV_CVD};
    }

    static void AnErrorHasItsNumberItsSourceAndItsText() {
        using (var probe = CallendarVanDusen())
        using (var cvd = (CQuorCVD)probe.Settings) {
            var error = Raised<QuorError>(() => cvd.SetCoefficients((ECVDCoefficients)4, 1));
            Expect(error.Number == unchecked((int)0x800401F5), "the number of an invalid index");
            Expect(error.Source == "CQuorCVD", "the source of an error");
            Expect(error.Message == "Index out of range", "the text of an error");
        }
    }

    static void SettingsAreGivenOutAsWhatTheyAre() {
        using (var probe = CallendarVanDusen()) {
            using (var settings = probe.Settings)
                Expect(settings is CQuorCVD, "the settings of CONV_CVD are a CQuorCVD");
            probe.ConversionType = EQuorConversionType.CONV_OHMS;
            Expect(probe.Settings == null, "CONV_OHMS has no settings");
        }
    }

    static void AnObjectThatWasDisposedOfIsRefused() {
        var probe = CallendarVanDusen();
        probe.Dispose();
        probe.Dispose();
        Raised<ObjectDisposedException>(() => probe.ConversionType = EQuorConversionType.CONV_CVD);
    }

    static void TextsComeBackInEveryAlphabet() {
        var path = Path.Combine(s_folder, "texts.ini");
        using (var ini = new INIFile()) {
            ini.FileName = path;
            ini.Section = "Prüfraum 気温";
            ini.WriteString("Note", "\U0001F321 23 °C");
            var value = "";
            Expect(ini.ReadString("Note", ref value) && value == "\U0001F321 23 °C", "a text as it was written");
            var number = 7.5;
            Expect(!ini.ReadDouble("None", ref number) && number == 7.5, "no key: the variable stays");
            Raised<ArgumentException>(() => ini.WriteString("Half", "\ud83c"));
            Raised<ArgumentNullException>(() => ini.WriteString("None", null));
        }
        Expect(File.ReadAllText(path).Contains("[Prüfraum 気温]"), "the section as UTF-8");
    }

    static void AReferenceThatGoesInComesBackAsTheSameObject() {
        using (var probe = CallendarVanDusen())
        using (var cvd = (CQuorCVD)probe.Settings)
        using (var registry = new Registry("Tests", s_folder)) {
            var given = registry;
            cvd.SetRegistry(ref given);
            Expect(ReferenceEquals(given, registry), "the variable holds the object that it held");
            using (var held = cvd.Registry)
                Expect(held != null && held.NativeHandle == registry.NativeHandle, "the settings hold the registry");
        }
    }

    static void AMessageReachesThePlatform() {
        using (var person = new Person())
        using (var probe = CallendarVanDusen(person)) {
            File.WriteAllText(Path.Combine(s_folder, "empty.ini"), "[P]\nConversionType=2\n");
            INIFile none = null;
            Expect(!probe.ReadFromFile(ref none, Path.Combine(s_folder, "empty.ini"), "P"), "a record without coefficients");
            Expect(person.Seen != null && person.Seen.Text.Length > 0, "the message was shown");
        }
    }

    static void AnExceptionOfThePlatformComesBack() {
        using (var person = new Person())
        using (var probe = CallendarVanDusen(person)) {
            var thrown = new InvalidOperationException("the screen is gone");
            person.Does = dialog => { throw thrown; };
            Expect(ReferenceEquals(Raised<InvalidOperationException>(() => probe.Edit()), thrown), "as itself, out of Edit");
            person.Does = dialog => { new ProbeFile(Path.Combine(s_folder, "none.ini")); };
            Expect(Raised<QuorError>(() => probe.Edit()).Number == 53, "an error of the library, too");
            person.Does = dialog => { };
            Expect(!probe.Edit(), "the next call has no exception of the last one");
        }
    }

    static void ADialogIsClosedByItsPerson() {
        using (var person = new Person())
        using (var probe = CallendarVanDusen(person)) {
            person.Does = dialog => {
                dialog.Activate();
                using (var cancel = dialog.FindControl("cmdOKCancelHelp(1)"))
                    dialog.Click(cancel);
            };
            Expect(!probe.Edit(), "cancelled");
        }
    }

    static void EveryHandleIsGivenBack() {
        int count;
        Expect(quor_handle_count(out count) == 0 && count == 0, "no handle is left: " + count);
    }

    [System.Runtime.InteropServices.DllImport("quor")] static extern int quor_handle_count(out int count);

    static int Main(string[] args) {
        s_folder = args[0];
        AnErrorHasItsNumberItsSourceAndItsText();
        SettingsAreGivenOutAsWhatTheyAre();
        AnObjectThatWasDisposedOfIsRefused();
        TextsComeBackInEveryAlphabet();
        AReferenceThatGoesInComesBackAsTheSameObject();
        AMessageReachesThePlatform();
        AnExceptionOfThePlatformComesBack();
        ADialogIsClosedByItsPerson();
        EveryHandleIsGivenBack();
        return s_failed;
    }
}
