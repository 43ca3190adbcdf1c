<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projekt</translation>
    </message>
    <message>
        <source>&amp;New …</source>
        <translation>&amp;Neu …</translation>
    </message>
    <message>
        <source>Make a project for a device</source>
        <translation>Ein Projekt für einen Baustein anlegen</translation>
    </message>
    <message>
        <source>&amp;Open …</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open a project folder</source>
        <translation>Einen Projektordner öffnen</translation>
    </message>
    <message>
        <source>&amp;Save again</source>
        <translation>Erneut &amp;speichern</translation>
    </message>
    <message>
        <source>Save what an earlier failure kept from being saved</source>
        <translation>Speichern, was ein früherer Fehler am Speichern gehindert hat</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>Read the project and look at its files again</source>
        <translation>Das Projekt neu lesen und seine Dateien neu ansehen</translation>
    </message>
    <message>
        <source>&amp;Close project</source>
        <translation>Projekt schl&amp;ießen</translation>
    </message>
    <message>
        <source>Close the project</source>
        <translation>Das Projekt schließen</translation>
    </message>
    <message>
        <source>&amp;Instance</source>
        <translation>&amp;Instanz</translation>
    </message>
    <message>
        <source>&amp;Create …</source>
        <translation>&amp;Anlegen …</translation>
    </message>
    <message>
        <source>Create an instance of the IP chosen in the catalogue</source>
        <translation>Eine Instanz der im Katalog gewählten IP anlegen</translation>
    </message>
    <message>
        <source>C&amp;onfigure …</source>
        <translation>&amp;Konfigurieren …</translation>
    </message>
    <message>
        <source>Open the instance in its IP&apos;s dialog (or Enter)</source>
        <translation>Die Instanz im Dialog ihrer IP öffnen (oder Eingabetaste)</translation>
    </message>
    <message>
        <source>&amp;Duplicate …</source>
        <translation>&amp;Duplizieren …</translation>
    </message>
    <message>
        <source>Make a copy under another name</source>
        <translation>Eine Kopie unter anderem Namen anlegen</translation>
    </message>
    <message>
        <source>&amp;Rename …</source>
        <translation>&amp;Umbenennen …</translation>
    </message>
    <message>
        <source>Give the instance another name</source>
        <translation>Der Instanz einen anderen Namen geben</translation>
    </message>
    <message>
        <source>C&amp;heck</source>
        <translation>&amp;Prüfen</translation>
    </message>
    <message>
        <source>Let the IP check the selected instances, without saving</source>
        <translation>Die ausgewählten Instanzen von der IP prüfen lassen, ohne zu speichern</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Generieren</translation>
    </message>
    <message>
        <source>Write the files of the selected instances</source>
        <translation>Die Dateien der ausgewählten Instanzen schreiben</translation>
    </message>
    <message>
        <source>Generate &amp;all</source>
        <translation>A&amp;lle generieren</translation>
    </message>
    <message>
        <source>Write the files of all instances</source>
        <translation>Die Dateien aller Instanzen schreiben</translation>
    </message>
    <message>
        <source>Generate with &amp;netlist</source>
        <translation>Mit &amp;Netzliste generieren</translation>
    </message>
    <message>
        <source>Write the files and run the netlist generation</source>
        <translation>Die Dateien schreiben und die Netzliste erzeugen</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove the selected instances; undo brings them back</source>
        <translation>Die ausgewählten Instanzen entfernen; „Rückgängig“ holt sie zurück</translation>
    </message>
    <message>
        <source>Cop&amp;y command line</source>
        <translation>Kommando&amp;zeile kopieren</translation>
    </message>
    <message>
        <source>Copy the command line that generates the selected instances</source>
        <translation>Die Kommandozeile kopieren, die die ausgewählten Instanzen generiert</translation>
    </message>
    <message>
        <source>Open out&amp;put folder</source>
        <translation>Ausgabe&amp;ordner öffnen</translation>
    </message>
    <message>
        <source>Show the generated files in the file manager</source>
        <translation>Die generierten Dateien in der Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Find an IP</source>
        <translation>IP s&amp;uchen</translation>
    </message>
    <message>
        <source>Search the catalogue</source>
        <translation>Den Katalog durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Instances</source>
        <translation>&amp;Instanzen</translation>
    </message>
    <message>
        <source>Go to the table of instances</source>
        <translation>Zur Tabelle der Instanzen gehen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>All keys of the window</source>
        <translation>Alle Tasten des Fensters</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Über dieses Programm</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Print or &amp;export quad map …</source>
        <translation>Quad-Plan drucken oder &amp;exportieren …</translation>
    </message>
    <message>
        <source>Write the quad map for paper (PDF) or as a picture (SVG, PNG)</source>
        <translation>Den Quad-Plan für Papier (PDF) oder als Bild (SVG, PNG) schreiben</translation>
    </message>
</context>
<context>
    <name>ApproachTexts</name>
    <message>
        <source>%1 (%2 instead of %3)</source>
        <translation>%1 (%2 statt %3)</translation>
    </message>
