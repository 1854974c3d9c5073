# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""`nascor-cli server` before servers that are wrong, slow, silent or malicious: one sentence and an end in time, never a
signal, a file outside the folder, or another patient's report."""

import random
import socket
import struct
import threading
import time

from client import Case, main, run, server
from played_server import (Archive, COMPREHENSIVE, Connection, ECHO, FIND, PENDING, PlayedServer, acceptance, command,
                           data_units, element, report, silent, unit)

FETCH = ["--patient", "AB-123", "--out"]
NOTHING_YET = "gave no complete answer within 1 s\n"


def closed_port():
    with socket.create_server(("127.0.0.1", 0)) as listener:
        return listener.getsockname()[1]


def deep(levels):
    """Sequences in sequences, none of which ends."""
    return (struct.pack("<HHI", 0x40, 0xA730, 0xFFFFFFFF) + struct.pack("<HHI", 0xFFFE, 0xE000, 0xFFFFFFFF)) * levels


class AServerThatIsNotThere(Case):
    def test_cannot_be_reached(self):
        self.fails(server("echo", closed_port()), "cannot be reached: Connection refused")

    def test_has_no_address(self):
        outcome = run("server", "echo", "--host", "no-such-host.invalid", "--port", 104, "--called", "PACS",
                      "--timeout", 2)
        self.fails(outcome, "no-such-host.invalid:104: ")
        self.assertLess(outcome.seconds, 4)

    def test_does_not_take_the_connection_in_time(self):
        # Two wait already where one may: the system lets the next one knock.
        with socket.socket() as listener:
            listener.bind(("127.0.0.1", 0))
            listener.listen(0)
            waiting = [socket.socket() for _ in range(3)]
            for stream in waiting:
                stream.setblocking(False)
                stream.connect_ex(listener.getsockname())
            outcome = server("echo", listener.getsockname()[1], "--timeout", 1)
            for stream in waiting:
                stream.close()
        self.fails(outcome, "cannot be reached within 1 s\n")
        self.assertLess(outcome.seconds, 3)

    def test_stops_what_is_left_to_send(self):
        first, second, *_ = self.reports()
        outcome = server("send", closed_port(), first, second)
        self.fails(outcome, f"{first}: is not sent: 127.0.0.1:")
        self.assertIn(f"{second}: is not sent, because the server did not answer before", outcome.err)
        self.assertEqual(outcome.out, "")


class AServerThatTakesItsTime(Case):
    def each(self, play):
        """What each action does, all at once: most of it is waiting."""
        sent, *_ = self.reports()
        calls = [("echo",), ("find",), ("fetch", *FETCH, self.folder / "got"), ("send", sent)]
        outcomes = {}

        def call(words, port):
            action, *more = words
            outcomes[action] = server(action, port, *more, "--timeout", 1)

        with PlayedServer(play) as played:
            threads = [threading.Thread(target=call, args=(words, played.port)) for words in calls]
            for thread in threads:
                thread.start()
            for thread in threads:
                thread.join()
        self.assertEqual(len(outcomes), len(calls))
        for action, outcome in outcomes.items():
            with self.subTest(action):
                self.fails(outcome, NOTHING_YET)
                self.assertLess(outcome.seconds, 3)

    def test_is_left_when_it_says_nothing(self):
        self.each(silent)

    def test_is_left_when_it_stops_after_the_beginning(self):
        def play(connection):
            connection.accept()
            silent(connection)
        self.each(play)

    def test_is_left_when_it_answers_byte_by_byte(self):
        def play(connection):
            _, request = connection.read_unit()
            for byte in acceptance(request):
                connection.write(bytes([byte]))
                time.sleep(0.05)
        self.each(play)

    def test_is_left_when_it_never_comes_to_an_end(self):
        def play(connection):
            connection.accept()
            asked, _ = connection.read_message()
            while True:
                connection.say(FIND, command(0x8020, kind=FIND, asked=struct.unpack("<H", asked[0, 0x110])[0],
                                             status=PENDING, follows=True), report(patient="OTHER"))
        with PlayedServer(play) as played:
            outcome = server("find", played.port, "--patient", "AB-123", "--timeout", 1)
        self.fails(outcome, NOTHING_YET)
        self.assertLess(outcome.seconds, 3)

    def test_is_left_when_it_takes_nothing_in(self):
        def play(connection):
            connection.accept()
            time.sleep(5)
        # More than the system keeps for a reader that does not read.
        sent, *_ = self.reports()
        big = self.folder / "big.dcm"
        big.write_bytes(sent.read_bytes() + struct.pack("<HH2sHI", 0x7FE1, 0x1001, b"UN", 0, 15 << 20) + bytes(15 << 20))
        with PlayedServer(play) as played:
            outcome = server("send", played.port, big, "--timeout", 1)
        self.fails(outcome, NOTHING_YET)
        self.assertLess(outcome.seconds, 4)


