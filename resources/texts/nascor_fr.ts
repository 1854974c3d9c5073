<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Fetal Weight Formula: </source>
        <translation>Formule de poids fœtal&#xa0;: </translation>
    </message>
    <message>
        <source>Days to Go:	%ld</source>
        <translation>Jours restants&#xa0;:	%ld</translation>
    </message>
    <message>
        <source>Nascor Standard: </source>
        <translation>Standard de croissance&#xa0;: </translation>
    </message>
    <message>
        <source>Menstrual Age (Weeks)</source>
        <translation>Âge gestationnel (SA)</translation>
    </message>
    <message>
        <source>Biparietal Diameter (mm)</source>
        <translation>Diamètre bipariétal (mm)</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Head Circ (mm)</source>
        <translation>Périm. céph. (mm)</translation>
    </message>
    <message>
        <source>Abdo Circ (mm)</source>
        <translation>Périm. abdo. (mm)</translation>
    </message>
    <message>
        <source>Femur Length (mm)</source>
        <translation>Longueur fémorale (mm)</translation>
    </message>
    <message>
        <source>Estimated Fetal Weight (g)</source>
        <translation>Estimation du poids fœtal (g)</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>Identifier:	</source>
        <translation>Identifiant&#xa0;:	</translation>
    </message>
    <message>
        <source>Gravida:	</source>
        <translation>Gestité&#xa0;:	</translation>
    </message>
    <message>
        <source>Fetus:	</source>
        <translation>Fœtus&#xa0;:	</translation>
    </message>
    <message>
        <source>Date:	</source>
        <translation>Date&#xa0;:	</translation>
    </message>
    <message>
        <source>EDD:	</source>
        <translation>DPA (40&#xa0;SA)&#xa0;:	</translation>
    </message>
    <message>
        <source>Menstrual Age:	</source>
        <translation>Âge (SA)&#xa0;:	</translation>
    </message>
    <message>
        <source>Exam Date</source>
        <translation>Examen</translation>
    </message>
    <message>
        <source>Menstrual Age</source>
        <translation>Âge (SA)</translation>
    </message>
    <message>
        <source>BPD (mm)</source>
        <translation>BIP (mm)</translation>
    </message>
    <message>
        <source>HC (mm)</source>
        <translation>PC (mm)</translation>
    </message>
    <message>
        <source>AC (mm)</source>
        <translation>PA (mm)</translation>
    </message>
    <message>
        <source>FL (mm)</source>
        <translation>LF (mm)</translation>
    </message>
    <message>
        <source>EFW (g)</source>
        <translation>EPF (g)</translation>
    </message>
    <message>
        <source>Projected</source>
        <translation>Projection</translation>
    </message>
    <message>
        <source>z-score</source>
        <translation>z-score</translation>
    </message>
    <message>
        <source>beyond the table</source>
        <translation>hors table</translation>
    </message>
    <message>
        <source>%1 has no centiles of this measure</source>
        <translation>%1 n’a pas de percentiles pour ce paramètre</translation>
    </message>
    <message>
        <source>Centiles: %1, which fits weights by another formula alone: %2</source>
        <translation>Percentiles&#xa0;: %1, ne valant que pour une autre formule&#xa0;: %2</translation>
    </message>
    <message>
        <source>Centiles: %1</source>
        <translation>Percentiles&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>AdjustDelivery</name>
    <message>
        <source>Adjust Delivery</source>
        <translation>Planifier l’accouchement</translation>
    </message>
    <message>
        <source>Estimated date of delivery</source>
        <translation>Date prévue d’accouchement, à 40&#xa0;SA</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>DPA</translation>
    </message>
    <message>
        <source>&amp;Days from the EDD</source>
        <translation>É&amp;cart à la DPA</translation>
    </message>
    <message>
        <source>Delivery planned on</source>
        <translation>Accouchement envisagé le</translation>
    </message>
    <message>
        <source>The day on which delivery is planned</source>
        <translation>Le jour pour lequel l’accouchement est prévu</translation>
    </message>
    <message>
        <source>Age at that date</source>
        <translation>Âge à cette date</translation>
    </message>
    <message>
        <source>Menstrual age at the planned delivery, in weeks and days</source>
        <translation>Âge gestationnel à l’accouchement envisagé, en semaines d’aménorrhée et jours</translation>
    </message>
    <message>
        <source>%1 to %2 days</source>
        <translation>de %1 à %2 jours</translation>
    </message>
    <message>
        <source>Days from the EDD to the planned delivery, %1</source>
        <translation>Jours entre la DPA et l’accouchement envisagé, %1</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation>N’est pas un dispositif médical. Non validé pour l’usage clinique.</translation>
    </message>
    <message>
        <source>No font is installed, so no text could be shown. Please install one, such as DejaVu Sans.</source>
        <translation>Aucune police de caractères n’est installée&#xa0;: aucun texte ne pourrait s’afficher. Veuillez en installer une, par exemple DejaVu Sans.</translation>
    </message>
</context>
<context>
    <name>Check</name>
    <message>
        <source>its byte order is big</source>
        <translation>son ordre des octets est gros-boutiste (big endian)</translation>
    </message>
    <message>
        <source>the old place of the gravidity holds &quot;%1&quot;</source>
        <translation>l’ancien emplacement de la gestité contient «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the old place of the gravidity holds nothing</source>
        <translation>l’ancien emplacement de la gestité est vide</translation>
    </message>
    <message>
        <source>%1 list is missing</source>
        <translation>%1 liste manque</translation>
    </message>
    <message>
        <source>%1 lists are missing</source>
        <translation>%1 listes manquent</translation>
    </message>
    <message>
        <source>%1 record stands in several places</source>
        <translation>%1 enregistrement figure à plusieurs endroits</translation>
    </message>
    <message>
        <source>%1 records stand in several places</source>
        <translation>%1 enregistrements figurent à plusieurs endroits</translation>
    </message>
    <message>
        <source>%1 byte follows the patient</source>
        <translation>%1 octet suit la patiente</translation>
    </message>
    <message>
        <source>%1 bytes follow the patient</source>
        <translation>%1&#xa0;octets suivent la patiente</translation>
    </message>
    <message>
        <source>%1 has version %2, older than %3</source>
        <extracomment>%1 is the name of a class of a document&apos;s file, as in the next one.</extracomment>
        <translation>%1 est en version %2, antérieure à %3</translation>
    </message>
    <message>
        <source>%1 has version %2, newer than %3</source>
        <translation>%1 est en version %2, postérieure à %3</translation>
    </message>
    <message>
        <source>the identifier is missing</source>
        <translation>l’identifiant manque</translation>
    </message>
    <message>
        <source>the EDD is missing</source>
        <translation>la DPA manque</translation>
    </message>
    <message>
        <source>the EDD is %1</source>
        <translation>la DPA vaut %1</translation>
    </message>
    <message>
        <source>the EDD, %1 s from 2001-01-01, is outside the years 1 to 9999</source>
        <extracomment>2001-01-01 is the day from which seconds count.</extracomment>
        <translation>la DPA, à %1&#xa0;s du 2001-01-01, est en dehors des années 1 à 9999</translation>
    </message>
    <message>
        <source>the gravidity %1 is negative</source>
        <translation>la gestité %1 est négative</translation>
    </message>
    <message>
        <source>the growth standard %1 is unknown</source>
        <translation>le standard de croissance %1 est inconnu</translation>
    </message>
    <message>
        <source>the weight formula %1 is unknown</source>
        <translation>la formule de poids %1 est inconnue</translation>
    </message>
    <message>
        <source>the CRL formula %1 is unknown</source>
        <translation>la formule LCC %1 est inconnue</translation>
    </message>
    <message>
        <source>the planned delivery, %1 days from 40 weeks, is outside %2 to %3 days</source>
        <translation>l’accouchement envisagé, à %1 jours de 40&#xa0;SA, est en dehors de la plage de %2 à %3 jours</translation>
    </message>
    <message>
        <source>the number of fetuses, %1, is outside %2 to %3</source>
        <translation>le nombre de fœtus, %1, est en dehors de la plage de %2 à %3</translation>
    </message>
    <message>
        <source>there is no examination</source>
        <translation>il n’y a pas d’examen</translation>
    </message>
    <message>
        <source>the note is missing</source>
        <translation>la note manque</translation>
    </message>
    <message>
        <source>the date is missing</source>
        <translation>la date manque</translation>
    </message>
    <message>
        <source>the date is %1</source>
        <translation>la date vaut %1</translation>
    </message>
    <message>
        <source>the date, %1 s from 2001-01-01, is outside the years 1 to 9999</source>
        <translation>la date, à %1&#xa0;s du 2001-01-01, est en dehors des années 1 à 9999</translation>
    </message>
    <message>
        <source>it is earlier than the one before it</source>
        <extracomment>&quot;It&quot; is an examination.</extracomment>
        <translation>il est antérieur à celui qui le précède</translation>
    </message>
    <message>
        <source>it has %1 fetus, the patient %2</source>
        <extracomment>&quot;It&quot; is an examination; %2 are the fetuses of the patient.</extracomment>
        <translation>fœtus&#xa0;: %1 pour cet examen, %2 pour la patiente</translation>
    </message>
    <message>
        <source>it has %1 fetuses, the patient %2</source>
        <translation>fœtus&#xa0;: %1 pour cet examen, %2 pour la patiente</translation>
    </message>
    <message>
        <source>examination %1, fetus %2: %3</source>
        <extracomment>%3 is a sentence about that fetus of that examination, which begins with a small letter.</extracomment>
        <translation>examen %1, fœtus %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>examination %1: %2</source>
        <translation>examen %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>CommandHelp</name>
    <message>
        <source>growth standards by number or name, intergrowth-2014, with commas between; without it all four</source>
        <translation>standards de croissance par numéro ou nom, ou intergrowth-2014, avec virgules&#xa0;; sinon les quatre</translation>
    </message>
    <message>
        <source>one weight, by number or name, instead of all eight</source>
        <translation>un seul poids, par numéro ou nom de formule, au lieu des huit</translation>
    </message>
    <message>
        <source>only these columns, of the input or computed, in this order</source>
        <translation>ces colonnes seulement, de l’entrée ou calculées, dans cet ordre</translation>
    </message>
    <message>
        <source>what is computed with one decimal, z-scores with three</source>
        <translation>ce qui est calculé avec une décimale, les z-scores avec trois</translation>
    </message>
    <message>
        <source>Weights, means and z-scores beside the columns of a CSV table on standard input.</source>
        <translation>Poids, moyennes et z-scores à côté des colonnes d’un tableau CSV lu sur l’entrée standard.</translation>
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
        <translation>La première ligne nomme les colonnes&#xa0;; comptent ga_weeks ou ga, bpd_mm ou bpd, hc_mm ou hc,
ac_mm ou ac, fl_mm ou fl, dans n’importe quel ordre. Toutes les colonnes du tableau restent telles
quelles. Derrière elles viennent
  efw_0_g,...,efw_7_g,westerway_bpd_mean_mm,westerway_bpd_sd_mm,westerway_bpd_z,...,cfef_fl_z
  warning,error
Une cellule vide, 0, nan et NA signifient&#xa0;: non mesuré. Ce qui n’est pas un nombre (45mm, 45,2) est
signalé dans error et, avec sa ligne, sur la sortie d’erreur standard&#xa0;; rien n’est calculé dans
cette ligne, les autres continuent, et le code de retour est 1. La mémoire utilisée ne croît pas
avec le tableau.
Les textes restent tels quels. Un tableur exécute les cellules qui commencent par &apos;=&apos;&#xa0;: importez-les
comme texte.
</translation>
    </message>
    <message>
        <source>a document; - is standard input</source>
        <translation>un document&#xa0;; - est l’entrée standard</translation>
    </message>
    <message>
        <source>one JSON object a document, on a line</source>
        <translation>un objet JSON par document, sur une ligne</translation>
    </message>
    <message>
        <source>say ok where there is nothing to say</source>
        <translation>dire ok quand il n’y a rien à signaler</translation>
    </message>
    <message>
        <source>Reads each document whole and names every oddity in it, one a line.</source>
        <translation>Lit chaque document en entier et signale toutes ses anomalies, une par ligne.</translation>
    </message>
    <message>
        <source>An oddity is accepted everywhere else: a count that disagrees, a date that is missing, a length beyond
what can be typed, an old class version. It leaves the exit status at 0; a file that cannot be read
makes it 1. Keys of the JSON: file, and oddities, an array of objects with kind, examination, fetus,
text.
</source>
        <translation>Une anomalie est acceptée partout ailleurs&#xa0;: un nombre qui ne concorde pas, une date qui manque, une
mesure au-delà de ce qui peut être saisi, une ancienne version de classe. Elle laisse le code de
retour à 0&#xa0;; un fichier qui ne peut pas être lu le met à 1. Clés du JSON&#xa0;: file, et oddities, un
tableau d’objets avec kind, examination, fetus, text.
</translation>
    </message>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation>N’est pas un dispositif médical. Non validé pour l’usage clinique.</translation>
    </message>
    <message>
        <source>this text</source>
        <translation>ce texte</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>usage&#xa0;: %1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <source>Obstetric ultrasound biometry for shells and scripts.</source>
        <translation>Biométrie échographique obstétricale pour le shell et les scripts.</translation>
    </message>
    <message>
        <source>Lengths are in millimetres, weights in grams, ages in weeks after the last menstrual period.
A FILE or a value of - is standard input. No question is ever asked.
Exit status: 0 all well, 1 some input was bad, 2 wrong usage.
</source>
        <translation>Les mesures sont en millimètres, les poids en grammes, les âges en semaines d’aménorrhée (SA).
Quand FILE ou une valeur est -, c’est l’entrée standard. Aucune question n’est jamais posée.
Code de retour&#xa0;: 0 tout va bien, 1 une partie de l’entrée était mauvaise, 2 usage incorrect.
</translation>
    </message>
    <message>
        <source>this text; help COMMAND explains one command</source>
        <translation>ce texte&#xa0;; help COMMAND explique une commande</translation>
    </message>
    <message>
        <source>this text; behind a command, that command&apos;s help</source>
        <translation>ce texte&#xa0;; après une commande, l’aide de cette commande</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>la version du programme</translation>
    </message>
    <message>
        <source>what follows is no option</source>
        <translation>ce qui suit n’est pas une option</translation>
    </message>
    <message>
        <source>one object a document, examination and fetus, on a line: unrounded numbers</source>
        <translation>un objet par document, examen et fœtus, sur une ligne&#xa0;: nombres non arrondis</translation>
    </message>
    <message>
        <source>Each length and weight by every reference and formula, ratios, twins, growth.</source>
        <translation>Chaque mesure et poids selon chaque référence et formule, ratios, jumeaux, croissance.</translation>
    </message>
    <message>
        <source>Examinations and fetuses count from 0. Difference is that from the weight by the document&apos;s formula.
Age is that of which the value is the median of the reference; outside its weeks a dash. Discordance
is the share, of the heaviest fetus, by which the lightest weighs less. Growth is that since the
examination before which has the length; the change of z is by the document&apos;s standard. Centiles of
weights are those of references; the error of a formula is no population.
</source>
        <translation>Les examens et les fœtus sont comptés à partir de 0. Difference est l’écart au poids selon la
formule du document. Age est celui dont la valeur est la médiane de la référence&#xa0;; hors de ses
semaines, un tiret. Discordance est ce que le fœtus le plus léger pèse de moins que le plus lourd,
en part du poids de celui-ci. Growth est la croissance depuis l’examen précédent où la mesure
figure&#xa0;; la variation de z est selon le standard du document. Les percentiles de poids sont ceux de
références&#xa0;; l’erreur d’une formule n’est pas une population.
</translation>
    </message>
    <message>
        <source>Each document as JSON: every field that it holds, one object on a line.</source>
        <translation>Chaque document en JSON&#xa0;: tous les champs qu’il contient, un objet par ligne.</translation>
    </message>
    <message>
        <source>Keys: maternalIDString, edd, eddISO, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (weeks), crlStandard, gravida, and examinations, an array of objects with note,
examDate, examDateISO and measurements, an array of objects with bpd, hc, ac and fl (mm; 0 = not
measured). Dates are seconds since 2001-01-01 UTC; beside each stands its local time as ISO text.
</source>
        <translation>Clés&#xa0;: maternalIDString, edd, eddISO, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (semaines), crlStandard, gravida, et examinations, un tableau d’objets avec
note, examDate, examDateISO et measurements, un tableau d’objets avec bpd, hc, ac et fl (mm&#xa0;;
0 = non mesuré). Les dates sont en secondes depuis le 2001-01-01 UTC&#xa0;; à côté de chacune figure son
heure locale en texte ISO.
</translation>
    </message>
    <message>
        <source>a document as JSON; - is standard input</source>
        <translation>un document en JSON&#xa0;; - est l’entrée standard</translation>
    </message>
    <message>
        <source>where to write it, as a whole or not at all; without it, or -, to standard output</source>
        <translation>où l’écrire, en entier ou pas du tout&#xa0;; sans cette option, ou avec -, sur la sortie standard</translation>
    </message>
    <message>
        <source>A document from JSON.</source>
        <translation>Un document à partir de JSON.</translation>
    </message>
    <message>
        <source>Reads what json prints: maternalIDString, edd, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (weeks), crlStandard, gravida, and examinations, an array of objects with
note, examDate and measurements, an array of objects with bpd, hc, ac and fl (mm). Every key may be
missing; an unknown one is an error. A date is a number of
seconds since 2001-01-01 UTC, an ISO date (2027-04-10 is local midnight), an ISO date and time, or
null. Lengths are stored in single precision, whole numbers in 32 bits.
</source>
        <translation>Lit ce qu’écrit json&#xa0;: maternalIDString, edd, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (semaines), crlStandard, gravida, et examinations, un tableau d’objets avec
note, examDate et measurements, un tableau d’objets avec bpd, hc, ac et fl (mm). Toute clé peut
manquer&#xa0;; une clé inconnue est une erreur. Une date est un nombre de secondes depuis le 2001-01-01
UTC, une date ISO (2027-04-10 est minuit, heure locale), une date et heure ISO, ou null. Les mesures
sont stockées en simple précision, les nombres entiers sur 32 bits.
</translation>
    </message>
    <message>
        <source>any typed stream; - is standard input</source>
        <translation>un flux typé quelconque&#xa0;; - est l’entrée standard</translation>
    </message>
    <message>
        <source>one JSON object a stream, on a line</source>
        <translation>un objet JSON par flux, sur une ligne</translation>
    </message>
    <message>
        <source>All that a typed stream holds, as a tree; of any program, not only documents.</source>
        <translation>Tout ce que contient un flux typé, en arborescence&#xa0;; de tout programme, pas seulement un document.</translation>
    </message>
    <message>
        <source>Each line begins with the byte at which the value begins. Keys of the JSON: byte_order,
system_version, and groups, an array of objects with types and values; docs/json.md lists the values.
</source>
        <translation>Chaque ligne commence par l’octet où commence la valeur. Clés du JSON&#xa0;: byte_order, system_version,
et groups, un tableau d’objets avec types et values&#xa0;; docs/json.md énumère les valeurs.
</translation>
    </message>
    <message>
        <source>the folder for the files, which is made when it is missing; - is standard output, for one file</source>
        <translation>le dossier des fichiers, créé s’il manque&#xa0;; - est la sortie standard, pour un seul fichier</translation>
    </message>
    <message>
        <source>what is written; without this option PDF</source>
        <translation>ce qui est écrit&#xa0;; sans cette option, PDF</translation>
    </message>
    <message>
        <source>all, or first, last, numbers from 0 to 6 and names, with commas between</source>
        <translation>all (toutes), ou first, last, numéros de 0 à 6 et noms, séparés par des virgules</translation>
    </message>
    <message>
        <source>one fetus, the first is 1; without this option all</source>
        <translation>un seul fœtus, 1 étant le premier&#xa0;; sans cette option, tous</translation>
    </message>
    <message>
        <source>centile lines of a reference of &quot;nascor-cli reference&quot; over the charts</source>
        <translation>lignes de percentiles d’une référence de «&#xa0;nascor-cli reference&#xa0;» sur les graphiques</translation>
    </message>
    <message>
        <source>a line from mark to mark of each fetus</source>
        <translation>une ligne de point en point pour chaque fœtus</translation>
    </message>
    <message>
        <source>leave files that are there as they are, and say so</source>
        <translation>laisser tels quels les fichiers qui existent déjà, et le dire</translation>
    </message>
    <message>
        <source>leave off what stands under each page</source>
        <translation>omettre ce qui figure sous chaque page</translation>
    </message>
    <message>
        <source>FHIR as one resource a line, of all documents, on standard output</source>
        <translation>FHIR, une ressource par ligne, de tous les documents, sur la sortie standard</translation>
    </message>
    <message>
        <source>Writes the pages of each document, or its numbers for other programs.</source>
        <translation>Écrit les pages de chaque document, ou ses nombres pour d’autres programmes.</translation>
    </message>
    <message>
        <source>Names of pages: %1 (0 to %2), in letters of any size.
As PDF all pages of a document are one file; else each is a file of its own.
Files of the same names are replaced, but with --no-clobber.
sr: a DICOM structured report (Comprehensive SR) for each examination, &quot;NAME 1.dcm&quot;, ...
fhir: a FHIR R4 bundle for each document, NAME.json; with --ndjson lines on standard output.
</source>
        <translation>Noms des pages&#xa0;: %1 (0 à %2), en majuscules ou minuscules.
En PDF, toutes les pages d’un document forment un seul fichier&#xa0;; sinon, chacune a le sien.
Les fichiers de même nom sont remplacés, sauf avec --no-clobber.
sr&#xa0;: un rapport structuré DICOM (Comprehensive SR) pour chaque examen, «&#xa0;NAME 1.dcm&#xa0;», ...
fhir&#xa0;: un bundle FHIR R4 pour chaque document, NAME.json&#xa0;; avec --ndjson, des lignes sur la sortie
standard.
</translation>
    </message>
    <message>
        <source>biparietal diameter</source>
        <translation>diamètre bipariétal</translation>
    </message>
    <message>
        <source>head circumference</source>
        <translation>périmètre céphalique</translation>
    </message>
    <message>
        <source>abdominal circumference</source>
        <translation>périmètre abdominal</translation>
    </message>
    <message>
        <source>femur length</source>
        <translation>longueur fémorale</translation>
    </message>
    <message>
        <source>an array of eight numbers, by identifier of the formula</source>
        <translation>un tableau de huit nombres, par identifiant de formule</translation>
    </message>
    <message>
        <source>The estimated weight of one fetus by each of the eight formulas, in grams.</source>
        <translation>Le poids estimé d’un fœtus selon chacune des huit formules, en grammes.</translation>
    </message>
    <message>
        <source>A length that is not given is 0, which means not measured. Where a formula needs it, the weight is
a dash (0 in JSON). An improbable length is named on standard error.
The formulas, by identifier: 0 Hadlock 1 (HC/AC/FL), 1 Hadlock 2 (AC/FL),
2 Hadlock 3 (BPD/AC/FL), 3 Hadlock 4 (BPD/HC/AC/FL), 4 Campbell (AC), 5 Combs (HC/AC/FL),
6 Ott (HC/AC/FL), 7 Shepard (BPD/AC).
</source>
        <translation>Une mesure qui n’est pas donnée vaut 0, ce qui signifie&#xa0;: non mesuré. Là où une formule en a besoin,
le poids est un tiret (0 en JSON). Une mesure improbable est signalée sur la sortie d’erreur
standard.
Les formules, par identifiant&#xa0;: 0 Hadlock 1 (HC/AC/FL), 1 Hadlock 2 (AC/FL),
2 Hadlock 3 (BPD/AC/FL), 3 Hadlock 4 (BPD/HC/AC/FL), 4 Campbell (AC), 5 Combs (HC/AC/FL),
6 Ott (HC/AC/FL), 7 Shepard (BPD/AC).
</translation>
    </message>
    <message>
        <source>crown-rump lengths; - reads lengths from standard input, one a line</source>
        <translation>longueurs cranio-caudales&#xa0;; - lit des longueurs sur l’entrée standard, une par ligne</translation>
    </message>
    <message>
        <source>an array of four numbers a length, each on a line of its own</source>
        <translation>un tableau de quatre nombres par longueur, chacun sur sa propre ligne</translation>
    </message>
    <message>
        <source>The menstrual age at each crown-rump length by each of the four formulas, in weeks.</source>
        <translation>L’âge gestationnel à chaque longueur cranio-caudale selon chacune des quatre formules, en SA.</translation>
    </message>
    <message>
        <source>One line a length, columns separated by tabs. Outside the range of a formula the age is a dash (0 in
JSON). A line of standard input that is no number is answered by nan (null in JSON).
A length that no formula dates is named on standard error, of standard input the first one.
The formulas, by identifier: 0 Hadlock (1992), 2 to 120 mm; 1 Nelson (1981), 6.7 to 82.4 mm
(no second source has it; 9 days more than Hadlock (1992) at 7 mm, 3 days more at 20 mm);
2 Robinson (1975), 7 to 79.6 mm; 3 Westerway (2000), 2 to 87 mm.
</source>
        <translation>Une ligne par longueur, colonnes séparées par des tabulations. Hors du domaine d’une formule, l’âge
est un tiret (0 en JSON). La réponse à une ligne de l’entrée standard qui n’est pas un nombre est
nan (null en JSON). Une longueur qu’aucune formule ne date est signalée sur la sortie d’erreur
standard&#xa0;; de l’entrée standard, la première seulement.
Les formules, par identifiant&#xa0;: 0 Hadlock (1992), de 2 à 120 mm&#xa0;; 1 Nelson (1981), de 6.7 à 82.4 mm
(aucune seconde source ne la donne&#xa0;; 9 jours de plus que Hadlock (1992) à 7 mm, 3 jours de plus
à 20 mm)&#xa0;; 2 Robinson (1975), de 7 à 79.6 mm&#xa0;; 3 Westerway (2000), de 2 à 87 mm.
</translation>
    </message>
    <message>
        <source>a DICOM report, a FHIR bundle of this program, or a CSV table of examinations; - is standard input</source>
        <translation>rapport DICOM, bundle FHIR de ce programme ou tableau CSV d’examens&#xa0;; - est l’entrée standard</translation>
    </message>
    <message>
        <source>store what was found in a new document</source>
        <translation>enregistrer ce qui a été trouvé dans un nouveau document</translation>
    </message>
    <message>
        <source>add what was found to a document</source>
        <translation>ajouter à un document ce qui a été trouvé</translation>
    </message>
    <message>
        <source>the reports are of the patient of this reference ID, whatever they say</source>
        <translation>les rapports sont de la patiente qui a cet identifiant, quoi qu’ils indiquent</translation>
    </message>
    <message>
        <source>the fetus that the reports call ID is fetus N of the document; once for each</source>
        <translation>le fœtus que les rapports appellent ID est le fœtus N du document&#xa0;; une fois pour chacun</translation>
    </message>
    <message>
        <source>the report&apos;s EDD takes the place of the document&apos;s</source>
        <translation>la DPA du rapport remplace celle du document</translation>
    </message>
    <message>
        <source>What reports of ultrasound machines and tables hold, as JSON; stored only on demand.</source>
        <translation>Le contenu de rapports d’échographes et de tableaux, en JSON&#xa0;; enregistré sur demande seulement.</translation>
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
        <translation>Un objet par rapport, d’un tableau un par patiente et par jour&#xa0;: file, patientID, examDate, edd,
eddFrom, gravida, numberOfFetuses, fetuses (id, bpd, hc, ac, fl et crl en mm, efw en g, chosen),
notTaken, warnings.
Un tableau a les colonnes qu’écrit rows&#xa0;: exam_date, au moins une de bpd_mm, hc_mm, ac_mm et fl_mm,
et, s’il les a, reference_id, fetus (à partir de 0) ou fetus_number (à partir de 1), edd, gravida et
number_of_fetuses. Quand une ligne ne convient pas, rien du tableau n’est affiché ni enregistré.
Rien n’est enregistré en cas de doute sur la patiente ou le fœtus, et rien de ce qui est en place
n’est écrasé.
</translation>
    </message>
    <message>
        <source>the index</source>
        <translation>l’index</translation>
    </message>
    <message>
        <source>a JSON object a line</source>
        <translation>un objet JSON par ligne</translation>
    </message>
    <message>
        <source>the documents, *.nascor in it and in the folders in it</source>
        <translation>les documents, *.nascor dans ce dossier et dans ses sous-dossiers</translation>
    </message>
    <message>
        <source>the index, made where there is none</source>
        <translation>l’index, créé s’il n’existe pas</translation>
    </message>
    <message>
        <source>the counts as a JSON object</source>
        <translation>les nombres, en un objet JSON</translation>
    </message>
    <message>
        <source>Keeps what the documents of a folder say in a database, for due and search.</source>
        <translation>Tient dans une base de données ce que disent les documents d’un dossier, pour due et search.</translation>
    </message>
    <message>
        <source>Only documents that are new or have changed are read; those that are gone leave the index. A run that
is ended in the middle, however that happens, leaves an index that the next run completes.
The file is an SQLite database that its owner alone can read: it holds reference IDs, notes and names
of files. Its tables documents and rows may be read by other programs.
</source>
        <translation>Seuls les documents nouveaux ou modifiés sont lus&#xa0;; ceux qui ont disparu quittent l’index. Une
exécution interrompue en cours de route, de quelque façon que ce soit, laisse un index que la
suivante complète.
Le fichier est une base de données SQLite que seul son propriétaire peut lire&#xa0;: elle contient des
identifiants, des notes et des noms de fichiers. Ses tables documents et rows peuvent être lues par
d’autres programmes.
</translation>
    </message>
    <message>
        <source>the first day, such as 2027-04-10; without it today</source>
        <translation>le premier jour, par exemple 2027-04-10&#xa0;; sans cette option, aujourd’hui</translation>
    </message>
    <message>
        <source>how many days behind that; without it 28</source>
        <translation>combien de jours après celui-ci&#xa0;; sans cette option, 28</translation>
    </message>
    <message>
        <source>only with an AC, the last of one fetus, whose z-score is below this</source>
        <translation>seulement avec un PA, le dernier de l’un des fœtus, dont le z-score est inférieur à cette valeur</translation>
    </message>
    <message>
        <source>Who is due, from an index: by EDD, with the last examination and the lowest AC.</source>
        <translation>Qui doit accoucher, d’après un index&#xa0;: par DPA, avec le dernier examen et le PA le plus bas.</translation>
    </message>
    <message>
        <source>AC z is the lowest, over the fetuses, of the z-score of the last AC that was measured, by the growth
standard of the document. It lists what the index held when it was last brought up to date.
</source>
        <translation>AC z est le plus bas, parmi les fœtus, des z-scores du dernier PA mesuré, selon le standard de
croissance du document. La liste montre ce que contenait l’index à sa dernière mise à jour.
</translation>
    </message>
    <message>
        <source>three characters or more of a reference ID or of a file&apos;s path; large or small</source>
        <translation>au moins trois caractères d’un identifiant ou du chemin d’un fichier, majuscules ou minuscules</translation>
    </message>
    <message>
        <source>not more than so many; without it 100</source>
        <translation>ce nombre au plus&#xa0;; sans cette option, 100</translation>
    </message>
    <message>
        <source>Documents by a part of their reference ID or name, from an index.</source>
        <translation>Documents d’après une partie de leur identifiant ou de leur nom, dans un index.</translation>
    </message>
    <message>
        <source>one digit behind the point, in JSON too</source>
        <translation>un chiffre après le point, en JSON aussi</translation>
    </message>
    <message>
        <source>a recovery file, as the list names it</source>
        <translation>un fichier de récupération, tel que la liste le nomme</translation>
    </message>
    <message>
        <source>where to write the document, as a whole or not at all</source>
        <translation>où écrire le document, en entier ou pas du tout</translation>
    </message>
    <message>
        <source>Unsaved changes that the application kept: a list, or one of them as a document.</source>
        <translation>Modifications non enregistrées gardées par l’application&#xa0;: leur liste, ou l’une comme document.</translation>
    </message>
    <message>
        <source>The list has one JSON object a line: recovery (the file), document (the path of the document&apos;s own
file; null when it was never saved), patient, saved (seconds since 2001-01-01 UTC), fetuses,
examinations, and differs, the keys of json that the saved document holds otherwise. It also names
what running applications keep. A recovery file is a document: json, report and check read it. It
stays where it is until the application has offered it.
</source>
        <translation>La liste a un objet JSON par ligne&#xa0;: recovery (le fichier), document (le chemin du fichier propre au
document&#xa0;; null s’il n’a jamais été enregistré), patient, saved (secondes depuis le 2001-01-01 UTC),
fetuses, examinations, et differs, les clés de json pour lesquelles le document enregistré contient
autre chose. Elle nomme aussi ce que gardent les applications en cours d’exécution. Un fichier de
récupération est un document&#xa0;: json, report et check le lisent. Il reste où il est jusqu’à ce que
l’application l’ait proposé.
</translation>
    </message>
    <message>
        <source>a reference, by its name; without it all are listed</source>
        <translation>une référence, par son nom&#xa0;; sans elle, toutes sont énumérées</translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw that the reference has</source>
        <translation>l’un de bpd, hc, ac, fl, efw, présent dans la référence</translation>
    </message>
    <message>
        <source>the age in weeks</source>
        <translation>l’âge en SA</translation>
    </message>
    <message>
        <source>a length in mm, or a weight in g: its z and centile</source>
        <translation>une mesure en mm, ou un poids en g&#xa0;: son z et son percentile</translation>
    </message>
    <message>
        <source>a centile between 0 and 100: its value and z</source>
        <translation>un percentile entre 0 et 100&#xa0;: sa valeur et son z</translation>
    </message>
    <message>
        <source>a z-score: its value and centile</source>
        <translation>un z-score&#xa0;: sa valeur et son percentile</translation>
    </message>
    <message>
        <source>one object a line; what a reference cannot say is null</source>
        <translation>un objet par ligne&#xa0;; ce qu’une référence ne peut pas dire est null</translation>
    </message>
    <message>
        <source>Where a value lies in a published population; which populations there are.</source>
        <translation>Où se situe une valeur dans une population publiée&#xa0;; quelles populations existent.</translation>
    </message>
    <message>
        <source>One of W, V, P and Z may be -: then numbers are read from standard input, one a line, and each is
answered. Nothing is extrapolated: outside the weeks of a reference all numbers are missing, and
the answer says which weeks there are. who-2017 is made of curves: it has no z, and knows no more
than &lt;1 and &gt;99 beyond the outermost. A weight&apos;s centile is that of the reference, never of the
error of a formula.
</source>
        <translation>L’une des valeurs W, V, P et Z peut être -&#xa0;: des nombres sont alors lus sur l’entrée standard, un
par ligne, et chacun reçoit sa réponse. Rien n’est extrapolé&#xa0;: hors des semaines d’une référence,
tous les nombres manquent, et la réponse indique quelles semaines elle couvre. who-2017 est faite de
courbes&#xa0;: elle n’a pas de z, et au-delà des courbes extrêmes ne dit rien de plus que &lt;1 et &gt;99. Le
percentile d’un poids est celui de la référence, jamais celui de l’erreur d’une formule.
</translation>
    </message>
    <message>
        <source>one JSON object a document, on a line: unrounded numbers, the texts beside them</source>
        <translation>un objet JSON par document, sur une ligne&#xa0;: nombres non arrondis, les textes à côté</translation>
    </message>
    <message>
        <source>The tabular report of each document: every fetus, every examination, the projection.</source>
        <translation>Le rapport de chaque document en tableau&#xa0;: tous les fœtus, tous les examens, la projection.</translation>
    </message>
    <message>
        <source>Date and Menstrual Age are those of the last examination. Days are those of the local time zone. The
projection is there when the last examination lies from 30 weeks to the planned delivery. Keys of
the JSON, among others: file, maternalIDString, edd, fetuses, in each examinations (age in weeks;
bpd, hc, ac, fl in mm; efw in g) and projected; docs/json.md lists them all.
</source>
        <translation>Date et Menstrual Age sont ceux du dernier examen. Les jours sont ceux du fuseau horaire local. La
projection figure quand le dernier examen se situe entre 30 SA et l’accouchement envisagé. Clés du
JSON, entre autres&#xa0;: file, maternalIDString, edd, fetuses, et dans chacun examinations (age en SA&#xa0;;
bpd, hc, ac, fl en mm&#xa0;; efw en g) et projected&#xa0;; docs/json.md les énumère toutes.
</translation>
    </message>
    <message>
        <source>a document, or a folder with documents in it; - is a document on standard input</source>
        <translation>un document, ou un dossier contenant des documents&#xa0;; - est un document sur l’entrée standard</translation>
    </message>
    <message>
        <source>more names of files and folders, one a line; - is standard input</source>
        <translation>d’autres noms de fichiers et de dossiers, un par ligne&#xa0;; - est l’entrée standard</translation>
    </message>
    <message>
        <source>the names of --files-from end with NUL instead</source>
        <translation>les noms de --files-from se terminent par NUL, non par une fin de ligne</translation>
    </message>
    <message>
        <source>the documents in a tar archive, plain, gzip or zstd; - is standard input</source>
        <translation>les documents d’une archive tar, non compressée, gzip ou zstd&#xa0;; - est l’entrée standard</translation>
    </message>
    <message>
        <source>only these columns, in this order, with commas between</source>
        <translation>ces colonnes seulement, dans cet ordre, séparées par des virgules</translation>
    </message>
    <message>
        <source>one decimal, for z-scores three</source>
        <translation>une décimale, trois pour les z-scores</translation>
    </message>
    <message>
        <source>comma-separated values, or a JSON object a line</source>
        <translation>valeurs séparées par des virgules, ou un objet JSON par ligne</translation>
    </message>
    <message>
        <source>leave off the line with the names of the columns</source>
        <translation>omettre la ligne des noms de colonnes</translation>
    </message>
    <message>
        <source>reference ID, note and names of files too</source>
        <translation>aussi l’identifiant, la note et les noms de fichiers</translation>
    </message>
    <message>
        <source>in the column file the place of the document, or its name</source>
        <translation>dans la colonne file, le rang du document, ou son nom</translation>
    </message>
    <message>
        <source>days to the EDD in place of the dates</source>
        <translation>les jours jusqu’à la DPA à la place des dates</translation>
    </message>
    <message>
        <source>the zone whose days are meant, such as Europe/Paris</source>
        <translation>le fuseau horaire dans lequel comptent les jours, par exemple Europe/Paris</translation>
    </message>
    <message>
        <source>stop at the first document that cannot be read</source>
        <translation>s’arrêter au premier document qui ne peut pas être lu</translation>
    </message>
    <message>
        <source>work on so many documents at a time; the output is the same</source>
        <translation>traiter ce nombre de documents à la fois&#xa0;; la sortie est la même</translation>
    </message>
    <message>
        <source>A row for each fetus at each examination: age, lengths, weights, z-scores; for statistics.</source>
        <translation>Une ligne par fœtus et par examen&#xa0;: âge, mesures, poids, z-scores&#xa0;; pour les statistiques.</translation>
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
        <translation>D’un dossier sont pris tous les *.nascor, et ceux de ses sous-dossiers. Colonnes&#xa0;:
  file,exam,fetus,exam_date,edd,ga_weeks,bpd_mm,hc_mm,ac_mm,fl_mm,efw_0_g,...,efw_7_g
  standard,bpd_mean_mm,bpd_sd_mm,bpd_z,...,fl_z        selon le standard de chaque document, ou
  westerway_bpd_mean_mm,...                            selon chaque standard de --standard
  reference_id,note                                    avec --identify
  warning,error
file numérote les documents à partir de 0, exam et fetus ce qu’ils contiennent. Une cellule est vide
là où rien n’a été mesuré ou ne peut être calculé. warning signale ce qui est improbable. Un
document qui ne peut pas être lu a une ligne avec file et error&#xa0;; les autres continuent, et le code
de retour est 1.

Confidentialité&#xa0;: les documents portent le nom des patientes. Sans --identify, aucune cellule ne
contient d’identifiant, de note ni (sauf avec --file path) de nom de fichier. La sortie d’erreur
standard nomme les fichiers dans tous les cas, pour la personne devant le terminal&#xa0;: ne la conservez
pas avec les lignes. Les notes peuvent contenir des dates dans leur texte&#xa0;: --relative-dates avec
--identify les laisse telles quelles.
Les textes figurent tels quels dans le CSV. Un tableur exécute les cellules qui commencent par &apos;=&apos;&#xa0;:
importez noms, identifiants et notes comme texte.
</translation>
    </message>
    <message>
        <source>one object a group, on a line</source>
        <translation>un objet par groupe, sur une ligne</translation>
    </message>
    <message>
        <source>Works examples with known results out again: formulas, standards, references, dating.</source>
        <translation>Recalcule des exemples aux résultats connus&#xa0;: formules, standards, références, datation.</translation>
    </message>
    <message>
        <source>A line a group: its name, how many values it has, how many of them differ; the last line is the total.
The values are printed ones, held against the program at their own precision, and others that were
worked out apart from the program. The status is 1 when one differs.
</source>
        <translation>Une ligne par groupe&#xa0;: son nom, combien il a de valeurs, combien d’entre elles diffèrent&#xa0;; la
dernière ligne est le total. Ce sont des valeurs imprimées, auxquelles le programme est comparé à
leur propre précision, et d’autres calculées indépendamment du programme. Le code de retour est 1
quand l’une d’elles diffère.
</translation>
    </message>
    <message>
        <source>what is wanted of the server</source>
        <translation>ce qui est demandé au serveur</translation>
    </message>
    <message>
        <source>a DICOM report to send; - is standard input</source>
        <translation>un rapport DICOM à envoyer&#xa0;; - est l’entrée standard</translation>
    </message>
    <message>
        <source>the server: a name or an IPv4 address</source>
        <translation>le serveur&#xa0;: un nom ou une adresse IPv4</translation>
    </message>
    <message>
        <source>its port</source>
        <translation>son port</translation>
    </message>
    <message>
        <source>its application entity title</source>
        <translation>son titre AE (application entity title)</translation>
    </message>
    <message>
        <source>that of this program; without this option NASCOR</source>
        <translation>celui de ce programme&#xa0;; sans cette option, NASCOR</translation>
    </message>
    <message>
        <source>speak encrypted, to a server whose certificate comes from this authority (PEM)</source>
        <translation>connexion chiffrée, à un serveur dont le certificat vient de cette autorité (PEM)</translation>
    </message>
    <message>
        <source>the certificate of this program, for servers that ask for one (PEM)</source>
        <translation>le certificat de ce programme, pour les serveurs qui en demandent un (PEM)</translation>
    </message>
    <message>
        <source>the key of that certificate, without a password (PEM)</source>
        <translation>la clé de ce certificat, sans mot de passe (PEM)</translation>
    </message>
    <message>
        <source>for the whole of one connection, 1 to 3600; without this option 30</source>
        <translation>pour l’ensemble d’une connexion, de 1 à 3600&#xa0;; sans cette option, 30</translation>
    </message>
    <message>
        <source>find, fetch: the reports of this reference ID</source>
        <translation>find, fetch&#xa0;: les rapports de cet identifiant</translation>
    </message>
    <message>
        <source>find, fetch: those of this study</source>
        <translation>find, fetch&#xa0;: ceux de cette étude</translation>
    </message>
    <message>
        <source>find, fetch: of studies of this day (2026-11-23) and later</source>
        <translation>find, fetch&#xa0;: des études de ce jour (2026-11-23) et d’après</translation>
    </message>
    <message>
        <source>find, fetch: of studies of this day and earlier</source>
        <translation>find, fetch&#xa0;: des études de ce jour et d’avant</translation>
    </message>
    <message>
        <source>fetch: the folder for the files, which is made when it is missing</source>
        <translation>fetch&#xa0;: le dossier des fichiers, créé s’il manque</translation>
    </message>
    <message>
        <source>Fetches reports from a DICOM server, and sends reports to it.</source>
        <translation>Récupère des rapports d’un serveur DICOM, et lui en envoie.</translation>
    </message>
    <message>
        <source>echo asks whether the server answers. find lists its reports, an object a line: patientID, studyDate,
study, series, instance. fetch writes them as INSTANCE.dcm, never over a file that is there, and needs a
patient or a study. send sends files that &quot;export --format sr&quot; or a machine wrote.
No other command uses the network, and this one speaks to the server of its options alone.
</source>
        <translation>echo demande si le serveur répond. find énumère ses rapports, un objet par ligne&#xa0;: patientID,
studyDate, study, series, instance. fetch les écrit sous INSTANCE.dcm, jamais par-dessus un fichier
existant, et exige une patiente ou une étude. send envoie des fichiers écrits par
«&#xa0;export --format sr&#xa0;» ou par un échographe.
Aucune autre commande n’utilise le réseau, et celle-ci ne s’adresse qu’au serveur de ses options.
</translation>
    </message>
    <message>
        <source>Growth standards (N):
%1
Weight formulas (K):
%2
The number or the name, in letters of any size.
</source>
        <translation>Standards de croissance (N)&#xa0;:
%1
Formules de poids (K)&#xa0;:
%2
Le numéro ou le nom, en majuscules ou minuscules.
</translation>
    </message>
    <message>
        <source>growth standard, see below</source>
        <translation>standard de croissance, voir ci-dessous</translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw; without it the four lengths</source>
        <translation>l’un de bpd, hc, ac, fl, efw&#xa0;; sans cette option, les quatre mesures</translation>
    </message>
    <message>
        <source>weight formula, see below; needed for efw</source>
        <translation>formule de poids, voir ci-dessous&#xa0;; nécessaire pour efw</translation>
    </message>
    <message>
        <source>rows [week, mean, sd]; without --measurement an object of such rows by measurement</source>
        <translation>lignes [week, mean, sd]&#xa0;; sans --measurement, un objet de telles lignes par paramètre</translation>
    </message>
    <message>
        <source>A reference table: mean and standard deviation at each week, in mm or g.</source>
        <translation>Une table de référence&#xa0;: moyenne et écart-type à chaque semaine, en mm ou g.</translation>
    </message>
    <message>
        <source>%1
The mean weight is that of a fetus whose four lengths are the means. Its standard deviation is the
error of the formula, not the spread of a population; 0 where none is published.
</source>
        <translation>%1
Le poids moyen est celui d’un fœtus dont les quatre mesures sont les moyennes. Son écart-type est
l’erreur de la formule, non la dispersion d’une population&#xa0;; 0 quand aucune n’est publiée.
</translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw</source>
        <translation>l’un de bpd, hc, ac, fl, efw</translation>
    </message>
    <message>
        <source>the mean at W weeks</source>
        <translation>la moyenne à W SA</translation>
    </message>
    <message>
        <source>the standard deviation at W weeks</source>
        <translation>l’écart-type à W SA</translation>
    </message>
    <message>
        <source>the age in weeks of which MM (grams for efw) is the mean</source>
        <translation>l’âge en SA dont MM (grammes pour efw) est la moyenne</translation>
    </message>
    <message>
        <source>the same number as JSON</source>
        <translation>le même nombre en JSON</translation>
    </message>
    <message>
        <source>One look-up in a reference table, between whole weeks by linear interpolation.</source>
        <translation>Une lecture dans une table de référence, par interpolation linéaire entre les semaines entières.</translation>
    </message>
    <message>
        <source>The value may be -: then values are read from standard input, one a line, and answered one a line; a
line that is no number is answered by nan (null in JSON). Nothing is extrapolated: beyond the table
its first or last week counts, and standard error says so (of standard input once).

%1</source>
        <translation>La valeur peut être -&#xa0;: des valeurs sont alors lues sur l’entrée standard, une par ligne, et les
réponses données, une par ligne&#xa0;; la réponse à une ligne qui n’est pas un nombre est nan (null en
JSON). Rien n’est extrapolé&#xa0;: hors table, c’est la première ou la dernière semaine de la table qui
compte, et la sortie d’erreur standard le dit (une seule fois pour l’entrée standard).

