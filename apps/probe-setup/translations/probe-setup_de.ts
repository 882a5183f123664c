<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>CommandLine</name>
    <message>
        <source>The probes of a host&apos;s INI file: listed, edited in their dialogs, saved.</source>
        <translation>Die Fühler der INI-Datei eines Programms: aufgelistet, in ihren Dialogen bearbeitet, gespeichert.</translation>
    </message>
    <message>
        <source>The host&apos;s file, or a settings file whose probe is added.</source>
        <translation>Die Datei des Programms oder eine Einstellungsdatei, deren Fühler hinzugefügt wird.</translation>
    </message>
    <message>
        <source>Use this language, en or de, instead of the system&apos;s.</source>
        <translation>Diese Sprache sprechen, en oder de, statt der des Systems.</translation>
    </message>
    <message>
        <source>Show what the program does: edit a value in each of the twelve dialogs, save FILE, print what has changed in it, and leave a picture of each window in FOLDER.</source>
        <translation>Zeigen, was das Programm kann: in jedem der zwölf Dialoge einen Wert ändern, FILE speichern, ausgeben, was sich darin geändert hat, und ein Bild jedes Fensters in FOLDER ablegen.</translation>
    </message>
    <message>
        <source>only one FILE can be opened</source>
        <translation>nur eine Datei (FILE) kann geöffnet werden</translation>
    </message>
    <message>
        <source>--tour needs a FILE</source>
        <translation>--tour braucht eine Datei (FILE)</translation>
    </message>
    <message>
        <source>--language %1: the languages are en and de</source>
        <translation>--language %1: die Sprachen sind en und de</translation>
    </message>
</context>
<context>
    <name>CommandRules</name>
    <message>
        <source>The file is read-only</source>
        <translation>Die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>No probe is selected</source>
        <translation>Kein Fühler ist ausgewählt</translation>
    </message>
    <message>
        <source>This can be done with one probe only</source>
        <translation>Das geht nur mit einem einzelnen Fühler</translation>
    </message>
    <message>
        <source>There are no changes to save</source>
        <translation>Es gibt keine Änderungen zu speichern</translation>
    </message>
    <message>
        <source>There is no change to take back</source>
        <translation>Es gibt keine Änderung zurückzunehmen</translation>
    </message>
    <message>
        <source>There is no change to make again</source>
        <translation>Es gibt keine Änderung zu wiederholen</translation>
    </message>
    <message>
        <source>Conversions of this kind have no settings</source>
        <translation>Konversionen dieser Art haben keine Einstellungen</translation>
    </message>
    <message>
        <source>The conversion type is not known</source>
        <translation>Der Typ der Konversion ist unbekannt</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>New file</source>
        <translation>Neue Datei</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation>%1 hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Do you want to save them?</source>
        <translation>Möchten Sie sie speichern?</translation>
    </message>
    <message>
        <source>Files of hosts (*.ini)</source>
        <translation>Dateien von Programmen (*.ini)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>%1: these section headers have no &quot;]&quot;, so the probes below them cannot be read:</source>
        <translation>%1: Diesen Abschnittsköpfen fehlt die „]“, sodass niemand die Fühler darunter lesen kann:</translation>
    </message>
    <message>
        <source>Only one file can be open. %1 is opened.</source>
        <translation>Nur eine Datei kann offen sein. %1 wird geöffnet.</translation>
    </message>
    <message>
        <source>%1 cannot be saved.</source>
        <translation>%1 kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 is saved.</source>
        <translation>%1 ist gespeichert.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Save a copy as</source>
        <translation>Kopie speichern unter</translation>
    </message>
    <message>
        <source>Do you want to replace what the other program has written?</source>
        <translation>Soll ersetzt werden, was das andere Programm geschrieben hat?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Import probes</source>
        <translation>Fühler importieren</translation>
    </message>
    <message>
        <source>Settings files (%1)</source>
        <translation>Einstellungsdateien (%1)</translation>
    </message>
    <message>
        <source>%1 is read-only: no probe can be added.</source>
        <translation>%1 ist schreibgeschützt: Es kann kein Fühler hinzugefügt werden.</translation>
    </message>
    <message>
        <source>The probe cannot be imported.</source>
        <translation>Der Fühler kann nicht importiert werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be exported.</source>
        <translation>„%1“ kann nicht exportiert werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is written into %2.</source>
        <translation>„%1“ ist in %2 geschrieben.</translation>
    </message>
    <message>
        <source>%1 was reloaded.</source>
        <translation>%1 ist neu geladen.</translation>
    </message>
    <message>
        <source>The selected probes have no settings to export.</source>
        <translation>Was ausgewählt ist, hat keine Einstellungen zum Exportieren.</translation>
    </message>
    <message>
        <source>Export probes into a folder</source>
        <translation>Fühler in einen Ordner exportieren</translation>
    </message>
    <message>
        <source>Do you want to replace these files?</source>
        <translation>Möchten Sie diese Dateien ersetzen?</translation>
    </message>
    <message>
        <source>%1 probes are written into %2.</source>
        <translation>%1 Fühler sind nach %2 geschrieben.</translation>
    </message>
    <message>
        <source>%1 is not loaded: you have cancelled it.</source>
        <translation>%1 ist nicht geladen: Sie haben abgebrochen.</translation>
    </message>
    <message>
        <source>Without settings, and left out: %1</source>
        <translation>Ohne Einstellungen und daher ausgelassen: %1</translation>
    </message>
