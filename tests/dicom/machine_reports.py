# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""Writes ultrasound machines' reports as DICOM files, by pydicom: made-up patients, in the ways of several machines.

    machine_reports.py FOLDER     writes them into the folder
    machine_reports.py --read FILE...   reads reports back, and prints what they hold as JSON, one object a line
"""

import json
import sys
from pathlib import Path

from pydicom import dcmread
from pydicom.dataset import Dataset, FileDataset, FileMetaDataset
from pydicom.sequence import Sequence
from pydicom.uid import (ExplicitVRBigEndian, ExplicitVRLittleEndian, ImplicitVRLittleEndian, generate_uid)

COMPREHENSIVE = "1.2.840.10008.5.1.4.1.1.88.33"
ENHANCED = "1.2.840.10008.5.1.4.1.1.88.22"
BASIC = "1.2.840.10008.5.1.4.1.1.88.11"

MEASURES = {
    "bpd": ("11820-8", "LN", "Biparietal Diameter"),
    "hc": ("11984-2", "LN", "Head Circumference"),
    "ac": ("11979-2", "LN", "Abdominal Circumference"),
    "fl": ("11963-6", "LN", "Femur Length"),
    "crl": ("11957-8", "LN", "Crown Rump Length"),
}
MEAN = ("R-00317", "SRT", "Mean")
MEAN_SCT = ("373098007", "SCT", "Mean")
CALCULATED = ("R-41D2D", "SRT", "Calculated")
CALCULATED_SCT = ("258090004", "SCT", "Calculated")
ESTIMATED = ("414135002", "SCT", "Estimated")
MINIMUM = ("R-404FB", "SRT", "Minimum")
MAXIMUM = ("G-A437", "SRT", "Maximum")
DEVIATION = ("R-10047", "SRT", "Standard Deviation")
MEAN_CHOSEN = ("121412", "DCM", "Mean value chosen")
MOST_RECENT = ("121411", "DCM", "Most recent value chosen")


def code(value, scheme, meaning):
    item = Dataset()
    item.CodeValue = value
    item.CodingSchemeDesignator = scheme
    item.CodeMeaning = meaning
    return item


def content(kind, name, relation="CONTAINS"):
    item = Dataset()
    if relation:
        item.RelationshipType = relation
    item.ValueType = kind
    item.ConceptNameCodeSequence = Sequence([code(*name)])
    return item


def add(holder, *items):
    if "ContentSequence" not in holder:
        holder.ContentSequence = Sequence([])
    holder.ContentSequence.extend(items)
    return holder


def container(name, *items, relation="CONTAINS"):
    item = content("CONTAINER", name, relation)
    item.ContinuityOfContent = "SEPARATE"
    return add(item, *items) if items else item


def number(name, value, unit="mm", scheme="UCUM", derivation=None, status=None, items=()):
    item = content("NUM", name)
    if value is None:
        item.MeasuredValueSequence = Sequence([])
    else:
        measured = Dataset()
        measured.MeasurementUnitsCodeSequence = Sequence([code(unit, scheme, unit)])
        # As text, so that it is written as it stands here.
        measured.add_new(0x0040A30A, "DS", "")
        measured[0x0040A30A]._value = value
        item.MeasuredValueSequence = Sequence([measured])
    children = list(items)
    if derivation:
        child = content("CODE", ("121401", "DCM", "Derivation"), "HAS CONCEPT MOD")
        child.ConceptCodeSequence = Sequence([code(*derivation)])
        children.append(child)
    if status:
        child = content("CODE", ("121404", "DCM", "Selection Status"), "HAS PROPERTIES")
        child.ConceptCodeSequence = Sequence([code(*status)])
        children.append(child)
    return add(item, *children) if children else item


def text(name, value, relation="CONTAINS"):
    item = content("TEXT", name, relation)
    item.TextValue = value
    return item


def date(name, value):
    item = content("DATE", name)
    item.Date = value
    return item


def equation(value, scheme, meaning):
    item = content("CODE", ("121420", "DCM", "Equation"), "INFERRED FROM")
    item.ConceptCodeSequence = Sequence([code(value, scheme, meaning)])
    return item


def fetus_id(value):
    return text(("11951-1", "LN", "Fetus ID"), value, "HAS OBS CONTEXT")


def subject_id(value):
    return text(("121030", "DCM", "Subject ID"), value, "HAS OBS CONTEXT")


def fetus_number(value):
    item = number(("121037", "DCM", "Fetus Number"), value, "1")
    item.RelationshipType = "HAS OBS CONTEXT"
    return item


def group(*items):
    return container(("125005", "DCM", "Biometry Group"), *items)


def measure(key, value, unit="mm", **more):
    return group(number(MEASURES[key], value, unit, **more))


def age(days):
    """What a machine works out of a length, beside it in its group."""
    item = number(("18185-9", "LN", "Gestational Age"), days, "d")
    return add(item, equation("33198-3", "LN", "BPD, Hadlock 1984"))


def biometry(*items):
    return container(("125002", "DCM", "Fetal Biometry"), *items)


def long_bones(*items):
    return container(("125003", "DCM", "Fetal Long Bones"), *items)


def early(*items):
    return container(("125009", "DCM", "Early Gestation"), *items)


def summary(*items):
    return container(("121111", "DCM", "Summary"), *items)


def fetus_summary(*items):
    return container(("125008", "DCM", "Fetus Summary"), *items)


def characteristics(*items):
    return container(("121118", "DCM", "Patient Characteristics"), *items)


def efw(value, unit="g", equation_code=("11746-5", "LN", "HC, AC, FL"), status=None):
    return number(("11727-5", "LN", "Estimated Weight"), value, unit, status=status,
                  items=[equation(*equation_code)] if equation_code else [])


EDD = ("11778-8", "LN", "EDD")
EDD_BY_LMP = ("11779-6", "LN", "EDD from LMP")
EDD_BY_AGE = ("11781-2", "LN", "EDD from average ultrasound age")
LMP = ("11955-2", "LN", "LMP")
GRAVIDA = ("11996-6", "LN", "Gravida")
FETUSES = ("11878-6", "LN", "Number of Fetuses")


def with_delimiters(dataset):
    """Sequences and their items without lengths, as some machines write them."""
    for element in dataset:
        if element.VR == "SQ":
            element.is_undefined_length = True
            for item in element.value:
                item.is_undefined_length_sequence_item = True
                with_delimiters(item)


class Report:
    """A report on its way to its file."""

    def __init__(self, *sections, sop_class=COMPREHENSIVE, patient="AB-123", study="20261113", charset=None,
                 root=("125000", "DCM", "OB-GYN Ultrasound Procedure Report"), syntax=ExplicitVRLittleEndian):
        self.syntax = syntax
        dataset = Dataset()
        if charset:
            dataset.SpecificCharacterSet = charset
        dataset.SOPClassUID = sop_class
        dataset.SOPInstanceUID = generate_uid()
        dataset.StudyDate = study
        dataset.ContentDate = "20261114"
        dataset.Modality = "SR"
        dataset.PatientName = "Made^Up"
        dataset.PatientID = patient
        dataset.StudyInstanceUID = generate_uid()
        dataset.SeriesInstanceUID = generate_uid()
        dataset.ValueType = "CONTAINER"
        dataset.ConceptNameCodeSequence = Sequence([code(*root)])
        dataset.ContinuityOfContent = "SEPARATE"
        if sections:
            dataset.ContentSequence = Sequence(sections)
        self.dataset = dataset

    def save(self, path):
        meta = FileMetaDataset()
        meta.MediaStorageSOPClassUID = self.dataset.SOPClassUID
        meta.MediaStorageSOPInstanceUID = self.dataset.SOPInstanceUID
        meta.TransferSyntaxUID = self.syntax
        file = FileDataset(str(path), self.dataset, file_meta=meta, preamble=b"\0" * 128)
        file.is_little_endian = self.syntax != ExplicitVRBigEndian
        file.is_implicit_VR = self.syntax == ImplicitVRLittleEndian
        file.save_as(str(path), write_like_original=False)


def machines():
    """Whole reports in the ways of several machines."""
    # Means with their single values and statistics, ages beside each length, all in cm but the femur; twins 1 and 2.
    def by_means(fetus, bpd, hc, ac, fl):
        context = fetus_id(fetus)
        return [
            biometry(context,
                     group(number(MEASURES["bpd"], bpd, "cm", derivation=MEAN),
                           number(MEASURES["bpd"], "5.0", "cm"),
                           number(MEASURES["bpd"], "4.0", "cm", derivation=MINIMUM),
                           number(MEASURES["bpd"], "9.0", "cm", derivation=MAXIMUM),
                           number(MEASURES["bpd"], "0.2", "cm", derivation=DEVIATION), age("170")),
                     group(number(MEASURES["hc"], hc, "cm", derivation=MEAN), age("171")),
                     group(number(MEASURES["ac"], ac, "cm", derivation=MEAN), age("172"))),
            long_bones(context, group(number(MEASURES["fl"], fl, "mm", derivation=MEAN), age("173"))),
        ]
    yield "means", Report(
        characteristics(number(GRAVIDA, "2", "1")),
        summary(date(EDD, "20270304"), date(EDD_BY_LMP, "20270304"), number(FETUSES, "2", "1"),
                fetus_summary(fetus_id("1"), efw("868")), fetus_summary(fetus_id("2"))),
        *by_means("1", "6.09", "22.73", "20.28", "44.9"),
        *by_means("2", "5.83", "21.96", "18.87", "42.5"),
        text(("121106", "DCM", "Comment"), "Both well."))

    # An Enhanced SR, implicit VR: a calculated HC beside the measured one, a femur under the maker's code, no EDD.
    yield "calculated", Report(
        summary(date(LMP, "20260501"), fetus_summary(efw("0.9", "kg", ("99001-01", "99MAKER", "Own equation")))),
        biometry(measure("bpd", "60.9"), measure("hc", "227.3"),
                 measure("hc", "231.9", derivation=CALCULATED), measure("ac", "202.8")),
        long_bones(group(number(("99000-11", "99MAKER", "FEMUR"), "44.9"))),
        container(("125001", "DCM", "Biometry Ratios"), number(("11871-1", "LN", "FL/AC"), "22.1", "%")),
        sop_class=ENHANCED, syntax=ImplicitVRLittleEndian)

    # Twins A and B by the newer subject context, newer codes, several groups a measure, one of which is flagged.
    def by_groups(subject, number_, *bpds):
        context = [subject_id(subject), fetus_number(number_)]
        return biometry(*context, *[measure("bpd", value, status=status) for value, status in bpds],
                        measure("hc", "227.3", derivation=MEAN_SCT),
                        measure("ac", "198", derivation=ESTIMATED))
    yield "groups", Report(
        summary(date(EDD_BY_LMP, "20270304"), date(EDD_BY_AGE, "20270301"), number(("55281-0", "LN", "Fetuses"), "2", "1")),
        by_groups("A ", "1", ("60.1", None), ("60.9", MOST_RECENT), ("61.3", None)),
        by_groups("B ", "2", ("58.1", None), ("58.5", None), ("58.1", None)),
        syntax=ExplicitVRBigEndian)

    # A first visit: a crown-rump length in the early section, an empty value, patient and meanings in Latin letters.
    yield "early", Report(
        summary(date(EDD, "20270604")),
        early(fetus_id("1"), measure("crl", "4.52", "cm"), group(number(MEASURES["bpd"], None))),
        container(("121070", "DCM", "Findings"), number(("11627-7", "LN", "Größe der Höhle"), "5.1", "cm")),
        patient="MÜLLER-1", charset="ISO_IR 100")


def oddities():
    """What a reader must not get wrong, one thing a report."""
    yield "inches", Report(biometry(measure("bpd", "2.4", "[in_i]"), measure("ac", "202.8")))
    yield "old-ucum", Report(biometry(measure("bpd", "6.09", "cm", scheme="UCUM[1.4]")))
    yield "not-numbers", Report(biometry(measure("bpd", "NaN"), measure("hc", "1e999"), measure("ac", "-5")),
                                long_bones(measure("fl", "0")))
    yield "three-values", Report(biometry(measure("bpd", "60"), measure("bpd", "61"), measure("bpd", "6.5", "cm"),
                                          measure("bpd", "60")))
    yield "exact", Report(biometry(measure("bpd", "29.08", "cm"), measure("hc", " 2273e-1 ")))
    yield "flagged-calculated", Report(
        biometry(measure("hc", "231.9", derivation=CALCULATED_SCT, status=MEAN_CHOSEN), measure("hc", "227.3"),
                 measure("bpd", "60.9", derivation=CALCULATED, status=MEAN_CHOSEN)))
    yield "mean-before-plain", Report(biometry(measure("hc", "227.3"), measure("hc", "228.1", derivation=MEAN)))
    yield "two-edds", Report(summary(date(EDD, "20270304"), date(EDD_BY_LMP, "20270311")))
    yield "no-day", Report(summary(date(EDD, "20270230")), study="20261301")
    yield "other-patient", Report(biometry(measure("bpd", "60.9")), patient="ZZ-999")
    yield "no-patient", Report(biometry(measure("bpd", "60.9")), patient="")
    yield "plain", Report(summary(date(EDD, "20270311")), biometry(measure("bpd", "60.9"), measure("hc", "227.3")))
    yield "mother-as-subject", Report(subject_id("AB-123"), biometry(measure("bpd", "60.9")))
    yield "wrong-weight", Report(
        summary(fetus_summary(efw("1000"), number(("11767-1", "LN", "EFW percentile rank"), "50", "%"))),
        biometry(measure("hc", "227.3"), measure("ac", "202.8")), long_bones(measure("fl", "44.9")))
    yield "inferred", Report(
        biometry(group(number(("11727-5", "LN", "Estimated Weight"), "868", "g",
                              items=[number(MEASURES["bpd"], "99")]))))
    yield "private", Report(biometry(group(number(("99000-11", "99MAKER", "FEMUR"), "44.9")),
                                     group(number(("BPD", "99MAKER", "BPD"), "60.9"))))
    yield "other-section", Report(container(("125004", "DCM", "Fetal Cranium"), measure("bpd", "60.9")))
    yield "wrong-count", Report(summary(number(FETUSES, "2", "1")), biometry(fetus_id("1"), measure("bpd", "60.9")))
    yield "utf8", Report(biometry(measure("bpd", "60.9")), patient="ŽÍ-1", charset="ISO_IR 192")
    yield "iso-2022", Report(biometry(measure("bpd", "60.9")), patient="MÜ-1",
                             charset=["ISO 2022 IR 6", "ISO 2022 IR 100"])
    # The placeholder becomes "MÜ-1" with the sequence that switches to the second set.
    yield "iso-2022-escaped", Report(biometry(measure("bpd", "60.9")), patient="ESCAPED1",
                                     charset=["", "ISO 2022 IR 100"])
    yield "not-ascii", Report(biometry(measure("bpd", "60.9")), patient="ESCAPED2")
    yield "no-study-date", Report(biometry(measure("bpd", "60.9")), study="")
    # Refused.
    yield "basic-text", Report(biometry(measure("bpd", "60.9")), sop_class=BASIC)
    yield "other-template", Report(biometry(measure("bpd", "60.9")), root=("125200", "DCM", "Adult Echocardiography"))
    yield "no-content", Report()


def make(folder):
    for name, report in [*machines(), *oddities()]:
        path = Path(folder) / f"{name}.dcm"
        if name in ("calculated", "early"):
            with_delimiters(report.dataset)
        report.save(path)
        data = path.read_bytes().replace(b"ESCAPED1", b"M\x1b-A\xdc-1 ").replace(b"ESCAPED2", b"M\xdc-1    ")
        path.write_bytes(data)


def lengths_of(item, fetus, found):
    for child in item.get("ContentSequence", []):
        name = child.ConceptNameCodeSequence[0]
        if name.CodeValue == "11951-1":
            fetus = child.TextValue
        if child.ValueType == "NUM":
            for key, (value, _, _) in MEASURES.items():
                if name.CodeValue == value:
                    measured = child.MeasuredValueSequence[0]
                    found.setdefault(fetus, {})[key] = [str(measured.NumericValue.original_string),
                                                        measured.MeasurementUnitsCodeSequence[0].CodeValue]
        lengths_of(child, fetus, found)
    return found


def read(path):
    dataset = dcmread(path)
    return {"class": dataset.SOPClassUID, "patientID": dataset.PatientID, "studyDate": dataset.StudyDate,
            "instance": dataset.SOPInstanceUID, "title": dataset.ConceptNameCodeSequence[0].CodeValue,
            "fetuses": lengths_of(dataset, None, {})}


if __name__ == "__main__":
    if sys.argv[1] == "--read":
        for name in sys.argv[2:]:
            print(json.dumps(read(name), sort_keys=True))
    else:
        make(sys.argv[1])
