<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActionRecording</name>
    <message>
        <source>Common Parameters</source>
        <translation>Allgemeine Angaben</translation>
    </message>
    <message>
        <source>Body Measurement of %1</source>
        <translation>Körpermessung vom %1</translation>
    </message>
    <message>
        <source>Note of %1</source>
        <translation>Notiz vom %1</translation>
    </message>
    <message>
        <source>a Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Changing %1</source>
        <translation>%1 ändern</translation>
    </message>
    <message>
        <source>Deleting %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>BackupError</name>
    <message>
        <source>There is no room for a copy of it in the folder for temporary files, on which it is tried.</source>
        <translation>Im Ordner für temporäre Dateien ist kein Platz für eine Kopie, an der sie geprüft wird.</translation>
    </message>
    <message>
        <source>The file is missing or empty.</source>
        <translation>Die Datei fehlt oder ist leer.</translation>
    </message>
    <message>
        <source>The file can&apos;t be read.</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file %1 beside it was left by a store that was cut short, but not in this file. Copy the file alone into another folder and restore it from there.</source>
        <translation>Die Datei %1 daneben gehört zu einem abgebrochenen Speichervorgang, aber nicht zu dieser Datei. Kopieren Sie die Datei allein in einen anderen Ordner und stellen Sie sie von dort wieder her.</translation>
    </message>
    <message>
        <source>It is damaged: a store was cut short in it and can&apos;t be undone.</source>
        <translation>Sie ist beschädigt: Ein Speichervorgang wurde darin abgebrochen und kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>It is no journal of this program, has another password, or is damaged.</source>
        <translation>Sie ist kein Tagebuch dieses Programms, hat ein anderes Passwort oder ist beschädigt.</translation>
    </message>
    <message>
        <source>It is no journal of this program: a table or a column is missing.</source>
        <translation>Sie ist kein Tagebuch dieses Programms: Eine Tabelle oder Spalte fehlt.</translation>
    </message>
    <message>
        <source>It was written by a newer program: it has tables or columns that are unknown here.</source>
        <translation>Sie wurde von einem neueren Programm geschrieben: Sie hat Tabellen oder Spalten, die hier unbekannt sind.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Sie ist beschädigt.</translation>
    </message>
    <message>
        <source>It is not whole: entries in it refer to records that are missing.</source>
        <translation>Sie ist nicht vollständig: Einträge darin verweisen auf Datensätze, die fehlen.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be written.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The copy is not whole, since the journal&apos;s file is damaged. The help page &quot;Your data&quot; says how to go on.</source>
        <translation>Die Kopie ist nicht vollständig, weil die Datei des Tagebuchs beschädigt ist. Die Hilfeseite „Ihre Daten“ sagt, wie es weitergeht.</translation>
    </message>
    <message>
        <source>The copy does not hold what the journal holds.</source>
        <translation>Die Kopie enthält nicht, was das Tagebuch enthält.</translation>
    </message>
    <message>
        <source>The file Corvana.ini can&apos;t be copied.</source>
        <translation>Die Datei Corvana.ini kann nicht kopiert werden.</translation>
    </message>
</context>
<context>
    <name>BackupPlaceDialog</name>
    <message>
        <source>Back Up into Folder</source>
        <translation>In einen Ordner sichern</translation>
    </message>
    <message>
        <source>Backing up the journal…</source>
        <translation>Das Tagebuch wird gesichert…</translation>
    </message>
    <message>
        <source>The journal can&apos;t be backed up</source>
        <translation>Das Tagebuch kann nicht gesichert werden</translation>
    </message>
    <message>
        <source>The journal is backed up, and the copy has been checked. It is in the folder %1</source>
        <translation>Das Tagebuch ist gesichert und die Kopie geprüft. Sie liegt im Ordner %1</translation>
    </message>
</context>
<context>
    <name>CheckTexts</name>
    <message>
        <source>Meal categories</source>
        <translation>Speisekategorien</translation>
    </message>
    <message>
        <source>The name</source>
        <translation>Der Name</translation>
    </message>
    <message>
        <source>Meals</source>
        <translation>Speisen</translation>
    </message>
    <message>
        <source>The unit</source>
        <translation>Die Einheit</translation>
    </message>
    <message>
        <source>The default quantity</source>
        <translation>Die Standardmenge</translation>
    </message>
    <message>
        <source>The increment</source>
        <translation>Die Schrittweite</translation>
    </message>
    <message>
        <source>The number of calories</source>
        <translation>Die Kalorienzahl</translation>
    </message>
    <message>
        <source>The amount of fat</source>
        <translation>Die Fettmenge</translation>
    </message>
    <message>
        <source>The amount of carbohydrate</source>
        <translation>Die Menge der Kohlenhydrate</translation>
    </message>
    <message>
        <source>The amount of protein</source>
        <translation>Die Eiweißmenge</translation>
    </message>
    <message>
        <source>The number of calories from fat</source>
        <translation>Die Kalorienzahl aus Fett</translation>
    </message>
    <message>
        <source>The number of calories from carbohydrate</source>
        <translation>Die Kalorienzahl aus Kohlenhydraten</translation>
    </message>
    <message>
        <source>The number of calories from protein</source>
        <translation>Die Kalorienzahl aus Eiweiß</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Aktivitäten</translation>
    </message>
    <message>
        <source>The number of calories burnt</source>
        <translation>Der Kalorienverbrauch</translation>
    </message>
    <message>
        <source>The number of base calories</source>
        <translation>Die Zahl der Grundkalorien</translation>
    </message>
    <message>
        <source>The mark for dependence on weight</source>
        <translation>Das Kennzeichen der Gewichtsabhängigkeit</translation>
    </message>
    <message>
        <source>Meals consumed</source>
        <translation>Verzehrte Speisen</translation>
    </message>
    <message>
        <source>The date</source>
        <translation>Das Datum</translation>
    </message>
    <message>
        <source>The time</source>
        <translation>Die Uhrzeit</translation>
    </message>
    <message>
        <source>The quantity</source>
        <translation>Die Menge</translation>
    </message>
    <message>
        <source>Activities performed</source>
        <translation>Ausgeübte Aktivitäten</translation>
    </message>
    <message>
        <source>The begin</source>
        <translation>Der Beginn</translation>
    </message>
    <message>
        <source>The end</source>
        <translation>Das Ende</translation>
    </message>
    <message>
        <source>Body measurements</source>
        <translation>Körpermessungen</translation>
    </message>
    <message>
        <source>The weight</source>
        <translation>Das Gewicht</translation>
    </message>
    <message>
        <source>The breast measurement</source>
        <translation>Der Brustumfang</translation>
    </message>
    <message>
        <source>The waist measurement</source>
        <translation>Der Taillenumfang</translation>
    </message>
    <message>
        <source>The hips measurement</source>
        <translation>Der Hüftumfang</translation>
    </message>
    <message>
        <source>The unit system</source>
        <translation>Das Maßsystem</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>The first day</source>
        <translation>Der erste Tag</translation>
    </message>
    <message>
        <source>The last day</source>
        <translation>Der letzte Tag</translation>
    </message>
    <message>
        <source>The text</source>
        <translation>Der Text</translation>
    </message>
    <message>
        <source>A counter of identifiers</source>
        <translation>Ein Zähler der Kennnummern</translation>
    </message>
    <message>
        <source>Common parameters</source>
        <translation>Allgemeine Angaben</translation>
    </message>
    <message>
        <source>The background burn</source>
        <translation>Der Grundverbrauch</translation>
    </message>
    <message>
        <source>The day of the installation</source>
        <translation>Der Tag der Installation</translation>
    </message>
    <message>
        <source>binary data</source>
        <translation>Binärdaten</translation>
    </message>
    <message>
        <source>%1 is no text: %2.</source>
        <translation>%1 ist kein Text: %2.</translation>
    </message>
    <message>
        <source>%1 is neither M nor I: %2.</source>
        <translation>%1 ist weder M noch I: %2.</translation>
    </message>
    <message>
        <source>%1 is no day: %2.</source>
        <translation>%1 ist kein Tag: %2.</translation>
    </message>
    <message>
        <source>%1 is no number: %2.</source>
        <translation>%1 ist keine Zahl: %2.</translation>
    </message>
    <message>
        <source>%1 is outside the day: %2 of a day.</source>
        <translation>%1 liegt außerhalb des Tages: %2 eines Tages.</translation>
    </message>
    <message>
        <source>%1 is negative: %2.</source>
        <translation>%1 ist negativ: %2.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2.</source>
        <translation>%1 liegt außerhalb des Wertebereichs: %2.</translation>
    </message>
    <message>
        <source>The file</source>
        <translation>Die Datei</translation>
    </message>
    <message>
        <source>the pages and indexes of the file</source>
        <translation>die Seiten und Indizes der Datei</translation>
    </message>
    <message>
        <source>the references from record to record</source>
        <translation>die Verweise von Datensatz zu Datensatz</translation>
    </message>
    <message>
        <source>identifiers, names, numbers, dates and times of %1 records</source>
        <translation>Kennnummern, Namen, Zahlen, Daten und Uhrzeiten von %1 Datensätzen</translation>
    </message>
    <message>
        <source>notes that share days, days with several measurements, activities that don&apos;t end after they begin</source>
        <translation>Notizen mit gemeinsamen Tagen, Tage mit mehreren Messungen, Aktivitäten, die nicht nach ihrem Beginn enden</translation>
    </message>
    <message>
        <source>the counters of identifiers</source>
        <translation>die Zähler der Kennnummern</translation>
    </message>
    <message>
        <source>A page of the file is damaged. This could not be checked to the end.</source>
        <translation>Eine Seite der Datei ist beschädigt. Dies konnte nicht zu Ende geprüft werden.</translation>
    </message>
    <message>
        <source>There are more findings like these: %1.</source>
        <translation>Es gibt weitere Befunde dieser Art: %1.</translation>
    </message>
    <message>
        <source>The file is damaged: %1</source>
        <translation>Die Datei ist beschädigt: %1</translation>
    </message>
    <message>
        <source>Its meal category does not exist.</source>
        <translation>Die Speisekategorie gibt es nicht.</translation>
    </message>
    <message>
        <source>Its meal does not exist.</source>
        <translation>Die Speise gibt es nicht.</translation>
    </message>
    <message>
        <source>Its activity does not exist.</source>
        <translation>Die Aktivität gibt es nicht.</translation>
    </message>
    <message>
        <source>record %1</source>
        <translation>Datensatz %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Its identifier is out of range: %1.</source>
        <translation>Die Kennnummer liegt außerhalb des Wertebereichs: %1.</translation>
    </message>
    <message>
        <source>It does not end after it begins.</source>
        <translation>Die Aktivität endet nicht nach ihrem Beginn.</translation>
    </message>
    <message>
        <source>There are several measurements on this day.</source>
        <translation>An diesem Tag gibt es mehrere Messungen.</translation>
    </message>
    <message>
        <source>It ends before it begins.</source>
        <translation>Die Notiz endet, bevor sie beginnt.</translation>
    </message>
    <message>
        <source>It shares days with a note before it.</source>
        <translation>Die Notiz hat Tage mit einer früheren gemeinsam.</translation>
    </message>
    <message>
        <source>The counter %1 is at %2, but there is a record %3: new records may be refused.</source>
        <translation>Der Zähler %1 steht auf %2, es gibt aber einen Datensatz %3: Neue Datensätze werden möglicherweise abgelehnt.</translation>
    </message>
</context>
<context>
    <name>Components</name>
    <message>
        <source>Copyright: The Qt Company Ltd. and other contributors</source>
        <translation>Copyright: The Qt Company Ltd. und andere Beitragende</translation>
    </message>
    <message>
        <source>public domain</source>
        <translation>gemeinfrei</translation>
    </message>
</context>
<context>
    <name>CsvTexts</name>
    <message>
        <source>A quotation mark is not closed, or stands within a cell: the cell has to be quoted and the mark doubled.</source>
        <translation>Ein Anführungszeichen ist nicht geschlossen oder steht innerhalb einer Zelle: Die Zelle muss in Anführungszeichen stehen und das Zeichen verdoppelt sein.</translation>
    </message>
</context>
<context>
    <name>DayDialog</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Datum</translation>
    </message>
</context>
<context>
    <name>DayList</name>
    <message>
        <source>The day can&apos;t be shown</source>
        <translation>Der Tag kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>   Total (%1 items)</source>
        <translation>   Summe (%1 Einträge)</translation>
    </message>
</context>
<context>
    <name>DayView</name>
    <message>
        <source>Daily Chart</source>
        <translation>Tagesdiagramm</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Vor</translation>
    </message>
    <message>
        <source>H&amp;elp</source>
        <translation>Hil&amp;fe</translation>
    </message>
    <message>
        <source>Current date</source>
        <translation>Angezeigtes Datum</translation>
    </message>
    <message>
        <source>The journal contains sample data</source>
        <translation>Das Tagebuch enthält Beispieldaten</translation>
    </message>
    <message>
        <source>De&amp;lete It</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete sample data</source>
        <translation>Beispieldaten löschen</translation>
    </message>
</context>
<context>
    <name>DaysTable</name>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Values in brackets were not measured. They are filled in from the measurements before and after.</source>
        <translation>Werte in Klammern wurden nicht gemessen. Sie sind aus den Messungen davor und danach ergänzt.</translation>
    </message>
</context>
<context>
    <name>EntryCopying</name>
    <message numerus="yes">
        <source>Copying %n Entries</source>
        <translation>
            <numerusform>%n Eintrag kopieren</numerusform>
            <numerusform>%n Einträge kopieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries copied to %1</source>
        <translation>
            <numerusform>%n Eintrag auf den %1 kopiert</numerusform>
            <numerusform>%n Einträge auf den %1 kopiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>%1 kopieren</translation>
    </message>
    <message>
        <source>%1 copied to %2</source>
        <translation>%1 auf den %2 kopiert</translation>
    </message>
    <message>
        <source>Another program has changed an entry meanwhile.</source>
        <translation>Ein anderes Programm hat inzwischen einen Eintrag geändert.</translation>
    </message>
    <message>
        <source>The copy can&apos;t be stored</source>
        <translation>Die Kopie kann nicht gespeichert werden</translation>
    </message>
