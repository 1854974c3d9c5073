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
        <translation>Standard Nascor&#xa0;: </translation>
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
        <translation>Estim. poids fœtal (g)</translation>
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
        <source> has no centiles of this measure</source>
        <translation> n’a pas de percentiles pour ce paramètre</translation>
    </message>
    <message>
        <source>Centiles: </source>
        <translation>Percentiles&#xa0;: </translation>
    </message>
    <message>
        <source>, which fits weights by another formula alone: </source>
        <translation>, ne valant que pour une autre formule&#xa0;: </translation>
    </message>
</context>
<context>
    <name>AdjustDelivery</name>
    <message>
        <source>Adjust Delivery</source>
        <translation>Programmer l’accouchement</translation>
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
        <translation>Accouchement programmé le</translation>
    </message>
    <message>
        <source>The day on which delivery is planned</source>
        <translation>Le jour pour lequel l’accouchement est programmé</translation>
    </message>
    <message>
        <source>Age at that date</source>
        <translation>Âge à cette date</translation>
    </message>
    <message>
        <source>Menstrual age at the planned delivery, in weeks and days</source>
        <translation>Âge gestationnel à l’accouchement programmé, en semaines d’aménorrhée et jours</translation>
    </message>
    <message>
        <source>%1 to %2 days</source>
        <translation>de %1 à %2 jours</translation>
    </message>
    <message>
        <source>Days from the EDD to the planned delivery, %1</source>
        <translation>Jours entre la DPA et l’accouchement programmé, %1</translation>
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
        <source> has %ld to %ld weeks.</source>
        <translation> couvre les semaines %ld à %ld.</translation>
    </message>
    <message>
        <source> fits weights by another formula alone: </source>
        <translation> ne vaut que pour les poids d’une autre formule&#xa0;: </translation>
    </message>
    <message>
        <source> has no place for this value.</source>
        <translation> ne permet pas de situer cette valeur.</translation>
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
        <source>Less (%)</source>
        <translation>Moins (%)</translation>
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
        <translation>Paramètre</translation>
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
        <source>Opened to be read, it can be saved under another name alone. A copy is a new document.</source>
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
        <translation>Pro&amp;grammer l’accouchement...</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>&amp;Tout afficher</translation>
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
        <source>All %1 worked examples come out as they are known.</source>
        <translation>Les %1 exemples de calcul donnent tous le résultat connu.</translation>
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
        <translation>Tout afficher</translation>
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
        <translation>La DPA est vide maintenant. Ceci n’est pas une date&#xa0;: </translation>
    </message>
    <message>
        <source>The examination has no date now. This is no date: </source>
        <translation>L’examen n’a plus de date maintenant. Ceci n’est pas une date&#xa0;: </translation>
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
        <translation>Un examen dépasserait 45&#xa0;SA.</translation>
    </message>
    <message>
        <source>The same day as the EDD that stands.</source>
        <translation>Le même jour que la DPA actuelle.</translation>
    </message>
    <message>
        <source>One day later than the EDD that stands.</source>
        <translation>Un jour plus tard que la DPA actuelle.</translation>
    </message>
    <message>
        <source>One day earlier than the EDD that stands.</source>
        <translation>Un jour plus tôt que la DPA actuelle.</translation>
    </message>
    <message>
        <source>%ld days later than the EDD that stands.</source>
        <translation>%ld jours plus tard que la DPA actuelle.</translation>
    </message>
    <message>
        <source>%ld days earlier than the EDD that stands.</source>
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
        <translation>La formule date ces longueurs, en mm&#xa0;:</translation>
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
        <translation>le changement d’accouchement programmé</translation>
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
        <source>the folder could not be made</source>
        <translation>le dossier n’a pas pu être créé</translation>
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
        <translation>Accouchement programmé</translation>
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
        <source>Unsaved changes cannot be kept against a crash. Please save:</source>
        <translation>Les modifications non enregistrées ne peuvent pas être protégées contre un arrêt brutal. Veuillez enregistrer&#xa0;:</translation>
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
        <translation>Gardé en dernier&#xa0;:</translation>
    </message>
    <message>
        <source>An examination that was removed</source>
        <translation>Un examen qui a été retiré</translation>
    </message>
    <message>
        <source>Examination of</source>
        <translation>Examen du</translation>
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
        <translation>Mesures en mm, poids en g&#xa0;; w est l’âge en semaines, d en jours, g en dizaines de semaines. Ce qui est juxtaposé est multiplié.</translation>
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
        <source>&amp;Title of the server:</source>
        <translation>&amp;Titre AE du serveur&#xa0;:</translation>
    </message>
    <message>
        <source>Title of this prog&amp;ram:</source>
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
        <source>Without a host Nascor speaks to no server.</source>
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
        <translation>Accouchement programmé</translation>
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
        <source>Lengths: z and centile by </source>
        <translation>Mesures&#xa0;: z et percentile selon </translation>
    </message>
    <message>
        <source>Weight: by the formula </source>
        <translation>Poids&#xa0;: selon la formule </translation>
    </message>
    <message>
        <source>, z and centile by </source>
        <translation>, z et percentile selon </translation>
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
        <source>/week</source>
        <translation>/semaine</translation>
    </message>
    <message>
        <source>expected</source>
        <translation>attendu</translation>
    </message>
    <message>
        <source>Lines: centiles 3, 10, 50, 90 and 97; lengths by </source>
        <translation>Lignes&#xa0;: percentiles 3, 10, 50, 90 et 97&#xa0;; mesures selon </translation>
    </message>
    <message>
        <source>, weight by </source>
        <translation>, poids selon </translation>
    </message>
    <message>
        <source>Weeks of menstrual age below.</source>
        <translation>Semaines d’aménorrhée en abscisse.</translation>
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
