# SPDX-License-Identifier: GPL-3.0-or-later
"""join.py PAGE DECK OUT: writes OUT/index.html with all that the first picture needs but the module: the style with its
fonts, the scripts as one, the two backs. A request costs more time than the bytes. The faces of the cards go to
OUT/cards.txt. The security policy names style and script by their digests: nothing else in the page can run."""
import base64
import hashlib
import re
import sys
from pathlib import Path

page, deck, out = map(Path, sys.argv[1:])
scripts = ["module", "drawing", "table", "menus", "controls", "sound", "things", "main"]


def drawings(pattern):
    """A drawing a line, in the order of the pictures."""
    return "".join(file.read_text().replace("\n", "") + "\n" for file in sorted(deck.glob(pattern)))


def without_notes(text):
    """Without the comments that stand alone and the indents."""
    return re.sub(r"^\s*(//.*|/\*(?:[^*]|\*(?!/))*\*/)?\s*\n|^ +", "", text, flags=re.M)


def inlined(match):
    return f"url(data:font/woff2;base64,{base64.b64encode((out / match[1]).read_bytes()).decode()})"


def digest(text):
    return f"'sha256-{base64.b64encode(hashlib.sha256(text.encode()).digest()).decode()}'"


style = re.sub(r"url\((fonts/(?:bold|title)\.woff2)\)", inlined, without_notes((page / "style.css").read_text()))
script = "".join((page / f"{name}.js").read_text() for name in scripts)
script = without_notes(re.sub(r"^import .*\n|^export ", "", script, flags=re.M))

html = (page / "index.html").read_text()
for was, now in [
    ('<link rel="stylesheet" href="style.css">', f"<style>{style}</style>"),
    ('<script type="module" src="main.js"></script>', f'<script type="module">{script}</script>'),
    ("BACKS", drawings("dorso?.svg")),
    ("STYLE", digest(style)),
    ("SCRIPT", digest(script)),
]:
    assert html.count(was) == 1, was
    html = html.replace(was, now)
(out / "index.html").write_text(html)
(out / "cards.txt").write_text(drawings("carta??.svg"))
