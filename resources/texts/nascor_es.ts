<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Fetal Weight Formula: </source>
        <translation>Fórmula del peso: </translation>
    </message>
    <message>
        <source>Days to Go:	%ld</source>
        <translation>Días restantes:	%ld</translation>
    </message>
    <message>
        <source>Nascor Standard: </source>
        <translation>Estándar: </translation>
    </message>
    <message>
        <source>Menstrual Age (Weeks)</source>
        <translation>Edad gestacional (sem.)</translation>
    </message>
    <message>
        <source>Biparietal Diameter (mm)</source>
        <translation>Diámetro biparietal (mm)</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Head Circ (mm)</source>
        <translation>Circ. cefálica (mm)</translation>
    </message>
    <message>
        <source>Abdo Circ (mm)</source>
        <translation>Circ. abdominal (mm)</translation>
    </message>
    <message>
        <source>Femur Length (mm)</source>
        <translation>Longitud femoral (mm)</translation>
    </message>
    <message>
        <source>Estimated Fetal Weight (g)</source>
        <translation>Peso fetal estimado (g)</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>Identifier:	</source>
        <translation>Identificador:	</translation>
    </message>
    <message>
        <source>Gravida:	</source>
        <translation>Gestas:	</translation>
    </message>
    <message>
        <source>Fetus:	</source>
        <translation>Feto:	</translation>
    </message>
    <message>
        <source>Date:	</source>
        <translation>Fecha:	</translation>
    </message>
    <message>
        <source>EDD:	</source>
        <translation>FPP:	</translation>
    </message>
    <message>
        <source>Menstrual Age:	</source>
        <translation>Edad gest.:	</translation>
    </message>
    <message>
        <source>Exam Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Menstrual Age</source>
        <translation>Edad gest.</translation>
    </message>
    <message>
        <source>BPD (mm)</source>
        <translation>DBP (mm)</translation>
    </message>
    <message>
        <source>HC (mm)</source>
        <translation>CC (mm)</translation>
    </message>
    <message>
        <source>AC (mm)</source>
        <translation>CA (mm)</translation>
    </message>
    <message>
        <source>FL (mm)</source>
        <translation>LF (mm)</translation>
    </message>
    <message>
        <source>EFW (g)</source>
        <translation>PFE (g)</translation>
    </message>
    <message>
        <source>Projected</source>
        <translation>Proyección</translation>
    </message>
    <message>
        <source>z-score</source>
        <translation>puntuación z</translation>
    </message>
    <message>
        <source>beyond the table</source>
        <translation>fuera de la tabla</translation>
    </message>
    <message>
        <source>%1 has no centiles of this measure</source>
        <translation>%1 no tiene percentiles de esta medida</translation>
    </message>
    <message>
        <source>Centiles: %1, which fits weights by another formula alone: %2</source>
        <translation>Percentiles: %1, que solo vale para pesos de otra fórmula: %2</translation>
    </message>
    <message>
        <source>Centiles: %1</source>
        <translation>Percentiles: %1</translation>
    </message>
</context>
<context>
    <name>AdjustDelivery</name>
    <message>
        <source>Adjust Delivery</source>
        <translation>Programar parto</translation>
    </message>
    <message>
        <source>Estimated date of delivery</source>
        <translation>Fecha probable de parto</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>FPP</translation>
    </message>
    <message>
        <source>&amp;Days from the EDD</source>
        <translation>&amp;Días desde la FPP</translation>
    </message>
    <message>
        <source>Delivery planned on</source>
        <translation>Parto programado el</translation>
    </message>
    <message>
        <source>The day on which delivery is planned</source>
        <translation>Día para el que se programa el parto</translation>
    </message>
    <message>
        <source>Age at that date</source>
        <translation>Edad ese día</translation>
    </message>
    <message>
        <source>Menstrual age at the planned delivery, in weeks and days</source>
        <translation>Edad gestacional en el parto programado, en semanas y días</translation>
    </message>
    <message>
        <source>%1 to %2 days</source>
        <translation>de %1 a %2 días</translation>
    </message>
    <message>
        <source>Days from the EDD to the planned delivery, %1</source>
        <translation>Días desde la FPP hasta el parto programado, %1</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation>No es un producto sanitario (dispositivo médico). No está validado para uso clínico.</translation>
    </message>
    <message>
        <source>No font is installed, so no text could be shown. Please install one, such as DejaVu Sans.</source>
        <translation>No hay ninguna fuente instalada, por lo que no se podría mostrar ningún texto. Instale una, por ejemplo DejaVu Sans.</translation>
    </message>
</context>
<context>
    <name>Check</name>
    <message>
        <source>its byte order is big</source>
        <translation>su orden de bytes es big endian</translation>
    </message>
    <message>
        <source>the old place of the gravidity holds &quot;%1&quot;</source>
        <translation>en el antiguo lugar de las gestas figura «%1»</translation>
    </message>
    <message>
        <source>the old place of the gravidity holds nothing</source>
        <translation>el antiguo lugar de las gestas está vacío</translation>
    </message>
    <message>
        <source>%1 list is missing</source>
        <translation>falta %1 lista</translation>
    </message>
    <message>
        <source>%1 lists are missing</source>
        <translation>faltan %1 listas</translation>
    </message>
    <message>
        <source>%1 record stands in several places</source>
        <translation>%1 registro figura en varios lugares</translation>
    </message>
    <message>
        <source>%1 records stand in several places</source>
        <translation>%1 registros figuran en varios lugares</translation>
    </message>
    <message>
        <source>%1 byte follows the patient</source>
        <translation>tras la paciente sigue %1 byte</translation>
    </message>
    <message>
        <source>%1 bytes follow the patient</source>
        <translation>tras la paciente siguen %1 bytes</translation>
    </message>
    <message>
        <source>%1 has version %2, older than %3</source>
        <extracomment>%1 is the name of a class of a document&apos;s file, as in the next one.</extracomment>
        <translation>%1 tiene la versión %2, anterior a la %3</translation>
    </message>
    <message>
        <source>%1 has version %2, newer than %3</source>
        <translation>%1 tiene la versión %2, posterior a la %3</translation>
    </message>
    <message>
        <source>the identifier is missing</source>
        <translation>falta el identificador</translation>
    </message>
    <message>
        <source>the EDD is missing</source>
        <translation>falta la FPP</translation>
    </message>
    <message>
        <source>the EDD is %1</source>
        <translation>la FPP es %1</translation>
    </message>
    <message>
        <source>the EDD, %1 s from 2001-01-01, is outside the years 1 to 9999</source>
        <extracomment>2001-01-01 is the day from which seconds count.</extracomment>
        <translation>la FPP, a %1 s de 2001-01-01, queda fuera de los años 1 a 9999</translation>
    </message>
    <message>
        <source>the gravidity %1 is negative</source>
        <translation>el número de gestas, %1, es negativo</translation>
    </message>
    <message>
        <source>the growth standard %1 is unknown</source>
        <translation>el estándar de crecimiento %1 es desconocido</translation>
    </message>
    <message>
        <source>the weight formula %1 is unknown</source>
        <translation>la fórmula de peso %1 es desconocida</translation>
    </message>
    <message>
        <source>the CRL formula %1 is unknown</source>
        <translation>la fórmula de LCC %1 es desconocida</translation>
    </message>
    <message>
        <source>the planned delivery, %1 days from 40 weeks, is outside %2 to %3 days</source>
        <translation>el parto programado, a %1 días de las 40 semanas, queda fuera del intervalo de %2 a %3 días</translation>
    </message>
    <message>
        <source>the number of fetuses, %1, is outside %2 to %3</source>
        <translation>el número de fetos, %1, queda fuera del intervalo de %2 a %3</translation>
    </message>
    <message>
        <source>there is no examination</source>
        <translation>no hay ninguna exploración</translation>
    </message>
    <message>
        <source>the note is missing</source>
        <translation>falta la nota</translation>
    </message>
    <message>
        <source>the date is missing</source>
        <translation>falta la fecha</translation>
    </message>
    <message>
        <source>the date is %1</source>
        <translation>la fecha es %1</translation>
    </message>
    <message>
        <source>the date, %1 s from 2001-01-01, is outside the years 1 to 9999</source>
        <translation>la fecha, a %1 s de 2001-01-01, queda fuera de los años 1 a 9999</translation>
    </message>
    <message>
        <source>it is earlier than the one before it</source>
        <extracomment>&quot;It&quot; is an examination.</extracomment>
        <translation>es anterior a la que la precede</translation>
    </message>
    <message>
        <source>it has %1 fetus, the patient %2</source>
        <extracomment>&quot;It&quot; is an examination; %2 are the fetuses of the patient.</extracomment>
        <translation>tiene %1 feto; la paciente, %2</translation>
    </message>
    <message>
        <source>it has %1 fetuses, the patient %2</source>
        <translation>tiene %1 fetos; la paciente, %2</translation>
    </message>
    <message>
        <source>examination %1, fetus %2: %3</source>
        <extracomment>%3 is a sentence about that fetus of that examination, which begins with a small letter.</extracomment>
        <translation>exploración %1, feto %2: %3</translation>
    </message>
    <message>
        <source>examination %1: %2</source>
        <translation>exploración %1: %2</translation>
    </message>
</context>
<context>
    <name>CommandHelp</name>
    <message>
        <source>growth standards by number or name, intergrowth-2014, with commas between; without it all four</source>
        <translation>estándares de crecimiento por número o nombre, intergrowth-2014, separados por comas; sin esta opción, los cuatro</translation>
    </message>
    <message>
        <source>one weight, by number or name, instead of all eight</source>
        <translation>un solo peso, por número o nombre, en lugar de los ocho</translation>
    </message>
    <message>
        <source>only these columns, of the input or computed, in this order</source>
        <translation>solo estas columnas, de la entrada o calculadas, en este orden</translation>
    </message>
    <message>
        <source>what is computed with one decimal, z-scores with three</source>
        <translation>lo calculado, con un decimal; las puntuaciones z, con tres</translation>
    </message>
    <message>
        <source>Weights, means and z-scores beside the columns of a CSV table on standard input.</source>
        <translation>Pesos, medias y puntuaciones z junto a las columnas de una tabla CSV de la entrada estándar.</translation>
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
        <translation>La primera línea da nombre a las columnas; las que cuentan son ga_weeks o ga, bpd_mm o bpd, hc_mm o
hc, ac_mm o ac, fl_mm o fl, en cualquier orden. Todas las columnas de la tabla se quedan como
llegaron. Detrás de ellas van
  efw_0_g,...,efw_7_g,westerway_bpd_mean_mm,westerway_bpd_sd_mm,westerway_bpd_z,...,cfef_fl_z
  warning,error
Una celda vacía, 0, nan y NA significan «sin medir». Lo que no es un número (45mm, 45,2) se indica
en error y, con su línea, en la salida de error estándar; en esa fila no se calcula nada, las demás
siguen y el código de salida es 1. La memoria usada no crece con la tabla.
Los textos se quedan como están. Una hoja de cálculo ejecuta las celdas que empiezan por &apos;=&apos;:
impórtelas como texto.
</translation>
    </message>
    <message>
        <source>a document; - is standard input</source>
        <translation>un documento; - es la entrada estándar</translation>
    </message>
    <message>
        <source>one JSON object a document, on a line</source>
        <translation>un objeto JSON por documento, en una línea</translation>
    </message>
    <message>
        <source>say ok where there is nothing to say</source>
        <translation>decir ok cuando no hay nada que señalar</translation>
    </message>
    <message>
        <source>Reads each document whole and names every oddity in it, one a line.</source>
        <translation>Lee cada documento entero y nombra cada irregularidad que contiene, una por línea.</translation>
    </message>
    <message>
        <source>An oddity is accepted everywhere else: a count that disagrees, a date that is missing, a length beyond
what can be typed, an old class version. It leaves the exit status at 0; a file that cannot be read
makes it 1. Keys of the JSON: file, and oddities, an array of objects with kind, examination, fetus,
text.
</source>
        <translation>Una irregularidad se acepta en todo lo demás: un recuento que no concuerda, una fecha que falta,
una medida que excede lo que se puede escribir, una versión de clase antigua. Deja el código de
salida en 0; un archivo que no se puede leer lo pone en 1. Claves del JSON: file y oddities, una
lista de objetos con kind, examination, fetus y text.
</translation>
    </message>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation>No es un producto sanitario (dispositivo médico). No está validado para uso clínico.</translation>
    </message>
    <message>
        <source>this text</source>
        <translation>este texto</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>uso: %1</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandos:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Obstetric ultrasound biometry for shells and scripts.</source>
        <translation>Biometría ecográfica obstétrica para terminales y scripts.</translation>
    </message>
    <message>
        <source>Lengths are in millimetres, weights in grams, ages in weeks after the last menstrual period.
A FILE or a value of - is standard input. No question is ever asked.
Exit status: 0 all well, 1 some input was bad, 2 wrong usage.
</source>
        <translation>Las medidas van en milímetros, los pesos en gramos y las edades en semanas desde la última regla.
Un FILE o un valor - es la entrada estándar. Nunca se hace ninguna pregunta.
Código de salida: 0, todo bien; 1, alguna entrada era errónea; 2, uso incorrecto.
</translation>
    </message>
    <message>
        <source>this text; help COMMAND explains one command</source>
        <translation>este texto; help COMMAND explica un comando</translation>
    </message>
    <message>
        <source>this text; behind a command, that command&apos;s help</source>
        <translation>este texto; detrás de un comando, la ayuda de ese comando</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>la versión del programa</translation>
    </message>
    <message>
        <source>what follows is no option</source>
        <translation>lo que sigue no es una opción</translation>
    </message>
    <message>
        <source>one object a document, examination and fetus, on a line: unrounded numbers</source>
        <translation>un objeto por documento, exploración y feto, en una línea: números sin redondear</translation>
    </message>
    <message>
        <source>Each length and weight by every reference and formula, ratios, twins, growth.</source>
        <translation>Cada medida y peso según todas las referencias y fórmulas, cocientes, gemelos, crecimiento.</translation>
    </message>
    <message>
        <source>Examinations and fetuses count from 0. Difference is that from the weight by the document&apos;s formula.
Age is that of which the value is the median of the reference; outside its weeks a dash. Discordance
is the share, of the heaviest fetus, by which the lightest weighs less. Growth is that since the
examination before which has the length; the change of z is by the document&apos;s standard. Centiles of
weights are those of references; the error of a formula is no population.
</source>
        <translation>Las exploraciones y los fetos se cuentan desde 0. Difference es la diferencia respecto al peso
según la fórmula del documento. Age es la edad cuya mediana en la referencia es el valor; fuera de
sus semanas, un guion. La discordancia es la parte, respecto al feto más pesado, en que el más
ligero pesa menos. Growth es el crecimiento desde la última exploración anterior que tiene la
medida; el cambio de z es según el estándar del documento. Los percentiles de los pesos son los de
las referencias; el error de una fórmula no es ninguna población.
</translation>
    </message>
    <message>
        <source>Each document as JSON: every field that it holds, one object on a line.</source>
        <translation>Cada documento como JSON: todos los campos que contiene, un objeto por línea.</translation>
    </message>
    <message>
        <source>Keys: maternalIDString, edd, eddISO, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (weeks), crlStandard, gravida, and examinations, an array of objects with note,
examDate, examDateISO and measurements, an array of objects with bpd, hc, ac and fl (mm; 0 = not
measured). Dates are seconds since 2001-01-01 UTC; beside each stands its local time as ISO text.
</source>
        <translation>Claves: maternalIDString, edd, eddISO, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (semanas), crlStandard, gravida y examinations, una lista de objetos con
note, examDate, examDateISO y measurements, una lista de objetos con bpd, hc, ac y fl (mm; 0 = sin
medir). Las fechas son segundos desde 2001-01-01 UTC; junto a cada una figura su hora local como
texto ISO.
</translation>
    </message>
    <message>
        <source>a document as JSON; - is standard input</source>
        <translation>un documento como JSON; - es la entrada estándar</translation>
    </message>
    <message>
        <source>where to write it, as a whole or not at all; without it, or -, to standard output</source>
        <translation>dónde escribirlo, completo o nada; sin esta opción, o con -, en la salida estándar</translation>
    </message>
    <message>
        <source>A document from JSON.</source>
        <translation>Un documento a partir de JSON.</translation>
    </message>
    <message>
        <source>Reads what json prints: maternalIDString, edd, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (weeks), crlStandard, gravida, and examinations, an array of objects with
note, examDate and measurements, an array of objects with bpd, hc, ac and fl (mm). Every key may be
missing; an unknown one is an error. A date is a number of
seconds since 2001-01-01 UTC, an ISO date (2027-04-10 is local midnight), an ISO date and time, or
null. Lengths are stored in single precision, whole numbers in 32 bits.
</source>
        <translation>Lee lo que escribe json: maternalIDString, edd, standard, fetalWeightStandard, numberOfFetuses,
extrapolatedGestation (semanas), crlStandard, gravida y examinations, una lista de objetos con
note, examDate y measurements, una lista de objetos con bpd, hc, ac y fl (mm). Puede faltar
cualquier clave; una desconocida es un error. Una fecha es un número de segundos desde 2001-01-01
UTC, una fecha ISO (2027-04-10 es la medianoche local), una fecha y hora ISO, o null. Las medidas
se guardan en precisión simple; los números enteros, en 32 bits.
</translation>
    </message>
    <message>
        <source>any typed stream; - is standard input</source>
        <translation>cualquier flujo tipado; - es la entrada estándar</translation>
    </message>
    <message>
        <source>one JSON object a stream, on a line</source>
        <translation>un objeto JSON por flujo, en una línea</translation>
    </message>
    <message>
        <source>All that a typed stream holds, as a tree; of any program, not only documents.</source>
        <translation>Todo lo que contiene un flujo tipado, como árbol; de cualquier programa, no solo documentos.</translation>
    </message>
    <message>
        <source>Each line begins with the byte at which the value begins. Keys of the JSON: byte_order,
system_version, and groups, an array of objects with types and values; docs/json.md lists the values.
</source>
        <translation>Cada línea empieza con el byte en que empieza el valor. Claves del JSON: byte_order, system_version
y groups, una lista de objetos con types y values; docs/json.md enumera los valores.
</translation>
    </message>
    <message>
        <source>the folder for the files, which is made when it is missing; - is standard output, for one file</source>
        <translation>la carpeta para los archivos, que se crea si falta; - es la salida estándar, para un solo archivo</translation>
    </message>
    <message>
        <source>what is written; without this option PDF</source>
        <translation>qué se escribe; sin esta opción, PDF</translation>
    </message>
    <message>
        <source>all, or first, last, numbers from 0 to 6 and names, with commas between</source>
        <translation>all, o first, last, números de 0 a 6 y nombres, separados por comas</translation>
    </message>
    <message>
        <source>one fetus, the first is 1; without this option all</source>
        <translation>un solo feto, el primero es 1; sin esta opción, todos</translation>
    </message>
    <message>
        <source>centile lines of a reference of &quot;nascor-cli reference&quot; over the charts</source>
        <translation>líneas de percentiles de una referencia de «nascor-cli reference» sobre las gráficas</translation>
    </message>
    <message>
        <source>a line from mark to mark of each fetus</source>
        <translation>una línea de marca a marca de cada feto</translation>
    </message>
    <message>
        <source>leave files that are there as they are, and say so</source>
        <translation>dejar como están los archivos que ya existen, e indicarlo</translation>
    </message>
    <message>
        <source>leave off what stands under each page</source>
        <translation>omitir lo que va bajo cada página</translation>
    </message>
    <message>
        <source>FHIR as one resource a line, of all documents, on standard output</source>
        <translation>FHIR con un recurso por línea, de todos los documentos, en la salida estándar</translation>
    </message>
    <message>
        <source>Writes the pages of each document, or its numbers for other programs.</source>
        <translation>Escribe las páginas de cada documento, o sus números para otros programas.</translation>
    </message>
    <message>
        <source>Names of pages: %1 (0 to %2), in letters of any size.
As PDF all pages of a document are one file; else each is a file of its own.
Files of the same names are replaced, but with --no-clobber.
sr: a DICOM structured report (Comprehensive SR) for each examination, &quot;NAME 1.dcm&quot;, ...
fhir: a FHIR R4 bundle for each document, NAME.json; with --ndjson lines on standard output.
</source>
        <translation>Nombres de las páginas: %1 (de 0 a %2), en mayúsculas o minúsculas.
En PDF, todas las páginas de un documento forman un archivo; si no, cada una es un archivo aparte.
Los archivos del mismo nombre se reemplazan, salvo con --no-clobber.
sr: un informe estructurado DICOM (Comprehensive SR) por exploración, «NAME 1.dcm», ...
fhir: un paquete FHIR R4 por documento, NAME.json; con --ndjson, líneas en la salida estándar.
</translation>
    </message>
    <message>
        <source>biparietal diameter</source>
        <translation>diámetro biparietal</translation>
    </message>
    <message>
        <source>head circumference</source>
        <translation>circunferencia cefálica</translation>
    </message>
    <message>
        <source>abdominal circumference</source>
        <translation>circunferencia abdominal</translation>
    </message>
    <message>
        <source>femur length</source>
        <translation>longitud femoral</translation>
    </message>
    <message>
        <source>an array of eight numbers, by identifier of the formula</source>
        <translation>una lista de ocho números, por identificador de la fórmula</translation>
    </message>
    <message>
        <source>The estimated weight of one fetus by each of the eight formulas, in grams.</source>
        <translation>El peso estimado de un feto según cada una de las ocho fórmulas, en gramos.</translation>
    </message>
    <message>
        <source>A length that is not given is 0, which means not measured. Where a formula needs it, the weight is
a dash (0 in JSON). An improbable length is named on standard error.
The formulas, by identifier: 0 Hadlock 1 (HC/AC/FL), 1 Hadlock 2 (AC/FL),
2 Hadlock 3 (BPD/AC/FL), 3 Hadlock 4 (BPD/HC/AC/FL), 4 Campbell (AC), 5 Combs (HC/AC/FL),
6 Ott (HC/AC/FL), 7 Shepard (BPD/AC).
</source>
        <translation>Una medida que no se indica vale 0, que significa sin medir. Si una fórmula la necesita, el peso es
un guion (0 en JSON). Una medida improbable se señala en la salida de error estándar.
Las fórmulas, por identificador: 0 Hadlock 1 (HC/AC/FL), 1 Hadlock 2 (AC/FL),
2 Hadlock 3 (BPD/AC/FL), 3 Hadlock 4 (BPD/HC/AC/FL), 4 Campbell (AC), 5 Combs (HC/AC/FL),
6 Ott (HC/AC/FL), 7 Shepard (BPD/AC).
</translation>
    </message>
    <message>
        <source>crown-rump lengths; - reads lengths from standard input, one a line</source>
        <translation>longitudes cráneo-caudales; - lee longitudes de la entrada estándar, una por línea</translation>
    </message>
    <message>
        <source>an array of four numbers a length, each on a line of its own</source>
        <translation>una lista de cuatro números por longitud, cada una en su propia línea</translation>
    </message>
    <message>
        <source>The menstrual age at each crown-rump length by each of the four formulas, in weeks.</source>
        <translation>La edad gestacional para cada longitud cráneo-caudal según las cuatro fórmulas, en semanas.</translation>
    </message>
    <message>
        <source>One line a length, columns separated by tabs. Outside the range of a formula the age is a dash (0 in
JSON). A line of standard input that is no number is answered by nan (null in JSON).
A length that no formula dates is named on standard error, of standard input the first one.
The formulas, by identifier: 0 Hadlock (1992), 2 to 120 mm; 1 Nelson (1981), 6.7 to 82.4 mm
(no second source has it; 9 days more than Hadlock (1992) at 7 mm, 3 days more at 20 mm);
2 Robinson (1975), 7 to 79.6 mm; 3 Westerway (2000), 2 to 87 mm.
</source>
        <translation>Una línea por longitud, con las columnas separadas por tabuladores. Fuera del intervalo de una
