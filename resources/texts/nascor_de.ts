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
        <translation>Wachstumsstandard: </translation>
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
        <source>%1 has no centiles of this measure</source>
        <translation>%1 hat keine Perzentilen dieser Messgröße</translation>
    </message>
    <message>
        <source>Centiles: %1, which fits weights by another formula alone: %2</source>
        <translation>Perzentilen: %1, gilt nur für Gewichte nach einer anderen Formel: %2</translation>
    </message>
    <message>
        <source>Centiles: %1</source>
        <translation>Perzentilen: %1</translation>
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
    <name>Check</name>
    <message>
        <source>its byte order is big</source>
        <translation>die Bytereihenfolge ist Big-Endian</translation>
    </message>
    <message>
        <source>the old place of the gravidity holds &quot;%1&quot;</source>
        <translation>an der alten Stelle der Gravida steht „%1“</translation>
    </message>
    <message>
        <source>the old place of the gravidity holds nothing</source>
        <translation>die alte Stelle der Gravida ist leer</translation>
    </message>
    <message>
        <source>%1 list is missing</source>
        <translation>%1 Liste fehlt</translation>
    </message>
    <message>
        <source>%1 lists are missing</source>
        <translation>%1 Listen fehlen</translation>
    </message>
    <message>
        <source>%1 record stands in several places</source>
        <translation>%1 Datensatz steht an mehreren Stellen</translation>
    </message>
    <message>
        <source>%1 records stand in several places</source>
        <translation>%1 Datensätze stehen an mehreren Stellen</translation>
    </message>
    <message>
        <source>%1 byte follows the patient</source>
        <translation>%1 Byte folgt auf die Patientin</translation>
    </message>
    <message>
        <source>%1 bytes follow the patient</source>
        <translation>%1 Byte folgen auf die Patientin</translation>
    </message>
    <message>
        <source>%1 has version %2, older than %3</source>
        <extracomment>%1 is the name of a class of a document&apos;s file, as in the next one.</extracomment>
        <translation>%1 hat Version %2, älter als %3</translation>
    </message>
    <message>
        <source>%1 has version %2, newer than %3</source>
        <translation>%1 hat Version %2, neuer als %3</translation>
    </message>
    <message>
        <source>the identifier is missing</source>
        <translation>die Patienten-ID fehlt</translation>
    </message>
    <message>
        <source>the EDD is missing</source>
        <translation>der ET fehlt</translation>
    </message>
    <message>
        <source>the EDD is %1</source>
        <translation>der ET ist %1</translation>
    </message>
    <message>
        <source>the EDD, %1 s from 2001-01-01, is outside the years 1 to 9999</source>
        <extracomment>2001-01-01 is the day from which seconds count.</extracomment>
        <translation>der ET, %1 s ab 2001-01-01, liegt außerhalb der Jahre 1 bis 9999</translation>
    </message>
    <message>
        <source>the gravidity %1 is negative</source>
        <translation>die Gravida %1 ist negativ</translation>
    </message>
    <message>
        <source>the growth standard %1 is unknown</source>
        <translation>der Wachstumsstandard %1 ist unbekannt</translation>
    </message>
    <message>
        <source>the weight formula %1 is unknown</source>
        <translation>die Gewichtsformel %1 ist unbekannt</translation>
    </message>
    <message>
        <source>the CRL formula %1 is unknown</source>
        <translation>die SSL-Formel %1 ist unbekannt</translation>
    </message>
    <message>
        <source>the planned delivery, %1 days from 40 weeks, is outside %2 to %3 days</source>
        <translation>die geplante Entbindung, %1 Tage ab 40 Wochen, liegt außerhalb von %2 bis %3 Tagen</translation>
    </message>
    <message>
        <source>the number of fetuses, %1, is outside %2 to %3</source>
        <translation>die Anzahl der Feten, %1, liegt außerhalb von %2 bis %3</translation>
    </message>
    <message>
        <source>there is no examination</source>
        <translation>es gibt keine Untersuchung</translation>
    </message>
    <message>
        <source>the note is missing</source>
        <translation>die Notiz fehlt</translation>
    </message>
    <message>
        <source>the date is missing</source>
        <translation>das Datum fehlt</translation>
    </message>
    <message>
        <source>the date is %1</source>
        <translation>das Datum ist %1</translation>
    </message>
    <message>
        <source>the date, %1 s from 2001-01-01, is outside the years 1 to 9999</source>
        <translation>das Datum, %1 s ab 2001-01-01, liegt außerhalb der Jahre 1 bis 9999</translation>
    </message>
    <message>
        <source>it is earlier than the one before it</source>
        <extracomment>&quot;It&quot; is an examination.</extracomment>
        <translation>sie liegt vor der vorhergehenden</translation>
    </message>
    <message>
        <source>it has %1 fetus, the patient %2</source>
        <extracomment>&quot;It&quot; is an examination; %2 are the fetuses of the patient.</extracomment>
        <translation>sie hat %1 Fetus, die Patientin %2</translation>
    </message>
    <message>
        <source>it has %1 fetuses, the patient %2</source>
        <translation>sie hat %1 Feten, die Patientin %2</translation>
    </message>
    <message>
        <source>examination %1, fetus %2: %3</source>
        <extracomment>%3 is a sentence about that fetus of that examination, which begins with a small letter.</extracomment>
        <translation>Untersuchung %1, Fetus %2: %3</translation>
    </message>
    <message>
        <source>examination %1: %2</source>
        <translation>Untersuchung %1: %2</translation>
    </message>
</context>
<context>
    <name>CommandHelp</name>
    <message>
        <source>growth standards by number or name, intergrowth-2014, with commas between; without it all four</source>
        <translation>Wachstumsstandards, Nummer oder Name, intergrowth-2014, mit Kommas dazwischen; sonst alle vier</translation>
    </message>
    <message>
        <source>one weight, by number or name, instead of all eight</source>
        <translation>ein Gewicht, nach Nummer oder Name, statt aller acht</translation>
    </message>
    <message>
        <source>only these columns, of the input or computed, in this order</source>
        <translation>nur diese Spalten, aus der Eingabe oder berechnet, in dieser Reihenfolge</translation>
    </message>
    <message>
        <source>what is computed with one decimal, z-scores with three</source>
        <translation>Berechnetes mit einer Nachkommastelle, z-Scores mit drei</translation>
    </message>
    <message>
        <source>Weights, means and z-scores beside the columns of a CSV table on standard input.</source>
        <translation>Gewichte, Mittelwerte und z-Scores neben den Spalten einer CSV-Tabelle der Standardeingabe.</translation>
    </message>
    <message>
        <source>The first line names the columns; those that count are ga_weeks or ga, bpd_mm or bpd, hc_mm or
hc, ac_mm or ac, fl_mm or fl, in any order. All columns of the table stay as they came. Behind
them stand
  efw_0_g,...,efw_7_g,westerway_bpd_mean_mm,westerway_bpd_sd_mm,westerway_bpd_z,...,cfef_fl_z
  warning,error
An empty cell, 0, nan and NA are not measured. What is no number (45mm, 45,2) is named in error
and, with its line, on standard error; nothing is computed in that row, the others go on, and
the status is 1. Memory does not grow with the table.
Texts stay as they are. A spreadsheet runs cells that begin with &apos;=&apos;: import them as text.
</source>
        <translation>Die erste Zeile benennt die Spalten; von Bedeutung sind ga_weeks oder ga, bpd_mm oder bpd, hc_mm
oder hc, ac_mm oder ac, fl_mm oder fl, in beliebiger Reihenfolge. Alle Spalten der Tabelle bleiben,
wie sie kamen. Hinter ihnen stehen
  efw_0_g,...,efw_7_g,westerway_bpd_mean_mm,westerway_bpd_sd_mm,westerway_bpd_z,...,cfef_fl_z
  warning,error
Eine leere Zelle, 0, nan und NA gelten als nicht gemessen. Was keine Zahl ist (45mm, 45,2), wird in
error genannt und, mit der Zeile, auf der Standardfehlerausgabe; in dieser Zeile wird nichts
berechnet, mit den anderen geht es weiter, und der Rückgabewert ist 1. Der Speicherbedarf wächst
nicht mit der Tabelle.
Texte bleiben, wie sie sind. Eine Tabellenkalkulation führt Zellen aus, die mit &apos;=&apos; beginnen:
Importieren Sie sie als Text.
</translation>
    </message>
    <message>
        <source>a document; - is standard input</source>
        <translation>ein Dokument; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>one JSON object a document, on a line</source>
        <translation>ein JSON-Objekt pro Dokument, jedes auf einer Zeile</translation>
    </message>
    <message>
        <source>say ok where there is nothing to say</source>
        <translation>ok melden, wo es nichts zu melden gibt</translation>
    </message>
    <message>
        <source>Reads each document whole and names every oddity in it, one a line.</source>
        <translation>Liest jedes Dokument ganz und nennt jede Auffälligkeit darin, eine pro Zeile.</translation>
    </message>
    <message>
        <source>An oddity is accepted everywhere else: a count that disagrees, a date that is missing, a length beyond
what can be typed, an old class version. It leaves the exit status at 0; a file that cannot be read
makes it 1. Keys of the JSON: file, and oddities, an array of objects with kind, examination, fetus,
text.
</source>
        <translation>Eine Auffälligkeit wird überall sonst hingenommen: eine Anzahl, die nicht stimmt, ein Datum, das
fehlt, ein Maß außerhalb des Eingabebereichs, eine alte Klassenversion. Der Rückgabewert bleibt
damit 0; eine Datei, die nicht gelesen werden kann, macht ihn zu 1. Schlüssel des JSON: file und
oddities, ein Array von Objekten mit kind, examination, fetus, text.
</translation>
    </message>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation>Kein Medizinprodukt. Nicht für die klinische Anwendung validiert.</translation>
    </message>
    <message>
        <source>this text</source>
        <translation>dieser Text</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Obstetric ultrasound biometry for shells and scripts.</source>
        <translation>Geburtshilfliche Ultraschallbiometrie für Shells und Skripte.</translation>
    </message>
    <message>
        <source>Lengths are in millimetres, weights in grams, ages in weeks after the last menstrual period.
A FILE or a value of - is standard input. No question is ever asked.
Exit status: 0 all well, 1 some input was bad, 2 wrong usage.
</source>
        <translation>Maße sind in Millimetern, Gewichte in Gramm, Gestationsalter in Wochen nach der letzten Periode.
Ein FILE oder ein Wert - ist die Standardeingabe. Es wird nie etwas gefragt.
Rückgabewert: 0 alles in Ordnung, 1 fehlerhafte Eingabe, 2 falscher Aufruf.
</translation>
    </message>
    <message>
        <source>this text; help COMMAND explains one command</source>
        <translation>dieser Text; help COMMAND erklärt einen Befehl</translation>
    </message>
    <message>
        <source>this text; behind a command, that command&apos;s help</source>
        <translation>dieser Text; hinter einem Befehl dessen Hilfe</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>die Version des Programms</translation>
    </message>
    <message>
        <source>what follows is no option</source>
        <translation>was folgt, ist keine Option</translation>
    </message>
    <message>
        <source>one object a document, examination and fetus, on a line: unrounded numbers</source>
        <translation>ein Objekt pro Dokument, Untersuchung und Fetus, je auf einer Zeile: ungerundete Zahlen</translation>
    </message>
    <message>
        <source>Each length and weight by every reference and formula, ratios, twins, growth.</source>
        <translation>Jedes Maß und Gewicht nach jeder Referenz und Formel, Quotienten, Mehrlinge, Wachstum.</translation>
    </message>
    <message>
        <source>Examinations and fetuses count from 0. Difference is that from the weight by the document&apos;s formula.
Age is that of which the value is the median of the reference; outside its weeks a dash. Discordance
is the share, of the heaviest fetus, by which the lightest weighs less. Growth is that since the
examination before which has the length; the change of z is by the document&apos;s standard. Centiles of
weights are those of references; the error of a formula is no population.
</source>
        <translation>Untersuchungen und Feten werden ab 0 gezählt. Difference ist die Differenz zum Gewicht nach der
Formel des Dokuments. Age ist das Gestationsalter, dessen Median in der Referenz der Wert ist;
außerhalb ihrer Wochen ein Strich. Discordance ist der Anteil, bezogen auf den schwersten Fetus, um
den der leichteste weniger wiegt. Growth ist das Wachstum seit der letzten Untersuchung davor, die
das Maß hat; Change of z folgt dem Standard des Dokuments. Perzentilen von Gewichten sind die der
Referenzen; der Fehler einer Formel ist keine Population.
</translation>
    </message>
    <message>
        <source>Each document as JSON: every field that it holds, one object on a line.</source>
        <translation>Jedes Dokument als JSON: jedes Feld, das es enthält, ein Objekt pro Zeile.</translation>
    </message>
    <message>
        <source>Keys: maternalIDString, edd, eddISO, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (weeks), crlStandard, gravida, and examinations, an array of objects with note,
examDate, examDateISO and measurements, an array of objects with bpd, hc, ac and fl (mm; 0 = not
measured). Dates are seconds since 2001-01-01 UTC; beside each stands its local time as ISO text.
</source>
        <translation>Schlüssel: maternalIDString, edd, eddISO, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (Wochen), crlStandard, gravida und examinations, ein Array von Objekten mit
note, examDate, examDateISO und measurements, einem Array von Objekten mit bpd, hc, ac und fl (mm;
0 = nicht gemessen). Datumsangaben sind Sekunden seit 2001-01-01 UTC; daneben steht jeweils die
Ortszeit als ISO-Text.
</translation>
    </message>
    <message>
        <source>a document as JSON; - is standard input</source>
        <translation>ein Dokument als JSON; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>where to write it, as a whole or not at all; without it, or -, to standard output</source>
        <translation>wohin geschrieben wird, ganz oder gar nicht; ohne diese Option oder mit - zur Standardausgabe</translation>
    </message>
    <message>
        <source>A document from JSON.</source>
        <translation>Ein Dokument aus JSON.</translation>
    </message>
    <message>
        <source>Reads what json prints: maternalIDString, edd, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (weeks), crlStandard, gravida, and examinations, an array of objects with
note, examDate and measurements, an array of objects with bpd, hc, ac and fl (mm). Every key may be
missing; an unknown one is an error. A date is a number of
seconds since 2001-01-01 UTC, an ISO date (2027-04-10 is local midnight), an ISO date and time, or
null. Lengths are stored in single precision, whole numbers in 32 bits.
</source>
        <translation>Liest, was json ausgibt: maternalIDString, edd, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (Wochen), crlStandard, gravida und examinations, ein Array von Objekten mit
note, examDate und measurements, einem Array von Objekten mit bpd, hc, ac und fl (mm). Jeder
Schlüssel darf fehlen; ein unbekannter ist ein Fehler. Ein Datum ist eine Zahl von Sekunden seit
2001-01-01 UTC, ein ISO-Datum (2027-04-10 ist Mitternacht Ortszeit), ein ISO-Datum mit Uhrzeit oder
null. Maße werden mit einfacher Genauigkeit gespeichert, ganze Zahlen mit 32 Bit.
</translation>
    </message>
    <message>
        <source>any typed stream; - is standard input</source>
        <translation>ein beliebiger typisierter Datenstrom; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>one JSON object a stream, on a line</source>
        <translation>ein JSON-Objekt pro Datenstrom, jedes auf einer Zeile</translation>
    </message>
    <message>
        <source>All that a typed stream holds, as a tree; of any program, not only documents.</source>
        <translation>Alles, was ein typisierter Datenstrom enthält, als Baum; von jedem Programm, nicht nur Dokumente.</translation>
    </message>
    <message>
        <source>Each line begins with the byte at which the value begins. Keys of the JSON: byte_order,