</context>
<context>
    <name>FileLoader</name>
    <message>
        <source>Loading %1…</source>
        <translation>%1 wird geladen …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Probe Setup</source>
        <translation>Probe Setup</translation>
    </message>
</context>
<context>
    <name>FindingPane</name>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Probe</source>
        <translation>Fühler</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>This file is large: it is checked when you ask for it (F7).</source>
        <translation>Diese Datei ist groß: Sie wird geprüft, wenn Sie es wünschen (F7).</translation>
    </message>
    <message>
        <source>No findings: all probes can be read, and their values are plausible.</source>
        <translation>Keine Befunde: Alle Fühler sind lesbar, und ihre Werte können so gemeint sein.</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Befunde: %1</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Start a new file</source>
        <translation>Eine neue Datei beginnen</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open the file of a host, or add the probe of a settings file</source>
        <translation>Die Datei eines Programms öffnen oder den Fühler einer Einstellungsdatei hinzufügen</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Write the changes into the file</source>
        <translation>Die Änderungen in die Datei schreiben</translation>
    </message>
    <message>
        <source>Save a &amp;copy as…</source>
        <translation>&amp;Kopie speichern unter …</translation>
    </message>
    <message>
        <source>Write the file with the changes under another name</source>
        <translation>Die Datei mit den Änderungen unter einem anderen Namen schreiben</translation>
    </message>
    <message>
        <source>&amp;Import probe…</source>
        <translation>Fühler &amp;importieren …</translation>
    </message>
    <message>
        <source>Add the probe of a settings file</source>
        <translation>Den Fühler einer Einstellungsdatei hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Leave Probe Setup</source>
        <translation>Das Programm verlassen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Take the last change back</source>
        <translation>Die letzte Änderung zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Make the change again</source>
        <translation>Die Änderung wieder vornehmen</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Show the probes that contain a text</source>
        <translation>Die Fühler zeigen, die einen Text enthalten</translation>
    </message>
    <message>
        <source>&amp;Probe</source>
        <translation>&amp;Fühler</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen …</translation>
    </message>
    <message>
        <source>Add a probe with a name and a conversion type</source>
        <translation>Einen Fühler mit Namen und Konversionstyp hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten …</translation>
    </message>
    <message>
        <source>Edit the settings of the conversion</source>
        <translation>Die Einstellungen der Konversion bearbeiten</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Give the probe another name</source>
        <translation>Dem Fühler einen anderen Namen geben</translation>
    </message>
    <message>
        <source>Change &amp;type…</source>
        <translation>&amp;Typ ändern …</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove the selected probes</source>
        <translation>Die ausgewählten Fühler entfernen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Show the help</source>
        <translation>Die Hilfe zeigen</translation>
    </message>
    <message>
        <source>&amp;About Probe Setup</source>
        <translation>&amp;Über Probe Setup</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Die Version zeigen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>About Probe Setup</source>
        <translation>Über Probe Setup</translation>
    </message>
    <message>
        <source>%1[*] – Probe Setup</source>
        <translation>%1[*] – Probe Setup</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Probes: %1</source>
        <translation>Fühler: %1</translation>
    </message>
    <message>
        <source>Probes: %1 of %2</source>
        <translation>Fühler: %1 von %2</translation>
    </message>
    <message>
        <source>No probe contains &quot;%1&quot;. Press Esc in the find box to see all probes.</source>
        <translation>Kein Fühler enthält „%1“. Esc im Suchfeld zeigt wieder alle Fühler.</translation>
    </message>
    <message>
        <source>%1 has no probes, and it is read-only.</source>
        <translation>%1 hat keine Fühler und ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Open the file of a host (%1) or drop it here, or add a first probe (%2).</source>
        <translation>Öffnen Sie die Datei eines Programms (%1), legen Sie sie hier ab, oder fügen Sie einen ersten Fühler hinzu (%2).</translation>
    </message>
    <message>
        <source>%1 has no probes yet. Add one (%2), or import a settings file (%3).</source>
        <translation>%1 hat noch keine Fühler. Fügen Sie einen hinzu (%2), oder importieren Sie eine Einstellungsdatei (%3).</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Save the file with the changes under another name, and continue with that file</source>
        <translation>Die Datei mit den Änderungen unter einem anderen Namen schreiben und mit ihr weiterarbeiten</translation>
    </message>
    <message>
        <source>&amp;Export probes…</source>
        <translation>Fühler &amp;exportieren …</translation>
    </message>
    <message>
        <source>Write each selected probe into a settings file of its own</source>
        <translation>Jeden ausgewählten Fühler in eine eigene Einstellungsdatei schreiben</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>Print the selected probes, with all their values</source>
        <translation>Die ausgewählten Fühler mit allen Werten drucken</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>&amp;Als PDF speichern …</translation>
    </message>
    <message>
        <source>Save the selected probes as a PDF file, as they would be printed</source>
        <translation>Die ausgewählten Fühler in eine PDF-Datei schreiben, wie sie gedruckt würden</translation>
    </message>
    <message>
        <source>&amp;Copy probes</source>
        <translation>Fühler &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy the selected probes to the clipboard, as text of an INI file</source>
        <translation>Die ausgewählten Fühler als Text einer INI-Datei in die Zwischenablage legen</translation>
    </message>
    <message>
        <source>&amp;Paste probes</source>
        <translation>Fühler &amp;einfügen</translation>
    </message>
    <message>
        <source>Add the probes of the text on the clipboard</source>
        <translation>Die Fühler des Textes in der Zwischenablage hinzufügen</translation>
    </message>
    <message>
        <source>Give the selected probes another conversion type</source>
        <translation>Den ausgewählten Fühlern einen anderen Konversionstyp geben</translation>
    </message>
    <message>
        <source>Add probes with the same settings as the selected ones</source>
        <translation>Fühler mit denselben Einstellungen wie die ausgewählten hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Check</source>
        <translation>&amp;Prüfen</translation>
    </message>
    <message>
        <source>List everything that is wrong with the probes of the file</source>
        <translation>Alles auflisten, was mit den Fühlern der Datei nicht stimmt</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>&amp;Werte</translation>
    </message>
    <message>
        <source>&amp;Findings</source>
        <translation>&amp;Befunde</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Sortieren nach</translation>
    </message>
    <message>
        <source>Sort the list; the second time, in reverse order</source>
        <translation>Die Liste sortieren; beim zweiten Mal andersherum</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Conversion</source>
        <translation>&amp;Konversion</translation>
    </message>
    <message>
        <source>C&amp;hanged</source>
        <translation>&amp;Geändert</translation>
    </message>
    <message>
        <source>&amp;Order of the file</source>
        <translation>&amp;Reihenfolge der Datei</translation>
    </message>
    <message>
        <source>Show the probes in the order of the file</source>
        <translation>Die Fühler zeigen, wie sie in der Datei stehen</translation>
    </message>
    <message>
        <source>Probe Setup %1</source>
        <translation>Probe Setup %1</translation>
    </message>
    <message>
        <source>Edits the probe conversions of precision thermometers and keeps them in INI files.

