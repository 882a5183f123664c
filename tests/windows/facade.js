// The facade from JScript, whose properties with an index are called in two ways.
var probe = new ActiveXObject("QuorConversions.CQuorConversion");
WScript.Echo("A new one: " + probe.ConversionType + ", " + probe.Changed + ", " + (probe.Settings === null));
for (var code = -1; code <= 21; ++code) {
    probe.ConversionType = code;
    WScript.Echo(code + ": " + probe.ConversionName(code) + ", " +
        (probe.Settings === null ? "no settings" : probe.Settings.GetName()));
}

probe.ConversionType = 2;
var cvd = probe.Settings;
cvd.Coefficients(0) = 100.0123;
cvd.Coefficients(1) = 1 / 3;
cvd.Coefficients(1); // a statement: a call of a property
WScript.Echo("Exact: " + (cvd.Coefficients(0) === 100.0123) + " " + (cvd.Coefficients(1) === 1 / 3));
WScript.Echo("Types: " + typeof cvd.Coefficients(0) + " " + typeof cvd.NumCoefficients + " " + typeof cvd.UsePolynomial + " " +
    typeof cvd.GetName());

probe.FilePath = "C:\\\u03A9 \uD835\uDD38";
WScript.Echo("Characters: " + (probe.FilePath === "C:\\\u03A9 \uD835\uDD38") + " " + probe.FilePath.length);
try {
    probe.FilePath = "half a pair: \uD835";
} catch (error) {
    WScript.Echo("Error: " + error.number + " " + error.description);
}

try {
    cvd.Coefficients(9) = 1;
} catch (error) {
    WScript.Echo("Error: " + error.number + " " + error.description);
}
try {
    cvd.Coefficients("x") = 1;
} catch (error) {
    WScript.Echo("Error: " + error.number);
}
try {
    cvd.NoSuchMember(1);
} catch (error) {
    WScript.Echo("Error: " + error.number);
}

// An object of the script is a registry, and an INI file, by its members.
var registry = { ReadValue: function (section, name, value) { return false; }, WriteValue: function () { } };
probe.SetRegistry(registry);
WScript.Echo("Registry: " + (probe.Registry === registry) + " " + (cvd.Registry === registry));

var log = "";
var ini = {
    FileName: "",
    Section: "",
    WriteBoolean: function (key, value) { log += this.Section + "/" + key + "=" + value + ";"; },
    WriteDouble: function (key, value, comment) { log += this.Section + "/" + key + "=" + value + ";"; },
    WriteInteger: function (key, value, comment) { log += this.Section + "/" + key + "=" + value + ";"; },
    WriteString: function (key, value) { log += this.Section + "/" + key + "=" + value + ";"; }
};
probe.WriteToFile(ini, "", "Probe 9");
WScript.Echo(log);
WScript.Echo("The file: " + ini.Section);

// A record and a settings file, in files. Arguments: a folder.
var folder = WScript.Arguments(0);
var file = new ActiveXObject("QuorIniFile.INIFile");
file.FileName = folder + "\\jscript.ini";
probe.WriteToFile(file, "", "Probe 1");
var again = new ActiveXObject("QuorConversions.CQuorConversion");
WScript.Echo("Read: " + again.ReadFromFile(file, "", "Probe 1") + " " + again.ConversionType + " " +
    (again.Settings.Coefficients(1) === 1 / 3));
cvd.WriteToFile(null, folder + "\\jscript.cvd", "Callendar-Van Dusen");
again.Settings.Coefficients(0) = 0;
WScript.Echo("Opened: " + again.Settings.OpenFile(0, folder + "\\jscript.cvd") + " " + again.Settings.Coefficients(0));