system_version, and groups, an array of objects with types and values; docs/json.md lists the values.
</source>
        <translation>Jede Zeile beginnt mit dem Byte, an dem der Wert beginnt. Schlüssel des JSON: byte_order,
system_version und groups, ein Array von Objekten mit types und values; docs/json.md beschreibt die
Werte.
</translation>
    </message>
    <message>
        <source>the folder for the files, which is made when it is missing; - is standard output, for one file</source>
        <translation>der Ordner für die Dateien, wird angelegt, wenn er fehlt; - ist die Standardausgabe, für eine Datei</translation>
    </message>
    <message>
        <source>what is written; without this option PDF</source>
        <translation>was geschrieben wird; ohne diese Option PDF</translation>
    </message>
    <message>
        <source>all, or first, last, numbers from 0 to 6 and names, with commas between</source>
        <translation>all, oder first, last, Nummern von 0 bis 6 und Namen, mit Kommas dazwischen</translation>
    </message>
    <message>
        <source>one fetus, the first is 1; without this option all</source>
        <translation>ein Fetus, der erste ist 1; ohne diese Option alle</translation>
    </message>
    <message>
        <source>centile lines of a reference of &quot;nascor-cli reference&quot; over the charts</source>
        <translation>Perzentilenlinien einer Referenz aus „nascor-cli reference“ über den Diagrammen</translation>
    </message>
    <message>
        <source>a line from mark to mark of each fetus</source>
        <translation>eine Linie von Messpunkt zu Messpunkt jedes Fetus</translation>
    </message>
    <message>
        <source>leave files that are there as they are, and say so</source>
        <translation>vorhandene Dateien lassen, wie sie sind, und das melden</translation>
    </message>
    <message>
        <source>leave off what stands under each page</source>
        <translation>weglassen, was unter jeder Seite steht</translation>
    </message>
    <message>
        <source>FHIR as one resource a line, of all documents, on standard output</source>
        <translation>FHIR als eine Ressource pro Zeile, aller Dokumente, auf der Standardausgabe</translation>
    </message>
    <message>
        <source>Writes the pages of each document, or its numbers for other programs.</source>
        <translation>Schreibt die Seiten jedes Dokuments oder seine Zahlen für andere Programme.</translation>
    </message>
    <message>
        <source>Names of pages: %1 (0 to %2), in letters of any size.
As PDF all pages of a document are one file; else each is a file of its own.
Files of the same names are replaced, but with --no-clobber.
sr: a DICOM structured report (Comprehensive SR) for each examination, &quot;NAME 1.dcm&quot;, ...
fhir: a FHIR R4 bundle for each document, NAME.json; with --ndjson lines on standard output.
</source>
        <translation>Namen der Seiten: %1 (0 bis %2), groß oder klein geschrieben.
Als PDF sind alle Seiten eines Dokuments eine Datei; sonst ist jede eine eigene Datei.
Dateien gleichen Namens werden ersetzt, außer mit --no-clobber.
sr: ein strukturierter DICOM-Bericht (Comprehensive SR) für jede Untersuchung, „NAME 1.dcm“, ...
fhir: ein FHIR-R4-Bündel für jedes Dokument, NAME.json; mit --ndjson Zeilen auf der
Standardausgabe.
</translation>
    </message>
    <message>
        <source>biparietal diameter</source>
        <translation>biparietaler Durchmesser</translation>
    </message>
    <message>
        <source>head circumference</source>
        <translation>Kopfumfang</translation>
    </message>
    <message>
        <source>abdominal circumference</source>
        <translation>Abdomenumfang</translation>
    </message>
    <message>
        <source>femur length</source>
        <translation>Femurlänge</translation>
    </message>
    <message>
        <source>an array of eight numbers, by identifier of the formula</source>
        <translation>ein Array von acht Zahlen, nach Nummer der Formel</translation>
    </message>
    <message>
        <source>The estimated weight of one fetus by each of the eight formulas, in grams.</source>
        <translation>Das Schätzgewicht eines Fetus nach jeder der acht Formeln, in Gramm.</translation>
    </message>
    <message>
        <source>A length that is not given is 0, which means not measured. Where a formula needs it, the weight is
a dash (0 in JSON). An improbable length is named on standard error.
The formulas, by identifier: 0 Hadlock 1 (HC/AC/FL), 1 Hadlock 2 (AC/FL),
2 Hadlock 3 (BPD/AC/FL), 3 Hadlock 4 (BPD/HC/AC/FL), 4 Campbell (AC), 5 Combs (HC/AC/FL),
6 Ott (HC/AC/FL), 7 Shepard (BPD/AC).
</source>
        <translation>Ein Maß, das nicht angegeben ist, ist 0, also nicht gemessen. Wo eine Formel es braucht, ist das
Gewicht ein Strich (0 in JSON). Ein unwahrscheinliches Maß wird auf der Standardfehlerausgabe
genannt.
Die Formeln, nach Nummer: 0 Hadlock 1 (HC/AC/FL), 1 Hadlock 2 (AC/FL), 2 Hadlock 3 (BPD/AC/FL),
3 Hadlock 4 (BPD/HC/AC/FL), 4 Campbell (AC), 5 Combs (HC/AC/FL), 6 Ott (HC/AC/FL),
7 Shepard (BPD/AC).
</translation>
    </message>
    <message>
        <source>crown-rump lengths; - reads lengths from standard input, one a line</source>
        <translation>Scheitel-Steiß-Längen; - liest Längen von der Standardeingabe, eine pro Zeile</translation>
    </message>
    <message>
        <source>an array of four numbers a length, each on a line of its own</source>
        <translation>ein Array von vier Zahlen pro Länge, jedes auf einer eigenen Zeile</translation>
    </message>
    <message>
        <source>The menstrual age at each crown-rump length by each of the four formulas, in weeks.</source>
        <translation>Das Gestationsalter zu jeder Scheitel-Steiß-Länge nach jeder der vier Formeln, in Wochen.</translation>
    </message>
    <message>
        <source>One line a length, columns separated by tabs. Outside the range of a formula the age is a dash (0 in
JSON). A line of standard input that is no number is answered by nan (null in JSON).
A length that no formula dates is named on standard error, of standard input the first one.
The formulas, by identifier: 0 Hadlock (1992), 2 to 120 mm; 1 Nelson (1981), 6.7 to 82.4 mm
(no second source has it; 9 days more than Hadlock (1992) at 7 mm, 3 days more at 20 mm);
2 Robinson (1975), 7 to 79.6 mm; 3 Westerway (2000), 2 to 87 mm.
</source>
        <translation>Eine Zeile pro Länge, die Spalten durch Tabulatoren getrennt. Außerhalb des Bereichs einer Formel
ist das Alter ein Strich (0 in JSON). Auf eine Zeile der Standardeingabe, die keine Zahl ist, folgt
die Antwort nan (null in JSON).
Eine Länge, die keine Formel datiert, wird auf der Standardfehlerausgabe genannt, bei der
Standardeingabe nur die erste.
Die Formeln, nach Nummer: 0 Hadlock (1992), 2 bis 120 mm; 1 Nelson (1981), 6.7 bis 82.4 mm (keine
zweite Quelle hat sie; 9 Tage mehr als Hadlock (1992) bei 7 mm, 3 Tage mehr bei 20 mm);
2 Robinson (1975), 7 bis 79.6 mm; 3 Westerway (2000), 2 bis 87 mm.
</translation>
    </message>
    <message>
        <source>a DICOM report, a FHIR bundle of this program, or a CSV table of examinations; - is standard input</source>
        <translation>ein DICOM-Bericht, ein FHIR-Bündel dieses Programms oder eine CSV-Tabelle; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>store what was found in a new document</source>
        <translation>das Gefundene in einem neuen Dokument speichern</translation>
    </message>
    <message>
        <source>add what was found to a document</source>
        <translation>das Gefundene zu einem Dokument hinzufügen</translation>
    </message>
    <message>
        <source>the reports are of the patient of this reference ID, whatever they say</source>
        <translation>die Berichte gehören zur Patientin mit dieser Patienten-ID, was immer sie sagen</translation>
    </message>
    <message>
        <source>the fetus that the reports call ID is fetus N of the document; once for each</source>
        <translation>der Fetus, den die Berichte ID nennen, ist Fetus N des Dokuments; einmal für jeden</translation>
    </message>
    <message>
        <source>the report&apos;s EDD takes the place of the document&apos;s</source>
        <translation>der ET des Berichts tritt an die Stelle dessen im Dokument</translation>
    </message>
    <message>
        <source>What reports of ultrasound machines and tables hold, as JSON; stored only on demand.</source>
        <translation>Was Berichte von Ultraschallgeräten und Tabellen enthalten, als JSON; gespeichert nur auf Verlangen.</translation>
    </message>
    <message>
        <source>One object a report, of a table one for each patient and day: file, patientID, examDate, edd,
eddFrom, gravida, numberOfFetuses, fetuses (id, bpd, hc, ac, fl and crl in mm, efw in g, chosen),
notTaken, warnings.
A table has the columns that rows writes: exam_date, any of bpd_mm, hc_mm, ac_mm and fl_mm, and,
where it has them, reference_id, fetus (from 0) or fetus_number (from 1), edd, gravida and
number_of_fetuses. When a row does not fit, nothing of the table is printed or stored.
Nothing is stored when patient or fetus are in doubt, and nothing that stands is overwritten.
</source>
        <translation>Ein Objekt pro Bericht, bei einer Tabelle eines für jede Patientin und jeden Tag: file, patientID,
examDate, edd, eddFrom, gravida, numberOfFetuses, fetuses (id, bpd, hc, ac, fl und crl in mm, efw
in g, chosen), notTaken, warnings.
Eine Tabelle hat die Spalten, die rows schreibt: exam_date, mindestens eine von bpd_mm, hc_mm,
ac_mm und fl_mm und, wo sie sie hat, reference_id, fetus (ab 0) oder fetus_number (ab 1), edd,
gravida und number_of_fetuses. Wenn eine Zeile nicht passt, wird nichts aus der Tabelle ausgegeben
oder gespeichert.
Nichts wird gespeichert, wenn Patientin oder Fetus zweifelhaft sind, und nichts Vorhandenes wird
überschrieben.
</translation>
    </message>
    <message>
        <source>the index</source>
        <translation>der Index</translation>
    </message>
    <message>
        <source>a JSON object a line</source>
        <translation>ein JSON-Objekt pro Zeile</translation>
    </message>
    <message>
        <source>the documents, *.nascor in it and in the folders in it</source>
        <translation>die Dokumente, *.nascor darin und in den Ordnern darin</translation>
    </message>
    <message>
        <source>the index, made where there is none</source>
        <translation>der Index; wird angelegt, wo keiner ist</translation>
    </message>
    <message>
        <source>the counts as a JSON object</source>
        <translation>die Anzahlen als JSON-Objekt</translation>
    </message>
    <message>
        <source>Keeps what the documents of a folder say in a database, for due and search.</source>
        <translation>Hält in einer Datenbank fest, was die Dokumente eines Ordners sagen, für due und search.</translation>
    </message>
    <message>
        <source>Only documents that are new or have changed are read; those that are gone leave the index. A run that
is ended in the middle, however that happens, leaves an index that the next run completes.
The file is an SQLite database that its owner alone can read: it holds reference IDs, notes and names
of files. Its tables documents and rows may be read by other programs.
</source>
        <translation>Nur neue oder geänderte Dokumente werden gelesen; die nicht mehr vorhandenen verlassen den Index.
Ein Lauf, der mittendrin endet, wie auch immer, hinterlässt einen Index, den der nächste Lauf
vervollständigt. Die Datei ist eine SQLite-Datenbank, die nur das Benutzerkonto lesen kann, dem sie
gehört: Sie enthält Patienten-IDs, Notizen und Namen von Dateien. Ihre Tabellen documents und rows
dürfen andere Programme lesen.
</translation>
    </message>
    <message>
        <source>the first day, such as 2027-04-10; without it today</source>
        <translation>der erste Tag, zum Beispiel 2027-04-10; ohne diese Option heute</translation>
    </message>
    <message>
        <source>how many days behind that; without it 28</source>
        <translation>wie viele Tage danach; ohne diese Option 28</translation>
    </message>
    <message>
        <source>only with an AC, the last of one fetus, whose z-score is below this</source>
        <translation>nur, wenn der z-Score des letzten AU eines Fetus darunter liegt</translation>
    </message>
    <message>
        <source>Who is due, from an index: by EDD, with the last examination and the lowest AC.</source>
        <translation>Anstehende Entbindungen aus einem Index: nach ET, mit letzter Untersuchung und niedrigstem AU.</translation>
    </message>
    <message>
        <source>AC z is the lowest, over the fetuses, of the z-score of the last AC that was measured, by the growth
standard of the document. It lists what the index held when it was last brought up to date.
</source>
        <translation>AC z ist der niedrigste z-Score aller Feten, jeweils des zuletzt gemessenen AU, nach dem
Wachstumsstandard des Dokuments. Aufgelistet wird, was der Index enthielt, als er zuletzt
aktualisiert wurde.
</translation>
    </message>
    <message>
        <source>three characters or more of a reference ID or of a file&apos;s path; large or small</source>
        <translation>mindestens drei Zeichen einer Patienten-ID oder eines Dateipfads; groß oder klein</translation>
    </message>
    <message>
        <source>not more than so many; without it 100</source>
        <translation>nicht mehr als so viele; ohne diese Option 100</translation>
    </message>
    <message>
        <source>Documents by a part of their reference ID or name, from an index.</source>
        <translation>Dokumente nach einem Teil ihrer Patienten-ID oder ihres Namens, aus einem Index.</translation>
    </message>
    <message>
        <source>one digit behind the point, in JSON too</source>
        <translation>eine Nachkommastelle, auch in JSON</translation>
    </message>
    <message>
        <source>a recovery file, as the list names it</source>
        <translation>eine Wiederherstellungsdatei, wie die Liste sie nennt</translation>
    </message>
    <message>
        <source>where to write the document, as a whole or not at all</source>
        <translation>wohin das Dokument geschrieben wird, ganz oder gar nicht</translation>
    </message>
    <message>
        <source>Unsaved changes that the application kept: a list, or one of them as a document.</source>
        <translation>Nicht gespeicherte Änderungen, von der Anwendung gesichert: als Liste, oder eine als Dokument.</translation>
    </message>
    <message>
        <source>The list has one JSON object a line: recovery (the file), document (the path of the document&apos;s own
file; null when it was never saved), patient, saved (seconds since 2001-01-01 UTC), fetuses,
examinations, and differs, the keys of json that the saved document holds otherwise. It also names
what running applications keep. A recovery file is a document: json, report and check read it. It
stays where it is until the application has offered it.
</source>
        <translation>Die Liste hat ein JSON-Objekt pro Zeile: recovery (die Datei), document (der Pfad der Datei des
Dokuments selbst; null, wenn es nie gespeichert wurde), patient, saved (Sekunden seit 2001-01-01
UTC), fetuses, examinations und differs, die Schlüssel von json, die im gespeicherten Dokument
andere Werte haben. Sie nennt auch, was laufende Anwendungen sichern. Eine Wiederherstellungsdatei
ist ein Dokument: json, report und check lesen sie. Sie bleibt, wo sie ist, bis die Anwendung sie
angeboten hat.
</translation>
    </message>
    <message>
        <source>a reference, by its name; without it all are listed</source>
        <translation>eine Referenz, nach ihrem Namen; sonst werden alle aufgelistet</translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw that the reference has</source>
        <translation>bpd, hc, ac, fl oder efw, soweit die Referenz es hat</translation>
    </message>
    <message>
        <source>the age in weeks</source>
        <translation>das Gestationsalter in Wochen</translation>
    </message>
    <message>
        <source>a length in mm, or a weight in g: its z and centile</source>
        <translation>ein Maß in mm oder ein Gewicht in g: z und Perzentile dazu</translation>
    </message>
    <message>
        <source>a centile between 0 and 100: its value and z</source>
        <translation>eine Perzentile zwischen 0 und 100: Wert und z dazu</translation>
    </message>
    <message>
        <source>a z-score: its value and centile</source>
        <translation>ein z-Score: Wert und Perzentile dazu</translation>
    </message>
    <message>
        <source>one object a line; what a reference cannot say is null</source>
        <translation>ein Objekt pro Zeile; was eine Referenz nicht sagen kann, ist null</translation>
    </message>
    <message>
        <source>Where a value lies in a published population; which populations there are.</source>
        <translation>Wo ein Wert in einer publizierten Population liegt; welche Populationen es gibt.</translation>
    </message>
    <message>
        <source>One of W, V, P and Z may be -: then numbers are read from standard input, one a line, and each is
