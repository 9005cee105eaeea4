<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutBoxTexts</name>
    <message>
        <source>About the Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A journal of what you eat, do and weigh.

Your journal is the file Corvana.mdb in the program folder. Copy that folder to keep it safe.

Free software under the MIT licence.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ActionRecording</name>
    <message>
        <source>Common Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body Measurement of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changing %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BackupError</name>
    <message>
        <source>There is no room for a copy of it in the folder for temporary files, on which it is tried.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is missing or empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file can&apos;t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 beside it was left by a store that was cut short, but not in this file. Copy the file alone into another folder and restore it from there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is damaged: a store was cut short in it and can&apos;t be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no journal of this program, has another password, or is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no journal of this program: a table or a column is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was written by a newer program: it has tables or columns that are unknown here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not whole: entries in it refer to records that are missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy is not whole, since the journal&apos;s file is damaged. The help page &quot;Your data&quot; says how to go on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy does not hold what the journal holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file Corvana.ini can&apos;t be copied.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BackupPlaceDialog</name>
    <message>
        <source>Back Up into Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backing up the journal…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal can&apos;t be backed up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal is backed up, and the copy has been checked. It is in the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CheckTexts</name>
    <message>
        <source>Meal categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The increment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The amount of fat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The amount of carbohydrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The amount of protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of calories from fat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of calories from carbohydrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of calories from protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of calories burnt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of base calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mark for dependence on weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meals consumed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activities performed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The breast measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The waist measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The hips measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A counter of identifiers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Common parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The background burn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The day of the installation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>binary data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no text: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is neither M nor I: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no day: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no number: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is outside the day: %2 of a day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is negative: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is out of range: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the pages and indexes of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the references from record to record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>identifiers, names, numbers, dates and times of %1 records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>notes that share days, days with several measurements, activities that don&apos;t end after they begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the counters of identifiers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A page of the file is damaged. This could not be checked to the end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are more findings like these: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its meal category does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its meal does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its activity does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>record %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its identifier is out of range: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It does not end after it begins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are several measurements on this day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It ends before it begins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It shares days with a note before it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The counter %1 is at %2, but there is a record %3: new records may be refused.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CsvTexts</name>
    <message>
        <source>A quotation mark is not closed, or stands within a cell: the cell has to be quoted and the mark doubled.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DayDialog</name>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DayList</name>
    <message>
        <source>The day can&apos;t be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>   Total (%1 items)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DayView</name>
    <message>
        <source>Daily Chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H&amp;elp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal contains sample data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De&amp;lete It</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete sample data</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DaysTable</name>
    <message>
        <source>Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values in brackets were not measured. They are filled in from the measurements before and after.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EntryCopying</name>
    <message numerus="yes">
        <source>Copying %n Entries</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries copied to %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 copied to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed an entry meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy can&apos;t be stored</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EntryMenu</name>
    <message>
        <source>&amp;Show What Was Eaten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show What Was Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to &amp;Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy t&amp;o…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message>
        <source>The new folder can&apos;t be given its name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldMessages</name>
    <message>
        <source>The %1 should be specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 field contains illegal data</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FormDialog</name>
    <message>
        <source>New record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpButton</name>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpViewer</name>
    <message>
        <source>Can&apos;t open the help file Corvana.hlp. Please make sure it is present in the program folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The help file Corvana.hlp is damaged. Please put back the one that came with the program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corvana Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Con&amp;tents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportColumns</name>
    <message>
        <source>Of the journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where it is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(none)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>year, month, day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>day, month, year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>month, day, year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 where it is empty</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportFieldTexts</name>
    <message>
        <source>Meal categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carbohydrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat by calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carbohydrate by calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein by calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight dependent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meals consumed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activities performed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit of the weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Breast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit of the girths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportFileTexts</name>
    <message>
        <source>Its first line has to name the columns.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportPlanTexts</name>
    <message>
        <source>It has %1 cells, and the first line has %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number is outside the range of what can be stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the journal has room for %2 more records, and the files hold %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportRecordTexts</name>
    <message>
        <source>The unit is unknown: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The end is not after the begin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no meal of this name: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no activity of this name: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit system is neither M nor I: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was measured.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1 has a measurement of the same day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It ends before it begins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It shares days with the note on line %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It shares days with a note of the journal: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportRowTexts</name>
    <message>
        <source>%1 is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is longer than 32,767 letters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is out of range: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no number: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no date: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no time: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportStoreTexts</name>
    <message>
        <source>Another program has changed the journal meanwhile. The numbers shown now are those with its changes: please look at them again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportTextWords</name>
    <message>
        <source>It is no text in UTF-8, UTF-16 or Windows-1252.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is larger than 100 MB.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JournalEntryEditor</name>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added: %1, %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MealCategoryChooser</name>
    <message>
        <source>Meal Category</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordBox</name>
    <message>
        <source>&amp;Show what is typed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgressBox</name>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgressChart</name>
    <message>
        <source>General progress chart. %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuickAddTexts</name>
    <message>
        <source>weight %1 g</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>volume %1 ml</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kcal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quantity %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>time %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>can&apos;t be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Understood: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuickEntryTexts</name>
    <message>
        <source>%1 has no calories to count by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit of %1, %2, names no weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The unit of %1, %2, names no volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is too little to be counted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A meal has one time and takes none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It would begin on the day before: say from when to when</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say how long it took, as in &quot;45 min&quot;, or from when to when</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are two quantities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The quantity is too large</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordEditor</name>
    <message>
        <source>%1 - New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t store this record in database. Please check whether all data are valid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordFinder</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it can be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A part of a name and, as you like, a quantity or a weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A part of a name and, as you like, a quantity, a weight, a time, a duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a part of a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No meal has all of these words in its name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No activity has all of these words in its name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No meal or activity has all of these words in its name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordList</name>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No record selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record can&apos;t be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This record can&apos;t be deleted because there are records in the database, which refer to it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This record can&apos;t be deleted from database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list can&apos;t be read; it shows what it showed before</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RefusalTexts</name>
    <message>
        <source>Another program is using the database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk reported an error at the very end: the change may have been stored. Please look before you repeat it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database file can&apos;t be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database file is damaged. Please keep a copy of it as it is; the help page &quot;Your data&quot; says how to go on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database file is locked with another password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has put another file in the place of the database file, or has changed its password. Please end this program and start it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record has been deleted meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed the record since it was opened. Stored once more, your values take the place of the other ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed the common parameters meanwhile. Please check your values against the units that stand beside them now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number is outside the range of what can be stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records that can&apos;t be shown, since their identifiers are out of range: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There may be more records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last action could not be carried out</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RemovalTexts</name>
    <message>
        <source>Are you sure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected record?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>The file Corvana.mdb-journal beside it was left by a store that was cut short, but not in this Corvana.mdb: it would spoil it. Have you put back a copy? Then move Corvana.mdb-journal into another folder and start again. Nothing has been changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A store was cut short, and the file is damaged: undoing the store with Corvana.mdb-journal does not make it whole. Copy both files into another folder and keep them. Then put back your last copy of Corvana.mdb, or, where you have none, remove Corvana.mdb-journal only, to see what can still be read. Nothing has been changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A store was cut short and has to be undone, which is tried on a copy first, but there is no room for it in the folder for temporary files. Please make room and start again. Nothing has been changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Severe Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program can&apos;t start: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your newest backup, of %1, is in the folder %2. To bring it back, move what there is of Corvana.mdb and Corvana.mdb-journal out of the program folder, copy Corvana.mdb from the backup into it, and start again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password is right, but the file is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
