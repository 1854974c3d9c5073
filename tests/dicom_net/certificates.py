# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""Certificates for an afternoon: an authority, and servers and clients of it."""

import shutil
import subprocess
import sys

if not shutil.which("openssl"):
    print("skipped: openssl, which makes the certificates, is not installed")
    sys.exit(77)


def openssl(*words):
    subprocess.run(["openssl", *map(str, words)], check=True, stdin=subprocess.DEVNULL, capture_output=True)


class Authority:
    def __init__(self, folder, name):
        self.folder, self.name = folder, name
        self.certificate, self.key = folder / f"{name}.pem", folder / f"{name}.key"
        openssl("req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-days", 2,
                "-subj", f"/CN={name}", "-keyout", self.key, "-out", self.certificate,
                "-addext", "keyUsage=critical,keyCertSign,cRLSign")

    def issue(self, name, names="IP:127.0.0.1,DNS:localhost", days=2):
        """The files of a certificate for these names, and of its key."""
        certificate, key, request = (self.folder / f"{self.name}-{name}.{end}" for end in ("pem", "key", "csr"))
        extensions = self.folder / "extensions"
        extensions.write_text(f"subjectAltName={names}\nbasicConstraints=CA:FALSE\n")
        openssl("req", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-subj", f"/CN={name}",
                "-keyout", key, "-out", request)
        openssl("x509", "-req", "-in", request, "-CA", self.certificate, "-CAkey", self.key, "-CAcreateserial",
                "-days", days, "-extfile", extensions, "-out", certificate)
        return certificate, key