answered. Nothing is extrapolated: outside the weeks of a reference all numbers are missing, and
the answer says which weeks there are. who-2017 is made of curves: it has no z, and knows no more
than &lt;1 and &gt;99 beyond the outermost. A weight&apos;s centile is that of the reference, never of the
error of a formula.
</source>
        <translation>Eines von W, V, P und Z darf - sein: Dann werden Zahlen von der Standardeingabe gelesen, eine pro
Zeile, und jede wird beantwortet. Nichts wird extrapoliert: Außerhalb der Wochen einer Referenz
fehlen alle Zahlen, und die Antwort sagt, welche Wochen es gibt. who-2017 besteht aus Kurven: Sie
hat kein z und kennt jenseits der äußersten nur &lt;1 und &gt;99. Die Perzentile eines Gewichts ist die
der Referenz, nie die des Fehlers einer Formel.
</translation>
    </message>
    <message>
        <source>one JSON object a document, on a line: unrounded numbers, the texts beside them</source>
        <translation>ein JSON-Objekt pro Dokument, jedes auf einer Zeile: ungerundete Zahlen, die Texte daneben</translation>
    </message>
    <message>
        <source>The tabular report of each document: every fetus, every examination, the projection.</source>
        <translation>Der Bericht jedes Dokuments als Tabelle: alle Feten, alle Untersuchungen, die Projektion.</translation>
    </message>
    <message>
        <source>Date and Menstrual Age are those of the last examination. Days are those of the local time zone. The
projection is there when the last examination lies from 30 weeks to the planned delivery. Keys of
the JSON, among others: file, maternalIDString, edd, fetuses, in each examinations (age in weeks;
bpd, hc, ac, fl in mm; efw in g) and projected; docs/json.md lists them all.
</source>
        <translation>Date und Menstrual Age sind die der letzten Untersuchung. Tage sind die der lokalen Zeitzone. Die
Projektion steht da, wenn die letzte Untersuchung zwischen 30 Wochen und der geplanten Entbindung
liegt. Schlüssel des JSON sind unter anderem: file, maternalIDString, edd, fetuses, darin jeweils
examinations (age in Wochen; bpd, hc, ac, fl in mm; efw in g) und projected; docs/json.md nennt
alle.
</translation>
    </message>
    <message>
        <source>a document, or a folder with documents in it; - is a document on standard input</source>
        <translation>ein Dokument oder ein Ordner mit Dokumenten; - ist ein Dokument auf der Standardeingabe</translation>
    </message>
    <message>
        <source>more names of files and folders, one a line; - is standard input</source>
        <translation>weitere Namen von Dateien und Ordnern, einer pro Zeile; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>the names of --files-from end with NUL instead</source>
        <translation>die Namen von --files-from enden stattdessen mit NUL</translation>
    </message>
    <message>
        <source>the documents in a tar archive, plain, gzip or zstd; - is standard input</source>
        <translation>die Dokumente in einem Tar-Archiv, unkomprimiert, gzip oder zstd; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>only these columns, in this order, with commas between</source>
        <translation>nur diese Spalten, in dieser Reihenfolge, mit Kommas dazwischen</translation>
    </message>
    <message>
        <source>one decimal, for z-scores three</source>
        <translation>eine Nachkommastelle, bei z-Scores drei</translation>
    </message>
    <message>
        <source>comma-separated values, or a JSON object a line</source>
        <translation>kommagetrennte Werte oder ein JSON-Objekt pro Zeile</translation>
    </message>
    <message>
        <source>leave off the line with the names of the columns</source>
        <translation>die Zeile mit den Namen der Spalten weglassen</translation>
    </message>
    <message>
        <source>reference ID, note and names of files too</source>
        <translation>auch Patienten-ID, Notiz und Namen der Dateien</translation>
    </message>
    <message>
        <source>in the column file the place of the document, or its name</source>
        <translation>in der Spalte file die laufende Nummer des Dokuments oder sein Name</translation>
    </message>
    <message>
        <source>days to the EDD in place of the dates</source>
        <translation>Tage bis zum ET anstelle von Datumsangaben</translation>
    </message>
    <message>
        <source>the zone whose days are meant, such as Europe/Paris</source>
        <translation>die Zeitzone, deren Tage gemeint sind, zum Beispiel Europe/Paris</translation>
    </message>
    <message>
        <source>stop at the first document that cannot be read</source>
        <translation>beim ersten Dokument anhalten, das nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>work on so many documents at a time; the output is the same</source>
        <translation>so viele Dokumente gleichzeitig bearbeiten; die Ausgabe ist dieselbe</translation>
    </message>
    <message>
        <source>A row for each fetus at each examination: age, lengths, weights, z-scores; for statistics.</source>
        <translation>Eine Zeile pro Fetus und Untersuchung: Alter, Maße, Gewichte, z-Scores; für die Statistik.</translation>
    </message>
    <message>
        <source>Of a folder all *.nascor are taken, and those of the folders in it. Columns:
  file,exam,fetus,exam_date,edd,ga_weeks,bpd_mm,hc_mm,ac_mm,fl_mm,efw_0_g,...,efw_7_g
  standard,bpd_mean_mm,bpd_sd_mm,bpd_z,...,fl_z        by each document&apos;s own standard, or
  westerway_bpd_mean_mm,...                            by each of --standard
  reference_id,note                                    with --identify
  warning,error
file counts the documents from 0, exam and fetus what they hold. A cell is empty where nothing was
measured or nothing can be computed. warning names what is improbable. A document that cannot be
read has a row with file and error; the others go on, and the status is 1.

Privacy: documents are named after patients. Without --identify no cell holds a reference ID, a
note or (unless --file path is given) the name of a file. Standard error names files in any case,
for the person at the terminal: do not keep it with the rows. Notes may hold dates
in their text: --relative-dates with --identify leaves them as they are.
Texts stand in CSV as they are. A spreadsheet runs cells that begin with &apos;=&apos;: import names,
reference IDs and notes as text.
</source>
        <translation>Von einem Ordner werden alle *.nascor genommen, auch die in den Ordnern darin. Spalten:
  file,exam,fetus,exam_date,edd,ga_weeks,bpd_mm,hc_mm,ac_mm,fl_mm,efw_0_g,...,efw_7_g
  standard,bpd_mean_mm,bpd_sd_mm,bpd_z,...,fl_z        nach dem Standard jedes Dokuments oder
  westerway_bpd_mean_mm,...                            nach jedem von --standard
  reference_id,note                                    mit --identify
  warning,error
file zählt die Dokumente ab 0, exam und fetus, was sie enthalten. Eine Zelle ist leer, wo nichts
gemessen wurde oder nichts berechnet werden kann. warning nennt Unwahrscheinliches. Ein Dokument,
das nicht gelesen werden kann, hat eine Zeile mit file und error; mit den anderen geht es weiter,
und der Rückgabewert ist 1.

Datenschutz: Dokumente sind nach Patientinnen benannt. Ohne --identify enthält keine Zelle eine
Patienten-ID, eine Notiz oder (außer mit --file path) den Namen einer Datei. Die
Standardfehlerausgabe nennt Dateien in jedem Fall, für die Person am Terminal: Bewahren Sie sie
nicht mit den Zeilen auf. Notizen können in ihrem Text Datumsangaben enthalten: --relative-dates
mit --identify lässt sie, wie sie sind.
Texte stehen in CSV, wie sie sind. Eine Tabellenkalkulation führt Zellen aus, die mit &apos;=&apos; beginnen:
Importieren Sie Namen, Patienten-IDs und Notizen als Text.
</translation>
    </message>
    <message>
        <source>one object a group, on a line</source>
        <translation>ein Objekt pro Gruppe, jedes auf einer Zeile</translation>
    </message>
    <message>
        <source>Works examples with known results out again: formulas, standards, references, dating.</source>
        <translation>Rechnet Beispiele mit bekannten Ergebnissen nach: Formeln, Standards, Referenzen, Datierung.</translation>
    </message>
    <message>
        <source>A line a group: its name, how many values it has, how many of them differ; the last line is the total.
The values are printed ones, held against the program at their own precision, and others that were
worked out apart from the program. The status is 1 when one differs.
</source>
        <translation>Eine Zeile pro Gruppe: ihr Name, wie viele Werte sie hat, wie viele davon abweichen; die letzte
Zeile ist die Summe. Die Werte sind gedruckte, mit dem Programm in ihrer eigenen Genauigkeit
verglichen, und andere, die unabhängig vom Programm berechnet wurden. Der Rückgabewert ist 1, wenn
einer abweicht.
</translation>
    </message>
    <message>
        <source>what is wanted of the server</source>
        <translation>was vom Server gewünscht wird</translation>
    </message>
    <message>
        <source>a DICOM report to send; - is standard input</source>
        <translation>ein zu sendender DICOM-Bericht; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>the server: a name or an IPv4 address</source>
        <translation>der Server: ein Name oder eine IPv4-Adresse</translation>
    </message>
    <message>
        <source>its port</source>
        <translation>sein Port</translation>
    </message>
    <message>
        <source>its application entity title</source>
        <translation>sein AE-Titel</translation>
    </message>
    <message>
        <source>that of this program; without this option NASCOR</source>
        <translation>der AE-Titel dieses Programms; ohne diese Option NASCOR</translation>
    </message>
    <message>
        <source>speak encrypted, to a server whose certificate comes from this authority (PEM)</source>
        <translation>verschlüsselt, mit einem Server, dessen Zertifikat von dieser CA stammt (PEM)</translation>
    </message>
    <message>
        <source>the certificate of this program, for servers that ask for one (PEM)</source>
        <translation>das Zertifikat dieses Programms, für Server, die eines verlangen (PEM)</translation>
    </message>
    <message>
        <source>the key of that certificate, without a password (PEM)</source>
        <translation>der Schlüssel zu diesem Zertifikat, ohne Passwort (PEM)</translation>
    </message>
    <message>
        <source>for the whole of one connection, 1 to 3600; without this option 30</source>
        <translation>für eine Verbindung insgesamt, 1 bis 3600; ohne diese Option 30</translation>
    </message>
    <message>
        <source>find, fetch: the reports of this reference ID</source>
        <translation>find, fetch: die Berichte zu dieser Patienten-ID</translation>
    </message>
    <message>
        <source>find, fetch: those of this study</source>
        <translation>find, fetch: die Berichte dieser Studie</translation>
    </message>
    <message>
        <source>find, fetch: of studies of this day (2026-11-23) and later</source>
        <translation>find, fetch: von Studien dieses Tages (2026-11-23) und später</translation>
    </message>
    <message>
        <source>find, fetch: of studies of this day and earlier</source>
        <translation>find, fetch: von Studien dieses Tages und früher</translation>
    </message>
    <message>
        <source>fetch: the folder for the files, which is made when it is missing</source>
        <translation>fetch: der Ordner für die Dateien, wird angelegt, wenn er fehlt</translation>
    </message>
    <message>
        <source>Fetches reports from a DICOM server, and sends reports to it.</source>
        <translation>Ruft Berichte von einem DICOM-Server ab und sendet Berichte dorthin.</translation>
    </message>
    <message>
        <source>echo asks whether the server answers. find lists its reports, an object a line: patientID, studyDate,
study, series, instance. fetch writes them as INSTANCE.dcm, never over a file that is there, and needs a
patient or a study. send sends files that &quot;export --format sr&quot; or a machine wrote.
No other command uses the network, and this one speaks to the server of its options alone.
</source>
        <translation>echo fragt, ob der Server antwortet. find listet seine Berichte auf, ein Objekt pro Zeile:
patientID, studyDate, study, series, instance. fetch schreibt sie als INSTANCE.dcm, nie über eine
vorhandene Datei, und braucht eine Patientin oder eine Studie. send sendet Dateien, die
„export --format sr“ oder ein Gerät geschrieben hat.
Kein anderer Befehl benutzt das Netz, und dieser spricht nur mit dem Server seiner Optionen.
</translation>
    </message>
    <message>
        <source>Growth standards (N):
%1
Weight formulas (K):
%2
The number or the name, in letters of any size.
</source>
        <translation>Wachstumsstandards (N):
%1
Gewichtsformeln (K):
%2
Die Nummer oder der Name, groß oder klein geschrieben.
</translation>
    </message>
    <message>
        <source>growth standard, see below</source>
        <translation>Wachstumsstandard, siehe unten</translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw; without it the four lengths</source>
        <translation>bpd, hc, ac, fl oder efw; ohne diese Option die vier Maße</translation>
    </message>
    <message>
        <source>weight formula, see below; needed for efw</source>
        <translation>Gewichtsformel, siehe unten; nötig für efw</translation>
    </message>
    <message>
        <source>rows [week, mean, sd]; without --measurement an object of such rows by measurement</source>
        <translation>Zeilen [Woche, Mittelwert, SD]; ohne --measurement ein Objekt solcher Zeilen nach Messgröße</translation>
    </message>
    <message>
        <source>A reference table: mean and standard deviation at each week, in mm or g.</source>
        <translation>Eine Referenztabelle: Mittelwert und Standardabweichung für jede Woche, in mm oder g.</translation>
    </message>
    <message>
        <source>%1
The mean weight is that of a fetus whose four lengths are the means. Its standard deviation is the
error of the formula, not the spread of a population; 0 where none is published.
</source>
        <translation>%1
Das mittlere Gewicht ist das eines Fetus, dessen vier Maße die Mittelwerte sind. Seine
Standardabweichung ist der Fehler der Formel, nicht die Streuung einer Population; 0, wo keiner
publiziert ist.
</translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw</source>
        <translation>bpd, hc, ac, fl oder efw</translation>
    </message>
    <message>
        <source>the mean at W weeks</source>
        <translation>der Mittelwert bei W Wochen</translation>
    </message>
    <message>
        <source>the standard deviation at W weeks</source>
        <translation>die Standardabweichung bei W Wochen</translation>
    </message>
    <message>
        <source>the age in weeks of which MM (grams for efw) is the mean</source>
        <translation>das Gestationsalter in Wochen, dessen Mittelwert MM ist (Gramm bei efw)</translation>
    </message>
    <message>
        <source>the same number as JSON</source>
        <translation>dieselbe Zahl als JSON</translation>
    </message>
    <message>
        <source>One look-up in a reference table, between whole weeks by linear interpolation.</source>
        <translation>Ein Wert aus einer Referenztabelle, zwischen ganzen Wochen linear interpoliert.</translation>
    </message>
    <message>
        <source>The value may be -: then values are read from standard input, one a line, and answered one a line; a
line that is no number is answered by nan (null in JSON). Nothing is extrapolated: beyond the table
its first or last week counts, and standard error says so (of standard input once).

%1</source>
        <translation>Der Wert darf - sein: Dann werden Werte von der Standardeingabe gelesen, einer pro Zeile, und pro
