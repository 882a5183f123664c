' The facade with every conversion type, and a property of each kind.
Option Explicit

Dim probe, code, settings
Set probe = CreateObject("QuorConversions.CQuorConversion")
WScript.Echo "A new one: " & probe.ConversionType & ", " & probe.Changed & ", " & probe.AllowEdit & ", " & _
    (probe.Settings Is Nothing) & ", """ & probe.ConversionName & """"
For code = -1 To 21
    probe.ConversionType = code
    Set settings = probe.Settings
    If settings Is Nothing Then
        WScript.Echo code & ": " & probe.ConversionName(code) & ", no settings"
    Else
        WScript.Echo code & ": " & probe.ConversionName(code) & ", " & TypeName(settings) & ", " & settings.GetName & _
            ", " & (settings Is probe.Settings)
    End If
Next

probe.ConversionType = 2
Dim cvd, i
Set cvd = probe.Settings
probe.Changed = False
cvd.Coefficients(0) = 100.0123
cvd.coefficients(1) = 1 / 3
cvd.COEFFICIENTS(3) = 7
cvd.ValueFormat(0) = "0.0000"
cvd.UsePolynomial = True
WScript.Echo "Types: " & TypeName(cvd.Coefficients(0)) & " " & TypeName(cvd.NumCoefficients) & " " & _
    TypeName(cvd.UsePolynomial) & " " & TypeName(cvd.ValueFormat(0)) & " " & TypeName(probe.ConversionType)
WScript.Echo "Exact: " & (cvd.Coefficients(0) = 100.0123) & " " & (cvd.Coefficients(1) = 1 / 3) & " " & _
    (cvd.Coefficients(3) = 7)
WScript.Echo "Format: " & cvd.ValueFormat(0) & ", polynomial: " & cvd.UsePolynomial & ", changed: " & probe.Changed
WScript.Echo "Calls: " & cvd.MaxCoefficients & " " & cvd.MaxCoefficients()

' Settings live on without their owner.
probe.ConversionType = 0
WScript.Echo "After a change of type: " & cvd.Coefficients(0) & ", " & (cvd Is probe.Settings)

' An object in an object.
Dim low
Set low = probe.Settings.LowRange
WScript.Echo TypeName(low) & ": " & low.Range & ", " & low.RangeName & ", " & low.RangeName(1) & ", " & low.NumCoefficients
low.Range = 5
low.Coefficients(0) = -2.1E-4
WScript.Echo low.RangeName & ", " & low.NumCoefficients & ", " & low.Coefficients(0) & ", " & _
    probe.Settings.LowRange.Coefficients(0)

' The other classes that hosts make.
Dim pt100, typePoly
Set pt100 = CreateObject("QuorConversions.CQuorPT100")
Set typePoly = CreateObject("QuorConversions.CQuorTCTypePoly")
typePoly.TCType = 12
WScript.Echo pt100.GetName & ", " & typePoly.GetName & ", " & typePoly.GetTCTypeName & ", " & typePoly.GetTCTypeName(4)

' What belongs to the process.
probe.HelpFile = "C:\help\conversions.hlp"
WScript.Echo CreateObject("QuorConversions.CQuorConversion").HelpFile