</context>
<context>
    <name>EntryMenu</name>
    <message>
        <source>&amp;Show What Was Eaten</source>
        <translation>Speise an&amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Show What Was Done</source>
        <translation>Aktivität an&amp;zeigen</translation>
    </message>
    <message>
        <source>Copy to &amp;Today</source>
        <translation>Auf &amp;heute kopieren</translation>
    </message>
    <message>
        <source>Copy t&amp;o…</source>
        <translation>&amp;Kopieren auf…</translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message>
        <source>The new folder can&apos;t be given its name.</source>
        <translation>Der neue Ordner kann nicht umbenannt werden.</translation>
    </message>
</context>
<context>
    <name>FieldMessages</name>
    <message>
        <source>The %1 should be specified</source>
        <translation>„%1“ muss angegeben werden</translation>
    </message>
    <message>
        <source>The %1 field contains illegal data</source>
        <translation>Das Feld „%1“ enthält ungültige Angaben</translation>
    </message>
</context>
<context>
    <name>FormDialog</name>
    <message>
        <source>New record</source>
        <translation>Neuer Datensatz</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>HelpButton</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>HelpContents</name>
    <message>
        <source>Help contents</source>
        <translation>Inhalt der Hilfe</translation>
    </message>
</context>
<context>
    <name>HelpResults</name>
    <message>
        <source>Pages found</source>
        <translation>Gefundene Seiten</translation>
    </message>
</context>
<context>
    <name>HelpText</name>
    <message>
        <source>Help text</source>
        <translation>Hilfetext</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Bild: %1</translation>
    </message>
</context>
<context>
    <name>HelpViewer</name>
    <message>
        <source>Can&apos;t open the help file Corvana.hlp. Please make sure it is present in the program folder.</source>
        <translation>Die Hilfedatei Corvana.hlp kann nicht geöffnet werden. Bitte stellen Sie sicher, dass sie im Programmordner liegt.</translation>
    </message>
    <message>
        <source>The help file Corvana.hlp is damaged. Please put back the one that came with the program.</source>
        <translation>Die Hilfedatei Corvana.hlp ist beschädigt. Bitte ersetzen Sie sie durch die Datei, die mit dem Programm geliefert wurde.</translation>
    </message>
    <message>
        <source>Corvana Help</source>
        <translation>Corvana-Hilfe</translation>
    </message>
    <message>
        <source>Con&amp;tents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>S&amp;uchen:</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Words to find in all pages of the help</source>
        <translation>Wörter, die auf allen Seiten der Hilfe gesucht werden</translation>
    </message>
    <message>
        <source>&amp;Previous Hit</source>
        <translation>&amp;Voriger Treffer</translation>
    </message>
    <message>
        <source>&amp;Next Hit</source>
        <translation>&amp;Nächster Treffer</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>V&amp;orwärts</translation>
    </message>
    <message>
        <source>No page holds &quot;%1&quot;.</source>
        <translation>Auf keiner Seite steht „%1“.</translation>
    </message>
    <message>
        <source>Pages found: %1</source>
        <translation>Gefundene Seiten: %1</translation>
    </message>
    <message>
        <source>Hit %1 of %2 on this page</source>
        <translation>Treffer %1 von %2 auf dieser Seite</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ImportColumns</name>
    <message>
        <source>Of the journal</source>
        <translation>Im Tagebuch</translation>
    </message>
    <message>
        <source>Column of the file</source>
        <translation>Spalte der Datei</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Written as</source>
        <translation>Schreibweise</translation>
    </message>
    <message>
        <source>Where it is empty</source>
        <translation>Wo sie leer ist</translation>
    </message>
    <message>
        <source>First cells</source>
        <translation>Erste Zellen</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Unit of %1</source>
        <translation>Einheit von %1</translation>
    </message>
    <message>
        <source>as stored</source>
        <translation>wie gespeichert</translation>
    </message>
    <message>
        <source>Form of %1</source>
        <translation>Schreibweise von %1</translation>
    </message>
    <message>
        <source>year, month, day</source>
        <translation>Jahr, Monat, Tag</translation>
    </message>
    <message>
        <source>day, month, year</source>
        <translation>Tag, Monat, Jahr</translation>
    </message>
    <message>
        <source>month, day, year</source>
        <translation>Monat, Tag, Jahr</translation>
    </message>
    <message>
        <source>%1 where it is empty</source>
        <translation>%1, wo es leer ist</translation>
    </message>
</context>
<context>
    <name>ImportFieldTexts</name>
    <message>
        <source>Meal categories</source>
        <translation>Speisekategorien</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Meals</source>
        <translation>Speisen</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Imported</source>
        <translation>Importiert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Default quantity</source>
        <translation>Standardmenge</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>Schrittweite</translation>
    </message>
    <message>
        <source>Calories</source>
        <translation>Kalorien</translation>
    </message>
    <message>
        <source>Fat</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Carbohydrate</source>
        <translation>Kohlenhydrate</translation>
    </message>
    <message>
        <source>Protein</source>
        <translation>Eiweiß</translation>
    </message>
    <message>
        <source>Fat by calories</source>
        <translation>Fett nach Kalorien</translation>
    </message>
    <message>
        <source>Carbohydrate by calories</source>
        <translation>Kohlenhydrate nach Kalorien</translation>
    </message>
    <message>
        <source>Protein by calories</source>
        <translation>Eiweiß nach Kalorien</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Aktivitäten</translation>
    </message>
    <message>
        <source>Base calories</source>
        <translation>Grundkalorien</translation>
    </message>
    <message>
        <source>Weight dependent</source>
        <translation>Gewichtsabhängig</translation>
    </message>
    <message>
        <source>Meals consumed</source>
        <translation>Verzehrte Speisen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Meal</source>
        <translation>Speise</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Activities performed</source>
        <translation>Ausgeübte Aktivitäten</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Aktivität</translation>
    </message>
    <message>
        <source>Body measurements</source>
        <translation>Körpermessungen</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Unit of the weight</source>
        <translation>Einheit des Gewichts</translation>
    </message>
    <message>
        <source>Breast</source>
        <translation>Brust</translation>
    </message>
    <message>
        <source>Waist</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Hips</source>
        <translation>Hüfte</translation>
    </message>
    <message>
        <source>Unit of the girths</source>
        <translation>Einheit der Umfänge</translation>
    </message>
    <message>
        <source>Unit system</source>
        <translation>Maßsystem</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Date from</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Date to</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>ImportFileTexts</name>
    <message>
        <source>Its first line has to name the columns.</source>
        <translation>Die erste Zeile muss die Spalten benennen.</translation>
    </message>
</context>
<context>
    <name>ImportPlanTexts</name>
    <message>
        <source>It has %1 cells, and the first line has %2.</source>
        <translation>Sie hat %1 Zellen, die erste Zeile hat %2.</translation>
    </message>
    <message>
        <source>A number is outside the range of what can be stored.</source>
        <translation>Eine Zahl liegt außerhalb dessen, was gespeichert werden kann.</translation>
    </message>
    <message>
        <source>%1: the journal has room for %2 more records, and the files hold %3.</source>
        <translation>%1: Das Tagebuch hat Platz für %2 weitere Datensätze, die Dateien enthalten %3.</translation>
    </message>
</context>
<context>
    <name>ImportRecordTexts</name>
    <message>
        <source>The unit is unknown: %1.</source>
        <translation>Die Einheit ist unbekannt: %1.</translation>
    </message>
    <message>
        <source>The end is not after the begin.</source>
        <translation>Das Ende liegt nicht nach dem Beginn.</translation>
    </message>
    <message>
        <source>There is no meal of this name: %1.</source>
        <translation>Es gibt keine Speise dieses Namens: %1.</translation>
    </message>
    <message>
        <source>There is no activity of this name: %1.</source>
        <translation>Es gibt keine Aktivität dieses Namens: %1.</translation>
    </message>
    <message>
        <source>The unit system is neither M nor I: %1.</source>
        <translation>Das Maßsystem ist weder M noch I: %1.</translation>
    </message>
    <message>
        <source>Nothing was measured.</source>
        <translation>Es wurde nichts gemessen.</translation>
    </message>
    <message>
        <source>Line %1 has a measurement of the same day.</source>
        <translation>Zeile %1 hat eine Messung desselben Tages.</translation>
    </message>
    <message>
        <source>It ends before it begins.</source>
        <translation>Die Notiz endet, bevor sie beginnt.</translation>
    </message>
    <message>
        <source>It shares days with the note on line %1.</source>
        <translation>Die Notiz hat Tage mit der in Zeile %1 gemeinsam.</translation>
    </message>
    <message>
        <source>It shares days with a note of the journal: %1.</source>
        <translation>Die Notiz hat Tage mit einer Notiz des Tagebuchs gemeinsam: %1.</translation>
    </message>
</context>
<context>
    <name>ImportRowTexts</name>
    <message>
        <source>%1 is empty.</source>
        <translation>„%1“ ist leer.</translation>
    </message>
    <message>
        <source>%1 is longer than 32,767 letters.</source>
        <translation>„%1“ ist länger als 32.767 Zeichen.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2.</source>
        <translation>„%1“ liegt außerhalb des Wertebereichs: %2.</translation>
    </message>
    <message>
        <source>%1 is no number: %2.</source>
        <translation>„%1“ ist keine Zahl: %2.</translation>
    </message>
    <message>
        <source>%1 is no date: %2.</source>
        <translation>„%1“ ist kein Datum: %2.</translation>
    </message>
    <message>
        <source>%1 is no time: %2.</source>
        <translation>„%1“ ist keine Uhrzeit: %2.</translation>
    </message>
</context>
<context>
    <name>ImportStoreTexts</name>
    <message>
        <source>Another program has changed the journal meanwhile. The numbers shown now are those with its changes: please look at them again.</source>
        <translation>Ein anderes Programm hat das Tagebuch inzwischen geändert. Die jetzt gezeigten Zahlen berücksichtigen diese Änderungen: Bitte sehen Sie sie noch einmal durch.</translation>
    </message>
</context>
<context>
    <name>ImportTextWords</name>
    <message>
        <source>It is no text in UTF-8, UTF-16 or Windows-1252.</source>
        <translation>Sie ist kein Text in UTF-8, UTF-16 oder Windows-1252.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Sie ist leer.</translation>
    </message>
    <message>
        <source>It is larger than 100 MB.</source>
        <translation>Sie ist größer als 100 MB.</translation>
    </message>
</context>
<context>
    <name>InstallationTexts</name>
    <message>
        <source>Corvana.ini can&apos;t be written in the program folder; please make sure that there is room and that you may write there</source>
        <translation>Corvana.ini kann im Programmordner nicht geschrieben werden; bitte stellen Sie sicher, dass dort Platz ist und Sie dort schreiben dürfen</translation>
    </message>
    <message>
        <source>your journal can&apos;t be put into the folder %1; please make sure that there is room and that you may write there</source>
        <translation>Ihr Tagebuch kann nicht im Ordner %1 angelegt werden; bitte stellen Sie sicher, dass dort Platz ist und Sie dort schreiben dürfen</translation>
    </message>
    <message>
        <source>the delivered journal %1 can&apos;t be read; please install the program anew</source>
        <translation>das mitgelieferte Tagebuch %1 kann nicht gelesen werden; bitte installieren Sie das Programm neu</translation>
    </message>
</context>
<context>
    <name>JournalEntryEditor</name>
    <message>
        <source>&amp;Add</source>
        <translation>Eint&amp;ragen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Day: %1</source>
        <translation>Tag: %1</translation>
    </message>
    <message>
        <source>Added: %1, %2, %3</source>
        <translation>Eingetragen: %1, %2, %3</translation>
    </message>
</context>
<context>
    <name>MealCategoryChooser</name>
    <message>
        <source>Meal Category</source>
        <translation>Speisekategorie</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>PasswordBox</name>
    <message>
        <source>&amp;Show what is typed</source>
        <translation>Eingabe an&amp;zeigen</translation>
    </message>
</context>
<context>
    <name>ProgressBox</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>ProgressChart</name>
    <message>
        <source>General progress chart. %1</source>
        <translation>Diagramm des Gesamtverlaufs. %1</translation>
    </message>
</context>
<context>
    <name>QuickAddTexts</name>
    <message>
        <source>weight %1 g</source>
        <translation>Gewicht %1 g</translation>
    </message>
    <message>
        <source>volume %1 ml</source>
        <translation>Volumen %1 ml</translation>
    </message>
    <message>
        <source>%1 kcal</source>
        <translation>%1 kcal</translation>
    </message>
    <message>
        <source>quantity %1</source>
        <translation>Menge %1</translation>
    </message>
    <message>
        <source>%1 min long</source>
        <translation>%1 Minuten lang</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>time %1</source>
        <translation>Uhrzeit %1</translation>
    </message>
    <message>
        <source>can&apos;t be read: %1</source>
        <translation>nicht lesbar: %1</translation>
    </message>
    <message>
        <source>Understood: %1</source>
        <translation>Verstanden: %1</translation>
    </message>
    <message>
        <source>%1 × %2, %3</source>
        <translation>%1 × %2, %3</translation>
    </message>
</context>
<context>
    <name>QuickEntryTexts</name>
    <message>
        <source>%1 has no calories to count by</source>
        <translation>%1 hat keine Kalorien, nach denen gezählt werden könnte</translation>
    </message>
    <message>
        <source>The unit of %1, %2, names no weight</source>
        <translation>Die Einheit von %1, %2, nennt kein Gewicht</translation>
    </message>
    <message>
        <source>The unit of %1, %2, names no volume</source>
        <translation>Die Einheit von %1, %2, nennt kein Volumen</translation>
    </message>
    <message>
        <source>This is too little to be counted</source>
        <translation>Das ist zu wenig, um gezählt zu werden</translation>
    </message>
    <message>
        <source>A meal has one time and takes none</source>
        <translation>Eine Speise hat nur eine Uhrzeit und keine Dauer</translation>
    </message>
    <message>
        <source>It would begin on the day before: say from when to when</source>
        <translation>Der Beginn läge am Tag davor: Geben Sie an, von wann bis wann</translation>
    </message>
    <message>
        <source>Say how long it took, as in &quot;45 min&quot;, or from when to when</source>
        <translation>Geben Sie die Dauer an, etwa „45 min“, oder von wann bis wann</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read</source>
        <translation>„%1“ ist nicht lesbar</translation>
    </message>
    <message>
        <source>There are two quantities</source>
        <translation>Es sind zwei Mengen angegeben</translation>
    </message>
    <message>
        <source>The quantity is too large</source>
        <translation>Die Menge ist zu groß</translation>
    </message>