The program folder is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t access database. Please make sure the database file Corvana.mdb is present in the program folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The body weight or the background calories are no number that the program can hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please set them anew: Settings, Common.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file Corvana.ini in the program folder is damaged or can&apos;t be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It remembers that the first start is done, and that is taken for granted now: no date in your journal is changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Because it is a very first start of this program, you will be prompted now to specify common parameters.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrellumGraph</name>
    <message>
        <source>Daily calorie chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the list</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpDownSpinner</name>
    <message>
        <source>Increase %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decrease %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WeeksTable</name>
    <message>
        <source>Weeks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eaten, burnt and balance are averages a day, over the days with a meal or an activity; the weight is the mean of the measured days.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>daychart::ChartTexts</name>
    <message>
        <source>%1 kcal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kcal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kcal per minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carbohydrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eaten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Burnt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>so far</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over budget</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No meals yet. Click at a time to add one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No activities yet. Click at a time to add one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal at %1, %2: carbohydrate %3, fat %4, protein %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity from %1 to %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New meal at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New activity at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meals: open the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activities: open the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 less eaten than burnt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 more eaten than burnt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eaten %1, burnt %2 of which %3 by activities, balance %4. Meals: %5. Activities: %6.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So far, at %1, %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of a budget of %1, %2 too much was eaten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of a budget of %1, %2 are left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawn: the first %1 of %2 meals. The totals count all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawn: the first %1 of %2 activities. The totals count all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kcal per minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
