"""Folder trees as texts: made from a manifest, and written down as one.

A manifest has one entry a line; blank lines and lines that begin with "#" are passed over:

    folder "sub" attributes=h
    file "sub/a.txt" text="Привет\\r\\n"
    file "b.bin" size=3000 pattern="abc" attributes=rhs
    file "c.bin" size=70000 seed=7
    file "d.bin" size=2147483648
    link "сюда" target="sub"

Paths are relative, with "/" between names, in UTF-8. Texts are written in quotes as JSON has them
and go to disk in code page 1251. A size repeats a pattern, makes the noise of a seed, or, alone,
is a hole that takes no room. Folders on the way are made by themselves. Attributes are letters:
r read-only, h hidden, s system. A link is a symbolic one; its target counts from the link's folder.

A tree that is written down has short contents that are plain text as `text`, all others as `size`
and `sha256`.
"""

import hashlib
import json
import os
import random
import re
import stat

CODE_PAGE = "cp1251"
KINDS = ("file", "folder", "link")
BITS = {"r": 1, "h": 2, "s": 4}
# Where Samba and Wine keep the attributes of a file; read-only is a matter of permissions as well.
ATTRIBUTE = "user.DOSATTRIB"
ARCHIVE = 32
LONGEST_TEXT = 200

_TOKEN = re.compile(r'\s*(?:(\w+)=)?("(?:[^"\\]|\\.)*"|[^\s"]+)')


class ManifestError(Exception):
    pass


def _tokens(line):
    at = 0
    while line[at:].strip():
        match = _TOKEN.match(line, at)
        if not match:
            raise ManifestError("can't read: " + line[at:])
        name, value = match.groups()
        yield name, json.loads(value) if value.startswith('"') else value
        at = match.end()


def _parse(line):
    """One entry as (kind, path, members)."""
    tokens = list(_tokens(line))
    if len(tokens) < 2 or tokens[0][0] or tokens[1][0] or tokens[0][1] not in KINDS:
        raise ManifestError('neither file "..." nor folder "..." nor link "...": ' + line)
    members = {}
    for name, value in tokens[2:]:
        if name not in ("text", "size", "pattern", "seed", "attributes", "sha256", "target"):
            raise ManifestError("unknown member in: " + line)
        members[name] = value
    path = tokens[1][1]
    if path.startswith("/") or ".." in path.split("/"):
        raise ManifestError("a path that leaves the tree: " + path)
    if (tokens[0][1] == "link") != ("target" in members):
        raise ManifestError("a link has a target, and nothing else has: " + line)
    return tokens[0][1], path, members


def _write_content(path, members):
    with open(path, "wb") as file:
        if "text" in members:
            file.write(members["text"].encode(CODE_PAGE))
            return
        size = int(members.get("size", 0))
        if "pattern" in members:
            pattern = members["pattern"].encode(CODE_PAGE)
            file.write((pattern * (size // len(pattern) + 1))[:size])
        elif "seed" in members:
            file.write(random.Random(int(members["seed"])).randbytes(size))
        else:
            file.truncate(size)


def _set_attributes(path, letters, plain):
    bits = plain
    for letter in letters:
        if letter not in BITS:
            raise ManifestError("unknown attribute " + letter)
        bits |= BITS[letter]
    os.setxattr(path, ATTRIBUTE, ("0x%x" % bits).encode())
    if "r" in letters:
        os.chmod(path, stat.S_IMODE(os.stat(path).st_mode) & ~0o222)


def build(text, folder):
    """Makes the tree of a manifest below a folder, which is there already."""
    late = []
    for line in text.splitlines():
        if not line.strip() or line.lstrip().startswith("#"):
            continue
        kind, name, members = _parse(line)
        path = os.path.join(folder, name)
        os.makedirs(path if kind == "folder" else os.path.dirname(path), exist_ok=True)
        if kind == "file":
            _write_content(path, members)
        elif kind == "link":
            os.symlink(members["target"], path)
        if members.get("attributes"):
            late.append((path, members["attributes"], ARCHIVE if kind == "file" else 0))
    # A folder that is read-only takes no more files.
    for path, letters, plain in reversed(late):
        _set_attributes(path, letters, plain)


def _letters(path):
    bits = 0
    try:
        bits = int(os.getxattr(path, ATTRIBUTE), 16)
    except OSError:
        pass
    if not os.stat(path).st_mode & 0o222:
        bits |= BITS["r"]
    return "".join(letter for letter, bit in BITS.items() if bits & bit)


def _quoted(text):
    return json.dumps(text, ensure_ascii=False)


def _content(path):
    size = os.stat(path).st_size
    if size <= LONGEST_TEXT:
        with open(path, "rb") as file:
            content = file.read()
        try:
            text = content.decode(CODE_PAGE)
        except UnicodeDecodeError:
            text = "\0"
        if all(c.isprintable() or c in "\r\n\t" for c in text):
            return " text=" + _quoted(text)
    digest = hashlib.sha256()
    with open(path, "rb") as file:
        while block := file.read(1 << 20):
            digest.update(block)
    return " size=%d sha256=%s" % (size, digest.hexdigest())


def describe(folder):
    """The lines that tell a tree, sorted by path."""
    lines = []
    for root, folders, files in os.walk(folder):
        for name in folders + files:
            path = os.path.join(root, name)
            if os.path.islink(path):
                line = "link %s target=%s" % (_quoted(os.path.relpath(path, folder)),
                                              _quoted(os.readlink(path)))
                lines.append((os.path.relpath(path, folder), line))
                continue
            kind = "folder" if os.path.isdir(path) else "file"
            line = kind + " " + _quoted(os.path.relpath(path, folder))
            if kind == "file":
                line += _content(path)
            letters = _letters(path)
            if letters:
                line += " attributes=" + letters
            lines.append((os.path.relpath(path, folder), line))
    return [line for _, line in sorted(lines)]