fórmula, la edad es un guion (0 en JSON). A una línea de la entrada estándar que no es un número se
responde nan (null en JSON).
Una longitud que ninguna fórmula data se señala en la salida de error estándar; de la entrada
estándar, solo la primera.
Las fórmulas, por identificador: 0 Hadlock (1992), de 2 a 120 mm; 1 Nelson (1981), de 6.7 a 82.4 mm
(ninguna segunda fuente la tiene; 9 días más que Hadlock (1992) a 7 mm, 3 días más a 20 mm);
2 Robinson (1975), de 7 a 79.6 mm; 3 Westerway (2000), de 2 a 87 mm.
</translation>
    </message>
    <message>
        <source>a DICOM report, a FHIR bundle of this program, or a CSV table of examinations; - is standard input</source>
        <translation>un informe DICOM, un paquete FHIR de este programa o una tabla CSV de exploraciones; - es la entrada estándar</translation>
    </message>
    <message>
        <source>store what was found in a new document</source>
        <translation>guardar lo encontrado en un documento nuevo</translation>
    </message>
    <message>
        <source>add what was found to a document</source>
        <translation>añadir lo encontrado a un documento</translation>
    </message>
    <message>
        <source>the reports are of the patient of this reference ID, whatever they say</source>
        <translation>los informes son de la paciente de este identificador, digan lo que digan</translation>
    </message>
    <message>
        <source>the fetus that the reports call ID is fetus N of the document; once for each</source>
        <translation>el feto que los informes llaman ID es el feto N del documento; una vez por feto</translation>
    </message>
    <message>
        <source>the report&apos;s EDD takes the place of the document&apos;s</source>
        <translation>la FPP del informe sustituye a la del documento</translation>
    </message>
    <message>
        <source>What reports of ultrasound machines and tables hold, as JSON; stored only on demand.</source>
        <translation>Lo que contienen informes de ecógrafos y tablas, como JSON; solo se guarda si se pide.</translation>
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
        <translation>Un objeto por informe; de una tabla, uno por paciente y día: file, patientID, examDate, edd,
eddFrom, gravida, numberOfFetuses, fetuses (id, bpd, hc, ac, fl y crl en mm, efw en g, chosen),
notTaken, warnings.
Una tabla tiene las columnas que escribe rows: exam_date, alguna de bpd_mm, hc_mm, ac_mm y fl_mm y,
si las tiene, reference_id, fetus (desde 0) o fetus_number (desde 1), edd, gravida y
number_of_fetuses. Si una fila no encaja, no se muestra ni se guarda nada de la tabla.
No se guarda nada si hay duda sobre la paciente o el feto, y nada de lo que ya hay se sobrescribe.
</translation>
    </message>
    <message>
        <source>the index</source>
        <translation>el índice</translation>
    </message>
    <message>
        <source>a JSON object a line</source>
        <translation>un objeto JSON por línea</translation>
    </message>
    <message>
        <source>the documents, *.nascor in it and in the folders in it</source>
        <translation>la carpeta de los documentos: *.nascor en ella y en sus subcarpetas</translation>
    </message>
    <message>
        <source>the index, made where there is none</source>
        <translation>el índice, que se crea si no existe</translation>
    </message>
    <message>
        <source>the counts as a JSON object</source>
        <translation>los recuentos como objeto JSON</translation>
    </message>
    <message>
        <source>Keeps what the documents of a folder say in a database, for due and search.</source>
        <translation>Guarda lo que dicen los documentos de una carpeta en una base de datos, para due y search.</translation>
    </message>
    <message>
        <source>Only documents that are new or have changed are read; those that are gone leave the index. A run that
is ended in the middle, however that happens, leaves an index that the next run completes.
The file is an SQLite database that its owner alone can read: it holds reference IDs, notes and names
of files. Its tables documents and rows may be read by other programs.
</source>
        <translation>Solo se leen los documentos nuevos o modificados; los que han desaparecido salen del índice. Una
ejecución interrumpida, sea como sea, deja un índice que la siguiente ejecución completa.
El archivo es una base de datos SQLite que solo puede leer su propietario: contiene
identificadores, notas y nombres de archivos. Otros programas pueden leer sus tablas documents y
rows.
</translation>
    </message>
    <message>
        <source>the first day, such as 2027-04-10; without it today</source>
        <translation>el primer día, como 2027-04-10; sin esta opción, hoy</translation>
    </message>
    <message>
        <source>how many days behind that; without it 28</source>
        <translation>cuántos días a partir de ese; sin esta opción, 28</translation>
    </message>
    <message>
        <source>only with an AC, the last of one fetus, whose z-score is below this</source>
        <translation>solo con una CA, la última de algún feto, cuya puntuación z sea inferior a este valor</translation>
    </message>
    <message>
        <source>Who is due, from an index: by EDD, with the last examination and the lowest AC.</source>
        <translation>Quién está próxima al parto, según un índice: por FPP, con la última exploración y la CA más baja.</translation>
    </message>
    <message>
        <source>AC z is the lowest, over the fetuses, of the z-score of the last AC that was measured, by the growth
standard of the document. It lists what the index held when it was last brought up to date.
</source>
        <translation>AC z es la más baja, entre los fetos, de las puntuaciones z de la última CA medida, según el
estándar de crecimiento del documento. Se enumera lo que el índice contenía cuando se actualizó por
última vez.
</translation>
    </message>
    <message>
        <source>three characters or more of a reference ID or of a file&apos;s path; large or small</source>
        <translation>tres o más caracteres de un identificador o de la ruta de un archivo, en mayúsculas o minúsculas</translation>
    </message>
    <message>
        <source>not more than so many; without it 100</source>
        <translation>no más de este número; sin esta opción, 100</translation>
    </message>
    <message>
        <source>Documents by a part of their reference ID or name, from an index.</source>
        <translation>Documentos por una parte de su identificador o nombre, según un índice.</translation>
    </message>
    <message>
        <source>one digit behind the point, in JSON too</source>
        <translation>un solo decimal, también en JSON</translation>
    </message>
    <message>
        <source>a recovery file, as the list names it</source>
        <translation>un archivo de recuperación, como lo nombra la lista</translation>
    </message>
    <message>
        <source>where to write the document, as a whole or not at all</source>
        <translation>dónde escribir el documento, completo o nada</translation>
    </message>
    <message>
        <source>Unsaved changes that the application kept: a list, or one of them as a document.</source>
        <translation>Cambios sin guardar que conservó la aplicación: una lista, o uno de ellos como documento.</translation>
    </message>
    <message>
        <source>The list has one JSON object a line: recovery (the file), document (the path of the document&apos;s own
file; null when it was never saved), patient, saved (seconds since 2001-01-01 UTC), fetuses,
examinations, and differs, the keys of json that the saved document holds otherwise. It also names
what running applications keep. A recovery file is a document: json, report and check read it. It
stays where it is until the application has offered it.
</source>
        <translation>La lista tiene un objeto JSON por línea: recovery (el archivo), document (la ruta del archivo
propio del documento; null si nunca se guardó), patient, saved (segundos desde 2001-01-01 UTC),
fetuses, examinations y differs, las claves de json que el documento guardado tiene con otro valor.
También nombra lo que conservan las aplicaciones en marcha. Un archivo de recuperación es un
documento: json, report y check lo leen. Se queda donde está hasta que la aplicación lo haya
ofrecido.
</translation>
    </message>
    <message>
        <source>a reference, by its name; without it all are listed</source>
        <translation>una referencia, por su nombre; sin él se enumeran todas</translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw that the reference has</source>
        <translation>una de bpd, hc, ac, fl, efw que la referencia tenga</translation>
    </message>
    <message>
        <source>the age in weeks</source>
        <translation>la edad en semanas</translation>
    </message>
    <message>
        <source>a length in mm, or a weight in g: its z and centile</source>
        <translation>una medida en mm, o un peso en g: su z y su percentil</translation>
    </message>
    <message>
        <source>a centile between 0 and 100: its value and z</source>
        <translation>un percentil entre 0 y 100: su valor y su z</translation>
    </message>
    <message>
        <source>a z-score: its value and centile</source>
        <translation>una puntuación z: su valor y su percentil</translation>
    </message>
    <message>
        <source>one object a line; what a reference cannot say is null</source>
        <translation>un objeto por línea; lo que una referencia no puede decir es null</translation>
    </message>
    <message>
        <source>Where a value lies in a published population; which populations there are.</source>
        <translation>Dónde queda un valor en una población publicada; qué poblaciones hay.</translation>
    </message>
    <message>
        <source>One of W, V, P and Z may be -: then numbers are read from standard input, one a line, and each is
answered. Nothing is extrapolated: outside the weeks of a reference all numbers are missing, and
the answer says which weeks there are. who-2017 is made of curves: it has no z, and knows no more
than &lt;1 and &gt;99 beyond the outermost. A weight&apos;s centile is that of the reference, never of the
error of a formula.
</source>
        <translation>Uno de W, V, P y Z puede ser -: entonces se leen números de la entrada estándar, uno por línea, y
se responde a cada uno. No se extrapola nada: fuera de las semanas de una referencia faltan todos
los números, y la respuesta dice qué semanas hay. who-2017 se compone de curvas: no tiene z y, más
allá de las curvas extremas, solo dice &lt;1 o &gt;99. El percentil de un peso es el de la referencia,
nunca el del error de una fórmula.
</translation>
    </message>
    <message>
        <source>one JSON object a document, on a line: unrounded numbers, the texts beside them</source>
        <translation>un objeto JSON por documento, en una línea: números sin redondear, con los textos al lado</translation>
    </message>
    <message>
        <source>The tabular report of each document: every fetus, every examination, the projection.</source>
        <translation>El informe en tablas de cada documento: todos los fetos, todas las exploraciones, la proyección.</translation>
    </message>
    <message>
        <source>Date and Menstrual Age are those of the last examination. Days are those of the local time zone. The
projection is there when the last examination lies from 30 weeks to the planned delivery. Keys of
the JSON, among others: file, maternalIDString, edd, fetuses, in each examinations (age in weeks;
bpd, hc, ac, fl in mm; efw in g) and projected; docs/json.md lists them all.
</source>
        <translation>Date y Menstrual Age son las de la última exploración. Los días son los de la zona horaria local.
La proyección figura cuando la última exploración cae entre las 30 semanas y el parto programado.
Claves del JSON, entre otras: file, maternalIDString, edd, fetuses, en cada uno examinations (age
en semanas; bpd, hc, ac, fl en mm; efw en g) y projected; docs/json.md las enumera todas.
</translation>
    </message>
    <message>
        <source>a document, or a folder with documents in it; - is a document on standard input</source>
        <translation>un documento, o una carpeta con documentos; - es un documento en la entrada estándar</translation>
    </message>
    <message>
        <source>more names of files and folders, one a line; - is standard input</source>
        <translation>más nombres de archivos y carpetas, uno por línea; - es la entrada estándar</translation>
    </message>
    <message>
        <source>the names of --files-from end with NUL instead</source>
        <translation>los nombres de --files-from terminan en NUL</translation>
    </message>
    <message>
        <source>the documents in a tar archive, plain, gzip or zstd; - is standard input</source>
        <translation>los documentos de un archivo tar, sin comprimir, gzip o zstd; - es la entrada estándar</translation>
    </message>
    <message>
        <source>only these columns, in this order, with commas between</source>
        <translation>solo estas columnas, en este orden, separadas por comas</translation>
    </message>
    <message>
        <source>one decimal, for z-scores three</source>
        <translation>un decimal; para las puntuaciones z, tres</translation>
    </message>
    <message>
        <source>comma-separated values, or a JSON object a line</source>
        <translation>valores separados por comas, o un objeto JSON por línea</translation>
    </message>
    <message>
        <source>leave off the line with the names of the columns</source>
        <translation>omitir la línea con los nombres de las columnas</translation>
    </message>
    <message>
        <source>reference ID, note and names of files too</source>
        <translation>también identificador, nota y nombres de archivos</translation>
    </message>
    <message>
        <source>in the column file the place of the document, or its name</source>
        <translation>en la columna file, el lugar del documento o su nombre</translation>
    </message>
    <message>
        <source>days to the EDD in place of the dates</source>
        <translation>días hasta la FPP en lugar de las fechas</translation>
    </message>
    <message>
        <source>the zone whose days are meant, such as Europe/Paris</source>
        <translation>la zona horaria de los días, como Europe/Paris</translation>
    </message>
    <message>
        <source>stop at the first document that cannot be read</source>
        <translation>detenerse en el primer documento que no se pueda leer</translation>
    </message>
    <message>
        <source>work on so many documents at a time; the output is the same</source>
        <translation>procesar tantos documentos a la vez; el resultado es el mismo</translation>
    </message>
    <message>
        <source>A row for each fetus at each examination: age, lengths, weights, z-scores; for statistics.</source>
        <translation>Una fila por feto en cada exploración: edad, medidas, pesos, puntuaciones z; para estadística.</translation>
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
        <translation>De una carpeta se toman todos los *.nascor, también los de sus subcarpetas. Columnas:
  file,exam,fetus,exam_date,edd,ga_weeks,bpd_mm,hc_mm,ac_mm,fl_mm,efw_0_g,...,efw_7_g
  standard,bpd_mean_mm,bpd_sd_mm,bpd_z,...,fl_z        según el estándar de cada documento, o
  westerway_bpd_mean_mm,...                            según cada uno de --standard
  reference_id,note                                    con --identify
  warning,error
file cuenta los documentos desde 0; exam y fetus, lo que estos contienen. Una celda está vacía
cuando no se midió nada o no se puede calcular nada. warning nombra lo improbable. Un documento que
no se puede leer tiene una fila con file y error; los demás siguen, y el código de salida es 1.

Privacidad: los documentos llevan el nombre de las pacientes. Sin --identify, ninguna celda
contiene un identificador, una nota ni (salvo con --file path) el nombre de un archivo. La salida
de error estándar nombra los archivos en todo caso, para la persona ante la terminal: no la guarde
con las filas. Las notas pueden contener fechas en su texto: --relative-dates con --identify las
deja como están.
En CSV, los textos van como están. Una hoja de cálculo ejecuta las celdas que empiezan por &apos;=&apos;:
importe los nombres, los identificadores y las notas como texto.
</translation>
    </message>
    <message>
        <source>one object a group, on a line</source>
        <translation>un objeto por grupo, en una línea</translation>
    </message>
    <message>
        <source>Works examples with known results out again: formulas, standards, references, dating.</source>
        <translation>Recalcula ejemplos de resultado conocido: fórmulas, estándares, referencias, datación.</translation>
    </message>
    <message>
        <source>A line a group: its name, how many values it has, how many of them differ; the last line is the total.
The values are printed ones, held against the program at their own precision, and others that were
worked out apart from the program. The status is 1 when one differs.
</source>
        <translation>Una línea por grupo: su nombre, cuántos valores tiene y cuántos de ellos difieren; la última línea
es el total. Unos valores son impresos y se cotejan con el programa con su propia precisión; otros
se calcularon aparte del programa. El código de salida es 1 si alguno difiere.
</translation>
    </message>
    <message>
        <source>what is wanted of the server</source>
        <translation>qué se quiere del servidor</translation>
    </message>
    <message>
        <source>a DICOM report to send; - is standard input</source>
        <translation>un informe DICOM que enviar; - es la entrada estándar</translation>
    </message>
    <message>
        <source>the server: a name or an IPv4 address</source>
        <translation>el servidor: un nombre o una dirección IPv4</translation>
    </message>
    <message>
        <source>its port</source>
        <translation>su puerto</translation>
    </message>
    <message>
        <source>its application entity title</source>
        <translation>su título AE (entidad de aplicación)</translation>
    </message>
    <message>
        <source>that of this program; without this option NASCOR</source>
        <translation>el de este programa; sin esta opción, NASCOR</translation>
    </message>
    <message>
        <source>speak encrypted, to a server whose certificate comes from this authority (PEM)</source>
        <translation>conexión cifrada, con un servidor cuyo certificado procede de esta autoridad (PEM)</translation>
    </message>
    <message>
        <source>the certificate of this program, for servers that ask for one (PEM)</source>
        <translation>el certificado de este programa, para los servidores que lo piden (PEM)</translation>
    </message>
    <message>
        <source>the key of that certificate, without a password (PEM)</source>
        <translation>la clave de ese certificado, sin contraseña (PEM)</translation>
    </message>
    <message>
        <source>for the whole of one connection, 1 to 3600; without this option 30</source>
        <translation>para la duración total de una conexión, de 1 a 3600; sin esta opción, 30</translation>
    </message>
    <message>
        <source>find, fetch: the reports of this reference ID</source>
        <translation>find, fetch: los informes de este identificador</translation>
    </message>
    <message>
        <source>find, fetch: those of this study</source>
        <translation>find, fetch: los de este estudio</translation>
    </message>
    <message>
        <source>find, fetch: of studies of this day (2026-11-23) and later</source>
        <translation>find, fetch: de estudios de este día (2026-11-23) y posteriores</translation>
    </message>
    <message>
        <source>find, fetch: of studies of this day and earlier</source>
        <translation>find, fetch: de estudios de este día y anteriores</translation>
    </message>
    <message>
        <source>fetch: the folder for the files, which is made when it is missing</source>
        <translation>fetch: la carpeta para los archivos, que se crea si falta</translation>
    </message>
    <message>
        <source>Fetches reports from a DICOM server, and sends reports to it.</source>
        <translation>Obtiene informes de un servidor DICOM y le envía informes.</translation>
    </message>
    <message>
        <source>echo asks whether the server answers. find lists its reports, an object a line: patientID, studyDate,
study, series, instance. fetch writes them as INSTANCE.dcm, never over a file that is there, and needs a
patient or a study. send sends files that &quot;export --format sr&quot; or a machine wrote.
No other command uses the network, and this one speaks to the server of its options alone.
</source>
        <translation>echo pregunta si el servidor responde. find enumera sus informes, un objeto por línea: patientID,
studyDate, study, series, instance. fetch los escribe como INSTANCE.dcm, nunca sobre un archivo que
ya existe, y necesita una paciente o un estudio. send envía archivos que escribió
«export --format sr» o un ecógrafo.
Ningún otro comando usa la red, y este se comunica solo con el servidor de sus opciones.
</translation>
    </message>
    <message>
        <source>Growth standards (N):
%1
Weight formulas (K):
%2
The number or the name, in letters of any size.
</source>
        <translation>Estándares de crecimiento (N):
%1
Fórmulas del peso (K):
%2
El número o el nombre, en mayúsculas o minúsculas.
</translation>
    </message>
    <message>
        <source>growth standard, see below</source>
        <translation>estándar de crecimiento, véase más abajo</translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw; without it the four lengths</source>
        <translation>una de bpd, hc, ac, fl, efw; sin esta opción, las cuatro medidas</translation>
    </message>
    <message>
        <source>weight formula, see below; needed for efw</source>
        <translation>fórmula del peso, véase más abajo; necesaria para efw</translation>
    </message>
    <message>
        <source>rows [week, mean, sd]; without --measurement an object of such rows by measurement</source>
        <translation>filas [semana, media, DE]; sin --measurement, un objeto de tales filas por medida</translation>
    </message>
    <message>
        <source>A reference table: mean and standard deviation at each week, in mm or g.</source>
        <translation>Una tabla de referencia: media y desviación estándar en cada semana, en mm o g.</translation>
    </message>
    <message>
        <source>%1
The mean weight is that of a fetus whose four lengths are the means. Its standard deviation is the
error of the formula, not the spread of a population; 0 where none is published.
</source>
        <translation>%1
El peso medio es el de un feto cuyas cuatro medidas son las medias. Su desviación estándar es el
error de la fórmula, no la dispersión de una población; 0 si no hay ninguna publicada.
</translation>
    </message>
    <message>
        <source>one of bpd, hc, ac, fl, efw</source>
        <translation>una de bpd, hc, ac, fl, efw</translation>
    </message>
    <message>
        <source>the mean at W weeks</source>
        <translation>la media a las W semanas</translation>
    </message>
    <message>
        <source>the standard deviation at W weeks</source>
        <translation>la desviación estándar a las W semanas</translation>
    </message>
    <message>
        <source>the age in weeks of which MM (grams for efw) is the mean</source>
        <translation>la edad en semanas cuya media es MM (gramos para efw)</translation>
    </message>
    <message>
        <source>the same number as JSON</source>
        <translation>el mismo número como JSON</translation>
    </message>
    <message>
        <source>One look-up in a reference table, between whole weeks by linear interpolation.</source>
        <translation>Una consulta en una tabla de referencia, entre semanas enteras por interpolación lineal.</translation>
    </message>
    <message>
        <source>The value may be -: then values are read from standard input, one a line, and answered one a line; a
line that is no number is answered by nan (null in JSON). Nothing is extrapolated: beyond the table
its first or last week counts, and standard error says so (of standard input once).

%1</source>
        <translation>El valor puede ser -: entonces se leen valores de la entrada estándar, uno por línea, y se responde
a cada uno en una línea; a una línea que no es un número se responde nan (null en JSON). No se
extrapola nada: fuera de la tabla se toma su primera o su última semana, y la salida de error
estándar lo dice (de la entrada estándar, una sola vez).

%1</translation>
    </message>
    <message>
        <source>the paper of a PDF; without this option A4</source>
        <translation>el papel de un PDF; sin esta opción, A4</translation>
    </message>
    <message>
        <source>who examined</source>
        <translation>quién realizó la exploración</translation>
    </message>
    <message>
        <source>a line at the head of each fetus; once for each line</source>
        <translation>una línea en la cabecera de cada feto; una vez por línea</translation>
    </message>
    <message>
        <source>A summary for the records: a page or two a fetus, typeset, or as HTML.</source>
        <translation>Un resumen para la historia clínica: una o dos páginas por feto, maquetado, o como HTML.</translation>
    </message>
    <message>
        <source>EDD, measurements with z and centile by the growth standard, weights, growth, small charts, notes,
and the sources of all that was used. Each document is one file, &quot;NAME - Summary.pdf&quot;.
Files of the same names are replaced, but with --no-clobber. SOURCE_DATE_EPOCH, in seconds since
1970, takes the place of the present moment.
</source>
        <translation>FPP, mediciones con z y percentil según el estándar de crecimiento, pesos, crecimiento, gráficas