class AServerThatEndsTheConnection(Case):
    def test_is_said_to_at_every_place_of_its_answer(self):
        said = b""
        with PlayedServer(lambda connection: Archive()(record(connection))) as played:
            def record(connection):
                write = connection.write

                def kept(data):
                    nonlocal said
                    said += data
                    write(data)
                connection.write = kept
                return connection
            self.assertEqual(server("echo", played.port).status, 0)
        whole = len(said) - 10  # without the goodbye
        self.assertGreater(whole, 150)

        def play(connection):
            connection.read_unit()
            left = said[:length]
            accepted = len(acceptance_of(said))
            connection.write(left[:accepted])
            if len(left) > accepted:
                connection.read_unit()
                connection.write(left[accepted:])

        def acceptance_of(data):
            return data[:6 + struct.unpack(">I", data[2:6])[0]]

        for length in [0, 1, 5, 6, 7, 74, *range(80, whole, 13), whole - 1]:
            with self.subTest(length), PlayedServer(play) as played:
                self.fails(server("echo", played.port), "ended the connection")

    def test_sends_no_signal(self):
        def play(connection):
            connection.accept()
            connection.stream.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        sent, *_ = self.reports()
        big = self.folder / "big.dcm"
        big.write_bytes(sent.read_bytes() + struct.pack("<HH2sHI", 0x7FE1, 0x1001, b"UN", 0, 8 << 20) + bytes(8 << 20))
        with PlayedServer(play) as played:
            self.fails(server("send", played.port, big), "is not sent")

    def test_does_so_in_the_middle_of_a_report(self):
        whole = report(rest=element(0x40, 0xA160, "x" * 40000))

        class Cut(Archive):
            def give(self, connection, given, found):
                context = connection.contexts[COMPREHENSIVE]
                connection.write(data_units(context, command(1, kind=COMPREHENSIVE, message=7, follows=True,
                                                             instance=found[8, 0x18]), True))
                connection.write(data_units(context, given, False)[:20000])
                raise EOFError
        with PlayedServer(Cut([whole])) as played:
            outcome = server("fetch", played.port, *FETCH, self.folder / "got")
        self.fails(outcome, "ended the connection before its answer was complete")
        self.assertFalse((self.folder / "got").exists())


