' Settings dialogs, boxes and file dialogs, which a person answers. Arguments: a folder.
Option Explicit

Dim folder, probe, none, cvd, name
folder = WScript.Arguments(0)
Set probe = CreateObject("QuorConversions.CQuorConversion")
Set none = Nothing
WScript.Echo "Read: " & probe.ReadFromFile(none, folder & "\missing.ini", "Probe 1")

probe.ConversionType = 2
Set cvd = probe.Settings
cvd.Coefficients(0) = 25.5
WScript.Echo "Saved: " & cvd.SaveFileAs(0, name) & ", " & (LCase(name) = LCase(folder & "\saved.cvd"))
cvd.Coefficients(0) = 0
name = Empty
WScript.Echo "Opened: " & cvd.OpenFile(0, name) & ", " & cvd.Coefficients(0) & ", " & _
    (LCase(name) = LCase(folder & "\saved.cvd"))
name = Empty
WScript.Echo "Cancelled: " & cvd.OpenFile(0, name) & ", """ & name & """"

Dim index
For index = 1 To 3
    cvd.Coefficients(index) = index / 100
Next
probe.Changed = False
WScript.Echo "Edited: " & probe.Edit & ", " & cvd.Coefficients(0) & ", " & cvd.Coefficients(3) & ", " & probe.Changed
WScript.Echo "Left: " & probe.Edit & ", " & cvd.Coefficients(0)