Zeile beantwortet; die Antwort auf eine Zeile, die keine Zahl ist, ist nan (null in JSON). Nichts
wird extrapoliert: Außerhalb der Tabelle gilt ihre erste oder letzte Woche, und die
Standardfehlerausgabe sagt es (bei der Standardeingabe einmal).

%1</translation>
    </message>
    <message>
        <source>the paper of a PDF; without this option A4</source>
        <translation>das Papier einer PDF-Datei; ohne diese Option A4</translation>
    </message>
    <message>
        <source>who examined</source>
        <translation>wer untersucht hat</translation>
    </message>
    <message>
        <source>a line at the head of each fetus; once for each line</source>
        <translation>eine Zeile im Briefkopf jedes Fetus; die Option einmal für jede Zeile</translation>
    </message>
    <message>
        <source>A summary for the records: a page or two a fetus, typeset, or as HTML.</source>
        <translation>Eine Zusammenfassung für die Akte: ein oder zwei Seiten pro Fetus, gesetzt oder als HTML.</translation>
    </message>
    <message>
        <source>EDD, measurements with z and centile by the growth standard, weights, growth, small charts, notes,
and the sources of all that was used. Each document is one file, &quot;NAME - Summary.pdf&quot;.
Files of the same names are replaced, but with --no-clobber. SOURCE_DATE_EPOCH, in seconds since
1970, takes the place of the present moment.
</source>
        <translation>ET, Messwerte mit z und Perzentile nach dem Wachstumsstandard, Gewichte, Wachstum, kleine
Diagramme, Notizen und die Quellen von allem, was verwendet wurde. Jedes Dokument ist eine Datei,
„NAME - Summary.pdf“.
Dateien gleichen Namens werden ersetzt, außer mit --no-clobber. SOURCE_DATE_EPOCH, in Sekunden seit
1970, tritt an die Stelle des gegenwärtigen Zeitpunkts.
</translation>
    </message>
    <message>
        <source>growth standards by number or name, intergrowth-2014, with commas between; all for all four</source>
        <translation>Wachstumsstandards, Nummer oder Name, intergrowth-2014, mit Kommas dazwischen; all für alle vier</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>die Kopfzeile fehlt</translation>
    </message>
    <message>
        <source>there is no column %1: never measured</source>
        <translation>die Spalte %1 fehlt: gilt als nie gemessen</translation>
    </message>
    <message>
        <source>--columns: %1</source>
        <translation>--columns: %1</translation>
    </message>
    <message>
        <source>is a database of another program</source>
        <extracomment>Behind the name of a file, as are the next ones.</extracomment>
        <translation>ist eine Datenbank eines anderen Programms</translation>
    </message>
    <message>
        <source>was made by another version of this program: remove it, and make it anew</source>
        <translation>wurde von einer anderen Version dieses Programms angelegt: bitte entfernen und neu anlegen</translation>
    </message>
    <message>
        <source>no folder</source>
        <translation>keinem Ordner</translation>
    </message>
    <message>
        <source>is the index of %1, not of %2</source>
        <translation>ist der Index von %1, nicht von %2</translation>
    </message>
    <message>
        <source>is no index of this program</source>
        <translation>ist kein Index dieses Programms</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 nimmt keinen Wert</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many</source>
        <translation>„%1“ ist ein Argument zu viel</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>es gibt keinen Befehl „%1“</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>es gibt keine Option „%1“</translation>
    </message>
    <message>
        <source>help explains one command</source>
        <translation>help erklärt nur einen Befehl</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>es fehlt ein Befehl</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>Standardausgabe: %1</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>der Arbeitsspeicher reicht nicht aus</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>a document is no text for a terminal; give --out FILE or send standard output to a file</source>
        <translation>ein Dokument ist kein Text für ein Terminal; geben Sie --out FILE an oder leiten Sie die Standardausgabe in eine Datei</translation>
    </message>
    <message>
        <source>written, but it may not outlast a power cut: %1</source>
        <translation>geschrieben, übersteht aber vielleicht keinen Stromausfall: %1</translation>
    </message>
    <message>
        <source>holds no patient</source>
        <extracomment>Behind the name of a file.</extracomment>
        <translation>enthält keine Patientin</translation>
    </message>
    <message>
        <source>--fetus: expected all or a number from 1 to 5</source>
        <translation>--fetus: all oder eine Nummer von 1 bis 5 erwartet</translation>
    </message>
    <message>
        <source>--out is missing</source>
        <translation>--out fehlt</translation>
    </message>
    <message>
        <source>--format: expected pdf, png, svg, sr or fhir</source>
        <translation>--format: pdf, png, svg, sr oder fhir erwartet</translation>
    </message>
    <message>
        <source>--ndjson is for --format fhir</source>
        <translation>--ndjson gilt für --format fhir</translation>
    </message>
    <message>
        <source>--pages: expected all, first, last, a number from 0 to %1 or a name, but &quot;%2&quot; stands here</source>
        <translation>--pages: all, first, last, eine Nummer von 0 bis %1 oder ein Name erwartet, aber hier steht „%2“</translation>
    </message>
    <message>
        <source>--out - takes the pages of one document</source>
        <translation>--out - nimmt die Seiten nur eines Dokuments</translation>
    </message>
    <message>
        <source>pages are no text for a terminal; give --out DIR or send standard output to a file</source>
        <translation>Seiten sind kein Text für ein Terminal; geben Sie --out DIR an oder leiten Sie die Standardausgabe in eine Datei</translation>
    </message>
    <message>
        <source>--format: expected sr or fhir; pages are painted by the application, which is not built here</source>
        <translation>--format: sr oder fhir erwartet; Seiten zeichnet die Anwendung, die hier nicht mit erstellt wurde</translation>
    </message>
    <message>
        <source>a length is missing</source>
        <translation>es fehlt ein Maß</translation>
    </message>
    <message>
        <source>no formula dates %1 mm; they reach from %2 to %3 mm</source>
        <extracomment>Crown-rump lengths.</extracomment>
        <translation>keine Formel datiert %1 mm; die Formeln reichen von %2 bis %3 mm</translation>
    </message>
    <message>
        <source>--fetus: expected ID=N with a number from 1 to 5, but &quot;%1&quot; stands here</source>
        <translation>--fetus: ID=N mit einer Nummer von 1 bis 5 erwartet, aber hier steht „%1“</translation>
    </message>
    <message>
        <source>--patient takes a reference ID, and an empty one is none</source>
        <translation>--patient nimmt eine Patienten-ID, und eine leere ist keine</translation>
    </message>
    <message>
        <source>--patient takes a reference ID of UTF-8 text in one line</source>
        <translation>--patient nimmt eine Patienten-ID aus UTF-8-Text in einer Zeile</translation>
    </message>
    <message>
        <source>--fetus: &quot;%1&quot; is given two numbers</source>
        <translation>--fetus: „%1“ erhält zwei Nummern</translation>
    </message>
    <message>
        <source>is of patient &quot;%1&quot;, others are of &quot;%2&quot;; nothing is stored. Please import those of each patient alone</source>
        <translation>gehört zur Patientin „%1“, andere gehören zu „%2“; es wird nichts gespeichert. Bitte importieren Sie die jeder Patientin einzeln</translation>
    </message>
    <message>
        <source>it is there already, and stays as it is</source>
        <translation>ist bereits vorhanden und bleibt, wie es ist</translation>
    </message>
    <message>
        <source>--out and --into are two ways to store</source>
        <translation>--out und --into sind zwei Arten zu speichern</translation>
    </message>
    <message>
        <source>%1 takes a file</source>
        <translation>%1 nimmt eine Datei</translation>
    </message>
    <message>
        <source>the same holds for %1 more of the input</source>
        <translation>dasselbe gilt noch %1-mal in der Eingabe</translation>
    </message>
    <message>
        <source>--db is missing: the file of the index</source>
        <translation>--db fehlt: die Datei des Index</translation>
    </message>
    <message>
        <source>a whole number from 0</source>
        <translation>eine ganze Zahl ab 0</translation>
    </message>
    <message>
        <source>a day such as 2027-04-10</source>
        <translation>ein Tag wie 2027-04-10</translation>
    </message>
    <message>
        <source>three characters or more</source>
        <translation>mindestens drei Zeichen</translation>
    </message>
    <message>
        <source>there are more than %1: a longer text, or --limit, shows them</source>
        <translation>es gibt mehr als %1: ein längerer Text grenzt sie ein, --limit zeigt mehr</translation>
    </message>
    <message>
        <source>longer than 1 GiB, which no document is</source>
        <translation>länger als 1 GiB, und so lang ist kein Dokument</translation>
    </message>
    <message>
        <source>line %1: expected a decimal number, but &quot;%2&quot; stands here</source>
        <translation>Zeile %1: eine Dezimalzahl erwartet, aber hier steht „%2“</translation>
    </message>
    <message>
        <source>%1 or a whole number from 0 to %2</source>
        <extracomment>%1 is a list of names.</extracomment>
        <translation>%1 oder eine ganze Zahl von 0 bis %2</translation>
    </message>
    <message>
        <source>expected bpd, hc, ac, fl or efw as the measurement, but &quot;%1&quot; was given</source>
        <translation>als Messgröße bpd, hc, ac, fl oder efw erwartet, aber „%1“ angegeben</translation>
    </message>
    <message>
        <source>%1: expected %2, but &quot;%3&quot; was given</source>
        <extracomment>%1 is an option or an operand, %2 what it takes, %3 what was typed.</extracomment>
        <translation>%1: %2 erwartet, aber „%3“ angegeben</translation>
    </message>
    <message>
        <source>a decimal number</source>
        <translation>eine Dezimalzahl</translation>
    </message>
    <message>
        <source>the reference ID has a character that a DICOM report cannot hold</source>
        <translation>die Patienten-ID hat ein Zeichen, das ein DICOM-Bericht nicht aufnehmen kann</translation>
    </message>
    <message>
        <source>the reference ID is longer than the 64 characters of a DICOM report</source>
        <translation>die Patienten-ID ist länger als die 64 Zeichen eines DICOM-Berichts</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>--%1 is for pages, not for --format %2</source>
        <translation>--%1 gilt für Seiten, nicht für --format %2</translation>
    </message>
    <message>
        <source>--ndjson writes to standard output, and takes no --out</source>
        <translation>--ndjson schreibt zur Standardausgabe und nimmt kein --out</translation>
    </message>
    <message>
        <source>--out is missing, or no folder</source>
        <translation>--out fehlt oder ist kein Ordner</translation>
    </message>
    <message>
        <source>it holds no examination, and nothing is written</source>
        <translation>enthält keine Untersuchung, und nichts wird geschrieben</translation>
    </message>
    <message>
        <source>--out needs the recovery file to write; recover alone lists them</source>
        <translation>--out braucht die zu schreibende Wiederherstellungsdatei; recover allein listet sie auf</translation>
    </message>
    <message>
        <source>give --out DOCUMENT, where to write the document</source>
        <translation>geben Sie mit --out DOCUMENT an, wohin das Dokument geschrieben wird</translation>
    </message>
    <message>
        <source>a number above 0</source>
        <translation>eine Zahl über 0</translation>
    </message>
    <message>
        <source>a number between 0 and 100, both excluded</source>
        <translation>eine Zahl zwischen 0 und 100, beide ausgeschlossen</translation>
    </message>
    <message>
        <source>%1 tells nothing of %2; it has %3</source>
        <extracomment>%1 is a reference, %2 a measurement, %3 a list of measurements.</extracomment>
        <translation>%1 sagt nichts über %2; vorhanden: %3</translation>
    </message>
    <message>
        <source>--week is missing</source>
        <translation>--week fehlt</translation>
    </message>
    <message>
        <source>--value, --centile and --z exclude each other</source>
        <translation>--value, --centile und --z schließen einander aus</translation>
    </message>
    <message>
        <source>--week and --%1 cannot both be -</source>
        <translation>--week und --%1 können nicht beide - sein</translation>
    </message>
    <message>
        <source>expected %1, but %2 was given</source>
        <translation>%1 erwartet, aber %2 angegeben</translation>
    </message>
    <message>
        <source>NAME is missing</source>
        <translation>NAME fehlt</translation>
    </message>
    <message>
        <source>MEASURE is missing</source>
        <translation>MEASURE fehlt</translation>
    </message>
    <message>
        <source>%1: fmf-2018 is not offered, because its formula was not held against its printed table</source>
        <translation>%1: fmf-2018 wird nicht angeboten, weil die Formel nicht mit der gedruckten Tabelle abgeglichen wurde</translation>
    </message>
    <message>
        <source>%1: expected one of %2, but &quot;%3&quot; was given</source>
        <extracomment>%1 is an option or an operand, %2 a list of names.</extracomment>
        <translation>%1: eines von %2 erwartet, aber „%3“ angegeben</translation>
    </message>
    <message>
        <source>--standard: %1 has no mean and SD of the four lengths</source>
        <translation>--standard: %1 hat keinen Mittelwert und keine SD der vier Maße</translation>
    </message>
    <message>
        <source>--standard: &quot;%1&quot; stands there twice</source>
        <translation>--standard: „%1“ steht zweimal da</translation>
    </message>
    <message>
        <source>--columns: a name is empty</source>
        <translation>--columns: ein Name ist leer</translation>
    </message>
    <message>
        <source>--columns: &quot;%1&quot; stands there twice</source>
        <translation>--columns: „%1“ steht zweimal da</translation>
    </message>
    <message>
        <source>--columns: there is no column &quot;%1&quot;</source>
        <translation>--columns: es gibt keine Spalte „%1“</translation>
    </message>
    <message>
        <source>--columns: %1 needs --identify</source>
        <translation>--columns: %1 braucht --identify</translation>
    </message>
    <message>
        <source>--columns: %1 is a date, which --relative-dates leaves out</source>
        <translation>--columns: %1 ist ein Datum, das --relative-dates weglässt</translation>
    </message>
    <message>
        <source>--columns: %1 needs --relative-dates</source>
        <translation>--columns: %1 braucht --relative-dates</translation>
    </message>
    <message>
        <source>--file: expected number or path</source>
        <translation>--file: number oder path erwartet</translation>
    </message>
    <message>
        <source>--format: expected csv or jsonl</source>
        <translation>--format: csv oder jsonl erwartet</translation>
    </message>
    <message>
        <source>a whole number above 0</source>
        <translation>eine ganze Zahl über 0</translation>
    </message>
    <message>
        <source>--null needs --files-from</source>
        <translation>--null braucht --files-from</translation>
    </message>
    <message>
        <source>--tar stands alone, without PATH and --files-from</source>
        <translation>--tar steht allein, ohne PATH und --files-from</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only</source>
        <translation>die Standardeingabe (-) kann nur einmal gelesen werden</translation>
    </message>
    <message>
        <source>a PATH, --files-from or --tar is missing</source>
        <translation>es fehlt ein PATH, --files-from oder --tar</translation>
    </message>
    <message>
        <source>--time-zone: this system knows no zone &quot;%1&quot;</source>
        <translation>--time-zone: dieses System kennt keine Zeitzone „%1“</translation>
    </message>
    <message>
        <source>%1 of %2 values differ</source>
        <translation>%1 von %2 Werten weichen ab</translation>
    </message>
    <message>
        <source>--%1: expected a day like 2026-11-23, but &quot;%2&quot; stands here</source>
        <translation>--%1: ein Tag wie 2026-11-23 erwartet, aber hier steht „%2“</translation>
    </message>
    <message>
        <source>--patient: the reference ID is empty</source>
        <translation>--patient: die Patienten-ID ist leer</translation>
    </message>
    <message>
        <source>--study: the UID is empty</source>
        <translation>--study: die UID ist leer</translation>
    </message>
    <message>
        <source>has no such report</source>
        <translation>hat keinen solchen Bericht</translation>
    </message>
    <message>
        <source>is not sent, because the server did not answer before</source>
        <translation>wird nicht gesendet, weil der Server zuvor nicht geantwortet hat</translation>
    </message>
    <message>
        <source>is not sent: %1 %2</source>
        <extracomment>%1 is the address of a server, %2 what is wrong with it: &quot;... is not sent: host:104 does not answer&quot;.</extracomment>
        <translation>wird nicht gesendet: %1 %2</translation>
    </message>
    <message>
        <source>--%1 is not for %2</source>
        <translation>--%1 gilt nicht für %2</translation>
    </message>
    <message>
        <source>%1 takes no FILE</source>
        <translation>%1 nimmt kein FILE</translation>
    </message>
    <message>
        <source>fetch needs --patient or --study</source>
        <translation>fetch braucht --patient oder --study</translation>
    </message>
    <message>
        <source>--out takes a folder</source>
        <translation>--out nimmt einen Ordner</translation>
    </message>
    <message>
        <source>expected echo, find, fetch or send</source>
        <translation>echo, find, fetch oder send erwartet</translation>
    </message>
    <message>
        <source>is not contacted: %1</source>
        <translation>wird nicht kontaktiert: %1</translation>
    </message>
    <message>
        <source>the connection is not encrypted: what goes over it can be read on its way; see --ca</source>
        <translation>die Verbindung ist nicht verschlüsselt: Was darüber geht, kann unterwegs gelesen werden; siehe --ca</translation>
    </message>
    <message>
        <source>efw needs --formula</source>
        <translation>efw braucht --formula</translation>
    </message>
    <message>
        <source>%1 lies beyond the table, whose first week, %2, counts</source>
        <translation>%1 liegt außerhalb der Tabelle; es gilt ihre erste Woche, %2</translation>
    </message>
    <message>
        <source>%1 lies beyond the table, whose last week, %2, counts</source>
        <translation>%1 liegt außerhalb der Tabelle; es gilt ihre letzte Woche, %2</translation>
    </message>
    <message>
        <source>--mean, --sd and --gestation exclude each other</source>
        <translation>--mean, --sd und --gestation schließen einander aus</translation>
    </message>
    <message>
        <source>one of --mean, --sd and --gestation is missing</source>
        <translation>es fehlt --mean, --sd oder --gestation</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <extracomment>%1 is a sentence, %2 what may have been meant.</extracomment>
        <translation>%1; meinten Sie „%2“?</translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH: expected whole seconds since 1970</source>
        <translation>SOURCE_DATE_EPOCH: ganze Sekunden seit 1970 erwartet</translation>
    </message>
    <message>
        <source>--paper: expected a4 or letter</source>
        <translation>--paper: a4 oder letter erwartet</translation>
    </message>
    <message>
        <source>cannot be put on paper: %1</source>
        <translation>kann nicht als PDF gesetzt werden: %1</translation>
    </message>
    <message>
        <source>--format: expected pdf or html</source>
        <translation>--format: pdf oder html erwartet</translation>
    </message>
    <message>
        <source>--out - takes the summary of one document</source>
        <translation>--out - nimmt die Zusammenfassung nur eines Dokuments</translation>
    </message>
    <message>
        <source>a PDF is no text for a terminal; give --out DIR or send standard output to a file</source>
        <translation>ein PDF ist kein Text für ein Terminal; geben Sie --out DIR an oder leiten Sie die Standardausgabe in eine Datei</translation>
    </message>
    <message>
        <source>it has no such fetus</source>
        <translation>hat keinen solchen Fetus</translation>
    </message>
    <message>
        <source>%1 of %2 values differs</source>
        <translation>%1 von %2 Werten weicht ab</translation>
    </message>
    <message>
        <source>%1 has no value</source>
        <translation>%1 hat keinen Wert</translation>
    </message>
    <message>
        <source>%1 can be given once, and stands there %2 times</source>
        <translation>%1 kann nur einmal angegeben werden und steht %2-mal da</translation>
    </message>
    <message>
        <source>%1; the application, which is installed apart, paints the pages</source>
        <translation>%1; die Seiten zeichnet die Anwendung, die gesondert installiert wird</translation>
    </message>
    <message>
        <source>%1, by --patient</source>
        <translation>%1, mit --patient</translation>
    </message>
    <message>
        <source>a decimal number with a point, such as 61.2</source>
        <translation>eine Dezimalzahl mit Punkt, etwa 61.2</translation>
    </message>
    <message>
        <source>--out: expected a folder, but &quot;%1&quot; is named like a file</source>
        <translation>--out: erwartet wird ein Ordner, doch „%1“ heißt wie eine Datei</translation>
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
        <source>Discordance (%)</source>
        <translation>Diskordanz (%)</translation>
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
    <message>
        <source>%1 has %2 to %3 weeks.</source>
        <translation>%1 umfasst %2 bis %3 Wochen.</translation>
    </message>
    <message>
        <source>%1 fits weights by another formula alone: %2.</source>
        <translation>%1 gilt nur für Gewichte nach einer anderen Formel: %2.</translation>
    </message>
    <message>
        <source>%1 has no place for this value.</source>
        <translation>%1 kann diesen Wert nicht einordnen.</translation>
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
        <translation>Was hier außer Patienten-ID und Gravida eingegeben wurde, geht verloren.</translation>
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
        <source>Read-only, it can be saved only under another name. A copy is a new document.</source>
        <translation>Schreibgeschützt geöffnet, kann es nur unter einem anderen Namen gespeichert werden. Eine Kopie ist ein neues Dokument.</translation>
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
    <name>Counting</name>
    <message>
        <source>1</source>
        <extracomment>The counts that go with the form for one, with blanks between: &quot;1&quot; in English and German (&quot;1 byte&quot;, &quot;0 bytes&quot;), &quot;0 1&quot; in French.</extracomment>
        <translation>1</translation>
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
        <translation>Spät in der Schwangerschaft ist eine Datierung nach der Größe unzuverlässig: Ein kleiner Fetus erscheint jünger, ein großer älter.</translation>
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
    <name>Files</name>
    <message>
        <source>Not a regular file</source>
        <translation>Keine reguläre Datei</translation>
    </message>
    <message>
        <source>It was changed meanwhile</source>
        <translation>Die Datei wurde inzwischen geändert</translation>
    </message>
