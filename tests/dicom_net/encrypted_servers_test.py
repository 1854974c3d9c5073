# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""`nascor-cli server` before encrypted servers: it speaks to the one whose certificate says that it is the one, and never in
clear where encryption was asked for."""

import pathlib
import ssl
import tempfile

from certificates import Authority, openssl
from client import Case, main, run, server
from played_server import Archive, PlayedServer, silent


def encrypted(certificate, key, **settings):
    """What makes a connection an encrypted one."""
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(certificate, key)
    if "clients" in settings:
        context.load_verify_locations(settings["clients"])
        context.verify_mode = ssl.CERT_REQUIRED
    context.maximum_version = settings.get("newest", ssl.TLSVersion.TLSv1_3)
    context.minimum_version = settings.get("oldest", ssl.TLSVersion.TLSv1_2)
    if settings.get("newest") == ssl.TLSVersion.TLSv1_1:
        context.set_ciphers("ALL:@SECLEVEL=0")
    return lambda stream: context.wrap_socket(stream, server_side=True)


class AnEncryptedServer(Case):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.work = pathlib.Path(folder.name)
        cls.ours, cls.others = Authority(cls.work, "ours"), Authority(cls.work, "others")
        cls.certificate, cls.key = cls.ours.issue("server")

    def echo(self, wrap, *words, host="127.0.0.1", play=None):
        with PlayedServer(play or Archive(), wrap) as played:
            return run("server", "echo", "--host", host, "--port", played.port, "--called", "PACS", "--timeout", 3, *words)

    def test_is_spoken_to_when_its_certificate_is_of_the_authority(self):
        for newest in (ssl.TLSVersion.TLSv1_2, ssl.TLSVersion.TLSv1_3):
            outcome = self.echo(encrypted(self.certificate, self.key, newest=newest), "--ca", self.ours.certificate)
            self.assertEqual((outcome.status, outcome.err), (0, ""))
            self.assertIn("answers as PACS, encrypted", outcome.out)
        outcome = self.echo(encrypted(self.certificate, self.key), "--ca", self.ours.certificate, host="localhost")
        self.assertEqual(outcome.status, 0, outcome.err)

    def test_is_left_when_its_certificate_is_of_another_authority(self):
        self.fails(self.echo(encrypted(self.certificate, self.key), "--ca", self.others.certificate),
                   "shows a certificate that is not accepted")
        self.fails(self.echo(encrypted(*self.others.issue("server")), "--ca", self.ours.certificate),
                   "shows a certificate that is not accepted")

    def test_is_left_when_its_certificate_is_of_another_host(self):
        wrap = encrypted(*self.ours.issue("elsewhere", "DNS:elsewhere.example.org,IP:192.0.2.1"))
        self.fails(self.echo(wrap, "--ca", self.ours.certificate), "IP address mismatch")
        self.fails(self.echo(wrap, "--ca", self.ours.certificate, host="localhost"), "hostname mismatch")

    def test_is_left_when_its_certificate_is_of_yesterday(self):
        wrap = encrypted(*self.ours.issue("old", days=-1))
        self.fails(self.echo(wrap, "--ca", self.ours.certificate), "expired")

    def test_is_left_when_its_protocol_is_of_yesterday(self):
        wrap = encrypted(self.certificate, self.key, oldest=ssl.TLSVersion.TLSv1, newest=ssl.TLSVersion.TLSv1_1)
        self.fails(self.echo(wrap, "--ca", self.ours.certificate), "does not make an encrypted connection")

    def test_may_ask_who_we_are(self):
        wrap = encrypted(self.certificate, self.key, clients=self.ours.certificate)
        own = self.ours.issue("client")
        self.fails(self.echo(wrap, "--ca", self.ours.certificate), "127.0.0.1:")
        outcome = self.echo(wrap, "--ca", self.ours.certificate, "--cert", own[0], "--key", own[1])
        self.assertEqual(outcome.status, 0, outcome.err)
        stranger = self.others.issue("client")
        self.fails(self.echo(wrap, "--ca", self.ours.certificate, "--cert", stranger[0], "--key", stranger[1]), "127.0.0.1:")

    def test_is_not_spoken_to_in_clear(self):
        heard = []

        def play(connection):
            heard.append(connection.read(3))
        outcome = self.echo(None, "--ca", self.ours.certificate, play=play)
        self.fails(outcome, "does not make an encrypted connection")
        self.assertEqual(heard, [b"\x16\x03\x01"])  # the beginning of an encrypted connection, and no title
        outcome = self.echo(None, "--ca", self.ours.certificate)
        self.fails(outcome, "127.0.0.1:")
        self.assertNotIn("answers as", outcome.out)

    def test_is_told_apart_from_one_in_clear(self):
        self.fails(self.echo(encrypted(self.certificate, self.key)), "127.0.0.1:")

    def test_that_says_nothing_is_left_in_time(self):
        with PlayedServer(silent) as played:
            outcome = server("echo", played.port, "--timeout", 1, "--ca", self.ours.certificate)
        self.fails(outcome, "gave no complete answer within 1 s\n")
        self.assertLess(outcome.seconds, 3)

    def test_needs_files_that_can_be_used(self):
        nothing = self.work / "nothing.pem"
        nothing.write_text("nothing")
        secret = self.work / "secret.key"
        openssl("ec", "-in", self.key, "-aes256", "-passout", "pass:secret", "-out", secret)
        other, _ = self.ours.issue("other")
        authority = ["--ca", self.ours.certificate]
        with PlayedServer(Archive()) as played:
            for words, sentence in (
                    (["--ca", nothing], "nothing.pem holds no certificate"),
                    (["--ca", self.work / "none"], "none holds no certificate"),
                    ([*authority, "--cert", nothing, "--key", self.key], "nothing.pem holds no certificate"),
                    ([*authority, "--cert", self.certificate, "--key", nothing], "nothing.pem holds no key"),
                    ([*authority, "--cert", self.certificate, "--key", secret], "without a password"),
                    ([*authority, "--cert", other, "--key", self.key], "is not the key of")):
                with self.subTest(words):
                    self.fails(server("echo", played.port, *words), sentence)
            self.assertEqual(played.connections, 0)


main()
