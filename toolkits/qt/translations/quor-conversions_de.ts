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
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>E/A-Fehler des Geräts</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Fehler beim Zugriff auf Pfad oder Datei</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Pfad nicht gefunden</translation>
    </message>
    <message>
        <source>~</source>
        <translation>~</translation>
    </message>
    <message>
        <source>~: ~</source>
        <translation>~: ~</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>It is a mount point, which cannot be replaced</source>
        <translation>Auf der Datei ist ein anderes Dateisystem eingehängt; sie kann nicht ersetzt werden</translation>
    </message>
    <message>
        <source>The file is read-only</source>
        <translation>Die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Its folder does not allow new files</source>
        <translation>In ihrem Ordner dürfen keine neuen Dateien angelegt werden</translation>
    </message>
    <message>
        <source>~: It is not the lock file of a save</source>
        <translation>~: Das ist keine Sperrdatei eines Speichervorgangs</translation>
    </message>
    <message>
        <source>The user&apos;s configuration folder is not known, because HOME (on Windows APPDATA) is not set</source>
        <translation>Der Konfigurationsordner des Benutzers ist nicht bekannt, weil HOME (unter Windows APPDATA) nicht gesetzt ist</translation>
    </message>
    <message>
        <source>It is larger than 4 GiB</source>
        <translation>Die Datei ist größer als 4 GiB</translation>
    </message>
    <message>
        <source>It would be larger than 4 GiB</source>
        <translation>Die Datei würde größer als 4 GiB</translation>
    </message>
    <message>
        <source>It is larger than 4 GiB as UTF-8</source>
        <translation>Als UTF-8 ist die Datei größer als 4 GiB</translation>
    </message>
    <message>
        <source>The file is UTF-16 text without a byte-order mark</source>
        <translation>Die Datei ist UTF-16-Text ohne Bytereihenfolge-Marke (BOM)</translation>
    </message>
    <message>
        <source>The file is UTF-16 text with an odd number of bytes</source>
        <translation>Die Datei ist UTF-16-Text mit einer ungeraden Anzahl von Bytes</translation>
    </message>
    <message>
        <source>The file is UTF-16 text with half a surrogate pair in line ~</source>
        <translation>Die Datei ist UTF-16-Text mit einem halben Surrogatpaar in Zeile ~</translation>
    </message>
    <message>
        <source>The file is UTF-32 text</source>
        <translation>Die Datei ist UTF-32-Text</translation>
    </message>
    <message>
        <source>With these changes it would be UTF-16 text</source>
        <translation>Mit diesen Änderungen würde die Datei zu UTF-16-Text</translation>
    </message>
    <message>
        <source>With these changes it would be no valid UTF-16 text</source>
        <translation>Mit diesen Änderungen wäre die Datei kein gültiger UTF-16-Text</translation>
    </message>
    <message>
        <source>With these changes it would be UTF-32 text</source>
        <translation>Mit diesen Änderungen würde die Datei zu UTF-32-Text</translation>
    </message>
    <message>
        <source>In use by another program</source>
        <translation>Wird von einem anderen Programm benutzt</translation>
    </message>
    <message>
        <source>In use by process ~</source>
        <translation>Wird von Prozess ~ benutzt</translation>
    </message>
    <message>
        <source>In use by process ~, which is stopped</source>
        <translation>Wird von Prozess ~ benutzt, der angehalten ist</translation>
    </message>
    <message>
        <source>In use by process ~, which has ended; a process that it has started has its lock</source>
        <translation>Wird von Prozess ~ benutzt, der beendet ist; ein von ihm gestarteter Prozess hält die Sperre</translation>
    </message>
    <message>
        <source>Another program keeps writing it</source>
        <translation>Ein anderes Programm schreibt die Datei immer wieder</translation>
    </message>
    <message>
        <source>Another program keeps removing ~</source>
        <translation>Ein anderes Programm löscht immer wieder ~</translation>
    </message>
    <message>
        <source>Another program has replaced it at the same moment</source>
        <translation>Ein anderes Programm hat die Datei im selben Augenblick ersetzt</translation>
    </message>
    <message>
        <source>Another program has replaced it at the same moment; its file is kept as ~</source>
        <translation>Ein anderes Programm hat die Datei im selben Augenblick ersetzt; dessen Datei wurde aufbewahrt als ~</translation>
    </message>
    <message>
        <source>There is no section &quot;~&quot;</source>
        <translation>Es gibt keinen Abschnitt „~“</translation>
    </message>
    <message>
        <source>There is a section &quot;~&quot; already</source>
        <translation>Es gibt bereits einen Abschnitt „~“</translation>
    </message>
    <message>
        <source>No section can have the name &quot;~&quot;</source>
        <translation>Kein Abschnitt kann den Namen „~“ haben</translation>
    </message>
    <message>
        <source>No key can have the name &quot;~&quot;</source>
        <translation>Kein Schlüssel kann den Namen „~“ haben</translation>
    </message>
    <message>
        <source>Another program has removed or renamed the section &quot;~&quot;, of which only a part was written</source>
        <translation>Ein anderes Programm hat den Abschnitt „~“ entfernt oder umbenannt, von dem nur ein Teil geschrieben wurde</translation>
    </message>
    <message>
        <source>The file is in Latin-1, which cannot spell the name &quot;~&quot;; save the file as UTF-8 first</source>
        <translation>Die Datei ist in Latin-1 geschrieben, das den Namen „~“ nicht schreiben kann; speichern Sie die Datei erst als UTF-8</translation>
    </message>
    <message>
        <source>An edit of it has not ended</source>
        <translation>Eine Bearbeitung der Datei ist noch nicht beendet</translation>
    </message>
    <message>
        <source>No edit can begin between Hold and Release</source>
        <translation>Zwischen Hold und Release kann keine Bearbeitung beginnen</translation>
    </message>
    <message>
        <source>A record could not be written whole, so nothing was saved</source>
        <translation>Ein Datensatz konnte nicht vollständig geschrieben werden; deshalb wurde nichts gespeichert</translation>
    </message>
    <message>
        <source>Not a number: 0 would be stored</source>
        <translation>Keine Zahl: 0 würde gespeichert</translation>
    </message>
    <message>
        <source>Only ~ of ~ would be stored</source>
        <translation>Nur ~ von ~ würde gespeichert</translation>
    </message>
    <message>
        <source>The decimal separator here is the point</source>
        <translation>Das Dezimaltrennzeichen ist hier der Punkt</translation>
    </message>
    <message>
        <source>The decimal separator here is ~</source>
        <translation>Das Dezimaltrennzeichen ist hier ~</translation>
    </message>
    <message>
        <source>&quot;~&quot; cannot be typed here</source>
        <translation>&quot;~&quot; kann hier nicht eingegeben werden</translation>
    </message>
    <message>
        <source>~ would be stored for ~</source>
        <translation>~ würde gespeichert statt ~</translation>
    </message>
    <message>
        <source>~ is too large to be stored</source>
        <translation>~ ist zu groß und kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Pasted as ~</source>
        <translation>Eingefügt als ~</translation>
    </message>
    <message>
        <source>Pasted from ~</source>
        <translation>Eingefügt aus ~</translation>
    </message>
    <message>
        <source>Nothing pasted: ~ can be read in two ways</source>
        <translation>Nichts eingefügt: ~ kann auf zwei Arten gelesen werden</translation>
    </message>
    <message>
        <source>Nothing pasted: ~ is not a number</source>
        <translation>Nichts eingefügt: ~ ist keine Zahl</translation>
    </message>
    <message>
        <source>Nothing pasted: there is no room for ~ numbers</source>
        <translation>Nichts eingefügt: Für ~ Zahlen ist kein Platz</translation>
    </message>
    <message>
        <source>Nothing pasted: the cell in line ~, column ~ is empty</source>
        <translation>Nichts eingefügt: Die Zelle in Zeile ~, Spalte ~ ist leer</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Search in all pages</source>
        <translation>In allen Seiten suchen</translation>
    </message>
    <message>
        <source>Pages that contain the text</source>
        <translation>Seiten, die den Text enthalten</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>Su&amp;che:</translation>
    </message>
    <message>
        <source>No page contains this.</source>
        <translation>Keine Seite enthält das.</translation>
    </message>
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