Licence: MIT. Copyright © 2026 Quor Conversions contributors.
Qt %1, under the LGPL.</source>
        <translation>Bearbeitet die Fühlerkonversionen von Präzisionsthermometern und bewahrt sie in INI-Dateien auf.

Lizenz: MIT. Copyright © 2026 Quor Conversions contributors.
Qt %1, unter der LGPL.</translation>
    </message>
    <message>
        <source>The command has failed.</source>
        <translation>Der Befehl ist gescheitert.</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>Probe Setup</source>
        <translation>Probe Setup</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
</context>
<context>
    <name>ProbeCommands</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>%1 probes</source>
        <translation>%1 Fühler</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no settings to edit: %2.</source>
        <translation>„%1“ hat keine Einstellungen zum Bearbeiten: %2.</translation>
    </message>
    <message>
        <source>New probe</source>
        <translation>Neuer Fühler</translation>
    </message>
    <message>
        <source>Another program has changed %1 in the file.</source>
        <translation>Ein anderes Programm hat %1 in der Datei geändert.</translation>
    </message>
    <message>
        <source>Reload the file to see the current values.</source>
        <translation>Laden Sie die Datei neu, um die aktuellen Werte zu sehen.</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Nothing was done. No longer in the file:</source>
        <translation>Es wurde nichts getan. Nicht mehr in der Datei:</translation>
    </message>
    <message>
        <source>These keys are missing or cannot be read; they have default values:</source>
        <translation>Diese Schlüssel fehlen oder sind nicht lesbar; an ihrer Stelle stehen Vorgabewerte:</translation>
    </message>
    <message>
        <source>This key is missing or cannot be read:</source>
        <translation>Dieser Schlüssel fehlt oder ist nicht lesbar:</translation>
    </message>
    <message>
        <source>The record of &quot;%1&quot; in %2 cannot be read completely.</source>
        <translation>Der Datensatz von „%1“ in %2 ist nicht ganz lesbar.</translation>
    </message>
    <message>
        <source>%1 cannot be duplicated.</source>
        <translation>%1: Duplizieren ist nicht möglich.</translation>
    </message>
    <message>
        <source>One probe is removed. Undo brings it back.</source>
        <translation>Ein Fühler ist entfernt. Rückgängig bringt ihn zurück.</translation>
    </message>
    <message>
        <source>%1 are removed. Undo brings them back.</source>
        <translation>%1 sind entfernt. Rückgängig bringt sie zurück.</translation>
    </message>
    <message>
        <source>%1 cannot be copied.</source>
        <translation>%1: Kopieren ist nicht möglich.</translation>
    </message>
    <message>
        <source>%1 on the clipboard, as text.</source>
        <translation>%1 in der Zwischenablage, als Text.</translation>
    </message>
    <message>
        <source>The text on the clipboard cannot be pasted.</source>
        <translation>Der Text in der Zwischenablage kann nicht eingefügt werden.</translation>
    </message>
    <message>
        <source>Taken back: %1</source>
        <translation>Zurückgenommen: %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