</context>
<context>
    <name>RecordEditor</name>
    <message>
        <source>%1 - New</source>
        <translation>%1 – Neu</translation>
    </message>
    <message>
        <source>Can&apos;t store this record in database. Please check whether all data are valid</source>
        <translation>Dieser Datensatz kann nicht in der Datenbank gespeichert werden. Bitte prüfen Sie, ob alle Angaben gültig sind</translation>
    </message>
</context>
<context>
    <name>RecordFinder</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Calories</source>
        <translation>Kalorien</translation>
    </message>
    <message>
        <source>What it can be</source>
        <translation>Was gemeint sein kann</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Aktivität</translation>
    </message>
    <message>
        <source>A part of a name and, as you like, a quantity or a weight</source>
        <translation>Ein Teil eines Namens und nach Belieben eine Menge oder ein Gewicht</translation>
    </message>
    <message>
        <source>A part of a name and, as you like, a quantity, a weight, a time, a duration</source>
        <translation>Ein Teil eines Namens und nach Belieben Menge, Gewicht, Uhrzeit oder Dauer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read</source>
        <translation>„%1“ ist nicht lesbar</translation>
    </message>
    <message>
        <source>Type a part of a name</source>
        <translation>Geben Sie einen Teil eines Namens ein</translation>
    </message>
    <message>
        <source>No meal has all of these words in its name</source>
        <translation>Keine Speise hat all diese Wörter im Namen</translation>
    </message>
    <message>
        <source>No activity has all of these words in its name</source>
        <translation>Keine Aktivität hat all diese Wörter im Namen</translation>
    </message>
    <message>
        <source>No meal or activity has all of these words in its name</source>
        <translation>Keine Speise oder Aktivität hat all diese Wörter im Namen</translation>
    </message>
</context>
<context>
    <name>RecordList</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>New record</source>
        <translation>Neuer Datensatz</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation>Änderungen übernehmen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete record</source>
        <translation>Datensatz löschen</translation>
    </message>
    <message>
        <source>Nothing to edit</source>
        <translation>Nichts zu bearbeiten</translation>
    </message>
    <message>
        <source>No record selected</source>
        <translation>Kein Datensatz ausgewählt</translation>
    </message>
    <message>
        <source>The record can&apos;t be opened</source>
        <translation>Der Datensatz kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Nothing to delete</source>
        <translation>Nichts zu löschen</translation>
    </message>
    <message>
        <source>This record can&apos;t be deleted because there are records in the database, which refer to it</source>
        <translation>Dieser Datensatz kann nicht gelöscht werden, weil andere Datensätze in der Datenbank auf ihn verweisen</translation>
    </message>
    <message>
        <source>This record can&apos;t be deleted from database</source>
        <translation>Dieser Datensatz kann nicht aus der Datenbank gelöscht werden</translation>
    </message>
    <message>
        <source>The list can&apos;t be read; it shows what it showed before</source>
        <translation>Die Liste kann nicht gelesen werden; sie zeigt, was sie zuvor gezeigt hat</translation>
    </message>
</context>
<context>
    <name>RefusalTexts</name>
    <message>
        <source>Another program is using the database.</source>
        <translation>Ein anderes Programm verwendet gerade die Datenbank.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Der Datenträger hat einen Fehler gemeldet.</translation>
    </message>
    <message>
        <source>The disk reported an error at the very end: the change may have been stored. Please look before you repeat it.</source>
        <translation>Der Datenträger hat ganz am Ende einen Fehler gemeldet: Die Änderung ist möglicherweise gespeichert. Bitte sehen Sie nach, bevor Sie sie wiederholen.</translation>
    </message>
    <message>
        <source>The database file can&apos;t be written.</source>
        <translation>Die Datenbankdatei kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The database file is damaged. Please keep a copy of it as it is; the help page &quot;Your data&quot; says how to go on.</source>
        <translation>Die Datenbankdatei ist beschädigt. Bitte bewahren Sie eine Kopie davon auf, so wie sie ist; die Hilfeseite „Ihre Daten“ sagt, wie es weitergeht.</translation>
    </message>
    <message>
        <source>The database file is locked with another password.</source>
        <translation>Die Datenbankdatei ist mit einem anderen Passwort gesperrt.</translation>
    </message>
    <message>
        <source>Another program has put another file in the place of the database file, or has changed its password. Please end this program and start it again.</source>
        <translation>Ein anderes Programm hat die Datenbankdatei durch eine andere ersetzt oder ihr Passwort geändert. Bitte beenden Sie dieses Programm und starten Sie es neu.</translation>
    </message>
    <message>
        <source>The record has been deleted meanwhile.</source>
        <translation>Der Datensatz wurde inzwischen gelöscht.</translation>
    </message>
    <message>
        <source>Another program has changed the record since it was opened. Stored once more, your values take the place of the other ones.</source>
        <translation>Ein anderes Programm hat den Datensatz geändert, seit er geöffnet wurde. Wenn Sie noch einmal speichern, treten Ihre Werte an die Stelle der anderen.</translation>
    </message>
    <message>
        <source>Another program has changed the common parameters meanwhile. Please check your values against the units that stand beside them now.</source>
        <translation>Ein anderes Programm hat inzwischen die allgemeinen Angaben geändert. Bitte prüfen Sie Ihre Werte anhand der Einheiten, die jetzt daneben stehen.</translation>
    </message>
    <message>
        <source>A number is outside the range of what can be stored.</source>
        <translation>Eine Zahl liegt außerhalb dessen, was gespeichert werden kann.</translation>
    </message>
    <message>
        <source>Records that can&apos;t be shown, since their identifiers are out of range: %1.</source>
        <translation>Datensätze, die nicht angezeigt werden können, weil ihre Kennnummern außerhalb des Wertebereichs liegen: %1.</translation>
    </message>
    <message>
        <source>There may be more records.</source>
        <translation>Es gibt möglicherweise weitere Datensätze.</translation>
    </message>
    <message>
        <source>The last action could not be carried out</source>
        <translation>Die letzte Aktion konnte nicht ausgeführt werden</translation>
    </message>
</context>
<context>
    <name>RemovalTexts</name>
    <message>
        <source>Are you sure</source>
        <translation>Sind Sie sicher?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected record?</source>
        <translation>Möchten Sie den ausgewählten Datensatz wirklich löschen?</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>The file Corvana.mdb-journal beside it was left by a store that was cut short, but not in this Corvana.mdb: it would spoil it. Have you put back a copy? Then move Corvana.mdb-journal into another folder and start again. Nothing has been changed.</source>
        <translation>Die Datei Corvana.mdb-journal daneben gehört zu einem abgebrochenen Speichervorgang, aber nicht zu dieser Corvana.mdb: Sie würde sie verderben. Haben Sie eine Kopie zurückgelegt? Dann verschieben Sie Corvana.mdb-journal in einen anderen Ordner und starten Sie neu. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>A store was cut short, and the file is damaged: undoing the store with Corvana.mdb-journal does not make it whole. Copy both files into another folder and keep them. Then put back your last copy of Corvana.mdb, or, where you have none, remove Corvana.mdb-journal only, to see what can still be read. Nothing has been changed.</source>
        <translation>Ein Speichervorgang wurde abgebrochen, und die Datei ist beschädigt: Ihn mit Corvana.mdb-journal rückgängig zu machen, stellt sie nicht wieder her. Kopieren Sie beide Dateien in einen anderen Ordner und bewahren Sie sie auf. Legen Sie dann Ihre letzte Kopie von Corvana.mdb zurück oder entfernen Sie, wenn Sie keine haben, nur Corvana.mdb-journal, um zu sehen, was noch lesbar ist. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>A store was cut short and has to be undone, which is tried on a copy first, but there is no room for it in the folder for temporary files. Please make room and start again. Nothing has been changed.</source>
        <translation>Ein Speichervorgang wurde abgebrochen und muss rückgängig gemacht werden. Das wird zuerst an einer Kopie versucht, aber im Ordner für temporäre Dateien ist dafür kein Platz. Bitte schaffen Sie Platz und starten Sie neu. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Severe Error</source>
        <translation>Schwerer Fehler</translation>
    </message>
    <message>
        <source>The program can&apos;t start: %1.</source>
        <translation>Das Programm kann nicht starten: %1.</translation>
    </message>
    <message>
        <source>Your newest backup, of %1, is in the folder %2. To bring it back, move what there is of Corvana.mdb and Corvana.mdb-journal out of the program folder, copy Corvana.mdb from the backup into it, and start again.</source>
        <translation>Ihre neueste Sicherung vom %1 liegt im Ordner %2. Um sie zurückzuholen, verschieben Sie Corvana.mdb und Corvana.mdb-journal, soweit vorhanden, aus dem Programmordner, kopieren Sie Corvana.mdb aus der Sicherung hinein und starten Sie neu.</translation>
    </message>
    <message>
        <source>The password is right, but the file is damaged.</source>
        <translation>Das Passwort ist richtig, aber die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>
The program folder is %1.</source>
        <translation>
Der Programmordner ist %1.</translation>
    </message>
    <message>
        <source>Can&apos;t access database. Please make sure the database file Corvana.mdb is present in the program folder.</source>
        <translation>Kein Zugriff auf die Datenbank. Bitte stellen Sie sicher, dass die Datenbankdatei Corvana.mdb im Programmordner liegt.</translation>
    </message>
    <message>
        <source>The body weight or the background calories are no number that the program can hold</source>
        <translation>Das Körpergewicht oder der Grundverbrauch ist keine Zahl, mit der das Programm umgehen kann</translation>
    </message>
    <message>
        <source>Please set them anew: Settings, Common.</source>
        <translation>Bitte geben Sie beide neu an: Einstellungen, Allgemein.</translation>
    </message>
    <message>
        <source>The file Corvana.ini in the program folder is damaged or can&apos;t be read</source>
        <translation>Die Datei Corvana.ini im Programmordner ist beschädigt oder kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>It remembers that the first start is done, and that is taken for granted now: no date in your journal is changed.</source>
        <translation>In ihr steht, dass der erste Start erfolgt ist. Davon wird jetzt ausgegangen: Kein Datum in Ihrem Tagebuch wird geändert.</translation>
    </message>
    <message>
        <source>Because it is a very first start of this program, you will be prompted now to specify common parameters.</source>
        <translation>Dies ist der allererste Start des Programms. Sie werden jetzt nach einigen allgemeinen Angaben gefragt.</translation>
    </message>
</context>
<context>
    <name>TrellumGraph</name>
    <message>
        <source>Daily calorie chart</source>
        <translation>Kaloriendiagramm des Tages</translation>
    </message>
    <message>
        <source>Open the list</source>
        <translation>Liste öffnen</translation>
    </message>
</context>
<context>
    <name>UpDownSpinner</name>
    <message>
        <source>Increase %1</source>
        <translation>%1 erhöhen</translation>
    </message>
    <message>
        <source>Decrease %1</source>
        <translation>%1 verringern</translation>
    </message>
</context>
<context>
    <name>WeeksTable</name>
    <message>
        <source>Weeks</source>
        <translation>Wochen</translation>
    </message>
    <message>
        <source>Eaten, burnt and balance are averages a day, over the days with a meal or an activity; the weight is the mean of the measured days.</source>
        <translation>Gegessen, verbraucht und Bilanz sind Durchschnitte pro Tag über die Tage mit einer Speise oder Aktivität; das Gewicht ist der Mittelwert der gemessenen Tage.</translation>
    </message>
</context>
<context>
    <name>daychart::ChartTexts</name>
    <message>
        <source>%1 kcal</source>
        <translation>%1 kcal</translation>
    </message>
    <message>
        <source>Meals</source>
        <translation>Speisen</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Aktivitäten</translation>
    </message>
    <message>
        <source>kcal</source>
        <translation>kcal</translation>
    </message>
    <message>
        <source>kcal per minute</source>
        <translation>kcal pro Minute</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Aktivität</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Grundverbrauch</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Bilanz</translation>
    </message>
    <message>
        <source>Fat</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Carbohydrate</source>
        <translation>Kohlenhydrate</translation>
    </message>
    <message>
        <source>Protein</source>
        <translation>Eiweiß</translation>
    </message>
    <message>
        <source>Eaten</source>
        <translation>Gegessen</translation>
    </message>
    <message>
        <source>Burnt</source>
        <translation>Verbraucht</translation>
    </message>
    <message>
        <source>so far</source>
        <translation>bisher</translation>
    </message>
    <message>
        <source>Over budget</source>
        <translation>Über Budget</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Übrig</translation>
    </message>
    <message>
        <source>No meals yet. Click at a time to add one.</source>
        <translation>Noch keine Speisen. Klicken Sie auf eine Uhrzeit, um eine einzutragen.</translation>
    </message>
    <message>
        <source>No activities yet. Click at a time to add one.</source>
        <translation>Noch keine Aktivitäten. Klicken Sie auf eine Uhrzeit, um eine einzutragen.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Meal at %1, %2: carbohydrate %3, fat %4, protein %5</source>
        <translation>Speise um %1, %2: Kohlenhydrate %3, Fett %4, Eiweiß %5</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Activity from %1 to %2, %3</source>
        <translation>Aktivität von %1 bis %2, %3</translation>
    </message>
    <message>
        <source>New meal at %1</source>
        <translation>Neue Speise um %1</translation>
    </message>
    <message>
        <source>New activity at %1</source>
        <translation>Neue Aktivität um %1</translation>
    </message>
    <message>
        <source>Meals: open the list</source>
        <translation>Speisen: Liste öffnen</translation>
    </message>
    <message>
        <source>Activities: open the list</source>
        <translation>Aktivitäten: Liste öffnen</translation>
    </message>
    <message>
        <source>%1 less eaten than burnt</source>
        <translation>%1 weniger gegessen als verbraucht</translation>
    </message>
    <message>
        <source>%1 more eaten than burnt</source>
        <translation>%1 mehr gegessen als verbraucht</translation>
    </message>
    <message>
        <source>Eaten %1, burnt %2 of which %3 by activities, balance %4. Meals: %5. Activities: %6.</source>
        <translation>Gegessen %1, verbraucht %2, davon %3 durch Aktivitäten, Bilanz %4. Speisen: %5. Aktivitäten: %6.</translation>
    </message>
    <message>
        <source>So far, at %1, %2.</source>
        <translation>Bisher, um %1, %2.</translation>
    </message>
    <message>
        <source>Of a budget of %1, %2 too much was eaten.</source>
        <translation>Das Budget von %1 ist um %2 überschritten.</translation>
    </message>
    <message>
        <source>Of a budget of %1, %2 are left.</source>
        <translation>Von einem Budget von %1 sind %2 übrig.</translation>
    </message>
    <message>
        <source>Drawn: the first %1 of %2 meals. The totals count all.</source>
        <translation>Gezeichnet: die ersten %1 von %2 Speisen. Die Summen zählen alle.</translation>
    </message>
    <message>
        <source>Drawn: the first %1 of %2 activities. The totals count all.</source>
        <translation>Gezeichnet: die ersten %1 von %2 Aktivitäten. Die Summen zählen alle.</translation>
    </message>
    <message>
        <source>Meal at %1</source>
        <translation>Speise um %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Activity from %1 to %2</source>
        <translation>Aktivität von %1 bis %2</translation>
    </message>
    <message>
        <source>%1 kcal per minute</source>
        <translation>%1 kcal pro Minute</translation>
    </message>
    <message>
        <source>%1
