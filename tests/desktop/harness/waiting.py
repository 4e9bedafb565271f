"""Waiting for a condition, with a limit and with words for what did not come."""

import time


class Late(AssertionError):
    """A condition did not come true in time."""


def until(what, condition, limit=10.0, every=0.02, passing=(LookupError, OSError)):
    """Returns the first true value of condition(), asked every `every` seconds for at most `limit` seconds.

    Exceptions of the kinds in `passing` count as "not yet". Raises Late with `what` and with the last answer.
    """
    deadline = time.monotonic() + limit
    while True:
        asked = time.monotonic()
        try:
            answer = condition()
            if answer:
                return answer
        except passing as error:
            answer = error
        # The last question is asked at or after the deadline's eve, however long an answer takes.
        if asked >= deadline:
            raise Late(f"after {limit:g} s still not: {what} (last answer: {answer!r})")
        time.sleep(min(every, max(0.0, deadline - time.monotonic())))