</context>
<context>
    <name>FieldTexts</name>
    <message>
        <source>it went away while it was used</source>
        <translation>es verschwand während der Bedienung</translation>
    </message>
    <message>
        <source>it refuses to be emptied</source>
        <translation>es lässt sich nicht leeren</translation>
    </message>
    <message>
        <source>it refuses the character &quot;%1&quot; of &quot;%2&quot; (at %3)</source>
        <translation>es nimmt das Zeichen „%1“ von „%2“ nicht an (Stelle %3)</translation>
    </message>
    <message>
        <source>it is a line edit and needs a text</source>
        <translation>es ist ein Textfeld und braucht einen Text</translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation>es lässt sich nur lesen</translation>
    </message>
    <message>
        <source>it cannot take the focus</source>
        <translation>es kann den Fokus nicht bekommen</translation>
    </message>
    <message>
        <source>it is a combo box and needs the text of an item</source>
        <translation>es ist eine Auswahlliste und braucht den Text eines Eintrags</translation>
    </message>
    <message>
        <source>it has no item &quot;%1&quot;, it is empty</source>
        <translation>es hat keinen Eintrag „%1“, es ist leer</translation>
    </message>
    <message>
        <source>it has no item &quot;%1&quot;; it has %2</source>
        <translation>es hat keinen Eintrag „%1“; es hat %2</translation>
    </message>
    <message>
        <source>its item &quot;%1&quot; is disabled</source>
        <translation>sein Eintrag „%1“ ist gesperrt</translation>
    </message>
    <message>
        <source>its list does not open</source>
        <translation>seine Liste öffnet sich nicht</translation>
    </message>
    <message>
        <source>it is a check box and needs true or false</source>
        <translation>es ist ein Kontrollkästchen und braucht true oder false</translation>
    </message>
    <message>
        <source>the click did not leave it checked</source>
        <translation>nach dem Klick ist es nicht angekreuzt</translation>
    </message>
    <message>
        <source>the click did not leave it unchecked</source>
        <translation>nach dem Klick ist es noch angekreuzt</translation>
    </message>
    <message>
        <source>it is a checkable group and needs true or false</source>
        <translation>es ist eine ankreuzbare Gruppe und braucht true oder false</translation>
    </message>
    <message>
        <source>it is a group that cannot be checked</source>
        <translation>es ist eine Gruppe, die sich nicht ankreuzen lässt</translation>
    </message>
    <message>
        <source>it is a spin box and needs a whole number</source>
        <translation>es ist ein Zahlenfeld und braucht eine ganze Zahl</translation>
    </message>
    <message>
        <source>it is a spin box and needs a number</source>
        <translation>es ist ein Zahlenfeld und braucht eine Zahl</translation>
    </message>
    <message>
        <source>%1 is out of its range, %2 to %3</source>
        <translation>%1 liegt außerhalb seines Bereichs, %2 bis %3</translation>
    </message>
    <message>
        <source>it refuses &quot;%1&quot;</source>
        <translation>es nimmt „%1“ nicht an</translation>
    </message>
    <message>
        <source>a %1 is no field that can be set</source>
        <translation>%1 ist kein Feld, das sich setzen lässt</translation>
    </message>
</context>
<context>
    <name>IPSERDESIP::FieldKeeper</name>
    <message>
        <source>Not the default, which is &quot;%1&quot;</source>
        <translation>Weicht von der Vorgabe „%1“ ab</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <translation>Auf Vorgabe zurücksetzen</translation>
    </message>
</context>
<context>
    <name>IPSERDESIP::FigureView</name>
    <message>
        <source>Port figure</source>
        <translation>Anschlussbild</translation>
    </message>
    <message>
        <source>Ctrl and the wheel, + and - zoom; 0 fits the figure; drag to scroll.</source>
        <translation>Strg und Mausrad, + und - ändern die Größe; 0 passt das Bild ein; Ziehen verschiebt es.</translation>
    </message>
</context>
<context>
    <name>IPSERDESIP::ManagePresetsDialog</name>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already. Replace it?</source>
        <translation>Eine Vorlage „%1“ gibt es schon. Soll sie ersetzt werden?</translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation>Vorlagen verwalten</translation>
    </message>
    <message>
        <source>Your presets</source>
        <translation>Eigene Vorlagen</translation>
    </message>
    <message>
        <source>Rename …</source>
        <translation>Umbenennen …</translation>
    </message>
    <message>
        <source>Give the chosen preset another name (F2)</source>
        <translation>Der gewählten Vorlage einen anderen Namen geben (F2)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete the chosen preset (Del)</source>
        <translation>Die gewählte Vorlage löschen (Entf)</translation>
    </message>
    <message>
        <source>Your presets:</source>
        <translation>Eigene Vorlagen:</translation>
    </message>
    <message>
        <source>Damaged: %1: %2</source>
        <translation>Beschädigt: %1: %2</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation>Soll die Vorlage „%1“ gelöscht werden?</translation>
    </message>
</context>
<context>
    <name>IPSERDESIP::PresetPanel</name>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Save as preset …</source>
        <translation>Als Vorlage speichern …</translation>
    </message>
    <message>
        <source>Keep what the pages show under a name</source>
        <translation>Was die Seiten zeigen, unter einem Namen aufheben</translation>
    </message>
    <message>
        <source>Manage presets …</source>
        <translation>Vorlagen verwalten …</translation>
    </message>
    <message>
        <source>Rename and delete your presets</source>
        <translation>Eigene Vorlagen umbenennen und löschen</translation>
    </message>
    <message>
        <source>No preset for this device</source>
        <translation>Keine Vorlage für diesen Baustein</translation>
    </message>
    <message>
        <source>Manage presets (%1 damaged) …</source>
        <translation>Vorlagen verwalten (%1 beschädigt) …</translation>
    </message>
    <message>
        <source>Your presets</source>
        <translation>Eigene Vorlagen</translation>
    </message>
    <message>
        <source>Presets of the IP</source>
        <translation>Vorlagen des IPs</translation>
    </message>
    <message>
        <source>File options</source>
        <translation>Dateiangaben</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Finding out what the preset would change has changed fields itself. Look through the pages.</source>
        <translation>Schon das Nachsehen, was die Vorlage ändern würde, hat Felder geändert. Bitte die Seiten durchsehen.</translation>
    </message>
    <message>
        <source>The preset has come out in another way than shown: %1 fields have changed. Undo takes them back.</source>
        <translation>Die Vorlage hat anderes bewirkt als gezeigt: %1 Felder haben sich geändert. „Rückgängig“ nimmt sie zurück.</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; applied, changes: %2</source>
        <translation>Vorlage „%1“ angewendet, Änderungen: %2</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; applied, changes: %2, not taken over: %3</source>
        <translation>Vorlage „%1“ angewendet, Änderungen: %2, nicht übernommen: %3</translation>
    </message>
    <message>
        <source>Preset &quot;%1&quot; saved</source>
        <translation>Vorlage „%1“ gespeichert</translation>
    </message>
