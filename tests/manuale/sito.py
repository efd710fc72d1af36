#!/usr/bin/env python3
"""sito.py MANUAL SCREENS: the site and the PDF of the manual.

Every link and picture of the site leads somewhere, to a place that is there; every page is in the menu and known to the
search; each screen of the table of screens has its picture in the text; the PDF has the contents, the tutorial's figures
and the index.
"""

import json
import re
import subprocess
import sys
from pathlib import Path
from urllib.parse import unquote

from bs4 import BeautifulSoup


def addresses(page):
    for node in page.find_all(True):
        for name in ("href", "src"):
            if node.has_attr(name):
                yield node[name]


def main():
    folder, screens = Path(sys.argv[1]), Path(sys.argv[2])
    site = folder / "sito"
    pages = {p.name: BeautifulSoup(p.read_text("utf-8"), "html.parser") for p in site.glob("*.html")}
    ids = {name: {n["id"] for n in page.find_all(id=True)} for name, page in pages.items()}
    errors, links, pictures = [], 0, set()
    for name, page in pages.items():
        for address in addresses(page):
            links += 1
            file, _, place = address.partition("#")
            if not (site / (file or name)).is_file():
                errors.append(f"{name}: nothing at {address}")
            elif place and unquote(place) not in ids[file or name]:
                errors.append(f"{name}: no place {address}")
        pictures |= {Path(i["src"]).stem for i in page.find_all("img")}
        if not page.title.get_text().strip() or any(not i.get("alt") for i in page.find_all("img")):
            errors.append(f"{name}: a title or the words of a picture are missing")
        for mark in page.find_all(lambda n: any(a.startswith("data-") for a in n.attrs)):
            errors.append(f"{name}: a mark of the tests is left: {mark}")
    wanted = set(re.findall(r'RigaDi<\w+>\("(\w+)"', screens.read_text("utf-8")))
    errors += [f"no picture of {w}" for w in sorted(wanted - pictures)]
    known = json.loads((site / "argomenti.js").read_text("utf-8").partition("=")[2].rstrip().rstrip(";"))
    listed = {entry[1] for entry in known}
    errors += [f"the search does not know {p}" for p in pages if p not in listed | {"index.html", "indice.html"}]
    text = subprocess.run(["pdftotext", "-layout", folder / "Sagomi.pdf", "-"], capture_output=True, check=True,
                          encoding="utf-8").stdout
    figures = [plain for plain in ("Sommario", "Indice analitico", "149,6", "1.216", "Manuale di Sagomi")]
    errors += [f"not in the PDF: {f}" for f in figures if f not in text]
    if links < 1500 or len(pages) < 40 or len(wanted) < 25:
        errors.append(f"{len(pages)} pages, {links} links, {len(wanted)} screens: too few")
    print("\n".join(errors) or f"{len(pages)} pages, {links} links, {len(pictures)} pictures")
    sys.exit(1 if errors else 0)


if __name__ == "__main__":
    main()