Balance at that time: %2 kcal</source>
        <translation>%1
Bilanz zu dieser Zeit: %2 kcal</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About the Program</source>
        <translation>Über das Programm</translation>
    </message>
    <message>
        <source>A journal of what you eat, do and weigh.</source>
        <translation>Ein Tagebuch darüber, was Sie essen, tun und wiegen.</translation>
    </message>
    <message>
        <source>Free software under the MIT licence.</source>
        <translation>Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>Your journal</source>
        <translation>Ihr Tagebuch</translation>
    </message>
    <message>
        <source>Its size</source>
        <translation>Seine Größe</translation>
    </message>
    <message>
        <source>Last backup</source>
        <translation>Letzte Sicherung</translation>
    </message>
    <message>
        <source>None so far</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>Beruht auf</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Text of the licence</source>
        <translation>Text der Lizenz</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies the versions and where the journal lies, for a report</source>
        <translation>Kopiert die Versionen und den Ort des Tagebuchs, für einen Fehlerbericht</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>frmBackupSettings</name>
    <message>
        <source>Backup Settings</source>
        <translation>Sicherungseinstellungen</translation>
    </message>
    <message>
        <source>Back up &amp;automatically once a week, at the end</source>
        <translation>&amp;Einmal pro Woche beim Beenden automatisch sichern</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>Aus&amp;wählen…</translation>
    </message>
    <message>
        <source>Backups to keep</source>
        <translation>Aufbewahrte Sicherungen</translation>
    </message>
    <message>
        <source>Backups can&apos;t be written into this folder</source>
        <translation>In diesen Ordner können keine Sicherungen geschrieben werden</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>O&amp;rdner</translation>
    </message>
    <message>
        <source>Backups to &amp;keep</source>
        <translation>Auf&amp;bewahrte Sicherungen</translation>
    </message>
    <message>
        <source>Folder of the Backups</source>
        <translation>Ordner der Sicherungen</translation>
    </message>
    <message>
        <source>The settings can&apos;t be kept</source>
        <translation>Die Einstellungen können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>The file Corvana.ini in the program folder can&apos;t be written.</source>
        <translation>Die Datei Corvana.ini im Programmordner kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>frmBody</name>
    <message>
        <source>Body Measurement</source>
        <translation>Körpermessung</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Breast</source>
        <translation>Brust</translation>
    </message>
    <message>
        <source>Waist</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Hips</source>
        <translation>Hüfte</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Datum</translation>
    </message>
    <message>
        <source>&amp;Weight</source>
        <translation>&amp;Gewicht</translation>
    </message>
    <message>
        <source>&amp;Breast</source>
        <translation>&amp;Brust</translation>
    </message>
    <message>
        <source>W&amp;aist</source>
        <translation>&amp;Taille</translation>
    </message>
    <message>
        <source>Hi&amp;ps</source>
        <translation>Hü&amp;fte</translation>
    </message>
    <message>
        <source>The Weight is not specified or contains illegal data</source>
        <translation>Das Gewicht fehlt oder ist ungültig</translation>
    </message>
    <message>
        <source>The Breast measurement is not specified or contains illegal data</source>
        <translation>Das Maß der Brust fehlt oder ist ungültig</translation>
    </message>
    <message>
        <source>The Waist measurement is not specified or contains illegal data</source>
        <translation>Das Maß der Taille fehlt oder ist ungültig</translation>
    </message>
    <message>
        <source>The Hips measurement is not specified or contains illegal data</source>
        <translation>Das Maß der Hüfte fehlt oder ist ungültig</translation>
    </message>
    <message>
        <source>Same date</source>
        <translation>Gleiches Datum</translation>
    </message>
    <message>
        <source>There is already Body Measurement for this date in the database. Do you want to replace it?</source>
        <translation>Für dieses Datum gibt es bereits eine Körpermessung in der Datenbank. Möchten Sie sie ersetzen?</translation>
    </message>
</context>
<context>
    <name>frmCheckJournal</name>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>The journal is being checked.</source>
        <translation>Das Tagebuch wird geprüft.</translation>
    </message>
    <message>
        <source>Check Journal</source>
        <translation>Tagebuch prüfen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>C&amp;opy as Text</source>
        <translation>Als Text &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>The journal can&apos;t be checked</source>
        <translation>Das Tagebuch kann nicht geprüft werden</translation>
    </message>
    <message>
        <source>The journal has not been checked.</source>
        <translation>Das Tagebuch wurde nicht geprüft.</translation>
    </message>
    <message>
        <source>Checked were:</source>
        <translation>Geprüft wurden:</translation>
    </message>
    <message>
        <source>The journal is sound: nothing was found.</source>
        <translation>Das Tagebuch ist in Ordnung: Es wurde nichts gefunden.</translation>
    </message>
    <message>
        <source>Findings: %1. Nothing has been changed.</source>
        <translation>Befunde: %1. Es wurde nichts geändert.</translation>
    </message>
</context>
<context>
    <name>frmCommon</name>
    <message>
        <source>Common Parameters</source>
        <translation>Allgemeine Angaben</translation>
    </message>
    <message>
        <source>Body Weight</source>
        <translation>Körpergewicht</translation>
    </message>
    <message>
        <source>Background Calories Consume</source>
        <translation>Grundverbrauch an Kalorien</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Maßsystem</translation>
    </message>
    <message>
        <source>Imperial (lb, inch)</source>
        <translation>Angloamerikanisch (lb, Zoll)</translation>
    </message>
    <message>
        <source>Metric (kg, cm)</source>
        <translation>Metrisch (kg, cm)</translation>
    </message>
    <message>
        <source>The Weight is not specified or specified incorrect</source>
        <translation>Das Gewicht fehlt oder ist ungültig</translation>
    </message>
    <message>
        <source>The Background Calories Consume is not specified or specified incorrect</source>
        <translation>Der Grundverbrauch an Kalorien fehlt oder ist ungültig</translation>
    </message>
    <message>
        <source>Body &amp;Weight</source>
        <translation>&amp;Körpergewicht</translation>
    </message>
    <message>
        <source>&amp;Background Calories Consume</source>
        <translation>&amp;Grundverbrauch an Kalorien</translation>
    </message>
    <message>
        <source>per hour</source>
        <translation>pro Stunde</translation>
    </message>
    <message>
        <source>&amp;Measurement</source>
        <translation>&amp;Maßsystem</translation>
    </message>
    <message>
        <source>All existing data will be recalculated according with new common parameters. Your results may change now</source>
        <translation>Alle vorhandenen Daten werden nach den neuen allgemeinen Angaben umgerechnet. Ihre Ergebnisse können sich dadurch ändern</translation>
    </message>
    <message>
        <source>Can&apos;t store information in database.</source>
        <translation>Die Angaben können nicht in der Datenbank gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>frmComposeMeal</name>
    <message>
        <source>Compose a Meal</source>
        <translation>Speise zusammenstellen</translation>
    </message>
    <message>
        <source>Ingredient</source>
        <translation>Zutat</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Calories</source>
        <translation>Kalorien</translation>
    </message>
    <message>
        <source>Calories of the quantity</source>
        <translation>Kalorien der Menge</translation>
    </message>
    <message>
        <source>Fat</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Grams of fat</source>
        <translation>Gramm Fett</translation>
    </message>
    <message>
        <source>Carboh.</source>
        <translation>Kohlenh.</translation>
    </message>
    <message>
        <source>Grams of carbohydrate</source>
        <translation>Gramm Kohlenhydrate</translation>
    </message>
    <message>
        <source>Protein</source>
        <translation>Eiweiß</translation>
    </message>
    <message>
        <source>Grams of protein</source>
        <translation>Gramm Eiweiß</translation>
    </message>
    <message>
        <source>Create &amp;Meal…</source>
        <translation>Speise an&amp;legen…</translation>
    </message>
    <message>
        <source>Add an ingredient first</source>
        <translation>Fügen Sie zuerst eine Zutat hinzu</translation>
    </message>
    <message>
        <source>The Portions value should be a number above 0</source>
        <translation>Die Zahl der Portionen muss größer als 0 sein</translation>
    </message>
    <message>
        <source>&amp;Ingredient</source>
        <translation>&amp;Zutat</translation>
    </message>
    <message>
        <source>150 g rice</source>
        <translation>150 g rice</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Hinzu&amp;fügen</translation>
    </message>
    <message>
        <source>Ingredients of the meal</source>
        <translation>Zutaten der Speise</translation>
    </message>
    <message>
        <source>Chan&amp;ge</source>
        <translation>Än&amp;dern</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Portions</source>
        <translation>Portionen</translation>
    </message>
    <message>
        <source>&amp;Portions</source>
        <translation>&amp;Portionen</translation>
    </message>
    <message>
        <source>Fat (g)</source>
        <translation>Fett (g)</translation>
    </message>
    <message>
        <source>Carbohydrate (g)</source>
        <translation>Kohlenhydrate (g)</translation>
    </message>
    <message>
        <source>Protein (g)</source>
        <translation>Eiweiß (g)</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Insgesamt</translation>
    </message>
    <message>
        <source>Per portion</source>
        <translation>Pro Portion</translation>
    </message>
    <message>
        <source>An ingredient takes a quantity or a weight, and no time</source>
        <translation>Eine Zutat hat eine Menge oder ein Gewicht und keine Uhrzeit</translation>
    </message>
    <message>
        <source>portion</source>
        <translation>Portion</translation>
    </message>
    <message>
        <source>The figures of a portion are too large</source>
        <translation>Die Werte einer Portion sind zu groß</translation>
    </message>
</context>
<context>
    <name>frmCopyDay</name>
    <message>
        <source>Copy from Another Day</source>
        <translation>Von anderem Tag kopieren</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Day to copy from</source>
        <translation>Tag, von dem kopiert wird</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Meal or Activity</source>
        <translation>Speise oder Aktivität</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Calories</source>
        <translation>Kalorien</translation>
    </message>
    <message>
        <source>Calories eaten or burnt</source>
        <translation>Gegessene oder verbrauchte Kalorien</translation>
    </message>
    <message>
        <source>Check &amp;All</source>
        <translation>A&amp;lle ankreuzen</translation>
    </message>
    <message>
        <source>Check &amp;None</source>
        <translation>Kei&amp;ne ankreuzen</translation>
    </message>
    <message>
        <source>Entries to copy</source>
        <translation>Zu kopierende Einträge</translation>
    </message>
    <message>
        <source>&amp;Keep the times</source>
        <translation>&amp;Uhrzeiten beibehalten</translation>
    </message>
    <message>
        <source>&amp;Shift the times by</source>
        <translation>Uhrzeiten &amp;verschieben um</translation>
    </message>
    <message>
        <source>Span in hours and minutes</source>
        <translation>Zeitspanne in Stunden und Minuten</translation>
    </message>
    <message>
        <source>Earlier or later</source>
        <translation>Früher oder später</translation>
    </message>
    <message>
        <source>later</source>
        <translation>später</translation>
    </message>
    <message>
        <source>earlier</source>
        <translation>früher</translation>
    </message>
    <message>
        <source>Copied to: %1</source>
        <translation>Kopiert auf: %1</translation>
    </message>
    <message>
        <source>&amp;Day to Copy from</source>
        <translation>&amp;Tag, von dem kopiert wird</translation>
    </message>
    <message>
        <source>hours:minutes</source>
        <translation>Stunden:Minuten</translation>
    </message>
    <message>
        <source>Day to Copy from</source>
        <translation>Tag, von dem kopiert wird</translation>
    </message>
    <message>
        <source>No entry is checked</source>
        <translation>Es ist kein Eintrag angekreuzt</translation>
    </message>
    <message>
        <source>The span should be hours and minutes, such as 1:30, and less than a day</source>
        <translation>Die Zeitspanne muss aus Stunden und Minuten bestehen, zum Beispiel 1:30, und kürzer als ein Tag sein</translation>
    </message>
    <message>
        <source>Meal</source>
        <translation>Speise</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Aktivität</translation>
    </message>
    <message>
        <source>Nothing is recorded on %1</source>
        <translation>Für den %1 ist nichts eingetragen</translation>
    </message>
    <message>
        <source>The day can&apos;t be shown</source>
        <translation>Der Tag kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>%1 at %2 would leave the day when shifted by this span. Nothing was copied.</source>
        <translation>%1 um %2 läge um diese Zeitspanne verschoben außerhalb des Tages. Es wurde nichts kopiert.</translation>
    </message>
</context>
<context>
    <name>frmCopyTo</name>
    <message>
        <source>Copy %1</source>
        <translation>%1 kopieren</translation>
    </message>
    <message>
        <source>Day to copy to</source>
        <translation>Tag, auf den kopiert wird</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>frmDate</name>
    <message>
        <source>Set Current Date</source>
        <translation>Datum einstellen</translation>
    </message>
    <message>
        <source>Current date</source>
        <translation>Angezeigtes Datum</translation>
    </message>