</context>
<context>
    <name>ProbeDialog</name>
    <message>
        <source>Conversion type of %1</source>
        <translation>Konversionstyp von %1</translation>
    </message>
    <message>
        <source>A new type starts with default values; the present values are not kept.</source>
        <translation>Ein anderer Typ beginnt mit eigenen Werten; die jetzigen werden nicht übernommen.</translation>
    </message>
    <message>
        <source>Add a probe</source>
        <translation>Fühler hinzufügen</translation>
    </message>
    <message>
        <source>The probe gets the default values of its type.</source>
        <translation>Der Fühler bekommt die Vorgabewerte seines Typs.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
</context>
<context>
    <name>ProbeList</name>
    <message>
        <source>F&amp;ind:</source>
        <translation>S&amp;uchen:</translation>
    </message>
    <message>
        <source>Part of a name or of a conversion</source>
        <translation>Teil eines Namens oder einer Konversion</translation>
    </message>
    <message>
        <source>Find probes</source>
        <translation>Fühler suchen</translation>
    </message>
    <message>
        <source>Probes</source>
        <translation>Fühler</translation>
    </message>
</context>
<context>
    <name>ProbeReport</name>
    <message>
        <source>Conversion:</source>
        <translation>Konversion:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>noch nicht gespeichert</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Stand:</translation>
    </message>
    <message>
        <source>changed and not saved yet</source>
        <translation>geändert und noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Gedruckt:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>This conversion has no values.</source>
        <translation>Diese Konversion hat keine Werte.</translation>
    </message>
    <message>
        <source>These keys are missing or cannot be read; they have default values:</source>
        <translation>Diese Schlüssel fehlen oder sind nicht lesbar; an ihrer Stelle stehen Vorgabewerte:</translation>
    </message>
    <message>
        <source>Compared with certificate no.:</source>
        <translation>Verglichen mit Zertifikat Nr.:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Signature:</source>
        <translation>Unterschrift:</translation>
    </message>
    <message>
        <source>another program has changed it in the file in the meantime</source>
        <translation>inzwischen in der Datei von einem anderen Programm geändert</translation>
    </message>