</context>
<context>
    <name>Findings</name>
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
        <source>a result of the examination is not in the bundle</source>
        <translation>ein Ergebnis der Untersuchung ist nicht im Bündel</translation>
    </message>
    <message>
        <source>an observation of status &quot;%1&quot; is passed over</source>
        <translation>eine Observation mit dem Status „%1“ wird übergangen</translation>
    </message>
    <message>
        <source>an observation of another fetus stands in the panel of fetus %1</source>
        <translation>eine Observation eines anderen Fetus steht im Panel von Fetus %1</translation>
    </message>
    <message>
        <source>is longer than any FHIR bundle that is read (16 MiB)</source>
        <translation>ist länger als jedes FHIR-Bündel, das gelesen wird (16 MiB)</translation>
    </message>
    <message>
        <source>is nested deeper than any FHIR bundle</source>
        <translation>ist tiefer verschachtelt als jedes FHIR-Bündel</translation>
    </message>
    <message>
        <source>is no JSON that can be read</source>
        <translation>ist kein lesbares JSON</translation>
    </message>
    <message>
        <source>is no FHIR bundle</source>
        <translation>ist kein FHIR-Bündel</translation>
    </message>
    <message>
        <source>is a FHIR bundle in which two patients have one identifier</source>
        <translation>ist ein FHIR-Bündel, in dem zwei Patientinnen dieselbe ID haben</translation>
    </message>
    <message>
        <source>is a FHIR bundle without an examination</source>
        <translation>ist ein FHIR-Bündel ohne Untersuchung</translation>
    </message>
    <message>
        <source>fetus %1: %2</source>
        <extracomment>%1 is the ID of a fetus, %2 one of its lengths or a sentence about it.</extracomment>
        <translation>Fetus %1: %2</translation>
    </message>
    <message>
        <source>flagged</source>
        <extracomment>This word and the next ones say of a value how it came about: &quot;a flagged value is taken before a plain one&quot;, &quot;fetus 1: BPD is calculated, not measured&quot;. A flagged one was chosen at the machine.</extracomment>
        <translation>am Gerät ausgewählt</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>gemittelt</translation>
    </message>
    <message>
        <source>calculated</source>
        <translation>berechnet</translation>
    </message>
    <message>
        <source>estimated</source>
        <translation>geschätzt</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>einfach</translation>
    </message>
    <message>
        <source>gravida</source>
        <extracomment>Stands in &quot;the report gives several numbers for %1; the first is taken&quot;, as the next one.</extracomment>
        <translation>die Gravida</translation>
    </message>
    <message>
        <source>numberOfFetuses</source>
        <translation>die Anzahl der Feten</translation>
    </message>
    <message>
        <source>the date of the examination, &quot;%1&quot;, is no day</source>
        <translation>das Datum der Untersuchung, „%1“, ist kein Tag</translation>
    </message>
    <message>
        <source>no length is taken from %1</source>
        <translation>aus diesem Abschnitt wird kein Maß übernommen: %1</translation>
    </message>
    <message>
        <source>a centile of the machine&apos;s weight is never taken</source>
        <translation>eine Perzentile des Gewichts vom Gerät wird nie übernommen</translation>
    </message>
    <message>
        <source>no measure that a document stores (%1)</source>
        <extracomment>%1 is the section of the report that it stands in.</extracomment>
        <translation>kein Maß, das ein Dokument speichert (%1)</translation>
    </message>
    <message>
        <source>the report itself</source>
        <translation>der Bericht selbst</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no count</source>
        <translation>„%1“ ist keine Anzahl</translation>
    </message>
    <message>
        <source>the report said %1 before</source>
        <translation>der Bericht sagte vorher %1</translation>
    </message>
    <message>
        <source>the report gives several numbers for %1; the first is taken</source>
        <translation>der Bericht nennt mehrere Zahlen für %1; die erste wird übernommen</translation>
    </message>
    <message>
        <source>the report holds no value</source>
        <translation>der Bericht enthält keinen Wert</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is neither g nor kg</source>
        <translation>die Einheit „%1“ ist weder g noch kg</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is neither mm nor cm</source>
        <translation>die Einheit „%1“ ist weder mm noch cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no finite number</source>
        <translation>„%1“ ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>it is not above 0</source>
        <translation>er liegt nicht über 0</translation>
    </message>
    <message>
        <source>its derivation is &quot;%1&quot;</source>
        <translation>seine Herleitung ist „%1“</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no day</source>
        <extracomment>%1 is what a date of the report is called there, %2 what stands in its place.</extracomment>
        <translation>%1: „%2“ ist kein Tag</translation>
    </message>
    <message>
        <source>%1, by the average ultrasound age, is never taken</source>
        <translation>%1, nach dem mittleren Ultraschallalter, wird nie übernommen</translation>
    </message>
    <message>
        <source>the last period, %1, makes no EDD by itself</source>
        <translation>die letzte Periode, %1, ergibt allein keinen ET</translation>
    </message>
    <message>
        <source>the report holds two EDDs, %1 and %2; the first is taken</source>
        <translation>der Bericht enthält zwei ET, %1 und %2; der erste wird übernommen</translation>
    </message>
    <message>
        <source>%1 is another day than the EDD that is taken</source>
        <translation>%1 ist ein anderer Tag als der übernommene ET</translation>
    </message>
    <message>
        <source>%1, by the last period, is another day than the EDD that is taken</source>
        <translation>%1, nach der letzten Periode, ist ein anderer Tag als der übernommene ET</translation>
    </message>
    <message>
        <source>another weight is compared</source>
        <translation>ein anderes Gewicht wird verglichen</translation>
    </message>
    <message>
        <source>it has a private code, and another value the standard one</source>
        <translation>der Code ist privat, und ein anderer Wert trägt den Standardcode</translation>
    </message>
    <message>
        <source>%1 stands under a private code of the machine&apos;s maker</source>
        <translation>%1 steht unter einem privaten Code des Geräteherstellers</translation>
    </message>
    <message>
        <source>a %1 value is taken before a %2 one</source>
        <translation>ein anderer Wert geht vor (%1 vor %2)</translation>
    </message>
    <message>
        <source>%1: the value that the report flags is %2, and is not taken</source>
        <translation>%1: der Wert, den der Bericht markiert, ist %2 und wird nicht übernommen</translation>
    </message>
    <message>
        <source>%1 is %2, not measured, though the report flags it</source>
        <translation>%1 ist %2, nicht gemessen, obwohl der Bericht den Wert markiert</translation>
    </message>
    <message>
        <source>%1 is %2, not measured</source>
        <translation>%1 ist %2, nicht gemessen</translation>
    </message>
    <message>
        <source>%1: several %2 values, %3 mm; their mean is taken</source>
        <translation>%1: mehrere Werte (%2), %3 mm; ihr Mittelwert wird übernommen</translation>
    </message>
    <message>
        <source>the report&apos;s weight, %1 g, is not that of its lengths, which is %2 g by %3</source>
        <translation>das Gewicht des Berichts, %1 g, ist nicht das seiner Maße, das %2 g nach %3 beträgt</translation>
    </message>
    <message>
        <source>is a structured report of a kind that is not read (neither Comprehensive nor Enhanced)</source>
        <translation>ist ein strukturierter Bericht einer Art, die nicht gelesen wird (weder Comprehensive noch Enhanced)</translation>
    </message>
    <message>
        <source>is no structured report</source>
        <translation>ist kein strukturierter Bericht</translation>
    </message>
    <message>
        <source>is a report whose content is missing</source>
        <translation>ist ein Bericht, dessen Inhalt fehlt</translation>
    </message>
    <message>
        <source>is no obstetric ultrasound report (its title is &quot;%1&quot;)</source>
        <translation>ist kein Bericht einer geburtshilflichen Ultraschalluntersuchung (sein Titel ist „%1“)</translation>
    </message>
    <message>
        <source>the report says that there are %1 fetuses, and holds %2</source>
        <translation>Anzahl der Feten laut Bericht: %1; er enthält %2</translation>
    </message>
    <message>
        <source>examination %1, fetus %2: %3 %4 is no length, and left out</source>
        <extracomment>%3 is one of BPD, HC, AC and FL, %4 what stands in its place.</extracomment>
        <translation>Untersuchung %1, Fetus %2: %3 %4 ist kein Maß und wird weggelassen</translation>
    </message>
    <message>
        <source>the document is of patient &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>das Dokument gehört zur Patientin „%1“, nicht „%2“</translation>
    </message>
    <message>
        <source>the report&apos;s reference ID has characters that cannot be read; nothing is stored unless the ID is given</source>
        <translation>die Patienten-ID des Berichts hat Zeichen, die nicht gelesen werden können; ohne Angabe der ID wird nichts gespeichert</translation>
    </message>
    <message>
        <source>the report names no patient; nothing is stored unless the ID is given</source>
        <translation>der Bericht nennt keine Patientin; ohne Angabe der ID wird nichts gespeichert</translation>
    </message>
    <message>
        <source>the document names no patient; nothing is stored unless the ID is given</source>
        <translation>das Dokument nennt keine Patientin; ohne Angabe der ID wird nichts gespeichert</translation>
    </message>
    <message>
        <source>the report is of patient &quot;%1&quot;, the document of &quot;%2&quot;</source>
        <translation>der Bericht gehört zur Patientin „%1“, das Dokument zu „%2“</translation>
    </message>
    <message>
        <source>%1 of the report may be any of the document&apos;s; nothing is stored unless its number is given</source>
        <extracomment>%1 is a fetus: &quot;fetus &quot;A&quot;&quot;, &quot;a fetus without an ID&quot;.</extracomment>
        <translation>%1 des Berichts kann jeder des Dokuments sein; ohne Angabe der Nummer wird nichts gespeichert</translation>
    </message>
    <message>
        <source>%1 cannot be fetus %2 of %3</source>
        <translation>%1 kann nicht Fetus %2 von %3 sein</translation>
    </message>
    <message>
        <source>two fetuses of the report cannot both be fetus %1</source>
        <translation>zwei Feten des Berichts können nicht beide Fetus %1 sein</translation>
    </message>
    <message>
        <source>fetus &quot;%1&quot;</source>
        <translation>Fetus „%1“</translation>
    </message>
    <message>
        <source>a fetus without an ID</source>
        <translation>ein Fetus ohne ID</translation>
    </message>
    <message>
        <source>fetus %1: the CRL is not stored</source>
        <translation>Fetus %1: die SSL wird nicht gespeichert</translation>
    </message>
    <message>
        <source>fetus %1: %2 %3 mm is beyond what a document takes</source>
        <extracomment>%2 is one of BPD, HC, AC and FL, as in the next one.</extracomment>
        <translation>Fetus %1: %2 %3 mm liegt außerhalb dessen, was ein Dokument aufnimmt</translation>
    </message>
    <message>
        <source>fetus %1: %2 stays %3 mm; the report says %4 mm</source>
        <translation>Fetus %1: %2 bleibt %3 mm; der Bericht sagt %4 mm</translation>
    </message>
    <message>
        <source>%1 more</source>
        <extracomment>Stands behind the IDs of some patients, with commas between.</extracomment>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>one without an ID</source>
        <extracomment>Of several patients.</extracomment>
        <translation>eine ohne ID</translation>
    </message>
    <message>
        <source>holds examinations of several patients (%1), and a document is of one; nothing is stored. Please import a file for each patient</source>
        <extracomment>%1 are the IDs of patients.</extracomment>
        <translation>enthält Untersuchungen mehrerer Patientinnen (%1), und ein Dokument gehört zu einer; es wird nichts gespeichert. Bitte importieren Sie für jede Patientin eine Datei</translation>
    </message>
    <message>
        <source>the report does not say when the examination was</source>
        <translation>der Bericht sagt nicht, wann die Untersuchung war</translation>
    </message>
    <message>
        <source>a document takes at most %1 fetuses</source>
        <translation>ein Dokument nimmt höchstens %1 Feten auf</translation>
    </message>
    <message>
        <source>the EDD stays %1; the report says %2</source>
        <translation>der ET bleibt %1; der Bericht sagt %2</translation>
    </message>
    <message>
        <source>the EDD stays; the report says %1</source>
        <translation>der ET bleibt; der Bericht sagt %1</translation>
    </message>
    <message>
        <source>the gravidity stays %1; the report says %2</source>
        <translation>die Gravida bleibt %1; der Bericht sagt %2</translation>
    </message>
    <message>
        <source>the number of fetuses stays %1; the report says %2</source>
        <translation>die Anzahl der Feten bleibt %1; der Bericht sagt %2</translation>
    </message>
    <message>
        <source>the report holds no length that is stored</source>
        <translation>der Bericht enthält kein Maß, das gespeichert wird</translation>
    </message>
    <message>
        <source>the columns fetus, which counts from 0, and fetus_number, from 1, cannot both stand in the header</source>
        <translation>die Spalten fetus, die ab 0 zählt, und fetus_number, ab 1, können nicht beide in der Kopfzeile stehen</translation>
    </message>
    <message>
        <source>the cell is empty; write the day of the examination like 2026-11-13</source>
        <translation>die Zelle ist leer; schreiben Sie den Tag der Untersuchung wie 2026-11-13</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is a column of a table, %2 what is wrong with a cell of it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the text is no UTF-8; save the table as UTF-8</source>
        <translation>der Text ist kein UTF-8; speichern Sie die Tabelle als UTF-8</translation>
    </message>
    <message>
        <source>%1 is no day; write it like 2027-04-10, or leave the cell empty</source>
        <extracomment>%1 is what stands there, in quotation marks, in this one and in others of the kind.</extracomment>
        <translation>%1 ist kein Tag; schreiben Sie ihn wie 2027-04-10, oder lassen Sie die Zelle leer</translation>
    </message>
    <message>
        <source>%1 is no day; write it like 2026-11-13</source>
        <translation>%1 ist kein Tag; schreiben Sie ihn wie 2026-11-13</translation>
    </message>
    <message>
        <source>%1 is no whole number from %2 to %3</source>
        <translation>%1 ist keine ganze Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>%1 is no whole number from %2 on</source>
        <translation>%1 ist keine ganze Zahl ab %2</translation>
    </message>
    <message>
        <source>the cell is empty; number the fetuses from %1</source>
        <translation>die Zelle ist leer; nummerieren Sie die Feten ab %1</translation>
    </message>
    <message>
        <source>%1 is beyond what a document takes, 0 to %2 mm</source>
        <translation>%1 liegt außerhalb dessen, was ein Dokument aufnimmt, 0 bis %2 mm</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <extracomment>%2 is what is wrong with the row of a table that begins at line %1.</extracomment>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>what stands behind line %1 was not looked at</source>
        <translation>was hinter Zeile %1 steht, wurde nicht angesehen</translation>
    </message>
    <message>
        <source>nothing of this table is taken until every row of it fits</source>
        <translation>von dieser Tabelle wird nichts übernommen, bis jede ihrer Zeilen passt</translation>
    </message>
    <message>
        <source>is a table without an examination</source>
        <translation>ist eine Tabelle ohne Untersuchung</translation>
    </message>
    <message>
        <source>a note is not taken</source>
        <translation>eine Notiz wird nicht übernommen</translation>
    </message>
    <message>
        <source>edd: it is not that of line %1, and no reference_id tells the patients apart; write the ID into every row</source>
        <translation>edd: es ist nicht der ET von Zeile %1, und keine reference_id unterscheidet die Patientinnen; schreiben Sie die ID in jede Zeile</translation>
    </message>
    <message>
        <source>reference_id: the cell is empty, that of line %1 is not; write the ID into every row</source>
        <translation>reference_id: die Zelle ist leer, die von Zeile %1 ist es nicht; schreiben Sie die ID in jede Zeile</translation>
    </message>
    <message>
        <source>reference_id: the cell of line %1 is empty, this one is not; write the ID into every row</source>
        <translation>reference_id: die Zelle von Zeile %1 ist leer, diese ist es nicht; schreiben Sie die ID in jede Zeile</translation>
    </message>
    <message>
        <source>the row is of another file than that of line %1, and no reference_id tells the patients apart; write the rows with --identify</source>
        <translation>die Zeile stammt aus einer anderen Datei als die von Zeile %1, und keine reference_id unterscheidet die Patientinnen; schreiben Sie die Zeilen mit --identify</translation>
    </message>
    <message>
        <source>line %1 has the same fetus at the same examination; leave one of the two rows</source>
        <translation>Zeile %1 hat denselben Fetus bei derselben Untersuchung; lassen Sie nur eine der beiden Zeilen stehen</translation>
    </message>
    <message>
        <source>line %1 has a fetus of this examination too; number them from 1, in a column fetus_number</source>
        <translation>Zeile %1 hat auch einen Fetus dieser Untersuchung; nummerieren Sie sie ab 1 in einer Spalte fetus_number</translation>
    </message>
    <message>
        <source>%1: line %2 says something else of the same examination; make them agree</source>
        <extracomment>%1 is a column of a table.</extracomment>
        <translation>%1: Zeile %2 sagt etwas anderes über dieselbe Untersuchung; gleichen Sie beide an</translation>
    </message>
    <message>
        <source>fetus counts from 0, and no row of this examination has 0; where it counts from 1, call the column fetus_number</source>
        <translation>fetus zählt ab 0, und keine Zeile dieser Untersuchung hat 0; wenn sie ab 1 zählt, nennen Sie die Spalte fetus_number</translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1: never measured</source>
        <extracomment>%1 to %3 are bpd, hc, ac or fl: &quot;there is no column bpd_mm or bpd: never measured&quot;.</extracomment>
        <translation>die Spalte %1_mm oder %1 fehlt: gilt als nie gemessen</translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1, %2_mm or %2: never measured</source>
        <translation>die Spalte %1_mm oder %1, %2_mm oder %2 fehlt: gilt als nie gemessen</translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1, %2_mm or %2, %3_mm or %3: never measured</source>
        <translation>die Spalte %1_mm oder %1, %2_mm oder %2, %3_mm oder %3 fehlt: gilt als nie gemessen</translation>
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
    <name>Improbable</name>
    <message>
        <source>%1 %2 mm is outside %3 to %4 mm</source>
        <translation>%1 %2 mm liegt außerhalb von %3 bis %4 mm</translation>
    </message>
    <message>
        <source>%1 %2 mm is shorter than where any growth standard begins; lengths are in mm</source>
        <translation>%1 %2 mm ist kleiner als der Anfang jedes Wachstumsstandards; Maße sind in mm</translation>
    </message>
    <message>
        <source>%1 %2 mm is more than 4 SD below the mean of the growth standard at this age</source>
        <translation>%1 %2 mm liegt mehr als 4 SD unter dem Mittelwert des Wachstumsstandards in diesem Alter</translation>
    </message>
    <message>
        <source>%1 %2 mm is more than 4 SD above the mean of the growth standard at this age</source>
        <translation>%1 %2 mm liegt mehr als 4 SD über dem Mittelwert des Wachstumsstandards in diesem Alter</translation>
    </message>
    <message>
        <source>%1 %2 mm is below nine tenths of pi times the BPD, %3 mm</source>
        <translation>%1 %2 mm liegt unter neun Zehnteln von Pi mal dem BPD von %3 mm</translation>
    </message>
    <message>
        <source>%1 %2 mm is improbable</source>
        <translation>%1 %2 mm ist unwahrscheinlich</translation>
    </message>
    <message>
        <source>it is %1 day before the last period</source>
        <extracomment>&quot;It&quot; is an examination.</extracomment>
        <translation>sie liegt %1 Tag vor der letzten Periode</translation>
    </message>
    <message>
        <source>it is %1 days before the last period</source>
        <translation>sie liegt %1 Tage vor der letzten Periode</translation>
    </message>
    <message>
        <source>its age, %1, is above 45 weeks</source>
        <translation>ihr Gestationsalter, %1, liegt über 45 Wochen</translation>
    </message>
