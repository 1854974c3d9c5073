# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""The reports of all samples to a server of the kind that hospitals have, and back: the same findings, bit by bit. The server
speaks to this machine alone."""

import json
import os
import pathlib
import shutil
import socket
import subprocess
import sys
import tempfile
import time

from certificates import Authority
from client import SAMPLES, Case, main, run, server

PROGRAM = shutil.which("Orthanc", path=f"{os.environ.get('PATH', '')}:/usr/sbin:/usr/local/sbin")
if not PROGRAM:
    print("skipped: Orthanc is not installed (Debian's package orthanc, which starts a server of its own)")
    sys.exit(77)


def free_port():
    with socket.create_server(("127.0.0.1", 0)) as listener:
        return listener.getsockname()[1]


class Server:
    """Orthanc with a folder of its own. It takes what comes from this machine by the title NASCOR, and nothing else."""

    def __init__(self, folder, **settings):
        self.folder, self.port = folder, free_port()
        folder.mkdir()
        (folder / "settings.json").write_text(json.dumps({
            "Name": "test", "StorageDirectory": str(folder), "IndexDirectory": str(folder), "Plugins": [],
            "DefaultEncoding": "Utf8",
            "HttpServerEnabled": False, "DicomPort": self.port, "DicomAet": "PACS", "DicomCheckCalledAet": True,
            "DicomCheckModalityHost": True, "DicomAlwaysAllowEcho": False, "DicomAlwaysAllowStore": False,
            "DicomModalities": {"nascor": {"AET": "NASCOR", "Host": "127.0.0.1", "Port": 1, "AllowEcho": True,
                                           "AllowStore": True, "AllowFind": True, "AllowGet": True}}, **settings}))

    def __enter__(self):
        self.log = open(self.folder / "log", "w")
        self.process = subprocess.Popen([PROGRAM, self.folder / "settings.json"], stdout=self.log, stderr=self.log,
                                        stdin=subprocess.DEVNULL)
        end = time.monotonic() + 15
        while time.monotonic() < end and self.process.poll() is None:
            try:
                socket.create_connection(("127.0.0.1", self.port)).close()
                return self
            except OSError:
                time.sleep(0.05)
        self.__exit__()
        raise RuntimeError(pathlib.Path(self.folder / "log").read_text())

    def __exit__(self, *_):
        self.process.terminate()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.log.close()


def lines(outcome):
    return [json.loads(line) for line in outcome.out.splitlines()]


class ReportsOfSamples(Case):
    def findings(self, files):
        """What `import` says of each file, by examination, without the file's name."""
        outcome = run("import", *files)
        self.assertEqual(outcome.status, 0, outcome.err)
        found = [{key: value for key, value in report.items() if key != "file"} for report in lines(outcome)]
        return sorted(found, key=lambda report: report["examDate"])

    def test_come_back_from_a_server_as_they_were(self):
        with Server(self.folder / "server") as orthanc:
            self.assertEqual(server("echo", orthanc.port).status, 0)
            samples = sorted(path.stem for path in SAMPLES.glob("*.nascor"))
            self.assertGreaterEqual(len(samples), 5)
            sent = {sample: self.reports(sample) for sample in samples}
            outcome = server("send", orthanc.port, *(path for paths in sent.values() for path in paths))
            self.assertEqual(outcome.status, 0, outcome.err)
            self.assertEqual(len(lines(outcome)), sum(map(len, sent.values())))
            for sample, files in sent.items():
                with self.subTest(sample):
                    self.same(orthanc, sample, files)

    def same(self, orthanc, sample, files):
        before = self.findings(files)
        (patient,) = {report["patientID"] for report in before}
        found = lines(server("find", orthanc.port, "--patient", patient))
        self.assertEqual(sorted(place["studyDate"] for place in found), [report["examDate"] for report in before])
        self.assertEqual({place["patientID"] for place in found}, {patient})
        folder = self.folder / f"got-{sample}"
        outcome = server("fetch", orthanc.port, "--patient", patient, "--out", folder)
        self.assertEqual(outcome.status, 0, outcome.err)
        got = sorted(folder.iterdir())
        self.assertEqual([line["file"] for line in sorted(lines(outcome), key=lambda line: line["file"])],
                         [str(path) for path in got])
        self.assertEqual(sorted(path.stem for path in got), sorted(place["instance"] for place in found))
        # Not the numbers alone: what stands behind the header, byte by byte.
        self.assertEqual(sorted(map(self.content, got)), sorted(map(self.content, files)))
        self.assertEqual(self.findings(got), before)

        # One study, and one day, of several.
        place = found[0]
        outcome = server("fetch", orthanc.port, "--study", place["study"], "--out", self.folder / f"one-{sample}")
        self.assertEqual([line["instance"] for line in lines(outcome)], [place["instance"]], outcome.err)
        day = ["--from", place["studyDate"], "--to", place["studyDate"]]
        self.assertIn(place, lines(server("find", orthanc.port, "--patient", patient, *day)))
        self.assertLess(len(lines(server("find", orthanc.port, "--patient", patient, *day))), max(len(found), 2))

    @staticmethod
    def content(path):
        """The data set of an explicit little endian file: all behind the group of its header."""
        data = path.read_bytes()
        return data[144 + int.from_bytes(data[140:144], "little"):]

    def test_of_patients_with_other_letters_are_found_by_them(self):
        document = self.folder / "letters.nascor"
        source = self.folder / "letters.json"
        source.write_text(json.dumps({"maternalIDString": "MÜLLER-Ž", "examinations": [
            {"examDate": "2026-11-13", "measurements": [{"bpd": 60.9}]}]}))
        made = run("make", source, "--out", document)
        self.assertEqual(made.status, 0, made.err)
        exported = run("export", "--format", "sr", "--out", self.folder / "sent", document)
        self.assertEqual(exported.status, 0, exported.err)
        with Server(self.folder / "server") as orthanc:
            outcome = server("send", orthanc.port, *(self.folder / "sent").iterdir())
            self.assertEqual(outcome.status, 0, outcome.err)
            outcome = server("fetch", orthanc.port, "--patient", "MÜLLER-Ž", "--out", self.folder / "got")
            self.assertEqual([line["patientID"] for line in lines(outcome)], ["MÜLLER-Ž"], outcome.err)
            self.assertEqual(lines(server("find", orthanc.port, "--patient", "MULLER-Z")), [])

    def test_do_not_go_to_a_server_of_another_title(self):
        sent, *_ = self.reports()
        with Server(self.folder / "server") as orthanc:
            self.fails(server("send", orthanc.port, sent, called="OTHER"), 'its title is not "OTHER"')
            self.fails(server("echo", orthanc.port, "--calling", "STRANGER"), 'title "STRANGER" of this program')
            self.assertEqual(lines(server("find", orthanc.port)), [])

    def test_go_to_an_encrypted_server_of_the_authority_alone(self):
        ours, others = Authority(self.folder, "ours"), Authority(self.folder, "others")
        certificate, key = ours.issue("server")
        own_certificate, own_key = ours.issue("client")
        sent, *_ = self.reports()
        own = ["--cert", own_certificate, "--key", own_key]
        with Server(self.folder / "server", DicomTlsEnabled=True, DicomTlsCertificate=str(certificate),
                    DicomTlsPrivateKey=str(key), DicomTlsTrustedCertificates=str(ours.certificate)) as orthanc:
            self.fails(server("send", orthanc.port, sent, "--ca", others.certificate, *own),
                       "shows a certificate that is not accepted")
            self.fails(server("send", orthanc.port, sent), "127.0.0.1:")
            self.assertEqual(lines(server("find", orthanc.port, "--ca", ours.certificate, *own)), [])
            outcome = server("send", orthanc.port, sent, "--ca", ours.certificate, *own)
            self.assertEqual((outcome.status, outcome.err), (0, ""))
            outcome = server("fetch", orthanc.port, "--patient", "SAMPLE-001", "--out", self.folder / "got",
                             "--ca", ours.certificate, *own)
            self.assertEqual((outcome.status, outcome.err), (0, ""))
            (got,) = (self.folder / "got").iterdir()
            self.assertEqual(self.content(got), self.content(sent))


main()