</context>
<context>
    <name>ProbeTableModel</name>
    <message>
        <source>Changed and not saved yet</source>
        <translation>Geändert und noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Conversion</source>
        <translation>Konversion</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
</context>
<context>
    <name>ReloadBar</name>
    <message>
        <source>Re&amp;load</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>Reload the file</source>
        <translation>Die Datei neu laden</translation>
    </message>
    <message>
        <source>Another program has changed %1. The list shows an older state.</source>
        <translation>Ein anderes Programm hat %1 geändert. Was Sie hier sehen, ist älter.</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>%1 is saved.</source>
        <translation>%1 ist gespeichert.</translation>
    </message>
    <message>
        <source>Print probes</source>
        <translation>Fühler drucken</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>TypeChooser</name>
    <message>
        <source>Part of a type, such as &quot;K&quot; or &quot;PT100&quot;</source>
        <translation>Teil eines Typs, etwa „K“ oder „PT100“</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>Conversion &amp;type:</source>
        <translation>Konversions&amp;typ:</translation>
    </message>
    <message>
        <source>&amp;Low range:</source>
        <translation>&amp;Unterer Bereich:</translation>
    </message>
    <message>
        <source>&amp;High range:</source>
        <translation>&amp;Oberer Bereich:</translation>
    </message>
</context>
<context>
    <name>TypeTexts</name>
    <message>
        <source>No conversion</source>
        <translation>Keine Konversion</translation>
    </message>
    <message>
        <source>%1, deviation points</source>
        <translation>%1, Abweichungspunkte</translation>
    </message>
    <message>
        <source>%1, deviation polynomial</source>
        <translation>%1, Abweichungspolynom</translation>
    </message>
    <message>
        <source>%1, standard curve</source>
        <translation>%1, Normkennlinie</translation>
    </message>
    <message>
        <source>%1, R0 of its own</source>
        <translation>%1, eigener R0</translation>
    </message>
    <message>
        <source>Thermistor, ohms</source>
        <translation>Thermistor, Ohm</translation>
    </message>
    <message>
        <source>The type cannot be read</source>
        <translation>Der Typ ist nicht lesbar</translation>
    </message>
    <message>
        <source>Unknown type, code %1</source>
        <translation>Unbekannter Typ, Nummer %1</translation>
    </message>
    <message>
        <source>ITS-SR5, ITS-90 in range 5 alone</source>
        <translation>ITS-SR5, ITS-90 nur im Bereich 5</translation>
    </message>
    <message>
        <source>%1, A, B and C</source>
        <translation>%1, A, B und C</translation>
    </message>
    <message>
        <source>%1, alpha, delta and beta</source>
        <translation>%1, Alpha, Delta und Beta</translation>
    </message>