</context>
<context>
    <name>Modules</name>
    <message>
        <source>this program does not know where it lies</source>
        <translation>dieses Programm weiß nicht, wo es liegt</translation>
    </message>
    <message>
        <source>the module %1 is not installed</source>
        <translation>das Modul %1 ist nicht installiert</translation>
    </message>
    <message>
        <source>the module %1 cannot be loaded: it is another module</source>
        <translation>das Modul %1 kann nicht geladen werden: Es ist ein anderes Modul</translation>
    </message>
    <message>
        <source>the module %1 cannot be loaded: %2</source>
        <translation>das Modul %1 kann nicht geladen werden: %2</translation>
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
        <translation>&amp;Gravida</translation>
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
        <translation>Verwendet Qt %1 (GNU LGPL 3), die D-Bus-Bibliothek (AFL 2.1 oder GNU GPL 2) und die GNU-Bibliothek für C⁠+⁠+ (GNU GPL 3 mit der GCC Runtime Library Exception).</translation>
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
        <source>All %1 worked examples give the expected results.</source>
        <translation>Alle %1 Rechenbeispiele stimmen mit den bekannten Werten überein.</translation>
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
        <translation>Die Gravida %ld wird als %ld gelesen werden. Eine Datei fasst Gravida-Werte bis %ld.</translation>
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
        <translation>Gravida:</translation>
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
        <translation>Die Gravida ist bereits festgelegt</translation>
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
        <translation>Möchten Sie diese Untersuchung wirklich entfernen?</translation>
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
        <source>The same day as the current EDD.</source>
        <translation>Derselbe Tag wie der bisherige ET.</translation>
    </message>
    <message>
        <source>One day later than the current EDD.</source>
        <translation>Einen Tag später als der bisherige ET.</translation>
    </message>
    <message>
        <source>One day earlier than the current EDD.</source>
        <translation>Einen Tag früher als der bisherige ET.</translation>
    </message>
    <message>
        <source>%ld days later than the current EDD.</source>
        <translation>%ld Tage später als der bisherige ET.</translation>
    </message>
    <message>
        <source>%ld days earlier than the current EDD.</source>
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
        <translation>Die Formel gilt für diese Längen, in mm:</translation>
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
        <translation>Maße, die ebenfalls entfernt werden: %ld.</translation>
    </message>
    <message>
        <source>Last examination:</source>
        <translation>Letzte Untersuchung:</translation>
    </message>
    <message>
        <source>No lengths, so no marks. Type BPD, HC, AC or FL beside the page.</source>
        <translation>Keine Maße, daher keine Messpunkte. BPD, KU, AU oder FL links eingeben.</translation>
    </message>
    <message>
        <source>No BPD, so no marks. Type it beside the page.</source>
        <translation>Kein BPD, daher keine Messpunkte. Bitte links eingeben.</translation>
    </message>
    <message>
        <source>No HC, so no marks. Type it beside the page.</source>
        <translation>Kein KU, daher keine Messpunkte. Bitte links eingeben.</translation>
    </message>
    <message>
        <source>No AC, so no marks. Type it beside the page.</source>
        <translation>Kein AU, daher keine Messpunkte. Bitte links eingeben.</translation>
    </message>
    <message>
        <source>No FL, so no marks. Type it beside the page.</source>
        <translation>Keine FL, daher keine Messpunkte. Bitte links eingeben.</translation>
    </message>
    <message>
        <source>No weight, so no marks. Type the lengths that the formula needs.</source>
        <translation>Kein Gewicht, daher keine Messpunkte. Bitte die Maße eingeben, die die Formel braucht.</translation>
    </message>
    <message>
        <source>No lengths. Type BPD, HC, AC or FL beside the page.</source>
        <translation>Keine Maße. BPD, KU, AU oder FL links eingeben.</translation>
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
        <translation>Kein Datum, daher keine SSW. Bitte links eingeben.</translation>
    </message>
    <message>
        <source>No date, so no marks. Type it beside the page.</source>
        <translation>Kein Datum, daher keine Messpunkte. Bitte links eingeben.</translation>
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
        <translation>Üblich sind 24 bis 38 Tage für den Zyklus und 11 bis 17 für die Lutealphase.</translation>
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
        <translation>Gravida</translation>
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
    <message>
        <source>the folder could not be made (%1)</source>
        <translation>der Ordner konnte nicht angelegt werden (%1)</translation>
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
    <name>Reading</name>
    <message>
        <source>a real</source>
        <translation>eine Gleitkommazahl</translation>
    </message>
    <message>
        <source>the mark of something new</source>
        <translation>die Kennung für etwas Neues</translation>
    </message>
    <message>
        <source>the end of an object</source>
        <translation>das Ende eines Objekts</translation>
    </message>
    <message>
        <source>the meaningless byte %1</source>
        <translation>das bedeutungslose Byte %1</translation>
    </message>
    <message>
        <source>only %1 of its %2 are left</source>
        <extracomment>%2 is a count, such as &quot;8 bytes&quot;.</extracomment>
        <translation>nur noch %1 von %2 übrig</translation>
    </message>
    <message>
        <source>label %1 is outside the %2 given so far</source>
        <translation>Label %1 liegt außerhalb der bisher vergebenen %2</translation>
    </message>
    <message>
        <source>string %1 is outside the %2 given so far</source>
        <translation>Zeichenkette %1 liegt außerhalb der bisher vergebenen %2</translation>
    </message>
    <message>
        <source>its length is %1</source>
        <translation>die Länge ist %1</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>bei Byte %1: %2</translation>
    </message>
    <message>
        <source>expected %1, but %2</source>
        <extracomment>%1 is what was expected, such as &quot;an object&quot;, %2 a clause such as &quot;the file ends here&quot;.</extracomment>
        <translation>%1 erwartet, aber %2</translation>
    </message>
    <message>
        <source>%1 stands here</source>
        <translation>hier steht %1</translation>
    </message>
    <message>
        <source>%1 byte</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>the file ends here</source>
        <translation>die Datei endet hier</translation>
    </message>
    <message>
        <source>the text of this stream is more than %1 times as long as the stream itself</source>
        <translation>der Text dieses Datenstroms ist mehr als %1-mal so lang wie der Datenstrom selbst</translation>
    </message>
    <message>
        <source>a typed stream of version 4</source>
        <translation>ein typisierter Datenstrom der Version 4</translation>
    </message>
    <message>
        <source>the signature of a typed stream</source>
        <translation>die Signatur eines typisierten Datenstroms</translation>
    </message>
    <message>
        <source>the version is %1</source>
        <translation>die Version ist %1</translation>
    </message>
    <message>
        <source>the system version</source>
        <translation>die Systemversion</translation>
    </message>
    <message>
        <source>a group of values, or the end of an object</source>
        <translation>eine Gruppe von Werten oder das Ende eines Objekts</translation>
    </message>
    <message>
        <source>a group of values</source>
        <translation>eine Gruppe von Werten</translation>
    </message>
    <message>
        <source>%1 ends here</source>
        <extracomment>An object.</extracomment>
        <translation>%1 endet hier</translation>
    </message>
    <message>
        <source>the types of a group</source>
        <translation>die Typen einer Gruppe</translation>
    </message>
    <message>
        <source>the type string %1 %2</source>
        <extracomment>%2 is what is wrong with it, such as &quot;ends inside an array&quot;.</extracomment>
        <translation>die Typzeichenkette %1 %2</translation>
    </message>
    <message>
        <source>its text is nil</source>
        <translation>der Text ist nil</translation>
    </message>
    <message>
        <source>a class name</source>
        <translation>ein Klassenname</translation>
    </message>
    <message>
        <source>a class version</source>
        <translation>eine Klassenversion</translation>
    </message>
    <message>
        <source>more than %1 class records stand in a chain</source>
        <translation>mehr als %1 Klasseneinträge stehen in einer Kette</translation>
    </message>
    <message>
        <source>a superclass</source>
        <translation>eine Oberklasse</translation>
    </message>
    <message>
        <source>objects, arrays and structures nest more than %1 deep</source>
        <translation>Objekte, Arrays und Strukturen sind mehr als %1-fach verschachtelt</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>eine Ganzzahl</translation>
    </message>
    <message>
        <source>a byte</source>
        <translation>ein Byte</translation>
    </message>
    <message>
        <source>%1 does not fit that</source>
        <translation>%1 passt nicht hinein</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>eine Zeichenkette</translation>
    </message>
    <message>
        <source>a C string</source>
        <translation>eine C-Zeichenkette</translation>
    </message>
    <message>
        <source>a class</source>
        <translation>eine Klasse</translation>
    </message>
    <message>
        <source>an array of bytes</source>
        <translation>ein Array von Bytes</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>ein Array</translation>
    </message>
    <message>
        <source>it takes at least %1, and %2 are left</source>
        <extracomment>%1 is a count, such as &quot;8 bytes&quot;.</extracomment>
        <translation>mindestens %1 nötig, noch %2 übrig</translation>
    </message>
    <message>
        <source>a structure</source>
        <translation>eine Struktur</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>the class of an object</source>
        <translation>die Klasse eines Objekts</translation>
    </message>
    <message>
        <source>the end of %1</source>
        <extracomment>%1 is an object.</extracomment>
        <translation>das Ende von %1</translation>
    </message>
    <message>
        <source>more values follow</source>
        <translation>es folgen weitere Werte</translation>
    </message>
    <message>
        <source>class %1 (%2)</source>
        <translation>Klasse %1 (%2)</translation>
    </message>
    <message>
        <source>C string %1</source>
        <translation>C-Zeichenkette %1</translation>
    </message>
    <message>
        <source>object %1 (of no class yet)</source>
        <translation>Objekt %1 (noch ohne Klasse)</translation>
    </message>
    <message>
        <source>object %1 (%2)</source>
        <translation>Objekt %1 (%2)</translation>
    </message>
    <message>
        <source>nests arrays and structures more than %1 deep</source>
        <extracomment>Behind &quot;the type string ...&quot;, as are the next ones.</extracomment>
        <translation>verschachtelt Arrays und Strukturen mehr als %1-fach</translation>
    </message>
    <message>
        <source>has the unknown type code %1</source>
        <translation>enthält den unbekannten Typcode %1</translation>
    </message>
    <message>
        <source>has an array without a count</source>
        <translation>enthält ein Array ohne Anzahl</translation>
    </message>
    <message>
        <source>ends inside an array</source>
        <translation>endet innerhalb eines Arrays</translation>
    </message>
    <message>
        <source>has an array without an element type</source>
        <translation>enthält ein Array ohne Elementtyp</translation>
    </message>
    <message>
        <source>has an array that is not closed</source>
        <translation>enthält ein Array, das nicht geschlossen wird</translation>
    </message>
    <message>
        <source>has an array whose elements take no bytes</source>
        <translation>enthält ein Array, dessen Elemente keine Bytes belegen</translation>
    </message>
    <message>
        <source>has a structure without members</source>
        <translation>enthält eine Struktur ohne Felder</translation>
    </message>
    <message>
        <source>has a structure that is not closed</source>
        <translation>enthält eine Struktur, die nicht geschlossen wird</translation>
    </message>
    <message>
        <source>a selector</source>
        <translation>ein Selektor</translation>
    </message>
    <message>
        <source>a shared string</source>
        <translation>eine gemeinsam genutzte Zeichenkette</translation>
    </message>
    <message>
        <source>an unsigned byte</source>
        <translation>ein vorzeichenloses Byte</translation>
    </message>
    <message>
        <source>a truth value</source>
        <translation>ein Wahrheitswert</translation>
    </message>
    <message>
        <source>a 16-bit integer</source>
        <translation>eine 16-Bit-Ganzzahl</translation>
    </message>
    <message>
        <source>an unsigned 16-bit integer</source>
        <translation>eine vorzeichenlose 16-Bit-Ganzzahl</translation>
    </message>
    <message>
        <source>a 32-bit integer</source>
        <translation>eine 32-Bit-Ganzzahl</translation>
    </message>
    <message>
        <source>an unsigned 32-bit integer</source>
        <translation>eine vorzeichenlose 32-Bit-Ganzzahl</translation>
    </message>
    <message>
        <source>a long integer</source>
        <translation>eine lange Ganzzahl</translation>
    </message>
    <message>
        <source>an unsigned long integer</source>
        <translation>eine vorzeichenlose lange Ganzzahl</translation>
    </message>
    <message>
        <source>a 64-bit integer</source>
        <translation>eine 64-Bit-Ganzzahl</translation>
    </message>
    <message>
        <source>an unsigned 64-bit integer</source>
        <translation>eine vorzeichenlose 64-Bit-Ganzzahl</translation>
    </message>
    <message>
        <source>a 32-bit real</source>
        <translation>eine 32-Bit-Gleitkommazahl</translation>
    </message>
    <message>
        <source>a 64-bit real</source>
        <translation>eine 64-Bit-Gleitkommazahl</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>ein Wert</translation>
    </message>
    <message>
        <source>values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>%1 (type %2)</source>
        <extracomment>%1 is a type in words, such as &quot;an object&quot;, %2 as it is spelled.</extracomment>
        <translation>%1 (Typ %2)</translation>
    </message>
    <message>
        <source>not a Nascor document (%1)</source>
        <extracomment>Behind the name of a file; %1 is the reason.</extracomment>
        <translation>kein Nascor-Dokument (%1)</translation>
    </message>
    <message>
        <source>a text or null</source>
        <translation>ein Text oder null</translation>
    </message>
    <message>
        <source>a date (seconds since 2001-01-01 UTC, an ISO text) or null</source>
        <translation>ein Datum (Sekunden seit 2001-01-01 UTC, ein ISO-Text) oder null</translation>
    </message>
    <message>
        <source>an ISO date or null</source>
        <translation>ein ISO-Datum oder null</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>a number, &quot;nan&quot;, &quot;inf&quot; or &quot;-inf&quot;</source>
        <translation>eine Zahl, &quot;nan&quot;, &quot;inf&quot; oder &quot;-inf&quot;</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>the text %1</source>
        <translation>der Text %1</translation>
    </message>
    <message>
        <source>binary data</source>
        <translation>Binärdaten</translation>
    </message>
    <message>
        <source>one of the keys %1</source>
        <translation>einer der Schlüssel %1</translation>
    </message>
    <message>
        <source>each key once</source>
        <translation>jeder Schlüssel nur einmal</translation>
    </message>
    <message>
        <source>this one stands twice</source>
        <translation>dieser steht zweimal da</translation>
    </message>
    <message>
        <source>expected JSON, but %1</source>
        <translation>JSON erwartet, aber %1</translation>
    </message>
    <message>
        <source>at line %1, column %2: %3</source>
        <translation>in Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>at the top: %1</source>
        <translation>auf oberster Ebene: %1</translation>
    </message>
    <message>
        <source>at %1: %2</source>
        <extracomment>%1 is a place in a JSON text, such as /examinations/2/note.</extracomment>
        <translation>bei %1: %2</translation>
    </message>
    <message>
        <source>a whole number of at most 64 bits</source>
        <translation>eine ganze Zahl von höchstens 64 Bit</translation>
    </message>
    <message>
        <source>%1 is longer than 32 bits; the file holds the low 32, which are %2</source>
        <translation>%1 ist länger als 32 Bit; die Datei enthält die unteren 32, nämlich %2</translation>
    </message>
    <message>
        <source>%1 is beyond single precision; the file holds %2</source>
        <translation>%1 geht über einfache Genauigkeit hinaus; die Datei enthält %2</translation>
    </message>
    <message>
        <source>this number is beyond 64 bits</source>
        <translation>diese Zahl geht über 64 Bit hinaus</translation>
    </message>
    <message>
        <source>expected JSON, but a zero byte stands here</source>
        <translation>JSON erwartet, aber hier steht ein Nullbyte</translation>
    </message>
    <message>
        <source>expected a string of UTF-8 text, but its bytes are not UTF-8</source>
        <translation>eine Zeichenkette aus UTF-8-Text erwartet, aber ihre Bytes sind kein UTF-8</translation>
    </message>
    <message>
        <source>expected a string of UTF-8 text, but its bytes are missing</source>
        <translation>eine Zeichenkette aus UTF-8-Text erwartet, aber ihre Bytes fehlen</translation>
    </message>
    <message>
        <source>%1 would contain itself</source>
        <translation>%1 würde sich selbst enthalten</translation>
    </message>
    <message>
        <source>expected a document of a plausible size, but its references to %1 and others repeat %2 bytes in a file of %3</source>
        <translation>ein Dokument von plausibler Größe erwartet, aber seine Verweise auf %1 und andere wiederholen %2 Bytes in einer Datei von %3</translation>
    </message>
    <message>
        <source>the number of elements of an array</source>
        <translation>die Anzahl der Elemente eines Arrays</translation>
    </message>
    <message>
        <source>a PatientRecord</source>
        <translation>ein PatientRecord</translation>
    </message>
    <message>
        <source>a string or nil</source>
        <translation>eine Zeichenkette oder nil</translation>
    </message>
    <message>
        <source>a date or nil</source>
        <translation>ein Datum oder nil</translation>
    </message>
    <message>
        <source>an array of examinations or nil</source>
        <translation>ein Array von Untersuchungen oder nil</translation>
    </message>
    <message>
        <source>an NCRecord</source>
        <translation>ein NCRecord</translation>
    </message>
    <message>
        <source>an array of measurements or nil</source>
        <translation>ein Array von Messwerten oder nil</translation>
    </message>
    <message>
        <source>a MeasurementsRecord</source>
        <translation>ein MeasurementsRecord</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>longer than 256 MiB, which no document is</source>
        <translation>länger als 256 MiB, und so lang ist kein Dokument</translation>
    </message>
    <message>
        <source>the tar archive ends before its end mark</source>
        <translation>das Tar-Archiv endet vor seiner Endmarkierung</translation>
    </message>
    <message>
        <source>the header has none of the columns ga_weeks, bpd_mm, hc_mm, ac_mm and fl_mm</source>
        <translation>die Kopfzeile hat keine der Spalten ga_weeks, bpd_mm, hc_mm, ac_mm und fl_mm</translation>
    </message>
    <message>
        <source>the column %1 is one of those that are computed</source>
        <translation>die Spalte %1 ist eine von denen, die berechnet werden</translation>
    </message>
    <message>
        <source>%1 is no column of the input and none that is computed</source>
        <extracomment>%1 stands in quotation marks.</extracomment>
        <translation>%1 ist weder eine Spalte der Eingabe noch eine berechnete</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <extracomment>Two names of one column.</extracomment>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>the row that begins here is longer than 4 MiB; a quotation mark may never close</source>
        <translation>die hier beginnende Zeile ist länger als 4 MiB; vielleicht fehlt ein schließendes Anführungszeichen</translation>
    </message>
    <message>
        <source>a quotation mark that opens here never closes</source>
        <translation>ein Anführungszeichen, das hier beginnt, wird nie geschlossen</translation>
    </message>
    <message>
        <source>text stands behind a closing quotation mark</source>
        <translation>hinter einem schließenden Anführungszeichen steht Text</translation>
    </message>
    <message>
        <source>the column %1 stands twice in the header</source>
        <translation>die Spalte %1 steht zweimal in der Kopfzeile</translation>
    </message>
    <message>
        <source>the columns %1 and %2 are one</source>
        <translation>die Spalten %1 und %2 sind ein und dieselbe</translation>
    </message>
    <message>
        <source>the header has %1 cells, this row %2</source>
        <translation>die Kopfzeile hat %1 Zellen, diese Zeile %2</translation>
    </message>
    <message>
        <source>%1: %2 is no number</source>
        <extracomment>%1 is a column, %2 what stands in it, in quotation marks.</extracomment>
        <translation>%1: %2 ist keine Zahl</translation>
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
        <translation>Gravida</translation>
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
    <message>
        <source>Unsaved changes cannot be kept against a crash. Please save: %1</source>
        <translation>Nicht gespeicherte Änderungen können nicht gegen einen Absturz gesichert werden. Bitte speichern Sie: %1</translation>
    </message>
    <message>
        <source>Examination of %1</source>
        <translation>Untersuchung vom %1</translation>
    </message>
    <message>
        <source>What it holds:</source>
        <translation>Was es enthält:</translation>
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
    <message>
        <source>%1 values. The program answers each of them alike.</source>
        <translation>%1 Werte geprüft, keine Abweichung.</translation>
    </message>
    <message>
        <source>worked out apart from the program, in decimal arithmetic</source>
        <translation>außerhalb des Programms in Dezimalarithmetik berechnet</translation>
    </message>