</context>
<context>
    <name>IPSERDESIP::PresetPreview</name>
    <message>
        <source>What changes</source>
        <translation>Was sich ändert</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Dann</translation>
    </message>
    <message>
        <source>Apply the preset &quot;%1&quot;</source>
        <translation>Vorlage „%1“ anwenden</translation>
    </message>
    <message>
        <source>No field changes: the dialog shows the preset&apos;s values.</source>
        <translation>Kein Feld ändert sich: Der Dialog zeigt die Werte der Vorlage.</translation>
    </message>
    <message>
        <source>Changes: %1. One Undo takes all of them back.</source>
        <translation>Änderungen: %1. Einmal „Rückgängig“ nimmt alle zurück.</translation>
    </message>
    <message>
        <source>Not taken over:</source>
        <translation>Nicht übernommen:</translation>
    </message>
    <message>
        <source>The rules say:</source>
        <translation>Die Regeln melden:</translation>
    </message>
    <message>
        <source>Set these fields</source>
        <translation>Diese Felder setzen</translation>
    </message>
</context>
<context>
    <name>IPSERDESIP::SavePresetDialog</name>
    <message>
        <source>Save as preset</source>
        <translation>Als Vorlage speichern</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Such as: Backplane, 4 lanes</source>
        <translation>Etwa: Rückwand, 4 Lanes</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Offered for</source>
        <translation>Angeboten für</translation>
    </message>
    <message>
        <source>The preset is offered for these devices only</source>
        <translation>Die Vorlage wird nur für diese Bausteine angeboten</translation>
    </message>
    <message>
        <source>Devices of the class %1</source>
        <translation>Bausteine der Klasse %1</translation>
    </message>
    <message>
        <source>%1 only</source>
        <translation>Nur %1</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>Alle Bausteine</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Offered for:</source>
        <translation>Angeboten für:</translation>
    </message>
    <message>
        <source>Saves what the pages&apos; open fields show now: %1 of them.</source>
        <translation>Speichert, was die offenen Felder der Seiten jetzt zeigen: %1 Felder.</translation>
    </message>
    <message>
        <source>In a new dialog these would not come out as they are now:</source>
        <translation>In einem neuen Dialog kämen diese nicht so heraus, wie sie jetzt sind:</translation>
    </message>
