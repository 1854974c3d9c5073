<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Fetal Weight Formula: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days to Go:	%ld</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nascor Standard: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menstrual Age (Weeks)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Biparietal Diameter (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head Circ (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abdo Circ (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Femur Length (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Estimated Fetal Weight (g)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>g</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier:	</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gravida:	</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetus:	</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date:	</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD:	</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menstrual Age:	</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exam Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menstrual Age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BPD (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HC (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FL (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EFW (g)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z-score</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>beyond the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no centiles of this measure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centiles: %1, which fits weights by another formula alone: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centiles: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AdjustDelivery</name>
    <message>
        <source>Adjust Delivery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Estimated date of delivery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Days from the EDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delivery planned on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The day on which delivery is planned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Age at that date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menstrual age at the planned delivery, in weeks and days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days from the EDD to the planned delivery, %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No font is installed, so no text could be shown. Please install one, such as DejaVu Sans.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Check</name>
    <message>
        <source>its byte order is big</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the old place of the gravidity holds &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the old place of the gravidity holds nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 list is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lists are missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 record stands in several places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 records stand in several places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 byte follows the patient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes follow the patient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has version %2, older than %3</source>
        <extracomment>%1 is the name of a class of a document&apos;s file, as in the next one.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has version %2, newer than %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the identifier is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the EDD is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the EDD is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the EDD, %1 s from 2001-01-01, is outside the years 1 to 9999</source>
        <extracomment>2001-01-01 is the day from which seconds count.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the gravidity %1 is negative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the growth standard %1 is unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the weight formula %1 is unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the CRL formula %1 is unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the planned delivery, %1 days from 40 weeks, is outside %2 to %3 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number of fetuses, %1, is outside %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the note is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the date is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the date is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the date, %1 s from 2001-01-01, is outside the years 1 to 9999</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is earlier than the one before it</source>
        <extracomment>&quot;It&quot; is an examination.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has %1 fetus, the patient %2</source>
        <extracomment>&quot;It&quot; is an examination; %2 are the fetuses of the patient.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has %1 fetuses, the patient %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>examination %1, fetus %2: %3</source>
        <extracomment>%3 is a sentence about that fetus of that examination, which begins with a small letter.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>examination %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandHelp</name>
    <message>
        <source>growth standards by number or name, intergrowth-2014, with commas between; without it all four</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one weight, by number or name, instead of all eight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only these columns, of the input or computed, in this order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is computed with one decimal, z-scores with three</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weights, means and z-scores beside the columns of a CSV table on standard input.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a document; - is standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one JSON object a document, on a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>say ok where there is nothing to say</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads each document whole and names every oddity in it, one a line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An oddity is accepted everywhere else: a count that disagrees, a date that is missing, a length beyond
what can be typed, an old class version. It leaves the exit status at 0; a file that cannot be read
makes it 1. Keys of the JSON: file, and oddities, an array of objects with kind, examination, fetus,
text.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obstetric ultrasound biometry for shells and scripts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths are in millimetres, weights in grams, ages in weeks after the last menstrual period.
A FILE or a value of - is standard input. No question is ever asked.
Exit status: 0 all well, 1 some input was bad, 2 wrong usage.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this text; help COMMAND explains one command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this text; behind a command, that command&apos;s help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what follows is no option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one object a document, examination and fetus, on a line: unrounded numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each length and weight by every reference and formula, ratios, twins, growth.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examinations and fetuses count from 0. Difference is that from the weight by the document&apos;s formula.
Age is that of which the value is the median of the reference; outside its weeks a dash. Discordance
is the share, of the heaviest fetus, by which the lightest weighs less. Growth is that since the
examination before which has the length; the change of z is by the document&apos;s standard. Centiles of
weights are those of references; the error of a formula is no population.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each document as JSON: every field that it holds, one object on a line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys: maternalIDString, edd, eddISO, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (weeks), crlStandard, gravida, and examinations, an array of objects with note,
examDate, examDateISO and measurements, an array of objects with bpd, hc, ac and fl (mm; 0 = not
measured). Dates are seconds since 2001-01-01 UTC; beside each stands its local time as ISO text.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a document as JSON; - is standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>where to write it, as a whole or not at all; without it, or -, to standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A document from JSON.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads what json prints: maternalIDString, edd, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (weeks), crlStandard, gravida, and examinations, an array of objects with
note, examDate and measurements, an array of objects with bpd, hc, ac and fl (mm). Every key may be
missing; an unknown one is an error. A date is a number of
seconds since 2001-01-01 UTC, an ISO date (2027-04-10 is local midnight), an ISO date and time, or
null. Lengths are stored in single precision, whole numbers in 32 bits.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>any typed stream; - is standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one JSON object a stream, on a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All that a typed stream holds, as a tree; of any program, not only documents.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each line begins with the byte at which the value begins. Keys of the JSON: byte_order,
system_version, and groups, an array of objects with types and values; docs/json.md lists the values.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder for the files, which is made when it is missing; - is standard output, for one file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is written; without this option PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all, or first, last, numbers from 0 to 6 and names, with commas between</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one fetus, the first is 1; without this option all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>centile lines of a reference of &quot;nascor-cli reference&quot; over the charts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a line from mark to mark of each fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>leave files that are there as they are, and say so</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>leave off what stands under each page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FHIR as one resource a line, of all documents, on standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the pages of each document, or its numbers for other programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names of pages: %1 (0 to %2), in letters of any size.
As PDF all pages of a document are one file; else each is a file of its own.
Files of the same names are replaced, but with --no-clobber.
sr: a DICOM structured report (Comprehensive SR) for each examination, &quot;NAME 1.dcm&quot;, ...
fhir: a FHIR R4 bundle for each document, NAME.json; with --ndjson lines on standard output.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>biparietal diameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>head circumference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>abdominal circumference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>femur length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an array of eight numbers, by identifier of the formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The estimated weight of one fetus by each of the eight formulas, in grams.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A length that is not given is 0, which means not measured. Where a formula needs it, the weight is
a dash (0 in JSON). An improbable length is named on standard error.
The formulas, by identifier: 0 Hadlock 1 (HC/AC/FL), 1 Hadlock 2 (AC/FL),
2 Hadlock 3 (BPD/AC/FL), 3 Hadlock 4 (BPD/HC/AC/FL), 4 Campbell (AC), 5 Combs (HC/AC/FL),
6 Ott (HC/AC/FL), 7 Shepard (BPD/AC).
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>crown-rump lengths; - reads lengths from standard input, one a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an array of four numbers a length, each on a line of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The menstrual age at each crown-rump length by each of the four formulas, in weeks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One line a length, columns separated by tabs. Outside the range of a formula the age is a dash (0 in
JSON). A line of standard input that is no number is answered by nan (null in JSON).
A length that no formula dates is named on standard error, of standard input the first one.
The formulas, by identifier: 0 Hadlock (1992), 2 to 120 mm; 1 Nelson (1981), 6.7 to 82.4 mm
(no second source has it; 9 days more than Hadlock (1992) at 7 mm, 3 days more at 20 mm);
2 Robinson (1975), 7 to 79.6 mm; 3 Westerway (2000), 2 to 87 mm.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a DICOM report, a FHIR bundle of this program, or a CSV table of examinations; - is standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>store what was found in a new document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>add what was found to a document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reports are of the patient of this reference ID, whatever they say</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the fetus that the reports call ID is fetus N of the document; once for each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report&apos;s EDD takes the place of the document&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What reports of ultrasound machines and tables hold, as JSON; stored only on demand.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a JSON object a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the documents, *.nascor in it and in the folders in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the index, made where there is none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the counts as a JSON object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps what the documents of a folder say in a database, for due and search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only documents that are new or have changed are read; those that are gone leave the index. A run that
is ended in the middle, however that happens, leaves an index that the next run completes.
The file is an SQLite database that its owner alone can read: it holds reference IDs, notes and names
of files. Its tables documents and rows may be read by other programs.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the first day, such as 2027-04-10; without it today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>how many days behind that; without it 28</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only with an AC, the last of one fetus, whose z-score is below this</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who is due, from an index: by EDD, with the last examination and the lowest AC.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC z is the lowest, over the fetuses, of the z-score of the last AC that was measured, by the growth
standard of the document. It lists what the index held when it was last brought up to date.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>three characters or more of a reference ID or of a file&apos;s path; large or small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not more than so many; without it 100</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents by a part of their reference ID or name, from an index.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one digit behind the point, in JSON too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a recovery file, as the list names it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>where to write the document, as a whole or not at all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved changes that the application kept: a list, or one of them as a document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list has one JSON object a line: recovery (the file), document (the path of the document&apos;s own
file; null when it was never saved), patient, saved (seconds since 2001-01-01 UTC), fetuses,
examinations, and differs, the keys of json that the saved document holds otherwise. It also names
what running applications keep. A recovery file is a document: json, report and check read it. It
stays where it is until the application has offered it.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a reference, by its name; without it all are listed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw that the reference has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the age in weeks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a length in mm, or a weight in g: its z and centile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a centile between 0 and 100: its value and z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a z-score: its value and centile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one object a line; what a reference cannot say is null</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where a value lies in a published population; which populations there are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of W, V, P and Z may be -: then numbers are read from standard input, one a line, and each is
answered. Nothing is extrapolated: outside the weeks of a reference all numbers are missing, and
the answer says which weeks there are. who-2017 is made of curves: it has no z, and knows no more
than &lt;1 and &gt;99 beyond the outermost. A weight&apos;s centile is that of the reference, never of the
error of a formula.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one JSON object a document, on a line: unrounded numbers, the texts beside them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tabular report of each document: every fetus, every examination, the projection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date and Menstrual Age are those of the last examination. Days are those of the local time zone. The
projection is there when the last examination lies from 30 weeks to the planned delivery. Keys of
the JSON, among others: file, maternalIDString, edd, fetuses, in each examinations (age in weeks;
bpd, hc, ac, fl in mm; efw in g) and projected; docs/json.md lists them all.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a document, or a folder with documents in it; - is a document on standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more names of files and folders, one a line; - is standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the names of --files-from end with NUL instead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the documents in a tar archive, plain, gzip or zstd; - is standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only these columns, in this order, with commas between</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one decimal, for z-scores three</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>comma-separated values, or a JSON object a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>leave off the line with the names of the columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reference ID, note and names of files too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the column file the place of the document, or its name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>days to the EDD in place of the dates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the zone whose days are meant, such as Europe/Paris</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stop at the first document that cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>work on so many documents at a time; the output is the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A row for each fetus at each examination: age, lengths, weights, z-scores; for statistics.</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one object a group, on a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Works examples with known results out again: formulas, standards, references, dating.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line a group: its name, how many values it has, how many of them differ; the last line is the total.
The values are printed ones, held against the program at their own precision, and others that were
worked out apart from the program. The status is 1 when one differs.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is wanted of the server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a DICOM report to send; - is standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server: a name or an IPv4 address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its application entity title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>that of this program; without this option NASCOR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>speak encrypted, to a server whose certificate comes from this authority (PEM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the certificate of this program, for servers that ask for one (PEM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the key of that certificate, without a password (PEM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for the whole of one connection, 1 to 3600; without this option 30</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>find, fetch: the reports of this reference ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>find, fetch: those of this study</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>find, fetch: of studies of this day (2026-11-23) and later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>find, fetch: of studies of this day and earlier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetch: the folder for the files, which is made when it is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetches reports from a DICOM server, and sends reports to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>echo asks whether the server answers. find lists its reports, an object a line: patientID, studyDate,
study, series, instance. fetch writes them as INSTANCE.dcm, never over a file that is there, and needs a
patient or a study. send sends files that &quot;export --format sr&quot; or a machine wrote.
No other command uses the network, and this one speaks to the server of its options alone.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Growth standards (N):
%1
Weight formulas (K):
%2
The number or the name, in letters of any size.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>growth standard, see below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw; without it the four lengths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>weight formula, see below; needed for efw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rows [week, mean, sd]; without --measurement an object of such rows by measurement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A reference table: mean and standard deviation at each week, in mm or g.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
The mean weight is that of a fetus whose four lengths are the means. Its standard deviation is the
error of the formula, not the spread of a population; 0 where none is published.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the mean at W weeks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the standard deviation at W weeks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the age in weeks of which MM (grams for efw) is the mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the same number as JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One look-up in a reference table, between whole weeks by linear interpolation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value may be -: then values are read from standard input, one a line, and answered one a line; a
line that is no number is answered by nan (null in JSON). Nothing is extrapolated: beyond the table
its first or last week counts, and standard error says so (of standard input once).

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the paper of a PDF; without this option A4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>who examined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a line at the head of each fetus; once for each line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A summary for the records: a page or two a fetus, typeset, or as HTML.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD, measurements with z and centile by the growth standard, weights, growth, small charts, notes,
and the sources of all that was used. Each document is one file, &quot;NAME - Summary.pdf&quot;.
Files of the same names are replaced, but with --no-clobber. SOURCE_DATE_EPOCH, in seconds since
1970, takes the place of the present moment.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>growth standards by number or name, intergrowth-2014, with commas between; all for all four</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no column %1: never measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--columns: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a database of another program</source>
        <extracomment>Behind the name of a file, as are the next ones.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was made by another version of this program: remove it, and make it anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is the index of %1, not of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no index of this program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>help explains one command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a document is no text for a terminal; give --out FILE or send standard output to a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>written, but it may not outlast a power cut: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>holds no patient</source>
        <extracomment>Behind the name of a file.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--fetus: expected all or a number from 1 to 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--out is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--format: expected pdf, png, svg, sr or fhir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--ndjson is for --format fhir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--pages: expected all, first, last, a number from 0 to %1 or a name, but &quot;%2&quot; stands here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--out - takes the pages of one document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pages are no text for a terminal; give --out DIR or send standard output to a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--format: expected sr or fhir; pages are painted by the application, which is not built here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a length is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no formula dates %1 mm; they reach from %2 to %3 mm</source>
        <extracomment>Crown-rump lengths.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--fetus: expected ID=N with a number from 1 to 5, but &quot;%1&quot; stands here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--patient takes a reference ID, and an empty one is none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--patient takes a reference ID of UTF-8 text in one line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--fetus: &quot;%1&quot; is given two numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is of patient &quot;%1&quot;, others are of &quot;%2&quot;; nothing is stored. Please import those of each patient alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is there already, and stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--out and --into are two ways to store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the same holds for %1 more of the input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--db is missing: the file of the index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a day such as 2027-04-10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>three characters or more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are more than %1: a longer text, or --limit, shows them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>longer than 1 GiB, which no document is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: expected a decimal number, but &quot;%2&quot; stands here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected bpd, hc, ac, fl or efw as the measurement, but &quot;%1&quot; was given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: expected %2, but &quot;%3&quot; was given</source>
        <extracomment>%1 is an option or an operand, %2 what it takes, %3 what was typed.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a decimal number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reference ID has a character that a DICOM report cannot hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reference ID is longer than the 64 characters of a DICOM report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 is for pages, not for --format %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--ndjson writes to standard output, and takes no --out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--out is missing, or no folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds no examination, and nothing is written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--out needs the recovery file to write; recover alone lists them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>give --out DOCUMENT, where to write the document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number above 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number between 0 and 100, both excluded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 tells nothing of %2; it has %3</source>
        <extracomment>%1 is a reference, %2 a measurement, %3 a list of measurements.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--week is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--value, --centile and --z exclude each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--week and --%1 cannot both be -</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected %1, but %2 was given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAME is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MEASURE is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: fmf-2018 is not offered, because its formula was not held against its printed table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--standard: %1 has no mean and SD of the four lengths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--standard: &quot;%1&quot; stands there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--columns: a name is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--columns: &quot;%1&quot; stands there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--columns: there is no column &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--columns: %1 needs --identify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--columns: %1 is a date, which --relative-dates leaves out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--columns: %1 needs --relative-dates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--file: expected number or path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--format: expected csv or jsonl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number above 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--null needs --files-from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--tar stands alone, without PATH and --files-from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard input (-) can be read once only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a PATH, --files-from or --tar is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--time-zone: this system knows no zone &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 values differ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1: expected a day like 2026-11-23, but &quot;%2&quot; stands here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--patient: the reference ID is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--study: the UID is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has no such report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not sent, because the server did not answer before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not sent: %1 %2</source>
        <extracomment>%1 is the address of a server, %2 what is wrong with it: &quot;... is not sent: host:104 does not answer&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 is not for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes no FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetch needs --patient or --study</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--out takes a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected echo, find, fetch or send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not contacted: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the connection is not encrypted: what goes over it can be read on its way; see --ca</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>efw needs --formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lies beyond the table, whose first week, %2, counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lies beyond the table, whose last week, %2, counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--mean, --sd and --gestation exclude each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of --mean, --sd and --gestation is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <extracomment>%1 is a sentence, %2 what may have been meant.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH: expected whole seconds since 1970</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--paper: expected a4 or letter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be put on paper: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--format: expected pdf or html</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--out - takes the summary of one document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a PDF is no text for a terminal; give --out DIR or send standard output to a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no such fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or a whole number from 0 to %2</source>
        <extracomment>%1 is a list of names.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: expected one of %2, but &quot;%3&quot; was given</source>
        <extracomment>%1 is an option or an operand, %2 a list of names.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 values differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can be given once, and stands there %2 times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; the application, which is installed apart, paints the pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, by --patient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a decimal number with a point, such as 61.2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--out: expected a folder, but &quot;%1&quot; is named like a file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>BPD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EFW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The age is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mean of the reference at this age, in mm. A reference that has curves alone has none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One standard deviation at this age, in mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Median</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Half of the population lies below it, in mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard deviations from the mean.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many of 100 lie below the value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The age of which the value is the median.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>g</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From the weight by the formula in force, in g.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The centile in this population of weights.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From one length alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ratios</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By the formula in force, in g.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discordance (%)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How much less this fetus weighs than the heaviest.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Growth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Since the last examination that has it: mm a week, or g a week.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By how much the mean of the growth standard grows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change of z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By the growth standard in force.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export CSV...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table cannot be exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where This Comes From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has %2 to %3 weeks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fits weights by another formula alone: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no place for this value.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CorvelDocument</name>
    <message>
        <source>Modify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A field holds a text that is not permitted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was entered here besides reference ID and gravidity will be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This patient has a document already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page was not exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please make room in this folder, or choose another in Export Settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This program was built without painting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document was not printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is open in another window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document was saved, but its file cannot hold all of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document was not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed the file of this document. Do you want to replace what it holds now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To keep both, cancel and save this document under another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save the changes of this document?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These documents cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A field holds a text that is not permitted. It will not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a Nascor document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to go back to the document as it was last saved?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All changes since then will be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Machine:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Since:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Process:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is open elsewhere.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read-only, it can be saved only under another name. A copy is a new document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing tells from here whether that machine still works on it. Open it anyway only if you know that it does not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This document is open elsewhere. How do you want to open it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document was written, but the system does not vouch that it outlasts a power cut. Please save it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file of this document is gone. Do you want to write it again?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program or another user has removed, moved or renamed it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file of this document cannot be read. Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed the file of this document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed the file of this document. Revert reads it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file of this document is gone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file of this document cannot be read:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Counting</name>
    <message>
        <source>1</source>
        <extracomment>The counts that go with the form for one, with blanks between: &quot;1&quot; in English and German (&quot;1 byte&quot;, &quot;0 bytes&quot;), &quot;0 1&quot; in French.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMenu</name>
    <message>
        <source>Export Data...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table for spreadsheets (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data were not exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FHIR bundle for health records (*.fhir.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DICOM report of this examination (*.dcm)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatingDialogs</name>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for example %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps the EDD from being set. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crown-rump length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm (%1–%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>! beyond 2 SD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>! not measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than 2 standard deviations from the mean at the average. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not measured. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentWindow</name>
    <message>
        <source>%1 (read-only)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EDDFromCRL</name>
    <message>
        <source>EDD from CRL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The day of the scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scan date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crown-rump length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crown-&amp;rump length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The formula in force, chosen in the menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The examination on show</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EDDFromLMP</name>
    <message>
        <source>EDD from LMP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First day of the last menstrual period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Last menstrual period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the cycle, in whole days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ycle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the luteal phase, in whole days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Luteal &amp;phase</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EDDFromMeasurements</name>
    <message>
        <source>EDD from Measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The examination and the fetus on show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Biparietal diameter: counts in the average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;BPD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Biparietal diameter: menstrual age of which it is the mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head circumference: counts in the average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;HC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head circumference: menstrual age of which it is the mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abdominal circumference: counts in the average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;AC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abdominal circumference: menstrual age of which it is the mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Femur length: counts in the average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;FL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Femur length: menstrual age of which it is the mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average of the ages that are checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Late in pregnancy, dating by size reads growth as age: a fetus that is small or large is taken for a younger or an older one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Evidence</name>
    <message>
        <source>week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>centile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>planned week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>median</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BPD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EFW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CRL</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldBinding</name>
    <message>
        <source>no record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be entered here: the document holds no record for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Belongs to no fetus: the fetus was removed. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No more text fits here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This text is too long to be shown whole. It is kept whole, and cannot be changed here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilePanels</name>
    <message>
        <source>%1: The file&apos;s name is not UTF-8. Please rename the file and open it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nascor documents (*.%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder for Exported Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reports (*.dcm *.json)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was changed meanwhile</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>BPD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CRL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a result of the examination is not in the bundle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an observation of status &quot;%1&quot; is passed over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an observation of another fetus stands in the panel of fetus %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is longer than any FHIR bundle that is read (16 MiB)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is nested deeper than any FHIR bundle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no JSON that can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no FHIR bundle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a FHIR bundle in which two patients have one identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a FHIR bundle without an examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetus %1: %2</source>
        <extracomment>%1 is the ID of a fetus, %2 one of its lengths or a sentence about it.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>flagged</source>
        <extracomment>This word and the next ones say of a value how it came about: &quot;a flagged value is taken before a plain one&quot;, &quot;fetus 1: BPD is calculated, not measured&quot;. A flagged one was chosen at the machine.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>calculated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>estimated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>plain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gravida</source>
        <extracomment>Stands in &quot;the report gives several numbers for %1; the first is taken&quot;, as the next one.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>numberOfFetuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the date of the examination, &quot;%1&quot;, is no day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no length is taken from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a centile of the machine&apos;s weight is never taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no measure that a document stores (%1)</source>
        <extracomment>%1 is the section of the report that it stands in.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report said %1 before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report gives several numbers for %1; the first is taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report holds no value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is neither g nor kg</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is neither mm nor cm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no finite number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not above 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its derivation is &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no day</source>
        <extracomment>%1 is what a date of the report is called there, %2 what stands in its place.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, by the average ultrasound age, is never taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the last period, %1, makes no EDD by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report holds two EDDs, %1 and %2; the first is taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is another day than the EDD that is taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, by the last period, is another day than the EDD that is taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another weight is compared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has a private code, and another value the standard one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stands under a private code of the machine&apos;s maker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a %1 value is taken before a %2 one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the value that the report flags is %2, and is not taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2, not measured, though the report flags it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2, not measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: several %2 values, %3 mm; their mean is taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report&apos;s weight, %1 g, is not that of its lengths, which is %2 g by %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a structured report of a kind that is not read (neither Comprehensive nor Enhanced)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no structured report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a report whose content is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no obstetric ultrasound report (its title is &quot;%1&quot;)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report says that there are %1 fetuses, and holds %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>examination %1, fetus %2: %3 %4 is no length, and left out</source>
        <extracomment>%3 is one of BPD, HC, AC and FL, %4 what stands in its place.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document is of patient &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report&apos;s reference ID has characters that cannot be read; nothing is stored unless the ID is given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report names no patient; nothing is stored unless the ID is given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document names no patient; nothing is stored unless the ID is given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report is of patient &quot;%1&quot;, the document of &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the report may be any of the document&apos;s; nothing is stored unless its number is given</source>
        <extracomment>%1 is a fetus: &quot;fetus &quot;A&quot;&quot;, &quot;a fetus without an ID&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be fetus %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two fetuses of the report cannot both be fetus %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetus &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a fetus without an ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetus %1: the CRL is not stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetus %1: %2 %3 mm is beyond what a document takes</source>
        <extracomment>%2 is one of BPD, HC, AC and FL, as in the next one.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetus %1: %2 stays %3 mm; the report says %4 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 more</source>
        <extracomment>Stands behind the IDs of some patients, with commas between.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one without an ID</source>
        <extracomment>Of several patients.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>holds examinations of several patients (%1), and a document is of one; nothing is stored. Please import a file for each patient</source>
        <extracomment>%1 are the IDs of patients.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report does not say when the examination was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a document takes at most %1 fetuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the EDD stays %1; the report says %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the EDD stays; the report says %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the gravidity stays %1; the report says %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number of fetuses stays %1; the report says %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the report holds no length that is stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the columns fetus, which counts from 0, and fetus_number, from 1, cannot both stand in the header</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the cell is empty; write the day of the examination like 2026-11-13</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is a column of a table, %2 what is wrong with a cell of it.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text is no UTF-8; save the table as UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no day; write it like 2027-04-10, or leave the cell empty</source>
        <extracomment>%1 is what stands there, in quotation marks, in this one and in others of the kind.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no day; write it like 2026-11-13</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no whole number from %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no whole number from %2 on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the cell is empty; number the fetuses from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is beyond what a document takes, 0 to %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <extracomment>%2 is what is wrong with the row of a table that begins at line %1.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what stands behind line %1 was not looked at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing of this table is taken until every row of it fits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a table without an examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a note is not taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>edd: it is not that of line %1, and no reference_id tells the patients apart; write the ID into every row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reference_id: the cell is empty, that of line %1 is not; write the ID into every row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reference_id: the cell of line %1 is empty, this one is not; write the ID into every row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the row is of another file than that of line %1, and no reference_id tells the patients apart; write the rows with --identify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 has the same fetus at the same examination; leave one of the two rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 has a fetus of this examination too; number them from 1, in a column fetus_number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: line %2 says something else of the same examination; make them agree</source>
        <extracomment>%1 is a column of a table.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetus counts from 0, and no row of this examination has 0; where it counts from 1, call the column fetus_number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1: never measured</source>
        <extracomment>%1 to %3 are bpd, hc, ac or fl: &quot;there is no column bpd_mm or bpd: never measured&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1, %2_mm or %2: never measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1, %2_mm or %2, %3_mm or %3: never measured</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What becomes of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference ID of the report: %1. Of the document: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report is of &amp;this patient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values of the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Report of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the report is:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Improbable</name>
    <message>
        <source>%1 %2 mm is outside %3 to %4 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 mm is shorter than where any growth standard begins; lengths are in mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 mm is more than 4 SD below the mean of the growth standard at this age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 mm is more than 4 SD above the mean of the growth standard at this age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 mm is below nine tenths of pi times the BPD, %3 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 mm is improbable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its age, %1, is above 45 weeks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is %1 day before the last period</source>
        <extracomment>&quot;It&quot; is an examination.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is %1 days before the last period</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Modules</name>
    <message>
        <source>this program does not know where it lies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module %1 is not installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module %1 cannot be loaded: it is another module</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module %1 cannot be loaded: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&amp;Reference ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The patient&apos;s reference ID, any text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of pregnancies, this one included</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Gravidity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of pregnancies, this one included: a whole number, 0 or more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Estimated date of delivery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;DD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date of the examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Da&amp;te</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menstrual age at the examination, in weeks and days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fet&amp;us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Biparietal diameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;BPD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head circumference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H&amp;C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abdominal circumference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;AC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Femur length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note on this examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Patient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
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
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Rep&amp;ort as Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the report of the fetus on show, all examinations, for a spreadsheet or a letter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD from &amp;LMP...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD from &amp;CRL...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD from &amp;Measurements...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Adjust Delivery...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;References</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Nascor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BPD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld of %ld</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no examination to note this at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remember Recent Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm (%1–%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 to %3 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, for example %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The fetus on show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not permitted. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permitted: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Nascor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nascor %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright (c) 2026 The Nascor developers. MIT License.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linked with Qt %1 (GNU LGPL 3), the D-Bus library (AFL 2.1 or GNU GPL 2) and the GNU C++ library (GNU GPL 3 with the GCC Runtime Library Exception).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard deviations from the mean of the growth standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centile by the growth standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Estimated fetal weight, by the formula in force</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EFW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>! %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Growth chart of %1. Examination %2, %3. %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nascor opens files of this machine only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please save what the link leads to as a file here, and open that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ompare...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the Numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All %1 worked examples give the expected results.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 worked examples come out otherwise.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every formula, standard, reference, look-up and date was worked out again. Help &gt; References shows the examples of each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not rely on this installation. Please have it installed again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Check the Numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report &amp;Folder and Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;mport Report...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report F&amp;older...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translated by machine, not yet reviewed by a clinician.</source>
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
    <name>NCAppController</name>
    <message>
        <source>Standards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Estimated Fetal Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crown Rump Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Further References</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NCDocument</name>
    <message>
        <source>The gravidity %ld will be read as %ld. A file holds gravidities up to %ld.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD is already specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to modify the established EDD?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to remove this fetus?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld of %ld examinations shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, page %ld of %ld</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference ID:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gravidity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetus:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examination:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examinations:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gravidity is already specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to modify it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %ld of %ld</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ldw %ldd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CRL Standard: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to remove this examination?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Singleton</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Twin 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Twin 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triplet 1 of 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triplet 2 of 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triplet 3 of 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quad 1 of 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quad 2 of 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quad 3 of 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quad 4 of 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quin 1 of 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quin 2 of 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quin 3 of 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quin 4 of 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quin 5 of 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The EDD is empty now. This is no date: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The examination has no date now. This is no date: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The examination is before the last period.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The age is above 45 weeks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outside %ld to %ld mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shorter than any growth standard begins. Lengths are in mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than 4 SD below the growth standard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than 4 SD above the growth standard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too small for the BPD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The growth standard begins at %ld weeks, which count.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The growth standard ends at %ld weeks, which count.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>g</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>beyond the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examination %ld of %ld: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Age today:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An examination would be before the last period.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An examination would be above 45 weeks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same day as the current EDD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One day later than the current EDD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One day earlier than the current EDD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld days later than the current EDD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld days earlier than the current EDD.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No formula is chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The examination has no date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the crown-rump length.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The formula dates these lengths, in mm:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such cycle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The EDD would lie outside the calendar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths that will be removed with it: %ld.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last examination:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No lengths, so no marks. Type BPD, HC, AC or FL beside the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No BPD, so no marks. Type it beside the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No HC, so no marks. Type it beside the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No AC, so no marks. Type it beside the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No FL, so no marks. Type it beside the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No weight, so no marks. Type the lengths that the formula needs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No lengths. Type BPD, HC, AC or FL beside the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No examination. Patient &gt; Add Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No known growth standard, so no projection. Choose from Standards.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No known growth standard, so no curves. Choose from Standards.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No known weight formula, so no weights. Choose from Estimated Fetal Weight.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No EDD, so no ages. Patient &gt; EDD from ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No EDD, so no marks. Patient &gt; EDD from ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No date, so no ages. Type it beside the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No date, so no marks. Type it beside the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obstetric ultrasound biometry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An empty number of days counts as 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usually a cycle has 24 to 38 days, its luteal phase 11 to 17.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type whole days.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Growth Standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crown-Rump Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examination Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BPD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Planned Delivery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines join the marks of each fetus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no examination.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing here writes DICOM reports.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OutputMenu</name>
    <message>
        <source>Export Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export All Fetuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page Setup...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Preview...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting pages...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pages were exported to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pages were not exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please make room in this folder, or choose another in Export Settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asked for at the first export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF, for print and archive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG, a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SVG, a drawing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Patient, standards and date under each page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>No Centiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Marks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageFiles</name>
    <message>
        <source>holds no patient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no such fetus or page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it says %1 fetuses, which cannot be chosen from; the pages are those of the first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it could not be painted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its pages are several files, which standard output cannot take</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is there already, and stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder could not be made (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Printer</name>
    <message>
        <source>There is no printer. Please choose a file to print into in the print panel, or export the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please make room there or choose another file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page could not be painted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer %1 does not answer. Please look after it or choose another.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer refused the page.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>%ld of %ld</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld a second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld a minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld s left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld min left</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Reading</name>
    <message>
        <source>the header has none of the columns ga_weeks, bpd_mm, hc_mm, ac_mm and fl_mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the column %1 is one of those that are computed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no column of the input and none that is computed</source>
        <extracomment>%1 stands in quotation marks.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <extracomment>Two names of one column.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the row that begins here is longer than 4 MiB; a quotation mark may never close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a quotation mark that opens here never closes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text stands behind a closing quotation mark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the column %1 stands twice in the header</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the columns %1 and %2 are one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the header has %1 cells, this row %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 is no number</source>
        <extracomment>%1 is a column, %2 what stands in it, in quotation marks.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>longer than 256 MiB, which no document is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the tar archive ends before its end mark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a real</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the mark of something new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the end of an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the meaningless byte %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only %1 of its %2 are left</source>
        <extracomment>%2 is a count, such as &quot;8 bytes&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>label %1 is outside the %2 given so far</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>string %1 is outside the %2 given so far</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its length is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected %1, but %2</source>
        <extracomment>%1 is what was expected, such as &quot;an object&quot;, %2 a clause such as &quot;the file ends here&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stands here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file ends here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text of this stream is more than %1 times as long as the stream itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a typed stream of version 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the signature of a typed stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the version is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the system version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a group of values, or the end of an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a group of values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ends here</source>
        <extracomment>An object.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the types of a group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the type string %1 %2</source>
        <extracomment>%2 is what is wrong with it, such as &quot;ends inside an array&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its text is nil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a class name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a class version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 class records stand in a chain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a superclass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>objects, arrays and structures nest more than %1 deep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not fit that</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a string</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a C string</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an array of bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it takes at least %1, and %2 are left</source>
        <extracomment>%1 is a count, such as &quot;8 bytes&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a structure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the class of an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the end of %1</source>
        <extracomment>%1 is an object.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more values follow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>class %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C string %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>object %1 (of no class yet)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>object %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nests arrays and structures more than %1 deep</source>
        <extracomment>Behind &quot;the type string ...&quot;, as are the next ones.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has the unknown type code %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has an array without a count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ends inside an array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has an array without an element type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has an array that is not closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has an array whose elements take no bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has a structure without members</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has a structure that is not closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a selector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a shared string</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unsigned byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a truth value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a 16-bit integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unsigned 16-bit integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a 32-bit integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unsigned 32-bit integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a long integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unsigned long integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a 64-bit integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unsigned 64-bit integer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a 32-bit real</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a 64-bit real</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (type %2)</source>
        <extracomment>%1 is a type in words, such as &quot;an object&quot;, %2 as it is spelled.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a Nascor document (%1)</source>
        <extracomment>Behind the name of a file; %1 is the reason.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text or null</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a date (seconds since 2001-01-01 UTC, an ISO text) or null</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an ISO date or null</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number, &quot;nan&quot;, &quot;inf&quot; or &quot;-inf&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>binary data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of the keys %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>each key once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this one stands twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected JSON, but %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at line %1, column %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at the top: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at %1: %2</source>
        <extracomment>%1 is a place in a JSON text, such as /examinations/2/note.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number of at most 64 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is longer than 32 bits; the file holds the low 32, which are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is beyond single precision; the file holds %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this number is beyond 64 bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected JSON, but a zero byte stands here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a string of UTF-8 text, but its bytes are not UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a string of UTF-8 text, but its bytes are missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would contain itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a document of a plausible size, but its references to %1 and others repeat %2 bytes in a file of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number of elements of an array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a PatientRecord</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a string or nil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a date or nil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an array of examinations or nil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an NCRecord</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an array of measurements or nil</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a MeasurementsRecord</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Reference ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Growth standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of fetuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Planned delivery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula for the crown-rump length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nascor ended before the changes of this document were saved. Do you want to recover them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved changes were kept when Nascor ended, but they cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patient:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last kept:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An examination that was removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An examination without a date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What differs from the saved document:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document was saved again since. What was saved then is not in these changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept against a crash. Please save: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examination of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it holds:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>References</name>
    <message>
        <source>The number is a name of this program; the lengths in parentheses tell the formula.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weeks 11 to 14 lie outside the published sample, which has 15 to 41 weeks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The numbers are those of the published tables.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The constant is 23.72 here; publications have 23.73.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The band of the weight chart is the random error of the formula. It shows no centiles of a population.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Citation partly confirmed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Citation to be confirmed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>References</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weeks 12 and 13 lie outside the published sample, which has 14 to 42 weeks. The AC is the paper&apos;s equation, not its table, which is up to 1.68 mm higher. Dating reads the table of sizes backwards; the paper&apos;s own age equations, which scanners use, give other ages: HC 5 to 9.9 days more at 26 to 37 weeks, BPD 11.5 days less and AC 6.7 days less at 40, FL 3.6 days more at 29 to 30.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No second source has this formula. Compared with Hadlock (1992) it gives 9.4 days more at 6.7 mm, 2.9 days more at 20 mm, the same at 30 mm and 1.3 days less at 45 mm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two independent sources have the same formula.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BPD is measured from outer to outer edge. Held against the 1512 values of the printed tables: at most 0.073 mm off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fits weights by the formula Hadlock 1 (HC/AC/FL) only. Held against the printed table: at most 0.49 g off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The abstract has 12.7 % for one standard deviation; the printed percentiles have 13.27 %, which stands here. Held against the printed table: at most 2.2 g off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coefficients of the revision of 2023-03-13, published under CC BY. Curves of centiles, no distribution: below the 1st and above the 99th it says no more than that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths measured as the publication has it; normal about the mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BPD measured from outer to outer edge; normal about the mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight by the formula Hadlock 1 (HC/AC/FL); no other formula fits it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight normal about the mean, with a standard deviation of 13.27 % of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No distribution: between the curves of eleven centiles linear in the value, beyond the 1st and the 99th unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula and checked values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths in mm, weights in g; w is the age in weeks, d in days, g in tens of weeks. What stands side by side is multiplied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 values, of which %2 differ from what the program answers now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quotients of what was measured; nothing is published of them here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2 weeks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assumes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checked with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All References</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 values. The program answers each of them alike.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>worked out apart from the program, in decimal arithmetic</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportFiles</name>
    <message>
        <source>a text is not in the character set &quot;%1&quot; that the file states</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is damaged: %1</source>
        <extracomment>%1 is what a library says, in English, as in all sentences about DICOM that end with a colon.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is cut off: it ends before its end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is damaged: a part is longer than what holds it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is damaged: a part is of a kind that DICOM does not have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no DICOM file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has more parts than any report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a DICOM file that does not say how it is encoded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a compressed DICOM file; reports are read uncompressed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is nested deeper than any report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 is the name of a file, %2 a sentence about it that begins with a small letter.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the path of a file, %2 what the operating system says of it.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no report that is read: no DICOM file, no FHIR bundle, and no table whose first line names exam_date and lengths such as bpd_mm, with commas between</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 more row.</source>
        <extracomment>%2 rows of the file %1 do not fit either.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 more rows.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportImport</name>
    <message>
        <source>chosen at the machine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mean of several</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>calculated, not measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>estimated, not measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report cannot be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetched report %ld</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reference ID of the report has characters that cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report does not say of which patient it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document does not say of which patient it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report is of another patient than the document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetus without an ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is there already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not taken: another value stands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not taken: beyond what can be typed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is compared only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from the last period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>replaces the established EDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not taken: the established EDD stays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which fetus is it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is entered in EDD from CRL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not stored; can be entered in EDD from CRL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not taken:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report is of %ld fetuses, the document of %ld. Please leave out the others, or cancel and add a fetus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please choose for each fetus which one it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two fetuses of the report cannot be the same one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reports are of several patients. Please import those of each patient alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please say whether the report is of this patient.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document has a number of fetuses that no report fits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to be added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BPD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CRL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These reports cannot be imported.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportServer</name>
    <message>
        <source>the host is no name and no IPv4 address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the port is no number from 1 to 65535</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the called title is not of 1 to 16 characters of ASCII without a backslash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the calling title is not of 1 to 16 characters of ASCII without a backslash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the timeout is no number of seconds from 1 to 3600</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an encrypted connection needs the file of the certificate authority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a certificate needs its key, and a key its certificate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reference ID holds *, ?, a backslash or a control character, which a server does not search for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reference ID holds characters that do not show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reference ID is longer than 64 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reference ID begins or ends with a blank, which a server does not keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the study is no UID, which has digits and dots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a day is not in the calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the last day is before the first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>neither a patient nor a study is named</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refuses the connection: its title is not &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refuses the connection: the title &quot;%1&quot; of this program must be entered there first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refuses the connection: it is busy; try again later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refuses the connection, and does not say why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DCMTK does not find its data dictionary (DCMDICTPATH), without which it does not use the network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shows a certificate that is not accepted: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>does not make an encrypted connection: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>answers what is not DICOM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be reached within %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be reached: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gave no complete answer within %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>broke off the connection without saying why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ended the connection before its answer was complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ended the connection without an answer; the connection may have to be encrypted, or must not be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gave an answer that is not understood: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gave an answer in a context that was not agreed on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>does not hand out reports (C-GET of the study root)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gave an answer that was not asked for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was not given: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be asked: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was not taken: it is longer than any report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was not taken: it is another kind of report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was not taken: it %1</source>
        <extracomment>%1 is what is wrong with it: &quot;is cut off: it ends before its end&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was not taken: the server gave another report than it was asked for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was not taken: it is of &quot;%1&quot;, although the server lists it under &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the other reports were not fetched: these are as many bytes as are taken at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>%1 is the UID of a report, %2 what became of it: &quot;was not taken: it is another kind of report&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is longer than any report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no report that is sent: its kind is neither Comprehensive SR nor Enhanced SR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has no proper SOP Instance UID, and is not sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not taken: the server takes no reports (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is kept by the server, but perhaps not as it was: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not taken by the server: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>does not answer to C-ECHO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>answers with more than there is memory for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no IPv4 address of this host: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the address of this host was not found in time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>does not search for reports (C-FIND of the study root)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at most %1 reports are taken, and there are others; name a patient, a study or fewer days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 answer was left out: it is of another patient, study or day, or names no report by proper UIDs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 answers were left out: they are of another patient, study or day, or name no report by proper UIDs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>does not search: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>encrypted connections are not there: OpenSSL does not begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>encrypted connections are not there: OpenSSL has none of their ciphers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 holds no certificate in PEM that can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 holds no key in PEM that can be read without a password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not the key of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name of the host cannot be looked for in a certificate</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServerMenu</name>
    <message>
        <source>&amp;Fetch Reports...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Send This Examination...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reports cannot be fetched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetch Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference ID of the patient on %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has no report of the patient %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetching from %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not all reports were fetched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The examination was not sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without a date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patient %1, examination %2, to %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection is not encrypted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send this examination to the server?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The answer was not waited for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server S&amp;ettings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please name one in File &gt; Report Folder and Server &gt; Server Settings.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServerSettings</name>
    <message>
        <source>Choose...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encrypted connection (TLS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AE &amp;title of the server:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AE title of this prog&amp;ram:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Authority&apos;s certificate:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Own certificate:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own &amp;key:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Te&amp;st</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a host, Nascor contacts no server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reports will cross the network in clear.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server answers.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServerTask</name>
    <message>
        <source>Waiting for the end of the last question...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (g)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (mm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetus %ld of %ld</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %ld days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld days ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld days after the EDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%ld days before the EDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Planned delivery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Growth standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discordance of weights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examiner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>g</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The growth standard is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A weight is given above 100 g.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>centile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centiles by each reference for weights; difference from the formula in force.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Growth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The note is longer; the document has all of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>en</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetal biometry summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Course</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sources</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %ld of %ld</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one day after the EDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one day before the EDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Since the last examination before that has the measure: change a week, what the growth standard expects, and change of z.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths: z and centile by %1. Weight: by the formula %2, z and centile by %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1/week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines: centiles 3, 10, 50, 90 and 97; lengths by %1, weight by %2. Weeks of menstrual age below.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SummaryMenu</name>
    <message>
        <source>Export Summary...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Summary...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary Details...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HTML (*.html)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The summary was not exported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The summary was not printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no printer. Please choose a file to print into in the print panel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer %1 does not answer. Please look after it or choose another.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Letterhead:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Examiner:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>The user guide cannot be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no program that shows %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no program that shows PDF files. Please install one, or open the page for browsers that lies beside %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WaitingReports</name>
    <message>
        <source>No reference ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 report has come</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 reports have come</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set All &amp;Aside</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Offer reports that ultrasound machines put here:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder was chosen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Writing</name>
    <message>
        <source>January</source>
        <extracomment>A month as it stands in a day, &quot;4 January 2027&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>February</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>March</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>April</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>May</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>June</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>July</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>August</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>September</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>October</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>November</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>December</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.</source>
        <extracomment>The decimal sign: a point or a comma.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1</source>
        <extracomment>The first day of a month, as it stands in &quot;1 March 2027&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZuVersion</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Obstetric ultrasound biometry.
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents to open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows no window until the session bus asks for one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nascor: no window can be shown: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 knows no &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which documents? --write-pages FOLDER FILE...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --write-pages: pdf, png or svg; else PNG and PDF.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --write-pages: all, or first, last, numbers from 0 and names, with commas between.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --write-pages: all, or the number of one fetus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --write-pages: nothing stands under the pages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --write-pages: the files are not listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the pages of the documents into FOLDER, and shows no window. Files of the same names are replaced. As - the one file goes to standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --write-pages: files that are there are left as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --write-pages: draws centile lines of that reference over the charts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --write-pages: lines join the marks of each fetus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offers the reports that machines put into this folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nascor: --watch: %1 is no folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nascor: --watch: Nascor is running already. Please choose the folder there, by File &gt; Report Folder and Server.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