</context>
<context>
    <name>frmExercise</name>
    <message>
        <source>Activity Description</source>
        <translation>Beschreibung der Aktivität</translation>
    </message>
    <message>
        <source>Activity Name</source>
        <translation>Name der Aktivität</translation>
    </message>
    <message>
        <source>Calories Consume</source>
        <translation>Kalorienverbrauch</translation>
    </message>
    <message>
        <source>&amp;For Me</source>
        <translation>&amp;Für mich</translation>
    </message>
    <message>
        <source>Weight Adjustment Calculator</source>
        <translation>Rechner für die Gewichtsanpassung</translation>
    </message>
    <message>
        <source>&amp;Weight Dependent</source>
        <translation>&amp;Gewichtsabhängig</translation>
    </message>
    <message>
        <source>Default Qty</source>
        <translation>Standardmenge</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Activity &amp;Name</source>
        <translation>&amp;Name der Aktivität</translation>
    </message>
    <message>
        <source>Ca&amp;lories Consume</source>
        <translation>&amp;Kalorienverbrauch</translation>
    </message>
    <message>
        <source>&amp;Default Qty</source>
        <translation>&amp;Standardmenge</translation>
    </message>
    <message>
        <source>&amp;Unit</source>
        <translation>&amp;Einheit</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Default Quantity</source>
        <translation>Standardmenge</translation>
    </message>
    <message>
        <source>per unit, for my body</source>
        <translation>pro Einheit, für meinen Körper</translation>
    </message>
    <message>
        <source>per unit</source>
        <translation>pro Einheit</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>Sind Sie sicher?</translation>
    </message>
    <message>
        <source>This activity is body weight dependent. Are you sure you&apos;ve specified the Calories Consume value exactly for your body weight? If No, please press &apos;For Me&apos; button and use our weight adjustment calculator.</source>
        <translation>Diese Aktivität hängt vom Körpergewicht ab. Haben Sie den Kalorienverbrauch genau für Ihr Körpergewicht angegeben? Falls nicht, drücken Sie bitte „Für mich“ und verwenden Sie den Rechner für die Gewichtsanpassung.</translation>
    </message>
    <message>
        <source>Can&apos;t store this record in database. Please check whether there is already Activity with the same name in the database</source>
        <translation>Dieser Datensatz kann nicht in der Datenbank gespeichert werden. Bitte prüfen Sie, ob es dort bereits eine Aktivität mit demselben Namen gibt</translation>
    </message>
    <message>
        <source>An activity of this name exists already.</source>
        <translation>Eine Aktivität dieses Namens gibt es bereits.</translation>
    </message>
</context>
<context>
    <name>frmExercisePerform</name>
    <message>
        <source>Activity Performed</source>
        <translation>Ausgeübte Aktivität</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Aktivität</translation>
    </message>
    <message>
        <source>&amp;New Activity</source>
        <translation>&amp;Neue Aktivität</translation>
    </message>
    <message>
        <source>Begin Time</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Calories</source>
        <translation>Kalorien</translation>
    </message>
    <message>
        <source>Calories Total</source>
        <translation>Kalorien insgesamt</translation>
    </message>
    <message>
        <source>Ac&amp;tivity</source>
        <translation>Ak&amp;tivität</translation>
    </message>
    <message>
        <source>&amp;Begin Time</source>
        <translation>&amp;Beginn</translation>
    </message>
    <message>
        <source>&amp;End Time</source>
        <translation>&amp;Ende</translation>
    </message>
    <message>
        <source>&amp;Quantity</source>
        <translation>&amp;Menge</translation>
    </message>
    <message>
        <source>The Exercise is not specified or specified incorrect</source>
        <translation>Die Aktivität fehlt oder ist ungültig</translation>
    </message>
    <message>
        <source>The End Time value should be more than the Begin Time value</source>
        <translation>Das Ende muss nach dem Beginn liegen</translation>
    </message>
</context>
<context>
    <name>frmExercisePerforms</name>
    <message>
        <source>Activities Performed List</source>
        <translation>Ausgeübte Aktivitäten</translation>
    </message>
    <message>
        <source>Date &amp;Performed</source>
        <translation>&amp;Datum der Aktivitäten</translation>
    </message>
    <message>
        <source>Date Performed</source>
        <translation>Datum der Aktivitäten</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Exercise</source>
        <translation>Aktivität</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Calories</source>
        <translation>Kalorien</translation>
    </message>
    <message>
        <source>Calories consumed</source>
        <translation>Verbrauchte Kalorien</translation>
    </message>
</context>
<context>
    <name>frmExercises</name>
    <message>
        <source>Activities</source>
        <translation>Aktivitäten</translation>
    </message>
    <message>
        <source>Exercise Name</source>
        <translation>Name der Aktivität</translation>
    </message>
    <message>
        <source>Calor.</source>
        <translation>Kalor.</translation>
    </message>
    <message>
        <source>Calories consumed per unit, for your body</source>
        <translation>Verbrauchte Kalorien pro Einheit, für Ihren Körper</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>What the activity is counted in</source>
        <translation>Worin die Aktivität gezählt wird</translation>
    </message>
    <message>
        <source>Def. Qty</source>
        <translation>Standardmenge</translation>
    </message>
    <message>
        <source>Default quantity: proposed for a new entry</source>
        <translation>Standardmenge: Vorschlag für einen neuen Eintrag</translation>
    </message>
</context>
<context>
    <name>frmExport</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>E&amp;xportieren</translation>
    </message>
    <message>
        <source>The &amp;whole journal</source>
        <translation>Das &amp;ganze Tagebuch</translation>
    </message>
    <message>
        <source>A &amp;period</source>
        <translation>Ein &amp;Zeitraum</translation>
    </message>
    <message>
        <source>Date From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Date To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>For &amp;other programs: commas, decimal points, ISO dates</source>
        <translation>Für andere &amp;Programme: Kommas, Dezimalpunkte, ISO-Datumsangaben</translation>
    </message>
    <message>
        <source>For &amp;spreadsheets: numbers and dates as they are written in your region</source>
        <translation>Für &amp;Tabellenkalkulationen: Zahlen und Datumsangaben wie in Ihrer Region üblich</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Von</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Bis</translation>
    </message>
    <message>
        <source>How</source>
        <translation>Wie</translation>
    </message>
    <message>
        <source>Fo&amp;lder</source>
        <translation>O&amp;rdner</translation>
    </message>
    <message>
        <source>The Date To is less than Date From</source>
        <translation>„Bis“ liegt vor „Von“</translation>
    </message>
    <message>
        <source>There is no such folder</source>
        <translation>Diesen Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>Folder for the Export</source>
        <translation>Ordner für den Export</translation>
    </message>
    <message>
        <source>The journal can&apos;t be exported</source>
        <translation>Das Tagebuch kann nicht exportiert werden</translation>
    </message>
    <message>
        <source>The journal has been exported to %1</source>
        <translation>Das Tagebuch wurde nach %1 exportiert</translation>
    </message>
    <message>
        <source>The export was cancelled. Nothing has been written.</source>
        <translation>Der Export wurde abgebrochen. Es wurde nichts geschrieben.</translation>
    </message>
</context>
<context>
    <name>frmGeneralProgress</name>
    <message>
        <source>The progress can&apos;t be shown: a measurement or the balance of %1 is too large. Please correct it and try again</source>
        <translation>Der Gesamtverlauf kann nicht angezeigt werden: Eine Messung oder die Bilanz vom %1 ist zu groß. Bitte berichtigen Sie sie und versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>The progress can&apos;t be shown: a measurement of this period is too large. Please correct it and try again</source>
        <translation>Der Gesamtverlauf kann nicht angezeigt werden: Eine Messung dieses Zeitraums ist zu groß. Bitte berichtigen Sie sie und versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>The progress can&apos;t be shown: the period has too many days</source>
        <translation>Der Gesamtverlauf kann nicht angezeigt werden: Der Zeitraum hat zu viele Tage</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>&amp;Vor</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Save Picture</source>
        <translation>&amp;Bild speichern</translation>
    </message>
    <message>
        <source>C&amp;opy Table</source>
        <translation>Tabelle &amp;kopieren</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>General Progress</source>
        <translation>Gesamtverlauf</translation>
    </message>
    <message>
        <source>&amp;Chart</source>
        <translation>Dia&amp;gramm</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>&amp;Weeks</source>
        <translation>&amp;Wochen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The period before</source>
        <translation>Der Zeitraum davor</translation>
    </message>
    <message>
        <source>The period after</source>
        <translation>Der Zeitraum danach</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>No notes in this period.</source>
        <translation>Keine Notizen in diesem Zeitraum.</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notizen</translation>
    </message>
    <message>
        <source>The period can&apos;t be shown</source>
        <translation>Der Zeitraum kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>Can&apos;t print. Please check whether your default printer is accessible</source>
        <translation>Drucken nicht möglich. Bitte prüfen Sie, ob Ihr Standarddrucker erreichbar ist</translation>
    </message>
</context>
<context>
    <name>frmGeneralProgressSettings</name>
    <message>
        <source>General Progress Parameters</source>
        <translation>Zeitraum des Gesamtverlaufs</translation>
    </message>
    <message>
        <source>&amp;1 Month</source>
        <translation>&amp;1 Monat</translation>
    </message>
    <message>
        <source>&amp;3 Months</source>
        <translation>&amp;3 Monate</translation>
    </message>
    <message>
        <source>&amp;6 Months</source>
        <translation>&amp;6 Monate</translation>
    </message>
    <message>
        <source>Date From</source>
        <translation>Ab Datum</translation>
    </message>
    <message>
        <source>&amp;Date From</source>
        <translation>Ab &amp;Datum</translation>
    </message>
    <message>
        <source>For Period</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Not enough data</source>
        <translation>Nicht genug Daten</translation>
    </message>
    <message>
        <source>Present data cover less then 30% of selected time period. The Chart will be too small. Build the Chart anyway?</source>
        <translation>Die vorhandenen Daten decken weniger als 30 % des gewählten Zeitraums ab. Das Diagramm wird zu klein. Trotzdem anzeigen?</translation>
    </message>
    <message>
        <source>Data selected to be shown on Chart are not contiguous. Either Calories data (meal/activity) are not present for every day or Body measurement is not present for each 3 days period. The Chart will be ripped. Build the Chart anyway?</source>
        <translation>Die Daten für das Diagramm sind nicht lückenlos. Entweder gibt es nicht für jeden Tag Kalorien (Speise oder Aktivität) oder nicht alle drei Tage eine Körpermessung. Das Diagramm wird Lücken haben. Trotzdem anzeigen?</translation>
    </message>