%1</translation>
    </message>
    <message>
        <source>the paper of a PDF; without this option A4</source>
        <translation>le papier d’un PDF&#xa0;; sans cette option, A4</translation>
    </message>
    <message>
        <source>who examined</source>
        <translation>l’opérateur</translation>
    </message>
    <message>
        <source>a line at the head of each fetus; once for each line</source>
        <translation>une ligne en tête de chaque fœtus&#xa0;; à répéter pour chaque ligne</translation>
    </message>
    <message>
        <source>A summary for the records: a page or two a fetus, typeset, or as HTML.</source>
        <translation>Une synthèse pour le dossier&#xa0;: une page ou deux par fœtus, mise en page, ou en HTML.</translation>
    </message>
    <message>
        <source>EDD, measurements with z and centile by the growth standard, weights, growth, small charts, notes,
and the sources of all that was used. Each document is one file, &quot;NAME - Summary.pdf&quot;.
Files of the same names are replaced, but with --no-clobber. SOURCE_DATE_EPOCH, in seconds since
1970, takes the place of the present moment.
</source>
        <translation>DPA, mesures avec z et percentile selon le standard de croissance, poids, croissance, petits
graphiques, notes, et les sources de tout ce qui a été utilisé. Chaque document est un fichier,
«&#xa0;NAME - Summary.pdf&#xa0;». Les fichiers de même nom sont remplacés, sauf avec --no-clobber.
SOURCE_DATE_EPOCH, en secondes depuis 1970, prend la place de l’instant présent.
</translation>
    </message>
    <message>
        <source>growth standards by number or name, intergrowth-2014, with commas between; all for all four</source>
        <translation>standards de croissance par numéro ou nom, ou intergrowth-2014, avec virgules&#xa0;; all pour les quatre</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>il n’y a pas de ligne d’en-tête</translation>
    </message>
    <message>
        <source>there is no column %1: never measured</source>
        <translation>il n’y a pas de colonne %1&#xa0;: jamais mesuré</translation>
    </message>
    <message>
        <source>--columns: %1</source>
        <translation>--columns&#xa0;: %1</translation>
    </message>
    <message>
        <source>is a database of another program</source>
        <extracomment>Behind the name of a file, as are the next ones.</extracomment>
        <translation>est une base de données d’un autre programme</translation>
    </message>
    <message>
        <source>was made by another version of this program: remove it, and make it anew</source>
        <translation>a été créé par une autre version de ce programme&#xa0;: supprimez-le et recréez-le</translation>
    </message>
    <message>
        <source>no folder</source>
        <translation>aucun dossier</translation>
    </message>
    <message>
        <source>is the index of %1, not of %2</source>
        <translation>est un index pour %1, et non pour %2</translation>
    </message>
    <message>
        <source>is no index of this program</source>
        <translation>n’est pas un index de ce programme</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 ne prend pas de valeur</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 manque</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many</source>
        <translation>«&#xa0;%1&#xa0;» est un argument de trop</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>il n’y a pas de commande «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>il n’y a pas d’option «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>help explains one command</source>
        <translation>help explique une seule commande</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>il manque une commande</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>sortie standard&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>il n’y a pas assez de mémoire</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>avertissement</translation>
    </message>
    <message>
        <source>a document is no text for a terminal; give --out FILE or send standard output to a file</source>
        <translation>un document n’est pas un texte pour un terminal&#xa0;; indiquez --out FILE ou envoyez la sortie standard dans un fichier</translation>
    </message>
    <message>
        <source>written, but it may not outlast a power cut: %1</source>
        <translation>est écrit, mais pourrait ne pas survivre à une coupure de courant&#xa0;: %1</translation>
    </message>
    <message>
        <source>holds no patient</source>
        <extracomment>Behind the name of a file.</extracomment>
        <translation>ne contient pas de patiente</translation>
    </message>
    <message>
        <source>--fetus: expected all or a number from 1 to 5</source>
        <translation>--fetus&#xa0;: il fallait all ou un numéro de 1 à 5</translation>
    </message>
    <message>
        <source>--out is missing</source>
        <translation>--out manque</translation>
    </message>
    <message>
        <source>--format: expected pdf, png, svg, sr or fhir</source>
        <translation>--format&#xa0;: il fallait pdf, png, svg, sr ou fhir</translation>
    </message>
    <message>
        <source>--ndjson is for --format fhir</source>
        <translation>--ndjson ne vaut que pour --format fhir</translation>
    </message>
    <message>
        <source>--pages: expected all, first, last, a number from 0 to %1 or a name, but &quot;%2&quot; stands here</source>
        <translation>--pages&#xa0;: il fallait all, first, last, un numéro de 0 à %1 ou un nom, et non «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>--out - takes the pages of one document</source>
        <translation>--out - prend les pages d’un seul document</translation>
    </message>
    <message>
        <source>pages are no text for a terminal; give --out DIR or send standard output to a file</source>
        <translation>des pages ne sont pas un texte pour un terminal&#xa0;; indiquez --out DIR ou envoyez la sortie standard dans un fichier</translation>
    </message>
    <message>
        <source>--format: expected sr or fhir; pages are painted by the application, which is not built here</source>
        <translation>--format&#xa0;: il fallait sr ou fhir&#xa0;; les pages sont dessinées par l’application, qui n’est pas compilée ici</translation>
    </message>
    <message>
        <source>a length is missing</source>
        <translation>il manque une mesure</translation>
    </message>
    <message>
        <source>no formula dates %1 mm; they reach from %2 to %3 mm</source>
        <extracomment>Crown-rump lengths.</extracomment>
        <translation>aucune formule ne date %1 mm&#xa0;; elles vont de %2 à %3 mm</translation>
    </message>
    <message>
        <source>--fetus: expected ID=N with a number from 1 to 5, but &quot;%1&quot; stands here</source>
        <translation>--fetus&#xa0;: il fallait ID=N avec un numéro de 1 à 5, et non «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--patient takes a reference ID, and an empty one is none</source>
        <translation>--patient prend un identifiant, et un identifiant vide n’en est pas un</translation>
    </message>
    <message>
        <source>--patient takes a reference ID of UTF-8 text in one line</source>
        <translation>--patient prend un identifiant en texte UTF-8, sur une seule ligne</translation>
    </message>
    <message>
        <source>--fetus: &quot;%1&quot; is given two numbers</source>
        <translation>--fetus&#xa0;: «&#xa0;%1&#xa0;» reçoit deux numéros</translation>
    </message>
    <message>
        <source>is of patient &quot;%1&quot;, others are of &quot;%2&quot;; nothing is stored. Please import those of each patient alone</source>
        <translation>est de la patiente «&#xa0;%1&#xa0;», d’autres sont de «&#xa0;%2&#xa0;»&#xa0;; rien n’est enregistré. Veuillez importer séparément ceux de chaque patiente</translation>
    </message>
    <message>
        <source>it is there already, and stays as it is</source>
        <translation>existe déjà, et reste tel quel</translation>
    </message>
    <message>
        <source>--out and --into are two ways to store</source>
        <translation>--out et --into sont deux façons d’enregistrer, qui s’excluent</translation>
    </message>
    <message>
        <source>%1 takes a file</source>
        <translation>%1 prend un fichier</translation>
    </message>
    <message>
        <source>the same holds for %1 more of the input</source>
        <translation>il en va de même pour %1 de plus dans l’entrée</translation>
    </message>
    <message>
        <source>--db is missing: the file of the index</source>
        <translation>--db manque&#xa0;: le fichier de l’index</translation>
    </message>
    <message>
        <source>a whole number from 0</source>
        <translation>un nombre entier, 0 ou plus</translation>
    </message>
    <message>
        <source>a day such as 2027-04-10</source>
        <translation>un jour comme 2027-04-10</translation>
    </message>
    <message>
        <source>three characters or more</source>
        <translation>au moins trois caractères</translation>
    </message>
    <message>
        <source>there are more than %1: a longer text, or --limit, shows them</source>
        <translation>il y en a plus de %1&#xa0;: pour les voir, indiquez un texte plus long ou --limit</translation>
    </message>
    <message>
        <source>longer than 1 GiB, which no document is</source>
        <translation>dépasse 1 GiB, ce que ne fait aucun document</translation>
    </message>
    <message>
        <source>line %1: expected a decimal number, but &quot;%2&quot; stands here</source>
        <translation>ligne %1&#xa0;: il fallait un nombre décimal, et non «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>%1 or a whole number from 0 to %2</source>
        <extracomment>%1 is a list of names.</extracomment>
        <translation>%1 ou un nombre entier de 0 à %2</translation>
    </message>
    <message>
        <source>expected bpd, hc, ac, fl or efw as the measurement, but &quot;%1&quot; was given</source>
        <translation>il fallait bpd, hc, ac, fl ou efw comme paramètre, et non «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1: expected %2, but &quot;%3&quot; was given</source>
        <extracomment>%1 is an option or an operand, %2 what it takes, %3 what was typed.</extracomment>
        <translation>%1&#xa0;: il fallait %2, et non «&#xa0;%3&#xa0;»</translation>
    </message>
    <message>
        <source>a decimal number</source>
        <translation>un nombre décimal</translation>
    </message>
    <message>
        <source>the reference ID has a character that a DICOM report cannot hold</source>
        <translation>l’identifiant a un caractère qu’un rapport DICOM ne peut pas contenir</translation>
    </message>
    <message>
        <source>the reference ID is longer than the 64 characters of a DICOM report</source>
        <translation>l’identifiant dépasse les 64 caractères d’un rapport DICOM</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>ne peut pas être écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>--%1 is for pages, not for --format %2</source>
        <translation>--%1 vaut pour les pages, non pour --format %2</translation>
    </message>
    <message>
        <source>--ndjson writes to standard output, and takes no --out</source>
        <translation>--ndjson écrit sur la sortie standard, et ne va pas avec --out</translation>
    </message>
    <message>
        <source>--out is missing, or no folder</source>
        <translation>--out manque, ou n’est pas un dossier</translation>
    </message>
    <message>
        <source>it holds no examination, and nothing is written</source>
        <translation>ne contient pas d’examen, et rien n’est écrit</translation>
    </message>
    <message>
        <source>--out needs the recovery file to write; recover alone lists them</source>
        <translation>--out exige le fichier de récupération à écrire&#xa0;; recover seul énumère ces fichiers</translation>
    </message>
    <message>
        <source>give --out DOCUMENT, where to write the document</source>
        <translation>indiquez --out DOCUMENT, où écrire le document</translation>
    </message>
    <message>
        <source>a number above 0</source>
        <translation>un nombre supérieur à 0</translation>
    </message>
    <message>
        <source>a number between 0 and 100, both excluded</source>
        <translation>un nombre entre 0 et 100, bornes exclues</translation>
    </message>
    <message>
        <source>%1 tells nothing of %2; it has %3</source>
        <extracomment>%1 is a reference, %2 a measurement, %3 a list of measurements.</extracomment>
        <translation>%1 ne dit rien de %2&#xa0;; on y trouve %3</translation>
    </message>
    <message>
        <source>--week is missing</source>
        <translation>--week manque</translation>
    </message>
    <message>
        <source>--value, --centile and --z exclude each other</source>
        <translation>--value, --centile et --z s’excluent</translation>
    </message>
    <message>
        <source>--week and --%1 cannot both be -</source>
        <translation>--week et --%1 ne peuvent pas être - en même temps</translation>
    </message>
    <message>
        <source>expected %1, but %2 was given</source>
        <translation>il fallait %1, et non %2</translation>
    </message>
    <message>
        <source>NAME is missing</source>
        <translation>NAME manque</translation>
    </message>
    <message>
        <source>MEASURE is missing</source>
        <translation>MEASURE manque</translation>
    </message>
    <message>
        <source>%1: fmf-2018 is not offered, because its formula was not held against its printed table</source>
        <translation>%1&#xa0;: fmf-2018 n’est pas proposée, car sa formule n’a pas été comparée à sa table imprimée</translation>
    </message>
    <message>
        <source>%1: expected one of %2, but &quot;%3&quot; was given</source>
        <extracomment>%1 is an option or an operand, %2 a list of names.</extracomment>
        <translation>%1&#xa0;: il fallait l’un de %2, et non «&#xa0;%3&#xa0;»</translation>
    </message>
    <message>
        <source>--standard: %1 has no mean and SD of the four lengths</source>
        <translation>--standard&#xa0;: %1 n’a pas de moyenne ni d’écart-type pour les quatre mesures</translation>
    </message>
    <message>
        <source>--standard: &quot;%1&quot; stands there twice</source>
        <translation>--standard&#xa0;: «&#xa0;%1&#xa0;» y figure deux fois</translation>
    </message>
    <message>
        <source>--columns: a name is empty</source>
        <translation>--columns&#xa0;: un nom est vide</translation>
    </message>
    <message>
        <source>--columns: &quot;%1&quot; stands there twice</source>
        <translation>--columns&#xa0;: «&#xa0;%1&#xa0;» y figure deux fois</translation>
    </message>
    <message>
        <source>--columns: there is no column &quot;%1&quot;</source>
        <translation>--columns&#xa0;: il n’y a pas de colonne «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--columns: %1 needs --identify</source>
        <translation>--columns&#xa0;: %1 exige --identify</translation>
    </message>
    <message>
        <source>--columns: %1 is a date, which --relative-dates leaves out</source>
        <translation>--columns&#xa0;: %1 est une date, que --relative-dates omet</translation>
    </message>
    <message>
        <source>--columns: %1 needs --relative-dates</source>
        <translation>--columns&#xa0;: %1 exige --relative-dates</translation>
    </message>
    <message>
        <source>--file: expected number or path</source>
        <translation>--file&#xa0;: il fallait number ou path</translation>
    </message>
    <message>
        <source>--format: expected csv or jsonl</source>
        <translation>--format&#xa0;: il fallait csv ou jsonl</translation>
    </message>
    <message>
        <source>a whole number above 0</source>
        <translation>un nombre entier supérieur à 0</translation>
    </message>
    <message>
        <source>--null needs --files-from</source>
        <translation>--null exige --files-from</translation>
    </message>
    <message>
        <source>--tar stands alone, without PATH and --files-from</source>
        <translation>--tar s’emploie seul, sans PATH ni --files-from</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only</source>
        <translation>l’entrée standard (-) ne peut être lue qu’une fois</translation>
    </message>
    <message>
        <source>a PATH, --files-from or --tar is missing</source>
        <translation>il manque un PATH, --files-from ou --tar</translation>
    </message>
    <message>
        <source>--time-zone: this system knows no zone &quot;%1&quot;</source>
        <translation>--time-zone&#xa0;: ce système ne connaît pas le fuseau horaire «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 of %2 values differ</source>
        <translation>valeurs qui diffèrent&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>--%1: expected a day like 2026-11-23, but &quot;%2&quot; stands here</source>
        <translation>--%1&#xa0;: il fallait un jour comme 2026-11-23, et non «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>--patient: the reference ID is empty</source>
        <translation>--patient&#xa0;: l’identifiant est vide</translation>
    </message>
    <message>
        <source>--study: the UID is empty</source>
        <translation>--study&#xa0;: l’UID est vide</translation>
    </message>
    <message>
        <source>has no such report</source>
        <translation>n’a aucun rapport correspondant</translation>
    </message>
    <message>
        <source>is not sent, because the server did not answer before</source>
        <translation>n’est pas envoyé, car le serveur n’a pas répondu la fois précédente</translation>
    </message>
    <message>
        <source>is not sent: %1 %2</source>
        <extracomment>%1 is the address of a server, %2 what is wrong with it: &quot;... is not sent: host:104 does not answer&quot;.</extracomment>
        <translation>n’est pas envoyé&#xa0;: %1 %2</translation>
    </message>
    <message>
        <source>--%1 is not for %2</source>
        <translation>--%1 ne vaut pas pour %2</translation>
    </message>
    <message>
        <source>%1 takes no FILE</source>
        <translation>%1 ne prend pas de FILE</translation>
    </message>
    <message>
        <source>fetch needs --patient or --study</source>
        <translation>fetch exige --patient ou --study</translation>
    </message>
    <message>
        <source>--out takes a folder</source>
        <translation>--out prend un dossier</translation>
    </message>
    <message>
        <source>expected echo, find, fetch or send</source>
        <translation>il fallait echo, find, fetch ou send</translation>
    </message>
    <message>
        <source>is not contacted: %1</source>
        <translation>n’est pas contacté&#xa0;: %1</translation>
    </message>
    <message>
        <source>the connection is not encrypted: what goes over it can be read on its way; see --ca</source>
        <translation>la connexion n’est pas chiffrée&#xa0;: ce qui y passe peut être lu en chemin&#xa0;; voir --ca</translation>
    </message>
    <message>
        <source>efw needs --formula</source>
        <translation>efw exige --formula</translation>
    </message>
    <message>
        <source>%1 lies beyond the table, whose first week, %2, counts</source>
        <translation>%1 est hors table&#xa0;; c’est la première semaine, %2, qui compte</translation>
    </message>
    <message>
        <source>%1 lies beyond the table, whose last week, %2, counts</source>
        <translation>%1 est hors table&#xa0;; c’est la dernière semaine, %2, qui compte</translation>
    </message>
    <message>
        <source>--mean, --sd and --gestation exclude each other</source>
        <translation>--mean, --sd et --gestation s’excluent</translation>
    </message>
    <message>
        <source>one of --mean, --sd and --gestation is missing</source>
        <translation>il manque --mean, --sd ou --gestation</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <extracomment>%1 is a sentence, %2 what may have been meant.</extracomment>
        <translation>%1&#xa0;; vouliez-vous dire «&#xa0;%2&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH: expected whole seconds since 1970</source>
        <translation>SOURCE_DATE_EPOCH&#xa0;: il fallait un nombre entier de secondes depuis 1970</translation>
    </message>
    <message>
        <source>--paper: expected a4 or letter</source>
        <translation>--paper&#xa0;: il fallait a4 ou letter</translation>
    </message>
    <message>
        <source>cannot be put on paper: %1</source>
        <translation>ne peut pas être mis en page&#xa0;: %1</translation>
    </message>
    <message>
        <source>--format: expected pdf or html</source>
        <translation>--format&#xa0;: il fallait pdf ou html</translation>
    </message>
    <message>
        <source>--out - takes the summary of one document</source>
        <translation>--out - prend la synthèse d’un seul document</translation>
    </message>
    <message>
        <source>a PDF is no text for a terminal; give --out DIR or send standard output to a file</source>
        <translation>un PDF n’est pas un texte pour un terminal&#xa0;; indiquez --out DIR ou envoyez la sortie standard dans un fichier</translation>
    </message>
    <message>
        <source>it has no such fetus</source>
        <translation>n’a pas ce fœtus</translation>
    </message>
    <message>
        <source>%1 of %2 values differs</source>
        <translation>valeur qui diffère&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>%1 has no value</source>
        <translation>%1 n’a pas de valeur</translation>
    </message>
    <message>
        <source>%1 can be given once, and stands there %2 times</source>
        <translation>%1 ne s’indique qu’une fois, et figure %2 fois</translation>
    </message>
    <message>
        <source>%1; the application, which is installed apart, paints the pages</source>
        <translation>%1&#xa0;; c’est l’application, à installer séparément, qui dessine les pages</translation>
    </message>
    <message>
        <source>%1, by --patient</source>
        <translation>%1, par --patient</translation>
    </message>
    <message>
        <source>a decimal number with a point, such as 61.2</source>
        <translation>un nombre décimal avec un point, comme 61.2</translation>
    </message>
    <message>
        <source>--out: expected a folder, but &quot;%1&quot; is named like a file</source>
        <translation>--out&#xa0;: un dossier est attendu, mais «&#xa0;%1&#xa0;» porte un nom de fichier</translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>BPD</source>
        <translation>BIP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>PC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>PA</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>LF</translation>
    </message>
    <message>
        <source>EFW</source>
        <translation>EPF</translation>
    </message>
    <message>
        <source>The age is not known.</source>
        <translation>L’âge n’est pas connu.</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>The mean of the reference at this age, in mm. A reference that has curves alone has none.</source>
        <translation>La moyenne de la référence à cet âge, en mm. Une référence qui n’a que des courbes n’en a pas.</translation>
    </message>
    <message>
        <source>SD</source>
        <translation>ET</translation>
    </message>
    <message>
        <source>One standard deviation at this age, in mm.</source>
        <translation>Un écart-type à cet âge, en mm.</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Médiane</translation>
    </message>
    <message>
        <source>Half of the population lies below it, in mm.</source>
        <translation>La moitié de la population se trouve au-dessous, en mm.</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>Standard deviations from the mean.</source>
        <translation>Nombre d’écarts-types par rapport à la moyenne.</translation>
    </message>
    <message>
        <source>Centile</source>
        <translation>Percentile</translation>
    </message>
    <message>
        <source>How many of 100 lie below the value.</source>
        <translation>Combien sur 100 se trouvent au-dessous de la valeur.</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Âge</translation>
    </message>
    <message>
        <source>The age of which the value is the median.</source>
        <translation>L’âge dont la valeur est la médiane.</translation>
    </message>
    <message>
        <source>Weights</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formule</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>From the weight by the formula in force, in g.</source>
        <translation>Par rapport au poids selon la formule choisie, en g.</translation>
    </message>
    <message>
        <source>The centile in this population of weights.</source>
        <translation>Le percentile dans cette population de poids.</translation>
    </message>
    <message>
        <source>From one length alone.</source>
        <translation>D’après une seule mesure.</translation>
    </message>
    <message>
        <source>Ratios</source>
        <translation>Ratios</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Ratio</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Fetuses</source>
        <translation>Fœtus</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Fœtus</translation>
    </message>
    <message>
        <source>By the formula in force, in g.</source>
        <translation>Selon la formule choisie, en g.</translation>
    </message>
    <message>
        <source>In mm.</source>
        <translation>En mm.</translation>
    </message>
    <message>
        <source>Discordance (%)</source>
        <translation>Discordance (%)</translation>
    </message>
    <message>
        <source>How much less this fetus weighs than the heaviest.</source>
        <translation>De combien ce fœtus pèse moins que le plus lourd.</translation>
    </message>
    <message>
        <source>Growth</source>
        <translation>Croissance</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Per Week</source>
        <translation>Par semaine</translation>
    </message>
    <message>
        <source>Since the last examination that has it: mm a week, or g a week.</source>
        <translation>Depuis le dernier examen où il figure&#xa0;: mm par semaine, ou g par semaine.</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Attendu</translation>
    </message>
    <message>
        <source>By how much the mean of the growth standard grows.</source>
        <translation>De combien augmente la moyenne du standard de croissance.</translation>
    </message>
    <message>
        <source>Change of z</source>
        <translation>Variation de z</translation>
    </message>
    <message>
        <source>By the growth standard in force.</source>
        <translation>Selon le standard de croissance choisi.</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Export CSV...</source>
        <translation>&amp;Exporter en CSV...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>Exporter en CSV</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tableaux (*.csv)</translation>
    </message>
    <message>
        <source>The table cannot be exported.</source>
        <translation>Le tableau ne peut pas être exporté.</translation>
    </message>
    <message>
        <source>Where This Comes From</source>
        <translation>Origine de cette valeur</translation>
    </message>
    <message>
        <source>%1 has %2 to %3 weeks.</source>
        <translation>%1 couvre les semaines %2 à %3.</translation>
    </message>
    <message>
        <source>%1 fits weights by another formula alone: %2.</source>
        <translation>%1 ne vaut que pour les poids d’une autre formule&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 has no place for this value.</source>
        <translation>%1 ne permet pas de situer cette valeur.</translation>
    </message>