</context>
<context>
    <name>ValuePane</name>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Values of the selected probes</source>
        <translation>Werte der ausgewählten Fühler</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Copy as a &amp;table</source>
        <translation>Als &amp;Tabelle kopieren</translation>
    </message>
    <message>
        <source>Copy as te&amp;xt</source>
        <translation>Als Te&amp;xt kopieren</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>… und %1 weitere</translation>
    </message>
    <message>
        <source>Conversion</source>
        <translation>Konversion</translation>
    </message>
    <message>
        <source>Cannot be read:</source>
        <translation>Nicht lesbar:</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>%1: %2 in the file, %3 here</source>
        <translation>%1: %2 in der Datei, %3 hier</translation>
    </message>
    <message>
        <source>%1: removed from the file, %2 here</source>
        <translation>%1: aus der Datei entfernt, %2 hier</translation>
    </message>
    <message>
        <source>%1: this is not a settings file. Line %2 is neither a section nor a key, nor any other text that can be in one.</source>
        <translation>%1: Das ist keine Einstellungsdatei. Zeile %2 ist weder ein Abschnitt noch ein Schlüssel noch sonst ein Text, der in einer stehen könnte.</translation>
    </message>
    <message>
        <source>%1: this is not a settings file of a conversion.</source>
        <translation>%1: Das ist keine Einstellungsdatei einer Konversion.</translation>
    </message>
    <message>
        <source>%1: these keys are missing or cannot be read:</source>
        <translation>%1: Diese Schlüssel fehlen oder sind nicht lesbar:</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; has the type %3, which this program does not know. It stays in the file unchanged, but it cannot be copied.</source>
        <translation>%1: „%2“ hat den Typ %3, den dieses Programm nicht kennt. Der Fühler bleibt in der Datei, wie er ist, kann aber nicht kopiert werden.</translation>
    </message>
    <message>
        <source>%1: another program has changed or removed these probes in the meantime:</source>
        <translation>%1: Ein anderes Programm hat inzwischen diese Fühler geändert oder entfernt:</translation>
    </message>
    <message>
        <source>%1: another program has changed these values in the meantime:</source>
        <translation>%1: Ein anderes Programm hat inzwischen diese Werte geändert:</translation>
    </message>
    <message>
        <source>%1: another program has added a section called &quot;%2&quot; in the meantime. Give the probe another name and save again.</source>
        <translation>%1: Ein anderes Programm hat inzwischen einen Abschnitt namens „%2“ hinzugefügt. Geben Sie dem Fühler einen anderen Namen und speichern Sie noch einmal.</translation>
    </message>
    <message>
        <source>%1: the probe &quot;%2&quot; cannot be written:</source>
        <translation>%1: Der Fühler „%2“ kann nicht geschrieben werden:</translation>
    </message>
    <message>
        <source>%1: the section [%2] belongs to both &quot;%3&quot; and &quot;%4&quot;, so it cannot be removed or renamed with only one of them. Undo that change.</source>
        <translation>%1: Der Abschnitt [%2] gehört zu „%3“ und zu „%4“ zugleich; er kann also nicht mit einem von beiden allein verschwinden oder einen anderen Namen bekommen. Nehmen Sie diese Änderung zurück.</translation>
    </message>
    <message>
        <source>A probe needs a name.</source>
        <translation>Ein Fühler braucht einen Namen.</translation>
    </message>
    <message>
        <source>No section of a file can be called &quot;%1&quot;.</source>
        <translation>Kein Abschnitt einer Datei kann „%1“ heißen.</translation>
    </message>
    <message>
        <source>The file is in Latin-1, which cannot spell &quot;%1&quot;.</source>
        <translation>Die Datei ist in Latin-1 geschrieben, das „%1“ nicht schreiben kann.</translation>
    </message>
    <message>
        <source>There is a probe called &quot;%1&quot; already.</source>
        <translation>Es gibt schon einen Fühler namens „%1“.</translation>
    </message>
    <message>
        <source>The file has a section of its own called &quot;%1&quot;.</source>
        <translation>Die Datei hat einen eigenen Abschnitt namens „%1“.</translation>
    </message>
    <message>
        <source>Another probe keeps its settings in the section &quot;%1&quot;.</source>
        <translation>Ein anderer Fühler bewahrt seine Einstellungen im Abschnitt „%1“ auf.</translation>
    </message>
    <message>
        <source>The file already has a section for the settings of &quot;%1&quot;.</source>
        <translation>Die Datei hat einen Abschnitt, in dem die Einstellungen von „%1“ stehen würden.</translation>
    </message>
    <message>
        <source>add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>change of type</source>
        <translation>Änderung des Typs</translation>
    </message>
    <message>
        <source>edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>It contains no probe: a probe starts with its name in square brackets and has the key &quot;ConversionType&quot;.</source>
        <translation>Es ist kein Fühler darin: Ein Fühler beginnt mit seinem Namen in eckigen Klammern und hat einen Schlüssel „ConversionType“.</translation>
    </message>
    <message>
        <source>These keys are missing in it or cannot be read:</source>
        <translation>Diese Schlüssel fehlen darin oder sind nicht lesbar:</translation>
    </message>
    <message>
        <source>paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>These sections would be left out, because their names occur twice in it or their headers have no &quot;]&quot;:</source>
        <translation>Diese Abschnitte würden fehlen, denn ihre Namen kommen darin zweimal vor, oder ihre Kopfzeilen haben kein „]“:</translation>
    </message>
