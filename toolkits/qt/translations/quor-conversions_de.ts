<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>StringTable</name>
    <message>
        <source>An error occurred while</source>
        <translation>Fehler beim</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Quor Scientific</source>
        <translation>Quor Scientific</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>O&amp;pen</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation>&amp;Speichern unter</translation>
    </message>
    <message>
        <source>Enter valid values for all coefficients.</source>
        <translation>Geben Sie für alle Koeffizienten gültige Werte ein.</translation>
    </message>
    <message>
        <source>Enter a valid RTPW value.</source>
        <translation>Geben Sie einen gültigen Wert für RTPW ein.</translation>
    </message>
    <message>
        <source>Select either a high range, low range or both and enter the appropriate coefficients.</source>
        <translation>Wählen Sie einen oberen Bereich, einen unteren Bereich oder beide, und geben Sie die zugehörigen Koeffizienten ein.</translation>
    </message>
    <message>
        <source>attempting to gather settings</source>
        <translation>Übernehmen der Einstellungen</translation>
    </message>
    <message>
        <source>Select the IPTS-68 scale.</source>
        <translation>Wählen Sie die Temperaturskala für IPTS-68.</translation>
    </message>
    <message>
        <source>Files (*.~)|*.~</source>
        <translation>Dateien (*.~)|*.~</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>– Einstellungen</translation>
    </message>
    <message>
        <source>Index out of range</source>
        <translation>Index außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>attempting to write settings</source>
        <translation>Schreiben der Einstellungen</translation>
    </message>
    <message>
        <source>attempting to read settings</source>
        <translation>Lesen der Einstellungen</translation>
    </message>
    <message>
        <source>Cannot read the selected settings file because the file version is incorrect.</source>
        <translation>Die gewählte Einstellungsdatei kann nicht gelesen werden, weil ihre Version nicht stimmt.</translation>
    </message>
    <message>
        <source>Open ~ File</source>
        <translation>~-Datei öffnen</translation>
    </message>
    <message>
        <source>Save ~ File As</source>
        <translation>~-Datei speichern unter</translation>
    </message>
    <message>
        <source>attempting to edit the conversion settings</source>
        <translation>Bearbeiten der Konversionseinstellungen</translation>
    </message>
    <message>
        <source>&lt;keep existing&gt;</source>
        <translation>&lt;beibehalten&gt;</translation>
    </message>
    <message>
        <source>&lt;unknown&gt;</source>
        <translation>&lt;unbekannt&gt;</translation>
    </message>
    <message>
        <source>Ohms</source>
        <translation>Ohm</translation>
    </message>
    <message>
        <source>Volts</source>
        <translation>Volt</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>attempting to display help topic</source>
        <translation>Anzeigen der Hilfeseite</translation>
    </message>
    <message>
        <source>IEC-751</source>
        <translation>IEC-751</translation>
    </message>
    <message>
        <source>YSI-400</source>
        <translation>YSI-400</translation>
    </message>
    <message>
        <source>ITS-SR5</source>
        <translation>ITS-SR5</translation>
    </message>
    <message>
        <source>Cannot use 0°C as a table value.</source>
        <translation>0 °C kann nicht als Tabellenwert verwendet werden.</translation>
    </message>
    <message>
        <source>attempting to validate settings</source>
        <translation>Prüfen der Einstellungen</translation>
    </message>
    <message>
        <source>TC type index out of range: </source>
        <translation>Index des Thermoelementpunkts außerhalb des gültigen Bereichs: </translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Nicht genügend Speicher</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Feldindex außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>The INI-file component cannot be created</source>
        <translation>Die Komponente für INI-Dateien kann nicht erzeugt werden</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>Ungültiger Dateiname oder ungültige Dateinummer</translation>
    </message>
    <message>
        <source>Cancel was selected.</source>
        <translation>Es wurde „Abbrechen“ gewählt.</translation>
    </message>
    <message>
        <source>There is no dialog for ~</source>
        <translation>Für ~ gibt es keinen Dialog</translation>
    </message>
    <message>
        <source>Select a valid thermocouple type.</source>
        <translation>Wählen Sie einen gültigen Thermoelementtyp.</translation>
    </message>
    <message>
        <source>RTPW</source>
        <translation>RTPW</translation>
    </message>
    <message>
        <source>R0</source>
        <translation>R0</translation>
    </message>
    <message>
        <source>ALPHA</source>
        <translation>ALPHA</translation>
    </message>
    <message>
        <source>DELTA</source>
        <translation>DELTA</translation>
    </message>
    <message>
        <source>BETA</source>
        <translation>BETA</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>C4</source>
        <translation>C4</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>DC</source>
        <translation>DC</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>Callendar-Van Dusen</source>
        <translation>Callendar-Van Dusen</translation>
    </message>
    <message>
        <source>High Temperature PRT</source>
        <translation>Hochtemperatur-PRT</translation>
    </message>
    <message>
        <source>IPTS-68</source>
        <translation>IPTS-68</translation>
    </message>
    <message>
        <source>ITS-90</source>
        <translation>ITS-90</translation>
    </message>
    <message>
        <source>Polynomial</source>
        <translation>Polynom</translation>
    </message>
    <message>
        <source>TC Polynomial</source>
        <translation>Thermoelement-Polynom</translation>
    </message>
    <message>
        <source>TC Table</source>
        <translation>Thermoelement-Tabelle</translation>
    </message>
    <message>
        <source>TC Type</source>
        <translation>Thermoelement Typ</translation>
    </message>
    <message>
        <source>Thermistor</source>
        <translation>Thermistor</translation>
    </message>
    <message>
        <source>W(T90)</source>
        <translation>W(T90)</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;keiner&gt;</translation>
    </message>
    <message>
        <source>Range 5 (234K to 302K)</source>
        <translation>Bereich 5 (234 K bis 302 K)</translation>
    </message>
    <message>
        <source>Range 6 (273K to 1234K)</source>
        <translation>Bereich 6 (273 K bis 1234 K)</translation>
    </message>
    <message>
        <source>Range 7 (273K to 933K)</source>
        <translation>Bereich 7 (273 K bis 933 K)</translation>
    </message>
    <message>
        <source>Range 8 (273K to 692K)</source>
        <translation>Bereich 8 (273 K bis 692 K)</translation>
    </message>
    <message>
        <source>Range 9 (273K to 505K)</source>
        <translation>Bereich 9 (273 K bis 505 K)</translation>
    </message>
    <message>
        <source>Range 10 (273K to 429K)</source>
        <translation>Bereich 10 (273 K bis 429 K)</translation>
    </message>
    <message>
        <source>Range 11 (273K to 302K)</source>
        <translation>Bereich 11 (273 K bis 302 K)</translation>
    </message>
    <message>
        <source>Range 1 (13K to 273K)</source>
        <translation>Bereich 1 (13 K bis 273 K)</translation>
    </message>
    <message>
        <source>Range 2 (24K to 273K)</source>
        <translation>Bereich 2 (24 K bis 273 K)</translation>
    </message>
    <message>
        <source>Range 3 (54K to 273K)</source>
        <translation>Bereich 3 (54 K bis 273 K)</translation>
    </message>
    <message>
        <source>Range 4 (83K to 273K)</source>
        <translation>Bereich 4 (83 K bis 273 K)</translation>
    </message>
    <message>
        <source>ITS-90 range out of range.</source>
        <translation>Unzulässiger ITS-90-Bereich.</translation>
    </message>
    <message>
        <source>T(R)</source>
        <translation>T(R)</translation>
    </message>
    <message>
        <source>R(T)</source>
        <translation>R(T)</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Number of points</source>
        <translation>Anzahl der Punkte</translation>
    </message>
    <message>
        <source>Low Range</source>
        <translation>Unterer Bereich</translation>
    </message>
    <message>
        <source>High Range</source>
        <translation>Oberer Bereich</translation>
    </message>
    <message>
        <source>Select low range to use</source>
        <translation>Unteren Bereich wählen</translation>
    </message>
    <message>
        <source>Select high range to use</source>
        <translation>Oberen Bereich wählen</translation>
    </message>
    <message>
        <source>To use Range 5 for temperatures above 0 C, select &lt;none&gt; as the High Range on the High Range tab.</source>
        <translation>Um Bereich 5 für Temperaturen über 0 °C zu verwenden, wählen Sie auf der Seite „Oberer Bereich“ als oberen Bereich &lt;keiner&gt;.</translation>
    </message>
    <message>
        <source>To use Range 5 for temperatures above 0 C, use the same values for the High Range A and B coefficients and set any C or D coefficients to 0.</source>
        <translation>Um Bereich 5 für Temperaturen über 0 °C zu verwenden, geben Sie für A und B des oberen Bereichs dieselben Werte ein, und setzen Sie dessen Koeffizienten C und D auf 0.</translation>
    </message>
    <message>
        <source>No dialog can be shown here</source>
        <translation>Hier kann kein Dialog angezeigt werden</translation>
    </message>
    <message>
        <source>This configuration file does not contain ~ coefficients. The conversion type must be changed to ~ to open this file.</source>
        <translation>Diese Einstellungsdatei enthält keine Koeffizienten für ~. Um sie zu öffnen, muss der Konversionstyp in ~ geändert werden.</translation>
    </message>
    <message>
        <source>mV (25C)</source>
        <translation>mV (25 °C)</translation>
    </message>
    <message>
        <source>A system error has occurred</source>
        <translation>Ein Systemfehler ist aufgetreten</translation>
    </message>
    <message>
        <source>PT100</source>
        <translation>PT100</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Hilfeseite</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>The page %1 is missing.</source>
        <translation>Die Seite %1 fehlt.</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>&amp;All topics</source>
        <translation>&amp;Alle Themen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Find in page</source>
        <translation>&amp;Auf der Seite suchen</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>&amp;Larger text</source>
        <translation>&amp;Größere Schrift</translation>
    </message>
    <message>
        <source>&amp;Smaller text</source>
        <translation>&amp;Kleinere Schrift</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>S&amp;uchen:</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächste</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Vorherige</translation>
    </message>
    <message>
        <source>Find in page</source>
        <translation>Auf der Seite suchen</translation>
    </message>
    <message>
        <source>There is no help file "%1".</source>
        <translation>Die Hilfedatei „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The file "%1" is not a help collection.</source>
        <translation>Die Datei „%1“ ist keine Hilfesammlung.</translation>
    </message>
    <message>
        <source>The help file "%1" has no topic %2.</source>
        <translation>Die Hilfedatei „%1“ hat kein Thema %2.</translation>
    </message>
    <message>
        <source>%1 - Help</source>
        <translation>%1 – Hilfe</translation>
    </message>
    <message>
        <source>The page does not contain this text.</source>
        <translation>Die Seite enthält diesen Text nicht.</translation>
    </message>
    <message>
        <source>Continued from the end.</source>
        <translation>Vom Ende an weitergesucht.</translation>
    </message>
    <message>
        <source>Continued from the beginning.</source>
        <translation>Vom Anfang an weitergesucht.</translation>
    </message>
</context>
</TS>