</context>
<context>
    <name>frmGoals</name>
    <message>
        <source>Goals</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>The measured weight can&apos;t be read</source>
        <translation>Das gemessene Gewicht kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Target Weight</source>
        <translation>Zielgewicht</translation>
    </message>
    <message>
        <source>Reached b&amp;y</source>
        <translation>Erreicht &amp;bis</translation>
    </message>
    <message>
        <source>Date of the Target Weight</source>
        <translation>Datum des Zielgewichts</translation>
    </message>
    <message>
        <source>Target Breast</source>
        <translation>Zielwert der Brust</translation>
    </message>
    <message>
        <source>Target Waist</source>
        <translation>Zielwert der Taille</translation>
    </message>
    <message>
        <source>Target Hips</source>
        <translation>Zielwert der Hüfte</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keines</translation>
    </message>
    <message>
        <source>A &amp;fixed number of calories</source>
        <translation>Eine &amp;feste Kalorienzahl</translation>
    </message>
    <message>
        <source>Daily Budget</source>
        <translation>Tagesbudget</translation>
    </message>
    <message>
        <source>What the day burns, &amp;less a deficit of</source>
        <translation>Der Tagesverbrauch, abzüglich eines &amp;Defizits von</translation>
    </message>
    <message>
        <source>Daily Deficit</source>
        <translation>Tagesdefizit</translation>
    </message>
    <message>
        <source>kcal a day</source>
        <translation>kcal pro Tag</translation>
    </message>
    <message>
        <source>Targets</source>
        <translation>Zielwerte</translation>
    </message>
    <message>
        <source>&amp;Weight</source>
        <translation>&amp;Gewicht</translation>
    </message>
    <message>
        <source>&amp;Breast</source>
        <translation>B&amp;rust</translation>
    </message>
    <message>
        <source>W&amp;aist</source>
        <translation>&amp;Taille</translation>
    </message>
    <message>
        <source>Hi&amp;ps</source>
        <translation>Hüft&amp;e</translation>
    </message>
    <message>
        <source>Daily budget</source>
        <translation>Tagesbudget</translation>
    </message>
    <message>
        <source>kcal</source>
        <translation>kcal</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Breast</source>
        <translation>Brust</translation>
    </message>
    <message>
        <source>Waist</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Hips</source>
        <translation>Hüfte</translation>
    </message>
    <message>
        <source>The %1 must be more than 0 and at most %2</source>
        <translation>%1: Der Wert muss größer als 0 und höchstens %2 sein</translation>
    </message>
    <message>
        <source>The %1 must be a whole number from 1 to %2</source>
        <translation>%1: Der Wert muss eine ganze Zahl von 1 bis %2 sein</translation>
    </message>
    <message>
        <source>%1 %2 a week, %3 % of your weight</source>
        <translation>%1 %2 pro Woche, %3 % Ihres Gewichts</translation>
    </message>
    <message>
        <source>From %1 %2 to the target by then: %3.</source>
        <translation>Von %1 %2 bis dahin zum Zielgewicht: %3.</translation>
    </message>
    <message>
        <source>The date of the target weight is not ahead any more.</source>
        <translation>Das Datum des Zielgewichts liegt nicht mehr in der Zukunft.</translation>
    </message>
    <message>
        <source>The deficit comes to about %1.</source>
        <translation>Das Defizit ergibt etwa %1.</translation>
    </message>
    <message>
        <source>More than 1 % of the body&apos;s weight a week is unhealthily fast.</source>
        <translation>Mehr als 1 % des Körpergewichts pro Woche ist ungesund schnell.</translation>
    </message>
    <message>
        <source>Do you want to keep these goals all the same?</source>
        <translation>Möchten Sie diese Ziele trotzdem behalten?</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>Sind Sie sicher?</translation>
    </message>
    <message>
        <source>The goals can&apos;t be kept</source>
        <translation>Die Ziele können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>The file Corvana.ini in the program folder can&apos;t be written.</source>
        <translation>Die Datei Corvana.ini im Programmordner kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>frmImport</name>
    <message>
        <source>tabs</source>
        <translation>Tabulatoren</translation>
    </message>
    <message>
        <source>semicolons</source>
        <translation>Semikolons</translation>
    </message>
    <message>
        <source>bars</source>
        <translation>senkrechte Striche</translation>
    </message>
    <message>
        <source>commas</source>
        <translation>Kommas</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1. Not imported: %2</source>
        <translation>%1. Nicht importiert: %2</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Holds</source>
        <translation>Enthält</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Records that come in</source>
        <translation>Datensätze, die hinzukommen</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Records that are updated</source>
        <translation>Datensätze, die aktualisiert werden</translation>
    </message>
    <message>
        <source>There</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Records that exist already</source>
        <translation>Datensätze, die es schon gibt</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Lines that can&apos;t be imported</source>
        <translation>Zeilen, die nicht importiert werden können</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was nicht stimmt</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>&amp;Files…</source>
        <translation>&amp;Dateien…</translation>
    </message>
    <message>
        <source>Fol&amp;der…</source>
        <translation>O&amp;rdner…</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>What the file holds</source>
        <translation>Was die Datei enthält</translation>
    </message>
    <message>
        <source>(not imported)</source>
        <translation>(nicht importiert)</translation>
    </message>
    <message>
        <source>Co&amp;lumns</source>
        <translation>S&amp;palten</translation>
    </message>
    <message>
        <source>The first records as they would be stored</source>
        <translation>Die ersten Datensätze, wie sie gespeichert würden</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Lines with a fault</source>
        <translation>Zeilen mit einem Fehler</translation>
    </message>
    <message>
        <source>Co&amp;py as Text</source>
        <translation>Als &amp;Text kopieren</translation>
    </message>
    <message>
        <source>Fa&amp;ults</source>
        <translation>&amp;Fehler</translation>
    </message>
    <message>
        <source>stay as they are</source>
        <translation>bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>are updated by the file</source>
        <translation>werden aus der Datei aktualisiert</translation>
    </message>
    <message>
        <source>stay, and the new one gets a number behind its name</source>
        <translation>bleiben, und der neue erhält eine Zahl hinter seinem Namen</translation>
    </message>
    <message>
        <source>The file h&amp;olds</source>
        <translation>Die Datei &amp;enthält</translation>
    </message>
    <message>
        <source>Records that e&amp;xist already</source>
        <translation>Datensätze, die es schon &amp;gibt</translation>
    </message>
    <message>
        <source>Choose Files to Import</source>
        <translation>Dateien zum Importieren wählen</translation>
    </message>
    <message>
        <source>Tables of text (*.csv *.tsv *.txt)</source>
        <translation>Texttabellen (*.csv *.tsv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Choose the Folder of an Export</source>
        <translation>Ordner eines Exports wählen</translation>
    </message>
    <message>
        <source>There is no file in this folder that could be imported.</source>
        <translation>In diesem Ordner ist keine Datei, die importiert werden könnte.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>What can&apos;t be read is left out.</source>
        <translation>Was nicht gelesen werden kann, wird ausgelassen.</translation>
    </message>
    <message>
        <source>The journal can&apos;t be read</source>
        <translation>Das Tagebuch kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Choose files of comma-separated values, or the folder of an export. Nothing is stored before you have seen what would come in.</source>
        <translation>Wählen Sie CSV-Dateien oder den Ordner eines Exports. Es wird nichts gespeichert, bevor Sie gesehen haben, was hinzukommen würde.</translation>
    </message>
    <message>
        <source>%1: choose a column for %2, or say what stands where it is empty.</source>
        <translation>%1: Wählen Sie eine Spalte für %2 oder geben Sie an, was gilt, wo sie leer ist.</translation>
    </message>
    <message>
        <source>New: %1. Updated: %2. There already: %3. Lines with a fault, which are left out: %4.</source>
        <translation>Neu: %1. Aktualisiert: %2. Schon da: %3. Zeilen mit einem Fehler, die ausgelassen werden: %4.</translation>
    </message>
    <message>
        <source>Categories that are made: %1.</source>
        <translation>Kategorien, die angelegt werden: %1.</translation>
    </message>
    <message>
        <source>Fa&amp;ults (%1)</source>
        <translation>&amp;Fehler (%1)</translation>
    </message>
    <message>
        <source>The files can&apos;t be imported</source>
        <translation>Die Dateien können nicht importiert werden</translation>
    </message>
    <message>
        <source>The import is stored.</source>
        <translation>Der Import ist gespeichert.</translation>
    </message>
    <message>
        <source>The import was cancelled. Nothing has been stored.</source>
        <translation>Der Import wurde abgebrochen. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Import läuft…</translation>
    </message>
    <message>
        <source>Importing %1</source>
        <translation>%1 importieren</translation>
    </message>
    <message>
        <source>Importing %1 Files</source>
        <translation>%1 Dateien importieren</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Last backup: %1</source>
        <translation>Letzte Sicherung: %1</translation>
    </message>
    <message>
        <source>No backup yet</source>
        <translation>Noch keine Sicherung</translation>
    </message>
    <message>
        <source>The automatic backup failed: %1 %2</source>
        <translation>Die automatische Sicherung ist fehlgeschlagen: %1 %2</translation>
    </message>
    <message>
        <source>&amp;Edit Meal</source>
        <translation>Speise &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete Meal</source>
        <translation>Speise &amp;löschen</translation>
    </message>
    <message>
        <source>Meal Consumed &amp;List</source>
        <translation>Verzehrte &amp;Speisen</translation>
    </message>
    <message>
        <source>&amp;Edit Activity</source>
        <translation>Aktivität &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete Activity</source>
        <translation>Aktivität &amp;löschen</translation>
    </message>
    <message>
        <source>Activities Performed &amp;List</source>
        <translation>Ausgeübte Aktivi&amp;täten</translation>
    </message>
    <message>
        <source>Add &amp;Meal at %1</source>
        <translation>S&amp;peise um %1 eintragen</translation>
    </message>
    <message>
        <source>Add &amp;Activity at %1</source>
        <translation>&amp;Aktivität um %1 eintragen</translation>
    </message>
    <message>
        <source>The record can&apos;t be opened</source>
        <translation>Der Datensatz kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>This record can&apos;t be deleted from database</source>
        <translation>Dieser Datensatz kann nicht aus der Datenbank gelöscht werden</translation>
    </message>
    <message>
        <source>%1 is not shown in full</source>
        <translation>%1 wird nicht vollständig angezeigt</translation>
    </message>
    <message>
        <source>%1 can&apos;t be shown; the chart stays as it was</source>
        <translation>%1 kann nicht angezeigt werden; das Diagramm bleibt, wie es war</translation>
    </message>
    <message>
        <source>The chart can&apos;t be drawn anew. What was stored before is stored</source>
        <translation>Das Diagramm kann nicht neu gezeichnet werden. Was zuvor gespeichert wurde, ist gespeichert</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Can&apos;t print. Please check whether your default printer is accessible</source>
        <translation>Drucken nicht möglich. Bitte prüfen Sie, ob Ihr Standarddrucker erreichbar ist</translation>
    </message>
    <message>
        <source>This will delete trial data supplied with the program as the sample.</source>
        <translation>Damit löschen Sie die Beispieldaten, die mit dem Programm geliefert wurden.</translation>
    </message>
    <message>
        <source>It refers to Meal Consumed, Exercise Performed, Body Measurement and User Notes.</source>
        <translation>Das betrifft verzehrte Speisen, ausgeübte Aktivitäten, Körpermessungen und Notizen.</translation>
    </message>
    <message>
        <source>Neither Meal Description, Exercise Description nor any data you&apos;ve entered yourself will be deleted.</source>
        <translation>Weder die Beschreibungen der Speisen und Aktivitäten noch Daten, die Sie selbst eingegeben haben, werden gelöscht.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete trial data now?</source>
        <translation>Möchten Sie die Beispieldaten jetzt wirklich löschen?</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>Sind Sie sicher?</translation>
    </message>
    <message>
        <source>Deleting Trial Data</source>
        <translation>Beispieldaten löschen</translation>
    </message>
    <message>
        <source>The trial data can&apos;t be deleted</source>
        <translation>Die Beispieldaten können nicht gelöscht werden</translation>
    </message>
    <message>
        <source>&amp;Operate</source>
        <translation>A&amp;ktionen</translation>
    </message>
    <message>
        <source>&amp;Meal Consumed List</source>
        <translation>&amp;Verzehrte Speisen</translation>
    </message>
    <message>
        <source>Meal Consume List</source>
        <translation>Verzehrte Speisen</translation>
    </message>
    <message>
        <source>&amp;Add Meal</source>
        <translation>&amp;Speise eintragen</translation>
    </message>
    <message>
        <source>Add Meal</source>
        <translation>Speise eintragen</translation>
    </message>
    <message>
        <source>A&amp;ctivities Performed List</source>
        <translation>&amp;Ausgeübte Aktivitäten</translation>
    </message>
    <message>
        <source>Activities Performed List</source>
        <translation>Ausgeübte Aktivitäten</translation>
    </message>
    <message>
        <source>A&amp;dd Activity</source>
        <translation>Ak&amp;tivität eintragen</translation>
    </message>
    <message>
        <source>Add Activity</source>
        <translation>Aktivität eintragen</translation>
    </message>
    <message>
        <source>&amp;Body Measurement and Notes</source>
        <translation>&amp;Körpermessungen und Notizen</translation>
    </message>
    <message>
        <source>Body Measurement &amp; Notes</source>
        <translation>Körpermessungen und Notizen</translation>
    </message>
    <message>
        <source>Add Body Measu&amp;rement</source>
        <translation>Körper&amp;messung eintragen</translation>
    </message>
    <message>
        <source>Add Measurement</source>
        <translation>Körpermessung eintragen</translation>
    </message>
    <message>
        <source>Add &amp;Note</source>
        <translation>&amp;Notiz eintragen</translation>
    </message>
    <message>
        <source>Add Note</source>
        <translation>Notiz eintragen</translation>
    </message>
    <message>
        <source>&amp;Print Daily Chart</source>
        <translation>Tagesdiagramm d&amp;rucken</translation>
    </message>
    <message>
        <source>Print Daily Chart</source>
        <translation>Tagesdiagramm drucken</translation>
    </message>
    <message>
        <source>&amp;Set Date</source>
        <translation>&amp;Datum einstellen</translation>
    </message>
    <message>
        <source>Delete Trial Data</source>
        <translation>Beispieldaten löschen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Journal</source>
        <translation>&amp;Tagebuch</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Quick Add</source>
        <translation>&amp;Schnelleintrag</translation>
    </message>
    <message>
        <source>&amp;Copy from Another Day…</source>
        <translation>Von anderem Tag &amp;kopieren…</translation>
    </message>
    <message>
        <source>Compose a &amp;Meal…</source>
        <translation>S&amp;peise zusammenstellen…</translation>
    </message>
    <message>
        <source>Go to &amp;Today</source>
        <translation>Zu &amp;heute gehen</translation>
    </message>
    <message>
        <source>&amp;Previous Day</source>
        <translation>&amp;Vorheriger Tag</translation>
    </message>
    <message>
        <source>&amp;Next Day</source>
        <translation>&amp;Nächster Tag</translation>
    </message>
    <message>
        <source>G&amp;oals…</source>
        <translation>&amp;Ziele…</translation>
    </message>
    <message>
        <source>&amp;Back Up…</source>
        <translation>Si&amp;chern…</translation>
    </message>
    <message>
        <source>Re&amp;store…</source>
        <translation>Wiederherste&amp;llen…</translation>
    </message>
    <message>
        <source>Backup Settin&amp;gs…</source>
        <translation>Sicherungseinstellun&amp;gen…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren…</translation>
    </message>
    <message>
        <source>Chec&amp;k Journal…</source>
        <translation>&amp;Tagebuch prüfen…</translation>
    </message>
    <message>
        <source>Pass&amp;word…</source>
        <translation>Passw&amp;ort…</translation>
    </message>
    <message>
        <source>&amp;Analyze</source>
        <translation>Aus&amp;wertung</translation>
    </message>
    <message>
        <source>&amp;General Progress</source>
        <translation>&amp;Gesamtverlauf</translation>
    </message>
    <message>
        <source>General Progress</source>
        <translation>Gesamtverlauf</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>Meal &amp;Categories</source>
        <translation>Speise&amp;kategorien</translation>
    </message>
    <message>
        <source>Configure Meal Categories</source>
        <translation>Speisekategorien bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Meal</source>
        <translation>&amp;Speisen</translation>
    </message>
    <message>
        <source>Configure Meals</source>
        <translation>Speisen bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Activities</source>
        <translation>&amp;Aktivitäten</translation>
    </message>
    <message>
        <source>Configure Activities</source>
        <translation>Aktivitäten bearbeiten</translation>
    </message>
    <message>
        <source>C&amp;ommon</source>
        <translation>All&amp;gemein</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Über das &amp;Programm</translation>
    </message>
    <message>
        <source>About the Program</source>
        <translation>Über das Programm</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>Help Contents</source>
        <translation>Inhalt der Hilfe</translation>
    </message>
    <message>
        <source>&amp;Main Form</source>
        <translation>&amp;Hauptfenster</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>Another program has changed meanwhile what it would change. Nothing was done, and the step is left out.</source>
        <translation>Ein anderes Programm hat inzwischen geändert, was dies ändern würde. Es wurde nichts getan, und der Schritt wird ausgelassen.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be undone</source>
        <translation>„%1“ kann nicht rückgängig gemacht werden</translation>
    </message>
    <message>
        <source>%1 can&apos;t be redone</source>
        <translation>„%1“ kann nicht wiederholt werden</translation>
    </message>
    <message>
        <source>The common parameters can&apos;t be read anew. What was stored is stored</source>
        <translation>Die allgemeinen Angaben können nicht neu gelesen werden. Was gespeichert wurde, ist gespeichert</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
</context>
<context>
    <name>frmMeal</name>
    <message>
        <source>Meal Description</source>
        <translation>Beschreibung der Speise</translation>
    </message>
    <message>
        <source>&amp;New Category</source>
        <translation>Neue &amp;Kategorie</translation>
    </message>
    <message>
        <source>Meal Name</source>
        <translation>Name der Speise</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Default Qty</source>
        <translation>Standardmenge</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>Schrittweite</translation>
    </message>
    <message>
        <source>Calories per Unit</source>
        <translation>Kalorien pro Einheit</translation>
    </message>
    <message>
        <source>Fat by Weight</source>
        <translation>Fett nach Gewicht</translation>
    </message>
    <message>
        <source>Carbohydrate by Weight</source>
        <translation>Kohlenhydrate nach Gewicht</translation>
    </message>
    <message>
        <source>Protein by Weight</source>
        <translation>Eiweiß nach Gewicht</translation>
    </message>
    <message>
        <source>Fat by Calories</source>
        <translation>Fett nach Kalorien</translation>
    </message>
    <message>
        <source>Carbohydrate by Calories</source>
        <translation>Kohlenhydrate nach Kalorien</translation>
    </message>
    <message>
        <source>Protein by Calories</source>
        <translation>Eiweiß nach Kalorien</translation>
    </message>
    <message>
        <source>Meal Cate&amp;gory</source>
        <translation>Speisekate&amp;gorie</translation>
    </message>
    <message>
        <source>&amp;Meal Name</source>
        <translation>&amp;Name der Speise</translation>
    </message>
    <message>
        <source>&amp;Unit</source>
        <translation>&amp;Einheit</translation>
    </message>
    <message>
        <source>&amp;Default Qty</source>
        <translation>&amp;Standardmenge</translation>
    </message>
    <message>
        <source>&amp;Increment</source>
        <translation>S&amp;chrittweite</translation>
    </message>
    <message>
        <source>By Weight</source>
        <translation>Nach Gewicht</translation>
    </message>
    <message>
        <source>&amp;Fat</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>Car&amp;bohydr.</source>
        <translation>Koh&amp;lenhydr.</translation>
    </message>
    <message>
        <source>&amp;Protein</source>
        <translation>E&amp;iweiß</translation>
    </message>
    <message>
        <source>By Calories</source>
        <translation>Nach Kalorien</translation>
    </message>
    <message>
        <source>F&amp;at</source>
        <translation>Fe&amp;tt</translation>
    </message>
    <message>
        <source>Carboh&amp;ydr.</source>
        <translation>Kohlenh&amp;ydr.</translation>
    </message>
    <message>
        <source>Pro&amp;tein</source>
        <translation>Ei&amp;weiß</translation>
    </message>
    <message>
        <source>The Meal Category is not specified or specified incorrect</source>
        <translation>Die Speisekategorie fehlt oder ist ungültig</translation>
    </message>
    <message>
        <source>Default Quantity</source>
        <translation>Standardmenge</translation>
    </message>
    <message>
        <source>Fat</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>CarboHydrate</source>
        <translation>Kohlenhydrate</translation>
    </message>
    <message>
        <source>Protein</source>
        <translation>Eiweiß</translation>
    </message>
    <message>
        <source>Calories</source>
        <translation>Kalorien</translation>
    </message>
    <message>
        <source>Can&apos;t store this record in database. Please check whether there is already Meal with the same name in the database</source>
        <translation>Dieser Datensatz kann nicht in der Datenbank gespeichert werden. Bitte prüfen Sie, ob es dort bereits eine Speise mit demselben Namen gibt</translation>
    </message>
    <message>
        <source>A meal of this name exists already.</source>
        <translation>Eine Speise dieses Namens gibt es bereits.</translation>
    </message>
    <message>
        <source>Ca&amp;lories per Unit</source>
        <translation>Kalo&amp;rien pro Einheit</translation>
    </message>
    <message>
        <source>Ca&amp;lories per %1</source>
        <translation>Kalo&amp;rien pro %1</translation>
    </message>
    <message>
        <source>grams</source>
        <translation>Gramm</translation>
    </message>
    <message>
        <source>kcal</source>
        <translation>kcal</translation>
    </message>
</context>
<context>
    <name>frmMealCategories</name>
    <message>
        <source>Meal Categories</source>
        <translation>Speisekategorien</translation>
    </message>
    <message>
        <source>Meal Category Name</source>
        <translation>Name der Speisekategorie</translation>
    </message>
</context>
<context>
    <name>frmMealCategory</name>
    <message>
        <source>Meal Category</source>
        <translation>Speisekategorie</translation>
    </message>
    <message>
        <source>Meal Category Name</source>
        <translation>Name der Speisekategorie</translation>
    </message>
    <message>
        <source>Meal Category &amp;Name</source>
        <translation>&amp;Name der Speisekategorie</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Can&apos;t store this record in database. Please check whether there is already Meal Category with the same name in the database</source>
        <translation>Dieser Datensatz kann nicht in der Datenbank gespeichert werden. Bitte prüfen Sie, ob es dort bereits eine Speisekategorie mit demselben Namen gibt</translation>
    </message>
    <message>
        <source>A meal category of this name exists already.</source>
        <translation>Eine Speisekategorie dieses Namens gibt es bereits.</translation>
    </message>
</context>
<context>
    <name>frmMealConsume</name>
    <message>
        <source>Meal Consumed</source>
        <translation>Verzehrte Speise</translation>
    </message>
    <message>
        <source>Meal</source>
        <translation>Speise</translation>
    </message>
    <message>
        <source>&amp;New Meal</source>
        <translation>&amp;Neue Speise</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Meal Cate&amp;gory</source>
        <translation>Speisekate&amp;gorie</translation>
    </message>
    <message>
        <source>&amp;Meal</source>
        <translation>S&amp;peise</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Uhrzeit</translation>
    </message>
    <message>
        <source>&amp;Quantity</source>
        <translation>&amp;Menge</translation>
    </message>
    <message>
        <source>Calories</source>
        <translation>Kalorien</translation>
    </message>
    <message>
        <source>Fat Cal.</source>
        <translation>Kal. aus Fett</translation>
    </message>
    <message>
        <source>Carboh. Cal.</source>
        <translation>Kal. aus Kohlenh.</translation>
    </message>
    <message>
        <source>Protein Cal.</source>
        <translation>Kal. aus Eiweiß</translation>
    </message>
    <message>
        <source>Calories Total</source>
        <translation>Kal. insgesamt</translation>
    </message>
    <message>
        <source>The Meal Category is not specified or specified incorrect</source>
        <translation>Die Speisekategorie fehlt oder ist ungültig</translation>
    </message>
</context>
<context>
    <name>frmMealConsumes</name>
    <message>
        <source>Meal Consumed List</source>
        <translation>Verzehrte Speisen</translation>
    </message>
    <message>
        <source>&amp;Consume Date</source>
        <translation>&amp;Datum des Verzehrs</translation>
    </message>
    <message>
        <source>Consume Date</source>
        <translation>Datum des Verzehrs</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Meal</source>
        <translation>Speise</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Fat</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Calories from fat</source>
        <translation>Kalorien aus Fett</translation>
    </message>
    <message>
        <source>Carboh.</source>
        <translation>Kohlenh.</translation>
    </message>
    <message>
        <source>Calories from carbohydrate</source>
        <translation>Kalorien aus Kohlenhydraten</translation>
    </message>
    <message>
        <source>Protein</source>
        <translation>Eiweiß</translation>
    </message>
    <message>
        <source>Calories from protein</source>
        <translation>Kalorien aus Eiweiß</translation>
    </message>
    <message>
        <source>Calor.</source>
        <translation>Kalor.</translation>
    </message>
    <message>
        <source>Calories in all</source>
        <translation>Kalorien insgesamt</translation>
    </message>
</context>
<context>
    <name>frmMeals</name>
    <message>
        <source>Meals</source>
        <translation>Speisen</translation>
    </message>
    <message>
        <source>Meal Name</source>
        <translation>Name der Speise</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>What the meal is counted in</source>
        <translation>Worin die Speise gezählt wird</translation>
    </message>
    <message>
        <source>Fat</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Fat per unit</source>
        <translation>Fett pro Einheit</translation>
    </message>
    <message>
        <source>CarboHyd.</source>
        <translation>Kohlenh.</translation>
    </message>
    <message>
        <source>Carbohydrate per unit</source>
        <translation>Kohlenhydrate pro Einheit</translation>
    </message>
    <message>
        <source>Protein</source>
        <translation>Eiweiß</translation>
    </message>
    <message>
        <source>Protein per unit</source>
        <translation>Eiweiß pro Einheit</translation>
    </message>
    <message>
        <source>Calor.</source>
        <translation>Kalor.</translation>
    </message>
    <message>
        <source>Calories per unit</source>
        <translation>Kalorien pro Einheit</translation>
    </message>
    <message>
        <source>Def.</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Default quantity: proposed for a new entry</source>
        <translation>Standardmenge: Vorschlag für einen neuen Eintrag</translation>
    </message>
    <message>
        <source>Increm.</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Increment: step by which the quantity is changed</source>
        <translation>Schrittweite: um so viel wird die Menge geändert</translation>
    </message>
    <message>
        <source>Meal Cate&amp;gory</source>
        <translation>Speisekate&amp;gorie</translation>
    </message>
</context>
<context>
    <name>frmMeasurements</name>
    <message>
        <source>Body Measurement and Notes</source>
        <translation>Körpermessungen und Notizen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Breast</source>
        <translation>Brust</translation>
    </message>
    <message>
        <source>Waist</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Hips</source>
        <translation>Hüfte</translation>
    </message>
    <message>
        <source>Body Measurement</source>
        <translation>Körpermessung</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Personal Notes</source>
        <translation>Persönliche Notizen</translation>
    </message>
    <message>
        <source>Date From</source>
        <translation>Ab Datum</translation>
    </message>
    <message>
        <source>Date &amp;From</source>
        <translation>Ab &amp;Datum</translation>
    </message>
    <message>
        <source>Weight </source>
        <translation>Gewicht </translation>
    </message>
    <message>
        <source>Breast, Waist, Hips </source>
        <translation>Brust, Taille, Hüfte </translation>
    </message>
    <message>
        <source>Body &amp;Measurement</source>
        <translation>Körper&amp;messung</translation>
    </message>
    <message>
        <source>&amp;Personal Notes</source>
        <translation>&amp;Persönliche Notizen</translation>
    </message>
</context>
<context>
    <name>frmPassword</name>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Current Password</source>
        <translation>Aktuelles Passwort</translation>
    </message>
    <message>
        <source>&amp;Take the password away</source>
        <translation>Passwort &amp;entfernen</translation>
    </message>
    <message>
        <source>New Password</source>
        <translation>Neues Passwort</translation>
    </message>
    <message>
        <source>Repeated Password</source>
        <translation>Wiederholtes Passwort</translation>
    </message>
    <message>
        <source>The journal is locked with a password of your own.</source>
        <translation>Das Tagebuch ist mit einem eigenen Passwort gesperrt.</translation>
    </message>
    <message>
        <source>The journal has no password of your own: everyone who can read its file can open it.</source>
        <translation>Das Tagebuch hat kein eigenes Passwort: Wer seine Datei lesen kann, kann sie öffnen.</translation>
    </message>
    <message>
        <source>C&amp;urrent password</source>
        <translation>Ak&amp;tuelles Passwort</translation>
    </message>
    <message>
        <source>&amp;New password</source>
        <translation>&amp;Neues Passwort</translation>
    </message>
    <message>
        <source>&amp;Repeat it</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>A forgotten password can&apos;t be recovered: nobody can open the journal then. Backups made before stay as they are, and open with the password that the journal had then, or with none.</source>
        <translation>Ein vergessenes Passwort lässt sich nicht wiederherstellen: Niemand kann das Tagebuch dann öffnen. Frühere Sicherungen bleiben, wie sie sind, und öffnen sich mit dem damaligen Passwort des Tagebuchs oder ohne.</translation>
    </message>
    <message>
        <source>This password does not open %1</source>
        <translation>Dieses Passwort öffnet %1 nicht</translation>
    </message>
    <message>
        <source>The New Password can&apos;t begin with raw: or with x&apos;</source>
        <translation>Das neue Passwort darf nicht mit raw: oder x&apos; beginnen</translation>
    </message>
    <message>
        <source>The two passwords are not the same</source>
        <translation>Die beiden Passwörter sind nicht gleich</translation>
    </message>
    <message>
        <source>The password can&apos;t be changed</source>
        <translation>Das Passwort kann nicht geändert werden</translation>
    </message>
    <message>
        <source>The journal has no password any more.</source>
        <translation>Das Tagebuch hat kein Passwort mehr.</translation>
    </message>
    <message>
        <source>The journal is locked with its new password, which will be asked for at the next start.</source>
        <translation>Das Tagebuch ist mit seinem neuen Passwort gesperrt. Beim nächsten Start wird danach gefragt.</translation>
    </message>
</context>
<context>
    <name>frmQuickAdd</name>
    <message>
        <source>&amp;What was eaten or done</source>
        <translation>&amp;Was gegessen oder getan wurde</translation>
    </message>
    <message>
        <source>2 banana %1</source>
        <translation>2 banana %1</translation>
    </message>
    <message>
        <source>Quick Add</source>
        <translation>Schnelleintrag</translation>
    </message>
    <message>
        <source>What was eaten or done</source>
        <translation>Was gegessen oder getan wurde</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Ein&amp;tragen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>The entry can&apos;t be stored</source>
        <translation>Der Eintrag kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Eingetragen: %1</translation>
    </message>
    <message>
        <source>The list can&apos;t be read; it shows what it showed before</source>
        <translation>Die Liste kann nicht gelesen werden; sie zeigt, was sie zuvor gezeigt hat</translation>
    </message>
</context>
<context>
    <name>frmRestore</name>
    <message>
        <source>Days: %1 to %2</source>
        <translation>Tage: %1 bis %2</translation>
    </message>
    <message>
        <source>Days: none</source>
        <translation>Tage: keine</translation>
    </message>
    <message>
        <source>Meals eaten: %1, activities performed: %2</source>
        <translation>Verzehrte Speisen: %1, ausgeübte Aktivitäten: %2</translation>
    </message>
    <message>
        <source>Body measurements: %1, notes: %2</source>
        <translation>Körpermessungen: %1, Notizen: %2</translation>
    </message>
    <message>
        <source>In the catalogues: %1 meals in %2 categories, %3 activities</source>
        <translation>In den Katalogen: %1 Speisen in %2 Kategorien, %3 Aktivitäten</translation>
    </message>
    <message>
        <source>The file can be opened and is whole.</source>
        <translation>Die Datei lässt sich öffnen und ist vollständig.</translation>
    </message>
    <message>
        <source>Restore a Backup</source>
        <translation>Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Other File…</source>
        <translation>Andere &amp;Datei…</translation>
    </message>
    <message>
        <source>&amp;Password…</source>
        <translation>&amp;Passwort…</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Backups</source>
        <translation>&amp;Sicherungen</translation>
    </message>
    <message>
        <source>Choose a Backup</source>
        <translation>Sicherung wählen</translation>
    </message>
    <message>
        <source>Journals (*.mdb)</source>
        <translation>Tagebücher (*.mdb)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>There is no backup yet in the folder of the settings. Choose a file.</source>
        <translation>Im Ordner der Einstellungen ist noch keine Sicherung. Wählen Sie eine Datei.</translation>
    </message>
    <message>
        <source>It can&apos;t be restored. %1</source>
        <translation>Sie kann nicht wiederhergestellt werden. %1</translation>
    </message>
    <message>
        <source>It is the journal itself.</source>
        <translation>Sie ist das Tagebuch selbst.</translation>
    </message>
    <message>
        <source>It is locked with another password than the journal. Press Password… to type it.</source>
        <translation>Sie ist mit einem anderen Passwort gesperrt als das Tagebuch. Drücken Sie „Passwort…“, um es einzugeben.</translation>
    </message>
    <message>
        <source>This will replace all that the journal holds now, its catalogues and the common parameters, too, by what the backup holds.</source>
        <translation>Damit wird alles, was das Tagebuch jetzt enthält, auch seine Kataloge und die allgemeinen Angaben, durch den Inhalt der Sicherung ersetzt.</translation>
    </message>
    <message>
        <source>The journal as it is now will be backed up first, and Undo can take the restoring back.</source>
        <translation>Das jetzige Tagebuch wird vorher gesichert, und das Wiederherstellen lässt sich rückgängig machen.</translation>
    </message>
    <message>
        <source>Are you sure you want to restore the backup now?</source>
        <translation>Möchten Sie die Sicherung jetzt wirklich wiederherstellen?</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>Sind Sie sicher?</translation>
    </message>
    <message>
        <source>Restoring the backup…</source>
        <translation>Die Sicherung wird wiederhergestellt…</translation>
    </message>
    <message>
        <source>Restoring a Backup</source>
        <translation>Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>The backup can&apos;t be restored</source>
        <translation>Die Sicherung kann nicht wiederhergestellt werden</translation>
    </message>
    <message>
        <source>The restoring was cancelled. The journal is as it was before.</source>
        <translation>Das Wiederherstellen wurde abgebrochen. Das Tagebuch ist, wie es vorher war.</translation>
    </message>
    <message>
        <source>The backup is restored. The journal as it was before is backed up in the folder %1</source>
        <translation>Die Sicherung ist wiederhergestellt. Das vorherige Tagebuch ist gesichert im Ordner %1</translation>
    </message>
    <message>
        <source>The common parameters can&apos;t be read anew. What was stored is stored</source>
        <translation>Die allgemeinen Angaben können nicht neu gelesen werden. Was gespeichert wurde, ist gespeichert</translation>
    </message>
</context>
<context>
    <name>frmUnlock</name>
    <message>
        <source>Locked Journal</source>
        <translation>Gesperrtes Tagebuch</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>%1 is locked with a password.</source>
        <translation>%1 ist mit einem Passwort gesperrt.</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Passwort</translation>
    </message>
    <message>
        <source>This password does not open %1</source>
        <translation>Dieses Passwort öffnet %1 nicht</translation>
    </message>
</context>
<context>
    <name>frmUserNote</name>
    <message>
        <source>User Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Date From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Date To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>User Note Text</source>
        <translation>Text der Notiz</translation>
    </message>
    <message>
        <source>Date &amp;From</source>
        <translation>&amp;Von</translation>
    </message>
    <message>
        <source>Date &amp;To</source>
        <translation>&amp;Bis</translation>
    </message>
    <message>
        <source>&amp;User Note Text</source>
        <translation>&amp;Text der Notiz</translation>
    </message>
    <message>
        <source>The Date To is less than Date From</source>
        <translation>„Bis“ liegt vor „Von“</translation>
    </message>
    <message>
        <source>Note text</source>
        <translation>Text der Notiz</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Überschneidung</translation>
    </message>
    <message>
        <source>This note intersects in time with the following another note: </source>
        <translation>Diese Notiz überschneidet sich zeitlich mit der folgenden anderen Notiz: </translation>
    </message>
    <message>
        <source>The intersections are not allowed.</source>
        <translation>Überschneidungen sind nicht erlaubt.</translation>
    </message>
    <message>
        <source>Tip: You can split notes with big time periods to smaller pieces</source>
        <translation>Tipp: Sie können Notizen über lange Zeiträume in kleinere aufteilen</translation>
    </message>
</context>
<context>
    <name>frmWeightAdjustment</name>
    <message>
        <source>Weight Adjustment</source>
        <translation>Gewichtsanpassung</translation>
    </message>
    <message>
        <source>For Weight</source>
        <translation>Für Gewicht</translation>
    </message>
    <message>
        <source>Calories</source>
        <translation>Kalorien</translation>
    </message>
    <message>
        <source>Calories field contains illegal value</source>
        <translation>Das Feld „Kalorien“ enthält einen ungültigen Wert</translation>
    </message>
    <message>
        <source>For Weight field contains illegal value</source>
        <translation>Das Feld „Für Gewicht“ enthält einen ungültigen Wert</translation>
    </message>
    <message>
        <source>For Weight should be other than 0</source>
        <translation>„Für Gewicht“ muss ungleich 0 sein</translation>
    </message>
    <message>
        <source>Please enter the data as you find them in your source of information: a book, a sport guide or the Internet.</source>
        <translation>Bitte geben Sie die Daten so ein, wie Sie sie in Ihrer Quelle finden: in einem Buch, einem Sportratgeber oder im Internet.</translation>
    </message>
    <message>
        <source>For &amp;Weight</source>
        <translation>Für &amp;Gewicht</translation>
    </message>
    <message>
        <source>Ca&amp;lories</source>
        <translation>&amp;Kalorien</translation>
    </message>
    <message>
        <source>The calories for your weight are out of range (-32768 to 32767)</source>
        <translation>Die Kalorien für Ihr Gewicht liegen außerhalb des Wertebereichs (-32768 bis 32767)</translation>
    </message>
</context>
<context>
    <name>itemWords</name>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>progress::PictureDialog</name>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>Sind Sie sicher?</translation>
    </message>
    <message>
        <source>There is a file %1 already. Do you want to replace it?</source>
        <translation>Es gibt bereits eine Datei %1. Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>Can&apos;t save the picture: %1. Please choose another name or folder</source>
        <translation>Das Bild kann nicht gespeichert werden: %1. Bitte wählen Sie einen anderen Namen oder Ordner</translation>
    </message>
</context>
<context>
    <name>progress::ProgressTexts</name>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>No measurements in this period</source>
        <translation>Keine Messungen in diesem Zeitraum</translation>
    </message>
    <message>
        <source>No meals or activities in this period</source>
        <translation>Keine Speisen oder Aktivitäten in diesem Zeitraum</translation>
    </message>
    <message>
        <source>measured</source>
        <translation>gemessen</translation>
    </message>
    <message>
        <source>filled in</source>
        <translation>ergänzt</translation>
    </message>
    <message>
        <source>target</source>
        <translation>Zielwert</translation>
    </message>
    <message>
        <source>filled in, off the scale</source>
        <translation>ergänzt, außerhalb der Skala</translation>
    </message>
    <message>
        <source>surplus</source>
        <translation>Überschuss</translation>
    </message>
    <message>
        <source>deficit</source>
        <translation>Defizit</translation>
    </message>
    <message>
        <source>average</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>not recorded</source>
        <translation>nicht eingetragen</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Herkunft</translation>
    </message>
    <message>
        <source>Balance (kcal)</source>
        <translation>Bilanz (kcal)</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Breast</source>
        <translation>Brust</translation>
    </message>
    <message>
        <source>Waist</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Hips</source>
        <translation>Hüfte</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Girths (%1)</source>
        <translation>Umfänge (%1)</translation>
    </message>
    <message>
        <source>Daily balance (kcal)</source>
        <translation>Tagesbilanz (kcal)</translation>
    </message>
    <message>
        <source>%1 %2 a week</source>
        <translation>%1 %2 pro Woche</translation>
    </message>
    <message>
        <source>not measured</source>
        <translation>nicht gemessen</translation>
    </message>
    <message>
        <source>measured on fewer than %1 days in four weeks</source>
        <translation>an weniger als %1 Tagen in vier Wochen gemessen</translation>
    </message>
    <message>
        <source>measured within less than a week</source>
        <translation>innerhalb von weniger als einer Woche gemessen</translation>
    </message>
    <message>
        <source>the last four weeks</source>
        <translation>die letzten vier Wochen</translation>
    </message>
    <message>
        <source>the four weeks to %1</source>
        <translation>die vier Wochen bis %1</translation>
    </message>
    <message>
        <source>%1 over %2 (%3 days)</source>
        <translation>%1 über %2 (%3 Tage)</translation>
    </message>
    <message>
        <source>trend: %1</source>
        <translation>Trend: %1</translation>
    </message>
    <message>
        <source>trend: %1 (%2 days)</source>
        <translation>Trend: %1 (%2 Tage)</translation>
    </message>
    <message>
        <source>trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 a week</source>
        <translation>%1 pro Woche</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>too few days for a trend</source>
        <translation>zu wenige Tage für einen Trend</translation>
    </message>
    <message>
        <source>too few days</source>
        <translation>zu wenige Tage</translation>
    </message>
    <message>
        <source>for a trend</source>
        <translation>für einen Trend</translation>
    </message>
    <message>
        <source>no trend</source>
        <translation>kein Trend</translation>
    </message>
    <message>
        <source>Average balance</source>
        <translation>Mittlere Bilanz</translation>
    </message>
    <message>
        <source>%1 kcal a day</source>
        <translation>%1 kcal pro Tag</translation>
    </message>
    <message>
        <source>Days with calories</source>
        <translation>Tage mit Kalorien</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Changes over the period: %1</source>
        <translation>Änderungen im Zeitraum: %1</translation>
    </message>
    <message>
        <source>. Trend: %1</source>
        <translation>. Trend: %1</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1
(the beginning of %2 characters)</source>
        <translation>%1
(der Anfang von %2 Zeichen)</translation>
    </message>
    <message>
        <source>%1: not measured</source>
        <translation>%1: nicht gemessen</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>%1 (filled in)</source>
        <translation>%1 (ergänzt)</translation>
    </message>
    <message>
        <source>Balance: no meals or activities recorded</source>
        <translation>Bilanz: keine Speisen oder Aktivitäten eingetragen</translation>
    </message>
    <message>
        <source>Balance: %1 kcal</source>
        <translation>Bilanz: %1 kcal</translation>
    </message>
    <message>
        <source>%1, less eaten than burnt</source>
        <translation>%1, weniger gegessen als verbraucht</translation>
    </message>
    <message>
        <source>%1, more eaten than burnt</source>
        <translation>%1, mehr gegessen als verbraucht</translation>
    </message>
    <message>
        <source>Trend %1 %2</source>
        <translation>Trend %1 %2</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Notiz: %1</translation>
    </message>
    <message>
        <source>There are no measurements, meals, activities or notes in this period.</source>
        <translation>In diesem Zeitraum gibt es keine Messungen, Speisen, Aktivitäten oder Notizen.</translation>
    </message>
    <message>
        <source>Week of</source>
        <translation>Woche ab</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Eaten (kcal)</source>
        <translation>Gegessen (kcal)</translation>
    </message>
    <message>
        <source>Burnt (kcal)</source>
        <translation>Verbraucht (kcal)</translation>
    </message>
    <message>
        <source>Fat (%)</source>
        <translation>Fett (%)</translation>
    </message>
    <message>
        <source>Carboh. (%)</source>
        <translation>Kohlenh. (%)</translation>
    </message>
    <message>
        <source>Protein (%)</source>
        <translation>Eiweiß (%)</translation>
    </message>
    <message>
        <source>Change (%1)</source>
        <translation>Änderung (%1)</translation>
    </message>
    <message>
        <source>The first day of the week, or of what the period has of it</source>
        <translation>Der erste Tag der Woche oder dessen, was der Zeitraum von ihr hat</translation>
    </message>
    <message>
        <source>Days with a meal or an activity, of the days of the week that lie in the period</source>
        <translation>Tage mit einer Speise oder Aktivität, von den Tagen der Woche, die im Zeitraum liegen</translation>
    </message>
    <message>
        <source>A day, on average of the days with a meal or an activity</source>
        <translation>Pro Tag, im Durchschnitt der Tage mit einer Speise oder Aktivität</translation>
    </message>
    <message>
        <source>Share of the calories that come from nutrients</source>
        <translation>Anteil an den Kalorien, die aus Nährstoffen stammen</translation>
    </message>
    <message>
        <source>Mean of the measured days</source>
        <translation>Mittelwert der gemessenen Tage</translation>
    </message>
    <message>
        <source>Of the mean weight, from the week before</source>
        <translation>Des mittleren Gewichts, gegenüber der Woche davor</translation>
    </message>
</context>
<context>
    <name>progress::TargetTexts</name>
    <message>
        <source>too few days for a trend</source>
        <translation>zu wenige Tage für einen Trend</translation>
    </message>
    <message>
        <source>reached</source>
        <translation>erreicht</translation>
    </message>
    <message>
        <source>not reached by the present trend</source>
        <translation>beim jetzigen Trend nicht erreicht</translation>
    </message>
    <message>
        <source>reached %1 by the present trend</source>
        <translation>beim jetzigen Trend %1 erreicht</translation>
    </message>
    <message>
        <source>%1: target %2 %3</source>
        <translation>%1: Zielwert %2 %3</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>about early %1</source>
        <translation>etwa Anfang %1</translation>
    </message>
    <message>
        <source>about mid-%1</source>
        <translation>etwa Mitte %1</translation>
    </message>
    <message>
        <source>about late %1</source>
        <translation>etwa Ende %1</translation>
    </message>
</context>
<context>
    <name>progress::WeekTexts</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
</context>
<context>
    <name>units</name>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>lb</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>Zoll</translation>
    </message>
</context>
</TS>
