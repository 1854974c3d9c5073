#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""Makes a patient in the application that runs (or is started by this), and exports the page on show.

    make_and_export.py REFERENCE-ID EDD EXAMINATION-DATE BPD HC AC FL

Dates are ISO days such as 2027-04-10, lengths are in mm. Needs the package python3-dbus.
"""

import datetime
import sys

import dbus

SERVICE = "org.nascor.Nascor"


class Document:
    """An open document, whose nine properties are read and written like a dictionary's."""

    def __init__(self, bus, path):
        self.path = path
        self._properties = dbus.Interface(bus.get_object(SERVICE, path), dbus.PROPERTIES_IFACE)

    def __getitem__(self, key):
        return self._properties.Get("org.nascor.Document", key)

    def __setitem__(self, key, value):
        self._properties.Set("org.nascor.Document", key, value)


def day(key, text):
    """`text`, which must be an ISO day."""
    try:
        datetime.date.fromisoformat(text)
    except ValueError:
        raise ValueError(f'{key}: expected an ISO 8601 date such as 2027-04-10, but "{text}" was given') from None
    return text


def length(key, text):
    """The length in `text`, in mm."""
    try:
        value = float(text)
    except ValueError:
        value = -1.0
    if not 0.0 <= value < 1000.0:
        raise ValueError(f'{key}: expected a length in mm such as 45.3, but "{text}" was given')
    return value


def main(arguments):
    if len(arguments) != 7:
        print(__doc__, file=sys.stderr)
        return 2
    identifier, edd, exam_date, *lengths = arguments
    try:
        # All before the first call: a patient is made whole or not at all.
        edd = day("edd", edd)
        exam_date = day("examDate", exam_date)
        lengths = {key: length(key, text) for key, text in zip(("bpd", "hc", "ac", "fl"), lengths)}
    except ValueError as error:
        print(error, file=sys.stderr)
        return 1
    try:
        bus = dbus.SessionBus()
        application = dbus.Interface(bus.get_object(SERVICE, "/org/nascor/Nascor"), "org.nascor.Application")
        application.perform("make new document")
        document = Document(bus, application.currentDocument())
        document["identifier"] = identifier
        document["gravida"] = 1
        document["edd"] = edd
        document["examDate"] = exam_date
        for key, value in lengths.items():
            document[key] = value
        document["tabViewIndex"] = 1  # the chart of the biparietal diameter
        application.perform("export to file")
    except dbus.DBusException as error:
        print(error.get_dbus_message(), file=sys.stderr)
        return 1
    print(document.path)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