</context>
<context>
    <name>ProbeTexts</name>
    <message>
        <source>there is no such section</source>
        <translation>es gibt keinen solchen Abschnitt</translation>
    </message>
    <message>
        <source>the section is not the record of a probe</source>
        <translation>der Abschnitt ist nicht der Datensatz eines Fühlers</translation>
    </message>
    <message>
        <source>the conversion type cannot be read: &quot;~&quot;</source>
        <translation>der Konversionstyp ist nicht lesbar: „~“</translation>
    </message>
    <message>
        <source>~ is no conversion type</source>
        <translation>~ ist kein Konversionstyp</translation>
    </message>
    <message>
        <source>the record cannot be read</source>
        <translation>der Datensatz ist nicht lesbar</translation>
    </message>
    <message>
        <source>no section can have this name</source>
        <translation>so kann kein Abschnitt heißen</translation>
    </message>
    <message>
        <source>there is a section of this name already</source>
        <translation>es gibt schon einen Abschnitt dieses Namens</translation>
    </message>
    <message>
        <source>the probe &quot;~&quot; keeps its settings in a section of this name</source>
        <translation>der Fühler „~“ hat seine Einstellungen in einem Abschnitt dieses Namens</translation>
    </message>
    <message>
        <source>the settings would stand in the section &quot;~&quot;, which is there already</source>
        <translation>die Einstellungen kämen in den Abschnitt „~“, den es schon gibt</translation>
    </message>
    <message>
        <source>a section of this probe belongs to the probe &quot;~&quot;, too</source>
        <translation>ein Abschnitt dieses Fühlers gehört auch zum Fühler „~“</translation>
    </message>
    <message>
        <source>there is a probe of another type (~) in this section</source>
        <translation>in diesem Abschnitt steht ein Fühler eines anderen Typs (~)</translation>
    </message>
    <message>
        <source>in a file of this kind the section is not for ~</source>
        <translation>in einer solchen Datei ist der Abschnitt nicht für ~</translation>
    </message>
    <message>
        <source>the record cannot be written: ~</source>
        <translation>der Datensatz kann nicht geschrieben werden: ~</translation>
    </message>
    <message>
        <source>the section exists and is not the record of a probe</source>
        <translation>den Abschnitt gibt es, und er ist nicht der Datensatz eines Fühlers</translation>
    </message>
    <message>
        <source>the values of the settings do not go together: no file gives them back</source>
        <translation>die Werte der Einstellungen passen nicht zusammen: keine Datei gibt sie so zurück</translation>
    </message>
    <message>
        <source>the section is missing</source>
        <translation>der Abschnitt fehlt</translation>
    </message>
    <message>
        <source>the key is missing</source>
        <translation>der Schlüssel fehlt</translation>
    </message>
    <message>
        <source>the value ~ is not accepted</source>
        <translation>der Wert ~ ist nicht zulässig</translation>
    </message>
    <message>
        <source>the value ~ is not accepted; ~ would be used</source>
        <translation>der Wert ~ ist nicht zulässig; verwendet würde ~</translation>
    </message>
    <message>
        <source>unknown key: a record of this type and size does not hold it</source>
        <translation>unbekannter Schlüssel: ein Datensatz dieses Typs und dieser Größe hat ihn nicht</translation>
    </message>
    <message>
        <source>&quot;~&quot; is a number that no double can hold: too large, or too close to zero</source>
        <translation>„~“ ist zu groß oder zu nahe an Null für eine Zahl doppelter Genauigkeit</translation>
    </message>
    <message>
        <source>&quot;~&quot; is not a number; the decimal separator is a point</source>
        <translation>„~“ ist keine Zahl; das Dezimalzeichen ist ein Punkt</translation>
    </message>
    <message>
        <source>&quot;~&quot; is not a number</source>
        <translation>„~“ ist keine Zahl</translation>
    </message>
    <message>
        <source>&quot;~&quot; is not a whole number from -32768 to 32767</source>
        <translation>„~“ ist keine ganze Zahl von -32768 bis 32767</translation>
    </message>
    <message>
        <source>&quot;~&quot; is neither True nor False</source>
        <translation>„~“ ist weder True noch False</translation>
    </message>
    <message>
        <source>&quot;~&quot; cannot be read</source>
        <translation>„~“ ist nicht lesbar</translation>
    </message>
    <message>
        <source>; a comment begins with &quot;;&quot;</source>
        <translation>; ein Kommentar beginnt mit „;“</translation>
    </message>
    <message>
        <source>; a comment begins with &quot;;&quot; after a blank</source>
        <translation>; ein Kommentar beginnt mit „;“ nach einem Leerzeichen</translation>
    </message>
    <message>
        <source>the key occurs twice; the one in line ~ is read</source>
        <translation>den Schlüssel gibt es zweimal; gelesen wird der in Zeile ~</translation>
    </message>
    <message>
        <source>the section occurs twice; the one in line ~ is read</source>
        <translation>den Abschnitt gibt es zweimal; gelesen wird der in Zeile ~</translation>
    </message>
    <message>
        <source>the header has no &quot;]&quot;; nobody can read the record below it</source>
        <translation>der Überschrift fehlt „]“; der Datensatz darunter ist für niemanden lesbar</translation>
    </message>
    <message>
        <source>the line is no key=value</source>
        <translation>die Zeile ist nicht Schlüssel=Wert</translation>
    </message>
    <message>
        <source>the line goes on after a carriage return (CR), and what follows is not read; a line ends in a line feed (LF or CR LF)</source>
        <translation>die Zeile geht hinter einem Wagenrücklauf (CR) weiter, und was dort steht, wird nicht gelesen; eine Zeile endet mit einem Zeilenvorschub (LF oder CR LF)</translation>
    </message>
    <message>
        <source>what another program had put in its place is kept as ~</source>
        <translation>was ein anderes Programm an ihre Stelle gesetzt hatte, ist aufgehoben als ~</translation>
    </message>
    <message>
        <source>an interrupted save has left ~</source>
        <translation>ein abgebrochenes Speichern hat ~ hinterlassen</translation>
    </message>
    <message>
        <source>~ is ~; limit: above 0</source>
        <translation>~ ist ~; Grenze: über 0</translation>
    </message>
    <message>
        <source>~ is ~; limit: at most ~ in size</source>
        <translation>~ ist ~; Grenze: höchstens ~ im Betrag</translation>
    </message>
    <message>
        <source>~ is ~; limit: ~ to ~</source>
        <translation>~ ist ~; Grenze: ~ bis ~</translation>
    </message>
    <message>
        <source>the coefficient is ~; limit: at most ~ in size</source>
        <translation>der Koeffizient ist ~; Grenze: höchstens ~ im Betrag</translation>
    </message>
    <message>
        <source>~ is not finite</source>
        <translation>~ ist nicht endlich</translation>
    </message>
    <message>
        <source>all coefficients are 0</source>
        <translation>alle Koeffizienten sind 0</translation>
    </message>
    <message>
        <source>~ is not above ~, the temperature before it</source>
        <translation>~ liegt nicht über ~, der Temperatur davor</translation>
    </message>
    <message>
        <source>range ~ does not have these coefficients, which are not 0: ~</source>
        <translation>der Bereich ~ hat diese Koeffizienten nicht, die nicht 0 sind: ~</translation>
    </message>
    <message>
        <source>~ leaves out these values, which are not 0: ~</source>
        <translation>~ lässt diese Werte weg, die nicht 0 sind: ~</translation>
    </message>
    <message>
        <source>these are settings of &quot;~&quot;, but there is no such probe</source>
        <translation>dies sind Einstellungen von „~“, aber diesen Fühler gibt es nicht</translation>
    </message>
</context>
</TS>