class AServerThatRefuses(Case):
    def refusal(self, result, source, reason):
        def play(connection):
            connection.read_unit()
            connection.write(unit(3, bytes([0, result, source, reason])))
            silent(connection)
        with PlayedServer(play) as played:
            return server("echo", played.port, called="WRONG")

    def test_says_which_title_it_does_not_know(self):
        self.fails(self.refusal(1, 1, 7), 'its title is not "WRONG"')
        self.fails(self.refusal(1, 1, 3), 'the title "NASCOR" of this program must be entered there first')
        self.fails(self.refusal(2, 3, 1), "it is busy; try again later")
        self.fails(self.refusal(1, 1, 1), "does not say why")
        self.fails(self.refusal(9, 9, 9), "127.0.0.1:")

    def test_says_what_it_does_not_do(self):
        def play(connection):
            connection.accept(lambda kind: False)
            silent(connection)
        sent, *_ = self.reports()
        with PlayedServer(play) as played:
            self.fails(server("echo", played.port), "does not answer to C-ECHO")
            self.fails(server("find", played.port), "does not search for reports")
            self.fails(server("fetch", played.port, *FETCH, self.folder / "got"), "does not search for reports")
            self.fails(server("send", played.port, sent), "the server takes no reports")

    def test_says_that_it_hands_out_nothing(self):
        class Searching(Archive):
            def __call__(self, connection):
                accept = connection.accept
                connection.accept = lambda: accept(lambda kind: kind == FIND)
                super().__call__(connection)
        with PlayedServer(Searching([report()])) as played:
            self.fails(server("fetch", played.port, *FETCH, self.folder / "got"), "does not hand out reports")

    def test_keeps_no_report(self):
        first, second, *_ = self.reports()
        with PlayedServer(Archive(store=0xA700)) as played:
            outcome = server("send", played.port, first, second)
        self.fails(outcome, f"{first}: is not taken by the server")
        self.assertIn(f"{second}: is not taken by the server", outcome.err)
        self.assertEqual(outcome.out, "")

    def test_changes_what_it_keeps(self):
        sent, *_ = self.reports()
        with PlayedServer(Archive(store=0xB000)) as played:
            self.fails(server("send", played.port, sent), "perhaps not as it was")

    def test_aborts(self):
        def play(connection):
            connection.accept()
            connection.write(unit(7, bytes(4)))
            silent(connection)
        with PlayedServer(play) as played:
            self.fails(server("echo", played.port), "127.0.0.1:")


class AServerThatIsNone(Case):
    def says(self, answer, after_acceptance=False):
        def play(connection):
            if after_acceptance:
                connection.accept()
                connection.read_message()
            else:
                connection.read_unit()
            connection.write(answer)
            silent(connection)
        with PlayedServer(play) as played:
            return server("echo", played.port, "--timeout", 2)

    def test_speaks_another_protocol(self):
        self.fails(self.says(b"HTTP/1.1 400 Bad Request\r\n\r\n"), "answers what is not DICOM")
        self.fails(self.says(b"220 mail.example.org\r\n"), "answers what is not DICOM")

    def test_states_lengths_that_nothing_has(self):
        for kind in (2, 3, 4, 7):
            with self.subTest(kind):
                self.fails(self.says(struct.pack(">BBI", kind, 0, 0xFFFFFFFF)), "answers what is not DICOM")
        self.fails(self.says(unit(4, struct.pack(">IBB", 0xFFFFFFFF, 1, 3) + bytes(40)), True),
                   "answers what is not DICOM")

    def test_nests_a_command_as_deep_as_a_stack(self):
        self.fails(self.says(data_units(1, command(0x8030, asked=1, status=0) + deep(100000), True), True),
                   "answers what is not DICOM")
        self.fails(self.says(data_units(1, deep(200), True), True), "127.0.0.1:")

    def test_says_anything(self):
        chance = random.Random(20261123)
        def play(connection):
            _, request = connection.read_unit()
            answer = bytearray(acceptance(request) + data_units(1, command(0x8030, kind=ECHO, asked=1, status=0), True))
            for _ in range(chance.randrange(1, 6)):
                answer[chance.randrange(len(answer))] = chance.randrange(256)
            connection.write(answer[:chance.randrange(1, 2 * len(answer))])
            connection.stream.shutdown(socket.SHUT_WR)
            silent(connection)
        with PlayedServer(play) as played:
            for _ in range(60):
                outcome = server("echo", played.port, "--timeout", 2)
                # What was changed may not matter.
                self.assertIn(outcome.status, (0, 1), outcome.err)
                self.assertEqual(outcome.status == 0, " answers as " in outcome.out)


