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
        <source> has no centiles of this measure</source>
        <translation> no tiene percentiles de esta medida</translation>
    </message>
    <message>
        <source>Centiles: </source>
        <translation>Percentiles: </translation>
    </message>
    <message>
        <source>, which fits weights by another formula alone: </source>
        <translation>, que solo vale para pesos de otra fórmula: </translation>
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
        <source> has %ld to %ld weeks.</source>
        <translation> abarca de %ld a %ld semanas.</translation>
    </message>
    <message>
        <source> fits weights by another formula alone: </source>
        <translation> solo vale para pesos de otra fórmula: </translation>
    </message>
    <message>
        <source> has no place for this value.</source>
        <translation> no permite situar este valor.</translation>
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
        <source>Less (%)</source>
        <translation>Menos (%)</translation>
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
        <source>Opened to be read, it can be saved under another name alone. A copy is a new document.</source>
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
        <translation>Enlazado con Qt %1 (GNU LGPL 3), la biblioteca D-Bus (AFL 2.1 o GNU GPL 2) y la biblioteca GNU de C++ (GNU GPL 3 con la GCC Runtime Library Exception).</translation>
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
        <source>All %1 worked examples come out as they are known.</source>
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
        <source>The same day as the EDD that stands.</source>
        <translation>El mismo día que la FPP actual.</translation>
    </message>
    <message>
        <source>One day later than the EDD that stands.</source>
        <translation>Un día después de la FPP actual.</translation>
    </message>
    <message>
        <source>One day earlier than the EDD that stands.</source>
        <translation>Un día antes de la FPP actual.</translation>
    </message>
    <message>
        <source>%ld days later than the EDD that stands.</source>
        <translation>%ld días después de la FPP actual.</translation>
    </message>
    <message>
        <source>%ld days earlier than the EDD that stands.</source>
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
        <source>the folder could not be made</source>
        <translation>no se pudo crear la carpeta</translation>
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
        <source>Unsaved changes cannot be kept against a crash. Please save:</source>
        <translation>Los cambios sin guardar no se pueden proteger contra un fallo. Guárdelos:</translation>
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
        <source>Examination of</source>
        <translation>Exploración del</translation>
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
        <source>&amp;Title of the server:</source>
        <translation>&amp;Título AE del servidor:</translation>
    </message>
    <message>
        <source>Title of this prog&amp;ram:</source>
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
        <source>Without a host Nascor speaks to no server.</source>
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
        <source>Lengths: z and centile by </source>
        <translation>Medidas: z y percentil según </translation>
    </message>
    <message>
        <source>Weight: by the formula </source>
        <translation>Peso: según la fórmula </translation>
    </message>
    <message>
        <source>, z and centile by </source>
        <translation>, z y percentil según </translation>
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
        <source>/week</source>
        <translation>/semana</translation>
    </message>
    <message>
        <source>expected</source>
        <translation>esperado</translation>
    </message>
    <message>
        <source>Lines: centiles 3, 10, 50, 90 and 97; lengths by </source>
        <translation>Líneas: percentiles 3, 10, 50, 90 y 97; medidas según </translation>
    </message>
    <message>
        <source>, weight by </source>
        <translation>, peso según </translation>
    </message>
    <message>
        <source>Weeks of menstrual age below.</source>
        <translation>Abajo, semanas de edad gestacional.</translation>
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