</context>
<context>
    <name>IPSERDESIP::protocolGenDlg</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Module Name</source>
        <translation>Modulname</translation>
    </message>
    <message>
        <source>Synthesis Tool</source>
        <translation>Synthesewerkzeug</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Create In</source>
        <translation>Anlegen in</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>Module Name:</source>
        <translation>Modulname:</translation>
    </message>
    <message>
        <source>Synthesis Tool:</source>
        <translation>Synthesewerkzeug:</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>Create In:</source>
        <translation>Anlegen in:</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fit the figure to the pane</source>
        <translation>Das Bild in den Bereich einpassen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Details of the last failure</source>
        <translation>Einzelheiten zum letzten Fehler</translation>
    </message>
    <message>
        <source>When a check fails, its reasons stand here.</source>
        <translation>Schlägt eine Prüfung fehl, stehen hier die Gründe.</translation>
    </message>
    <message>
        <source>Last message</source>
        <translation>Letzte Meldung</translation>
    </message>
    <message>
        <source>The file name is empty: give the folder that the instance writes to a name.</source>
        <translation>Der Dateiname ist leer: bitte dem Ordner, in den die Instanz schreibt, einen Namen geben.</translation>
    </message>
    <message>
        <source>The file name &quot;%1&quot; is an absolute path: give a plain name; the folder is made in the transceiver working directory.</source>
        <translation>Der Dateiname „%1“ ist ein absoluter Pfad: bitte einen einfachen Namen angeben; der Ordner wird im Arbeitsverzeichnis der Transceiver angelegt.</translation>
    </message>
    <message>
        <source>The file name &quot;%1&quot; contains a path separator (&quot;/&quot; or &quot;\&quot;): give a plain name.</source>
        <translation>Der Dateiname „%1“ enthält einen Pfadtrenner („/“ oder „\“): bitte einen einfachen Namen angeben.</translation>
    </message>
    <message>
        <source>The file name &quot;%1&quot; names a folder relative to another (&quot;.&quot; or &quot;..&quot;): give a plain name.</source>
        <translation>Der Dateiname „%1“ nennt einen Ordner relativ zu einem anderen („.“ oder „..“): bitte einen einfachen Namen angeben.</translation>
    </message>
    <message>
        <source>The file name &quot;%1&quot; contains a control character: remove it.</source>
        <translation>Der Dateiname „%1“ enthält ein Steuerzeichen: bitte entfernen.</translation>
    </message>
    <message>
        <source>The file name is %1 bytes long: at most %2 are possible.</source>
        <translation>Der Dateiname ist %1 Bytes lang: höchstens %2 sind möglich.</translation>
    </message>
    <message>
        <source>The module name is empty: give the module a name.</source>
        <translation>Der Modulname ist leer: bitte dem Modul einen Namen geben.</translation>
    </message>
    <message>
        <source>The module name &quot;%1&quot; is no Verilog identifier: it begins with a letter or &quot;_&quot; and goes on with letters, digits, &quot;_&quot; and &quot;$&quot;.</source>
        <translation>Der Modulname „%1“ ist kein Verilog-Bezeichner: er beginnt mit einem Buchstaben oder „_“, dann folgen Buchstaben, Ziffern, „_“ und „$“.</translation>
    </message>
    <message>
        <source>The module name &quot;%1&quot; is a reserved word of Verilog or SystemVerilog: choose another.</source>
        <translation>Der Modulname „%1“ ist ein reserviertes Wort von Verilog oder SystemVerilog: bitte einen anderen wählen.</translation>
    </message>
    <message>
        <source>Ports: %1</source>
        <translation>Anschlüsse: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>The file name &quot;%1&quot; is used by the instance &quot;%2&quot;, which writes to the same folder: choose another.</source>
        <translation>Den Dateinamen „%1“ verwendet die Instanz „%2“, die in denselben Ordner schreibt: bitte einen anderen wählen.</translation>
    </message>
    <message>
        <source>The module name &quot;%1&quot; is used by the instance &quot;%2&quot;: a design can hold a module only once.</source>
        <translation>Den Modulnamen „%1“ verwendet die Instanz „%2“: ein Entwurf kann ein Modul nur einmal enthalten.</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Apply a preset, or keep the fields as one</source>
        <translation>Eine Vorlage anwenden oder die Felder als Vorlage aufheben</translation>
    </message>
    <message>
        <source>Copy as session script</source>
        <translation>Als Sitzungsskript kopieren</translation>
    </message>
    <message>
        <source>Put a script on the clipboard that makes a new instance with these settings</source>
        <translation>Ein Skript in die Zwischenablage legen, das eine neue Instanz mit diesen Einstellungen anlegt</translation>
    </message>
    <message>
        <source>Undo the last edit</source>
        <translation>Die letzte Änderung zurücknehmen</translation>
    </message>
    <message>
        <source>Do again what was undone</source>
        <translation>Zurückgenommenes wiederherstellen</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Eine Vorlage braucht einen Namen.</translation>
    </message>
    <message>
        <source>A preset&apos;s name neither begins nor ends with a blank.</source>
        <translation>Der Name einer Vorlage beginnt und endet nicht mit einem Leerzeichen.</translation>
    </message>
    <message>
        <source>A preset&apos;s name does not end with &quot;.json&quot;, which says that a file is meant.</source>
        <translation>Der Name einer Vorlage endet nicht auf „.json“: Das hieße, dass eine Datei gemeint ist.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>A preset&apos;s name has printable characters only.</source>
        <translation>Der Name einer Vorlage hat nur druckbare Zeichen.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; came with the IP: choose another name.</source>
        <translation>Die Vorlage „%1“ gehört zum IP: Bitte einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>Der Ordner %1 lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>%1 exists and is damaged: it is not overwritten.</source>
        <translation>%1 gibt es, und die Datei ist beschädigt: Sie wird nicht überschrieben.</translation>
    </message>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Es gibt keine Vorlage „%1“.</translation>
    </message>
    <message>
        <source>The session script is on the clipboard</source>
        <translation>Das Sitzungsskript liegt in der Zwischenablage</translation>
    </message>
    <message>
        <source>No steps have been found that lead a new instance here: %1</source>
        <translation>Es wurden keine Schritte gefunden, die eine neue Instanz hierher führen: %1</translation>
    </message>
</context>
<context>
    <name>MapTexts</name>
    <message>
        <source>%1 Gbps from %2 at %3 MHz</source>
        <translation>%1 Gbit/s aus %2 mit %3 MHz</translation>
    </message>
    <message>
        <source>%1 MHz</source>
        <translation>%1 MHz</translation>
    </message>
    <message>
        <source>set to %1</source>
        <translation>steht auf %1</translation>
    </message>
    <message>
        <source>Lane %1</source>
        <translation>Lane %1</translation>
    </message>
    <message>
        <source>only one instance can have it</source>
        <translation>nur eine Instanz kann es haben</translation>
    </message>
    <message>
        <source>used in different ways</source>
        <translation>verschieden verwendet</translation>
    </message>
    <message>
        <source>reference pin</source>
        <translation>Referenzpin</translation>
    </message>
    <message>
        <source>multiplexer</source>
        <translation>Multiplexer</translation>
    </message>
    <message>
        <source>PLL of the quad</source>
        <translation>PLL des Quads</translation>
    </message>
    <message>
        <source>PLL of the lane</source>
        <translation>PLL der Lane</translation>
    </message>
    <message>
        <source>lane</source>
        <translation>Lane</translation>
    </message>
    <message>
        <source>free</source>
        <translation>frei</translation>
    </message>
</context>
<context>
    <name>MarkTexts</name>
    <message>
        <source>another program</source>
        <translation>einem anderen Programm</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (Prozess %2)</translation>
    </message>
</context>
<context>
    <name>PlayTexts</name>
    <message>
        <source>a rule makes it &quot;%1&quot;</source>
        <translation>eine Regel macht daraus „%1“</translation>
    </message>
</context>
<context>
    <name>SheetTexts</name>
    <message>
        <source>⚠ %1 (%2): %3</source>
        <translation>⚠ %1 (%2): %3</translation>
    </message>
    <message>
        <source>the file&apos;s name ends in .pdf, .svg or .png</source>
        <translation>der Dateiname endet auf .pdf, .svg oder .png</translation>
    </message>
    <message>
        <source>the picture cannot be made</source>
        <translation>das Bild lässt sich nicht erstellen</translation>
    </message>