class AServerThatFindsWhatItWasNotAskedFor(Case):
    def found(self, reports, *words):
        with PlayedServer(Archive(reports)) as played:
            return server("find", played.port, *words)

    def test_shows_no_other_patient(self):
        outcome = self.found([report(patient="OTHER"), report(study="1.2.4.1", series="1.2.4.2", instance="1.2.4.3")],
                             "--patient", "AB-123")
        self.assertEqual(outcome.status, 0, outcome.err)
        self.assertEqual(outcome.out, '{"patientID":"AB-123","studyDate":"2026-11-13","study":"1.2.4.1",'
                                      '"series":"1.2.4.2","instance":"1.2.4.3"}\n')
        self.assertIn("1 answer was left out: it is of another patient", outcome.err)

    def test_shows_no_other_day_or_study(self):
        self.assertEqual(self.found([report()], "--from", "2026-11-14").out, "")
        self.assertEqual(self.found([report()], "--to", "2026-11-12").out, "")
        self.assertEqual(self.found([report(day="yesterday")], "--to", "2026-11-14").out, "")
        self.assertEqual(self.found([report()], "--study", "1.2.3").out, "")
        self.assertNotEqual(self.found([report()], "--from", "2026-11-13", "--to", "2026-11-13").out, "")

    def test_shows_no_other_kind(self):
        self.assertEqual(self.found([report(kind="1.2.840.10008.5.1.4.1.1.88.67")]).out, "")

    def test_gives_a_terminal_no_orders(self):
        outcome = self.found([report(patient="\x1b[2J\u202e", day="\x1b[2J")])
        self.assertEqual(outcome.out.count("\x1b") + outcome.out.count("\u202e"), 0)
        self.assertIn('"studyDate":null', outcome.out)

    def test_names_no_paths(self):
        for uid in ("../../x", "/etc/x", "..", "1.2/3", "1.2\\1.3", ""):
            with self.subTest(uid):
                outcome = self.found([report(instance=uid)])
                self.assertEqual(outcome.out, "")
                self.assertIn("left out", outcome.err)

    def test_is_cut_at_a_thousand(self):
        for count in (1000, 1001):
            archive = Archive(report(instance=f"1.2.4.{i}") for i in range(count))
            with PlayedServer(archive) as played:
                outcome = server("find", played.port)
            self.assertEqual(len(outcome.out.splitlines()), 1000)
            self.assertEqual("at most 1000 reports are taken, and there are others" in outcome.err, count > 1000)
            self.assertEqual(archive.is_stopped, count > 1000)

    def test_nests_its_answer_as_deep_as_a_stack(self):
        outcome = self.found([report(rest=deep(3000))])
        self.assertEqual((outcome.status, outcome.out), (0, ""))
        self.assertIn("left out", outcome.err)


class AServerThatGivesAnotherReport(Case):
    def fetched(self, give, reports=None, words=FETCH):
        with PlayedServer(Archive(reports or [report()], give=give)) as played:
            return server("fetch", played.port, *words, self.folder / "got")

    def gives_nothing(self, outcome, sentence):
        self.fails(outcome, sentence)
        self.assertEqual(outcome.out, "")
        self.assertFalse((self.folder / "got").exists())

    def test_gives_what_it_was_asked_for(self):
        outcome = self.fetched(lambda given: given)
        self.assertEqual(outcome.status, 0, outcome.err)
        self.assertIn(report(), (self.folder / "got" / "1.2.3.3.dcm").read_bytes())

    def test_is_told_by_patient_and_uids(self):
        another = "the server gave another report than it was asked for"
        self.gives_nothing(self.fetched(lambda given: report(patient="OTHER")), 'it is of "OTHER", although')
        self.gives_nothing(self.fetched(lambda given: report(instance="1.2.3.4")), another)
        self.gives_nothing(self.fetched(lambda given: report(series="1.2.3.4")), another)
        self.gives_nothing(self.fetched(lambda given: report(study="1.2.3.4")), another)
        self.gives_nothing(self.fetched(lambda given: report(kind="1.2.840.10008.5.1.4.1.1.88.22")), another)

    def test_is_told_by_its_structure(self):
        self.gives_nothing(self.fetched(lambda given: report(rest=deep(100000))), "nested deeper than any report")
        self.gives_nothing(self.fetched(lambda given: report()[:-2]), "was not taken: it is")
        self.gives_nothing(self.fetched(lambda given: b""), "was not taken")

    def test_is_told_by_its_length(self):
        long = report(rest=struct.pack("<HHI", 0x7FE1, 0x1001, 16 << 20) + bytes(16 << 20))
        self.gives_nothing(self.fetched(lambda given: long), "it is longer than any report")

    def test_lists_another_patient(self):
        self.gives_nothing(self.fetched(lambda given: given, [report(patient="OTHER")]), "left out")

    def test_gives_nothing(self):
        class Empty(Archive):
            def give(self, *_):
                pass
        with PlayedServer(Empty([report()], get=0xA701)) as played:
            self.gives_nothing(server("fetch", played.port, *FETCH, self.folder / "got"), "1.2.3.3 was not given")

    def test_has_nothing(self):
        self.gives_nothing(self.fetched(None, [report(day="20200101")], [*FETCH[:2], "--from", "2026-01-01", "--out"]),
                           "left out")
        with PlayedServer(Archive()) as played:
            self.gives_nothing(server("fetch", played.port, *FETCH, self.folder / "got"), "has no such report")

    def test_never_writes_over_a_file(self):
        (self.folder / "got").mkdir()
        old = self.folder / "got" / "1.2.3.3.dcm"
        old.write_text("mine")
        outcome = self.fetched(lambda given: given)
        self.fails(outcome, "1.2.3.3.dcm: it is there already, and stays as it is")
        self.assertEqual(old.read_text(), "mine")
        self.assertEqual(outcome.out, "")


