"""The settings of Velmora, read and written past the program."""

import pathlib
import sqlite3

CODE_PAGE = "windows-1252"
SCHEMA = ("CREATE TABLE IF NOT EXISTS settings("
          "key TEXT PRIMARY KEY COLLATE NOCASE, value BLOB NOT NULL) WITHOUT ROWID")


class Settings:
    """The settings in a folder for configurations; the file is made when something is saved."""

    def __init__(self, configurations):
        self.path = pathlib.Path(configurations) / "velmora" / "settings.db"

    def save(self, key, value):
        self.path.parent.mkdir(parents=True, exist_ok=True)
        self._run(SCHEMA)
        self._run("INSERT INTO settings VALUES(?1, ?2) ON CONFLICT(key) DO UPDATE SET value = ?2",
                  key, value.encode(CODE_PAGE))

    def read(self, key):
        """None where the key is missing."""
        rows = self._run("SELECT value FROM settings WHERE key = ?1", key)
        return bytes(rows[0][0]).decode(CODE_PAGE) if rows else None

    def keys(self, beginning):
        """The keys that begin with a text, in order."""
        rows = self._run("SELECT key FROM settings ORDER BY key")
        return [key for (key,) in rows if key.lower().startswith(beginning.lower())]

    def remove(self, key):
        self._run("DELETE FROM settings WHERE key = ?1", key)

    def _run(self, statement, *values):
        database = sqlite3.connect(self.path, timeout=10)
        try:
            with database:
                return database.execute(statement, values).fetchall()
        finally:
            database.close()


def hide_events_at_start(configurations):
    """Velmora starts without the window of today's events, which lies over the main window."""
    settings = Settings(configurations)
    settings.save("EventStart", "0")
    return settings


def occasion_key(date):
    """What the keys of a day's occasions begin with."""
    months = ("January February March April May June July August September October November "
              "December").split()
    return f"Events\\{months[date.month - 1]}\\{date.day:02}\\"