</context>
<context>
    <name>StateTexts</name>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>%1 differs from what would be generated now</source>
        <translation>%1 weicht von dem ab, was jetzt generiert würde</translation>
    </message>
    <message>
        <source>looking …</source>
        <translation>wird ermittelt …</translation>
    </message>
    <message>
        <source>IP not on offer</source>
        <translation>IP nicht verfügbar</translation>
    </message>
    <message>
        <source>configured</source>
        <translation>konfiguriert</translation>
    </message>
    <message>
        <source>generated</source>
        <translation>generiert</translation>
    </message>
    <message>
        <source>out of date</source>
        <translation>veraltet</translation>
    </message>
    <message>
        <source>check failed</source>
        <translation>Prüfung nicht bestanden</translation>
    </message>
    <message>
        <source>A copy of %1: configure it (Ctrl+E), so that it has lanes and a file of its own. Until then it holds nothing and is not generated.</source>
        <translation>Eine Kopie von %1: bitte konfigurieren (Strg+E), damit sie eigene Lanes und eine eigene Datei hat. Bis dahin belegt sie nichts und wird nicht generiert.</translation>
    </message>
    <message>
        <source>needs configuring</source>
        <translation>zu konfigurieren</translation>
    </message>
</context>
<context>
    <name>SummaryTexts</name>
    <message>
        <source>no divider setting gives these rates</source>
        <translation>keine Teilereinstellung ergibt diese Raten</translation>
    </message>
    <message>
        <source>lane</source>
        <translation>Lane</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>oscillator MHz</source>
        <translation>Oszillator MHz</translation>
    </message>
    <message>
        <source>margin</source>
        <translation>Reserve</translation>
    </message>
    <message>
        <source>rate Gbps</source>
        <translation>Rate Gbit/s</translation>
    </message>
    <message>
        <source>error ppm</source>
        <translation>Fehler ppm</translation>
    </message>
    <message>
        <source>rate margin</source>
        <translation>Ratenreserve</translation>
    </message>
    <message>
        <source>word clock MHz</source>
        <translation>Worttakt MHz</translation>
    </message>
    <message>
        <source>user clock MHz</source>
        <translation>Nutzertakt MHz</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>device</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>lanes</source>
        <translation>Lanes</translation>
    </message>
    <message>
        <source>PLLs</source>
        <translation>PLLs</translation>
    </message>
    <message>
        <source>references</source>
        <translation>Referenzen</translation>
    </message>
    <message>
        <source>line rate, transmit</source>
        <translation>Leitungsrate, Senden</translation>
    </message>
    <message>
        <source>line rate, receive</source>
        <translation>Leitungsrate, Empfangen</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>Problem</translation>
    </message>
</context>
<context>
    <name>ViewTexts</name>
    <message>
        <source>&quot;%1&quot; is no object: tabN/NAME or frame/NAME is</source>
        <translation>„%1“ ist kein Objekt: tabN/NAME oder frame/NAME ist eines</translation>
    </message>
    <message>
        <source>the frame has no field &quot;%1&quot;</source>
        <translation>der Rahmen hat kein Feld „%1“</translation>
    </message>
    <message>
        <source>there is no tab %1, the dialog has %2</source>
        <translation>es gibt keine Seite %1, der Dialog hat %2</translation>
    </message>
    <message>
        <source>tab %1 has no object &quot;%2&quot;</source>
        <translation>Seite %1 hat kein Objekt „%2“</translation>
    </message>
    <message>
        <source>it is hidden</source>
        <translation>es ist verborgen</translation>
    </message>
    <message>
        <source>its tab is disabled</source>
        <translation>seine Seite ist gesperrt</translation>
    </message>
    <message>
        <source>it is disabled</source>
        <translation>es ist gesperrt</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>IP generator</source>
        <translation>IP-Generator</translation>
    </message>
</context>
<context>
    <name>Window::CataloguePane</name>
    <message>
        <source>The IP failed when asked about the device: %1</source>
        <translation>Die IP scheiterte bei der Frage nach dem Baustein: %1</translation>
    </message>
    <message>
        <source>Its description excludes the device %1.</source>
        <translation>Ihre Beschreibung schließt den Baustein %1 aus.</translation>
    </message>
    <message>
        <source>Not for %1. It supports: %2.</source>
        <translation>Nicht für %1. Unterstützt werden: %2.</translation>
    </message>
    <message>
        <source>Create &amp;instance …</source>
        <translation>Instanz an&amp;legen …</translation>
    </message>
    <message>
        <source>Search the catalogue</source>
        <translation>Den Katalog durchsuchen</translation>
    </message>
    <message>
        <source>Type part of an IP&apos;s name, category or summary (Ctrl+F)</source>
        <translation>Einen Teil des Namens, der Kategorie oder der Kurzbeschreibung einer IP eingeben (Strg+F)</translation>
    </message>
    <message>
        <source>Search IPs</source>
        <translation>IPs suchen</translation>
    </message>
    <message>
        <source>IP catalogue</source>
        <translation>IP-Katalog</translation>
    </message>
    <message>
        <source>The IPs on offer; Enter creates an instance</source>
        <translation>Die verfügbaren IPs; die Eingabetaste legt eine Instanz an</translation>
    </message>
    <message>
        <source>About the chosen IP</source>
        <translation>Zur gewählten IP</translation>
    </message>
    <message>
        <source>Create an instance of the chosen IP</source>
        <translation>Eine Instanz der gewählten IP anlegen</translation>
    </message>
    <message>
        <source>Open the IP&apos;s dialog for a new instance (Ctrl+I)</source>
        <translation>Den Dialog der IP für eine neue Instanz öffnen (Strg+I)</translation>
    </message>
    <message>
        <source>Open or make a project first.</source>
        <translation>Bitte zuerst ein Projekt öffnen oder anlegen.</translation>
    </message>
    <message>
        <source>%1 %2 (%3)
%4</source>
        <translation>%1 %2 (%3)