</context>
<context>
    <name>CorvelDocument</name>
    <message>
        <source>Modify</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>A field holds a text that is not permitted.</source>
        <translation>Un champ contient un texte non admis.</translation>
    </message>
    <message>
        <source>%ld bytes</source>
        <translation>%ld octets</translation>
    </message>
    <message>
        <source>What was entered here besides reference ID and gravidity will be lost.</source>
        <translation>Ce qui a été saisi ici, en dehors de l’identifiant et de la gestité, sera perdu.</translation>
    </message>
    <message>
        <source>This patient has a document already.</source>
        <translation>Cette patiente a déjà un document.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>The page was not exported.</source>
        <translation>La page n’a pas été exportée.</translation>
    </message>
    <message>
        <source>Please make room in this folder, or choose another in Export Settings.</source>
        <translation>Veuillez libérer de la place dans ce dossier, ou en choisir un autre dans les options d’exportation.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>This program was built without painting.</source>
        <translation>Ce programme a été compilé sans la fonction de dessin.</translation>
    </message>
    <message>
        <source>The document was not printed.</source>
        <translation>Le document n’a pas été imprimé.</translation>
    </message>
    <message>
        <source>The document cannot be opened.</source>
        <translation>Le document ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>It is open in another window.</source>
        <translation>Il est ouvert dans une autre fenêtre.</translation>
    </message>
    <message>
        <source>The document was saved, but its file cannot hold all of it.</source>
        <translation>Le document a été enregistré, mais son fichier ne peut pas tout contenir.</translation>
    </message>
    <message>
        <source>The document was not saved.</source>
        <translation>Le document n’a pas été enregistré.</translation>
    </message>
    <message>
        <source>Another program has changed the file of this document. Do you want to replace what it holds now?</source>
        <translation>Un autre programme a modifié le fichier de ce document. Voulez-vous remplacer ce qu’il contient maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>To keep both, cancel and save this document under another name.</source>
        <translation>Pour garder les deux, annulez et enregistrez ce document sous un autre nom.</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>Enregistrer quand même</translation>
    </message>
    <message>
        <source>Do you want to save the changes of this document?</source>
        <translation>Voulez-vous enregistrer les modifications de ce document&#xa0;?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>These documents cannot be opened.</source>
        <translation>Ces documents ne peuvent pas être ouverts.</translation>
    </message>
    <message>
        <source>A field holds a text that is not permitted. It will not be saved.</source>
        <translation>Un champ contient un texte non admis. Il ne sera pas enregistré.</translation>
    </message>
    <message>
        <source>%1 is not a Nascor document.</source>
        <translation>%1 n’est pas un document Nascor.</translation>
    </message>
    <message>
        <source>Do you want to go back to the document as it was last saved?</source>
        <translation>Voulez-vous revenir au document tel qu’il a été enregistré en dernier&#xa0;?</translation>
    </message>
    <message>
        <source>All changes since then will be lost.</source>
        <translation>Toutes les modifications faites depuis seront perdues.</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>The document cannot be read.</source>
        <translation>Le document ne peut pas être lu.</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>Machine:</source>
        <translation>Ordinateur&#xa0;:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Depuis&#xa0;:</translation>
    </message>
    <message>
        <source>Process:</source>
        <translation>Processus&#xa0;:</translation>
    </message>
    <message>
        <source>It is open elsewhere.</source>
        <translation>Il est ouvert ailleurs.</translation>
    </message>
    <message>
        <source>Read-only, it can be saved only under another name. A copy is a new document.</source>
        <translation>Ouvert en lecture seule, il ne peut être enregistré que sous un autre nom. Une copie est un nouveau document.</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Ouvrir en lecture seule</translation>
    </message>
    <message>
        <source>Open a Copy</source>
        <translation>Ouvrir une copie</translation>
    </message>
    <message>
        <source>Nothing tells from here whether that machine still works on it. Open it anyway only if you know that it does not.</source>
        <translation>Rien ne permet de savoir d’ici si cet ordinateur travaille encore sur le document. Ne l’ouvrez quand même que si vous savez que ce n’est pas le cas.</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Ouvrir quand même</translation>
    </message>
    <message>
        <source>This document is open elsewhere. How do you want to open it?</source>
        <translation>Ce document est ouvert ailleurs. Comment voulez-vous l’ouvrir&#xa0;?</translation>
    </message>
    <message>
        <source>The document was written, but the system does not vouch that it outlasts a power cut. Please save it again.</source>
        <translation>Le document a été écrit, mais le système ne garantit pas qu’il survive à une coupure de courant. Veuillez l’enregistrer de nouveau.</translation>
    </message>
    <message>
        <source>The file of this document is gone. Do you want to write it again?</source>
        <translation>Le fichier de ce document a disparu. Voulez-vous l’écrire de nouveau&#xa0;?</translation>
    </message>
    <message>
        <source>Another program or another user has removed, moved or renamed it.</source>
        <translation>Un autre programme ou un autre utilisateur l’a supprimé, déplacé ou renommé.</translation>
    </message>
    <message>
        <source>The file of this document cannot be read. Do you want to replace it?</source>
        <translation>Le fichier de ce document ne peut pas être lu. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Another program has changed the file of this document.</source>
        <translation>Un autre programme a modifié le fichier de ce document.</translation>
    </message>
    <message>
        <source>Another program has changed the file of this document. Revert reads it.</source>
        <translation>Un autre programme a modifié le fichier de ce document. «&#xa0;Revenir à la version enregistrée&#xa0;» le relit.</translation>
    </message>
    <message>
        <source>The file of this document is gone.</source>
        <translation>Le fichier de ce document a disparu.</translation>
    </message>
    <message>
        <source>The file of this document cannot be read:</source>
        <translation>Le fichier de ce document ne peut pas être lu&#xa0;:</translation>
    </message>
