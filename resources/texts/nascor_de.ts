<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Fetal Weight Formula: </source>
        <translation>Gewichtsformel: </translation>
    </message>
    <message>
        <source>Days to Go:	%ld</source>
        <translation>Resttage:	%ld</translation>
    </message>
    <message>
        <source>Nascor Standard: </source>
        <translation>Nascor-Standard: </translation>
    </message>
    <message>
        <source>Menstrual Age (Weeks)</source>
        <translation>Gestationsalter (Wochen)</translation>
    </message>
    <message>
        <source>Biparietal Diameter (mm)</source>
        <translation>Biparietaler Durchmesser (mm)</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Head Circ (mm)</source>
        <translation>Kopfumfang (mm)</translation>
    </message>
    <message>
        <source>Abdo Circ (mm)</source>
        <translation>Abdomenumfang (mm)</translation>
    </message>
    <message>
        <source>Femur Length (mm)</source>
        <translation>Femurlänge (mm)</translation>
    </message>
    <message>
        <source>Estimated Fetal Weight (g)</source>
        <translation>Schätzgewicht (g)</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>Identifier:	</source>
        <translation>Patienten-ID:	</translation>
    </message>
    <message>
        <source>Gravida:	</source>
        <translation>Gravida:	</translation>
    </message>
    <message>
        <source>Fetus:	</source>
        <translation>Fetus:	</translation>
    </message>
    <message>
        <source>Date:	</source>
        <translation>Datum:	</translation>
    </message>
    <message>
        <source>EDD:	</source>
        <translation>ET:	</translation>
    </message>
    <message>
        <source>Menstrual Age:	</source>
        <translation>SSW:	</translation>
    </message>
    <message>
        <source>Exam Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Menstrual Age</source>
        <translation>SSW</translation>
    </message>
    <message>
        <source>BPD (mm)</source>
        <translation>BPD (mm)</translation>
    </message>
    <message>
        <source>HC (mm)</source>
        <translation>KU (mm)</translation>
    </message>
    <message>
        <source>AC (mm)</source>
        <translation>AU (mm)</translation>
    </message>
    <message>
        <source>FL (mm)</source>
        <translation>FL (mm)</translation>
    </message>
    <message>
        <source>EFW (g)</source>
        <translation>SG (g)</translation>
    </message>
    <message>
        <source>Projected</source>
        <translation>Projektion</translation>
    </message>
    <message>
        <source>z-score</source>
        <translation>z-Score</translation>
    </message>
    <message>
        <source>beyond the table</source>
        <translation>außerhalb der Tabelle</translation>
    </message>
    <message>
        <source> has no centiles of this measure</source>
        <translation> hat keine Perzentilen dieser Messgröße</translation>
    </message>
    <message>
        <source>Centiles: </source>
        <translation>Perzentilen: </translation>
    </message>
    <message>
        <source>, which fits weights by another formula alone: </source>
        <translation>, passt nur zu Gewichten nach einer anderen Formel: </translation>
    </message>
</context>
<context>
    <name>AdjustDelivery</name>
    <message>
        <source>Adjust Delivery</source>
        <translation>Entbindung planen</translation>
    </message>
    <message>
        <source>Estimated date of delivery</source>
        <translation>Errechneter Termin</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>ET</translation>
    </message>
    <message>
        <source>&amp;Days from the EDD</source>
        <translation>&amp;Tage ab ET</translation>
    </message>
    <message>
        <source>Delivery planned on</source>
        <translation>Entbindung geplant am</translation>
    </message>
    <message>
        <source>The day on which delivery is planned</source>
        <translation>Tag, für den die Entbindung geplant ist</translation>
    </message>
    <message>
        <source>Age at that date</source>
        <translation>SSW an diesem Tag</translation>
    </message>
    <message>
        <source>Menstrual age at the planned delivery, in weeks and days</source>
        <translation>Gestationsalter bei der geplanten Entbindung, in Wochen und Tagen</translation>
    </message>
    <message>
        <source>%1 to %2 days</source>
        <translation>%1 bis %2 Tage</translation>
    </message>
    <message>
        <source>Days from the EDD to the planned delivery, %1</source>
        <translation>Tage vom ET bis zur geplanten Entbindung, %1</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation>Kein Medizinprodukt. Nicht für die klinische Anwendung validiert.</translation>
    </message>
    <message>
        <source>No font is installed, so no text could be shown. Please install one, such as DejaVu Sans.</source>
        <translation>Es ist keine Schriftart installiert, daher kann kein Text angezeigt werden. Bitte installieren Sie eine, zum Beispiel DejaVu Sans.</translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>BPD</source>
        <translation>BPD</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>KU</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>AU</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>FL</translation>
    </message>
    <message>
        <source>EFW</source>
        <translation>SG</translation>
    </message>
    <message>
        <source>The age is not known.</source>
        <translation>Das Gestationsalter ist unbekannt.</translation>
    </message>
    <message>
        <source> has %ld to %ld weeks.</source>
        <translation> umfasst %ld bis %ld Wochen.</translation>
    </message>
    <message>
        <source> fits weights by another formula alone: </source>
        <translation> passt nur zu Gewichten nach einer anderen Formel: </translation>
    </message>
    <message>
        <source> has no place for this value.</source>
        <translation> kann diesen Wert nicht einordnen.</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>Maße</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Maß</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>The mean of the reference at this age, in mm. A reference that has curves alone has none.</source>
        <translation>Mittelwert der Referenz in diesem Alter, in mm. Eine Referenz, die nur aus Kurven besteht, hat keinen.</translation>
    </message>
    <message>
        <source>SD</source>
        <translation>SD</translation>
    </message>
    <message>
        <source>One standard deviation at this age, in mm.</source>
        <translation>Eine Standardabweichung in diesem Alter, in mm.</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Half of the population lies below it, in mm.</source>
        <translation>Die Hälfte der Population liegt darunter, in mm.</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>Standard deviations from the mean.</source>
        <translation>Standardabweichungen vom Mittelwert.</translation>
    </message>
    <message>
        <source>Centile</source>
        <translation>Perzentile</translation>
    </message>
    <message>
        <source>How many of 100 lie below the value.</source>
        <translation>Wie viele von 100 unter dem Wert liegen.</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>SSW</translation>
    </message>
    <message>
        <source>The age of which the value is the median.</source>
        <translation>Das Gestationsalter, dessen Median der Wert ist.</translation>
    </message>
    <message>
        <source>Weights</source>
        <translation>Gewichte</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>From the weight by the formula in force, in g.</source>
        <translation>Zum Gewicht nach der gewählten Formel, in g.</translation>
    </message>
    <message>
        <source>The centile in this population of weights.</source>
        <translation>Die Perzentile in dieser Population von Gewichten.</translation>
    </message>
    <message>
        <source>From one length alone.</source>
        <translation>Aus nur einem Maß.</translation>
    </message>
    <message>
        <source>Ratios</source>
        <translation>Quotienten</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Quotient</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Fetuses</source>
        <translation>Feten</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Fetus</translation>
    </message>
    <message>
        <source>By the formula in force, in g.</source>
        <translation>Nach der gewählten Formel, in g.</translation>
    </message>
    <message>
        <source>In mm.</source>
        <translation>In mm.</translation>
    </message>
    <message>
        <source>Less (%)</source>
        <translation>Weniger (%)</translation>
    </message>
    <message>
        <source>How much less this fetus weighs than the heaviest.</source>
        <translation>Um wie viel dieser Fetus weniger wiegt als der schwerste.</translation>
    </message>
    <message>
        <source>Growth</source>
        <translation>Wachstum</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messgröße</translation>
    </message>
    <message>
        <source>Per Week</source>
        <translation>Pro Woche</translation>
    </message>
    <message>
        <source>Since the last examination that has it: mm a week, or g a week.</source>
        <translation>Seit der letzten Untersuchung mit dieser Messgröße: mm pro Woche oder g pro Woche.</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Erwartet</translation>
    </message>
    <message>
        <source>By how much the mean of the growth standard grows.</source>
        <translation>Um wie viel der Mittelwert des Wachstumsstandards zunimmt.</translation>
    </message>
    <message>
        <source>Change of z</source>
        <translation>z-Änderung</translation>
    </message>
    <message>
        <source>By the growth standard in force.</source>
        <translation>Nach dem gewählten Wachstumsstandard.</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Export CSV...</source>
        <translation>CSV &amp;exportieren...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>CSV exportieren</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabellen (*.csv)</translation>
    </message>
    <message>
        <source>The table cannot be exported.</source>
        <translation>Die Tabelle kann nicht exportiert werden.</translation>
    </message>
    <message>
        <source>Where This Comes From</source>
        <translation>Herkunft anzeigen</translation>
    </message>
