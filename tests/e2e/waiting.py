"""Waits for what other programs do."""

import time

# In seconds, however slow the machine and its disk are; a condition that holds is seen within a
# twentieth of one.
PATIENCE = 60


class NotSeen(AssertionError):
    """What was waited for did not come."""


def wait_until(condition, what, seconds=PATIENCE):
    """The first true value of condition(), which is asked again and again."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise NotSeen(f"waited {seconds} s for {what}")
        time.sleep(0.05)