</context>
<context>
    <name>ReportFiles</name>
    <message>
        <source>a text is not in the character set &quot;%1&quot; that the file states</source>
        <translation>ein Text ist nicht im Zeichensatz „%1“, den die Datei angibt</translation>
    </message>
    <message>
        <source>is damaged: %1</source>
        <extracomment>%1 is what a library says, in English, as in all sentences about DICOM that end with a colon.</extracomment>
        <translation>ist beschädigt: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>is cut off: it ends before its end</source>
        <translation>ist abgeschnitten: Es endet vor dem Ende</translation>
    </message>
    <message>
        <source>is damaged: a part is longer than what holds it</source>
        <translation>ist beschädigt: Ein Teil ist länger als das, was ihn enthält</translation>
    </message>
    <message>
        <source>is damaged: a part is of a kind that DICOM does not have</source>
        <translation>ist beschädigt: Ein Teil ist von einer Art, die DICOM nicht kennt</translation>
    </message>
    <message>
        <source>is no DICOM file</source>
        <translation>ist keine DICOM-Datei</translation>
    </message>
    <message>
        <source>has more parts than any report</source>
        <translation>hat mehr Teile als jeder Bericht</translation>
    </message>
    <message>
        <source>is a DICOM file that does not say how it is encoded</source>
        <translation>ist eine DICOM-Datei, die nicht sagt, wie sie kodiert ist</translation>
    </message>
    <message>
        <source>is a compressed DICOM file; reports are read uncompressed</source>
        <translation>ist eine komprimierte DICOM-Datei; Berichte werden unkomprimiert gelesen</translation>
    </message>
    <message>
        <source>is nested deeper than any report</source>
        <translation>ist tiefer verschachtelt als jeder Bericht</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 is the name of a file, %2 a sentence about it that begins with a small letter.</extracomment>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the path of a file, %2 what the operating system says of it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>is no report that is read: no DICOM file, no FHIR bundle, and no table whose first line names exam_date and lengths such as bpd_mm, with commas between</source>
        <translation>ist kein Bericht, der gelesen wird: keine DICOM-Datei, kein FHIR-Bündel und keine Tabelle, deren erste Zeile exam_date und Maße wie bpd_mm nennt, mit Kommas dazwischen</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>%1: %2 more row.</source>
        <extracomment>%2 rows of the file %1 do not fit either.</extracomment>
        <translation>%1: %2 weitere Zeile.</translation>
    </message>
    <message>
        <source>%1: %2 more rows.</source>
        <translation>%1: %2 weitere Zeilen.</translation>
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
        <translation>Gravida</translation>
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
    <message>
        <source>These reports cannot be imported.</source>
        <translation>Diese Berichte können nicht importiert werden.</translation>
    </message>