</context>
<context>
    <name>CorvelDocument</name>
    <message>
        <source>Modify</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>A field holds a text that is not permitted.</source>
        <translation>Ein Feld enthält einen unzulässigen Text.</translation>
    </message>
    <message>
        <source>%ld bytes</source>
        <translation>%ld Bytes</translation>
    </message>
    <message>
        <source>What was entered here besides reference ID and gravidity will be lost.</source>
        <translation>Was hier außer Patienten-ID und Gravidität eingegeben wurde, geht verloren.</translation>
    </message>
    <message>
        <source>This patient has a document already.</source>
        <translation>Zu dieser Patientin gibt es bereits ein Dokument.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>The page was not exported.</source>
        <translation>Die Seite wurde nicht exportiert.</translation>
    </message>
    <message>
        <source>Please make room in this folder, or choose another in Export Settings.</source>
        <translation>Bitte schaffen Sie Platz in diesem Ordner oder wählen Sie in den Exporteinstellungen einen anderen.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>This program was built without painting.</source>
        <translation>Dieses Programm wurde ohne Grafikausgabe erstellt.</translation>
    </message>
    <message>
        <source>The document was not printed.</source>
        <translation>Das Dokument wurde nicht gedruckt.</translation>
    </message>
    <message>
        <source>The document cannot be opened.</source>
        <translation>Das Dokument kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>It is open in another window.</source>
        <translation>Es ist in einem anderen Fenster geöffnet.</translation>
    </message>
    <message>
        <source>The document was saved, but its file cannot hold all of it.</source>
        <translation>Das Dokument wurde gespeichert, aber die Datei kann nicht alles davon aufnehmen.</translation>
    </message>
    <message>
        <source>The document was not saved.</source>
        <translation>Das Dokument wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Another program has changed the file of this document. Do you want to replace what it holds now?</source>
        <translation>Ein anderes Programm hat die Datei dieses Dokuments geändert. Möchten Sie ihren jetzigen Inhalt ersetzen?</translation>
    </message>
    <message>
        <source>To keep both, cancel and save this document under another name.</source>
        <translation>Um beides zu behalten, brechen Sie ab und speichern dieses Dokument unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>Trotzdem speichern</translation>
    </message>
    <message>
        <source>Do you want to save the changes of this document?</source>
        <translation>Möchten Sie die Änderungen an diesem Dokument speichern?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>These documents cannot be opened.</source>
        <translation>Diese Dokumente können nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>A field holds a text that is not permitted. It will not be saved.</source>
        <translation>Ein Feld enthält einen unzulässigen Text. Er wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>%1 is not a Nascor document.</source>
        <translation>%1 ist kein Nascor-Dokument.</translation>
    </message>
    <message>
        <source>Do you want to go back to the document as it was last saved?</source>
        <translation>Möchten Sie zum zuletzt gespeicherten Stand des Dokuments zurückkehren?</translation>
    </message>
    <message>
        <source>All changes since then will be lost.</source>
        <translation>Alle Änderungen seitdem gehen verloren.</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>The document cannot be read.</source>
        <translation>Das Dokument kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Benutzer:</translation>
    </message>
    <message>
        <source>Machine:</source>
        <translation>Rechner:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Seit:</translation>
    </message>
    <message>
        <source>Process:</source>
        <translation>Prozess:</translation>
    </message>
    <message>
        <source>It is open elsewhere.</source>
        <translation>Es ist anderswo geöffnet.</translation>
    </message>
    <message>
        <source>Opened to be read, it can be saved under another name alone. A copy is a new document.</source>
        <translation>Zum Lesen geöffnet, kann es nur unter einem anderen Namen gespeichert werden. Eine Kopie ist ein neues Dokument.</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Schreibgeschützt öffnen</translation>
    </message>
    <message>
        <source>Open a Copy</source>
        <translation>Kopie öffnen</translation>
    </message>
    <message>
        <source>Nothing tells from here whether that machine still works on it. Open it anyway only if you know that it does not.</source>
        <translation>Von hier aus ist nicht zu erkennen, ob der andere Rechner noch daran arbeitet. Öffnen Sie es nur dann trotzdem, wenn Sie wissen, dass er es nicht tut.</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Trotzdem öffnen</translation>
    </message>
    <message>
        <source>This document is open elsewhere. How do you want to open it?</source>
        <translation>Dieses Dokument ist anderswo geöffnet. Wie möchten Sie es öffnen?</translation>
    </message>
    <message>
        <source>The document was written, but the system does not vouch that it outlasts a power cut. Please save it again.</source>
        <translation>Das Dokument wurde geschrieben, aber das System bürgt nicht dafür, dass es einen Stromausfall übersteht. Bitte speichern Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The file of this document is gone. Do you want to write it again?</source>
        <translation>Die Datei dieses Dokuments ist nicht mehr da. Möchten Sie sie neu schreiben?</translation>
    </message>
    <message>
        <source>Another program or another user has removed, moved or renamed it.</source>
        <translation>Ein anderes Programm oder jemand anderes hat sie entfernt, verschoben oder umbenannt.</translation>
    </message>
    <message>
        <source>The file of this document cannot be read. Do you want to replace it?</source>
        <translation>Die Datei dieses Dokuments kann nicht gelesen werden. Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>Another program has changed the file of this document.</source>
        <translation>Ein anderes Programm hat die Datei dieses Dokuments geändert.</translation>
    </message>
    <message>
        <source>Another program has changed the file of this document. Revert reads it.</source>
        <translation>Ein anderes Programm hat die Datei dieses Dokuments geändert. „Zurück zum Gespeicherten“ liest sie.</translation>
    </message>
    <message>
        <source>The file of this document is gone.</source>
        <translation>Die Datei dieses Dokuments ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The file of this document cannot be read:</source>
        <translation>Die Datei dieses Dokuments kann nicht gelesen werden:</translation>
    </message>