Balance at that time: %2 kcal</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmBackupSettings</name>
    <message>
        <source>Backup Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back up &amp;automatically once a week, at the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backups to keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backups can&apos;t be written into this folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backups to &amp;keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of the Backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings can&apos;t be kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file Corvana.ini in the program folder can&apos;t be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmBody</name>
    <message>
        <source>Body Measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Breast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Breast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W&amp;aist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hi&amp;ps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Weight is not specified or contains illegal data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Breast measurement is not specified or contains illegal data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Waist measurement is not specified or contains illegal data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Hips measurement is not specified or contains illegal data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is already Body Measurement for this date in the database. Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmCheckJournal</name>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal is being checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;opy as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal can&apos;t be checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal has not been checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checked were:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal is sound: nothing was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Findings: %1. Nothing has been changed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmCommon</name>
    <message>
        <source>Common Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Calories Consume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imperial (lb, inch)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metric (kg, cm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Weight is not specified or specified incorrect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Background Calories Consume is not specified or specified incorrect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body &amp;Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Background Calories Consume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>per hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All existing data will be recalculated according with new common parameters. Your results may change now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t store information in database.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmComposeMeal</name>
    <message>
        <source>Compose a Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ingredient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories of the quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grams of fat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carboh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grams of carbohydrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grams of protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create &amp;Meal…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add an ingredient first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Portions value should be a number above 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ingredient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>150 g rice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ingredients of the meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chan&amp;ge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Portions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat (g)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carbohydrate (g)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein (g)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per portion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An ingredient takes a quantity or a weight, and no time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>portion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The figures of a portion are too large</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmCopyDay</name>
    <message>
        <source>Copy from Another Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day to copy from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal or Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories eaten or burnt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check &amp;None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entries to copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep the times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Shift the times by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Span in hours and minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Earlier or later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>earlier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied to: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Day to Copy from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hours:minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day to Copy from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No entry is checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The span should be hours and minutes, such as 1:30, and less than a day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is recorded on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The day can&apos;t be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at %2 would leave the day when shifted by this span. Nothing was copied.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmCopyTo</name>
    <message>
        <source>Copy %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day to copy to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmDate</name>
    <message>
        <source>Set Current Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmExercise</name>
    <message>
        <source>Activity Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories Consume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;For Me</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight Adjustment Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Weight Dependent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity &amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ca&amp;lories Consume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Default Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>per unit, for my body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>per unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This activity is body weight dependent. Are you sure you&apos;ve specified the Calories Consume value exactly for your body weight? If No, please press &apos;For Me&apos; button and use our weight adjustment calculator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t store this record in database. Please check whether there is already Activity with the same name in the database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An activity of this name exists already.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmExercisePerform</name>
    <message>
        <source>Activity Performed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ac&amp;tivity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Begin Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;End Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Exercise is not specified or specified incorrect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The End Time value should be more than the Begin Time value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmExercisePerforms</name>
    <message>
        <source>Activities Performed List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date &amp;Performed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Performed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exercise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories consumed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmExercises</name>
    <message>
        <source>Activities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exercise Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories consumed per unit, for your body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the activity is counted in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Def. Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default quantity: proposed for a new entry</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmExport</name>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The &amp;whole journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A &amp;period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For &amp;other programs: commas, decimal points, ISO dates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For &amp;spreadsheets: numbers and dates as they are written in your region</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fo&amp;lder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Date To is less than Date From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder for the Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal can&apos;t be exported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal has been exported to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The export was cancelled. Nothing has been written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmGeneralProgress</name>
    <message>
        <source>The progress can&apos;t be shown: a measurement or the balance of %1 is too large. Please correct it and try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The progress can&apos;t be shown: a measurement of this period is too large. Please correct it and try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The progress can&apos;t be shown: the period has too many days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;opy Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Weeks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The period before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The period after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No notes in this period.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The period can&apos;t be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t print. Please check whether your default printer is accessible</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmGeneralProgressSettings</name>
    <message>
        <source>General Progress Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;1 Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;3 Months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;6 Months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Date From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For Period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not enough data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Present data cover less then 30% of selected time period. The Chart will be too small. Build the Chart anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data selected to be shown on Chart are not contiguous. Either Calories data (meal/activity) are not present for every day or Body measurement is not present for each 3 days period. The Chart will be ripped. Build the Chart anyway?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmGoals</name>
    <message>
        <source>Goals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The measured weight can&apos;t be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reached b&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date of the Target Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target Breast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target Waist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target Hips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A &amp;fixed number of calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daily Budget</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the day burns, &amp;less a deficit of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daily Deficit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kcal a day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Targets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Breast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W&amp;aist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hi&amp;ps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daily budget</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kcal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Breast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 must be more than 0 and at most %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 must be a whole number from 1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 a week, %3 % of your weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From %1 %2 to the target by then: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The date of the target weight is not ahead any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The deficit comes to about %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than 1 % of the body&apos;s weight a week is unhealthily fast.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to keep these goals all the same?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The goals can&apos;t be kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file Corvana.ini in the program folder can&apos;t be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmImport</name>
    <message>
        <source>tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>semicolons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>commas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. Not imported: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records that come in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records that are updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records that exist already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines that can&apos;t be imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fol&amp;der…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the file holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(not imported)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Co&amp;lumns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first records as they would be stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines with a fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Co&amp;py as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fa&amp;ults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stay as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>are updated by the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stay, and the new one gets a number behind its name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file h&amp;olds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records that e&amp;xist already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Files to Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables of text (*.csv *.tsv *.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the Folder of an Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no file in this folder that could be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What can&apos;t be read is left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal can&apos;t be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose files of comma-separated values, or the folder of an export. Nothing is stored before you have seen what would come in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: choose a column for %2, or say what stands where it is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New: %1. Updated: %2. There already: %3. Lines with a fault, which are left out: %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Categories that are made: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fa&amp;ults (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files can&apos;t be imported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The import is stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The import was cancelled. Nothing has been stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Importing %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Importing %1 Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Last backup: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No backup yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The automatic backup failed: %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal Consumed &amp;List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activities Performed &amp;List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Meal at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Activity at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record can&apos;t be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This record can&apos;t be deleted from database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not shown in full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be shown; the chart stays as it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chart can&apos;t be drawn anew. What was stored before is stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t print. Please check whether your default printer is accessible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will delete trial data supplied with the program as the sample.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It refers to Meal Consumed, Exercise Performed, Body Measurement and User Notes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neither Meal Description, Exercise Description nor any data you&apos;ve entered yourself will be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete trial data now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting Trial Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The trial data can&apos;t be deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Operate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Meal Consumed List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal Consume List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;ctivities Performed List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activities Performed List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;dd Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Body Measurement and Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body Measurement &amp; Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Body Measu&amp;rement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print Daily Chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Daily Chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Set Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Trial Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quick Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy from Another Day…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compose a &amp;Meal…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to &amp;Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>G&amp;oals…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back Up…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;store…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup Settin&amp;gs…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chec&amp;k Journal…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass&amp;word…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Analyze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;General Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal &amp;Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configure Meal Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configure Meals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Activities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configure Activities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ommon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About the Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Main Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed meanwhile what it would change. Nothing was done, and the step is left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be undone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be redone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The common parameters can&apos;t be read anew. What was stored is stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMeal</name>
    <message>
        <source>Meal Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories per Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat by Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carbohydrate by Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein by Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat by Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carbohydrate by Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein by Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal Cate&amp;gory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Meal Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Default Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Increment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Car&amp;bohydr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carboh&amp;ydr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pro&amp;tein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Meal Category is not specified or specified incorrect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CarboHydrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t store this record in database. Please check whether there is already Meal with the same name in the database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A meal of this name exists already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ca&amp;lories per Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ca&amp;lories per %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMealCategories</name>
    <message>
        <source>Meal Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal Category Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMealCategory</name>
    <message>
        <source>Meal Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal Category Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal Category &amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t store this record in database. Please check whether there is already Meal Category with the same name in the database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A meal category of this name exists already.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMealConsume</name>
    <message>
        <source>Meal Consumed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal Cate&amp;gory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat Cal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carboh. Cal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein Cal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Meal Category is not specified or specified incorrect</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMealConsumes</name>
    <message>
        <source>Meal Consumed List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Consume Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consume Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories from fat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carboh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories from carbohydrate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories from protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories in all</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMeals</name>
    <message>
        <source>Meals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the meal is counted in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat per unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CarboHyd.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carbohydrate per unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein per unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories per unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Def.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default quantity: proposed for a new entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increment: step by which the quantity is changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meal Cate&amp;gory</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMeasurements</name>
    <message>
        <source>Body Measurement and Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Breast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body Measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Personal Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date &amp;From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Breast, Waist, Hips </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body &amp;Measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Personal Notes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmPassword</name>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take the password away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeated Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal is locked with a password of your own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal has no password of your own: everyone who can read its file can open it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;urrent password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Repeat it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A forgotten password can&apos;t be recovered: nobody can open the journal then. Backups made before stay as they are, and open with the password that the journal had then, or with none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This password does not open %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The New Password can&apos;t begin with raw: or with x&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The two passwords are not the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password can&apos;t be changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal has no password any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal is locked with its new password, which will be asked for at the next start.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmQuickAdd</name>
    <message>
        <source>&amp;What was eaten or done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 banana %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was eaten or done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entry can&apos;t be stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list can&apos;t be read; it shows what it showed before</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmRestore</name>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days: %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days: none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meals eaten: %1, activities performed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body measurements: %1, notes: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the catalogues: %1 meals in %2 categories, %3 activities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file can be opened and is whole.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore a Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Other File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Journals (*.mdb)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no backup yet in the folder of the settings. Choose a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It can&apos;t be restored. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is the journal itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is locked with another password than the journal. Press Password… to type it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This will replace all that the journal holds now, its catalogues and the common parameters, too, by what the backup holds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The journal as it is now will be backed up first, and Undo can take the restoring back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to restore the backup now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restoring the backup…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restoring a Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup can&apos;t be restored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The restoring was cancelled. The journal is as it was before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup is restored. The journal as it was before is backed up in the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The common parameters can&apos;t be read anew. What was stored is stored</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmUnlock</name>
    <message>
        <source>Locked Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is locked with a password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This password does not open %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmUserNote</name>
    <message>
        <source>User Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Note Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date &amp;From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date &amp;To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User Note Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Date To is less than Date From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This note intersects in time with the following another note: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The intersections are not allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip: You can split notes with big time periods to smaller pieces</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmWeightAdjustment</name>
    <message>
        <source>Weight Adjustment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calories field contains illegal value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For Weight field contains illegal value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For Weight should be other than 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the data as you find them in your source of information: a book, a sport guide or the Internet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For &amp;Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ca&amp;lories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The calories for your weight are out of range (-32768 to 32767)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>itemWords</name>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>progress::PictureDialog</name>
    <message>
        <source>Save Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a file %1 already. Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t save the picture: %1. Please choose another name or folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>progress::ProgressTexts</name>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No measurements in this period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No meals or activities in this period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>filled in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>filled in, off the scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>surplus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>deficit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance (kcal)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Breast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Girths (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daily balance (kcal)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 a week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>measured on fewer than %1 days in four weeks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>measured within less than a week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the last four weeks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the four weeks to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 over %2 (%3 days)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>trend: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>trend: %1 (%2 days)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>trend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 a week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too few days for a trend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too few days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for a trend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no trend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kcal a day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days with calories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes over the period: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>. Trend: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
(the beginning of %2 characters)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: not measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (filled in)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance: no meals or activities recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance: %1 kcal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, less eaten than burnt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, more eaten than burnt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trend %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no measurements, meals, activities or notes in this period.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eaten (kcal)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Burnt (kcal)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fat (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carboh. (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protein (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first day of the week, or of what the period has of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days with a meal or an activity, of the days of the week that lie in the period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A day, on average of the days with a meal or an activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share of the calories that come from nutrients</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean of the measured days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the mean weight, from the week before</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>progress::TargetTexts</name>
    <message>
        <source>too few days for a trend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not reached by the present trend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reached %1 by the present trend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: target %2 %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about early %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about mid-%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about late %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>progress::WeekTexts</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>units</name>
    <message>
        <source>kg</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inch</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
