' Records and settings files, with an INI file, a registry and a platform of the script. Arguments: a folder.
Option Explicit

Dim folder, probe, ini, found, value
folder = WScript.Arguments(0)
Set ini = CreateObject("QuorIniFile.INIFile")
ini.FileName = folder & "\laboratory.ini"

Set probe = CreateObject("QuorConversions.CQuorConversion")
probe.ConversionType = 2
probe.Settings.Coefficients(0) = 100.0123
probe.Settings.Coefficients(1) = 1 / 3
probe.Settings.Coefficients(3) = -0.1
probe.WriteToFile ini, "", "Probe 1"
WScript.Echo "Written; the file object is still " & TypeName(ini)

' Without an object the file is named, and the variable stays empty.
Dim none
Set none = Nothing
probe.Settings.Coefficients(2) = 1.5
probe.WriteToFile none, folder & "\laboratory.ini", "Probe 2"
WScript.Echo "Written by name: " & (none Is Nothing)

Dim again
Set again = CreateObject("QuorConversions.CQuorConversion")
WScript.Echo "Read: " & again.ReadFromFile(ini, , "Probe 1") & ", " & again.ConversionType & ", " & _
    (again.Settings.Coefficients(0) = 100.0123) & " " & (again.Settings.Coefficients(1) = 1 / 3) & " " & _
    (again.Settings.Coefficients(3) = -0.1)

' Values by kind; the variable that is passed is changed.
ini.Section = "Host"
ini.WriteDouble "Double", 1 / 3, "a third"
ini.WriteInteger "Integer", 7
ini.WriteBoolean "Boolean", True
ini.WriteString "Text", "  blanks; \"
value = Empty
WScript.Echo "Double: " & ini.ReadDouble("Double", value) & " " & TypeName(value) & " " & (value = 1 / 3)
value = 0
WScript.Echo "Integer: " & ini.ReadInteger("Integer", value) & " " & TypeName(value) & " " & value
WScript.Echo "Boolean: " & ini.ReadBoolean("Boolean", value) & " " & TypeName(value) & " " & value
value = "before"
WScript.Echo "Text: " & ini.ReadString("Text", value) & " " & (value = "  blanks; \")
value = "before"
WScript.Echo "Missing: " & ini.ReadString("No such key", value) & " " & value
WScript.Echo "Names: " & (ini.FileName = folder & "\laboratory.ini") & " " & ini.Section
ini.Hold
ini.WriteInteger "Held", 1
ini.Abandon
ini.Hold
ini.WriteInteger "Kept", 2
ini.Release
value = 0
WScript.Echo "Held: " & ini.ReadInteger("Held", value) & ", kept: " & ini.ReadInteger("Kept", value)

' A settings file: the name goes in and comes out.
Dim cvd, name
Set cvd = again.Settings
name = folder & "\prt.cvd"
cvd.Coefficients(0) = 25.5
cvd.WriteToFile none, name, "Callendar-Van Dusen"
cvd.Coefficients(0) = 0
WScript.Echo "Opened: " & cvd.OpenFile(0, name) & ", " & cvd.Coefficients(0) & ", " & (name = folder & "\prt.cvd")
name = Empty
WScript.Echo "Cancelled: " & cvd.OpenFile(0, name) & ", """ & name & """"

' Objects of the script, which are called by name.
Class ScriptRegistry
    Public Log
    Public Function ReadValue(Section, Name, ByRef Value)
        Log = Log & "read " & Section & "/" & Name & ";"
        Value = "from the script"
        ReadValue = True
    End Function
    Public Sub WriteValue(Section, Name, Value)
        Log = Log & "write " & Section & "/" & Name & "=" & Value & ";"
    End Sub
End Class

Dim registry, back
Set registry = New ScriptRegistry
probe.SetRegistry registry
Set back = probe.Registry
WScript.Echo "Registry: " & TypeName(registry) & ", the same: " & (back Is registry) & ", of the settings: " & _
    (probe.Settings.Registry Is registry)
probe.SetRegistry Nothing
WScript.Echo "No registry: " & (probe.Registry Is Nothing)

Class ScriptIniFile
    Public FileName
    Public Section
    Public Log
    Public Function ReadBoolean(Key, ByRef Value)
        Value = True
        ReadBoolean = True
    End Function
    Public Function ReadDouble(Key, ByRef Value)
        Value = Len(Key) + 1 / 3
        ReadDouble = True
    End Function
    Public Function ReadInteger(Key, ByRef Value)
        If Key = "ConversionType" Then
            Value = 2
        Else
            Value = 4
        End If
        ReadInteger = True
    End Function
    Public Function ReadString(Key, ByRef Value)
        ReadString = False
    End Function
    Public Sub WriteBoolean(Key, Value)
        Log = Log & Section & "/" & Key & "=" & Value & ";"
    End Sub
    Public Sub WriteDouble(Key, Value, Comment)
        Log = Log & Section & "/" & Key & "=" & Value & ";"
    End Sub
    Public Sub WriteInteger(Key, Value, Comment)
        Log = Log & Section & "/" & Key & "=" & Value & ";"
    End Sub
    Public Sub WriteString(Key, Value)
        Log = Log & Section & "/" & Key & "=" & Value & ";"
    End Sub
End Class

Dim own
Set own = New ScriptIniFile
probe.Settings.Coefficients(1) = 0.25
probe.WriteToFile own, , "Probe 9"
WScript.Echo own.Log
WScript.Echo "Read: " & again.ReadFromFile(own, , "Probe 9") & ", " & again.Settings.Coefficients(0) & " " & _
    (again.Settings.Coefficients(3) = 13 + 1 / 3) & ", " & again.Settings.UsePolynomial

Class ScriptList
    Public Items
    Public Last
    Public Sub Clear
        Items = ""
        Last = -1
    End Sub
    Public Sub AddItem(Item)
        Items = Items & Item
        Last = Last + 1
    End Sub
    Public Property Get NewIndex
        NewIndex = Last
    End Property
    Public Property Let ItemData(Index, Data)
        Items = Items & " (" & Index & ": " & Data & "); "
    End Property
End Class

Dim list
Set list = New ScriptList
again.ConversionType = 1
again.Settings.FillScaleCombo list
WScript.Echo "List: " & list.Items

' The error of a script goes through the library. Wine's VBScript hands out its number alone.
Class FullList
    Public Sub Clear
        Err.Raise 61, "The list", "The list is full", "list.hlp", 7
    End Sub
End Class
Dim full
Set full = New FullList
On Error Resume Next
again.Settings.FillScaleCombo full
WScript.Echo "Error: " & Err.Number & " [" & Err.Source & "] " & Err.Description & " [" & Err.HelpFile & "] " & Err.HelpContext
Err.Clear
again.Settings.FillScaleCombo probe
WScript.Echo "Error: " & Err.Number & " " & Err.Description
Err.Clear
On Error GoTo 0

' The registry component, in the file of the host's program.
Dim kept
Set kept = CreateObject("QuorRegistryII.Registry")
kept.WriteValue "frmCVDSettings", "Left", "120"
value = ""
WScript.Echo "Kept: " & kept.ReadValue("frmCVDSettings", "Left", value) & " " & value