pequeñas, notas y las fuentes de todo lo utilizado. Cada documento es un archivo,
«NAME - Summary.pdf».
Los archivos del mismo nombre se reemplazan, salvo con --no-clobber. SOURCE_DATE_EPOCH, en segundos
desde 1970, sustituye al momento presente.
</translation>
    </message>
    <message>
        <source>growth standards by number or name, intergrowth-2014, with commas between; all for all four</source>
        <translation>estándares de crecimiento por número o nombre, intergrowth-2014, separados por comas; all para los cuatro</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>there is no header</source>
        <translation>no hay cabecera</translation>
    </message>
    <message>
        <source>there is no column %1: never measured</source>
        <translation>no hay ninguna columna %1: nunca medida</translation>
    </message>
    <message>
        <source>--columns: %1</source>
        <translation>--columns: %1</translation>
    </message>
    <message>
        <source>is a database of another program</source>
        <extracomment>Behind the name of a file, as are the next ones.</extracomment>
        <translation>es una base de datos de otro programa</translation>
    </message>
    <message>
        <source>was made by another version of this program: remove it, and make it anew</source>
        <translation>se creó con otra versión de este programa: elimínelo y créelo de nuevo</translation>
    </message>
    <message>
        <source>no folder</source>
        <translation>una carpeta desconocida</translation>
    </message>
    <message>
        <source>is the index of %1, not of %2</source>
        <translation>es el índice de %1, no de %2</translation>
    </message>
    <message>
        <source>is no index of this program</source>
        <translation>no es un índice de este programa</translation>
    </message>
    <message>
        <source>--%1 takes no value</source>
        <translation>--%1 no admite ningún valor</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>falta %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many</source>
        <translation>«%1» es un argumento de más</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>no existe el comando «%1»</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>no existe la opción «%1»</translation>
    </message>
    <message>
        <source>help explains one command</source>
        <translation>help explica un solo comando</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>falta un comando</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>salida estándar: %1</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>advertencia</translation>
    </message>
    <message>
        <source>a document is no text for a terminal; give --out FILE or send standard output to a file</source>
        <translation>un documento no es texto para una terminal; indique --out FILE o dirija la salida estándar a un archivo</translation>
    </message>
    <message>
        <source>written, but it may not outlast a power cut: %1</source>
        <translation>escrito, pero podría no resistir un corte de corriente: %1</translation>
    </message>
    <message>
        <source>holds no patient</source>
        <extracomment>Behind the name of a file.</extracomment>
        <translation>no contiene ninguna paciente</translation>
    </message>
    <message>
        <source>--fetus: expected all or a number from 1 to 5</source>
        <translation>--fetus: se esperaba all o un número del 1 al 5</translation>
    </message>
    <message>
        <source>--out is missing</source>
        <translation>falta --out</translation>
    </message>
    <message>
        <source>--format: expected pdf, png, svg, sr or fhir</source>
        <translation>--format: se esperaba pdf, png, svg, sr o fhir</translation>
    </message>
    <message>
        <source>--ndjson is for --format fhir</source>
        <translation>--ndjson es para --format fhir</translation>
    </message>
    <message>
        <source>--pages: expected all, first, last, a number from 0 to %1 or a name, but &quot;%2&quot; stands here</source>
        <translation>--pages: se esperaba all, first, last, un número de 0 a %1 o un nombre, pero aquí figura «%2»</translation>
    </message>
    <message>
        <source>--out - takes the pages of one document</source>
        <translation>--out - admite las páginas de un solo documento</translation>
    </message>
    <message>
        <source>pages are no text for a terminal; give --out DIR or send standard output to a file</source>
        <translation>las páginas no son texto para una terminal; indique --out DIR o dirija la salida estándar a un archivo</translation>
    </message>
    <message>
        <source>--format: expected sr or fhir; pages are painted by the application, which is not built here</source>
        <translation>--format: se esperaba sr o fhir; las páginas las dibuja la aplicación, que no está incluida en esta compilación</translation>
    </message>
    <message>
        <source>a length is missing</source>
        <translation>falta una medida</translation>
    </message>
    <message>
        <source>no formula dates %1 mm; they reach from %2 to %3 mm</source>
        <extracomment>Crown-rump lengths.</extracomment>
        <translation>ninguna fórmula data %1 mm; las fórmulas abarcan de %2 a %3 mm</translation>
    </message>
    <message>
        <source>--fetus: expected ID=N with a number from 1 to 5, but &quot;%1&quot; stands here</source>
        <translation>--fetus: se esperaba ID=N con un número del 1 al 5, pero aquí figura «%1»</translation>
    </message>
    <message>
        <source>--patient takes a reference ID, and an empty one is none</source>
        <translation>--patient requiere un identificador, y uno vacío no lo es</translation>
    </message>
    <message>
        <source>--patient takes a reference ID of UTF-8 text in one line</source>
        <translation>--patient requiere un identificador de texto UTF-8 en una sola línea</translation>
    </message>
    <message>
        <source>--fetus: &quot;%1&quot; is given two numbers</source>
        <translation>--fetus: a «%1» se le dan dos números</translation>
    </message>
    <message>
        <source>is of patient &quot;%1&quot;, others are of &quot;%2&quot;; nothing is stored. Please import those of each patient alone</source>
        <translation>es de la paciente «%1», otros son de «%2»; no se guarda nada. Importe los de cada paciente por separado</translation>
    </message>
    <message>
        <source>it is there already, and stays as it is</source>
        <translation>ya existe y se queda como está</translation>
    </message>
    <message>
        <source>--out and --into are two ways to store</source>
        <translation>--out y --into son dos maneras de guardar; indique solo una</translation>
    </message>
    <message>
        <source>%1 takes a file</source>
        <translation>%1 requiere un archivo</translation>
    </message>
    <message>
        <source>the same holds for %1 more of the input</source>
        <translation>lo mismo vale para %1 más de la entrada</translation>
    </message>
    <message>
        <source>--db is missing: the file of the index</source>
        <translation>falta --db: el archivo del índice</translation>
    </message>
    <message>
        <source>a whole number from 0</source>
        <translation>un número entero, 0 o mayor</translation>
    </message>
    <message>
        <source>a day such as 2027-04-10</source>
        <translation>un día como 2027-04-10</translation>
    </message>
    <message>
        <source>three characters or more</source>
        <translation>un texto de tres o más caracteres</translation>
    </message>
    <message>
        <source>there are more than %1: a longer text, or --limit, shows them</source>
        <translation>hay más de %1: se muestran con un texto más largo o con --limit</translation>
    </message>
    <message>
        <source>longer than 1 GiB, which no document is</source>
        <translation>ocupa más de 1 GiB, más que cualquier documento</translation>
    </message>
    <message>
        <source>line %1: expected a decimal number, but &quot;%2&quot; stands here</source>
        <translation>línea %1: se esperaba un número decimal, pero aquí figura «%2»</translation>
    </message>
    <message>
        <source>%1 or a whole number from 0 to %2</source>
        <extracomment>%1 is a list of names.</extracomment>
        <translation>%1 o un número entero de 0 a %2</translation>
    </message>
    <message>
        <source>expected bpd, hc, ac, fl or efw as the measurement, but &quot;%1&quot; was given</source>
        <translation>se esperaba bpd, hc, ac, fl o efw como medida, pero se dio «%1»</translation>
    </message>
    <message>
        <source>%1: expected %2, but &quot;%3&quot; was given</source>
        <extracomment>%1 is an option or an operand, %2 what it takes, %3 what was typed.</extracomment>
        <translation>%1: se esperaba %2, pero se dio «%3»</translation>
    </message>
    <message>
        <source>a decimal number</source>
        <translation>un número decimal</translation>
    </message>
    <message>
        <source>the reference ID has a character that a DICOM report cannot hold</source>
        <translation>el identificador tiene un carácter que un informe DICOM no puede contener</translation>
    </message>
    <message>
        <source>the reference ID is longer than the 64 characters of a DICOM report</source>
        <translation>el identificador supera los 64 caracteres de un informe DICOM</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>no se puede escribir: %1</translation>
    </message>
    <message>
        <source>--%1 is for pages, not for --format %2</source>
        <translation>--%1 es para páginas, no para --format %2</translation>
    </message>
    <message>
        <source>--ndjson writes to standard output, and takes no --out</source>
        <translation>--ndjson escribe en la salida estándar y no admite --out</translation>
    </message>
    <message>
        <source>--out is missing, or no folder</source>
        <translation>falta --out, o no es una carpeta</translation>
    </message>
    <message>
        <source>it holds no examination, and nothing is written</source>
        <translation>no contiene ninguna exploración y no se escribe nada</translation>
    </message>
    <message>
        <source>--out needs the recovery file to write; recover alone lists them</source>
        <translation>--out necesita el archivo de recuperación que se ha de escribir; recover sin él los enumera</translation>
    </message>
    <message>
        <source>give --out DOCUMENT, where to write the document</source>
        <translation>indique --out DOCUMENT, dónde escribir el documento</translation>
    </message>
    <message>
        <source>a number above 0</source>
        <translation>un número mayor que 0</translation>
    </message>
    <message>
        <source>a number between 0 and 100, both excluded</source>
        <translation>un número entre 0 y 100, ambos excluidos</translation>
    </message>
    <message>
        <source>%1 tells nothing of %2; it has %3</source>
        <extracomment>%1 is a reference, %2 a measurement, %3 a list of measurements.</extracomment>
        <translation>%1 no dice nada de %2; tiene %3</translation>
    </message>
    <message>
        <source>--week is missing</source>
        <translation>falta --week</translation>
    </message>
    <message>
        <source>--value, --centile and --z exclude each other</source>
        <translation>--value, --centile y --z se excluyen entre sí</translation>
    </message>
    <message>
        <source>--week and --%1 cannot both be -</source>
        <translation>--week y --%1 no pueden ser ambos -</translation>
    </message>
    <message>
        <source>expected %1, but %2 was given</source>
        <translation>se esperaba %1, pero se dio %2</translation>
    </message>
    <message>
        <source>NAME is missing</source>
        <translation>falta NAME</translation>
    </message>
    <message>
        <source>MEASURE is missing</source>
        <translation>falta MEASURE</translation>
    </message>
    <message>
        <source>%1: fmf-2018 is not offered, because its formula was not held against its printed table</source>
        <translation>%1: fmf-2018 no se ofrece, porque su fórmula no se ha cotejado con su tabla impresa</translation>
    </message>
    <message>
        <source>%1: expected one of %2, but &quot;%3&quot; was given</source>
        <extracomment>%1 is an option or an operand, %2 a list of names.</extracomment>
        <translation>%1: se esperaba uno de estos nombres: %2, pero se dio «%3»</translation>
    </message>
    <message>
        <source>--standard: %1 has no mean and SD of the four lengths</source>
        <translation>--standard: %1 no tiene media y DE de las cuatro medidas</translation>
    </message>
    <message>
        <source>--standard: &quot;%1&quot; stands there twice</source>
        <translation>--standard: «%1» figura dos veces</translation>
    </message>
    <message>
        <source>--columns: a name is empty</source>
        <translation>--columns: hay un nombre vacío</translation>
    </message>
    <message>
        <source>--columns: &quot;%1&quot; stands there twice</source>
        <translation>--columns: «%1» figura dos veces</translation>
    </message>
    <message>
        <source>--columns: there is no column &quot;%1&quot;</source>
        <translation>--columns: no existe la columna «%1»</translation>
    </message>
    <message>
        <source>--columns: %1 needs --identify</source>
        <translation>--columns: %1 necesita --identify</translation>
    </message>
    <message>
        <source>--columns: %1 is a date, which --relative-dates leaves out</source>
        <translation>--columns: %1 es una fecha, que --relative-dates omite</translation>
    </message>
    <message>
        <source>--columns: %1 needs --relative-dates</source>
        <translation>--columns: %1 necesita --relative-dates</translation>
    </message>
    <message>
        <source>--file: expected number or path</source>
        <translation>--file: se esperaba number o path</translation>
    </message>
    <message>
        <source>--format: expected csv or jsonl</source>
        <translation>--format: se esperaba csv o jsonl</translation>
    </message>
    <message>
        <source>a whole number above 0</source>
        <translation>un número entero mayor que 0</translation>
    </message>
    <message>
        <source>--null needs --files-from</source>
        <translation>--null necesita --files-from</translation>
    </message>
    <message>
        <source>--tar stands alone, without PATH and --files-from</source>
        <translation>--tar va solo, sin PATH ni --files-from</translation>
    </message>
    <message>
        <source>standard input (-) can be read once only</source>
        <translation>la entrada estándar (-) solo se puede leer una vez</translation>
    </message>
    <message>
        <source>a PATH, --files-from or --tar is missing</source>
        <translation>falta un PATH, --files-from o --tar</translation>
    </message>
    <message>
        <source>--time-zone: this system knows no zone &quot;%1&quot;</source>
        <translation>--time-zone: este sistema no conoce ninguna zona «%1»</translation>
    </message>
    <message>
        <source>%1 of %2 values differ</source>
        <translation>%1 de %2 valores difieren</translation>
    </message>
    <message>
        <source>--%1: expected a day like 2026-11-23, but &quot;%2&quot; stands here</source>
        <translation>--%1: se esperaba un día como 2026-11-23, pero aquí figura «%2»</translation>
    </message>
    <message>
        <source>--patient: the reference ID is empty</source>
        <translation>--patient: el identificador está vacío</translation>
    </message>
    <message>
        <source>--study: the UID is empty</source>
        <translation>--study: el UID está vacío</translation>
    </message>
    <message>
        <source>has no such report</source>
        <translation>no tiene ningún informe así</translation>
    </message>
    <message>
        <source>is not sent, because the server did not answer before</source>
        <translation>no se envía, porque el servidor no respondió antes</translation>
    </message>
    <message>
        <source>is not sent: %1 %2</source>
        <extracomment>%1 is the address of a server, %2 what is wrong with it: &quot;... is not sent: host:104 does not answer&quot;.</extracomment>
        <translation>no se envía: %1 %2</translation>
    </message>
    <message>
        <source>--%1 is not for %2</source>
        <translation>--%1 no es para %2</translation>
    </message>
    <message>
        <source>%1 takes no FILE</source>
        <translation>%1 no admite FILE</translation>
    </message>
    <message>
        <source>fetch needs --patient or --study</source>
        <translation>fetch necesita --patient o --study</translation>
    </message>
    <message>
        <source>--out takes a folder</source>
        <translation>--out requiere una carpeta</translation>
    </message>
    <message>
        <source>expected echo, find, fetch or send</source>
        <translation>se esperaba echo, find, fetch o send</translation>
    </message>
    <message>
        <source>is not contacted: %1</source>
        <translation>no se ha contactado con él: %1</translation>
    </message>
    <message>
        <source>the connection is not encrypted: what goes over it can be read on its way; see --ca</source>
        <translation>la conexión no está cifrada: lo que pasa por ella se puede leer por el camino; véase --ca</translation>
    </message>
    <message>
        <source>efw needs --formula</source>
        <translation>efw necesita --formula</translation>
    </message>
    <message>
        <source>%1 lies beyond the table, whose first week, %2, counts</source>
        <translation>%1 queda fuera de la tabla; se toma su primera semana, %2</translation>
    </message>
    <message>
        <source>%1 lies beyond the table, whose last week, %2, counts</source>
        <translation>%1 queda fuera de la tabla; se toma su última semana, %2</translation>
    </message>
    <message>
        <source>--mean, --sd and --gestation exclude each other</source>
        <translation>--mean, --sd y --gestation se excluyen entre sí</translation>
    </message>
    <message>
        <source>one of --mean, --sd and --gestation is missing</source>
        <translation>falta una de las opciones --mean, --sd y --gestation</translation>
    </message>
    <message>
        <source>%1; did you mean &quot;%2&quot;?</source>
        <extracomment>%1 is a sentence, %2 what may have been meant.</extracomment>
        <translation>%1; ¿quería decir «%2»?</translation>
    </message>
    <message>
        <source>SOURCE_DATE_EPOCH: expected whole seconds since 1970</source>
        <translation>SOURCE_DATE_EPOCH: se esperaban segundos enteros desde 1970</translation>
    </message>
    <message>
        <source>--paper: expected a4 or letter</source>
        <translation>--paper: se esperaba a4 o letter</translation>
    </message>
    <message>
        <source>cannot be put on paper: %1</source>
        <translation>no se puede maquetar en papel: %1</translation>
    </message>
    <message>
        <source>--format: expected pdf or html</source>
        <translation>--format: se esperaba pdf o html</translation>
    </message>
    <message>
        <source>--out - takes the summary of one document</source>
        <translation>--out - admite el resumen de un solo documento</translation>
    </message>
    <message>
        <source>a PDF is no text for a terminal; give --out DIR or send standard output to a file</source>
        <translation>un PDF no es texto para una terminal; indique --out DIR o dirija la salida estándar a un archivo</translation>
    </message>
    <message>
        <source>it has no such fetus</source>
        <translation>no tiene ese feto</translation>
    </message>
    <message>
        <source>%1 of %2 values differs</source>
        <translation>%1 de %2 valores difiere</translation>
    </message>
    <message>
        <source>%1 has no value</source>
        <translation>%1 no tiene valor</translation>
    </message>
    <message>
        <source>%1 can be given once, and stands there %2 times</source>
        <translation>%1 solo puede indicarse una vez, y figura %2 veces</translation>
    </message>
    <message>
        <source>%1; the application, which is installed apart, paints the pages</source>
        <translation>%1; las páginas las dibuja la aplicación, que se instala aparte</translation>
    </message>
    <message>
        <source>%1, by --patient</source>
        <translation>%1, con --patient</translation>
    </message>
    <message>
        <source>a decimal number with a point, such as 61.2</source>
        <translation>un número decimal con punto, como 61.2</translation>
    </message>
    <message>
        <source>--out: expected a folder, but &quot;%1&quot; is named like a file</source>
        <translation>--out: se espera una carpeta, pero «%1» se llama como un archivo</translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>BPD</source>
        <translation>DBP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>CC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>CA</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>LF</translation>
    </message>
    <message>
        <source>EFW</source>
        <translation>PFE</translation>
    </message>
    <message>
        <source>The age is not known.</source>
        <translation>No se conoce la edad.</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observación</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>Medidas</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Medida</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>The mean of the reference at this age, in mm. A reference that has curves alone has none.</source>
        <translation>Media de la referencia a esta edad, en mm. Una referencia que solo tiene curvas carece de ella.</translation>
    </message>
    <message>
        <source>SD</source>
        <translation>DE</translation>
    </message>
    <message>
        <source>One standard deviation at this age, in mm.</source>
        <translation>Una desviación estándar a esta edad, en mm.</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Half of the population lies below it, in mm.</source>
        <translation>La mitad de la población queda por debajo, en mm.</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>Standard deviations from the mean.</source>
        <translation>Desviaciones estándar respecto a la media.</translation>
    </message>
    <message>
        <source>Centile</source>
        <translation>Percentil</translation>
    </message>
    <message>
        <source>How many of 100 lie below the value.</source>
        <translation>Cuántos de cada 100 quedan por debajo del valor.</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Edad</translation>
    </message>
    <message>
        <source>The age of which the value is the median.</source>
        <translation>Edad cuya mediana es el valor.</translation>
    </message>
    <message>
        <source>Weights</source>
        <translation>Pesos</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Fórmula</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>From the weight by the formula in force, in g.</source>
        <translation>Respecto al peso de la fórmula en uso, en g.</translation>
    </message>
    <message>
        <source>The centile in this population of weights.</source>
        <translation>Percentil en esta población de pesos.</translation>
    </message>
    <message>
        <source>From one length alone.</source>
        <translation>A partir de una sola medida.</translation>
    </message>
    <message>
        <source>Ratios</source>
        <translation>Cocientes</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Cociente</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Fetuses</source>
        <translation>Fetos</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Feto</translation>
    </message>
    <message>
        <source>By the formula in force, in g.</source>
        <translation>Según la fórmula en uso, en g.</translation>
    </message>
    <message>
        <source>In mm.</source>
        <translation>En mm.</translation>
    </message>
    <message>
        <source>Discordance (%)</source>
        <translation>Discordancia (%)</translation>
    </message>
    <message>
        <source>How much less this fetus weighs than the heaviest.</source>
        <translation>Cuánto menos pesa este feto que el más pesado.</translation>
    </message>
    <message>
        <source>Growth</source>
        <translation>Crecimiento</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Medida</translation>
    </message>
    <message>
        <source>Per Week</source>
        <translation>Por semana</translation>
    </message>
    <message>
        <source>Since the last examination that has it: mm a week, or g a week.</source>
        <translation>Desde la última exploración que la tiene: mm por semana o g por semana.</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Esperado</translation>
    </message>
    <message>
        <source>By how much the mean of the growth standard grows.</source>
        <translation>Cuánto crece la media del estándar de crecimiento.</translation>
    </message>
    <message>
        <source>Change of z</source>
        <translation>Cambio de z</translation>
    </message>
    <message>
        <source>By the growth standard in force.</source>
        <translation>Según el estándar de crecimiento en uso.</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Export CSV...</source>
        <translation>&amp;Exportar CSV...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>Exportar CSV</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tablas (*.csv)</translation>
    </message>
    <message>
        <source>The table cannot be exported.</source>
        <translation>No se puede exportar la tabla.</translation>
    </message>
    <message>
        <source>Where This Comes From</source>
        <translation>Origen de este valor</translation>
    </message>
    <message>
        <source>%1 has %2 to %3 weeks.</source>
        <translation>%1 abarca de %2 a %3 semanas.</translation>
    </message>
    <message>
        <source>%1 fits weights by another formula alone: %2.</source>
        <translation>%1 solo vale para pesos de otra fórmula: %2.</translation>
    </message>
    <message>
        <source>%1 has no place for this value.</source>
        <translation>%1 no permite situar este valor.</translation>
    </message>