</context>
<context>
    <name>ReportServer</name>
    <message>
        <source>the host is no name and no IPv4 address</source>
        <translation>der Host ist weder ein Name noch eine IPv4-Adresse</translation>
    </message>
    <message>
        <source>the port is no number from 1 to 65535</source>
        <translation>der Port ist keine Zahl von 1 bis 65535</translation>
    </message>
    <message>
        <source>the called title is not of 1 to 16 characters of ASCII without a backslash</source>
        <translation>der gerufene AE-Titel hat nicht 1 bis 16 ASCII-Zeichen ohne umgekehrten Schrägstrich</translation>
    </message>
    <message>
        <source>the calling title is not of 1 to 16 characters of ASCII without a backslash</source>
        <translation>der rufende AE-Titel hat nicht 1 bis 16 ASCII-Zeichen ohne umgekehrten Schrägstrich</translation>
    </message>
    <message>
        <source>the timeout is no number of seconds from 1 to 3600</source>
        <translation>die Zeitgrenze ist keine Zahl von 1 bis 3600 Sekunden</translation>
    </message>
    <message>
        <source>an encrypted connection needs the file of the certificate authority</source>
        <translation>eine verschlüsselte Verbindung braucht die Datei der Zertifizierungsstelle (CA)</translation>
    </message>
    <message>
        <source>a certificate needs its key, and a key its certificate</source>
        <translation>ein Zertifikat braucht seinen Schlüssel und ein Schlüssel sein Zertifikat</translation>
    </message>
    <message>
        <source>the reference ID holds *, ?, a backslash or a control character, which a server does not search for</source>
        <translation>die Patienten-ID enthält *, ?, einen umgekehrten Schrägstrich oder ein Steuerzeichen, wonach ein Server nicht sucht</translation>
    </message>
    <message>
        <source>the reference ID holds characters that do not show</source>
        <translation>die Patienten-ID enthält Zeichen, die nicht sichtbar sind</translation>
    </message>
    <message>
        <source>the reference ID is longer than 64 bytes</source>
        <translation>die Patienten-ID ist länger als 64 Byte</translation>
    </message>
    <message>
        <source>the reference ID begins or ends with a blank, which a server does not keep</source>
        <translation>die Patienten-ID beginnt oder endet mit einem Leerzeichen, das ein Server nicht behält</translation>
    </message>
    <message>
        <source>the study is no UID, which has digits and dots</source>
        <translation>die Studie ist keine UID aus Ziffern und Punkten</translation>
    </message>
    <message>
        <source>a day is not in the calendar</source>
        <translation>ein Tag steht nicht im Kalender</translation>
    </message>
    <message>
        <source>the last day is before the first</source>
        <translation>der letzte Tag liegt vor dem ersten</translation>
    </message>
    <message>
        <source>neither a patient nor a study is named</source>
        <translation>weder eine Patientin noch eine Studie ist genannt</translation>
    </message>
    <message>
        <source>refuses the connection: its title is not &quot;%1&quot;</source>
        <translation>lehnt die Verbindung ab: Sein AE-Titel ist nicht „%1“</translation>
    </message>
    <message>
        <source>refuses the connection: the title &quot;%1&quot; of this program must be entered there first</source>
        <translation>lehnt die Verbindung ab: Der AE-Titel „%1“ dieses Programms muss dort erst eingetragen werden</translation>
    </message>
    <message>
        <source>refuses the connection: it is busy; try again later</source>
        <translation>lehnt die Verbindung ab: Er ist ausgelastet; versuchen Sie es später noch einmal</translation>
    </message>
    <message>
        <source>refuses the connection, and does not say why</source>
        <translation>lehnt die Verbindung ab und sagt nicht, warum</translation>
    </message>
    <message>
        <source>DCMTK does not find its data dictionary (DCMDICTPATH), without which it does not use the network</source>
        <translation>DCMTK findet sein Datenwörterbuch (DCMDICTPATH) nicht, ohne das es das Netz nicht benutzt</translation>
    </message>
    <message>
        <source>shows a certificate that is not accepted: %1</source>
        <translation>zeigt ein Zertifikat, das nicht akzeptiert wird: %1</translation>
    </message>
    <message>
        <source>does not make an encrypted connection: %1</source>
        <translation>stellt keine verschlüsselte Verbindung her: %1</translation>
    </message>
    <message>
        <source>answers what is not DICOM</source>
        <translation>antwortet, aber nicht in DICOM</translation>
    </message>
    <message>
        <source>cannot be reached within %1 s</source>
        <translation>ist nicht innerhalb von %1 s erreichbar</translation>
    </message>
    <message>
        <source>cannot be reached: %1</source>
        <translation>ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>gave no complete answer within %1 s</source>
        <translation>hat innerhalb von %1 s nicht vollständig geantwortet</translation>
    </message>
    <message>
        <source>broke off the connection without saying why</source>
        <translation>hat die Verbindung abgebrochen, ohne zu sagen, warum</translation>
    </message>
    <message>
        <source>ended the connection before its answer was complete</source>
        <translation>hat die Verbindung beendet, bevor seine Antwort vollständig war</translation>
    </message>
    <message>
        <source>ended the connection without an answer; the connection may have to be encrypted, or must not be</source>
        <translation>hat die Verbindung ohne Antwort beendet; vielleicht muss sie verschlüsselt sein oder darf es nicht</translation>
    </message>
    <message>
        <source>gave an answer that is not understood: %1</source>
        <translation>hat eine Antwort gegeben, die nicht verstanden wird: %1</translation>
    </message>
    <message>
        <source>gave an answer in a context that was not agreed on</source>
        <translation>hat in einem Kontext geantwortet, der nicht vereinbart war</translation>
    </message>
    <message>
        <source>does not hand out reports (C-GET of the study root)</source>
        <translation>gibt keine Berichte heraus (C-GET, Study Root)</translation>
    </message>
    <message>
        <source>gave an answer that was not asked for</source>
        <translation>hat eine Antwort gegeben, nach der nicht gefragt war</translation>
    </message>
    <message>
        <source>was not given: %1</source>
        <translation>wurde nicht herausgegeben: %1</translation>
    </message>
    <message>
        <source>cannot be asked: %1</source>
        <translation>kann nicht gefragt werden: %1</translation>
    </message>
    <message>
        <source>was not taken: it is longer than any report</source>
        <translation>wurde nicht übernommen: Er ist länger als jeder Bericht</translation>
    </message>
    <message>
        <source>was not taken: it is another kind of report</source>
        <translation>wurde nicht übernommen: Es ist eine andere Art Bericht</translation>
    </message>
    <message>
        <source>was not taken: it %1</source>
        <extracomment>%1 is what is wrong with it: &quot;is cut off: it ends before its end&quot;.</extracomment>
        <translation>wurde nicht übernommen: Er %1</translation>
    </message>
    <message>
        <source>was not taken: the server gave another report than it was asked for</source>
        <translation>wurde nicht übernommen: Der Server gab einen anderen Bericht als den verlangten</translation>
    </message>
    <message>
        <source>was not taken: it is of &quot;%1&quot;, although the server lists it under &quot;%2&quot;</source>
        <translation>wurde nicht übernommen: Er gehört zu „%1“, obwohl der Server ihn unter „%2“ führt</translation>
    </message>
    <message>
        <source>the other reports were not fetched: these are as many bytes as are taken at once</source>
        <translation>die anderen Berichte wurden nicht abgeholt: Diese sind so viele Bytes, wie auf einmal übernommen werden</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>%1 is the UID of a report, %2 what became of it: &quot;was not taken: it is another kind of report&quot;.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>is longer than any report</source>
        <translation>ist länger als jeder Bericht</translation>
    </message>
    <message>
        <source>is no report that is sent: its kind is neither Comprehensive SR nor Enhanced SR</source>
        <translation>ist kein Bericht, der gesendet wird: Seine Art ist weder Comprehensive SR noch Enhanced SR</translation>
    </message>
    <message>
        <source>has no proper SOP Instance UID, and is not sent</source>
        <translation>hat keine gültige SOP Instance UID und wird nicht gesendet</translation>
    </message>
    <message>
        <source>is not taken: the server takes no reports (%1)</source>
        <translation>wird nicht angenommen: Der Server nimmt keine Berichte an (%1)</translation>
    </message>
    <message>
        <source>is kept by the server, but perhaps not as it was: %1</source>
        <translation>wird vom Server behalten, aber vielleicht nicht unverändert: %1</translation>
    </message>
    <message>
        <source>is not taken by the server: %1</source>
        <translation>wird vom Server nicht angenommen: %1</translation>
    </message>
    <message>
        <source>does not answer to C-ECHO</source>
        <translation>antwortet nicht auf C-ECHO</translation>
    </message>
    <message>
        <source>answers with more than there is memory for</source>
        <translation>antwortet mit mehr, als in den Speicher passt</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>der Arbeitsspeicher reicht nicht aus</translation>
    </message>
    <message>
        <source>there is no IPv4 address of this host: %1</source>
        <translation>es gibt keine IPv4-Adresse dieses Hosts: %1</translation>
    </message>
    <message>
        <source>the address of this host was not found in time</source>
        <translation>die Adresse dieses Hosts wurde nicht rechtzeitig gefunden</translation>
    </message>
    <message>
        <source>does not search for reports (C-FIND of the study root)</source>
        <translation>sucht nicht nach Berichten (C-FIND, Study Root)</translation>
    </message>
    <message>
        <source>at most %1 reports are taken, and there are others; name a patient, a study or fewer days</source>
        <translation>höchstens %1 Berichte werden genommen, und es gibt weitere; nennen Sie eine Patientin, eine Studie oder weniger Tage</translation>
    </message>
    <message>
        <source>%1 answer was left out: it is of another patient, study or day, or names no report by proper UIDs</source>
        <translation>%1 Antwort wurde weggelassen: Sie betrifft eine andere Patientin oder Studie oder einen anderen Tag oder nennt keinen Bericht mit gültigen UIDs</translation>
    </message>
    <message>
        <source>%1 answers were left out: they are of another patient, study or day, or name no report by proper UIDs</source>
        <translation>%1 Antworten wurden weggelassen: Sie betreffen eine andere Patientin oder Studie oder einen anderen Tag oder nennen keinen Bericht mit gültigen UIDs</translation>
    </message>
    <message>
        <source>does not search: %1</source>
        <translation>sucht nicht: %1</translation>
    </message>
    <message>
        <source>encrypted connections are not there: OpenSSL does not begin</source>
        <translation>verschlüsselte Verbindungen sind nicht verfügbar: OpenSSL startet nicht</translation>
    </message>
    <message>
        <source>encrypted connections are not there: OpenSSL has none of their ciphers</source>
        <translation>verschlüsselte Verbindungen sind nicht verfügbar: OpenSSL hat keine ihrer Chiffren</translation>
    </message>
    <message>
        <source>%1 holds no certificate in PEM that can be read</source>
        <translation>%1 enthält kein lesbares Zertifikat in PEM</translation>
    </message>
    <message>
        <source>%1 holds no key in PEM that can be read without a password</source>
        <translation>%1 enthält keinen Schlüssel in PEM, der ohne Passwort lesbar ist</translation>
    </message>
    <message>
        <source>%1 is not the key of %2</source>
        <translation>%1 ist nicht der Schlüssel von %2</translation>
    </message>
    <message>
        <source>the name of the host cannot be looked for in a certificate</source>
        <translation>der Name des Hosts kann in einem Zertifikat nicht gesucht werden</translation>
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
        <source>AE &amp;title of the server:</source>
        <translation>AE-&amp;Titel des Servers:</translation>
    </message>
    <message>
        <source>AE title of this prog&amp;ram:</source>
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
        <source>Without a host, Nascor contacts no server.</source>
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
        <translation>Gravida</translation>
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
        <translation>Gewichte werden erst über 100 g angegeben.</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Messwerte</translation>
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
        <source>expected</source>
        <translation>erwartet</translation>
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
        <translation>Seit der vorigen Untersuchung, bei der diese Größe gemessen wurde: Änderung pro Woche, nach dem Wachstumsstandard erwartete Änderung und z-Änderung.</translation>
    </message>
    <message>
        <source>Lengths: z and centile by %1. Weight: by the formula %2, z and centile by %3.</source>
        <translation>Maße: z und Perzentile nach %1. Gewicht: nach der Formel %2, z und Perzentile nach %3.</translation>
    </message>
    <message>
        <source>%1/week</source>
        <translation>%1/Woche</translation>
    </message>
    <message>
        <source>Lines: centiles 3, 10, 50, 90 and 97; lengths by %1, weight by %2. Weeks of menstrual age below.</source>
        <translation>Linien: Perzentilen 3, 10, 50, 90 und 97; Maße nach %1, Gewicht nach %2. Unten das Gestationsalter in Wochen.</translation>
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
    <message>
        <source>There is no program that shows PDF files. Please install one, or open the page for browsers that lies beside %1.</source>
        <translation>Es gibt kein Programm, das PDF-Dateien anzeigt. Bitte installieren Sie eines, oder öffnen Sie die Seite für Browser neben %1.</translation>
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
    <name>Writing</name>
    <message>
        <source>January</source>
        <extracomment>A month as it stands in a day, &quot;4 January 2027&quot;.</extracomment>
        <translation>Januar</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1. %2 %3</translation>
    </message>
    <message>
        <source>.</source>
        <extracomment>The decimal sign: a point or a comma.</extracomment>
        <translation>,</translation>
    </message>
    <message>
        <source>1</source>
        <extracomment>The first day of a month, as it stands in &quot;1 March 2027&quot;.</extracomment>
        <translation>1</translation>
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
