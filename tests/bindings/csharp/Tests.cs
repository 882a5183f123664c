// What Quor.cs promises beyond the interface of C: objects, errors, texts, references and platforms as those of C#.
// Usage: tests.exe FOLDER. Ends with 1 and names what does not hold.
using System;
using System.IO;
using System.Runtime.InteropServices;
using QuorConversions;

/// A platform whose person does what the test says.
sealed class Person : HostPlatform {
    public Action<Dialog> Does = dialog => { };
    public Action Looks = () => { };
    public Message Seen;

    protected override void RunDialog(Dialog dialog) { Does(dialog); }
    protected override void ShowMessage(Message message) {
        Seen = message;
        Looks();
    }
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

    static void ThePersonReadsTheWordsOfAnExceptionAndLaterFunctionsRunAsEver() {
        using (var person = new Person())
        using (var probe = CallendarVanDusen(person)) {
            EQuorConversionType type = 0;
            person.Looks = () => { type = probe.ConversionType; };
            person.Does = dialog => { throw new QuorError(4711, "Bench", "the bulb has burnt out"); };
            Expect(Raised<QuorError>(() => probe.Edit()).Number == 4711, "the number of the host's own");
            if (person.Seen != null)
                Expect(person.Seen.Text.Contains("4711") && person.Seen.Text.Contains("the bulb has burnt out"),
                       "the message: " + person.Seen.Text);
            person.Looks = () => { throw new InvalidOperationException("the second"); };
            person.Does = dialog => { throw new InvalidOperationException("the first"); };
            Expect(Raised<InvalidOperationException>(() => probe.Edit()).Message == "the first", "the first of two");
            person.Looks = () => { type = probe.ConversionType; };
            Expect(type == EQuorConversionType.CONV_CVD || person.Seen == null, "a call from within a message");
        }
    }

    sealed class Unspeakable : Exception {
        public Func<string> Words;
        public override string Message { get { return Words(); } }
    }

    static void AnExceptionWhoseWordsAreNoTextComesBackToo() {
        using (var person = new Person())
        using (var probe = CallendarVanDusen(person)) {
            var words = new Func<string>[] {
                () => "half of \ud83c", () => null, () => { throw new InvalidOperationException("no words"); }};
            foreach (var word in words) {
                var thrown = new Unspeakable {Words = word};
                person.Seen = null;
                person.Does = dialog => { throw thrown; };
                Expect(ReferenceEquals(Raised<Unspeakable>(() => probe.Edit()), thrown), "as itself, whatever it says");
                if (ReferenceEquals(word, words[0]) && person.Seen != null)
                    Expect(person.Seen.Text.Contains("half of \ufffd"), "the message: " + person.Seen.Text);
            }
            person.Does = dialog => { throw new QuorError(4711, null, "half of \ud83c", null); };
            Expect(Raised<QuorError>(() => probe.Edit()).Number == 4711, "the number of the host's own");
        }
    }

    /// Nobody but the library knows its platform.
    static CQuorConversion WithAForgottenPlatform() { return CallendarVanDusen(new Person {Looks = () => { s_looks++; }}); }
    static int s_looks;

    static void APlatformLivesAsLongAsTheLibraryNeedsIt() {
        using (var probe = WithAForgottenPlatform()) {
            for (var i = 0; i < 3; ++i) {
                GC.Collect();
                GC.WaitForPendingFinalizers();
            }
            INIFile none = null;
            probe.ReadFromFile(ref none, Path.Combine(s_folder, "empty.ini"), "P");
            Expect(s_looks == 2, "the messages of the conversion and of its settings reach it: " + s_looks);
        }
    }

    static void ACallThatIsRefusedKeepsNoReference() {
        var before = Handles();
        using (var probe = CallendarVanDusen())
        using (var ini = new INIFile()) {
            var given = ini;
            Raised<ArgumentNullException>(() => probe.ReadFromFile(ref given, null, "P"));
            Expect(ReferenceEquals(given, ini), "the variable");
        }
        using (var person = new Person())
        using (var probe = CallendarVanDusen(person))
        using (var ini = new INIFile()) {
            var given = ini;
            ini.FileName = Path.Combine(s_folder, "empty.ini");
            person.Looks = () => { throw new InvalidOperationException("not now"); };
            Raised<InvalidOperationException>(() => probe.ReadFromFile(ref given, "", "P"));
        }
        Expect(Handles() == before, "handles: " + (Handles() - before));
    }