</context>
<context>
    <name>CorvelDocument</name>
    <message>
        <source>Modify</source>
        <translation>Modificar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>A field holds a text that is not permitted.</source>
        <translation>Un campo contiene un texto no permitido.</translation>
    </message>
    <message>
        <source>%ld bytes</source>
        <translation>%ld bytes</translation>
    </message>
    <message>
        <source>What was entered here besides reference ID and gravidity will be lost.</source>
        <translation>Se perderá lo introducido aquí, salvo el identificador y el número de gestas.</translation>
    </message>
    <message>
        <source>This patient has a document already.</source>
        <translation>Esta paciente ya tiene un documento.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>The page was not exported.</source>
        <translation>La página no se exportó.</translation>
    </message>
    <message>
        <source>Please make room in this folder, or choose another in Export Settings.</source>
        <translation>Libere espacio en esta carpeta o elija otra en Ajustes de exportación.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>This program was built without painting.</source>
        <translation>Este programa se compiló sin la función de dibujo.</translation>
    </message>
    <message>
        <source>The document was not printed.</source>
        <translation>El documento no se imprimió.</translation>
    </message>
    <message>
        <source>The document cannot be opened.</source>
        <translation>No se puede abrir el documento.</translation>
    </message>
    <message>
        <source>It is open in another window.</source>
        <translation>Está abierto en otra ventana.</translation>
    </message>
    <message>
        <source>The document was saved, but its file cannot hold all of it.</source>
        <translation>El documento se guardó, pero su archivo no puede contenerlo entero.</translation>
    </message>
    <message>
        <source>The document was not saved.</source>
        <translation>El documento no se guardó.</translation>
    </message>
    <message>
        <source>Another program has changed the file of this document. Do you want to replace what it holds now?</source>
        <translation>Otro programa ha modificado el archivo de este documento. ¿Desea reemplazar su contenido actual?</translation>
    </message>
    <message>
        <source>To keep both, cancel and save this document under another name.</source>
        <translation>Para conservar ambos, cancele y guarde este documento con otro nombre.</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>Guardar igualmente</translation>
    </message>
    <message>
        <source>Do you want to save the changes of this document?</source>
        <translation>¿Desea guardar los cambios de este documento?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>These documents cannot be opened.</source>
        <translation>No se pueden abrir estos documentos.</translation>
    </message>
    <message>
        <source>A field holds a text that is not permitted. It will not be saved.</source>
        <translation>Un campo contiene un texto no permitido. No se guardará.</translation>
    </message>
    <message>
        <source>%1 is not a Nascor document.</source>
        <translation>%1 no es un documento de Nascor.</translation>
    </message>
    <message>
        <source>Do you want to go back to the document as it was last saved?</source>
        <translation>¿Desea volver al documento tal como se guardó por última vez?</translation>
    </message>
    <message>
        <source>All changes since then will be lost.</source>
        <translation>Se perderán todos los cambios posteriores.</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>The document cannot be read.</source>
        <translation>No se puede leer el documento.</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Usuario:</translation>
    </message>
    <message>
        <source>Machine:</source>
        <translation>Equipo:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Desde:</translation>
    </message>
    <message>
        <source>Process:</source>
        <translation>Proceso:</translation>
    </message>
    <message>
        <source>It is open elsewhere.</source>
        <translation>Está abierto en otro lugar.</translation>
    </message>
    <message>
        <source>Read-only, it can be saved only under another name. A copy is a new document.</source>
        <translation>Si se abre para lectura, solo se puede guardar con otro nombre. Una copia es un documento nuevo.</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Abrir para lectura</translation>
    </message>
    <message>
        <source>Open a Copy</source>
        <translation>Abrir una copia</translation>
    </message>
    <message>
        <source>Nothing tells from here whether that machine still works on it. Open it anyway only if you know that it does not.</source>
        <translation>Desde aquí no se sabe si ese equipo sigue trabajando con él. Ábralo solo si usted sabe que no es así.</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Abrir igualmente</translation>
    </message>
    <message>
        <source>This document is open elsewhere. How do you want to open it?</source>
        <translation>Este documento está abierto en otro lugar. ¿Cómo desea abrirlo?</translation>
    </message>
    <message>
        <source>The document was written, but the system does not vouch that it outlasts a power cut. Please save it again.</source>
        <translation>El documento se escribió, pero el sistema no garantiza que resista un corte de corriente. Guárdelo de nuevo.</translation>
    </message>
    <message>
        <source>The file of this document is gone. Do you want to write it again?</source>
        <translation>El archivo de este documento ha desaparecido. ¿Desea escribirlo de nuevo?</translation>
    </message>
    <message>
        <source>Another program or another user has removed, moved or renamed it.</source>
        <translation>Otro programa u otro usuario lo ha eliminado, movido o renombrado.</translation>
    </message>
    <message>
        <source>The file of this document cannot be read. Do you want to replace it?</source>
        <translation>No se puede leer el archivo de este documento. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Another program has changed the file of this document.</source>
        <translation>Otro programa ha modificado el archivo de este documento.</translation>
    </message>
    <message>
        <source>Another program has changed the file of this document. Revert reads it.</source>
        <translation>Otro programa ha modificado el archivo de este documento. Para leerlo, use «Volver a lo guardado».</translation>
    </message>
    <message>
        <source>The file of this document is gone.</source>
        <translation>El archivo de este documento ha desaparecido.</translation>
    </message>
    <message>
        <source>The file of this document cannot be read:</source>
        <translation>No se puede leer el archivo de este documento:</translation>
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
        <translation>Exportar datos...</translation>
    </message>
    <message>
        <source>Export Data</source>
        <translation>Exportar datos</translation>
    </message>
    <message>
        <source>Table for spreadsheets (*.csv)</source>
        <translation>Tabla para hojas de cálculo (*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>The data were not exported.</source>
        <translation>Los datos no se exportaron.</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportado a %1</translation>
    </message>
    <message>
        <source>FHIR bundle for health records (*.fhir.json)</source>
        <translation>Paquete FHIR para la historia clínica (*.fhir.json)</translation>
    </message>
    <message>
        <source>DICOM report of this examination (*.dcm)</source>
        <translation>Informe DICOM de esta exploración (*.dcm)</translation>
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
        <translation>como %1</translation>
    </message>
    <message>
        <source>for example %1</source>
        <translation>por ejemplo, %1</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>sin fecha</translation>
    </message>
    <message>
        <source>Keeps the EDD from being set. %1</source>
        <translation>Impide fijar la FPP. %1</translation>
    </message>
    <message>
        <source>Crown-rump length</source>
        <translation>Longitud cráneo-caudal</translation>
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
        <translation>de %1 a %2 mm</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>! beyond 2 SD</source>
        <translation>! más de 2 DE</translation>
    </message>
    <message>
        <source>! not measured</source>
        <translation>! sin medir</translation>
    </message>
    <message>
        <source>More than 2 standard deviations from the mean at the average. %1</source>
        <translation>Más de 2 desviaciones estándar respecto a la media para la edad promedio. %1</translation>
    </message>
    <message>
        <source>Not measured. %1</source>
        <translation>Sin medir. %1</translation>
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
        <translation>%1 (solo lectura)</translation>
    </message>
</context>
<context>
    <name>EDDFromCRL</name>
    <message>
        <source>EDD from CRL</source>
        <translation>FPP por LCC</translation>
    </message>
    <message>
        <source>The day of the scan</source>
        <translation>Día de la ecografía</translation>
    </message>
    <message>
        <source>&amp;Scan date</source>
        <translation>&amp;Fecha de la ecografía</translation>
    </message>
    <message>
        <source>Crown-rump length</source>
        <translation>Longitud cráneo-caudal</translation>
    </message>
    <message>
        <source>Crown-&amp;rump length</source>
        <translation>&amp;Longitud cráneo-caudal</translation>
    </message>
    <message>
        <source>The formula in force, chosen in the menu</source>
        <translation>Fórmula en uso, elegida en el menú</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Fórmula</translation>
    </message>
    <message>
        <source>The examination on show</source>
        <translation>Exploración mostrada</translation>
    </message>
</context>
<context>
    <name>EDDFromLMP</name>
    <message>
        <source>EDD from LMP</source>
        <translation>FPP por FUR</translation>
    </message>
    <message>
        <source>First day of the last menstrual period</source>
        <translation>Primer día de la última regla</translation>
    </message>
    <message>
        <source>&amp;Last menstrual period</source>
        <translation>Última &amp;regla (FUR)</translation>
    </message>
    <message>
        <source>Length of the cycle, in whole days</source>
        <translation>Duración del ciclo, en días enteros</translation>
    </message>
    <message>
        <source>C&amp;ycle</source>
        <translation>&amp;Ciclo</translation>
    </message>
    <message>
        <source>days</source>
        <translation>días</translation>
    </message>
    <message>
        <source>Length of the luteal phase, in whole days</source>
        <translation>Duración de la fase lútea, en días enteros</translation>
    </message>
    <message>
        <source>Luteal &amp;phase</source>
        <translation>&amp;Fase lútea</translation>
    </message>
</context>
<context>
    <name>EDDFromMeasurements</name>
    <message>
        <source>EDD from Measurements</source>
        <translation>FPP por medidas</translation>
    </message>
    <message>
        <source>The examination and the fetus on show</source>
        <translation>Exploración y feto mostrados</translation>
    </message>
    <message>
        <source>Examination</source>
        <translation>Exploración</translation>
    </message>
    <message>
        <source>Biparietal diameter: counts in the average</source>
        <translation>Diámetro biparietal: cuenta para el promedio</translation>
    </message>
    <message>
        <source>&amp;BPD</source>
        <translation>&amp;DBP</translation>
    </message>
    <message>
        <source>Biparietal diameter: menstrual age of which it is the mean</source>
        <translation>Diámetro biparietal: edad gestacional en la que es la media</translation>
    </message>
    <message>
        <source>Head circumference: counts in the average</source>
        <translation>Circunferencia cefálica: cuenta para el promedio</translation>
    </message>
    <message>
        <source>&amp;HC</source>
        <translation>&amp;CC</translation>
    </message>
    <message>
        <source>Head circumference: menstrual age of which it is the mean</source>
        <translation>Circunferencia cefálica: edad gestacional en la que es la media</translation>
    </message>
    <message>
        <source>Abdominal circumference: counts in the average</source>
        <translation>Circunferencia abdominal: cuenta para el promedio</translation>
    </message>
    <message>
        <source>&amp;AC</source>
        <translation>C&amp;A</translation>
    </message>
    <message>
        <source>Abdominal circumference: menstrual age of which it is the mean</source>
        <translation>Circunferencia abdominal: edad gestacional en la que es la media</translation>
    </message>
    <message>
        <source>Femur length: counts in the average</source>
        <translation>Longitud femoral: cuenta para el promedio</translation>
    </message>
    <message>
        <source>&amp;FL</source>
        <translation>&amp;LF</translation>
    </message>
    <message>
        <source>Femur length: menstrual age of which it is the mean</source>
        <translation>Longitud femoral: edad gestacional en la que es la media</translation>
    </message>
    <message>
        <source>Average of the ages that are checked</source>
        <translation>Promedio de las edades marcadas</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Promedio</translation>
    </message>
    <message>
        <source>Late in pregnancy, dating by size reads growth as age: a fetus that is small or large is taken for a younger or an older one.</source>
        <translation>Al final del embarazo, datar por el tamaño confunde el crecimiento con la edad: un feto pequeño se toma por uno más joven y uno grande, por uno de más edad.</translation>
    </message>
</context>
<context>
    <name>Evidence</name>
    <message>
        <source>week</source>
        <translation>semana</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valor</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>media</translation>
    </message>
    <message>
        <source>SD</source>
        <translation>DE</translation>
    </message>
    <message>
        <source>centile</source>
        <translation>percentil</translation>
    </message>
    <message>
        <source>planned week</source>
        <translation>semana programada</translation>
    </message>
    <message>
        <source>median</source>
        <translation>mediana</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>DBP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>CC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>CA</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>LF</translation>
    </message>
    <message>
        <source>EFW</source>
        <translation>PFE</translation>
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
        <translation>sin registro</translation>
    </message>
    <message>
        <source>Nothing can be entered here: the document holds no record for it.</source>
        <translation>Aquí no se puede introducir nada: el documento no tiene registro para ello.</translation>
    </message>
    <message>
        <source>Belongs to no fetus: the fetus was removed. %1</source>
        <translation>No pertenece a ningún feto: el feto se quitó. %1</translation>
    </message>
    <message>
        <source>No more text fits here.</source>
        <translation>Aquí no cabe más texto.</translation>
    </message>
    <message>
        <source>This text is too long to be shown whole. It is kept whole, and cannot be changed here.</source>
        <translation>Este texto es demasiado largo para mostrarlo entero. Se conserva entero y no se puede modificar aquí.</translation>
    </message>
</context>
<context>
    <name>FilePanels</name>
    <message>
        <source>%1: The file&apos;s name is not UTF-8. Please rename the file and open it again.</source>
        <translation>%1: el nombre del archivo no está en UTF-8. Renombre el archivo y ábralo de nuevo.</translation>
    </message>
    <message>
        <source>Nascor documents (*.%1)</source>
        <translation>Documentos de Nascor (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Folder for Exported Pages</source>
        <translation>Carpeta para las páginas exportadas</translation>
    </message>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>Importar informe</translation>
    </message>
    <message>
        <source>Reports (*.dcm *.json)</source>
        <translation>Informes (*.dcm *.json)</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Not a regular file</source>
        <translation>No es un archivo regular</translation>
    </message>
    <message>
        <source>It was changed meanwhile</source>
        <translation>Ha cambiado entretanto</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>BPD</source>
        <translation>DBP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>CC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>CA</translation>
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
        <translation>un resultado de la exploración no está en el paquete</translation>
    </message>
    <message>
        <source>an observation of status &quot;%1&quot; is passed over</source>
        <translation>se pasa por alto una observación de estado «%1»</translation>
    </message>
    <message>
        <source>an observation of another fetus stands in the panel of fetus %1</source>
        <translation>una observación de otro feto figura en el panel del feto %1</translation>
    </message>
    <message>
        <source>is longer than any FHIR bundle that is read (16 MiB)</source>
        <translation>es más largo que cualquier paquete FHIR que se lee (16 MiB)</translation>
    </message>
    <message>
        <source>is nested deeper than any FHIR bundle</source>
        <translation>está anidado más profundamente que cualquier paquete FHIR</translation>
    </message>
    <message>
        <source>is no JSON that can be read</source>
        <translation>no es JSON que se pueda leer</translation>
    </message>
    <message>
        <source>is no FHIR bundle</source>
        <translation>no es un paquete FHIR</translation>
    </message>
    <message>
        <source>is a FHIR bundle in which two patients have one identifier</source>
        <translation>es un paquete FHIR en el que dos pacientes tienen el mismo identificador</translation>
    </message>
    <message>
        <source>is a FHIR bundle without an examination</source>
        <translation>es un paquete FHIR sin ninguna exploración</translation>
    </message>
    <message>
        <source>fetus %1: %2</source>
        <extracomment>%1 is the ID of a fetus, %2 one of its lengths or a sentence about it.</extracomment>
        <translation>feto %1: %2</translation>
    </message>
    <message>
        <source>flagged</source>
        <extracomment>This word and the next ones say of a value how it came about: &quot;a flagged value is taken before a plain one&quot;, &quot;fetus 1: BPD is calculated, not measured&quot;. A flagged one was chosen at the machine.</extracomment>
        <translation>elegido en el ecógrafo</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>medio</translation>
    </message>
    <message>
        <source>calculated</source>
        <translation>calculado</translation>
    </message>
    <message>
        <source>estimated</source>
        <translation>estimado</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>simple</translation>
    </message>
    <message>
        <source>gravida</source>
        <extracomment>Stands in &quot;the report gives several numbers for %1; the first is taken&quot;, as the next one.</extracomment>
        <translation>las gestas</translation>
    </message>
    <message>
        <source>numberOfFetuses</source>
        <translation>el número de fetos</translation>
    </message>
    <message>
        <source>the date of the examination, &quot;%1&quot;, is no day</source>
        <translation>la fecha de la exploración, «%1», no es un día</translation>
    </message>
    <message>
        <source>no length is taken from %1</source>
        <translation>de esta sección no se toma ninguna medida: %1</translation>
    </message>
    <message>
        <source>a centile of the machine&apos;s weight is never taken</source>
        <translation>un percentil del peso del ecógrafo no se toma nunca</translation>
    </message>
    <message>
        <source>no measure that a document stores (%1)</source>
        <extracomment>%1 is the section of the report that it stands in.</extracomment>
        <translation>no es una medida que guarde un documento (%1)</translation>
    </message>
    <message>
        <source>the report itself</source>
        <translation>el propio informe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no count</source>
        <translation>«%1» no es un recuento</translation>
    </message>
    <message>
        <source>the report said %1 before</source>
        <translation>el informe decía antes %1</translation>
    </message>
    <message>
        <source>the report gives several numbers for %1; the first is taken</source>
        <translation>el informe da varios números para %1; se toma el primero</translation>
    </message>
    <message>
        <source>the report holds no value</source>
        <translation>el informe no contiene ningún valor</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is neither g nor kg</source>
        <translation>la unidad «%1» no es g ni kg</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is neither mm nor cm</source>
        <translation>la unidad «%1» no es mm ni cm</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no finite number</source>
        <translation>«%1» no es un número finito</translation>
    </message>
    <message>
        <source>it is not above 0</source>
        <translation>no es mayor que 0</translation>
    </message>
    <message>
        <source>its derivation is &quot;%1&quot;</source>
        <translation>su derivación es «%1»</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no day</source>
        <extracomment>%1 is what a date of the report is called there, %2 what stands in its place.</extracomment>
        <translation>%1: «%2» no es un día</translation>
    </message>
    <message>
        <source>%1, by the average ultrasound age, is never taken</source>
        <translation>%1, según la edad ecográfica media, no se toma nunca</translation>
    </message>
    <message>
        <source>the last period, %1, makes no EDD by itself</source>
        <translation>la última regla, %1, no da por sí sola una FPP</translation>
    </message>
    <message>
        <source>the report holds two EDDs, %1 and %2; the first is taken</source>
        <translation>el informe contiene dos FPP, %1 y %2; se toma la primera</translation>
    </message>
    <message>
        <source>%1 is another day than the EDD that is taken</source>
        <translation>%1 es un día distinto de la FPP que se toma</translation>
    </message>
    <message>
        <source>%1, by the last period, is another day than the EDD that is taken</source>
        <translation>%1, según la última regla, es un día distinto de la FPP que se toma</translation>
    </message>
    <message>
        <source>another weight is compared</source>
        <translation>se compara otro peso</translation>
    </message>
    <message>
        <source>it has a private code, and another value the standard one</source>
        <translation>su código es privado, y otro valor lleva el estándar</translation>
    </message>
    <message>
        <source>%1 stands under a private code of the machine&apos;s maker</source>
        <translation>%1 figura con un código privado del fabricante del ecógrafo</translation>
    </message>
    <message>
        <source>a %1 value is taken before a %2 one</source>
        <translation>se prefiere otro valor (%1 antes que %2)</translation>
    </message>
    <message>
        <source>%1: the value that the report flags is %2, and is not taken</source>
        <translation>%1: el valor que el informe marca es %2, y no se toma</translation>
    </message>
    <message>
        <source>%1 is %2, not measured, though the report flags it</source>
        <translation>%1: valor %2, no medido, aunque el informe lo marca</translation>
    </message>
    <message>
        <source>%1 is %2, not measured</source>
        <translation>%1: valor %2, no medido</translation>
    </message>
    <message>
        <source>%1: several %2 values, %3 mm; their mean is taken</source>
        <translation>%1: varios valores (%2), %3 mm; se toma su media</translation>
    </message>
    <message>
        <source>the report&apos;s weight, %1 g, is not that of its lengths, which is %2 g by %3</source>
        <translation>el peso del informe, %1 g, no es el de sus medidas, que es de %2 g según %3</translation>
    </message>
    <message>
        <source>is a structured report of a kind that is not read (neither Comprehensive nor Enhanced)</source>
        <translation>es un informe estructurado de un tipo que no se lee (ni Comprehensive ni Enhanced)</translation>
    </message>
    <message>
        <source>is no structured report</source>
        <translation>no es un informe estructurado</translation>
    </message>
    <message>
        <source>is a report whose content is missing</source>
        <translation>es un informe cuyo contenido falta</translation>
    </message>
    <message>
        <source>is no obstetric ultrasound report (its title is &quot;%1&quot;)</source>
        <translation>no es un informe de ecografía obstétrica (su título es «%1»)</translation>
    </message>
    <message>
        <source>the report says that there are %1 fetuses, and holds %2</source>
        <translation>número de fetos según el informe: %1; contiene %2</translation>
    </message>
    <message>
        <source>examination %1, fetus %2: %3 %4 is no length, and left out</source>
        <extracomment>%3 is one of BPD, HC, AC and FL, %4 what stands in its place.</extracomment>
        <translation>exploración %1, feto %2: %3 %4 no es una medida y se omite</translation>
    </message>
    <message>
        <source>the document is of patient &quot;%1&quot;, not &quot;%2&quot;</source>
        <translation>el documento es de la paciente «%1», no «%2»</translation>
    </message>
    <message>
        <source>the report&apos;s reference ID has characters that cannot be read; nothing is stored unless the ID is given</source>
        <translation>el identificador del informe tiene caracteres que no se pueden leer; no se guarda nada si no se indica el identificador</translation>
    </message>
    <message>
        <source>the report names no patient; nothing is stored unless the ID is given</source>
        <translation>el informe no nombra a ninguna paciente; no se guarda nada si no se indica el identificador</translation>
    </message>
    <message>
        <source>the document names no patient; nothing is stored unless the ID is given</source>
        <translation>el documento no nombra a ninguna paciente; no se guarda nada si no se indica el identificador</translation>
    </message>
    <message>
        <source>the report is of patient &quot;%1&quot;, the document of &quot;%2&quot;</source>
        <translation>el informe es de la paciente «%1»; el documento, de «%2»</translation>
    </message>
    <message>
        <source>%1 of the report may be any of the document&apos;s; nothing is stored unless its number is given</source>
        <extracomment>%1 is a fetus: &quot;fetus &quot;A&quot;&quot;, &quot;a fetus without an ID&quot;.</extracomment>
        <translation>%1 del informe puede ser cualquiera de los del documento; no se guarda nada si no se indica su número</translation>
    </message>
    <message>
        <source>%1 cannot be fetus %2 of %3</source>
        <translation>%1 no puede ser el feto %2 de %3</translation>
    </message>
    <message>
        <source>two fetuses of the report cannot both be fetus %1</source>
        <translation>dos fetos del informe no pueden ser ambos el feto %1</translation>
    </message>
    <message>
        <source>fetus &quot;%1&quot;</source>
        <translation>el feto «%1»</translation>
    </message>
    <message>
        <source>a fetus without an ID</source>
        <translation>un feto sin identificador</translation>
    </message>
    <message>
        <source>fetus %1: the CRL is not stored</source>
        <translation>feto %1: la LCC no se guarda</translation>
    </message>
    <message>
        <source>fetus %1: %2 %3 mm is beyond what a document takes</source>
        <extracomment>%2 is one of BPD, HC, AC and FL, as in the next one.</extracomment>
        <translation>feto %1: %2 %3 mm supera lo que admite un documento</translation>
    </message>
    <message>
        <source>fetus %1: %2 stays %3 mm; the report says %4 mm</source>
        <translation>feto %1: %2 sigue en %3 mm; el informe dice %4 mm</translation>
    </message>
    <message>
        <source>%1 more</source>
        <extracomment>Stands behind the IDs of some patients, with commas between.</extracomment>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>one without an ID</source>
        <extracomment>Of several patients.</extracomment>
        <translation>una sin identificador</translation>
    </message>
    <message>
        <source>holds examinations of several patients (%1), and a document is of one; nothing is stored. Please import a file for each patient</source>
        <extracomment>%1 are the IDs of patients.</extracomment>
        <translation>contiene exploraciones de varias pacientes (%1), y un documento es de una sola; no se guarda nada. Importe un archivo por paciente</translation>
    </message>
    <message>
        <source>the report does not say when the examination was</source>
        <translation>el informe no dice cuándo fue la exploración</translation>
    </message>
    <message>
        <source>a document takes at most %1 fetuses</source>
        <translation>un documento admite como máximo %1 fetos</translation>
    </message>
    <message>
        <source>the EDD stays %1; the report says %2</source>
        <translation>la FPP sigue siendo %1; el informe dice %2</translation>
    </message>
    <message>
        <source>the EDD stays; the report says %1</source>
        <translation>la FPP no cambia; el informe dice %1</translation>
    </message>
    <message>
        <source>the gravidity stays %1; the report says %2</source>
        <translation>las gestas siguen siendo %1; el informe dice %2</translation>
    </message>
    <message>
        <source>the number of fetuses stays %1; the report says %2</source>
        <translation>el número de fetos sigue siendo %1; el informe dice %2</translation>
    </message>
    <message>
        <source>the report holds no length that is stored</source>
        <translation>el informe no contiene ninguna medida que se guarde</translation>
    </message>
    <message>
        <source>the columns fetus, which counts from 0, and fetus_number, from 1, cannot both stand in the header</source>
        <translation>las columnas fetus, que cuenta desde 0, y fetus_number, desde 1, no pueden figurar ambas en la cabecera</translation>
    </message>
    <message>
        <source>the cell is empty; write the day of the examination like 2026-11-13</source>
        <translation>la celda está vacía; escriba el día de la exploración como 2026-11-13</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is a column of a table, %2 what is wrong with a cell of it.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the text is no UTF-8; save the table as UTF-8</source>
        <translation>el texto no es UTF-8; guarde la tabla como UTF-8</translation>
    </message>
    <message>
        <source>%1 is no day; write it like 2027-04-10, or leave the cell empty</source>
        <extracomment>%1 is what stands there, in quotation marks, in this one and in others of the kind.</extracomment>
        <translation>%1 no es un día; escríbalo como 2027-04-10 o deje la celda vacía</translation>
    </message>
    <message>
        <source>%1 is no day; write it like 2026-11-13</source>
        <translation>%1 no es un día; escríbalo como 2026-11-13</translation>
    </message>
    <message>
        <source>%1 is no whole number from %2 to %3</source>
        <translation>%1 no es un número entero de %2 a %3</translation>
    </message>
    <message>
        <source>%1 is no whole number from %2 on</source>
        <translation>%1 no es un número entero, %2 o mayor</translation>
    </message>
    <message>
        <source>the cell is empty; number the fetuses from %1</source>
        <translation>la celda está vacía; numere los fetos desde %1</translation>
    </message>
    <message>
        <source>%1 is beyond what a document takes, 0 to %2 mm</source>
        <translation>%1 queda fuera de lo que admite un documento, de 0 a %2 mm</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <extracomment>%2 is what is wrong with the row of a table that begins at line %1.</extracomment>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>what stands behind line %1 was not looked at</source>
        <translation>lo que sigue a la línea %1 no se ha examinado</translation>
    </message>
    <message>
        <source>nothing of this table is taken until every row of it fits</source>
        <translation>de esta tabla no se toma nada hasta que todas sus filas sean correctas</translation>
    </message>
    <message>
        <source>is a table without an examination</source>
        <translation>es una tabla sin ninguna exploración</translation>
    </message>
    <message>
        <source>a note is not taken</source>
        <translation>una nota no se toma</translation>
    </message>
    <message>
        <source>edd: it is not that of line %1, and no reference_id tells the patients apart; write the ID into every row</source>
        <translation>edd: no es la de la línea %1, y ningún reference_id distingue a las pacientes; escriba el identificador en todas las filas</translation>
    </message>
    <message>
        <source>reference_id: the cell is empty, that of line %1 is not; write the ID into every row</source>
        <translation>reference_id: la celda está vacía, la de la línea %1 no; escriba el identificador en todas las filas</translation>
    </message>
    <message>
        <source>reference_id: the cell of line %1 is empty, this one is not; write the ID into every row</source>
        <translation>reference_id: la celda de la línea %1 está vacía, esta no; escriba el identificador en todas las filas</translation>
    </message>
    <message>
        <source>the row is of another file than that of line %1, and no reference_id tells the patients apart; write the rows with --identify</source>
        <translation>la fila es de otro archivo que la de la línea %1, y ningún reference_id distingue a las pacientes; escriba las filas con --identify</translation>
    </message>
    <message>
        <source>line %1 has the same fetus at the same examination; leave one of the two rows</source>
        <translation>la línea %1 tiene el mismo feto en la misma exploración; deje solo una de las dos filas</translation>
    </message>
    <message>
        <source>line %1 has a fetus of this examination too; number them from 1, in a column fetus_number</source>
        <translation>la línea %1 también tiene un feto de esta exploración; numérelos desde 1, en una columna fetus_number</translation>
    </message>
    <message>
        <source>%1: line %2 says something else of the same examination; make them agree</source>
        <extracomment>%1 is a column of a table.</extracomment>
        <translation>%1: la línea %2 dice otra cosa de la misma exploración; haga que coincidan</translation>
    </message>
    <message>
        <source>fetus counts from 0, and no row of this examination has 0; where it counts from 1, call the column fetus_number</source>
        <translation>fetus cuenta desde 0, y ninguna fila de esta exploración tiene 0; si cuenta desde 1, llame a la columna fetus_number</translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1: never measured</source>
        <extracomment>%1 to %3 are bpd, hc, ac or fl: &quot;there is no column bpd_mm or bpd: never measured&quot;.</extracomment>
        <translation>no hay ninguna columna %1_mm o %1: nunca medida</translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1, %2_mm or %2: never measured</source>
        <translation>no hay ninguna columna %1_mm o %1, %2_mm o %2: nunca medida</translation>
    </message>
    <message>
        <source>there is no column %1_mm or %1, %2_mm or %2, %3_mm or %3: never measured</source>
        <translation>no hay ninguna columna %1_mm o %1, %2_mm o %2, %3_mm o %3: nunca medida</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Examination</source>
        <translation>Exploración</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Feto</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Patient</source>
        <translation>Paciente</translation>
    </message>
    <message>
        <source>What becomes of it</source>
        <translation>Qué se hará</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>Importar informe</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Reference ID of the report: %1. Of the document: %2.</source>
        <translation>Identificador del informe: %1. Del documento: %2.</translation>
    </message>
    <message>
        <source>The report is of &amp;this patient</source>
        <translation>El informe es de &amp;esta paciente</translation>
    </message>
    <message>
        <source>Please choose</source>
        <translation>Elija uno</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Values of the report</source>
        <translation>Valores del informe</translation>
    </message>
    <message>
        <source>Import Report of %1</source>
        <translation>Importar informe: %1</translation>
    </message>
    <message>
        <source>%1 of the report is:</source>
        <translation>%1 del informe es:</translation>
    </message>
</context>
<context>
    <name>Improbable</name>
    <message>
        <source>%1 %2 mm is outside %3 to %4 mm</source>
        <translation>%1 %2 mm queda fuera del intervalo de %3 a %4 mm</translation>
    </message>
    <message>
        <source>%1 %2 mm is shorter than where any growth standard begins; lengths are in mm</source>
        <translation>%1 %2 mm es menor que el primer valor de cualquier estándar de crecimiento; las medidas van en mm</translation>
    </message>
    <message>
        <source>%1 %2 mm is more than 4 SD below the mean of the growth standard at this age</source>
        <translation>%1 %2 mm está más de 4 DE por debajo de la media del estándar de crecimiento a esta edad</translation>
    </message>
    <message>
        <source>%1 %2 mm is more than 4 SD above the mean of the growth standard at this age</source>
        <translation>%1 %2 mm está más de 4 DE por encima de la media del estándar de crecimiento a esta edad</translation>
    </message>
    <message>
        <source>%1 %2 mm is below nine tenths of pi times the BPD, %3 mm</source>
        <translation>%1 %2 mm es menos de nueve décimas partes de pi por el DBP, %3 mm</translation>
    </message>
    <message>
        <source>%1 %2 mm is improbable</source>
        <translation>%1 %2 mm es improbable</translation>
    </message>
    <message>
        <source>it is %1 day before the last period</source>
        <extracomment>&quot;It&quot; is an examination.</extracomment>
        <translation>es %1 día anterior a la última regla</translation>
    </message>
    <message>
        <source>it is %1 days before the last period</source>
        <translation>es %1 días anterior a la última regla</translation>
    </message>
    <message>
        <source>its age, %1, is above 45 weeks</source>
        <translation>su edad, %1, supera las 45 semanas</translation>
    </message>
</context>
<context>
    <name>Modules</name>
    <message>
        <source>this program does not know where it lies</source>
        <translation>este programa no sabe dónde se encuentra</translation>
    </message>
    <message>
        <source>the module %1 is not installed</source>
        <translation>el módulo %1 no está instalado</translation>
    </message>
    <message>
        <source>the module %1 cannot be loaded: it is another module</source>
        <translation>no se puede cargar el módulo %1: es otro módulo</translation>
    </message>
    <message>
        <source>the module %1 cannot be loaded: %2</source>
        <translation>no se puede cargar el módulo %1: %2</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&amp;Reference ID</source>
        <translation>&amp;Identificador</translation>
    </message>
    <message>
        <source>The patient&apos;s reference ID, any text</source>
        <translation>Identificador de la paciente, cualquier texto</translation>
    </message>
    <message>
        <source>Number of pregnancies, this one included</source>
        <translation>Número de embarazos, incluido este</translation>
    </message>
    <message>
        <source>&amp;Gravidity</source>
        <translation>&amp;Gestas</translation>
    </message>
    <message>
        <source>Number of pregnancies, this one included: a whole number, 0 or more</source>
        <translation>Número de embarazos, incluido este: un número entero, 0 o mayor</translation>
    </message>
    <message>
        <source>Estimated date of delivery</source>
        <translation>Fecha probable de parto</translation>
    </message>
    <message>
        <source>E&amp;DD</source>
        <translation>&amp;FPP</translation>
    </message>
    <message>
        <source>Examination</source>
        <translation>Exploración</translation>
    </message>
    <message>
        <source>Date of the examination</source>
        <translation>Fecha de la exploración</translation>
    </message>
    <message>
        <source>Da&amp;te</source>
        <translation>Fec&amp;ha</translation>
    </message>
    <message>
        <source>Menstrual age at the examination, in weeks and days</source>
        <translation>Edad gestacional en la exploración, en semanas y días</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Edad</translation>
    </message>
    <message>
        <source>Fet&amp;us</source>
        <translation>Fet&amp;o</translation>
    </message>
    <message>
        <source>Biparietal diameter</source>
        <translation>Diámetro biparietal</translation>
    </message>
    <message>
        <source>&amp;BPD</source>
        <translation>&amp;DBP</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Head circumference</source>
        <translation>Circunferencia cefálica</translation>
    </message>
    <message>
        <source>H&amp;C</source>
        <translation>&amp;CC</translation>
    </message>
    <message>
        <source>Abdominal circumference</source>
        <translation>Circunferencia abdominal</translation>
    </message>
    <message>
        <source>&amp;AC</source>
        <translation>C&amp;A</translation>
    </message>
    <message>
        <source>Femur length</source>
        <translation>Longitud femoral</translation>
    </message>
    <message>
        <source>F&amp;L</source>
        <translation>&amp;LF</translation>
    </message>
    <message>
        <source>Note on this examination</source>
        <translation>Nota sobre esta exploración</translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Nota</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>A&amp;rchivo</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Patient</source>
        <translation>&amp;Paciente</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Guardar &amp;como...</translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation>Vo&amp;lver a lo guardado</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy Rep&amp;ort as Table</source>
        <translation>Copiar informe como ta&amp;bla</translation>
    </message>
    <message>
        <source>Copies the report of the fetus on show, all examinations, for a spreadsheet or a letter.</source>
        <translation>Copia el informe del feto mostrado, con todas las exploraciones, para una hoja de cálculo o una carta.</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Previous Examination</source>
        <translation>Exploración &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next Examination</source>
        <translation>Exploración &amp;siguiente</translation>
    </message>
    <message>
        <source>Add &amp;Examination</source>
        <translation>Añadir &amp;exploración</translation>
    </message>
    <message>
        <source>&amp;Delete Examination</source>
        <translation>E&amp;liminar exploración</translation>
    </message>
    <message>
        <source>Add &amp;Fetus</source>
        <translation>Añadir &amp;feto</translation>
    </message>
    <message>
        <source>&amp;Remove Fetus</source>
        <translation>&amp;Quitar feto</translation>
    </message>
    <message>
        <source>EDD from &amp;LMP...</source>
        <translation>FPP por F&amp;UR...</translation>
    </message>
    <message>
        <source>EDD from &amp;CRL...</source>
        <translation>FPP por LC&amp;C...</translation>
    </message>
    <message>
        <source>EDD from &amp;Measurements...</source>
        <translation>FPP por &amp;medidas...</translation>
    </message>
    <message>
        <source>&amp;Adjust Delivery...</source>
        <translation>&amp;Programar parto...</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>Mostrar &amp;todos</translation>
    </message>
    <message>
        <source>&amp;References</source>
        <translation>&amp;Referencias</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Guía del usuario</translation>
    </message>
    <message>
        <source>&amp;About Nascor</source>
        <translation>&amp;Acerca de Nascor</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Evolución</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>DBP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>CC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>CA</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>LF</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>%ld of %ld</source>
        <translation>%ld de %ld</translation>
    </message>
    <message>
        <source>There is no examination to note this at.</source>
        <translation>No hay ninguna exploración en la que anotar esto.</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vaciar</translation>
    </message>
    <message>
        <source>&amp;Remember Recent Documents</source>
        <translation>&amp;Recordar documentos recientes</translation>
    </message>
    <message>
        <source>mm (%1–%2)</source>
        <translation>mm (%1–%2)</translation>
    </message>
    <message>
        <source>%1, %2 to %3 mm</source>
        <translation>%1, de %2 a %3 mm</translation>
    </message>
    <message>
        <source>%1, for example %2</source>
        <translation>%1, por ejemplo, %2</translation>
    </message>
    <message>
        <source>The fetus on show</source>
        <translation>Feto mostrado</translation>
    </message>
    <message>
        <source>Not permitted. %1</source>
        <translation>No permitido. %1</translation>
    </message>
    <message>
        <source>Permitted: %1</source>
        <translation>Permitido: %1</translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation>como %1</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>sin fecha</translation>
    </message>
    <message>
        <source>About Nascor</source>
        <translation>Acerca de Nascor</translation>
    </message>
    <message>
        <source>Nascor %1</source>
        <translation>Nascor %1</translation>
    </message>
    <message>
        <source>Copyright (c) 2026 The Nascor developers. MIT License.</source>
        <translation>Copyright (c) 2026 The Nascor developers. Licencia MIT.</translation>
    </message>
    <message>
        <source>Linked with Qt %1 (GNU LGPL 3), the D-Bus library (AFL 2.1 or GNU GPL 2) and the GNU C++ library (GNU GPL 3 with the GCC Runtime Library Exception).</source>
        <translation>Enlazado con Qt %1 (GNU LGPL 3), la biblioteca D-Bus (AFL 2.1 o GNU GPL 2) y la biblioteca GNU de C⁠+⁠+ (GNU GPL 3 con la GCC Runtime Library Exception).</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d &apos;de&apos; MMMM &apos;de&apos; yyyy</translation>
    </message>
    <message>
        <source>Standard deviations from the mean of the growth standard</source>
        <translation>Desviaciones estándar respecto a la media del estándar de crecimiento</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>Centile by the growth standard</source>
        <translation>Percentil según el estándar de crecimiento</translation>
    </message>
    <message>
        <source>Centile</source>
        <translation>Percentil</translation>
    </message>
    <message>
        <source>Estimated fetal weight, by the formula in force</source>
        <translation>Peso fetal estimado según la fórmula en uso</translation>
    </message>
    <message>
        <source>EFW</source>
        <translation>PFE</translation>
    </message>
    <message>
        <source>! %1: %2</source>
        <translation>! %1: %2</translation>
    </message>
    <message>
        <source>Growth chart of %1. Examination %2, %3. %4</source>
        <translation>Gráfica de crecimiento de %1. Exploración %2, %3. %4</translation>
    </message>
    <message>
        <source>by %1</source>
        <translation>según %1</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Ven&amp;tana</translation>
    </message>
    <message>
        <source>Add Examination</source>
        <translation>Añadir exploración</translation>
    </message>
    <message>
        <source>Delete Examination</source>
        <translation>Eliminar exploración</translation>
    </message>
    <message>
        <source>Add Fetus</source>
        <translation>Añadir feto</translation>
    </message>
    <message>
        <source>Remove Fetus</source>
        <translation>Quitar feto</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>A&amp;mpliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>A&amp;justar a la ventana</translation>
    </message>
    <message>
        <source>Nascor opens files of this machine only.</source>
        <translation>Nascor solo abre archivos de este equipo.</translation>
    </message>
    <message>
        <source>Please save what the link leads to as a file here, and open that.</source>
        <translation>Guarde aquí como archivo aquello a lo que lleva el enlace y ábralo.</translation>
    </message>
    <message>
        <source>C&amp;ompare...</source>
        <translation>C&amp;omparar...</translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation>&amp;Superponer</translation>
    </message>
    <message>
        <source>Check the Numbers</source>
        <translation>Comprobar los cálculos</translation>
    </message>
    <message>
        <source>All %1 worked examples give the expected results.</source>
        <translation>Los %1 ejemplos resueltos dan los valores conocidos.</translation>
    </message>
    <message>
        <source>%1 of %2 worked examples come out otherwise.</source>
        <translation>%1 de %2 ejemplos resueltos dan otro valor.</translation>
    </message>
    <message>
        <source>Every formula, standard, reference, look-up and date was worked out again. Help &gt; References shows the examples of each.</source>
        <translation>Se han vuelto a calcular todas las fórmulas, estándares, referencias, búsquedas en tablas y fechas. Ayuda &gt; Referencias muestra los ejemplos de cada uno.</translation>
    </message>
    <message>
        <source>Do not rely on this installation. Please have it installed again.</source>
        <translation>No confíe en esta instalación. Haga que la instalen de nuevo.</translation>
    </message>
    <message>
        <source>&amp;Check the Numbers</source>
        <translation>&amp;Comprobar los cálculos</translation>
    </message>
    <message>
        <source>Report &amp;Folder and Server</source>
        <translation>Carpeta de informes &amp;y servidor</translation>
    </message>
    <message>
        <source>I&amp;mport Report...</source>
        <translation>Importar in&amp;forme...</translation>
    </message>
    <message>
        <source>Report F&amp;older...</source>
        <translation>&amp;Carpeta de informes...</translation>
    </message>
    <message>
        <source>Translated by machine, not yet reviewed by a clinician.</source>
        <translation>Traducción automática, aún no revisada por un profesional clínico.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer %1</translation>
    </message>
</context>
<context>
    <name>NCAppController</name>
    <message>
        <source>Standards</source>
        <translation>Estándares</translation>
    </message>
    <message>
        <source>Estimated Fetal Weight</source>
        <translation>Peso fetal estimado</translation>
    </message>
    <message>
        <source>Crown Rump Length</source>
        <translation>Longitud cráneo-caudal</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Mostrar todos</translation>
    </message>
    <message>
        <source>Further References</source>
        <translation>Otras referencias</translation>
    </message>
</context>
<context>
    <name>NCDocument</name>
    <message>
        <source>The gravidity %ld will be read as %ld. A file holds gravidities up to %ld.</source>
        <translation>El número de gestas %ld se leerá como %ld. Un archivo admite hasta %ld gestas.</translation>
    </message>
    <message>
        <source>EDD is already specified</source>
        <translation>La FPP ya está establecida</translation>
    </message>
    <message>
        <source>Are you sure you want to modify the established EDD?</source>
        <translation>¿Seguro que desea modificar la FPP establecida?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove this fetus?</source>
        <translation>¿Seguro que desea quitar este feto?</translation>
    </message>
    <message>
        <source>%ld of %ld examinations shown</source>
        <translation>Se muestran %ld de %ld exploraciones</translation>
    </message>
    <message>
        <source>, page %ld of %ld</source>
        <translation>, página %ld de %ld</translation>
    </message>
    <message>
        <source>Reference ID:</source>
        <translation>Identificador:</translation>
    </message>
    <message>
        <source>Gravidity:</source>
        <translation>Gestas:</translation>
    </message>
    <message>
        <source>Fetus:</source>
        <translation>Feto:</translation>
    </message>
    <message>
        <source>EDD:</source>
        <translation>FPP:</translation>
    </message>
    <message>
        <source>Examination:</source>
        <translation>Exploración:</translation>
    </message>
    <message>
        <source>Examinations:</source>
        <translation>Exploraciones:</translation>
    </message>
    <message>
        <source>Not a medical device. Not validated for clinical use.</source>
        <translation>No es un producto sanitario. No está validado para uso clínico.</translation>
    </message>
    <message>
        <source>Printed:</source>
        <translation>Impreso:</translation>
    </message>
    <message>
        <source>Gravidity is already specified</source>
        <translation>El número de gestas ya está establecido</translation>
    </message>
    <message>
        <source>Are you sure you want to modify it?</source>
        <translation>¿Seguro que desea modificarlo?</translation>
    </message>
    <message>
        <source> %ld of %ld</source>
        <translation> %ld de %ld</translation>
    </message>
    <message>
        <source>%ldw %ldd</source>
        <translation>%lds %ldd</translation>
    </message>
    <message>
        <source>CRL Standard: </source>
        <translation>Estándar de LCC: </translation>
    </message>
    <message>
        <source>Are you sure you want to remove this examination?</source>
        <translation>¿Seguro que desea quitar esta exploración?</translation>
    </message>
    <message>
        <source>Singleton</source>
        <translation>Feto único</translation>
    </message>
    <message>
        <source>Twin 1</source>
        <translation>Gemelo 1</translation>
    </message>
    <message>
        <source>Twin 2</source>
        <translation>Gemelo 2</translation>
    </message>
    <message>
        <source>Triplet 1 of 3</source>
        <translation>Trillizo 1 de 3</translation>
    </message>
    <message>
        <source>Triplet 2 of 3</source>
        <translation>Trillizo 2 de 3</translation>
    </message>
    <message>
        <source>Triplet 3 of 3</source>
        <translation>Trillizo 3 de 3</translation>
    </message>
    <message>
        <source>Quad 1 of 4</source>
        <translation>Cuatrillizo 1 de 4</translation>
    </message>
    <message>
        <source>Quad 2 of 4</source>
        <translation>Cuatrillizo 2 de 4</translation>
    </message>
    <message>
        <source>Quad 3 of 4</source>
        <translation>Cuatrillizo 3 de 4</translation>
    </message>
    <message>
        <source>Quad 4 of 4</source>
        <translation>Cuatrillizo 4 de 4</translation>
    </message>
    <message>
        <source>Quin 1 of 5</source>
        <translation>Quintillizo 1 de 5</translation>
    </message>
    <message>
        <source>Quin 2 of 5</source>
        <translation>Quintillizo 2 de 5</translation>
    </message>
    <message>
        <source>Quin 3 of 5</source>
        <translation>Quintillizo 3 de 5</translation>
    </message>
    <message>
        <source>Quin 4 of 5</source>
        <translation>Quintillizo 4 de 5</translation>
    </message>
    <message>
        <source>Quin 5 of 5</source>
        <translation>Quintillizo 5 de 5</translation>
    </message>
    <message>
        <source>The EDD is empty now. This is no date: </source>
        <translation>La FPP ha quedado vacía. Esto no es una fecha: </translation>
    </message>
    <message>
        <source>The examination has no date now. This is no date: </source>
        <translation>La exploración ha quedado sin fecha. Esto no es una fecha: </translation>
    </message>
    <message>
        <source>The examination is before the last period.</source>
        <translation>La exploración es anterior a la última regla.</translation>
    </message>
    <message>
        <source>The age is above 45 weeks.</source>
        <translation>La edad supera las 45 semanas.</translation>
    </message>
    <message>
        <source>Outside %ld to %ld mm.</source>
        <translation>Fuera del intervalo de %ld a %ld mm.</translation>
    </message>
    <message>
        <source>Shorter than any growth standard begins. Lengths are in mm.</source>
        <translation>Menor que el primer valor de cualquier estándar de crecimiento. Las medidas van en mm.</translation>
    </message>
    <message>
        <source>More than 4 SD below the growth standard.</source>
        <translation>Más de 4 DE por debajo del estándar de crecimiento.</translation>
    </message>
    <message>
        <source>More than 4 SD above the growth standard.</source>
        <translation>Más de 4 DE por encima del estándar de crecimiento.</translation>
    </message>
    <message>
        <source>Too small for the BPD.</source>
        <translation>Demasiado pequeña para el DBP.</translation>
    </message>
    <message>
        <source>The growth standard begins at %ld weeks, which count.</source>
        <translation>El estándar de crecimiento empieza a las %ld semanas; se toma esa semana.</translation>
    </message>
    <message>
        <source>The growth standard ends at %ld weeks, which count.</source>
        <translation>El estándar de crecimiento termina a las %ld semanas; se toma esa semana.</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>beyond the table</source>
        <translation>fuera de la tabla</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>sin fecha</translation>
    </message>
    <message>
        <source>Examination %ld of %ld: </source>
        <translation>Exploración %ld de %ld: </translation>
    </message>
    <message>
        <source>Age today:</source>
        <translation>Edad hoy:</translation>
    </message>
    <message>
        <source>An examination would be before the last period.</source>
        <translation>Una exploración quedaría antes de la última regla.</translation>
    </message>
    <message>
        <source>An examination would be above 45 weeks.</source>
        <translation>Una exploración quedaría por encima de 45 semanas.</translation>
    </message>
    <message>
        <source>The same day as the current EDD.</source>
        <translation>El mismo día que la FPP actual.</translation>
    </message>
    <message>
        <source>One day later than the current EDD.</source>
        <translation>Un día después de la FPP actual.</translation>
    </message>
    <message>
        <source>One day earlier than the current EDD.</source>
        <translation>Un día antes de la FPP actual.</translation>
    </message>
    <message>
        <source>%ld days later than the current EDD.</source>
        <translation>%ld días después de la FPP actual.</translation>
    </message>
    <message>
        <source>%ld days earlier than the current EDD.</source>
        <translation>%ld días antes de la FPP actual.</translation>
    </message>
    <message>
        <source>No formula is chosen.</source>
        <translation>No se ha elegido ninguna fórmula.</translation>
    </message>
    <message>
        <source>The examination has no date.</source>
        <translation>La exploración no tiene fecha.</translation>
    </message>
    <message>
        <source>Type the crown-rump length.</source>
        <translation>Escriba la longitud cráneo-caudal.</translation>
    </message>
    <message>
        <source>The formula dates these lengths, in mm:</source>
        <translation>La fórmula data estas longitudes, en mm:</translation>
    </message>
    <message>
        <source>There is no such cycle.</source>
        <translation>No existe un ciclo así.</translation>
    </message>
    <message>
        <source>Type the date.</source>
        <translation>Escriba la fecha.</translation>
    </message>
    <message>
        <source>This is no date:</source>
        <translation>Esto no es una fecha:</translation>
    </message>
    <message>
        <source>The EDD would lie outside the calendar.</source>
        <translation>La FPP quedaría fuera del calendario.</translation>
    </message>
    <message>
        <source>Lengths that will be removed with it: %ld.</source>
        <translation>Medidas que se quitarán con él: %ld.</translation>
    </message>
    <message>
        <source>Last examination:</source>
        <translation>Última exploración:</translation>
    </message>
    <message>
        <source>No lengths, so no marks. Type BPD, HC, AC or FL beside the page.</source>
        <translation>No hay medidas, así que no hay marcas. Escriba DBP, CC, CA o LF junto a la página.</translation>
    </message>
    <message>
        <source>No BPD, so no marks. Type it beside the page.</source>
        <translation>No hay DBP, así que no hay marcas. Escríbalo junto a la página.</translation>
    </message>
    <message>
        <source>No HC, so no marks. Type it beside the page.</source>
        <translation>No hay CC, así que no hay marcas. Escríbala junto a la página.</translation>
    </message>
    <message>
        <source>No AC, so no marks. Type it beside the page.</source>
        <translation>No hay CA, así que no hay marcas. Escríbala junto a la página.</translation>
    </message>
    <message>
        <source>No FL, so no marks. Type it beside the page.</source>
        <translation>No hay LF, así que no hay marcas. Escríbala junto a la página.</translation>
    </message>
    <message>
        <source>No weight, so no marks. Type the lengths that the formula needs.</source>
        <translation>No hay peso, así que no hay marcas. Escriba las medidas que la fórmula necesita.</translation>
    </message>
    <message>
        <source>No lengths. Type BPD, HC, AC or FL beside the page.</source>
        <translation>No hay medidas. Escriba DBP, CC, CA o LF junto a la página.</translation>
    </message>
    <message>
        <source>No examination. Patient &gt; Add Examination</source>
        <translation>No hay ninguna exploración. Paciente &gt; Añadir exploración</translation>
    </message>
    <message>
        <source>No known growth standard, so no projection. Choose from Standards.</source>
        <translation>Estándar de crecimiento desconocido, así que no hay proyección. Elija uno en Estándares.</translation>
    </message>
    <message>
        <source>No known growth standard, so no curves. Choose from Standards.</source>
        <translation>Estándar de crecimiento desconocido, así que no hay curvas. Elija uno en Estándares.</translation>
    </message>
    <message>
        <source>No known weight formula, so no weights. Choose from Estimated Fetal Weight.</source>
        <translation>Fórmula del peso desconocida, así que no hay pesos. Elija una en Peso fetal estimado.</translation>
    </message>
    <message>
        <source>No EDD, so no ages. Patient &gt; EDD from ...</source>
        <translation>No hay FPP, así que no hay edades. Paciente &gt; FPP por ...</translation>
    </message>
    <message>
        <source>No EDD, so no marks. Patient &gt; EDD from ...</source>
        <translation>No hay FPP, así que no hay marcas. Paciente &gt; FPP por ...</translation>
    </message>
    <message>
        <source>No date, so no ages. Type it beside the page.</source>
        <translation>No hay fecha, así que no hay edades. Escríbala junto a la página.</translation>
    </message>
    <message>
        <source>No date, so no marks. Type it beside the page.</source>
        <translation>No hay fecha, así que no hay marcas. Escríbala junto a la página.</translation>
    </message>
    <message>
        <source>Obstetric ultrasound biometry</source>
        <translation>Biometría ecográfica obstétrica</translation>
    </message>
    <message>
        <source>An empty number of days counts as 0.</source>
        <translation>Un número de días vacío cuenta como 0.</translation>
    </message>
    <message>
        <source>Usually a cycle has 24 to 38 days, its luteal phase 11 to 17.</source>
        <translation>Lo usual es un ciclo de 24 a 38 días con una fase lútea de 11 a 17.</translation>
    </message>
    <message>
        <source>Type whole days.</source>
        <translation>Escriba días enteros.</translation>
    </message>
    <message>
        <source>Add Examination</source>
        <translation>añadir exploración</translation>
    </message>
    <message>
        <source>Delete Examination</source>
        <translation>eliminar exploración</translation>
    </message>
    <message>
        <source>Add Fetus</source>
        <translation>añadir feto</translation>
    </message>
    <message>
        <source>Remove Fetus</source>
        <translation>quitar feto</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>FPP</translation>
    </message>
    <message>
        <source>Growth Standard</source>
        <translation>estándar de crecimiento</translation>
    </message>
    <message>
        <source>Weight Formula</source>
        <translation>fórmula del peso</translation>
    </message>
    <message>
        <source>Crown-Rump Formula</source>
        <translation>fórmula de la LCC</translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation>identificador</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>gestas</translation>
    </message>
    <message>
        <source>Examination Date</source>
        <translation>fecha de la exploración</translation>
    </message>
    <message>
        <source>Lengths</source>
        <translation>medidas</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>DBP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>CC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>CA</translation>
    </message>
    <message>
        <source>FL</source>
        <translation>LF</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>nota</translation>
    </message>
    <message>
        <source>Planned Delivery</source>
        <translation>parto programado</translation>
    </message>
    <message>
        <source>Lines join the marks of each fetus.</source>
        <translation>Las marcas de cada feto están unidas por líneas.</translation>
    </message>
    <message>
        <source>Import Report</source>
        <translation>importar informe</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>There is no examination.</source>
        <translation>No hay ninguna exploración.</translation>
    </message>
    <message>
        <source>Nothing here writes DICOM reports.</source>
        <translation>Aquí no hay nada que escriba informes DICOM.</translation>
    </message>
</context>
<context>
    <name>OutputMenu</name>
    <message>
        <source>Export Page</source>
        <translation>Exportar página</translation>
    </message>
    <message>
        <source>Export All Fetuses</source>
        <translation>Exportar todos los fetos</translation>
    </message>
    <message>
        <source>Export Settings...</source>
        <translation>Ajustes de exportación...</translation>
    </message>
    <message>
        <source>Page Setup...</source>
        <translation>Configurar página...</translation>
    </message>
    <message>
        <source>Print Preview...</source>
        <translation>Vista previa de impresión...</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimir...</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportado a %1</translation>
    </message>
    <message>
        <source>Exporting pages...</source>
        <translation>Exportando páginas...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>%1 pages were exported to %2</source>
        <translation>Páginas exportadas a %2: %1</translation>
    </message>
    <message>
        <source>%1 pages were not exported.</source>
        <translation>Páginas no exportadas: %1.</translation>
    </message>
    <message>
        <source>Please make room in this folder, or choose another in Export Settings.</source>
        <translation>Libere espacio en esta carpeta o elija otra en Ajustes de exportación.</translation>
    </message>
    <message>
        <source>Export Settings</source>
        <translation>Ajustes de exportación</translation>
    </message>
    <message>
        <source>Asked for at the first export</source>
        <translation>Se preguntará en la primera exportación</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Elegir...</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>PDF, for print and archive</source>
        <translation>PDF, para imprimir y archivar</translation>
    </message>
    <message>
        <source>PNG, a picture</source>
        <translation>PNG, una imagen</translation>
    </message>
    <message>
        <source>SVG, a drawing</source>
        <translation>SVG, un dibujo</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;Patient, standards and date under each page</source>
        <translation>&amp;Paciente, estándares y fecha bajo cada página</translation>
    </message>
</context>
<context>
    <name>Overlay</name>
    <message>
        <source>No Centiles</source>
        <translation>Sin percentiles</translation>
    </message>
    <message>
        <source>Join Marks</source>
        <translation>Unir marcas</translation>
    </message>
</context>
<context>
    <name>PageFiles</name>
    <message>
        <source>holds no patient</source>
        <translation>no contiene ninguna paciente</translation>
    </message>
    <message>
        <source>it has no such fetus or page</source>
        <translation>no tiene ese feto o esa página</translation>
    </message>
    <message>
        <source>it says %1 fetuses, which cannot be chosen from; the pages are those of the first</source>
        <translation>indica %1 fetos, entre los que no se puede elegir; las páginas son las del primero</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>it could not be painted</source>
        <translation>no se pudo dibujar</translation>
    </message>
    <message>
        <source>its pages are several files, which standard output cannot take</source>
        <translation>sus páginas son varios archivos, que la salida estándar no puede recibir</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>salida estándar</translation>
    </message>
    <message>
        <source>it is there already, and stays as it is</source>
        <translation>ya existe y se queda como está</translation>
    </message>
    <message>
        <source>the folder could not be made (%1)</source>
        <translation>no se pudo crear la carpeta (%1)</translation>
    </message>
</context>
<context>
    <name>Printer</name>
    <message>
        <source>There is no printer. Please choose a file to print into in the print panel, or export the page.</source>
        <translation>No hay ninguna impresora. Elija en el diálogo de impresión un archivo en el que imprimir, o exporte la página.</translation>
    </message>
    <message>
        <source>Please make room there or choose another file.</source>
        <translation>Libere espacio allí o elija otro archivo.</translation>
    </message>
    <message>
        <source>The page could not be painted.</source>
        <translation>No se pudo dibujar la página.</translation>
    </message>
    <message>
        <source>The printer %1 does not answer. Please look after it or choose another.</source>
        <translation>La impresora %1 no responde. Revísela o elija otra.</translation>
    </message>
    <message>
        <source>The printer refused the page.</source>
        <translation>La impresora rechazó la página.</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>%ld of %ld</source>
        <translation>%ld de %ld</translation>
    </message>
    <message>
        <source>%ld a second</source>
        <translation>%ld por segundo</translation>
    </message>
    <message>
        <source>%ld a minute</source>
        <translation>%ld por minuto</translation>
    </message>
    <message>
        <source>%ld s left</source>
        <translation>quedan %ld s</translation>
    </message>
    <message>
        <source>%ld min left</source>
        <translation>quedan %ld min</translation>
    </message>
</context>
<context>
    <name>Reading</name>
    <message>
        <source>a real</source>
        <translation>un número real</translation>
    </message>
    <message>
        <source>the mark of something new</source>
        <translation>la marca de algo nuevo</translation>
    </message>
    <message>
        <source>the end of an object</source>
        <translation>el fin de un objeto</translation>
    </message>
    <message>
        <source>the meaningless byte %1</source>
        <translation>el byte sin significado %1</translation>
    </message>
    <message>
        <source>only %1 of its %2 are left</source>
        <extracomment>%2 is a count, such as &quot;8 bytes&quot;.</extracomment>
        <translation>solo quedan %1 de sus %2</translation>
    </message>
    <message>
        <source>label %1 is outside the %2 given so far</source>
        <translation>la etiqueta %1 no está entre las %2 dadas hasta aquí</translation>
    </message>
    <message>
        <source>string %1 is outside the %2 given so far</source>
        <translation>la cadena %1 no está entre las %2 dadas hasta aquí</translation>
    </message>
    <message>
        <source>its length is %1</source>
        <translation>su longitud es %1</translation>
    </message>
    <message>
        <source>at byte %1: %2</source>
        <translation>en el byte %1: %2</translation>
    </message>
    <message>
        <source>expected %1, but %2</source>
        <extracomment>%1 is what was expected, such as &quot;an object&quot;, %2 a clause such as &quot;the file ends here&quot;.</extracomment>
        <translation>se esperaba %1, pero %2</translation>
    </message>
    <message>
        <source>%1 stands here</source>
        <translation>aquí figura %1</translation>
    </message>
    <message>
        <source>%1 byte</source>
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>the file ends here</source>
        <translation>aquí termina el archivo</translation>
    </message>
    <message>
        <source>the text of this stream is more than %1 times as long as the stream itself</source>
        <translation>el texto de este flujo es más de %1 veces más largo que el propio flujo</translation>
    </message>
    <message>
        <source>a typed stream of version 4</source>
        <translation>un flujo tipado de la versión 4</translation>
    </message>
    <message>
        <source>the signature of a typed stream</source>
        <translation>la firma de un flujo tipado</translation>
    </message>
    <message>
        <source>the version is %1</source>
        <translation>la versión es %1</translation>
    </message>
    <message>
        <source>the system version</source>
        <translation>la versión del sistema</translation>
    </message>
    <message>
        <source>a group of values, or the end of an object</source>
        <translation>un grupo de valores, o el fin de un objeto</translation>
    </message>
    <message>
        <source>a group of values</source>
        <translation>un grupo de valores</translation>
    </message>
    <message>
        <source>%1 ends here</source>
        <extracomment>An object.</extracomment>
        <translation>aquí termina %1</translation>
    </message>
    <message>
        <source>the types of a group</source>
        <translation>la cadena de tipos de un grupo</translation>
    </message>
    <message>
        <source>the type string %1 %2</source>
        <extracomment>%2 is what is wrong with it, such as &quot;ends inside an array&quot;.</extracomment>
        <translation>la cadena de tipos %1 %2</translation>
    </message>
    <message>
        <source>its text is nil</source>
        <translation>su texto es nil</translation>
    </message>
    <message>
        <source>a class name</source>
        <translation>un nombre de clase</translation>
    </message>
    <message>
        <source>a class version</source>
        <translation>una versión de clase</translation>
    </message>
    <message>
        <source>more than %1 class records stand in a chain</source>
        <translation>hay más de %1 registros de clase encadenados</translation>
    </message>
    <message>
        <source>a superclass</source>
        <translation>una superclase</translation>
    </message>
    <message>
        <source>objects, arrays and structures nest more than %1 deep</source>
        <translation>hay objetos, matrices y estructuras anidados a más de %1 niveles</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>un entero</translation>
    </message>
    <message>
        <source>a byte</source>
        <translation>un byte</translation>
    </message>
    <message>
        <source>%1 does not fit that</source>
        <translation>%1 no cabe ahí</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>una cadena</translation>
    </message>
    <message>
        <source>a C string</source>
        <translation>una cadena C</translation>
    </message>
    <message>
        <source>a class</source>
        <translation>una clase</translation>
    </message>
    <message>
        <source>an array of bytes</source>
        <translation>una matriz de bytes</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>una matriz</translation>
    </message>
    <message>
        <source>it takes at least %1, and %2 are left</source>
        <extracomment>%1 is a count, such as &quot;8 bytes&quot;.</extracomment>
        <translation>ocupa al menos %1, y quedan %2</translation>
    </message>
    <message>
        <source>a structure</source>
        <translation>una estructura</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objeto</translation>
    </message>
    <message>
        <source>the class of an object</source>
        <translation>la clase de un objeto</translation>
    </message>
    <message>
        <source>the end of %1</source>
        <extracomment>%1 is an object.</extracomment>
        <translation>que terminara %1</translation>
    </message>
    <message>
        <source>more values follow</source>
        <translation>siguen más valores</translation>
    </message>
    <message>
        <source>class %1 (%2)</source>
        <translation>la clase %1 (%2)</translation>
    </message>
    <message>
        <source>C string %1</source>
        <translation>la cadena C %1</translation>
    </message>
    <message>
        <source>object %1 (of no class yet)</source>
        <translation>el objeto %1 (aún sin clase)</translation>
    </message>
    <message>
        <source>object %1 (%2)</source>
        <translation>el objeto %1 (%2)</translation>
    </message>
    <message>
        <source>nests arrays and structures more than %1 deep</source>
        <extracomment>Behind &quot;the type string ...&quot;, as are the next ones.</extracomment>
        <translation>anida matrices y estructuras a más de %1 niveles</translation>
    </message>
    <message>
        <source>has the unknown type code %1</source>
        <translation>tiene el código de tipo desconocido %1</translation>
    </message>
    <message>
        <source>has an array without a count</source>
        <translation>tiene una matriz sin número de elementos</translation>
    </message>
    <message>
        <source>ends inside an array</source>
        <translation>termina dentro de una matriz</translation>
    </message>
    <message>
        <source>has an array without an element type</source>
        <translation>tiene una matriz sin tipo de elemento</translation>
    </message>
    <message>
        <source>has an array that is not closed</source>
        <translation>tiene una matriz que no se cierra</translation>
    </message>
    <message>
        <source>has an array whose elements take no bytes</source>
        <translation>tiene una matriz cuyos elementos no ocupan ningún byte</translation>
    </message>
    <message>
        <source>has a structure without members</source>
        <translation>tiene una estructura sin miembros</translation>
    </message>
    <message>
        <source>has a structure that is not closed</source>
        <translation>tiene una estructura que no se cierra</translation>
    </message>
    <message>
        <source>a selector</source>
        <translation>un selector</translation>
    </message>
    <message>
        <source>a shared string</source>
        <translation>una cadena compartida</translation>
    </message>
    <message>
        <source>an unsigned byte</source>
        <translation>un byte sin signo</translation>
    </message>
    <message>
        <source>a truth value</source>
        <translation>un valor lógico</translation>
    </message>
    <message>
        <source>a 16-bit integer</source>
        <translation>un entero de 16 bits</translation>
    </message>
    <message>
        <source>an unsigned 16-bit integer</source>
        <translation>un entero de 16 bits sin signo</translation>
    </message>
    <message>
        <source>a 32-bit integer</source>
        <translation>un entero de 32 bits</translation>
    </message>
    <message>
        <source>an unsigned 32-bit integer</source>
        <translation>un entero de 32 bits sin signo</translation>
    </message>
    <message>
        <source>a long integer</source>
        <translation>un entero largo</translation>
    </message>
    <message>
        <source>an unsigned long integer</source>
        <translation>un entero largo sin signo</translation>
    </message>
    <message>
        <source>a 64-bit integer</source>
        <translation>un entero de 64 bits</translation>
    </message>
    <message>
        <source>an unsigned 64-bit integer</source>
        <translation>un entero de 64 bits sin signo</translation>
    </message>
    <message>
        <source>a 32-bit real</source>
        <translation>un número real de 32 bits</translation>
    </message>
    <message>
        <source>a 64-bit real</source>
        <translation>un número real de 64 bits</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>un valor</translation>
    </message>
    <message>
        <source>values</source>
        <translation>una serie de valores</translation>
    </message>
    <message>
        <source>%1 (type %2)</source>
        <extracomment>%1 is a type in words, such as &quot;an object&quot;, %2 as it is spelled.</extracomment>
        <translation>%1 (tipo %2)</translation>
    </message>
    <message>
        <source>not a Nascor document (%1)</source>
        <extracomment>Behind the name of a file; %1 is the reason.</extracomment>
        <translation>no es un documento de Nascor (%1)</translation>
    </message>
    <message>
        <source>a text or null</source>
        <translation>un texto o null</translation>
    </message>
    <message>
        <source>a date (seconds since 2001-01-01 UTC, an ISO text) or null</source>
        <translation>una fecha (segundos desde 2001-01-01 UTC, un texto ISO) o null</translation>
    </message>
    <message>
        <source>an ISO date or null</source>
        <translation>una fecha ISO o null</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>un número entero</translation>
    </message>
    <message>
        <source>a number, &quot;nan&quot;, &quot;inf&quot; or &quot;-inf&quot;</source>
        <translation>un número, &quot;nan&quot;, &quot;inf&quot; o &quot;-inf&quot;</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>una lista</translation>
    </message>
    <message>
        <source>the text %1</source>
        <translation>el texto %1</translation>
    </message>
    <message>
        <source>binary data</source>
        <translation>un bloque de datos binarios</translation>
    </message>
    <message>
        <source>one of the keys %1</source>
        <translation>una de las claves %1</translation>
    </message>
    <message>
        <source>each key once</source>
        <translation>cada clave una sola vez</translation>
    </message>
    <message>
        <source>this one stands twice</source>
        <translation>esta figura dos veces</translation>
    </message>
    <message>
        <source>expected JSON, but %1</source>
        <translation>se esperaba JSON, pero %1</translation>
    </message>
    <message>
        <source>at line %1, column %2: %3</source>
        <translation>en la línea %1, columna %2: %3</translation>
    </message>
    <message>
        <source>at the top: %1</source>
        <translation>en el nivel superior: %1</translation>
    </message>
    <message>
        <source>at %1: %2</source>
        <extracomment>%1 is a place in a JSON text, such as /examinations/2/note.</extracomment>
        <translation>en %1: %2</translation>
    </message>
    <message>
        <source>a whole number of at most 64 bits</source>
        <translation>un número entero de 64 bits como máximo</translation>
    </message>
    <message>
        <source>%1 is longer than 32 bits; the file holds the low 32, which are %2</source>
        <translation>%1 ocupa más de 32 bits; el archivo contiene los 32 inferiores, que son %2</translation>
    </message>
    <message>
        <source>%1 is beyond single precision; the file holds %2</source>
        <translation>%1 excede la precisión simple; el archivo contiene %2</translation>
    </message>
    <message>
        <source>this number is beyond 64 bits</source>
        <translation>este número excede los 64 bits</translation>
    </message>
    <message>
        <source>expected JSON, but a zero byte stands here</source>
        <translation>se esperaba JSON, pero aquí figura un byte cero</translation>
    </message>
    <message>
        <source>expected a string of UTF-8 text, but its bytes are not UTF-8</source>
        <translation>se esperaba una cadena de texto UTF-8, pero sus bytes no son UTF-8</translation>
    </message>
    <message>
        <source>expected a string of UTF-8 text, but its bytes are missing</source>
        <translation>se esperaba una cadena de texto UTF-8, pero faltan sus bytes</translation>
    </message>
    <message>
        <source>%1 would contain itself</source>
        <translation>%1 se contendría a sí mismo</translation>
    </message>
    <message>
        <source>expected a document of a plausible size, but its references to %1 and others repeat %2 bytes in a file of %3</source>
        <translation>se esperaba un documento de un tamaño plausible, pero repite por referencias %1 y otros: %2 bytes en un archivo de %3</translation>
    </message>
    <message>
        <source>the number of elements of an array</source>
        <translation>el número de elementos de una matriz</translation>
    </message>
    <message>
        <source>a PatientRecord</source>
        <translation>un PatientRecord</translation>
    </message>
    <message>
        <source>a string or nil</source>
        <translation>una cadena o nil</translation>
    </message>
    <message>
        <source>a date or nil</source>
        <translation>una fecha o nil</translation>
    </message>
    <message>
        <source>an array of examinations or nil</source>
        <translation>una matriz de exploraciones o nil</translation>
    </message>
    <message>
        <source>an NCRecord</source>
        <translation>un NCRecord</translation>
    </message>
    <message>
        <source>an array of measurements or nil</source>
        <translation>una matriz de medidas o nil</translation>
    </message>
    <message>
        <source>a MeasurementsRecord</source>
        <translation>un MeasurementsRecord</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>longer than 256 MiB, which no document is</source>
        <translation>ocupa más de 256 MiB, más que cualquier documento</translation>
    </message>
    <message>
        <source>the tar archive ends before its end mark</source>
        <translation>el archivo tar termina antes de su marca de fin</translation>
    </message>
    <message>
        <source>the header has none of the columns ga_weeks, bpd_mm, hc_mm, ac_mm and fl_mm</source>
        <translation>la cabecera no tiene ninguna de las columnas ga_weeks, bpd_mm, hc_mm, ac_mm y fl_mm</translation>
    </message>
    <message>
        <source>the column %1 is one of those that are computed</source>
        <translation>la columna %1 es una de las que se calculan</translation>
    </message>
    <message>
        <source>%1 is no column of the input and none that is computed</source>
        <extracomment>%1 stands in quotation marks.</extracomment>
        <translation>%1 no es una columna de la entrada ni de las que se calculan</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <extracomment>Two names of one column.</extracomment>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>the row that begins here is longer than 4 MiB; a quotation mark may never close</source>
        <translation>la fila que empieza aquí supera los 4 MiB; quizá falten unas comillas de cierre</translation>
    </message>
    <message>
        <source>a quotation mark that opens here never closes</source>
        <translation>las comillas que se abren aquí no se cierran nunca</translation>
    </message>
    <message>
        <source>text stands behind a closing quotation mark</source>
        <translation>hay texto detrás de unas comillas de cierre</translation>
    </message>
    <message>
        <source>the column %1 stands twice in the header</source>
        <translation>la columna %1 figura dos veces en la cabecera</translation>
    </message>
    <message>
        <source>the columns %1 and %2 are one</source>
        <translation>las columnas %1 y %2 son la misma</translation>
    </message>
    <message>
        <source>the header has %1 cells, this row %2</source>
        <translation>la cabecera tiene %1 celdas; esta fila, %2</translation>
    </message>
    <message>
        <source>%1: %2 is no number</source>
        <extracomment>%1 is a column, %2 what stands in it, in quotation marks.</extracomment>
        <translation>%1: %2 no es un número</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Reference ID</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>FPP</translation>
    </message>
    <message>
        <source>Growth standard</source>
        <translation>Estándar de crecimiento</translation>
    </message>
    <message>
        <source>Weight formula</source>
        <translation>Fórmula del peso</translation>
    </message>
    <message>
        <source>Number of fetuses</source>
        <translation>Número de fetos</translation>
    </message>
    <message>
        <source>Planned delivery</source>
        <translation>Parto programado</translation>
    </message>
    <message>
        <source>Formula for the crown-rump length</source>
        <translation>Fórmula de la longitud cráneo-caudal</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>Gestas</translation>
    </message>
    <message>
        <source>Nascor ended before the changes of this document were saved. Do you want to recover them?</source>
        <translation>Nascor se cerró antes de que se guardaran los cambios de este documento. ¿Desea recuperarlos?</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Unsaved changes were kept when Nascor ended, but they cannot be read.</source>
        <translation>Al cerrarse Nascor se conservaron cambios sin guardar, pero no se pueden leer.</translation>
    </message>
    <message>
        <source>Remove the File</source>
        <translation>Eliminar el archivo</translation>
    </message>
    <message>
        <source>Keep the File</source>
        <translation>Conservar el archivo</translation>
    </message>
    <message>
        <source>Patient:</source>
        <translation>Paciente:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Documento:</translation>
    </message>
    <message>
        <source>never saved</source>
        <translation>nunca guardado</translation>
    </message>
    <message>
        <source>Last kept:</source>
        <translation>Última copia:</translation>
    </message>
    <message>
        <source>An examination that was removed</source>
        <translation>Una exploración eliminada</translation>
    </message>
    <message>
        <source>An examination without a date</source>
        <translation>Una exploración sin fecha</translation>
    </message>
    <message>
        <source>What differs from the saved document:</source>
        <translation>Diferencias con el documento guardado:</translation>
    </message>
    <message>
        <source>The document was saved again since. What was saved then is not in these changes.</source>
        <translation>El documento se ha vuelto a guardar desde entonces. Lo que se guardó entonces no está en estos cambios.</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept against a crash. Please save: %1</source>
        <translation>Los cambios sin guardar no se pueden proteger contra un fallo. Guárdelos: %1</translation>
    </message>
    <message>
        <source>Examination of %1</source>
        <translation>Exploración del %1</translation>
    </message>
    <message>
        <source>What it holds:</source>
        <translation>Lo que contiene:</translation>
    </message>
</context>
<context>
    <name>References</name>
    <message>
        <source>The number is a name of this program; the lengths in parentheses tell the formula.</source>
        <translation>El número es un nombre de este programa; las medidas entre paréntesis indican la fórmula.</translation>
    </message>
    <message>
        <source>Weeks 11 to 14 lie outside the published sample, which has 15 to 41 weeks.</source>
        <translation>Las semanas 11 a 14 quedan fuera de la muestra publicada, que abarca de 15 a 41 semanas.</translation>
    </message>
    <message>
        <source>The numbers are those of the published tables.</source>
        <translation>Los números son los de las tablas publicadas.</translation>
    </message>
    <message>
        <source>The constant is 23.72 here; publications have 23.73.</source>
        <translation>Aquí la constante es 23,72; hay publicaciones con 23,73.</translation>
    </message>
    <message>
        <source>The band of the weight chart is the random error of the formula. It shows no centiles of a population.</source>
        <translation>La banda de la gráfica de peso es el error aleatorio de la fórmula. No muestra percentiles de ninguna población.</translation>
    </message>
    <message>
        <source>Citation partly confirmed.</source>
        <translation>Cita confirmada en parte.</translation>
    </message>
    <message>
        <source>Citation to be confirmed.</source>
        <translation>Cita por confirmar.</translation>
    </message>
    <message>
        <source>References</source>
        <translation>Referencias</translation>
    </message>
    <message>
        <source>&amp;Copy All</source>
        <translation>&amp;Copiar todo</translation>
    </message>
    <message>
        <source>Weeks 12 and 13 lie outside the published sample, which has 14 to 42 weeks. The AC is the paper&apos;s equation, not its table, which is up to 1.68 mm higher. Dating reads the table of sizes backwards; the paper&apos;s own age equations, which scanners use, give other ages: HC 5 to 9.9 days more at 26 to 37 weeks, BPD 11.5 days less and AC 6.7 days less at 40, FL 3.6 days more at 29 to 30.</source>
        <translation>Las semanas 12 y 13 quedan fuera de la muestra publicada, que abarca de 14 a 42 semanas. La CA es la ecuación del artículo, no su tabla, que da hasta 1,68 mm más. La datación lee al revés la tabla de tamaños; las ecuaciones de edad del propio artículo, que usan los ecógrafos, dan otras edades: CC, de 5 a 9,9 días más entre 26 y 37 semanas; DBP, 11,5 días menos, y CA, 6,7 días menos, a las 40; LF, 3,6 días más entre 29 y 30.</translation>
    </message>
    <message>
        <source>No second source has this formula. Compared with Hadlock (1992) it gives 9.4 days more at 6.7 mm, 2.9 days more at 20 mm, the same at 30 mm and 1.3 days less at 45 mm.</source>
        <translation>Ninguna segunda fuente tiene esta fórmula. Comparada con Hadlock (1992), da 9,4 días más a 6,7 mm, 2,9 días más a 20 mm, lo mismo a 30 mm y 1,3 días menos a 45 mm.</translation>
    </message>
    <message>
        <source>Two independent sources have the same formula.</source>
        <translation>Dos fuentes independientes tienen la misma fórmula.</translation>
    </message>
    <message>
        <source>BPD is measured from outer to outer edge. Held against the 1512 values of the printed tables: at most 0.073 mm off.</source>
        <translation>El DBP se mide de borde externo a borde externo. Cotejado con los 1512 valores de las tablas impresas: difiere como mucho en 0,073 mm.</translation>
    </message>
    <message>
        <source>Fits weights by the formula Hadlock 1 (HC/AC/FL) only. Held against the printed table: at most 0.49 g off.</source>
        <translation>Solo vale para pesos de la fórmula Hadlock 1 (HC/AC/FL). Cotejado con la tabla impresa: difiere como mucho en 0,49 g.</translation>
    </message>
    <message>
        <source>The abstract has 12.7 % for one standard deviation; the printed percentiles have 13.27 %, which stands here. Held against the printed table: at most 2.2 g off.</source>
        <translation>El resumen del artículo da un 12,7&#xa0;% para una desviación estándar; los percentiles impresos, un 13,27&#xa0;%, que es el que figura aquí. Cotejado con la tabla impresa: difiere como mucho en 2,2 g.</translation>
    </message>
    <message>
        <source>Coefficients of the revision of 2023-03-13, published under CC BY. Curves of centiles, no distribution: below the 1st and above the 99th it says no more than that.</source>
        <translation>Coeficientes de la revisión del 13-03-2023, publicada bajo CC BY. Curvas de percentiles, sin distribución: por debajo del 1 y por encima del 99 no dice más que eso.</translation>
    </message>
    <message>
        <source>Lengths measured as the publication has it; normal about the mean</source>
        <translation>Medidas tomadas como indica la publicación; normales en torno a la media</translation>
    </message>
    <message>
        <source>BPD measured from outer to outer edge; normal about the mean</source>
        <translation>DBP medido de borde externo a borde externo; normal en torno a la media</translation>
    </message>
    <message>
        <source>Weight by the formula Hadlock 1 (HC/AC/FL); no other formula fits it</source>
        <translation>Peso según la fórmula Hadlock 1 (HC/AC/FL); no se ajusta a ninguna otra fórmula</translation>
    </message>
    <message>
        <source>Weight normal about the mean, with a standard deviation of 13.27 % of it</source>
        <translation>Peso normal en torno a la media, con una desviación estándar del 13,27&#xa0;% de esta</translation>
    </message>
    <message>
        <source>No distribution: between the curves of eleven centiles linear in the value, beyond the 1st and the 99th unknown</source>
        <translation>Sin distribución: entre las curvas de once percentiles, lineal en el valor; más allá del 1 y del 99, desconocida</translation>
    </message>
    <message>
        <source>Formula and checked values</source>
        <translation>Fórmula y valores comprobados</translation>
    </message>
    <message>
        <source>Lengths in mm, weights in g; w is the age in weeks, d in days, g in tens of weeks. What stands side by side is multiplied.</source>
        <translation>Medidas en mm, pesos en g; w es la edad en semanas, d en días, g en decenas de semanas. Lo que está lado a lado se multiplica.</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>SD</source>
        <translation>DE</translation>
    </message>
    <message>
        <source>%1 values, of which %2 differ from what the program answers now.</source>
        <translation>%1 valores, de los que %2 difieren de lo que el programa responde ahora.</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Ejemplo</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Esperado</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Quotients of what was measured; nothing is published of them here.</source>
        <translation>Cocientes de lo medido; aquí no hay nada publicado sobre ellos.</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Fórmula</translation>
    </message>
    <message>
        <source>Printed table</source>
        <translation>Tabla impresa</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>%1 to %2 mm</source>
        <translation>de %1 a %2 mm</translation>
    </message>
    <message>
        <source>%1 to %2 weeks</source>
        <translation>de %1 a %2 semanas</translation>
    </message>
    <message>
        <source>Assumes</source>
        <translation>Supuestos</translation>
    </message>
    <message>
        <source>Checked with</source>
        <translation>Comprobado con</translation>
    </message>
    <message>
        <source>&amp;All References</source>
        <translation>&amp;Todas las referencias</translation>
    </message>
    <message>
        <source>%1 values. The program answers each of them alike.</source>
        <translation>%1 valores. El programa da cada uno de ellos igual.</translation>
    </message>
    <message>
        <source>worked out apart from the program, in decimal arithmetic</source>
        <translation>calculado aparte del programa, en aritmética decimal</translation>
    </message>
</context>
<context>
    <name>ReportFiles</name>
    <message>
        <source>a text is not in the character set &quot;%1&quot; that the file states</source>
        <translation>un texto no está en el juego de caracteres «%1» que indica el archivo</translation>
    </message>
    <message>
        <source>is damaged: %1</source>
        <extracomment>%1 is what a library says, in English, as in all sentences about DICOM that end with a colon.</extracomment>
        <translation>está dañado: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>no se puede escribir: %1</translation>
    </message>
    <message>
        <source>is cut off: it ends before its end</source>
        <translation>está truncado: termina antes de su final</translation>
    </message>
    <message>
        <source>is damaged: a part is longer than what holds it</source>
        <translation>está dañado: una parte es más larga que lo que la contiene</translation>
    </message>
    <message>
        <source>is damaged: a part is of a kind that DICOM does not have</source>
        <translation>está dañado: una parte es de un tipo que DICOM no tiene</translation>
    </message>
    <message>
        <source>is no DICOM file</source>
        <translation>no es un archivo DICOM</translation>
    </message>
    <message>
        <source>has more parts than any report</source>
        <translation>tiene más partes que cualquier informe</translation>
    </message>
    <message>
        <source>is a DICOM file that does not say how it is encoded</source>
        <translation>es un archivo DICOM que no dice cómo está codificado</translation>
    </message>
    <message>
        <source>is a compressed DICOM file; reports are read uncompressed</source>
        <translation>es un archivo DICOM comprimido; los informes se leen sin comprimir</translation>
    </message>
    <message>
        <source>is nested deeper than any report</source>
        <translation>está anidado más profundamente que cualquier informe</translation>
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
        <translation>no es un informe que se lea: ni archivo DICOM, ni paquete FHIR, ni tabla cuya primera línea nombre exam_date y medidas como bpd_mm, separadas por comas</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>%1: %2 more row.</source>
        <extracomment>%2 rows of the file %1 do not fit either.</extracomment>
        <translation>%1: %2 fila más.</translation>
    </message>
    <message>
        <source>%1: %2 more rows.</source>
        <translation>%1: %2 filas más.</translation>
    </message>
</context>
<context>
    <name>ReportImport</name>
    <message>
        <source>chosen at the machine</source>
        <translation>elegido en el ecógrafo</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>media</translation>
    </message>
    <message>
        <source>mean of several</source>
        <translation>media de varios</translation>
    </message>
    <message>
        <source>calculated, not measured</source>
        <translation>calculado, no medido</translation>
    </message>
    <message>
        <source>estimated, not measured</source>
        <translation>estimado, no medido</translation>
    </message>
    <message>
        <source>The report cannot be imported.</source>
        <translation>No se puede importar el informe.</translation>
    </message>
    <message>
        <source>Fetched report %ld</source>
        <translation>Informe obtenido %ld</translation>
    </message>
    <message>
        <source>BPD</source>
        <translation>DBP</translation>
    </message>
    <message>
        <source>HC</source>
        <translation>CC</translation>
    </message>
    <message>
        <source>AC</source>
        <translation>CA</translation>
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
        <translation>FPP</translation>
    </message>
    <message>
        <source>Last period</source>
        <translation>Última regla</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>Gestas</translation>
    </message>
    <message>
        <source>The reference ID of the report has characters that cannot be read.</source>
        <translation>El identificador del informe tiene caracteres ilegibles.</translation>
    </message>
    <message>
        <source>The report does not say of which patient it is.</source>
        <translation>El informe no dice de qué paciente es.</translation>
    </message>
    <message>
        <source>The document does not say of which patient it is.</source>
        <translation>El documento no dice de qué paciente es.</translation>
    </message>
    <message>
        <source>The report is of another patient than the document.</source>
        <translation>El informe es de otra paciente que el documento.</translation>
    </message>
    <message>
        <source>Fetus without an ID</source>
        <translation>Feto sin identificador</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Feto</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>is added</source>
        <translation>se añade</translation>
    </message>
    <message>
        <source>is there already</source>
        <translation>ya está</translation>
    </message>
    <message>
        <source>is not taken: another value stands</source>
        <translation>no se toma: ya hay otro valor</translation>
    </message>
    <message>
        <source>is not taken: beyond what can be typed</source>
        <translation>no se toma: excede lo que se puede escribir</translation>
    </message>
    <message>
        <source>is left out</source>
        <translation>se omite</translation>
    </message>
    <message>
        <source>Fetuses</source>
        <translation>Fetos</translation>
    </message>
    <message>
        <source>is compared only</source>
        <translation>solo se compara</translation>
    </message>
    <message>
        <source>from the last period</source>
        <translation>de la última regla</translation>
    </message>
    <message>
        <source>replaces the established EDD</source>
        <translation>reemplaza la FPP establecida</translation>
    </message>
    <message>
        <source>is not taken: the established EDD stays</source>
        <translation>no se toma: se conserva la FPP establecida</translation>
    </message>
    <message>
        <source>Which fetus is it?</source>
        <translation>¿Qué feto es?</translation>
    </message>
    <message>
        <source>is entered in EDD from CRL</source>
        <translation>se introduce en FPP por LCC</translation>
    </message>
    <message>
        <source>is not stored; can be entered in EDD from CRL</source>
        <translation>no se guarda; se puede introducir en FPP por LCC</translation>
    </message>
    <message>
        <source>is not taken:</source>
        <translation>no se toma:</translation>
    </message>
    <message>
        <source>The report is of %ld fetuses, the document of %ld. Please leave out the others, or cancel and add a fetus.</source>
        <translation>El informe es de %ld fetos; el documento, de %ld. Omita los demás, o cancele y añada un feto.</translation>
    </message>
    <message>
        <source>Please choose for each fetus which one it is.</source>
        <translation>Elija cuál es cada feto.</translation>
    </message>
    <message>
        <source>Two fetuses of the report cannot be the same one.</source>
        <translation>Dos fetos del informe no pueden ser el mismo.</translation>
    </message>
    <message>
        <source>The reports are of several patients. Please import those of each patient alone.</source>
        <translation>Los informes son de varias pacientes. Importe los de cada paciente por separado.</translation>
    </message>
    <message>
        <source>Please say whether the report is of this patient.</source>
        <translation>Indique si el informe es de esta paciente.</translation>
    </message>
    <message>
        <source>The document has a number of fetuses that no report fits.</source>
        <translation>El documento tiene un número de fetos al que ningún informe se ajusta.</translation>
    </message>
    <message>
        <source>There is nothing to be added.</source>
        <translation>No hay nada que añadir.</translation>
    </message>
    <message>
        <source>These reports cannot be imported.</source>
        <translation>No se pueden importar estos informes.</translation>
    </message>
</context>
<context>
    <name>ReportServer</name>
    <message>
        <source>the host is no name and no IPv4 address</source>
        <translation>el host no es un nombre ni una dirección IPv4</translation>
    </message>
    <message>
        <source>the port is no number from 1 to 65535</source>
        <translation>el puerto no es un número del 1 al 65535</translation>
    </message>
    <message>
        <source>the called title is not of 1 to 16 characters of ASCII without a backslash</source>
        <translation>el título AE llamado no tiene de 1 a 16 caracteres ASCII sin barra invertida</translation>
    </message>
    <message>
        <source>the calling title is not of 1 to 16 characters of ASCII without a backslash</source>
        <translation>el título AE llamante no tiene de 1 a 16 caracteres ASCII sin barra invertida</translation>
    </message>
    <message>
        <source>the timeout is no number of seconds from 1 to 3600</source>
        <translation>el tiempo límite no es un número de segundos de 1 a 3600</translation>
    </message>
    <message>
        <source>an encrypted connection needs the file of the certificate authority</source>
        <translation>una conexión cifrada necesita el archivo de la autoridad de certificación</translation>
    </message>
    <message>
        <source>a certificate needs its key, and a key its certificate</source>
        <translation>un certificado necesita su clave, y una clave su certificado</translation>
    </message>
    <message>
        <source>the reference ID holds *, ?, a backslash or a control character, which a server does not search for</source>
        <translation>el identificador contiene *, ?, una barra invertida o un carácter de control, que un servidor no busca</translation>
    </message>
    <message>
        <source>the reference ID holds characters that do not show</source>
        <translation>el identificador contiene caracteres que no se ven</translation>
    </message>
    <message>
        <source>the reference ID is longer than 64 bytes</source>
        <translation>el identificador ocupa más de 64 bytes</translation>
    </message>
    <message>
        <source>the reference ID begins or ends with a blank, which a server does not keep</source>
        <translation>el identificador empieza o termina con un espacio, que un servidor no conserva</translation>
    </message>
    <message>
        <source>the study is no UID, which has digits and dots</source>
        <translation>el estudio no es un UID, hecho de cifras y puntos</translation>
    </message>
    <message>
        <source>a day is not in the calendar</source>
        <translation>un día no está en el calendario</translation>
    </message>
    <message>
        <source>the last day is before the first</source>
        <translation>el último día es anterior al primero</translation>
    </message>
    <message>
        <source>neither a patient nor a study is named</source>
        <translation>no se indica ni paciente ni estudio</translation>
    </message>
    <message>
        <source>refuses the connection: its title is not &quot;%1&quot;</source>
        <translation>rechaza la conexión: su título AE no es «%1»</translation>
    </message>
    <message>
        <source>refuses the connection: the title &quot;%1&quot; of this program must be entered there first</source>
        <translation>rechaza la conexión: el título AE «%1» de este programa debe registrarse allí primero</translation>
    </message>
    <message>
        <source>refuses the connection: it is busy; try again later</source>
        <translation>rechaza la conexión: está ocupado; vuelva a intentarlo más tarde</translation>
    </message>
    <message>
        <source>refuses the connection, and does not say why</source>
        <translation>rechaza la conexión y no dice por qué</translation>
    </message>
    <message>
        <source>DCMTK does not find its data dictionary (DCMDICTPATH), without which it does not use the network</source>
        <translation>DCMTK no encuentra su diccionario de datos (DCMDICTPATH), sin el cual no usa la red</translation>
    </message>
    <message>
        <source>shows a certificate that is not accepted: %1</source>
        <translation>presenta un certificado que no se acepta: %1</translation>
    </message>
    <message>
        <source>does not make an encrypted connection: %1</source>
        <translation>no establece una conexión cifrada: %1</translation>
    </message>
    <message>
        <source>answers what is not DICOM</source>
        <translation>responde algo que no es DICOM</translation>
    </message>
    <message>
        <source>cannot be reached within %1 s</source>
        <translation>no se puede alcanzar en %1 s</translation>
    </message>
    <message>
        <source>cannot be reached: %1</source>
        <translation>no se puede alcanzar: %1</translation>
    </message>
    <message>
        <source>gave no complete answer within %1 s</source>
        <translation>no dio una respuesta completa en %1 s</translation>
    </message>
    <message>
        <source>broke off the connection without saying why</source>
        <translation>interrumpió la conexión sin decir por qué</translation>
    </message>
    <message>
        <source>ended the connection before its answer was complete</source>
        <translation>terminó la conexión antes de completar su respuesta</translation>
    </message>
    <message>
        <source>ended the connection without an answer; the connection may have to be encrypted, or must not be</source>
        <translation>terminó la conexión sin responder; quizá la conexión deba ir cifrada, o no deba</translation>
    </message>
    <message>
        <source>gave an answer that is not understood: %1</source>
        <translation>dio una respuesta que no se entiende: %1</translation>
    </message>
    <message>
        <source>gave an answer in a context that was not agreed on</source>
        <translation>respondió en un contexto que no se había acordado</translation>
    </message>
    <message>
        <source>does not hand out reports (C-GET of the study root)</source>
        <translation>no entrega informes (C-GET de tipo Study Root)</translation>
    </message>
    <message>
        <source>gave an answer that was not asked for</source>
        <translation>dio una respuesta que no se le había pedido</translation>
    </message>
    <message>
        <source>was not given: %1</source>
        <translation>no se entregó: %1</translation>
    </message>
    <message>
        <source>cannot be asked: %1</source>
        <translation>no se le puede preguntar: %1</translation>
    </message>
    <message>
        <source>was not taken: it is longer than any report</source>
        <translation>no se tomó: es más largo que cualquier informe</translation>
    </message>
    <message>
        <source>was not taken: it is another kind of report</source>
        <translation>no se tomó: es otro tipo de informe</translation>
    </message>
    <message>
        <source>was not taken: it %1</source>
        <extracomment>%1 is what is wrong with it: &quot;is cut off: it ends before its end&quot;.</extracomment>
        <translation>no se tomó: %1</translation>
    </message>
    <message>
        <source>was not taken: the server gave another report than it was asked for</source>
        <translation>no se tomó: el servidor dio un informe distinto del solicitado</translation>
    </message>
    <message>
        <source>was not taken: it is of &quot;%1&quot;, although the server lists it under &quot;%2&quot;</source>
        <translation>no se tomó: es de «%1», aunque el servidor lo incluye en «%2»</translation>
    </message>
    <message>
        <source>the other reports were not fetched: these are as many bytes as are taken at once</source>
        <translation>los demás informes no se recuperaron: estos son tantos bytes como se toman de una vez</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>%1 is the UID of a report, %2 what became of it: &quot;was not taken: it is another kind of report&quot;.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>is longer than any report</source>
        <translation>es más largo que cualquier informe</translation>
    </message>
    <message>
        <source>is no report that is sent: its kind is neither Comprehensive SR nor Enhanced SR</source>
        <translation>no es un informe que se envíe: su tipo no es Comprehensive SR ni Enhanced SR</translation>
    </message>
    <message>
        <source>has no proper SOP Instance UID, and is not sent</source>
        <translation>no tiene un SOP Instance UID válido y no se envía</translation>
    </message>
    <message>
        <source>is not taken: the server takes no reports (%1)</source>
        <translation>no se acepta: el servidor no acepta informes (%1)</translation>
    </message>
    <message>
        <source>is kept by the server, but perhaps not as it was: %1</source>
        <translation>el servidor lo conserva, pero quizá no tal como era: %1</translation>
    </message>
    <message>
        <source>is not taken by the server: %1</source>
        <translation>el servidor no lo acepta: %1</translation>
    </message>
    <message>
        <source>does not answer to C-ECHO</source>
        <translation>no responde a C-ECHO</translation>
    </message>
    <message>
        <source>answers with more than there is memory for</source>
        <translation>responde con más de lo que cabe en la memoria</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>there is no IPv4 address of this host: %1</source>
        <translation>no hay ninguna dirección IPv4 de este host: %1</translation>
    </message>
    <message>
        <source>the address of this host was not found in time</source>
        <translation>la dirección de este host no se encontró a tiempo</translation>
    </message>
    <message>
        <source>does not search for reports (C-FIND of the study root)</source>
        <translation>no busca informes (C-FIND de tipo Study Root)</translation>
    </message>
    <message>
        <source>at most %1 reports are taken, and there are others; name a patient, a study or fewer days</source>
        <translation>se toman como máximo %1 informes, y hay otros; indique una paciente, un estudio o menos días</translation>
    </message>
    <message>
        <source>%1 answer was left out: it is of another patient, study or day, or names no report by proper UIDs</source>
        <translation>se omitió %1 respuesta: es de otra paciente, estudio o día, o no nombra ningún informe con UID válidos</translation>
    </message>
    <message>
        <source>%1 answers were left out: they are of another patient, study or day, or name no report by proper UIDs</source>
        <translation>se omitieron %1 respuestas: son de otra paciente, estudio o día, o no nombran ningún informe con UID válidos</translation>
    </message>
    <message>
        <source>does not search: %1</source>
        <translation>no busca: %1</translation>
    </message>
    <message>
        <source>encrypted connections are not there: OpenSSL does not begin</source>
        <translation>no hay conexiones cifradas: OpenSSL no se inicia</translation>
    </message>
    <message>
        <source>encrypted connections are not there: OpenSSL has none of their ciphers</source>
        <translation>no hay conexiones cifradas: OpenSSL no tiene ninguno de sus cifrados</translation>
    </message>
    <message>
        <source>%1 holds no certificate in PEM that can be read</source>
        <translation>%1 no contiene ningún certificado PEM que se pueda leer</translation>
    </message>
    <message>
        <source>%1 holds no key in PEM that can be read without a password</source>
        <translation>%1 no contiene ninguna clave PEM que se pueda leer sin contraseña</translation>
    </message>
    <message>
        <source>%1 is not the key of %2</source>
        <translation>%1 no es la clave de %2</translation>
    </message>
    <message>
        <source>the name of the host cannot be looked for in a certificate</source>
        <translation>el nombre del host no se puede buscar en un certificado</translation>
    </message>
</context>
<context>
    <name>ServerMenu</name>
    <message>
        <source>&amp;Fetch Reports...</source>
        <translation>&amp;Obtener informes...</translation>
    </message>
    <message>
        <source>&amp;Send This Examination...</source>
        <translation>&amp;Enviar esta exploración...</translation>
    </message>
    <message>
        <source>There is no server.</source>
        <translation>No hay ningún servidor.</translation>
    </message>
    <message>
        <source>The reports cannot be fetched.</source>
        <translation>No se pueden obtener los informes.</translation>
    </message>
    <message>
        <source>Fetch Reports</source>
        <translation>Obtener informes</translation>
    </message>
    <message>
        <source>Reference ID of the patient on %1:</source>
        <translation>Identificador de la paciente en %1:</translation>
    </message>
    <message>
        <source>Asking %1...</source>
        <translation>Consultando a %1...</translation>
    </message>
    <message>
        <source>The server has no report of the patient %1.</source>
        <translation>El servidor no tiene ningún informe de la paciente %1.</translation>
    </message>
    <message>
        <source>Fetching from %1...</source>
        <translation>Obteniendo de %1...</translation>
    </message>
    <message>
        <source>Not all reports were fetched.</source>
        <translation>No se obtuvieron todos los informes.</translation>
    </message>
    <message>
        <source>Examination</source>
        <translation>Exploración</translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>The examination was not sent.</source>
        <translation>La exploración no se envió.</translation>
    </message>
    <message>
        <source>without a date</source>
        <translation>sin fecha</translation>
    </message>
    <message>
        <source>Patient %1, examination %2, to %3.</source>
        <translation>Paciente %1, exploración (%2), a %3.</translation>
    </message>
    <message>
        <source>The connection is not encrypted.</source>
        <translation>La conexión no está cifrada.</translation>
    </message>
    <message>
        <source>Send this examination to the server?</source>
        <translation>¿Enviar esta exploración al servidor?</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>Enviando a %1...</translation>
    </message>
    <message>
        <source>Sent to %1</source>
        <translation>Enviado a %1</translation>
    </message>
    <message>
        <source>The answer was not waited for.</source>
        <translation>No se esperó la respuesta.</translation>
    </message>
    <message>
        <source>Server S&amp;ettings...</source>
        <translation>&amp;Ajustes del servidor...</translation>
    </message>
    <message>
        <source>Please name one in File &gt; Report Folder and Server &gt; Server Settings.</source>
        <translation>Indique uno en Archivo &gt; Carpeta de informes y servidor &gt; Ajustes del servidor.</translation>
    </message>
</context>
<context>
    <name>ServerSettings</name>
    <message>
        <source>Choose...</source>
        <translation>Elegir...</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>&amp;Encrypted connection (TLS)</source>
        <translation>Conexión &amp;cifrada (TLS)</translation>
    </message>
    <message>
        <source>Server Settings</source>
        <translation>Ajustes del servidor</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>&amp;Host:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Puerto:</translation>
    </message>
    <message>
        <source>AE &amp;title of the server:</source>
        <translation>&amp;Título AE del servidor:</translation>
    </message>
    <message>
        <source>AE title of this prog&amp;ram:</source>
        <translation>Título AE de este prog&amp;rama:</translation>
    </message>
    <message>
        <source>&amp;Authority&apos;s certificate:</source>
        <translation>Certificado de la &amp;autoridad:</translation>
    </message>
    <message>
        <source>&amp;Own certificate:</source>
        <translation>Certificado pr&amp;opio:</translation>
    </message>
    <message>
        <source>Own &amp;key:</source>
        <translation>C&amp;lave propia:</translation>
    </message>
    <message>
        <source>Te&amp;st</source>
        <translation>Pro&amp;bar</translation>
    </message>
    <message>
        <source>Without a host, Nascor contacts no server.</source>
        <translation>Sin un host, Nascor no se comunica con ningún servidor.</translation>
    </message>
    <message>
        <source>Reports will cross the network in clear.</source>
        <translation>Los informes viajarán por la red sin cifrar.</translation>
    </message>
    <message>
        <source>The server answers.</source>
        <translation>El servidor responde.</translation>
    </message>
</context>
<context>
    <name>ServerTask</name>
    <message>
        <source>Waiting for the end of the last question...</source>
        <translation>Esperando a que acabe la última consulta...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Summary</name>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
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
        <translation>Feto %ld de %ld</translation>
    </message>
    <message>
        <source>today</source>
        <translation>hoy</translation>
    </message>
    <message>
        <source>in %ld days</source>
        <translation>dentro de %ld días</translation>
    </message>
    <message>
        <source>%ld days ago</source>
        <translation>hace %ld días</translation>
    </message>
    <message>
        <source>%ld days after the EDD</source>
        <translation>%ld días después de la FPP</translation>
    </message>
    <message>
        <source>%ld days before the EDD</source>
        <translation>%ld días antes de la FPP</translation>
    </message>
    <message>
        <source>Reference ID</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Fetus</source>
        <translation>Feto</translation>
    </message>
    <message>
        <source>Gravidity</source>
        <translation>Gestas</translation>
    </message>
    <message>
        <source>EDD</source>
        <translation>FPP</translation>
    </message>
    <message>
        <source>Last examination</source>
        <translation>Última exploración</translation>
    </message>
    <message>
        <source>Planned delivery</source>
        <translation>Parto programado</translation>
    </message>
    <message>
        <source>Growth standard</source>
        <translation>Estándar de crecimiento</translation>
    </message>
    <message>
        <source>Weight formula</source>
        <translation>Fórmula del peso</translation>
    </message>
    <message>
        <source>Discordance of weights</source>
        <translation>Discordancia de pesos</translation>
    </message>
    <message>
        <source>Examiner</source>
        <translation>Realizado por</translation>
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
        <translation>Exploración</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Edad</translation>
    </message>
    <message>
        <source>The growth standard is not known.</source>
        <translation>No se conoce el estándar de crecimiento.</translation>
    </message>
    <message>
        <source>A weight is given above 100 g.</source>
        <translation>El peso solo se indica por encima de 100 g.</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Mediciones</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>centile</source>
        <translation>percentil</translation>
    </message>
    <message>
        <source>Weights</source>
        <translation>Pesos</translation>
    </message>
    <message>
        <source>Centiles by each reference for weights; difference from the formula in force.</source>
        <translation>Percentiles según cada referencia de pesos; diferencia respecto a la fórmula en uso.</translation>
    </message>
    <message>
        <source>Growth</source>
        <translation>Crecimiento</translation>
    </message>
    <message>
        <source>expected</source>
        <translation>esperado</translation>
    </message>
    <message>
        <source>The note is longer; the document has all of it.</source>
        <translation>La nota es más larga; el documento la tiene entera.</translation>
    </message>
    <message>
        <source>en</source>
        <translation>es</translation>
    </message>
    <message>
        <source>Fetal biometry summary</source>
        <translation>Resumen de biometría fetal</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Evolución</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>Page %ld of %ld</source>
        <translation>Página %ld de %ld</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>mañana</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>ayer</translation>
    </message>
    <message>
        <source>one day after the EDD</source>
        <translation>un día después de la FPP</translation>
    </message>
    <message>
        <source>one day before the EDD</source>
        <translation>un día antes de la FPP</translation>
    </message>
    <message>
        <source>Since the last examination before that has the measure: change a week, what the growth standard expects, and change of z.</source>
        <translation>Desde la última exploración anterior que tiene la medida: cambio por semana, lo que espera el estándar de crecimiento y cambio de z.</translation>
    </message>
    <message>
        <source>Lengths: z and centile by %1. Weight: by the formula %2, z and centile by %3.</source>
        <translation>Medidas: z y percentil según %1. Peso: según la fórmula %2, z y percentil según %3.</translation>
    </message>
    <message>
        <source>%1/week</source>
        <translation>%1/semana</translation>
    </message>
    <message>
        <source>Lines: centiles 3, 10, 50, 90 and 97; lengths by %1, weight by %2. Weeks of menstrual age below.</source>
        <translation>Líneas: percentiles 3, 10, 50, 90 y 97; medidas según %1, peso según %2. Abajo, semanas de edad gestacional.</translation>
    </message>
</context>
<context>
    <name>SummaryMenu</name>
    <message>
        <source>Export Summary...</source>
        <translation>Exportar resumen...</translation>
    </message>
    <message>
        <source>Print Summary...</source>
        <translation>Imprimir resumen...</translation>
    </message>
    <message>
        <source>Summary Details...</source>
        <translation>Datos del resumen...</translation>
    </message>
    <message>
        <source>Export Summary</source>
        <translation>Exportar resumen</translation>
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
        <translation>El resumen no se exportó.</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportado a %1</translation>
    </message>
    <message>
        <source>The summary was not printed.</source>
        <translation>El resumen no se imprimió.</translation>
    </message>
    <message>
        <source>There is no printer. Please choose a file to print into in the print panel.</source>
        <translation>No hay ninguna impresora. Elija en el diálogo de impresión un archivo en el que imprimir.</translation>
    </message>
    <message>
        <source>The printer %1 does not answer. Please look after it or choose another.</source>
        <translation>La impresora %1 no responde. Revísela o elija otra.</translation>
    </message>
    <message>
        <source>Summary Details</source>
        <translation>Datos del resumen</translation>
    </message>
    <message>
        <source>&amp;Letterhead:</source>
        <translation>&amp;Membrete:</translation>
    </message>
    <message>
        <source>&amp;Examiner:</source>
        <translation>&amp;Realizado por:</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>The user guide cannot be shown.</source>
        <translation>No se puede mostrar la guía del usuario.</translation>
    </message>
    <message>
        <source>%1 is not installed.</source>
        <translation>%1 no está instalado.</translation>
    </message>
    <message>
        <source>There is no program that shows %1.</source>
        <translation>No hay ningún programa que muestre %1.</translation>
    </message>
    <message>
        <source>There is no program that shows PDF files. Please install one, or open the page for browsers that lies beside %1.</source>
        <translation>No hay ningún programa que muestre archivos PDF. Instale uno, o abra la página para navegadores que está junto a %1.</translation>
    </message>
</context>
<context>
    <name>WaitingReports</name>
    <message>
        <source>No reference ID</source>
        <translation>Sin identificador</translation>
    </message>
    <message>
        <source>1 report has come</source>
        <translation>Ha llegado 1 informe</translation>
    </message>
    <message>
        <source>%1 reports have come</source>
        <translation>Han llegado %1 informes</translation>
    </message>
    <message>
        <source>Set All &amp;Aside</source>
        <translation>&amp;Apartar todos</translation>
    </message>
    <message>
        <source>Report Folder</source>
        <translation>Carpeta de informes</translation>
    </message>
    <message>
        <source>&amp;Offer reports that ultrasound machines put here:</source>
        <translation>&amp;Ofrecer los informes que los ecógrafos dejen aquí:</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Elegir...</translation>
    </message>
    <message>
        <source>No folder was chosen</source>
        <translation>No se ha elegido ninguna carpeta</translation>
    </message>
</context>
<context>
    <name>Writing</name>
    <message>
        <source>January</source>
        <extracomment>A month as it stands in a day, &quot;4 January 2027&quot;.</extracomment>
        <translation>enero</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febrero</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mayo</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junio</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julio</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septiembre</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octubre</translation>
    </message>
    <message>
        <source>November</source>
        <translation>noviembre</translation>
    </message>
    <message>
        <source>December</source>
        <translation>diciembre</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1 de %2 de %3</translation>
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
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Obstetric ultrasound biometry.
%1</source>
        <translation>Biometría ecográfica obstétrica.
%1</translation>
    </message>
    <message>
        <source>Documents to open.</source>
        <translation>Documentos que se abrirán.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Muestra esta ayuda.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>Shows no window until the session bus asks for one.</source>
        <translation>No muestra ninguna ventana hasta que el bus de sesión pida una.</translation>
    </message>
    <message>
        <source>nascor: no window can be shown: %1</source>
        <translation>nascor: no se puede mostrar ninguna ventana: %1</translation>
    </message>
    <message>
        <source>--%1 knows no &quot;%2&quot;.</source>
        <translation>--%1 no conoce «%2».</translation>
    </message>
    <message>
        <source>Which documents? --write-pages FOLDER FILE...</source>
        <translation>¿Qué documentos? --write-pages CARPETA ARCHIVO...</translation>
    </message>
    <message>
        <source>With --write-pages: pdf, png or svg; else PNG and PDF.</source>
        <translation>Con --write-pages: pdf, png o svg; si no, PNG y PDF.</translation>
    </message>
    <message>
        <source>With --write-pages: all, or first, last, numbers from 0 and names, with commas between.</source>
        <translation>Con --write-pages: all, o first, last, números desde 0 y nombres, separados por comas.</translation>
    </message>
    <message>
        <source>With --write-pages: all, or the number of one fetus.</source>
        <translation>Con --write-pages: all, o el número de un feto.</translation>
    </message>
    <message>
        <source>With --write-pages: nothing stands under the pages.</source>
        <translation>Con --write-pages: nada bajo las páginas.</translation>
    </message>
    <message>
        <source>With --write-pages: the files are not listed.</source>
        <translation>Con --write-pages: no se enumeran los archivos.</translation>
    </message>
    <message>
        <source>Writes the pages of the documents into FOLDER, and shows no window. Files of the same names are replaced. As - the one file goes to standard output.</source>
        <translation>Escribe las páginas de los documentos en CARPETA y no muestra ninguna ventana. Los archivos del mismo nombre se reemplazan. Si CARPETA es -, el único archivo va a la salida estándar.</translation>
    </message>
    <message>
        <source>With --write-pages: files that are there are left as they are.</source>
        <translation>Con --write-pages: los archivos que ya existen se dejan como están.</translation>
    </message>
    <message>
        <source>With --write-pages: draws centile lines of that reference over the charts.</source>
        <translation>Con --write-pages: dibuja sobre las gráficas los percentiles de esa referencia.</translation>
    </message>
    <message>
        <source>With --write-pages: lines join the marks of each fetus.</source>
        <translation>Con --write-pages: une con líneas las marcas de cada feto.</translation>
    </message>
    <message>
        <source>Offers the reports that machines put into this folder.</source>
        <translation>Ofrece los informes que los ecógrafos dejen en esta carpeta.</translation>
    </message>
    <message>
        <source>nascor: --watch: %1 is no folder</source>
        <translation>nascor: --watch: %1 no es una carpeta</translation>
    </message>
    <message>
        <source>nascor: --watch: Nascor is running already. Please choose the folder there, by File &gt; Report Folder and Server.</source>
        <translation>nascor: --watch: Nascor ya está en marcha. Elija la carpeta allí, en Archivo &gt; Carpeta de informes y servidor.</translation>
    </message>
</context>
</TS>