%4</translation>
    </message>
    <message>
        <source>%1 (not for this device)</source>
        <translation>%1 (nicht für diesen Baustein)</translation>
    </message>
    <message>
        <source>Could not be loaded</source>
        <translation>Nicht ladbar</translation>
    </message>
    <message>
        <source>Choose an IP to read about it.</source>
        <translation>Eine IP wählen, um über sie zu lesen.</translation>
    </message>
</context>
<context>
    <name>Window::FilesPane</name>
    <message>
        <source>&amp;Changes since the generation before</source>
        <translation>Ä&amp;nderungen seit der vorigen Generierung</translation>
    </message>
    <message>
        <source>Generated files</source>
        <translation>Generierte Dateien</translation>
    </message>
    <message>
        <source>The files of the chosen instance</source>
        <translation>Die Dateien der gewählten Instanz</translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation>Text der Datei</translation>
    </message>
    <message>
        <source>Show the changes since the generation before</source>
        <translation>Die Änderungen seit der vorigen Generierung zeigen</translation>
    </message>
    <message>
        <source>Show what the last generation changed instead of the text</source>
        <translation>Statt des Textes zeigen, was die letzte Generierung geändert hat</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>Or&amp;dner öffnen</translation>
    </message>
    <message>
        <source>Open the folder</source>
        <translation>Den Ordner öffnen</translation>
    </message>
    <message>
        <source>Show the files in the file manager</source>
        <translation>Die Dateien in der Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>Choose an instance to see its files.</source>
        <translation>Eine Instanz wählen, um ihre Dateien zu sehen.</translation>
    </message>
    <message>
        <source>Nothing is generated for %1 yet (F8).</source>
        <translation>Für %1 ist noch nichts generiert (F8).</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The first %1 MB of %2 MB</source>
        <translation>Die ersten %1 MB von %2 MB</translation>
    </message>
    <message>
        <source>No generation has changed this file yet.</source>
        <translation>Noch keine Generierung hat diese Datei geändert.</translation>
    </message>
    <message>
        <source>− before, + now</source>
        <translation>− zuvor, + jetzt</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Kein Unterschied</translation>
    </message>
</context>
<context>
    <name>Window::InstanceModel</name>
    <message>
        <source>%1 G</source>
        <translation>%1 G</translation>
    </message>
    <message>
        <source>TX %1 G, RX %2 G</source>
        <translation>TX %1 G, RX %2 G</translation>
    </message>
    <message>
        <source>TX %1 G</source>
        <translation>TX %1 G</translation>
    </message>
    <message>
        <source>RX %1 G</source>
        <translation>RX %1 G</translation>
    </message>
    <message>
        <source>Instance</source>
        <translation>Instanz</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Lanes</source>
        <translation>Lanes</translation>
    </message>
    <message>
        <source>PLL</source>
        <translation>PLL</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>Leitungsrate</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>Window::InstancePane</name>
    <message>
        <source>Filter the instances</source>
        <translation>Die Instanzen filtern</translation>
    </message>
    <message>
        <source>Show only instances with this text in a column</source>
        <translation>Nur Instanzen mit diesem Text in einer Spalte zeigen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Instances of the project</source>
        <translation>Instanzen des Projekts</translation>
    </message>
    <message>
        <source>This project has no instances yet.
Choose an IP in the catalogue and press “Create instance” (Ctrl+I).</source>
        <translation>Dieses Projekt hat noch keine Instanzen.
Im Katalog eine IP wählen und „Instanz anlegen“ drücken (Strg+I).</translation>
    </message>
    <message>
        <source>Instances</source>
        <translation>Instanzen</translation>
    </message>
</context>
<context>
    <name>Window::LogPane</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>What was done, with the command lines that do the same</source>
        <translation>Was getan wurde, mit den Kommandozeilen, die dasselbe tun</translation>
    </message>
    <message>
        <source>What you do in the window stands here as command lines.</source>
        <translation>Was im Fenster getan wird, steht hier als Kommandozeilen.</translation>
    </message>
