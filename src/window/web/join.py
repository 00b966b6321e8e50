# SPDX-License-Identifier: GPL-3.0-or-later
"""join.py PAGE DECK FONTS MODULE OUT: writes OUT/index.html, the page with all that its first picture needs in itself: the
style, the scripts, the fonts, the two backs and the game's module. What stands in the page is there at once, so the script
paints the table before the browser does anything else. Bytes stand as hexadecimal digits: packed, they are hardly longer
than they were, unlike those in base 64. The faces of the cards go to OUT/cards.txt. The security policy names style and
script by their digests: nothing else in the page can run."""
import base64
import hashlib
import re
import sys
from pathlib import Path

page, deck, fonts, module, out = map(Path, sys.argv[1:])
scripts = ["module", "drawing", "table", "menus", "controls", "sound", "things", "main"]


def drawings(pattern):
    """A drawing a line, in the order of the pictures."""
    return "".join(file.read_text().replace("\n", "") + "\n" for file in sorted(deck.glob(pattern)))


def without_notes(text):
    """Without the comments that stand alone and the indents."""
    return re.sub(r"^\s*(//.*|/\*(?:[^*]|\*(?!/))*\*/)?\s*\n|^ +", "", text, flags=re.M)


def digest(text):
    return f"'sha256-{base64.b64encode(hashlib.sha256(text.encode()).digest()).decode()}'"


style = without_notes((page / "style.css").read_text())
script = "".join((page / f"{name}.js").read_text() for name in scripts)
script = without_notes(re.sub(r"^import .*\n|^export ", "", script, flags=re.M))
script = f'"use strict"; (() => {{\n{script}}})();'  # a module would have to wait for the end of the page

html = (page / "index.html").read_text()
for was, now in [
    ('<link rel="stylesheet" href="style.css">', f"<style>{style}</style>"),
    ('<script type="module" src="main.js"></script>', f"<script>{script}</script>"),
    ("BOLD", (fonts / "bold.woff2").read_bytes().hex()),
    ("TITLE", (fonts / "title.woff2").read_bytes().hex()),
    ("BACKS", drawings("dorso?.svg")),
    ("GAME", module.read_bytes().hex()),
    ("STYLE", digest(style)),
    ("SCRIPT", digest(script)),
]:
    assert html.count(was) == 1, was
    html = html.replace(was, now)
(out / "index.html").write_text(html)
(out / "cards.txt").write_text(drawings("carta??.svg"))
