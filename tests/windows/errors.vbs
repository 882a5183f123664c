' Errors with their number, source, description, help file and context.
Option Explicit

Dim probe, cvd
Set probe = CreateObject("QuorConversions.CQuorConversion")
probe.ConversionType = 2
Set cvd = probe.Settings

On Error Resume Next

Sub Report(what)
    WScript.Echo what & ": " & Err.Number & " [" & Err.Source & "] " & Err.Description & " [" & Err.HelpFile & "] " & _
        Err.HelpContext
    Err.Clear
End Sub

Dim value
value = cvd.Coefficients(4)
Report "An index that is none, read"
cvd.Coefficients(-1) = 1
Report "An index that is none, set"
value = cvd.Coefficient(0)
Report "A member that is none"
cvd.Coefficients(0) = "100,5"
Report "A text for a number"
cvd.Coefficients(0) = Empty
Report "An empty variable for a number"
cvd.Coefficients(0.5) = 1
Report "A fraction for an index"
cvd.NumCoefficients = 40000
Report "More than 16 bits"
cvd.FilePath = 5
Report "A number for a text"
probe.Settings = cvd
Report "A property that can only be read"
value = cvd.GetName(1)
Report "Too many arguments"
cvd.WriteToFile Nothing
Report "Too few arguments"
probe.SetRegistry 5
Report "A number for an object"
probe.ConversionType = 0
probe.Settings.LowRange.Range = 12
Report "A range that is none"
value = cvd.Coefficients(3)
Report "No error"

Set value = CreateObject("QuorConversions.CQuorCVD")
WScript.Echo "A class that no host makes: " & Err.Number