</context>
<context>
    <name>DataMenu</name>
    <message>
        <source>Export Data...</source>
        <translation>Daten exportieren...</translation>
    </message>
    <message>
        <source>Export Data</source>
        <translation>Daten exportieren</translation>
    </message>
    <message>
        <source>Table for spreadsheets (*.csv)</source>
        <translation>Tabelle für Kalkulationsprogramme (*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>The data were not exported.</source>
        <translation>Die Daten wurden nicht exportiert.</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportiert nach %1</translation>
    </message>
    <message>
        <source>FHIR bundle for health records (*.fhir.json)</source>
        <translation>FHIR-Bündel für Patientenakten (*.fhir.json)</translation>
    </message>
    <message>
        <source>DICOM report of this examination (*.dcm)</source>
        <translation>DICOM-Bericht dieser Untersuchung (*.dcm)</translation>
    </message>
</context>
<context>
    <name>DatingDialogs</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation>z. B. %1</translation>
    </message>
    <message>
        <source>for example %1</source>
        <translation>zum Beispiel %1</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>kein Datum</translation>
    </message>
    <message>
        <source>Keeps the EDD from being set. %1</source>
        <translation>Verhindert, dass der ET gesetzt wird. %1</translation>
    </message>
    <message>
        <source>Crown-rump length</source>
        <translation>Scheitel-Steiß-Länge</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>mm (%1–%2)</source>
        <translation>mm (%1–%2)</translation>
    </message>
    <message>
        <source>%1 to %2 mm</source>
        <translation>%1 bis %2 mm</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>! beyond 2 SD</source>
        <translation>! über 2 SD</translation>
    </message>
    <message>
        <source>! not measured</source>
        <translation>! nicht gemessen</translation>
    </message>
    <message>
        <source>More than 2 standard deviations from the mean at the average. %1</source>
        <translation>Mehr als 2 Standardabweichungen vom Mittelwert im durchschnittlichen Alter entfernt. %1</translation>
    </message>
    <message>
        <source>Not measured. %1</source>
        <translation>Nicht gemessen. %1</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
</context>
<context>
    <name>DocumentWindow</name>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (schreibgeschützt)</translation>
    </message>
</context>
<context>
    <name>EDDFromCRL</name>
    <message>
        <source>EDD from CRL</source>
        <translation>ET aus SSL</translation>
    </message>
    <message>
        <source>The day of the scan</source>
        <translation>Tag der Ultraschalluntersuchung</translation>
    </message>
    <message>
        <source>&amp;Scan date</source>
        <translation>&amp;Datum</translation>
    </message>
    <message>
        <source>Crown-rump length</source>
        <translation>Scheitel-Steiß-Länge</translation>
    </message>
    <message>
        <source>Crown-&amp;rump length</source>
        <translation>&amp;Scheitel-Steiß-Länge</translation>
    </message>
    <message>
        <source>The formula in force, chosen in the menu</source>
        <translation>Die im Menü gewählte Formel</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>The examination on show</source>
        <translation>Die angezeigte Untersuchung</translation>
    </message>
</context>
<context>
    <name>EDDFromLMP</name>
    <message>
        <source>EDD from LMP</source>
        <translation>ET aus letzter Periode</translation>
    </message>
    <message>
        <source>First day of the last menstrual period</source>
        <translation>Erster Tag der letzten Periode</translation>
    </message>
    <message>
        <source>&amp;Last menstrual period</source>
        <translation>&amp;Letzte Periode</translation>
    </message>
    <message>
        <source>Length of the cycle, in whole days</source>
        <translation>Länge des Zyklus, in ganzen Tagen</translation>
    </message>
    <message>
        <source>C&amp;ycle</source>
        <translation>&amp;Zyklus</translation>
    </message>
    <message>
        <source>days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Length of the luteal phase, in whole days</source>
        <translation>Länge der Lutealphase, in ganzen Tagen</translation>
    </message>
    <message>
        <source>Luteal &amp;phase</source>
        <translation>Luteal&amp;phase</translation>
    </message>
</context>
<context>
    <name>EDDFromMeasurements</name>
    <message>
        <source>EDD from Measurements</source>
        <translation>ET aus Messwerten</translation>
    </message>
    <message>
        <source>The examination and the fetus on show</source>
        <translation>Angezeigte Untersuchung und angezeigter Fetus</translation>
    </message>
    <message>
        <source>Examination</source>
        <translation>Untersuchung</translation>
    </message>
    <message>
        <source>Biparietal diameter: counts in the average</source>
        <translation>Biparietaler Durchmesser: zählt zum Durchschnitt</translation>
    </message>
    <message>
        <source>&amp;BPD</source>
        <translation>&amp;BPD</translation>
    </message>
    <message>
        <source>Biparietal diameter: menstrual age of which it is the mean</source>
        <translation>Biparietaler Durchmesser: Gestationsalter, dessen Mittelwert er ist</translation>
    </message>
    <message>
        <source>Head circumference: counts in the average</source>
        <translation>Kopfumfang: zählt zum Durchschnitt</translation>
    </message>
    <message>
        <source>&amp;HC</source>
        <translation>&amp;KU</translation>
    </message>
    <message>
        <source>Head circumference: menstrual age of which it is the mean</source>
        <translation>Kopfumfang: Gestationsalter, dessen Mittelwert er ist</translation>
    </message>
    <message>
        <source>Abdominal circumference: counts in the average</source>
        <translation>Abdomenumfang: zählt zum Durchschnitt</translation>
    </message>
    <message>
        <source>&amp;AC</source>
        <translation>&amp;AU</translation>
    </message>
    <message>
        <source>Abdominal circumference: menstrual age of which it is the mean</source>
        <translation>Abdomenumfang: Gestationsalter, dessen Mittelwert er ist</translation>
    </message>
    <message>
        <source>Femur length: counts in the average</source>
        <translation>Femurlänge: zählt zum Durchschnitt</translation>
    </message>
    <message>
        <source>&amp;FL</source>
        <translation>&amp;FL</translation>
    </message>
    <message>
        <source>Femur length: menstrual age of which it is the mean</source>
        <translation>Femurlänge: Gestationsalter, dessen Mittelwert sie ist</translation>
    </message>
    <message>
        <source>Average of the ages that are checked</source>
        <translation>Durchschnitt der angekreuzten Gestationsalter</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>Late in pregnancy, dating by size reads growth as age: a fetus that is small or large is taken for a younger or an older one.</source>
        <translation>Spät in der Schwangerschaft liest die Datierung nach der Größe Wachstum als Alter: Ein kleiner Fetus gilt als jünger, ein großer als älter.</translation>
    </message>
</context>
<context>
    <name>Evidence</name>
    <message>
        <source>week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>SD</source>
        <translation>SD</translation>
    </message>
    <message>
        <source>centile</source>
        <translation>Perzentile</translation>
    </message>
    <message>
        <source>planned week</source>
        <translation>geplante Woche</translation>
    </message>
    <message>
        <source>median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>BPD</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>KU</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>AU</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>FL</translation>
    </message>
    <message>
        <source>EFW</source>
        <translation>SG</translation>
    </message>
    <message>
        <source>CRL</source>
        <translation>SSL</translation>
    </message>
</context>
<context>
    <name>FieldBinding</name>
    <message>
        <source>no record</source>
        <translation>kein Eintrag</translation>
    </message>
    <message>
        <source>Nothing can be entered here: the document holds no record for it.</source>
        <translation>Hier kann nichts eingegeben werden: Das Dokument enthält dafür keinen Eintrag.</translation>
    </message>
    <message>
        <source>Belongs to no fetus: the fetus was removed. %1</source>
        <translation>Gehört zu keinem Fetus: Der Fetus wurde entfernt. %1</translation>
    </message>
    <message>
        <source>No more text fits here.</source>
        <translation>Mehr Text passt hier nicht hinein.</translation>
    </message>
    <message>
        <source>This text is too long to be shown whole. It is kept whole, and cannot be changed here.</source>
        <translation>Dieser Text ist zu lang, um ganz gezeigt zu werden. Er bleibt ganz erhalten und kann hier nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>FilePanels</name>
    <message>
        <source>%1: The file&apos;s name is not UTF-8. Please rename the file and open it again.</source>
        <translation>%1: Der Dateiname ist nicht in UTF-8. Bitte benennen Sie die Datei um und öffnen Sie sie erneut.</translation>
    </message>
    <message>
        <source>Nascor documents (*.%1)</source>
        <translation>Nascor-Dokumente (*.%1)</translation>
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
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Folder for Exported Pages</source>
        <translation>Ordner für exportierte Seiten</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 ist bereits vorhanden. Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>Bericht importieren</translation>
    </message>
    <message>
        <source>Reports (*.dcm *.json)</source>
        <translation>Berichte (*.dcm *.json)</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Examination</source>
        <translation>Untersuchung</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Fetus</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Patient</source>
        <translation>Patientin</translation>
    </message>
    <message>
        <source>What becomes of it</source>
        <translation>Was damit geschieht</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>Bericht importieren</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Reference ID of the report: %1. Of the document: %2.</source>
        <translation>Patienten-ID des Berichts: %1. Des Dokuments: %2.</translation>
    </message>
    <message>
        <source>The report is of &amp;this patient</source>
        <translation>Der Bericht gehört zu dieser Pa&amp;tientin</translation>
    </message>
    <message>
        <source>Please choose</source>
        <translation>Bitte wählen</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Weglassen</translation>
    </message>
    <message>
        <source>Values of the report</source>
        <translation>Werte des Berichts</translation>
    </message>
    <message>
        <source>Import Report of %1</source>
        <translation>Bericht von %1 importieren</translation>
    </message>
    <message>
        <source>%1 of the report is:</source>
        <translation>%1 des Berichts ist:</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&amp;Reference ID</source>
        <translation>Patienten-&amp;ID</translation>
    </message>
    <message>
        <source>The patient&apos;s reference ID, any text</source>
        <translation>ID der Patientin, beliebiger Text</translation>
    </message>
    <message>
        <source>Number of pregnancies, this one included</source>
        <translation>Zahl der Schwangerschaften, einschließlich dieser</translation>
    </message>
    <message>
        <source>&amp;Gravidity</source>
        <translation>&amp;Gravidität</translation>
    </message>
    <message>
        <source>Number of pregnancies, this one included: a whole number, 0 or more</source>
        <translation>Zahl der Schwangerschaften, einschließlich dieser: eine ganze Zahl, mindestens 0</translation>
    </message>
    <message>
        <source>Estimated date of delivery</source>
        <translation>Errechneter Termin</translation>
    </message>
    <message>
        <source>E&amp;DD</source>
        <translation>&amp;ET</translation>
    </message>
    <message>
        <source>Examination</source>
        <translation>Untersuchung</translation>
    </message>
    <message>
        <source>Date of the examination</source>
        <translation>Datum der Untersuchung</translation>
    </message>
    <message>
        <source>Da&amp;te</source>
        <translation>Datu&amp;m</translation>
    </message>
    <message>
        <source>Menstrual age at the examination, in weeks and days</source>
        <translation>Gestationsalter bei der Untersuchung, in Wochen und Tagen</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>SSW</translation>
    </message>
    <message>
        <source>Fet&amp;us</source>
        <translation>Fetu&amp;s</translation>
    </message>
    <message>
        <source>Biparietal diameter</source>
        <translation>Biparietaler Durchmesser</translation>
    </message>
    <message>
        <source>&amp;BPD</source>
        <translation>B&amp;PD</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Head circumference</source>
        <translation>Kopfumfang</translation>
    </message>
    <message>
        <source>H&amp;C</source>
        <translation>&amp;KU</translation>
    </message>
    <message>
        <source>Abdominal circumference</source>
        <translation>Abdomenumfang</translation>
    </message>
    <message>
        <source>&amp;AC</source>
        <translation>A&amp;U</translation>
    </message>
    <message>
        <source>Femur length</source>
        <translation>Femurlänge</translation>
    </message>
    <message>
        <source>F&amp;L</source>
        <translation>F&amp;L</translation>
    </message>
    <message>
        <source>Note on this examination</source>
        <translation>Notiz zu dieser Untersuchung</translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Notiz</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Patient</source>
        <translation>Pa&amp;tientin</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation>Zurück zum &amp;Gespeicherten</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy Rep&amp;ort as Table</source>
        <translation>&amp;Bericht als Tabelle kopieren</translation>
    </message>
    <message>
        <source>Copies the report of the fetus on show, all examinations, for a spreadsheet or a letter.</source>
        <translation>Kopiert den Bericht des angezeigten Fetus mit allen Untersuchungen für eine Tabellenkalkulation oder einen Brief.</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
    <message>
        <source>&amp;Previous Examination</source>
        <translation>&amp;Vorige Untersuchung</translation>
    </message>
    <message>
        <source>&amp;Next Examination</source>
        <translation>&amp;Nächste Untersuchung</translation>
    </message>
    <message>
        <source>Add &amp;Examination</source>
        <translation>Neue &amp;Untersuchung</translation>
    </message>
    <message>
        <source>&amp;Delete Examination</source>
        <translation>Untersuchung &amp;löschen</translation>
    </message>
    <message>
        <source>Add &amp;Fetus</source>
        <translation>&amp;Fetus hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove Fetus</source>
        <translation>Fetus &amp;entfernen</translation>
    </message>
    <message>
        <source>EDD from &amp;LMP...</source>
        <translation>ET aus letzter &amp;Periode...</translation>
    </message>
    <message>
        <source>EDD from &amp;CRL...</source>
        <translation>ET aus &amp;SSL...</translation>
    </message>
    <message>
        <source>EDD from &amp;Measurements...</source>
        <translation>ET aus &amp;Messwerten...</translation>
    </message>
    <message>
        <source>&amp;Adjust Delivery...</source>
        <translation>Ent&amp;bindung planen...</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>Alle an&amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;References</source>
        <translation>&amp;Quellen</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Anleitung</translation>
    </message>
    <message>
        <source>&amp;About Nascor</source>
        <translation>Ü&amp;ber Nascor</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Trends</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>BPD</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>KU</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>AU</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>FL</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>%ld of %ld</source>
        <translation>%ld von %ld</translation>
    </message>
    <message>
        <source>There is no examination to note this at.</source>
        <translation>Es gibt keine Untersuchung für diese Notiz.</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>&amp;Remember Recent Documents</source>
        <translation>Zuletzt geöffnete &amp;merken</translation>
    </message>
    <message>
        <source>mm (%1–%2)</source>
        <translation>mm (%1–%2)</translation>
    </message>
    <message>
        <source>%1, %2 to %3 mm</source>
        <translation>%1, %2 bis %3 mm</translation>
    </message>
    <message>
        <source>%1, for example %2</source>
        <translation>%1, zum Beispiel %2</translation>
    </message>
    <message>
        <source>The fetus on show</source>
        <translation>Der angezeigte Fetus</translation>
    </message>
    <message>
        <source>Not permitted. %1</source>
        <translation>Nicht zulässig. %1</translation>
    </message>
    <message>
        <source>Permitted: %1</source>
        <translation>Zulässig: %1</translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation>z. B. %1</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>kein Datum</translation>
    </message>
    <message>
        <source>About Nascor</source>
        <translation>Über Nascor</translation>
    </message>
    <message>
        <source>Nascor %1</source>
        <translation>Nascor %1</translation>
    </message>
    <message>
        <source>Copyright (c) 2026 The Nascor developers. MIT License.</source>
        <translation>Copyright (c) 2026 The Nascor developers. MIT-Lizenz.</translation>
    </message>
    <message>
        <source>Linked with Qt %1 (GNU LGPL 3), the D-Bus library (AFL 2.1 or GNU GPL 2) and the GNU C++ library (GNU GPL 3 with the GCC Runtime Library Exception).</source>
        <translation>Gelinkt mit Qt %1 (GNU LGPL 3), der D-Bus-Bibliothek (AFL 2.1 oder GNU GPL 2) und der GNU-C++-Bibliothek (GNU GPL 3 mit der GCC Runtime Library Exception).</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>Standard deviations from the mean of the growth standard</source>
        <translation>Standardabweichungen vom Mittelwert des Wachstumsstandards</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>Centile by the growth standard</source>
        <translation>Perzentile nach dem Wachstumsstandard</translation>
    </message>
    <message>
        <source>Centile</source>
        <translation>Perz.</translation>
    </message>
    <message>
        <source>Estimated fetal weight, by the formula in force</source>
        <translation>Schätzgewicht nach der gewählten Formel</translation>
    </message>
    <message>
        <source>EFW</source>
        <translation>SG</translation>
    </message>
    <message>
        <source>! %1: %2</source>
        <translation>! %1: %2</translation>
    </message>
    <message>
        <source>Growth chart of %1. Examination %2, %3. %4</source>
        <translation>Wachstumskurve von %1. Untersuchung %2, SSW %3. %4</translation>
    </message>
    <message>
        <source>by %1</source>
        <translation>nach %1</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Add Examination</source>
        <translation>Neue Untersuchung</translation>
    </message>
    <message>
        <source>Delete Examination</source>
        <translation>Untersuchung löschen</translation>
    </message>
    <message>
        <source>Add Fetus</source>
        <translation>Fetus hinzufügen</translation>
    </message>
    <message>
        <source>Remove Fetus</source>
        <translation>Fetus entfernen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Verklei&amp;nern</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>Nascor opens files of this machine only.</source>
        <translation>Nascor öffnet nur Dateien dieses Rechners.</translation>
    </message>
    <message>
        <source>Please save what the link leads to as a file here, and open that.</source>
        <translation>Bitte speichern Sie, worauf der Link verweist, hier als Datei und öffnen Sie diese.</translation>
    </message>
    <message>
        <source>C&amp;ompare...</source>
        <translation>Ver&amp;gleichen...</translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation>Über&amp;lagerung</translation>
    </message>
    <message>
        <source>Check the Numbers</source>
        <translation>Zahlen prüfen</translation>
    </message>
    <message>
        <source>All %1 worked examples come out as they are known.</source>
        <translation>Alle %1 Rechenbeispiele ergeben die bekannten Werte.</translation>
    </message>
    <message>
        <source>%1 of %2 worked examples come out otherwise.</source>
        <translation>%1 von %2 Rechenbeispielen ergeben andere Werte.</translation>
    </message>
    <message>
        <source>Every formula, standard, reference, look-up and date was worked out again. Help &gt; References shows the examples of each.</source>
        <translation>Alle Formeln, Standards, Referenzen, Tabellenwerte und Datumsangaben wurden neu berechnet. Hilfe &gt; Quellen zeigt die Beispiele dazu.</translation>
    </message>
    <message>
        <source>Do not rely on this installation. Please have it installed again.</source>
        <translation>Verlassen Sie sich nicht auf diese Installation. Bitte lassen Sie sie erneuern.</translation>
    </message>
    <message>
        <source>&amp;Check the Numbers</source>
        <translation>&amp;Zahlen prüfen</translation>
    </message>
    <message>
        <source>Report &amp;Folder and Server</source>
        <translation>Berichts&amp;ordner und -server</translation>
    </message>
    <message>
        <source>I&amp;mport Report...</source>
        <translation>Bericht &amp;importieren...</translation>
    </message>
    <message>
        <source>Report F&amp;older...</source>
        <translation>Berichts&amp;ordner...</translation>
    </message>
    <message>
        <source>Translated by machine, not yet reviewed by a clinician.</source>
        <translation>Maschinell übersetzt, noch nicht von einer medizinischen Fachkraft geprüft.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederherstellen: %1</translation>
    </message>
</context>
<context>
    <name>NCAppController</name>
    <message>
        <source>Standards</source>
        <translation>Standards</translation>
    </message>
    <message>
        <source>Estimated Fetal Weight</source>
        <translation>Schätzgewicht</translation>
    </message>
    <message>
        <source>Crown Rump Length</source>
        <translation>SSL-Formel</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Further References</source>
        <translation>Weitere Referenzen</translation>
    </message>
</context>
<context>
    <name>NCDocument</name>
    <message>
        <source>The gravidity %ld will be read as %ld. A file holds gravidities up to %ld.</source>
        <translation>Die Gravidität %ld wird als %ld gelesen werden. Eine Datei fasst Graviditäten bis %ld.</translation>
    </message>
    <message>
        <source>EDD is already specified</source>
        <translation>Der ET ist bereits festgelegt</translation>
    </message>
    <message>
        <source>Are you sure you want to modify the established EDD?</source>
        <translation>Möchten Sie den festgelegten ET wirklich ändern?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this fetus?</source>
        <translation>Möchten Sie diesen Fetus wirklich entfernen?</translation>
    </message>
    <message>
        <source>%ld of %ld examinations shown</source>
        <translation>%ld von %ld Untersuchungen gezeigt</translation>
    </message>
    <message>
        <source>, page %ld of %ld</source>
        <translation>, Seite %ld von %ld</translation>
    </message>
    <message>
        <source>Reference ID:</source>
        <translation>Patienten-ID:</translation>
    </message>
    <message>
        <source>Gravidity:</source>
        <translation>Gravidität:</translation>
    </message>
    <message>
        <source>Fetus:</source>
        <translation>Fetus:</translation>
    </message>
    <message>
        <source>EDD:</source>
        <translation>ET:</translation>
    </message>
    <message>
        <source>Examination:</source>
        <translation>Untersuchung:</translation>
    </message>
    <message>
        <source>Examinations:</source>
        <translation>Untersuchungen:</translation>
    </message>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation>Kein Medizinprodukt. Nicht für die klinische Anwendung validiert.</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Gedruckt:</translation>
    </message>
    <message>
        <source>Gravidity is already specified</source>
        <translation>Die Gravidität ist bereits festgelegt</translation>
    </message>
    <message>
        <source>Are you sure you want to modify it?</source>
        <translation>Möchten Sie sie wirklich ändern?</translation>
    </message>
    <message>
        <source> %ld of %ld</source>
        <translation> %ld von %ld</translation>
    </message>
    <message>
        <source>%ldw %ldd</source>
        <translation>%ld+%ld</translation>
    </message>
    <message>
        <source>CRL Standard: </source>
        <translation>SSL-Standard: </translation>
    </message>
    <message>
        <source>Are you sure you want to remove this examination?</source>
        <translation>Möchten Sie diese Untersuchung wirklich löschen?</translation>
    </message>
    <message>
        <source>Singleton</source>
        <translation>Einling</translation>
    </message>
    <message>
        <source>Twin 1</source>
        <translation>Zwilling 1</translation>
    </message>
    <message>
        <source>Twin 2</source>
        <translation>Zwilling 2</translation>
    </message>
    <message>
        <source>Triplet 1 of 3</source>
        <translation>Drilling 1 von 3</translation>
    </message>
    <message>
        <source>Triplet 2 of 3</source>
        <translation>Drilling 2 von 3</translation>
    </message>
    <message>
        <source>Triplet 3 of 3</source>
        <translation>Drilling 3 von 3</translation>
    </message>
    <message>
        <source>Quad 1 of 4</source>
        <translation>Vierling 1 von 4</translation>
    </message>
    <message>
        <source>Quad 2 of 4</source>
        <translation>Vierling 2 von 4</translation>
    </message>
    <message>
        <source>Quad 3 of 4</source>
        <translation>Vierling 3 von 4</translation>
    </message>
    <message>
        <source>Quad 4 of 4</source>
        <translation>Vierling 4 von 4</translation>
    </message>
    <message>
        <source>Quin 1 of 5</source>
        <translation>Fünfling 1 von 5</translation>
    </message>
    <message>
        <source>Quin 2 of 5</source>
        <translation>Fünfling 2 von 5</translation>
    </message>
    <message>
        <source>Quin 3 of 5</source>
        <translation>Fünfling 3 von 5</translation>
    </message>
    <message>
        <source>Quin 4 of 5</source>
        <translation>Fünfling 4 von 5</translation>
    </message>
    <message>
        <source>Quin 5 of 5</source>
        <translation>Fünfling 5 von 5</translation>
    </message>
    <message>
        <source>The EDD is empty now. This is no date: </source>
        <translation>Der ET ist jetzt leer. Dies ist kein Datum: </translation>
    </message>
    <message>
        <source>The examination has no date now. This is no date: </source>
        <translation>Die Untersuchung hat jetzt kein Datum. Dies ist kein Datum: </translation>
    </message>
    <message>
        <source>The examination is before the last period.</source>
        <translation>Die Untersuchung liegt vor der letzten Periode.</translation>
    </message>
    <message>
        <source>The age is above 45 weeks.</source>
        <translation>Das Alter liegt über 45 Wochen.</translation>
    </message>
    <message>
        <source>Outside %ld to %ld mm.</source>
        <translation>Außerhalb von %ld bis %ld mm.</translation>
    </message>
    <message>
        <source>Shorter than any growth standard begins. Lengths are in mm.</source>
        <translation>Kleiner als der Anfang jedes Wachstumsstandards. Maße sind in mm.</translation>
    </message>
    <message>
        <source>More than 4 SD below the growth standard.</source>
        <translation>Mehr als 4 SD unter dem Wachstumsstandard.</translation>
    </message>
    <message>
        <source>More than 4 SD above the growth standard.</source>
        <translation>Mehr als 4 SD über dem Wachstumsstandard.</translation>
    </message>
    <message>
        <source>Too small for the BPD.</source>
        <translation>Zu klein für den BPD.</translation>
    </message>
    <message>
        <source>The growth standard begins at %ld weeks, which count.</source>
        <translation>Der Wachstumsstandard beginnt bei %ld Wochen; dieser Wert gilt.</translation>
    </message>
    <message>
        <source>The growth standard ends at %ld weeks, which count.</source>
        <translation>Der Wachstumsstandard endet bei %ld Wochen; dieser Wert gilt.</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>beyond the table</source>
        <translation>außerhalb der Tabelle</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>kein Datum</translation>
    </message>
    <message>
        <source>Examination %ld of %ld: </source>
        <translation>Untersuchung %ld von %ld: </translation>
    </message>
    <message>
        <source>Age today:</source>
        <translation>SSW heute:</translation>
    </message>
    <message>
        <source>An examination would be before the last period.</source>
        <translation>Eine Untersuchung läge vor der letzten Periode.</translation>
    </message>
    <message>
        <source>An examination would be above 45 weeks.</source>
        <translation>Eine Untersuchung läge über 45 Wochen.</translation>
    </message>
    <message>
        <source>The same day as the EDD that stands.</source>
        <translation>Derselbe Tag wie der bisherige ET.</translation>
    </message>
    <message>
        <source>One day later than the EDD that stands.</source>
        <translation>Einen Tag später als der bisherige ET.</translation>
    </message>
    <message>
        <source>One day earlier than the EDD that stands.</source>
        <translation>Einen Tag früher als der bisherige ET.</translation>
    </message>
    <message>
        <source>%ld days later than the EDD that stands.</source>
        <translation>%ld Tage später als der bisherige ET.</translation>
    </message>
    <message>
        <source>%ld days earlier than the EDD that stands.</source>
        <translation>%ld Tage früher als der bisherige ET.</translation>
    </message>
    <message>
        <source>No formula is chosen.</source>
        <translation>Es ist keine Formel gewählt.</translation>
    </message>
    <message>
        <source>The examination has no date.</source>
        <translation>Die Untersuchung hat kein Datum.</translation>
    </message>
    <message>
        <source>Type the crown-rump length.</source>
        <translation>Bitte die SSL eingeben.</translation>
    </message>
    <message>
        <source>The formula dates these lengths, in mm:</source>
        <translation>Die Formel datiert diese Längen, in mm:</translation>
    </message>
    <message>
        <source>There is no such cycle.</source>
        <translation>Einen solchen Zyklus gibt es nicht.</translation>
    </message>
    <message>
        <source>Type the date.</source>
        <translation>Bitte das Datum eingeben.</translation>
    </message>
    <message>
        <source>This is no date:</source>
        <translation>Dies ist kein Datum:</translation>
    </message>
    <message>
        <source>The EDD would lie outside the calendar.</source>
        <translation>Der ET läge außerhalb des Kalenders.</translation>
    </message>
    <message>
        <source>Lengths that will be removed with it: %ld.</source>
        <translation>Maße, die mit entfernt werden: %ld.</translation>
    </message>
    <message>
        <source>Last examination:</source>
        <translation>Letzte Untersuchung:</translation>
    </message>
    <message>
        <source>No lengths, so no marks. Type BPD, HC, AC or FL beside the page.</source>
        <translation>Keine Maße, daher keine Messpunkte. BPD, KU, AU oder FL neben der Seite eingeben.</translation>
    </message>
    <message>
        <source>No BPD, so no marks. Type it beside the page.</source>
        <translation>Kein BPD, daher keine Messpunkte. Bitte neben der Seite eingeben.</translation>
    </message>
    <message>
        <source>No HC, so no marks. Type it beside the page.</source>
        <translation>Kein KU, daher keine Messpunkte. Bitte neben der Seite eingeben.</translation>
    </message>
    <message>
        <source>No AC, so no marks. Type it beside the page.</source>
        <translation>Kein AU, daher keine Messpunkte. Bitte neben der Seite eingeben.</translation>
    </message>
    <message>
        <source>No FL, so no marks. Type it beside the page.</source>
        <translation>Keine FL, daher keine Messpunkte. Bitte neben der Seite eingeben.</translation>
    </message>
    <message>
        <source>No weight, so no marks. Type the lengths that the formula needs.</source>
        <translation>Kein Gewicht, daher keine Messpunkte. Bitte die Maße eingeben, die die Formel braucht.</translation>
    </message>
    <message>
        <source>No lengths. Type BPD, HC, AC or FL beside the page.</source>
        <translation>Keine Maße. BPD, KU, AU oder FL neben der Seite eingeben.</translation>
    </message>
    <message>
        <source>No examination. Patient &gt; Add Examination</source>
        <translation>Keine Untersuchung. Patientin &gt; Neue Untersuchung</translation>
    </message>
    <message>
        <source>No known growth standard, so no projection. Choose from Standards.</source>
        <translation>Kein bekannter Wachstumsstandard, daher keine Projektion. Bitte unter Standards wählen.</translation>
    </message>
    <message>
        <source>No known growth standard, so no curves. Choose from Standards.</source>
        <translation>Kein bekannter Wachstumsstandard, daher keine Kurven. Bitte unter Standards wählen.</translation>
    </message>
    <message>
        <source>No known weight formula, so no weights. Choose from Estimated Fetal Weight.</source>
        <translation>Keine bekannte Gewichtsformel, daher keine Gewichte. Bitte unter Schätzgewicht wählen.</translation>
    </message>
    <message>
        <source>No EDD, so no ages. Patient &gt; EDD from ...</source>
        <translation>Kein ET, daher keine SSW. Patientin &gt; ET aus ...</translation>
    </message>
    <message>
        <source>No EDD, so no marks. Patient &gt; EDD from ...</source>
        <translation>Kein ET, daher keine Messpunkte. Patientin &gt; ET aus ...</translation>
    </message>
    <message>
        <source>No date, so no ages. Type it beside the page.</source>
        <translation>Kein Datum, daher keine SSW. Bitte neben der Seite eingeben.</translation>
    </message>
    <message>
        <source>No date, so no marks. Type it beside the page.</source>
        <translation>Kein Datum, daher keine Messpunkte. Bitte neben der Seite eingeben.</translation>
    </message>
    <message>
        <source>Obstetric ultrasound biometry</source>
        <translation>Geburtshilfliche Ultraschallbiometrie</translation>
    </message>
    <message>
        <source>An empty number of days counts as 0.</source>
        <translation>Eine leere Zahl von Tagen zählt als 0.</translation>
    </message>
    <message>
        <source>Usually a cycle has 24 to 38 days, its luteal phase 11 to 17.</source>
        <translation>Gewöhnlich hat ein Zyklus 24 bis 38 Tage, seine Lutealphase 11 bis 17.</translation>
    </message>
    <message>
        <source>Type whole days.</source>
        <translation>Bitte ganze Tage eingeben.</translation>
    </message>
    <message>
        <source>Add Examination</source>
        <translation>Neue Untersuchung</translation>
    </message>
    <message>
        <source>Delete Examination</source>
        <translation>Untersuchung löschen</translation>
    </message>
    <message>
        <source>Add Fetus</source>
        <translation>Fetus hinzufügen</translation>
    </message>
    <message>
        <source>Remove Fetus</source>
        <translation>Fetus entfernen</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>ET</translation>
    </message>
    <message>
        <source>Growth Standard</source>
        <translation>Wachstumsstandard</translation>
    </message>
    <message>
        <source>Weight Formula</source>
        <translation>Gewichtsformel</translation>
    </message>
    <message>
        <source>Crown-Rump Formula</source>
        <translation>SSL-Formel</translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation>Patienten-ID</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>Gravidität</translation>
    </message>
    <message>
        <source>Examination Date</source>
        <translation>Untersuchungsdatum</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>Maße</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>BPD</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>KU</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>AU</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>FL</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Planned Delivery</source>
        <translation>Geplante Entbindung</translation>
    </message>
    <message>
        <source>Lines join the marks of each fetus.</source>
        <translation>Linien verbinden die Messpunkte jedes Fetus.</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>Bericht importieren</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>There is no examination.</source>
        <translation>Es gibt keine Untersuchung.</translation>
    </message>
    <message>
        <source>Nothing here writes DICOM reports.</source>
        <translation>Diese Installation kann keine DICOM-Berichte schreiben.</translation>
    </message>
</context>
<context>
    <name>OutputMenu</name>
    <message>
        <source>Export Page</source>
        <translation>Seite exportieren</translation>
    </message>
    <message>
        <source>Export All Fetuses</source>
        <translation>Alle Feten exportieren</translation>
    </message>
    <message>
        <source>Export Settings...</source>
        <translation>Exporteinstellungen...</translation>
    </message>
    <message>
        <source>Page Setup...</source>
        <translation>Seite einrichten...</translation>
    </message>
    <message>
        <source>Print Preview...</source>
        <translation>Druckvorschau...</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportiert nach %1</translation>
    </message>
    <message>
        <source>Exporting pages...</source>
        <translation>Seiten werden exportiert...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 pages were exported to %2</source>
        <translation>%1 Seiten wurden nach %2 exportiert</translation>
    </message>
    <message>
        <source>%1 pages were not exported.</source>
        <translation>%1 Seiten wurden nicht exportiert.</translation>
    </message>
    <message>
        <source>Please make room in this folder, or choose another in Export Settings.</source>
        <translation>Bitte schaffen Sie Platz in diesem Ordner oder wählen Sie in den Exporteinstellungen einen anderen.</translation>
    </message>
    <message>
        <source>Export Settings</source>
        <translation>Exporteinstellungen</translation>
    </message>
    <message>
        <source>Asked for at the first export</source>
        <translation>Wird beim ersten Export erfragt</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Auswählen...</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>PDF, for print and archive</source>
        <translation>PDF, für Druck und Archiv</translation>
    </message>
    <message>
        <source>PNG, a picture</source>
        <translation>PNG, ein Bild</translation>
    </message>
    <message>
        <source>SVG, a drawing</source>
        <translation>SVG, eine Zeichnung</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Patient, standards and date under each page</source>
        <translation>&amp;Patientin, Standards und Datum unter jeder Seite</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>No Centiles</source>
        <translation>Keine Perzentilen</translation>
    </message>
    <message>
        <source>Join Marks</source>
        <translation>Messpunkte verbinden</translation>
    </message>
</context>
<context>
    <name>PageFiles</name>
    <message>
        <source>holds no patient</source>
        <translation>enthält keine Patientin</translation>
    </message>
    <message>
        <source>the folder could not be made</source>
        <translation>der Ordner konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>it has no such fetus or page</source>
        <translation>hat keinen solchen Fetus oder keine solche Seite</translation>
    </message>
    <message>
        <source>it says %1 fetuses, which cannot be chosen from; the pages are those of the first</source>
        <translation>nennt %1 Feten, unter denen nicht gewählt werden kann; die Seiten sind die des ersten</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>it could not be painted</source>
        <translation>konnte nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>its pages are several files, which standard output cannot take</source>
        <translation>die Seiten sind mehrere Dateien, die die Standardausgabe nicht aufnehmen kann</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>it is there already, and stays as it is</source>
        <translation>ist bereits vorhanden und bleibt, wie es ist</translation>
    </message>
</context>
<context>
    <name>Printer</name>
    <message>
        <source>There is no printer. Please choose a file to print into in the print panel, or export the page.</source>
        <translation>Es gibt keinen Drucker. Bitte wählen Sie im Druckdialog eine Datei als Ziel oder exportieren Sie die Seite.</translation>
    </message>
    <message>
        <source>Please make room there or choose another file.</source>
        <translation>Bitte schaffen Sie dort Platz oder wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>The page could not be painted.</source>
        <translation>Die Seite konnte nicht gezeichnet werden.</translation>
    </message>
    <message>
        <source>The printer %1 does not answer. Please look after it or choose another.</source>
        <translation>Der Drucker %1 antwortet nicht. Bitte prüfen Sie ihn oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The printer refused the page.</source>
        <translation>Der Drucker hat die Seite abgelehnt.</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>%ld of %ld</source>
        <translation>%ld von %ld</translation>
    </message>
    <message>
        <source>%ld a second</source>
        <translation>%ld pro Sekunde</translation>
    </message>
    <message>
        <source>%ld a minute</source>
        <translation>%ld pro Minute</translation>
    </message>
    <message>
        <source>%ld s left</source>
        <translation>noch %ld s</translation>
    </message>
    <message>
        <source>%ld min left</source>
        <translation>noch %ld min</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Reference ID</source>
        <translation>Patienten-ID</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>ET</translation>
    </message>
    <message>
        <source>Growth standard</source>
        <translation>Wachstumsstandard</translation>
    </message>
    <message>
        <source>Weight formula</source>
        <translation>Gewichtsformel</translation>
    </message>
    <message>
        <source>Number of fetuses</source>
        <translation>Zahl der Feten</translation>
    </message>
    <message>
        <source>Planned delivery</source>
        <translation>Geplante Entbindung</translation>
    </message>
    <message>
        <source>Formula for the crown-rump length</source>
        <translation>Formel für die Scheitel-Steiß-Länge</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>Gravidität</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept against a crash. Please save:</source>
        <translation>Nicht gespeicherte Änderungen können nicht gegen einen Absturz gesichert werden. Bitte speichern Sie:</translation>
    </message>
    <message>
        <source>Nascor ended before the changes of this document were saved. Do you want to recover them?</source>
        <translation>Nascor wurde beendet, bevor die Änderungen an diesem Dokument gespeichert waren. Möchten Sie sie wiederherstellen?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Unsaved changes were kept when Nascor ended, but they cannot be read.</source>
        <translation>Nicht gespeicherte Änderungen wurden gesichert, als Nascor beendet wurde, sie können aber nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Remove the File</source>
        <translation>Datei entfernen</translation>
    </message>
    <message>
        <source>Keep the File</source>
        <translation>Datei behalten</translation>
    </message>
    <message>
        <source>Patient:</source>
        <translation>Patientin:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Dokument:</translation>
    </message>
    <message>
        <source>never saved</source>
        <translation>nie gespeichert</translation>
    </message>
    <message>
        <source>Last kept:</source>
        <translation>Zuletzt gesichert:</translation>
    </message>
    <message>
        <source>An examination that was removed</source>
        <translation>Eine Untersuchung, die entfernt wurde</translation>
    </message>
    <message>
        <source>Examination of</source>
        <translation>Untersuchung vom</translation>
    </message>
    <message>
        <source>An examination without a date</source>
        <translation>Eine Untersuchung ohne Datum</translation>
    </message>
    <message>
        <source>What differs from the saved document:</source>
        <translation>Unterschiede zum gespeicherten Dokument:</translation>
    </message>
    <message>
        <source>The document was saved again since. What was saved then is not in these changes.</source>
        <translation>Das Dokument wurde seitdem noch einmal gespeichert. Was dabei gespeichert wurde, ist in diesen Änderungen nicht enthalten.</translation>
    </message>
</context>
<context>
    <name>References</name>
    <message>
        <source>The number is a name of this program; the lengths in parentheses tell the formula.</source>
        <translation>Die Nummer ist eine Bezeichnung dieses Programms; die Maße in Klammern bestimmen die Formel.</translation>
    </message>
    <message>
        <source>Weeks 11 to 14 lie outside the published sample, which has 15 to 41 weeks.</source>
        <translation>Die Wochen 11 bis 14 liegen außerhalb der publizierten Stichprobe von 15 bis 41 Wochen.</translation>
    </message>
    <message>
        <source>The numbers are those of the published tables.</source>
        <translation>Die Zahlen sind die der publizierten Tabellen.</translation>
    </message>
    <message>
        <source>The constant is 23.72 here; publications have 23.73.</source>
        <translation>Die Konstante ist hier 23,72; Publikationen nennen 23,73.</translation>
    </message>
    <message>
        <source>The band of the weight chart is the random error of the formula. It shows no centiles of a population.</source>
        <translation>Das Band im Gewichtsdiagramm ist der zufällige Fehler der Formel. Es zeigt keine Perzentilen einer Population.</translation>
    </message>
    <message>
        <source>Citation partly confirmed.</source>
        <translation>Literaturangabe teilweise bestätigt.</translation>
    </message>
    <message>
        <source>Citation to be confirmed.</source>
        <translation>Literaturangabe noch zu bestätigen.</translation>
    </message>
    <message>
        <source>References</source>
        <translation>Quellen</translation>
    </message>
    <message>
        <source>&amp;Copy All</source>
        <translation>Alles &amp;kopieren</translation>
    </message>
    <message>
        <source>Weeks 12 and 13 lie outside the published sample, which has 14 to 42 weeks. The AC is the paper&apos;s equation, not its table, which is up to 1.68 mm higher. Dating reads the table of sizes backwards; the paper&apos;s own age equations, which scanners use, give other ages: HC 5 to 9.9 days more at 26 to 37 weeks, BPD 11.5 days less and AC 6.7 days less at 40, FL 3.6 days more at 29 to 30.</source>
        <translation>Die Wochen 12 und 13 liegen außerhalb der publizierten Stichprobe von 14 bis 42 Wochen. Der AU folgt der Gleichung der Publikation, nicht ihrer Tabelle, die bis zu 1,68 mm höher liegt. Die Datierung liest die Tabelle der Größen rückwärts; die eigenen Altersgleichungen der Publikation, die Ultraschallgeräte verwenden, ergeben andere Alter: KU 5 bis 9,9 Tage mehr bei 26 bis 37 Wochen, BPD 11,5 Tage weniger und AU 6,7 Tage weniger bei 40, FL 3,6 Tage mehr bei 29 bis 30.</translation>
    </message>
    <message>
        <source>No second source has this formula. Compared with Hadlock (1992) it gives 9.4 days more at 6.7 mm, 2.9 days more at 20 mm, the same at 30 mm and 1.3 days less at 45 mm.</source>
        <translation>Keine zweite Quelle hat diese Formel. Verglichen mit Hadlock (1992) ergibt sie 9,4 Tage mehr bei 6,7 mm, 2,9 Tage mehr bei 20 mm, dasselbe bei 30 mm und 1,3 Tage weniger bei 45 mm.</translation>
    </message>
    <message>
        <source>Two independent sources have the same formula.</source>
        <translation>Zwei unabhängige Quellen haben dieselbe Formel.</translation>
    </message>
    <message>
        <source>BPD is measured from outer to outer edge. Held against the 1512 values of the printed tables: at most 0.073 mm off.</source>
        <translation>Der BPD wird von Außenkante zu Außenkante gemessen. Abgleich mit den 1512 Werten der gedruckten Tabellen: höchstens 0,073 mm Abweichung.</translation>
    </message>
    <message>
        <source>Fits weights by the formula Hadlock 1 (HC/AC/FL) only. Held against the printed table: at most 0.49 g off.</source>
        <translation>Passt nur zu Gewichten nach der Formel Hadlock 1 (HC/AC/FL). Abgleich mit der gedruckten Tabelle: höchstens 0,49 g Abweichung.</translation>
    </message>
    <message>
        <source>The abstract has 12.7 % for one standard deviation; the printed percentiles have 13.27 %, which stands here. Held against the printed table: at most 2.2 g off.</source>
        <translation>Die Kurzfassung nennt 12,7 % für eine Standardabweichung; aus den gedruckten Perzentilen folgen 13,27 %, die hier stehen. Abgleich mit der gedruckten Tabelle: höchstens 2,2 g Abweichung.</translation>
    </message>
    <message>
        <source>Coefficients of the revision of 2023-03-13, published under CC BY. Curves of centiles, no distribution: below the 1st and above the 99th it says no more than that.</source>
        <translation>Koeffizienten der Revision vom 13.03.2023, publiziert unter CC BY. Perzentilenkurven, keine Verteilung: Unterhalb der 1. und oberhalb der 99. sagt die Referenz nur eben dies.</translation>
    </message>
    <message>
        <source>Lengths measured as the publication has it; normal about the mean</source>
        <translation>Maße gemessen wie in der Publikation; normalverteilt um den Mittelwert</translation>
    </message>
    <message>
        <source>BPD measured from outer to outer edge; normal about the mean</source>
        <translation>BPD von Außenkante zu Außenkante gemessen; normalverteilt um den Mittelwert</translation>
    </message>
    <message>
        <source>Weight by the formula Hadlock 1 (HC/AC/FL); no other formula fits it</source>
        <translation>Gewicht nach der Formel Hadlock 1 (HC/AC/FL); keine andere Formel passt dazu</translation>
    </message>
    <message>
        <source>Weight normal about the mean, with a standard deviation of 13.27 % of it</source>
        <translation>Gewicht normalverteilt um den Mittelwert, mit einer Standardabweichung von 13,27 % davon</translation>
    </message>
    <message>
        <source>No distribution: between the curves of eleven centiles linear in the value, beyond the 1st and the 99th unknown</source>
        <translation>Keine Verteilung: zwischen den Kurven von elf Perzentilen linear im Wert, jenseits der 1. und der 99. unbekannt</translation>
    </message>
    <message>
        <source>Formula and checked values</source>
        <translation>Formel und geprüfte Werte</translation>
    </message>
    <message>
        <source>Lengths in mm, weights in g; w is the age in weeks, d in days, g in tens of weeks. What stands side by side is multiplied.</source>
        <translation>Maße in mm, Gewichte in g; w ist das Alter in Wochen, d in Tagen, g in Einheiten von zehn Wochen. Was nebeneinander steht, wird multipliziert.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>SD</source>
        <translation>SD</translation>
    </message>
    <message>
        <source>%1 values, of which %2 differ from what the program answers now.</source>
        <translation>%1 Werte; bei %2 davon weicht die jetzige Antwort des Programms ab.</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Erwartet</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Quotients of what was measured; nothing is published of them here.</source>
        <translation>Quotienten der Messwerte; dazu ist hier nichts publiziert.</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>Printed table</source>
        <translation>Gedruckte Tabelle</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>%1 to %2 mm</source>
        <translation>%1 bis %2 mm</translation>
    </message>
    <message>
        <source>%1 to %2 weeks</source>
        <translation>%1 bis %2 Wochen</translation>
    </message>
    <message>
        <source>Assumes</source>
        <translation>Voraussetzungen</translation>
    </message>
    <message>
        <source>Checked with</source>
        <translation>Geprüft mit</translation>
    </message>
    <message>
        <source>&amp;All References</source>
        <translation>&amp;Alle Quellen</translation>
    </message>
</context>
<context>
    <name>ReportImport</name>
    <message>
        <source>chosen at the machine</source>
        <translation>am Gerät ausgewählt</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>mean of several</source>
        <translation>Mittelwert mehrerer</translation>
    </message>
    <message>
        <source>calculated, not measured</source>
        <translation>berechnet, nicht gemessen</translation>
    </message>
    <message>
        <source>estimated, not measured</source>
        <translation>geschätzt, nicht gemessen</translation>
    </message>
    <message>
        <source>The report cannot be imported.</source>
        <translation>Der Bericht kann nicht importiert werden.</translation>
    </message>
    <message>
        <source>Fetched report %ld</source>
        <translation>Abgerufener Bericht %ld</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>BPD</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>KU</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>AU</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>FL</translation>
    </message>
    <message>
        <source>CRL</source>
        <translation>SSL</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>ET</translation>
    </message>
    <message>
        <source>Last period</source>
        <translation>Letzte Periode</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>Gravidität</translation>
    </message>
    <message>
        <source>The reference ID of the report has characters that cannot be read.</source>
        <translation>Die Patienten-ID des Berichts hat Zeichen, die nicht gelesen werden können.</translation>
    </message>
    <message>
        <source>The report does not say of which patient it is.</source>
        <translation>Der Bericht sagt nicht, zu welcher Patientin er gehört.</translation>
    </message>
    <message>
        <source>The document does not say of which patient it is.</source>
        <translation>Das Dokument sagt nicht, zu welcher Patientin es gehört.</translation>
    </message>
    <message>
        <source>The report is of another patient than the document.</source>
        <translation>Der Bericht gehört zu einer anderen Patientin als das Dokument.</translation>
    </message>
    <message>
        <source>Fetus without an ID</source>
        <translation>Fetus ohne ID</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Fetus</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>is added</source>
        <translation>wird hinzugefügt</translation>
    </message>
    <message>
        <source>is there already</source>
        <translation>ist schon vorhanden</translation>
    </message>
    <message>
        <source>is not taken: another value stands</source>
        <translation>wird nicht übernommen: ein anderer Wert steht da</translation>
    </message>
    <message>
        <source>is not taken: beyond what can be typed</source>
        <translation>wird nicht übernommen: außerhalb des Eingabebereichs</translation>
    </message>
    <message>
        <source>is left out</source>
        <translation>wird weggelassen</translation>
    </message>
    <message>
        <source>Fetuses</source>
        <translation>Feten</translation>
    </message>
    <message>
        <source>is compared only</source>
        <translation>wird nur verglichen</translation>
    </message>
    <message>
        <source>from the last period</source>
        <translation>aus der letzten Periode</translation>
    </message>
    <message>
        <source>replaces the established EDD</source>
        <translation>ersetzt den festgelegten ET</translation>
    </message>
    <message>
        <source>is not taken: the established EDD stays</source>
        <translation>wird nicht übernommen: der festgelegte ET bleibt</translation>
    </message>
    <message>
        <source>Which fetus is it?</source>
        <translation>Welcher Fetus ist es?</translation>
    </message>
    <message>
        <source>is entered in EDD from CRL</source>
        <translation>wird in ET aus SSL eingetragen</translation>
    </message>
    <message>
        <source>is not stored; can be entered in EDD from CRL</source>
        <translation>wird nicht gespeichert; kann in ET aus SSL eingetragen werden</translation>
    </message>
    <message>
        <source>is not taken:</source>
        <translation>wird nicht übernommen:</translation>
    </message>
    <message>
        <source>The report is of %ld fetuses, the document of %ld. Please leave out the others, or cancel and add a fetus.</source>
        <translation>Der Bericht hat %ld Feten, das Dokument %ld. Bitte lassen Sie die übrigen weg, oder brechen Sie ab und fügen Sie einen Fetus hinzu.</translation>
    </message>
    <message>
        <source>Please choose for each fetus which one it is.</source>
        <translation>Bitte wählen Sie für jeden Fetus, welcher es ist.</translation>
    </message>
    <message>
        <source>Two fetuses of the report cannot be the same one.</source>
        <translation>Zwei Feten des Berichts können nicht derselbe sein.</translation>
    </message>
    <message>
        <source>The reports are of several patients. Please import those of each patient alone.</source>
        <translation>Die Berichte gehören zu mehreren Patientinnen. Bitte importieren Sie die jeder Patientin einzeln.</translation>
    </message>
    <message>
        <source>Please say whether the report is of this patient.</source>
        <translation>Bitte geben Sie an, ob der Bericht zu dieser Patientin gehört.</translation>
    </message>
    <message>
        <source>The document has a number of fetuses that no report fits.</source>
        <translation>Das Dokument hat eine Zahl von Feten, zu der kein Bericht passt.</translation>
    </message>
    <message>
        <source>There is nothing to be added.</source>
        <translation>Es gibt nichts hinzuzufügen.</translation>
    </message>
</context>
<context>
    <name>ServerMenu</name>
    <message>
        <source>&amp;Fetch Reports...</source>
        <translation>Berichte &amp;abrufen...</translation>
    </message>
    <message>
        <source>&amp;Send This Examination...</source>
        <translation>Diese Untersuchung &amp;senden...</translation>
    </message>
    <message>
        <source>There is no server.</source>
        <translation>Es gibt keinen Server.</translation>
    </message>
    <message>
        <source>The reports cannot be fetched.</source>
        <translation>Die Berichte können nicht abgerufen werden.</translation>
    </message>
    <message>
        <source>Fetch Reports</source>
        <translation>Berichte abrufen</translation>
    </message>
    <message>
        <source>Reference ID of the patient on %1:</source>
        <translation>Patienten-ID auf %1:</translation>
    </message>
    <message>
        <source>Asking %1...</source>
        <translation>Anfrage an %1...</translation>
    </message>
    <message>
        <source>The server has no report of the patient %1.</source>
        <translation>Der Server hat keinen Bericht zur Patientin %1.</translation>
    </message>
    <message>
        <source>Fetching from %1...</source>
        <translation>Abruf von %1...</translation>
    </message>
    <message>
        <source>Not all reports were fetched.</source>
        <translation>Nicht alle Berichte wurden abgerufen.</translation>
    </message>
    <message>
        <source>Examination</source>
        <translation>Untersuchung</translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation>Patienten-ID</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>The examination was not sent.</source>
        <translation>Die Untersuchung wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>without a date</source>
        <translation>ohne Datum</translation>
    </message>
    <message>
        <source>Patient %1, examination %2, to %3.</source>
        <translation>Patientin %1, Untersuchung %2, an %3.</translation>
    </message>
    <message>
        <source>The connection is not encrypted.</source>
        <translation>Die Verbindung ist nicht verschlüsselt.</translation>
    </message>
    <message>
        <source>Send this examination to the server?</source>
        <translation>Diese Untersuchung an den Server senden?</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>Senden an %1...</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Gesendet an %1</translation>
    </message>
    <message>
        <source>The answer was not waited for.</source>
        <translation>Die Antwort wurde nicht abgewartet.</translation>
    </message>
    <message>
        <source>Server S&amp;ettings...</source>
        <translation>Server-&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>Please name one in File &gt; Report Folder and Server &gt; Server Settings.</source>
        <translation>Bitte nennen Sie einen unter Datei &gt; Berichtsordner und -server &gt; Server-Einstellungen.</translation>
    </message>
</context>
<context>
    <name>ServerSettings</name>
    <message>
        <source>Choose...</source>
        <translation>Auswählen...</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>&amp;Encrypted connection (TLS)</source>
        <translation>&amp;Verschlüsselte Verbindung (TLS)</translation>
    </message>
    <message>
        <source>Server Settings</source>
        <translation>Server-Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>&amp;Host:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>&amp;Title of the server:</source>
        <translation>AE-&amp;Titel des Servers:</translation>
    </message>
    <message>
        <source>Title of this prog&amp;ram:</source>
        <translation>Eigener AE-Tite&amp;l:</translation>
    </message>
    <message>
        <source>&amp;Authority&apos;s certificate:</source>
        <translation>CA-&amp;Zertifikat:</translation>
    </message>
    <message>
        <source>&amp;Own certificate:</source>
        <translation>Ei&amp;genes Zertifikat:</translation>
    </message>
    <message>
        <source>Own &amp;key:</source>
        <translation>Eigener S&amp;chlüssel:</translation>
    </message>
    <message>
        <source>Te&amp;st</source>
        <translation>Te&amp;sten</translation>
    </message>
    <message>
        <source>Without a host Nascor speaks to no server.</source>
        <translation>Ohne Host spricht Nascor mit keinem Server.</translation>
    </message>
    <message>
        <source>Reports will cross the network in clear.</source>
        <translation>Berichte gehen unverschlüsselt durch das Netz.</translation>
    </message>
    <message>
        <source>The server answers.</source>
        <translation>Der Server antwortet.</translation>
    </message>
</context>
<context>
    <name>ServerTask</name>
    <message>
        <source>Waiting for the end of the last question...</source>
        <translation>Warten auf das Ende der vorigen Anfrage...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source> (g)</source>
        <translation> (g)</translation>
    </message>
    <message>
        <source> (mm)</source>
        <translation> (mm)</translation>
    </message>
    <message>
        <source>Fetus %ld of %ld</source>
        <translation>Fetus %ld von %ld</translation>
    </message>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>in %ld days</source>
        <translation>in %ld Tagen</translation>
    </message>
    <message>
        <source>%ld days ago</source>
        <translation>vor %ld Tagen</translation>
    </message>
    <message>
        <source>%ld days after the EDD</source>
        <translation>%ld Tage nach dem ET</translation>
    </message>
    <message>
        <source>%ld days before the EDD</source>
        <translation>%ld Tage vor dem ET</translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation>Patienten-ID</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Fetus</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>Gravidität</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>ET</translation>
    </message>
    <message>
        <source>Last examination</source>
        <translation>Letzte Untersuchung</translation>
    </message>
    <message>
        <source>Planned delivery</source>
        <translation>Geplante Entbindung</translation>
    </message>
    <message>
        <source>Growth standard</source>
        <translation>Wachstumsstandard</translation>
    </message>
    <message>
        <source>Weight formula</source>
        <translation>Gewichtsformel</translation>
    </message>
    <message>
        <source>Discordance of weights</source>
        <translation>Gewichtsdiskordanz</translation>
    </message>
    <message>
        <source>Examiner</source>
        <translation>Untersucht von</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Examination</source>
        <translation>Untersuchung</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>SSW</translation>
    </message>
    <message>
        <source>The growth standard is not known.</source>
        <translation>Der Wachstumsstandard ist nicht bekannt.</translation>
    </message>
    <message>
        <source>A weight is given above 100 g.</source>
        <translation>Ein Gewicht wird erst über 100 g angegeben.</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Messwerte</translation>
    </message>
    <message>
        <source>Lengths: z and centile by </source>
        <translation>Maße: z und Perzentile nach </translation>
    </message>
    <message>
        <source>Weight: by the formula </source>
        <translation>Gewicht: nach der Formel </translation>
    </message>
    <message>
        <source>, z and centile by </source>
        <translation>, z und Perzentile nach </translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>centile</source>
        <translation>Perz.</translation>
    </message>
    <message>
        <source>Weights</source>
        <translation>Gewichte</translation>
    </message>
    <message>
        <source>Centiles by each reference for weights; difference from the formula in force.</source>
        <translation>Perzentilen nach jeder Referenz für Gewichte; Differenz zur gewählten Formel.</translation>
    </message>
    <message>
        <source>Growth</source>
        <translation>Wachstum</translation>
    </message>
    <message>
        <source>/week</source>
        <translation>/Woche</translation>
    </message>
    <message>
        <source>expected</source>
        <translation>erwartet</translation>
    </message>
    <message>
        <source>Lines: centiles 3, 10, 50, 90 and 97; lengths by </source>
        <translation>Linien: Perzentilen 3, 10, 50, 90 und 97; Maße nach </translation>
    </message>
    <message>
        <source>, weight by </source>
        <translation>, Gewicht nach </translation>
    </message>
    <message>
        <source>Weeks of menstrual age below.</source>
        <translation>Unten das Gestationsalter in Wochen.</translation>
    </message>
    <message>
        <source>The note is longer; the document has all of it.</source>
        <translation>Die Notiz ist länger; das Dokument enthält sie ganz.</translation>
    </message>
    <message>
        <source>en</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Fetal biometry summary</source>
        <translation>Zusammenfassung der fetalen Biometrie</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Quellen</translation>
    </message>
    <message>
        <source>Page %ld of %ld</source>
        <translation>Seite %ld von %ld</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>morgen</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>gestern</translation>
    </message>
    <message>
        <source>one day after the EDD</source>
        <translation>einen Tag nach dem ET</translation>
    </message>
    <message>
        <source>one day before the EDD</source>
        <translation>einen Tag vor dem ET</translation>
    </message>
    <message>
        <source>Since the last examination before that has the measure: change a week, what the growth standard expects, and change of z.</source>
        <translation>Seit der letzten Untersuchung davor mit dieser Messgröße: Änderung pro Woche, nach dem Wachstumsstandard erwartete Änderung und z-Änderung.</translation>
    </message>
</context>
<context>
    <name>SummaryMenu</name>
    <message>
        <source>Export Summary...</source>
        <translation>Zusammenfassung exportieren...</translation>
    </message>
    <message>
        <source>Print Summary...</source>
        <translation>Zusammenfassung drucken...</translation>
    </message>
    <message>
        <source>Summary Details...</source>
        <translation>Briefkopf und Name...</translation>
    </message>
    <message>
        <source>Export Summary</source>
        <translation>Zusammenfassung exportieren</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>HTML (*.html)</source>
        <translation>HTML (*.html)</translation>
    </message>
    <message>
        <source>The summary was not exported.</source>
        <translation>Die Zusammenfassung wurde nicht exportiert.</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportiert nach %1</translation>
    </message>
    <message>
        <source>The summary was not printed.</source>
        <translation>Die Zusammenfassung wurde nicht gedruckt.</translation>
    </message>
    <message>
        <source>There is no printer. Please choose a file to print into in the print panel.</source>
        <translation>Es gibt keinen Drucker. Bitte wählen Sie im Druckdialog eine Datei als Ziel.</translation>
    </message>
    <message>
        <source>The printer %1 does not answer. Please look after it or choose another.</source>
        <translation>Der Drucker %1 antwortet nicht. Bitte prüfen Sie ihn oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Summary Details</source>
        <translation>Briefkopf und Name</translation>
    </message>
    <message>
        <source>&amp;Letterhead:</source>
        <translation>&amp;Briefkopf:</translation>
    </message>
    <message>
        <source>&amp;Examiner:</source>
        <translation>&amp;Untersucht von:</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>The user guide cannot be shown.</source>
        <translation>Die Anleitung kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>%1 is not installed.</source>
        <translation>%1 ist nicht installiert.</translation>
    </message>
    <message>
        <source>There is no program that shows %1.</source>
        <translation>Es gibt kein Programm, das %1 anzeigt.</translation>
    </message>
</context>
<context>
    <name>WaitingReports</name>
    <message>
        <source>No reference ID</source>
        <translation>Keine Patienten-ID</translation>
    </message>
    <message>
        <source>1 report has come</source>
        <translation>1 neuer Bericht</translation>
    </message>
    <message>
        <source>%1 reports have come</source>
        <translation>%1 neue Berichte</translation>
    </message>
    <message>
        <source>Set All &amp;Aside</source>
        <translation>Alle &amp;zurückstellen</translation>
    </message>
    <message>
        <source>Report Folder</source>
        <translation>Berichtsordner</translation>
    </message>
    <message>
        <source>&amp;Offer reports that ultrasound machines put here:</source>
        <translation>Berichte an&amp;bieten, die Ultraschallgeräte hier ablegen:</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Auswählen...</translation>
    </message>
    <message>
        <source>No folder was chosen</source>
        <translation>Es wurde kein Ordner gewählt</translation>
    </message>
</context>
<context>
    <name>ZuVersion</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Obstetric ultrasound biometry.
%1</source>
        <translation>Geburtshilfliche Ultraschallbiometrie.
%1</translation>
    </message>
    <message>
        <source>Documents to open.</source>
        <translation>Zu öffnende Dokumente.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Zeigt die Version.</translation>
    </message>
    <message>
        <source>Shows no window until the session bus asks for one.</source>
        <translation>Zeigt kein Fenster, bis der Sitzungsbus eines verlangt.</translation>
    </message>
    <message>
        <source>nascor: no window can be shown: %1</source>
        <translation>nascor: Es kann kein Fenster gezeigt werden: %1</translation>
    </message>
    <message>
        <source>--%1 knows no &quot;%2&quot;.</source>
        <translation>--%1 kennt „%2“ nicht.</translation>
    </message>
    <message>
        <source>Which documents? --write-pages FOLDER FILE...</source>
        <translation>Welche Dokumente? --write-pages FOLDER FILE...</translation>
    </message>
    <message>
        <source>With --write-pages: pdf, png or svg; else PNG and PDF.</source>
        <translation>Mit --write-pages: pdf, png oder svg; sonst PNG und PDF.</translation>
    </message>
    <message>
        <source>With --write-pages: all, or first, last, numbers from 0 and names, with commas between.</source>
        <translation>Mit --write-pages: all, oder first, last, Nummern ab 0 und Namen, mit Kommas dazwischen.</translation>
    </message>
    <message>
        <source>With --write-pages: all, or the number of one fetus.</source>
        <translation>Mit --write-pages: all, oder die Nummer eines Fetus.</translation>
    </message>
    <message>
        <source>With --write-pages: nothing stands under the pages.</source>
        <translation>Mit --write-pages: Unter den Seiten steht nichts.</translation>
    </message>
    <message>
        <source>With --write-pages: the files are not listed.</source>
        <translation>Mit --write-pages: Die Dateien werden nicht aufgelistet.</translation>
    </message>
    <message>
        <source>Writes the pages of the documents into FOLDER, and shows no window. Files of the same names are replaced. As - the one file goes to standard output.</source>
        <translation>Schreibt die Seiten der Dokumente nach FOLDER und zeigt kein Fenster. Dateien gleichen Namens werden ersetzt. Mit - geht die einzige Datei an die Standardausgabe.</translation>
    </message>
    <message>
        <source>With --write-pages: files that are there are left as they are.</source>
        <translation>Mit --write-pages: Vorhandene Dateien bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>With --write-pages: draws centile lines of that reference over the charts.</source>
        <translation>Mit --write-pages: Zeichnet die Perzentilenlinien dieser Referenz über die Diagramme.</translation>
    </message>
    <message>
        <source>With --write-pages: lines join the marks of each fetus.</source>
        <translation>Mit --write-pages: Linien verbinden die Messpunkte jedes Fetus.</translation>
    </message>
    <message>
        <source>Offers the reports that machines put into this folder.</source>
        <translation>Bietet die Berichte an, die Geräte in diesen Ordner legen.</translation>
    </message>
    <message>
        <source>nascor: --watch: %1 is no folder</source>
        <translation>nascor: --watch: %1 ist kein Ordner</translation>
    </message>
    <message>
        <source>nascor: --watch: Nascor is running already. Please choose the folder there, by File &gt; Report Folder and Server.</source>
        <translation>nascor: --watch: Nascor läuft bereits. Bitte wählen Sie den Ordner dort, unter Datei &gt; Berichtsordner und -server.</translation>
    </message>
</context>
</TS>