</context>
<context>
    <name>Window::MainWindow</name>
    <message>
        <source>IP generator</source>
        <translation>IP-Generator</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>Views of the project</source>
        <translation>Ansichten des Projekts</translation>
    </message>
    <message>
        <source>Quad map</source>
        <translation>Quad-Plan</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressourcen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Plug-ins that could not be loaded: %1. The catalogue says why.</source>
        <translation>Nicht ladbare Plug-ins: %1. Der Katalog sagt, warum.</translation>
    </message>
    <message>
        <source>No IP plug-in was found. Install one, or start with --plugin-dir DIR.</source>
        <translation>Kein IP-Plug-in gefunden. Bitte eines installieren oder mit --plugin-dir DIR starten.</translation>
    </message>
    <message>
        <source>%1 — IP generator</source>
        <translation>%1 — IP-Generator</translation>
    </message>
    <message>
        <source>This project is open in %1 too. Both see each other&apos;s changes; the same instance changed in both is refused, not overwritten.</source>
        <translation>Dieses Projekt ist auch in %1 geöffnet. Beide sehen die Änderungen des anderen; dieselbe in beiden geänderte Instanz wird abgelehnt, nicht überschrieben.</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Instances: %1, selected: %2</source>
        <translation>Instanzen: %1, ausgewählt: %2</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Undo the last change of the project</source>
        <translation>Die letzte Änderung des Projekts rückgängig machen</translation>
    </message>
    <message>
        <source>R&amp;edo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Do the undone change again</source>
        <translation>Die rückgängig gemachte Änderung wiederholen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Das Fenster schließen</translation>
    </message>
    <message>
        <source>Main toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Recen&amp;t projects</source>
        <translation>Zule&amp;tzt geöffnet</translation>
    </message>
    <message>
        <source>Show this view of the project</source>
        <translation>Diese Ansicht des Projekts zeigen</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>Colours of the window; System takes effect at the next start</source>
        <translation>Farben des Fensters; „System“ wirkt ab dem nächsten Start</translation>
    </message>
    <message>
        <source>Open a project folder</source>
        <translation>Einen Projektordner öffnen</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>Choose an IP in the catalogue first.</source>
        <translation>Bitte zuerst im Katalog eine IP wählen.</translation>
    </message>
    <message>
        <source>there is an instance of this name already</source>
        <translation>eine Instanz dieses Namens gibt es schon</translation>
    </message>
    <message>
        <source>New instance</source>
        <translation>Neue Instanz</translation>
    </message>
    <message>
        <source>Name of the instance:</source>
        <translation>Name der Instanz:</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Name of the copy of %1:</source>
        <translation>Name der Kopie von %1:</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>New name of %1:</source>
        <translation>Neuer Name von %1:</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>%1 wird geprüft</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Passed the check: %1</source>
        <translation>Prüfung bestanden: %1</translation>
    </message>
    <message>
        <source>Failed the check: %1 of %2. The state&apos;s tooltip says why.</source>
        <translation>Prüfung nicht bestanden: %1 von %2. Der Hinweis am Zustand sagt, warum.</translation>
    </message>
    <message>
        <source>Generating</source>
        <translation>Generierung</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Generated: %1</source>
        <translation>Generiert: %1</translation>
    </message>
    <message>
        <source>Cancelled. Generated: %1 of %2.</source>
        <translation>Abgebrochen. Generiert: %1 von %2.</translation>
    </message>
    <message>
        <source>Netlist generation of %1</source>
        <translation>Netzliste von %1 wird erzeugt</translation>
    </message>
    <message>
        <source>Generated with netlist.</source>
        <translation>Mit Netzliste generiert.</translation>
    </message>
    <message>
        <source>Cancelled; what stood before is kept.</source>
        <translation>Abgebrochen; was vorher da war, bleibt.</translation>
    </message>
    <message>
        <source>Removed %1. Ctrl+Z brings it back.</source>
        <translation>%1 entfernt. Strg+Z holt es zurück.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopiert: %1</translation>
    </message>
    <message>
        <source>Nothing is generated yet.</source>
        <translation>Noch ist nichts generiert.</translation>
    </message>
    <message>
        <source>No file manager answered. The path is on the clipboard: %1</source>
        <translation>Keine Dateiverwaltung antwortet. Der Pfad ist in der Zwischenablage: %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>&lt;h3&gt;IP generator %1&lt;/h3&gt;&lt;p&gt;Configures and generates FPGA IPs from plug-ins. The same program on the command line: &lt;tt&gt;ipgen --help&lt;/tt&gt;.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;IP-Generator %1&lt;/h3&gt;&lt;p&gt;Konfiguriert und generiert FPGA-IPs aus Plug-ins. Dasselbe Programm auf der Kommandozeile: &lt;tt&gt;ipgen --help&lt;/tt&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Folder of the project</source>
        <translation>Ordner des Projekts</translation>
    </message>
    <message>
        <source>About the device</source>
        <translation>Zum Baustein</translation>
    </message>
    <message>
        <source>%1 is a copy of %2. It holds nothing and is not generated until you configure it (Ctrl+E).</source>
        <translation>%1 ist eine Kopie von %2. Sie belegt nichts und wird nicht generiert, bis sie konfiguriert ist (Strg+E).</translation>
    </message>
    <message>
        <source>For paper (*.pdf)</source>
        <translation>Für Papier (*.pdf)</translation>
    </message>
    <message>
        <source>Print or export the quad map</source>
        <translation>Den Quad-Plan drucken oder exportieren</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Zeichnung (*.svg)</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>Bild (*.png)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
</context>
<context>
    <name>Window::MapPane</name>
    <message>
        <source>Quad map</source>
        <translation>Quad-Plan</translation>
    </message>
    <message>
        <source>Free resources and conflicts</source>
        <translation>Freie Ressourcen und Konflikte</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Free: %1 lanes, %2 quad PLLs, %3 multiplexers, %4 reference pins.</source>
        <translation>Frei: %1 Lanes, %2 Quad-PLLs, %3 Multiplexer, %4 Referenzpins.</translation>
    </message>
    <message>
        <source>⚠ Conflicts: %1</source>
        <translation>⚠ Konflikte: %1</translation>
    </message>
    <message>
        <source>%1: transceivers of %2</source>
        <translation>%1: Transceiver von %2</translation>
    </message>
</context>
<context>
    <name>Window::MapView</name>
    <message>
        <source>Quad map</source>
        <translation>Quad-Plan</translation>
    </message>
    <message>
        <source>A drawing; the table of resources says the same</source>
        <translation>Eine Zeichnung; die Tabelle der Ressourcen sagt dasselbe</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>Quad %1</source>
        <translation>Quad %1</translation>
    </message>
    <message>
        <source>
Conflict: %1</source>
        <translation>
Konflikt: %1</translation>
    </message>