    static void EveryFunctionIsThereAndRefusesWhatIsNoHandle() {
        var count = 0;
        foreach (var function in typeof(Native).GetMethods()) {
            if (!function.IsStatic)
                continue;
            Marshal.Prelink(function);
            var parameters = function.GetParameters();
            if (parameters.Length == 0 || parameters[0].Name != "it")
                continue;
            var arguments = new object[parameters.Length];
            for (var i = 0; i < arguments.Length; ++i) {
                var type = parameters[i].ParameterType;
                arguments[i] = Activator.CreateInstance(type.IsByRef ? type.GetElementType() : type);
            }
            Expect((int)function.Invoke(null, arguments) == 91, function.Name + " without an object");
            ++count;
        }
        Expect(count > 300, "functions: " + count);
    }

    static void TheNumbersOfAllProbesComeAtOnce() {
        var path = Path.Combine(s_folder, "two.ini");
        File.WriteAllText(path, "[P]\nVersion=1.0\nConversionType=2\n[P - Settings]\nVersion=1.0\nNumCoefficients=1\n" +
                                "UsePolynomial=True\nCoefficients0=100.0123\n[Q]\nVersion=1.0\nConversionType=10\n");
        using (var file = new ProbeFile(path))
        using (var table = file.ReadAll()) {
            Expect(table.Sections == "P\nQ\n", "sections");
            Expect(table.ValueEnds.Length == 2 && table.ValueEnds[0] == 3 && table.ValueEnds[1] == 3, "where each ends");
            Expect(table.Values.Length == 3 && table.Values[2] == 100.0123, "values, to the last bit");
        }
    }

    static void ARemovalAfterABracketThatFailedTakesNoNewerRecord() {
        var path = Path.Combine(s_folder, "newer.ini");
        var record = "[P]\nVersion=1.0\nConversionType=14\n[P - Settings]\nVersion=1.0\nRTPW=25.5\n";
        var text = record + record.Replace("[P", "[Q");
        File.WriteAllText(path, text);
        using (var file = new ProbeFile(path))
        using (var anew = CallendarVanDusen()) {
            text = text.Replace("25.5", "n/a");
            File.WriteAllText(path, text);
            foreach (var section in new[] {"P", "Q"}) {
                file.Hold();
                file.RequireUnchanged(section, anew);
                file.Remove(section);
                var error = Raised<QuorError>(() => file.Release());
                Expect(error.Number == 75 && error.Message.Contains(path + ": [" + section + "]: "), "who has changed");
                Expect(file.ConflictCount == 1 && file.GetConflictSection(0) == section, "the probe");
            }
            Expect(File.ReadAllText(path) == text, "the file");
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

    static int Handles() {
        int count;
        QuorError.Raise(Native.quor_handle_count(out count));
        return count;
    }

    static int Main(string[] args) {
        s_folder = args[0];
        AnErrorHasItsNumberItsSourceAndItsText();
        SettingsAreGivenOutAsWhatTheyAre();
        AnObjectThatWasDisposedOfIsRefused();
        TextsComeBackInEveryAlphabet();
        AReferenceThatGoesInComesBackAsTheSameObject();
        AMessageReachesThePlatform();
        AnExceptionOfThePlatformComesBack();
        ThePersonReadsTheWordsOfAnExceptionAndLaterFunctionsRunAsEver();
        AnExceptionWhoseWordsAreNoTextComesBackToo();
        APlatformLivesAsLongAsTheLibraryNeedsIt();
        ACallThatIsRefusedKeepsNoReference();
        EveryFunctionIsThereAndRefusesWhatIsNoHandle();
        TheNumbersOfAllProbesComeAtOnce();
        ARemovalAfterABracketThatFailedTakesNoNewerRecord();
        ADialogIsClosedByItsPerson();
        // The platform that nobody disposes of keeps its own.
        Expect(Handles() == 1, "handles that are left: " + Handles());
        return s_failed;
    }
}
