"""The layout of a book, written down once more so that the tests read the bytes by themselves."""

RECORD_SIZE = 1595

# Name and width of each field, in the order in which they lie in a record.
FIELDS = {
    "First": 15, "Last": 20, "Title": 10, "Company": 50, "Position": 60, "Address1": 75,
    "Address2": 75, "Address3": 75, "Address4": 75, "Country": 50, "PostalCode": 30, "Phone": 20,
    "WorkPhone": 20, "Fax": 20, "Pager": 25, "OtherPhone": 20, "EMail": 100, "WebPage": 200,
    "Salutation": 30, "Class": 25, "Memo": 250, "DateReference": 20, "Custom1": 25, "Custom2": 25,
    "FileAttachment": 255, "Spouse": 25,
}

TOMBSTONE = bytes(15) + b"DELETED".ljust(20) + bytes(1560)


def record(**values):
    """An entry as the add form writes it: every field padded with blanks."""
    result = b""
    for name, width in FIELDS.items():
        value = values.pop(name, "").encode("windows-1252")
        assert len(value) <= width, name
        result += value.ljust(width)
    assert not values, values
    assert len(result) == RECORD_SIZE
    return result