class AnythingElse(Case):
    def test_contacts_nothing_when_it_is_called_wrongly(self):
        sent, *_ = self.reports()
        wrong = [("echo", sent), ("send",), ("echo", "--patient", "A"), ("fetch", "--out", self.folder / "got"),
                 ("fetch", "--patient", "A"), ("fetch", "--patient", "", "--out", self.folder / "got"),
                 ("find", "--patient", "A*"), ("find", "--from", "2026-02-30"), ("find", "--from", "20261113"),
                 ("find", "--out", self.folder / "got"), ("echo", "--timeout", "0"), ("echo", "--timeout", "x"),
                 ("echo", "--key", "k"), ("echo", "--calling", "x" * 17), ("delete",)]
        with PlayedServer(Archive()) as played:
            for action, *words in wrong:
                with self.subTest([action, *words]):
                    outcome = server(action, played.port, *words)
                    self.assertEqual((outcome.status, outcome.out), (2, ""), outcome.err)
            for words in (["--host", "127.0.0.1", "--port", played.port], ["--port", played.port, "--called", "PACS"],
                          ["--host", "127.0.0.1", "--called", "PACS"]):
                outcome = run("server", "echo", *words)
                self.assertEqual(outcome.status, 2)
                self.assertIn("is missing", outcome.err)
            self.assertEqual(played.connections, 0)

    def test_sends_reports_alone(self):
        sent, *_ = self.reports()
        whole = sent.read_bytes()
        files = {"a.txt": b"no DICOM", "cut.dcm": whole[:-3], "empty.dcm": b"",
                 "image.dcm": whole.replace(b"1.2.840.10008.5.1.4.1.1.88.33", b"1.2.840.10008.5.1.4.1.1.88.99")}
        for name, content in files.items():
            (self.folder / name).write_bytes(content)
        with PlayedServer(Archive()) as played:
            outcome = server("send", played.port, *(self.folder / name for name in files), self.folder / "none", sent)
            self.assertEqual(played.connections, 1)
        self.assertEqual(outcome.status, 1)
        for name in [*files, "none"]:
            self.assertIn(f"{name}: ", outcome.err)
        self.assertEqual(len(outcome.out.splitlines()), 1)
        self.assertIn(str(sent), outcome.out)

    def test_says_that_others_may_read_what_is_not_encrypted(self):
        with PlayedServer(Archive()) as played:
            outcome = server("echo", played.port)
        self.assertEqual(outcome.out, f"127.0.0.1:{played.port} answers as PACS\n")
        self.assertIn("the connection is not encrypted", outcome.err)

    def test_needs_the_dictionary_and_says_so(self):
        with PlayedServer(Archive()) as played:
            self.fails(server("echo", played.port, environment={"DCMDICTPATH": "/nonexistent"}), "DCMDICTPATH")


main()