</context>
<context>
    <name>Counting</name>
    <message>
        <source>1</source>
        <extracomment>The counts that go with the form for one, with blanks between: &quot;1&quot; in English and German (&quot;1 byte&quot;, &quot;0 bytes&quot;), &quot;0 1&quot; in French.</extracomment>
        <translation>0 1</translation>
    </message>
</context>
<context>
    <name>DataMenu</name>
    <message>
        <source>Export Data...</source>
        <translation>Exporter les données...</translation>
    </message>
    <message>
        <source>Export Data</source>
        <translation>Exporter les données</translation>
    </message>
    <message>
        <source>Table for spreadsheets (*.csv)</source>
        <translation>Tableau pour tableurs (*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>The data were not exported.</source>
        <translation>Les données n’ont pas été exportées.</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exporté vers %1</translation>
    </message>
    <message>
        <source>FHIR bundle for health records (*.fhir.json)</source>
        <translation>Bundle FHIR pour dossiers médicaux (*.fhir.json)</translation>
    </message>
    <message>
        <source>DICOM report of this examination (*.dcm)</source>
        <translation>Rapport DICOM de cet examen (*.dcm)</translation>
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
        <translation>p.&#xa0;ex. %1</translation>
    </message>
    <message>
        <source>for example %1</source>
        <translation>par exemple %1</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>pas de date</translation>
    </message>
    <message>
        <source>Keeps the EDD from being set. %1</source>
        <translation>Empêche de fixer la DPA. %1</translation>
    </message>
    <message>
        <source>Crown-rump length</source>
        <translation>Longueur cranio-caudale</translation>
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
        <translation>de %1 à %2&#xa0;mm</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1&#xa0;mm</translation>
    </message>
    <message>
        <source>! beyond 2 SD</source>
        <translation>! au-delà de 2&#xa0;ET</translation>
    </message>
    <message>
        <source>! not measured</source>
        <translation>! non mesuré</translation>
    </message>
    <message>
        <source>More than 2 standard deviations from the mean at the average. %1</source>
        <translation>À plus de 2 écarts-types de la moyenne pour l’âge moyen. %1</translation>
    </message>
    <message>
        <source>Not measured. %1</source>
        <translation>Non mesuré. %1</translation>
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
        <translation>%1 (lecture seule)</translation>
    </message>
</context>
<context>
    <name>EDDFromCRL</name>
    <message>
        <source>EDD from CRL</source>
        <translation>DPA d’après la LCC</translation>
    </message>
    <message>
        <source>The day of the scan</source>
        <translation>Le jour de l’échographie</translation>
    </message>
    <message>
        <source>&amp;Scan date</source>
        <translation>&amp;Date de l’échographie</translation>
    </message>
    <message>
        <source>Crown-rump length</source>
        <translation>Longueur cranio-caudale</translation>
    </message>
    <message>
        <source>Crown-&amp;rump length</source>
        <translation>&amp;Longueur cranio-caudale</translation>
    </message>
    <message>
        <source>The formula in force, chosen in the menu</source>
        <translation>La formule choisie dans le menu</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formule</translation>
    </message>
    <message>
        <source>The examination on show</source>
        <translation>L’examen affiché</translation>
    </message>
</context>
<context>
    <name>EDDFromLMP</name>
    <message>
        <source>EDD from LMP</source>
        <translation>DPA d’après la DDR</translation>
    </message>
    <message>
        <source>First day of the last menstrual period</source>
        <translation>Premier jour des dernières règles</translation>
    </message>
    <message>
        <source>&amp;Last menstrual period</source>
        <translation>&amp;Dernières règles</translation>
    </message>
    <message>
        <source>Length of the cycle, in whole days</source>
        <translation>Durée du cycle, en jours entiers</translation>
    </message>
    <message>
        <source>C&amp;ycle</source>
        <translation>&amp;Cycle</translation>
    </message>
    <message>
        <source>days</source>
        <translation>jours</translation>
    </message>
    <message>
        <source>Length of the luteal phase, in whole days</source>
        <translation>Durée de la phase lutéale, en jours entiers</translation>
    </message>
    <message>
        <source>Luteal &amp;phase</source>
        <translation>&amp;Phase lutéale</translation>
    </message>
</context>
<context>
    <name>EDDFromMeasurements</name>
    <message>
        <source>EDD from Measurements</source>
        <translation>DPA d’après les mesures</translation>
    </message>
    <message>
        <source>The examination and the fetus on show</source>
        <translation>L’examen et le fœtus affichés</translation>
    </message>
    <message>
        <source>Examination</source>
        <translation>Examen</translation>
    </message>
    <message>
        <source>Biparietal diameter: counts in the average</source>
        <translation>Diamètre bipariétal&#xa0;: compte dans la moyenne</translation>
    </message>
    <message>
        <source>&amp;BPD</source>
        <translation>&amp;BIP</translation>
    </message>
    <message>
        <source>Biparietal diameter: menstrual age of which it is the mean</source>
        <translation>Diamètre bipariétal&#xa0;: âge gestationnel dont il est la moyenne</translation>
    </message>
    <message>
        <source>Head circumference: counts in the average</source>
        <translation>Périmètre céphalique&#xa0;: compte dans la moyenne</translation>
    </message>
    <message>
        <source>&amp;HC</source>
        <translation>P&amp;C</translation>
    </message>
    <message>
        <source>Head circumference: menstrual age of which it is the mean</source>
        <translation>Périmètre céphalique&#xa0;: âge gestationnel dont il est la moyenne</translation>
    </message>
    <message>
        <source>Abdominal circumference: counts in the average</source>
        <translation>Périmètre abdominal&#xa0;: compte dans la moyenne</translation>
    </message>
    <message>
        <source>&amp;AC</source>
        <translation>&amp;PA</translation>
    </message>
    <message>
        <source>Abdominal circumference: menstrual age of which it is the mean</source>
        <translation>Périmètre abdominal&#xa0;: âge gestationnel dont il est la moyenne</translation>
    </message>
    <message>
        <source>Femur length: counts in the average</source>
        <translation>Longueur fémorale&#xa0;: compte dans la moyenne</translation>
    </message>
    <message>
        <source>&amp;FL</source>
        <translation>&amp;LF</translation>
    </message>
    <message>
        <source>Femur length: menstrual age of which it is the mean</source>
        <translation>Longueur fémorale&#xa0;: âge gestationnel dont elle est la moyenne</translation>
    </message>
    <message>
        <source>Average of the ages that are checked</source>
        <translation>Moyenne des âges cochés</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Late in pregnancy, dating by size reads growth as age: a fetus that is small or large is taken for a younger or an older one.</source>
        <translation>En fin de grossesse, dater d’après la taille revient à prendre la croissance pour de l’âge&#xa0;: un fœtus petit ou grand passe pour plus jeune ou plus âgé.</translation>
    </message>
</context>
<context>
    <name>Evidence</name>
    <message>
        <source>week</source>
        <translation>semaine</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valeur</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>moyenne</translation>
    </message>
    <message>
        <source>SD</source>
        <translation>ET</translation>
    </message>
    <message>
        <source>centile</source>
        <translation>percentile</translation>
    </message>
    <message>
        <source>planned week</source>
        <translation>semaine programmée</translation>
    </message>
    <message>
        <source>median</source>
        <translation>médiane</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>BIP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>PC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>PA</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>LF</translation>
    </message>
    <message>
        <source>EFW</source>
        <translation>EPF</translation>
    </message>
    <message>
        <source>CRL</source>
        <translation>LCC</translation>
    </message>
</context>
<context>
    <name>FieldBinding</name>
    <message>
        <source>no record</source>
        <translation>aucune donnée</translation>
    </message>
    <message>
        <source>Nothing can be entered here: the document holds no record for it.</source>
        <translation>Rien ne peut être saisi ici&#xa0;: le document n’a pas de place pour cette donnée.</translation>
    </message>
    <message>
        <source>Belongs to no fetus: the fetus was removed. %1</source>
        <translation>N’appartient à aucun fœtus&#xa0;: le fœtus a été retiré. %1</translation>
    </message>
    <message>
        <source>No more text fits here.</source>
        <translation>Le champ ne peut pas contenir plus de texte.</translation>
    </message>
    <message>
        <source>This text is too long to be shown whole. It is kept whole, and cannot be changed here.</source>
        <translation>Ce texte est trop long pour être affiché en entier. Il est conservé en entier et ne peut pas être modifié ici.</translation>
    </message>
</context>
<context>
    <name>FilePanels</name>
    <message>
        <source>%1: The file&apos;s name is not UTF-8. Please rename the file and open it again.</source>
        <translation>%1&#xa0;: le nom du fichier n’est pas en UTF-8. Veuillez renommer le fichier et l’ouvrir de nouveau.</translation>
    </message>
    <message>
        <source>Nascor documents (*.%1)</source>
        <translation>Documents Nascor (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Folder for Exported Pages</source>
        <translation>Dossier des pages exportées</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>Importer un rapport</translation>
    </message>
    <message>
        <source>Reports (*.dcm *.json)</source>
        <translation>Rapports (*.dcm *.json)</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Not a regular file</source>
        <translation>Ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>It was changed meanwhile</source>
        <translation>Il a été modifié entre-temps</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>BPD</source>
        <translation>BIP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>PC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>PA</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>LF</translation>
    </message>
    <message>
        <source>CRL</source>
        <translation>LCC</translation>
    </message>
    <message>
        <source>a result of the examination is not in the bundle</source>
        <translation>un résultat de l’examen n’est pas dans le bundle</translation>
    </message>
    <message>
        <source>an observation of status &quot;%1&quot; is passed over</source>
        <translation>une observation au statut «&#xa0;%1&#xa0;» est laissée de côté</translation>
    </message>
    <message>
        <source>an observation of another fetus stands in the panel of fetus %1</source>
        <translation>une observation d’un autre fœtus figure dans le panneau du fœtus %1</translation>
    </message>
    <message>
        <source>is longer than any FHIR bundle that is read (16 MiB)</source>
        <translation>dépasse tout bundle FHIR qui est lu (16&#xa0;MiB)</translation>
    </message>
    <message>
        <source>is nested deeper than any FHIR bundle</source>
        <translation>est imbriqué plus profondément qu’aucun bundle FHIR</translation>
    </message>
    <message>
        <source>is no JSON that can be read</source>
        <translation>n’est pas du JSON lisible</translation>
    </message>
    <message>
        <source>is no FHIR bundle</source>
        <translation>n’est pas un bundle FHIR</translation>
    </message>
    <message>
        <source>is a FHIR bundle in which two patients have one identifier</source>
        <translation>est un bundle FHIR où deux patientes ont le même identifiant</translation>
    </message>
    <message>
        <source>is a FHIR bundle without an examination</source>
        <translation>est un bundle FHIR sans examen</translation>
    </message>
    <message>
        <source>fetus %1: %2</source>
        <extracomment>%1 is the ID of a fetus, %2 one of its lengths or a sentence about it.</extracomment>
        <translation>fœtus %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>flagged</source>
        <extracomment>This word and the next ones say of a value how it came about: &quot;a flagged value is taken before a plain one&quot;, &quot;fetus 1: BPD is calculated, not measured&quot;. A flagged one was chosen at the machine.</extracomment>
        <translation>choisie sur l’échographe</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>moyenne</translation>
    </message>
    <message>
        <source>calculated</source>
        <translation>calculée</translation>
    </message>
    <message>
        <source>estimated</source>
        <translation>estimée</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>simple</translation>
    </message>
    <message>
        <source>gravida</source>
        <extracomment>Stands in &quot;the report gives several numbers for %1; the first is taken&quot;, as the next one.</extracomment>
        <translation>la gestité</translation>
    </message>
    <message>
        <source>numberOfFetuses</source>
        <translation>le nombre de fœtus</translation>
    </message>
    <message>
        <source>the date of the examination, &quot;%1&quot;, is no day</source>
        <translation>la date de l’examen, «&#xa0;%1&#xa0;», n’est pas un jour</translation>
    </message>
    <message>
        <source>no length is taken from %1</source>
        <translation>aucune mesure n’est reprise de cette section&#xa0;: %1</translation>
    </message>
    <message>
        <source>a centile of the machine&apos;s weight is never taken</source>
        <translation>un percentile du poids de l’échographe n’est jamais repris</translation>
    </message>
    <message>
        <source>no measure that a document stores (%1)</source>
        <extracomment>%1 is the section of the report that it stands in.</extracomment>
        <translation>n’est pas une mesure qu’un document enregistre (%1)</translation>
    </message>
    <message>
        <source>the report itself</source>
        <translation>le rapport lui-même</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no count</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre entier</translation>
    </message>
    <message>
        <source>the report said %1 before</source>
        <translation>le rapport disait %1 auparavant</translation>
    </message>
    <message>
        <source>the report gives several numbers for %1; the first is taken</source>
        <translation>le rapport donne plusieurs nombres pour %1&#xa0;; le premier est repris</translation>
    </message>
    <message>
        <source>the report holds no value</source>
        <translation>le rapport ne contient pas de valeur</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is neither g nor kg</source>
        <translation>l’unité «&#xa0;%1&#xa0;» n’est ni g ni kg</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is neither mm nor cm</source>
        <translation>l’unité «&#xa0;%1&#xa0;» n’est ni mm ni cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no finite number</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre fini</translation>
    </message>
    <message>
        <source>it is not above 0</source>
        <translation>elle n’est pas supérieure à 0</translation>
    </message>
    <message>
        <source>its derivation is &quot;%1&quot;</source>
        <translation>son mode d’obtention est «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no day</source>
        <extracomment>%1 is what a date of the report is called there, %2 what stands in its place.</extracomment>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» n’est pas un jour</translation>
    </message>
    <message>
        <source>%1, by the average ultrasound age, is never taken</source>
        <translation>%1, d’après l’âge échographique moyen, n’est jamais repris</translation>
    </message>
    <message>
        <source>the last period, %1, makes no EDD by itself</source>
        <translation>les dernières règles, %1, ne donnent pas à elles seules une DPA</translation>
    </message>
    <message>
        <source>the report holds two EDDs, %1 and %2; the first is taken</source>
        <translation>le rapport contient deux DPA, %1 et %2&#xa0;; la première est reprise</translation>
    </message>
    <message>
        <source>%1 is another day than the EDD that is taken</source>
        <translation>%1 est un autre jour que la DPA reprise</translation>
    </message>
    <message>
        <source>%1, by the last period, is another day than the EDD that is taken</source>
        <translation>%1, d’après les dernières règles, est un autre jour que la DPA reprise</translation>
    </message>
    <message>
        <source>another weight is compared</source>
        <translation>un autre poids est comparé</translation>
    </message>
    <message>
        <source>it has a private code, and another value the standard one</source>
        <translation>le code est propre au fabricant, et une autre valeur porte le code standard</translation>
    </message>
    <message>
        <source>%1 stands under a private code of the machine&apos;s maker</source>
        <translation>%1 figure sous un code propre au fabricant de l’échographe</translation>
    </message>
    <message>
        <source>a %1 value is taken before a %2 one</source>
        <translation>une autre valeur est préférée (%1 plutôt que %2)</translation>
    </message>
    <message>
        <source>%1: the value that the report flags is %2, and is not taken</source>
        <translation>%1&#xa0;: la valeur que le rapport signale est %2, et n’est pas reprise</translation>
    </message>
    <message>
        <source>%1 is %2, not measured, though the report flags it</source>
        <translation>%1&#xa0;: valeur %2, non mesurée, bien que le rapport la signale</translation>
    </message>
    <message>
        <source>%1 is %2, not measured</source>
        <translation>%1&#xa0;: valeur %2, non mesurée</translation>
    </message>
    <message>
        <source>%1: several %2 values, %3 mm; their mean is taken</source>
        <translation>%1&#xa0;: plusieurs valeurs (%2), %3&#xa0;mm&#xa0;; leur moyenne est reprise</translation>
    </message>
    <message>
        <source>the report&apos;s weight, %1 g, is not that of its lengths, which is %2 g by %3</source>
        <translation>le poids du rapport, %1&#xa0;g, n’est pas celui de ses mesures, qui est de %2&#xa0;g selon %3</translation>
    </message>
    <message>
        <source>is a structured report of a kind that is not read (neither Comprehensive nor Enhanced)</source>
        <translation>est un rapport structuré d’un type qui n’est pas lu (ni Comprehensive ni Enhanced)</translation>
    </message>
    <message>
        <source>is no structured report</source>
        <translation>n’est pas un rapport structuré</translation>
    </message>
    <message>
        <source>is a report whose content is missing</source>
        <translation>est un rapport dont le contenu manque</translation>
    </message>
    <message>
        <source>is no obstetric ultrasound report (its title is &quot;%1&quot;)</source>
        <translation>n’est pas un rapport d’échographie obstétricale (son titre est «&#xa0;%1&#xa0;»)</translation>
    </message>
    <message>
        <source>the report says that there are %1 fetuses, and holds %2</source>
        <translation>nombre de fœtus selon le rapport&#xa0;: %1&#xa0;; il en contient %2</translation>
    </message>
    <message>
        <source>examination %1, fetus %2: %3 %4 is no length, and left out</source>
        <extracomment>%3 is one of BPD, HC, AC and FL, %4 what stands in its place.</extracomment>
        <translation>examen %1, fœtus %2&#xa0;: %3 %4 n’est pas une mesure, et est omis</translation>
    </message>
    <message>
        <source>the document is of patient &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>le document est celui de la patiente «&#xa0;%1&#xa0;», et non «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the report&apos;s reference ID has characters that cannot be read; nothing is stored unless the ID is given</source>
        <translation>l’identifiant du rapport contient des caractères qui ne peuvent pas être lus&#xa0;; rien n’est enregistré à moins d’indiquer l’identifiant</translation>
    </message>
    <message>
        <source>the report names no patient; nothing is stored unless the ID is given</source>
        <translation>le rapport ne nomme aucune patiente&#xa0;; rien n’est enregistré à moins d’indiquer l’identifiant</translation>
    </message>
    <message>
        <source>the document names no patient; nothing is stored unless the ID is given</source>
        <translation>le document ne nomme aucune patiente&#xa0;; rien n’est enregistré à moins d’indiquer l’identifiant</translation>
    </message>
    <message>
        <source>the report is of patient &quot;%1&quot;, the document of &quot;%2&quot;</source>
        <translation>le rapport est celui de la patiente «&#xa0;%1&#xa0;», le document de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>%1 of the report may be any of the document&apos;s; nothing is stored unless its number is given</source>
        <extracomment>%1 is a fetus: &quot;fetus &quot;A&quot;&quot;, &quot;a fetus without an ID&quot;.</extracomment>
        <translation>%1 du rapport peut être n’importe lequel du document&#xa0;; rien n’est enregistré à moins d’indiquer son numéro</translation>
    </message>
    <message>
        <source>%1 cannot be fetus %2 of %3</source>
        <translation>%1 ne peut pas être le fœtus %2 sur %3</translation>
    </message>
    <message>
        <source>two fetuses of the report cannot both be fetus %1</source>
        <translation>deux fœtus du rapport ne peuvent pas être tous deux le fœtus %1</translation>
    </message>
    <message>
        <source>fetus &quot;%1&quot;</source>
        <translation>le fœtus «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>a fetus without an ID</source>
        <translation>un fœtus sans identifiant</translation>
    </message>
    <message>
        <source>fetus %1: the CRL is not stored</source>
        <translation>fœtus %1&#xa0;: la LCC n’est pas enregistrée</translation>
    </message>
    <message>
        <source>fetus %1: %2 %3 mm is beyond what a document takes</source>
        <extracomment>%2 is one of BPD, HC, AC and FL, as in the next one.</extracomment>
        <translation>fœtus %1&#xa0;: %2 %3&#xa0;mm dépasse ce qu’un document accepte</translation>
    </message>
    <message>
        <source>fetus %1: %2 stays %3 mm; the report says %4 mm</source>
        <translation>fœtus %1&#xa0;: %2 reste à %3&#xa0;mm&#xa0;; le rapport dit %4&#xa0;mm</translation>
    </message>
    <message>
        <source>%1 more</source>
        <extracomment>Stands behind the IDs of some patients, with commas between.</extracomment>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>one without an ID</source>
        <extracomment>Of several patients.</extracomment>
        <translation>une sans identifiant</translation>
    </message>
    <message>
        <source>holds examinations of several patients (%1), and a document is of one; nothing is stored. Please import a file for each patient</source>
        <extracomment>%1 are the IDs of patients.</extracomment>
        <translation>contient des examens de plusieurs patientes (%1), et un document est celui d’une seule&#xa0;; rien n’est enregistré. Veuillez importer un fichier par patiente</translation>
    </message>
    <message>
        <source>the report does not say when the examination was</source>
        <translation>le rapport ne dit pas quand l’examen a eu lieu</translation>
    </message>
    <message>
        <source>a document takes at most %1 fetuses</source>
        <translation>un document accepte au plus %1 fœtus</translation>
    </message>
    <message>
        <source>the EDD stays %1; the report says %2</source>
        <translation>la DPA reste %1&#xa0;; le rapport dit %2</translation>
    </message>
    <message>
        <source>the EDD stays; the report says %1</source>
        <translation>la DPA reste&#xa0;; le rapport dit %1</translation>
    </message>
    <message>
        <source>the gravidity stays %1; the report says %2</source>
        <translation>la gestité reste %1&#xa0;; le rapport dit %2</translation>
    </message>
    <message>
        <source>the number of fetuses stays %1; the report says %2</source>
        <translation>le nombre de fœtus reste %1&#xa0;; le rapport dit %2</translation>
    </message>
    <message>
        <source>the report holds no length that is stored</source>
        <translation>le rapport ne contient aucune mesure qui soit enregistrée</translation>
    </message>
    <message>
        <source>the columns fetus, which counts from 0, and fetus_number, from 1, cannot both stand in the header</source>
        <translation>les colonnes fetus, qui compte à partir de 0, et fetus_number, à partir de 1, ne peuvent pas figurer toutes deux dans l’en-tête</translation>
    </message>
    <message>
        <source>the cell is empty; write the day of the examination like 2026-11-13</source>
        <translation>la cellule est vide&#xa0;; écrivez le jour de l’examen comme 2026-11-13</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is a column of a table, %2 what is wrong with a cell of it.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the text is no UTF-8; save the table as UTF-8</source>
        <translation>le texte n’est pas en UTF-8&#xa0;; enregistrez le tableau en UTF-8</translation>
    </message>
    <message>
        <source>%1 is no day; write it like 2027-04-10, or leave the cell empty</source>
        <extracomment>%1 is what stands there, in quotation marks, in this one and in others of the kind.</extracomment>
        <translation>%1 n’est pas un jour&#xa0;; écrivez-le comme 2027-04-10, ou laissez la cellule vide</translation>
    </message>
    <message>
        <source>%1 is no day; write it like 2026-11-13</source>
        <translation>%1 n’est pas un jour&#xa0;; écrivez-le comme 2026-11-13</translation>
    </message>
    <message>
        <source>%1 is no whole number from %2 to %3</source>
        <translation>%1 n’est pas un nombre entier de %2 à %3</translation>
    </message>
    <message>
        <source>%1 is no whole number from %2 on</source>
        <translation>%1 n’est pas un nombre entier, %2 ou plus</translation>
    </message>
    <message>
        <source>the cell is empty; number the fetuses from %1</source>
        <translation>la cellule est vide&#xa0;; numérotez les fœtus à partir de %1</translation>
    </message>
    <message>
        <source>%1 is beyond what a document takes, 0 to %2 mm</source>
        <translation>%1 dépasse ce qu’un document accepte, de 0 à %2&#xa0;mm</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <extracomment>%2 is what is wrong with the row of a table that begins at line %1.</extracomment>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>what stands behind line %1 was not looked at</source>
        <translation>ce qui suit la ligne %1 n’a pas été examiné</translation>
    </message>
    <message>
        <source>nothing of this table is taken until every row of it fits</source>
        <translation>rien de ce tableau n’est repris tant que toutes ses lignes ne conviennent pas</translation>
    </message>
    <message>
        <source>is a table without an examination</source>
        <translation>est un tableau sans examen</translation>
    </message>
    <message>
        <source>a note is not taken</source>
        <translation>une note n’est pas reprise</translation>
    </message>
    <message>
        <source>edd: it is not that of line %1, and no reference_id tells the patients apart; write the ID into every row</source>
        <translation>edd&#xa0;: ce n’est pas celle de la ligne %1, et aucun reference_id ne distingue les patientes&#xa0;; écrivez l’identifiant dans chaque ligne</translation>
    </message>
    <message>
        <source>reference_id: the cell is empty, that of line %1 is not; write the ID into every row</source>
        <translation>reference_id&#xa0;: la cellule est vide, celle de la ligne %1 ne l’est pas&#xa0;; écrivez l’identifiant dans chaque ligne</translation>
    </message>
    <message>
        <source>reference_id: the cell of line %1 is empty, this one is not; write the ID into every row</source>
        <translation>reference_id&#xa0;: la cellule de la ligne %1 est vide, celle-ci ne l’est pas&#xa0;; écrivez l’identifiant dans chaque ligne</translation>
    </message>
    <message>
        <source>the row is of another file than that of line %1, and no reference_id tells the patients apart; write the rows with --identify</source>
        <translation>la ligne vient d’un autre fichier que celle de la ligne %1, et aucun reference_id ne distingue les patientes&#xa0;; écrivez les lignes avec --identify</translation>
    </message>
    <message>
        <source>line %1 has the same fetus at the same examination; leave one of the two rows</source>
        <translation>la ligne %1 porte le même fœtus au même examen&#xa0;; ne laissez que l’une des deux lignes</translation>
    </message>
    <message>
        <source>line %1 has a fetus of this examination too; number them from 1, in a column fetus_number</source>
        <translation>la ligne %1 porte aussi un fœtus de cet examen&#xa0;; numérotez-les à partir de 1, dans une colonne fetus_number</translation>
    </message>
    <message>
        <source>%1: line %2 says something else of the same examination; make them agree</source>
        <extracomment>%1 is a column of a table.</extracomment>
        <translation>%1&#xa0;: la ligne %2 dit autre chose du même examen&#xa0;; mettez-les d’accord</translation>
    </message>
    <message>
        <source>fetus counts from 0, and no row of this examination has 0; where it counts from 1, call the column fetus_number</source>
        <translation>fetus compte à partir de 0, et aucune ligne de cet examen n’a 0&#xa0;; si elle compte à partir de 1, nommez la colonne fetus_number</translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1: never measured</source>
        <extracomment>%1 to %3 are bpd, hc, ac or fl: &quot;there is no column bpd_mm or bpd: never measured&quot;.</extracomment>
        <translation>il n’y a pas de colonne %1_mm ou %1&#xa0;: jamais mesuré</translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1, %2_mm or %2: never measured</source>
        <translation>il n’y a pas de colonne %1_mm ou %1, %2_mm ou %2&#xa0;: jamais mesuré</translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1, %2_mm or %2, %3_mm or %3: never measured</source>
        <translation>il n’y a pas de colonne %1_mm ou %1, %2_mm ou %2, %3_mm ou %3&#xa0;: jamais mesuré</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Examination</source>
        <translation>Examen</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Fœtus</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Patient</source>
        <translation>Patiente</translation>
    </message>
    <message>
        <source>What becomes of it</source>
        <translation>Ce qu’il en advient</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>Importer un rapport</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Reference ID of the report: %1. Of the document: %2.</source>
        <translation>Identifiant du rapport&#xa0;: %1. Du document&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The report is of &amp;this patient</source>
        <translation>Le rapport est bien celui de cette &amp;patiente</translation>
    </message>
    <message>
        <source>Please choose</source>
        <translation>Veuillez choisir</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Ne pas importer</translation>
    </message>
    <message>
        <source>Values of the report</source>
        <translation>Valeurs du rapport</translation>
    </message>
    <message>
        <source>Import Report of %1</source>
        <translation>Importer le rapport du %1</translation>
    </message>
    <message>
        <source>%1 of the report is:</source>
        <translation>%1 du rapport est :</translation>
    </message>
</context>
<context>
    <name>Improbable</name>
    <message>
        <source>%1 %2 mm is outside %3 to %4 mm</source>
        <translation>%1 %2 mm est en dehors de la plage de %3 à %4 mm</translation>
    </message>
    <message>
        <source>%1 %2 mm is shorter than where any growth standard begins; lengths are in mm</source>
        <translation>%1 %2 mm est en deçà du début de tous les standards de croissance&#xa0;; les mesures sont en mm</translation>
    </message>
    <message>
        <source>%1 %2 mm is more than 4 SD below the mean of the growth standard at this age</source>
        <translation>%1 %2 mm est à plus de 4 ET au-dessous de la moyenne du standard de croissance à cet âge</translation>
    </message>
    <message>
        <source>%1 %2 mm is more than 4 SD above the mean of the growth standard at this age</source>
        <translation>%1 %2 mm est à plus de 4 ET au-dessus de la moyenne du standard de croissance à cet âge</translation>
    </message>
    <message>
        <source>%1 %2 mm is below nine tenths of pi times the BPD, %3 mm</source>
        <translation>%1 %2 mm est inférieur aux neuf dixièmes de pi fois le BIP, %3 mm</translation>
    </message>
    <message>
        <source>%1 %2 mm is improbable</source>
        <translation>%1 %2 mm est improbable</translation>
    </message>
    <message>
        <source>it is %1 day before the last period</source>
        <extracomment>&quot;It&quot; is an examination.</extracomment>
        <translation>il est antérieur de %1 jour aux dernières règles</translation>
    </message>
    <message>
        <source>it is %1 days before the last period</source>
        <translation>il est antérieur de %1 jours aux dernières règles</translation>
    </message>
    <message>
        <source>its age, %1, is above 45 weeks</source>
        <translation>son âge, %1, dépasse 45 SA</translation>
    </message>
</context>
<context>
    <name>Modules</name>
    <message>
        <source>this program does not know where it lies</source>
        <translation>ce programme ne sait pas où il se trouve</translation>
    </message>
    <message>
        <source>the module %1 is not installed</source>
        <translation>le module %1 n’est pas installé</translation>
    </message>
    <message>
        <source>the module %1 cannot be loaded: it is another module</source>
        <translation>le module %1 ne peut pas être chargé&#xa0;: c’est un autre module</translation>
    </message>
    <message>
        <source>the module %1 cannot be loaded: %2</source>
        <translation>le module %1 ne peut pas être chargé&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&amp;Reference ID</source>
        <translation>&amp;Identifiant</translation>
    </message>
    <message>
        <source>The patient&apos;s reference ID, any text</source>
        <translation>L’identifiant de la patiente, texte libre</translation>
    </message>
    <message>
        <source>Number of pregnancies, this one included</source>
        <translation>Nombre de grossesses, celle-ci comprise</translation>
    </message>
    <message>
        <source>&amp;Gravidity</source>
        <translation>&amp;Gestité</translation>
    </message>
    <message>
        <source>Number of pregnancies, this one included: a whole number, 0 or more</source>
        <translation>Nombre de grossesses, celle-ci comprise&#xa0;: un nombre entier, 0 ou plus</translation>
    </message>
    <message>
        <source>Estimated date of delivery</source>
        <translation>Date prévue d’accouchement, à 40&#xa0;SA</translation>
    </message>
    <message>
        <source>E&amp;DD</source>
        <translation>&amp;DPA</translation>
    </message>
    <message>
        <source>Examination</source>
        <translation>Examen</translation>
    </message>
    <message>
        <source>Date of the examination</source>
        <translation>Date de l’examen</translation>
    </message>
    <message>
        <source>Da&amp;te</source>
        <translation>Da&amp;te</translation>
    </message>
    <message>
        <source>Menstrual age at the examination, in weeks and days</source>
        <translation>Âge gestationnel à l’examen, en semaines d’aménorrhée et jours</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Âge</translation>
    </message>
    <message>
        <source>Fet&amp;us</source>
        <translation>Fœt&amp;us</translation>
    </message>
    <message>
        <source>Biparietal diameter</source>
        <translation>Diamètre bipariétal</translation>
    </message>
    <message>
        <source>&amp;BPD</source>
        <translation>&amp;BIP</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Head circumference</source>
        <translation>Périmètre céphalique</translation>
    </message>
    <message>
        <source>H&amp;C</source>
        <translation>P&amp;C</translation>
    </message>
    <message>
        <source>Abdominal circumference</source>
        <translation>Périmètre abdominal</translation>
    </message>
    <message>
        <source>&amp;AC</source>
        <translation>P&amp;A</translation>
    </message>
    <message>
        <source>Femur length</source>
        <translation>Longueur fémorale</translation>
    </message>
    <message>
        <source>F&amp;L</source>
        <translation>&amp;LF</translation>
    </message>
    <message>
        <source>Note on this examination</source>
        <translation>Note sur cet examen</translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Note</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Do&amp;cuments récents</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Patient</source>
        <translation>&amp;Patiente</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation>Re&amp;venir à la version enregistrée</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy Rep&amp;ort as Table</source>
        <translation>Copier le rapport en &amp;tableau</translation>
    </message>
    <message>
        <source>Copies the report of the fetus on show, all examinations, for a spreadsheet or a letter.</source>
        <translation>Copie le rapport du fœtus affiché, avec tous les examens, pour un tableur ou une lettre.</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Tout &amp;sélectionner</translation>
    </message>
    <message>
        <source>&amp;Previous Examination</source>
        <translation>Examen &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Next Examination</source>
        <translation>Examen &amp;suivant</translation>
    </message>
    <message>
        <source>Add &amp;Examination</source>
        <translation>Ajouter un &amp;examen</translation>
    </message>
    <message>
        <source>&amp;Delete Examination</source>
        <translation>Retirer l’e&amp;xamen</translation>
    </message>
    <message>
        <source>Add &amp;Fetus</source>
        <translation>Ajouter un &amp;fœtus</translation>
    </message>
    <message>
        <source>&amp;Remove Fetus</source>
        <translation>&amp;Retirer le fœtus</translation>
    </message>
    <message>
        <source>EDD from &amp;LMP...</source>
        <translation>DPA d’après la &amp;DDR...</translation>
    </message>
    <message>
        <source>EDD from &amp;CRL...</source>
        <translation>DPA d’après la &amp;LCC...</translation>
    </message>
    <message>
        <source>EDD from &amp;Measurements...</source>
        <translation>DPA d’après les &amp;mesures...</translation>
    </message>
    <message>
        <source>&amp;Adjust Delivery...</source>
        <translation>Pl&amp;anifier l’accouchement...</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>Afficher &amp;tous les fœtus</translation>
    </message>
    <message>
        <source>&amp;References</source>
        <translation>&amp;Références</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Guide d’utilisation</translation>
    </message>
    <message>
        <source>&amp;About Nascor</source>
        <translation>À &amp;propos de Nascor</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Tendances</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>BIP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>PC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>PA</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>LF</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>%ld of %ld</source>
        <translation>%ld sur %ld</translation>
    </message>
    <message>
        <source>There is no examination to note this at.</source>
        <translation>Il n’y a pas d’examen auquel joindre une note.</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Effacer la liste</translation>
    </message>
    <message>
        <source>&amp;Remember Recent Documents</source>
        <translation>&amp;Mémoriser les documents récents</translation>
    </message>
    <message>
        <source>mm (%1–%2)</source>
        <translation>mm (%1–%2)</translation>
    </message>
    <message>
        <source>%1, %2 to %3 mm</source>
        <translation>%1, de %2 à %3&#xa0;mm</translation>
    </message>
    <message>
        <source>%1, for example %2</source>
        <translation>%1, par exemple %2</translation>
    </message>
    <message>
        <source>The fetus on show</source>
        <translation>Le fœtus affiché</translation>
    </message>
    <message>
        <source>Not permitted. %1</source>
        <translation>Valeur non admise. %1</translation>
    </message>
    <message>
        <source>Permitted: %1</source>
        <translation>Valeurs admises&#xa0;: %1</translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation>p.&#xa0;ex. %1</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>pas de date</translation>
    </message>
    <message>
        <source>About Nascor</source>
        <translation>À propos de Nascor</translation>
    </message>
    <message>
        <source>Nascor %1</source>
        <translation>Nascor %1</translation>
    </message>
    <message>
        <source>Copyright (c) 2026 The Nascor developers. MIT License.</source>
        <translation>Copyright (c) 2026 The Nascor developers. Licence MIT.</translation>
    </message>
    <message>
        <source>Linked with Qt %1 (GNU LGPL 3), the D-Bus library (AFL 2.1 or GNU GPL 2) and the GNU C++ library (GNU GPL 3 with the GCC Runtime Library Exception).</source>
        <translation>Lié à Qt %1 (GNU LGPL 3), à la bibliothèque D-Bus (AFL 2.1 ou GNU GPL 2) et à la bibliothèque C++ de GNU (GNU GPL 3 avec la GCC Runtime Library Exception).</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>Standard deviations from the mean of the growth standard</source>
        <translation>Nombre d’écarts-types par rapport à la moyenne du standard de croissance</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>Centile by the growth standard</source>
        <translation>Percentile selon le standard de croissance</translation>
    </message>
    <message>
        <source>Centile</source>
        <translation>Percentile</translation>
    </message>
    <message>
        <source>Estimated fetal weight, by the formula in force</source>
        <translation>Estimation du poids fœtal, selon la formule choisie</translation>
    </message>
    <message>
        <source>EFW</source>
        <translation>EPF</translation>
    </message>
    <message>
        <source>! %1: %2</source>
        <translation>! %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Growth chart of %1. Examination %2, %3. %4</source>
        <translation>Courbe de croissance de %1. Examen %2, %3. %4</translation>
    </message>
    <message>
        <source>by %1</source>
        <translation>selon %1</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fenêt&amp;re</translation>
    </message>
    <message>
        <source>Add Examination</source>
        <translation>Ajouter un examen</translation>
    </message>
    <message>
        <source>Delete Examination</source>
        <translation>Retirer l’examen</translation>
    </message>
    <message>
        <source>Add Fetus</source>
        <translation>Ajouter un fœtus</translation>
    </message>
    <message>
        <source>Remove Fetus</source>
        <translation>Retirer le fœtus</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom arr&amp;ière</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>A&amp;juster à la fenêtre</translation>
    </message>
    <message>
        <source>Nascor opens files of this machine only.</source>
        <translation>Nascor n’ouvre que les fichiers de cet ordinateur.</translation>
    </message>
    <message>
        <source>Please save what the link leads to as a file here, and open that.</source>
        <translation>Veuillez enregistrer ici, dans un fichier, ce vers quoi mène le lien, puis ouvrir ce fichier.</translation>
    </message>
    <message>
        <source>C&amp;ompare...</source>
        <translation>&amp;Comparer...</translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation>&amp;Superposition</translation>
    </message>
    <message>
        <source>Check the Numbers</source>
        <translation>Vérifier les calculs</translation>
    </message>
    <message>
        <source>All %1 worked examples give the expected results.</source>
        <translation>Les %1 exemples de calcul donnent tous le résultat attendu.</translation>
    </message>
    <message>
        <source>%1 of %2 worked examples come out otherwise.</source>
        <translation>%1 des %2 exemples de calcul donnent un autre résultat.</translation>
    </message>
    <message>
        <source>Every formula, standard, reference, look-up and date was worked out again. Help &gt; References shows the examples of each.</source>
        <translation>Toutes les formules, tous les standards, toutes les références, lectures de tables et dates ont été recalculés. Aide &gt; Références montre les exemples de chacun.</translation>
    </message>
    <message>
        <source>Do not rely on this installation. Please have it installed again.</source>
        <translation>Ne vous fiez pas à cette installation. Veuillez faire réinstaller le programme.</translation>
    </message>
    <message>
        <source>&amp;Check the Numbers</source>
        <translation>&amp;Vérifier les calculs</translation>
    </message>
    <message>
        <source>Report &amp;Folder and Server</source>
        <translation>Dossie&amp;r de rapports et serveur</translation>
    </message>
    <message>
        <source>I&amp;mport Report...</source>
        <translation>Importer &amp;un rapport...</translation>
    </message>
    <message>
        <source>Report F&amp;older...</source>
        <translation>&amp;Dossier de rapports...</translation>
    </message>
    <message>
        <source>Translated by machine, not yet reviewed by a clinician.</source>
        <translation>Traduit par une machine, pas encore relu par un clinicien.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir %1</translation>
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
        <translation>Estimation du poids fœtal</translation>
    </message>
    <message>
        <source>Crown Rump Length</source>
        <translation>Longueur cranio-caudale</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Afficher tous les fœtus</translation>
    </message>
    <message>
        <source>Further References</source>
        <translation>Autres références</translation>
    </message>
</context>
<context>
    <name>NCDocument</name>
    <message>
        <source>The gravidity %ld will be read as %ld. A file holds gravidities up to %ld.</source>
        <translation>La gestité %ld sera lue %ld. Un fichier ne contient que des gestités jusqu’à %ld.</translation>
    </message>
    <message>
        <source>EDD is already specified</source>
        <translation>La DPA est déjà renseignée</translation>
    </message>
    <message>
        <source>Are you sure you want to modify the established EDD?</source>
        <translation>Voulez-vous vraiment modifier la DPA établie&#xa0;?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this fetus?</source>
        <translation>Voulez-vous vraiment retirer ce fœtus&#xa0;?</translation>
    </message>
    <message>
        <source>%ld of %ld examinations shown</source>
        <translation>%ld examens affichés sur %ld</translation>
    </message>
    <message>
        <source>, page %ld of %ld</source>
        <translation>, page %ld sur %ld</translation>
    </message>
    <message>
        <source>Reference ID:</source>
        <translation>Identifiant&#xa0;:</translation>
    </message>
    <message>
        <source>Gravidity:</source>
        <translation>Gestité&#xa0;:</translation>
    </message>
    <message>
        <source>Fetus:</source>
        <translation>Fœtus&#xa0;:</translation>
    </message>
    <message>
        <source>EDD:</source>
        <translation>DPA (40&#xa0;SA)&#xa0;:</translation>
    </message>
    <message>
        <source>Examination:</source>
        <translation>Examen&#xa0;:</translation>
    </message>
    <message>
        <source>Examinations:</source>
        <translation>Examens&#xa0;:</translation>
    </message>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation>N’est pas un dispositif médical. Non validé pour l’usage clinique.</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Imprimé le&#xa0;:</translation>
    </message>
    <message>
        <source>Gravidity is already specified</source>
        <translation>La gestité est déjà renseignée</translation>
    </message>
    <message>
        <source>Are you sure you want to modify it?</source>
        <translation>Voulez-vous vraiment la modifier&#xa0;?</translation>
    </message>
    <message>
        <source> %ld of %ld</source>
        <translation> %ld sur %ld</translation>
    </message>
    <message>
        <source>%ldw %ldd</source>
        <translation>%ld&#xa0;SA %ld&#xa0;j</translation>
    </message>
    <message>
        <source>CRL Standard: </source>
        <translation>Formule LCC&#xa0;: </translation>
    </message>
    <message>
        <source>Are you sure you want to remove this examination?</source>
        <translation>Voulez-vous vraiment retirer cet examen&#xa0;?</translation>
    </message>
    <message>
        <source>Singleton</source>
        <translation>Singleton</translation>
    </message>
    <message>
        <source>Twin 1</source>
        <translation>Jumeau 1</translation>
    </message>
    <message>
        <source>Twin 2</source>
        <translation>Jumeau 2</translation>
    </message>
    <message>
        <source>Triplet 1 of 3</source>
        <translation>Triplé 1 sur 3</translation>
    </message>
    <message>
        <source>Triplet 2 of 3</source>
        <translation>Triplé 2 sur 3</translation>
    </message>
    <message>
        <source>Triplet 3 of 3</source>
        <translation>Triplé 3 sur 3</translation>
    </message>
    <message>
        <source>Quad 1 of 4</source>
        <translation>Quadruplé 1/4</translation>
    </message>
    <message>
        <source>Quad 2 of 4</source>
        <translation>Quadruplé 2/4</translation>
    </message>
    <message>
        <source>Quad 3 of 4</source>
        <translation>Quadruplé 3/4</translation>
    </message>
    <message>
        <source>Quad 4 of 4</source>
        <translation>Quadruplé 4/4</translation>
    </message>
    <message>
        <source>Quin 1 of 5</source>
        <translation>Quintuplé 1/5</translation>
    </message>
    <message>
        <source>Quin 2 of 5</source>
        <translation>Quintuplé 2/5</translation>
    </message>
    <message>
        <source>Quin 3 of 5</source>
        <translation>Quintuplé 3/5</translation>
    </message>
    <message>
        <source>Quin 4 of 5</source>
        <translation>Quintuplé 4/5</translation>
    </message>
    <message>
        <source>Quin 5 of 5</source>
        <translation>Quintuplé 5/5</translation>
    </message>
    <message>
        <source>The EDD is empty now. This is no date: </source>
        <translation>La DPA a été effacée. Ceci n’est pas une date&#xa0;: </translation>
    </message>
    <message>
        <source>The examination has no date now. This is no date: </source>
        <translation>La date de l’examen a été effacée. Ceci n’est pas une date&#xa0;: </translation>
    </message>
    <message>
        <source>The examination is before the last period.</source>
        <translation>L’examen est antérieur aux dernières règles.</translation>
    </message>
    <message>
        <source>The age is above 45 weeks.</source>
        <translation>L’âge dépasse 45&#xa0;SA.</translation>
    </message>
    <message>
        <source>Outside %ld to %ld mm.</source>
        <translation>En dehors de la plage de %ld à %ld&#xa0;mm.</translation>
    </message>
    <message>
        <source>Shorter than any growth standard begins. Lengths are in mm.</source>
        <translation>En deçà du début de tous les standards de croissance. Les mesures sont en mm.</translation>
    </message>
    <message>
        <source>More than 4 SD below the growth standard.</source>
        <translation>À plus de 4&#xa0;ET au-dessous du standard de croissance.</translation>
    </message>
    <message>
        <source>More than 4 SD above the growth standard.</source>
        <translation>À plus de 4&#xa0;ET au-dessus du standard de croissance.</translation>
    </message>
    <message>
        <source>Too small for the BPD.</source>
        <translation>Trop petit pour le BIP.</translation>
    </message>
    <message>
        <source>The growth standard begins at %ld weeks, which count.</source>
        <translation>Le standard de croissance commence à %ld&#xa0;SA&#xa0;; c’est cette semaine qui compte.</translation>
    </message>
    <message>
        <source>The growth standard ends at %ld weeks, which count.</source>
        <translation>Le standard de croissance s’arrête à %ld&#xa0;SA&#xa0;; c’est cette semaine qui compte.</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>beyond the table</source>
        <translation>hors table</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>pas de date</translation>
    </message>
    <message>
        <source>Examination %ld of %ld: </source>
        <translation>Examen %ld sur %ld&#xa0;: </translation>
    </message>
    <message>
        <source>Age today:</source>
        <translation>Âge aujourd’hui&#xa0;:</translation>
    </message>
    <message>
        <source>An examination would be before the last period.</source>
        <translation>Un examen serait antérieur aux dernières règles.</translation>
    </message>
    <message>
        <source>An examination would be above 45 weeks.</source>
        <translation>Un examen se situerait au-delà de 45&#xa0;SA.</translation>
    </message>
    <message>
        <source>The same day as the current EDD.</source>
        <translation>Le même jour que la DPA actuelle.</translation>
    </message>
    <message>
        <source>One day later than the current EDD.</source>
        <translation>Un jour plus tard que la DPA actuelle.</translation>
    </message>
    <message>
        <source>One day earlier than the current EDD.</source>
        <translation>Un jour plus tôt que la DPA actuelle.</translation>
    </message>
    <message>
        <source>%ld days later than the current EDD.</source>
        <translation>%ld jours plus tard que la DPA actuelle.</translation>
    </message>
    <message>
        <source>%ld days earlier than the current EDD.</source>
        <translation>%ld jours plus tôt que la DPA actuelle.</translation>
    </message>
    <message>
        <source>No formula is chosen.</source>
        <translation>Aucune formule n’est choisie.</translation>
    </message>
    <message>
        <source>The examination has no date.</source>
        <translation>L’examen n’a pas de date.</translation>
    </message>
    <message>
        <source>Type the crown-rump length.</source>
        <translation>Saisissez la longueur cranio-caudale.</translation>
    </message>
    <message>
        <source>The formula dates these lengths, in mm:</source>
        <translation>La formule admet ces longueurs, en mm&#xa0;:</translation>
    </message>
    <message>
        <source>There is no such cycle.</source>
        <translation>Un tel cycle n’existe pas.</translation>
    </message>
    <message>
        <source>Type the date.</source>
        <translation>Saisissez la date.</translation>
    </message>
    <message>
        <source>This is no date:</source>
        <translation>Ceci n’est pas une date&#xa0;:</translation>
    </message>
    <message>
        <source>The EDD would lie outside the calendar.</source>
        <translation>La DPA sortirait du calendrier.</translation>
    </message>
    <message>
        <source>Lengths that will be removed with it: %ld.</source>
        <translation>Mesures qui seront retirées avec lui&#xa0;: %ld.</translation>
    </message>
    <message>
        <source>Last examination:</source>
        <translation>Dernier examen&#xa0;:</translation>
    </message>
    <message>
        <source>No lengths, so no marks. Type BPD, HC, AC or FL beside the page.</source>
        <translation>Aucune mesure, donc aucun point. Saisissez BIP, PC, PA ou LF à côté de la page.</translation>
    </message>
    <message>
        <source>No BPD, so no marks. Type it beside the page.</source>
        <translation>Pas de BIP, donc aucun point. Saisissez-le à côté de la page.</translation>
    </message>
    <message>
        <source>No HC, so no marks. Type it beside the page.</source>
        <translation>Pas de PC, donc aucun point. Saisissez-le à côté de la page.</translation>
    </message>
    <message>
        <source>No AC, so no marks. Type it beside the page.</source>
        <translation>Pas de PA, donc aucun point. Saisissez-le à côté de la page.</translation>
    </message>
    <message>
        <source>No FL, so no marks. Type it beside the page.</source>
        <translation>Pas de LF, donc aucun point. Saisissez-la à côté de la page.</translation>
    </message>
    <message>
        <source>No weight, so no marks. Type the lengths that the formula needs.</source>
        <translation>Pas de poids, donc aucun point. Saisissez les mesures dont la formule a besoin.</translation>
    </message>
    <message>
        <source>No lengths. Type BPD, HC, AC or FL beside the page.</source>
        <translation>Aucune mesure. Saisissez BIP, PC, PA ou LF à côté de la page.</translation>
    </message>
    <message>
        <source>No examination. Patient &gt; Add Examination</source>
        <translation>Aucun examen. Patiente &gt; Ajouter un examen</translation>
    </message>
    <message>
        <source>No known growth standard, so no projection. Choose from Standards.</source>
        <translation>Aucun standard de croissance connu, donc pas de projection. Choisissez-en un dans Standards.</translation>
    </message>
    <message>
        <source>No known growth standard, so no curves. Choose from Standards.</source>
        <translation>Aucun standard de croissance connu, donc pas de courbes. Choisissez-en un dans Standards.</translation>
    </message>
    <message>
        <source>No known weight formula, so no weights. Choose from Estimated Fetal Weight.</source>
        <translation>Aucune formule de poids connue, donc pas de poids. Choisissez-en une dans Estimation du poids fœtal.</translation>
    </message>
    <message>
        <source>No EDD, so no ages. Patient &gt; EDD from ...</source>
        <translation>Pas de DPA, donc pas d’âges. Patiente &gt; DPA d’après ...</translation>
    </message>
    <message>
        <source>No EDD, so no marks. Patient &gt; EDD from ...</source>
        <translation>Pas de DPA, donc aucun point. Patiente &gt; DPA d’après ...</translation>
    </message>
    <message>
        <source>No date, so no ages. Type it beside the page.</source>
        <translation>Pas de date, donc pas d’âges. Saisissez-la à côté de la page.</translation>
    </message>
    <message>
        <source>No date, so no marks. Type it beside the page.</source>
        <translation>Pas de date, donc aucun point. Saisissez-la à côté de la page.</translation>
    </message>
    <message>
        <source>Obstetric ultrasound biometry</source>
        <translation>Biométrie échographique obstétricale</translation>
    </message>
    <message>
        <source>An empty number of days counts as 0.</source>
        <translation>Un nombre de jours vide compte pour 0.</translation>
    </message>
    <message>
        <source>Usually a cycle has 24 to 38 days, its luteal phase 11 to 17.</source>
        <translation>D’ordinaire, un cycle dure de 24 à 38 jours, et sa phase lutéale de 11 à 17 jours.</translation>
    </message>
    <message>
        <source>Type whole days.</source>
        <translation>Saisissez des jours entiers.</translation>
    </message>
    <message>
        <source>Add Examination</source>
        <translation>l’ajout d’un examen</translation>
    </message>
    <message>
        <source>Delete Examination</source>
        <translation>le retrait d’un examen</translation>
    </message>
    <message>
        <source>Add Fetus</source>
        <translation>l’ajout d’un fœtus</translation>
    </message>
    <message>
        <source>Remove Fetus</source>
        <translation>le retrait d’un fœtus</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>le changement de DPA</translation>
    </message>
    <message>
        <source>Growth Standard</source>
        <translation>le changement de standard</translation>
    </message>
    <message>
        <source>Weight Formula</source>
        <translation>le changement de formule de poids</translation>
    </message>
    <message>
        <source>Crown-Rump Formula</source>
        <translation>le changement de formule LCC</translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation>le changement d’identifiant</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>le changement de gestité</translation>
    </message>
    <message>
        <source>Examination Date</source>
        <translation>le changement de date d’examen</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>le changement des mesures</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>le changement de BIP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>le changement de PC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>le changement de PA</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>le changement de LF</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>le changement de note</translation>
    </message>
    <message>
        <source>Planned Delivery</source>
        <translation>le changement d’accouchement envisagé</translation>
    </message>
    <message>
        <source>Lines join the marks of each fetus.</source>
        <translation>Des lignes relient les points de chaque fœtus.</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>l’importation d’un rapport</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>There is no examination.</source>
        <translation>Il n’y a pas d’examen.</translation>
    </message>
    <message>
        <source>Nothing here writes DICOM reports.</source>
        <translation>Rien ici n’écrit de rapports DICOM.</translation>
    </message>
</context>
<context>
    <name>OutputMenu</name>
    <message>
        <source>Export Page</source>
        <translation>Exporter la page</translation>
    </message>
    <message>
        <source>Export All Fetuses</source>
        <translation>Exporter tous les fœtus</translation>
    </message>
    <message>
        <source>Export Settings...</source>
        <translation>Options d’exportation...</translation>
    </message>
    <message>
        <source>Page Setup...</source>
        <translation>Mise en page...</translation>
    </message>
    <message>
        <source>Print Preview...</source>
        <translation>Aperçu avant impression...</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimer...</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exporté vers %1</translation>
    </message>
    <message>
        <source>Exporting pages...</source>
        <translation>Exportation des pages...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%1 pages were exported to %2</source>
        <translation>%1 pages ont été exportées vers %2</translation>
    </message>
    <message>
        <source>%1 pages were not exported.</source>
        <translation>%1 pages n’ont pas été exportées.</translation>
    </message>
    <message>
        <source>Please make room in this folder, or choose another in Export Settings.</source>
        <translation>Veuillez libérer de la place dans ce dossier, ou en choisir un autre dans les options d’exportation.</translation>
    </message>
    <message>
        <source>Export Settings</source>
        <translation>Options d’exportation</translation>
    </message>
    <message>
        <source>Asked for at the first export</source>
        <translation>Demandé à la première exportation</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Choisir...</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>PDF, for print and archive</source>
        <translation>PDF, pour l’impression et l’archivage</translation>
    </message>
    <message>
        <source>PNG, a picture</source>
        <translation>PNG, une image</translation>
    </message>
    <message>
        <source>SVG, a drawing</source>
        <translation>SVG, un dessin</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Patient, standards and date under each page</source>
        <translation>&amp;Patiente, standards et date sous chaque page</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>No Centiles</source>
        <translation>Sans percentiles</translation>
    </message>
    <message>
        <source>Join Marks</source>
        <translation>Relier les points</translation>
    </message>
</context>
<context>
    <name>PageFiles</name>
    <message>
        <source>holds no patient</source>
        <translation>ne contient pas de patiente</translation>
    </message>
    <message>
        <source>it has no such fetus or page</source>
        <translation>il n’a pas ce fœtus ou cette page</translation>
    </message>
    <message>
        <source>it says %1 fetuses, which cannot be chosen from; the pages are those of the first</source>
        <translation>il indique %1 fœtus, parmi lesquels on ne peut pas choisir&#xa0;; les pages sont celles du premier</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>it could not be painted</source>
        <translation>la page n’a pas pu être dessinée</translation>
    </message>
    <message>
        <source>its pages are several files, which standard output cannot take</source>
        <translation>ses pages sont plusieurs fichiers, que la sortie standard ne peut pas recevoir</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>sortie standard</translation>
    </message>
    <message>
        <source>it is there already, and stays as it is</source>
        <translation>existe déjà, et reste tel quel</translation>
    </message>
    <message>
        <source>the folder could not be made (%1)</source>
        <translation>le dossier n’a pas pu être créé (%1)</translation>
    </message>
</context>
<context>
    <name>Printer</name>
    <message>
        <source>There is no printer. Please choose a file to print into in the print panel, or export the page.</source>
        <translation>Il n’y a pas d’imprimante. Veuillez choisir, dans la boîte de dialogue d’impression, un fichier dans lequel imprimer, ou exporter la page.</translation>
    </message>
    <message>
        <source>Please make room there or choose another file.</source>
        <translation>Veuillez y libérer de la place ou choisir un autre fichier.</translation>
    </message>
    <message>
        <source>The page could not be painted.</source>
        <translation>La page n’a pas pu être dessinée.</translation>
    </message>
    <message>
        <source>The printer %1 does not answer. Please look after it or choose another.</source>
        <translation>L’imprimante %1 ne répond pas. Veuillez la vérifier ou en choisir une autre.</translation>
    </message>
    <message>
        <source>The printer refused the page.</source>
        <translation>L’imprimante a refusé la page.</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>%ld of %ld</source>
        <translation>%ld sur %ld</translation>
    </message>
    <message>
        <source>%ld a second</source>
        <translation>%ld par seconde</translation>
    </message>
    <message>
        <source>%ld a minute</source>
        <translation>%ld par minute</translation>
    </message>
    <message>
        <source>%ld s left</source>
        <translation>encore %ld&#xa0;s</translation>
    </message>
    <message>
        <source>%ld min left</source>
        <translation>encore %ld&#xa0;min</translation>
    </message>
</context>
<context>
    <name>Reading</name>
    <message>
        <source>a real</source>
        <translation>un réel</translation>
    </message>
    <message>
        <source>the mark of something new</source>
        <translation>la marque d’un élément nouveau</translation>
    </message>
    <message>
        <source>the end of an object</source>
        <translation>la fin d’un objet</translation>
    </message>
    <message>
        <source>the meaningless byte %1</source>
        <translation>l’octet sans signification %1</translation>
    </message>
    <message>
        <source>only %1 of its %2 are left</source>
        <extracomment>%2 is a count, such as &quot;8 bytes&quot;.</extracomment>
        <translation>il ne reste que %1 de ses %2</translation>
    </message>
    <message>
        <source>label %1 is outside the %2 given so far</source>
        <translation>l’étiquette %1 n’est pas parmi celles données jusqu’ici, au nombre de %2</translation>
    </message>
    <message>
        <source>string %1 is outside the %2 given so far</source>
        <translation>la chaîne %1 n’est pas parmi celles données jusqu’ici, au nombre de %2</translation>
    </message>
    <message>
        <source>its length is %1</source>
        <translation>sa longueur est %1</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>à l’octet %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>expected %1, but %2</source>
        <extracomment>%1 is what was expected, such as &quot;an object&quot;, %2 a clause such as &quot;the file ends here&quot;.</extracomment>
        <translation>il fallait %1, mais %2</translation>
    </message>
    <message>
        <source>%1 stands here</source>
        <translation>on trouve ici %1</translation>
    </message>
    <message>
        <source>%1 byte</source>
        <translation>%1 octet</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>the file ends here</source>
        <translation>le fichier s’arrête ici</translation>
    </message>
    <message>
        <source>the text of this stream is more than %1 times as long as the stream itself</source>
        <translation>le texte de ce flux est plus de %1 fois aussi long que le flux lui-même</translation>
    </message>
    <message>
        <source>a typed stream of version 4</source>
        <translation>un flux typé de version 4</translation>
    </message>
    <message>
        <source>the signature of a typed stream</source>
        <translation>la signature d’un flux typé</translation>
    </message>
    <message>
        <source>the version is %1</source>
        <translation>la version est %1</translation>
    </message>
    <message>
        <source>the system version</source>
        <translation>la version du système</translation>
    </message>
    <message>
        <source>a group of values, or the end of an object</source>
        <translation>un groupe de valeurs, ou la fin d’un objet</translation>
    </message>
    <message>
        <source>a group of values</source>
        <translation>un groupe de valeurs</translation>
    </message>
    <message>
        <source>%1 ends here</source>
        <extracomment>An object.</extracomment>
        <translation>%1 se termine ici</translation>
    </message>
    <message>
        <source>the types of a group</source>
        <translation>les types d’un groupe</translation>
    </message>
    <message>
        <source>the type string %1 %2</source>
        <extracomment>%2 is what is wrong with it, such as &quot;ends inside an array&quot;.</extracomment>
        <translation>la chaîne de types %1 %2</translation>
    </message>
    <message>
        <source>its text is nil</source>
        <translation>son texte est nil</translation>
    </message>
    <message>
        <source>a class name</source>
        <translation>un nom de classe</translation>
    </message>
    <message>
        <source>a class version</source>
        <translation>une version de classe</translation>
    </message>
    <message>
        <source>more than %1 class records stand in a chain</source>
        <translation>plus de %1 définitions de classe se suivent en chaîne</translation>
    </message>
    <message>
        <source>a superclass</source>
        <translation>une superclasse</translation>
    </message>
    <message>
        <source>objects, arrays and structures nest more than %1 deep</source>
        <translation>des objets, tableaux et structures s’emboîtent sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>un entier</translation>
    </message>
    <message>
        <source>a byte</source>
        <translation>un octet</translation>
    </message>
    <message>
        <source>%1 does not fit that</source>
        <translation>%1 n’y tient pas</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>une chaîne</translation>
    </message>
    <message>
        <source>a C string</source>
        <translation>une chaîne C</translation>
    </message>
    <message>
        <source>a class</source>
        <translation>une classe</translation>
    </message>
    <message>
        <source>an array of bytes</source>
        <translation>un tableau d’octets</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>un tableau</translation>
    </message>
    <message>
        <source>it takes at least %1, and %2 are left</source>
        <extracomment>%1 is a count, such as &quot;8 bytes&quot;.</extracomment>
        <translation>il faudrait au moins %1, et il en reste %2</translation>
    </message>
    <message>
        <source>a structure</source>
        <translation>une structure</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>the class of an object</source>
        <translation>la classe d’un objet</translation>
    </message>
    <message>
        <source>the end of %1</source>
        <extracomment>%1 is an object.</extracomment>
        <translation>la fin de %1</translation>
    </message>
    <message>
        <source>more values follow</source>
        <translation>d’autres valeurs suivent</translation>
    </message>
    <message>
        <source>class %1 (%2)</source>
        <translation>la classe %1 (%2)</translation>
    </message>
    <message>
        <source>C string %1</source>
        <translation>la chaîne C %1</translation>
    </message>
    <message>
        <source>object %1 (of no class yet)</source>
        <translation>l’objet %1 (encore sans classe)</translation>
    </message>
    <message>
        <source>object %1 (%2)</source>
        <translation>l’objet %1 (%2)</translation>
    </message>
    <message>
        <source>nests arrays and structures more than %1 deep</source>
        <extracomment>Behind &quot;the type string ...&quot;, as are the next ones.</extracomment>
        <translation>emboîte des tableaux et des structures sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>has the unknown type code %1</source>
        <translation>contient le code de type inconnu %1</translation>
    </message>
    <message>
        <source>has an array without a count</source>
        <translation>contient un tableau sans nombre d’éléments</translation>
    </message>
    <message>
        <source>ends inside an array</source>
        <translation>s’arrête à l’intérieur d’un tableau</translation>
    </message>
    <message>
        <source>has an array without an element type</source>
        <translation>contient un tableau sans type d’élément</translation>
    </message>
    <message>
        <source>has an array that is not closed</source>
        <translation>contient un tableau qui n’est pas fermé</translation>
    </message>
    <message>
        <source>has an array whose elements take no bytes</source>
        <translation>contient un tableau dont les éléments n’occupent aucun octet</translation>
    </message>
    <message>
        <source>has a structure without members</source>
        <translation>contient une structure sans membres</translation>
    </message>
    <message>
        <source>has a structure that is not closed</source>
        <translation>contient une structure qui n’est pas fermée</translation>
    </message>
    <message>
        <source>a selector</source>
        <translation>un sélecteur</translation>
    </message>
    <message>
        <source>a shared string</source>
        <translation>une chaîne partagée</translation>
    </message>
    <message>
        <source>an unsigned byte</source>
        <translation>un octet non signé</translation>
    </message>
    <message>
        <source>a truth value</source>
        <translation>une valeur de vérité</translation>
    </message>
    <message>
        <source>a 16-bit integer</source>
        <translation>un entier de 16 bits</translation>
    </message>
    <message>
        <source>an unsigned 16-bit integer</source>
        <translation>un entier non signé de 16 bits</translation>
    </message>
    <message>
        <source>a 32-bit integer</source>
        <translation>un entier de 32 bits</translation>
    </message>
    <message>
        <source>an unsigned 32-bit integer</source>
        <translation>un entier non signé de 32 bits</translation>
    </message>
    <message>
        <source>a long integer</source>
        <translation>un entier long</translation>
    </message>
    <message>
        <source>an unsigned long integer</source>
        <translation>un entier long non signé</translation>
    </message>
    <message>
        <source>a 64-bit integer</source>
        <translation>un entier de 64 bits</translation>
    </message>
    <message>
        <source>an unsigned 64-bit integer</source>
        <translation>un entier non signé de 64 bits</translation>
    </message>
    <message>
        <source>a 32-bit real</source>
        <translation>un réel de 32 bits</translation>
    </message>
    <message>
        <source>a 64-bit real</source>
        <translation>un réel de 64 bits</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>une valeur</translation>
    </message>
    <message>
        <source>values</source>
        <translation>des valeurs</translation>
    </message>
    <message>
        <source>%1 (type %2)</source>
        <extracomment>%1 is a type in words, such as &quot;an object&quot;, %2 as it is spelled.</extracomment>
        <translation>%1 (type %2)</translation>
    </message>
    <message>
        <source>not a Nascor document (%1)</source>
        <extracomment>Behind the name of a file; %1 is the reason.</extracomment>
        <translation>n’est pas un document Nascor (%1)</translation>
    </message>
    <message>
        <source>a text or null</source>
        <translation>un texte ou null</translation>
    </message>
    <message>
        <source>a date (seconds since 2001-01-01 UTC, an ISO text) or null</source>
        <translation>une date (secondes depuis le 2001-01-01 UTC, un texte ISO) ou null</translation>
    </message>
    <message>
        <source>an ISO date or null</source>
        <translation>une date ISO ou null</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>un nombre entier</translation>
    </message>
    <message>
        <source>a number, &quot;nan&quot;, &quot;inf&quot; or &quot;-inf&quot;</source>
        <translation>un nombre, &quot;nan&quot;, &quot;inf&quot; ou &quot;-inf&quot;</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>une liste</translation>
    </message>
    <message>
        <source>the text %1</source>
        <translation>le texte %1</translation>
    </message>
    <message>
        <source>binary data</source>
        <translation>des données binaires</translation>
    </message>
    <message>
        <source>one of the keys %1</source>
        <translation>l’une des clés %1</translation>
    </message>
    <message>
        <source>each key once</source>
        <translation>chaque clé une seule fois</translation>
    </message>
    <message>
        <source>this one stands twice</source>
        <translation>celle-ci figure deux fois</translation>
    </message>
    <message>
        <source>expected JSON, but %1</source>
        <translation>il fallait du JSON, mais %1</translation>
    </message>
    <message>
        <source>at line %1, column %2: %3</source>
        <translation>à la ligne %1, colonne %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>at the top: %1</source>
        <translation>à la racine&#xa0;: %1</translation>
    </message>
    <message>
        <source>at %1: %2</source>
        <extracomment>%1 is a place in a JSON text, such as /examinations/2/note.</extracomment>
        <translation>à %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>a whole number of at most 64 bits</source>
        <translation>un nombre entier d’au plus 64 bits</translation>
    </message>
    <message>
        <source>%1 is longer than 32 bits; the file holds the low 32, which are %2</source>
        <translation>%1 dépasse 32 bits&#xa0;; le fichier contient les 32 bits de poids faible, soit %2</translation>
    </message>
    <message>
        <source>%1 is beyond single precision; the file holds %2</source>
        <translation>%1 dépasse la simple précision&#xa0;; le fichier contient %2</translation>
    </message>
    <message>
        <source>this number is beyond 64 bits</source>
        <translation>ce nombre dépasse 64 bits</translation>
    </message>
    <message>
        <source>expected JSON, but a zero byte stands here</source>
        <translation>il fallait du JSON, mais on trouve ici un octet nul</translation>
    </message>
    <message>
        <source>expected a string of UTF-8 text, but its bytes are not UTF-8</source>
        <translation>il fallait une chaîne de texte UTF-8, mais ses octets ne sont pas en UTF-8</translation>
    </message>
    <message>
        <source>expected a string of UTF-8 text, but its bytes are missing</source>
        <translation>il fallait une chaîne de texte UTF-8, mais ses octets manquent</translation>
    </message>
    <message>
        <source>%1 would contain itself</source>
        <translation>%1 se contiendrait lui-même</translation>
    </message>
    <message>
        <source>expected a document of a plausible size, but its references to %1 and others repeat %2 bytes in a file of %3</source>
        <translation>il fallait un document d’une taille plausible, mais ses renvois à %1 et à d’autres répètent %2 octets dans un fichier de %3</translation>
    </message>
    <message>
        <source>the number of elements of an array</source>
        <translation>le nombre d’éléments d’un tableau</translation>
    </message>
    <message>
        <source>a PatientRecord</source>
        <translation>un PatientRecord</translation>
    </message>
    <message>
        <source>a string or nil</source>
        <translation>une chaîne ou nil</translation>
    </message>
    <message>
        <source>a date or nil</source>
        <translation>une date ou nil</translation>
    </message>
    <message>
        <source>an array of examinations or nil</source>
        <translation>un tableau d’examens ou nil</translation>
    </message>
    <message>
        <source>an NCRecord</source>
        <translation>un NCRecord</translation>
    </message>
    <message>
        <source>an array of measurements or nil</source>
        <translation>un tableau de mesures ou nil</translation>
    </message>
    <message>
        <source>a MeasurementsRecord</source>
        <translation>un MeasurementsRecord</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>ne peut pas être lu</translation>
    </message>
    <message>
        <source>longer than 256 MiB, which no document is</source>
        <translation>dépasse 256 MiB, ce que ne fait aucun document</translation>
    </message>
    <message>
        <source>the tar archive ends before its end mark</source>
        <translation>l’archive tar s’arrête avant sa marque de fin</translation>
    </message>
    <message>
        <source>the header has none of the columns ga_weeks, bpd_mm, hc_mm, ac_mm and fl_mm</source>
        <translation>l’en-tête n’a aucune des colonnes ga_weeks, bpd_mm, hc_mm, ac_mm et fl_mm</translation>
    </message>
    <message>
        <source>the column %1 is one of those that are computed</source>
        <translation>la colonne %1 est l’une de celles qui sont calculées</translation>
    </message>
    <message>
        <source>%1 is no column of the input and none that is computed</source>
        <extracomment>%1 stands in quotation marks.</extracomment>
        <translation>%1 n’est ni une colonne de l’entrée ni une colonne calculée</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <extracomment>Two names of one column.</extracomment>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>the row that begins here is longer than 4 MiB; a quotation mark may never close</source>
        <translation>la ligne qui commence ici dépasse 4 MiB&#xa0;; un guillemet n’est peut-être jamais fermé</translation>
    </message>
    <message>
        <source>a quotation mark that opens here never closes</source>
        <translation>un guillemet ouvert ici n’est jamais fermé</translation>
    </message>
    <message>
        <source>text stands behind a closing quotation mark</source>
        <translation>du texte suit un guillemet fermant</translation>
    </message>
    <message>
        <source>the column %1 stands twice in the header</source>
        <translation>la colonne %1 figure deux fois dans l’en-tête</translation>
    </message>
    <message>
        <source>the columns %1 and %2 are one</source>
        <translation>les colonnes %1 et %2 n’en font qu’une</translation>
    </message>
    <message>
        <source>the header has %1 cells, this row %2</source>
        <translation>nombre de cellules&#xa0;: %1 dans l’en-tête, %2 dans cette ligne</translation>
    </message>
    <message>
        <source>%1: %2 is no number</source>
        <extracomment>%1 is a column, %2 what stands in it, in quotation marks.</extracomment>
        <translation>%1&#xa0;: %2 n’est pas un nombre</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Reference ID</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>DPA</translation>
    </message>
    <message>
        <source>Growth standard</source>
        <translation>Standard de croissance</translation>
    </message>
    <message>
        <source>Weight formula</source>
        <translation>Formule de poids</translation>
    </message>
    <message>
        <source>Number of fetuses</source>
        <translation>Nombre de fœtus</translation>
    </message>
    <message>
        <source>Planned delivery</source>
        <translation>Accouchement envisagé</translation>
    </message>
    <message>
        <source>Formula for the crown-rump length</source>
        <translation>Formule pour la longueur cranio-caudale</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>Gestité</translation>
    </message>
    <message>
        <source>Nascor ended before the changes of this document were saved. Do you want to recover them?</source>
        <translation>Nascor s’est arrêté avant l’enregistrement des modifications de ce document. Voulez-vous les récupérer&#xa0;?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Unsaved changes were kept when Nascor ended, but they cannot be read.</source>
        <translation>Des modifications non enregistrées ont été gardées à l’arrêt de Nascor, mais elles ne peuvent pas être lues.</translation>
    </message>
    <message>
        <source>Remove the File</source>
        <translation>Supprimer le fichier</translation>
    </message>
    <message>
        <source>Keep the File</source>
        <translation>Garder le fichier</translation>
    </message>
    <message>
        <source>Patient:</source>
        <translation>Patiente&#xa0;:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Document&#xa0;:</translation>
    </message>
    <message>
        <source>never saved</source>
        <translation>jamais enregistré</translation>
    </message>
    <message>
        <source>Last kept:</source>
        <translation>Dernière copie de secours&#xa0;:</translation>
    </message>
    <message>
        <source>An examination that was removed</source>
        <translation>Un examen qui a été retiré</translation>
    </message>
    <message>
        <source>An examination without a date</source>
        <translation>Un examen sans date</translation>
    </message>
    <message>
        <source>What differs from the saved document:</source>
        <translation>Ce qui diffère du document enregistré&#xa0;:</translation>
    </message>
    <message>
        <source>The document was saved again since. What was saved then is not in these changes.</source>
        <translation>Le document a été enregistré de nouveau depuis. Ce qui a été enregistré alors ne figure pas dans ces modifications.</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept against a crash. Please save: %1</source>
        <translation>Les modifications non enregistrées ne peuvent pas être protégées contre un arrêt brutal. Veuillez enregistrer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Examination of %1</source>
        <translation>Examen du %1</translation>
    </message>
    <message>
        <source>What it holds:</source>
        <translation>Ce qu’il contient&#xa0;:</translation>
    </message>
</context>
<context>
    <name>References</name>
    <message>
        <source>The number is a name of this program; the lengths in parentheses tell the formula.</source>
        <translation>Le numéro est une désignation propre à ce programme&#xa0;; les mesures entre parenthèses indiquent la formule.</translation>
    </message>
    <message>
        <source>Weeks 11 to 14 lie outside the published sample, which has 15 to 41 weeks.</source>
        <translation>Les semaines 11 à 14 sont en dehors de l’échantillon publié, qui va de 15 à 41&#xa0;SA.</translation>
    </message>
    <message>
        <source>The numbers are those of the published tables.</source>
        <translation>Les nombres sont ceux des tables publiées.</translation>
    </message>
    <message>
        <source>The constant is 23.72 here; publications have 23.73.</source>
        <translation>La constante est ici 23,72&#xa0;; des publications donnent 23,73.</translation>
    </message>
    <message>
        <source>The band of the weight chart is the random error of the formula. It shows no centiles of a population.</source>
        <translation>La bande du graphique de poids est l’erreur aléatoire de la formule. Elle ne montre les percentiles d’aucune population.</translation>
    </message>
    <message>
        <source>Citation partly confirmed.</source>
        <translation>Citation confirmée en partie.</translation>
    </message>
    <message>
        <source>Citation to be confirmed.</source>
        <translation>Citation à confirmer.</translation>
    </message>
    <message>
        <source>References</source>
        <translation>Références</translation>
    </message>
    <message>
        <source>&amp;Copy All</source>
        <translation>Tout &amp;copier</translation>
    </message>
    <message>
        <source>Weeks 12 and 13 lie outside the published sample, which has 14 to 42 weeks. The AC is the paper&apos;s equation, not its table, which is up to 1.68 mm higher. Dating reads the table of sizes backwards; the paper&apos;s own age equations, which scanners use, give other ages: HC 5 to 9.9 days more at 26 to 37 weeks, BPD 11.5 days less and AC 6.7 days less at 40, FL 3.6 days more at 29 to 30.</source>
        <translation>Les semaines 12 et 13 sont en dehors de l’échantillon publié, qui va de 14 à 42&#xa0;SA. Le PA est l’équation de l’article, non sa table, qui lui est supérieure de 1,68&#xa0;mm au plus. La datation lit la table des mesures à rebours&#xa0;; les équations d’âge de l’article, qu’utilisent les échographes, donnent d’autres âges&#xa0;: PC de 5 à 9,9 jours de plus de 26 à 37&#xa0;SA, BIP 11,5 jours de moins et PA 6,7 jours de moins à 40&#xa0;SA, LF 3,6 jours de plus de 29 à 30&#xa0;SA.</translation>
    </message>
    <message>
        <source>No second source has this formula. Compared with Hadlock (1992) it gives 9.4 days more at 6.7 mm, 2.9 days more at 20 mm, the same at 30 mm and 1.3 days less at 45 mm.</source>
        <translation>Aucune seconde source ne donne cette formule. Par rapport à Hadlock (1992), elle donne 9,4 jours de plus à 6,7&#xa0;mm, 2,9 jours de plus à 20&#xa0;mm, autant à 30&#xa0;mm et 1,3 jour de moins à 45&#xa0;mm.</translation>
    </message>
    <message>
        <source>Two independent sources have the same formula.</source>
        <translation>Deux sources indépendantes donnent la même formule.</translation>
    </message>
    <message>
        <source>BPD is measured from outer to outer edge. Held against the 1512 values of the printed tables: at most 0.073 mm off.</source>
        <translation>Le BIP est mesuré de bord externe à bord externe. Comparé aux 1512 valeurs des tables imprimées&#xa0;: 0,073&#xa0;mm d’écart au plus.</translation>
    </message>
    <message>
        <source>Fits weights by the formula Hadlock 1 (HC/AC/FL) only. Held against the printed table: at most 0.49 g off.</source>
        <translation>Ne vaut que pour les poids selon la formule Hadlock 1 (HC/AC/FL). Comparé à la table imprimée&#xa0;: 0,49&#xa0;g d’écart au plus.</translation>
    </message>
    <message>
        <source>The abstract has 12.7 % for one standard deviation; the printed percentiles have 13.27 %, which stands here. Held against the printed table: at most 2.2 g off.</source>
        <translation>Le résumé donne 12,7&#xa0;% pour un écart-type&#xa0;; les percentiles imprimés donnent 13,27&#xa0;%, valeur retenue ici. Comparé à la table imprimée&#xa0;: 2,2&#xa0;g d’écart au plus.</translation>
    </message>
    <message>
        <source>Coefficients of the revision of 2023-03-13, published under CC BY. Curves of centiles, no distribution: below the 1st and above the 99th it says no more than that.</source>
        <translation>Coefficients de la révision du 13 mars 2023, publiés sous CC BY. Des courbes de percentiles, pas de distribution&#xa0;: au-dessous du 1er percentile et au-dessus du 99e, la référence ne dit rien de plus.</translation>
    </message>
    <message>
        <source>Lengths measured as the publication has it; normal about the mean</source>
        <translation>Mesures prises comme dans la publication&#xa0;; distribution normale autour de la moyenne</translation>
    </message>
    <message>
        <source>BPD measured from outer to outer edge; normal about the mean</source>
        <translation>BIP mesuré de bord externe à bord externe&#xa0;; distribution normale autour de la moyenne</translation>
    </message>
    <message>
        <source>Weight by the formula Hadlock 1 (HC/AC/FL); no other formula fits it</source>
        <translation>Poids selon la formule Hadlock 1 (HC/AC/FL)&#xa0;; aucune autre formule ne convient</translation>
    </message>
    <message>
        <source>Weight normal about the mean, with a standard deviation of 13.27 % of it</source>
        <translation>Poids distribué normalement autour de la moyenne, avec un écart-type de 13,27&#xa0;% de celle-ci</translation>
    </message>
    <message>
        <source>No distribution: between the curves of eleven centiles linear in the value, beyond the 1st and the 99th unknown</source>
        <translation>Pas de distribution&#xa0;: linéaire en la valeur entre les courbes de onze percentiles, inconnue au-delà du 1er et du 99e</translation>
    </message>
    <message>
        <source>Formula and checked values</source>
        <translation>Formule et valeurs vérifiées</translation>
    </message>
    <message>
        <source>Lengths in mm, weights in g; w is the age in weeks, d in days, g in tens of weeks. What stands side by side is multiplied.</source>
        <translation>Mesures en mm, poids en g&#xa0;; w est l’âge en semaines, d en jours, g en dizaines de semaines. Deux termes accolés se multiplient.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>SD</source>
        <translation>ET</translation>
    </message>
    <message>
        <source>%1 values, of which %2 differ from what the program answers now.</source>
        <translation>%1 valeurs, dont %2 diffèrent de ce que répond maintenant le programme.</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Exemple</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Attendu</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Quotients of what was measured; nothing is published of them here.</source>
        <translation>Quotients de ce qui a été mesuré&#xa0;; aucune publication n’est citée ici.</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formule</translation>
    </message>
    <message>
        <source>Printed table</source>
        <translation>Table imprimée</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Domaine</translation>
    </message>
    <message>
        <source>%1 to %2 mm</source>
        <translation>de %1 à %2&#xa0;mm</translation>
    </message>
    <message>
        <source>%1 to %2 weeks</source>
        <translation>de %1 à %2&#xa0;SA</translation>
    </message>
    <message>
        <source>Assumes</source>
        <translation>Hypothèses</translation>
    </message>
    <message>
        <source>Checked with</source>
        <translation>Vérifié avec</translation>
    </message>
    <message>
        <source>&amp;All References</source>
        <translation>Toutes les &amp;références</translation>
    </message>
    <message>
        <source>%1 values. The program answers each of them alike.</source>
        <translation>%1 valeurs. Le programme les retrouve toutes.</translation>
    </message>
    <message>
        <source>worked out apart from the program, in decimal arithmetic</source>
        <translation>calculé sans le programme, en arithmétique décimale</translation>
    </message>
</context>
<context>
    <name>ReportFiles</name>
    <message>
        <source>a text is not in the character set &quot;%1&quot; that the file states</source>
        <translation>un texte n’est pas dans le jeu de caractères «&#xa0;%1&#xa0;» que le fichier indique</translation>
    </message>
    <message>
        <source>is damaged: %1</source>
        <extracomment>%1 is what a library says, in English, as in all sentences about DICOM that end with a colon.</extracomment>
        <translation>est endommagé&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>ne peut pas être écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>is cut off: it ends before its end</source>
        <translation>est tronqué&#xa0;: il s’arrête avant sa fin</translation>
    </message>
    <message>
        <source>is damaged: a part is longer than what holds it</source>
        <translation>est endommagé&#xa0;: une partie est plus longue que ce qui la contient</translation>
    </message>
    <message>
        <source>is damaged: a part is of a kind that DICOM does not have</source>
        <translation>est endommagé&#xa0;: une partie est d’un type que DICOM ne connaît pas</translation>
    </message>
    <message>
        <source>is no DICOM file</source>
        <translation>n’est pas un fichier DICOM</translation>
    </message>
    <message>
        <source>has more parts than any report</source>
        <translation>a plus de parties qu’aucun rapport</translation>
    </message>
    <message>
        <source>is a DICOM file that does not say how it is encoded</source>
        <translation>est un fichier DICOM qui ne dit pas comment il est encodé</translation>
    </message>
    <message>
        <source>is a compressed DICOM file; reports are read uncompressed</source>
        <translation>est un fichier DICOM compressé&#xa0;; les rapports sont lus sans compression</translation>
    </message>
    <message>
        <source>is nested deeper than any report</source>
        <translation>est imbriqué plus profondément qu’aucun rapport</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 is the name of a file, %2 a sentence about it that begins with a small letter.</extracomment>
        <translation>%1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the path of a file, %2 what the operating system says of it.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>is no report that is read: no DICOM file, no FHIR bundle, and no table whose first line names exam_date and lengths such as bpd_mm, with commas between</source>
        <translation>n’est pas un rapport qui est lu&#xa0;: ni fichier DICOM, ni bundle FHIR, ni tableau dont la première ligne nomme exam_date et des mesures comme bpd_mm, séparées par des virgules</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: %2 more row.</source>
        <extracomment>%2 rows of the file %1 do not fit either.</extracomment>
        <translation>%1&#xa0;: %2 ligne de plus.</translation>
    </message>
    <message>
        <source>%1: %2 more rows.</source>
        <translation>%1&#xa0;: %2 lignes de plus.</translation>
    </message>
</context>
<context>
    <name>ReportImport</name>
    <message>
        <source>chosen at the machine</source>
        <translation>choisi sur l’échographe</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>moyenne</translation>
    </message>
    <message>
        <source>mean of several</source>
        <translation>moyenne de plusieurs</translation>
    </message>
    <message>
        <source>calculated, not measured</source>
        <translation>calculé, non mesuré</translation>
    </message>
    <message>
        <source>estimated, not measured</source>
        <translation>estimé, non mesuré</translation>
    </message>
    <message>
        <source>The report cannot be imported.</source>
        <translation>Le rapport ne peut pas être importé.</translation>
    </message>
    <message>
        <source>Fetched report %ld</source>
        <translation>Rapport récupéré %ld</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>BIP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>PC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>PA</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>LF</translation>
    </message>
    <message>
        <source>CRL</source>
        <translation>LCC</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>DPA</translation>
    </message>
    <message>
        <source>Last period</source>
        <translation>Dernières règles</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>Gestité</translation>
    </message>
    <message>
        <source>The reference ID of the report has characters that cannot be read.</source>
        <translation>L’identifiant du rapport contient des caractères qui ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>The report does not say of which patient it is.</source>
        <translation>Le rapport n’indique pas de quelle patiente il s’agit.</translation>
    </message>
    <message>
        <source>The document does not say of which patient it is.</source>
        <translation>Le document n’indique pas de quelle patiente il s’agit.</translation>
    </message>
    <message>
        <source>The report is of another patient than the document.</source>
        <translation>Le rapport est celui d’une autre patiente que celle du document.</translation>
    </message>
    <message>
        <source>Fetus without an ID</source>
        <translation>Fœtus sans identifiant</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Fœtus</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>is added</source>
        <translation>est ajouté</translation>
    </message>
    <message>
        <source>is there already</source>
        <translation>y figure déjà</translation>
    </message>
    <message>
        <source>is not taken: another value stands</source>
        <translation>n’est pas repris&#xa0;: une autre valeur est en place</translation>
    </message>
    <message>
        <source>is not taken: beyond what can be typed</source>
        <translation>n’est pas repris&#xa0;: au-delà de ce qui peut être saisi</translation>
    </message>
    <message>
        <source>is left out</source>
        <translation>n’est pas importé</translation>
    </message>
    <message>
        <source>Fetuses</source>
        <translation>Fœtus</translation>
    </message>
    <message>
        <source>is compared only</source>
        <translation>est seulement comparé</translation>
    </message>
    <message>
        <source>from the last period</source>
        <translation>d’après les dernières règles</translation>
    </message>
    <message>
        <source>replaces the established EDD</source>
        <translation>remplace la DPA établie</translation>
    </message>
    <message>
        <source>is not taken: the established EDD stays</source>
        <translation>n’est pas reprise&#xa0;: la DPA établie reste</translation>
    </message>
    <message>
        <source>Which fetus is it?</source>
        <translation>De quel fœtus s’agit-il&#xa0;?</translation>
    </message>
    <message>
        <source>is entered in EDD from CRL</source>
        <translation>est saisi dans DPA d’après la LCC</translation>
    </message>
    <message>
        <source>is not stored; can be entered in EDD from CRL</source>
        <translation>n’est pas enregistré&#xa0;; peut être saisi dans DPA d’après la LCC</translation>
    </message>
    <message>
        <source>is not taken:</source>
        <translation>n’est pas repris&#xa0;:</translation>
    </message>
    <message>
        <source>The report is of %ld fetuses, the document of %ld. Please leave out the others, or cancel and add a fetus.</source>
        <translation>Le rapport porte sur %ld fœtus, le document sur %ld. Veuillez ne pas importer les autres, ou annuler et ajouter un fœtus.</translation>
    </message>
    <message>
        <source>Please choose for each fetus which one it is.</source>
        <translation>Veuillez choisir pour chaque fœtus duquel il s’agit.</translation>
    </message>
    <message>
        <source>Two fetuses of the report cannot be the same one.</source>
        <translation>Deux fœtus du rapport ne peuvent pas être le même.</translation>
    </message>
    <message>
        <source>The reports are of several patients. Please import those of each patient alone.</source>
        <translation>Les rapports sont ceux de plusieurs patientes. Veuillez importer séparément ceux de chacune.</translation>
    </message>
    <message>
        <source>Please say whether the report is of this patient.</source>
        <translation>Veuillez indiquer si le rapport est celui de cette patiente.</translation>
    </message>
    <message>
        <source>The document has a number of fetuses that no report fits.</source>
        <translation>Le document a un nombre de fœtus auquel aucun rapport ne correspond.</translation>
    </message>
    <message>
        <source>There is nothing to be added.</source>
        <translation>Il n’y a rien à ajouter.</translation>
    </message>
    <message>
        <source>These reports cannot be imported.</source>
        <translation>Ces rapports ne peuvent pas être importés.</translation>
    </message>
</context>
<context>
    <name>ReportServer</name>
    <message>
        <source>the host is no name and no IPv4 address</source>
        <translation>l’hôte n’est ni un nom ni une adresse IPv4</translation>
    </message>
    <message>
        <source>the port is no number from 1 to 65535</source>
        <translation>le port n’est pas un nombre de 1 à 65535</translation>
    </message>
    <message>
        <source>the called title is not of 1 to 16 characters of ASCII without a backslash</source>
        <translation>le titre AE appelé n’a pas de 1 à 16 caractères ASCII sans barre oblique inverse</translation>
    </message>
    <message>
        <source>the calling title is not of 1 to 16 characters of ASCII without a backslash</source>
        <translation>le titre AE appelant n’a pas de 1 à 16 caractères ASCII sans barre oblique inverse</translation>
    </message>
    <message>
        <source>the timeout is no number of seconds from 1 to 3600</source>
        <translation>le délai n’est pas un nombre de secondes de 1 à 3600</translation>
    </message>
    <message>
        <source>an encrypted connection needs the file of the certificate authority</source>
        <translation>une connexion chiffrée exige le fichier de l’autorité de certification</translation>
    </message>
    <message>
        <source>a certificate needs its key, and a key its certificate</source>
        <translation>un certificat exige sa clé, et une clé son certificat</translation>
    </message>
    <message>
        <source>the reference ID holds *, ?, a backslash or a control character, which a server does not search for</source>
        <translation>l’identifiant contient *,&#xa0;?, une barre oblique inverse ou un caractère de contrôle, qu’un serveur ne recherche pas</translation>
    </message>
    <message>
        <source>the reference ID holds characters that do not show</source>
        <translation>l’identifiant contient des caractères qui ne se voient pas</translation>
    </message>
    <message>
        <source>the reference ID is longer than 64 bytes</source>
        <translation>l’identifiant dépasse 64&#xa0;octets</translation>
    </message>
    <message>
        <source>the reference ID begins or ends with a blank, which a server does not keep</source>
        <translation>l’identifiant commence ou se termine par une espace, qu’un serveur ne conserve pas</translation>
    </message>
    <message>
        <source>the study is no UID, which has digits and dots</source>
        <translation>l’étude n’est pas un UID, fait de chiffres et de points</translation>
    </message>
    <message>
        <source>a day is not in the calendar</source>
        <translation>un jour n’est pas dans le calendrier</translation>
    </message>
    <message>
        <source>the last day is before the first</source>
        <translation>le dernier jour précède le premier</translation>
    </message>
    <message>
        <source>neither a patient nor a study is named</source>
        <translation>ni patiente ni étude n’est indiquée</translation>
    </message>
    <message>
        <source>refuses the connection: its title is not &quot;%1&quot;</source>
        <translation>refuse la connexion&#xa0;: son titre AE n’est pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>refuses the connection: the title &quot;%1&quot; of this program must be entered there first</source>
        <translation>refuse la connexion&#xa0;: le titre AE «&#xa0;%1&#xa0;» de ce programme doit d’abord y être enregistré</translation>
    </message>
    <message>
        <source>refuses the connection: it is busy; try again later</source>
        <translation>refuse la connexion&#xa0;: il est occupé&#xa0;; réessayez plus tard</translation>
    </message>
    <message>
        <source>refuses the connection, and does not say why</source>
        <translation>refuse la connexion, sans dire pourquoi</translation>
    </message>
    <message>
        <source>DCMTK does not find its data dictionary (DCMDICTPATH), without which it does not use the network</source>
        <translation>DCMTK ne trouve pas son dictionnaire de données (DCMDICTPATH), sans lequel il n’utilise pas le réseau</translation>
    </message>
    <message>
        <source>shows a certificate that is not accepted: %1</source>
        <translation>présente un certificat qui n’est pas accepté&#xa0;: %1</translation>
    </message>
    <message>
        <source>does not make an encrypted connection: %1</source>
        <translation>n’établit pas de connexion chiffrée&#xa0;: %1</translation>
    </message>
    <message>
        <source>answers what is not DICOM</source>
        <translation>répond autre chose que du DICOM</translation>
    </message>
    <message>
        <source>cannot be reached within %1 s</source>
        <translation>ne peut pas être joint en %1&#xa0;s</translation>
    </message>
    <message>
        <source>cannot be reached: %1</source>
        <translation>ne peut pas être joint&#xa0;: %1</translation>
    </message>
    <message>
        <source>gave no complete answer within %1 s</source>
        <translation>n’a pas donné de réponse complète en %1&#xa0;s</translation>
    </message>
    <message>
        <source>broke off the connection without saying why</source>
        <translation>a rompu la connexion sans dire pourquoi</translation>
    </message>
    <message>
        <source>ended the connection before its answer was complete</source>
        <translation>a mis fin à la connexion avant que sa réponse soit complète</translation>
    </message>
    <message>
        <source>ended the connection without an answer; the connection may have to be encrypted, or must not be</source>
        <translation>a mis fin à la connexion sans réponse&#xa0;; la connexion doit peut-être être chiffrée, ou ne doit pas l’être</translation>
    </message>
    <message>
        <source>gave an answer that is not understood: %1</source>
        <translation>a donné une réponse qui n’est pas comprise&#xa0;: %1</translation>
    </message>
    <message>
        <source>gave an answer in a context that was not agreed on</source>
        <translation>a donné une réponse dans un contexte qui n’a pas été convenu</translation>
    </message>
    <message>
        <source>does not hand out reports (C-GET of the study root)</source>
        <translation>ne remet pas de rapports (C-GET de type Study Root)</translation>
    </message>
    <message>
        <source>gave an answer that was not asked for</source>
        <translation>a donné une réponse qui n’était pas demandée</translation>
    </message>
    <message>
        <source>was not given: %1</source>
        <translation>n’a pas été remis&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot be asked: %1</source>
        <translation>ne peut pas être interrogé&#xa0;: %1</translation>
    </message>
    <message>
        <source>was not taken: it is longer than any report</source>
        <translation>n’a pas été pris&#xa0;: il est plus long qu’aucun rapport</translation>
    </message>
    <message>
        <source>was not taken: it is another kind of report</source>
        <translation>n’a pas été pris&#xa0;: c’est un autre type de rapport</translation>
    </message>
    <message>
        <source>was not taken: it %1</source>
        <extracomment>%1 is what is wrong with it: &quot;is cut off: it ends before its end&quot;.</extracomment>
        <translation>n’a pas été pris&#xa0;: il %1</translation>
    </message>
    <message>
        <source>was not taken: the server gave another report than it was asked for</source>
        <translation>n’a pas été pris&#xa0;: le serveur a donné un autre rapport que celui qui était demandé</translation>
    </message>
    <message>
        <source>was not taken: it is of &quot;%1&quot;, although the server lists it under &quot;%2&quot;</source>
        <translation>n’a pas été pris&#xa0;: il est de «&#xa0;%1&#xa0;», bien que le serveur le range sous «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the other reports were not fetched: these are as many bytes as are taken at once</source>
        <translation>les autres rapports n’ont pas été récupérés&#xa0;: ceux-ci font autant d’octets qu’il en est pris à la fois</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>%1 is the UID of a report, %2 what became of it: &quot;was not taken: it is another kind of report&quot;.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>is longer than any report</source>
        <translation>est plus long qu’aucun rapport</translation>
    </message>
    <message>
        <source>is no report that is sent: its kind is neither Comprehensive SR nor Enhanced SR</source>
        <translation>n’est pas un rapport qui est envoyé&#xa0;: son type n’est ni Comprehensive SR ni Enhanced SR</translation>
    </message>
    <message>
        <source>has no proper SOP Instance UID, and is not sent</source>
        <translation>n’a pas de SOP Instance UID valable, et n’est pas envoyé</translation>
    </message>
    <message>
        <source>is not taken: the server takes no reports (%1)</source>
        <translation>n’est pas pris&#xa0;: le serveur ne prend pas de rapports (%1)</translation>
    </message>
    <message>
        <source>is kept by the server, but perhaps not as it was: %1</source>
        <translation>est conservé par le serveur, mais peut-être pas tel quel&#xa0;: %1</translation>
    </message>
    <message>
        <source>is not taken by the server: %1</source>
        <translation>n’est pas pris par le serveur&#xa0;: %1</translation>
    </message>
    <message>
        <source>does not answer to C-ECHO</source>
        <translation>ne répond pas à C-ECHO</translation>
    </message>
    <message>
        <source>answers with more than there is memory for</source>
        <translation>répond par plus qu’il n’y a de mémoire</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>il n’y a pas assez de mémoire</translation>
    </message>
    <message>
        <source>there is no IPv4 address of this host: %1</source>
        <translation>il n’y a pas d’adresse IPv4 pour cet hôte&#xa0;: %1</translation>
    </message>
    <message>
        <source>the address of this host was not found in time</source>
        <translation>l’adresse de cet hôte n’a pas été trouvée à temps</translation>
    </message>
    <message>
        <source>does not search for reports (C-FIND of the study root)</source>
        <translation>ne recherche pas de rapports (C-FIND de type Study Root)</translation>
    </message>
    <message>
        <source>at most %1 reports are taken, and there are others; name a patient, a study or fewer days</source>
        <translation>au plus %1 rapports sont pris, et il y en a d’autres&#xa0;; indiquez une patiente, une étude ou moins de jours</translation>
    </message>
    <message>
        <source>%1 answer was left out: it is of another patient, study or day, or names no report by proper UIDs</source>
        <translation>%1 réponse a été omise&#xa0;: elle porte sur une autre patiente, une autre étude ou un autre jour, ou ne nomme aucun rapport par des UID valables</translation>
    </message>
    <message>
        <source>%1 answers were left out: they are of another patient, study or day, or name no report by proper UIDs</source>
        <translation>%1 réponses ont été omises&#xa0;: elles portent sur une autre patiente, une autre étude ou un autre jour, ou ne nomment aucun rapport par des UID valables</translation>
    </message>
    <message>
        <source>does not search: %1</source>
        <translation>ne recherche pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>encrypted connections are not there: OpenSSL does not begin</source>
        <translation>les connexions chiffrées ne sont pas disponibles&#xa0;: OpenSSL ne démarre pas</translation>
    </message>
    <message>
        <source>encrypted connections are not there: OpenSSL has none of their ciphers</source>
        <translation>les connexions chiffrées ne sont pas disponibles&#xa0;: OpenSSL n’a aucun de leurs algorithmes</translation>
    </message>
    <message>
        <source>%1 holds no certificate in PEM that can be read</source>
        <translation>%1 ne contient pas de certificat PEM lisible</translation>
    </message>
    <message>
        <source>%1 holds no key in PEM that can be read without a password</source>
        <translation>%1 ne contient pas de clé PEM lisible sans mot de passe</translation>
    </message>
    <message>
        <source>%1 is not the key of %2</source>
        <translation>%1 n’est pas la clé de %2</translation>
    </message>
    <message>
        <source>the name of the host cannot be looked for in a certificate</source>
        <translation>le nom de l’hôte ne peut pas être cherché dans un certificat</translation>
    </message>
</context>
<context>
    <name>ServerMenu</name>
    <message>
        <source>&amp;Fetch Reports...</source>
        <translation>&amp;Récupérer des rapports...</translation>
    </message>
    <message>
        <source>&amp;Send This Examination...</source>
        <translation>&amp;Envoyer cet examen...</translation>
    </message>
    <message>
        <source>There is no server.</source>
        <translation>Il n’y a pas de serveur.</translation>
    </message>
    <message>
        <source>The reports cannot be fetched.</source>
        <translation>Les rapports ne peuvent pas être récupérés.</translation>
    </message>
    <message>
        <source>Fetch Reports</source>
        <translation>Récupérer des rapports</translation>
    </message>
    <message>
        <source>Reference ID of the patient on %1:</source>
        <translation>Identifiant de la patiente sur %1&#xa0;:</translation>
    </message>
    <message>
        <source>Asking %1...</source>
        <translation>Interrogation de %1...</translation>
    </message>
    <message>
        <source>The server has no report of the patient %1.</source>
        <translation>Le serveur n’a pas de rapport de la patiente %1.</translation>
    </message>
    <message>
        <source>Fetching from %1...</source>
        <translation>Récupération depuis %1...</translation>
    </message>
    <message>
        <source>Not all reports were fetched.</source>
        <translation>Certains rapports n’ont pas été récupérés.</translation>
    </message>
    <message>
        <source>Examination</source>
        <translation>Examen</translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>The examination was not sent.</source>
        <translation>L’examen n’a pas été envoyé.</translation>
    </message>
    <message>
        <source>without a date</source>
        <translation>sans date</translation>
    </message>
    <message>
        <source>Patient %1, examination %2, to %3.</source>
        <translation>Patiente %1, examen %2, vers %3.</translation>
    </message>
    <message>
        <source>The connection is not encrypted.</source>
        <translation>La connexion n’est pas chiffrée.</translation>
    </message>
    <message>
        <source>Send this examination to the server?</source>
        <translation>Envoyer cet examen au serveur&#xa0;?</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>Envoi vers %1...</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Envoyé vers %1</translation>
    </message>
    <message>
        <source>The answer was not waited for.</source>
        <translation>La réponse n’a pas été attendue.</translation>
    </message>
    <message>
        <source>Server S&amp;ettings...</source>
        <translation>&amp;Paramètres du serveur...</translation>
    </message>
    <message>
        <source>Please name one in File &gt; Report Folder and Server &gt; Server Settings.</source>
        <translation>Veuillez en indiquer un dans Fichier &gt; Dossier de rapports et serveur &gt; Paramètres du serveur.</translation>
    </message>
</context>
<context>
    <name>ServerSettings</name>
    <message>
        <source>Choose...</source>
        <translation>Choisir...</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>&amp;Encrypted connection (TLS)</source>
        <translation>Connexion &amp;chiffrée (TLS)</translation>
    </message>
    <message>
        <source>Server Settings</source>
        <translation>Paramètres du serveur</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>&amp;Hôte&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port&#xa0;:</translation>
    </message>
    <message>
        <source>AE &amp;title of the server:</source>
        <translation>&amp;Titre AE du serveur&#xa0;:</translation>
    </message>
    <message>
        <source>AE title of this prog&amp;ram:</source>
        <translation>Titre AE de ce p&amp;rogramme&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Authority&apos;s certificate:</source>
        <translation>Certificat de l’a&amp;utorité&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Own certificate:</source>
        <translation>Certificat pr&amp;opre&#xa0;:</translation>
    </message>
    <message>
        <source>Own &amp;key:</source>
        <translation>C&amp;lé privée&#xa0;:</translation>
    </message>
    <message>
        <source>Te&amp;st</source>
        <translation>Te&amp;ster</translation>
    </message>
    <message>
        <source>Without a host, Nascor contacts no server.</source>
        <translation>Sans hôte, Nascor ne s’adresse à aucun serveur.</translation>
    </message>
    <message>
        <source>Reports will cross the network in clear.</source>
        <translation>Les rapports circuleront en clair sur le réseau.</translation>
    </message>
    <message>
        <source>The server answers.</source>
        <translation>Le serveur répond.</translation>
    </message>
</context>
<context>
    <name>ServerTask</name>
    <message>
        <source>Waiting for the end of the last question...</source>
        <translation>Attente de la fin de la dernière requête...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Summary</source>
        <translation>Synthèse</translation>
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
        <translation>Fœtus %ld sur %ld</translation>
    </message>
    <message>
        <source>today</source>
        <translation>aujourd’hui</translation>
    </message>
    <message>
        <source>in %ld days</source>
        <translation>dans %ld jours</translation>
    </message>
    <message>
        <source>%ld days ago</source>
        <translation>il y a %ld jours</translation>
    </message>
    <message>
        <source>%ld days after the EDD</source>
        <translation>%ld jours après la DPA</translation>
    </message>
    <message>
        <source>%ld days before the EDD</source>
        <translation>%ld jours avant la DPA</translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Fœtus</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>Gestité</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>DPA (40&#xa0;SA)</translation>
    </message>
    <message>
        <source>Last examination</source>
        <translation>Dernier examen</translation>
    </message>
    <message>
        <source>Planned delivery</source>
        <translation>Accouchement envisagé</translation>
    </message>
    <message>
        <source>Growth standard</source>
        <translation>Standard de croissance</translation>
    </message>
    <message>
        <source>Weight formula</source>
        <translation>Formule de poids</translation>
    </message>
    <message>
        <source>Discordance of weights</source>
        <translation>Discordance de poids</translation>
    </message>
    <message>
        <source>Examiner</source>
        <translation>Opérateur</translation>
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
        <translation>Examen</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Âge</translation>
    </message>
    <message>
        <source>The growth standard is not known.</source>
        <translation>Le standard de croissance n’est pas connu.</translation>
    </message>
    <message>
        <source>A weight is given above 100 g.</source>
        <translation>Un poids n’est indiqué qu’au-dessus de 100&#xa0;g.</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>centile</source>
        <translation>perc.</translation>
    </message>
    <message>
        <source>Weights</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Centiles by each reference for weights; difference from the formula in force.</source>
        <translation>Percentiles selon chaque référence de poids&#xa0;; écart par rapport à la formule choisie.</translation>
    </message>
    <message>
        <source>Growth</source>
        <translation>Croissance</translation>
    </message>
    <message>
        <source>expected</source>
        <translation>attendu</translation>
    </message>
    <message>
        <source>The note is longer; the document has all of it.</source>
        <translation>La note est plus longue&#xa0;; le document la contient en entier.</translation>
    </message>
    <message>
        <source>en</source>
        <translation>fr</translation>
    </message>
    <message>
        <source>Fetal biometry summary</source>
        <translation>Synthèse de biométrie fœtale</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Évolution</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Sources</translation>
    </message>
    <message>
        <source>Page %ld of %ld</source>
        <translation>Page %ld sur %ld</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>demain</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>hier</translation>
    </message>
    <message>
        <source>one day after the EDD</source>
        <translation>un jour après la DPA</translation>
    </message>
    <message>
        <source>one day before the EDD</source>
        <translation>un jour avant la DPA</translation>
    </message>
    <message>
        <source>Since the last examination before that has the measure: change a week, what the growth standard expects, and change of z.</source>
        <translation>Depuis le dernier examen antérieur où figure le paramètre&#xa0;: variation par semaine, celle qu’attend le standard de croissance, et variation de z.</translation>
    </message>
    <message>
        <source>Lengths: z and centile by %1. Weight: by the formula %2, z and centile by %3.</source>
        <translation>Mesures&#xa0;: z et percentile selon %1. Poids&#xa0;: selon la formule %2, z et percentile selon %3.</translation>
    </message>
    <message>
        <source>%1/week</source>
        <translation>%1/semaine</translation>
    </message>
    <message>
        <source>Lines: centiles 3, 10, 50, 90 and 97; lengths by %1, weight by %2. Weeks of menstrual age below.</source>
        <translation>Lignes&#xa0;: percentiles 3, 10, 50, 90 et 97&#xa0;; mesures selon %1, poids selon %2. Semaines d’aménorrhée en abscisse.</translation>
    </message>
</context>
<context>
    <name>SummaryMenu</name>
    <message>
        <source>Export Summary...</source>
        <translation>Exporter la synthèse...</translation>
    </message>
    <message>
        <source>Print Summary...</source>
        <translation>Imprimer la synthèse...</translation>
    </message>
    <message>
        <source>Summary Details...</source>
        <translation>Détails de la synthèse...</translation>
    </message>
    <message>
        <source>Export Summary</source>
        <translation>Exporter la synthèse</translation>
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
        <translation>La synthèse n’a pas été exportée.</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exporté vers %1</translation>
    </message>
    <message>
        <source>The summary was not printed.</source>
        <translation>La synthèse n’a pas été imprimée.</translation>
    </message>
    <message>
        <source>There is no printer. Please choose a file to print into in the print panel.</source>
        <translation>Il n’y a pas d’imprimante. Veuillez choisir, dans la boîte de dialogue d’impression, un fichier dans lequel imprimer.</translation>
    </message>
    <message>
        <source>The printer %1 does not answer. Please look after it or choose another.</source>
        <translation>L’imprimante %1 ne répond pas. Veuillez la vérifier ou en choisir une autre.</translation>
    </message>
    <message>
        <source>Summary Details</source>
        <translation>Détails de la synthèse</translation>
    </message>
    <message>
        <source>&amp;Letterhead:</source>
        <translation>&amp;En-tête&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Examiner:</source>
        <translation>&amp;Opérateur&#xa0;:</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>The user guide cannot be shown.</source>
        <translation>Le guide d’utilisation ne peut pas être affiché.</translation>
    </message>
    <message>
        <source>%1 is not installed.</source>
        <translation>%1 n’est pas installé.</translation>
    </message>
    <message>
        <source>There is no program that shows %1.</source>
        <translation>Il n’y a pas de programme pour afficher %1.</translation>
    </message>
    <message>
        <source>There is no program that shows PDF files. Please install one, or open the page for browsers that lies beside %1.</source>
        <translation>Il n’y a pas de programme pour afficher les fichiers PDF. Veuillez en installer un, ou ouvrir la page pour navigateur qui se trouve à côté de %1.</translation>
    </message>
</context>
<context>
    <name>WaitingReports</name>
    <message>
        <source>No reference ID</source>
        <translation>Pas d’identifiant</translation>
    </message>
    <message>
        <source>1 report has come</source>
        <translation>1 rapport est arrivé</translation>
    </message>
    <message>
        <source>%1 reports have come</source>
        <translation>%1 rapports sont arrivés</translation>
    </message>
    <message>
        <source>Set All &amp;Aside</source>
        <translation>Tout &amp;mettre de côté</translation>
    </message>
    <message>
        <source>Report Folder</source>
        <translation>Dossier de rapports</translation>
    </message>
    <message>
        <source>&amp;Offer reports that ultrasound machines put here:</source>
        <translation>&amp;Proposer les rapports que les échographes déposent ici&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Choisir...</translation>
    </message>
    <message>
        <source>No folder was chosen</source>
        <translation>Aucun dossier n’a été choisi</translation>
    </message>
</context>
<context>
    <name>Writing</name>
    <message>
        <source>January</source>
        <extracomment>A month as it stands in a day, &quot;4 January 2027&quot;.</extracomment>
        <translation>janvier</translation>
    </message>
    <message>
        <source>February</source>
        <translation>février</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>April</source>
        <translation>avril</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juillet</translation>
    </message>
    <message>
        <source>August</source>
        <translation>août</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septembre</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octobre</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>December</source>
        <translation>décembre</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>.</source>
        <extracomment>The decimal sign: a point or a comma.</extracomment>
        <translation>,</translation>
    </message>
    <message>
        <source>1</source>
        <extracomment>The first day of a month, as it stands in &quot;1 March 2027&quot;.</extracomment>
        <translation>1er</translation>
    </message>
</context>
<context>
    <name>ZuVersion</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Obstetric ultrasound biometry.
%1</source>
        <translation>Biométrie échographique obstétricale.
%1</translation>
    </message>
    <message>
        <source>Documents to open.</source>
        <translation>Documents à ouvrir.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Affiche la version.</translation>
    </message>
    <message>
        <source>Shows no window until the session bus asks for one.</source>
        <translation>N’affiche aucune fenêtre avant que le bus de session n’en demande une.</translation>
    </message>
    <message>
        <source>nascor: no window can be shown: %1</source>
        <translation>nascor&#xa0;: aucune fenêtre ne peut être affichée&#xa0;: %1</translation>
    </message>
    <message>
        <source>--%1 knows no &quot;%2&quot;.</source>
        <translation>--%1 ne connaît pas «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Which documents? --write-pages FOLDER FILE...</source>
        <translation>Quels documents&#xa0;? --write-pages FOLDER FILE...</translation>
    </message>
    <message>
        <source>With --write-pages: pdf, png or svg; else PNG and PDF.</source>
        <translation>Avec --write-pages&#xa0;: pdf, png ou svg&#xa0;; sinon PNG et PDF.</translation>
    </message>
    <message>
        <source>With --write-pages: all, or first, last, numbers from 0 and names, with commas between.</source>
        <translation>Avec --write-pages&#xa0;: all (toutes), ou first (la première), last (la dernière), des numéros à partir de 0 et des noms, séparés par des virgules.</translation>
    </message>
    <message>
        <source>With --write-pages: all, or the number of one fetus.</source>
        <translation>Avec --write-pages&#xa0;: all (tous), ou le numéro d’un fœtus.</translation>
    </message>
    <message>
        <source>With --write-pages: nothing stands under the pages.</source>
        <translation>Avec --write-pages&#xa0;: rien ne figure sous les pages.</translation>
    </message>
    <message>
        <source>With --write-pages: the files are not listed.</source>
        <translation>Avec --write-pages&#xa0;: les fichiers ne sont pas énumérés.</translation>
    </message>
    <message>
        <source>Writes the pages of the documents into FOLDER, and shows no window. Files of the same names are replaced. As - the one file goes to standard output.</source>
        <translation>Écrit les pages des documents dans FOLDER, sans afficher de fenêtre. Les fichiers de même nom sont remplacés. Avec -, l’unique fichier va sur la sortie standard.</translation>
    </message>
    <message>
        <source>With --write-pages: files that are there are left as they are.</source>
        <translation>Avec --write-pages&#xa0;: les fichiers qui existent déjà sont laissés tels quels.</translation>
    </message>
    <message>
        <source>With --write-pages: draws centile lines of that reference over the charts.</source>
        <translation>Avec --write-pages&#xa0;: trace les lignes de percentiles de cette référence sur les graphiques.</translation>
    </message>
    <message>
        <source>With --write-pages: lines join the marks of each fetus.</source>
        <translation>Avec --write-pages&#xa0;: des lignes relient les points de chaque fœtus.</translation>
    </message>
    <message>
        <source>Offers the reports that machines put into this folder.</source>
        <translation>Propose les rapports que les échographes déposent dans ce dossier.</translation>
    </message>
    <message>
        <source>nascor: --watch: %1 is no folder</source>
        <translation>nascor&#xa0;: --watch&#xa0;: %1 n’est pas un dossier</translation>
    </message>
    <message>
        <source>nascor: --watch: Nascor is running already. Please choose the folder there, by File &gt; Report Folder and Server.</source>
        <translation>nascor&#xa0;: --watch&#xa0;: Nascor est déjà lancé. Veuillez y choisir le dossier, par Fichier &gt; Dossier de rapports et serveur.</translation>
    </message>
</context>
</TS>