</context>
<context>
    <name>Window::NewProjectDialog</name>
    <message>
        <source>class %1, quads: %2, lanes: %3, clock inputs: %4</source>
        <translation>Klasse %1, Quads: %2, Lanes: %3, Takteingänge: %4</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Project folder</source>
        <translation>Projektordner</translation>
    </message>
    <message>
        <source>The folder is made when it is missing; the project file goes into it</source>
        <translation>Fehlt der Ordner, wird er angelegt; die Projektdatei kommt hinein</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>The device that the project is for</source>
        <translation>Der Baustein, für den das Projekt ist</translation>
    </message>
    <message>
        <source>/project%1</source>
        <translation>/projekt%1</translation>
    </message>
    <message>
        <source>&amp;Browse …</source>
        <translation>D&amp;urchsuchen …</translation>
    </message>
    <message>
        <source>Browse for the project folder</source>
        <translation>Den Projektordner suchen</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Den Ordner wählen</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Baustein</translation>
    </message>
    <message>
        <source>Make the project</source>
        <translation>Projekt anlegen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Give the project a folder.</source>
        <translation>Bitte dem Projekt einen Ordner geben.</translation>
    </message>
    <message>
        <source>There is a project in this folder already; open it instead.</source>
        <translation>In diesem Ordner ist schon ein Projekt; bitte öffnen.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Das ist eine Datei, kein Ordner.</translation>
    </message>
    <message>
        <source>The device database is empty.</source>
        <translation>Die Bausteindatenbank ist leer.</translation>
    </message>
</context>
<context>
    <name>Window::NoticeBar</name>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Den Hinweis schließen</translation>
    </message>
    <message>
        <source>Close this notice (Esc)</source>
        <translation>Diesen Hinweis schließen (Esc)</translation>
    </message>
</context>
<context>
    <name>Window::ResourceTable</name>
    <message>
        <source>Resources of the device</source>
        <translation>Ressourcen des Bausteins</translation>
    </message>
    <message>
        <source>Enter opens the instance that holds the resource</source>
        <translation>Die Eingabetaste öffnet die Instanz, die die Ressource belegt</translation>
    </message>
    <message>
        <source>Resource</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Held by</source>
        <translation>Belegt von</translation>
    </message>
    <message>
        <source>Conflict</source>
        <translation>Konflikt</translation>
    </message>
</context>
<context>
    <name>Window::SummaryPane</name>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>One instance chosen: what it runs at; two: what differs between them</source>
        <translation>Eine Instanz gewählt: womit sie läuft; zwei: worin sie sich unterscheiden</translation>
    </message>
    <message>
        <source>Choose one instance to see what it runs at, or two to compare.</source>
        <translation>Eine Instanz wählen, um zu sehen, womit sie läuft, oder zwei zum Vergleich.</translation>
    </message>
    <message>
        <source>%1 (-) and %2 (+)

</source>
        <translation>%1 (-) und %2 (+)

</translation>
    </message>
</context>
<context>
    <name>Window::ToolRun</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>%1
%2 s</source>
        <translation>%1
%2 s</translation>
    </message>
</context>
<context>
    <name>Window::WelcomePage</name>
    <message>
        <source>&amp;New project …</source>
        <translation>&amp;Neues Projekt …</translation>
    </message>
    <message>
        <source>&amp;Open project …</source>
        <translation>Projekt ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Recent projects</source>
        <translation>&amp;Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Make a project for a device (Ctrl+N)</source>
        <translation>Ein Projekt für einen Baustein anlegen (Strg+N)</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Open a project folder (Ctrl+O)</source>
        <translation>Einen Projektordner öffnen (Strg+O)</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>Enter opens the project, Delete takes it off the list</source>
        <translation>Die Eingabetaste öffnet das Projekt, Entf nimmt es von der Liste</translation>
    </message>
    <message>
        <source>IP generator</source>
        <translation>IP-Generator</translation>
    </message>
    <message>
        <source>&lt;ol&gt;&lt;li&gt;Make a project for your device, or open one.&lt;/li&gt;&lt;li&gt;Find an IP by part of its name and create an instance.&lt;/li&gt;&lt;li&gt;See on the quad map what each instance holds.&lt;/li&gt;&lt;li&gt;Generate, and read the files.&lt;/li&gt;&lt;/ol&gt;</source>
        <translation>&lt;ol&gt;&lt;li&gt;Ein Projekt für den Baustein anlegen oder eines öffnen.&lt;/li&gt;&lt;li&gt;Eine IP an einem Teil ihres Namens finden und eine Instanz anlegen.&lt;/li&gt;&lt;li&gt;Auf dem Quad-Plan sehen, was jede Instanz belegt.&lt;/li&gt;&lt;li&gt;Generieren und die Dateien lesen.&lt;/li&gt;&lt;/ol&gt;</translation>
    </message>
    <message>
        <source>Take off the list</source>
        <translation>Von der Liste nehmen</translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation>%1 (nicht gefunden)</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>There is no project in %1 any more</source>
        <translation>In %1 ist kein Projekt mehr</translation>
    </message>
    <message>
        <source>Take the project off this list; its files stay</source>
        <translation>Das Projekt von dieser Liste nehmen; seine Dateien bleiben</translation>
    </message>
</context>
<context>
    <name>Window::Workbench</name>
    <message>
        <source>rename %1</source>
        <translation>%1 umbenennen</translation>
    </message>
    <message>
        <source>the IP threw an exception: %1</source>
        <translation>die IP warf eine Ausnahme: %1</translation>
    </message>
    <message>
        <source>there is an instance of this name already</source>
        <translation>eine Instanz dieses Namens gibt es schon</translation>
    </message>
    <message>
        <source>create %1</source>
        <translation>%1 anlegen</translation>
    </message>
    <message>
        <source>configure %1</source>
        <translation>%1 konfigurieren</translation>
    </message>
    <message>
        <source>duplicate %1</source>
        <translation>%1 duplizieren</translation>
    </message>
    <message>
        <source>remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>remove instances (%1)</source>
        <translation>Instanzen entfernen (%1)</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>%1 writes to the same folder, &quot;%2&quot;; nothing was written. Give one of them another file name.</source>
        <translation>%1 schreibt in denselben Ordner, „%2“; nichts wurde geschrieben. Bitte einer der beiden einen anderen Dateinamen geben.</translation>
    </message>
</context>
</TS>
