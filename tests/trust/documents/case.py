"""What a hostile document is, and what is expected of it."""

from dataclasses import dataclass, field
from typing import Callable, Iterable, Union


@dataclass(frozen=True)
class Loaded:
    """The timeline opens with so many events; a function gives them for a document of a size."""
    events: Union[int, Callable[[int], int]]

    def count(self, size):
        return self.events(size) if callable(self.events) else self.events


@dataclass(frozen=True)
class Refused:
    """The timeline does not open; an alert gives the reason."""
    reason: str


@dataclass(frozen=True)
class Stopped:
    """The program stops on purpose: a number that no frame count holds."""
    reason: str


@dataclass(frozen=True)
class Case:
    name: str
    file: str
    #: makes the document, of about so many bytes, in pieces; the folder holds what it may refer to
    content: Callable[[int, str], Iterable[bytes]]
    expected: Union[Loaded, Refused, Stopped]
    grows: bool = True  #: has as many bytes as are asked for


def whole(data):
    """The content of a document that does not grow."""
    return lambda size, folder: [data]


def repeated(piece, size):
    """Whole pieces, about `size` bytes of them, without ever holding all."""
    times = max(1, size // len(piece))
    at_once = max(1, (1 << 18) // len(piece))
    block = piece * at_once
    for _ in range(times // at_once):
        yield block
    yield piece * (times % at_once)


def times(piece, size):
    """How many pieces `repeated` gives."""
    return max(1, size // len(piece))


def around(head, piece, tail=b""):
    """The content of a document with a growing middle."""
    def content(size, folder):
        yield head
        yield from repeated(piece, size)
        yield tail
    return content


def numbered(head, form, tail=b"", divisor=1):
    """The content of a document with a middle of pieces that differ in a number."""
    length = len(form % 10000000)

    def content(size, folder):
        yield head
        count = size // divisor // length
        for start in range(0, count, 10000):
            yield b"".join(form % (10000000 + i) for i in range(start, min(start + 10000, count)))
        yield tail
    content.count = lambda size: size // divisor // length
    return content
